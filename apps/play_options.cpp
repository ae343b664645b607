#include "apps/play_options.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <string_view>
#include <variant>

#include "platform/numbers.h"

namespace {

constexpr int kWrongUsage = 2;
constexpr int kMaxSide = 16'384;

struct OptionRow {
  // Opens a group of --help; empty: goes on with the one above.
  const char* group;
  const char* name;
  // What stands behind the option in --help; empty: it takes no value.
  const char* value;
  const char* text;
  std::variant<bool PlayOptions::*, double PlayOptions::*, std::string PlayOptions::*,
               PictureSize PlayOptions::*>
      target;
  const char* fallback = "";
  // Of a number, which is never below.
  bool takesZero = false;
};

constexpr OptionRow kOptions[] = {
    {"Playing", "size", "WxH", "Simulation area in pixels.", &PlayOptions::size, "1000x640"},
    {"", "tools", "DIR", "Tool folder; default: the program's own.", &PlayOptions::tools},
    {"", "run-to-breakpoint", "", "Play without drawing until a break point.",
     &PlayOptions::runToBreakpoint},
    {"Judging the program", "inspect", "", "Warn of what a machinist would not accept.",
     &PlayOptions::inspect},
    {"", "rapid-rate", "MM/MIN", "Speed of rapid moves for its times.", &PlayOptions::rapidRate,
     "5000"},
    {"Instead of playing", "check", "", "Only bring the text into its layout and check it.",
     &PlayOptions::check},
    {"", "reformat", "", "Print the program in its layout on standard output.",
     &PlayOptions::reformat},
    {"Writing what came out", "report", "FILE.json", "Write a report; - is standard output.",
     &PlayOptions::report},
    {"", "profile", "FILE.csv", "Write a line a column: z in mm, radius in mm, taper mark.",
     &PlayOptions::profile},
    {"", "picture", "FILE.png", "Write the simulation area after the run.", &PlayOptions::picture},
    {"", "turned-part", "FILE.png", "Write the turned part in 3D after the run.",
     &PlayOptions::turnedPart},
    {"", "turned-part-size", "WxH", "Size of that picture in pixels.", &PlayOptions::turnedPartSize,
     "800x600"},
    {"Making the part", "solid", "FILE.stl", "Write the part as a closed solid, in mm.",
     &PlayOptions::solid},
    {"", "section", "FILE.svg", "Write the section as a dimensioned drawing at 1:1.",
     &PlayOptions::section},
    {"Comparing with the part that was asked for", "compare", "REFERENCE",
     "Compare with the part of a program, or a profile.", &PlayOptions::compare},
    {"", "tolerance", "MM", "What is no deviation, on the radius.", &PlayOptions::tolerance, "0.05",
     true},
    {"", "difference", "FILE.png", "Write a picture of what is left standing and cut away.",
     &PlayOptions::difference},
    {"Other", "help", "", "Show this help.", &PlayOptions::help},
    {"", "version", "", "Show the version.", &PlayOptions::version},
};

struct Pair {
  const char* option;
  const char* other;
};

// What has no sense without another option, and what has none together with another.
constexpr Pair kNeeds[] = {
    {"rapid-rate", "inspect"}, {"tolerance", "compare"}, {"difference", "compare"}};
constexpr Pair kExcludes[] = {
    {"inspect", "check"}, {"inspect", "reformat"}, {"compare", "check"}, {"compare", "reformat"},
    {"solid", "check"},   {"solid", "reformat"},   {"section", "check"}, {"section", "reformat"}};

// Every option by its group, aligned.
QString HelpText() {
  QString text =
      "Usage: turnbay-play [options] PROGRAM\n"
      "Plays a part program without a window, with default settings. - is standard input.\n";
  for (const OptionRow& row : kOptions) {
    if (*row.group != '\0') text += QString("\n%1:\n").arg(row.group);
    const QString option = QString("--%1 %2").arg(row.name, row.value).trimmed();
    text += QString("  %1 %2").arg(option, -23).arg(row.text);
    if (*row.fallback != '\0') text += QString(" Default: %1.").arg(row.fallback);
    text += '\n';
  }
  return text +
         "\nExit status: 0 played, 1 the program can't be played, 2 wrong usage, a file that\n"
         "can't be read or written, too little memory, or no OpenGL for --turned-part,\n"
         "3 findings of --inspect, or not the part of --compare.\n";
}

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

// Takes over what was given for an option; why it can't be, or nothing. A fallback is taken over
// too, but isn't looked at: `isSet` is false then.
class Take {
 public:
  Take(PlayOptions& options, const OptionRow& row, bool isSet, const QString& value)
      : options_(options), row_(row), isSet_(isSet), value_(value) {}

