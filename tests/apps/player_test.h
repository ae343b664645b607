#pragma once

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>

#include "tests/platform/qt/temporary_folder.h"

// turnbay-play as scripts start it, in a folder of its own.
class PlayerTest : public TemporaryFolderTest {
 protected:
  // Returns the exit status; what was printed is in out_ and err_.
  int Run(const QStringList& arguments) {
    player_.setWorkingDirectory(QString::fromStdString(folder));
    player_.start(TURNBAY_PLAY, arguments);
    EXPECT_TRUE(player_.waitForFinished());
    out_ = player_.readAllStandardOutput();
    err_ = player_.readAllStandardError();
    EXPECT_EQ(QProcess::NormalExit, player_.exitStatus());
    return player_.exitCode();
  }
  QJsonObject Report() { return QJsonDocument::fromJson(out_).object(); }

  QProcess player_;
  QByteArray out_;
  QByteArray err_;
};
