#pragma once

#include <functional>
#include <string>
#include <string_view>

// Recovery files: each holds what a running program would lose by its end, in the state folder of
// the user, and stays there when the program is killed. A running program holds its own by a lock.

// Replaces the recovery file of this program. False when it can't be written; the former one stays.
bool WriteRecoveryFile(std::string_view bytes);

// Nothing happens when there is none.
void RemoveRecoveryFile();

enum class RecoveryFate {
  // For the next start.
  Stays,
  Goes,
  // It is this program's from now on, and the former one goes.
  BecomesOwn,
};

// Takes over the files of programs that have ended, one after the other, the oldest first, and does
// with each what `visit` says. Those that another program holds and those that can't be read stay.
void VisitEndedRecoveryFiles(const std::function<RecoveryFate(const std::string& bytes)>& visit);
