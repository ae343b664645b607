#pragma once

#include <string>
#include <string_view>

// The way of a program between its file and the controls. A file is plain text, single bytes of
// the code page, unless it was UTF-8 when it was read.
namespace frmMain {

// The most rows that a program can have: rows are numbered by 16 bits.
inline constexpr int kMaxProgramRows = 32'767;

// The document's file is UTF-8. Written by LoadFile; a new document is none.
extern bool DocumentIsUtf8;

// Of the document's file as it was last read or written here.
extern std::string DocumentFileBytes;

// Reads a program into TextBuffer, with every line end made CR LF. When it can't be read, or is
// longer than what can be coloured or run, the result is false, `reason` says why, and nothing has
// changed.
bool LoadFile(const std::string& path, std::string& reason);

// As LoadFile, and brings the program to the editor, coloured and saved, with its commands open.
bool LoadProgram(const std::string& path, std::string& reason);

// As LoadProgram, from bytes that have been read; `name` is what a reason calls them.
bool ShowProgram(const std::string& name, std::string_view bytes, std::string& reason);

// True when the document's file isn't as it was when it was last read or written here, and not as
// the editor has it either: another program has changed or removed it.
bool FileHasChanged(const std::string& path);

// Writes the editor's text. When that fails, the result is false, `reason` says why, and the old
// file is whole.
bool SaveFile(const std::string& path, std::string& reason);

}  // namespace frmMain
