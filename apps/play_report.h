#pragma once

#include <QByteArray>
#include <QImage>
#include <QJsonObject>
#include <optional>
#include <string>
#include <vector>

#include "editor/source_place.h"
#include "inspection/comparison.h"
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
  // Where one was asked for, and the program could be played.
  std::optional<Inspection::Comparison> comparison{};
};

// All that make a picture throw std::bad_alloc.

// One JSON object.
QByteArray ReportJson(const PlayOutcome& outcome);

// A picture as a PNG file's bytes.
QByteArray RasterPng(const Raster& picture);
QByteArray ImagePng(const QImage& picture);
