#include <algorithm>
#include <string>
#include <vector>

#include "debugger/run_commands.h"
#include "editor/reformat.h"
#include "editor/syntax_check.h"
#include "fuzz/bodies.h"
#include "fuzz/quiet_desktop.h"
#include "interpreter/machine.h"
#include "interpreter/run_driver.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/program_start.h"
#include "mainwindow/start_up.h"
#include "motion/player.h"
#include "motion/stock.h"
#include "motion/tool.h"
#include "platform/code_page.h"
#include "platform/text.h"

namespace Fuzz {

namespace {

// A small simulation area, so that the pictures cost less than the program. In pixels.
constexpr std::int16_t kSimWidth = 90;
constexpr std::int16_t kSimHeight = 10;

void StartMachine() {
  QuietDesktop::Reset();
  frmMain::ResetToProgramStart();
  frmMain::Form_Load();
  QuietDesktop::PutFile("/app/tools/ToolList.ini", "1=a.bmp\r\n2=b.bmp\r\n3=..\\c.bmp\r\n");
  QuietDesktop::PutFile("/app/tools/a.ini", "TOOLWIDTH=3\r\nTOOLHEIGHT=5\r\n");
  GlobalVariables::SimWidth = kSimWidth;
  GlobalVariables::SimHeight = kSimHeight;
  Graphics::CreateSurface();
  frmMain::Slider.Value = SliderControl::kMax;
}

void FillRows(const std::string& text) {
  const std::vector<std::string_view> lines = Split(text, kLineEnd);
  frmMain::DebugWindow.SetRows(static_cast<int>(lines.size()));
  int row = 0;
  for (const std::string_view line : lines) {
    frmMain::DebugWindow.SetTextMatrix(row++, frmMain::kTextColumn, std::string(line));
  }
}

// Plays rows that no check has seen, as rows edited in place are.
void PlayUnchecked() {
  Graphics::LoadTool("/app/tools/tool.bmp", frmMain::kDefaultToolWidth,
                     frmMain::kDefaultToolHeight);
  frmMain::EnableCommands("Pause,Stop", true);
  ModCNC::RunProgram();
  frmMain::mnuRunStop_Click();
}

void RequireRunIsOver() {
  Require(!frmMain::Toolbar.Buttons("Stop").Enabled, "a run ends in the idle state");
  Require(GCodes::CycleOffsetX == 0 && GCodes::CycleOffsetZ == 0, "a cycle takes its offsets back");
  const int radius = (GlobalVariables::BilletX + 1) / 2;
  const auto& profile = Graphics::StockProfile;
  Require(std::all_of(profile.begin(), profile.end(),
                      [radius](const Graphics::ProfileColumn& column) {
                        return column.Radius >= 0 && column.Radius <= radius;
                      }),
          "the profile never rises");
}

}  // namespace

void Program(std::string_view bytes) {
  StartMachine();
  RichText& editor = frmMain::TextEditor();
  editor.SetText(WithCrLf(DecodeProgram(bytes).text));
  FillRows(editor.Text());
  frmMain::ReformatText(editor);
  const std::string reformatted = editor.Text();
  frmMain::ReformatText(editor);
  Require(editor.Text() == reformatted, "reformatting twice is reformatting once");
  if (frmMain::CheckSyntax(editor)) {
    Require(editor.SelStart() + editor.SelLength() <= editor.Text().size(),
            "a fault lies in the text");
    PlayUnchecked();
  } else {
    FillRows(reformatted);
    frmMain::mnuRunStart_Click();
  }
  RequireRunIsOver();
}

}  // namespace Fuzz
