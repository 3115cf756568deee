#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QString>

namespace brimly {

// The symbols the windows draw are named as on macOS ("gearshape", "eye.slash", …), so that the
// same name works everywhere: macOS draws its own symbol of that name, and elsewhere each name
// maps to one of our own 24 × 24 SVG drawings.
//
// The symbol `symbolName` as a square image `pointSize` device-independent pixels wide, drawn for
// a screen of `devicePixelRatio` (the image has round(pointSize × ratio) physical pixels and
// carries the ratio). The glyph is filled with `colour` (its opacity included) and everything else
// is transparent. A name we have no drawing for, or a size under one physical pixel, gives a null
// image. Renderings are cached, so calling it on every paint costs a look-up. Main thread only.
QImage renderSymbol(const QString& symbolName, double pointSize, const QColor& colour,
                    qreal devicePixelRatio);

// Whether `symbolName` is one of the names `renderSymbol` draws.
bool hasSymbol(const QString& symbolName);

// The application icon, with pixmaps from 16 to 512 pixels drawn from its SVG, so that it shows
// even where Qt's SVG icon engine is not installed. Made once; needs a QGuiApplication.
QIcon applicationIcon();

}  // namespace brimly
