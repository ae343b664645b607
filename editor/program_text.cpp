#include "editor/program_text.h"

namespace frmMain {

void ReformatText(RichText& /*editor*/) {}

bool CheckSyntax(RichText& /*editor*/) {
  return false;
}

}  // namespace frmMain
