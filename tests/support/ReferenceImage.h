#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QString>

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
// next to the test program as `<name>.actual.png` for inspection. On macOS, whose text rendering
// cannot match the references, it compares nothing and marks the test skipped (see the source).
::testing::AssertionResult matchesReference(const QImage& actual, const QString& referencePath,
                                            ImageTolerance tolerance = {});

}  // namespace brimly::testing
