#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "report/family.h"
#include "report/teller.h"
#include "words/segments.h"

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

  /// Plays a script so that, by its counters, `last` and their side end it on top of `under`;
  /// either may be nullptr, and then draws decide.
  void Play(std::string_view script, int spot, const Person* last, const Person* under);

 private:
  struct Side {
    std::vector<Person*> People;
    std::size_t Legal = 0;
  };

  /// Whose side has the upper hand over whose.
  struct Pairing {
    int Attacker = 0, Defender = 1;
  };

  int SideOf(const Person* person) const;
  void Plan(std::string_view script, const Person* last, const Person* under);
  void Begin(std::string_view script, int side, const Person* person);
  int OtherSide(int side, int notThis = -1);
  void Step(std::string_view script, std::size_t at, int spot);
  void LayDown();
  void TagOut();
  void DoubleTeam(unsigned wants);
  Person* Legal(int side) const;
  Person* Partner(int side) const;
  void Act();

  Teller& teller_;
  std::vector<Side> sides_;
  std::vector<Pairing> plan_;  // before each step, and behind the last
  int attacker_ = 0, defender_ = 1;
};

/// One of them by a draw; nullptr of none.
Person* OneOf(Teller& teller, const std::vector<Person*>& people);

// Bout scripts: rows of steps, each a call of a family. No script decides a result.
//
//   A to E  offence       2  two count     N  near fall      #  counter: the bout changes hands
//   R  referee bump       P  pin without a referee           T  tag              X  double team
//   L  ladder   W  weapon   K  table       S  what the stipulation is about
//   ~  somebody from outside the exchange breaks in and takes over

using Script = std::string_view;
using Scripts = std::span<const Script>;

/// The rows of a plain singles match are three variants of each of four shapes; the last shape is
/// the squash.
inline constexpr int kShapes = 4, kVariants = 3;
inline constexpr std::size_t kSquashSteps = 4;  // of a squash, at most

enum class BoutShape { Duel, Scramble, IronMan, Elimination, Survivor, Rumble, BattleRoyal };

/// How a match of one style and type is told.
struct BoutRow {
  int Style, Type;
  BoutShape Shape;
  Scripts Rows;          // of the match, or of each of its falls and eliminations
  int Spot = kHoldSpot;  // what S calls
  bool Pinfall = true;   // ends in a count or a tap-out
  bool ByTable = false;  // ends with the loser going through a table
};

/// In the order of kMatchTypes' styles and types. nullptr for an unknown match.
const BoutRow* FindBout(int style, int type);

}  // namespace grapplemont
