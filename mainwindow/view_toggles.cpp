#include "mainwindow/view_toggles.h"

#include "mainwindow/control_surface.h"

namespace frmMain {

void mnuViewTextEditor_Click() {
  mnuViewTextEditor.Checked = !mnuViewTextEditor.Checked;
  TextEditor().Visible = mnuViewTextEditor.Checked;
}

}  // namespace frmMain
