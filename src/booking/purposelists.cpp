#include <algorithm>

#include "booking/offers.h"
#include "booking/roster.h"
#include "records/segmentacts.h"
#include "storylines/feuds.h"

namespace grapplemont {

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

using Codes = std::vector<int>;

void AddIf(Codes& to, bool offered, int code) {
  if (offered) to.push_back(code);
}

Codes SinglesList(const World& world, const Segment& match) {
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

Codes TagList(const World& world, const Segment& match) {
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
  if (match.Style == kSingles) return SinglesList(world, match);
  return match.Style == kTag ? TagList(world, match) : Codes();
}

}  // namespace grapplemont
