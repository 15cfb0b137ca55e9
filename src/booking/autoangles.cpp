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
  Scene For;
  int Number;
  First Cast;
  int Weight;
  int When;                  // in the show
  std::string_view Of = {};  // the first actor's disposition; empty for any
};
constexpr AngleTaste kAngleTastes[] = {
    {Scene::Words, 1, First::Actors, 5, kMiddle},   // Challenge
    {Scene::Words, 2, First::Actors, 6, kMiddle},   // Face To Face
    {Scene::Words, 21, First::Actors, 4, kLate},    // Why Wait?
    {Scene::Words, 29, First::Actors, 5, kMiddle},  // Staredown
    {Scene::Words, 33, First::Actors, 2, kLate},    // Contract Signing
    {Scene::Words, 45, First::Actors, 1, kMiddle},  // A Little Impression
    {Scene::Words, 28, First::Actors, 1, kMiddle},  // Property Damage
    {Scene::Attack, kAmbush, First::Victims, 5, kLate},
    {Scene::Attack, 27, First::Victims, 5, kLate},      // Paramedics
    {Scene::Attack, 13, First::Victims, 3, kLate},      // Ladder To Success
    {Scene::Attack, 14, First::Victims, 2, kLate},      // Blood Gets Spilt
    {Scene::Attack, 39, First::Victims, 1, kLate},      // Fireball
    {Scene::Attack, 21, First::Actors, 3, kLate},       // Why Wait?
    {Scene::Attack, 67, First::Actors, 20, kMiddle},    // Secret Santa
    {Scene::Attack, 68, First::Actors, 20, kMiddle},    // Slappy New Year
    {Scene::Attack, 69, First::Actors, 20, kMiddle},    // Trick Or Treat
    {Scene::TeamWords, 11, First::Actors, 4, kMiddle},  // Tag Confrontation
    {Scene::TeamWords, 48, First::Actors, 4, kMiddle},  // Tag Challenge
    {Scene::TeamAttack, 46, First::Actors, 5, kLate},   // Double Trouble
    {Scene::Solo, kWorkerVideo, First::Actors, 6, kMiddle},
    {Scene::Solo, 32, First::Actors, 3, kOpens},  // Arrival
    {Scene::Solo, kWalking, First::Actors, 2, kEarly},
    {Scene::Solo, 44, First::Actors, 3, kEarly},          // Be Prepared
    {Scene::Solo, 20, First::Actors, 2, kMiddle},         // Star Power
    {Scene::Allies, 22, First::Actors, 3, kEarly, "F"},   // I've Got Your Back
    {Scene::Allies, 30, First::Actors, 3, kMiddle, "H"},  // Conspiracy
    {Scene::Debut, 25, First::Victims, 5, kLate},         // Debut Attack
    {Scene::Debut, 24, First::Victims, 4, kLate},         // Debut Call Out
};

bool Suits(const AutoPlan& plan, const AngleTaste& taste, Scene scene, const Worker& actor) {
  const Angle* angle = FindAngle(taste.Number);
  return taste.For == scene && (taste.Of.empty() || actor.Disposition == taste.Of) && angle &&
         IsOffered(plan.World, *angle) && !plan.AnglesUsed.contains(taste.Number);
}

std::vector<const AngleTaste*> TastesFor(const AutoPlan& plan, Scene scene, int actor) {
  const Worker* first = plan.World.FindWorker(actor);
  std::vector<const AngleTaste*> tastes;
  for (const AngleTaste& taste : kAngleTastes)
    if (first && Suits(plan, taste, scene, *first)) tastes.push_back(&taste);
  return tastes;
}

bool LaysOut(Scene scene) {
  return scene == Scene::Attack || scene == Scene::TeamAttack;
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

bool BookScene(AutoPlan& plan, Scene scene, const std::vector<int>& actors,
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
