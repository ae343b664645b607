#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/property.h"
#include "platform/raster.h"

// What the logic needs of the main window's controls. They exist without any window; a window
// mirrors them by watching their properties.

struct ToolButton {
  std::string_view Key;
  Property<bool> Enabled = true;
  // 1 pressed, 0 not.
  Property<int> Value = 0;
};

struct MenuEntry {
  Property<bool> Enabled = true;
  Property<bool> Checked = false;
};

struct StatusPanel {
  std::string_view Key;
  Property<std::string> Text;
};

// Items found by key; the keys are fixed when the collection is made.
template <class Item, std::size_t count>
class KeyedItems {
 public:
  explicit KeyedItems(const std::array<std::string_view, count>& keys) {
    for (std::size_t i = 0; i < count; ++i) items_[i].Key = keys[i];
  }

  // Null for an unknown key.
  Item* Find(std::string_view key) {
    for (Item& item : items_) {
      if (item.Key == key) return &item;
    }
    return nullptr;
  }
  auto begin() { return items_.begin(); }
  auto end() { return items_.end(); }

 private:
  std::array<Item, count> items_;
};

struct ComboBox {
  Property<std::vector<std::string>> List;
};

struct ProgressGauge {
  Property<int> Max = 100;
  Property<int> Value = 0;
};

struct SliderControl {
  static constexpr int kMin = -10;
  static constexpr int kMax = 10;
  // kMin to kMax.
  Property<int> Value = 0;
};

// The simulation area. Whoever shows it sets `Blt`, which takes a copy of the changed part of the
// surface; without one nothing is copied.
struct PictureBox {
  std::function<void(const Raster& surface, const PixelRect& changed)> Blt;
};
