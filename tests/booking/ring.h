#pragma once

#include <string>
#include <vector>

#include "booking/screens/bookingscreens.h"
#include "records/segments.h"
#include "support/gameonworld.h"

// A roster to book, and the wizard on it.

namespace grapplemont::test {

/// The world of the booking tests: "Man 1" to "Man 12" with the popularity 60, four women, two
/// managers' worth of run-ins, Risk 100 and Size 1, so that every match type is offered.
SmallWorld BookingRoster();

inline int UidOf(const World& world, std::string_view name) {
  return name.empty() ? 0 : int(Named(world.Workers(), name).Uid);
}

/// A match under construction: style, type and who stands in it.
Segment MatchOf(const World& world, int style, int type, const std::vector<std::string>& people);

/// A game with a sheet of 11 empty slots.
class BookingPlay : public GameOnWorld {
 public:
  explicit BookingPlay(grapplemont::World world);

  /// Opens the wizard on a slot, with its first step.
  void Book(int slot = 1);
  /// Goes on from step to step with Next, from the kind to the match type.
  void ChooseMatch(std::string_view style, std::string_view type);
  /// Picks one worker a list and goes on.
  void ChoosePeople(const std::vector<std::string>& names);
  /// Goes on with what is preselected.
  void Next() { Desk.Click("cmdnext"); }
  void Complete() { Desk.Click("cmdcomplete"); }
  const Segment& Slot(int slot = 1) { return World().Segments()[slot]; }
};

/// "cmbwinner: Man 2" picks that row of that list.
using Picks = std::vector<std::string>;
void PickAll(ScriptDesk& desk, const Picks& picks);

/// Fails with the first field that differs.
void ExpectSegment(const Segment& held, const Segment& expected);

}  // namespace grapplemont::test
