#include <algorithm>

#include "records/angles.h"
#include "records/fields/fields.h"
#include "records/segmentacts.h"
#include "records/segmentforms.h"
#include "records/segments.h"
#include "report/pastlook.h"
#include "report/teller.h"

namespace grapplemont {

namespace {

constexpr int kRecalled = 35;  // days

/// At which places of an angle those stand who do it, and those to whom it is done.
struct ActRow {
  int Angle;
  std::initializer_list<int> By, On;
};
/// Angles in which somebody is beaten up.
const ActRow kAttacks[] = {{kAmbush, {2, 3}, {1}},         {kGetTheTable, {3, 4}, {1, 2}},
                           {kLadderToSuccess, {2}, {1}},   {kBloodGetsSpilt, {2}, {1}},
                           {kGettingGroinal, {2, 3}, {1}}, {kStrengthInNumbers, {2, 3, 4}, {1}},
                           {kDebutAttack, {2}, {1}},       {kParamedics, {2}, {1}},
                           {kFireball, {2}, {1}},          {kDoubleTrouble, {1, 2}, {3, 4}},
                           {kWeakestLink, {2, 3}, {1}},    {kTeamDebutAttack, {1, 2}, {3, 4}}};

/// Angles in which somebody asks for a match.
const ActRow kChallenges[] = {
    {kChallenge, {1}, {2}}, {kWhyWait, {1}, {2}}, {kTagChallenge, {1, 2}, {3, 4}}};

/// Of an interview: the others hear what is coming to them.
bool IsThreat(int purpose) {
  return purpose == kVerbalAttack || purpose == kHypeMatch || purpose == kTalkContinueFeud;
}

std::vector<int> AtPlaces(const Segment& segment, std::initializer_list<int> places) {
  std::vector<int> uids;
  for (const int place : places)
    if (const int uid = UidAt(segment, place); uid != 0) uids.push_back(uid);
  return uids;
}

/// What a Segment of before holds for the two who meet now; for the first and anybody where the
/// second is nobody.
class Recall {
 public:
  Recall(const std::vector<int>& one, const std::vector<int>& two) : one_(one), two_(two) {}

  void Read(const Segment& segment, int daysAgo, int row) {
    const std::size_t known = facts_.size();
    for (const Blow& blow : BlowsOf(segment)) Attack(blow, daysAgo);
    if (segment.Kind == kAngle) ReadAngle(segment, daysAgo);
    if (segment.Kind == kInterview && IsThreat(segment.Purpose)) ReadTalk(segment, daysAgo);
    for (std::size_t fact = known; fact < facts_.size(); ++fact) facts_[fact].Row = row;
  }
  /// The latest first.
  std::vector<PastFact> Facts() {
    std::ranges::stable_sort(facts_, {}, &PastFact::DaysAgo);
    return std::move(facts_);
  }

 private:
  void ReadAngle(const Segment& segment, int daysAgo) {
    for (const ActRow& row : kChallenges)
      if (row.Angle == segment.Style)
        Challenge(AtPlaces(segment, row.By), AtPlaces(segment, row.On), daysAgo);
    if (segment.Style != kContractSigning) return;
    const auto first = AtPlaces(segment, {1}), second = AtPlaces(segment, {2});
    if (const int side = Between(first, second); side != 0)
      facts_.push_back(
          {kSignedFor, 78, one_, two_.empty() ? (side == 1 ? second : first) : two_, 0, daysAgo});
  }

  void ReadTalk(const Segment& segment, int daysAgo) {
    const auto talkers = SeatedAs(segment, Casting::Talkers);
    const auto targets = SeatedAs(segment, Casting::Targets);
    const int side = Between(talkers, targets);
    if (side == 0) return;
    const auto managers = SeatedAs(segment, Casting::TalkManagers);
    PastFact fact{managers.empty() ? kThreatened : kManagerSpoke,
                  (daysAgo == 0 ? 84 : 64),
                  Meant(side == 1 ? one_ : two_, talkers),
                  Meant(side == 1 ? two_ : one_, targets),
                  0,
                  daysAgo};
    if (!managers.empty()) fact.Manager = managers[0];
    facts_.push_back(std::move(fact));
  }

  void Attack(const Blow& blow, int daysAgo) {
    const int side = Between(blow.By, blow.On);
    if (side != 0)
      facts_.push_back({kWasAttacked, daysAgo <= 10 ? 80 : 57,
                        Meant(side == 1 ? two_ : one_, blow.On),
                        Meant(side == 1 ? one_ : two_, blow.By), 0, daysAgo});
  }

  void Challenge(const std::vector<int>& by, const std::vector<int>& on, int daysAgo) {
    const int side = Between(by, on);
    if (side != 0)
      facts_.push_back({kChallenged, daysAgo == 0 ? 79 : 63, Meant(side == 1 ? one_ : two_, by),
                        Meant(side == 1 ? two_ : one_, on), 0, daysAgo});
  }

  /// 1 or 2 for the side that does it to the other; 0 where it is between others.
  int Between(const std::vector<int>& by, const std::vector<int>& on) const {
    if (AnyOf(by, one_) && IsOther(on)) return 1;
    return IsOther(by) && AnyOf(on, one_) ? 2 : 0;
  }
  /// Whether there is one of the other side among them.
  bool IsOther(const std::vector<int>& uids) const {
    if (!two_.empty()) return AnyOf(uids, two_);
    return std::any_of(uids.begin(), uids.end(), [](int uid) { return uid != 0; });
  }
  /// Those of the side who are among them; all of them where it is anybody's.
  static std::vector<int> Meant(const std::vector<int>& side, std::vector<int> uids) {
    if (!side.empty()) return Shared(side, uids);
    std::erase(uids, 0);
    return uids;
  }

  const std::vector<int>&one_, &two_;
  std::vector<PastFact> facts_;
};

}  // namespace

std::vector<Blow> BlowsOf(const Segment& segment) {
  std::vector<Blow> blows;
  if (segment.Kind == kAngle)
    for (const ActRow& row : kAttacks)
      if (row.Angle == segment.Style)
        blows.push_back({AtPlaces(segment, row.By), AtPlaces(segment, row.On)});
  if (segment.Kind == kMatch)
    for (const Act& act : ActsOf(segment))
      if (act.Is(kStruck)) blows.push_back({PeopleOf(segment, act.By), PeopleOf(segment, act.On)});
  return blows;
}

std::vector<PastFact> CallbacksOf(Teller& teller, const std::vector<int>& one,
                                  const std::vector<int>& two) {
  const World& world = teller.world;
  Recall recall(one, two);
  for (int row = 1; row < teller.scene.Row; ++row) recall.Read(world.Segments()[row], 0, row);
  for (const KeptRow& kept : world.KeptRows()) {
    const auto days = (teller.Today() - Day(kept.On)).count();
    if (!kept.IsDraft && days > 0 && days <= kRecalled)
      recall.Read(kept.Booked, static_cast<int>(days), kept.Row);
  }
  return recall.Facts();
}

}  // namespace grapplemont
