#include "records/segments.h"

#include <gtest/gtest.h>

#include <set>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "support/smallworld.h"

// What a Segment's numbers mean: its one line on the sheet, its sides, what emptying leaves.

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

/// Nobody but Zed has the uid that also stands for "no loser".
World People() {
  return SmallWorld()
      .Promotion("CWA")
      .Worker("Zed")
      .Worker("Ash")
      .Worker("Bea")
      .Worker("Cal")
      .Worker("Dot")
      .Worker("Eve")
      .Worker("Fay")
      .Worker("Gus")
      .Worker("Hal")
      .Team("The Kindling", "Bea", "Ash")
      .Team("Cold Pair", "Eve", "Fay")
      .Stable("The Tide", {"Gus", "Hal"})
      .Game("CWA");
}

constexpr const char* kNobody = "-";     // an empty place
constexpr const char* kGone = "(gone)";  // a uid that leads nowhere

int UidOf(const World& world, const std::string& name) {
  if (name.empty() || name == kNobody) return 0;
  return name == kGone ? 999 : int(Named(world.Workers(), name).Uid);
}

const Names kTwo = {"Ash", "Cal"};
const Names kThree = {"Ash", "Bea", "Cal"};
const Names kFour = {"Ash", "Bea", "Cal", "Dot"};
const Names kSix = {"Ash", "Bea", "Cal", "Dot", "Eve", "Fay"};
const Names kEight = {"Ash", "Bea", "Cal", "Dot", "Eve", "Fay", "Gus", "Hal"};

struct Case {
  int Kind, Style, Type;
  Names People;
  Names Result;  // Winner, Loser, Place3, Place4; empty for a draw
  std::string Says;
};

Segment SegmentOf(const World& world, const Case& c) {
  Segment segment = EmptySegment();
  segment.Kind = c.Kind;
  segment.Style = c.Style;
  segment.MatchType = c.Type;
  for (std::size_t i = 0; i < c.People.size(); ++i) segment.Worker[i] = UidOf(world, c.People[i]);
  segment.Loser = kNoLoser;
  Word* const places[] = {&segment.Winner, &segment.Loser, &segment.Place3, &segment.Place4};
  for (std::size_t i = 0; i < c.Result.size(); ++i) *places[i] = UidOf(world, c.Result[i]);
  return segment;
}

void ExpectDescribed(const std::vector<Case>& cases) {
  const World world = People();
  for (const Case& c : cases)
    EXPECT_EQ(DescribeSegment(world, SegmentOf(world, c)), c.Says)
        << "kind " << c.Kind << ", style " << c.Style << ", type " << c.Type;
}

TEST(DescribeSegment, TellsMatchesOfTwoSides) {
  ExpectDescribed({
      {kMatch, kSingles, 1, kTwo, {"Ash", "Cal"}, "Ash over Cal"},
      {kMatch, kSingles, 7, kTwo, {"Cal", "Ash"}, "Cal over Ash"},
      {kMatch, kSingles, 1, kTwo, {}, "Ash draw Cal"},
      {kMatch, kSingles, 1, {"Ash", kGone}, {"Ash", kGone}, "Ash over <Error>"},
      {kMatch, kSingles, 1, {"Ash", kNobody}, {}, "Ash draw <Error>"},
      {kMatch, kTag, 1, kFour, {"Bea", "Dot"}, "The Kindling over Cal \\ Dot"},
      {kMatch, kTag, 1, kFour, {"Dot", "Ash"}, "Cal \\ Dot over The Kindling"},
      {kMatch, kTag, 1, kFour, {}, "The Kindling draw Cal \\ Dot"},
      {kMatch, kTag, 1, {"Ash", kNobody, "Cal", kGone}, {"Ash", "Cal"}, "Ash over Cal \\ <Error>"},
      {kMatch, kThreeOnThree, 1, kSix, {"Ash", "Dot"}, "Ash \\ Bea \\ Cal over Dot \\ Eve \\ Fay"},
      {kMatch, kThreeOnThree, 1, kSix, {"Fay", "Ash"}, "Dot \\ Eve \\ Fay over Ash \\ Bea \\ Cal"},
      {kMatch, kThreeOnThree, 1, kSix, {}, "Ash \\ Bea \\ Cal draw Dot \\ Eve \\ Fay"},
      {kMatch,
       kFourOnFour,
       1,
       kEight,
       {"Dot", "Eve"},
       "Ash \\ Bea \\ Cal \\ Dot over Eve \\ Fay \\ Gus \\ Hal"},
      {kMatch,
       kFourOnFour,
       kSurvivor,
       kEight,
       {"Hal", "Ash", "Eve", "Bea"},
       "Eve \\ Fay \\ Gus \\ Hal over Ash \\ Bea \\ Cal \\ Dot"},
      {kMatch,
       kFourOnFour,
       1,
       kEight,
       {},
       "Ash \\ Bea \\ Cal \\ Dot draw Eve \\ Fay \\ Gus \\ Hal"},
  });
}

