#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
  // Nothing shows; a platform that was asked for wins.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
