#pragma once

#include <string>
#include <vector>

#include "records/segments.h"
#include "records/world.h"
#include "roster/staff.h"

// Whom the player may book.

namespace grapplemont {

/// What a booking is for: the kind of show, and the roster split that participants are limited to.
struct BookingView {
  bool IsEvent = false;
  std::string Split = "All";  // or one of the promotion's splits
};

/// Under contract to the player, fit, and in the split.
bool IsAvailable(const World& world, const Worker& worker, const BookingView& view);
/// May stand in a participant list: available, and a wrestler or a manager; at an Event a
/// non-wrestler too.
bool IsEligible(const World& world, const Worker& worker, const BookingView& view);
/// All who are, in the order of the file.
std::vector<const Worker*> EligibleRoster(const World& world, const BookingView& view);
/// Who may run in: the same with non-wrestlers, without the match's own participants.
std::vector<const Worker*> RunInRoster(const World& world, const Segment& segment,
                                       const BookingView& view);
/// May be interviewed: able to speak, and available as a wrestler, manager or non-wrestler.
bool IsTalker(const World& world, const Worker& worker, const BookingView& view);

/// Whether a turn of `turner` is prepared and makes sense against a partner (nullptr for nobody).
bool CanTurn(const Worker& turner, const Worker* partner);

/// Whether the player's promotion can hold matches of this type.
bool IsOffered(const World& world, const MatchTypeRow& type);
/// The match types of a style that the player's promotion can hold, in the order of the list.
std::vector<const MatchTypeRow*> OfferedMatchTypes(const World& world, int style);

/// The player's Titles that a match may be for.
std::vector<const Title*> OfferedTitles(const World& world, const Segment& match);

/// The player's writers, and their television shows.
int PlayerWriters(const World& world);
int PlayerShows(const World& world);
/// Whether they can write an angle: for an Event any writer will do.
bool EnoughWriters(const World& world, bool isEvent);

}  // namespace grapplemont
