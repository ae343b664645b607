#include "fuzz/bodies.h"

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "debugger/debug_grid.h"
#include "debugger/run_commands.h"
#include "editor/documents.h"
#include "editor/recovery_offer.h"
#include "editor/recovery_text.h"
#include "editor/reformat.h"
#include "editor/syntax_check.h"
#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "interpreter/tool_change.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/layout.h"
#include "mainwindow/program_start.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "platform/code_page.h"
#include "platform/host/settings_store.h"
#include "platform/settings_text.h"
#include "platform/text.h"
#include "settings/settings.h"
#include "tests/fakes/fakes.h"
#include "toollib/tool_files.h"

namespace Fuzz {

namespace {

void Require(bool holds, const char* promise) {
  if (!holds) throw std::logic_error(promise);
}

void RequireValue(const std::string& font) {
  Require(!font.empty(), "every font has a name");
}

void RequireValue(Colour colour) {
  Require(colour <= 0xFFFFFF, "every colour is one");
}

// Any number will do.
void RequireValue(std::int16_t /*number*/) {}

// Of the billet as the last look found it; empty before the run.
std::vector<Graphics::ProfileColumn> formerProfile;

void LookAtProfile() {
  const auto& profile = Graphics::StockProfile;
  for (std::size_t i = 0; i < profile.size(); ++i) {
    const int bound =
        i < formerProfile.size() ? formerProfile[i].Radius : (GlobalVariables::BilletX + 1) / 2;
    Require(profile[i].Radius >= 0 && profile[i].Radius <= bound, "the profile never rises");
  }
  formerProfile = profile;
}

// Resumes a paused run, and stops one that has yielded often enough for a thousand points of its
// path. After that it leaves within its row.
void KeepRunGoing() {
  constexpr int kYieldBound = 100;
  constexpr int kLookEvery = 25;
  Require(Fakes::world.yields < 20 * kYieldBound, "a stopped run ends");
  if (Fakes::world.yields % kLookEvery == 0) LookAtProfile();
  if (Fakes::world.yields == kYieldBound) {
    frmMain::mnuRunStop_Click();
  } else if (frmMain::IsRunPaused()) {
    frmMain::mnuRunStart_Click();
  }
}

// A cycle without moves doesn't yield, but its tool changes and other M words can be many.
void StopWhatNotifiesForEver() {
  constexpr int kNotificationBound = 1'000;
  if (Fakes::world.notifications == kNotificationBound) frmMain::mnuRunStop_Click();
}

// No more of a start-up than the bodies lean on: it would cost more than most inputs.
void StartMachine() {
  Fakes::Reset();
  Fakes::world.collectsMessages = true;
  Fakes::PutPicture("/app/tools/tool.bmp", Raster(4, 4));
  Fakes::PutPicture("/app/tools/a.bmp", Raster(4, 4));
  frmMain::ResetToProgramStart();
  GlobalVariables::Settings = GlobalVariables::DefaultSettings();
  frmMain::EnableCommands(frmMain::kProgramCommands, false);
  // A window whose simulation area comes out as 90 by 10 pixels, so that the pictures cost less
  // than the program.
  frmMain::ScaleWidth = 117;
  frmMain::ScaleHeight = 73;
  frmMain::Form_Resize();
}

// All of a program but its layout.
std::string Substance(std::string_view text) {
  std::string kept;
  for (const char c : text) {
    if (std::string_view(" \t\r\n").find(c) == std::string_view::npos) kept += ToUpper(c);
  }
  return kept;
}

// What stands in front of the first byte 1, and what behind.
std::pair<std::string, std::string> Halves(std::string_view bytes) {
  const std::size_t end = std::min(bytes.find('\1'), bytes.size());
  return {std::string(bytes.substr(0, end)),
          std::string(bytes.substr(std::min(end + 1, bytes.size())))};
}

}  // namespace

void Program(std::string_view bytes) {
  StartMachine();
  formerProfile.clear();
  Fakes::world.atEachYield = KeepRunGoing;
  Fakes::world.atEachNotification = StopWhatNotifiesForEver;
  frmMain::Slider.Value = SliderControl::kMax;
  RichText& editor = frmMain::TextEditor();
  editor.SetText(WithCrLf(DecodeProgram(bytes).text));
  frmMain::FillDebugWindow();
  const std::string typed = editor.Text();
  frmMain::ReformatText(editor);
  const std::string reformatted = editor.Text();
  Require(Substance(reformatted) == Substance(typed), "reformatting loses nothing");
  frmMain::ReformatText(editor);
  Require(editor.Text() == reformatted, "reformatting twice is reformatting once");
  if (frmMain::CheckSyntax(editor)) {
    Require(editor.SelStart() + editor.SelLength() <= editor.Text().size(),
            "a fault lies in the text");
    // Rows that no check has seen, as rows edited in place are.
    ModCNC::RunProgram();
    frmMain::mnuRunStop_Click();
  } else {
    frmMain::FillDebugWindow();
    frmMain::mnuRunStart_Click();
  }
  LookAtProfile();
  Require(GCodes::CycleOffsetX == 0 && GCodes::CycleOffsetZ == 0, "a cycle takes its offsets back");
}

void Settings(std::string_view values) {
  Fakes::Reset();
  const auto texts = Split(values, "\n");
  for (std::size_t i = 0; i < std::min(texts.size(), GlobalVariables::kSettingRows.size()); ++i) {
    const auto& row = GlobalVariables::kSettingRows[i];
    SaveSetting("CNC", row.section, row.key, texts[i]);
  }
  GlobalVariables::LoadSettings();
  for (const GlobalVariables::SettingRow& row : GlobalVariables::kSettingRows) {
    std::visit([](auto field) { RequireValue(GlobalVariables::Settings.*field); }, row.field);
  }
}

void SettingsText(std::string_view bytes) {
  const auto [store, value] = Halves(bytes);
  const std::string written = WithSetting(store, "Debug", "Font", value);
  Require(FindSetting(written, "Debug", "Font") == value, "a value is read as it was written");
  Require(WithSetting(written, "Debug", "Font", value) == written, "and written once");
  const std::pair<const char*, const char*> others[] = {{"Debug", "Size"}, {"General", "Font"}};
  for (const auto& [section, key] : others) {
    Require(FindSetting(written, section, key) == FindSetting(store, section, key),
            "no other value changes");
  }
}

void Recovery(std::string_view bytes) {
  StartMachine();
  // Nobody guesses a check sum, so the rest is tried behind a right one as well.
  const std::string_view rest = bytes.substr(std::min(bytes.find('\n') + 1, bytes.size()));
  auto parts = Split(rest, std::string_view("\0", 1));
  parts.resize(std::max<std::size_t>(parts.size(), 3));
  const frmMain::RecoveryText document{std::string(parts[0]), bytes.size() % 2 == 0,
                                       std::string(parts[2]), std::string(parts[1])};
  const auto read = frmMain::DecodeRecovery(bytes);
  Require(!read || frmMain::EncodeRecovery(*read) == bytes, "a file is read as it was written");
  Fakes::world.endedRecoveryFiles = {frmMain::EncodeRecovery(document)};
  frmMain::OfferRecovery();
  Require(frmMain::TextEditor().Text() == document.text, "what is offered is opened");
  frmMain::RecoveryTimer_Timer();
  Require(document.text.empty() || frmMain::DecodeRecovery(Fakes::world.recoveryFile) == document,
          "and kept as it was");
}

void ToolFiles(std::string_view files) {
  StartMachine();
  const auto [list, description] = Halves(files);
  Fakes::PutFile("/app/tools/ToolList.ini", list);
  Fakes::PutFile("/app/tools/a.ini", description);
  Graphics::LoadTool("/app/tools/tool.bmp", 8, 8);
  frmToolSelect::GetToolList();
  auto listed = frmToolSelect::cmbTools.ItemData;
  std::sort(listed.begin(), listed.end());
  Require(std::adjacent_find(listed.begin(), listed.end()) == listed.end(),
          "no number is listed twice");
  for (const std::int16_t number : std::initializer_list<std::int16_t>{-1, 0, 1, 21}) {
    ModCNC::ToolNumber = number;
    ModCNC::ChangeTool();
    Require(Graphics::ToolDC.sprite.Width() > 0, "there is always a tool");
  }
  const auto entries = GlobalVariables::ToolFiles;
  std::string reason;
  Require(frmToolSelect::WriteToolList(reason), "a list that was read can be written");
  GlobalVariables::ToolFiles = {};
  frmToolSelect::GetToolList();
  Require(GlobalVariables::ToolFiles == entries, "a list is read as it was written");
}

}  // namespace Fuzz
