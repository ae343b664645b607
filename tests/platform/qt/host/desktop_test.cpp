#include "platform/host/desktop.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace {

// Acts on the next message box as soon as it is up.
template <class Action>
void WhenAsked(Action action) {
  QTimer::singleShot(0, qApp, [action] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    ASSERT_NE(nullptr, box);
    action(*box);
  });
}

TEST(DesktopTest, AMessageBoxHasTheIconAndButtonsOfItsStyle) {
  WhenAsked([](QMessageBox& box) {
    EXPECT_EQ("Orvane's Turnbay", box.windowTitle());
    EXPECT_EQ("<b>X1</b> & more", box.text());
    EXPECT_EQ(Qt::PlainText, box.textFormat());
    EXPECT_EQ(QMessageBox::NoIcon, box.icon());
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  EXPECT_EQ(Desktop::kOk, Desktop::MessageBox("<b>X1</b> & more"));
  WhenAsked([](QMessageBox& box) {
    EXPECT_EQ("Error!", box.windowTitle());
    EXPECT_EQ(QMessageBox::Critical, box.icon());
    QTest::keyClick(&box, Qt::Key_Return);
  });
  EXPECT_EQ(Desktop::kOk, Desktop::MessageBox("Full.", Desktop::kCritical, "Error!"));
}

TEST(DesktopTest, TheProgramEndsWithoutAskingAWindow) {
  class Stubborn : public QWidget {
    void closeEvent(QCloseEvent* event) override { event->ignore(); }
  };
  Stubborn window;
  window.show();
  QTimer::singleShot(0, qApp, [] {
    Desktop::EndProgram();
    Desktop::EndProgram();
  });
  EXPECT_EQ(0, QApplication::exec());
}

}  // namespace
