#pragma once

#include <QKeyEvent>
#include <cstdint>

// The virtual key of a key event: Enter 13, Esc 27, the space bar 32, the right arrow 39, digits 48
// to 57, letters 65 to 90, digits of the number pad 96 to 105, its + 107 and - 109, F1 to F12 112
// to 123, the key of "[" 219. 0 for any other key.
std::int16_t VirtualKey(const QKeyEvent& event);

// The sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
std::int16_t ShiftState(const QKeyEvent& event);
