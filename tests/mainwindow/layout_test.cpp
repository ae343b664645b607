#include "mainwindow/layout.h"

#include <sstream>

#include "editor/documents.h"
#include "platform/host/settings_store.h"
#include "settings/options.h"
#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

class LayoutTest : public DebuggerTest {
 protected:
  static std::string Place(const ControlBounds& bounds) {
    std::ostringstream text;
    text.precision(4);
    text << bounds.Left << ' ' << bounds.Top << ' ' << bounds.Width << ' ' << bounds.Height;
    return text.str();
  }
  // Bars and panes in view, by their first letters: tool bar, status bar, editor, grid.
  static std::string InView() {
    const std::pair<bool, bool> parts[] = {{Toolbar.Visible, mnuViewToolBar.Checked},
                                           {StatusBar.Visible, mnuViewStatusBar.Checked},
                                           {TextEditor().Visible, mnuViewTextEditor.Checked},
                                           {DebugWindow.Visible, mnuViewDebugWindow.Checked}};
    std::string shown;
    for (std::size_t i = 0; i < std::size(parts); ++i) {
      EXPECT_EQ(parts[i].first, parts[i].second) << i;
      shown += parts[i].first ? "tseg"[i] : '-';
    }
    return shown;
  }
  static void StartAgain() {
    ResetToProgramStart();
    Form_Load();
  }
};

TEST_F(LayoutTest, EveryControlHasItsPlace) {
  ScaleWidth = 1000;
  ScaleHeight = 700;
  Form_Resize();
  Form_Paint();
  EXPECT_EQ("0 0 1000 38", Place(Toolbar.Bounds));
  EXPECT_EQ("0 675 1000 25", Place(StatusBar.Bounds));
  EXPECT_EQ("0 38 230 637", Place(TextEditorBounds));
  EXPECT_EQ("0 38 230 637", Place(DebugWindow.Bounds));
  EXPECT_EQ("230 38 770 637", Place(picSim.Bounds));
  EXPECT_EQ("443 681 86 16.67", Place(ProgressBar.Bounds));
  EXPECT_EQ("539 681 86 16.67", Place(Slider.Bounds));
  EXPECT_EQ(770, Graphics::StockDC.Width());
  ScaleHeight = 500;
  Form_Resize();
  Form_Paint();
  EXPECT_EQ("539 481 86 16.67", Place(Slider.Bounds));
  mnuViewStatusBar_Click();
  Form_Paint();
  EXPECT_FALSE(Slider.Visible || ProgressBar.Visible);
  EXPECT_EQ(462, TextEditorBounds.Get().Height);
  mnuViewToolBar_Click();
  mnuViewTextEditor_Click();
  EXPECT_EQ("0 0 1000 500", Place(picSim.Bounds));
  ScaleHeight = 20;
  mnuViewStatusBar_Click();
  EXPECT_EQ(0, GlobalVariables::SimHeight);
  Form_Paint();
  EXPECT_TRUE(Slider.Visible && ProgressBar.Visible);
  EXPECT_EQ("539 481 86 16.67", Place(Slider.Bounds)) << "as it was until the next resize";
  WindowState = kMinimized;
  ScaleWidth = 10;
  Form_Resize();
  EXPECT_EQ(1000, GlobalVariables::SimWidth);
  EXPECT_EQ(kMaximized, WindowState);
}

TEST_F(LayoutTest, TheEditBoxLiesOverItsRow) {
  Show({"G00", "G01", "G28"});
  OpenEdit(2, "G28 ");
  EXPECT_EQ(3, txtDebug.SelStart) << "behind the text of the row";
  // Two rows of 285 twips below the tool bar, right of 350 and 300 twips.
  EXPECT_EQ("43.33 76 72.04 19", Place(txtDebug.Bounds));
  ScaleWidth = 1000;
  Form_Resize();
  EXPECT_EQ("43.33 76 182.7 19", Place(txtDebug.Bounds));
  EXPECT_EQ(GlobalVariables::Settings.DebugFontName, txtDebug.FontName.Get());
  EXPECT_EQ(10, txtDebug.FontSize);
  DebugWindow.TopRow = 1;
  txtDebug_Follow();
  EXPECT_EQ("43.33 57 182.7 19", Place(txtDebug.Bounds));
}

TEST_F(LayoutTest, F2ShowsTheSurfaceAgain) {
  int shown = 0;
  picSim.Blt = [&](const Raster&, const PixelRect&) { ++shown; };
  for (std::int16_t key = 112; key <= 114; ++key) Form_KeyUp(key, 0);
  EXPECT_EQ(1, shown);
}

