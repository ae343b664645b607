// What --inspect tells of each program of tests/data/inspection, whole: exit status, findings and
// summary, and of the programs of machining the report. TURNBAY_WRITE_GOLDEN=1 writes it anew.

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

#include "tests/golden.h"

namespace {

namespace fs = std::filesystem;

std::vector<std::string> Programs() {
  std::vector<std::string> programs;
  for (const auto& entry : fs::directory_iterator(TURNBAY_INSPECTION)) {
    if (entry.path().extension() == ".cnc") programs.push_back(entry.path().stem());
  }
  return programs;
}

class InspectedProgramTest : public testing::TestWithParam<std::string> {};

TEST_P(InspectedProgramTest, TellsItsFindingsAndNothingElse) {
  QProcess play;
  play.setWorkingDirectory(TURNBAY_INSPECTION);
  const QString program = QString::fromStdString(GetParam() + ".cnc");
  play.start(TURNBAY_PLAY, {"--inspect", "--rapid-rate", "3000", "--report", "-", program});
  ASSERT_TRUE(play.waitForFinished(60'000)) << play.errorString().toStdString();
  QByteArray told = "exit status " + QByteArray::number(play.exitCode()) + '\n';
  told += play.readAllStandardError();
  if (program.startsWith("machining")) {
    QJsonObject report = QJsonDocument::fromJson(play.readAllStandardOutput()).object();
    for (const QString& key : report.keys()) {
      if (!QStringList{"inspection", "machining", "warnings"}.contains(key)) report.remove(key);
    }
    told += QJsonDocument(report).toJson();
  }
  ExpectGolden("../inspection/" + GetParam(), told.toStdString());
}

TEST(InspectionTest, SamplesAreClean) {
  for (const auto& entry : fs::directory_iterator(TURNBAY_SAMPLES)) {
    QProcess play;
    play.start(TURNBAY_PLAY, {"--inspect", QString::fromStdString(entry.path())});
    ASSERT_TRUE(play.waitForFinished(60'000)) << play.errorString().toStdString();
    const bool isMeantToFail = entry.path().stem() == "five_slips";
    EXPECT_EQ(isMeantToFail ? 3 : 0, play.exitCode()) << play.readAllStandardError().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(All, InspectedProgramTest, testing::ValuesIn(Programs()),
                         [](const auto& test) { return test.param; });

}  // namespace
