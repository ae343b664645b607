#pragma once

#include <functional>

// The system calls through which a file is saved: opening, writing, flushing, linking, renaming.
// They pass through here on their way to the kernel, so that a test can make one of them fail.
namespace SystemCalls {

// Asked before each call: 0 lets it happen, an errno makes it fail. An empty function takes the
// watch away.
void Watch(std::function<int()> beforeCall);

}  // namespace SystemCalls
