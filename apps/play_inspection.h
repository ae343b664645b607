#pragma once

#include <QJsonObject>
#include <string>
#include <string_view>
#include <vector>

#include "apps/play_report.h"
#include "inspection/inspector.h"

// What --inspect tells of a run that is over.

// A finding, or a warning of the billet line, at its place in the file.
struct PlacedFinding {
  std::string key;
  std::string text;
  frmMain::TextPlace place;
  std::vector<Inspection::Figure> figures{};
};

// All findings in the order of the program. `source` is the text of the file; what was played
// stands in the editor.
std::vector<PlacedFinding> PlaceFindings(const Inspection::Inspector& inspector,
                                         const std::vector<PlayWarning>& billetWarnings,
                                         std::string_view source);

// The members "inspection" and "machining" of the report.
QJsonObject InspectionJson(const std::vector<PlacedFinding>& findings,
                           const Inspection::Machining& machining);

// One line: times, lengths, material and tool changes of the run.
std::string MachiningLine(const Inspection::Machining& machining);