  QString operator()(bool PlayOptions::*flag) const {
    options_.*flag = isSet_;
    return {};
  }
  QString operator()(std::string PlayOptions::*path) const {
    if (isSet_ && value_.isEmpty()) {
      return QString("--%1 needs the name of a file or a folder.").arg(row_.name);
    }
    options_.*path = value_.toStdString();
    return {};
  }
  QString operator()(double PlayOptions::*number) const {
    const std::optional<double> given = ParseNumber(value_.toStdString());
    if (!given || *given < 0 || (*given == 0 && !row_.takesZero)) {
      const char* range = row_.takesZero ? "from 0 on" : "above 0";
      return QString("--%1 needs a number %2, such as %3, not \"%4\".")
          .arg(row_.name, range, row_.fallback, value_);
    }
    options_.*number = *given;
    return {};
  }
  QString operator()(PictureSize PlayOptions::*size) const {
    const std::optional<PictureSize> given = ParseSize(value_);
    if (!given) {
      return QString("the size \"%1\" isn't WIDTHxHEIGHT, each from 1 to %2.")
          .arg(value_)
          .arg(kMaxSide);
    }
    options_.*size = *given;
    return {};
  }

 private:
  PlayOptions& options_;
  const OptionRow& row_;
  bool isSet_;
  QString value_;
};

QStringList NamesOf(const OptionRow& row) {
  return row.name == std::string_view("help") ? QStringList{"h", "help"} : QStringList{row.name};
}

// The file that a path leads to, by whatever way.
QString FileOf(const QString& path) {
  const QFileInfo file(path);
  return file.exists() ? file.canonicalFilePath() : file.absoluteFilePath();
}

// Which result would overwrite what is read, or another result; empty: none.
QString FindOverwriting(const QCommandLineParser& parser, const QStringList& inputs) {
  QStringList taken;
  for (const QString& input : inputs) {
    if (input != "-") taken.append(FileOf(input));
  }
  for (const OptionRow& row : kOptions) {
    if (!std::string_view(row.value).starts_with("FILE") || !parser.isSet(row.name)) continue;
    const QString path = parser.value(row.name);
    const QString file = path == "-" ? path : FileOf(path);
    if (taken.contains(file)) {
      return QString("--%1 would overwrite \"%2\", which is read or written as well.")
          .arg(row.name, path);
    }
    taken.append(file);
  }
  return {};
}

}  // namespace

ParsedOptions ParsePlayOptions(const QStringList& arguments) {
  QCommandLineParser parser;
  for (const OptionRow& row : kOptions) {
    parser.addOption({NamesOf(row), row.text, row.value, row.fallback});
  }
  if (!parser.parse(arguments)) return WrongUsage(parser.errorText());
  if (parser.isSet("help")) return {std::nullopt, HelpText(), 0};
  if (parser.isSet("version")) return {std::nullopt, "turnbay-play " TURNBAY_VERSION "\n", 0};
  const QStringList programs = parser.positionalArguments();
  if (programs.size() != 1) return WrongUsage("name one program to play.");

  for (const auto& [option, other] : kNeeds) {
    if (parser.isSet(option) && !parser.isSet(other)) {
      return WrongUsage(QString("--%1 needs --%2.").arg(option, other));
    }
  }
  for (const auto& [option, other] : kExcludes) {
    if (parser.isSet(option) && parser.isSet(other)) {
      return WrongUsage(QString("--%1 and --%2 exclude each other.").arg(option, other));
    }
  }

  PlayOptions options;
  for (const OptionRow& row : kOptions) {
    const bool isSet = parser.isSet(row.name);
    const QString value = *row.value == '\0' ? QString() : parser.value(row.name);
    const QString fault = std::visit(Take(options, row, isSet, value), row.target);
    if (!fault.isEmpty()) return WrongUsage(fault);
  }
  options.program = programs.first().toStdString();
  if (options.program == "-" && options.compare == "-") {
    return WrongUsage("standard input can't be both the program and what it is compared with.");
  }
  QStringList inputs = programs;
  if (parser.isSet("compare")) inputs.append(parser.value("compare"));
  const QString overwriting = FindOverwriting(parser, inputs);
  if (!overwriting.isEmpty()) return WrongUsage(overwriting);
  return {options, {}, 0};
}
