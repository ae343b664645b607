#include "mainwindow/layout.h"

#include <algorithm>

#include "debugger/row_edit.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "motion/stock.h"
#include "platform/numbers.h"
#include "platform/virtual_keys.h"

namespace frmMain {

std::int16_t OverlaysPlaced;

namespace {

// The left pane's share of the window's width.
constexpr double kPaneShare = 0.23;

// How an overlay lies in its panel.
constexpr double kOverlayLeft = 5;
constexpr double kOverlayTop = 6;
constexpr double kOverlayNarrower = 10;
constexpr double kOverlayLower = 1.5;

double HeightIfVisible(const Control& bar) {
  return bar.Visible ? bar.Bounds.Get().Height : 0;
}

// Tool bar and status bar are docked; their heights are their own.
void DockBars() {
  const double width = ScaleWidth;
  Toolbar.Bounds = {.Width = width, .Height = Toolbar.Bounds.Get().Height};
  const double height = StatusBar.Bounds.Get().Height;
  StatusBar.Bounds = {.Top = ScaleHeight - height, .Width = width, .Height = height};
}

std::int16_t WholePixels(double size) {
  return ClipToInt16(RoundToPixel(size));
}

void PlaceOverlay(Control& overlay, const StatusPanel& panel) {
  const ControlBounds& bar = StatusBar.Bounds;
  overlay.Bounds = {.Left = panel.Left + kOverlayLeft,
                    .Top = bar.Top + kOverlayTop,
                    .Width = panel.Width - kOverlayNarrower,
                    .Height = bar.Height / kOverlayLower};
}

}  // namespace

void ResizeControls() {
  DockBars();
  const double top = HeightIfVisible(Toolbar);
  const double height = std::max(ScaleHeight - top - HeightIfVisible(StatusBar), 0.0);
  const double paneWidth = ScaleWidth * kPaneShare;
  TextEditorBounds = {.Top = top, .Width = paneWidth, .Height = height};
  DebugWindow.Bounds = TextEditorBounds;
  const bool paneIsVisible = TextEditor().Visible || DebugWindow.Visible;
  const double simLeft = paneIsVisible ? paneWidth : 0;
  picSim.Bounds = {.Left = simLeft, .Top = top, .Width = ScaleWidth - simLeft, .Height = height};
  GlobalVariables::SimWidth = WholePixels(picSim.Bounds.Get().Width);
  GlobalVariables::SimHeight = WholePixels(height);
  Graphics::CreateSurface();
  txtDebug_Follow();
}

void Form_Resize() {
  if (WindowState != kMinimized) ResizeControls();
  // Maximizing may come back here before it returns.
  WindowState = kMaximized;
  OverlaysPlaced = kFalse;
}

void Form_Paint() {
  Slider.Visible = StatusBar.Visible;
  ProgressBar.Visible = StatusBar.Visible;
  if (OverlaysPlaced == kFalse) {
    PlaceOverlay(ProgressBar, StatusBar.Panels("ProgressBar"));
    PlaceOverlay(Slider, StatusBar.Panels("Slider"));
  }
  OverlaysPlaced = kTrue;
}

void Form_KeyUp(std::int16_t keyCode, std::int16_t /*shift*/) {
  if (keyCode == VirtualKeys::kF2) Graphics::DrawSurface();
}

void ResetLayout() {
  OverlaysPlaced = kFalse;
}

}  // namespace frmMain
