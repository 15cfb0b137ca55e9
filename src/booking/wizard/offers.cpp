#include "booking/wizard/offers.h"

#include <algorithm>
#include <array>
#include <initializer_list>

#include "booking/wizard/roster.h"
#include "records/segmentacts.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// Match types that have a finish, or finishes that an aftermath or a purpose may follow.
using Codes = unsigned;
constexpr Codes Only(std::initializer_list<int> codes) {
  Codes set = 0;
  for (const int code : codes) set |= 1u << code;
  return set;
}
constexpr Codes AllBut(std::initializer_list<int> codes) {
  return ~Only(codes);
}
constexpr Codes kEvery = ~0u;
constexpr int kBeyond = 31;  // stands for every greater code

enum class If { Always, Won, Drawn };
/// What else an entry needs, of its people where it has some.
enum class Needs {
  Nothing,
  FeudBetween,
  Stripping,
  Presence,
  Absence,
  Debut,       // nobody has seen them yet
  Pending,     // a turn is prepared
  LosersTurn,  // and they have lost
  Turn         // they do something that can turn them, a pair together
};

/// An entry of a list.
struct Offer {
  int Code;
  If Result = If::Won;
  Codes After = kEvery;
  Needs Need = Needs::Nothing;
  Part Who = Part::Nobody;
};
using enum If;
using enum Needs;

constexpr Offer kSinglesFinishOffers[] = {
    {kClean, Won, AllBut({kHighIncident})},
    {kInterference, Won, AllBut({kHighIncident})},
    {kBotchedInterference, Won, AllBut({kHighIncident})},
    {kCountOut, Won, Only({kPlainSingles})},
    {kDqThroughInterference, Won, Only({kPlainSingles})},
    {kCheating, Won,
     AllBut({kSubmission, kCage, kTexasDeath, kLastManStanding, kLadder, kTables, kBraAndPanties,
             kIQuit, kHighIncident, kBuckNaked})},
    {kSickBump, Won,
     Only({kLadder, kIQuit, kHellInACell, kHighIncident, kBarbedWire, kDeathMatch})},
    {kDoubleDq, Drawn},
    {kDoubleCountOut, Drawn},
    {kNoContest, Drawn},
};
constexpr Offer kTagFinishOffers[] = {
    {kClean},
    {kCountOut, Won, Only({kPlainTag})},
    {kDqThroughInterference, Won, Only({kPlainTag})},
    {kInterference},
    {kBotchedInterference},
    {kCheating, Won, Only({kPlainTag, kTagHardcore})},
    {kMiscommunication, Won, AllBut({kTagCage, kTagLadder})},
    {kPartnerTurns, Won, AllBut({kTagCage, kTagLadder}), Pending, Part::LosersPartner},
    {kSickBump, Won, Only({kTagLadder})},
    {kDoubleDq, Drawn},
    {kDoubleCountOut, Drawn},
    {kNoContest, Drawn},
};

constexpr Codes kHits = Only({kInterference, kDqThroughInterference});
constexpr Codes kForASide = Only({kInterference, kBotchedInterference, kDqThroughInterference});

