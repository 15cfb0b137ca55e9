#include "records/segments.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "support/smallworld.h"

// What a Segment's numbers mean: its one line on the sheet, its sides, what emptying leaves.

namespace grapplemont::test {
namespace {

/// Nobody but Zed has the uid that also stands for "no loser".
World People() {
  SmallWorld small;
  small.Promotion("CWA");
  for (const char* name : {"Zed", "Ash", "Bea", "Cal", "Dot", "Eve", "Fay", "Gus", "Hal"})
    small.Worker(name);
  return small.Team("The Kindling", "Bea", "Ash")
      .Team("Cold Pair", "Eve", "Fay")
      .Stable("The Tide", {"Gus", "Hal"})
      .Game("CWA");
}

/// "Ash - ?": Ash, nobody, and a uid that leads nowhere.
std::vector<int> UidsOf(const World& world, const std::string& names) {
  std::vector<int> uids;
  std::istringstream words(names);
  for (std::string name; words >> name;)
    uids.push_back(name == "-" ? 0 : name == "?" ? 999 : int(Named(world.Workers(), name).Uid));
  return uids;
}

std::string NamesOf(const World& world, const std::vector<int>& uids) {
  std::string names;
  for (const int uid : uids)
    names += (names.empty() ? "" : " ") + (uid == 0 ? "-" : WorkerName(world, uid));
  return names;
}

const char* const kFour = "Ash Bea Cal Dot";
const char* const kSix = "Ash Bea Cal Dot Eve Fay";
const char* const kEight = "Ash Bea Cal Dot Eve Fay Gus Hal";

struct Case {
  int Kind, Style, Type;
  const char *People, *Result;  // Winner, Loser, Place3, Place4; empty for a draw
  const char* Says = "";
};

Segment SegmentOf(const World& world, const Case& c) {
  Segment segment = EmptySegment();
  segment.Kind = c.Kind;
  segment.Style = c.Style;
  segment.MatchType = c.Type;
  std::size_t place = 0;
  for (const int uid : UidsOf(world, c.People)) segment.Worker[place++] = uid;
  segment.Loser = kNoLoser;
  Word* const results[] = {&segment.Winner, &segment.Loser, &segment.Place3, &segment.Place4};
  place = 0;
  for (const int uid : UidsOf(world, c.Result)) *results[place++] = uid;
  return segment;
}

TEST(DescribeSegment, TellsMatchesAndInterviews) {
  const World world = People();
  const Case cases[] = {
      {kMatch, kSingles, 1, "Ash Cal", "Ash Cal", "Ash over Cal"},
      {kMatch, kSingles, 1, "Ash Cal", "", "Ash draw Cal"},
      {kMatch, kSingles, 1, "Ash ?", "Ash ?", "Ash over <Error>"},
      {kMatch, kSingles, 1, "Ash -", "", "Ash draw <Error>"},
      {kMatch, kTag, 1, kFour, "Dot Ash", "Cal \\ Dot over The Kindling"},
      {kMatch, kTag, 1, "Ash - Cal ?", "Ash Cal", "Ash over Cal \\ <Error>"},
      {kMatch, kThreeOnThree, 1, kSix, "", "Ash \\ Bea \\ Cal draw Dot \\ Eve \\ Fay"},
      {kMatch, kThreeWay, kTriangle, "Ash Bea Cal", "Cal Ash", "Cal over Ash, Bea"},
      {kMatch, kFourWay, kElimination, kFour, "Cal Dot Bea Ash", "Cal over Dot, Bea, Ash"},
      {kMatch, kFourWay, kElimination, kFour, "Cal Dot Bea", "Cal over Dot, Bea, <Error>"},
      {kMatch, kThreeTeams, kTriangle, kSix, "Fay Cal", "Cold Pair win a triangle tag match"},
      {kMatch, kThreeTeams, kThreeTeamsTlc, kSix, "?", "<Error> win a triangle tag match"},
      {kMatch, kFourTeams, kElimination, kEight, "Gus Ash Cal Eve",
       "Gus \\ Hal win a four-way tag match"},
      {kMatch, 10, 1, "Ash Cal", "Ash Cal", "<Error>"},
      {kEmptySegment, kSingles, 1, "Ash Cal", "Ash Cal", "<Nothing Booked>"},
      {kInterview, kSingleTalk, 0, "Ash Cal", "", "Interview with Ash"},
      {kInterview, kTeamTalk, 0, "Ash Cal Dot", "", "Interview with Ash \\ Cal"},
      {kInterview, kManagedTeamTalk, 0, "Cal Ash Bea Dot", "",
       "Interview with Cal and The Kindling"},
      {kInterview, kSingleTalk, 0, "?", "", "Interview with <Error>"},
      {kInterview, 5, 0, "Ash Cal", "", "<Error>"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(DescribeSegment(world, SegmentOf(world, c)), c.Says)
        << "kind " << c.Kind << ", style " << c.Style << ", type " << c.Type;
}

TEST(DescribeSegment, TellsAngles) {
  const World world = People();
  const struct {
    int Angle;
    const char *People, *Text, *Says;
  } kCasts[] = {
      {kStableVideo, "Ash", "The Tide", "Video involving The Tide"},
      {kAbduction, "Ash Bea", "The Tide", "Segment involving The Tide, Ash"},
      {kKidnap, "-", "The Tide", "Segment involving The Tide, <Error>"},
      {kBlackWedding, "Ash Bea Cal", "The Tide", "Segment involving Ash, Bea, Cal, The Tide"},
      {kStableAttack, "Ash", "The Tide", "Attack involving Ash, The Tide"},
      {kWalking, "Ash", "None", "Segment involving Ash"},
      {kAmbush, "Ash Bea - Dot", "None", "Ambush involving Ash, Bea, Dot"},
      {kGetTheTable, "Ash - ?", "None", "Fight involving Ash, <Error>"},
      {11, kEight, "None", "Confrontation involving Ash, Bea, Cal, Dot"},
      {0, "Ash Cal", "None", "<Error>"},
      {80, "Ash Cal", "None", "<Error>"},
  };
  for (const auto& cast : kCasts) {
    Segment angle = SegmentOf(world, {kAngle, cast.Angle, 0, cast.People, ""});
    angle.Text = cast.Text;
    EXPECT_EQ(DescribeSegment(world, angle), cast.Says) << "angle " << cast.Angle;
  }
}

TEST(ClearSegment, EmptiesWhatStandsInARowAndLeavesTheRest) {
  const std::set<std::string> kept = {"Place5", "Place6", "Place7", "Place8"};
  Segment segment;
  auto* left = reinterpret_cast<std::byte*>(&segment);
  for (const Field& field : LayoutOf<Segment>().Fields)
    for (int i = 0; i < field.Count; ++i) {
      if (field.Kind == FieldKind::Text)
        SetFieldText(field, left, i, "Crown");
      else
        SetFieldNumber(field, left, i, 77);
    }
  ClearSegment(segment);
  for (const Field& field : LayoutOf<Segment>().Fields)
    for (int i = 0; i < field.Count; ++i) {
      const std::string name = FieldName(field, i);
      const bool stays = kept.contains(name) || (field.Count == 30 && i >= 4);
      const std::string empty = field.Kind == FieldKind::Text ? "None"
                                : name == "Kind"              ? "Empty"
                                                              : "0";
      EXPECT_EQ(FieldShown(field, left, i), stays ? "77" : empty) << name;
    }
}

TEST(Segments, KnowTheSidesOfAMatch) {
  const World world = People();
  const struct {
    int Style, Type;
    const char *People, *Result, *Winners, *Losers;
    bool NamesLoser = true;
  } kMatches[] = {
      {kSingles, 1, "Ash Cal", "Cal Ash", "Cal", "Ash"},
      {kSingles, 1, "Ash Cal", "", "", "", false},
      {kTag, 1, kFour, "Dot Bea", "Cal Dot", "Ash Bea"},
      {kThreeWay, kTriangle, "Ash Bea Cal", "Bea Ash", "Bea", "Ash"},
      {kThreeTeams, kTriangle, kSix, "Fay Cal", "Eve Fay", "Cal Dot"},
      {kThreeTeams, kThreeTeamsLadder, kSix, "Cal", "Cal Dot", "Ash Bea Eve Fay", false},
      {kThreeOnThree, 1, kSix, "Dot Bea", "Dot Eve Fay", "Ash Bea Cal"},
      // Zed's uid is also the word for "no loser": where somebody is named, it is Zed.
      {kSingles, 1, "Ash Zed", "Ash Zed", "Ash", "Zed"},
      {kSingles, 1, "Ash Zed", "- Zed", "", "", false},
      {kThreeWay, kElimination, "Ash Zed Bea", "Ash Zed", "Ash", "Zed"},
      {kThreeTeams, kElimination, "Ash Bea Zed Cal Dot Eve", "Ash Zed", "Ash Bea", "Zed Cal"},
      {kThreeTeams, kThreeTeamsTlc, "Ash Bea Zed Cal Dot Eve", "Ash Zed", "Ash Bea",
       "Zed Cal Dot Eve", false},
      {kFourTeams, kElimination, "Ash Bea Zed Cal Dot Eve Fay Gus", "Ash Zed", "Ash Bea",
       "Zed Cal"},
      {kFourTeams, kFourTeamsTlc, "Ash Bea Zed Cal Dot Eve Fay Gus", "Ash Zed", "Ash Bea",
       "Zed Cal Dot Eve Fay Gus", false},
      {kSpecial, kTenMan, "Ash Zed Bea", "Ash Zed", "Ash", "Zed"},
      // What no wizard writes.
      {kSingles, 1, "Ash Cal", "? Ash", "", ""},
      {kThreeWay, kTriangle, "Ash Bea Cal", "Bea ?", "Bea", "Ash Cal"},
      {kThreeWay, kTriangle, "Ash Bea Cal", "Bea -", "Bea", "Ash Cal"},
      {kTag, 1, "Ash - Cal Dot", "Ash Cal", "Ash -", "Cal Dot"},
      {10, 1, "Ash Cal", "Ash Cal", "", ""},
  };
  for (const auto& c : kMatches) {
    SCOPED_TRACE("style " + std::to_string(c.Style) + ", type " + std::to_string(c.Type));
    const Segment match = SegmentOf(world, {kMatch, c.Style, c.Type, c.People, c.Result});
    EXPECT_EQ(NamesOf(world, WinnersOf(match)), c.Winners);
    EXPECT_EQ(NamesOf(world, LosersOf(match)), c.Losers);
    EXPECT_EQ(NamesLoser(match), c.NamesLoser);
  }
}

TEST(PartnerOf, IsTheOtherOfTheSide) {
  const World world = People();
  const struct {
    int Style;
    const char *People, *Of, *Partner;
  } rows[] = {{kTag, kFour, "Ash", "Bea"},       {kTag, kFour, "Dot", "Cal"},
              {kThreeTeams, kSix, "Eve", "Fay"}, {kSingles, "Ash Cal", "Ash", ""},
              {kTag, kFour, "Gus", ""},          {kTag, "Ash - Cal Dot", "Ash", ""},
              {kTag, "Ash - Cal Dot", "-", ""}};
  for (const auto& row : rows) {
    const Segment match = SegmentOf(world, {kMatch, row.Style, 1, row.People, ""});
    EXPECT_EQ(WorkerName(world, PartnerOf(match, UidsOf(world, row.Of)[0])), row.Partner) << row.Of;
  }
}

TEST(PeopleOf, CountsTheKindsOwnPlacesAndRunInsBehindThem) {
  const World world = People();
  const struct {
    int Kind, Style, Type;
    int Places;
  } kRows[] = {{kMatch, kSingles, 1, 2},      {kMatch, kThreeWay, 1, 3},
               {kMatch, kFourTeams, 1, 8},    {kMatch, kSpecial, 1, 30},
               {kMatch, kSpecial, 3, 10},     {kMatch, kSpecial, 0, 0},
               {kMatch, kSpecial, 4, 0},      {kMatch, 0, 1, 0},
               {kInterview, kTeamTalk, 0, 4}, {kInterview, kManagedTeamTalk, 0, 5},
               {kInterview, 9, 0, 0},         {kAngle, kWalking, 0, 4},
               {kEmptySegment, 1, 1, 0}};
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::to_string(row.Kind) + " " + std::to_string(row.Style));
    Segment segment = SegmentOf(world, {row.Kind, row.Style, row.Type, "", ""});
    // A long match has stood in the row before.
    for (int i = 0; i < 30; ++i) segment.Worker[static_cast<std::size_t>(i)] = 100 + i;
    segment.Other3 = 200;
    segment.Winner = 201;
    EXPECT_EQ(std::ssize(PeopleOf(segment)), row.Places);
    for (int i = 0; i < 30; ++i) EXPECT_EQ(TakesPart(segment, 100 + i), i < row.Places) << i;
    EXPECT_TRUE(TakesPart(segment, 200));
    EXPECT_FALSE(TakesPart(segment, 201)) << "a winner who is not in the match";
    EXPECT_FALSE(TakesPart(segment, 0)) << "empty places are nobody";
    segment.Worker[0] = 0;
    EXPECT_EQ(std::ssize(PeopleOf(segment)), row.Places - (row.Places > 0 ? 1 : 0));
  }
}

TEST(FillPhrase, LeavesWhatItCannotRead) {
  const World world = People();
  const Segment match = SegmentOf(world, {kMatch, kSingles, 1, "Ash Cal", "Cal Ash"});
  EXPECT_EQ(FillPhrase(world, match, "{W} beats {L}"), "Cal beats Ash");
  EXPECT_EQ(FillPhrase(world, match, "{W} beats {L"), "Cal beats {L");
  EXPECT_EQ(FillPhrase(world, match, "{"), "{");
  EXPECT_EQ(FillPhrase(world, match, "{9}{}"), "<Error><Error>");
}

}  // namespace
}  // namespace grapplemont::test
