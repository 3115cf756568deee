#pragma once

#include <QByteArray>
#include <QVariantMap>
#include <optional>

namespace brimly {

// The INI text of QSettings, parsed and written exactly as QSettings does it (its types, quoting
// and escapes). QSettings works on files only, and on every file it touches it also takes a lock
// file beside it and may block on a FIFO: it is therefore only ever handed a scratch file in a
// private temporary folder, and the user's own file is read and written by the caller.
namespace IniText {

// Every key of `text` with its value, keys of groups other than [General] as "group/key";
// nothing when QSettings finds the text malformed or no scratch file can be made.
std::optional<QVariantMap> parse(const QByteArray& text);

// The text QSettings writes for `values`; nothing when no scratch file can be made.
std::optional<QByteArray> format(const QVariantMap& values);

}  // namespace IniText

}  // namespace brimly
