// The transcripts in tests/data/player: files, and commands of turnbay-play that are given in
// their folder; below each what it says and writes, and how it ends.

#include <QColor>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <map>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>

#include "tests/platform/qt/temporary_folder.h"
#include "tests/session_file.h"

namespace {

namespace fs = std::filesystem;

// How much of the colour lies below the legend: nothing, or the area in units of 4,000 pixels.
QString AreaOf(QRgb colour, const char* name, const QImage& picture) {
  int count = 0;
  for (int y = 130; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == colour ? 1 : 0;
  }
  return count == 0 ? QString() : QString(", %1: %2").arg(name).arg(count / 4'000);
}

// In the order in which they come from the top.
QStringList ColoursOf(const QImage& picture) {
  QStringList colours;
  QRgb last = 0;
  for (int i = 0; i < picture.width() * picture.height(); ++i) {
    const QRgb colour = picture.pixel(i % picture.width(), i / picture.width());
    if (std::exchange(last, colour) != colour) colours += QColor(colour).name();
  }
  colours.removeDuplicates();
  return colours;
}

class PlayerTest : public TemporaryFolderTest, public testing::WithParamInterface<std::string> {
 protected:
  // Returns the exit status.
  int Run(const QStringList& arguments) {
    player_.setWorkingDirectory(QString::fromStdString(folder));
    player_.start(TURNBAY_PLAY, arguments);
    EXPECT_TRUE(player_.waitForFinished(60'000)) << player_.errorString().toStdString();
    EXPECT_EQ(QProcess::NormalExit, player_.exitStatus());
    return player_.exitCode();
  }

  // A row is one of these words and its own.
  void Act(const std::string& row) {
    const QString words = QString::fromStdString(row);
    const std::string name = words.section(' ', 1, 1).toStdString();
    if (row.starts_with("folder ")) fs::copy(fs::path(TURNBAY_DATA) / name, folder);
    if (row.starts_with("file ")) Put(name, Unquoted(words.section(' ', 2).toStdString()));
    if (row.starts_with("pipe ")) mkfifo(Path(name).c_str(), 0600);
    if (row.starts_with("remove ")) fs::remove(Path(name));
    if (row.starts_with("input ")) player_.setStandardInputFile(Path(name).c_str());
    // "output /dev/full"; a bare "output" is heard again.
    if (row.starts_with("output")) player_.setStandardOutputFile(name.c_str());
    if (row.starts_with("set ")) qputenv("__EGL_VENDOR_LIBRARY_FILENAMES", name.c_str());
    if (row.starts_with("play")) Play(words.section(' ', 1));
  }

  void Play(QString words) {
    before_ = Files();
    words.replace("SAMPLES", TURNBAY_SAMPLES);
    QStringList arguments = words.split(' ', Qt::SkipEmptyParts);
    arguments.replaceInStrings("''", "");
    const int status = Run(arguments);
    for (const QByteArray& line : player_.readAllStandardError().split('\n')) {
      if (!line.isEmpty()) seen_.push_back(QByteArray(line).replace('\0', "\\0").toStdString());
    }
    TellOutput(player_.readAllStandardOutput());
    for (const auto& [name, bytes] : Files()) {
      if (before_.contains(name)) continue;
      TellFile(name, bytes);
      fs::remove(Path(name));
    }
    seen_.push_back("ends with " + std::to_string(status));
  }

  std::map<std::string, std::string> Files() const {
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::directory_iterator(folder)) {
      const std::string name = entry.path().filename();
      if (entry.is_regular_file()) files[name] = Bytes(name);
    }
    return files;
  }

  // A report by its keys, without what the program and its profile repeat.
  void TellOutput(const QByteArray& output) {
    const QJsonObject report = QJsonDocument::fromJson(output).object();
    if (report.isEmpty() && !output.isEmpty()) TellFile("output", output.toStdString());
    for (const QString& key : report.keys()) {
      QJsonValue value = report[key];
      if (QStringList{"text", "profile", "taper", "panels"}.contains(key)) continue;
      if (value.isObject()) {
        QJsonObject object = value.toObject();
        for (const QString& name : object.keys()) {
          if (object[name] == QJsonValue(0)) object.remove(name);
        }
        value = object;
      }
      const auto json = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
      if (json.size() > 4 && json != "[null]") {
        seen_.push_back((key + ": ").toStdString() + json.mid(1).chopped(1).toStdString());
      }
    }
  }

  void TellFile(const std::string& name, const std::string& bytes) {
    const QImage picture = QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
    QString text = QString::fromLatin1(bytes).replace("\r\n", "\\r\n");
    if (!picture.isNull()) {
      text = QString("%1x%2").arg(picture.width()).arg(picture.height());
      text += AreaOf(qRgb(240, 160, 0), "left standing", picture) +
              AreaOf(qRgb(0, 90, 170), "cut away", picture);
      const QString colours = ColoursOf(picture).join(' ');
      if (colours.size() < 60) text += ", " + colours;
    } else if (bytes.starts_with("solid") || name.ends_with(".stl")) {
      text = QString("%1 bytes of %2").arg(bytes.size()).arg(bytes.c_str());
    }
    seen_.push_back("writes " + name);
    for (const QString& line : text.split('\n'))
      seen_.push_back("  " + line.toLatin1().toStdString());
  }

  QProcess player_;
  std::vector<std::string> seen_;
  std::map<std::string, std::string> before_;
};

TEST_P(PlayerTest, SaysAndWritesWhatItsTranscriptTells) {
  SessionFile session(std::string(TURNBAY_DATA "/player/") + GetParam() + ".session");
  for (std::string row = session.Next(); !row.empty(); row = session.Next()) {
    seen_.clear();
    Act(row);
    session.Hold(seen_);
  }
  qunsetenv("__EGL_VENDOR_LIBRARY_FILENAMES");
}

INSTANTIATE_TEST_SUITE_P(Kept, PlayerTest,
                         testing::ValuesIn(SessionFile::NamesIn(TURNBAY_DATA "/player")),
                         [](const auto& session) { return session.param; });

TEST_F(PlayerTest, WhatThereIsNoMemoryForIsToldAndTheOldFileStays) {
  player_.setChildProcessModifier([] {
    const rlimit most{1'000'000'000, 1'000'000'000};
    setrlimit(RLIMIT_AS, &most);
  });
  player_.start(TURNBAY_PLAY, {"--version"});
  if (!player_.waitForFinished() || player_.exitStatus() != QProcess::NormalExit) {
    GTEST_SKIP() << "the sanitizer itself needs more";
  }
  Put("p.cnc", "[BILLET X4 Z2");
  for (const char* size : {"16384x16384", "12000x12000"}) {
    Put("p.png", "old");
    EXPECT_EQ(2, Run({"--size", size, "--picture", "p.png", "p.cnc"}));
    EXPECT_EQ("p.cnc: There is not enough memory for the simulation picture.\n",
              player_.readAllStandardError().toStdString());
    EXPECT_EQ("old", Bytes("p.png"));
  }
}

}  // namespace
