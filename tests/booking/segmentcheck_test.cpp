#include "booking/wizard/segmentcheck.h"
#include "booking/wizard/refusals.h"

#include <gtest/gtest.h>

#include "booking/ring.h"
#include "booking/wizard/matchrules.h"

namespace grapplemont::test {
namespace {

using Lines = std::vector<std::string>;

World Roster() {
  return BookingRoster()
      .Worker("Cook", kNonWrestler, 40)
      .Title("Crown", "Man 1")
      .Title("Women", {}, {}, [](Title& t) { t.Woman = true; })
      .Game("CWA");
}

/// Man 1 beats Man 2 by interference of Man 9; Man 10 saves.
Segment Sound(const World& world) {
  Segment match = MatchOf(world, kSingles, kPlainSingles, {"Man 1", "Man 2"});
  StoreResult(match, 1, {});
  match.TitleName = "Crown";
  match.Finish = kInterference;
  match.Other1 = 9;
  match.Aftermath = after1::kSave;
  match.Other2 = 10;
  match.Purpose = purpose1::kPutWinnerOver;
  return match;
}

TEST(WhyNotBookable, FindsEachThingThatCouldNotHaveBeenChosen) {
  const struct {
    Change<Segment> Breaks;
    Lines Says;
  } kRows[] = {
      {[](Segment&) {}, {}},
      {[](Segment& s) { s.Kind = kEmptySegment; }, {"Nothing is booked."}},
      {[](Segment& s) { s.MatchType = 20; }, {"The promotion does not offer this match type."}},
      {[](Segment& s) { s.Style = 10; },
       {"There is no such match style.", "The promotion does not offer this match type."}},
      {[](Segment& s) { s.Worker[1] = 17; },
       {"Cook cannot be booked for a match.", "A loser does not stand in the match."}},
      {[](Segment& s) { s.Worker[1] = 0; },
       {"Not every place of the match is filled.", "A loser does not stand in the match."}},
      {[](Segment& s) { s.Worker[1] = 1; },
       {"Workers cannot fight themselves!", "A loser does not stand in the match."}},
      {[](Segment& s) { s.TitleName = "Women"; }, {"Women cannot be at stake in this match."}},
      {[](Segment& s) { s.Loser = 0; },
       {"The result has not been chosen.", "A loser does not stand in the match."}},
      {[](Segment& s) { s.Winner = 3; }, {"The winner does not stand in the match."}},
      {[](Segment& s) { s.Winner = 2; }, {"The winner cannot lose as well."}},
      {[](Segment& s) { s.Place3 = 2; }, {"More losers are named than the match has."}},
      {[](Segment& s) {
         s.MatchType = kIronMan;
         StoreResult(s, 0, {});
       },
       {"This match cannot end in a draw."}},
      {[](Segment& s) { s.Finish = kSportsEntertainment; },
       {"The match cannot have this aftermath.", "Man 9 has no reason to run in."}},
      {[](Segment& s) { s.Finish = kSickBump; },
       {"The match cannot have this finish.", "The match cannot have this aftermath.",
        "Man 9 has no reason to run in."}},
      {[](Segment& s) { s.Aftermath = after1::kAttacksRunIn; },
       {"The match cannot have this aftermath.", "Man 10 has no reason to run in."}},
      {[](Segment& s) { s.Other1 = 0; },
       {"You must select someone to run in if you want interference"}},
      {[](Segment& s) { s.Other1 = 2; }, {"Man 2 cannot run in."}},
      {[](Segment& s) { s.Other1 = 17; }, {}},
      {[](Segment& s) { s.Other2 = 9; },
       {"You cannot select the same interfering person twice", "Man 9 runs in twice."}},
      {[](Segment& s) { s.Other2 = 0; }, {"You must select someone to run in for this aftermath"}},
      {[](Segment& s) { s.Purpose = purpose1::kEndFeud; }, {"The match cannot have this purpose."}},
      {[](Segment& s) { s.MatchType = kBraAndPanties, s.TitleName = "None"; },
       {"Man 1: You're joking, right???", "Man 2: You're joking, right???"}},
  };
  const World world = Roster();
  int number = 0;
  for (const auto& row : kRows) {
    Segment match = Sound(world);
    row.Breaks(match);
    EXPECT_EQ(WhyNotBookable(world, match, {}), row.Says) << "row " << number;
    ++number;
  }
}

TEST(WhyNotBookable, PassesWhatThePlayerMayInsistOnButNoVeto) {
  World world = Roster();
  Named(world.Workers(), "Man 2").Over = 100;
  const Segment match = Sound(world);
  EXPECT_EQ(RefusalsOf(world, match).size(), 1u);
  EXPECT_EQ(WhyNotBookable(world, match, {}), Lines());
  Named(world.Workers(), "Man 2").CreativeControl = true;
  EXPECT_EQ(WhyNotBookable(world, match, {}),
            Lines{"Man 2: I am not losing this match, he is not in my league."});
}

TEST(WhyNotBookable, LooksAtTheShorterPaths) {
  const World world = Roster();
  Segment match = MatchOf(world, kThreeWay, kElimination, {"Man 1", "Man 2", "Man 3"});
  StoreResult(match, 1, {2});
  EXPECT_EQ(WhyNotBookable(world, match, {}), Lines{"A loser has not been chosen."});
  StoreResult(match, 1, {2, 3});
  EXPECT_EQ(WhyNotBookable(world, match, {}), Lines());
  match.Finish = kClean;
  match.Purpose = 1;
  EXPECT_EQ(WhyNotBookable(world, match, {}),
            (Lines{"The match cannot have this finish.", "The match cannot have this purpose."}));
  Segment teams = MatchOf(world, kThreeTeams, kThreeTeamsTlc,
                          {"Man 1", "Man 2", "Man 3", "Man 4", "Man 5", "Man 6"});
  StoreResult(teams, 3, {});
  EXPECT_EQ(WhyNotBookable(world, teams, {}), Lines());
  teams.Loser = 1;
  teams.Winner = 4;
  EXPECT_EQ(WhyNotBookable(world, teams, {}), Lines{"The winner does not stand in the match."});
}

}  // namespace
}  // namespace grapplemont::test
