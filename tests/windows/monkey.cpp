#include "tests/windows/monkey.h"

#include <QtTest>
#include <QtWidgets>

#include "mainwindow/control_surface.h"

Monkey::Monkey(QMainWindow& window, const QString& folder) : window_(window), folder_(folder) {
  auto* exit = window.findChild<QAction*>("mnuFileExit");
  exit->setVisible(false);
  exit->setEnabled(false);
}

void Monkey::Act(QWidget* front) {
  static constexpr const char* kKeys =
      "G X Z M 0 1 6 . Space Return Return Backspace Up Down Left Right Home End Tab Del PgDown "
      "F2 F5 F6 F7 F8 [ Shift+Up Shift+Down Shift+End Ctrl+F5 Ctrl+Z Ctrl+Y Ctrl+A Ctrl+C "
      "Ctrl+V Ctrl+N Ctrl+S Ctrl+O";
  static const QStringList keys = QString(kKeys).split(' ');
  auto* files = qobject_cast<QFileDialog*>(front);
  QWidget* user = front->focusWidget() != nullptr ? front->focusWidget() : front;
  if (files != nullptr && Below(2) == 0) {
    files->selectFile(folder_.filePath(QString("part%1.cnc").arg(Below(3))));
    QTest::keyClick(user, Qt::Key_Return);
  } else if (files != nullptr || front->inherits("QPrintDialog") ||
             (front != &window_ && Below(6) == 0)) {
    QTest::keyClick(front, Qt::Key_Escape);
  } else if (const int kind = Below(20); kind < 9) {
    const QKeyCombination key = QKeySequence(keys[Below(keys.size())])[0];
    QTest::keyClick(user, key.key(), key.keyboardModifiers());
  } else if (kind < 16) {
    ClickAnywhere(front);
  } else if (kind < 18) {
    auto commands = window_.findChildren<QAction*>();
    commands.removeIf([](auto* a) {
      const auto* menu = qobject_cast<QMenu*>(a->parent());
      const bool isClosed = menu != nullptr && !menu->menuAction()->isEnabled();
      return isClosed || !a->isEnabled() || !a->isVisible() || a->menu() != nullptr;
    });
    const bool canChoose = front == &window_ && !commands.isEmpty();
    if (canChoose) commands[Below(commands.size())]->trigger();
  } else if (kind == 18) {
    frmMain::Slider.Value = Below(13) - 2;
  } else {
    window_.resize(200 + Below(900), 150 + Below(600));
  }
}

void Monkey::ClickAnywhere(QWidget* front) {
  QWidgetList widgets = front->findChildren<QWidget*>();
  widgets.removeIf([](auto* widget) { return !widget->isVisible() || !widget->isEnabled(); });
  widgets += front;
  const QPointer<QWidget> target = widgets[Below(widgets.size())];
  const QPoint place(Below(target->width() + 1), Below(target->height() + 1));
  const auto button = Below(8) == 0 ? Qt::RightButton : Qt::LeftButton;
  if (Below(6) == 0) QTest::mouseDClick(target, button, {}, place);
  if (target) QTest::mousePress(target, button, {}, place);
  if (target) QTest::mouseRelease(target, button, {}, place);
}

int Monkey::Below(qsizetype limit) {
  return static_cast<int>(random_() % static_cast<std::size_t>(limit));
}