TEST(DescribeSegment, TellsMatchesOfManySides) {
  ExpectDescribed({
      {kMatch, kThreeWay, kElimination, kThree, {"Bea", "Cal", "Ash"}, "Bea over Cal, Ash"},
      {kMatch, kThreeWay, kTriangle, kThree, {"Cal", "Ash"}, "Cal over Ash, Bea"},
      {kMatch, kFourWay, 2, kFour, {"Bea", "Dot"}, "Bea over Dot, Ash, Cal"},
      {kMatch,
       kFourWay,
       kElimination,
       kFour,
       {"Cal", "Dot", "Bea", "Ash"},
       "Cal over Dot, Bea, Ash"},
      {kMatch, kFourWay, kElimination, kFour, {"Cal", "Dot", "Bea"}, "Cal over Dot, Bea, <Error>"},
      {kMatch,
       kThreeTeams,
       kElimination,
       kSix,
       {"Cal", "Ash", "Eve"},
       "Cal \\ Dot win a triangle tag match"},
      {kMatch, kThreeTeams, kTriangle, kSix, {"Fay", "Cal"}, "Cold Pair win a triangle tag match"},
      {kMatch, kThreeTeams, kThreeTeamsTlc, kSix, {"Ash"}, "The Kindling win a triangle tag match"},
      {kMatch, kThreeTeams, kThreeTeamsTlc, kSix, {kGone}, "<Error> win a triangle tag match"},
      {kMatch,
       kFourTeams,
       kElimination,
       kEight,
       {"Gus", "Ash", "Cal", "Eve"},
       "Gus \\ Hal win a four-way tag match"},
      {kMatch, kFourTeams, kFourTeamsTlc, kEight, {"Ash"}, "The Kindling win a four-way tag match"},
      {kMatch, kSpecial, kRoyalRumble, kEight, {"Gus", "Hal"}, "Gus wins a Royal Rumble"},
      {kMatch, kSpecial, kTwentyMan, kEight, {"Gus", "Hal"}, "Gus wins a 20 Man Battle Royal"},
      {kMatch, kSpecial, kTenMan, kEight, {"Gus", "Hal"}, "Gus wins a 10 Man Battle Royal"},
      {kMatch, 10, 1, kTwo, {"Ash", "Cal"}, "<Error>"},
      {kEmptySegment, kSingles, 1, kTwo, {"Ash", "Cal"}, "<Nothing Booked>"},
  });
}

