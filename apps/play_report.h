#pragma once

#include <QByteArray>
#include <string>

#include "interpreter/machine.h"
#include "platform/raster.h"

// What turnbay-play tells of a run that is over, taken from the shared state as it stands.

struct PlayOutcome {
  // Of the run, or of a check without one. A fault is selected in the editor.
  GlobalVariables::RunOutcome run = GlobalVariables::RunOutcome::None;
  // The program as played.
  std::string text;
  // How often a paused run was resumed.
  int resumes = 0;
};

// One JSON object.
QByteArray ReportJson(const PlayOutcome& outcome);

// One line a column: z in mm, radius in mm, taper mark.
std::string ProfileCsv();

// A picture as a PNG file's bytes.
QByteArray RasterPng(const Raster& picture);
