#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "platform/rich_text.h"

// What every body of the rich text control must do. A body instantiates the suite with a factory
// that makes an empty control of its kind.
struct RichTextBody {
  std::string name;
  std::function<std::unique_ptr<RichText>()> make;
};
inline void PrintTo(const RichTextBody& body, std::ostream* out) {
  *out << body.name;
}

class RichTextContract : public testing::TestWithParam<RichTextBody> {
 protected:
  std::unique_ptr<RichText> control_ = GetParam().make();
  RichText& control = *control_;
};

// The format of each byte, in place of the runs.
inline std::vector<TextFormat> FormatOfEachByte(const FormattedText& formatted) {
  std::vector<TextFormat> formats;
  for (std::size_t i = 0; i < formatted.runs.size(); ++i) {
    const std::size_t end =
        i + 1 < formatted.runs.size() ? formatted.runs[i + 1].start : formatted.text.size();
    formats.resize(end, formatted.runs[i].format);
  }
  return formats;
}

inline void Select(RichText& control, std::size_t start, std::size_t length) {
  control.SetSelStart(start);
  control.SetSelLength(length);
}
