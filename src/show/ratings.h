#pragma once

#include <string>
#include <vector>

#include "records/world.h"

// The percentages of workers and Segments, each with its reasons. Every product is floored at once.

namespace grapplemont {

/// One reason why a number is what it is.
struct ScoreStep {
  std::string Why;  // "Cage", "feud of Bram Okafor and Ilya Marsh, up to its heat"
  int Change = 0;
};

/// A number in the making, with its reasons. What is noted adds up to the number, since every
/// change goes through here.
class Score {
 public:
  operator int() const { return value_; }
  const std::vector<ScoreStep>& Steps() const { return steps_; }

  void Add(int change, std::string why) {
    if (change == 0) return;
    value_ += change;
    steps_.push_back({std::move(why), change});
  }
  void Become(int value, std::string why) { Add(value - value_, std::move(why)); }
  /// Times a fraction, floored at once: Scale(8, 10).
  void Scale(int numerator, int denominator, std::string why) {
    Become(Floor(value_ * numerator, denominator), std::move(why));
  }
  void Limit() { Become(value_ < 0 ? 0 : value_ > 100 ? 100 : value_, "limit"); }

  /// Rounded down, below zero too.
  static int Floor(int numerator, int denominator) {
    const int quotient = numerator / denominator;
    return quotient - (numerator % denominator < 0 ? 1 : 0);
  }

 private:
  int value_ = 0;
  std::vector<ScoreStep> steps_;
};

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
