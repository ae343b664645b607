#include <cstddef>
#include <cstdint>

#include "fuzz/bodies.h"

// libFuzzer's way in. TURNBAY_FUZZ_BODY is the body of the target that is built.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  TURNBAY_FUZZ_BODY({reinterpret_cast<const char*>(data), size});
  return 0;
}
