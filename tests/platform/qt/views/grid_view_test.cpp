#include "platform/qt/views/grid_view.h"

#include <QScrollBar>
#include <QTest>
#include <gtest/gtest.h>

TEST(GridViewTest, TopRowAndTheScrollBarFollowEachOther) {
  GridTable table;
  const auto fill = [&](int rows) {
    table.SetRedraw(false);
    table.SetRows(rows);
    for (int row = 0; row < rows; ++row) table.SetRowHeight(row, 285);
    table.SetRedraw(true);
  };
  fill(100);
  GridView view(table, "");
  view.resize(200, 190);
  view.show();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
  table.TopRow = 30;
  EXPECT_EQ(30, view.rowAt(1));
  view.verticalScrollBar()->setValue(12);
  EXPECT_EQ(12, table.TopRow);
  table.TopRow = 99;
  EXPECT_EQ(table.TopRow, view.rowAt(1)) << "what is out of reach counts as the last place";
  EXPECT_LT(table.TopRow, 99);
  view.hide();
  table.TopRow = 50;
  fill(80);
  EXPECT_EQ(50, table.TopRow);
  view.show();
  EXPECT_EQ(50, view.rowAt(1)) << "a hidden grid catches up";
  table.SetTextMatrix(3, 2, "M30");
  table.SetColWidth(2, 3500);
  EXPECT_EQ(50, table.TopRow);
}
