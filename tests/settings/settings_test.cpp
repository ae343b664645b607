#include "settings/settings.h"

#include <gtest/gtest.h>

#include "platform/host/settings_store.h"
#include "settings/options.h"
#include "tests/fakes/fakes.h"
#include "tests/golden.h"

namespace {

using GlobalVariables::kSettingRows;
using GlobalVariables::LoadSettings;
using GlobalVariables::Settings;

class SettingsTest : public testing::Test {
 protected:
  void SetUp() override {
    Fakes::Reset();
    Settings = {};
  }
};

TEST_F(SettingsTest, AnUnusedStoreGetsEveryDefaultInOrder) {
  LoadSettings();
  std::string table = "An unused store gets, in this order:\n";
  for (const std::string& saved : Fakes::SavedSettings()) table += saved + '\n';
  const std::size_t defaults = Fakes::SavedSettings().size();
  EXPECT_EQ(kSettingRows.size(), defaults);
  GlobalVariables::SaveOptions(Settings);
  table += "\nOK in Options writes the same values in this order:\n";
  for (std::size_t i = defaults; i < Fakes::SavedSettings().size(); ++i) {
    table += Fakes::SavedSettings()[i] + '\n';
  }
  ExpectGolden("settings", table);
  EXPECT_EQ(Rgb(0, 0, 255), Settings.EditorCharacterColor);
  EXPECT_EQ(Rgb(0, 128, 0), Settings.EditorCommentColor);
}

TEST_F(SettingsTest, TheEditorFontAloneDecidesWhetherTheStoreIsUsed) {
  SaveSetting("CNC", "Debug", "RowHeight", "400");
  LoadSettings();
  EXPECT_EQ(285, Settings.DebugRowHeight);
  EXPECT_EQ("285", GetSetting("CNC", "Debug", "RowHeight"));

  SaveSetting("CNC", "Debug", "RowHeight", "400");
  SaveSetting("CNC", "TextEditor", "Font", "Anything");
  const std::size_t saved = Fakes::SavedSettings().size();
  LoadSettings();
  EXPECT_EQ(400, Settings.DebugRowHeight);
  EXPECT_EQ("Anything", Settings.EditorFontName);
  EXPECT_EQ(saved, Fakes::SavedSettings().size());
}

TEST_F(SettingsTest, WhatCannotBeReadTakesItsDefault) {
  SaveSetting("CNC", "TextEditor", "Font", "Mono");
  const struct {
    const char* text;
    int height;
    Colour back;
  } cases[] = {{"12.5", 12, 12},       {"13.5", 14, 14},
               {"", 285, 0xFFFFFF},    {"0", 0, 0},
               {"red", 285, 0xFFFFFF}, {"32768", 285, 32768},
               {"-3", -3, 0xFFFFFF},   {"16777216", 285, 0xFFFFFF},
               {"1e3", 285, 0xFFFFFF}, {" 7 ", 7, 7}};
  for (const auto& c : cases) {
    SaveSetting("CNC", "Debug", "RowHeight", c.text);
    SaveSetting("CNC", "SimulationWindow", "BackColor", c.text);
    SaveSetting("CNC", "Debug", "Font", c.text);
    LoadSettings();
    EXPECT_EQ(c.height, Settings.DebugRowHeight) << c.text;
    EXPECT_EQ(c.back, Settings.SimBackColor) << c.text;
    EXPECT_EQ(*c.text == 0 ? "Courier New" : c.text, Settings.DebugFontName);
  }
}

}  // namespace
