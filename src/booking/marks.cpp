#include "booking/marks.h"

#include <set>

#include "records/segments.h"
#include "show/forecast.h"
#include "storylines/feuds.h"
#include "storylines/partners.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

bool IsChampion(const World& world, int uid) {
  for (const Title& title : world.Titles())
    if (IsPlayers(world, title) && (title.Holder == uid || title.Partner == uid)) return true;
  return false;
}

bool IsIn(const Feud& feud, int uid) {
  const FeudSides sides = SidesOf(feud);
  return sides.One.Has(uid) || sides.Two.Has(uid);
}

}  // namespace

RosterMarks::RosterMarks(const World& world, int row) : world_(world), row_(row) {
  CountStreaks();
}

/// From the last match back, until everybody's streak has ended.
void RosterMarks::CountStreaks() {
  std::set<int> ended;
  for (int number = world_.Bouts().Count(); number >= 1; --number) {
    const HeldMatch& match = world_.Bouts()[number];
    if (match.Promotion != world_.PlayerUid()) continue;
    int place = 0;
    for (const int uid : match.Worker) {
      const bool won = place++ < match.Winners;
      if (uid == 0 || ended.contains(uid)) continue;
      if (!won || ++streaks_[uid] == kStreak) ended.insert(uid);
    }
  }
}

std::vector<std::string> RosterMarks::Of(const Worker& worker) const {
  std::vector<std::string> marks;
  const int uid = worker.Uid;
  if (IsChampion(world_, uid)) marks.emplace_back("Champion");
  for (const Feud& feud : world_.Feuds())
    if (!IsFreeSlot(feud) && IsIn(feud, uid)) marks.push_back("Feud " + std::to_string(feud.Heat));
  if (!PartnersOf(world_, uid).empty()) marks.emplace_back("Team");
  for (int row = 1; row <= world_.Segments().Count(); ++row)
    if (row != row_ && TakesPart(world_.Segments()[row], uid))
      marks.push_back("Row " + std::to_string(row));
  const auto streak = streaks_.find(uid);
  if (streak != streaks_.end() && streak->second >= kStreak) marks.emplace_back("Hot");
  if (worker.Condition < kTiredBelow) marks.emplace_back("Tired");
  if (!worker.Debuted) marks.emplace_back("Debut");
  return marks;
}

}  // namespace grapplemont
