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
  World W;
  Segment S;
  ShowRun Show;
  SegmentRun Run{W, S, Show, {}, {}, {}, 1, false, {}};

  Rig(World world, const Segment& segment) : W(std::move(world)), S(segment), Show{} {}
  Rig(const Rig&) = delete;
  Rig& operator=(const Rig&) = delete;

  Worker& Who(int uid) { return *W.FindWorker(uid); }
  void Script(std::initializer_list<ScriptedDraw> draws) { ScriptDraws(W, draws); }
  std::vector<int> Touched() const {
    std::vector<int> slots;
    for (int slot = 1; slot <= kFeuds; ++slot)
      if (Show.FeudTouched[static_cast<std::size_t>(slot - 1)]) slots.push_back(slot);
    return slots;
  }
};

/// Eight workers of the player's with the uids 1 to 8 and Over 50, all Faces; Bea is a woman.
inline SmallWorld Eight() {
  SmallWorld small = Cast(8, [](Worker& w) { w.Disposition = "F", w.Gender = w.Name != "Bea"; });
  small.Game("CWA");
  return small;
}

/// A Segment of these about to have its consequences.
struct Stage : Rig {
  explicit Stage(World world = Eight()) : Rig(std::move(world), EmptySegment()) {}

  Worker& operator[](std::string_view name) { return Named(W.Workers(), name); }
  int Uid(std::string_view name) { return name.empty() ? 0 : int((*this)[name].Uid); }

  /// A match, a draw until somebody wins.
  void Match(int style, std::initializer_list<const char*> names, int type = 1) {
    Talk(kMatch, style, names);
    S.MatchType = type;
    S.Loser = kNoLoser;
  }
  void Result(std::string_view winner, std::string_view loser, int finish = kClean) {
    S.Winner = Uid(winner);
    S.Loser = Uid(loser);
    S.Finish = finish;
  }
  void Draw(int finish) {
    S.Winner = 0;
    S.Loser = kNoLoser;
    S.Finish = finish;
  }
  void Talk(int kind, int style, std::initializer_list<const char*> names) {
    S.Kind = kind;
    S.Style = style;
    std::size_t place = 0;
    for (const char* name : names) S.Worker[place++] = Uid(name);
  }
  void Rate(int quality, int crowd, int overall = 0) {
    Run.Quality.Become(quality, "");
    Run.Crowd.Become(crowd, "");
    Run.Overall.Become(overall, "");
  }
  /// Over of the first `count` workers.
  std::vector<int> Overs(int count) const {
    std::vector<int> overs;
    for (int number = 1; number <= count; ++number) overs.push_back(W.Workers()[number].Over);
    return overs;
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

/// The evening of a television show of theirs: Ash holds the Crown, Cal and Dot the Ropes, and Eli
/// has it in for Fay.
inline World OnTheAir(SmallWorld& cast, std::unique_ptr<Draws> chance) {
  World world = cast.Title("Crown", "Ash")
                    .Title("Ropes", "Cal", "Dot")
                    .Network("Nine")
                    .Show("Sunday Slam", "Sunday", "Nine")
                    .Game("CWA")
                    .Feud("Eli", "Fay", Hot(50));
  world.SetChance(std::move(chance));
  return world;
}

}  // namespace grapplemont::test
