#include <algorithm>

#include "booking/auto/automatches.h"
#include "storylines/partners.h"

// Tag matches of teams, and matches of more than two sides.

namespace grapplemont {

namespace {

constexpr int kFirstTag = 60, kSecondTag = 35;
constexpr int kTrios = 20;
constexpr int kFreeForAllOnShow = 18, kFreeForAllAtEvent = 40;
constexpr int kBattleRoyal = 15, kEntrants = 10, kEnoughForIt = 26;

bool BookTag(AutoPlan& plan) {
  const std::vector<const Team*> teams = ReadyTeams(plan);
  if (teams.size() < 2) return false;
  const auto lead = static_cast<std::size_t>(
      plan.World.RandomDraw(static_cast<int>(std::min<std::size_t>(3, teams.size()))) - 1);
  const Team* best = nullptr;
  int most = kNoPair;
  for (const Team* team : teams)
    if (const int score = TeamScore(plan, *teams[lead], *team); score > most) {
      most = score;
      best = team;
    }
  return best && BookMatch(plan, TeamMatch(*teams[lead], *best), {});
}

/// Adds the best opponents of `lead` who are nobody's friends in the match, until there are
/// `count`.
std::vector<int> Rivals(AutoPlan& plan, const Worker& lead, std::size_t count) {
  std::vector<int> in = {lead.Uid};
  for (const Worker* other : OpponentsFor(plan, lead, plan.Pool.Wrestlers())) {
    const bool friendless = std::none_of(in.begin(), in.end(), [&](int uid) {
      return InOneCorner(plan.World, *plan.World.FindWorker(uid), *other);
    });
    if (in.size() < count && friendless) in.push_back(other->Uid);
  }
  return in;
}

void BookFreeForAll(AutoPlan& plan) {
  const std::vector<const Worker*> free = plan.Pool.Wrestlers();
  if (free.size() < 6) return;
  const int style = Chance(plan.World, 60) ? kThreeWay : kFourWay;
  const std::size_t sides = style == kThreeWay ? 3 : 4;
  const auto lead =
      static_cast<std::size_t>(plan.World.RandomDraw(static_cast<int>(free.size() / 2)) - 1);
  const std::vector<int> people = Rivals(plan, *free[lead], sides);
  if (people.size() < sides) return;
  const int type = Chance(plan.World, 50) ? kTriangle : int(kElimination);
  BookMatch(plan, NewMatch(style, type, people), {});
}

/// Three of a stable who may wrestle together; fewer where there are no more.
std::vector<const Worker*> TrioOf(const AutoPlan& plan, const Stable& stable) {
  std::vector<const Worker*> trio;
  for (const Worker* worker : plan.Pool.Wrestlers())
    if (worker->Stable == stable.Name && trio.size() < 3 &&
        (trio.empty() || trio[0]->Gender == worker->Gender))
      trio.push_back(worker);
  return trio;
}

/// An opponent for each, none twice; of another kind than the trio's first where there are such.
std::vector<int> AgainstTrio(AutoPlan& plan, const std::vector<const Worker*>& trio) {
  std::vector<int> rivals;
  for (const Worker* member : trio)
    for (const Worker* other : OpponentsFor(plan, *member, plan.Pool.Wrestlers())) {
      const bool taken = std::find(rivals.begin(), rivals.end(), other->Uid) != rivals.end();
      if (taken || other->Disposition == trio[0]->Disposition) continue;
      rivals.push_back(other->Uid);
      break;
    }
  return rivals;
}

void BookTrios(AutoPlan& plan) {
  for (const Stable* stable : PlayerStables(plan.World)) {
    const std::vector<const Worker*> trio = TrioOf(plan, *stable);
    if (trio.size() < 3) continue;
    std::vector<int> people = {trio[0]->Uid, trio[1]->Uid, trio[2]->Uid};
    const std::vector<int> rivals = AgainstTrio(plan, trio);
    if (rivals.size() < 3) continue;
    people.insert(people.end(), rivals.begin(), rivals.end());
    if (BookMatch(plan, NewMatch(kThreeOnThree, 1, people), {})) return;
  }
}

/// The lower end of a big roster, before the show proper.
void BookBattleRoyal(AutoPlan& plan) {
  std::vector<const Worker*> men = plan.Pool.Wrestlers();
  std::erase_if(men, [](const Worker* worker) { return !worker->Gender; });
  if (men.size() < kEnoughForIt) return;
  std::vector<int> people;
  for (auto worker = men.end() - kEntrants; worker != men.end(); ++worker)
    people.push_back((*worker)->Uid);
  BookMatch(plan, NewMatch(kSpecial, kTenMan, people), {});
}

}  // namespace

void BookTeams(AutoPlan& plan) {
  const auto tags = std::count_if(plan.Matches.begin(), plan.Matches.end(),
                                  [](const Planned& p) { return p.Segment.Style == kTag; });
  const bool big = plan.Rows.size() >= kBigShowRows;
  int wanted = big || Chance(plan.World, kFirstTag) ? 1 : 0;
  if (big && Chance(plan.World, kSecondTag)) ++wanted;
  for (auto booked = static_cast<int>(tags); booked < wanted && plan.WantsMatch(); ++booked)
    if (!BookTag(plan)) return;
}

void BookCrowds(AutoPlan& plan) {
  if (plan.WantsMatch() && Chance(plan.World, kTrios)) BookTrios(plan);
  if (plan.WantsMatch() &&
      Chance(plan.World, plan.View.IsEvent ? kFreeForAllAtEvent : kFreeForAllOnShow))
    BookFreeForAll(plan);
  if (plan.WantsMatch() && plan.View.IsEvent && plan.Rows[0].Kind == kEmptySegment &&
      Chance(plan.World, kBattleRoyal))
    BookBattleRoyal(plan);
}

}  // namespace grapplemont
