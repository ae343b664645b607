#pragma once

#include <QIcon>
#include <QToolBar>
#include <string>

#include "platform/controls.h"
#include "platform/qt/views/bindings.h"

class QMenu;

namespace frmMain {

// The picture of a command in both of its states, 16 by 16 pixels.
QIcon CommandIcon(const QString& key);

// Toolbar on the screen: a button a command, named by its key, with lines between the groups.
// Writes the height in Toolbar.Bounds, which changes with the labels.
class ToolBarView : public QToolBar {
 public:
  explicit ToolBarView(QWidget* parent);

 protected:
  void actionEvent(QActionEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void AddButton(ToolButton& button);
  void ShowCaption(QAction& action, const std::string& caption);
  void MeasureHeight();
  void ShowMenu(const QPoint& place);

  Bindings bindings_;
  QMenu* menu_;
};

}  // namespace frmMain
