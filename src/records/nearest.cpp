#include "records/nearest.h"

#include <algorithm>

namespace grapplemont {

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

/// Edit distance with neighbours swapped, row by row; no less than `limit` once it is sure to be.
int Distance(std::string_view a, std::string_view b, int limit) {
  std::vector<int> beforeLast, last(b.size() + 1), row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) last[j] = static_cast<int>(j) * kLetter;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = static_cast<int>(i) * kLetter;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min(
          {last[j] + kLetter, row[j - 1] + kLetter, last[j - 1] + Exchange(a[i - 1], b[j - 1])});
      const bool swapped = i > 1 && j > 1 && Lower(a[i - 1]) == Lower(b[j - 2]) &&
                           Lower(a[i - 2]) == Lower(b[j - 1]);
      if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + kLetter);
    }
    if (*std::min_element(row.begin(), row.end()) >= limit) return limit;
    beforeLast = last;
    std::swap(last, row);
  }
  return last.back();
}

struct Candidate {
  std::string_view Name;
  int Distance;
};

Candidate Find(std::string_view name, const std::vector<std::string_view>& candidates) {
  Candidate best{{}, static_cast<int>(name.size() + 1000) * kLetter};
  for (const std::string_view candidate : candidates) {
    const int distance = Distance(name, candidate, best.Distance);
    if (distance < best.Distance) best = {candidate, distance};
  }
  return best;
}

}  // namespace

std::string_view Nearest(std::string_view name, const std::vector<std::string_view>& candidates) {
  return Find(name, candidates).Name;
}

std::string DidYouMean(std::string_view name, const std::vector<std::string_view>& candidates) {
  const Candidate best = Find(name, candidates);
  if (best.Name.empty()) return {};
  const auto letters = static_cast<int>(std::max(name.size(), best.Name.size()));
  if (2 * best.Distance <= letters * kLetter)
    return "; did you mean " + std::string(best.Name) + "?";
  return "; the nearest is " + std::string(best.Name);
}

}  // namespace grapplemont
