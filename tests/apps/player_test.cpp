// turnbay-play as scripts use it: exit status, what is said where, and what is written.

#include "tests/apps/player_test.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include "tests/golden.h"

namespace {

TEST_F(PlayerTest, WrongUsageAndUnreadableFilesEndWithTwoAndAReason) {
  Put("good.cnc", "[BILLET X20 Z40");
  Put("long.cnc", std::string(32'767, ' '));
  Put("rows.cnc", std::string(32'767, '\n'));
  const std::pair<QStringList, const char*> cases[] = {
      {{}, "one program"},
      {{"--nonsense", "good.cnc"}, "nonsense"},
      {{"--size", "0x100", "good.cnc"}, "\"0x100\""},
      {{"long.cnc"}, "32767 characters"},
      {{"rows.cnc"}, "32768 lines"},
      {{"--report", "no/such/r.json", "good.cnc"}, "no/such/r.json"},
      {{"--tools", "no/tools", "good.cnc"}, "\"no/tools\""},
      {{"--picture", ".", "good.cnc"}, "can't be written"},
      {{"--picture", "", "good.cnc"}, "--picture needs"},
      {{"--tools", "", "good.cnc"}, "--tools needs"},
      {{"--inspect", "--check", "good.cnc"}, "--inspect and --check exclude"},
      {{"--inspect", "--reformat", "good.cnc"}, "--inspect and --reformat exclude"},
      {{"--rapid-rate", "900", "good.cnc"}, "--rapid-rate needs --inspect"},
      {{"--inspect", "--rapid-rate", "0", "good.cnc"}, "above 0, such as 5000, not \"0\""},
      {{"--inspect", "--rapid-rate", "5e3", "good.cnc"}, "not \"5e3\""}};
  for (const auto& [arguments, reason] : cases) {
    EXPECT_EQ(2, Run(arguments)) << reason;
    EXPECT_TRUE(err_.contains(reason)) << err_.toStdString();
    EXPECT_TRUE(out_.isEmpty());
  }
  player_.setStandardOutputFile("/dev/full");
  for (const QStringList& printing :
       {QStringList{"--reformat"}, QStringList{"--report", "-"}, QStringList{"--help"}}) {
    EXPECT_EQ(2, Run(printing + QStringList{"good.cnc"}));
    EXPECT_TRUE(err_.contains("No space left")) << err_.toStdString();
  }
}

TEST_F(PlayerTest, HelpGroupsItsOptions) {
  EXPECT_EQ(0, Run({"-h"}));
  ExpectGolden("play_help", out_.toStdString());
}

TEST_F(PlayerTest, WhatIsNoOrdinaryFileIsRefusedAtOnce) {
  constexpr const char* kNames[] = {"p.cnc", "ToolList.ini", "t.ini", "t.bmp"};
  for (const std::string pipe : kNames) {
    Put("p.cnc", "[BILLET X4 Z2\nT3 M06");
    Put("ToolList.ini", "3=t.bmp");
    Put("t.ini", "TOOLWIDTH=9\nTOOLHEIGHT=9");
    std::filesystem::remove(Path(pipe));
    ASSERT_EQ(0, mkfifo(Path(pipe).c_str(), 0600));
    EXPECT_EQ(pipe == "p.cnc" ? 2 : 0, Run({"--tools", ".", "p.cnc"}));
    EXPECT_TRUE(err_.contains((pipe + "\" can't be read: it is no ordinary file.").c_str()))
        << err_.toStdString();
    std::filesystem::remove(Path(pipe));
  }
}

// A billet line names both sizes whatever blanks it has, or is warned about.
TEST_F(PlayerTest, ReadsStandardInputAndWarnsOfASizeThatIsNotNamed) {
  const struct {
    const char *text, *warning;
    int diameter, length;
  } cases[] = {
      {"[BILLET  X4   Z2 ", "", 40, 20},
      {"G04\n [BILLET  X4 Y2", "-:2:2: warning: The billet line names no length (Z)", 40, 0},
      {"N1 [BILLET Z4 Z2", "-:1:4: warning: The billet line names no diameter (X)", 0, 40}};
  for (const auto& c : cases) {
    Put("p.cnc", c.text);
    player_.setStandardInputFile(QString::fromStdString(Path("p.cnc")));
    EXPECT_EQ(0, Run({"--report", "-", "-"}));
    EXPECT_TRUE(err_.contains(c.warning)) << err_.toStdString();
    const QJsonArray warnings = Report()["warnings"].toArray();
    EXPECT_EQ(*c.warning != '\0',
              !warnings.isEmpty() && err_.contains(warnings[0]["text"].toString().toUtf8()));
    const QJsonObject registers = Report()["registers"].toObject();
    EXPECT_EQ(c.diameter, registers["BilletX"].toInt());
    EXPECT_EQ(c.length, registers["BilletZ"].toInt());
  }
}

TEST_F(PlayerTest, WhatThereIsNoMemoryForIsToldAndTheOldFileStays) {
  player_.setChildProcessModifier([] {
    const rlimit most{1'000'000'000, 1'000'000'000};
    setrlimit(RLIMIT_AS, &most);
  });
  player_.start(TURNBAY_PLAY, {"--version"});
  if (!player_.waitForFinished() || player_.exitStatus() != QProcess::NormalExit) {
    GTEST_SKIP() << "the sanitizer itself needs more";
  }
  Put("p.cnc", "[BILLET X4 Z2");
  for (const char* size : {"16384x16384", "12000x12000"}) {
    Put("p.png", "old");
    EXPECT_EQ(2, Run({"--size", size, "--picture", "p.png", "p.cnc"}));
    EXPECT_TRUE(err_.contains("enough memory")) << err_.toStdString();
    EXPECT_TRUE(Bytes("p.png") == "old");
  }
}

TEST_F(PlayerTest, AFaultIsToldAtItsPlaceInTheFile) {
  const std::string cases[][3] = {
      {std::string("G0\0X", 4), std::string("p.cnc:1:3: An invalid character '\0' was found.", 44),
       "syntax error"},
      {"\n\n g01x20 [a\n\t\n n5  g48 y3", "p.cnc:5:6: G48 is not a valid G Code", "syntax error"},
      {"[BILLET X20 Z40\rG01 F0,3", "p.cnc:2:7: An invalid character ',' was found.",
       "syntax error"},
      {"G00 X20\n\n  [BILLET X20", "p.cnc:3:3: Billet Size Not Found", "no billet"},
      {"", "p.cnc:1:1: Billet Size Not Found", "no billet"}};
  for (const auto& [text, place, outcome] : cases) {
    Put("p.cnc", text);
    EXPECT_EQ(1, Run({"--size", "70x40", "--picture", "p.png", "--report", "-", "p.cnc"})) << text;
    EXPECT_EQ(std::string("\0\0\0F\0\0\0(", 8), Bytes("p.png").substr(16, 8)) << "as asked for";
    EXPECT_TRUE(err_.contains(QByteArray::fromStdString(place))) << err_.toStdString();
    EXPECT_EQ(outcome, Report()["outcome"].toString().toStdString());
    EXPECT_EQ(1, Run({"--inspect", "p.cnc"})) << "nothing to inspect";
    EXPECT_FALSE(err_.contains("warning") || err_.contains("Cutting")) << err_.toStdString();
  }
}

TEST_F(PlayerTest, CheckAndReformatPlayNothing) {
  Put("p.cnc", "g1x5 [caf\xE9\r\r\n z-3");
  EXPECT_EQ(0, Run({"--reformat", "p.cnc"}));
  EXPECT_EQ(QByteArray("G1 X5 [caf\xE9\r\nZ-3"), out_);
  Put("p.cnc", "g1x5 [caf\xC3\xA9\nq");
  EXPECT_EQ(1, Run({"--check", "--reformat", "p.cnc"}));
  EXPECT_EQ(QByteArray("G1 X5 [caf\xC3\xA9\r\nQ"), out_);
}

TEST_F(PlayerTest, WritesProfileAndReportWithTheToolsOfAnotherFolder) {
  Put("ToolList.ini", "3=gone.bmp\r\n");
  Put("p.cnc", "[BILLET X4 Z.2\nG00 X8 Z1 T03 M00 M06\nG00 X3 Z0.5\nG01 Z-0.1");
  const QStringList options = {"--size", "90x60", "--report", "-", "p.cnc"};
  EXPECT_EQ(0, Run(options + QStringList{"--profile", "out_a\\b.csv", "--tools", "."}));
  EXPECT_TRUE(err_.contains("Error! Tool 3 can")) << err_.toStdString();
  const QJsonObject report = Report();
  EXPECT_EQ(1, report["resumes"].toInt());
  EXPECT_EQ("z_mm,radius_mm,taper\n0,1.5,0\n-0.1,1.5,0\n-0.2,2,0\n", Bytes("out_a\\b.csv"));
  // Run to break point shows nothing, yet leaves the same picture of these feed moves.
  EXPECT_EQ(0, Run(options + QStringList{"--run-to-breakpoint", "--tools", ".", "--turned-part",
                                         "p.png", "--turned-part-size", "60x40"}));
  EXPECT_EQ(report["surface_sha256"], Report()["surface_sha256"]);
  EXPECT_EQ(std::string("\0\0\0<\0\0\0(", 8), Bytes("p.png").substr(16, 8)) << "60 by 40 pixels";
  // Without OpenGL all else is written.
  qputenv("__EGL_VENDOR_LIBRARY_FILENAMES", "/none");
  EXPECT_EQ(2, Run(options + QStringList{"--turned-part", "p.png"}));
  EXPECT_TRUE(err_.contains("p.png: OpenGL") && !Report().isEmpty()) << err_.toStdString();
  qunsetenv("__EGL_VENDOR_LIBRARY_FILENAMES");
}

}  // namespace
