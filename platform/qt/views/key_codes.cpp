#include "platform/qt/views/key_codes.h"

#include <span>

namespace {

// Keys from `first` to `last` have the codes from `code` on.
struct KeyRange {
  int first;
  int last;
  int code;
};

constexpr KeyRange kKeyRanges[] = {
    {Qt::Key_Return, Qt::Key_Return, 13},
    {Qt::Key_Enter, Qt::Key_Enter, 13},
    {Qt::Key_Escape, Qt::Key_Escape, 27},
    {Qt::Key_Space, Qt::Key_Space, 32},
    {Qt::Key_Right, Qt::Key_Right, 39},
    {Qt::Key_0, Qt::Key_9, 48},
    {Qt::Key_A, Qt::Key_Z, 65},
    {Qt::Key_F1, Qt::Key_F12, 112},
    {Qt::Key_BracketLeft, Qt::Key_BracketLeft, 219},
    // The same key with Shift, on a common layout.
    {Qt::Key_BraceLeft, Qt::Key_BraceLeft, 219},
};
constexpr KeyRange kNumberPadRanges[] = {
    {Qt::Key_0, Qt::Key_9, 96},
    {Qt::Key_Plus, Qt::Key_Plus, 107},
    {Qt::Key_Minus, Qt::Key_Minus, 109},
};

// 0 when the key is in none of the ranges.
std::int16_t CodeIn(std::span<const KeyRange> ranges, int key) {
  for (const KeyRange& range : ranges) {
    if (key >= range.first && key <= range.last) {
      return static_cast<std::int16_t>(range.code + key - range.first);
    }
  }
  return 0;
}

}  // namespace

std::int16_t VirtualKey(const QKeyEvent& event) {
  if (event.modifiers().testFlag(Qt::KeypadModifier)) {
    const std::int16_t code = CodeIn(kNumberPadRanges, event.key());
    if (code != 0) return code;
  }
  return CodeIn(kKeyRanges, event.key());
}

std::int16_t ShiftState(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  int state = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) state += 1;
  if (modifiers.testFlag(Qt::ControlModifier)) state += 2;
  if (modifiers.testFlag(Qt::AltModifier)) state += 4;
  return static_cast<std::int16_t>(state);
}
