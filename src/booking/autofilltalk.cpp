#include <algorithm>

#include "booking/automatches.h"
#include "booking/autotalk.h"
#include "records/angles.h"
#include "show/ratings.h"
#include "storylines/feuds.h"

// Interviews and angles for their own sake: champions, stars, what the people came to see.

namespace grapplemont {

namespace {

constexpr int kVariety = 14;
/// One who does not wrestle tonight should be seen all the same.
constexpr int kUnseen = 10;
/// Of the talk, so many in a hundred are angles where the writers allow them.
constexpr int kAngleShare = 55;
/// And of these so many announce a match of tonight, or are the work of a stable where its leader
/// has the word.
constexpr int kAnnouncements = 12, kStableAttacks = 30;
/// Angles are for those who come out best in them.
constexpr std::size_t kStars = 6;

/// All who have no talk yet, best talkers first, mixed a little.
std::vector<const Worker*> TalkersByWorth(AutoPlan& plan) {
  std::vector<std::pair<int, const Worker*>> ranked;
  for (const Worker* worker : plan.Pool.People()) {
    if (!worker->Debuted || HasTalk(plan, worker->Uid) || !IsActiveWrestler(*worker)) continue;
    const int unseen = plan.Pool.IsBooked(worker->Uid) ? 0 : kUnseen;
    ranked.emplace_back(TalkRating(*worker) + unseen + plan.World.RandomDraw(kVariety), worker);
  }
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](auto& a, auto& b) { return a.first > b.first; });
  std::vector<const Worker*> talkers;
  for (const auto& [worth, worker] : ranked) talkers.push_back(worker);
  return talkers;
}

/// Whom the speaker would talk about: another kind, near in standing, nobody else's subject.
const Worker* RivalOf(const AutoPlan& plan, const Worker& speaker) {
  const Worker* best = nullptr;
  int least = 1000;
  for (const Worker* other : plan.Pool.People()) {
    if (other->Uid == speaker.Uid || !IsActiveWrestler(*other) || !other->Debuted ||
        other->Gender != speaker.Gender || ContrastOf(speaker, *other) <= 0 ||
        HasTalk(plan, other->Uid) || InOneCorner(plan.World, speaker, *other))
      continue;
    const int distance = std::abs(other->Over - speaker.Over);
    if (distance < least) {
      least = distance;
      best = other;
    }
  }
  return best;
}

/// In the upper half of the card, so that talk about it comes first.
bool IsStillToCome(const AutoPlan& plan, const Planned& match) {
  const auto below =
      std::count_if(plan.Matches.begin(), plan.Matches.end(),
                    [&](const Planned& other) { return other.Weight < match.Weight; });
  return 2 * below >= static_cast<int>(plan.Matches.size());
}

/// Whom the speaker meets later tonight.
const Worker* OpponentTonight(const AutoPlan& plan, const Worker& speaker) {
  for (const Planned& planned : plan.Matches) {
    const Segment& match = planned.Segment;
    if (match.Style != kSingles || !TakesPart(match, speaker.Uid) || !IsStillToCome(plan, planned))
      continue;
    const Worker* other =
        plan.World.FindWorker(match.Worker[0] == speaker.Uid ? match.Worker[1] : match.Worker[0]);
    if (other && plan.Pool.MayAppear(other->Uid) && !HasTalk(plan, other->Uid)) return other;
  }
  return nullptr;
}

/// Their feud ends on this card, and there is no more to say.
bool IsSettledTonight(const AutoPlan& plan, int uidA, int uidB) {
  return std::any_of(plan.Matches.begin(), plan.Matches.end(), [&](const Planned& planned) {
    const Segment& match = planned.Segment;
    return match.Style == kSingles && match.Purpose == purpose1::kEndFeud &&
           TakesPart(match, uidA) && TakesPart(match, uidB);
  });
}

/// Between enemies it is about their feud, whatever it is for.
bool TalkAbout(AutoPlan& plan, const Worker& speaker, const Worker& target, int purpose) {
  if (IsSettledTonight(plan, speaker.Uid, target.Uid)) return false;
  const bool feud = FeudExists(plan.World, speaker.Uid, target.Uid);
  return BookTalkBetween(plan, {speaker.Uid}, {target.Uid},
                         feud ? int(kTalkContinueFeud) : purpose);
}

