#include "interpreter/decoder.h"

namespace ModCNC {

// The machine has no spindle, coolant or chuck to move yet: M words are passed over.
void DecodeMWord(std::string_view /*word*/) {}

}  // namespace ModCNC
