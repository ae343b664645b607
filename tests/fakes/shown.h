#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What a user sees at a moment, or would lose, in words: everything that handlers leave behind in
// controls, registers, part and files. Each entry is a name and what there is of it.
using Shown = std::vector<std::pair<std::string, std::string>>;
Shown LookAround();

// In quotation marks, with " / " for a line end of the program's own kind, and escapes for what
// isn't ASCII or can't be seen.
std::string Quoted(std::string_view text);

// Commands that are open, then "Menus" where those that a run closes are. A menu entry must agree
// with its button, and the menus with each other.
std::string OpenCommandNames();

// "3 [*]> G01 X20" is row 2 with a break point and the run on it. Break flag, picture, colours and
// weight must belong to one and the same state.
std::string ShownRow(int row);

// The row that carries the execution mark, -1 for none.
int ExecutingRow();
