#include "motion/moves.h"

#include <algorithm>
#include <cmath>

#include "motion/cycles.h"
#include "motion/player.h"
#include "motion/tool.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

class MovesTest : public MachineTest {
 protected:
  void SetUp() override {
    MachineTest::SetUp();
    Graphics::InitStock(200, 260);
    GlobalVariables::RunToBreakpoint = kTrue;  // every point is played
  }
  static void Move(void (*executor)(), int fromX, int fromZ, int toX, int toZ, int radius = 0) {
    CurrentX = static_cast<std::int16_t>(fromX);
    CurrentZ = static_cast<std::int16_t>(fromZ);
    TargetX = static_cast<std::int16_t>(toX);
    TargetZ = static_cast<std::int16_t>(toZ);
    WordR = static_cast<std::int16_t>(radius);
    RadiusGiven = radius != 0 ? kTrue : kFalse;
    GCodes::PathPoints.clear();
    executor();
    EXPECT_EQ(kFalse, RadiusGiven);
  }
  static const GCodes::PathPoint& Point(std::size_t i) { return GCodes::PathPoints.at(i); }
  static std::size_t Points() { return GCodes::PathPoints.size(); }
  static int MarkAt(int z) {
    return Graphics::StockProfile.at(static_cast<std::size_t>(-z)).TaperMark;
  }
};

TEST_F(MovesTest, RapidGoesDiagonallyThenStraightAndFeedInOneLine) {
  Move(GCodes::ExecuteG00, 100, 0, 70, -100);
  ASSERT_EQ(101u, Points());
  EXPECT_EQ(70, Point(30).X);
  EXPECT_EQ(71, Point(29).X);
  EXPECT_EQ(-100, Point(100).Z);
  Move(GCodes::ExecuteG01, 100, 0, 70, -100);
  double x = 100;
  for (int i = 1; i <= 100; ++i) x += -0.3;
  EXPECT_EQ(x, Point(100).X) << "by repeated addition, which misses the target a little";
  EXPECT_EQ(70, CurrentX);
  Move(GCodes::ExecuteG01, 0, 0, 4, -8);
  const int radii[] = {0, 0, 1, 2, 2, 2, 3, 4, 4};
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(radii[i], RadiusAt(-i)) << "halves, to the even neighbour";
  Move(GCodes::ExecuteG00, 32767, -32768, -32768, 32767);
  EXPECT_EQ(65536u, Points());
  EXPECT_EQ(-32768, GCodes::PathPoints.back().X);
}

TEST_F(MovesTest, TaperMarkFollowsTheLastFeedMoveWithADistance) {
  Move(GCodes::ExecuteG01, 100, 0, 101, -20);
  EXPECT_EQ(1, MarkAt(-10));
  Move(GCodes::ExecuteG01, 100, 0, 100, 0);
  Move(GCodes::ExecuteG02, 100, -30, 90, -48, 50);
  EXPECT_EQ(1, MarkAt(-36)) << "neither a move without a distance nor an arc changes it";
  Move(GCodes::ExecuteG01, 80, 0, 80, -60);
  EXPECT_EQ(1, MarkAt(-10)) << "a mark stays when the column is cut deeper";
  EXPECT_EQ(0, MarkAt(-55));
}

