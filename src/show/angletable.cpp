#include "show/angletable.h"

#include <algorithm>

namespace grapplemont {

namespace {

using enum AngleFeud;

// Numbers, people, feud, tallies. A row holds the angles that are scored alike.
constexpr AngleScore kAngleScores[] = {
    {{1, 2, 21, 22, 26, 28, 29, 30, 33, 34, 35, 37, 38, 42, 49, 73, 74}, {1, 2}},
    {{4, 5, 6, 9, 10, 13, 14, 15, 18, 24, 25, 27, 39, 64}, {1, 2}, Pair, {{{2, 1}}}},
    {{23, 40, 41, 63, 67, 68, 69}, {1, 2}, Pair, {{{1, 2}}}},
    {{19}, {1, 2}, Pair},
    {{3, 16}, {1, 2}, None, {{{2, 1}, {3, 1}, {4, 2}, {4, 3}}}},
    {{12}, {1, 3}, None, {{{3, 1}, {3, 2}, {4, 1}, {4, 2}}}},
    {{20, 31, 32, 36, 43, 44, 60, 65}, {1}},
    {{45}, {1}, Pair, {{{1, 2}}}},
    {{47}, {1, 2, 3}, Pair, {{{2, 1}, {3, 1}}}},
    {{7}, {1, 2, 3}, None, {{{1, 3}, {2, 3}}}},
    {{8, 72}, {1, 2, 3}},
    {{11}, {1, 2, 3, 4}},
    {{17}, {1, 2, 3, 4}, None, {{{2, 1}, {3, 1}, {4, 1}}}},
    {{46, 56, 57, 58, 59}, {1, 2, 3, 4}, Teams, {{{1, 3}, {2, 4}}}},
    {{48}, {1, 2, 3, 4}, TeamsLift},
    {{50}, {1, kLeader}},
    {{51, 52, 53, 54, 75, 76, 77, 79}, {1, kLeader}, None, {{{kLeader, 1}}}},
    {{55}, {1, 2, kLeader}, None, {{{kLeader, 1}, {kLeader, 2}}}},
    {{78}, {4, 2, 1}, None, {{{4, 1}}}},
    {{61, 66, 71}, {1, 2}},
    {{62}, {kLeader}},
    {{70}, {1, kGuest}},
};

constexpr int kVideos[] = {60, 61, 62, 65, 66};
constexpr int kDivaAngles[] = {15, 19};
constexpr int kSpectacles[] = {24, 25, 26, 37, 38, 58, 59};

template <class Range>
bool Has(const Range& numbers, int number) {
  return std::find(std::begin(numbers), std::end(numbers), number) != std::end(numbers);
}

}  // namespace

const AngleScore* FindAngleScore(int number) {
  if (number == 0) return nullptr;  // what fills a row up
  const auto found = std::find_if(std::begin(kAngleScores), std::end(kAngleScores),
                                  [&](auto& row) { return Has(row.Numbers, number); });
  return found == std::end(kAngleScores) ? nullptr : &*found;
}

bool IsVideo(int number) {
  return Has(kVideos, number);
}
bool IsForDivas(int number) {
  return Has(kDivaAngles, number);
}
bool IsSpectacle(int number) {
  return Has(kSpectacles, number);
}

}  // namespace grapplemont
