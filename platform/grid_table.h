#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "platform/property.h"

// The table behind a grid control: four columns of text, rows numbered from 0.
class GridTable {
 public:
  static constexpr int kColumns = 4;

  int Rows() const { return static_cast<int>(rows_.size()); }
  // New rows are empty; rows that go lose their cells.
  void SetRows(int count) { rows_.resize(static_cast<std::size_t>(count)); }

  // Row and column must exist.
  const std::string& TextMatrix(int row, int column) const {
    return rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column));
  }
  void SetTextMatrix(int row, int column, std::string text) {
    rows_.at(static_cast<std::size_t>(row)).at(static_cast<std::size_t>(column)) = std::move(text);
  }

  // The first row in view.
  Property<int> TopRow = 0;

 private:
  std::vector<std::array<std::string, kColumns>> rows_{1};
};
