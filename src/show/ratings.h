#pragma once

#include <string>
#include <vector>

#include "records/score.h"
#include "records/world.h"

// The percentages of workers and Segments, each with its reasons. Every product is floored at once.

namespace grapplemont {

/// Ratings of several people, told by name: "Bram Okafor 61, Ilya Marsh 55".
class MeanRating {
 public:
  /// Whoever is not to be found counts as 0.
  void Add(const World& world, int uid, int (*rating)(const Worker&));
  void Add(std::string_view name, int rating);
  /// Rounded down; 0 for nobody.
  int Mean() const { return count_ == 0 ? 0 : Score::Floor(sum_, count_); }
  /// "mean work of Bram Okafor 61, Ilya Marsh 55", or "work of Bram Okafor 61" for one alone.
  std::string Told(std::string_view what) const;

 private:
  int sum_ = 0, count_ = 0;
  std::string names_;
};

/// What a worker gives to Match Quality; by skill, morale, stiffness and condition.
int WorkRating(const Worker& worker);
/// What a worker gives to the crowd's reaction in a match, and in an interview or angle.
int DrawRating(const Worker& worker);
int TalkRating(const Worker& worker);
/// The skill that counts: the one strictly above both others, else Brawl.
int BestSkill(const Worker& worker);
/// Weighs quality and crowd: the crowd counts for more where it is the stronger.
int WeighRating(int quality, int crowd);

}  // namespace grapplemont
