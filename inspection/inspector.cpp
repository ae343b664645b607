#include "inspection/inspector.h"

#include <algorithm>
#include <utility>

#include "inspection/pattern_blocks.h"
#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "interpreter/tool_change.h"
#include "mainwindow/control_surface.h"
#include "motion/pattern_cycle.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "platform/numbers.h"

namespace Inspection {

using frmMain::DebugWindow;
using GlobalVariables::BilletZ;

namespace {

// How far beyond the centre line a cut may go, in stock units: a face is often ended a little
// behind the centre.
constexpr int kBeyondCentre = 5;

std::string Millimetres(int units) {
  return NumberText(units / 10.0);
}

// As it is programmed: X is a diameter.
std::string Position(int z, int x) {
  return 'X' + Millimetres(2 * x) + " Z" + Millimetres(z);
}

std::string Meeting(int z, int x, int depth) {
  return "it meets the part at " + Position(z, x) + " and goes " + Millimetres(depth) +
         " mm deep. ";
}

std::vector<Figure> Figures(int z, int x) {
  return {{"x", 2 * x / 10.0}, {"z", z / 10.0}};
}

const std::string& RowText(int row) {
  return DebugWindow.TextMatrix(row, frmMain::kTextColumn);
}

bool IsCoolantOn() {
  return frmMain::StatusBar.Panels("Coolant").Text.Get() == "Coolant: ON";
}

// What M words ahead of the end of the run in its own block make of what was on.
bool IsOnAtEnd(bool isOn, std::span<const Word> words, std::span<const std::int16_t> starts,
               std::int16_t stop) {
  for (const Word& word : words) {
    if (IsWord(word, 'M', 2) || IsWord(word, 'M', 30)) break;
    if (IsWord(word, 'M', stop)) isOn = false;
    if (IsMWord(word, starts)) isOn = true;
  }
  return isOn;
}

constexpr std::int16_t kCoolantStarts[] = {8, 13, 14};
constexpr std::int16_t kCoolantStop = 9;

int RowInPlay() {
  return GCodes::ContourRow != GCodes::kNoRow ? GCodes::ContourRow : GlobalVariables::CurrentRow;
}

}  // namespace

Inspector::Inspector(double rapidRate) : machining_(rapidRate) {
  ModCNC::Observer = this;
}

Inspector::~Inspector() {
  ModCNC::Observer = nullptr;
}

void Inspector::StartWithBillet() {
  if (std::exchange(hasBillet_, true) || Graphics::StockProfile.empty()) return;
  billetRadius_ = Graphics::StockProfile.front().Radius;
  part_ = MachinedPart(Graphics::StockProfile.size(), billetRadius_);
  part_.TakeToolShape();
}

void Inspector::Add(Place place, const char* key, const std::string& text,
                    std::vector<Figure> figures) {
  findings_.try_emplace({place.row, place.column, key},
                        Finding{place.row, place.column, key, text, std::move(figures)});
}

void Inspector::OnRow(std::string_view block) {
  StartWithBillet();
  SettleToolChange();
  row_ = RowInPlay();
  const std::vector<Word> words = WordsOf(block);
  const std::int16_t function = ModalFunction(words, ModCNC::ActiveG);
  hasFeedWord_ |= HasLetter(words, "F");
  wordUse_.OnRow(row_, words, function);
  JudgeFunctions(words);
  JudgeToolWords(words);
  if (EndsRun(words)) {
    // M30 turns the coolant off, so the panels of a run that is over tell nothing.
    end_ = {row_, IsOnAtEnd(IsSpindleOn(), words, kSpindleStarts, kSpindleStop),
            IsOnAtEnd(IsCoolantOn(), words, kCoolantStarts, kCoolantStop)};
    return;
  }
  JudgeRepetition(words, function);
  if (function == 73) {
    if (GCodes::CycleArmed != kFalse && !isPatternFaulty_) JudgeSecondBlock(words);
  } else if (GCodes::ContourRow == GCodes::kNoRow) {
    isPatternFaulty_ = false;
  }
}

void Inspector::JudgeFunctions(std::span<const Word> words) {
  for (const Word& word : words) {
    if (!IsNotSimulated(word)) continue;
    Add({row_, word.offset}, "not-simulated",
        std::string(word.text) +
            " is accepted but not simulated: nothing moves until the next G00, G01 or other G word "
            "of motion. Write one into the next block that is to move.");
  }
}

void Inspector::JudgeToolWords(std::span<const Word> words) {
  const bool changes = HasWord(words, 'M', 6);
  for (const Word& word : words) {
    if (word.Letter() != 'T') continue;
    JudgePendingTool();
    pendingTool_ = {{row_, word.offset}, std::string(word.text), ParseInt16(word.Number())};
  }
  if (!changes) return;
  pendingTool_.reset();
  const auto change =
      std::ranges::find_if(words, [](const Word& word) { return IsWord(word, 'M', 6); });
  toolChange_ = {row_, change->offset};
  // The volume so far is that of the tool that goes.
  machining_.AddVolume(RemovedVolume(billetRadius_));
}

void Inspector::JudgePendingTool() {
  if (!pendingTool_ || pendingTool_->number == loadedTool_) return;
  Add(pendingTool_->place, "tool-not-changed",
      pendingTool_->text + " loads no tool: no M06 follows it. Write " + pendingTool_->text +
          " M06, or take it out.");
}

void Inspector::SettleToolChange() {
  if (!toolChange_) return;
  if (ModCNC::ToolTrouble.empty()) {
    loadedTool_ = ModCNC::ToolNumber;
    machining_.ChangeTool(ModCNC::ToolNumber);
    part_.TakeToolShape();
  } else {
    Add(*toolChange_, "tool-not-loaded", ModCNC::ToolTrouble);
  }
  toolChange_.reset();
}

void Inspector::JudgeRepetition(std::span<const Word> words, std::int16_t function) {
  if (std::ranges::any_of(words, IsModalWord) || HasLetter(words, "XZUWR")) return;
  const std::string what = Written(words);
  if (function == 90 || function == 94) {
    Add({row_, 0}, "cycle-repeated",
        what + " runs the whole cycle " + GName(function) +
            " once more, as every block does while it is modal. Put it ahead of the cycle, or "
            "behind a block with G00.");
  }
  const bool isArrived = ModCNC::TargetX == ModCNC::CurrentX && ModCNC::TargetZ == ModCNC::CurrentZ;
  if ((function == 2 || function == 3) && !isArrived) {
    Add({row_, 0}, "arc-repeated",
        what + " tries the arc of " + GName(function) +
            " once more, which has not come to its end. Give that arc a radius that fits.");
  }
}

void Inspector::JudgeSecondBlock(std::span<const Word> words) {
  for (const Finding& finding : SecondBlockFindings(row_, words)) {
    isPatternFaulty_ = true;
    Add({finding.row, finding.column}, finding.key, finding.text);
  }
}

void Inspector::OnMove() {
  StartWithBillet();
  SettleToolChange();
  row_ = RowInPlay();
  machining_.AddMove();
  const bool isRapid = GCodes::RapidMove == kTrue;
  if (!isRapid) wordUse_.OnFeed();
  const Cut cut = Walk(isRapid);
  if (isRapid) {
    JudgeRapid(cut);
  } else {
    JudgeFeed(cut);
  }
}

Inspector::Cut Inspector::Walk(bool isRapid) {
  Cut cut;
  // Empty for the first point, at which the tool stands already: an arc may have ended a little
  // before it.
  MachinedPart before;
  Point last;
  for (std::size_t i = 0; i < GCodes::PathPoints.size(); ++i) {
    const GCodes::PathPoint& point = GCodes::PathPoints[i];
    const Point now = {RoundToPixel(GCodes::CycleOffsetZ + point.Z),
                       RoundToPixel(GCodes::CycleOffsetX + point.X)};
    const int depth = before.DepthAt(now.z, now.x);
    // It meets the part where it is clear for the last time.
    if (depth > 0 && cut.depth == 0) cut.meeting = last;
    cut.depth = std::max(cut.depth, depth);
    cut.reachesClampedEnd |= depth > 0 && part_.IsLastColumn(now.z);
    if (part_.ColumnAt(now.z) && now.x < std::min(0, cut.lowest.x)) cut.lowest = now;
    if (isRapid) {
      part_.TakePoint(now.z, now.x);
    } else {
      part_.TakeShape(now.z, now.x);
    }
    if (i == 0) before = part_;
    last = now;
  }
  tool_ = last;
  return cut;
}

void Inspector::AddCut(const Cut& cut, const char* key, const std::string& what,
                       const std::string& advice) {
  const auto [z, x] = cut.meeting;
  std::vector<Figure> figures = Figures(z, x);
  figures.push_back({"depth", cut.depth / 10.0});
  Add({row_, 0}, key, what + ": " + Meeting(z, x, cut.depth) + advice, std::move(figures));
}

void Inspector::JudgeRapid(const Cut& cut) {
  if (cut.depth == 0) return;
  AddCut(cut, "rapid-cut", "A rapid move of " + GName(ModCNC::ActiveG) + " takes material",
         "Go round the part, or cut with G01.");
}

void Inspector::JudgeFeed(const Cut& cut) {
  if (cut.depth > 0 && !IsSpindleOn()) {
    AddCut(cut, "spindle-at-rest", "A feed move takes material with the spindle at rest",
           "Start it before, such as by S800 M03.");
  } else if (cut.depth > 0 && ModCNC::SpindleSpeed <= 0) {
    AddCut(cut, "spindle-at-rest", "A feed move takes material with the spindle at S 0",
           "Name a speed, such as S800, in the block that starts it.");
  }
  if (cut.depth > 0 && ModCNC::FeedRate <= 0) {
    AddCut(cut, "no-feed",
           hasFeedWord_ ? "A feed move takes material with F at 0 when rounded to whole mm a minute"
                        : "A feed move takes material before any F",
           "Name the feed in mm a minute, such as F200.");
  }
  if (cut.reachesClampedEnd) {
    Add({row_, 0}, "clamped-end",
        "The cut reaches the clamped end of the billet, Z" + Millimetres(-BilletZ) +
            ", where the chuck holds it. End it before, or name a longer billet.",
        {{"z", -BilletZ / 10.0}});
  }
  if (const auto [z, x] = cut.lowest; x < -kBeyondCentre) {
    Add({row_, 0}, "centre-crossed",
        "The cut crosses the centre line at Z" + Millimetres(z) + " and goes on to X" +
            Millimetres(2 * x) + ". End it at X0.",
        Figures(z, x));
  }
}

void Inspector::Finish() {
  SettleToolChange();
  machining_.AddVolume(RemovedVolume(billetRadius_));
  JudgePendingTool();
  JudgeEnd();
  JudgeBilletLines();
  for (const Finding& finding : wordUse_.Findings()) {
    Add({finding.row, finding.column}, finding.key, finding.text);
  }
}

void Inspector::JudgeEnd() {
  const int lastRow = std::max(0, DebugWindow.Rows() - 1);
  const auto [row, isSpindleOn, isCoolantOn] =
      end_.value_or(End{lastRow, IsSpindleOn(), IsCoolantOn()});
  const Place end{row, 0};
  if (!end_) {
    Add(end, "no-end", "The program ends without M02 or M30. Write M30 into its last block.");
  }
  if (isSpindleOn) {
    Add(end, "spindle-on", "The program ends with the spindle on. Stop it before, by M05.");
  }
  if (isCoolantOn) {
    Add(end, "coolant-on", "The program ends with the coolant on. Turn it off before, by M09.");
  }
  if (tool_ && part_.Holds(tool_->z, tool_->x)) {
    Add(end, "tool-in-part",
        "The program ends with the tool inside the part, at " + Position(tool_->z, tool_->x) +
            ". Move it clear before, such as by G00.",
        Figures(tool_->z, tool_->x));
  }
}

void Inspector::JudgeBilletLines() {
  bool hasOne = false;
  for (int row = 0; row < DebugWindow.Rows(); ++row) {
    const std::size_t mark = RowText(row).find(ModCNC::kBilletMark);
    if (mark == std::string::npos) continue;
    if (std::exchange(hasOne, true)) {
      Add({row, mark}, "billet-lines",
          "This is one more billet line; only the first of the program counts. Take it out.");
    }
  }
}

std::vector<Finding> Inspector::Findings() const {
  std::vector<Finding> findings;
  for (const auto& [place, finding] : findings_) findings.push_back(finding);
  return findings;
}

}  // namespace Inspection
