#pragma once

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "inspection/block_words.h"
#include "inspection/finding.h"

namespace Inspection {

// As the status bar tells.
bool IsSpindleOn();

// Follows the words of a run from where they are written to who takes them, and knows in the end
// which ones nobody took.
class WordUse {
 public:
  // A row is about to be carried out, with `function` as the one that moves the tool.
  // Reads the registers and the panels as the row before has left them.
  void OnRow(int row, std::span<const Word> words, std::int16_t function);

  // A feed move is about to be played.
  void OnFeed() { Take("F"); }

  // The words that nothing has used so far.
  std::vector<Finding> Findings() const;

 private:
  struct Use {
    std::string word;
    std::string why;
    bool isUsed = false;
  };

  void Write(int row, const Word& word);
  void TakeAllOf(int row, std::span<const Word> words);
  void WriteSpeed(std::span<const Word> words);
  void TakeForMotion(std::int16_t function, bool hasRadius);
  // Marks what stands in these registers as used.
  void Take(std::string_view registers);

  // By row and column.
  std::map<std::pair<int, std::size_t>, Use> uses_;
  // The word that wrote a register last. X and Z are the targets, which U and W write as well.
  std::map<char, Use*> registers_;
};

}  // namespace Inspection
