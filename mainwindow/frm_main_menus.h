#pragma once

#include <QMainWindow>
#include <functional>

#include "platform/qt/views/bindings.h"

class QMenu;

namespace frmMain {

// Fills the menu bar. Every menu and entry bears the name of its control.
void MakeMenus(QMainWindow& window, Bindings& bindings);

// mnuToolBar, the pop-up of the tool bar. `customize` is the command of its last entry.
QMenu* MakeToolBarMenu(QWidget& owner, Bindings& bindings, std::function<void()> customize);

}  // namespace frmMain
