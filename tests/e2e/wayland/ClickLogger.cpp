// The window beneath Brimly's panel in the Wayland end-to-end tests: full screen, of one colour,
// it writes "shown" once it is on screen and "click X Y" for each press of a mouse button it
// gets, in its own points, on standard output. "maximized" leaves the desktop's bars in sight.
//
// usage: brimly_click_logger RRGGBB [maximized]   (run on Qt's Wayland platform)
#include <QApplication>
#include <QColor>
#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <cstdio>

namespace {

class ClickLogger : public QWidget {
 public:
  explicit ClickLogger(QColor colour) : colour_(colour) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter(this).fillRect(rect(), colour_);
    if (shown_) return;
    shown_ = true;
    std::printf("shown\n");
    std::fflush(stdout);
  }
  void mousePressEvent(QMouseEvent* event) override {
    std::printf("click %d %d\n", event->position().toPoint().x(), event->position().toPoint().y());
    std::fflush(stdout);
  }

 private:
  QColor colour_;
  bool shown_ = false;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const bool maximized = argc == 3 && QString(argv[2]) == "maximized";
  if (argc != 2 && !maximized) {
    std::fprintf(stderr, "usage: %s RRGGBB [maximized]\n", argv[0]);
    return 2;
  }
  ClickLogger window(QColor(QString("#") + argv[1]));
  if (maximized) {
    // Without the title bar Qt would draw itself: the window's points start where the desktop's
    // usable area does.
    window.setWindowFlag(Qt::FramelessWindowHint);
    window.showMaximized();
  } else {
    window.showFullScreen();
  }
  return QApplication::exec();
}
