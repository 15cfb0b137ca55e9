#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

#include "records/segments.h"
#include "report/pasttold.h"
#include "report/report.h"
#include "report/teller.h"
#include "support/smallworld.h"

// Two workers and what the records hold of them.

namespace grapplemont {

inline World Two() {
  return test::SmallWorld()
      .Promotion("CWA")
      .Worker("Ada Crane")
      .Worker("Bo Pike")
      .Title("Crown")
      .Game("CWA");
}

inline Segment AdaBeatsBo(const char* title = "None") {
  Segment segment = EmptySegment();
  segment.Kind = kMatch;
  segment.Style = kSingles;
  segment.MatchType = kPlainSingles;
  segment.Worker[0] = segment.Winner = 1;
  segment.Worker[1] = segment.Loser = 2;
  segment.Finish = kClean;
  segment.TitleName = title;
  return segment;
}

inline Day Ago(const World& world, int days) {
  return world.Today() - std::chrono::days(days);
}

inline void Held(World& world, int winner, int days, int rating = 50) {
  HeldMatch bout;
  bout.On = Ago(world, days);
  bout.Promotion = world.PlayerUid();
  bout.Style = kSingles;
  bout.Rating = rating;
  bout.Winners = 1;
  bout.Worker[0] = winner;
  bout.Worker[1] = 3 - winner;
  world.Bouts().Append(bout);
}

inline void Tally(World& world, int uid, int matches, int lastDaysAgo) {
  MatchTally tally;
  tally.Promotion = world.PlayerUid();
  tally.Worker = uid;
  tally.Won = matches;
  tally.Last = Ago(world, lastDaysAgo);
  world.Tallies().Append(tally);
}

inline void Reign(World& world, int uid, int from, int until, int defences = 0) {
  TitleReign reign;
  reign.From = Ago(world, from);
  reign.Until = until == 0 ? kNoTitleDate : Ago(world, until);
  reign.Title = "Crown";
  reign.Owner = world.PlayerUid();
  reign.Worker = uid;
  reign.Defences = defences;
  reign.End = until == 0 ? kReignLasts : kReignLost;
  world.Reigns().Append(reign);
}

struct Past {
  std::vector<PastFact> Facts;

  Past(World& world, const Segment& segment, const Scene& scene = {}) {
    LineMemory memory;
    Teller teller(world, segment, scene, memory);
    Facts = PastOf(teller);
  }
  const PastFact* Has(PastKind kind) const {
    const auto found = std::find_if(Facts.begin(), Facts.end(),
                                    [&](const PastFact& fact) { return fact.Is == kind; });
    return found == Facts.end() ? nullptr : &*found;
  }
};

}  // namespace grapplemont
