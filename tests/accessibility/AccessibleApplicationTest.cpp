#include "accessibility/AccessibleApplication.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <algorithm>

#include "accessibility/Accessibility.h"

namespace brimly {
namespace {

// What the application lists now, as the objects behind its children.
std::vector<QObject*> listedWindows() {
  installAccessibility();
  QAccessibleInterface* application = QAccessible::queryAccessibleInterface(qApp);
  std::vector<QObject*> windows;
  for (int i = 0; i < application->childCount(); ++i) {
    QAccessibleInterface* child = application->child(i);
    EXPECT_EQ(application->indexOfChild(child), i);
    windows.push_back(child->object());
  }
  return windows;
}

bool listed(QObject& window) {
  const std::vector<QObject*> windows = listedWindows();
  return std::find(windows.begin(), windows.end(), &window) != windows.end();
}

TEST(AccessibleApplication, IsTheApplicationsInterface) {
  installAccessibility();
  EXPECT_NE(dynamic_cast<AccessibleApplication*>(QAccessible::queryAccessibleInterface(qApp)),
            nullptr);
}

TEST(AccessibleApplication, ListsAPopUpWhileItIsOpen) {
  QWidget popUp(nullptr, Qt::Popup);
  popUp.resize(100, 100);
  popUp.winId();
  EXPECT_FALSE(listed(popUp));
  popUp.show();
  EXPECT_TRUE(listed(popUp));
  popUp.hide();
  EXPECT_FALSE(listed(popUp));
}

TEST(AccessibleApplication, ListsWindowsAsQtDoes) {
  QWidget window;
  window.winId();
  EXPECT_TRUE(listed(window));
  window.show();
  EXPECT_TRUE(listed(window));
}

}  // namespace
}  // namespace brimly
