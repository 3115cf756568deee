#include "panel/PanelState.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

namespace brimly {
namespace {

TEST(PanelState, StartsClosed) {
  PanelState state;
  EXPECT_FALSE(state.isOpen());
}

TEST(PanelState, AnnouncesEveryAssignmentAlsoOfTheSameValue) {
  PanelState state;
  QSignalSpy spy(&state, &PanelState::isOpenAssigned);
  state.setOpen(true);
  state.setOpen(true);
  state.setOpen(false);
  ASSERT_EQ(spy.count(), 3);
  EXPECT_TRUE(spy.at(0).at(0).toBool());
  EXPECT_TRUE(spy.at(1).at(0).toBool());
  EXPECT_FALSE(spy.at(2).at(0).toBool());
  EXPECT_FALSE(state.isOpen());
}

}  // namespace
}  // namespace brimly
