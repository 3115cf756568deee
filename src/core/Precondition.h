#pragma once

// Checked preconditions. A violated precondition is a programming error that the program cannot
// recover from: it prints where it happened and aborts, instead of running into undefined
// behaviour. Only conditions that real inputs can never produce are checked this way; bad data
// from the system is handled where it is read.

namespace brimly {

[[noreturn]] void preconditionFailure(const char* message, const char* file, int line);

}  // namespace brimly

#define BRIMLY_REQUIRE(condition, message) \
  ((condition) ? static_cast<void>(0) : ::brimly::preconditionFailure(message, __FILE__, __LINE__))
