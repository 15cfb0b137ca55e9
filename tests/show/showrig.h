#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "records/segments.h"
#include "show/ratings.h"
#include "show/segmentrun.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {

/// Ash (uid 1) to Hal (8), then Hand 9 and on, who are all as good as each other: they work for 55,
/// draw for 47 and talk for 50. Odd uids are Faces, even ones Heels.
inline SmallWorld Cast(int count = 8, const Change<Worker>& change = {}) {
  constexpr const char* kNames[] = {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"};
  SmallWorld small;
  small.Promotion("CWA");
  for (int uid = 1; uid <= count; ++uid)
    small.Worker(uid <= 8 ? kNames[uid - 1] : "Hand " + std::to_string(uid), [&](Worker& w) {
      w.Disposition = uid % 2 == 1 ? "F" : "H";
      if (change) change(w);
    });
  return small;
}

/// The same draw always, as far as it goes.
class SteadyDraws : public Draws {
 public:
  explicit SteadyDraws(int value) : value_(value) {}
  int Draw(int n) override { return std::max(1, std::min(n, value_)); }

 private:
  int value_;
};

inline Segment SegmentOf(int kind, int style, int type, const std::vector<int>& uids) {
  Segment segment = EmptySegment();
  segment.Kind = kind;
  segment.Style = style;
  segment.MatchType = type;
  for (std::size_t i = 0; i < uids.size(); ++i) segment.Worker[i] = uids[i];
  return segment;
}

inline std::vector<int> UidsUpTo(int count) {
  std::vector<int> uids;
  for (int uid = 1; uid <= count; ++uid) uids.push_back(uid);
  return uids;
}

/// A match between the first of the cast, as many as it takes.
inline Segment MatchOf(int style, int type = 1) {
  Segment match = SegmentOf(kMatch, style, type, {});
  const std::vector<int> uids = UidsUpTo(EntrantsOf(match));
  return SegmentOf(kMatch, style, type, uids);
}

/// A Segment in the middle of its run.
struct Rig {
  World TheWorld;
  Segment Booked;
  ShowRun Show;
  SegmentRun Run{TheWorld, Booked, Show, {}, {}, {}, 1, false, {}};

  Rig(World world, const Segment& segment) : TheWorld(std::move(world)), Booked(segment), Show{} {}
  Rig(const Rig&) = delete;
  Rig& operator=(const Rig&) = delete;

  Worker& Who(int uid) { return *TheWorld.FindWorker(uid); }
  void Script(std::initializer_list<ScriptedDraw> draws) { ScriptDraws(TheWorld, draws); }
  std::vector<int> Touched() const {
    std::vector<int> slots;
    for (int slot = 1; slot <= kFeuds; ++slot)
      if (Show.FeudTouched[static_cast<std::size_t>(slot - 1)]) slots.push_back(slot);
    return slots;
  }
};

/// "Cage -4, two Heels -20".
inline std::string StepsText(const Score& score) {
  std::string text;
  for (const ScoreStep& step : score.Steps())
    text += (text.empty() ? "" : ", ") + step.Why + (step.Change > 0 ? " +" : " ") +
            std::to_string(step.Change);
  return text;
}

inline Change<Feud> Hot(int heat) {
  return [=](Feud& feud) { feud.Heat = heat; };
}

}  // namespace grapplemont::test
