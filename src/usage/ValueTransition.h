#pragma once

#include <cstddef>
#include <vector>

namespace brimly {

// How a cell's value text turns into the next one, character by character. A character that both
// texts show at the same place stays as it is; only the others move. The old ones rise and fade
// out first, and only once they are gone do the new ones rise into place and fade in. Old and new
// glyphs are therefore never on screen together, however the text's width changes ("98%" to
// "100%"), and every step reads as one of the two values, never as a blend of them ("198%").
//
// The transition is told the characters of the two texts as laid out, aligned at their trailing
// edge as the cell draws them, and answers what to draw at each of its steps.
class ValueTransition {
 public:
  // One character of a laid-out text: what it is and how far its start lies before the text's
  // trailing edge. Two characters "stay" when they agree in both.
  struct Character {
    char32_t code = 0;
    double beforeEnd = 0.0;
  };
  enum class Source { previous, current };
  // One character drawn at one step.
  struct Drawn {
    Source source = Source::current;
    std::size_t index = 0;  // into the characters of `source`
    double opacity = 1.0;
    double lift = 0.0;  // how far above its place, in line heights (below when negative)
    bool operator==(const Drawn&) const = default;
  };

  // Step 0 shows the previous text as it was and `steps` the current one at rest; step 1 takes
  // the old characters away and step 2 brings the new ones in.
  static constexpr int steps = 3;

  ValueTransition(std::vector<Character> previous, std::vector<Character> current);

  std::vector<Drawn> at(int step) const;
  // Whether the character at `index` of the current text is one that stays.
  bool stays(std::size_t index) const { return currentStays_[index]; }

 private:
  // Two characters whose starts lie closer than this (in pixels) are at the same place.
  static constexpr double samePlace = 0.01;

  std::vector<Character> previous_;
  std::vector<Character> current_;
  std::vector<bool> previousStays_;
  std::vector<bool> currentStays_;
};

}  // namespace brimly
