#include "motion/player.h"

#include "motion/moves.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;
using GlobalVariables::RunToBreakpoint;

class PlayerTest : public MachineTest {
 protected:
  void SetUp() override {
    MachineTest::SetUp();
    Graphics::InitStock(100, 200);
    frmMain::picSim.Blt = [this](const Raster&, const PixelRect&) { ++shown_; };
  }

  // A straight path of n + 1 points along Z into the billet at radius 50.
  static void Feed(int n) {
    CurrentX = TargetX = 50;
    CurrentZ = 0;
    TargetZ = static_cast<std::int16_t>(-n);
    GCodes::ExecuteG01();
  }
  static void Rapid(int n) {
    CurrentX = TargetX = 50;
    CurrentZ = 0;
    TargetZ = static_cast<std::int16_t>(-n);
    GCodes::ExecuteG00();
  }

  int shown_ = 0;
};

TEST_F(PlayerTest, SliderSetsDelayAndPictures) {
  const struct {
    int slider;
    int shown;
    std::vector<int> sleeps;
  } cases[] = {{10, 3, {}},
               {7, 4, {}},
               {1, 26, {}},
               {0, 26, std::vector<int>(26, 0)},
               {-10, 26, std::vector<int>(26, 50)}};
  for (const auto& c : cases) {
    Fakes::Reset();
    shown_ = 0;
    frmMain::Slider.Value = c.slider;
    Feed(25);
    EXPECT_EQ(c.shown, shown_) << c.slider;
    EXPECT_EQ(c.shown, Fakes::Yields()) << c.slider;
    EXPECT_EQ(c.sleeps, Fakes::Sleeps()) << c.slider;
  }
}

TEST_F(PlayerTest, ARapidMovePlaysEverySixthPointAndLeavesTheOthersUncut) {
  Rapid(13);
  EXPECT_EQ(3, GCodes::PointsPlayed);
  for (int z = 0; z >= -13; --z) EXPECT_EQ(z % 6 == 0 ? 50 : 100, RadiusAt(z)) << z;
  EXPECT_EQ(-13, CurrentZ) << "the register reaches a target that was not played";
  GCodes::PointsPlayed = 0;
  Rapid(0);
  EXPECT_EQ(1, GCodes::PointsPlayed);
  Feed(0);
  EXPECT_EQ(1, GCodes::PointsPlayed);
}

TEST_F(PlayerTest, RunToBreakpointPlaysEveryPointAndShowsNone) {
  RunToBreakpoint = kTrue;
  frmMain::mnuToolsPlaySound.Checked = true;
  frmMain::Slider.Value = -10;
  Fakes::Reset();
  Rapid(13);
  EXPECT_EQ(14, GCodes::PointsPlayed);
  EXPECT_EQ(0, shown_ + Fakes::Yields() +
                   static_cast<int>(Fakes::Sleeps().size() + Fakes::Sounds().size()));
}

TEST_F(PlayerTest, TheSoundChangesWithTheKindOfMove) {
  using Sounds = std::vector<std::string>;
  Feed(5);
  Rapid(5);
  EXPECT_EQ(Sounds{}, Fakes::Sounds()) << "sound is off";
  frmMain::mnuToolsPlaySound.Checked = true;
  Feed(5);
  EXPECT_EQ(Sounds{}, Fakes::Sounds()) << "no rapid move has been heard";
  Rapid(5);
  Rapid(50);
  Feed(5);
  Feed(5);
  EXPECT_EQ((Sounds{"/app\\sound\\fast.wav", "/app\\sound\\SLOW.wav"}), Fakes::Sounds());
  // A stop between keeps the memory of the sound.
  Rapid(5);
  frmMain::mnuRunStop_Click();
  GlobalVariables::StopRequested = kFalse;
  Rapid(5);
  EXPECT_EQ((Sounds{"/app\\sound\\fast.wav", "/app\\sound\\SLOW.wav", "/app\\sound\\fast.wav",
                    "/app\\sound\\stop.wav"}),
            Fakes::Sounds());
}

TEST_F(PlayerTest, OffsetsAreAddedBeforeAPointIsRounded) {
  GCodes::CycleOffsetX = 0.5;
  GCodes::CycleOffsetZ = -10.4;
  GCodes::PathPoints = {{-0.2, 60.0}, {-3.0, 61.0}};
  GCodes::PlayPath();
  EXPECT_EQ(60, RadiusAt(-11));
  EXPECT_EQ(62, RadiusAt(-13));
}

TEST_F(PlayerTest, APathLongerThan16BitsPlaysWhole) {
  frmMain::mnuToolsPlaySound.Checked = false;
  CurrentX = TargetX = 90;
  CurrentZ = 32767;
  TargetZ = -32768;
  GCodes::ExecuteG01();
  EXPECT_EQ(65536, GCodes::PointsPlayed);
  EXPECT_EQ(90, RadiusAt(-100));
  GCodes::PathPoints = {{1e9, -1e9}, {-1e9, 5}};
  GCodes::PlayPath();
  EXPECT_EQ(90, RadiusAt(-100));
}

TEST_F(PlayerTest, StopDuringAPauseDrawsNoFurtherPoint) {
  frmMain::EnableCommands("Pause,Stop", true);
  Fakes::AtYield(1, frmMain::mnuRunPause_Click);
  Fakes::AtWait([] {
    EXPECT_EQ(10, GCodes::PointsPlayed);
    frmMain::mnuRunStop_Click();
  });
  frmMain::Slider.Value = 10;
  GCodes::PathPoints.assign(50, {-5.0, 70.0});
  Fakes::AtYield(1, [] { GCodes::PointsPlayed = 10; });
  GCodes::PlayPath();
  EXPECT_EQ(10, GCodes::PointsPlayed);
}

}  // namespace
