#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace brimly::testing {

// Sets an environment variable for one test (a null value unsets it) and puts the old value back.
class EnvironmentOverride {
 public:
  EnvironmentOverride(const char* name, const QByteArray& value)
      : name_(name), had_(qEnvironmentVariableIsSet(name)), old_(qgetenv(name)) {
    if (value.isNull()) {
      qunsetenv(name);
    } else {
      qputenv(name, value);
    }
  }
  ~EnvironmentOverride() {
    if (had_) {
      qputenv(name_, old_);
    } else {
      qunsetenv(name_);
    }
  }
  EnvironmentOverride(const EnvironmentOverride&) = delete;
  EnvironmentOverride& operator=(const EnvironmentOverride&) = delete;

 private:
  const char* name_;
  bool had_;
  QByteArray old_;
};

}  // namespace brimly::testing
