#pragma once

#include <QColor>

#include "platform/colour.h"

inline QColor ToQColor(Colour colour) {
  return {RedOf(colour), GreenOf(colour), BlueOf(colour)};
}

inline Colour FromQColor(const QColor& color) {
  return Rgb(static_cast<std::uint32_t>(color.red()), static_cast<std::uint32_t>(color.green()),
             static_cast<std::uint32_t>(color.blue()));
}

// Black or white, whichever is easier to read on a background.
inline QColor TextColourOn(Colour background) {
  return qGray(ToQColor(background).rgb()) < 128 ? Qt::white : Qt::black;
}
