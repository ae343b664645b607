#include "motion/player.h"

#include "motion/moves.h"
#include "tests/fakes/machine_test.h"

namespace {

using namespace ModCNC;

class PlayerTest : public MachineTest {
 protected:
  void SetUp() override {
    MachineTest::SetUp();
    Graphics::InitStock(100, 200);
    frmMain::picSim.Blt = [this](const Raster&, const PixelRect&) { ++shown_; };
  }
  // Along Z into the billet at radius 50.
  static void Play(void (*executor)(), int length) {
    CurrentX = TargetX = 50;
    CurrentZ = 0;
    TargetZ = static_cast<std::int16_t>(-length);
    executor();
  }

  int shown_ = 0;
};

TEST_F(PlayerTest, SliderSetsDelayAndPictures) {
  const struct {
    int slider, shown;
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
    Play(GCodes::ExecuteG01, 25);
    EXPECT_EQ(c.shown, shown_) << c.slider;
    EXPECT_EQ(c.shown, Fakes::Yields()) << c.slider;
    EXPECT_EQ(c.sleeps, Fakes::Sleeps()) << c.slider;
  }
}

TEST_F(PlayerTest, ARapidMovePlaysEverySixthPointUnlessItRunsToABreakPoint) {
  Play(GCodes::ExecuteG00, 13);
  EXPECT_EQ(3, GCodes::PointsPlayed);
  for (int z = 0; z >= -13; --z) EXPECT_EQ(z % 6 == 0 ? 50 : 100, RadiusAt(z)) << z;
  EXPECT_EQ(-13, CurrentZ) << "the register reaches a target that was not played";
  Play(GCodes::ExecuteG00, 0);
  Play(GCodes::ExecuteG01, 0);
  EXPECT_EQ(4, GCodes::PointsPlayed) << "without a distance only the rapid move plays its point";
  Fakes::Reset();
  shown_ = 0;
  GlobalVariables::RunToBreakpoint = kTrue;
  frmMain::mnuToolsPlaySound.Checked = true;
  frmMain::Slider.Value = -10;
  Play(GCodes::ExecuteG00, 13);
  EXPECT_EQ(4 + 14, GCodes::PointsPlayed);
  EXPECT_EQ(0u, Fakes::Sleeps().size() + Fakes::Sounds().size());
  EXPECT_EQ(0, shown_ + Fakes::Yields());
}

TEST_F(PlayerTest, TheSoundChangesWithTheKindOfMove) {
  const auto heard = [] {
    std::string names;
    for (const std::string& path : Fakes::Sounds()) names += path.substr(path.rfind('\\'));
    return names;
  };
  Play(GCodes::ExecuteG00, 5);
  EXPECT_EQ("", heard()) << "sound is off";
  frmMain::mnuToolsPlaySound.Checked = true;
  Play(GCodes::ExecuteG01, 5);
  EXPECT_EQ("", heard()) << "no rapid move has been heard";
  for (const auto executor : {GCodes::ExecuteG00, GCodes::ExecuteG00, GCodes::ExecuteG01,
                              GCodes::ExecuteG01, GCodes::ExecuteG00}) {
    Play(executor, 5);
  }
  EXPECT_EQ("\\fast.wav\\SLOW.wav\\fast.wav", heard());
  frmMain::mnuRunStop_Click();
  GlobalVariables::StopRequested = kFalse;
  Play(GCodes::ExecuteG00, 5);
  EXPECT_EQ("\\fast.wav\\SLOW.wav\\fast.wav\\stop.wav", heard()) << "a stop keeps the memory";
}

TEST_F(PlayerTest, PointsBeyond16BitsArePlayedAndOffsetsAreAddedBeforeRounding) {
  GCodes::CycleOffsetX = 0.5;
  GCodes::CycleOffsetZ = -10.4;
  GCodes::PathPoints = {{-0.2, 60.0}, {-3.0, 61.0}, {1e9, -1e9}, {-1e9, 5}};
  GCodes::PlayPath();
  EXPECT_EQ(60, RadiusAt(-11));
  EXPECT_EQ(62, RadiusAt(-13));
  GCodes::CycleOffsetX = GCodes::CycleOffsetZ = 0;
  CurrentX = TargetX = 90;
  CurrentZ = 32767;
  TargetZ = -32768;
  GCodes::ExecuteG01();
  EXPECT_EQ(4 + 65536, GCodes::PointsPlayed);
  EXPECT_EQ(90, RadiusAt(-100));
}

}  // namespace
