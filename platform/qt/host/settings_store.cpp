#include "platform/host/settings_store.h"

#include <QSettings>
#include <QStandardPaths>
#include <map>
#include <utility>

namespace {

QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// One file an application, in the folder of the user's settings.
QString StorePath(std::string_view application) {
  return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/turnbay/" +
         ToQt(application) + ".ini";
}

QString StoreKey(std::string_view section, std::string_view key) {
  return ToQt(section) + '/' + ToQt(key);
}

// What couldn't be written, by file and key: it holds at least until the program ends.
std::map<std::pair<QString, QString>, QString> unwritten;

}  // namespace

std::string GetSetting(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view defaultText) {
  const QSettings store(StorePath(application), QSettings::IniFormat);
  const auto kept = unwritten.find({store.fileName(), StoreKey(section, key)});
  if (kept != unwritten.end()) return kept->second.toStdString();
  const QVariant value = store.value(StoreKey(section, key));
  // Text with a comma that somebody wrote without quotation marks reads as a list.
  const QString text =
      value.typeId() == QMetaType::QStringList ? value.toStringList().join(", ") : value.toString();
  return value.isValid() ? text.toStdString() : std::string(defaultText);
}

void SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                 std::string_view value) {
  QSettings store(StorePath(application), QSettings::IniFormat);
  store.setValue(StoreKey(section, key), ToQt(value));
  store.sync();
  const std::pair place(store.fileName(), StoreKey(section, key));
  if (store.status() == QSettings::NoError) {
    unwritten.erase(place);
  } else {
    unwritten[place] = ToQt(value);
  }
}
