#pragma once

namespace brimly {

// While one lives, a message of Qt's that repeats the one just before it word for word is dropped.
// Qt's Wayland platform now and then says that the compositor went away from two of its threads
// at once: the same line twice, which would read as two failures. Main thread only; one at a
// time. It puts the message handler before it back when it goes.
class RepeatedMessageFilter {
 public:
  RepeatedMessageFilter();
  ~RepeatedMessageFilter();

  RepeatedMessageFilter(const RepeatedMessageFilter&) = delete;
  RepeatedMessageFilter& operator=(const RepeatedMessageFilter&) = delete;
};

}  // namespace brimly
