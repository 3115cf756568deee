#pragma once

#include <functional>
#include <string>

namespace brimly::testing {

// What runWithAFullFileSystem() answers where it cannot make a file system of its own; tests skip
// with it as the reason.
inline constexpr const char* kNoFileSystemOfOurOwn =
    "a file system of the test's own takes the superuser and Linux mount namespaces";

// Runs `body` in a child process that has a small file system of its own (a tmpfs of 64 KiB in a
// mount namespace of its own, so that nobody else sees it) mounted on a fresh folder, whose path
// `body` gets. Answers the text `body` returns, or kNoFileSystemOfOurOwn.
std::string runWithAFullFileSystem(
    const std::function<std::string(const std::string& folder)>& body);

// Fills the file system that holds `folder` to its last byte, with a file named "filler" there.
void fillUp(const std::string& folder);

}  // namespace brimly::testing
