#include <gmock/gmock.h>

#include "tests/fakes/debugger_test.h"

using namespace frmMain;
using GlobalVariables::Settings;
using testing::ElementsAre;

namespace {

class DebugGridTest : public DebuggerTest {};

TEST_F(DebugGridTest, EveryLineIsARowBlankOnesIncluded) {
  Write({"[BILLET X20 Z40", "", " g01 ", ""});
  FillDebugWindow();
  EXPECT_THAT(ShownRows(),
              ElementsAre("  1 [ ]  [BILLET X20 Z40", "  2 [ ]  ", "  3 [ ]   g01 ", "  4 [ ]  "));
  EXPECT_EQ(285, DebugWindow.RowHeight(2));
  EXPECT_EQ(Rgb(240, 240, 240), DebugWindow.Format(2, kMarkColumn).BackColor);
  const CellFormat& text = DebugWindow.Format(2, kTextColumn);
  EXPECT_EQ("Courier New", DebugWindow.FontNameOf(text));
  EXPECT_EQ(10, text.FontSize);
}

TEST_F(DebugGridTest, AnEmptyTextHasNoRowsAndARunOfItEndsWithAMessage) {
  Write({""});
  Fakes::ExpectMessage("Billet Size Not Found", Desktop::kCritical);
  mnuRunRunToBreakpoint_Click();
  EXPECT_EQ(0, DebugWindow.Rows());
  Click(0, kMarkColumn);
  DebugWindow_DblClick();
  EXPECT_FALSE(txtDebug.Visible);
}

TEST_F(DebugGridTest, FillingDropsBreakPointsAndAnOpenEdit) {
  Show({"G00 X1", "G00 X2"});
  ClickMark(1);
  OpenEdit(0, "lost");
  FillDebugWindow();
  EXPECT_THAT(ShownRows(), ElementsAre("  1 [ ]  G00 X1", "  2 [ ]  G00 X2"));
  EXPECT_FALSE(txtDebug.Visible);
}

TEST_F(DebugGridTest, ThirtyTwoThousandRowsAreOneChangeForTheWindow) {
  std::vector<GridChange> changes;
  DebugWindow.Watch([&](const GridChange& change) { changes.push_back(change); });
  Write(std::vector<std::string>(32'767, "G00 X1"));
  FillDebugWindow();
  ASSERT_EQ(1u, changes.size());
  EXPECT_TRUE(changes[0].All);
  EXPECT_EQ("32767", DebugWindow.TextMatrix(32'766, kLineNumberColumn));
}

TEST_F(DebugGridTest, SettingsReachColumnsFontAndLines) {
  Settings.DebugC1Width = 310;
  Settings.DebugC2Width = 3600;
  Settings.DebugFontName = "Monospace";
  struct Case {
    std::int16_t lineNumbers, width, grid;
    int columnWidth, lines;
  };
  for (const Case& c : {Case{1, 350, 1, 350, 1}, {0, 350, 0, 0, 0}, {2, 30'000, 7, 32'767, 1}}) {
    Settings.DebugLineNumbers = c.lineNumbers;
    Settings.DebugC0Width = c.width;
    Settings.DebugGrid = c.grid;
    ApplyDebugWindowLayout();
    EXPECT_EQ(c.columnWidth, DebugWindow.ColWidth(kLineNumberColumn));
    EXPECT_EQ(c.lines, DebugWindow.GridLines());
  }
  EXPECT_EQ(310, DebugWindow.ColWidth(kMarkColumn));
  EXPECT_EQ(3600, DebugWindow.ColWidth(kTextColumn));
  EXPECT_EQ(0, DebugWindow.ColWidth(kBreakColumn));
  EXPECT_EQ("Monospace", DebugWindow.FontName());
}

TEST_F(DebugGridTest, OnlyTheMarkColumnTakesBreakPoints) {
  Show({"G00 X1", "G00 X2"});
  for (const int column : {kLineNumberColumn, kTextColumn}) Click(1, column);
  EXPECT_EQ("G00 X2", DebugWindow.ToolTipText.Get());
  EXPECT_EQ("  2 [ ]  G00 X2", ShownRow(1));
  ClickMark(0);
  EXPECT_EQ("G00 X1", DebugWindow.ToolTipText.Get());
  EXPECT_THAT(ShownRows(), ElementsAre("  1 [*]  G00 X1", "  2 [ ]  G00 X2"));
  ClickMark(0);
  EXPECT_EQ("  1 [ ]  G00 X1", ShownRow(0));
  for (const int row : {-1, 2}) ClickMark(row);
  EXPECT_EQ("G00 X1", DebugWindow.ToolTipText.Get());
}

TEST_F(DebugGridTest, TheExecutionMarkGoesOverTheRowAndLeavesItAsItWas) {
  Show({"G00 X1", "G00 X2"});
  ClickMark(1);
  for (const std::int16_t row : {std::int16_t{0}, std::int16_t{1}}) {
    const std::string atRest = ShownRow(row);
    HighLightExecutingLine(row);
    EXPECT_EQ(row, ExecutingRow());
    RemoveHighLighting(row);
    EXPECT_EQ(atRest, ShownRow(row));
  }
  for (const std::int16_t row : {std::int16_t{-1}, std::int16_t{2}}) {
    HighLightExecutingLine(row);
    RemoveHighLighting(row);
  }
  EXPECT_EQ(-1, ExecutingRow());
}

TEST_F(DebugGridTest, TheViewFollowsInJumpsOfTenRows) {
  Show(std::vector<std::string>(41, "G00 X1"));
  for (const auto& [row, top] : {std::pair{0, 5}, {10, 5}, {19, 5}, {20, 10}, {25, 10}, {40, 30}}) {
    if (row == 0) DebugWindow.TopRow = 5;
    HighLightExecutingLine(static_cast<std::int16_t>(row));
    EXPECT_EQ(top, DebugWindow.TopRow) << row;
  }
}

TEST_F(DebugGridTest, ABreakPointPausesWithoutSoundAndEndsARunToBreakPoint) {
  Show({"G00 X1", "G00 X2"});
  ClickMark(1);
  int copies = 0;
  picSim.Blt = [&](const Raster&, const PixelRect&) { ++copies; };
  for (const std::int16_t toBreakPoint : {kFalse, kTrue}) {
    EnableCommands("Start", false);
    EnableCommands("Pause,Stop", true);
    GlobalVariables::RunToBreakpoint = toBreakPoint;
    HighLightExecutingLine(0);
    EXPECT_FALSE(IsRunPaused());
    HighLightExecutingLine(1);
    EXPECT_TRUE(IsRunPaused());
    EXPECT_TRUE(IsOpen("Start"));
    EXPECT_EQ(kFalse, GlobalVariables::RunToBreakpoint);
    EXPECT_EQ(toBreakPoint == kTrue, copies > 0);
  }
  EXPECT_TRUE(Fakes::Sounds().empty());
}

}  // namespace
