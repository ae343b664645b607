#pragma once

#include <QFunctionPointer>
#include <string>

// A routine of a part of the program that stands in a library of its own and is loaded when it is
// first needed, so that the start doesn't wait for it. Such a part takes what it shares with the
// program from the program. Null, with the reason in words, when there is no such library.
QFunctionPointer LateRoutine(const char* library, const char* routine, std::string& reason);