TEST(DescribeSegment, TellsInterviews) {
  ExpectDescribed({
      {kInterview, kSingleTalk, 0, kTwo, {}, "Interview with Ash"},
      {kInterview, kTeamTalk, 0, kFour, {}, "Interview with The Kindling"},
      {kInterview, kTeamTalk, 0, {"Ash", "Cal", "Dot"}, {}, "Interview with Ash \\ Cal"},
      {kInterview, kManagedTalk, 0, kThree, {}, "Interview with Ash and Bea"},
      {kInterview,
       kManagedTeamTalk,
       0,
       {"Cal", "Ash", "Bea", "Dot"},
       {},
       "Interview with Cal and The Kindling"},
      {kInterview, kSingleTalk, 0, {kGone}, {}, "Interview with <Error>"},
      {kInterview, 5, 0, kTwo, {}, "<Error>"},
  });
}

TEST(DescribeSegment, TellsAngles) {
  const World world = People();
  struct Cast {
    int Angle;
    Names People;
    const char* Text;
    const char* Says;
  };
  const Cast kCasts[] = {
      {kStableVideo, {"Ash"}, "The Tide", "Video involving The Tide"},
      {kAbduction, {"Ash", "Bea"}, "The Tide", "Segment involving The Tide, Ash"},
      {kKidnap, {"Ash"}, "The Tide", "Segment involving The Tide, Ash"},
      {kCrucifixion, {"Ash"}, "The Tide", "Segment involving The Tide, Ash"},
      {kBloodBath, {"Ash"}, "The Tide", "Segment involving The Tide, Ash"},
      {kKidnap, {kNobody}, "The Tide", "Segment involving The Tide, <Error>"},
      {kBlackWedding, kThree, "The Tide", "Segment involving Ash, Bea, Cal, The Tide"},
      {kStableAttack, {"Ash"}, "The Tide", "Attack involving Ash, The Tide"},
      {kStableDuo, {"Ash", "Bea"}, "The Tide", "Attack involving Ash, Bea, The Tide"},
      {kWalking, {"Ash"}, "None", "Segment involving Ash"},
      {2, kTwo, "None", "Confrontation involving Ash, Cal"},
      {kMotivation, kTwo, "None", "Segment involving Ash, Cal"},
      {8, kThree, "None", "Segment involving Ash, Bea, Cal"},
      {kAmbush, kFour, "None", "Ambush involving Ash, Bea, Cal, Dot"},
      {kAmbush, {"Ash", "Bea", kNobody, "Dot"}, "None", "Ambush involving Ash, Bea, Dot"},
      {kGetTheTable, {"Ash", kNobody, "Cal"}, "None", "Fight involving Ash, Cal"},
      {kGetTheTable, {"Ash", kNobody, kGone}, "None", "Fight involving Ash, <Error>"},
      {11, kEight, "None", "Confrontation involving Ash, Bea, Cal, Dot"},
      {kCelebrity, {"Ash"}, "None", "Attack involving Ash"},
      {0, kTwo, "None", "<Error>"},
      {80, kTwo, "None", "<Error>"},
  };
  for (const Cast& cast : kCasts) {
    Segment angle = SegmentOf(world, {kAngle, cast.Angle, 0, cast.People, {}, ""});
    angle.Text = cast.Text;
    EXPECT_EQ(DescribeSegment(world, angle), cast.Says) << "angle " << cast.Angle;
  }
}

TEST(ClearSegment, EmptiesWhatStandsInARowAndLeavesTheRest) {
  const std::set<std::string> kept = {"Place5", "Place6", "Place7", "Place8"};
  Segment segment;
  segment.Rating = 88;
  for (Word* field :
       {&segment.Kind, &segment.Style, &segment.MatchType, &segment.Purpose, &segment.Winner,
        &segment.Loser, &segment.Place3, &segment.Place4, &segment.Place5, &segment.Place6,
        &segment.Place7, &segment.Place8, &segment.Finish, &segment.Other1, &segment.Other2,
        &segment.Other3, &segment.Other4, &segment.Aftermath})
    *field = 77;
  for (Word& worker : segment.Worker) worker = 77;
  segment.TitleName = "Crown";
  segment.Text = "The Tide";
  const Segment before = segment;
  ClearSegment(segment);
  const auto* left = reinterpret_cast<const std::byte*>(&segment);
  const auto* was = reinterpret_cast<const std::byte*>(&before);
  for (const Field& field : LayoutOf<Segment>().Fields)
    for (int i = 0; i < field.Count; ++i) {
      const std::string name = FieldName(field, i), shown = FieldShown(field, left, i);
      const bool stays = kept.contains(name) || (field.Count == 30 && i >= 4);
      const std::string empty = name == "TitleName" || name == "Text" ? "None"
                                : name == "Kind"                      ? "Empty"
                                                                      : "0";
      EXPECT_EQ(shown, stays ? FieldShown(field, was, i) : empty) << name;
      EXPECT_NE(FieldShown(field, was, i), empty) << name << " had nothing to lose";
    }
}

