#pragma once

#include <QByteArray>
#include <string>

#include "platform/raster.h"

// What turnbay-play tells of a run that is over, taken from the shared state as it stands.

struct PlayOutcome {
  // "done", "syntax error" or "no billet".
  std::string outcome = "done";
  // The program as played.
  std::string text;
  // A fault of the text was found and is selected in the editor.
  bool hasFault = false;
  // How often a paused run was resumed.
  int resumes = 0;
};

// One JSON object.
QByteArray ReportJson(const PlayOutcome& outcome);

// One line a column: z in mm, radius in mm, taper mark.
std::string ProfileCsv();

// A picture as a PNG file's bytes.
QByteArray RasterPng(const Raster& picture);
