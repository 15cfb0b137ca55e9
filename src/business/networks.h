#pragma once

#include <string>
#include <string_view>

#include "records/world.h"

// What a network has to give and what it bears, by the time slots "E", "P", "L", "G".

namespace grapplemont {

/// "None" for uid 0 and for a uid that leads nowhere.
std::string NetworkName(const World& world, int networkUid);
/// "Early Evening" and so on, as the television pages have it ("Late Evening" elsewhere reads "Late
/// Night"); an unknown slot is the last of the night.
std::string_view SlotName(std::string_view slot);
/// "6:00pm - 8:00pm" and so on.
std::string_view SlotHours(std::string_view slot);

/// The rating, in hundredths, that a show in the slot is measured against.
int SlotAudience(const Network& network, std::string_view slot);
/// The highest Promotion.Risk that the slot bears.
int SlotRisk(const Network& network, std::string_view slot);

/// The rating, in hundredths, that a promotion of this standing could draw.
int AudiencePotential(const Promotion& promotion, int economy);
/// How many shows the network carries.
int ShowsOn(const World& world, const Network& network);
/// Whether every spot of the week is taken; a network with more shows than spots counts as open.
bool IsFull(const World& world, const Network& network);

// Steps of the day.
/// Mondays: a week off every deal; some of rivals are renewed, shows without weeks or at three
/// strikes are marked as gone.
void TvContractReview(World& world);
/// The first of a month: rivals of Cult size and above look for another show. Draws for each
/// network that could want one, for each that does, and for the day.
void RivalNewTvShows(World& world);

}  // namespace grapplemont
