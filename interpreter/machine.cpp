#include "interpreter/machine.h"

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
RunOutcome LastRun = RunOutcome::None;

}  // namespace GlobalVariables

namespace ModCNC {

void ResetMachine() {
  for (const Register& entry : kRegisters) *entry.value = 0;
  GlobalVariables::LastRun = GlobalVariables::RunOutcome::None;
}

}  // namespace ModCNC
