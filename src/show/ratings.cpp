#include "show/ratings.h"

namespace grapplemont {

void MeanRating::Add(const World& world, int uid, int (*rating)(const Worker&)) {
  const Worker* worker = world.FindWorker(uid);
  Add(worker ? worker->Name.View() : "nobody", worker ? rating(*worker) : 0);
}

void MeanRating::Add(std::string_view name, int rating) {
  if (count_ > 0) names_ += ", ";
  names_ += std::string(name) + " " + std::to_string(rating);
  sum_ += rating;
  ++count_;
}

std::string MeanRating::Told(std::string_view what) const {
  return (count_ > 1 ? "mean " : "") + std::string(what) + " of " + names_;
}

namespace {

/// What is left of a tired worker's work, in tenths.
struct Tiredness {
  int ConditionBelow;
  int Tenths;
};
constexpr Tiredness kTiredness[] = {{30, 5}, {60, 7}, {90, 9}};

constexpr int kLooksBonus = 5;
constexpr int kDivaBonus = 8;
/// Nobody whom the crowd likes this well already gains by being a diva.
constexpr int kDivaBelow = 90;

int WithLooks(int rating, const Worker& worker) {
  if (worker.SuperstarLook) rating += kLooksBonus;
  if (rating < kDivaBelow && worker.Diva) rating += kDivaBonus;
  return rating;
}

}  // namespace

int BestSkill(const Worker& worker) {
  const int brawl = worker.Brawl, technical = worker.Technical, speed = worker.Speed;
  if (technical > brawl && technical > speed) return technical;
  if (speed > brawl && speed > technical) return speed;
  return brawl;
}

int WorkRating(const Worker& worker) {
  const int rating = Score::Floor(BestSkill(worker) * 75, 100) +
                     Score::Floor(worker.Morale * 20, 100) + Score::Floor(worker.Stiff * 5, 100);
  for (const Tiredness& band : kTiredness)
    if (worker.Condition < band.ConditionBelow) return Score::Floor(rating * band.Tenths, 10);
  return rating;
}

int DrawRating(const Worker& worker) {
  return WithLooks(Score::Floor(worker.Over * 85, 100) + Score::Floor(worker.Charisma * 10, 100),
                   worker);
}

int TalkRating(const Worker& worker) {
  return WithLooks(Score::Floor(worker.Charisma * 60, 100) + Score::Floor(worker.Over * 40, 100),
                   worker);
}

int WeighRating(int quality, int crowd) {
  return quality <= crowd ? Score::Floor(crowd * 7 + quality * 3, 10)
                          : Score::Floor(crowd * 5 + quality * 5, 10);
}

}  // namespace grapplemont
