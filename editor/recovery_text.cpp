#include "editor/recovery_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/numbers.h"

// One line: what the file is, its version, the encoding of the document's file, and a check sum
// over the rest. Behind it the path and the count of bytes of the document's file, each ended by a
// byte 0, those bytes, and the text as it is.

namespace frmMain {

namespace {

constexpr std::string_view kHeads[] = {"Turnbay recovery 1 windows-1252 ",
                                       "Turnbay recovery 1 utf-8 "};

// FNV-1a, as 16 digits and a line end.
std::string CheckSum(std::string_view head, std::string_view rest) {
  constexpr std::uint64_t kPrime = 0x100000001B3;
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::uint64_t sum = 0xCBF29CE484222325;
  for (const std::string_view part : {head, rest}) {
    for (const char c : part) sum = (sum ^ static_cast<unsigned char>(c)) * kPrime;
  }
  std::string line;
  for (int shift = 60; shift >= 0; shift -= 4) line += kDigits[sum >> shift & 0xF];
  return line + '\n';
}

// What stands in front of the first byte 0; it goes from `rest` with that byte.
std::string TakeToZero(std::string_view& rest) {
  const std::size_t end = std::min(rest.find('\0'), rest.size());
  std::string taken(rest.substr(0, end));
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return taken;
}

}  // namespace

std::string EncodeRecovery(const RecoveryText& document) {
  const std::string_view head = kHeads[document.isUtf8 ? 1 : 0];
  const std::string size = DecimalText(static_cast<std::int64_t>(document.fileBytes.size()));
  const std::string rest = document.path + '\0' + size + '\0' + document.fileBytes + document.text;
  return std::string(head) + CheckSum(head, rest) + rest;
}

std::optional<RecoveryText> DecodeRecovery(std::string_view bytes) {
  for (const bool isUtf8 : {false, true}) {
    if (!bytes.starts_with(kHeads[isUtf8 ? 1 : 0])) continue;
    std::string_view rest = bytes.substr(std::min(bytes.find('\n') + 1, bytes.size()));
    RecoveryText document{.path = TakeToZero(rest), .isUtf8 = isUtf8, .text = {}};
    const auto size = ParseNumber(TakeToZero(rest));
    if (!size || !(*size >= 0 && *size <= static_cast<double>(rest.size()))) return std::nullopt;
    document.fileBytes = rest.substr(0, static_cast<std::size_t>(*size));
    document.text = rest.substr(document.fileBytes.size());
    if (EncodeRecovery(document) == bytes) return document;
  }
  return std::nullopt;
}

}  // namespace frmMain
