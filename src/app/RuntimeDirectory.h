#pragma once

#include <QString>
#include <optional>
#include <string>

namespace brimly {

// The folder that holds the single-instance lock and the request channel. Whatever is in it
// decides whether Brimly runs and whom a later launch talks to, so it must belong to the user and
// be closed to everyone else: $XDG_RUNTIME_DIR where the XDG Base Directory rules accept it (an
// absolute path to a folder of this user's, for him alone), else a folder of his own in the
// temporary folder, `brimly-<uid>`, made for him alone. Neither is ever taken through a link, and
// a folder that fails these checks is not used at all: no other user can squat it.
struct RuntimeDirectory {
  // Empty when there is none; `problem` then says why, naming the path.
  QString path;
  QString problem;
};

// The folder for $XDG_RUNTIME_DIR = `xdgRuntimeDir` and $TMPDIR = `temporaryDir` (null when
// unset), for the user `userId`. A value that is relative, empty or not UTF-8 (which Brimly's
// paths cannot carry) is ignored: the runtime value then gives way to the folder of one's own,
// and the temporary one to /tmp.
RuntimeDirectory chooseRuntimeDirectory(const char* xdgRuntimeDir, const char* temporaryDir,
                                        unsigned userId);
// The same for this process's environment and user.
RuntimeDirectory runtimeDirectoryOfThisProcess();

// The temporary folder for $TMPDIR = `temporaryDir`: the value when it is an absolute UTF-8 path,
// else /tmp.
QString temporaryFolder(const char* temporaryDir);

// Why the folder at `path` is not private to the user `userId` — a link, not a folder, someone
// else's, or open to others (any permission for group or others) — or nothing when it is.
std::optional<QString> whyNotPrivateFolder(const QString& path, unsigned userId);

}  // namespace brimly
