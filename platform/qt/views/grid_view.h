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
  // click has been a click before.
  std::function<void()> Click;
  std::function<void()> DblClick;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void updateGeometries() override;

 private:
  void FollowTable(const GridChange& change);
  void ApplyLayout();
  void ApplyTopRow();
  void AlignTopRow();
  void TellMouseCell(const QPoint& place);

  GridTable& table_;
  GridModel* model_;
  bool applying_ = false;
  bool hasFixedRow_ = false;
};
