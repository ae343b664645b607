#include "platform/memory_rich_text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

using Difference = std::vector<FormatRun>::difference_type;

}  // namespace

void MemoryRichText::SetText(std::string text) {
  TextFormat format = content_.runs.empty() ? selFormat_ : content_.runs.front().format;
  format.color = 0;
  content_.runs.clear();
  if (!text.empty()) content_.runs.push_back({0, format});
  content_.text = std::move(text);
  selFormat_ = std::move(format);
  Select(0, 0);
  NotifyChange();
}

void MemoryRichText::SetTextRTF(FormattedText formatted) {
  content_ = std::move(formatted);
  Select(0, 0);
  NotifyChange();
}

void MemoryRichText::SetSelStart(std::size_t start) {
  Select(std::min(start, content_.text.size()), 0);
}

void MemoryRichText::SetSelLength(std::size_t length) {
  Select(selStart_, std::min(length, content_.text.size() - selStart_));
}

void MemoryRichText::SetSelText(std::string_view text) {
  const TextFormat format = selFormat_;
  const std::size_t first = CutAt(selStart_);
  const std::size_t last = CutAt(selStart_ + selLength_);
  auto& runs = content_.runs;
  for (std::size_t run = last; run < runs.size(); ++run) {
    runs[run].start += text.size();
    runs[run].start -= selLength_;
  }
  runs.erase(runs.begin() + static_cast<Difference>(first),
             runs.begin() + static_cast<Difference>(last));
  content_.text.replace(selStart_, selLength_, text);
  if (!text.empty()) {
    runs.insert(runs.begin() + static_cast<Difference>(first), {selStart_, format});
  }
  JoinRuns(first, first + (text.empty() ? 0 : 1));
  Select(selStart_ + text.size(), 0);
  NotifyChange();
}

std::size_t MemoryRichText::RunAt(std::size_t offset) const {
  const auto behind =
      std::upper_bound(content_.runs.begin(), content_.runs.end(), offset,
                       [](std::size_t wanted, const FormatRun& run) { return wanted < run.start; });
  return static_cast<std::size_t>(behind - content_.runs.begin()) - 1;
}

std::size_t MemoryRichText::CutAt(std::size_t offset) {
  if (offset == content_.text.size()) return content_.runs.size();
  const std::size_t run = RunAt(offset);
  if (content_.runs[run].start == offset) return run;
  content_.runs.insert(content_.runs.begin() + static_cast<Difference>(run + 1),
                       {offset, content_.runs[run].format});
  return run + 1;
}

void MemoryRichText::JoinRuns(std::size_t first, std::size_t last) {
  auto& runs = content_.runs;
  const auto begin = runs.begin() + static_cast<Difference>(first == 0 ? 0 : first - 1);
  const auto end = runs.begin() + static_cast<Difference>(std::min(last + 1, runs.size()));
  runs.erase(
      std::unique(begin, end,
                  [](const FormatRun& a, const FormatRun& b) { return a.format == b.format; }),
      end);
}

// Both must lie in the text.
void MemoryRichText::Select(std::size_t start, std::size_t length) {
  selStart_ = start;
  selLength_ = length;
  if (content_.text.empty()) return;
  const std::size_t shown = length > 0 || start == 0 ? start : start - 1;
  selFormat_ = content_.runs[RunAt(shown)].format;
}
