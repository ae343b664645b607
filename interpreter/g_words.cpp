#include <cstdint>
#include <string>

#include "interpreter/decoder.h"
#include "interpreter/machine.h"
#include "mainwindow/control_surface.h"
#include "platform/numbers.h"

namespace ModCNC {

namespace {

// The G numbers that become the modal function. 4 and 70 are known but have no executor.
constexpr std::int16_t kModalFunctions[] = {0, 1, 2, 3, 4, 28, 70, 73, 90, 94};

struct UnitRule {
  std::int16_t number;
  const char* panelText;
};

// The units change a panel and nothing else: no length is ever converted.
constexpr UnitRule kUnits[] = {{20, "In"}, {21, "mm"}};

constexpr std::int16_t kNoFunction = -1;

}  // namespace

void DecodeGWord(std::string_view word) {
  const auto value = ParseNumber(word.substr(1));
  if (!value) return;
  // One beyond 16 bits names no function, as any other number that is in neither table.
  const auto number = RoundToInt16(*value);
  for (const UnitRule& unit : kUnits) {
    if (number == unit.number) {
      frmMain::StatusBar.Panels("Dim").Text = unit.panelText;
      return;
    }
  }
  ActiveG = kNoFunction;
  for (const std::int16_t function : kModalFunctions) {
    if (number == function) ActiveG = function;
  }
}

}  // namespace ModCNC
