// Every sample and every program of the tests end to end: the report of turnbay-play against the
// kept one. tests/keep_samples makes the kept reports anew.

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

constexpr int kLongestPlayMs = 60'000;

std::vector<std::string> BaseNames(const char* folder, const char* pattern) {
  std::vector<std::string> names;
  for (const QFileInfo& file : QDir(folder).entryInfoList({pattern}, QDir::Files)) {
    names.push_back(file.completeBaseName().toStdString());
  }
  return names;
}

// A program and its kept report, without the extension.
struct Case {
  const char* programs;
  const char* reports;
  std::string name;
};

// Where the programs and their reports are.
constexpr const char* kFolders[][2] = {{TURNBAY_SAMPLES, TURNBAY_KEPT_REPORTS},
                                       {TURNBAY_PROGRAMS, TURNBAY_PROGRAMS}};

std::vector<Case> Cases() {
  std::vector<Case> cases;
  for (const auto& [programs, reports] : kFolders) {
    for (const auto& name : BaseNames(programs, "*.cnc")) {
      cases.push_back({programs, reports, name});
    }
  }
  return cases;
}

QString PathOf(const char* folder, const std::string& name, const char* extension) {
  return QDir(folder).filePath(QString::fromStdString(name + extension));
}

// Where two values of a report part, for a reader who can't see 800 columns at once.
std::string Difference(const QJsonValue& kept, const QJsonValue& played) {
  const QJsonArray before = kept.toArray();
  const QJsonArray now = played.toArray();
  qsizetype i = 0;
  while (i < std::min(before.size(), now.size()) && before[i] == now[i]) ++i;
  const auto text = [](const QJsonValue& value) {
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).toStdString();
  };
  if (!kept.isArray() || !played.isArray()) return text(kept) + " became " + text(played);
  return "from element " + std::to_string(i) + ": " + text(before.at(i)) + " became " +
         text(now.at(i)) + ", sizes " + std::to_string(before.size()) + " and " +
         std::to_string(now.size());
}

class SampleTest : public testing::TestWithParam<Case> {};

TEST_P(SampleTest, GivesItsKeptReport) {
  const auto& [programs, reports, name] = GetParam();
  QFile kept(PathOf(reports, name, ".json"));
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly))
      << "no kept report; look at the sample's picture, then run tests/keep_samples";
  const QJsonObject before = QJsonDocument::fromJson(kept.readAll()).object();
  ASSERT_FALSE(before.isEmpty()) << "the kept report can't be read";

  QProcess play;
  play.start(TURNBAY_PLAY, {"--report", "-", PathOf(programs, name, ".cnc")});
  ASSERT_TRUE(play.waitForFinished(kLongestPlayMs)) << play.errorString().toStdString();
  ASSERT_EQ(QProcess::NormalExit, play.exitStatus());
  EXPECT_EQ(0, play.exitCode()) << play.readAllStandardError().toStdString();
  const QJsonObject now = QJsonDocument::fromJson(play.readAllStandardOutput()).object();

  EXPECT_EQ(before.keys(), now.keys());
  for (const QString& key : before.keys()) {
    EXPECT_TRUE(before[key] == now[key])
        << key.toStdString() << ": " << Difference(before[key], now[key]);
  }
}

INSTANTIATE_TEST_SUITE_P(All, SampleTest, testing::ValuesIn(Cases()),
                         [](const auto& test) { return test.param.name; });

TEST(KeptReports, BelongToPrograms) {
  for (const auto& [programs, reports] : kFolders) {
    EXPECT_FALSE(BaseNames(programs, "*.cnc").empty());
    EXPECT_EQ(BaseNames(programs, "*.cnc"), BaseNames(reports, "*.json"));
  }
}

}  // namespace
