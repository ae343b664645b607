#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string>

#include "debugger/run_commands.h"
#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "interpreter/tool_change.h"
#include "mainwindow/control_surface.h"
#include "mainwindow/notifications.h"
#include "platform/numbers.h"

namespace ModCNC {

namespace {

struct MFunction;
using Step = void (*)(const MFunction&);

// How a notification is shown; the time is in milliseconds.
struct Display {
  std::int16_t modal;
  std::int16_t time;
};
constexpr Display kPassing = {0, 2000};
constexpr Display kWaiting = {1, 500};

constexpr const char* kUnchanged = nullptr;

struct MFunction {
  std::int16_t number;
  Display display;
  const char* notification;
  // Texts of panels. Whoever writes the direction writes the speed as well.
  const char* direction;
  const char* coolant;
  std::array<Step, 3> steps;
};

void ShowNotification(const std::string& text, Display display) {
  frmInfo::lblInfo.Caption = text;
  frmMain::ShowInfoWindow(display.modal, display.time);
}

void Notify(const MFunction& function) {
  ShowNotification(function.notification, function.display);
}

void NotifyTool(const MFunction& function) {
  ShowNotification("Tool " + DecimalText(ToolNumber) + " loaded", function.display);
}

void WritePanels(const MFunction& function) {
  if (function.direction != kUnchanged) {
    frmMain::StatusBar.Panels("SpindleSpeed").Text = "S " + DecimalText(SpindleSpeed);
    frmMain::StatusBar.Panels("SpindleDirection").Text = function.direction;
  }
  if (function.coolant != kUnchanged) frmMain::StatusBar.Panels("Coolant").Text = function.coolant;
}

void ClearSpeed(const MFunction& /*function*/) {
  SpindleSpeed = 0;
}
void Pause(const MFunction& /*function*/) {
  frmMain::mnuRunPause_Click();
}
void Stop(const MFunction& /*function*/) {
  frmMain::mnuRunStop_Click();
}
void LoadNumberedTool(const MFunction& /*function*/) {
  ChangeTool();
}

constexpr const char* kOn = "Coolant: ON";
constexpr const char* kOff = "Coolant: OFF";

// The steps of a row run from left to right.
constexpr MFunction kMFunctions[] = {
    {0, kPassing, "Program Stop", kUnchanged, kUnchanged, {Notify, Pause}},
    {2, kPassing, "Program End", kUnchanged, kUnchanged, {Notify, Stop}},
    {3, kPassing, "Spindle Start CW", "CW", kUnchanged, {Notify, WritePanels}},
    {4, kPassing, "Spindle Start CCW", "CCW", kUnchanged, {Notify, WritePanels}},
    {5, kPassing, "Spindle Stop", "", kUnchanged, {Notify, ClearSpeed, WritePanels}},
    {6, kPassing, "", kUnchanged, kUnchanged, {NotifyTool, LoadNumberedTool}},
    {8, kPassing, "Coolant: ON", kUnchanged, kOn, {WritePanels, Notify}},
    {9, kPassing, "Coolant: OFF", kUnchanged, kOff, {WritePanels, Notify}},
    {10, kWaiting, "Chuck OPEN", kUnchanged, kUnchanged, {Notify}},
    {11, kWaiting, "Chuck CLOSE", kUnchanged, kUnchanged, {Notify}},
    {13, kPassing, "Spindle Start CW, Coolant ON", "CW", kOn, {WritePanels, Notify}},
    {14, kPassing, "Spindle Start CCW, Coolant ON", "CCW", kOn, {WritePanels, Notify}},
    {25, kPassing, "Quill Extend", kUnchanged, kUnchanged, {Notify}},
    {26, kPassing, "Quill Retract", kUnchanged, kUnchanged, {Notify}},
    {30, kPassing, "Program end and reset", kUnchanged, kOff, {WritePanels, Stop, Notify}},
    {38, kWaiting, "Door OPEN", kUnchanged, kUnchanged, {Notify}},
    {39, kWaiting, "Door CLOSE", kUnchanged, kUnchanged, {Notify}},
};

}  // namespace

bool IsMFunction(std::int16_t number) {
  return std::ranges::find(kMFunctions, number, &MFunction::number) != std::end(kMFunctions);
}

void DecodeMWord(std::string_view word) {
  const auto number = ParseInt16(word.substr(1));
  if (!number) return;
  for (const MFunction& function : kMFunctions) {
    if (function.number != *number) continue;
    for (const Step step : function.steps) {
      if (step != nullptr) step(function);
    }
    return;
  }
}

}  // namespace ModCNC
