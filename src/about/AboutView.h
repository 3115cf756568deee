#pragma once

#include <QFont>
#include <QImage>
#include <QString>
#include <QWidget>
#include <optional>

#include "about/AboutLayout.h"
#include "accessibility/AccessibleParts.h"

namespace brimly {

// The About window's content: the application icon, name, version, tagline, the maker's mark and
// a footer, drawn on the windows' dark surface exactly where `AboutLayout` puts them. The version
// is read from the application on every paint, so it is never stale. Assistive technologies read
// each line as a label and the maker's mark as a picture named after the maker.
class AboutView : public QWidget, public AccessibleParts {
 public:
  // `fontFamily` empty means the windows' family (`windowFamily`); `logo` is the maker's wordmark,
  // absent to spell the name out instead.
  explicit AboutView(QString fontFamily = {}, std::optional<QImage> logo = defaultLogo(),
                     QWidget* parent = nullptr);

  // What would be drawn now: the texts for the application's current version, and their frames.
  AboutGeometry currentLayout() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

  QAccessible::Role accessibleRole() const override { return QAccessible::Client; }
  std::vector<DrawnText> drawnTexts() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  static std::optional<QImage> defaultLogo();

  AboutGeometry layoutFor(const AboutContent& content) const;
  QFont fontFor(const AboutTextStyle& style) const;
  Size measure(const std::string& text, const AboutTextStyle& style) const;
  // The logo shrunk to `pixels` once: drawn straight from 600 pixels to a few dozen it would
  // alias badly.
  const QImage& logoAt(QSize pixels);

  QString fontFamily_;
  std::optional<QImage> logo_;
  QImage scaledLogo_;
};

}  // namespace brimly
