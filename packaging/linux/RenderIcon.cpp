// Renders the application icon's SVG into one PNG of the hicolor icon theme. The build runs it once
// per size, so that the drawing in src/artwork/ stays the only copy of the icon in the sources. It
// draws with Qt's SVG renderer, as the running program draws its own icon.
//
// Usage: brimly_render_icon <icon.svg> <output.png> <pixels>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QString>
#include <QSvgRenderer>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

int fail(const std::string& message) {
  std::fprintf(stderr, "brimly_render_icon: %s\n", message.c_str());
  return 1;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 4) return fail("usage: brimly_render_icon <icon.svg> <output.png> <pixels>");
  const QString source = QString::fromLocal8Bit(argv[1]);
  const QString target = QString::fromLocal8Bit(argv[2]);
  bool isNumber = false;
  const int pixels = QString::fromLocal8Bit(argv[3]).toInt(&isNumber);
  // The hicolor theme's largest folder is 512x512; anything far beyond is a mistake in the build.
  if (!isNumber || pixels < 1 || pixels > 4096) {
    return fail(std::string("not a size in pixels: ") + argv[3]);
  }

  QSvgRenderer renderer(source);
  if (!renderer.isValid()) return fail("cannot read an SVG drawing from " + source.toStdString());

  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  {
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
  }

  // The output's folder (<size>x<size>/) is made here, since the build only names the file.
  if (!QDir().mkpath(QFileInfo(target).absolutePath()) || !image.save(target, "PNG")) {
    return fail("cannot write " + target.toStdString());
  }
  return EXIT_SUCCESS;
}
