#include "booking/auto/autotalk.h"

#include <algorithm>

#include "booking/auto/automatches.h"
#include "booking/wizard/casting.h"
#include "booking/wizard/interviews.h"
#include "records/angles.h"
#include "storylines/feuds.h"
#include "storylines/partners.h"

namespace grapplemont {

namespace {

/// Who stands in the first places of the record.
enum class First { Actors, Victims };

/// An angle that the auto booker likes for a scene, and how much.
struct AngleTaste {
  AngleScene For;
  int Number;
  First Cast;
  int Weight;
  int When;                  // in the show
  std::string_view Of = {};  // the first actor's disposition; empty for any
};
constexpr AngleTaste kAngleTastes[] = {
    {AngleScene::Words, 1, First::Actors, 5, kMiddle},   // Challenge
    {AngleScene::Words, 2, First::Actors, 6, kMiddle},   // Face To Face
    {AngleScene::Words, 21, First::Actors, 4, kLate},    // Why Wait?
    {AngleScene::Words, 29, First::Actors, 5, kMiddle},  // Staredown
    {AngleScene::Words, 33, First::Actors, 2, kLate},    // Contract Signing
    {AngleScene::Words, 45, First::Actors, 1, kMiddle},  // A Little Impression
    {AngleScene::Words, 28, First::Actors, 1, kMiddle},  // Property Damage
    {AngleScene::Attack, kAmbush, First::Victims, 5, kLate},
    {AngleScene::Attack, 27, First::Victims, 5, kLate},      // Paramedics
    {AngleScene::Attack, 13, First::Victims, 3, kLate},      // Ladder To Success
    {AngleScene::Attack, 14, First::Victims, 2, kLate},      // Blood Gets Spilt
    {AngleScene::Attack, 39, First::Victims, 1, kLate},      // Fireball
    {AngleScene::Attack, 21, First::Actors, 3, kLate},       // Why Wait?
    {AngleScene::Attack, 67, First::Actors, 20, kMiddle},    // Secret Santa
    {AngleScene::Attack, 68, First::Actors, 20, kMiddle},    // Slappy New Year
    {AngleScene::Attack, 69, First::Actors, 20, kMiddle},    // Trick Or Treat
    {AngleScene::TeamWords, 11, First::Actors, 4, kMiddle},  // Tag Confrontation
    {AngleScene::TeamWords, 48, First::Actors, 4, kMiddle},  // Tag Challenge
    {AngleScene::TeamAttack, 46, First::Actors, 5, kLate},   // Double Trouble
    {AngleScene::Solo, kWorkerVideo, First::Actors, 6, kMiddle},
    {AngleScene::Solo, 32, First::Actors, 3, kOpens},  // Arrival
    {AngleScene::Solo, kWalking, First::Actors, 2, kEarly},
    {AngleScene::Solo, 44, First::Actors, 3, kEarly},          // Be Prepared
    {AngleScene::Solo, 20, First::Actors, 2, kMiddle},         // Star Power
    {AngleScene::Allies, 22, First::Actors, 3, kEarly, "F"},   // I've Got Your Back
    {AngleScene::Allies, 30, First::Actors, 3, kMiddle, "H"},  // Conspiracy
    {AngleScene::Debut, 25, First::Victims, 5, kLate},         // Debut Attack
    {AngleScene::Debut, 24, First::Victims, 4, kLate},         // Debut Call Out
};

bool Suits(const AutoPlan& plan, const AngleTaste& taste, AngleScene scene, const Worker& actor) {
  const Angle* angle = FindAngle(taste.Number);
  return taste.For == scene && (taste.Of.empty() || actor.Disposition == taste.Of) && angle &&
         IsOffered(plan.World, *angle) && !plan.AnglesUsed.contains(taste.Number);
}

std::vector<const AngleTaste*> TastesFor(const AutoPlan& plan, AngleScene scene, int actor) {
  const Worker* first = plan.World.FindWorker(actor);
  std::vector<const AngleTaste*> tastes;
  for (const AngleTaste& taste : kAngleTastes)
    if (first && Suits(plan, taste, scene, *first)) tastes.push_back(&taste);
  return tastes;
}

/// Takes one out of the list by its weight.
const AngleTaste* DrawTaste(AutoPlan& plan, std::vector<const AngleTaste*>& tastes) {
  int total = 0;
  for (const AngleTaste* taste : tastes) total += taste->Weight;
  int drawn = plan.World.RandomDraw(total);
  const auto found = std::find_if(tastes.begin(), tastes.end(), [&](const AngleTaste* taste) {
    return (drawn -= taste->Weight) <= 0;
  });
  const AngleTaste* taste = *found;
  tastes.erase(found);
  return taste;
}

/// The manager both or the one have, when they may talk tonight; nullptr for none.
const Worker* ManagerOf(const AutoPlan& plan, const std::vector<int>& clients) {
  const Worker* first = plan.World.FindWorker(clients[0]);
  const Worker* manager = first ? plan.World.FindWorker(first->Manager) : nullptr;
  const bool talks = manager && manager->Position == kManager && manager->Speaks &&
                     plan.Pool.MayAppear(manager->Uid);
  return talks && ManagesAll(plan.World, manager->Uid, clients) ? manager : nullptr;
}

/// An interview of these, everybody in the next seat that is for them.
Segment NewInterview(int style, const std::vector<int>& speakers, int manager,
                     const std::vector<int>& targets, int purpose) {
  Segment talk = NewSegment(kInterview, style, {});
  talk.Purpose = purpose;
  std::size_t speaker = 0, target = 0;
  for (const Role& seat : SeatsOf(talk)) {
    int uid = manager;
    if (seat.From == Casting::Talkers) uid = speakers[speaker++];
    if (seat.From == Casting::Targets) uid = target < targets.size() ? targets[target++] : 0;
    talk.Worker[static_cast<std::size_t>(seat.Place - 1)] = uid;
  }
  return talk;
}

/// One who does not wrestle tonight should be seen all the same.
constexpr int kUnseen = 10;
/// How much of the talk is angles, in a hundred, where the writers allow them.
constexpr int kAngleShare = 55;
/// How much of that announces a match of tonight, or is the work of a stable where its leader
/// has the word.
constexpr int kAnnouncements = 12, kStableRaids = 30;
/// Angles are for those who come out best in them.
constexpr std::size_t kStars = 6;

bool IsFreeToTalk(const AutoPlan& plan, const Worker& worker) {
  return worker.Debuted && IsOnRoster(worker) && !HasTalk(plan, worker.Uid);
}

/// All who have no talk yet, best talkers first, mixed a little.
std::vector<const Worker*> TalkersByWorth(AutoPlan& plan) {
  std::vector<std::pair<int, const Worker*>> ranked;
  for (const Worker* worker : plan.Pool.People()) {
    if (!IsFreeToTalk(plan, *worker)) continue;
    const int unseen = plan.Pool.IsBooked(worker->Uid) ? 0 : kUnseen;
    ranked.emplace_back(TalkRating(*worker) + unseen + plan.World.RandomDraw(kVariety), worker);
  }
  return BestOf(std::move(ranked));
}

/// Whom the speaker would talk about: another kind, near in standing, nobody else's subject.
const Worker* RivalOf(const AutoPlan& plan, const Worker& speaker) {
  const Worker* best = nullptr;
  int least = 1000;
  for (const Worker* other : plan.Pool.People()) {
    const int distance = std::abs(other->Over - speaker.Over);
    if (other->Uid == speaker.Uid || distance >= least || other->Gender != speaker.Gender ||
        ContrastOf(speaker, *other) <= 0 || !IsFreeToTalk(plan, *other) ||
        InOneCorner(plan.World, speaker, *other))
      continue;
    least = distance;
    best = other;
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

/// Whom the speaker meets in the match, one against one, where they may be spoken of tonight.
const Worker* OpponentIn(const AutoPlan& plan, const Segment& match, const Worker& speaker) {
  const int one = match.Worker[0], two = match.Worker[1];
  if (match.Kind != kMatch || match.Style != kSingles || (one != speaker.Uid && two != speaker.Uid))
    return nullptr;
  const Worker* other = plan.World.FindWorker(one == speaker.Uid ? two : one);
  return other && plan.Pool.MayAppear(other->Uid) && !HasTalk(plan, other->Uid) ? other : nullptr;
}

/// Drafted for a show to come.
bool IsAhead(const World& world, const KeptRow& row) {
  return row.IsDraft && Day(row.On) > world.Today();
}

/// Whom the speaker meets later tonight, or on a card that is drafted.
const Worker* OpponentAhead(const AutoPlan& plan, const Worker& speaker) {
  for (const Planned& planned : plan.Matches)
    if (IsStillToCome(plan, planned))
      if (const Worker* other = OpponentIn(plan, planned.Segment, speaker)) return other;
  for (std::size_t row = plan.Rows.size() / 2; row < plan.Rows.size(); ++row)
    if (const Worker* other = OpponentIn(plan, plan.Rows[row], speaker)) return other;
  for (const KeptRow& row : plan.World.KeptRows())
    if (IsAhead(plan.World, row))
      if (const Worker* other = OpponentIn(plan, row.Booked, speaker)) return other;
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
  const Worker* opponent = OpponentAhead(plan, speaker);
  if (opponent && TalkAbout(plan, speaker, *opponent, kHypeMatch)) return true;
  const Worker* rival = RivalOf(plan, speaker);
  if (rival && TalkAbout(plan, speaker, *rival, kVerbalAttack)) return true;
  return BookTalkBetween(plan, {speaker.Uid}, {}, kSelfPromotion);
}

/// A friend who has no talk tonight; nullptr for none.
const Worker* FriendOf(const AutoPlan& plan, const Worker& star) {
  for (const Worker* other : plan.Pool.People())
    if (other->Uid != star.Uid && other->Disposition == star.Disposition &&
        IsFreeToTalk(plan, *other) && InOneCorner(plan.World, star, *other))
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
  if (rival && Chance(plan.World, kStableRaids) && BookStableAttack(plan, star, rival->Uid))
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

bool BookAngle(AutoPlan& plan, int number, const std::vector<int>& people, int weight) {
  if (!plan.MayUseAngles || !plan.Pool.MayAppear(people)) return false;
  return PlanTalk(plan, NewSegment(kAngle, number, people), weight);
}

bool BookStableAttack(AutoPlan& plan, const Worker& leader, int victim) {
  const std::string stable = leader.Stable.Str();
  if (!plan.MayUseAngles || plan.AnglesUsed.contains(kStableAttack) ||
      StableLeader(plan.World, stable) != &leader || !plan.Pool.MayAppear({leader.Uid, victim}) ||
      plan.Pool.Wrestles(victim))
    return false;
  Segment attack = NewSegment(kAngle, kStableAttack, {victim});
  attack.Text = stable;
  if (!PlanTalk(plan, attack, kLate)) return false;
  plan.Pool.Rest(victim);
  return true;
}

bool BookScene(AutoPlan& plan, AngleScene scene, const std::vector<int>& actors,
               const std::vector<int>& victims) {
  if (!plan.MayUseAngles) return false;
  std::vector<const AngleTaste*> tastes = TastesFor(plan, scene, actors[0]);
  while (!tastes.empty()) {
    const AngleTaste* taste = DrawTaste(plan, tastes);
    std::vector<int> people = taste->Cast == First::Actors ? actors : victims;
    for (const int uid : taste->Cast == First::Actors ? victims : actors) people.push_back(uid);
    if (!BookAngle(plan, taste->Number, people, taste->When)) continue;
    if (scene == AngleScene::Attack || scene == AngleScene::TeamAttack)
      for (const int uid : victims) plan.Pool.Rest(uid);
    return true;
  }
  return false;
}

bool IsDrafted(const World& world, const Segment& talk) {
  const std::vector<int> people = EverybodyOf(talk);
  return std::ranges::any_of(world.KeptRows(), [&](const KeptRow& row) {
    return IsAhead(world, row) && row.Booked.Kind == kMatch &&
           std::ranges::count_if(people, [&](int uid) { return TakesPart(row.Booked, uid); }) > 1;
  });
}

bool HasTalk(const AutoPlan& plan, int uid) {
  return IsOnCard(plan, [&](const Segment& segment) {
    return (segment.Kind == kInterview || segment.Kind == kAngle) && TakesPart(segment, uid);
  });
}

bool BookTalkBetween(AutoPlan& plan, const std::vector<int>& speakers,
                     const std::vector<int>& targets, int purpose) {
  if (!plan.Pool.MayAppear(speakers) || !plan.Pool.MayAppear(targets)) return false;
  const bool team = speakers.size() == 2;
  // Beside a single worker it would be the manager who turns.
  const bool goesAlone = purpose == kTalkTurn && !team;
  if (const Worker* manager = goesAlone ? nullptr : ManagerOf(plan, speakers)) {
    const int style = team ? kManagedTeamTalk : kManagedTalk;
    if (PlanTalk(plan, NewInterview(style, speakers, manager->Uid, targets, purpose), kEarly))
      return true;
  }
  const int style = team ? kTeamTalk : kSingleTalk;
  return PlanTalk(plan, NewInterview(style, speakers, 0, targets, purpose), kEarly);
}

// Interviews and angles for their own sake: champions, stars, what the people came to see.

void FillTalks(AutoPlan& plan) {
  while (plan.WantsTalk() && plan.RowsLeft() > 0 && FillOne(plan)) {
  }
}

}  // namespace grapplemont
