#pragma once

#include "records/segments.h"
#include "show/segmentrun.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {

/// Eight workers of the player's with the uids 1 to 8 and Over 50, all Faces; Bea is a woman.
inline SmallWorld Eight(int size = kRegional) {
  SmallWorld small;
  small.Promotion("CWA", size);
  for (const char* name : {"Ash", "Bea", "Cal", "Dot", "Eli", "Fay", "Gus", "Hal"})
    small.Worker(name, [&](Worker& w) { w.Gender = w.Name != "Bea"; });
  small.Game("CWA");
  return small;
}

/// A Segment about to have its consequences.
struct Stage {
  World W;
  Segment S = EmptySegment();
  ShowRun Show;
  SegmentRun Run{W, S, Show, {}, {}, {}, 1, false, {}};

  explicit Stage(World world = Eight()) : W(std::move(world)) {}
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  Worker& operator[](std::string_view name) { return Named(W.Workers(), name); }
  int Uid(std::string_view name) { return name.empty() ? 0 : int((*this)[name].Uid); }

  void Cast(std::initializer_list<const char*> names) {
    std::size_t place = 0;
    for (const char* name : names) S.Worker[place++] = Uid(name);
  }
  /// A match of a style and type, Singles and Tag by default; a draw until somebody wins.
  void Match(int style, std::initializer_list<const char*> names, int type = 1) {
    S.Kind = kMatch;
    S.Style = style;
    S.MatchType = type;
    S.Loser = kNoLoser;
    Cast(names);
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
    Cast(names);
  }
  void Rate(int quality, int crowd, int overall = 0) {
    Run.Quality.Become(quality, "");
    Run.Crowd.Become(crowd, "");
    Run.Overall.Become(overall, "");
  }

  /// Over of the first so many workers.
  std::vector<int> Overs(int count) const {
    std::vector<int> overs;
    for (int number = 1; number <= count; ++number) overs.push_back(W.Workers()[number].Over);
    return overs;
  }
};

}  // namespace grapplemont::test