constexpr Offer kSinglesAftermathOffers[] = {
    {after1::kAttacksReferee},
    {after1::kTantrum},
    {after1::kWinnerRuns},
    {after1::kLoserRuns},
    {after1::kRevengeAttack, Won, Only({kClean, kCountOut})},
    {after1::kBeatDown, Won, Only({kClean, kCountOut})},
    {after1::kGetsRevenge, Won, Only({kInterference})},
    {after1::kTwoOnLoser, Won, Only({kInterference})},
    {after1::kAssaultGoesOn, Won, Only({kInterference})},
    {after1::kTwoOnWinner, Won, Only({kBotchedInterference, kDqThroughInterference})},
    {after1::kAttacksRunIn, Won, Only({kBotchedInterference, kDqThroughInterference})},
    {after1::kAssaultGoesOn, Won, Only({kDqThroughInterference})},
    {after1::kSave, Won, kForASide},
    {after1::kFailedSave, Won, kForASide},
    {after1::kRunInDestroys, Drawn, Only({kNoContest})},
    {after1::kTwoOnFirst, Drawn, Only({kNoContest})},
    {after1::kTwoOnSecond, Drawn, Only({kNoContest})},
    {after1::kTwoOnRunIn, Drawn, Only({kNoContest})},
    {after1::kThreeWayBrawl, Drawn, Only({kNoContest})},
    {after1::kHandshake, Always, kEvery, Absence, Part::Other1},
    {after1::kFirstRefusesHand, Always, kEvery, Absence, Part::Other1},
    {after1::kSecondRefusesHand, Always, kEvery, Absence, Part::Other1},
    {after1::kCheapShot, Won, kEvery, Absence, Part::Other1},
    {after1::kBrawlToTheBack, Always, kEvery, Absence, Part::Other1},
    {after1::kRunInOnFirst, Always, kEvery, Absence, Part::Other1},
    {after1::kRunInOnSecond, Always, kEvery, Absence, Part::Other1},
    {after1::kRunInOnBoth, Always, kEvery, Absence, Part::Other1},
    {after1::kNothing, Always},
};
constexpr Offer kTagAftermathOffers[] = {
    {after2::kBrawling, Drawn},
    {after2::kFirstBeatsSecond, Drawn},
    {after2::kSecondBeatsFirst, Drawn},
    {after2::kThreeOnOne, Won, Only({kPartnerTurns})},
    {after2::kRevenge, Won, AllBut({kPartnerTurns})},
    {after2::kBeatenDown, Won, AllBut({kPartnerTurns})},
    {after2::kFirstTurns, Won, AllBut({kPartnerTurns}), LosersTurn, Part::Worker1},
    {after2::kSecondTurns, Won, AllBut({kPartnerTurns}), LosersTurn, Part::Worker2},
    {after2::kThirdTurns, Won, AllBut({kPartnerTurns}), LosersTurn, Part::Worker3},
    {after2::kFourthTurns, Won, AllBut({kPartnerTurns}), LosersTurn, Part::Worker4},
    {after2::kLosersArgue, Won, AllBut({kPartnerTurns})},
    {after2::kAssaultGoesOn, Won, kHits, Presence, Part::Other2},
    {after2::kThreeOnTwo, Won, kHits, Absence, Part::Other2},
    {after2::kAttackRunIns, Won, Only({kBotchedInterference}), Presence, Part::Other2},
    {after2::kAttackRunIn, Won, Only({kBotchedInterference}), Absence, Part::Other2},
    {after2::kSave, Won, kForASide},
    {after2::kFailedSave, Won, kForASide},
    {after2::kThreeTeamBrawl, Always, kForASide | Only({kNoContest}), Presence, Part::Other2},
    {after2::kBrawlToTheBack, Always, kEvery, Absence, Part::Others12},
    {after2::kRunInOnFirst, Always, kEvery, Absence, Part::Others12},
    {after2::kRunInOnSecond, Always, kEvery, Absence, Part::Others12},
    {after2::kRunInOnThird, Always, kEvery, Absence, Part::Others12},
    {after2::kRunInOnFourth, Always, kEvery, Absence, Part::Others12},
    {after2::kRunInOnFirstTeam, Always, kEvery, Absence, Part::Others12},
    {after2::kRunInOnSecondTeam, Always, kEvery, Absence, Part::Others12},
    {after2::kRunInOnBoth, Always, kEvery, Absence, Part::Others12},
    {after2::kNothing, Always},
};

