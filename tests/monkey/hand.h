#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "monkey/coverage.h"
#include "monkey/sitting.h"
#include "monkey/ways.h"

namespace grapplemont::test {

/// Chooses by chance what to do next: mostly what it has done least, and often what leads on, so
/// that it comes deep into a game.
class Hand {
 public:
  explicit Hand(std::uint64_t seed);

  /// What the next step does.
  std::string Next(Sitting& sitting);
  std::string AnswerTo(const Question& box);
  /// Goes back by what every player has, to the main screen or to the menu. Throws FoundFault where
  /// that cannot be done.
  void GoHome(Sitting& sitting);
  /// Now and then, where it has not gone home from this screen yet.
  bool WantsHome(const ui::Desk& desk);
  const Coverage& Covered() const { return covered_; }

 private:
  struct Way {
    const ui::Control* On;
    const Act* Does;
    Tally* Count;
  };
  bool Percent(int share) { return Pick(chance_, 100) < static_cast<std::uint64_t>(share); }
  std::vector<Way> WaysOn(const ui::Screen& screen);
  std::string OneOf(const ui::Page& page, const std::vector<Way>& ways);
  std::string Press(const ui::Screen& screen, const ui::Button* button);
  std::string Aside(ui::Desk& desk);
  std::string Room(const ui::Desk& desk);
  std::string Visit(ui::Desk& desk);
  std::string Follow(ui::Desk& desk);

  Chance chance_;
  Coverage covered_;
  int onwards_, back_, yes_;  // percent
  std::uint64_t leaves_;      // one in how many of the ways out of a game is gone
};

}  // namespace grapplemont::test
