#include "controlpanel/views/ControlPanelView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QEnterEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <optional>

#include "InstalledFaces.h"
#include "ReferenceImage.h"
#include "controlpanel/ControlPanelModel.h"
#include "controlpanel/views/ActionButton.h"
#include "controlpanel/views/ControlPanelWindow.h"
#include "panel/views/QtGeometry.h"
#include "ui/Accent.h"
#include "ui/Switch.h"
#include "ui/TextStyle.h"
#include "usage/AccentColors.h"

namespace brimly {
namespace {

QImage rendered(QWidget& widget) {
  QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

// The card over a mid-grey desktop, so that its shadow shows, on a screen of `ratio` physical
// pixels a point.
QImage onDesktop(QWidget& widget, double ratio = 1.0) {
  QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(QColor(120, 130, 140));
  widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

QString referencePath(const char* name) {
  return QStringLiteral(BRIMLY_REFERENCE_DIR "/") + name;
}

void hover(QWidget& widget) {
  QEnterEvent enter(QPointF(2, 2), QPointF(2, 2), QPointF(2, 2));
  QApplication::sendEvent(&widget, &enter);
}

TEST(ControlPanelView, TheCardIs264WideWithAnEighteenPointMarginAroundIt) {
  ControlPanelModel model(false, false, false, "0.1.0");
  ControlPanelView view(model);
  EXPECT_EQ(view.sizeHint().width(), 300);
  EXPECT_EQ(view.layout().card.width, 264);
  EXPECT_EQ(view.size(), view.sizeHint());
}

TEST(ControlPanelView, MatchesItsReferencePlainAndWithQuitHovered) {
  ControlPanelModel model(true, true, false, "0.1.0");
  ControlPanelView view(model);
  EXPECT_TRUE(testing::matchesReference(onDesktop(view), referencePath("control-card.png"),
                                        testing::windowFaces));
  hover(view.button(3));
  EXPECT_TRUE(testing::matchesReference(
      onDesktop(view), referencePath("control-card-quit-hovered.png"), testing::windowFaces));
}

// The card in each fixed accent: its switches that are on and its header symbol take it.
TEST(ControlPanelView, InEachAccentMatchesItsReference) {
  ControlPanelModel model(true, true, false, "0.1.0");
  ControlPanelView view(model);
  for (const AccentChoice accent : accentChoices) {
    if (accent == AccentChoice::system || accent == AccentChoice::green) continue;
    Accent::shared().setColor(AccentColors::of(accent));
    const std::string name = "control-card-" + std::string(storedName(accent)) + ".png";
    EXPECT_TRUE(testing::matchesReference(onDesktop(view), referencePath(name.c_str()),
                                          testing::windowFaces))
        << name;
  }
  Accent::shared().setColor(Theme::accent);
}

TEST(ControlPanelView, MatchesItsReferenceAtTwoTimes) {
  ControlPanelModel model(true, false, true, "0.1.0");
  ControlPanelView view(model);
  EXPECT_TRUE(testing::matchesReference(onDesktop(view, 2.0), referencePath("control-card-2x.png"),
                                        testing::windowFaces));
}

TEST(ControlPanelView, TheFooterButtonsKeepNinePointsBesideTheirTitlesInTheFontsInUse) {
  ControlPanelModel model(false, false, false, "0.1.0");
  ControlPanelView view(model);
  const QRect card = toQRectF(view.layout().card).toRect();
  for (std::size_t i = 0; i < 4; ++i) {
    const ActionButton& button = view.button(i);
    const double title = QFontMetricsF(button.font(), &view).horizontalAdvance(button.text());
    // The title's width is rounded up to whole points before the padding goes around it.
    EXPECT_NEAR(button.width() - title, 18.0, 1.0) << button.text().toStdString();
    EXPECT_TRUE(card.contains(button.geometry())) << button.text().toStdString();
    EXPECT_EQ(button.y(), view.button(0).y()) << button.text().toStdString();
  }
  EXPECT_GE(view.button(3).geometry().right(), card.right() - 16);
}

TEST(ControlPanelView, SwitchesShowTheModelAndFollowItsChanges) {
  ControlPanelModel model(true, false, true, "1");
  ControlPanelView view(model);
  EXPECT_TRUE(view.fahrenheitSwitch().isOn());
  EXPECT_FALSE(view.pinSwitch().isOn());
  EXPECT_TRUE(view.launchSwitch().isOn());
  model.setPinned(true);
  EXPECT_TRUE(view.pinSwitch().isOn());
}

TEST(ControlPanelView, ASwitchWhoseCallbackIsEmptyStaysAsItWas) {
  ControlPanelModel model(false, false, false, "1");
  ControlPanelView view(model);
  QTest::mouseClick(&view.pinSwitch(), Qt::LeftButton);
  QTest::mouseClick(&view.launchSwitch(), Qt::LeftButton);
  EXPECT_FALSE(view.pinSwitch().isOn());
  EXPECT_FALSE(view.launchSwitch().isOn());
  EXPECT_FALSE(model.isPinned());
}

TEST(ControlPanelView, SwitchesAndButtonsCallTheirCallbacks) {
  ControlPanelModel model(false, false, false, "1");
  std::vector<std::string> calls;
  model.onTogglePin = [&](bool on) { calls.push_back(on ? "pin on" : "pin off"); };
  model.onToggleLaunch = [&](bool on) { calls.push_back(on ? "launch on" : "launch off"); };
  model.onToggleFahrenheit = [&](bool on) { calls.push_back(on ? "F on" : "F off"); };
  model.onOpenSettings = [&] { calls.push_back("settings"); };
  model.onShowPanel = [&] { calls.push_back("show panel"); };
  model.onAbout = [&] { calls.push_back("about"); };
  model.onQuit = [&] { calls.push_back("quit"); };
  ControlPanelView view(model);
  QTest::mouseClick(&view.pinSwitch(), Qt::LeftButton);
  QTest::mouseClick(&view.launchSwitch(), Qt::LeftButton);
  QTest::keyClick(&view.fahrenheitSwitch(), Qt::Key_Space);
  for (std::size_t i = 0; i < 4; ++i)
    QTest::mouseClick(&view.button(i), Qt::LeftButton);
  EXPECT_EQ(calls, (std::vector<std::string>{"pin on", "launch on", "F on", "settings",
                                             "show panel", "about", "quit"}));
}

TEST(ControlPanelView, OnlyQuitIsRedAndItsRedIsDimmerUntilHovered) {
  ControlPanelModel model(false, false, false, "1");
  ControlPanelView view(model);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_FALSE(view.button(i).destructive());
    EXPECT_EQ(view.button(i).foreground(), textColor(TextStyle::secondary));
  }
  ActionButton& quit = view.button(3);
  EXPECT_TRUE(quit.destructive());
  const QColor resting = quit.foreground();
  EXPECT_GT(resting.red(), 2 * resting.green());
  EXPECT_NEAR(resting.alphaF(), 0.82, 0.01);
  hover(quit);
  EXPECT_TRUE(quit.hovering());
  EXPECT_NEAR(quit.foreground().alphaF(), 1.0, 0.01);
  hover(view.button(0));
  EXPECT_EQ(view.button(0).foreground(), textColor(TextStyle::primary));
}

TEST(ControlPanelView, ALongVersionKeepsTheCardsWidthAndOneLine) {
  ControlPanelModel shortVersion(false, false, false, "1");
  ControlPanelModel longVersion(false, false, false,
                                "1.0.0-beta.7+build.20261124.with.a.very.long.suffix");
  ControlPanelView a(shortVersion);
  ControlPanelView b(longVersion);
  EXPECT_EQ(a.sizeHint(), b.sizeHint());
}

// A whole palette of the system's light or dark appearance, every role set from one base colour.
QPalette appearance(bool dark) {
  return dark ? QPalette(QColor(40, 40, 40), QColor(30, 30, 30))
              : QPalette(QColor(240, 240, 240), QColor(255, 255, 255));
}

TEST(ControlPanelView, LooksTheSameWhateverTheSystemAppearance) {
  const QPalette original = QApplication::palette();
  ControlPanelModel model(false, true, false, "1");
  std::optional<QImage> card[2];
  std::optional<QImage> label[2];
  for (const bool dark : {false, true}) {
    QApplication::setPalette(appearance(dark));
    ControlPanelView view(model);
    card[dark] = rendered(view);
    // A widget that does follow the system's appearance, to show that the two differ.
    QLabel follower(QStringLiteral("Brimly"));
    follower.setAutoFillBackground(true);
    follower.resize(80, 20);
    label[dark] = rendered(follower);
  }
  QApplication::setPalette(original);
  ASSERT_NE(label[false], label[true]);
  EXPECT_EQ(card[false], card[true]);
}

TEST(ControlPanelView, EveryControlIsReachedWithTabAndNamed) {
  ControlPanelModel model(false, false, false, "1");
  ControlPanelView view(model);
  EXPECT_EQ(view.pinSwitch().accessibleName(), "Keep panel visible");
  EXPECT_EQ(view.launchSwitch().accessibleName(), "Launch at login");
  EXPECT_EQ(view.fahrenheitSwitch().accessibleName(), "Show in Fahrenheit");
  EXPECT_EQ(view.button(0).accessibleName(), "Settings");
  EXPECT_EQ(view.button(1).accessibleName(), "Show Panel");
  EXPECT_EQ(view.button(2).accessibleName(), "About");
  EXPECT_EQ(view.button(3).accessibleName(), "Quit");
  // Tab walks switches then buttons, in the order they stand.
  EXPECT_EQ(view.pinSwitch().nextInFocusChain(), &view.launchSwitch());
  EXPECT_EQ(view.fahrenheitSwitch().nextInFocusChain(), &view.button(0));
  EXPECT_EQ(view.button(2).nextInFocusChain(), &view.button(3));
}

TEST(ControlPanelWindow, EscapeRunsItsHandler) {
  ControlPanelModel model(false, false, false, "1");
  ControlPanelWindow window(model, ControlPanelWindow::Kind::keyWindow);
  int escapes = 0;
  window.onEscape = [&] { ++escapes; };
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(escapes, 1);
}

TEST(ControlPanelWindow, FitsTheCardAndIsCutToItsShapeWithoutTranslucency) {
  ControlPanelModel model(false, false, false, "1");
  ControlPanelWindow window(model, ControlPanelWindow::Kind::popUp);
  EXPECT_EQ(window.fittingSize(), (Size{300, window.view().layout().windowSize.height}));
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::Popup));
  window.setCutToShape(true);
  const QRect card = window.mask().boundingRect();
  EXPECT_EQ(card.left(), 18);
  EXPECT_EQ(card.width(), 264);
  EXPECT_FALSE(window.mask().contains(QPoint(19, 19)));  // the rounded corner is cut away
  window.setCutToShape(false);
  EXPECT_TRUE(window.mask().isEmpty());
}

}  // namespace
}  // namespace brimly