bool Interview(AutoPlan& plan, const Worker& speaker) {
  if (!speaker.Speaks) return false;
  const Worker* opponent = OpponentTonight(plan, speaker);
  if (opponent && TalkAbout(plan, speaker, *opponent, kHypeMatch)) return true;
  const Worker* rival = RivalOf(plan, speaker);
  const int purpose = speaker.Disposition == "F" ? kHypeMatch : kVerbalAttack;
  if (rival && TalkAbout(plan, speaker, *rival, purpose)) return true;
  return BookTalkBetween(plan, {speaker.Uid}, {}, kSelfPromotion);
}

/// A friend who has no talk tonight; nullptr for none.
const Worker* FriendOf(const AutoPlan& plan, const Worker& star) {
  for (const Worker* other : plan.Pool.People())
    if (other->Uid != star.Uid && IsActiveWrestler(*other) && other->Debuted &&
        other->Disposition == star.Disposition && !HasTalk(plan, other->Uid) &&
        InOneCorner(plan.World, star, *other))
      return other;
  return nullptr;
}

bool Motivate(AutoPlan& plan, const Worker& client) {
  const Worker* manager = plan.World.FindWorker(client.Manager);
  return manager && !plan.AnglesUsed.contains(kMotivation) && !HasTalk(plan, manager->Uid) &&
         BookAngle(plan, kMotivation, {manager->Uid, client.Uid}, kEarly);
}

bool Stage(AutoPlan& plan, const Worker& star) {
  if (Chance(plan.World, 20) && Motivate(plan, star)) return true;
  const Worker* ally = Chance(plan.World, 25) ? FriendOf(plan, star) : nullptr;
  if (ally && BookScene(plan, AngleScene::Allies, {star.Uid}, {ally->Uid})) return true;
  const Worker* rival = Chance(plan.World, 65) ? RivalOf(plan, star) : nullptr;
  if (rival && Chance(plan.World, kStableAttacks) && BookStableAttack(plan, star, rival->Uid))
    return true;
  if (rival && BookScene(plan, AngleScene::Words, {star.Uid}, {rival->Uid})) return true;
  return BookScene(plan, AngleScene::Solo, {star.Uid}, {});
}

/// The Commissioner announces a match that is still to come.
bool MakeMatch(AutoPlan& plan) {
  const int commissioner = plan.World.Player().Commissioner;
  if (plan.AnglesUsed.contains(kMatchMaking) || HasTalk(plan, commissioner)) return false;
  for (const Planned& planned : plan.Matches) {
    const Segment& match = planned.Segment;
    if (match.Style == kSingles && IsStillToCome(plan, planned) &&
        !HasTalk(plan, match.Worker[0]) && !HasTalk(plan, match.Worker[1]) &&
        BookAngle(plan, kMatchMaking, {commissioner, match.Worker[0], match.Worker[1]}, kEarly))
      return true;
  }
  return false;
}

/// The first of the list for whom it works.
template <class Book>
bool ForFirst(AutoPlan& plan, const std::vector<const Worker*>& people, std::size_t most,
              Book book) {
  for (std::size_t i = 0; i < std::min(most, people.size()); ++i)
    if (book(plan, *people[i])) return true;
  return false;
}

bool FillOne(AutoPlan& plan) {
  const std::vector<const Worker*> talkers = TalkersByWorth(plan);
  if (plan.MayUseAngles && Chance(plan.World, kAngleShare) &&
      ((Chance(plan.World, kAnnouncements) && MakeMatch(plan)) ||
       ForFirst(plan, talkers, kStars, Stage)))
    return true;
  return ForFirst(plan, talkers, talkers.size(), Interview) ||
         ForFirst(plan, talkers, talkers.size(), Stage);
}

}  // namespace

void FillTalks(AutoPlan& plan) {
  while (plan.WantsTalk() && plan.RowsLeft() > 0 && FillOne(plan)) {
  }
}

}  // namespace grapplemont
