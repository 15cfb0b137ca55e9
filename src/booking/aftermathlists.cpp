#include <initializer_list>

#include "booking/offers.h"

namespace grapplemont {

namespace {

using Codes = std::vector<int>;

void Add(Codes& to, std::initializer_list<int> codes) {
  to.insert(to.end(), codes);
}

bool IsFinish(const Segment& match, std::initializer_list<int> finishes) {
  for (const int finish : finishes)
    if (match.Finish == finish) return true;
  return false;
}

Codes SinglesList(const Segment& match) {
  using namespace after1;
  Codes list;
  const bool won = !IsDraw(match);
  if (won) {
    Add(list, {kAttacksReferee, kTantrum, kWinnerRuns, kLoserRuns});
    if (IsFinish(match, {kClean, kCountOut})) Add(list, {kRevengeAttack, kBeatDown});
    if (IsFinish(match, {kInterference})) Add(list, {kGetsRevenge, kTwoOnLoser, kAssaultGoesOn});
    if (IsFinish(match, {kBotchedInterference, kDqThroughInterference}))
      Add(list, {kTwoOnWinner, kAttacksRunIn});
    if (IsFinish(match, {kDqThroughInterference})) Add(list, {kAssaultGoesOn});
    if (IsFinish(match, {kInterference, kBotchedInterference, kDqThroughInterference}))
      Add(list, {kSave, kFailedSave});
  } else if (IsFinish(match, {kNoContest})) {
    Add(list, {kRunInDestroys, kTwoOnFirst, kTwoOnSecond, kTwoOnRunIn, kThreeWayBrawl});
  }
  if (match.Other1 == 0) {
    Add(list, {kHandshake, kFirstRefusesHand, kSecondRefusesHand});
    if (won) Add(list, {kCheapShot});
    Add(list, {kBrawlToTheBack, kRunInOnFirst, kRunInOnSecond, kRunInOnBoth});
  }
  Add(list, {kNothing});
  return list;
}

/// The losers who are ready to turn on their partner.
void AddTurns(Codes& to, const World& world, const Segment& match) {
  const std::vector<int> people = PeopleOf(match);
  const int losing = SideOf(match, match.Loser);
  for (std::size_t i = 0; i < people.size(); ++i) {
    const Worker* worker = world.FindWorker(people[i]);
    if (worker && worker->TurnPending && SideOf(match, people[i]) == losing)
      to.push_back(after2::kFirstTurns + static_cast<int>(i));
  }
}

void AddAfterWin(Codes& list, const World& world, const Segment& match) {
  using namespace after2;
  const bool two = match.Other2 != 0;
  if (IsFinish(match, {kPartnerTurns})) {
    Add(list, {kThreeOnOne});
  } else {
    Add(list, {kRevenge, kBeatenDown});
    AddTurns(list, world, match);
    Add(list, {kLosersArgue});
  }
  if (IsFinish(match, {kInterference, kDqThroughInterference}))
    Add(list, {two ? kAssaultGoesOn : kThreeOnTwo});
  if (IsFinish(match, {kBotchedInterference})) Add(list, {two ? kAttackRunIns : kAttackRunIn});
  if (IsFinish(match, {kInterference, kBotchedInterference, kDqThroughInterference}))
    Add(list, {kSave, kFailedSave});
}

Codes TagList(const World& world, const Segment& match) {
  using namespace after2;
  Codes list;
  if (IsDraw(match))
    Add(list, {kBrawling, kFirstBeatsSecond, kSecondBeatsFirst});
  else
    AddAfterWin(list, world, match);
  if (match.Other2 != 0 &&
      IsFinish(match, {kInterference, kBotchedInterference, kNoContest, kDqThroughInterference}))
    Add(list, {kThreeTeamBrawl});
  if (match.Other1 == 0 && match.Other2 == 0)
    Add(list, {kBrawlToTheBack, kRunInOnFirst, kRunInOnSecond, kRunInOnThird, kRunInOnFourth,
               kRunInOnFirstTeam, kRunInOnSecondTeam, kRunInOnBoth});
  Add(list, {kNothing});
  return list;
}

}  // namespace

std::vector<int> OfferedAftermaths(const World& world, const Segment& match) {
  if (match.Style == kSingles) return SinglesList(match);
  return match.Style == kTag ? TagList(world, match) : Codes();
}

}  // namespace grapplemont
