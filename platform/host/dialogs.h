#pragma once

#include <string>

#include "platform/colour.h"

// The common dialog control. Set its members, show it, read them. The linker picks the bodies of
// the routines.
struct CommonDialog {
  // Overwrite prompt (2), no change of directory (8), path must exist (2048), file must exist
  // (4096).
  static constexpr int kFileFlags = 2 + 8 + 2048 + 4096;

  // Captions and patterns in turn, divided by "|".
  std::string Filter;
  int Flags = 0;
  // The folder in which a dialog stands that nothing else has a place for.
  std::string InitDir;
  // The full path that was chosen. ShowSave begins with it: it stands in its folder, or in InitDir
  // without one, with its name filled in.
  std::string FileName;
  // With it a Cancel counts as an error: the routine returns false.
  bool CancelError = false;

  // Both show a file dialog modally and return true when FileName may be used: it is the file
  // chosen, or unchanged when a Cancel is no error. Where a save would fail, the dialog says why
  // and stays open.
  bool ShowOpen();
  bool ShowSave();

  // What the colour dialog begins with and what was chosen in it last.
  Colour Color = 0;
  // Shows the colour dialog modally. After a Cancel, which is never an error, it returns false and
  // Color is as it was.
  bool ShowColor();
};
