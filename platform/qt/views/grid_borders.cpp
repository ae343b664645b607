#include "platform/qt/views/grid_borders.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <algorithm>
#include <cstdlib>

namespace {

constexpr int kFirstRow = 1;
// Pixels on both sides of a border from which it can be dragged.
constexpr int kReach = 3;
// Twips: what can still be taken hold of, and what a setting can hold.
constexpr int kSmallest = 4 * kTwipsPerPixel;
constexpr int kLargest = 32'767;

}  // namespace

GridBorders::GridBorders(GridTable& table, GridView& view)
    : QObject(&view), table_(table), view_(view) {
  view.installEventFilter(this);
  for (QWidget* widget :
       {view.viewport(), view.verticalHeader()->viewport(), view.horizontalHeader()->viewport()}) {
    widget->setMouseTracking(true);
    widget->installEventFilter(this);
  }
}

bool GridBorders::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    const auto* key = static_cast<QKeyEvent*>(event);
    return key->modifiers().testFlag(Qt::ControlModifier) && HandleKey(key->key());
  }
  return watched != &view_ && HandleMouse(*static_cast<QWidget*>(watched), *event);
}

std::optional<GridBorders::Border> GridBorders::BorderAt(const QPoint& place) const {
  const QPoint cells = place - view_.viewport()->pos();
  // In the fixed row there are only the borders of columns.
  for (int row = kFirstRow; row < table_.Rows() && cells.y() >= 0; ++row) {
    const int border = view_.rowViewportPosition(row) + view_.rowHeight(row);
    if (std::abs(cells.y() - border) <= kReach) return Border{Qt::Vertical, row};
  }
  // The columns behind it are hidden.
  for (int column = 0; column <= kTextColumn; ++column) {
    const bool isFixed = column == 0;
    const int border =
        isFixed ? 0 : view_.columnViewportPosition(column) + view_.columnWidth(column);
    const bool isShown = table_.ColWidth(column) > 0;
    if (isShown && std::abs(cells.x() - border) <= kReach) return Border{Qt::Horizontal, column};
  }
  return std::nullopt;
}

int GridBorders::SizeOf(const Border& border) const {
  return border.moves == Qt::Vertical ? table_.RowHeight(border.index)
                                      : table_.ColWidth(border.index);
}

void GridBorders::Resize(const Border& border, int twips) {
  const int size = std::clamp(twips, kSmallest, kLargest);
  if (border.moves == Qt::Vertical) {
    table_.SetRowHeight(border.index, size);
  } else {
    table_.SetColWidth(border.index, size);
  }
}

bool GridBorders::HandleMouse(QWidget& widget, QEvent& event) {
  if (event.type() != QEvent::MouseMove && event.type() != QEvent::MouseButtonPress &&
      event.type() != QEvent::MouseButtonRelease) {
    return false;
  }
  const auto& mouse = static_cast<QMouseEvent&>(event);
  const QPoint place = widget.mapTo(&view_, mouse.position().toPoint());
  if (dragged_ && event.type() == QEvent::MouseMove) {
    const QPoint way = place - dragStart_;
    Resize(*dragged_,
           sizeAtStart_ + (dragged_->moves == Qt::Vertical ? way.y() : way.x()) * kTwipsPerPixel);
    return true;
  }
  if (event.type() == QEvent::MouseButtonRelease) {
    return std::exchange(dragged_, std::nullopt).has_value();
  }
  const std::optional<Border> border = BorderAt(place);
  if (!border) {
    widget.unsetCursor();
    return false;
  }
  widget.setCursor(border->moves == Qt::Vertical ? Qt::SplitVCursor : Qt::SplitHCursor);
  if (mouse.button() == Qt::LeftButton) {
    dragged_ = border;
    dragStart_ = place;
    sizeAtStart_ = SizeOf(*border);
  }
  return true;
}

bool GridBorders::HandleKey(int key) {
  const bool isRow = key == Qt::Key_Up || key == Qt::Key_Down;
  const bool isColumn = key == Qt::Key_Left || key == Qt::Key_Right;
  const int step = (key == Qt::Key_Down || key == Qt::Key_Right ? 1 : -1) * kTwipsPerPixel;
  if (isColumn) Resize({Qt::Horizontal, kTextColumn}, table_.ColWidth(kTextColumn) + step);
  for (int row = kFirstRow; isRow && row < table_.Rows(); ++row) {
    Resize({Qt::Vertical, row}, table_.RowHeight(row) + step);
  }
  return isRow || isColumn;
}
