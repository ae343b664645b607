#pragma once

#include <optional>
#include <string>
#include <string_view>

// Between the Windows-1252 code page, in which program text is held, and Unicode. The five bytes
// that the code page leaves undefined stand for the control characters of the same number, so all
// 256 survive the way there and back.

std::string CodePageToUtf8(std::string_view bytes);

// Empty when the text is no valid UTF-8 or holds a character that the code page lacks.
std::optional<std::string> Utf8ToCodePage(std::string_view utf8);

// How the bytes of a program file were understood.
struct DecodedText {
  // Bytes of the code page, without a byte order mark.
  std::string text;
  // The file was UTF-8 beyond ASCII, and is to be saved so again.
  bool isUtf8 = false;
};

// Reads valid UTF-8 beyond ASCII that fits the code page as UTF-8, everything else as bytes of the
// code page.
DecodedText DecodeProgram(std::string_view fileBytes);
