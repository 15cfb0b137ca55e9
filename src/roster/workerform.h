#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// What a worker's page shows at a glance, and what workers are compared by.

namespace grapplemont {

/// Something that a worker can do more or less of.
struct Ability {
  std::string_view Name;
  Percent Worker::*Of;
  bool MoreIsBetter = true;
  const char* Words[5];  // for 0, 20, 40, 60 and 80 up
};
/// In the ring and outside it, in the order of the page.
std::span<const Ability> Abilities();
/// "Leads any brawl".
std::string_view WordsFor(const Ability& ability, const Worker& worker);
/// The mean of the player's roster, rounded down; -1 without one.
int RosterMean(const World& world, Percent Worker::*of);

/// "31, born in October, a heavyweight".
std::string WhoLine(const Worker& worker);
/// "Finishes with Breakwater (Impact) and Low Tide (Submission)."; empty without a finisher.
std::string FinishersLine(const Worker& worker);
/// What stands out: "Face", "Harbor Crown champion", "Superstar look".
std::vector<std::string> MarksOfWorker(const World& world, const Worker& worker);
/// What a new contract would cost, or why there is nothing to be asked.
std::string AskingLine(const World& world, const Worker& worker);

/// Somebody whom a worker has to do with.
struct Companion {
  std::string As;    // "Feud", "Team", "Manager", "Client", "Stable"
  std::string Name;  // of the person, the other side or the stable
  int Uid = 0;       // of the first of them; 0 for a stable
  std::string More;  // "heat 91"
};
std::vector<Companion> CompanionsOf(const World& world, const Worker& worker);

/// The colleagues before and behind a worker in the same promotion, the most popular first.
struct Neighbours {
  int Before = 0, After = 0;  // uids; 0 for nobody
  int Place = 0, Of = 0;      // from 1
};
/// Nobody and no place for who works for nobody.
Neighbours NeighboursOf(const World& world, const Worker& worker);

/// How two have done against each other on the player's shows, as far as matches are kept.
struct Encounters {
  int Won = 0, Lost = 0, Drawn = 0;  // by the first
  int Mean = 0;                      // rating in percent
  int Count() const { return Won + Lost + Drawn; }
};
Encounters EncountersOf(const World& world, int firstUid, int secondUid);

}  // namespace grapplemont
