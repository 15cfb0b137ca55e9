#include <algorithm>

#include "booking/autotalk.h"
#include "booking/casting.h"
#include "storylines/stables.h"

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

bool LaysOut(AngleScene scene) {
  return scene == AngleScene::Attack || scene == AngleScene::TeamAttack;
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

Segment NewAngle(int number, const std::vector<int>& people) {
  Segment angle = EmptySegment();
  angle.Kind = kAngle;
  angle.Style = number;
  for (std::size_t i = 0; i < people.size(); ++i) angle.Worker[i] = people[i];
  return angle;
}

}  // namespace

bool BookAngle(AutoPlan& plan, int number, const std::vector<int>& people, int weight) {
  if (!plan.MayUseAngles || !plan.Pool.MayAppear(people)) return false;
  return PlanTalk(plan, NewAngle(number, people), weight);
}

bool BookStableAttack(AutoPlan& plan, const Worker& leader, int victim) {
  const std::string stable = leader.Stable.Str();
  if (!plan.MayUseAngles || plan.AnglesUsed.contains(kStableAttack) ||
      StableLeader(plan.World, stable) != &leader || !plan.Pool.MayAppear({leader.Uid, victim}) ||
      plan.Pool.Wrestles(victim))
    return false;
  Segment attack = NewAngle(kStableAttack, {victim});
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
    if (LaysOut(scene))
      for (const int uid : victims) plan.Pool.Rest(uid);
    return true;
  }
  return false;
}

}  // namespace grapplemont
