#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "motion/cycles.h"
#include "motion/moves.h"
#include "motion/pattern_cycle.h"

// Every G number that means something to the check of a program or to the machine.
namespace ModCNC {

struct GFunction {
  std::int16_t number;
  // False: a program that names it isn't started.
  bool passesCheck = true;
  // False: as any number that isn't here, it leaves no function behind.
  bool isModal = true;
  // The text of the panel "Dim". It is all that such a word does: no length is ever converted.
  const char* unit = nullptr;
  // None: rows do no motion while the function is modal.
  void (*executor)() = nullptr;
};

inline constexpr GFunction kGFunctions[] = {
    {.number = 0, .executor = GCodes::ExecuteG00},
    {.number = 1, .executor = GCodes::ExecuteG01},
    {.number = 2, .executor = GCodes::ExecuteG02},
    {.number = 3, .executor = GCodes::ExecuteG03},
    {.number = 4},
    {.number = 20, .passesCheck = false, .unit = "In"},
    {.number = 21, .unit = "mm"},
    {.number = 28, .executor = GCodes::ExecuteG28},
    {.number = 70},
    {.number = 71, .isModal = false},
    {.number = 72, .isModal = false},
    {.number = 73, .executor = GCodes::ExecuteG73},
    {.number = 90, .executor = GCodes::ExecuteG90},
    {.number = 94, .executor = GCodes::ExecuteG94},
    {.number = 97, .isModal = false},
    {.number = 98, .isModal = false},
};

// The numbers that pass the check. Made by the compiler, so that who reads them links no executor.
inline constexpr auto kCheckedGNumbers = [] {
  std::array<std::int16_t, std::ranges::count_if(kGFunctions, &GFunction::passesCheck)> numbers{};
  auto* next = numbers.data();
  for (const GFunction& function : kGFunctions) {
    if (function.passesCheck) *next++ = function.number;
  }
  return numbers;
}();

}  // namespace ModCNC
