#include "accessibility/AccessibleWidget.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QSignalSpy>

#include "AccessibleTree.h"
#include "accessibility/AccessibleParts.h"

namespace brimly {
namespace {

// A widget that paints two texts of its own and holds one child widget.
class Painted : public QWidget, public AccessibleParts {
 public:
  Painted() { resize(200, 100); }

  QAccessible::Role accessibleRole() const override { return QAccessible::Grouping; }
  void addAccessibleState(QAccessible::State& state) const override { state.selected = true; }
  std::vector<DrawnText> drawnTexts() const override { return texts; }

  std::vector<DrawnText> texts{{"First", "one", QRectF(10, 20, 30, 12)},
                               {"Second", {}, QRectF(10, 40, 30, 12), QAccessible::Graphic}};
};

// A button that says it is a page tab.
class Tab : public QAbstractButton, public AccessibleParts {
 public:
  QAccessible::Role accessibleRole() const override { return QAccessible::PageTab; }

 protected:
  void paintEvent(QPaintEvent*) override {}
};

TEST(AccessibleWidget, TakesItsRoleAndExtraStatesFromTheWidget) {
  Painted widget;
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
  ASSERT_NE(interface, nullptr);
  EXPECT_NE(dynamic_cast<AccessibleWidget*>(interface), nullptr);
  EXPECT_EQ(interface->role(), QAccessible::Grouping);
  EXPECT_TRUE(interface->state().selected);
}

TEST(AccessibleWidget, ReadsPaintedTextsBeforeChildWidgets) {
  Painted widget;
  auto* child = new QWidget(&widget);
  child->setAccessibleName("Child");
  const AccessibleNode tree = readAccessible(widget);
  ASSERT_EQ(tree.children.size(), 3u) << describeAccessible(tree);
  EXPECT_EQ(tree.children[0].role, QAccessible::StaticText);
  EXPECT_EQ(tree.children[0].name, "First");
  EXPECT_EQ(tree.children[0].description, "one");
  EXPECT_EQ(tree.children[1].role, QAccessible::Graphic);
  EXPECT_EQ(tree.children[1].name, "Second");
  EXPECT_EQ(tree.children[2].name, "Child");
}

TEST(AccessibleWidget, EveryChildKnowsItsParentAndItsPlace) {
  Painted widget;
  new QWidget(&widget);
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
  for (int i = 0; i < interface->childCount(); ++i) {
    QAccessibleInterface* child = interface->child(i);
    ASSERT_NE(child, nullptr);
    EXPECT_EQ(child->parent(), interface) << i;
    EXPECT_EQ(interface->indexOfChild(child), i);
  }
  EXPECT_EQ(interface->child(3), nullptr);
  EXPECT_EQ(interface->child(-1), nullptr);
}

TEST(AccessibleWidget, APaintedTextLiesWhereItIsDrawnOnScreen) {
  Painted widget;
  widget.move(300, 200);
  QAccessibleInterface* first = QAccessible::queryAccessibleInterface(&widget)->child(0);
  EXPECT_EQ(first->rect(), QRect(widget.mapToGlobal(QPoint(10, 20)), QSize(30, 12)));
}

TEST(AccessibleWidget, APaintedTextIsReadAfreshAndHiddenWithItsWidget) {
  Painted widget;
  QAccessibleInterface* first = QAccessible::queryAccessibleInterface(&widget)->child(0);
  EXPECT_TRUE(first->state().invisible);
  widget.show();
  EXPECT_FALSE(first->state().invisible);
  widget.texts[0].name = "Changed";
  EXPECT_EQ(first->text(QAccessible::Name), "Changed");
}

TEST(AccessibleWidget, APaintedTextThatIsNoLongerDrawnIsNoLongerValid) {
  Painted widget;
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&widget);
  QAccessibleInterface* second = interface->child(1);
  ASSERT_TRUE(second->isValid());
  widget.texts.pop_back();
  EXPECT_FALSE(second->isValid());
  EXPECT_EQ(interface->childCount(), 1);
}

TEST(AccessibleWidget, PressingAButtonClicksIt) {
  Tab tab;
  QSignalSpy clicks(&tab, &QAbstractButton::clicked);
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&tab);
  QAccessibleActionInterface* actions = interface->actionInterface();
  ASSERT_NE(actions, nullptr);
  ASSERT_EQ(actions->actionNames().value(0), QAccessibleActionInterface::pressAction());
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks.count(), 1);

  tab.setEnabled(false);
  EXPECT_FALSE(actions->actionNames().contains(QAccessibleActionInterface::pressAction()));
  actions->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clicks.count(), 1);
}

TEST(AccessibleWidget, ACheckableButtonIsToggledByAClick) {
  Tab tab;
  tab.setCheckable(true);
  QSignalSpy clicks(&tab, &QAbstractButton::clicked);
  QAccessibleActionInterface* actions =
      QAccessible::queryAccessibleInterface(&tab)->actionInterface();
  ASSERT_EQ(actions->actionNames().value(0), QAccessibleActionInterface::toggleAction());
  actions->doAction(QAccessibleActionInterface::toggleAction());
  EXPECT_EQ(clicks.count(), 1);
  EXPECT_TRUE(tab.isChecked());
}

}  // namespace
}  // namespace brimly
