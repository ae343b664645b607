#include "platform/qt/grid_view.h"

#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/numbers.h"

namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kEmptyArea = 0xFF4466A6;

class GridViewTest : public testing::Test {
 protected:
  GridViewTest() {
    table.SetColWidth(0, 450);
    table.SetColWidth(1, 300);
    table.SetColWidth(2, 3000);
    table.SetColWidth(3, 0);
    Fill(100);
    view.Click = [this] { Note("click"); };
    view.DblClick = [this] { Note("double"); };
    view.resize(200, 190);
    view.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
  }
  QString MarkFolder() {
    QImage mark(19, 18, QImage::Format_RGB32);
    mark.fill(kRed);
    mark.save(pictures.filePath("Break.png"));
    return pictures.path();
  }
  void Fill(int rows) {
    table.SetRedraw(false);
    table.SetRows(rows);
    for (int row = 0; row < rows; ++row) {
      table.SetTextMatrix(row, 0, DecimalText(row + 1));
      table.SetTextMatrix(row, 2, std::string("X").append(DecimalText(row)));
      table.SetRowHeight(row, 285);
    }
    table.SetRedraw(true);
  }
  static std::string Heard(const std::string& what, int row, int column) {
    return what + ' ' + DecimalText(row) + ' ' + DecimalText(column);
  }
  void Note(const std::string& what) {
    heard.push_back(Heard(what, table.MouseRow, table.MouseCol));
  }
  // Of the cells, in pixels of the grid.
  QRgb Pixel(int x, int y) {
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32).pixel(x, y);
  }

  QTemporaryDir pictures;
  GridTable table;
  GridView view{table, MarkFolder()};
  std::vector<std::string> heard;
};

TEST_F(GridViewTest, ClicksTellTheCellUnderThePointer) {
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {10, 3 * 19 + 5});
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 5});
  QTest::mouseClick(view.viewport(), Qt::RightButton, {}, {100, 5});
  QTest::mouseClick(view.verticalHeader()->viewport(), Qt::LeftButton, {}, {5, 2 * 19 + 5});
  EXPECT_EQ((std::vector<std::string>{"click 3 1", "click 0 2", "click 2 0"}), heard);
  heard.clear();
  table.TopRow = 40;
  Fill(45);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 5});
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, {100, 5});
  const int top = table.TopRow;
  ASSERT_GT(top, 30);
  EXPECT_EQ((std::vector<std::string>{Heard("click", top, 2), Heard("double", top, 2)}), heard);
  heard.clear();
  Fill(2);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(std::vector<std::string>{"click -1 2"}, heard) << "there is no row";
}

TEST_F(GridViewTest, TopRowAndTheScrollBarFollowEachOther) {
  table.TopRow = 30;
  EXPECT_EQ(30, view.rowAt(1));
  view.verticalScrollBar()->setValue(12);
  EXPECT_EQ(12, table.TopRow);
  table.TopRow = 99;
  EXPECT_EQ(table.TopRow, view.rowAt(1)) << "what is out of reach counts as the last place";
  EXPECT_LT(table.TopRow, 99);
  view.hide();
  table.TopRow = 50;
  Fill(80);
  EXPECT_EQ(50, table.TopRow);
  view.show();
  EXPECT_EQ(50, view.rowAt(1)) << "a hidden grid catches up";
  table.SetTextMatrix(3, 2, "M30");
  table.SetColWidth(2, 3500);
  EXPECT_EQ(50, table.TopRow);
}

TEST_F(GridViewTest, CellsShowTheirFormats) {
  table.Select(1, 1);
  table.SetCellPicture(GridPicture::Break);
  table.SetCellPictureAlignment(4);
  table.Select(2, 2);
  table.SetCellBackColor(Rgb(1, 2, 3));
  const int numbers = 30;
  EXPECT_EQ(kRed, Pixel(numbers + 10, 19 + 9));
  EXPECT_NE(kRed, Pixel(numbers + 10, 9));
  EXPECT_EQ(0xFF010203, Pixel(numbers + 20 + 50, 2 * 19 + 1));
  EXPECT_EQ(0xFFC0C0C0, Pixel(numbers + 20 + 50, 2 * 19 + 18));
  table.SetGridLines(0);
  EXPECT_EQ(0xFF010203, Pixel(numbers + 20 + 50, 2 * 19 + 18));
  Fill(3);
  EXPECT_EQ(kEmptyArea, Pixel(numbers + 100, 3 * 19 + 10));
  EXPECT_EQ(kEmptyArea, Pixel(5, 3 * 19 + 10)) << "also under the line numbers";
}

}  // namespace