TEST_F(LayoutTest, TheViewLastsUntilTheNextStart) {
  EXPECT_EQ("tse-", InView());
  Write({"[BILLET X20 Z40"});
  TextChanged = kTrue;
  mnuViewDebugWindow_Click();
  EXPECT_EQ("[BILLET X20 Z40", RowText(0));
  mnuViewToolBar_Click();
  EXPECT_EQ("-s-g", InView());
  StartAgain();
  EXPECT_EQ("-s-g", InView());
  mnuViewTextEditor_Click();
  StartAgain();
  EXPECT_EQ("-se-", InView());
  mnuViewTextEditor_Click();
  StartAgain();
  EXPECT_EQ("-s--", InView());
  mnuViewToolBar_Click();
  mnuViewStatusBar_Click();
  StartAgain();
  EXPECT_EQ("t---", InView());
  EXPECT_EQ("New", Toolbar.Buttons("New").Caption.Get());
  mnuToolBarShowLabels_Click();
  StartAgain();
  EXPECT_EQ("", Toolbar.Buttons("New").Caption.Get());
  EXPECT_FALSE(mnuToolBarShowLabels.Checked);
}

TEST_F(LayoutTest, StoredMarksAreWordsOrNumbers) {
  for (const auto& [text, mark] : {std::pair{"1", 's'},
                                   {"-1", 's'},
                                   {"0", '-'},
                                   {"0.0", '-'},
                                   {"False", '-'},
                                   {"True", 's'},
                                   {"false", 's'},
                                   {"", 's'}}) {
    SaveSetting("CNC", "ViewOptions", "StatusBar", text);
    SaveSetting("CNC", "ViewOptions", "DebugWindow", text);
    StartAgain();
    EXPECT_EQ(std::string("t") + mark + "e-", InView()) << text << ": one pane at most";
  }
}

TEST_F(LayoutTest, TheEditorShowsWhatTheRowsHold) {
  Show({"[note", "G01 X20"});
  mnuViewTextEditor_Click();
  RichText& editor = TextEditor();
  editor.SetSelStart(1);
  EXPECT_EQ(GlobalVariables::Settings.EditorCommentColor, editor.SelColor());
  EXPECT_FALSE(IsOpen("Save"));
  editor.SetText("G00");
  mnuViewTextEditor_Click();
  mnuViewTextEditor_Click();
  EXPECT_TRUE(IsOpen("Save"));
}

TEST_F(LayoutTest, OptionsReachRowsTextAndPicture) {
  Show({"G00", "G01"});
  ClickMark(1);
  auto& settings = GlobalVariables::Settings;
  settings.DebugFontName = "Mono";
  settings.DebugFontSize = 14;
  settings.DebugRowHeight = 400;
  settings.DebugC0Width = 500;
  settings.DebugC1Width = 310;
  settings.DebugC2Width = 3000;
  settings.DebugGrid = 0;
  settings.NormalBackColor = 7;
  settings.BreakPointColor = 8;
  settings.SimBackColor = 9;
  int cleared = 0;
  picSim.Cls = [&] { ++cleared; };
  ApplyOptions();
  FillDebugWindow();
  for (const int lineNumbers : {1, 0}) {
    ClickMark(1);
    settings.DebugLineNumbers = static_cast<std::int16_t>(lineNumbers);
    ApplyOptions();
    EXPECT_EQ(lineNumbers * 500, DebugWindow.ColWidth(kLineNumberColumn));
    EXPECT_EQ(310, DebugWindow.ColWidth(kMarkColumn));
    EXPECT_EQ(3000, DebugWindow.ColWidth(kTextColumn));
    EXPECT_EQ(0, DebugWindow.ColWidth(kBreakColumn));
    EXPECT_EQ("Mono", DebugWindow.FontName());
    EXPECT_EQ(0, DebugWindow.GridLines());
    EXPECT_EQ("1 [ ]  G00", ShownRow(0));
    EXPECT_EQ(lineNumbers == 1 ? "2 [*]  G01" : "2 [ ]  G01", ShownRow(1));
    for (const int row : {0, 1}) {
      const CellFormat& text = DebugWindow.Format(row, kTextColumn);
      EXPECT_EQ("Mono", DebugWindow.FontNameOf(text));
      EXPECT_EQ(14, text.FontSize);
      EXPECT_EQ(400, DebugWindow.RowHeight(row));
      EXPECT_EQ(Rgb(240, 240, 240), DebugWindow.Format(row, kMarkColumn).BackColor);
    }
  }
  EXPECT_EQ(9U, Graphics::StockDC.Read().GetPixel(0, 0));
  EXPECT_EQ(3, cleared);
  EXPECT_FALSE(IsOpen("Save"));
  EnableCommands("Save", true);
  ApplyOptions();
  EXPECT_TRUE(IsOpen("Save"));
}

}  // namespace
