#include "apps/play_options.h"

#include <QCommandLineParser>
#include <utility>

namespace {

constexpr int kWrongUsage = 2;
constexpr int kMaxSide = 16'384;

// "1000x640"; empty when it isn't two whole numbers from 1 to kMaxSide.
std::optional<PictureSize> ParseSize(const QString& text) {
  const QStringList sides = text.split('x');
  if (sides.size() != 2) return std::nullopt;
  bool widthOk = false;
  bool heightOk = false;
  const int width = sides[0].toInt(&widthOk);
  const int height = sides[1].toInt(&heightOk);
  if (!widthOk || !heightOk || width < 1 || height < 1 || width > kMaxSide || height > kMaxSide) {
    return std::nullopt;
  }
  return PictureSize{static_cast<std::int16_t>(width), static_cast<std::int16_t>(height)};
}

ParsedOptions WrongUsage(const QString& why) {
  return {std::nullopt, QString("turnbay-play: %1\nTry: turnbay-play --help\n").arg(why),
          kWrongUsage};
}

ParsedOptions WrongSize(const QString& text) {
  return WrongUsage(
      QString("the size \"%1\" isn't WIDTHxHEIGHT, each from 1 to %2.").arg(text).arg(kMaxSide));
}

}  // namespace

ParsedOptions ParsePlayOptions(const QStringList& arguments) {
  QCommandLineParser parser;
  parser.setApplicationDescription(
      "Plays a part program without a window, with default settings.\n"
      "Exit status: 0 played, 1 the program can't be played, 2 wrong usage, a file that can't be "
      "read or written, too little memory, or no OpenGL for --turned-part.");
  const QCommandLineOption help({"h", "help"}, "Show this help.");
  const QCommandLineOption version("version", "Show the version.");
  const QCommandLineOption size("size", "Simulation area in pixels.", "WxH", "1000x640");
  const QCommandLineOption tools("tools", "Tool folder; default: the program's own.", "DIR");
  const QCommandLineOption picture("picture", "Write the simulation area after the run.",
                                   "FILE.png");
  const QCommandLineOption profile(
      "profile", "Write one line a column: z in mm, radius in mm, taper mark.", "FILE.csv");
  const QCommandLineOption turnedPart("turned-part", "Write the turned part in 3D after the run.",
                                      "FILE.png");
  const QCommandLineOption turnedPartSize("turned-part-size", "Size of that picture in pixels.",
                                          "WxH", "800x600");
  const QCommandLineOption report("report", "Write a report; - is standard output.", "FILE.json");
  const QCommandLineOption runToBreakpoint("run-to-breakpoint",
                                           "Play without drawing until a break point.");
  const QCommandLineOption check("check", "Only bring the text into its layout and check it.");
  const QCommandLineOption reformat("reformat",
                                    "Print the program in its layout on standard output.");
  parser.addOptions({check, reformat, help, version, size, tools, picture, profile, turnedPart,
                     turnedPartSize, report, runToBreakpoint});
  parser.addPositionalArgument("PROGRAM", "The part program to play; - is standard input.");

  if (!parser.parse(arguments)) return WrongUsage(parser.errorText());
  if (parser.isSet(help)) return {std::nullopt, parser.helpText(), 0};
  if (parser.isSet(version)) return {std::nullopt, "turnbay-play " TURNBAY_VERSION "\n", 0};
  const QStringList programs = parser.positionalArguments();
  if (programs.size() != 1) return WrongUsage("name one program to play.");

  PlayOptions options;
  for (const auto& [option, target] :
       {std::pair{&size, &options.size}, std::pair{&turnedPartSize, &options.turnedPartSize}}) {
    const std::optional<PictureSize> given = ParseSize(parser.value(*option));
    if (!given) return WrongSize(parser.value(*option));
    *target = *given;
  }
  for (const auto& [option, path] :
       {std::pair{&tools, &options.tools}, std::pair{&picture, &options.picture},
        std::pair{&profile, &options.profile}, std::pair{&turnedPart, &options.turnedPart},
        std::pair{&report, &options.report}}) {
    *path = parser.value(*option).toStdString();
    if (path->empty() && parser.isSet(*option)) {
      return WrongUsage(
          QString("--%1 needs the name of a file or a folder.").arg(option->names().constFirst()));
    }
  }
  options.runToBreakpoint = parser.isSet(runToBreakpoint);
  options.check = parser.isSet(check);
  options.reformat = parser.isSet(reformat);
  options.program = programs.first().toStdString();
  return {options, {}, 0};
}
