#include <algorithm>
#include <iterator>
#include <span>

#include "booking/offers.h"
#include "booking/roster.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// Who commits an act, or whom it hits.
enum class Party {
  Nobody,
  Winner,
  Loser,
  LosersPartner,
  Winners,  // both of them
  Losers,
  First,  // the worker named first, and so on
  Second,
  Third,
  Fourth,
  RunIn,     // Other1
  RunIns,    // Other1, and Other2 of a tag match
  Saver,     // Other2 of a singles match
  Savers,    // Other3 and Other4
  Attacker,  // Other1, to those who save from him
  Attacked   // whom the run-in of the finish has hit
};

std::vector<int> PeopleOf(Party party, const Segment& match) {
  const auto& worker = match.Worker;
  switch (party) {
    case Party::Winner:
      return {match.Winner};
    case Party::Loser:
      return {match.Loser};
    case Party::LosersPartner:
      return {PartnerOf(match, match.Loser)};
    case Party::Winners:
      return WinnersOf(match);
    case Party::Losers:
      return LosersOf(match);
    case Party::First:
      return {worker[0]};
    case Party::Second:
      return {worker[1]};
    case Party::Third:
      return {worker[2]};
    case Party::Fourth:
      return {worker[3]};
    case Party::RunIn:
    case Party::Attacker:
      return {match.Other1};
    case Party::RunIns:
      return {match.Other1, match.Other2};
    case Party::Attacked:
      return {match.Finish == kDqThroughInterference ? match.Winner : match.Loser};
    case Party::Saver:
      return {match.Other2};
    case Party::Savers:
      return {match.Other3, match.Other4};
    default:
      return {};
  }
}

/// An occasion for a turn: what happens, who does it, to whom.
struct Occasion {
  int Code;  // of the finish or of the aftermath
  Party By;
  Party Against;
};

constexpr Occasion kSinglesFinishTurns[] = {
    {kCountOut, Party::Winner, Party::Loser},
    {kInterference, Party::Winner, Party::Loser},
    {kInterference, Party::RunIn, Party::Loser},
    {kBotchedInterference, Party::RunIn, Party::Winner},
    {kCheating, Party::Winner, Party::Loser},
};
constexpr Occasion kSinglesAftermathTurns[] = {
    {after1::kAttacksReferee, Party::Loser, Party::Nobody},
    {after1::kTantrum, Party::Loser, Party::Nobody},
    {after1::kRunInOnFirst, Party::RunIn, Party::First},
    {after1::kRunInOnSecond, Party::RunIn, Party::Second},
    {after1::kRevengeAttack, Party::Loser, Party::Winner},
    {after1::kBeatDown, Party::Winner, Party::Loser},
    {after1::kGetsRevenge, Party::Loser, Party::Winner},
    {after1::kTwoOnLoser, Party::Winner, Party::Loser},
    {after1::kTwoOnLoser, Party::RunIn, Party::Loser},
    {after1::kTwoOnWinner, Party::Loser, Party::Winner},
    {after1::kTwoOnWinner, Party::RunIn, Party::Winner},
    {after1::kAttacksRunIn, Party::Loser, Party::RunIn},
    {after1::kHandshake, Party::Winner, Party::Loser},
    {after1::kHandshake, Party::Loser, Party::Winner},
    {after1::kCheapShot, Party::Loser, Party::Winner},
    {after1::kFirstRefusesHand, Party::First, Party::Second},
    {after1::kSecondRefusesHand, Party::Second, Party::First},
    {after1::kSave, Party::Saver, Party::Attacker},
};
constexpr Occasion kTagFinishTurns[] = {
    {kCountOut, Party::Winner, Party::Loser},
    {kInterference, Party::Winner, Party::Loser},
    {kInterference, Party::RunIns, Party::Loser},
    {kBotchedInterference, Party::RunIns, Party::Winner},
    {kCheating, Party::Winner, Party::Loser},
    {kPartnerTurns, Party::LosersPartner, Party::Loser},
};
constexpr Occasion kTagAftermathTurns[] = {
    {after2::kRevenge, Party::Losers, Party::Winner},
    {after2::kBeatenDown, Party::Winners, Party::Loser},
    {after2::kFirstTurns, Party::First, Party::Second},
    {after2::kSecondTurns, Party::Second, Party::First},
    {after2::kThirdTurns, Party::Third, Party::Fourth},
    {after2::kFourthTurns, Party::Fourth, Party::Third},
    {after2::kAssaultGoesOn, Party::RunIns, Party::Attacked},
    {after2::kThreeOnTwo, Party::Winners, Party::Loser},
    {after2::kThreeOnTwo, Party::RunIns, Party::Loser},
    {after2::kAttackRunIn, Party::Losers, Party::RunIn},
    {after2::kAttackRunIns, Party::Losers, Party::RunIn},
    {after2::kLosersArgue, Party::Loser, Party::LosersPartner},
    {after2::kLosersArgue, Party::LosersPartner, Party::Loser},
    {after2::kThreeOnOne, Party::Winners, Party::Loser},
    {after2::kThreeOnOne, Party::LosersPartner, Party::Loser},
    {after2::kSave, Party::Savers, Party::Attacker},
    {after2::kFailedSave, Party::Savers, Party::Attacker},
    {after2::kRunInOnFirst, Party::Savers, Party::First},
    {after2::kRunInOnSecond, Party::Savers, Party::Second},
    {after2::kRunInOnThird, Party::Savers, Party::Third},
    {after2::kRunInOnFourth, Party::Savers, Party::Fourth},
    {after2::kRunInOnFirstTeam, Party::Savers, Party::First},
    {after2::kRunInOnSecondTeam, Party::Savers, Party::Third},
};

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

void AddTurners(Turners& turners, const World& world, const Segment& match,
                std::span<const Occasion> occasions, int code) {
  for (const Occasion& occasion : occasions) {
    if (occasion.Code != code) continue;
    const std::vector<int> against = PeopleOf(occasion.Against, match);
    const Worker* partner = against.empty() ? nullptr : world.FindWorker(against[0]);
    std::vector<int> ready;
    for (const int uid : PeopleOf(occasion.By, match))
      if (const Worker* worker = world.FindWorker(uid); worker && CanTurn(*worker, partner))
        ready.push_back(uid);
    turners.Alone.insert(turners.Alone.end(), ready.begin(), ready.end());
    if (ready.size() == 2) turners.Together.push_back(ready);
  }
}

Turners TurnersOf(const World& world, const Segment& match) {
  Turners turners;
  const bool singles = match.Style == kSingles;
  AddTurners(turners, world, match,
             singles ? std::span<const Occasion>(kSinglesFinishTurns) : kTagFinishTurns,
             match.Finish);
  AddTurners(turners, world, match,
             singles ? std::span<const Occasion>(kSinglesAftermathTurns) : kTagAftermathTurns,
             match.Aftermath);
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
