#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

class ViewTogglesTest : public DebuggerTest {};

TEST_F(ViewTogglesTest, EachToggleStoresItsMarksAndLaysTheWindowOut) {
  struct Case {
    void (*toggle)();
    const char* stored;
    bool editor, grid;
    double left, top, height;
  };
  ScaleWidth = 1000;
  ScaleHeight = 700;
  for (const Case& c : {
           Case{mnuViewDebugWindow_Click, "TextEditor=False", false, true, 230, 38, 637},
           {mnuViewTextEditor_Click, "DebugWindow=False", true, false, 230, 38, 637},
           {mnuViewToolBar_Click, "Toolbar=False", true, false, 230, 0, 675},
           {mnuViewStatusBar_Click, "StatusBar=False", true, false, 230, 0, 700},
           {mnuViewTextEditor_Click, "DebugWindow=False", false, false, 0, 0, 700},
           {mnuViewToolBar_Click, "Toolbar=True", false, false, 0, 38, 662},
       }) {
    c.toggle();
    EXPECT_EQ(std::string("ViewOptions/") + c.stored, Fakes::SavedSettings().back());
    EXPECT_EQ(c.editor, TextEditor().Visible);
    EXPECT_EQ(c.grid, DebugWindow.Visible);
    EXPECT_EQ((ControlBounds{c.left, c.top, 1000 - c.left, c.height}), picSim.Bounds.Get());
  }
}

}  // namespace
