// What no report shows; the programs in tests/data show profiles and pictures.

#include "motion/stock.h"

#include "motion/cycles.h"
#include "motion/tool.h"
#include "tests/fakes/machine_test.h"

namespace {

using StockTest = MachineTest;

TEST_F(StockTest, InAnOddHeightTheAxisAndHomeGoToWholePixels) {
  ShowSimulationAlone(400, 401);
  EXPECT_EQ(200, Graphics::CentreLine);
  Graphics::ToolHeight = 101;
  GCodes::ExecuteG28();
  EXPECT_EQ(94, ModCNC::CurrentX) << "94.5, to the even neighbour";
}

TEST_F(StockTest, OnlyWhatChangedIsShown) {
  Graphics::LoadTool("/app/tools/tool.bmp", 67, 101);
  std::vector<PixelRect> shown;
  frmMain::picSim.Blt = [&](const Raster&, const PixelRect& changed) { shown.push_back(changed); };
  Graphics::InitStock(100, 200);
  Graphics::MoveTool(-20, 60);
  Graphics::DrawSurface();
  Graphics::DrawSurface();
  Graphics::MoveTool(-21, 60);
  Graphics::DrawSurface();
  // Sprite above, mirror image below.
  EXPECT_EQ((std::vector<PixelRect>{{0, 0, 400, 300}, {}, {79, 0, 79 + 68, 300}}), shown);
}

TEST_F(StockTest, ThePartIsMeasuredWhileNoRunIsActive) {
  EXPECT_EQ("", Graphics::Measure(10, 10)) << "there is no part";
  Graphics::InitStock(100, 200);
  Graphics::MoveTool(-20, 60);
  constexpr std::tuple<int, int, const char*> kPlaces[] = {
      {80, 87, "X 12.6  Z -2.0   Ø 12.0"}, {79, 251, "X -20.2  Z -2.1   Ø 20.0"},
      {0, 150, "X 0.0  Z -10.0   Ø 20.0"}, {100, 150, "X 0.0  Z 0.0   Ø 20.0"},
      {101, 0, "X 30.0  Z 0.1"},
  };
  for (const auto& [column, row, text] : kPlaces) EXPECT_EQ(text, Graphics::Measure(column, row));
  frmMain::EnableCommands("Stop", true);
  EXPECT_EQ("", Graphics::Measure(80, 87));
}

}  // namespace
