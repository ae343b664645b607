#pragma once

#include <QToolBar>

namespace frmMain {

// Lets the user choose which buttons a tool bar shows, and in which order. Takes effect at once and
// lasts as long as the tool bar.
void LayOutToolBar(QToolBar& bar);

}  // namespace frmMain
