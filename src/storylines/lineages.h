#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// The reigns of every Title without end. A Title's own record tells the last five; comparing it
// with the reign that lasts finds every change, whoever made it: a match, an award, a contract that
// ended, a rival's show.

namespace grapplemont {

/// Brings the reigns up to the Titles as they stand: what has changed hands, been vacated, renamed,
/// made or dissolved since the last time. A Title without a past begins with the five of its
/// record. A full file drops its thousand oldest reigns that have ended, those that records tell of
/// last.
void UpdateReigns(World& world);
/// Whether the file may have dropped reigns: whatever is counted in it is then the least there
/// were.
bool HaveReignsGone(const World& world);
/// The champion has kept the Title in the ring.
void CountDefence(World& world, const Title& title);

/// A line of Titles: all reigns of one name in one promotion.
struct Lineage {
  std::string Title;
  int Owner = 0;  // uid of the promotion, which may be gone
  std::string Initials;
  bool Stands = false;  // the Title is there today

  friend bool operator==(const Lineage& a, const Lineage& b) {
    return a.Owner == b.Owner && a.Title == b.Title;
  }
};
/// Those of the Titles that stand first, in the order of their file; then those of the past, the
/// latest first.
std::vector<Lineage> LineagesOf(const World& world);
/// Its reigns and vacancies, the latest first.
std::vector<const TitleReign*> ReignsOf(const World& world, const Lineage& lineage);

bool IsVacancy(const TitleReign& reign);
/// How long it lasted or has lasted, in days; -1 where nobody knows when it began or ended.
int DaysOf(const TitleReign& reign, Day today);

/// What one champion's reigns of a lineage add up to.
struct ChampionTotal {
  std::string Name;
  int Reigns = 0;
  int Days = 0;           // of those whose length is known
  int Defences = kNoEnd;  // where nobody counts them
  int Worker = 0;         // uid; 0 for a pair and for who has gone
};
/// The longest first.
std::vector<ChampionTotal> TotalsOf(const World& world, const Lineage& lineage);

/// All reigns of a worker, alone or with a partner, the latest first.
std::vector<const TitleReign*> ReignsOfWorker(const World& world, int workerUid);

}  // namespace grapplemont
