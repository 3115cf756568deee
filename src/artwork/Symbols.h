#pragma once

#include <QColor>
#include <QIcon>
#include <QImage>
#include <QPointF>
#include <QString>

class QPainter;

namespace brimly {

// The symbols the windows draw are named as on macOS ("gearshape", "eye.slash", …), so that the
// same name works everywhere: macOS draws its own symbol of that name, and elsewhere each name
// maps to one of our own SVG drawings. Each drawing is made on the pixel grid of the size the
// windows show it at (its view box: 16 for the header's gauge, 13 for the switch rows' symbols,
// 11 for the tabs' and the metric rows'), with strokes and edges on whole pixels, so that it is
// sharp there and at every whole multiple of it; at any other size it is scaled smoothly.
//
// The symbol `symbolName` as a square image of `pointSize` rounded to whole points (12.5 gives
// 13, the grid the switch rows' drawings are made on) in device-independent pixels, drawn for a
// screen of `devicePixelRatio` (the image has round(points × ratio) physical pixels and carries
// the ratio). The glyph is filled with `colour` (its opacity included) and everything else is
// transparent. A name we have no drawing for, or a size under one physical pixel, gives a null
// image. Renderings are cached, so calling it on every paint costs a look-up. Main thread only.
QImage renderSymbol(const QString& symbolName, double pointSize, const QColor& colour,
                    qreal devicePixelRatio);

// Draws `renderSymbol(symbolName, pointSize, colour, ratio)` centred on `centre`, for the pixel
// ratio of the device `painter` really draws on (a window's backing store, or the image a widget
// is rendered into). The image keeps its own size and is moved by less than a device pixel so
// that its pixels fall on the device's: a drawing made for the pixel grid stays sharp. Made for
// painters that are only translated.
void paintSymbol(QPainter& painter, const QString& symbolName, double pointSize,
                 const QColor& colour, QPointF centre);

// Whether `symbolName` is one of the names `renderSymbol` draws.
bool hasSymbol(const QString& symbolName);

// The application icon, with pixmaps from 16 to 512 pixels drawn from its SVG, so that it shows
// even where Qt's SVG icon engine is not installed. Made once; needs a QGuiApplication.
QIcon applicationIcon();

}  // namespace brimly
