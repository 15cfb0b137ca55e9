#pragma once

#include <map>
#include <string>
#include <vector>

#include "records/world.h"

// The sheet as a whole: cards that are laid on it, rows that change places, steps that are taken
// back.

namespace grapplemont {

using Card = std::vector<Segment>;  // a record of match.dat each, in order

/// The card that lies on the sheet.
Card CardOf(const World& world);

/// Lays a card on the open rows of the sheet (`openRows` of them), as the wizard would book each of
/// its Segments now; what lies there already stays as it is. A row that does not hold any more is
/// left empty: of each, which it was and why, a sentence.
std::vector<std::string> LayCard(World& world, const Card& card, bool isEvent, int openRows);

/// What the people in the rows that a card would add say to it and what it costs them, in lines;
/// empty when nobody minds. What the wizard lets nobody overrule is not among it.
std::string MindedBy(const World& world, const Card& card);
/// Takes the price of those rows of the sheet that another did not hold.
void PayForRows(World& world, const Card& before);

/// A row goes to another's place; those between move up or down by one.
void MoveRow(World& world, int from, int to);
/// Where to look once `before` has become `after`: where the Segment of this row has gone, else the
/// first row that is not what it was.
int RowAfter(const Card& before, const Card& after, int row);

/// The steps that have been done on an open sheet. What a booking cost in Morale is part of its
/// step.
class SheetHistory {
 public:
  /// Keeps what has changed since the last look as one step; the first look begins.
  void Look(const World& world);
  /// What Undo and Redo would do, as "A over B, booked in row 3"; empty where there is no such
  /// step.
  std::string ToUndo(const World& world) const;
  std::string ToRedo(const World& world) const;
  /// As LayCard. Requires that there is such a step.
  std::vector<std::string> Undo(World& world, bool isEvent, int openRows);
  std::vector<std::string> Redo(World& world, bool isEvent, int openRows);

 private:
  using Morale = std::map<int, int>;  // by uid
  struct Step {
    Card Before, After;
    Morale Change;
  };
  static Morale MoraleOf(const World& world);
  std::vector<std::string> Lay(World& world, const Card& card, const Morale& change, int times,
                               bool isEvent, int openRows);

  std::vector<Step> steps_;
  std::size_t done_ = 0;  // of them; those behind it can be done again
  bool isOpen_ = false;
  Card card_;  // at the last look
  Morale morale_;
};

}  // namespace grapplemont
