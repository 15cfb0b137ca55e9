#include "show/turnacts.h"

namespace grapplemont {

namespace {

using enum Phase;

constexpr TurnAct kSinglesActs[] = {
    {Finish, kCountOut, Part::Winner, Part::Loser},
    {Finish, kInterference, Part::Winner, Part::Loser},
    {Finish, kInterference, Part::Other1, Part::Loser},
    {Finish, kBotchedInterference, Part::Other1, Part::Winner},
    {Finish, kCheating, Part::Winner, Part::Loser},
    {Aftermath, after1::kAttacksReferee, Part::Loser, Part::Nobody},
    {Aftermath, after1::kTantrum, Part::Loser, Part::Nobody},
    {Aftermath, after1::kRunInOnFirst, Part::Other1, Part::Worker1},
    {Aftermath, after1::kRunInOnSecond, Part::Other1, Part::Worker2},
    {Aftermath, after1::kRevengeAttack, Part::Loser, Part::Winner},
    {Aftermath, after1::kBeatDown, Part::Winner, Part::Loser},
    {Aftermath, after1::kGetsRevenge, Part::Loser, Part::Winner},
    {Aftermath, after1::kTwoOnLoser, Part::Winner, Part::Loser},
    {Aftermath, after1::kTwoOnLoser, Part::Other1, Part::Loser},
    {Aftermath, after1::kTwoOnWinner, Part::Loser, Part::Winner},
    {Aftermath, after1::kTwoOnWinner, Part::Other1, Part::Winner},
    {Aftermath, after1::kAttacksRunIn, Part::Loser, Part::Other1},
    {Aftermath, after1::kHandshake, Part::Winner, Part::Loser},
    {Aftermath, after1::kHandshake, Part::Loser, Part::Winner},
    {Aftermath, after1::kCheapShot, Part::Loser, Part::Winner},
    {Aftermath, after1::kFirstRefusesHand, Part::Worker1, Part::Worker2},
    {Aftermath, after1::kSecondRefusesHand, Part::Worker2, Part::Worker1},
    {Aftermath, after1::kSave, Part::Other2, Part::Other1},
};

constexpr TurnAct kTagActs[] = {
    {Finish, kCountOut, Part::Winner, Part::Loser},
    {Finish, kInterference, Part::Winner, Part::Loser},
    {Finish, kInterference, Part::Others12, Part::Loser},
    {Finish, kBotchedInterference, Part::Others12, Part::Winner},
    {Finish, kCheating, Part::Winner, Part::Loser},
    {Finish, kPartnerTurns, Part::LosersPartner, Part::Loser, true},
    {Aftermath, after2::kRevenge, Part::LosingTeam, Part::Winner},
    {Aftermath, after2::kBeatenDown, Part::WinningTeam, Part::Loser},
    {Aftermath, after2::kFirstTurns, Part::Worker1, Part::Worker2, true},
    {Aftermath, after2::kSecondTurns, Part::Worker2, Part::Worker1, true},
    {Aftermath, after2::kThirdTurns, Part::Worker3, Part::Worker4, true},
    {Aftermath, after2::kFourthTurns, Part::Worker4, Part::Worker3, true},
    {Aftermath, after2::kAssaultGoesOn, Part::Others12, Part::Attacked},
    {Aftermath, after2::kThreeOnTwo, Part::WinningTeam, Part::Loser},
    {Aftermath, after2::kThreeOnTwo, Part::Others12, Part::Loser},
    {Aftermath, after2::kAttackRunIn, Part::LosingTeam, Part::Other1},
    {Aftermath, after2::kAttackRunIns, Part::LosingTeam, Part::Other1},
    {Aftermath, after2::kLosersArgue, Part::Loser, Part::LosersPartner},
    {Aftermath, after2::kLosersArgue, Part::LosersPartner, Part::Loser},
    {Aftermath, after2::kThreeOnOne, Part::WinningTeam, Part::Loser},
    {Aftermath, after2::kThreeOnOne, Part::LosersPartner, Part::Loser},
    {Aftermath, after2::kSave, Part::Others34, Part::Other1},
    {Aftermath, after2::kRunInOnFirst, Part::Others34, Part::Worker1},
    {Aftermath, after2::kRunInOnSecond, Part::Others34, Part::Worker2},
    {Aftermath, after2::kRunInOnThird, Part::Others34, Part::Worker3},
    {Aftermath, after2::kRunInOnFourth, Part::Others34, Part::Worker4},
    {Aftermath, after2::kRunInOnFirstTeam, Part::Others34, Part::Worker1},
    {Aftermath, after2::kRunInOnSecondTeam, Part::Others34, Part::Worker3},
};

}  // namespace

std::span<const TurnAct> TurnActsOf(int style) {
  if (style == kSingles) return kSinglesActs;
  return style == kTag ? std::span<const TurnAct>(kTagActs) : std::span<const TurnAct>();
}

bool Happens(const Segment& segment, const TurnAct& act) {
  return act.Code == (act.When == Phase::Finish ? segment.Finish : segment.Aftermath);
}

}  // namespace grapplemont
