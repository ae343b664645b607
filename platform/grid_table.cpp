#include "platform/grid_table.h"

#include <algorithm>

void GridTable::SetRows(int count) {
  if (count == Rows()) return;
  rows_.resize(static_cast<std::size_t>(count));
  TopRow = std::clamp(TopRow.Get(), 0, std::max(count - 1, 0));
  Notify({.All = true});
}

void GridTable::SetTextMatrix(int row, int column, std::string text) {
  std::string& current = RowAt(row).texts.at(static_cast<std::size_t>(column));
  if (current == text) return;
  current = std::move(text);
  Notify({.First = row, .Last = row});
}

void GridTable::SetColWidth(int column, int twips) {
  columnWidths_.at(static_cast<std::size_t>(column)) = twips;
  Notify({.All = true});
}

void GridTable::SetRowHeight(int row, int twips) {
  int& current = RowAt(row).height;
  if (current == twips) return;
  current = twips;
  Notify({.First = row, .Last = row});
}

void GridTable::SetGridLines(int lines) {
  gridLines_ = lines;
  Notify({.All = true});
}

void GridTable::SetFontName(std::string_view name) {
  fontNames_.front() = name;
  Notify({.All = true});
}

int GridTable::CellLeft() const {
  int left = 0;
  for (int column = 0; column < Col; ++column) left += ColWidth(column);
  return left;
}

int GridTable::CellTop() const {
  int top = 0;
  for (int row = TopRow; row < Row; ++row) top += RowHeight(row);
  for (int row = Row; row < TopRow; ++row) top -= RowHeight(row);
  return top;
}

std::uint16_t GridTable::FontNumber(std::string_view name) {
  // The grid's own font may change later, so a cell's name never stands for it.
  const auto found = std::find(fontNames_.begin() + 1, fontNames_.end(), name);
  const auto number = static_cast<std::uint16_t>(found - fontNames_.begin());
  if (found == fontNames_.end()) fontNames_.emplace_back(name);
  return number;
}

void GridTable::SetRedraw(bool on) {
  redraw_ = on;
  if (!on || !hasPending_) return;
  hasPending_ = false;
  Notify(pending_);
}

void GridTable::Notify(const GridChange& change) {
  if (redraw_) {
    if (watcher_) watcher_(change);
    return;
  }
  pending_ = hasPending_ ? GridChange{.All = pending_.All || change.All,
                                      .First = std::min(pending_.First, change.First),
                                      .Last = std::max(pending_.Last, change.Last)}
                         : change;
  hasPending_ = true;
}
