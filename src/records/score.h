#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Numbers that explain themselves.

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

/// A number and how it came about, a line a step: "Crowd Reaction 91 =", "76 draw of the two".
std::string WhyText(std::string_view caption, const Score& score);

}  // namespace grapplemont
