#include "settings/settings.h"

#include <gtest/gtest.h>

#include "platform/host/settings_store.h"
#include "settings/options.h"
#include "tests/fakes/fakes.h"

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
  const std::vector<std::string>& saved = Fakes::SavedSettings();
  ASSERT_EQ(28u, saved.size());
  EXPECT_EQ("TextEditor/Font=Courier New", saved.front());
  EXPECT_EQ("TextEditor/Integer=0", saved[2]);
  EXPECT_EQ("General/AutoComplete=1", saved[7]);
  EXPECT_EQ("Debug/C2Width=3500", saved[21]);
  EXPECT_EQ("SimulationWindow/EffectColor=16750230", saved.back());
  EXPECT_EQ("Courier New", Settings.EditorFontName);
  EXPECT_EQ(Rgb(0, 0, 255), Settings.EditorCharacterColor);
  EXPECT_EQ(Rgb(0, 128, 0), Settings.EditorCommentColor);
  EXPECT_EQ(Rgb(150, 150, 255), Settings.EffectColor);
  EXPECT_EQ(285, Settings.DebugRowHeight);
  EXPECT_EQ(1, Settings.OpenLastFile);
  GlobalVariables::SaveOptions(Settings);
  EXPECT_EQ("Debug/RowHeight=285", saved.at(28 + 24));
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
  } cases[] = {{"12.5", 12, 12},
               {"13.5", 14, 14},
               {"", 285, 0xFFFFFF},
               {"red", 285, 0xFFFFFF},
               {"32768", 285, 32768},
               {"-3", -3, 0xFFFFFF},
               {"16777216", 285, 0xFFFFFF},
               {"1e3", 285, 0xFFFFFF},
               {" 7 ", 7, 7}};
  for (const auto& c : cases) {
    SaveSetting("CNC", "Debug", "RowHeight", c.text);
    SaveSetting("CNC", "SimulationWindow", "BackColor", c.text);
    LoadSettings();
    EXPECT_EQ(c.height, Settings.DebugRowHeight) << c.text;
    EXPECT_EQ(c.back, Settings.SimBackColor) << c.text;
  }
}

}  // namespace
