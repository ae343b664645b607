#include "apps/play_report.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cstddef>
#include <new>

#include "apps/comparison_json.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "platform/code_page.h"
#include "platform/qt/views/raster_image.h"
#include "platform/windowless/windowless.h"

namespace {

using GlobalVariables::RunOutcome;

constexpr frmMain::PanelKey kReportedPanels[] = {"FeedRate", "Dim", "SpindleSpeed",
                                                 "SpindleDirection", "Coolant"};

QString ToQt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

QString OutcomeText(RunOutcome outcome) {
  switch (outcome) {
    case RunOutcome::SyntaxFault:
      return "syntax error";
    case RunOutcome::NoBillet:
      return "no billet";
    default:
      return "done";
  }
}

QJsonArray MessagesJson() {
  QJsonArray array;
  for (const Windowless::MessageRecord& message : Windowless::Messages()) {
    array.append(QJsonObject{
        {"text", ToQt(message.text)}, {"style", message.style}, {"title", ToQt(message.title)}});
  }
  return array;
}

QJsonArray NotificationsJson() {
  QJsonArray array;
  for (const Windowless::NotificationRecord& notification : Windowless::Notifications()) {
    array.append(QJsonObject{{"text", ToQt(notification.text)},
                             {"time", notification.milliseconds},
                             {"modal", notification.modal}});
  }
  return array;
}

QJsonArray WarningsJson(const std::vector<PlayWarning>& warnings) {
  QJsonArray array;
  for (const auto& [text, place] : warnings) {
    array.append(QJsonObject{{"text", ToQt(text)}, {"line", place.line}, {"column", place.column}});
  }
  return array;
}

// Where the fault is in the text as played; null when there is none.
QJsonValue CheckJson(RunOutcome outcome) {
  if (outcome != RunOutcome::SyntaxFault) return QJsonValue::Null;
  const RichText& editor = frmMain::TextEditor();
  return QJsonObject{{"SelStart", static_cast<qint64>(editor.SelStart())},
                     {"SelLength", static_cast<qint64>(editor.SelLength())}};
}

QJsonObject RegistersJson() {
  QJsonObject object;
  for (const ModCNC::Register& entry : ModCNC::kRegisters) {
    if (entry.isReported) object[entry.name] = *entry.value;
  }
  return object;
}

QJsonObject PanelsJson() {
  QJsonObject object;
  for (const frmMain::PanelKey key : kReportedPanels) {
    object[key.Name().data()] = ToQt(frmMain::StatusBar.Panels(key).Text);
  }
  return object;
}

// Three bytes a pixel: red, green and blue.
QImage ToImage(const Raster& surface) {
  QImage image = ToQImage(surface).convertToFormat(QImage::Format_RGB888);
  if (image.width() != surface.Width()) throw std::bad_alloc();
  return image;
}

QString SurfaceHash(const Raster& surface) {
  const QImage image = ToImage(surface);
  QCryptographicHash hash(QCryptographicHash::Sha256);
  for (int y = 0; y < image.height(); ++y) {
    hash.addData(QByteArrayView(image.constScanLine(y), qsizetype{3} * image.width()));
  }
  return hash.result().toHex();
}

}  // namespace

QByteArray ReportJson(const PlayOutcome& outcome) {
  QJsonArray profile;
  QJsonArray taper;
  for (const Graphics::ProfileColumn& column : Graphics::StockProfile) {
    profile.append(column.Radius);
    taper.append(column.TaperMark);
  }
  QJsonObject report{
      {"outcome", OutcomeText(outcome.run)},
      {"messages", MessagesJson()},
      {"check", CheckJson(outcome.run)},
      {"text", ToQt(CodePageToUtf8(outcome.text))},
      {"notifications", NotificationsJson()},
      {"registers", RegistersJson()},
      {"panels", PanelsJson()},
      {"resumes", outcome.resumes},
      {"points_played", static_cast<qint64>(GCodes::PointsPlayed)},
      {"profile", profile},
      {"taper", taper},
      {"surface_sha256", SurfaceHash(Graphics::StockDC.Read())},
  };
  if (!outcome.warnings.empty()) report["warnings"] = WarningsJson(outcome.warnings);
  for (auto it = outcome.inspection.begin(); it != outcome.inspection.end(); ++it) {
    report[it.key()] = it.value();
  }
  if (outcome.comparison) report["comparison"] = ComparisonJson(*outcome.comparison);
  return QJsonDocument(report).toJson();
}

QByteArray RasterPng(const Raster& picture) {
  return ImagePng(ToImage(picture));
}

QByteArray ImagePng(const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  // Nothing but memory can be missing.
  if (!picture.save(&buffer, "PNG")) throw std::bad_alloc();
  return bytes;
}
