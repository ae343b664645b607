#include "mainwindow/frm_main_tool_bar.h"

#include <QAction>
#include <QActionEvent>
#include <QContextMenuEvent>
#include <QMenu>
#include <QToolButton>
#include <algorithm>

#include "mainwindow/control_surface.h"
#include "mainwindow/frm_main_menus.h"
#include "mainwindow/frm_tool_bar_layout.h"

namespace frmMain {

namespace {

constexpr QSize kPictureSize(16, 16);
// The image lists; the key of a picture is that of its button.
const char* const imgListToolBarEnabled = ":/pictures/toolbar/%1.png";
const char* const imgListToolBarDisabled = ":/pictures/toolbar/%1_disabled.png";

// Each begins a group of buttons.
constexpr CommandKey kGroups[] = {"Print", "Step", "Options"};

}  // namespace

QIcon CommandIcon(const QString& key) {
  QIcon icon;
  icon.addFile(QString(imgListToolBarEnabled).arg(key), kPictureSize);
  icon.addFile(QString(imgListToolBarDisabled).arg(key), kPictureSize, QIcon::Disabled);
  return icon;
}

ToolBarView::ToolBarView(QWidget* parent) : QToolBar(parent) {
  setObjectName("Toolbar");
  setAccessibleName("Tool bar");
  setIconSize(kPictureSize);
  setAutoFillBackground(true);
  for (ToolButton& button : Toolbar) {
    const auto begins = [&](CommandKey first) { return first.Name() == button.Key; };
    if (std::ranges::any_of(kGroups, begins)) addSeparator();
    AddButton(button);
  }
  MeasureHeight();
  menu_ = MakeToolBarMenu(*this, bindings_, [this] { LayOutToolBar(*this); });
  setContextMenuPolicy(Qt::CustomContextMenu);
  connect(this, &QWidget::customContextMenuRequested, this, &ToolBarView::ShowMenu);
}

void ToolBarView::AddButton(ToolButton& button) {
  const QString key = QString::fromUtf8(button.Key.data(), static_cast<int>(button.Key.size()));
  QAction* action = addAction(CommandIcon(key), key);
  action->setToolTip(key);
  connect(action, &QAction::triggered, this,
          [command = MenuCommand(button.Key)] { command.Choose(); });
  bindings_.Bind(button.Enabled, [action](bool enabled) { action->setEnabled(enabled); });
  bindings_.Bind(button.Caption,
                 [this, action](const std::string& caption) { ShowCaption(*action, caption); });
  if (button.Key != "Step") return;
  action->setCheckable(true);
  bindings_.Bind(button.Value, [action](int value) { action->setChecked(value != 0); });
}

// Also when a button is moved, which makes it anew.
void ToolBarView::actionEvent(QActionEvent* event) {
  QToolBar::actionEvent(event);
  QAction* action = event->action();
  if (event->type() != QEvent::ActionAdded || action->isSeparator()) return;
  action->setObjectName(action->text());
  QWidget* button = widgetForAction(action);
  button->setObjectName(action->text());
  button->setAccessibleName(action->text());
  button->installEventFilter(this);
}

// All buttons have labels or none has one.
void ToolBarView::ShowCaption(QAction& action, const std::string& caption) {
  action.setIconText(QString::fromStdString(caption));
  const auto style = caption.empty() ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextUnderIcon;
  if (style == toolButtonStyle()) return;
  setToolButtonStyle(style);
  MeasureHeight();
}

void ToolBarView::MeasureHeight() {
  ControlBounds bounds = Toolbar.Bounds;
  bounds.Height = sizeHint().height();
  Toolbar.Bounds = bounds;
}

// A disabled button keeps the event from the tool bar.
bool ToolBarView::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ContextMenu) return QToolBar::eventFilter(watched, event);
  ShowMenu(mapFromGlobal(static_cast<const QContextMenuEvent&>(*event).globalPos()));
  return true;
}

void ToolBarView::ShowMenu(const QPoint& place) {
  if (Toolbar.Buttons("New").Enabled) menu_->popup(mapToGlobal(place));
}

}  // namespace frmMain
