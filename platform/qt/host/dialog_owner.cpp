#include "platform/qt/host/dialog_owner.h"

#include <QApplication>
#include <QMainWindow>

QWidget* MainWindowOnScreen() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && qobject_cast<QMainWindow*>(window) != nullptr) return window;
  }
  return nullptr;
}

QWidget* DialogOwner() {
  QWidget* top = QApplication::activeModalWidget();
  const bool stays = top != nullptr && !top->testAttribute(Qt::WA_DeleteOnClose);
  return stays ? top : MainWindowOnScreen();
}
