#include <algorithm>
#include <cmath>

#include "motion/moves.h"
#include "motion/player.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

class CircularMovesTest : public MachineTest {
 protected:
  // From (Z 0, X 100) by default to (Z -50, X 150), in stock units.
  static void Arc(void (*executor)(), int radius, int toX = 150, int toZ = -50, int fromX = 100,
                  int fromZ = 0) {
    GlobalVariables::RunToBreakpoint = kTrue;
    CurrentX = static_cast<std::int16_t>(fromX);
    CurrentZ = static_cast<std::int16_t>(fromZ);
    TargetX = static_cast<std::int16_t>(toX);
    TargetZ = static_cast<std::int16_t>(toZ);
    WordR = static_cast<std::int16_t>(radius);
    RadiusGiven = kTrue;
    GCodes::PathPoints.clear();
    executor();
    EXPECT_EQ(kFalse, RadiusGiven);
  }
  static double DistanceToPath(double z, double x) {
    double nearest = 1e9;
    for (const auto& point : GCodes::PathPoints) {
      nearest = std::min(nearest, std::hypot(point.Z - z, point.X - x));
    }
    return nearest;
  }
  static std::size_t Points() { return GCodes::PathPoints.size(); }
};

TEST_F(CircularMovesTest, DirectionAndSignOfRSelectTheArc) {
  const struct {
    void (*executor)();
    int radius;
    double centreZ, centreX;
    double throughZ, throughX;
    int points;
  } cases[] = {{GCodes::ExecuteG02, 50, 0, 150, -35.3, 114.6, 787},
               {GCodes::ExecuteG03, 50, -50, 100, -14.6, 135.3, 787},
               {GCodes::ExecuteG02, -50, -50, 100, -85.3, 64.6, 2358},
               {GCodes::ExecuteG03, -50, 0, 150, 35.3, 185.3, 2358}};
  for (const auto& c : cases) {
    Arc(c.executor, c.radius);
    EXPECT_NEAR(c.points, static_cast<double>(Points()), 4);
    EXPECT_LT(DistanceToPath(c.throughZ, c.throughX), 0.2) << c.points;
    for (std::size_t i = 1; i < Points(); ++i) {
      const auto& point = GCodes::PathPoints[i];
      ASSERT_NEAR(50, std::hypot(point.Z - c.centreZ, point.X - c.centreX), 0.2) << i;
    }
    const auto& last = GCodes::PathPoints.back();
    EXPECT_LT(std::hypot(last.Z + 50, last.X - 150), 0.3);
    EXPECT_EQ(150, CurrentX);
    EXPECT_EQ(-50, CurrentZ);
  }
}

TEST_F(CircularMovesTest, SameXIsAHalfCircleOnTheTurnsSide) {
  Arc(GCodes::ExecuteG02, 50, 100, -100);
  EXPECT_NEAR(1570, static_cast<double>(Points()), 5);
  EXPECT_EQ(99.99, GCodes::PathPoints.front().X);
  Arc(GCodes::ExecuteG03, 50, 100, -100);
  EXPECT_NEAR(1570, static_cast<double>(Points()), 5);
}

TEST_F(CircularMovesTest, SameZTakesTheSideOfAChordThatRunsAlongZ) {
  // A chord of 80 along X with radius 50: the centre lies 30 beside it.
  const struct {
    void (*executor)();
    int radius;
    int toX;
    double centreZ;
  } cases[] = {{GCodes::ExecuteG02, 50, 180, 30},
               {GCodes::ExecuteG03, 50, 180, -30},
               {GCodes::ExecuteG02, -50, 180, -30},
               {GCodes::ExecuteG02, 50, 20, -30},
               {GCodes::ExecuteG03, 50, 20, 30}};
  for (const auto& c : cases) {
    Arc(c.executor, c.radius, c.toX, 0);
    const auto& middle = GCodes::PathPoints[Points() / 2];
    EXPECT_NEAR(50, std::hypot(middle.Z - c.centreZ, middle.X - (100 + c.toX) / 2.0), 0.2);
    EXPECT_EQ(c.toX, CurrentX);
  }
}

TEST_F(CircularMovesTest, ARadiusTooSmallIsToldAndMovesNothing) {
  Fakes::ExpectMessage("Value of Radius is too small to draw", Desktop::kInformation, "Error!");
  Arc(GCodes::ExecuteG02, 40, 100, -100);
  EXPECT_EQ(0u, Points());
  EXPECT_EQ(0, CurrentZ);
  EXPECT_EQ(-100, TargetZ);
  Fakes::ExpectMessage("Value of Radius is too small to draw", Desktop::kInformation, "Error!");
  Arc(GCodes::ExecuteG03, 0);
}

TEST_F(CircularMovesTest, WithoutRTheRadiusIsTheLengthOfIAndK) {
  Arc(GCodes::ExecuteG02, 50);
  const auto byR = GCodes::PathPoints.back();
  CurrentX = 100;
  CurrentZ = 0;
  WordI = -30;
  WordK = 40;
  WordR = 9999;
  GCodes::ExecuteG02();
  EXPECT_EQ(byR.Z, GCodes::PathPoints.back().Z);
  EXPECT_EQ(byR.X, GCodes::PathPoints.back().X);
}

TEST_F(CircularMovesTest, WithoutADistanceNothingIsPlayedAndRIsUsedUp) {
  Arc(GCodes::ExecuteG02, 50, 100, 0);
  EXPECT_EQ(0u, Points());
  Arc(GCodes::ExecuteG03, 0, 100, 0);
  EXPECT_EQ(0u, Points());
}

TEST_F(CircularMovesTest, AnArcLeavesTheTaperStateAlone) {
  Graphics::InitStock(100, 400);
  Graphics::TaperCut = 1;
  Arc(GCodes::ExecuteG02, 50);
  EXPECT_EQ(1, Graphics::TaperCut);
  EXPECT_EQ(1, Graphics::StockProfile[30].TaperMark);
}

TEST_F(CircularMovesTest, AnArcMayBulgeBeyond16Bits) {
  Arc(GCodes::ExecuteG03, -32767, 32000, -100, 32000, 0);
  EXPECT_EQ(-100, CurrentZ);
}

// No arc between any two positions may end the program or miss its target.
TEST_F(CircularMovesTest, EveryArcThatIsPlayedReachesItsTarget) {
  for (int toX = 60; toX <= 140; toX += 8) {
    for (int toZ = -80; toZ <= 80; toZ += 16) {
      for (const int radius : {70, -70, 200}) {
        for (const auto executor : {GCodes::ExecuteG02, GCodes::ExecuteG03}) {
          Arc(executor, radius, toX, toZ);
          if (Points() == 0) continue;
          const auto& last = GCodes::PathPoints.back();
          ASSERT_LT(std::hypot(last.Z - toZ, last.X - toX), 0.002 * 200 + 0.3)
              << toX << ' ' << toZ << ' ' << radius;
        }
      }
    }
  }
}

}  // namespace
