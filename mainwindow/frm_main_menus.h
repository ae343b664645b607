#pragma once

#include <QMainWindow>
#include <functional>
#include <string_view>

#include "mainwindow/command.h"
#include "platform/qt/views/bindings.h"

class QMenu;

namespace frmMain {

// What the menus run for a command, whose key must be one of kCommands.
Command MenuCommand(std::string_view key);

// Fills the menu bar. Every menu and entry bears the name of its control.
void MakeMenus(QMainWindow& window, Bindings& bindings);

// mnuToolBar, the pop-up of the tool bar. `customize` is the command of its last entry.
QMenu* MakeToolBarMenu(QWidget& owner, Bindings& bindings, std::function<void()> customize);

}  // namespace frmMain