TEST_F(MovesTest, DirectionAndSignOfRSelectTheArc) {
  const struct {
    void (*executor)();
    int radius, toX, toZ;
    double centreZ, centreX;
    int points;
  } cases[] = {{GCodes::ExecuteG02, 50, 150, -50, 0, 150, 787},
               {GCodes::ExecuteG03, 50, 150, -50, -50, 100, 787},
               {GCodes::ExecuteG02, -50, 150, -50, -50, 100, 2358},
               {GCodes::ExecuteG03, -50, 150, -50, 0, 150, 2358},
               {GCodes::ExecuteG02, 50, 100, -100, -50, 100, 1570},  // same X
               {GCodes::ExecuteG02, 50, 180, 0, 30, 140, 928},       // same Z
               {GCodes::ExecuteG03, 50, 180, 0, -30, 140, 928},
               {GCodes::ExecuteG02, 50, 20, 0, -30, 60, 928},
               {GCodes::ExecuteG02, -50, 180, 0, -30, 140, 2214}};
  for (const auto& c : cases) {
    SCOPED_TRACE(&c - cases);
    Move(c.executor, 100, 0, c.toX, c.toZ, c.radius);
    EXPECT_NEAR(c.points, static_cast<double>(Points()), 5);
    for (std::size_t i = 1; i < Points(); ++i) {
      ASSERT_NEAR(50, std::hypot(Point(i).Z - c.centreZ, Point(i).X - c.centreX), 1.1) << i;
    }
    EXPECT_LT(std::hypot(GCodes::PathPoints.back().Z - c.toZ, GCodes::PathPoints.back().X - c.toX),
              1.2);
    EXPECT_EQ(c.toX, CurrentX);
  }
  // Without R the radius is the length of I and K.
  WordI = -30;
  WordK = 40;
  Move(GCodes::ExecuteG02, 100, 0, 150, -50);
  EXPECT_NEAR(787, static_cast<double>(Points()), 5);
}

TEST_F(MovesTest, ArcsThatCannotBeDrawn) {
  for (const int radius : {40, 0}) {
    WordI = WordK = 0;
    Fakes::ExpectMessage("Value of Radius is too small to draw", Desktop::kInformation, "Error!");
    Move(GCodes::ExecuteG02, 100, 0, 100, -100, radius);
    EXPECT_EQ(0u, Points());
    EXPECT_EQ(0, CurrentZ);
  }
  Move(GCodes::ExecuteG03, 100, 0, 100, 0, 50);
  EXPECT_EQ(0u, Points()) << "no distance";
  Move(GCodes::ExecuteG03, 32000, 0, 32000, -100, -32767);
  EXPECT_EQ(-100, CurrentZ) << "a bulge beyond 16 bits";
}

TEST_F(MovesTest, CyclesEndWhereTheyBeganAndUseUpTheirTaper) {
  Move(GCodes::ExecuteG90, 150, 20, 100, -60);
  EXPECT_EQ(150, CurrentX);
  EXPECT_EQ(20, CurrentZ);
  EXPECT_EQ(100, TargetX);
  EXPECT_EQ(-60, TargetZ);
  EXPECT_EQ(100, RadiusAt(-60));
  EXPECT_EQ(130, RadiusAt(-61));
  EXPECT_EQ(0, MarkAt(-30));
  Move(GCodes::ExecuteG90, 150, 20, 100, -60, -40);
  EXPECT_EQ(70, RadiusAt(0)) << "from X 60 at Z 20 to X 100 at Z -60, half a unit a step";
  EXPECT_EQ(1, MarkAt(-30));
  Move(GCodes::ExecuteG94, 150, 20, 40, -80);
  EXPECT_EQ(150, CurrentX);
  for (const int z : {0, -40, -80}) EXPECT_EQ(40, RadiusAt(z)) << z;
  EXPECT_EQ(130, RadiusAt(-81));
  Move(GCodes::ExecuteG94, 150, 20, 40, -100, -20);
  EXPECT_EQ(1, MarkAt(-110)) << "the cone is cut by the move in X";
  Move(GCodes::ExecuteG90, 150, 20, 32000, -60, 32767);
  EXPECT_EQ(32000, TargetX) << "a sum out of range is clipped, not wrapped";
}

TEST_F(MovesTest, HomeLiesInTheUpperRightCornerByWayOfTheTarget) {
  ShowSimulationAlone(400, 401);
  Graphics::ToolHeight = 101;
  Graphics::ToolWidth = 67;
  Move(GCodes::ExecuteG28, 150, 20, 100, -40);
  EXPECT_EQ(94, CurrentX) << "94.5, to the even neighbour";
  EXPECT_EQ(400 - 200 - 67 - 10, CurrentZ);
  GlobalVariables::BilletZ = Graphics::ToolWidth = 32767;
  Move(GCodes::ExecuteG28, 0, 0, 0, 0);
  EXPECT_EQ(-32768, CurrentZ);
}

}  // namespace
