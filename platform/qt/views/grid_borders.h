#pragma once

#include <QObject>
#include <optional>

#include "platform/qt/views/grid_view.h"

// Lets the user drag the borders of a grid's columns and of its rows from row 1 on, anywhere in the
// grid. With the keyboard, Ctrl and an arrow key sizes all of these rows, or the text column.
class GridBorders : public QObject {
 public:
  // Goes with the view; the table must outlive it.
  GridBorders(GridTable& table, GridView& view);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // The lower border of a row, or the right one of a column.
  struct Border {
    Qt::Orientation moves = Qt::Horizontal;
    int index = 0;
  };

  std::optional<Border> BorderAt(const QPoint& place) const;
  int SizeOf(const Border& border) const;
  void Resize(const Border& border, int twips);
  bool HandleMouse(QWidget& widget, QEvent& event);
  bool HandleKey(int key);

  GridTable& table_;
  GridView& view_;
  // While the button is down: what is dragged, from which place and size.
  std::optional<Border> dragged_;
  QPoint dragStart_;
  int sizeAtStart_ = 0;
};
