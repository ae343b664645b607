#include "interpreter/machine.h"

#include <initializer_list>

namespace ModCNC {

std::int16_t TargetX = 0;
std::int16_t TargetZ = 0;
std::int16_t ActiveG = 0;
std::int16_t CurrentX = 0;
std::int16_t CurrentZ = 0;
std::int16_t FeedRate = 0;
std::int16_t WordI = 0;
std::int16_t WordK = 0;
std::int16_t WordP = 0;
std::int16_t WordQ = 0;
std::int16_t WordR = 0;
std::int16_t ToolNumber = 0;
std::int16_t SpindleSpeed = 0;
std::int16_t WordU = 0;
std::int16_t WordW = 0;
std::int16_t RadiusGiven = kFalse;

}  // namespace ModCNC

namespace GlobalVariables {

std::int16_t BilletZ = 0;
std::int16_t BilletX = 0;
std::int16_t CurrentRow = 0;
std::int16_t StopRequested = kFalse;
std::int16_t RunToBreakpoint = kFalse;

}  // namespace GlobalVariables

namespace ModCNC {

void ResetMachine() {
  for (std::int16_t* variable : {&TargetX,
                                 &TargetZ,
                                 &ActiveG,
                                 &CurrentX,
                                 &CurrentZ,
                                 &FeedRate,
                                 &WordI,
                                 &WordK,
                                 &WordP,
                                 &WordQ,
                                 &WordR,
                                 &ToolNumber,
                                 &SpindleSpeed,
                                 &WordU,
                                 &WordW,
                                 &RadiusGiven,
                                 &GlobalVariables::BilletZ,
                                 &GlobalVariables::BilletX,
                                 &GlobalVariables::CurrentRow,
                                 &GlobalVariables::StopRequested,
                                 &GlobalVariables::RunToBreakpoint}) {
    *variable = 0;
  }
}

}  // namespace ModCNC