Names NamesOf(const World& world, const std::vector<int>& uids) {
  Names names;
  for (const int uid : uids) names.push_back(uid == 0 ? kNobody : WorkerName(world, uid));
  return names;
}

TEST(Segments, KnowTheSidesOfAMatch) {
  const World world = People();
  struct Sides {
    int Style, Type;
    Names People, Result, Winners, Losers;
  };
  const Sides kMatches[] = {
      {kSingles, 1, kTwo, {"Cal", "Ash"}, {"Cal"}, {"Ash"}},
      {kSingles, 1, kTwo, {}, {}, {}},
      {kTag, 1, kFour, {"Dot", "Bea"}, {"Cal", "Dot"}, {"Ash", "Bea"}},
      {kThreeWay, kTriangle, kThree, {"Bea", "Ash"}, {"Bea"}, {"Ash"}},
      {kThreeTeams, kTriangle, kSix, {"Fay", "Cal"}, {"Eve", "Fay"}, {"Cal", "Dot"}},
      {kThreeTeams, kThreeTeamsLadder, kSix, {"Cal"}, {"Cal", "Dot"}, {"Ash", "Bea", "Eve", "Fay"}},
      {kThreeOnThree, 1, kSix, {"Dot", "Bea"}, {"Dot", "Eve", "Fay"}, {"Ash", "Bea", "Cal"}},
      {kFourOnFour,
       kSurvivor,
       kEight,
       {"Ash", "Hal"},
       {"Ash", "Bea", "Cal", "Dot"},
       {"Eve", "Fay", "Gus", "Hal"}},
      // What no wizard writes.
      {kSingles, 1, kTwo, {kGone, "Ash"}, {}, {}},
      {kThreeWay, kTriangle, kThree, {"Bea", kGone}, {"Bea"}, {"Ash", "Cal"}},
      {kThreeWay, kTriangle, kThree, {"Bea", kNobody}, {"Bea"}, {"Ash", "Cal"}},
      {kTag, 1, {"Ash", kNobody, "Cal", "Dot"}, {"Ash", "Cal"}, {"Ash", kNobody}, {"Cal", "Dot"}},
      {10, 1, kTwo, {"Ash", "Cal"}, {}, {}},
  };
  for (const Sides& c : kMatches) {
    SCOPED_TRACE("style " + std::to_string(c.Style) + ", type " + std::to_string(c.Type));
    const Segment match = SegmentOf(world, {kMatch, c.Style, c.Type, c.People, c.Result, ""});
    EXPECT_EQ(NamesOf(world, WinnersOf(match)), c.Winners);
    EXPECT_EQ(NamesOf(world, LosersOf(match)), c.Losers);
    EXPECT_EQ(IsDraw(match), c.Result.empty());
  }
}

