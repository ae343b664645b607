#pragma once

#include <QDir>
#include <QMainWindow>
#include <random>

// Does anything that a user can do, but to leave.
class Monkey {
 public:
  // In a dialog of files it chooses names in that folder alone.
  Monkey(QMainWindow& window, const QString& folder);

  // One event, to the window that takes the user's.
  void Act(QWidget* front);

 private:
  void ClickAnywhere(QWidget* front);
  int Below(qsizetype limit);

  QMainWindow& window_;
  const QDir folder_;
  std::mt19937 random_{1};
};
