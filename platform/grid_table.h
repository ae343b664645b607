#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/colour.h"
#include "platform/controls.h"
#include "platform/property.h"

// The picture in a cell, by the key of its image.
enum class GridPicture : std::uint8_t { None, Step, Break, Both };

// How a cell looks.
struct CellFormat {
  Colour BackColor = Rgb(255, 255, 255);
  Colour ForeColor = Rgb(0, 0, 0);
  // For GridTable::FontNameOf; 0 is the font of the grid.
  std::uint16_t Font = 0;
  // Points; 0 for the grid's own.
  std::int16_t FontSize = 0;
  GridPicture Picture = GridPicture::None;
  // 4 centres the picture in both directions.
  std::uint8_t PictureAlignment = 0;
  bool FontBold = false;
};

// What a watcher of a grid hears: rows First to Last look different, or, with All, the number of
// rows, the columns or everything may.
struct GridChange {
  bool All = false;
  int First = 0;
  int Last = 0;
};

inline constexpr int kTwipsPerPixel = 15;

// The columns of a listing of a program, in a grid.
inline constexpr int kLineNumberColumn = 0;
inline constexpr int kMarkColumn = 1;
inline constexpr int kTextColumn = 2;
inline constexpr int kBreakColumn = 3;
inline constexpr Colour kMarkColumnColour = Rgb(240, 240, 240);

// The table behind a grid control: four columns of text, rows numbered from 0. Widths, heights and
// cell places are twips.
class GridTable : public Control {
 public:
  static constexpr int kColumns = 4;
  // What MouseRow and MouseCol hold when the pointer is over no cell.
  static constexpr int kNowhere = -1;

  int Rows() const { return static_cast<int>(rows_.size()); }
  // New rows are empty; rows that go lose their cells.
  void SetRows(int count);

  // Row and column must exist, here and below.
  const std::string& TextMatrix(int row, int column) const {
    return RowAt(row).texts.at(static_cast<std::size_t>(column));
  }
  void SetTextMatrix(int row, int column, std::string text);

  int ColWidth(int column) const { return columnWidths_.at(static_cast<std::size_t>(column)); }
  void SetColWidth(int column, int twips);
  int RowHeight(int row) const { return RowAt(row).height; }
  void SetRowHeight(int row, int twips);
  // 1 or 0.
  int GridLines() const { return gridLines_; }
  void SetGridLines(int lines);
  // Font of all cells that have none of their own.
  const std::string& FontName() const { return fontNames_.front(); }
  void SetFontName(std::string_view name);

  // The current cell, on which the routines that begin with SetCell act.
  int Row = 0;
  int Col = 0;
  void Select(int row, int column) {
    Row = row;
    Col = column;
  }
  void SetCellBackColor(Colour colour) { SetCell(&CellFormat::BackColor, colour); }
  void SetCellForeColor(Colour colour) { SetCell(&CellFormat::ForeColor, colour); }
  void SetCellFontName(std::string_view name) { SetCell(&CellFormat::Font, FontNumber(name)); }
  void SetCellFontSize(std::int16_t points) { SetCell(&CellFormat::FontSize, points); }
  void SetCellFontBold(bool bold) { SetCell(&CellFormat::FontBold, bold); }
  void SetCellPicture(GridPicture picture) { SetCell(&CellFormat::Picture, picture); }
  void SetCellPictureAlignment(std::uint8_t alignment) {
    SetCell(&CellFormat::PictureAlignment, alignment);
  }
  // Place of the current cell within the grid as it is scrolled.
  int CellLeft() const;
  int CellTop() const;

  const CellFormat& Format(int row, int column) const {
    return RowAt(row).formats.at(static_cast<std::size_t>(column));
  }
  const std::string& FontNameOf(const CellFormat& format) const {
    return fontNames_.at(format.Font);
  }

  // The cell under the pointer, or kNowhere; set by the window before a click is handled.
  int MouseRow = kNowhere;
  int MouseCol = kNowhere;
  // The first row in view.
  Property<int> TopRow = 0;
  Property<std::string> ToolTipText;

  // Replaces the one watcher; an empty function takes it away.
  void Watch(std::function<void(const GridChange&)> watcher) { watcher_ = std::move(watcher); }
  // While off, changes are gathered; turning it on tells the watcher of all of them at once.
  void SetRedraw(bool on);

 private:
  static constexpr int kDefaultColumnWidth = 960;
  static constexpr int kDefaultRowHeight = 240;

  struct TableRow {
    std::array<std::string, kColumns> texts;
    std::array<CellFormat, kColumns> formats;
    int height = kDefaultRowHeight;
  };

  const TableRow& RowAt(int row) const { return rows_.at(static_cast<std::size_t>(row)); }
  TableRow& RowAt(int row) { return rows_.at(static_cast<std::size_t>(row)); }

  template <class T>
  void SetCell(T CellFormat::*member, T value) {
    T& current = RowAt(Row).formats.at(static_cast<std::size_t>(Col)).*member;
    if (current == value) return;
    current = value;
    Notify({.First = Row, .Last = Row});
  }
  std::uint16_t FontNumber(std::string_view name);
  void Notify(const GridChange& change);

  std::vector<TableRow> rows_{1};
  std::array<int, kColumns> columnWidths_{kDefaultColumnWidth, kDefaultColumnWidth,
                                          kDefaultColumnWidth, kDefaultColumnWidth};
  int gridLines_ = 1;
  // Each name once; cells hold its index.
  std::vector<std::string> fontNames_{""};
  std::function<void(const GridChange&)> watcher_;
  bool redraw_ = true;
  bool hasPending_ = false;
  GridChange pending_;
};
