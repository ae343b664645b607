#include <gmock/gmock.h>

#include "platform/settings_store.h"
#include "tests/fakes/debugger_test.h"

using namespace frmMain;
using testing::ElementsAre;

namespace {

class ViewTogglesTest : public DebuggerTest {
 protected:
  // What the last command stored.
  static std::vector<std::string> StoredBy(void (*command)()) {
    const std::size_t before = Fakes::SavedSettings().size();
    command();
    return {Fakes::SavedSettings().begin() + static_cast<std::ptrdiff_t>(before),
            Fakes::SavedSettings().end()};
  }

  // The pane in view, after a look at whether marks and controls agree.
  static std::string Pane() {
    EXPECT_EQ(mnuViewTextEditor.Checked.Get(), TextEditor().Visible.Get());
    EXPECT_EQ(mnuViewDebugWindow.Checked.Get(), DebugWindow.Visible.Get());
    EXPECT_EQ(mnuViewToolBar.Checked.Get(), Toolbar.Visible.Get());
    EXPECT_EQ(mnuViewStatusBar.Checked.Get(), StatusBar.Visible.Get());
    const bool editor = TextEditor().Visible;
    const bool grid = DebugWindow.Visible;
    if (editor && grid) return "both";
    return editor ? "editor" : grid ? "grid" : "neither";
  }

  static void Store(std::string_view section, std::string_view key, std::string_view text) {
    SaveSetting("CNC", section, key, text);
  }
};

TEST_F(ViewTogglesTest, EachToggleGoesToTheNextPaneAndStoresBothMarks) {
  const std::string editorOn = "ViewOptions/TextEditor=True";
  const std::string editorOff = "ViewOptions/TextEditor=False";
  const std::string gridOn = "ViewOptions/DebugWindow=True";
  const std::string gridOff = "ViewOptions/DebugWindow=False";
  EXPECT_EQ("editor", Pane());
  EXPECT_THAT(StoredBy(mnuViewDebugWindow_Click), ElementsAre(gridOn, editorOff));
  EXPECT_EQ("grid", Pane());
  EXPECT_THAT(StoredBy(mnuViewTextEditor_Click), ElementsAre(editorOn, gridOff));
  EXPECT_EQ("editor", Pane());
  EXPECT_THAT(StoredBy(mnuViewTextEditor_Click), ElementsAre(editorOff, gridOff));
  EXPECT_EQ("neither", Pane());
  EXPECT_EQ(519, GlobalVariables::SimWidth);
  EXPECT_THAT(StoredBy(mnuViewDebugWindow_Click), ElementsAre(gridOn, editorOff));
  EXPECT_THAT(StoredBy(mnuViewDebugWindow_Click), ElementsAre(gridOff, editorOff));
  EXPECT_EQ("neither", Pane());
}

TEST_F(ViewTogglesTest, TheGridIsFilledOnTheWayInAndOutWhileTheTextHasChanged) {
  Write({"G00 X1", "G00 X2"});
  mnuViewDebugWindow_Click();
  EXPECT_EQ(2, DebugWindow.Rows());
  ClickMark(0);
  mnuViewDebugWindow_Click();
  EXPECT_EQ("  1 [ ]  G00 X1", ShownRow(0)) << "filled again";
  TextChanged = kFalse;
  ClickMark(0);
  mnuViewDebugWindow_Click();
  EXPECT_EQ("  1 [*]  G00 X1", ShownRow(0));
}

TEST_F(ViewTogglesTest, BarsAndLabels) {
  EXPECT_THAT(StoredBy(mnuViewToolBar_Click), ElementsAre("ViewOptions/Toolbar=False"));
  EXPECT_EQ(338, GlobalVariables::SimHeight);
  EXPECT_THAT(StoredBy(mnuViewStatusBar_Click), ElementsAre("ViewOptions/StatusBar=False"));
  EXPECT_EQ(363, GlobalVariables::SimHeight);
  EXPECT_THAT(StoredBy(mnuViewToolBar_Click), ElementsAre("ViewOptions/Toolbar=True"));
  EXPECT_EQ("editor", Pane());
  // The tool bar takes its new height inside the first yield.
  Fakes::AtYield(1, [] { Toolbar.Bounds = ControlBounds{.Height = 22}; });
  EXPECT_THAT(StoredBy(mnuToolBarShowLabels_Click), ElementsAre("Toolbar/ShowLabels=False"));
  for (const ToolButton& button : Toolbar) EXPECT_EQ("", button.Caption.Get());
  EXPECT_EQ(22, picSim.Bounds.Get().Top);
  EXPECT_THAT(StoredBy(mnuToolBarShowLabels_Click), ElementsAre("Toolbar/ShowLabels=True"));
  for (const ToolButton& button : Toolbar) EXPECT_EQ(button.Key, button.Caption.Get());
}

TEST_F(ViewTogglesTest, StartUpBringsTheStoredViewsBack) {
  struct Case {
    const char *toolBar, *statusBar, *editor, *grid, *labels, *pane, *stored;
    bool showsToolBar, showsStatusBar;
  };
  const Case cases[] = {
      {"", "", "", "", "", "editor", "True", true, true},
      {"True", "False", "False", "True", "True", "grid", "True", true, false},
      {"False", "True", "False", "False", "False", "neither", "False", false, true},
      {"0", "yes", "", "1", "?", "editor", "True", false, true},
      // The program ended between the two writes of a toggle.
      {"", "", "True", "True", "", "editor", "True", true, true},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    Fakes::Reset();
    ResetToProgramStart();
    Store("ViewOptions", "Toolbar", c.toolBar);
    Store("ViewOptions", "StatusBar", c.statusBar);
    Store("ViewOptions", "TextEditor", c.editor);
    Store("ViewOptions", "DebugWindow", c.grid);
    Store("Toolbar", "ShowLabels", c.labels);
    Form_Load();
    EXPECT_EQ(c.pane, Pane());
    EXPECT_EQ(c.showsToolBar, Toolbar.Visible);
    EXPECT_EQ(c.showsStatusBar, StatusBar.Visible);
    EXPECT_EQ(std::string("Toolbar/ShowLabels=") + c.stored, Fakes::SavedSettings().back());
    EXPECT_EQ(std::string("True") == c.stored, mnuToolBarShowLabels.Checked);
    EXPECT_EQ("New Open Options File View Tools Help ", OpenCommands());
    EXPECT_EQ("Untitled", StatusBar.Panels("FileName").Text.Get());
    EXPECT_EQ(3500, DebugWindow.ColWidth(kTextColumn));
    EXPECT_EQ(GlobalVariables::Settings.SimBackColor, picSim.BackColor);
  }
}

}  // namespace
