#include "InstalledFaces.h"

#include <QFontDatabase>

namespace brimly::testing {

std::optional<std::string> missingFaces(const QStringList& faces) {
  const QStringList installed = QFontDatabase::families();
  QStringList missing;
  for (const QString& face : faces) {
    if (!installed.contains(face)) missing << face;
  }
  if (missing.isEmpty()) return std::nullopt;
  return missing.join(", ").toStdString() +
         " not installed here (scripts/install-deps installs the fonts)";
}

}  // namespace brimly::testing
