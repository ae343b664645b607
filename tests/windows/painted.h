#pragma once

#include <QWidget>
#include <vector>

// One stroke of what a widget paints.
struct Painted {
  QRect place;
  // A fill is its colour; there are also frames, lines, texts with their font, and pictures with
  // two of their colours.
  QString what;
};

// What a widget itself paints, in order.
std::vector<Painted> PaintedBy(QWidget& widget);