constexpr Offer kSinglesPurposeOffers[] = {
    {purpose1::kDebutFirst, Always, kEvery, Debut, Part::Worker1},
    {purpose1::kDebutSecond, Always, kEvery, Debut, Part::Worker2},
    {purpose1::kDebutRunIn, Always, kEvery, Debut, Part::Other1},
    {purpose1::kDebutRunIn2, Always, kEvery, Debut, Part::Other2},
    {purpose1::kGoodMatch, Drawn},
    {purpose1::kPutBothOver, Drawn},
    {purpose1::kPutRunInOver, Drawn, Only({kNoContest})},
    {purpose1::kContinueFeud, Drawn, kEvery, FeudBetween},
    {purpose1::kPutWinnerOver},
    {purpose1::kPutLoserOver},
    {purpose1::kPutRunInOver, Won, kEvery, Presence, Part::Other1},
    {purpose1::kPutRunIn2Over, Won, kEvery, Presence, Part::Other2},
    {purpose1::kGoodMatch},
    {purpose1::kEndFeud, Won, kEvery, FeudBetween},
    {purpose1::kContinueFeud, Won, kEvery, FeudBetween},
    {purpose1::kEyeCandy, Won, kEvery, Stripping},
    {purpose1::kTurnWinner, Won, kEvery, Turn, Part::Winner},
    {purpose1::kTurnLoser, Won, kEvery, Turn, Part::Loser},
    {purpose1::kTurnRunIn, Won, kEvery, Turn, Part::Other1},
    {purpose1::kTurnRunIn2, Won, kEvery, Turn, Part::Other2},
    {purpose1::kNone, Always},
};
constexpr Offer kTagPurposeOffers[] = {
    {purpose2::kDebutFirstTeam, Always, kEvery, Debut, Part::FirstTeam},
    {purpose2::kDebutWorker1, Always, kEvery, Debut, Part::Worker1},
    {purpose2::kDebutWorker2, Always, kEvery, Debut, Part::Worker2},
    {purpose2::kDebutSecondTeam, Always, kEvery, Debut, Part::SecondTeam},
    {purpose2::kDebutWorker3, Always, kEvery, Debut, Part::Worker3},
    {purpose2::kDebutWorker4, Always, kEvery, Debut, Part::Worker4},
    {purpose2::kDebutOthers12, Always, kEvery, Debut, Part::Others12},
    {purpose2::kDebutOther1, Always, kEvery, Debut, Part::Other1},
    {purpose2::kDebutOther2, Always, kEvery, Debut, Part::Other2},
    {purpose2::kDebutOthers34, Always, kEvery, Debut, Part::Others34},
    {purpose2::kDebutOther3, Always, kEvery, Debut, Part::Other3},
    {purpose2::kDebutOther4, Always, kEvery, Debut, Part::Other4},
    {purpose2::kGoodMatch, Drawn},
    {purpose2::kPutBothOver, Drawn},
    {purpose2::kPutOther1Over, Drawn, Only({kNoContest})},
    {purpose2::kPutOthers12Over, Drawn, Only({kNoContest}), Presence, Part::Other2},
    {purpose2::kContinueFeud, Drawn, kEvery, FeudBetween},
    {purpose2::kPutFirstTeamOver},
    {purpose2::kPutSecondTeamOver},
    {purpose2::kPutWorker1Over},
    {purpose2::kPutWorker2Over},
    {purpose2::kPutWorker3Over},
    {purpose2::kPutWorker4Over},
    {purpose2::kPutOther1Over, Won, kEvery, Presence, Part::Other1},
    {purpose2::kPutOthers12Over, Won, kEvery, Presence, Part::Other2},
    {purpose2::kPutOther3Over, Won, kEvery, Presence, Part::Other3},
    {purpose2::kPutOthers34Over, Won, kEvery, Presence, Part::Other4},
    {purpose2::kGoodMatch},
    {purpose2::kEndFeud, Won, kEvery, FeudBetween},
    {purpose2::kContinueFeud, Won, kEvery, FeudBetween},
    {purpose2::kTurnFirstTeam, Won, kEvery, Turn, Part::FirstTeam},
    {purpose2::kTurnWorker1, Won, kEvery, Turn, Part::Worker1},
    {purpose2::kTurnWorker2, Won, kEvery, Turn, Part::Worker2},
    {purpose2::kTurnSecondTeam, Won, kEvery, Turn, Part::SecondTeam},
    {purpose2::kTurnWorker3, Won, kEvery, Turn, Part::Worker3},
    {purpose2::kTurnWorker4, Won, kEvery, Turn, Part::Worker4},
    {purpose2::kTurnOthers12, Won, kEvery, Turn, Part::Others12},
    {purpose2::kTurnOther1, Won, kEvery, Turn, Part::Other1},
    {purpose2::kTurnOther2, Won, kEvery, Turn, Part::Other2},
    {purpose2::kTurnOthers34, Won, kEvery, Turn, Part::Others34},
    {purpose2::kTurnOther3, Won, kEvery, Turn, Part::Other3},
    {purpose2::kTurnOther4, Won, kEvery, Turn, Part::Other4},
    {purpose2::kNone, Always},
};

bool IsPending(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker && worker->TurnPending;
}

bool IsNew(const World& world, int uid) {
  const Worker* worker = world.FindWorker(uid);
  return worker && !worker->Debuted;
}

/// A match as its lists look at it. They are asked for every match that the auto booker tries, so
/// nothing is allocated until somebody waits to turn.
class Look {
 public:
  Look(const World& world, const Segment& match) : world_(world), match_(match) {
    std::copy_n(match.Worker.begin(), kWorkers, people_.begin());
    std::size_t at = kWorkers;
    for (const int uid : {match.Other1, match.Other2, match.Other3, match.Other4, match.Winner})
      people_[at++] = uid;
    mayTurn_ =
        std::any_of(people_.begin(), people_.end(), [&](int uid) { return IsPending(world, uid); });
  }

  bool Takes(const Offer& offer, int after) const {
    return (offer.Result == Always || (offer.Result == Drawn) == IsDraw(match_)) &&
           (offer.After >> std::min(after, kBeyond) & 1) != 0 && Has(offer.Need, offer.Who);
  }

 private:
  using Uids = std::span<const int>;  // 0 for nobody

