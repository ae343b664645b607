// turnbay-play as scripts use it: exit status, what is said where, and what is written.

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class PlayerTest : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(folder_.isValid());
    player_.setWorkingDirectory(folder_.path());
  }

  void Write(const char* name, const QByteArray& bytes) {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }
  QByteArray Read(const char* name) {
    QFile file(folder_.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  // Returns the exit status; what was printed is in out_ and err_.
  int Run(const QStringList& arguments) {
    player_.start(TURNBAY_PLAY, arguments);
    EXPECT_TRUE(player_.waitForFinished());
    out_ = player_.readAllStandardOutput();
    err_ = player_.readAllStandardError();
    EXPECT_EQ(QProcess::NormalExit, player_.exitStatus());
    return player_.exitCode();
  }
  QJsonObject Report() { return QJsonDocument::fromJson(out_).object(); }

  QTemporaryDir folder_;
  QProcess player_;
  QByteArray out_;
  QByteArray err_;
};

TEST_F(PlayerTest, WrongUsageAndUnreadableFilesEndWithTwoAndAReason) {
  Write("good.cnc", "[BILLET X20 Z40");
  Write("long.cnc", QByteArray(32'767, ' '));
  Write("rows.cnc", QByteArray(32'767, '\n'));
  const struct {
    QStringList arguments;
    const char* reason;
  } cases[] = {{{}, "one program"},
               {{"good.cnc", "good.cnc"}, "one program"},
               {{"--nonsense", "good.cnc"}, "nonsense"},
               {{"--size", "100", "good.cnc"}, "\"100\""},
               {{"--size", "0x100", "good.cnc"}, "\"0x100\""},
               {{"--size", "100x99999", "good.cnc"}, "16384"},
               {{"gone.cnc"}, "gone.cnc"},
               {{"."}, "folder"},
               {{"long.cnc"}, "32767 characters"},
               {{"rows.cnc"}, "32768 lines"},
               {{"--report", "no/such/r.json", "good.cnc"}, "no/such/r.json"},
               {{"--picture", ".", "good.cnc"}, "can't be written"}};
  for (const auto& c : cases) {
    EXPECT_EQ(2, Run(c.arguments)) << c.reason;
    EXPECT_TRUE(err_.contains(c.reason)) << err_.toStdString();
    EXPECT_TRUE(out_.isEmpty());
  }
}

TEST_F(PlayerTest, HelpAndVersionGoToStandardOutput) {
  EXPECT_EQ(0, Run({"--help"}));
  for (const char* option : {"--size", "--tools", "--picture", "--profile", "--report", "--check",
                             "--reformat", "--run-to-breakpoint"}) {
    EXPECT_TRUE(out_.contains(option)) << option;
  }
  EXPECT_EQ(0, Run({"--version"}));
  EXPECT_TRUE(out_.startsWith("turnbay-play "));
}

TEST_F(PlayerTest, AFaultIsToldAtItsPlaceInTheFile) {
  const struct {
    const char* text;
    const char* place;
    const char* outcome;
  } cases[] = {
      {"\n\n g01x20 [a\n\t\n n5  g48 y3", "p.cnc:5:6: G48 is not a valid G Code", "syntax error"},
      {"[BILLET X20 Z40\rG01 F0,3", "p.cnc:2:7: An invalid character ',' was found.",
       "syntax error"},
      {"8250 G00 Z150", "p.cnc:1:1: Missing Character at this position.", "syntax error"},
      {"G00 X\t1.2.3", "p.cnc:1:7: This is not a valid numeric value", "syntax error"},
      {"G00 X20\n\n  [BILLET X20", "p.cnc:3:3: Billet Size Not Found", "no billet"},
      {"G00 X20", "p.cnc:1:1: Billet Size Not Found", "no billet"},
      {"", "p.cnc:1:1: Billet Size Not Found", "no billet"}};
  for (const auto& c : cases) {
    Write("p.cnc", c.text);
    EXPECT_EQ(1, Run({"--report", "-", "p.cnc"})) << c.text;
    EXPECT_TRUE(err_.contains(c.place)) << err_.toStdString();
    EXPECT_EQ(c.outcome, Report()["outcome"].toString().toStdString());
    EXPECT_EQ(QString(c.outcome) == "syntax error", Report()["check"].isObject());
  }
}

TEST_F(PlayerTest, CheckAndReformatPlayNothing) {
  Write("p.cnc", "g1x5 [caf\xE9\r\r\n z-3");
  EXPECT_EQ(0, Run({"--reformat", "p.cnc"}));
  EXPECT_EQ(QByteArray("G1 X5 [caf\xE9\r\nZ-3"), out_);
  EXPECT_EQ(0, Run({"--check", "p.cnc"}));
  EXPECT_TRUE(out_.isEmpty() && err_.isEmpty()) << err_.toStdString();
  Write("p.cnc", "g1x5 [caf\xC3\xA9\nq");
  EXPECT_EQ(1, Run({"--check", "--reformat", "p.cnc"}));
  EXPECT_EQ(QByteArray("G1 X5 [caf\xC3\xA9\r\nQ"), out_);
}

TEST_F(PlayerTest, WritesPictureProfileAndReport) {
  Write("p.cnc", "[BILLET X4 Z1\nG00 X8 Z1 M00\nG00 X3 Z0.5\nG01 Z-0.5");
  EXPECT_EQ(0, Run({"--size", "90x60", "--picture", "p.png", "--profile", "p.csv", "--report", "-",
                    "p.cnc"}));
  EXPECT_TRUE(Read("p.png").startsWith("\x89PNG"));
  EXPECT_EQ(QByteArray("z_mm,radius_mm,taper\n0,1.5,0\n-0.1,1.5,0\n-0.2,1.5,0\n-0.3,1.5,0\n"
                       "-0.4,1.5,0\n-0.5,1.5,0\n-0.6,2,0\n-0.7,2,0\n-0.8,2,0\n-0.9,2,0\n-1,2,0\n"),
            Read("p.csv"));
  const QJsonObject report = Report();
  for (const char* field :
       {"outcome", "messages", "check", "text", "notifications", "registers", "panels", "resumes",
        "points_played", "profile", "taper", "surface_sha256"}) {
    EXPECT_TRUE(report.contains(field)) << field;
  }
  EXPECT_EQ(1, report["resumes"].toInt());
  // Run to break point shows nothing, yet leaves the same picture of these feed moves.
  EXPECT_EQ(0, Run({"--size", "90x60", "--run-to-breakpoint", "--report", "-", "p.cnc"}));
  EXPECT_EQ(report["surface_sha256"], Report()["surface_sha256"]);
}

TEST_F(PlayerTest, TakesTheToolsOfAnotherFolder) {
  QDir(folder_.path()).mkdir("mine");
  Write("mine/ToolList.ini", "3=gone.bmp\r\n");
  Write("p.cnc", "[BILLET X4 Z1\nT03 M06");
  EXPECT_EQ(0, Run({"--tools", "mine", "p.cnc"}));
  EXPECT_TRUE(err_.contains("tool.bmp")) << err_.toStdString();
  EXPECT_TRUE(err_.contains("gone.")) << err_.toStdString();
}

}  // namespace
