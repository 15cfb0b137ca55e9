#include "records/segmentacts.h"

#include <span>

namespace grapplemont {

namespace {

using enum Phase;

constexpr unsigned kTurn = kTurnOccasion, kSure = kTurnOccasion | kSureTurn, kHit = kFeudAttack;

constexpr Act kSinglesActs[] = {
    {Finish, kCountOut, Part::Winner, Part::Loser, kTurn},
    {Finish, kInterference, Part::Winner, Part::Loser, kTurn},
    {Finish, kInterference, Part::Other1, Part::Loser, kTurn | kHit | kStruck},
    {Finish, kBotchedInterference, Part::Other1, Part::Winner, kTurn},
    {Finish, kBotchedInterference, Part::Winner, Part::Other1, kHit},
    {Finish, kCheating, Part::Winner, Part::Loser, kTurn},
    {Finish, kNoContest, Part::Other1, Part::Winner, kHit | kStruck},
    {Finish, kNoContest, Part::Other1, Part::Loser, kHit | kStruck},
    {Finish, kDqThroughInterference, Part::Other1, Part::Winner, kHit | kStruck},
    {Aftermath, after1::kAttacksReferee, Part::Loser, Part::Nobody, kTurn},
    {Aftermath, after1::kTantrum, Part::Loser, Part::Nobody, kTurn},
    {Aftermath, after1::kRunInOnFirst, Part::Other1, Part::Worker1, kTurn | kStruck},
    // A feud counts it against who won or lost, whoever was attacked.
    {Aftermath, after1::kRunInOnFirst, Part::Other1, Part::Winner, kHit},
    {Aftermath, after1::kRunInOnSecond, Part::Other1, Part::Worker2, kTurn | kStruck},
    {Aftermath, after1::kRunInOnSecond, Part::Other1, Part::Loser, kHit},
    {Aftermath, after1::kRunInOnBoth, Part::Other1, Part::Winner, kHit | kStruck},
    {Aftermath, after1::kRunInOnBoth, Part::Other1, Part::Loser, kHit | kStruck},
    {Aftermath, after1::kRevengeAttack, Part::Loser, Part::Winner, kTurn | kStruck},
    {Aftermath, after1::kBeatDown, Part::Winner, Part::Loser, kTurn | kStruck},
    {Aftermath, after1::kGetsRevenge, Part::Loser, Part::Winner, kTurn | kStruck},
    {Aftermath, after1::kTwoOnLoser, Part::Winner, Part::Loser, kTurn | kStruck},
    {Aftermath, after1::kTwoOnLoser, Part::Other1, Part::Loser, kTurn | kStruck},
    {Aftermath, after1::kTwoOnWinner, Part::Loser, Part::Winner, kTurn | kStruck},
    {Aftermath, after1::kTwoOnWinner, Part::Other1, Part::Winner, kTurn | kStruck},
    {Aftermath, after1::kAttacksRunIn, Part::Loser, Part::Other1, kTurn | kStruck},
    {Aftermath, after1::kRunInDestroys, Part::Other1, Part::Winner, kHit | kStruck},
    {Aftermath, after1::kRunInDestroys, Part::Other1, Part::Loser, kHit | kStruck},
    {Aftermath, after1::kTwoOnFirst, Part::Worker2, Part::Worker1, kStruck},
    {Aftermath, after1::kTwoOnFirst, Part::Other1, Part::Worker1, kStruck},
    {Aftermath, after1::kTwoOnSecond, Part::Worker1, Part::Worker2, kStruck},
    {Aftermath, after1::kTwoOnSecond, Part::Other1, Part::Worker2, kStruck},
    {Aftermath, after1::kTwoOnRunIn, Part::Worker1, Part::Other1, kStruck},
    {Aftermath, after1::kTwoOnRunIn, Part::Worker2, Part::Other1, kStruck},
    {Aftermath, after1::kHandshake, Part::Winner, Part::Loser, kTurn},
    {Aftermath, after1::kHandshake, Part::Loser, Part::Winner, kTurn},
    {Aftermath, after1::kCheapShot, Part::Loser, Part::Winner, kTurn | kStruck},
    {Aftermath, after1::kFirstRefusesHand, Part::Worker1, Part::Worker2, kTurn},
    {Aftermath, after1::kSecondRefusesHand, Part::Worker2, Part::Worker1, kTurn},
    {Aftermath, after1::kAssaultGoesOn, Part::Other1, Part::Attacked, kStruck},
    {Aftermath, after1::kSave, Part::Other2, Part::Other1, kTurn | kHit | kStruck},
    {Aftermath, after1::kSave, Part::Other2, Part::Helped, kHit | kStruck},
    {Aftermath, after1::kFailedSave, Part::Other1, Part::Other2, kHit | kStruck},
    {Aftermath, after1::kFailedSave, Part::Helped, Part::Other2, kHit | kStruck},
};

constexpr Act kTagActs[] = {
    {Finish, kCountOut, Part::Winner, Part::Loser, kTurn},
    {Finish, kInterference, Part::Winner, Part::Loser, kTurn},
    {Finish, kInterference, Part::Others12, Part::Loser, kTurn | kStruck},
    {Finish, kInterference, Part::Others12, Part::LosingTeam, kHit},
    {Finish, kBotchedInterference, Part::Others12, Part::Winner, kTurn},
    {Finish, kBotchedInterference, Part::WinningTeam, Part::Others12, kHit},
    {Finish, kCheating, Part::Winner, Part::Loser, kTurn},
    {Finish, kNoContest, Part::Others12, Part::WinningTeam, kHit | kStruck},
    {Finish, kNoContest, Part::Others12, Part::LosingTeam, kHit | kStruck},
    {Finish, kPartnerTurns, Part::LosersPartner, Part::Loser, kSure | kStruck},
    {Finish, kDqThroughInterference, Part::Others12, Part::WinningTeam, kHit},
    {Finish, kDqThroughInterference, Part::Others12, Part::Winner, kStruck},
    {Aftermath, after2::kRevenge, Part::LosingTeam, Part::Winner, kTurn | kStruck},
    {Aftermath, after2::kBeatenDown, Part::WinningTeam, Part::Loser, kTurn | kStruck},
    {Aftermath, after2::kFirstTurns, Part::Worker1, Part::Worker2, kSure | kStruck},
    {Aftermath, after2::kSecondTurns, Part::Worker2, Part::Worker1, kSure | kStruck},
    {Aftermath, after2::kThirdTurns, Part::Worker3, Part::Worker4, kSure | kStruck},
    {Aftermath, after2::kFourthTurns, Part::Worker4, Part::Worker3, kSure | kStruck},
    {Aftermath, after2::kFirstBeatsSecond, Part::FirstTeam, Part::SecondTeam, kHit | kStruck},
    {Aftermath, after2::kSecondBeatsFirst, Part::SecondTeam, Part::FirstTeam, kHit | kStruck},
    {Aftermath, after2::kAssaultGoesOn, Part::Others12, Part::Attacked, kTurn | kStruck},
    {Aftermath, after2::kAssaultGoesOn, Part::Others12, Part::AttackedTeam, kHit},
    {Aftermath, after2::kThreeOnTwo, Part::HelpedTeam, Part::Attacked, kTurn | kStruck},
    {Aftermath, after2::kThreeOnTwo, Part::HelpedTeam, Part::AttackedTeam, kHit},
    {Aftermath, after2::kThreeOnTwo, Part::Others12, Part::Attacked, kTurn | kStruck},
    {Aftermath, after2::kThreeOnTwo, Part::Other1, Part::AttackedTeam, kHit},
    {Aftermath, after2::kAttackRunIn, Part::LosingTeam, Part::Other1, kTurn | kHit | kStruck},
    {Aftermath, after2::kAttackRunIns, Part::LosingTeam, Part::Other1, kTurn},
    {Aftermath, after2::kAttackRunIns, Part::LosingTeam, Part::Others12, kHit | kStruck},
    {Aftermath, after2::kLosersArgue, Part::Loser, Part::LosersPartner, kTurn},
    {Aftermath, after2::kLosersArgue, Part::LosersPartner, Part::Loser, kTurn},
    {Aftermath, after2::kThreeOnOne, Part::WinningTeam, Part::Loser, kTurn | kStruck},
    {Aftermath, after2::kThreeOnOne, Part::LosersPartner, Part::Loser, kTurn | kStruck},
    {Aftermath, after2::kSave, Part::Others34, Part::Other1, kTurn},
    {Aftermath, after2::kSave, Part::Others34, Part::Others12, kHit | kStruck},
    {Aftermath, after2::kSave, Part::Others34, Part::HelpedTeam, kHit},
    {Aftermath, after2::kFailedSave, Part::Others12, Part::Others34, kHit | kStruck},
    {Aftermath, after2::kFailedSave, Part::HelpedTeam, Part::Others34, kHit | kStruck},
    {Aftermath, after2::kRunInOnFirst, Part::Others34, Part::Worker1, kTurn | kHit | kStruck},
    {Aftermath, after2::kRunInOnSecond, Part::Others34, Part::Worker2, kTurn | kHit | kStruck},
    {Aftermath, after2::kRunInOnThird, Part::Others34, Part::Worker3, kTurn | kHit | kStruck},
    {Aftermath, after2::kRunInOnFourth, Part::Others34, Part::Worker4, kTurn | kHit | kStruck},
    {Aftermath, after2::kRunInOnFirstTeam, Part::Others34, Part::Worker1, kTurn},
    {Aftermath, after2::kRunInOnFirstTeam, Part::Others34, Part::FirstTeam, kHit | kStruck},
    {Aftermath, after2::kRunInOnSecondTeam, Part::Others34, Part::Worker3, kTurn},
    {Aftermath, after2::kRunInOnSecondTeam, Part::Others34, Part::SecondTeam, kHit | kStruck},
    {Aftermath, after2::kRunInOnBoth, Part::Others34, Part::FirstTeam, kHit | kStruck},
    {Aftermath, after2::kRunInOnBoth, Part::Others34, Part::SecondTeam, kHit | kStruck},
};

std::span<const Act> TableOf(const Segment& segment) {
  if (segment.Kind != kMatch) return {};
  if (segment.Style == kSingles) return kSinglesActs;
  return segment.Style == kTag ? std::span<const Act>(kTagActs) : std::span<const Act>();
}

}  // namespace

std::vector<Act> ActsOf(const Segment& segment) {
  std::vector<Act> acts;
  for (const Act& act : TableOf(segment))
    if (act.Code == (act.When == Phase::Finish ? segment.Finish : segment.Aftermath))
      acts.push_back(act);
  return acts;
}

}  // namespace grapplemont
