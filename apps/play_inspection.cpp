#include "apps/play_inspection.h"

#include <QJsonArray>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <tuple>

#include "mainwindow/control_surface.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace {

using Inspection::Work;

double Rounded(double value, int decimals) {
  const double scale = std::pow(10, decimals);
  return std::round(value * scale) / scale;
}

std::string Rounded(double value, int decimals, const char* unit) {
  return NumberText(Rounded(value, decimals)) + ' ' + unit;
}

// "1 h 2 min 3 s".
std::string TimeText(double seconds) {
  const auto whole = static_cast<std::int64_t>(std::llround(seconds));
  constexpr std::int64_t kHour = 3600;
  constexpr std::int64_t kMinute = 60;
  std::string text;
  if (whole >= kHour) text += DecimalText(whole / kHour) + " h ";
  if (whole >= kMinute) text += DecimalText(whole % kHour / kMinute) + " min ";
  return text + DecimalText(whole % kMinute) + " s";
}

// Cubic millimetres to cubic centimetres.
double CubicCentimetres(double volume) {
  constexpr double kPerCubicCentimetre = 1000;
  return volume / kPerCubicCentimetre;
}

QJsonObject WorkJson(const Work& work) {
  constexpr int kDecimals = 3;
  return {{"cutting_length_mm", Rounded(work.cuttingLength, kDecimals)},
          {"cutting_time_s", Rounded(work.cuttingTime, kDecimals)},
          {"cutting_length_without_feed_mm", Rounded(work.untimedLength, kDecimals)},
          {"rapid_length_mm", Rounded(work.rapidLength, kDecimals)},
          {"rapid_time_s", Rounded(work.rapidTime, kDecimals)},
          {"material_removed_cm3", Rounded(CubicCentimetres(work.volume), kDecimals)}};
}

QJsonObject MachiningJson(const Inspection::Machining& machining) {
  QJsonArray tools;
  for (const auto& [tool, work] : machining.Tools()) {
    QJsonObject object = WorkJson(work);
    object["tool"] = tool ? QJsonValue(*tool) : QJsonValue();
    tools.append(object);
  }
  QJsonObject object = WorkJson(machining.Total());
  object["tool_changes"] = machining.ToolChanges();
  object["tools"] = tools;
  return object;
}

QJsonObject FindingJson(const PlacedFinding& finding) {
  QJsonObject object{{"key", QString::fromStdString(finding.key)},
                     {"text", QString::fromStdString(finding.text)},
                     {"line", finding.place.line},
                     {"column", finding.place.column}};
  for (const auto& [name, value] : finding.figures) object[name] = value;
  return object;
}

// Where in the text a row begins.
std::size_t RowOffset(std::string_view text, int row) {
  std::size_t offset = 0;
  for (; row > 0; --row) offset = text.find(kLineEnd, offset) + kLineEnd.size();
  return offset;
}

}  // namespace

std::vector<PlacedFinding> PlaceFindings(const Inspection::Inspector& inspector,
                                         const std::vector<PlayWarning>& billetWarnings,
                                         std::string_view source) {
  const std::vector<Inspection::Finding> findings = inspector.Findings();
  std::vector<PlacedFinding> placed;
  placed.reserve(billetWarnings.size() + findings.size());
  for (const auto& [text, place] : billetWarnings) placed.push_back({"billet-size", text, place});
  const std::string& text = frmMain::TextEditor().Text();
  for (const Inspection::Finding& finding : findings) {
    const std::size_t offset = RowOffset(text, finding.row) + finding.column;
    placed.push_back({finding.key, finding.text, frmMain::FindSourcePlace(source, text, offset),
                      finding.figures});
  }
  std::ranges::stable_sort(placed, {}, [](const PlacedFinding& finding) {
    return std::tuple(finding.place.line, finding.place.column);
  });
  return placed;
}

QJsonObject InspectionJson(const std::vector<PlacedFinding>& findings,
                           const Inspection::Machining& machining) {
  QJsonArray array;
  for (const PlacedFinding& finding : findings) array.append(FindingJson(finding));
  return {{"inspection", array}, {"machining", MachiningJson(machining)}};
}

std::string MachiningLine(const Inspection::Machining& machining) {
  const Work work = machining.Total();
  std::string line =
      "cutting " + TimeText(work.cuttingTime) + ", " + Rounded(work.cuttingLength, 1, "mm");
  if (work.untimedLength > 0) {
    line += " (" + Rounded(work.untimedLength, 1, "mm") + " without F not timed)";
  }
  const int changes = machining.ToolChanges();
  return line + "; rapid " + Rounded(work.rapidLength, 1, "mm") + "; removed " +
         Rounded(CubicCentimetres(work.volume), 2, "cm³") + "; " + DecimalText(changes) +
         (changes == 1 ? " tool change" : " tool changes");
}
