// Pace and sound; the programs in tests/data show which points are played, and where.

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

TEST_F(PlayerTest, ARunToABreakPointPlaysEveryPointAndShowsNone) {
  Fakes::Reset();
  GlobalVariables::RunToBreakpoint = kTrue;
  frmMain::mnuToolsPlaySound.Checked = true;
  frmMain::Slider.Value = -10;
  Play(GCodes::ExecuteG00, 13);
  EXPECT_EQ(14, GCodes::PointsPlayed);
  EXPECT_EQ(0u, Fakes::Sleeps().size() + Fakes::Sounds().size());
  EXPECT_EQ(0, shown_ + Fakes::Yields());
}

TEST_F(PlayerTest, TheSoundChangesWithTheKindOfMove) {
  using namespace GCodes;
  Play(ExecuteG00, 5);
  EXPECT_TRUE(Fakes::Sounds().empty()) << "sound is off";
  frmMain::mnuToolsPlaySound.Checked = true;
  for (const auto executor :
       {ExecuteG01, ExecuteG00, ExecuteG00, ExecuteG01, ExecuteG01, ExecuteG00}) {
    Play(executor, 5);
  }
  frmMain::mnuRunStop_Click();
  GlobalVariables::StopRequested = kFalse;
  Play(ExecuteG00, 5);
  std::string heard;
  for (const std::string& path : Fakes::Sounds()) heard += path.substr(path.rfind('\\'));
  EXPECT_EQ("\\fast.wav\\SLOW.wav\\fast.wav\\stop.wav", heard)
      << "a feed move is silent until a rapid move was heard, and a stop keeps the memory";
}

TEST_F(PlayerTest, APauseIsSilentAndAChangeOfSoundWaitsForItsEnd) {
  frmMain::mnuToolsPlaySound.Checked = true;
  frmMain::EnableCommands("Pause,Stop", true);
  Fakes::AtYield(1, frmMain::mnuRunPause_Click);
  Fakes::AtWait([] {
    EXPECT_EQ(std::vector<std::string>{"/app\\sound\\stop.wav"}, Fakes::Sounds());
    frmMain::mnuRunStart_Click();
  });
  Play(GCodes::ExecuteG00, 25);
  EXPECT_EQ("/app\\sound\\fast.wav", Fakes::Sounds().back());
}

}  // namespace
