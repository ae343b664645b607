#include "platform/settings_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>
#include <utility>

namespace {

// Without blanks, tabs and the CR of a line end.
std::string_view Bare(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r";
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

// Keys below "[General]" belong to no section, so the section of that name has another spelling.
std::string Header(std::string_view section) {
  return std::string(section == "General" ? "[%" : "[").append(section).append("]");
}

// Places in the text of a store.
struct Place {
  // Of the raw text behind "=", without its line end.
  std::size_t value = std::string_view::npos;
  std::size_t valueEnd = 0;
  // Behind the last line of the section that isn't blank.
  std::size_t sectionEnd = std::string_view::npos;
};

Place FindPlace(std::string_view store, std::string_view section, std::string_view key) {
  const std::string header = Header(section);
  Place place;
  bool isInside = false;
  for (std::size_t start = 0; start < store.size();) {
    const std::size_t end = std::min(store.find('\n', start), store.size());
    const std::string_view line = Bare(store.substr(start, end - start));
    if (line.starts_with('[')) isInside = line == header;
    if (isInside && !line.empty()) {
      place.sectionEnd = std::min(end + 1, store.size());
      const std::size_t equals = std::min(store.find('=', start), end);
      if (equals < end && Bare(store.substr(start, equals - start)) == key) {
        place.value = equals + 1;
        place.valueEnd = end > start && store[end - 1] == '\r' ? end - 1 : end;
      }
    }
    start = end + 1;
  }
  return place;
}

// A surrogate alone, which QSettings writes of a pair, can't be told from its half: it is dropped.
void AppendUtf8(std::uint32_t codePoint, std::string& text) {
  const auto byte = [&](std::uint32_t bits) { text += static_cast<char>(bits & 0xFF); };
  if (codePoint < 0x80) {
    byte(codePoint);
  } else if (codePoint < 0x800) {
    byte(0xC0 | codePoint >> 6);
    byte(0x80 | (codePoint & 0x3F));
  } else if (codePoint < 0x10000 && (codePoint < 0xD800 || codePoint > 0xDFFF)) {
    byte(0xE0 | codePoint >> 12);
    byte(0x80 | (codePoint >> 6 & 0x3F));
    byte(0x80 | (codePoint & 0x3F));
  }
}

// Takes the escape behind a backslash off the front of `rest`.
void AppendEscape(std::string_view& rest, std::string& text) {
  constexpr std::string_view kEscapes = "abfnrtv";
  constexpr std::string_view kMeanings = "\a\b\f\n\r\t\v";
  if (rest.empty()) return;
  const char c = rest.front();
  rest.remove_prefix(1);
  if (const std::size_t known = kEscapes.find(c); known != std::string_view::npos) {
    text += kMeanings[known];
  } else if (c == 'x') {
    std::uint32_t codePoint = 0;
    const char* end = rest.data() + rest.size();
    const auto read = std::from_chars(rest.data(), end, codePoint, 16);
    if (read.ptr != rest.data() && read.ec == std::errc()) AppendUtf8(codePoint, text);
    rest.remove_prefix(static_cast<std::size_t>(read.ptr - rest.data()));
  } else {
    text += c;
  }
}

std::string WithoutTrailingBlanks(std::string text, std::size_t kept) {
  while (text.size() > kept && (text.back() == ' ' || text.back() == '\t')) text.pop_back();
  return text;
}

std::string Unescape(std::string_view raw) {
  std::string text;
  // Blanks outside of quotation marks don't count at the ends; those up to here do.
  std::size_t kept = 0;
  bool isQuoted = false;
  for (raw = Bare(raw); !raw.empty();) {
    const char c = raw.front();
    raw.remove_prefix(1);
    if (c == '"') {
      isQuoted = !isQuoted;
    } else if (c == '\\') {
      AppendEscape(raw, text);
    } else if (c == ',' && !isQuoted) {
      // Text with a comma that somebody wrote without quotation marks.
      text = WithoutTrailingBlanks(std::move(text), kept) + ", ";
      while (!raw.empty() && raw.front() == ' ') raw.remove_prefix(1);
    } else {
      text += c;
      if (!isQuoted) continue;
    }
    kept = text.size();
  }
  text = WithoutTrailingBlanks(std::move(text), kept);
  // A first "@" is doubled: alone it opens other types than text.
  return text.starts_with("@@") ? text.substr(1) : text;
}

bool IsPlain(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
         std::string_view("+-./_:").find(c) != std::string_view::npos;
}

std::string Escape(std::string_view value) {
  if (std::all_of(value.begin(), value.end(), IsPlain)) return std::string(value);
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string raw = value.starts_with('@') ? "\"@" : "\"";
  for (const char c : value) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      raw += '\\';
      raw += c;
    } else if (c == '\n') {
      raw += "\\n";
    } else if (c == '\r') {
      raw += "\\r";
    } else if (byte < 0x20 || byte == 0x7F) {
      // The quotation marks end the number, which would take digits behind it along.
      raw += "\\x";
      raw += kDigits[byte / 16];
      raw += kDigits[byte % 16];
      raw += "\"\"";
    } else {
      raw += c;
    }
  }
  return raw + '"';
}

}  // namespace

std::optional<std::string> FindSetting(std::string_view store, std::string_view section,
                                       std::string_view key) {
  const Place place = FindPlace(store, section, key);
  if (place.value == std::string_view::npos) return std::nullopt;
  return Unescape(store.substr(place.value, place.valueEnd - place.value));
}

std::string WithSetting(std::string_view store, std::string_view section, std::string_view key,
                        std::string_view value) {
  const Place place = FindPlace(store, section, key);
  const std::string raw = Escape(value);
  if (place.value != std::string_view::npos) {
    return std::string(store.substr(0, place.value)) + raw +
           std::string(store.substr(place.valueEnd));
  }
  const std::size_t end = std::min(place.sectionEnd, store.size());
  std::string text(store.substr(0, end));
  if (!text.empty() && text.back() != '\n') text += '\n';
  if (place.sectionEnd == std::string_view::npos) {
    if (!text.empty()) text += '\n';
    text += Header(section) + '\n';
  }
  return text + std::string(key) + '=' + raw + '\n' + std::string(store.substr(end));
}
