#pragma once

#include <QTableView>
#include <functional>

#include "platform/grid_table.h"

class GridModel;

// Shows a grid table without a copy of it, kTwipsPerPixel to the pixel. The first column is fixed
// at the left and the last, the break flag's, is usually of no width. Takes the table's watcher and
// those of TopRow and ToolTipText; whoever lays the window out watches Visible and Bounds.
class GridView : public QTableView {
 public:
  // The marks are Break.png, Step.png and Both.png in a folder of files or resources.
  GridView(GridTable& table, const QString& pictureFolder, QWidget* parent = nullptr);
  ~GridView() override;

  // Row 0 becomes an empty head that stands still.
  void FixFirstRow();

  // Both are called when the table's MouseRow and MouseCol tell where. The first click of a double
  // click has been a click before. In a grid that hears clicks the keyboard has a current row:
  // Space clicks its mark, Enter and F2 double click its text.
  std::function<void()> Click;
  std::function<void()> DblClick;

  // The current row while the grid has the focus; -1 else.
  int FocusRow() const { return Click && hasFocus() ? currentIndex().row() : -1; }

  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;

 private:
  void FollowTable(const GridChange& change);
  void ApplyLayout();
  void ApplyFont();
  void ApplyTopRow();
  void AlignTopRow();
  void TellMouseCell(const QPoint& place);
  void MakeCurrent(int row);
  void ShowFocus();

  GridTable& table_;
  GridModel* model_;
  bool applying_ = false;
  bool hasFixedRow_ = false;
};
