#include "booking/wizard/offers.h"

#include <algorithm>
#include <initializer_list>

#include "booking/wizard/roster.h"
#include "records/segmentacts.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// A set of match types.
using Types = unsigned;
constexpr Types Only(std::initializer_list<int> types) {
  Types set = 0;
  for (const int type : types) set |= 1u << type;
  return set;
}
constexpr Types AllBut(std::initializer_list<int> types) {
  return ~Only(types);
}
constexpr Types kEvery = ~0u;

/// An entry of the list of a match with a winner, and the types that have it.
struct FinishRow {
  int Finish;
  Types In;
};
constexpr FinishRow kSinglesOffers[] = {
    {kClean, AllBut({kHighIncident})},
    {kInterference, AllBut({kHighIncident})},
    {kBotchedInterference, AllBut({kHighIncident})},
    {kCountOut, Only({kPlainSingles})},
    {kDqThroughInterference, Only({kPlainSingles})},
    {kCheating, AllBut({kSubmission, kCage, kTexasDeath, kLastManStanding, kLadder, kTables,
                        kBraAndPanties, kIQuit, kHighIncident, kBuckNaked})},
    {kSickBump, Only({kLadder, kIQuit, kHellInACell, kHighIncident, kBarbedWire, kDeathMatch})},
};
constexpr FinishRow kTagOffers[] = {
    {kClean, kEvery},
    {kCountOut, Only({kPlainTag})},
    {kDqThroughInterference, Only({kPlainTag})},
    {kInterference, kEvery},
    {kBotchedInterference, kEvery},
    {kCheating, Only({kPlainTag, kTagHardcore})},
    {kMiscommunication, AllBut({kTagCage, kTagLadder})},
    {kPartnerTurns, AllBut({kTagCage, kTagLadder})},
    {kSickBump, Only({kTagLadder})},
};

bool MayTurn(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker && worker->TurnPending;
}

/// The last three codes of the style are those of a draw.
std::vector<int> DrawsOf(const Segment& match) {
  if (match.Style == kSingles || match.Style == kTag)
    return {kDoubleDq, kDoubleCountOut, kNoContest};
  const int last = FinishesOf(match.Style).back().Code;
  return {last - 2, last - 1, last};
}

/// Whoever is ready to turn may do so whether anybody wins or not.
std::vector<int> TeamFinishes(const World& world, const Segment& match) {
  std::vector<int> offered;
  if (!IsDraw(match)) offered = {kClean, kCheapVictory};
  int code = kFirstTurns;
  for (const int uid : PeopleOf(match)) {
    if (MayTurn(world, uid)) offered.push_back(code);
    ++code;
  }
  if (!IsDraw(match)) return offered;
  for (const int draw : DrawsOf(match)) offered.push_back(draw);
  return offered;
}

}  // namespace

std::vector<int> OfferedFinishes(const World& world, const Segment& match) {
  if (FinishesOf(match.Style).empty()) return {};
  if (match.Style != kSingles && match.Style != kTag) return TeamFinishes(world, match);
  if (IsDraw(match)) return DrawsOf(match);
  std::vector<int> offered;
  const auto list = match.Style == kSingles ? std::span<const FinishRow>(kSinglesOffers) : kTagOffers;
  for (const FinishRow& row : list) {
    const bool turns = match.Style == kTag && row.Finish == kPartnerTurns;
    if ((row.In >> match.MatchType & 1) == 0) continue;
    if (!turns || MayTurn(world, PartnerOf(match, match.Loser))) offered.push_back(row.Finish);
  }
  return offered;
}

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

