#pragma once

#include <array>

#include "records/world.h"

// Every match is written down once it has been shown, and counted for everybody who was in it.

namespace grapplemont {

/// What a match may change and its record wants to know from before.
struct AtTheBell {
  bool ForTitle = false;
  int Champion = 0, CoChampion = 0;  // uids
  std::array<int, 4> Feud = {};      // the parties of the feud between two of its sides
};
AtTheBell LookAtTheBell(World& world, const Segment& segment);
/// Appends record `number` of match.dat, if it is a match, to the matches of the player's, adds it
/// to the tallies, and counts a defence. A full file drops its five hundred oldest.
void KeepBout(World& world, int number, const AtTheBell& bell);

/// "A and B", "The Dock Rats", or of more than two the short names; as many as there is room for.
std::string NamesOfMany(const World& world, const std::vector<int>& uids, std::size_t width);

}  // namespace grapplemont
