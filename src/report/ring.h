#pragma once

#include <string_view>
#include <vector>

#include "report/teller.h"

namespace grapplemont {

/// Those still in a bout, side by side, and who has the upper hand: what a script's steps move.
class Ring {
 public:
  /// Everybody the Segment names; those who are not there are left out.
  explicit Ring(Teller& teller);

  int Sides() const { return static_cast<int>(sides_.size()); }
  /// Two sides at least, so that there is something to tell.
  bool CanFight() const { return Sides() > 1; }
  /// Everybody who is still in.
  std::vector<Person*> All() const;
  /// Everybody still in but those of this one's side.
  std::vector<Person*> Against(const Person* person) const;
  /// Takes a person out.
  void Remove(const Person* person);
  /// Takes the person's whole side out.
  void RemoveSide(const Person* person);
  bool Holds(const Person* person) const { return SideOf(person) >= 0; }

  /// Plays a script so that, by its counters, `last` and his side end it on top of `under`; either
  /// may be nullptr, and then draws decide.
  void Play(std::string_view script, int spot, const Person* last, const Person* under);

 private:
  struct Side {
    std::vector<Person*> People;
    std::size_t Legal = 0;
  };

  int SideOf(const Person* person) const;
  void Begin(std::string_view script, const Person* last, const Person* under);
  int OtherSide(int side, int notThis = -1);
  void Step(char step, int spot);
  void BreakIn();
  void TagOut();
  void DoubleTeam();
  Person* Legal(int side) const;
  Person* Partner(int side) const;
  void Act();

  Teller& teller_;
  std::vector<Side> sides_;
  int attacker_ = 0, defender_ = 1;
};

/// One of them by a draw; nullptr of none.
Person* OneOf(Teller& teller, const std::vector<Person*>& people);

}  // namespace grapplemont
