#pragma once

#include <QStringList>
#include <optional>
#include <string>

namespace brimly::testing {

// The font families Brimly's drawings are made in on Linux, which scripts/install-deps installs and
// the reference images are drawn in.
// The windows' text, the metric rows' titles and the preview's labels among it: Inter
// (fonts-inter), with its medium and semibold faces.
inline const QStringList windowFaces{"Inter"};
// The panel's designed faces, and what it falls back to without them.
inline const QStringList panelFaces{"Quicksand", "JetBrains Mono"};
inline const QStringList panelFallbackFaces{"DejaVu Sans", "DejaVu Sans Mono"};

// Why a test that needs `faces` cannot run on this machine ("… not installed"), naming each
// missing family; nothing when every one is installed. Needs a QGuiApplication.
std::optional<std::string> missingFaces(const QStringList& faces);

}  // namespace brimly::testing
