#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// What the past tells of a worker, in lines.

namespace grapplemont {

/// Their matches for each promotion the player has run: "CWA: 12 won, 5 lost, 1 drawn, 4 for a
/// Title. Rated 61% on average."
std::vector<std::string> RecordLines(const World& world, const Worker& worker);
/// A match as it went for one who was in it.
struct FormLine {
  const HeldMatch* Match = nullptr;
  int Outcome = 0;      // 1 won, 0 drawn, -1 lost; whoever has not won has lost, however many
  std::string Against;  // the others as they were called
  int Opponent = 0;     // uid of the first of them; 0 for who has gone
};
/// Their last matches, the latest first, at most `most`.
std::vector<FormLine> FormOf(const World& world, const Worker& worker, int most);
/// The name of the show that a match was held on; empty where the history does not know it.
std::string ShowNameOf(const World& world, const HeldMatch& match);
/// What matches add up to.
struct FormSum {
  int Won = 0, Lost = 0, Drawn = 0;
  int Mean = 0;  // rating in percent, rounded down; 0 without matches
};
FormSum SumOf(const std::vector<FormLine>& form);
/// The same in lines: "14/03/26: beat Ilya Marsh, 71%".
std::vector<std::string> LastMatchLines(const World& world, const Worker& worker, int most);
/// The awards of the years, the latest first: "Wrestler of the Year 2026".
std::vector<std::string> AwardLines(const World& world, const Worker& worker);
/// The year they entered the hall of fame; 0 for who has not.
int ElectedIn(const World& world, int workerUid);
/// What they did where, the latest first: "CWA, March 2026 to May 2031: 312 matches, 180 won, 2
/// reigns".
std::vector<std::string> TenureLines(const World& world, const Worker& worker);

/// The Titles that they hold, alone or with a partner.
std::vector<const Title*> TitlesHeldBy(const World& world, int workerUid);
/// All their reigns, the latest first: "CWA Crown, 03 March 2026 to 12 March 2026 (9 days)". Of a
/// game whose past was not kept yet, what the Titles' own records remember: "CWA Crown, since 03
/// March 2026"; those go by names, so a reign under a former name is not theirs.
std::vector<std::string> ReignsOf(const World& world, const Worker& worker);

}  // namespace grapplemont
