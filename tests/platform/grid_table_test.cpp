#include "platform/grid_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace {

TEST(GridTable, CellsStandBelowAndBesideEachOtherAsTheGridIsScrolled) {
  GridTable grid;
  grid.SetRows(4);
  for (int row = 0; row < 4; ++row) grid.SetRowHeight(row, 100 * (row + 1));
  grid.SetColWidth(0, 10);
  grid.SetColWidth(1, 20);
  grid.Select(2, 2);
  EXPECT_EQ(30, grid.CellLeft());
  EXPECT_EQ(300, grid.CellTop());
  grid.TopRow = 1;
  EXPECT_EQ(200, grid.CellTop());
  grid.TopRow = 3;
  EXPECT_EQ(-300, grid.CellTop());
}

TEST(GridTable, CellsKeepFontsOfTheirOwnWhenThatOfTheGridChanges) {
  GridTable grid;
  grid.SetRows(3);
  grid.SetFontName("A");
  for (int row = 0; row < 2; ++row) {
    grid.Select(row, 2);
    grid.SetCellFontName("A");
  }
  grid.SetFontName("B");
  EXPECT_EQ("A", grid.FontNameOf(grid.Format(0, 2)));
  EXPECT_EQ(grid.Format(0, 2).Font, grid.Format(1, 2).Font);
  EXPECT_EQ("B", grid.FontNameOf(grid.Format(2, 2)));
}

TEST(GridTable, RowsThatGoTakeTheirCellsAndTheScrolledViewAlong) {
  GridTable grid;
  grid.SetRows(20);
  grid.SetTextMatrix(0, 2, "first");
  grid.SetTextMatrix(1, 2, "second");
  grid.TopRow = 15;
  grid.SetRows(1);
  EXPECT_EQ(0, grid.TopRow);
  grid.SetRows(2);
  EXPECT_EQ("first", grid.TextMatrix(0, 2));
  EXPECT_EQ("", grid.TextMatrix(1, 2));
  grid.SetRows(0);
  EXPECT_EQ(0, grid.TopRow);
  EXPECT_THROW(grid.SetTextMatrix(0, 2, ""), std::out_of_range);
}

TEST(GridTable, TheWatcherHearsOfRealChangesAndOfGatheredOnesOnce) {
  GridTable grid;
  grid.SetRows(5);
  std::vector<std::string> heard;
  grid.Watch([&](const GridChange& change) {
    heard.push_back(change.All ? "all"
                               : std::to_string(change.First) + '-' + std::to_string(change.Last));
  });
  grid.SetTextMatrix(3, 2, "G00");
  grid.SetTextMatrix(3, 2, "G00");
  grid.Select(1, 2);
  grid.SetCellFontBold(true);
  grid.SetCellFontBold(true);
  EXPECT_THAT(heard, ElementsAre("3-3", "1-1"));
  heard.clear();
  grid.SetRedraw(false);
  grid.SetCellFontBold(false);
  grid.SetTextMatrix(4, 2, "G01");
  EXPECT_TRUE(heard.empty());
  grid.SetRedraw(true);
  grid.SetRedraw(true);
  EXPECT_THAT(heard, ElementsAre("1-4"));
  heard.clear();
  grid.SetRedraw(false);
  grid.SetRows(6);
  grid.SetTextMatrix(5, 2, "G01");
  grid.SetRedraw(true);
  EXPECT_THAT(heard, ElementsAre("all"));
}

}  // namespace
