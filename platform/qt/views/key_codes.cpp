#include "platform/qt/views/key_codes.h"

#include <span>

#include "platform/virtual_keys.h"

namespace {

// Keys from `first` to `last` have the codes from `code` on.
struct KeyRange {
  int first;
  int last;
  int code;
};

constexpr KeyRange kKeyRanges[] = {
    {Qt::Key_Return, Qt::Key_Return, VirtualKeys::kEnter},
    {Qt::Key_Enter, Qt::Key_Enter, VirtualKeys::kEnter},
    {Qt::Key_Escape, Qt::Key_Escape, VirtualKeys::kEscape},
    {Qt::Key_Space, Qt::Key_Space, VirtualKeys::kSpaceBar},
    {Qt::Key_Right, Qt::Key_Right, VirtualKeys::kRightArrow},
    {Qt::Key_0, Qt::Key_9, '0'},
    {Qt::Key_A, Qt::Key_Z, 'A'},
    {Qt::Key_F1, Qt::Key_F12, VirtualKeys::kF1},
    {Qt::Key_BracketLeft, Qt::Key_BracketLeft, VirtualKeys::kBracket},
    // The same key with Shift, on a common layout.
    {Qt::Key_BraceLeft, Qt::Key_BraceLeft, VirtualKeys::kBracket},
};
constexpr KeyRange kNumberPadRanges[] = {
    {Qt::Key_0, Qt::Key_9, VirtualKeys::kNumberPad0},
    {Qt::Key_Plus, Qt::Key_Plus, VirtualKeys::kNumberPadPlus},
    {Qt::Key_Minus, Qt::Key_Minus, VirtualKeys::kNumberPadMinus},
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
