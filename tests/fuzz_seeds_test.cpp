#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "editor/program_file.h"
#include "fuzz/bodies.h"
#include "mainwindow/control_surface.h"
#include "motion/player.h"
#include "motion/tool.h"
#include "settings/settings.h"

namespace {

// True when one of the seeds reaches what it was made for.
bool SeedsReach(const char* corpus, void (*body)(std::string_view), bool (*goal)()) {
  bool reached = false;
  const auto folder = std::filesystem::path(TURNBAY_FUZZ_CORPUS) / corpus;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    SCOPED_TRACE(entry.path().filename());
    std::ifstream file(entry.path(), std::ios::binary);
    body(std::string(std::istreambuf_iterator<char>(file), {}));
    reached = goal() || reached;
  }
  return reached;
}

TEST(FuzzSeedsTest, EverySeedPasses) {
  EXPECT_TRUE(SeedsReach("program", Fuzz::Program, [] { return GCodes::PointsPlayed > 500; }));
  EXPECT_TRUE(SeedsReach("settings", Fuzz::Settings,
                         [] { return GlobalVariables::Settings.EditorFontSize == 12; }));
  EXPECT_TRUE(SeedsReach("settings_text", Fuzz::SettingsText, [] { return true; }));
  EXPECT_TRUE(SeedsReach("recovery", Fuzz::Recovery, [] {
    return frmMain::DocumentIsUtf8 && frmMain::TextEditor().Text().ends_with("X20");
  }));
  EXPECT_TRUE(SeedsReach("tool_files", Fuzz::ToolFiles, [] { return Graphics::ToolWidth == 40; }));
}

}  // namespace
