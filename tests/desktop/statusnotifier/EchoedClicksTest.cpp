#include "desktop/statusnotifier/EchoedClicks.h"

#include <gtest/gtest.h>

namespace brimly {
namespace {

const QString waybar = QStringLiteral(":1.7");
const QString plasma = QStringLiteral(":1.9");

TEST(EchoedClicks, TheFirstCallIsAClick) {
  EchoedClicks echoes;
  EXPECT_FALSE(echoes.isEcho(waybar, {11, 9}, 1000));
}

TEST(EchoedClicks, TheSameCallAgainAtOnceIsAnEcho) {
  EchoedClicks echoes;
  ASSERT_FALSE(echoes.isEcho(waybar, {11, 9}, 1000));
  EXPECT_TRUE(echoes.isEcho(waybar, {11, 9}, 1000));
  EXPECT_TRUE(echoes.isEcho(waybar, {11, 9}, 1000 + EchoedClicks::windowMs - 1));
}

TEST(EchoedClicks, AClickAfterTheWindowIsAClickOfItsOwn) {
  EchoedClicks echoes;
  ASSERT_FALSE(echoes.isEcho(waybar, {11, 9}, 1000));
  EXPECT_FALSE(echoes.isEcho(waybar, {11, 9}, 1000 + EchoedClicks::windowMs));
  // A quick double click by hand: each click is one.
  EXPECT_FALSE(echoes.isEcho(waybar, {11, 9}, 1000 + EchoedClicks::windowMs + 150));
}

TEST(EchoedClicks, AnEchoCountsFromTheCallJustBefore) {
  EchoedClicks echoes;
  ASSERT_FALSE(echoes.isEcho(waybar, {11, 9}, 1000));
  ASSERT_TRUE(echoes.isEcho(waybar, {11, 9}, 1040));
  EXPECT_TRUE(echoes.isEcho(waybar, {11, 9}, 1080));
}

TEST(EchoedClicks, ACallElsewhereOrFromAnotherHostIsAClick) {
  EchoedClicks echoes;
  ASSERT_FALSE(echoes.isEcho(waybar, {11, 9}, 1000));
  EXPECT_FALSE(echoes.isEcho(waybar, {4, 9}, 1001));
  EXPECT_FALSE(echoes.isEcho(plasma, {4, 9}, 1002));
}

}  // namespace
}  // namespace brimly
