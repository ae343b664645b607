#include "platform/rich_text.h"

#include <algorithm>

#include "platform/text.h"

std::ptrdiff_t RichText::Find(std::string_view wanted) const {
  const std::string& text = Text();
  const auto place = std::search(text.begin(), text.end(), wanted.begin(), wanted.end(),
                                 [](char a, char b) { return ToUpper(a) == ToUpper(b); });
  return place == text.end() ? -1 : place - text.begin();
}
