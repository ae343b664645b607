#pragma once

#include <QWidget>

// The main window while it is on the screen, else null.
QWidget* MainWindowOnScreen();

// The window that a dialog belongs to: the dialog on top, or the main window. Not simply the active
// window: that may be a notification, which fades away under the dialog and takes it along.
QWidget* DialogOwner();
