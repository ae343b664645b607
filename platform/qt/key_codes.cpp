#include "platform/qt/key_codes.h"

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
constexpr int kNumberPadZero = 96;

}  // namespace

std::int16_t VirtualKey(const QKeyEvent& event) {
  const int key = event.key();
  if (event.modifiers().testFlag(Qt::KeypadModifier) && key >= Qt::Key_0 && key <= Qt::Key_9) {
    return static_cast<std::int16_t>(kNumberPadZero + key - Qt::Key_0);
  }
  for (const KeyRange& range : kKeyRanges) {
    if (key >= range.first && key <= range.last) {
      return static_cast<std::int16_t>(range.code + key - range.first);
    }
  }
  return 0;
}

std::int16_t ShiftState(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers();
  int state = 0;
  if (modifiers.testFlag(Qt::ShiftModifier)) state += 1;
  if (modifiers.testFlag(Qt::ControlModifier)) state += 2;
  if (modifiers.testFlag(Qt::AltModifier)) state += 4;
  return static_cast<std::int16_t>(state);
}
