#include "platform/code_page.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace {

// Unicode characters of the bytes 0x80 to 0x9F; all other bytes are their own number.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr unsigned kFirstUpperControl = 0x80;

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

char32_t UnicodeOf(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  const bool isUpperControl =
      code >= kFirstUpperControl && code < kFirstUpperControl + kUpperControls.size();
  return isUpperControl ? kUpperControls[code - kFirstUpperControl] : code;
}

std::optional<char> ByteOf(char32_t character) {
  const auto found = std::find(kUpperControls.begin(), kUpperControls.end(), character);
  if (found != kUpperControls.end()) {
    return static_cast<char>(static_cast<unsigned char>(
        kFirstUpperControl + static_cast<unsigned>(found - kUpperControls.begin())));
  }
  const bool isOwnNumber =
      character < kFirstUpperControl || (character >= 0xA0 && character <= 0xFF);
  if (!isOwnNumber) return std::nullopt;
  return static_cast<char>(static_cast<unsigned char>(character));
}

char Continuation(char32_t bits) {
  return static_cast<char>(static_cast<unsigned char>(0x80 | (bits & 0x3F)));
}

// Takes one character off the front; empty when it isn't valid. The code page reaches no further
// than three bytes, so longer forms count as invalid.
std::optional<char32_t> TakeCharacter(std::string_view& utf8) {
  const auto byteAt = [&](std::size_t i) -> char32_t {
    return i < utf8.size() ? static_cast<unsigned char>(utf8[i]) : 0U;
  };
  const auto isContinuation = [&](std::size_t i) { return (byteAt(i) & 0xC0) == 0x80; };
  const char32_t lead = byteAt(0);
  if (lead < 0x80) {
    utf8.remove_prefix(1);
    return lead;
  }
  if (lead >= 0xC2 && lead <= 0xDF && isContinuation(1)) {
    const char32_t character = (lead & 0x1F) << 6 | (byteAt(1) & 0x3F);
    utf8.remove_prefix(2);
    return character;
  }
  if ((lead & 0xF0) == 0xE0 && isContinuation(1) && isContinuation(2)) {
    const char32_t character = (lead & 0x0F) << 12 | (byteAt(1) & 0x3F) << 6 | (byteAt(2) & 0x3F);
    if (character < 0x800) return std::nullopt;
    utf8.remove_prefix(3);
    return character;
  }
  return std::nullopt;
}

}  // namespace

std::string CodePageToUtf8(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char byte : bytes) {
    const char32_t character = UnicodeOf(byte);
    if (character < 0x80) {
      utf8 += byte;
    } else if (character < 0x800) {
      utf8 += static_cast<char>(static_cast<unsigned char>(0xC0 | character >> 6));
      utf8 += Continuation(character);
    } else {
      utf8 += static_cast<char>(static_cast<unsigned char>(0xE0 | character >> 12));
      utf8 += Continuation(character >> 6);
      utf8 += Continuation(character);
    }
  }
  return utf8;
}

std::optional<std::string> Utf8ToCodePage(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const auto character = TakeCharacter(utf8);
    const auto byte = character ? ByteOf(*character) : std::nullopt;
    if (!byte) return std::nullopt;
    bytes += *byte;
  }
  return bytes;
}

DecodedText DecodeProgram(std::string_view fileBytes) {
  const bool hasMark = fileBytes.starts_with(kByteOrderMark);
  if (hasMark) fileBytes.remove_prefix(kByteOrderMark.size());
  const bool isAscii = std::all_of(fileBytes.begin(), fileBytes.end(),
                                   [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (!isAscii) {
    if (auto text = Utf8ToCodePage(fileBytes)) return {std::move(*text), true};
  }
  return {std::string(fileBytes), false};
}
