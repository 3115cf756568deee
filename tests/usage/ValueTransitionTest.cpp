#include "usage/ValueTransition.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brimly {
namespace {

using Character = ValueTransition::Character;
using Source = ValueTransition::Source;

// `text` laid out trailing-aligned with every character `advance` wide, as a monospaced face does.
std::vector<Character> monospaced(const std::u32string& text, double advance = 7.8) {
  std::vector<Character> characters;
  for (std::size_t i = 0; i < text.size(); ++i) {
    characters.push_back({text[i], static_cast<double>(text.size() - i) * advance});
  }
  return characters;
}

// The characters drawn at `step`, in order, as one string; `*` for those drawn faded or moved.
std::u32string readAt(const ValueTransition& transition, int step, const std::u32string& previous,
                      const std::u32string& current) {
  std::u32string read;
  for (const ValueTransition::Drawn& drawn : transition.at(step)) {
    const std::u32string& from = drawn.source == Source::previous ? previous : current;
    const bool still = drawn.opacity == 1.0 && drawn.lift == 0.0;
    read += still ? from[drawn.index] : U'*';
  }
  return read;
}

TEST(ValueTransitionTest, OnlyTheChangedDigitsMoveWhenTheTextGrowsByOne) {
  const std::u32string from = U"98%", to = U"100%";
  const ValueTransition transition(monospaced(from), monospaced(to));
  EXPECT_EQ(readAt(transition, 0, from, to), U"98%");
  EXPECT_EQ(readAt(transition, 1, from, to), U"**%");
  EXPECT_EQ(readAt(transition, 2, from, to), U"***%");
  EXPECT_EQ(readAt(transition, ValueTransition::steps, from, to), U"100%");
}

TEST(ValueTransitionTest, AnUnchangedLeadingDigitStaysWhereItIs) {
  const std::u32string from = U"42%", to = U"47%";
  const ValueTransition transition(monospaced(from), monospaced(to));
  EXPECT_EQ(readAt(transition, 1, from, to), U"4*%");
  EXPECT_EQ(readAt(transition, 2, from, to), U"4*%");
}

TEST(ValueTransitionTest, EveryStepShowsOneTextAndNeverBoth) {
  for (const auto& [from, to] : std::vector<std::pair<std::u32string, std::u32string>>{
           {U"98%", U"100%"}, {U"9%", U"10%"}, {U"\u2014", U"42%"}, {U"1.0 TB", U"999 GB"}}) {
    const ValueTransition transition(monospaced(from), monospaced(to));
    for (int step = 0; step <= ValueTransition::steps; ++step) {
      const std::vector<ValueTransition::Drawn> drawn = transition.at(step);
      const Source source = step < 2 ? Source::previous : Source::current;
      EXPECT_EQ(drawn.size(), (source == Source::previous ? from : to).size());
      for (const ValueTransition::Drawn& character : drawn) {
        EXPECT_EQ(character.source, source) << "step " << step;
        // Faded but never gone: each step reads as the whole of its text.
        EXPECT_GT(character.opacity, 0.0) << "step " << step;
      }
    }
  }
}

TEST(ValueTransitionTest, OldCharactersRiseAwayAndNewOnesRiseIntoPlace) {
  const ValueTransition transition(monospaced(U"9%"), monospaced(U"10%"));
  const auto nine = [&](int step) { return transition.at(step)[0]; };
  const auto one = [&](int step) { return transition.at(step)[0]; };
  EXPECT_GT(nine(1).lift, nine(0).lift);
  EXPECT_LT(nine(1).opacity, nine(0).opacity);
  EXPECT_LT(one(2).lift, 0.0);
  EXPECT_LT(one(2).opacity, 1.0);
  EXPECT_EQ(one(ValueTransition::steps), (ValueTransition::Drawn{Source::current, 0, 1.0, 0.0}));
}

TEST(ValueTransitionTest, TheSameCharacterAtAnotherPlaceMoves) {
  // In a proportional face "11" and "1" put their ones at different places.
  const std::vector<Character> from{{U'1', 9.0}, {U'%', 5.0}};
  const std::vector<Character> to{{U'1', 8.0}, {U'%', 5.0}};
  const ValueTransition transition(from, to);
  EXPECT_FALSE(transition.stays(0));
  EXPECT_TRUE(transition.stays(1));
}

TEST(ValueTransitionTest, AnUnchangedTextNeverMoves) {
  const std::u32string text = U"1.0 TB";
  const ValueTransition transition(monospaced(text), monospaced(text));
  for (int step = 0; step <= ValueTransition::steps; ++step) {
    EXPECT_EQ(readAt(transition, step, text, text), text);
  }
}

TEST(ValueTransitionTest, StepsOutsideTheRangeAreItsEnds) {
  const std::u32string from = U"9%", to = U"10%";
  const ValueTransition transition(monospaced(from), monospaced(to));
  EXPECT_EQ(readAt(transition, -1, from, to), from);
  EXPECT_EQ(readAt(transition, ValueTransition::steps + 4, from, to), to);
}

TEST(ValueTransitionTest, FromOrToAnEmptyText) {
  const ValueTransition appearing({}, monospaced(U"42%"));
  EXPECT_TRUE(appearing.at(1).empty());
  EXPECT_EQ(appearing.at(2).size(), 3u);
  const ValueTransition vanishing(monospaced(U"42%"), {});
  EXPECT_EQ(vanishing.at(1).size(), 3u);
  EXPECT_TRUE(vanishing.at(2).empty());
}

}  // namespace
}  // namespace brimly
