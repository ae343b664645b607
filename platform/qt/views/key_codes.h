#pragma once

#include <QKeyEvent>
#include <cstdint>

// The virtual key of a key event, one of platform/virtual_keys.h; 0 for any other key.
std::int16_t VirtualKey(const QKeyEvent& event);

// The sum of 1 for Shift, 2 for Ctrl and 4 for Alt.
std::int16_t ShiftState(const QKeyEvent& event);
