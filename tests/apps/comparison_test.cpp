// Comparison, solid and section as scripts ask for them.

#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <set>
#include <string>

#include "tests/apps/player_test.h"
#include "tests/golden.h"

namespace {

class ComparisonTest : public PlayerTest {
 protected:
  void SetUp() override {
    PlayerTest::SetUp();
    std::filesystem::copy(TURNBAY_COMPARISON, folder);
  }
};

// Each command of the kept text anew: what it says, its part of the report, what it writes and how
// it ends.
TEST_F(ComparisonTest, SaysAndWritesWhatItsTranscriptTells) {
  std::ifstream kept(TURNBAY_GOLDEN "/comparison.txt");
  std::string text;
  for (std::string line; std::getline(kept, line);) {
    if (!line.starts_with("$ ")) continue;
    const int status = Run(QString::fromStdString(line.substr(2)).split(' '));
    text += line + '\n' + err_.toStdString();
    if (!out_.isEmpty()) {
      const QJsonDocument comparison(Report()["comparison"].toObject());
      text += comparison.toJson(QJsonDocument::Compact).toStdString() + '\n';
    }
    std::set<std::string> written;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      const std::string name = entry.path().filename();
      if (!std::filesystem::exists(TURNBAY_COMPARISON "/" + name)) written.insert(name);
    }
    for (const std::string& name : written) {
      text += "writes " + name + '\n';
      std::filesystem::remove(Path(name));
    }
    text += "ends with " + std::to_string(status) + "\n\n";
  }
  ExpectGolden("comparison", text);
}

// How many pixels below the legend have the colour of what stands, or of what is cut away.
int Count(const QImage& picture, QRgb colour) {
  int count = 0;
  for (int y = 130; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) count += picture.pixel(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST_F(ComparisonTest, TheDifferenceShowsWhatStandsAndWhatIsCutAway) {
  const QRgb standing = qRgb(240, 160, 0);
  const QRgb cutAway = qRgb(0, 90, 170);
  const std::pair<QString, QString> cases[] = {{"deeper.cnc", "shaft.cnc"},
                                               {"shaft.cnc", "deeper.cnc"}};
  for (const auto& [reference, part] : cases) {
    EXPECT_EQ(3, Run({"--compare", reference, "--difference", "d.png", part}));
    const QImage picture(QString::fromStdString(Path("d.png")));
    const bool stands = part == "shaft.cnc";
    // At 17.5 pixels a mm 2 mm by 10 mm twice, and a bar of 14 pixels: 12,740 less the hatch.
    EXPECT_NEAR(10'200, Count(picture, stands ? standing : cutAway), 1'500);
    EXPECT_EQ(0, Count(picture, stands ? cutAway : standing));
  }
}

TEST_F(ComparisonTest, TheSectionIsADimensionedDrawing) {
  std::string drawings;
  for (const char* name : {"chess_pawn", "taper_turning"}) {
    Run({"--section", "s.svg", QString(TURNBAY_SAMPLES "/%1.cnc").arg(name)});
    drawings += Bytes("s.svg");
  }
  ExpectGolden("sections", drawings);
}

}  // namespace
