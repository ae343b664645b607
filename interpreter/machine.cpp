#include "interpreter/machine.h"

namespace ModCNC {

std::int16_t TargetX;
std::int16_t TargetZ;
std::int16_t ActiveG;
std::int16_t CurrentX;
std::int16_t CurrentZ;
std::int16_t FeedRate;
std::int16_t WordI;
std::int16_t WordK;
std::int16_t WordP;
std::int16_t WordQ;
std::int16_t WordR;
std::int16_t ToolNumber;
std::int16_t SpindleSpeed;
std::int16_t WordU;
std::int16_t WordW;
std::int16_t RadiusGiven;

}  // namespace ModCNC

namespace GlobalVariables {

std::int16_t BilletZ;
std::int16_t BilletX;
std::int16_t CurrentRow;
std::int16_t StopRequested;
std::int16_t RunToBreakpoint;
RunOutcome LastRun;

}  // namespace GlobalVariables

namespace ModCNC {

void ResetMachine() {
  for (const Register& entry : kRegisters) *entry.value = 0;
  GlobalVariables::LastRun = GlobalVariables::RunOutcome::None;
}

}  // namespace ModCNC
