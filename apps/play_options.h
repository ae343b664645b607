#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>
#include <string>

struct PictureSize {
  // Pixels, from 1 to 16,384.
  std::int16_t width = 0;
  std::int16_t height = 0;
};

// The command line of turnbay-play.
struct PlayOptions {
  // The simulation area, and the picture of the turned part.
  PictureSize size;
  PictureSize turnedPartSize;
  // Empty: not asked for; a tool folder of its own.
  std::string tools;
  std::string picture;
  std::string profile;
  std::string turnedPart;
  // "-" is standard output.
  std::string report;
  // Find out what the program may not mean, and what it does.
  bool inspect = false;
  // In mm/min, above 0.
  double rapidRate = 0;
  // A part program, or a profile as --profile writes it; "-" is standard input.
  std::string compare;
  // Of the radius, in mm, at least 0.
  double tolerance = 0;
  std::string difference;
  std::string solid;
  std::string section;
  bool runToBreakpoint = false;
  // Bring the text into its layout and check it; don't play.
  bool check = false;
  // Print the text in its layout; don't play.
  bool reformat = false;
  // Answered before anything is read.
  bool help = false;
  bool version = false;
  // "-" is standard input.
  std::string program;
};

struct ParsedOptions {
  // Empty when there is nothing to play.
  std::optional<PlayOptions> options;
  // What to print then, and with which exit status.
  QString message;
  int exitStatus = 0;
};

ParsedOptions ParsePlayOptions(const QStringList& arguments);