  bool Has(Needs need, Part who) const {
    if (need == Nothing) return true;
    if (need == FeudBetween) return IsFeud();
    if (need == Stripping)
      return match_.MatchType == kBraAndPanties || match_.MatchType == kBuckNaked;
    if (need >= Pending && !mayTurn_) return false;
    if (who != Part::Loser && who != Part::LosersPartner) return HasAll(need, Standing(who));
    const std::vector<int> beaten = PeopleOf(match_, who);
    return !beaten.empty() && HasAll(need, beaten);
  }

  /// Of a winner, of who stands in a place and of who runs in.
  Uids Standing(Part who) const {
    constexpr std::pair<std::size_t, std::size_t> kStand[] = {
        {0, 1}, {1, 1}, {2, 1}, {3, 1}, {0, 2}, {2, 2},   // Worker1 to SecondTeam
        {4, 1}, {5, 1}, {6, 1}, {7, 1}, {4, 2}, {6, 2}};  // Other1 to Others34
    if (who == Part::Winner) return Uids(people_).last(1);
    const auto& [first, count] = kStand[static_cast<int>(who) - static_cast<int>(Part::Worker1)];
    return Uids(people_).subspan(first, count);
  }

  bool HasAll(Needs need, Uids uids) const {
    if (need == Turn) return Turns(uids);
    return std::all_of(uids.begin(), uids.end(), [&](int uid) {
      if (need == Presence || need == Absence) return (uid == 0) == (need == Absence);
      if (need == Debut) return IsNew(world_, uid);
      return IsPending(world_, uid) &&
             (need == Pending || SideOf(match_, uid) == SideOf(match_, match_.Loser));
    });
  }

  /// Whether some act turns all of them.
  bool Turns(Uids uids) const {
    const std::vector<Act> acts = ActsOf(match_);
    return std::any_of(acts.begin(), acts.end(), [&](const Act& act) {
      const std::vector<int> by = PeopleOf(match_, act.By), on = PeopleOf(match_, act.On);
      const Worker* victim = on.empty() ? nullptr : world_.FindWorker(on.front());
      return act.Is(kTurnOccasion) && std::all_of(uids.begin(), uids.end(), [&](int uid) {
               const Worker* worker = world_.FindWorker(uid);
               return worker && CanTurn(*worker, victim) &&
                      std::find(by.begin(), by.end(), uid) != by.end();
             });
    });
  }

  bool IsFeud() const {
    const auto& worker = match_.Worker;
    return match_.Style == kSingles
               ? FeudExists(world_, worker[0], worker[1])
               : FeudExists(world_, {{worker[0], worker[1]}, {worker[2], worker[3]}});
  }

  static constexpr std::size_t kWorkers = 4;
  const World& world_;
  const Segment& match_;
  std::array<int, kWorkers + 5> people_;  // then who runs in, and the winner
  bool mayTurn_;                          // somebody among them waits to
};

std::vector<int> Offered(const World& world, const Segment& match, std::span<const Offer> singles,
                         std::span<const Offer> tag, int after) {
  std::vector<int> codes;
  if (match.Style != kSingles && match.Style != kTag) return codes;
  const Look look(world, match);
  const auto offers = match.Style == kSingles ? singles : tag;
  codes.reserve(offers.size());
  for (const Offer& offer : offers)
    if (look.Takes(offer, after)) codes.push_back(offer.Code);
  return codes;
}

/// The finishes of trios and quartets. Whoever is ready to turn may do so whether anybody wins or
/// not; the last three codes are those of a draw.
std::vector<int> TeamFinishes(const World& world, const Segment& match) {
  std::vector<int> offered;
  if (!IsDraw(match)) offered = {kClean, kCheapVictory};
  int code = kFirstTurns;
  for (const int uid : PeopleOf(match)) {
    if (IsPending(world, uid)) offered.push_back(code);
    ++code;
  }
  const int last = FinishesOf(match.Style).back().Code;
  if (IsDraw(match)) offered.insert(offered.end(), {last - 2, last - 1, last});
  return offered;
}

}  // namespace

std::vector<int> OfferedFinishes(const World& world, const Segment& match) {
  if (match.Style == kThreeOnThree || match.Style == kFourOnFour) return TeamFinishes(world, match);
  return Offered(world, match, kSinglesFinishOffers, kTagFinishOffers, match.MatchType);
}

std::vector<int> OfferedAftermaths(const World& world, const Segment& match) {
  return Offered(world, match, kSinglesAftermathOffers, kTagAftermathOffers, match.Finish);
}

std::vector<int> OfferedPurposes(const World& world, const Segment& match) {
  return Offered(world, match, kSinglesPurposeOffers, kTagPurposeOffers, match.Finish);
}

}  // namespace grapplemont
