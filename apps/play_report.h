#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <string>
#include <vector>

#include "editor/source_place.h"
#include "interpreter/machine.h"
#include "platform/raster.h"

// What turnbay-play tells of a run that is over, taken from the shared state as it stands.

// What the program may not mean, though it can be played.
struct PlayWarning {
  std::string text;
  // In the file.
  frmMain::TextPlace place;
};

struct PlayOutcome {
  // Of the run, or of a check without one. A fault is selected in the editor.
  GlobalVariables::RunOutcome run = GlobalVariables::RunOutcome::None;
  // The program as played.
  std::string text;
  // How often a paused run was resumed.
  int resumes = 0;
  std::vector<PlayWarning> warnings{};
  // Members of the report; none when no inspection was asked for.
  QJsonObject inspection{};
};

// Both that make a picture throw std::bad_alloc.

// One JSON object.
QByteArray ReportJson(const PlayOutcome& outcome);

// One line a column: z in mm, radius in mm, taper mark.
std::string ProfileCsv();

// A picture as a PNG file's bytes.
QByteArray RasterPng(const Raster& picture);
