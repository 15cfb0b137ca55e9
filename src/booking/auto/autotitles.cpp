#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "booking/auto/automatches.h"
#include "records/fields/fields.h"
#include "show/showfeuds.h"
#include "storylines/feuds.h"
#include "storylines/partners.h"
#include "storylines/titles.h"

// Title defences: every Title at an Event, the lesser ones now and then on a show.

namespace grapplemont {

namespace {

/// How likely a Title changes hands in a defence, by the days its reign has lasted: about four
/// times a year for one that is defended each month.
struct ChangeOdds {
  int DaysUnder;
  int AtEvent;  // in a hundred
  int OnShow;
};
constexpr ChangeOdds kChangeOdds[] = {{28, 3, 1}, {60, 20, 4}, {120, 38, 8}, {100000, 48, 15}};
/// A show that changes everything changes nothing.
constexpr int kMostChanges = 2;

constexpr int kSettled = 14;   // days before a new champion defends on a show
constexpr int kTopChance = 5;  // of the top Title on one of the week's shows
constexpr int kLesserChance = 25;
constexpr int kVacantChance = 50;
constexpr int kFeudsForIt = 90;
constexpr int kNeedNotRise = 20;  // this far below the champion nobody is a contender
constexpr int kHasGold = 12;
/// Not the same challenger month after month.
constexpr int kNewBlood = 20;
/// Somebody else is waiting for them.
constexpr int kFeudsElsewhere = 40;
/// So far above a Title's champion, one has better to do than to chase it.
constexpr int kBeneathThem = 8;

int DaysHeld(const World& world, const Title& title) {
  return std::max(0, static_cast<int>((world.Today() - Day(title.Reigns[0].Won)).count()));
}

bool DrawChange(AutoPlan& plan, const Title& title) {
  const int days = DaysHeld(plan.World, title);
  for (const ChangeOdds& row : kChangeOdds)
    if (days < row.DaysUnder)
      return Chance(plan.World, plan.View.IsEvent ? row.AtEvent : row.OnShow);
  return false;
}

/// A show in a week of several has its share of the chance.
bool IsDueOnShow(AutoPlan& plan, const Title& title, bool isTop) {
  const auto most = static_cast<std::size_t>(plan.Rows.size() >= kBigShowRows ? 2 : 1);
  if (plan.TitlesUsed.size() >= most) return false;
  if (title.Holder == 0) return !isTop && Chance(plan.World, kVacantChance);
  if (DaysHeld(plan.World, title) < kSettled) return false;
  const int shows = std::max(1, PlayerShows(plan.World));
  return Chance(plan.World, (isTop ? kTopChance : kLesserChance) / shows);
}

bool HoldsATitle(const AutoPlan& plan, const Worker& worker) {
  return std::any_of(plan.World.Titles().begin(), plan.World.Titles().end(), [&](const Title& t) {
    return IsPlayers(plan.World, t) && t.Singles && t.Holder == worker.Uid;
  });
}

/// In a feud that tonight has done nothing for yet.
bool HasOpenFeud(const AutoPlan& plan, const Worker& worker) {
  int slot = 0;
  for (const Feud& feud : plan.World.Feuds())
    if (!plan.FeudsUsed.contains(++slot) && FeudSideOf(feud, worker.Uid) != 0) return true;
  return false;
}

int ContenderScore(AutoPlan& plan, const Worker& champion, const Worker& contender) {
  int score = PairScore(plan, champion, contender);
  if (score <= kNoPair) return score;
  score += contender.Over / 2 + plan.World.RandomDraw(kNewBlood);
  if (HoldsATitle(plan, contender)) score -= kHasGold;
  if (FeudExists(plan.World, champion.Uid, contender.Uid))
    score += kFeudsForIt;
  else if (HasOpenFeud(plan, contender))
    score -= kFeudsElsewhere;
  if (champion.Over - contender.Over > kNeedNotRise) score -= kNeedNotRise;
  return score - 2 * std::max(0, contender.Over - champion.Over - kBeneathThem);
}

std::vector<const Worker*> ContendersFor(AutoPlan& plan, const Title& title,
                                         const Worker& champion) {
  std::vector<std::pair<int, const Worker*>> ranked;
  for (const Worker* worker : plan.Pool.Wrestlers())
    if (FitsTitle(title, *worker) && worker->Debuted)
      if (const int score = ContenderScore(plan, champion, *worker); score > kNoPair)
        ranked.emplace_back(score, worker);
  return BestOf(std::move(ranked), 4);
}

/// The feud's heat when the two are in one that is not on the card yet; 0 for none.
int HeatBetween(const World& world, int a, int b) {
  for (const Feud& feud : world.Feuds())
    if (feud.Singles && !IsFreeSlot(feud) && AreEnemies(feud, a, b))
      return std::max(1, int(feud.Heat));
  return 0;
}

/// The result that was drawn, else the other; a Title moves by a finish that lets it.
bool BookDefence(AutoPlan& plan, const Segment& match, int champion, int challenger, bool feud,
                 bool change) {
  for (const bool changes : {change, !change}) {
    const Wish wish{.Favoured = changes ? challenger : champion,
                    .Firm = true,
                    .Changes = changes,
                    .Feud = feud};
    if (!BookMatch(plan, match, wish)) continue;
    plan.TitleChanges += changes;
    return true;
  }
  return false;
}

bool DefendSingles(AutoPlan& plan, const Title& title, const Worker& champion, bool change) {
  for (const Worker* contender : ContendersFor(plan, title, champion)) {
    const std::vector<int> people = {champion.Uid, contender->Uid};
    const int heat = HeatBetween(plan.World, champion.Uid, contender->Uid);
    Segment match = NewMatch(kSingles, TypeFor(plan, kSingles, people, heat, false), people);
    match.TitleName = title.Name;
    if (BookDefence(plan, match, champion.Uid, contender->Uid, heat > 0, change)) return true;
  }
  return false;
}

/// A vacant Title goes to one of the two best who may hold it.
bool FillVacancy(AutoPlan& plan, const Title& title) {
  for (const Worker* lead : plan.Pool.Wrestlers()) {
    if (!FitsTitle(title, *lead) || !lead->Debuted) continue;
    for (const Worker* contender : ContendersFor(plan, title, *lead)) {
      Segment match = NewMatch(kSingles, kPlainSingles, {lead->Uid, contender->Uid});
      match.TitleName = title.Name;
      if (BookMatch(plan, match, {.Changes = true})) return true;
    }
  }
  return false;
}

bool MayHold(const World& world, const Title& title, const Team& team) {
  return FitsTitle(title, *world.FindWorker(team.Worker1)) &&
         FitsTitle(title, *world.FindWorker(team.Worker2));
}

/// Teams that are ready for it, the most popular first; where there are not two, neighbours on the
/// card who are both cheered, or both booed, pair up for the night as well.
std::vector<Team> PairsFor(const AutoPlan& plan, const Title& title) {
  std::vector<Team> pairs;
  for (const Team* team : ReadyTeams(plan))
    if (MayHold(plan.World, title, *team)) pairs.push_back(*team);
  if (pairs.size() > 1) return pairs;
  std::map<std::pair<bool, bool>, const Worker*> waiting;
  for (const Worker* worker : plan.Pool.Wrestlers()) {
    if (!FitsTitle(title, *worker) || !worker->Debuted) continue;
    const Worker*& partner = waiting[{worker->Gender, worker->Disposition == "H"}];
    if (partner) {
      Team& pair = pairs.emplace_back();
      pair.Worker1 = int(partner->Uid);
      pair.Worker2 = int(worker->Uid);
    }
    partner = partner ? nullptr : worker;
  }
  return pairs;
}

/// Those who may challenge these two, best first.
std::vector<const Team*> Challengers(AutoPlan& plan, const std::vector<Team>& pairs,
                                     const Team& champions) {
  std::vector<std::pair<int, const Team*>> ranked;
  for (const Team& team : pairs) {
    int score = TeamScore(plan, champions, team);
    if (score <= kNoPair) continue;
    if (TeamsFeud(plan, champions, team)) score += kFeudsForIt;
    ranked.emplace_back(score, &team);
  }
  return BestOf(std::move(ranked));
}

bool DefendTag(AutoPlan& plan, const Title& title, const std::vector<Team>& pairs,
               const Team& champions, bool change) {
  const bool vacant = title.Holder == 0;
  for (const Team* team : Challengers(plan, pairs, champions)) {
    Segment match = TeamMatch(champions, *team);
    match.TitleName = title.Name;
    if (vacant ? BookMatch(plan, match, {.Changes = true})
               : BookDefence(plan, match, champions.Worker1, team->Worker1,
                             TeamsFeud(plan, champions, *team), change))
      return true;
  }
  return false;
}

bool BookTagTitle(AutoPlan& plan, const Title& title, bool change) {
  const std::vector<Team> pairs = PairsFor(plan, title);
  if (title.Holder != 0) {
    // The champions need not be a team of the records.
    Team champions{};
    champions.Worker1 = int(title.Holder);
    champions.Worker2 = int(title.Partner);
    for (const Team& team : plan.World.Teams())
      if (IsTeamOf(team, title.Holder, title.Partner)) champions = team;
    return plan.Pool.MayWrestle({title.Holder, title.Partner}) &&
           DefendTag(plan, title, pairs, champions, change);
  }
  return std::ranges::any_of(
      pairs, [&](const Team& team) { return DefendTag(plan, title, pairs, team, false); });
}

bool BookTitle(AutoPlan& plan, const Title& title) {
  const bool change =
      title.Holder != 0 && DrawChange(plan, title) && plan.TitleChanges < kMostChanges;
  if (!title.Singles) return BookTagTitle(plan, title, change);
  if (title.Holder == 0) return FillVacancy(plan, title);
  const Worker* champion = plan.World.FindWorker(title.Holder);
  return champion && plan.Pool.MayWrestle(champion->Uid) && FitsTitle(title, *champion) &&
         DefendSingles(plan, title, *champion, change);
}

}  // namespace

void DefendTitles(AutoPlan& plan) {
  bool isTop = true;
  for (const Title* title : ActiveTitles(plan.World)) {
    if (!plan.WantsMatch()) return;
    const bool top = std::exchange(isTop, false);
    if (plan.TitlesUsed.contains(title->Name.Str())) continue;
    if (!plan.View.IsEvent && !IsDueOnShow(plan, *title, top)) continue;
    plan.Pool.Reach(plan.View.IsEvent ? kForTheOccasion : kReserves[0]);
    BookTitle(plan, *title);
    plan.Pool.Reach(kReserves[0]);
  }
}

}  // namespace grapplemont
