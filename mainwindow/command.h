#pragma once

#include "debugger/row_edit.h"

namespace frmMain {

// What a menu entry or a button runs when the user chooses it. What has been typed over a row is
// taken over first, so that no command can meet a program that lacks it, whether its writer thought
// of that or not; one that leaves the program alone may leave the edit open.
class Command {
 public:
  constexpr Command(void (*click)()) : click_(click) {}
  static constexpr Command BesideEdit(void (*click)()) { return {click, true}; }

  void Choose() const {
    if (!leavesEdit_) txtDebug_LostFocus();
    click_();
  }

 private:
  constexpr Command(void (*click)(), bool leavesEdit) : click_(click), leavesEdit_(leavesEdit) {}

  void (*click_)();
  bool leavesEdit_ = false;
};

}  // namespace frmMain
