#include "motion/stock.h"

#include "motion/tool.h"
#include "settings/settings.h"
#include "tests/fakes/machine_test.h"

namespace {

using GlobalVariables::Settings;

class StockTest : public MachineTest {
 protected:
  static void LoadDefaultTool() {
    Graphics::LoadTool("/app/tools/tool.bmp", 67, 101);
    Graphics::LastToolX = Graphics::LastToolY = Graphics::kOffSurface;
  }
  static Colour Pixel(int x, int y) { return Graphics::StockDC.Read().GetPixel(x, y); }
  // The colours of a column, one letter for each stretch: w work piece, b back, t tool, e effect.
  static std::string Column(int x) {
    std::string letters;
    for (int y = 0; y < GlobalVariables::SimHeight; ++y) {
      const Colour colour = Pixel(x, y);
      const char letter = colour == Settings.WorkPieceColor ? 'w'
                          : colour == Settings.SimBackColor ? 'b'
                          : colour == Settings.EffectColor  ? 'e'
                                                            : 't';
      if (letters.empty() || letters.back() != letter) letters += letter;
    }
    return letters;
  }
};

TEST_F(StockTest, CentreLineAndBilletRectangle) {
  for (const int height : {400, 401}) {
    GlobalVariables::SimHeight = static_cast<std::int16_t>(height);
    Graphics::CreateSurface();
    EXPECT_EQ(200, Graphics::CentreLine);
  }
  const struct {
    std::int16_t diameter;
    int radius;
  } cases[] = {{5, 2}, {7, 4}, {0, 0}, {200, 100}};
  for (const auto& c : cases) {
    Graphics::ClearSurface();
    Graphics::InitStock(30, c.diameter);
    EXPECT_EQ(31u, Graphics::StockProfile.size());
    EXPECT_EQ(c.radius, RadiusAt(-30));
    int rows = 0;
    for (int y = 0; y < 401; ++y) rows += Pixel(29, y) == Settings.WorkPieceColor;
    EXPECT_EQ(2 * c.radius, rows);
    EXPECT_EQ(Settings.SimBackColor, Pixel(30, 200));
  }
}

TEST_F(StockTest, TheCuttingPointIsTheLowerLeftCornerOfTheSprite) {
  LoadDefaultTool();
  Graphics::InitStock(100, 200);
  Graphics::MoveTool(-20, 60);
  const int column = 80;
  const int row = Graphics::CentreLine - 60;
  EXPECT_EQ(kToolColour, Pixel(column, row - 1));
  EXPECT_EQ(Settings.WorkPieceColor, Pixel(column, row));
  EXPECT_EQ(Settings.WorkPieceColor, Pixel(column - 1, row - 1));
  EXPECT_EQ("bwb", Column(column - 1));
  EXPECT_EQ("twb", Column(column)) << "above the tool, below the mirrored cut";
  EXPECT_EQ(Settings.SimBackColor, Pixel(column, Graphics::CentreLine + 60));
  EXPECT_EQ(60, RadiusAt(-20));
  EXPECT_EQ(100, RadiusAt(-21));
}

TEST_F(StockTest, ProfileFallsOnlyInsideTheBilletAndByTheAbsoluteRadius) {
  LoadDefaultTool();
  Graphics::InitStock(50, 200);
  Graphics::TaperCut = 1;
  for (const int z : {1, -51, 40000, -40000}) Graphics::MoveTool(z, 10);
  Graphics::MoveTool(-50, -70);
  Graphics::MoveTool(-50, 80);
  Graphics::TaperCut = 0;
  Graphics::MoveTool(-10, 100);
  Graphics::MoveTool(-10, 40000);
  EXPECT_EQ(70, RadiusAt(-50));
  EXPECT_EQ(1, Graphics::StockProfile[50].TaperMark);
  for (int z = 0; z > -50; --z) {
    EXPECT_EQ(100, RadiusAt(z));
    EXPECT_EQ(0, Graphics::StockProfile[static_cast<std::size_t>(-z)].TaperMark);
  }
}

TEST_F(StockTest, ShouldersThatFaceRightGetTheEffectColour) {
  Graphics::InitStock(100, 200);
  // A step down at column 60, and a groove at columns 20 to 29.
  Graphics::StockDC.Fill({60, 0, 400, Graphics::CentreLine - 50}, Settings.SimBackColor);
  Graphics::StockDC.Fill({60, Graphics::CentreLine + 50, 400, 300}, Settings.SimBackColor);
  Graphics::StockDC.Fill({20, 0, 30, Graphics::CentreLine - 80}, Settings.SimBackColor);
  int shown = 0;
  frmMain::picSim.Blt = [&](const Raster&, const PixelRect&) { ++shown; };
  Graphics::ApplyEffect();
  EXPECT_EQ(1, shown);
  EXPECT_EQ("beb", Column(59));
  EXPECT_EQ("beb", Column(99)) << "the free end is a shoulder too";
  EXPECT_EQ("beb", Column(19));
  for (const int straight : {0, 18, 25, 29, 40, 58, 61, 98}) {
    EXPECT_EQ("bwb", Column(straight)) << straight;
  }
}

TEST_F(StockTest, AToolThatCannotBeReadIsToldAndDrawsNothing) {
  LoadDefaultTool();
  Fakes::ExpectMessage("no picture /app/tools/gone.bmp", Desktop::kOkOnly);
  Graphics::LoadTool("/app/tools/gone.bmp", 10, 20);
  Graphics::InitStock(100, 200);
  Graphics::MoveTool(-20, 60);
  EXPECT_EQ("bwb", Column(80));
  EXPECT_EQ(60, RadiusAt(-20));
  EXPECT_EQ(20, Graphics::ToolHeight);
}

TEST_F(StockTest, OnlyWhatChangedIsShown) {
  LoadDefaultTool();
  std::vector<PixelRect> shown;
  frmMain::picSim.Blt = [&](const Raster&, const PixelRect& changed) { shown.push_back(changed); };
  Graphics::InitStock(100, 200);
  Graphics::MoveTool(-20, 60);
  Graphics::DrawSurface();
  Graphics::DrawSurface();
  Graphics::MoveTool(-21, 60);
  Graphics::DrawSurface();
  ASSERT_EQ(3u, shown.size());
  EXPECT_EQ((PixelRect{0, 0, 400, 300}), shown[0]);
  EXPECT_TRUE(shown[1].IsEmpty());
  EXPECT_EQ((PixelRect{79, 0, 79 + 68, 300}), shown[2]) << "sprite above, mirror image below";
}

}  // namespace