Codes SinglesAftermaths(const Segment& match) {
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

Codes TagAftermaths(const World& world, const Segment& match) {
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
  if (match.Style == kSingles) return SinglesAftermaths(match);
  return match.Style == kTag ? TagAftermaths(world, match) : Codes();
}

namespace {

/// Who may turn in this match: for each act the people who do it, alone and, when all of them can,
/// together.
struct Turners {
  std::vector<int> Alone;
  std::vector<std::vector<int>> Together;

  bool Has(int uid) const {
    return uid != 0 && std::find(Alone.begin(), Alone.end(), uid) != Alone.end();
  }
  bool HasBoth(int first, int second) const {
    return std::any_of(Together.begin(), Together.end(), [&](const std::vector<int>& pair) {
      return (pair[0] == first && pair[1] == second) || (pair[0] == second && pair[1] == first);
    });
  }
};

Turners TurnersOf(const World& world, const Segment& match) {
  Turners turners;
  for (const Act& act : ActsOf(match)) {
    if (!act.Is(kTurnOccasion)) continue;
    const std::vector<int> on = PeopleOf(match, act.On);
    const Worker* victim = on.empty() ? nullptr : world.FindWorker(on.front());
    std::vector<int> ready;
    for (const int uid : PeopleOf(match, act.By))
      if (const Worker* worker = world.FindWorker(uid); worker && CanTurn(*worker, victim))
        ready.push_back(uid);
    turners.Alone.insert(turners.Alone.end(), ready.begin(), ready.end());
    if (ready.size() == 2) turners.Together.push_back(ready);
  }
  return turners;
}

bool IsNew(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker && !worker->Debuted;
}

void AddIf(Codes& to, bool offered, int code) {
  if (offered) to.push_back(code);
}

Codes SinglesPurposes(const World& world, const Segment& match) {
  using namespace purpose1;
  const int first = match.Worker[0], second = match.Worker[1];
  const bool feud = FeudExists(world, first, second);
  Codes list;
  AddIf(list, IsNew(world, first), kDebutFirst);
  AddIf(list, IsNew(world, second), kDebutSecond);
  AddIf(list, IsNew(world, match.Other1), kDebutRunIn);
  AddIf(list, IsNew(world, match.Other2), kDebutRunIn2);
  if (IsDraw(match)) {
    list.insert(list.end(), {kGoodMatch, kPutBothOver});
    AddIf(list, match.Finish == kNoContest, kPutRunInOver);
    AddIf(list, feud, kContinueFeud);
  } else {
    const Turners turners = TurnersOf(world, match);
    list.insert(list.end(), {kPutWinnerOver, kPutLoserOver});
    AddIf(list, match.Other1 != 0, kPutRunInOver);
    AddIf(list, match.Other2 != 0, kPutRunIn2Over);
    list.push_back(kGoodMatch);
    AddIf(list, feud, kEndFeud);
    AddIf(list, feud, kContinueFeud);
    AddIf(list, match.MatchType == kBraAndPanties || match.MatchType == kBuckNaked, kEyeCandy);
    AddIf(list, turners.Has(match.Winner), kTurnWinner);
    AddIf(list, turners.Has(match.Loser), kTurnLoser);
    AddIf(list, turners.Has(match.Other1), kTurnRunIn);
    AddIf(list, turners.Has(match.Other2), kTurnRunIn2);
  }
  list.push_back(kNone);
  return list;
}

/// The codes that name a pair and each of its two; 0 where there is no such code.
struct PairCodes {
  int First, Second, Both;
};

void AddPair(Codes& to, bool first, bool second, bool both, const PairCodes& codes) {
  AddIf(to, both, codes.Both);
  AddIf(to, first && codes.First != 0, codes.First);
  AddIf(to, second && codes.Second != 0, codes.Second);
}

void AddDebuts(Codes& to, const World& world, int first, int second, const PairCodes& codes) {
  const bool one = IsNew(world, first), two = IsNew(world, second);
  AddPair(to, one, two, one && two, codes);
}

void AddTurns(Codes& to, const Turners& turners, int first, int second, const PairCodes& codes) {
  AddPair(to, turners.Has(first), turners.Has(second), turners.HasBoth(first, second), codes);
}

void AddAfterTagWin(Codes& list, const World& world, const Segment& match, bool feud) {
  using namespace purpose2;
  const auto& worker = match.Worker;
  list.insert(list.end(), {kPutFirstTeamOver, kPutSecondTeamOver, kPutWorker1Over, kPutWorker2Over,
                           kPutWorker3Over, kPutWorker4Over});
  AddIf(list, match.Other1 != 0, kPutOther1Over);
  AddIf(list, match.Other2 != 0, kPutOthers12Over);
  AddIf(list, match.Other3 != 0, kPutOther3Over);
  AddIf(list, match.Other4 != 0, kPutOthers34Over);
  list.push_back(kGoodMatch);
  AddIf(list, feud, kEndFeud);
  AddIf(list, feud, kContinueFeud);
  const Turners turners = TurnersOf(world, match);
  AddTurns(list, turners, worker[0], worker[1], {kTurnWorker1, kTurnWorker2, kTurnFirstTeam});
  AddTurns(list, turners, worker[2], worker[3], {kTurnWorker3, kTurnWorker4, kTurnSecondTeam});
  AddTurns(list, turners, match.Other1, match.Other2, {kTurnOther1, kTurnOther2, kTurnOthers12});
  AddTurns(list, turners, match.Other3, match.Other4, {kTurnOther3, kTurnOther4, kTurnOthers34});
}

Codes TagPurposes(const World& world, const Segment& match) {
  using namespace purpose2;
  const auto& worker = match.Worker;
  const bool feud = FeudExists(world, {{worker[0], worker[1]}, {worker[2], worker[3]}});
  Codes list;
  AddDebuts(list, world, worker[0], worker[1], {kDebutWorker1, kDebutWorker2, kDebutFirstTeam});
  AddDebuts(list, world, worker[2], worker[3], {kDebutWorker3, kDebutWorker4, kDebutSecondTeam});
  AddDebuts(list, world, match.Other1, match.Other2, {kDebutOther1, kDebutOther2, kDebutOthers12});
  AddDebuts(list, world, match.Other3, match.Other4, {kDebutOther3, kDebutOther4, kDebutOthers34});
  if (IsDraw(match)) {
    list.insert(list.end(), {kGoodMatch, kPutBothOver});
    AddIf(list, match.Finish == kNoContest, kPutOther1Over);
    AddIf(list, match.Finish == kNoContest && match.Other2 != 0, kPutOthers12Over);
    AddIf(list, feud, kContinueFeud);
  } else {
    AddAfterTagWin(list, world, match, feud);
  }
  list.push_back(kNone);
  return list;
}

}  // namespace

std::vector<int> OfferedPurposes(const World& world, const Segment& match) {
  if (match.Style == kSingles) return SinglesPurposes(world, match);
  return match.Style == kTag ? TagPurposes(world, match) : Codes();
}

}  // namespace grapplemont
