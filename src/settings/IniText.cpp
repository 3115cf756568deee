#include "settings/IniText.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

namespace brimly::IniText {
namespace {

// The scratch file's path in `folder`; QSettings gets a fresh folder each time, so that no file
// it parsed earlier is ever answered from its cache.
QString scratchFile(const QTemporaryDir& folder) {
  return QDir(folder.path()).filePath(QStringLiteral("scratch.ini"));
}

}  // namespace

std::optional<QVariantMap> parse(const QByteArray& text) {
  const QTemporaryDir folder;
  if (!folder.isValid()) return std::nullopt;
  QFile file(scratchFile(folder));
  if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) return std::nullopt;
  file.close();

  const QSettings settings(file.fileName(), QSettings::IniFormat);
  if (settings.status() != QSettings::NoError) return std::nullopt;
  QVariantMap values;
  for (const QString& key : settings.allKeys())
    values.insert(key, settings.value(key));
  return values;
}

std::optional<QByteArray> format(const QVariantMap& values) {
  const QTemporaryDir folder;
  if (!folder.isValid()) return std::nullopt;
  {
    QSettings settings(scratchFile(folder), QSettings::IniFormat);
    for (auto entry = values.begin(); entry != values.end(); ++entry)
      settings.setValue(entry.key(), entry.value());
    settings.sync();
    if (settings.status() != QSettings::NoError) return std::nullopt;
  }
  QFile file(scratchFile(folder));
  // No values, no file: the empty text.
  if (!file.exists()) return QByteArray();
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  return file.readAll();
}

}  // namespace brimly::IniText
