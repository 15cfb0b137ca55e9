#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Numbers and answers that explain themselves.

namespace grapplemont {

/// One reason why a number or an answer is what it is.
struct ScoreStep {
  std::string Why;       // "Cage", "feud of Bram Okafor and Ilya Marsh, up to its heat"
  long long Change = 0;  // of an answer: 1 for what spoke for it, -1 for what spoke against it
};

/// What numbers and answers have in common: their reasons, in the order in which they counted.
class Explained {
 public:
  const std::vector<ScoreStep>& Steps() const { return steps_; }

 protected:
  std::vector<ScoreStep> steps_;
};

/// A number in the making, with its reasons. What is noted adds up to the number, since every
/// change goes through here.
class Score : public Explained {
 public:
  operator int() const { return static_cast<int>(value_); }
  /// For what may be more than an int holds.
  long long Whole() const { return value_; }

  void Add(long long change, std::string why) {
    if (change != 0) Step(change, std::move(why));
  }
  /// Notes the reason also where it changes nothing.
  void Step(long long change, std::string why) {
    value_ += change;
    steps_.push_back({std::move(why), change});
  }
  /// Becomes `value` for a reason that is worth knowing even if it changes nothing.
  void Weigh(long long value, std::string why) { Step(value - value_, std::move(why)); }
  void Become(long long value, std::string why) { Add(value - value_, std::move(why)); }
  /// Times a fraction, floored at once: Scale(8, 10).
  void Scale(int numerator, int denominator, std::string why) {
    Become(Floor(*this * numerator, denominator), std::move(why));
  }
  void Limit() { Become(value_ < 0 ? 0 : value_ > 100 ? 100 : value_, "limit"); }

  /// Rounded down, below zero too.
  static int Floor(int numerator, int denominator) {
    const int quotient = numerator / denominator;
    return quotient - (numerator % denominator < 0 ? 1 : 0);
  }

 private:
  long long value_ = 0;
};

/// An answer in the making, with what spoke for a yes and what against it.
class Decision : public Explained {
 public:
  /// Notes what was looked at, and gives `isFor` back.
  bool Weigh(bool isFor, std::string why) {
    steps_.push_back({std::move(why), isFor ? 1 : -1});
    return isFor;
  }
  bool IsYes() const;
};

/// The same where nobody may want to know: without a decision nothing is noted.
inline bool Weigh(Decision* decision, bool isFor, std::string_view why) {
  return decision ? decision->Weigh(isFor, std::string(why)) : isFor;
}

/// How a number is written, with a minus below 0: Dollars.
using NumberWriter = std::string (*)(long long number);
std::string PlainNumber(long long number);
/// What is counted in hundredths, as a plain number: "-2.50", "0.04".
std::string InHundredths(long long number);

/// A number and how it came about, a line a step: "91: draw of the two", "+8 feud", "= 99 Crowd".
std::string WhyText(std::string_view caption, const Score& score, NumberWriter text = PlainNumber);
/// An answer and what led to it, a line a step: "+ risk 40, they bear 50", "- ...", "= No.".
std::string WhyText(std::string_view answer, const Decision& decision);

}  // namespace grapplemont
