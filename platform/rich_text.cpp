#include "platform/rich_text.h"

#include <algorithm>

#include "platform/text.h"

std::ptrdiff_t RichText::Find(std::string_view wanted) const {
  const auto place = std::search(text_.begin(), text_.end(), wanted.begin(), wanted.end(),
                                 [](char a, char b) { return ToUpper(a) == ToUpper(b); });
  return place == text_.end() ? -1 : place - text_.begin();
}