/// Zed's uid is also the word for "no loser": where somebody is named, it is Zed.
TEST(LosersOf, TakesTheFirstWorkerForALoser) {
  const World world = People();
  struct Row {
    int Style, Type;
    Names People;
    const char* Winner;
    bool Named;
    Names Losers;
  };
  const Row kRows[] = {
      {kSingles, 1, {"Ash", "Zed"}, "Ash", true, {"Zed"}},
      {kTag, 1, {"Ash", "Bea", "Zed", "Cal"}, "Ash", true, {"Zed", "Cal"}},
      {kThreeWay, kTriangle, {"Ash", "Zed", "Bea"}, "Ash", true, {"Zed"}},
      {kThreeWay, kElimination, {"Ash", "Zed", "Bea"}, "Ash", true, {"Zed"}},
      {kThreeTeams,
       kElimination,
       {"Ash", "Bea", "Zed", "Cal", "Dot", "Eve"},
       "Ash",
       true,
       {"Zed", "Cal"}},
      {kThreeTeams,
       kTriangle,
       {"Ash", "Bea", "Zed", "Cal", "Dot", "Eve"},
       "Ash",
       true,
       {"Zed", "Cal"}},
      {kThreeTeams,
       kThreeTeamsLadder,
       {"Ash", "Bea", "Zed", "Cal", "Dot", "Eve"},
       "Ash",
       false,
       {"Zed", "Cal", "Dot", "Eve"}},
      {kThreeTeams,
       kThreeTeamsTlc,
       {"Ash", "Bea", "Zed", "Cal", "Dot", "Eve"},
       "Ash",
       false,
       {"Zed", "Cal", "Dot", "Eve"}},
      {kFourWay, kElimination, {"Ash", "Zed", "Bea", "Cal"}, "Ash", true, {"Zed"}},
      {kFourWay, 2, {"Ash", "Zed", "Bea", "Cal"}, "Ash", true, {"Zed"}},
      {kFourTeams,
       kElimination,
       {"Ash", "Bea", "Zed", "Cal", "Dot", "Eve", "Fay", "Gus"},
       "Ash",
       true,
       {"Zed", "Cal"}},
      {kFourTeams,
       kFourTeamsTlc,
       {"Ash", "Bea", "Zed", "Cal", "Dot", "Eve", "Fay", "Gus"},
       "Ash",
       false,
       {"Zed", "Cal", "Dot", "Eve", "Fay", "Gus"}},
      {kThreeOnThree,
       1,
       {"Ash", "Bea", "Cal", "Zed", "Dot", "Eve"},
       "Ash",
       true,
       {"Zed", "Dot", "Eve"}},
      {kFourOnFour,
       kSurvivor,
       {"Ash", "Bea", "Cal", "Dot", "Zed", "Eve", "Fay", "Gus"},
       "Ash",
       true,
       {"Zed", "Eve", "Fay", "Gus"}},
      {kSpecial, kTenMan, {"Ash", "Zed", "Bea"}, "Ash", true, {"Zed"}},
      {kSingles, 1, {"Ash", "Zed"}, kNobody, false, {}},
      {kTag, 1, {"Ash", "Bea", "Zed", "Cal"}, kNobody, false, {}},
  };
  for (const Row& row : kRows) {
    const Segment match =
        SegmentOf(world, {kMatch, row.Style, row.Type, row.People, {row.Winner, "Zed"}, ""});
    EXPECT_EQ(NamesLoser(match), row.Named) << row.Style << ", " << row.Type;
    EXPECT_EQ(NamesOf(world, LosersOf(match)), row.Losers) << row.Style << ", " << row.Type;
  }
}

TEST(PartnerOf, IsTheOtherOfTheSide) {
  const World world = People();
  const auto partner = [&](int style, const Names& people, const char* of) {
    const Segment match = SegmentOf(world, {kMatch, style, 1, people, {}, ""});
    return WorkerName(world, PartnerOf(match, UidOf(world, of)));
  };
  EXPECT_EQ(partner(kTag, kFour, "Ash"), "Bea");
  EXPECT_EQ(partner(kTag, kFour, "Dot"), "Cal");
  EXPECT_EQ(partner(kThreeTeams, kSix, "Eve"), "Fay");
  EXPECT_EQ(partner(kSingles, kTwo, "Ash"), "");
  EXPECT_EQ(partner(kTag, kFour, "Gus"), "");
  const Names gap = {"Ash", kNobody, "Cal", "Dot"};
  EXPECT_EQ(partner(kTag, gap, "Ash"), "");
  EXPECT_EQ(partner(kTag, gap, kNobody), "") << "an empty place is nobody's partner";
}

