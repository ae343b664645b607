#pragma once

#include <QString>

// Brings what is missing of an installed application folder into the user's own, which is made
// where there is none: tools and samples are copied, sounds and the help, which nobody edits, are
// links and so always those of the installed version. What stands there already stays. False when
// something couldn't be brought.
bool FillApplicationFolder(const QString& installed, const QString& users);

// For a program in which the user edits tools: from here on ApplicationFolder is the user's own,
// filled from the installed one. It stays the program's in a build tree. False, and it is the
// installed one, when the user's can't be filled.
bool UseUsersApplicationFolder();
