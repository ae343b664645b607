#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

class DebugGridTest : public DebuggerTest {};

TEST_F(DebugGridTest, EveryLineIsARowWhoseMarkColumnTakesBreakPoints) {
  Show({"[BILLET X20 Z40", "", " g01 "});
  for (const int column : {kLineNumberColumn, kMarkColumn, kTextColumn}) Click(2, column);
  for (const int row : {-1, 0, 0, 3}) ClickMark(row);
  EXPECT_EQ("[BILLET X20 Z40", DebugWindow.ToolTipText.Get());
  EXPECT_EQ("1 [ ]  [BILLET X20 Z40", ShownRow(0));
  EXPECT_EQ("2 [ ]  ", ShownRow(1));
  EXPECT_EQ("3 [*]   g01 ", ShownRow(2));
  for (const std::int16_t row : {std::int16_t{1}, std::int16_t{2}}) {
    const std::string atRest = ShownRow(row);
    HighLightExecutingLine(row);
    EXPECT_EQ(row, ExecutingRow());
    RemoveHighLighting(row);
    EXPECT_EQ(atRest, ShownRow(row));
  }
}

TEST_F(DebugGridTest, TheViewFollowsInJumpsOfTenRows) {
  Show(std::vector<std::string>(41, "G00 X1"));
  DebugWindow.TopRow = 5;
  for (const auto& [row, top] : {std::pair{0, 5}, {10, 5}, {19, 5}, {20, 10}, {25, 10}, {40, 30}}) {
    HighLightExecutingLine(static_cast<std::int16_t>(row));
    EXPECT_EQ(top, DebugWindow.TopRow) << row;
  }
}

}  // namespace
