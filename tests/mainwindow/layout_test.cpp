#include "tests/fakes/debugger_test.h"

using namespace frmMain;

namespace {

class LayoutTest : public DebuggerTest {};

void ExpectBounds(const ControlBounds& expected, const ControlBounds& actual) {
  EXPECT_DOUBLE_EQ(expected.Left, actual.Left);
  EXPECT_DOUBLE_EQ(expected.Top, actual.Top);
  EXPECT_DOUBLE_EQ(expected.Width, actual.Width);
  EXPECT_DOUBLE_EQ(expected.Height, actual.Height);
}

TEST_F(LayoutTest, EveryCombinationOfViews) {
  struct Case {
    bool toolBar, statusBar, pane;
    double simLeft, top, height;
  };
  const Case cases[] = {
      {true, true, true, 230, 38, 637}, {true, false, true, 230, 38, 662},
      {false, true, true, 230, 0, 675}, {false, false, true, 230, 0, 700},
      {true, true, false, 0, 38, 637},  {true, false, false, 0, 38, 662},
      {false, true, false, 0, 0, 675},  {false, false, false, 0, 0, 700},
  };
  ScaleWidth = 1000;
  ScaleHeight = 700;
  for (const Case& c : cases) {
    SCOPED_TRACE(&c - cases);
    Toolbar.Visible = c.toolBar;
    StatusBar.Visible = c.statusBar;
    for (const bool editor : {true, false}) {
      TextEditor().Visible = c.pane && editor;
      DebugWindow.Visible = c.pane && !editor;
      ResizeControls();
      ExpectBounds({0, c.top, 230, c.height}, TextEditorBounds);
      ExpectBounds(TextEditorBounds, DebugWindow.Bounds);
      ExpectBounds({c.simLeft, c.top, 1000 - c.simLeft, c.height}, picSim.Bounds);
      EXPECT_EQ(1000 - c.simLeft, GlobalVariables::SimWidth);
      EXPECT_EQ(c.height, GlobalVariables::SimHeight);
      EXPECT_EQ(GlobalVariables::SimWidth, Graphics::StockDC.Width());
    }
  }
}

TEST_F(LayoutTest, SizesThatAreNoWholePixelsAndWindowsTooSmall) {
  struct Case {
    int width, height, simWidth, simHeight;
  };
  for (const Case& c :
       {Case{1001, 700, 771, 637}, {50, 63, 38, 0}, {0, 0, 0, 0}, {100'000, 64, 32'767, 1}}) {
    ScaleWidth = c.width;
    ScaleHeight = c.height;
    ResizeControls();
    EXPECT_EQ(c.simWidth, GlobalVariables::SimWidth);
    EXPECT_EQ(c.simHeight, GlobalVariables::SimHeight);
  }
}

TEST_F(LayoutTest, TheWindowIsAlwaysMaximizedAndLaidOutUnlessMinimized) {
  for (const int state : {kNormal, kMinimized, kMaximized}) {
    ScaleWidth = 1000;
    ResizeControls();
    ScaleWidth = 2000;
    WindowState = state;
    Form_Resize();
    EXPECT_EQ(kMaximized, WindowState);
    EXPECT_EQ(state == kMinimized ? 770 : 1540, GlobalVariables::SimWidth) << state;
  }
}

TEST_F(LayoutTest, SliderAndProgressBarLieOverTheirPanels) {
  ScaleWidth = 1000;
  ScaleHeight = 700;
  Form_Resize();
  Form_Paint();
  ExpectBounds({443, 681, 86, 25 / 1.5}, ProgressBar.Bounds);
  ExpectBounds({539, 681, 86, 25 / 1.5}, Slider.Bounds);
  mnuViewStatusBar_Click();
  Form_Paint();
  EXPECT_FALSE(Slider.Visible);
  EXPECT_FALSE(ProgressBar.Visible);
  mnuViewStatusBar_Click();
  // Placed again only after a resize.
  ScaleHeight = 800;
  ResizeControls();
  Form_Paint();
  EXPECT_TRUE(Slider.Visible);
  EXPECT_EQ(681, Slider.Bounds.Get().Top);
  Form_Resize();
  Form_Paint();
  EXPECT_EQ(781, Slider.Bounds.Get().Top);
}

TEST_F(LayoutTest, F2ShowsTheSurface) {
  int copies = 0;
  picSim.Blt = [&](const Raster&, const PixelRect&) { ++copies; };
  Form_KeyUp(112, 0);
  EXPECT_EQ(0, copies);
  Form_KeyUp(113, 0);
  EXPECT_EQ(1, copies);
}

TEST_F(LayoutTest, AResizeInARunGoesOnCuttingTheProfileOnAnEmptySurface) {
  Show({"[BILLET X20 Z20", "G00 X24 Z1", "G01 X10", "G01 Z-10"});
  Fakes::AtYield(5, [] {
    ScaleWidth = 800;
    Form_Resize();
  });
  mnuRunStart_Click();
  EXPECT_EQ(50, RadiusAt(-50));
  EXPECT_EQ(616, Graphics::StockDC.Width());
  EXPECT_EQ(GlobalVariables::Settings.SimBackColor,
            Graphics::StockDC.Read().GetPixel(2, Graphics::CentreLine));
}

}  // namespace
