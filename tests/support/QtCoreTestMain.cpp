// Test main for programs whose code needs a Qt core application (signals, settings, timers).
#include <gtest/gtest.h>

#include <QCoreApplication>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  QCoreApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
