#pragma once

#include <QTest>
#include <QtWidgets>
#include <functional>
#include <utility>

#include "mainwindow/program_start.h"
#include "settings/settings.h"
#include "tests/platform/qt/temporary_folder.h"
#include "toollib/tool_folder.h"

// The dialogs as a user meets them, on a store of settings and a tool folder of the test's own.
class DialogTest : public TemporaryFolderTest {
 protected:
  void SetUp() override {
    TemporaryFolderTest::SetUp();
    setenv("XDG_CONFIG_HOME", folder.c_str(), 1);
    frmMain::ResetToProgramStart();
    GlobalVariables::LoadSettings();
    GlobalVariables::SetToolFolder(folder.string());
    timer.setSingleShot(true);
    QObject::connect(&timer, &QTimer::timeout, [this] {
      const QPointer dialog = QApplication::activeModalWidget();
      std::exchange(next, {})(dialog);
      if (dialog) dialog->close();
    });
  }
  // Runs `act` as soon as a dialog is up, and closes the dialog if it doesn't.
  void WhenShown(const std::function<void(QWidget*)>& act) {
    next = act;
    timer.start(0);
  }
  template <class T>
  static T& The(const char* name) {
    return dynamic_cast<T&>(*QApplication::activeModalWidget()->findChild<QWidget*>(name));
  }
  static void Press(const char* button) { The<QAbstractButton>(button).click(); }
  static void Choose(const char* list, const QString& text) {
    The<QComboBox>(list).setCurrentText(text);
  }

  // A line for each control that has a name, and behind them those that Tab reaches, in order.
  static std::string Describe(QWidget& dialog) {
    // The last family is the system's own.
    const QStringList fonts = dialog.font().families().mid(0, dialog.font().families().size() - 1);
    QString text = '"' + dialog.windowTitle() + "\" " + fonts.join(' ') + '\n';
    AddControls(dialog, "  ", text);
    auto* tabs = dialog.findChild<QTabWidget*>();
    for (int page = 0; page < (tabs != nullptr ? tabs->count() : 1); ++page) {
      if (tabs != nullptr) {
        tabs->setCurrentIndex(page);
        tabs->tabBar()->setFocus();
      }
      if (dialog.focusWidget() == nullptr) QTest::keyClick(&dialog, Qt::Key_Tab);
      QSet<const QWidget*> reached;
      text += "Tab:";
      for (const QWidget* now = dialog.focusWidget(); !reached.contains(now);
           now = dialog.focusWidget()) {
        reached += now;
        text += ' ' + now->objectName();
        QTest::keyClick(&dialog, Qt::Key_Tab);
      }
      text += '\n';
    }
    return text.toStdString();
  }

  QTimer timer;
  std::function<void(QWidget*)> next;

 private:
  static void AddControls(const QWidget& parent, const QString& indent, QString& text) {
    for (const auto* control : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
      const QString name = control->objectName();
      const bool isNamed = !name.isEmpty() && !name.startsWith("qt_");
      if (isNamed)
        text += indent + name + ' ' + control->metaObject()->className() + Says(*control) + '\n';
      if (const auto* tabs = qobject_cast<const QTabWidget*>(control)) {
        for (int page = 0; page < tabs->count(); ++page) {
          text += indent + "\"" + tabs->tabText(page) + "\"\n";
          AddControls(*tabs->widget(page), indent + "  ", text);
        }
      } else if (qobject_cast<const QComboBox*>(control) == nullptr &&
                 qobject_cast<const QAbstractScrollArea*>(control) == nullptr) {
        AddControls(*control, isNamed ? indent + "  " : indent, text);
      }
    }
  }
  // What the user reads or hears of it.
  static QString Says(const QWidget& control) {
    QString says;
    for (const char* property :
         {"text", "title", "plainText", "currentText", "accessibleName", "toolTip"}) {
      const QString value = control.property(property).toString().replace('\n', " / ");
      if (value.isEmpty()) continue;
      says +=
          QString(" %1=\"%2\"").arg(property, value.trimmed() == value ? value : '|' + value + '|');
    }
    for (const char* property : {"checked", "default"}) {
      if (control.property(property).toBool()) says += QString(" ") + property;
    }
    if (!control.isEnabled()) says += " closed";
    if (const auto* label = qobject_cast<const QLabel*>(&control); label && label->buddy()) {
      says += " -> " + label->buddy()->objectName();
    }
    const QAbstractItemModel* items = nullptr;
    if (const auto* box = qobject_cast<const QComboBox*>(&control)) items = box->model();
    if (const auto* list = qobject_cast<const QListWidget*>(&control)) items = list->model();
    for (int i = 0; items != nullptr && i < items->rowCount(); ++i) {
      says += (i == 0 ? " of " : ", ") + items->index(i, 0).data().toString();
    }
    return says;
  }
};
