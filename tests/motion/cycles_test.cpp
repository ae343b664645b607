#include "motion/cycles.h"

#include "motion/player.h"
#include "motion/tool.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

class CyclesTest : public MachineTest {
 protected:
  // Fills the registers as a block would and runs the executor; returns the corners of the path,
  // told by watching where each move ends.
  void Run(void (*executor)(), int targetX, int targetZ) {
    CurrentX = 150;
    CurrentZ = 20;
    TargetX = static_cast<std::int16_t>(targetX);
    TargetZ = static_cast<std::int16_t>(targetZ);
    executor();
  }
};

TEST_F(CyclesTest, TurningCycleCutsALengthAndEndsWhereItBegan) {
  Graphics::InitStock(200, 260);
  Run(GCodes::ExecuteG90, 100, -60);
  EXPECT_EQ(150, CurrentX);
  EXPECT_EQ(20, CurrentZ);
  EXPECT_EQ(100, TargetX);
  EXPECT_EQ(-60, TargetZ);
  for (const int z : {0, -30, -60}) EXPECT_EQ(100, RadiusAt(z)) << z;
  EXPECT_EQ(130, RadiusAt(-61));
  EXPECT_EQ(0, Graphics::TaperCut);
}

TEST_F(CyclesTest, AGivenRadiusMakesOneTaperAndIsUsedUp) {
  Graphics::InitStock(200, 260);
  WordR = -40;
  RadiusGiven = kTrue;
  Run(GCodes::ExecuteG90, 100, -60);
  EXPECT_EQ(kFalse, RadiusGiven);
  EXPECT_EQ(60 + 10, RadiusAt(0)) << "from X 60 at Z 20 to X 100 at Z -60, half a unit a step";
  EXPECT_EQ(85, RadiusAt(-30));
  EXPECT_EQ(1, Graphics::StockProfile[30].TaperMark);
  Run(GCodes::ExecuteG90, 80, -60);
  EXPECT_EQ(80, RadiusAt(-30)) << "the next cycle is straight";
  EXPECT_EQ(70, RadiusAt(0));
}

TEST_F(CyclesTest, FacingCycleCutsADiameterAndEndsWhereItBegan) {
  Graphics::InitStock(200, 260);
  Run(GCodes::ExecuteG94, 40, -30);
  EXPECT_EQ(150, CurrentX);
  EXPECT_EQ(20, CurrentZ);
  EXPECT_EQ(40, TargetX);
  for (const int z : {0, -15, -30}) EXPECT_EQ(40, RadiusAt(z)) << z;
  EXPECT_EQ(130, RadiusAt(-31));
  WordR = -20;
  RadiusGiven = kTrue;
  Run(GCodes::ExecuteG94, 40, -50);
  EXPECT_EQ(1, Graphics::StockProfile[60].TaperMark) << "the cone is cut by the move in X";
  EXPECT_LT(40, RadiusAt(-60));
}

TEST_F(CyclesTest, ModalRowsRepeatTheCycleAtANewDepth) {
  Play({"[BILLET X26 Z20", "G00 X30 Z2", "G90 X24 Z-10", "X22", "X20 R2", "N10", "Z-5 X18"});
  EXPECT_EQ(100, RadiusAt(-80))
      << "a row without a word of its own repeats the last depth without its taper";
  EXPECT_EQ(90, RadiusAt(-30));
  EXPECT_EQ(130, RadiusAt(-101));
}

TEST_F(CyclesTest, StopWithinACycleEndsAllItsMoves) {
  Fakes::AtYield(12, frmMain::mnuRunStop_Click);
  Play({"[BILLET X26 Z20", "G00 X30 Z2", "G90 X24 Z-10"});
  EXPECT_EQ(130, RadiusAt(-10));
  EXPECT_EQ(0, CurrentX);
}

TEST_F(CyclesTest, HomeLiesInTheUpperRightCornerByWayOfTheTarget) {
  GlobalVariables::SimHeight = 401;
  Graphics::CreateSurface();
  Graphics::ToolHeight = 101;
  Graphics::ToolWidth = 67;
  Graphics::InitStock(200, 260);
  Run(GCodes::ExecuteG28, 100, -40);
  EXPECT_EQ(94, TargetX) << "94.5, to the even neighbour";
  EXPECT_EQ(400 - 200 - 67 - 10, TargetZ);
  EXPECT_EQ(94, CurrentX);
  EXPECT_EQ(121, RadiusAt(-15)) << "the way to the target is a feed move";
  // Without an axis word there is no way to go but home.
  GCodes::PointsPlayed = 0;
  CurrentX = TargetX = 150;
  CurrentZ = TargetZ = 20;
  GCodes::ExecuteG28();
  EXPECT_EQ(18, GCodes::PointsPlayed);
}

TEST_F(CyclesTest, TargetsOutOfRangeAreClippedNotWrapped) {
  GlobalVariables::RunToBreakpoint = kTrue;
  WordR = 32767;
  RadiusGiven = kTrue;
  Run(GCodes::ExecuteG90, 32000, -60);
  EXPECT_EQ(32000, TargetX);
  GlobalVariables::BilletZ = 32767;
  Graphics::ToolWidth = 32767;
  Run(GCodes::ExecuteG28, 0, 0);
  EXPECT_EQ(-32768, CurrentZ);
}

}  // namespace
