#include "platform/qt/views/grid_view.h"

#include <QHeaderView>
#include <QImage>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>
#include <string>

#include "platform/numbers.h"

namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kGreen = 0xFF00FF00;
constexpr QRgb kBlue = 0xFF0000FF;
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
    for (const auto& [name, colour] :
         {std::pair{"Break", kRed}, {"Step", kGreen}, {"Both", kBlue}}) {
      mark.fill(colour);
      mark.save(pictures.filePath(QString(name) + ".png"));
    }
    return pictures.path();
  }
  void Fill(int rows) {
    table.SetRedraw(false);
    table.SetRows(rows);
    for (int row = 0; row < rows; ++row) table.SetRowHeight(row, 285);
    table.SetRedraw(true);
  }
  // "click 3 1, " for row 3, column 1.
  void Note(const std::string& what) {
    heard += what + ' ' + DecimalText(table.MouseRow) + ' ' + DecimalText(table.MouseCol) + ", ";
  }
  void ClickCell(int x, int y) { QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {x, y}); }
  // Of the cells, in pixels of the grid.
  QRgb Pixel(int x, int y) {
    return view.grab().toImage().convertToFormat(QImage::Format_RGB32).pixel(x, y);
  }

  QTemporaryDir pictures;
  GridTable table;
  GridView view{table, MarkFolder()};
  std::string heard;
};

TEST_F(GridViewTest, ClicksTellTheCellUnderThePointer) {
  ClickCell(10, 3 * 19 + 5);
  ClickCell(100, 5);
  QTest::mouseClick(view.viewport(), Qt::RightButton, {}, {100, 5});
  // Beside the border of row 1, too.
  QWidget* numbers = view.verticalHeader()->viewport();
  QTest::mouseClick(numbers, Qt::LeftButton, {}, {5, 2 * 19 + 1});
  QTest::mouseDClick(numbers, Qt::LeftButton, {}, {5, 2 * 19 - 1});
  EXPECT_EQ("click 3 1, click 0 2, click 2 0, double 1 0, ", heard);
  table.TopRow = 40;
  Fill(45);
  heard.clear();
  ClickCell(100, 5);
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, {100, 5});
  const std::string top = DecimalText(table.TopRow);
  EXPECT_GT(table.TopRow, 30);
  Fill(2);
  ClickCell(100, 100);
  EXPECT_EQ("click " + top + " 2, double " + top + " 2, click -1 2, ", heard);
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
  table.SetCellPictureAlignment(4);
  for (const auto& [picture, colour, name] : {std::tuple{GridPicture::Step, kGreen, "Step"},
                                              {GridPicture::Both, kBlue, "Both"},
                                              {GridPicture::Break, kRed, "Break"}}) {
    table.SetCellPicture(picture);
    EXPECT_EQ(colour, Pixel(30 + 10, 19 + 9));
    EXPECT_EQ(name, view.model()->index(1, 1).data(Qt::AccessibleTextRole));
  }
  table.Select(2, 2);
  table.SetCellBackColor(Rgb(1, 2, 3));
  const int numbers = 30;
  EXPECT_NE(kRed, Pixel(numbers + 10, 9));
  EXPECT_EQ(0xFF010203, Pixel(numbers + 20 + 50, 2 * 19 + 1));
  EXPECT_EQ(0xFFC0C0C0, Pixel(numbers + 20 + 50, 2 * 19 + 18));
  const auto shown = [&](int x, int width) { return view.grab({x, 0, width, 19}).toImage(); };
  const QImage number = shown(0, numbers);
  const QImage text = shown(numbers + 20, 100);
  table.SetTextMatrix(0, 0, "1");
  table.SetTextMatrix(0, 2, "M30");
  EXPECT_NE(number, shown(0, numbers));
  EXPECT_NE(text, shown(numbers + 20, 100));
  table.SetGridLines(0);
  EXPECT_EQ(0xFF010203, Pixel(numbers + 20 + 50, 2 * 19 + 18));
  Fill(3);
  EXPECT_EQ(kEmptyArea, Pixel(numbers + 100, 3 * 19 + 10));
  EXPECT_EQ(kEmptyArea, Pixel(5, 3 * 19 + 10)) << "also under the line numbers";
}

TEST_F(GridViewTest, TheKeyboardHasACurrentRowThatIsSeenWithTheFocus) {
  const QRgb highlight = view.palette().highlight().color().rgb();
  const auto press = [&](std::initializer_list<Qt::Key> keys) {
    for (const Qt::Key key : keys) QTest::keyClick(&view, key);
    return std::exchange(heard, {});
  };
  table.TopRow = 1;
  view.setFocus();
  EXPECT_EQ("click 2 1, double 2 2, double 2 2, double 2 2, ",
            press({Qt::Key_Down, Qt::Key_Down, Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter,
                   Qt::Key_F2}));
  EXPECT_EQ(highlight, Pixel(1, 19 + 1));
  EXPECT_EQ(highlight, Pixel(30 + 100, 19 + 1));
  EXPECT_NE(highlight, Pixel(30 + 100, 2 * 19 + 1));
  QTest::keyClick(&view, Qt::Key_Space, Qt::ControlModifier);
  table.TopRow = 40;
  Fill(90);
  EXPECT_EQ(40, table.TopRow) << "only its keys bring the row into view";
  EXPECT_EQ("click 2 1, ", press({Qt::Key_Space}));
  ClickCell(100, 5);
  EXPECT_EQ("click 40 2, click 41 1, ", press({Qt::Key_Down, Qt::Key_Space}));
  view.clearFocus();
  EXPECT_NE(highlight, Pixel(1, 19 + 1));
  view.Click = nullptr;
  EXPECT_EQ("", press({Qt::Key_Space, Qt::Key_Return}));
}

}  // namespace
