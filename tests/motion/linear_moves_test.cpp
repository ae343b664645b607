#include "motion/moves.h"
#include "motion/player.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

class LinearMovesTest : public MachineTest {
 protected:
  static void Move(void (*executor)(), int fromX, int fromZ, int toX, int toZ) {
    CurrentX = static_cast<std::int16_t>(fromX);
    CurrentZ = static_cast<std::int16_t>(fromZ);
    TargetX = static_cast<std::int16_t>(toX);
    TargetZ = static_cast<std::int16_t>(toZ);
    executor();
  }
  static std::vector<double> PathX() {
    std::vector<double> result;
    for (const auto& point : GCodes::PathPoints) result.push_back(point.X);
    return result;
  }
};

TEST_F(LinearMovesTest, RapidGoesDiagonallyThenStraight) {
  Move(GCodes::ExecuteG00, 100, 0, 70, -100);
  ASSERT_EQ(101u, GCodes::PathPoints.size());
  EXPECT_EQ(70, GCodes::PathPoints[30].X);
  EXPECT_EQ(-30, GCodes::PathPoints[30].Z);
  EXPECT_EQ(71, GCodes::PathPoints[29].X);
  EXPECT_EQ(70, GCodes::PathPoints[100].X);
  EXPECT_EQ(-100, GCodes::PathPoints[100].Z);
  EXPECT_EQ(kFalse, GCodes::RapidMove);
}

TEST_F(LinearMovesTest, FeedIsOneStraightLineByRepeatedAddition) {
  Move(GCodes::ExecuteG01, 100, 0, 70, -100);
  ASSERT_EQ(101u, GCodes::PathPoints.size());
  double x = 100;
  for (int i = 1; i <= 100; ++i) x += -0.3;
  EXPECT_EQ(x, GCodes::PathPoints[100].X);
  EXPECT_NE(70.0, GCodes::PathPoints[100].X) << "sums of 0.3 miss the target a little";
  EXPECT_EQ(70, CurrentX);
}

TEST_F(LinearMovesTest, HalvesOfATaperFallOnTheEvenNeighbour) {
  Graphics::InitStock(20, 400);
  Move(GCodes::ExecuteG01, 0, 0, 4, -8);
  EXPECT_EQ((std::vector<double>{0, 0.5, 1, 1.5, 2, 2.5, 3, 3.5, 4}), PathX());
  const int radii[] = {0, 0, 1, 2, 2, 2, 3, 4, 4};
  for (int i = 0; i <= 8; ++i) EXPECT_EQ(radii[i], RadiusAt(-i)) << i;
}

TEST_F(LinearMovesTest, TaperMarkFollowsTheLastFeedMoveWithADistance) {
  Graphics::InitStock(100, 400);
  const auto markAt = [](int z) {
    return Graphics::StockProfile.at(static_cast<std::size_t>(-z)).TaperMark;
  };
  Move(GCodes::ExecuteG01, 100, 0, 101, -20);
  EXPECT_EQ(1, Graphics::TaperCut);
  EXPECT_EQ(1, markAt(-10));
  Move(GCodes::ExecuteG01, 100, 0, 100, 0);
  EXPECT_EQ(1, Graphics::TaperCut) << "no distance leaves it alone";
  Move(GCodes::ExecuteG00, 90, -30, 90, -48);
  EXPECT_EQ(1, markAt(-36)) << "as does a rapid move";
  Move(GCodes::ExecuteG01, 80, 0, 80, -60);
  EXPECT_EQ(0, Graphics::TaperCut);
  EXPECT_EQ(1, markAt(-10)) << "a mark stays when the column is cut deeper";
  EXPECT_EQ(0, markAt(-55));
  Move(GCodes::ExecuteG01, 100, -10, 60, -10);
  EXPECT_EQ(0, Graphics::TaperCut);
}

TEST_F(LinearMovesTest, DistancesBeyond16BitsAreNotWrapped) {
  GlobalVariables::RunToBreakpoint = kTrue;
  Move(GCodes::ExecuteG00, 32767, -32768, -32768, 32767);
  EXPECT_EQ(65536u, GCodes::PathPoints.size());
  EXPECT_EQ(-32768, GCodes::PathPoints.back().X);
  EXPECT_EQ(32767, GCodes::PathPoints.back().Z);
}

}  // namespace
