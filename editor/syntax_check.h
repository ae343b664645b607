#pragma once

#include "platform/rich_text.h"

namespace frmMain {

// Looks for the first word of a program that has not the shape of a word, or names a G function
// that doesn't exist. Such a fault is brought into view, selected and reported in a message box;
// the result is true then. In front of a word without its letter a blank is inserted and selected.
bool CheckSyntax(RichText& editor);

}  // namespace frmMain
