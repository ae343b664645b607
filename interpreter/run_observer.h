#pragma once

#include <string_view>

namespace ModCNC {

// Hears of a run as it goes on. It reads the shared state and changes none of it.
class RunObserver {
 public:
  virtual ~RunObserver() = default;

  // A row is about to be carried out; `block` is its text without the comment. It is the row
  // GCodes::ContourRow, or outside of a cycle CurrentRow.
  virtual void OnRow(std::string_view block) = 0;

  // The move that stands in PathPoints is about to be played, all words of its block are decoded.
  // Of a rapid move PathPoints holds the points that won't be played as well.
  virtual void OnMove() = 0;
};

// Who observes the runs; null: nobody.
inline RunObserver* Observer = nullptr;

}  // namespace ModCNC
