// Test main for widget tests: they always render offscreen, with or without a display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
