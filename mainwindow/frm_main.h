#pragma once

#include <QMainWindow>

// The main window: binds the controls of the control surface to widgets of the same names, and
// turns their events into calls of the handlers.
class MainWindow : public QMainWindow {
 public:
  MainWindow();
  ~MainWindow() override;
};
