#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "inspection/block_words.h"
#include "inspection/finding.h"
#include "inspection/machined_part.h"
#include "inspection/machining.h"
#include "inspection/word_use.h"
#include "interpreter/run_observer.h"

namespace Inspection {

// Observes one run, from its making until Finish.
class Inspector : public ModCNC::RunObserver {
 public:
  // `rapidRate` in mm/min, above 0. Becomes the Observer.
  explicit Inspector(double rapidRate);
  ~Inspector() override;
  Inspector(const Inspector&) = delete;
  Inspector& operator=(const Inspector&) = delete;

  void OnRow(std::string_view block) override;
  void OnMove() override;

  // After the run: judges how it ended. Once.
  void Finish();

  // In the order of the program, one for each row and cause.
  std::vector<Finding> Findings() const;
  const Machining& Done() const { return machining_; }

 private:
  struct Place {
    int row = 0;
    std::size_t column = 0;
  };
  // Stock units.
  struct Point {
    int z = 0;
    int x = 0;
  };
  // What a move does to the part as it stood.
  struct Cut {
    Point meeting;
    // 0: it takes nothing.
    int depth = 0;
    bool reachesClampedEnd = false;
    // The furthest beyond the centre line.
    Point lowest;
  };

  void StartWithBillet();
  void Add(Place place, const char* key, const std::string& text, std::vector<Figure> figures = {});
  void SettleToolChange();
  void JudgeToolWords(std::span<const Word> words);
  void JudgeFunctions(std::span<const Word> words);
  void JudgeRepetition(std::span<const Word> words, std::int16_t function);
  void JudgeSecondBlock(std::span<const Word> words);
  // Takes the material of the move that stands in PathPoints.
  Cut Walk(bool isRapid);
  void AddCut(const Cut& cut, const char* key, const std::string& what, const std::string& advice);
  void JudgeRapid(const Cut& cut);
  void JudgeFeed(const Cut& cut);
  void JudgePendingTool();
  void JudgeEnd();
  void JudgeBilletLines();

  Machining machining_;
  MachinedPart part_;
  WordUse wordUse_;
  int billetRadius_ = 0;
  bool hasBillet_ = false;

  // By row, column and key.
  std::map<std::tuple<int, std::size_t, std::string_view>, Finding> findings_;

  // The row that is carried out.
  int row_ = 0;
  // Where the tool came to last, as it is played.
  std::optional<Point> tool_;

  // A T word that no M06 has followed yet.
  struct ToolWord {
    Place place;
    std::string text;
    std::optional<std::int16_t> number;
  };
  std::optional<ToolWord> pendingTool_;
  std::optional<std::int16_t> loadedTool_;
  // An M06 whose outcome hasn't been looked at.
  std::optional<Place> toolChange_;

  // The blocks of a G73 have been found faulty: what comes of it isn't told as more faults.
  bool isPatternFaulty_ = false;
  bool hasFeedWord_ = false;
  // The row that ended the run, and what was on when it did.
  struct End {
    int row = 0;
    bool isSpindleOn = false;
    bool isCoolantOn = false;
  };
  std::optional<End> end_;
};

}  // namespace Inspection
