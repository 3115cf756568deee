#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brimly {

// The files Brimly keeps for the user (its settings, its autostart entry) are read and written
// only through these, so that whatever else sits at their paths — a FIFO, a device, a folder, a
// link, a file of another user, a huge file — is refused instead of followed, blocked on or
// overwritten. Paths are bytes, as the system has them. Every reason is one line that names the
// path (bytes no text can hold shown as \xNN).

struct UserFileRead {
  enum class Outcome {
    missing,  // nothing at the path (or a file where a folder of it should be)
    read,     // `contents` holds the whole file
    refused,  // `problem` says why it was not read
  };
  Outcome outcome = Outcome::missing;
  std::string contents;
  std::string problem;
};

// Reads the file at `path` when it is a regular file of this user of at most `maxBytes` (a link
// to one counts: reading through it changes nothing). Anything else is refused without being read,
// and nothing waits: a FIFO is never opened for a read that could block.
UserFileRead readUserFile(const std::string& path, std::size_t maxBytes);

// Replaces the file at `path` with `contents`: written to a new file beside it, flushed to disk
// and renamed over it, so that a reader finds the old file or the new one, whole. Never writes
// through a link: a link at the path, anything but a regular file, or a file of another user is
// refused and left as it is. A new file is for its owner alone; a replaced one keeps its mode.
// Nothing on success; else why (the system's reason for a failed write, a full disk among them).
std::optional<std::string> replaceUserFile(const std::string& path, std::string_view contents);

// Creates the folder `path` and its missing parents, each for its owner alone (as `mkdir -p -m
// 700` does); folders that exist are left as they are. Nothing on success; else why, naming the
// folder that could not be made.
std::optional<std::string> makeUserFolders(const std::string& path);

// The folder part of `path` ("/a/b" of "/a/b/c"; "/" of "/c").
std::string parentFolder(const std::string& path);

}  // namespace brimly
