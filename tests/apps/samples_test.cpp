// Every sample and every program of the tests end to end: the report of turnbay-play against the
// kept one. TURNBAY_WRITE_GOLDEN=1 writes it anew: look at the sample's picture first, and at what
// the program's comments promise.

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <filesystem>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr const char* kPrograms = TURNBAY_DATA "/programs";

// A program and its kept report.
using Case = std::pair<fs::path, fs::path>;

std::vector<Case> Cases() {
  std::vector<Case> cases;
  for (const auto& [programs, reports] :
       {Case{TURNBAY_SAMPLES, TURNBAY_DATA "/samples"}, {kPrograms, kPrograms}}) {
    for (const auto& entry : fs::directory_iterator(programs)) {
      const fs::path& program = entry.path();
      if (program.extension() != ".cnc") continue;
      cases.emplace_back(program, (reports / program.stem()).concat(".json"));
    }
  }
  return cases;
}

class SampleTest : public testing::TestWithParam<Case> {};

TEST_P(SampleTest, GivesItsKeptReport) {
  const auto& [program, report] = GetParam();
  const QString path = QString::fromStdString(program);
  if (std::getenv("TURNBAY_WRITE_GOLDEN") != nullptr) {
    QProcess::execute(TURNBAY_PLAY, {"--report", QString::fromStdString(report), path});
  }
  QFile kept(report);
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly)) << "run it with TURNBAY_WRITE_GOLDEN=1";
  const QJsonObject before = QJsonDocument::fromJson(kept.readAll()).object();
  ASSERT_FALSE(before.isEmpty()) << "the kept report can't be read";

  // Also as its own reference, of which nothing may be left when it is played itself.
  QProcess play;
  QStringList arguments{"--report", "-", "--compare", path, path};
  const bool isSample = program.parent_path() == TURNBAY_SAMPLES;
  if (isSample) arguments += "--inspect";
  play.start(TURNBAY_PLAY, arguments);
  ASSERT_TRUE(play.waitForFinished(60'000)) << play.errorString().toStdString();
  // Samples are clean, but for the one that slips on purpose.
  const bool isMeantToFail = program.stem() == "five_slips";
  EXPECT_EQ(isMeantToFail ? 3 : 0, play.exitCode()) << play.readAllStandardError().toStdString();
  QJsonObject now = QJsonDocument::fromJson(play.readAllStandardOutput()).object();
  EXPECT_TRUE(now.take("comparison")["within"].toBool());
  for (const char* key : {"inspection", "machining"})
    EXPECT_EQ(isSample, !now.take(key).isUndefined());
  EXPECT_EQ(before.keys(), now.keys());
  for (const QString& key : before.keys()) {
    EXPECT_TRUE(before[key] == now[key]) << key.toStdString() << "; see turnbay-play --report - "
                                         << program << " | diff " << report << " -";
  }
}

INSTANTIATE_TEST_SUITE_P(All, SampleTest, testing::ValuesIn(Cases()),
                         [](const auto& test) { return test.param.first.stem().string(); });

}  // namespace
