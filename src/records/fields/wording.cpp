#include "records/fields/wording.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

#include "records/fields/grouping.h"

namespace grapplemont {

std::string Counted(long long count, std::string_view one, std::string_view many) {
  std::string text = Grouped(count) + " ";
  if (count == 1 || many.empty()) text += one;
  if (count != 1) text += many.empty() ? "s" : many;
  return text;
}

namespace {

// A wrong letter costs ten, one that is only small instead of capital costs one.
constexpr int kLetter = 10, kCase = 1;

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

int Exchange(char a, char b) {
  if (a == b) return 0;
  return Lower(a) == Lower(b) ? kCase : kLetter;
}

/// Measures how far names are from one name; keeps its rows, for there may be many thousand names.
class Measure {
 public:
  explicit Measure(std::string_view name) : name_(name) {}

  /// Edit distance with neighbours swapped, row by row; no less than `limit` once it is sure to be.
  int To(std::string_view other, int limit) {
    const int longer = static_cast<int>(name_.size()) - static_cast<int>(other.size());
    if (std::abs(longer) * kLetter >= limit) return limit;
    Begin(other.size());
    for (std::size_t i = 1; i <= name_.size(); ++i) {
      if (TakeLetter(i, other) >= limit) return limit;
      std::swap(beforeLast_, last_);
      std::swap(last_, row_);
    }
    return last_[other.size()];
  }

 private:
  void Begin(std::size_t letters) {
    for (std::vector<int>* row : {&beforeLast_, &last_, &row_}) row->resize(letters + 1);
    for (std::size_t j = 0; j <= letters; ++j) last_[j] = static_cast<int>(j) * kLetter;
  }

  /// Fills the row of the name's letter `i` and gives its least distance.
  int TakeLetter(std::size_t i, std::string_view other) {
    const char letter = name_[i - 1];
    int least = row_[0] = static_cast<int>(i) * kLetter;
    for (std::size_t j = 1; j <= other.size(); ++j) {
      int& here = row_[j];
      here = std::min({last_[j] + kLetter, row_[j - 1] + kLetter,
                       last_[j - 1] + Exchange(letter, other[j - 1])});
      const bool swapped = i > 1 && j > 1 && Lower(letter) == Lower(other[j - 2]) &&
                           Lower(name_[i - 2]) == Lower(other[j - 1]);
      if (swapped) here = std::min(here, beforeLast_[j - 2] + kLetter);
      least = std::min(least, here);
    }
    return least;
  }

  std::string_view name_;
  std::vector<int> beforeLast_, last_, row_;
};

struct Candidate {
  std::string_view Name;
  int Distance;
};

Candidate Find(std::string_view name, const std::vector<std::string_view>& candidates) {
  Candidate best{{}, static_cast<int>(name.size() + 1000) * kLetter};
  Measure measure(name);
  for (const std::string_view candidate : candidates) {
    const int distance = measure.To(candidate, best.Distance);
    if (distance < best.Distance) best = {candidate, distance};
  }
  return best;
}

}  // namespace

std::string DidYouMean(std::string_view name, const std::vector<std::string_view>& candidates) {
  // Far longer than any name there is: the measure would take its time, and lead nowhere.
  constexpr std::size_t kMostLetters = 200;
  if (name.size() > kMostLetters) return {};
  const Candidate best = Find(name, candidates);
  if (best.Name.empty()) return {};
  const auto letters = static_cast<int>(std::max(name.size(), best.Name.size()));
  if (2 * best.Distance <= letters * kLetter)
    return "; did you mean " + std::string(best.Name) + "?";
  return "; the nearest is " + std::string(best.Name);
}

std::string Joined(const std::vector<std::string>& parts, std::string_view between) {
  std::string text;
  for (const std::string& part : parts) {
    if (!text.empty()) text += between;
    text += part;
  }
  return text;
}

namespace {

/// Hands a line over piece by piece: what stands outside brackets, and what within.
template <class Outside, class Within>
void ReadWays(std::string_view line, Outside outside, Within within) {
  while (!line.empty()) {
    const auto open = line.find('[');
    const auto close = open == line.npos ? open : line.find(']', open);
    outside(line.substr(0, close == line.npos ? line.size() : open));
    if (close == line.npos) return;
    within(line.substr(open + 1, close - open - 1));
    line.remove_prefix(close + 1);
  }
}

int CountOfWays(std::string_view choices) {
  return 1 + static_cast<int>(std::count(choices.begin(), choices.end(), '|'));
}

std::string_view ChoiceAt(std::string_view choices, int number) {
  for (; number > 0; --number) choices.remove_prefix(choices.find('|') + 1);
  return choices.substr(0, choices.find('|'));
}

}  // namespace

int WaysToSay(std::string_view line) {
  int ways = 1;
  ReadWays(
      line, [](std::string_view) {},
      [&](std::string_view choices) { ways = std::lcm(ways, CountOfWays(choices)); });
  return ways;
}

std::string SaidIn(std::string_view line, int way) {
  std::string said;
  ReadWays(
      line, [&](std::string_view words) { said += words; },
      [&](std::string_view choices) { said += ChoiceAt(choices, way % CountOfWays(choices)); });
  return said;
}

std::string WhyNoWays(std::string_view line) {
  std::string why;
  ReadWays(
      line,
      [&](std::string_view words) {
        if (words.find_first_of("[]") != words.npos) why = "a square bracket is not closed";
        if (words.find('|') != words.npos) why = "a bar stands outside of square brackets";
      },
      [&](std::string_view choices) {
        if (choices.find('[') != choices.npos) why = "brackets stand inside of brackets";
        if (CountOfWays(choices) < 2) why = "square brackets hold one choice alone";
      });
  return why;
}

}  // namespace grapplemont
