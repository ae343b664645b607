// Every sample program end to end: the report of turnbay-play against the kept
// one. tests/keep_samples makes the kept reports anew.

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
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

std::vector<std::string> Samples() {
  return BaseNames(TURNBAY_SAMPLES, "*.cnc");
}

std::vector<std::string> KeptReports() {
  return BaseNames(TURNBAY_KEPT_REPORTS, "*.json");
}

QString PathOf(const char* folder, const std::string& name, const char* extension) {
  return QDir(folder).filePath(QString::fromStdString(name + extension));
}

std::optional<QByteArray> ReadKept(const std::string& name) {
  QFile file(PathOf(TURNBAY_KEPT_REPORTS, name, ".json"));
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  return file.readAll();
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

class SampleTest : public testing::TestWithParam<std::string> {};

TEST_P(SampleTest, GivesItsKeptReport) {
  const auto kept = ReadKept(GetParam());
  ASSERT_TRUE(kept) << "no kept report; look at the sample's picture, then run tests/keep_samples";
  const QJsonObject before = QJsonDocument::fromJson(*kept).object();
  ASSERT_FALSE(before.isEmpty()) << "the kept report can't be read";

  QProcess play;
  play.start(TURNBAY_PLAY, {"--report", "-", PathOf(TURNBAY_SAMPLES, GetParam(), ".cnc")});
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

INSTANTIATE_TEST_SUITE_P(All, SampleTest, testing::ValuesIn(Samples()),
                         [](const auto& sample) { return sample.param; });

TEST(KeptReports, BelongToSamples) {
  EXPECT_FALSE(Samples().empty());
  EXPECT_EQ(Samples(), KeptReports());
}

}  // namespace
