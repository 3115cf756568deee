#pragma once

// Holders that give back a system reference exactly once, so that every early return of a reading
// is leak-free: Core Foundation objects (Create/Copy rule), IOKit objects and the Mach host port.

#include <CoreFoundation/CoreFoundation.h>
#include <IOKit/IOKitLib.h>
#include <mach/mach.h>

#include <utility>

namespace brimly {

// Owns one Core Foundation reference (+1) and releases it when non-null.
template <typename Ref>
class CFOwned {
 public:
  CFOwned() = default;
  explicit CFOwned(Ref ref) : ref_(ref) {}
  CFOwned(const CFOwned&) = delete;
  CFOwned& operator=(const CFOwned&) = delete;
  CFOwned(CFOwned&& other) noexcept : ref_(std::exchange(other.ref_, nullptr)) {}
  CFOwned& operator=(CFOwned&& other) noexcept {
    reset(std::exchange(other.ref_, nullptr));
    return *this;
  }
  ~CFOwned() { reset(); }

  Ref get() const { return ref_; }
  explicit operator bool() const { return ref_ != nullptr; }
  void reset(Ref ref = nullptr) {
    if (ref_ != nullptr) CFRelease(ref_);
    ref_ = ref;
  }

 private:
  Ref ref_ = nullptr;
};

// Owns one IOKit object (service, iterator, registry entry) and releases it when non-zero.
class IOOwned {
 public:
  explicit IOOwned(io_object_t object) : object_(object) {}
  IOOwned(const IOOwned&) = delete;
  IOOwned& operator=(const IOOwned&) = delete;
  ~IOOwned() {
    if (object_ != IO_OBJECT_NULL) IOObjectRelease(object_);
  }

  io_object_t get() const { return object_; }
  explicit operator bool() const { return object_ != IO_OBJECT_NULL; }

 private:
  io_object_t object_;
};

// The host port, asked for once per reader: every mach_host_self() call adds a reference to the
// send right, which is given back here.
class MachHostPort {
 public:
  MachHostPort() : port_(mach_host_self()) {}
  MachHostPort(const MachHostPort&) = delete;
  MachHostPort& operator=(const MachHostPort&) = delete;
  ~MachHostPort() {
    if (port_ != 0) mach_port_deallocate(mach_task_self(), port_);
  }

  host_t get() const { return port_; }

 private:
  host_t port_;
};

}  // namespace brimly
