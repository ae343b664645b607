#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/rich_text.h"

// A rich text control without a window. Formatting from the front to the back costs constant time
// a step, whatever the length of the text.
class MemoryRichText : public RichText {
 public:
  const std::string& Text() const override { return content_.text; }
  void SetText(std::string text) override;

  FormattedText TextRTF() const override { return content_; }
  void SetTextRTF(FormattedText formatted) override;

  std::size_t SelStart() const override { return selStart_; }
  void SetSelStart(std::size_t start) override;
  std::size_t SelLength() const override { return selLength_; }
  void SetSelLength(std::size_t length) override;

  std::string SelText() const override { return content_.text.substr(selStart_, selLength_); }
  void SetSelText(std::string_view text) override;

  Colour SelColor() const override { return selFormat_.color; }
  void SetSelColor(Colour color) override { SetSelFormat(&TextFormat::color, color); }
  bool SelBold() const override { return selFormat_.bold; }
  void SetSelBold(bool bold) override { SetSelFormat(&TextFormat::bold, bold); }
  std::string SelFontName() const override { return selFormat_.fontName; }
  void SetSelFontName(const std::string& name) override {
    SetSelFormat(&TextFormat::fontName, name);
  }
  int SelFontSize() const override { return selFormat_.fontSize; }
  void SetSelFontSize(int points) override { SetSelFormat(&TextFormat::fontSize, points); }

 private:
  std::size_t RunAt(std::size_t offset) const;
  // Index of the run that starts at `offset`, one being cut in two for it if need be.
  std::size_t CutAt(std::size_t offset);
  // Joins equal neighbours among the runs `first` to `last` - 1 and the two beside them.
  void JoinRuns(std::size_t first, std::size_t last);
  void Select(std::size_t start, std::size_t length);

  template <class Value>
  void SetSelFormat(Value TextFormat::*member, const Value& value) {
    selFormat_.*member = value;
    if (selLength_ == 0) return;
    const std::size_t first = CutAt(selStart_);
    const std::size_t last = CutAt(selStart_ + selLength_);
    for (std::size_t run = first; run < last; ++run) content_.runs[run].format.*member = value;
    JoinRuns(first, last);
  }

  FormattedText content_;
  std::size_t selStart_ = 0;
  std::size_t selLength_ = 0;
  // What the selection begins with, and what is typed next.
  TextFormat selFormat_;
};
