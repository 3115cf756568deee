#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <QStringList>

namespace brimly::testing {

// How far a rendering may stray from its reference: a pixel differs when one of its channels is
// off by more than `channel` (of 255), and at most `differingFraction` of the pixels may differ.
struct ImageTolerance {
  int channel = 8;
  double differingFraction = 0.002;
};

// Compares `actual` with the PNG at `referencePath`. With BRIMLY_UPDATE_REFERENCES=1 in the
// environment it writes `actual` there instead and succeeds, which is how references are made
// and refreshed (look at them before committing). On a mismatch the actual rendering is saved
// next to the test program as `<name>.actual.png` for inspection.
// `faces` names the font families the rendering's text is drawn in (those scripts/install-deps
// installs). Where one of them is not installed the rendering cannot match, so nothing is
// compared and the test is marked skipped, naming the missing family; so too on macOS, whose text
// rendering cannot match the references whatever the fonts. The test's other assertions still run.
::testing::AssertionResult matchesReference(const QImage& actual, const QString& referencePath,
                                            const QStringList& faces = {},
                                            ImageTolerance tolerance = {});

}  // namespace brimly::testing
