#include "debugger/debug_grid.h"

namespace frmMain {

void HighLightExecutingLine(std::int16_t /*lineNum*/) {}

void RemoveHighLighting(std::int16_t /*lineNum*/) {}

}  // namespace frmMain
