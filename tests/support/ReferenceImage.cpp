#include "ReferenceImage.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cstdlib>

#include "InstalledFaces.h"

namespace brimly::testing {

namespace {

// Marks the running test skipped without leaving it, so that its other assertions still run.
void skipComparison(const QString& referencePath, const std::string& reason) {
  [&] {
    GTEST_SKIP() << "reference image " << QFileInfo(referencePath).fileName().toStdString()
                 << " not compared: " << reason;
  }();
}

#ifndef __APPLE__
bool updating() {
  const QByteArray value = qgetenv("BRIMLY_UPDATE_REFERENCES");
  return !value.isEmpty() && value != "0";
}

QString savedActual(const QImage& actual, const QString& referencePath) {
  const QString path =
      QDir::current().filePath(QFileInfo(referencePath).completeBaseName() + ".actual.png");
  actual.save(path);
  return path;
}

#endif

}  // namespace

::testing::AssertionResult matchesReference(const QImage& actual, const QString& referencePath,
                                            const QStringList& faces, ImageTolerance tolerance) {
#ifdef __APPLE__
  // The references are FreeType renderings; macOS draws text with Core Text, so no rendering
  // there can match them. No reference is written either.
  skipComparison(referencePath, "the references are FreeType renderings");
  (void)actual;
  (void)faces;
  (void)tolerance;
  return ::testing::AssertionSuccess() << "not compared on macOS";
#else
  if (const std::optional<std::string> missing = missingFaces(faces)) {
    skipComparison(referencePath, "it is drawn in " + *missing);
    return ::testing::AssertionSuccess() << "not compared without its fonts";
  }
  const QImage rendered = actual.convertToFormat(QImage::Format_ARGB32);
  if (updating()) {
    QDir().mkpath(QFileInfo(referencePath).absolutePath());
    if (!rendered.save(referencePath, "PNG")) {
      return ::testing::AssertionFailure() << "could not write " << referencePath.toStdString();
    }
    return ::testing::AssertionSuccess() << "wrote " << referencePath.toStdString();
  }

  QImage reference;
  if (!reference.load(referencePath)) {
    return ::testing::AssertionFailure()
           << "no reference image at " << referencePath.toStdString()
           << " (run with BRIMLY_UPDATE_REFERENCES=1 to make it); rendering saved as "
           << savedActual(rendered, referencePath).toStdString();
  }
  reference = reference.convertToFormat(QImage::Format_ARGB32);
  if (reference.size() != rendered.size()) {
    return ::testing::AssertionFailure()
           << "size " << rendered.width() << "x" << rendered.height() << " differs from the "
           << "reference's " << reference.width() << "x" << reference.height() << "; saved as "
           << savedActual(rendered, referencePath).toStdString();
  }

  long differing = 0;
  int worst = 0;
  for (int y = 0; y < rendered.height(); ++y) {
    const auto* a = reinterpret_cast<const QRgb*>(rendered.constScanLine(y));
    const auto* b = reinterpret_cast<const QRgb*>(reference.constScanLine(y));
    for (int x = 0; x < rendered.width(); ++x) {
      const int delta =
          std::max({std::abs(qRed(a[x]) - qRed(b[x])), std::abs(qGreen(a[x]) - qGreen(b[x])),
                    std::abs(qBlue(a[x]) - qBlue(b[x])), std::abs(qAlpha(a[x]) - qAlpha(b[x]))});
      worst = std::max(worst, delta);
      if (delta > tolerance.channel) ++differing;
    }
  }
  const long allowed = static_cast<long>(tolerance.differingFraction *
                                         static_cast<double>(rendered.width()) * rendered.height());
  if (differing > allowed) {
    return ::testing::AssertionFailure()
           << differing << " pixels differ from " << referencePath.toStdString() << " by more than "
           << tolerance.channel << " (at most " << allowed << " may; worst " << worst
           << "); rendering saved as " << savedActual(rendered, referencePath).toStdString();
  }
  return ::testing::AssertionSuccess();
#endif
}

}  // namespace brimly::testing
