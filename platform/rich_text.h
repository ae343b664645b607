#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/property.h"

// A rich text control. Text is single bytes of the Windows-1252 code page, lines divided by CR LF;
// every offset counts bytes from 0.
class RichText {
 public:
  const std::string& Text() const { return text_; }
  void SetText(std::string text) {
    text_ = std::move(text);
    if (changeWatcher_) changeWatcher_();
  }

  // Offset of the first place that holds `wanted`, with the case of A to Z ignored; -1 if none.
  std::ptrdiff_t Find(std::string_view wanted) const;

  // Replaces the one watcher of the text, which hears of each SetText.
  void WatchChange(std::function<void()> watcher) { changeWatcher_ = std::move(watcher); }

  Property<bool> Visible = true;
  // True when the user can't change the text.
  Property<bool> Locked = false;

 private:
  std::function<void()> changeWatcher_;
  std::string text_;
};