TEST(PeopleOf, CountsTheKindsOwnPlaces) {
  const World world = People();
  struct Row {
    int Kind, Style, Type;
    std::size_t Places;
  };
  const Row kRows[] = {
      {kMatch, kSingles, 1, 2},
      {kMatch, kTag, 1, 4},
      {kMatch, kThreeWay, 1, 3},
      {kMatch, kThreeTeams, 1, 6},
      {kMatch, kFourWay, 1, 4},
      {kMatch, kFourTeams, 1, 8},
      {kMatch, kThreeOnThree, 1, 6},
      {kMatch, kFourOnFour, 1, 8},
      {kMatch, kSpecial, 1, 30},
      {kMatch, kSpecial, 2, 20},
      {kMatch, kSpecial, 3, 10},
      {kMatch, kSpecial, 0, 0},
      {kMatch, kSpecial, 4, 0},
      {kMatch, 0, 1, 0},
      {kInterview, kSingleTalk, 0, 2},
      {kInterview, kTeamTalk, 0, 4},
      {kInterview, kManagedTalk, 0, 3},
      {kInterview, kManagedTeamTalk, 0, 5},
      {kInterview, 9, 0, 0},
      {kAngle, kWalking, 0, 4},
      {kEmptySegment, kSingles, 1, 0},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Kind) + " " + std::to_string(row.Style));
    Segment segment = SegmentOf(world, {row.Kind, row.Style, row.Type, {}, {}, ""});
    // A long match has stood in the row before.
    for (int i = 0; i < 30; ++i) segment.Worker[static_cast<std::size_t>(i)] = 100 + i;
    EXPECT_EQ(PeopleOf(segment).size(), row.Places);
    for (int i = 0; i < 30; ++i)
      EXPECT_EQ(TakesPart(segment, 100 + i), i < static_cast<int>(row.Places)) << i;
    segment.Worker[0] = 0;
    EXPECT_EQ(PeopleOf(segment).size(), row.Places - (row.Places > 0 ? 1 : 0));
  }
}

TEST(TakesPart, CountsRunInsAndNobodyElse) {
  const World world = People();
  Segment match = SegmentOf(world, {kMatch, kSingles, 1, kTwo, {"Ash", "Cal"}, ""});
  EXPECT_FALSE(TakesPart(match, UidOf(world, "Bea")));
  EXPECT_FALSE(TakesPart(match, 0)) << "empty places are nobody";
  for (Word* place : {&match.Other1, &match.Other2, &match.Other3, &match.Other4}) {
    Segment joined = match;
    *place = UidOf(world, "Bea");
    EXPECT_TRUE(TakesPart(match, UidOf(world, "Bea")));
    match = joined;
  }
  match.Winner = UidOf(world, "Dot");
  EXPECT_FALSE(TakesPart(match, UidOf(world, "Dot"))) << "a winner who is not in the match";
}

TEST(FillPhrase, LeavesWhatItCannotRead) {
  const World world = People();
  const Segment match = SegmentOf(world, {kMatch, kSingles, 1, kTwo, {"Cal", "Ash"}, ""});
  EXPECT_EQ(FillPhrase(world, match, "{W} beats {L}"), "Cal beats Ash");
  EXPECT_EQ(FillPhrase(world, match, "{W} beats {L"), "Cal beats {L");
  EXPECT_EQ(FillPhrase(world, match, "{"), "{");
  EXPECT_EQ(FillPhrase(world, match, "{9}{}"), "<Error><Error>");
}

}  // namespace
}  // namespace grapplemont::test
