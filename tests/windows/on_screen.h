#pragma once

#include <QString>
#include <QWidget>
#include <vector>

// What a user sees at a moment of the windows and menus that are up, and where the keyboard is: of
// each control a line. What depends on the fonts of a machine isn't in it, so that the place of a
// control in a layout is its row and column among its neighbours.
struct Shown {
  // "Frame1/cmdOK" is in Frame1.
  QString name;
  QString what;

  bool operator==(const Shown&) const = default;
};
std::vector<Shown> OnScreen();

// What it bears or is called by, or else its kind.
QString NameOf(const QWidget& widget);
// In quotation marks, with " / " for a line end.
QString Quoted(QString text);
// That of the user's keys and clicks.
QWidget* FrontWindow();
