#pragma once

#include <cstdint>

// The simulated machine: plain shared variables that every routine of a run reads and writes.
// Lengths are stock units of 0.1 mm, which are pixels of the simulation surface; X is a radius,
// upward on the screen; Z is 0 at the billet's free end face and negative into the part.
// All are 0 when the program starts. "Stop" is mnuRunStop_Click.

// Flags are 16-bit: all bits clear or all set.
inline constexpr std::int16_t kFalse = 0;
inline constexpr std::int16_t kTrue = -1;

namespace ModCNC {

// Where the block goes. Written by X, U, Z, W and by the cycles; Stop sets 0.
extern std::int16_t TargetX;  // radius
extern std::int16_t TargetZ;

// Number of the modal G function, -1 for none. Written by DecodeGWord only; outlives the run.
extern std::int16_t ActiveG;

// Where the tool stands. Written by RunProgram at the start and by every executor after its move,
// played whole or not; Stop sets 0.
extern std::int16_t CurrentX;  // radius
extern std::int16_t CurrentZ;

// F as written, rounded; shown only, no motion reads it.
extern std::int16_t FeedRate;

// I, K, P, Q and R times ten. The second block of G73 divides P and Q by ten again.
extern std::int16_t WordI;
extern std::int16_t WordK;
extern std::int16_t WordP;
extern std::int16_t WordQ;
extern std::int16_t WordR;

// T as written; 0 to 20 are the tools of the library.
extern std::int16_t ToolNumber;
// S as written; M05 sets 0.
extern std::int16_t SpindleSpeed;

extern std::int16_t WordU;  // (U / 2) * 10, a radius
extern std::int16_t WordW;  // W * 10

// Flag: an R word was read and not yet used. The arcs, G90 and G94 clear it when they take WordR.
extern std::int16_t RadiusGiven;

}  // namespace ModCNC

namespace GlobalVariables {

// The billet's length, and its diameter (not halved). Written by ReadBilletLine.
extern std::int16_t BilletZ;
extern std::int16_t BilletX;

// Row under execution; Stop takes its mark away and sets 0.
extern std::int16_t CurrentRow;

// Flag: the run is to end. Start sets 0, Stop sets -1.
extern std::int16_t StopRequested;

// Flag: play without drawing until a break point. Only a break point row clears it in a run.
extern std::int16_t RunToBreakpoint;

// What became of the last Start that wasn't a resume; while its run lasts, what has become of it so
// far. A run that was stopped counts as played.
enum class RunOutcome { None, SyntaxFault, NoBillet, Played };
extern RunOutcome LastRun;

}  // namespace GlobalVariables

namespace ModCNC {

struct Register {
  const char* name;
  std::int16_t* value;
  // It tells of the machine, not of the run, and is shown in the report of a run that is over.
  bool isReported = true;
};

// Every variable of this header.
inline constexpr Register kRegisters[] = {
    {"TargetX", &TargetX},
    {"TargetZ", &TargetZ},
    {"ActiveG", &ActiveG},
    {"CurrentX", &CurrentX},
    {"CurrentZ", &CurrentZ},
    {"FeedRate", &FeedRate},
    {"WordI", &WordI},
    {"WordK", &WordK},
    {"WordP", &WordP},
    {"WordQ", &WordQ},
    {"WordR", &WordR},
    {"ToolNumber", &ToolNumber},
    {"SpindleSpeed", &SpindleSpeed},
    {"WordU", &WordU},
    {"WordW", &WordW},
    {"RadiusGiven", &RadiusGiven},
    {"BilletZ", &GlobalVariables::BilletZ},
    {"BilletX", &GlobalVariables::BilletX},
    {"CurrentRow", &GlobalVariables::CurrentRow, false},
    {"StopRequested", &GlobalVariables::StopRequested, false},
    {"RunToBreakpoint", &GlobalVariables::RunToBreakpoint, false},
};

// Puts every register back to 0, and LastRun to None.
void ResetMachine();

}  // namespace ModCNC
