#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "platform/colour.h"
#include "platform/property.h"
#include "platform/raster.h"

// What the logic needs of the main window's controls. They exist without any window; a window
// mirrors them by watching their properties.

// Where a control stands in its window, in pixels.
struct ControlBounds {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;

  bool operator==(const ControlBounds&) const = default;
};

// What every control that has a place of its own brings along.
struct Control {
  Property<bool> Visible = true;
  Property<ControlBounds> Bounds;
};

struct ToolButton {
  std::string_view Key;
  // Empty for a button without a label.
  Property<std::string> Caption;
  Property<bool> Enabled = true;
  // 1 pressed, 0 not.
  Property<int> Value = 0;
};

struct MenuEntry {
  Property<bool> Enabled = true;
  Property<bool> Checked = false;
};

// An entry of a menu that comes and goes.
struct RecentFileEntry {
  // The first one always is.
  Property<bool> Loaded = false;
  Property<std::string> Caption;
  Property<bool> Enabled = true;
};

struct StatusPanel {
  std::string_view Key;
  Property<std::string> Text;
  // Pixels, from the left edge of the status bar.
  double Left = 0;
  double Width = 0;
};

// The row of a table that has a key; the count of rows when none has it.
template <class Rows>
constexpr std::size_t RowOf(const Rows& rows, std::string_view key) {
  std::size_t row = 0;
  while (row < std::size(rows) && rows[row].Key != key) ++row;
  return row;
}

// A key written in the code. One that no row of the table has doesn't compile.
template <const auto& rows>
class KeyOf {
 public:
  consteval KeyOf(const char* key) : row_(RowOf(rows, key)) {
    if (row_ == std::size(rows)) throw "no row has this key";
  }
  constexpr std::size_t Row() const { return row_; }
  constexpr std::string_view Name() const { return rows[row_].Key; }

 private:
  std::size_t row_;
};

// Items found by key, one for each row of a table.
template <class Item, const auto& rows>
class KeyedItems {
 public:
  KeyedItems() {
    for (std::size_t i = 0; i < items_.size(); ++i) items_[i].Key = rows[i].Key;
  }

  Item& operator[](KeyOf<rows> key) { return items_[key.Row()]; }
  // For a key that is known when running. Null for an unknown one.
  Item* Find(std::string_view key) {
    for (Item& item : items_) {
      if (item.Key == key) return &item;
    }
    return nullptr;
  }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }

 private:
  std::array<Item, std::size(rows)> items_;
};

struct ComboBox {
  // A number of its own for each item of List, set in front of it.
  std::vector<int> ItemData;
  Property<std::vector<std::string>> List;
};

struct ProgressGauge : Control {
  Property<int> Max = 100;
  Property<int> Value = 0;
};

struct SliderControl : Control {
  static constexpr int kMin = -10;
  static constexpr int kMax = 10;
  // kMin to kMax.
  Property<int> Value = 0;
};

// The simulation area. Whoever shows it sets `Blt`, which takes a copy of the changed part of the
// surface; without one nothing is copied.
struct PictureBox : Control {
  Property<Colour> BackColor = Rgb(255, 255, 255);
  std::function<void(const Raster& surface, const PixelRect& changed)> Blt;
  // Shows the background alone until the next Blt. The surface keeps its picture.
  std::function<void()> Cls;
};

// A text box of one line, hidden at rest. Whoever shows it gives it the focus when it becomes
// visible, with the caret at SelStart.
struct TextBox : Control {
  TextBox() { Visible = false; }

  Property<std::string> Text;
  Property<std::string> FontName;
  // Points.
  Property<int> FontSize = 10;
  Property<int> SelStart = 0;
};
