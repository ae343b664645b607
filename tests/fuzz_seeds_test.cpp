#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <ostream>
#include <string>

#include "fuzz/bodies.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/program_start.h"
#include "motion/player.h"
#include "motion/tool.h"
#include "settings/settings.h"

namespace {

struct Target {
  const char* corpus;
  void (*body)(std::string_view);
  // What at least one of the seeds must reach.
  bool (*reached)();
};

void PrintTo(const Target& target, std::ostream* out) {
  *out << target.corpus;
}

class FuzzSeedsTest : public testing::TestWithParam<Target> {};

TEST_P(FuzzSeedsTest, EverySeedPasses) {
  int seeds = 0;
  bool reached = false;
  const auto folder = std::filesystem::path(TURNBAY_FUZZ_CORPUS) / GetParam().corpus;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    SCOPED_TRACE(entry.path().filename());
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(file), {});
    GetParam().body(bytes);
    reached = reached || GetParam().reached();
    ++seeds;
  }
  EXPECT_GE(seeds, 2);
  EXPECT_TRUE(reached);
  frmMain::ResetToProgramStart();
}

INSTANTIATE_TEST_SUITE_P(
    Targets, FuzzSeedsTest,
    testing::Values(Target{"program", Fuzz::Program, [] { return GCodes::PointsPlayed > 1000; }},
                    Target{"settings", Fuzz::Settings,
                           [] { return GlobalVariables::Settings.EditorFontSize == 12; }},
                    Target{"tool_files", Fuzz::ToolFiles,
                           [] { return Graphics::ToolWidth == 40; }}),
    [](const auto& test) { return std::string(test.param.corpus); });

}  // namespace
