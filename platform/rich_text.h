#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/colour.h"
#include "platform/property.h"

// How a character looks.
struct TextFormat {
  Colour color = 0;
  bool bold = false;
  // Empty for the control's own font.
  std::string fontName;
  // Points; 0 for the size of the control's own font.
  int fontSize = 0;

  bool operator==(const TextFormat&) const = default;
};

// The format from byte `start` to the start of the next run, or to the end of the text.
struct FormatRun {
  std::size_t start = 0;
  TextFormat format;

  bool operator==(const FormatRun&) const = default;
};

// A text with its formats. The first run starts at 0 and neighbours differ; an empty text has none.
struct FormattedText {
  std::string text;
  std::vector<FormatRun> runs;

  bool operator==(const FormattedText&) const = default;
};

struct ControlFont {
  Property<std::string> Name;
};

// A rich text control. Text is single bytes of the Windows-1252 code page, lines divided by CR LF;
// every offset counts bytes from 0, and one beyond the text counts as its end.
class RichText {
 public:
  virtual ~RichText() = default;

  // The reference holds until the text changes.
  virtual const std::string& Text() const = 0;
  // Replaces all of the text. It takes the font that the old one began with, in black; the caret
  // goes to 0.
  virtual void SetText(std::string text) = 0;

  // Text and formats in one step; the caret goes to 0.
  virtual FormattedText TextRTF() const = 0;
  virtual void SetTextRTF(FormattedText formatted) = 0;

  virtual std::size_t SelStart() const = 0;
  // Moves the caret, so that nothing is selected.
  virtual void SetSelStart(std::size_t start) = 0;
  virtual std::size_t SelLength() const = 0;
  virtual void SetSelLength(std::size_t length) = 0;

  virtual std::string SelText() const = 0;
  // Replaces the selection in the format that it begins with; the caret goes behind the new text.
  virtual void SetSelText(std::string_view text) = 0;

  // The format at the start of the selection. With nothing selected it is that of the character in
  // front of the caret, and setting it counts for what is typed next, until the caret moves.
  virtual Colour SelColor() const = 0;
  virtual void SetSelColor(Colour color) = 0;
  virtual bool SelBold() const = 0;
  virtual void SetSelBold(bool bold) = 0;
  virtual std::string SelFontName() const = 0;
  virtual void SetSelFontName(const std::string& name) = 0;
  virtual int SelFontSize() const = 0;
  virtual void SetSelFontSize(int points) = 0;

  // Offset of the first place that holds `wanted`, with the case of A to Z ignored; -1 if none.
  std::ptrdiff_t Find(std::string_view wanted) const;

  // Replaces the one watcher of the text. It hears of each edit of the user and of each SetText,
  // SetTextRTF and SetSelText, even when the text comes out the same; never of formats.
  void WatchChange(std::function<void()> watcher) { changeWatcher_ = std::move(watcher); }

  // True when the user can't change the text; the program always can.
  Property<bool> Locked = false;
  Property<bool> Visible = true;
  Property<Colour> BackColor = Rgb(255, 255, 255);
  ControlFont Font;

 protected:
  RichText() = default;
  RichText(const RichText&) = default;
  RichText& operator=(const RichText&) = default;

  // For the bodies: call it when a change is complete.
  void NotifyChange() const {
    if (changeWatcher_) changeWatcher_();
  }

 private:
  std::function<void()> changeWatcher_;
};
