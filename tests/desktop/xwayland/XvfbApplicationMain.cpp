// Test main for widget tests that need real X11 windows: the application runs on Qt's xcb platform
// against a private Xvfb started here (offscreen where Xvfb is missing; such tests then skip).
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "XvfbApplication.h"
#include "XvfbServer.h"

namespace brimly::testing {
namespace {

std::string display;

}  // namespace

const std::string& xvfbDisplay() {
  return display;
}

}  // namespace brimly::testing

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  std::unique_ptr<brimly::testing::XvfbServer> server;
  // Listing the tests (CTest does, at build time) needs no server.
  if (!GTEST_FLAG_GET(list_tests)) {
    server = std::make_unique<brimly::testing::XvfbServer>(1512, 982);
  }
  if (server && server->isRunning()) {
    brimly::testing::display = server->display();
    qputenv("DISPLAY", QByteArray::fromStdString(server->display()));
    qputenv("QT_QPA_PLATFORM", "xcb");
  } else {
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }
  // The application goes before the server.
  QApplication application(argc, argv);
  const int status = RUN_ALL_TESTS();
  return status;
}
