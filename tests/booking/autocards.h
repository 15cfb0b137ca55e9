#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "booking/auto/autobooker.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/segmentcheck.h"
#include "records/segments.h"
#include "support/smallworld.h"

// Cards of the auto booker, and what tests ask of them.

namespace grapplemont::test {

inline constexpr int kEventRows = 9;

/// The same card for the same seed.
inline AutoCard BookedBy(World& world, bool isEvent, int rows, std::uint64_t seed) {
  world.SetChance(std::make_unique<SeededDraws>(seed));
  return AutoBook(world, isEvent, rows);
}

template <class Takes>
int Count(const AutoCard& card, Takes takes) {
  return static_cast<int>(std::count_if(card.Rows.begin(), card.Rows.end(), takes));
}
inline int CountKind(const AutoCard& card, int kind) {
  return Count(card, [&](const Segment& row) { return row.Kind == kind; });
}
inline const Segment* TitleMatch(const AutoCard& card, std::string_view title) {
  const auto found = std::find_if(card.Rows.begin(), card.Rows.end(),
                                  [&](const Segment& row) { return row.TitleName == title; });
  return found == card.Rows.end() ? nullptr : &*found;
}
/// In how many Segments the worker takes part.
inline int PartsOf(const AutoCard& card, int uid) {
  return Count(card, [&](const Segment& row) { return TakesPart(row, uid); });
}
/// The first match that both are in; nullptr for none.
inline const Segment* MatchOf(const AutoCard& card, int uidA, int uidB) {
  const auto found = std::find_if(card.Rows.begin(), card.Rows.end(), [&](const Segment& row) {
    return row.Kind == kMatch && TakesPart(row, uidA) && TakesPart(row, uidB);
  });
  return found == card.Rows.end() ? nullptr : &*found;
}

/// What is wrong with the card by the wizard's own checks and by the rule that nobody appears three
/// times, a line each.
inline std::string FaultsOf(const World& world, const AutoCard& card, bool isEvent) {
  std::string faults;
  int row = 0;
  for (const Segment& segment : card.Rows) {
    ++row;
    if (segment.Kind == kEmptySegment) continue;
    const auto tell = [&](const std::string& words) {
      faults += std::to_string(row) + " " + DescribeSegment(world, segment) + ": " + words + "\n";
    };
    for (const std::string& why : WhyNotBookable(world, segment, {isEvent, "All"})) tell(why);
    for (const Refusal& refusal : RefusalsOf(world, segment)) tell(refusal.Words);
  }
  for (const Worker& worker : world.Workers())
    if (PartsOf(card, worker.Uid) > 2) faults += worker.Name.Str() + " appears too often\n";
  return faults;
}

inline constexpr std::uint64_t kSeeds = 20;

/// How many of the cards that as many seeds bring are taken. None may have faults.
template <class Takes>
int CardsWith(World& world, bool isEvent, int rows, Takes takes, std::uint64_t cards = kSeeds) {
  int count = 0;
  for (std::uint64_t seed = 1; seed <= cards; ++seed) {
    const AutoCard card = BookedBy(world, isEvent, rows, seed);
    EXPECT_EQ("", FaultsOf(world, card, isEvent)) << "seed " << seed;
    count += takes(card);
  }
  return count;
}

/// A promotion of `wrestlers` men, Faces and Heels in turn, with writers enough for one show.
inline SmallWorld House(int wrestlers, int size = kCult, int risk = 50) {
  SmallWorld world;
  world.Promotion("CWA", size, [&](Promotion& promotion) { promotion.Risk = risk; });
  world.Owner("Ruth Vane").Staff("Ida Quill", kWriter).Staff("Ned Inkwell", kWriter);
  for (int i = 0; i < wrestlers; ++i)
    world.Worker("Hand " + std::to_string(i + 1), 1 + i * 6 / std::max(1, wrestlers),
                 85 - i * 60 / std::max(1, wrestlers),
                 [&](Worker& worker) { worker.Disposition = i % 2 == 0 ? "F" : "H"; });
  return world;
}

inline void DismissWriters(World& world) {
  for (Staff& staff : world.AllStaff())
    if (staff.Position == kWriter) staff.Employer = 0;
}

}  // namespace grapplemont::test
