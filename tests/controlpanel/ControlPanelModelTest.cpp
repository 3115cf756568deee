#include "controlpanel/ControlPanelModel.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

TEST(ControlPanelModel, StartsWithItsValuesAndNoCallbacks) {
  const ControlPanelModel model(true, false, true, "dev");
  EXPECT_TRUE(model.useFahrenheit());
  EXPECT_FALSE(model.isPinned());
  EXPECT_TRUE(model.launchAtLogin());
  EXPECT_EQ(model.version(), "dev");
  EXPECT_FALSE(model.onTogglePin);
  EXPECT_FALSE(model.onToggleLaunch);
  EXPECT_FALSE(model.onToggleFahrenheit);
  EXPECT_FALSE(model.onShowPanel);
  EXPECT_FALSE(model.onAbout);
  EXPECT_FALSE(model.onOpenSettings);
  EXPECT_FALSE(model.onQuit);
}

TEST(ControlPanelModel, EveryWriteIsAnnouncedAlsoOfTheSameValue) {
  ControlPanelModel model(false, false, false, "1.0");
  int announcements = 0;
  QObject::connect(&model, &ControlPanelModel::changed, [&] { ++announcements; });
  model.setPinned(true);
  model.setPinned(true);
  model.setUseFahrenheit(true);
  model.setLaunchAtLogin(false);
  EXPECT_EQ(announcements, 4);
  EXPECT_TRUE(model.isPinned());
  EXPECT_TRUE(model.useFahrenheit());
}

TEST(ControlPanelModel, InvokingAnEmptyCallbackDoesNothing) {
  ControlPanelModel model(false, false, false, "1.0");
  ControlPanelModel::invoke(model.onTogglePin, true);
  ControlPanelModel::invoke(model.onQuit);
  EXPECT_FALSE(model.isPinned());
}

TEST(ControlPanelModel, InvokingASetCallbackPassesTheNewValue) {
  ControlPanelModel model(false, false, false, "1.0");
  std::optional<bool> received;
  model.onToggleFahrenheit = [&](bool on) { received = on; };
  ControlPanelModel::invoke(model.onToggleFahrenheit, true);
  EXPECT_EQ(received, true);
  // The switch's callback does not write the model; the application does.
  EXPECT_FALSE(model.useFahrenheit());
}

}  // namespace
}  // namespace brimly
