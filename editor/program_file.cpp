#include "editor/program_file.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "editor/colouring.h"
#include "mainwindow/control_surface.h"
#include "platform/code_page.h"
#include "platform/host/files.h"
#include "platform/numbers.h"
#include "platform/text.h"

namespace frmMain {

bool DocumentIsUtf8;
std::string DocumentFileBytes;

namespace {

std::string EditorBytes() {
  const std::string& text = TextEditor().Text();
  return DocumentIsUtf8 ? CodePageToUtf8(text) : text;
}

std::string TooLong(const std::string& path, const std::string& what, std::size_t count,
                    std::size_t limit) {
  return "The file \"" + path + "\" can't be opened: it has " +
         DecimalText(static_cast<int>(count)) + ' ' + what + ", and a program can have at most " +
         DecimalText(static_cast<int>(limit)) + '.';
}

// Empty when the text isn't too long.
std::string TooLongReason(const std::string& path, const std::string& text) {
  const auto lineEnds = std::count(text.begin(), text.end(), '\n');
  const std::size_t rows = static_cast<std::size_t>(lineEnds) + 1;
  if (rows > kMaxProgramRows) return TooLong(path, "lines", rows, kMaxProgramRows);
  if (text.size() > kMaxColouredLength) {
    return TooLong(path, "characters (a line end is two)", text.size(), kMaxColouredLength);
  }
  return {};
}

// Into TextBuffer.
bool TakeProgram(const std::string& name, std::string_view bytes, std::string& reason) {
  const DecodedText decoded = DecodeProgram(bytes);
  std::string text = WithCrLf(decoded.text);
  if (std::string tooLong = TooLongReason(name, text); !tooLong.empty()) {
    reason = std::move(tooLong);
    return false;
  }
  TextBuffer().SetText(std::move(text));
  DocumentIsUtf8 = decoded.isUtf8;
  DocumentFileBytes = bytes;
  return true;
}

// What stands in TextBuffer.
void ShowLoaded() {
  ColourText();
  EnableCommands(kLoadedProgramCommands, true);
}

}  // namespace

bool LoadFile(const std::string& path, std::string& reason) {
  const auto bytes = ReadFile(path, reason);
  return bytes && TakeProgram(path, *bytes, reason);
}

bool LoadProgram(const std::string& path, std::string& reason) {
  if (!LoadFile(path, reason)) return false;
  ShowLoaded();
  return true;
}

bool ShowProgram(const std::string& name, std::string_view bytes, std::string& reason) {
  if (!TakeProgram(name, bytes, reason)) return false;
  ShowLoaded();
  return true;
}

bool FileHasChanged(const std::string& path) {
  std::string reason;
  const auto found = ReadFile(path, reason);
  return !found || (*found != DocumentFileBytes && *found != EditorBytes());
}

bool SaveFile(const std::string& path, std::string& reason) {
  std::string bytes = EditorBytes();
  if (!ReplaceFile(path, bytes, reason)) return false;
  DocumentFileBytes = std::move(bytes);
  return true;
}

}  // namespace frmMain
