#pragma once

#include <QProcess>
#include <QStringList>
#include <memory>
#include <string>

namespace brimly::testing {

// A private virtual X server for one test program: started on a free display number (the server
// picks it and tells us on its standard output), stopped when the object goes.
class XvfbServer {
 public:
  // `extraArguments` go to Xvfb as they are, e.g. {"-extension", "XInputExtension"}.
  explicit XvfbServer(int width, int height, const QStringList& extraArguments = {});
  ~XvfbServer();

  // False when Xvfb is not installed or did not come up.
  bool isRunning() const { return !display_.empty(); }
  // ":N", or empty when not running.
  const std::string& display() const { return display_; }

 private:
  std::unique_ptr<QProcess> process_;
  std::string display_;
};

}  // namespace brimly::testing
