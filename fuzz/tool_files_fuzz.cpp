#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "fuzz/bodies.h"
#include "fuzz/quiet_desktop.h"
#include "interpreter/machine.h"
#include "interpreter/tool_change.h"
#include "mainwindow/program_start.h"
#include "motion/tool.h"
#include "toollib/tool_files.h"

namespace Fuzz {

namespace {

constexpr char kBetweenFiles = 1;
constexpr const char* kListPath = "/app/tools/ToolList.ini";

void RequireListOfNumbers() {
  std::vector<std::string> items = frmToolSelect::cmbTools.List;
  std::sort(items.begin(), items.end());
  Require(std::adjacent_find(items.begin(), items.end()) == items.end(),
          "no number is listed twice");
  Require(items.size() <= GlobalVariables::ToolFiles.size(), "no number is listed that isn't one");
}

void ReadDescription() {
  std::string reason;
  std::int16_t height = 0;
  std::int16_t width = 0;
  Require(GlobalVariables::ReadToolSize("/app/tools/a.bmp", height, width, reason),
          "a description that is there is read");
  const auto description = GlobalVariables::ReadToolDescription("/app/tools/a.bmp", reason);
  Require(description && (width == 0 || description->Width), "both readers find the same keys");
}

void ChangeTools() {
  constexpr std::int16_t kNumbers[] = {-1, 0, 1, GlobalVariables::kToolCount};
  for (const std::int16_t number : kNumbers) {
    ModCNC::ToolNumber = number;
    ModCNC::ChangeTool();
    Require(Graphics::ToolDC.sprite.Width() > 0, "there is always a tool");
  }
}

void RequireRoundTrip() {
  const auto entries = GlobalVariables::ToolFiles;
  std::string reason;
  Require(frmToolSelect::WriteToolList(reason), "a list that was read can be written");
  GlobalVariables::ToolFiles = {};
  frmToolSelect::GetToolList();
  Require(GlobalVariables::ToolFiles == entries, "a list is read as it was written");
}

}  // namespace

void ToolFiles(std::string_view files) {
  QuietDesktop::Reset();
  frmMain::ResetToProgramStart();
  const std::size_t end = std::min(files.find(kBetweenFiles), files.size());
  QuietDesktop::PutFile(kListPath, files.substr(0, end));
  QuietDesktop::PutFile("/app/tools/a.ini", files.substr(std::min(end + 1, files.size())));
  Graphics::LoadTool("/app/tools/tool.bmp", 8, 8);
  frmToolSelect::GetToolList();
  RequireListOfNumbers();
  ReadDescription();
  ChangeTools();
  RequireRoundTrip();
}

}  // namespace Fuzz
