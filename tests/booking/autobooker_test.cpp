#include "autocards.h"

#include <gtest/gtest.h>

#include <set>

#include "booking/auto/autoplan.h"

namespace grapplemont::test {
namespace {

constexpr int kTv = 8, kBigTv = 11;
constexpr std::uint64_t kSeeds = 20;

/// Runs the check on as many cards, each with a seed of its own.
template <class Check>
void OnCards(World& world, bool isEvent, int rows, Check check) {
  for (std::uint64_t seed = 1; seed <= kSeeds; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    const AutoCard card = BookedBy(world, isEvent, rows, seed);
    EXPECT_EQ("", FaultsOf(world, card, isEvent));
    check(card);
  }
}

int Uid(const World& world, std::string_view name) {
  return Named(world.Workers(), name).Uid;
}

TEST(AutoBooker, FillsEverySheetWithAMixAndLacksNothing) {
  struct {
    bool IsEvent;
    int Rows, Matches, Talks;
  } const kSheets[] = {
      {false, 11, 6, 5}, {false, 8, 5, 3}, {false, 6, 4, 2}, {false, 5, 3, 2}, {true, 9, 7, 2}};
  World world = House(40).Game("CWA");
  for (const auto& sheet : kSheets)
    OnCards(world, sheet.IsEvent, sheet.Rows, [&](const AutoCard& card) {
      ASSERT_EQ(static_cast<std::size_t>(sheet.Rows), card.Rows.size());
      EXPECT_EQ(sheet.Matches, CountKind(card, kMatch));
      EXPECT_EQ(sheet.Talks, CountKind(card, kInterview) + CountKind(card, kAngle));
      EXPECT_TRUE(card.Missing.empty());
    });
}

TEST(AutoBooker, TopOfTheCardComesLast) {
  World world = House(40).Game("CWA");
  OnCards(world, false, kBigTv, [&](const AutoCard& card) {
    ASSERT_EQ(kMatch, card.Rows.back().Kind);
    int before = 0;
    for (const Segment& row : card.Rows) {
      if (row.Kind != kMatch) continue;
      const int crowd = ExpectedCrowd(world, row);
      EXPECT_GE(crowd, before) << DescribeSegment(world, row);
      before = crowd;
    }
  });
}

TEST(AutoBooker, SameSeedGivesTheSameCardAndChangesNothing) {
  World world = House(30).Title("Crown", "Hand 1").Game("CWA").Feud("Hand 3", "Hand 4");
  const World before = CopyOf(world);
  const auto describe = [&](const AutoCard& card) {
    std::string text;
    for (const Segment& row : card.Rows) text += DescribeSegment(world, row) + "\n";
    return text;
  };
  const std::string first = describe(BookedBy(world, true, kEventRows, 7));
  EXPECT_EQ(first, describe(BookedBy(world, true, kEventRows, 7)));
  EXPECT_NE(first, describe(BookedBy(world, true, kEventRows, 8)));
  ExpectSame(world, before);
}

TEST(AutoBooker, BooksFacesAgainstHeels) {
  World world = House(40).Game("CWA");
  int singles = 0, contrasts = 0;
  OnCards(world, false, kTv, [&](const AutoCard& card) {
    for (const Segment& row : card.Rows) {
      if (row.Kind != kMatch || row.Style != kSingles) continue;
      ++singles;
      contrasts += !(world.FindWorker(row.Worker[0])->Disposition ==
                     world.FindWorker(row.Worker[1])->Disposition);
    }
  });
  EXPECT_GT(contrasts * 10, singles * 9);
}

TEST(AutoBooker, NeverMixesMenAndWomenAndKeepsTitlesToThoseTheyAreFor) {
  World world = House(24)
                    .Title("Feather", "Hand 9", {}, [](Title& t) { t.Lightweight = true; })
                    .Title("Rose", "Hand 2", {}, [](Title& t) { t.Woman = true; })
                    .Game("CWA");
  for (Worker& worker : world.Workers()) {
    if (worker.Uid % 3 == 2) worker.Gender = false;
    if (worker.Uid % 3 == 0) worker.Weight = "L";
  }
  OnCards(world, true, kEventRows, [&](const AutoCard& card) {
    for (const Segment& row : card.Rows) {
      if (row.Kind != kMatch) continue;
      for (const int uid : PeopleOf(row))
        EXPECT_EQ(bool(world.FindWorker(uid)->Gender),
                  bool(world.FindWorker(row.Worker[0])->Gender));
    }
    const Segment* light = TitleMatch(card, "Feather");
    ASSERT_TRUE(light);
    for (const int uid : PeopleOf(*light)) EXPECT_EQ("L", world.FindWorker(uid)->Weight.Str());
    EXPECT_TRUE(TitleMatch(card, "Rose"));
  });
}

TEST(AutoBooker, LetsTheTiredRest) {
  World world = House(30).Game("CWA");
  const std::set<int> tired = {Uid(world, "Hand 1"), Uid(world, "Hand 2"), Uid(world, "Hand 7")};
  for (const int uid : tired) world.FindWorker(uid)->Condition = 25;
  for (const bool isEvent : {false, true})
    OnCards(world, isEvent, isEvent ? kEventRows : kTv, [&](const AutoCard& card) {
      for (const int uid : tired)
        EXPECT_EQ(0, Count(card, [&](const Segment& row) {
                    return row.Kind == kMatch && TakesPart(row, uid);
                  }));
    });
}

TEST(AutoBooker, SendsOutTheTiredWhenNobodyElseIsThere) {
  World world = House(8).Game("CWA");
  for (Worker& worker : world.Workers()) worker.Condition = 20;
  OnCards(world, false, kTv, [&](const AutoCard& card) {
    EXPECT_GE(CountKind(card, kMatch), 3);
    EXPECT_TRUE(card.Missing.empty());
  });
}

TEST(AutoBooker, LetsTheRisingBeatTheFading) {
  World world = House(2).Game("CWA");
  Worker &young = world.Workers()[1], &old = world.Workers()[2];
  young.Over = old.Over = 50;
  young.Potential = 95;
  young.Age = 23;
  old.Potential = 50;
  old.Age = 44;
  OnCards(world, false, 5, [&](const AutoCard& card) {
    const Segment* match = MatchOf(card, young.Uid, old.Uid);
    ASSERT_TRUE(match);
    EXPECT_EQ(young.Uid, match->Winner);
  });
}

TEST(AutoBooker, SaysWhatASmallRosterLacks) {
  using Lines = std::vector<std::string>;
  struct {
    int Wrestlers;
    bool IsEvent;
    int Rows;
    Lines Missing;
  } const kRosters[] = {
      {0,
       false,
       5,
       {"Two more matches: the roster has nobody left who is fit.",
        "Three more segments: nobody is left who can speak, and angles need more writers."}},
      {2,
       false,
       5,
       {"One more match: the roster has nobody left who is fit.",
        "Two more segments: nobody is left who can speak, and angles need more writers."}},
      {4,
       false,
       5,
       {"One more segment: nobody is left who can speak, and angles need more writers."}},
      {9, false, 8, {}},
      {12, true, 9, {}},
  };
  for (const auto& roster : kRosters) {
    World world = House(roster.Wrestlers).Game("CWA");
    DismissWriters(world);
    const AutoCard card = BookedBy(world, roster.IsEvent, roster.Rows, 1);
    EXPECT_EQ(roster.Missing, card.Missing) << roster.Wrestlers;
    EXPECT_EQ("", FaultsOf(world, card, roster.IsEvent));
  }
}

TEST(AutoBooker, FillsAHalfBookedSheetAroundWhatIsThere) {
  World world = House(24).Title("Crown", "Hand 1").Title("Belt", "Hand 5").Game("CWA");
  const int champion = Uid(world, "Hand 1"), rival = Uid(world, "Hand 2");
  for (int row = 0; row < kEventRows; ++row) world.Segments().Append(EmptySegment());
  Segment& match = world.Segments()[9];
  match.Kind = kMatch;
  match.Style = kSingles;
  match.MatchType = kPlainSingles;
  match.Worker[0] = match.Winner = champion;
  match.Worker[1] = match.Loser = rival;
  match.Finish = kClean;
  match.Aftermath = after1::kNothing;
  match.Purpose = purpose1::kGoodMatch;
  match.TitleName = "Crown";
  Segment& talk = world.Segments()[4];
  talk.Kind = kInterview;
  talk.Style = kSingleTalk;
  talk.Worker[0] = champion;
  talk.Worker[1] = Uid(world, "Hand 4");
  talk.Purpose = kVerbalAttack;
  OnCards(world, true, kEventRows, [&](const AutoCard& card) {
    EXPECT_EQ("Hand 1 over Hand 2", DescribeSegment(world, card.Rows[8]));
    EXPECT_EQ(talk.Worker[1], card.Rows[3].Worker[1]);
    EXPECT_EQ(2, PartsOf(card, champion)) << "he is on the card twice already";
    EXPECT_EQ(1, Count(card, [](const Segment& row) { return row.TitleName == "Crown"; }));
    EXPECT_TRUE(TitleMatch(card, "Belt"));
    EXPECT_EQ(7, CountKind(card, kMatch));
    EXPECT_EQ(0, CountKind(card, kEmptySegment));
  });
}

TEST(AutoBooker, MissesARowWhenTalkHasTakenThem) {
  World world = House(20).Game("CWA");
  for (int row = 1; row <= 5; ++row) {
    Segment talk = EmptySegment();
    if (row > 1) {
      talk.Kind = kInterview;
      talk.Style = kSingleTalk;
      talk.Worker[0] = Uid(world, "Hand " + std::to_string(row));
      talk.Purpose = kSelfPromotion;
    }
    world.Segments().Append(talk);
  }
  const AutoCard card = BookedBy(world, false, 5, 3);
  EXPECT_EQ(kMatch, card.Rows[0].Kind);
  EXPECT_EQ(std::vector<std::string>{"One more match: no row is left."}, card.Missing);
}

TEST(AutoBooker, BooksMatchesOfThreeAndFourNowAndThen) {
  World world = House(40).Game("CWA");
  for (const bool isEvent : {false, true}) {
    std::set<std::pair<int, int>> booked;  // style and type
    int cards = 0;
    for (std::uint64_t seed = 1; seed <= 5 * kSeeds; ++seed) {
      const AutoCard card = BookedBy(world, isEvent, isEvent ? kEventRows : kTv, seed);
      EXPECT_EQ("", FaultsOf(world, card, isEvent));
      int crowds = 0;
      for (const Segment& row : card.Rows)
        if (row.Kind == kMatch && (row.Style == kThreeWay || row.Style == kFourWay)) {
          booked.emplace(row.Style, row.MatchType);
          ++crowds;
        }
      EXPECT_LE(crowds, 1);
      cards += crowds;
    }
    EXPECT_EQ(booked, (std::set<std::pair<int, int>>{
                          {kThreeWay, 1}, {kThreeWay, 2}, {kFourWay, 1}, {kFourWay, 2}}));
    EXPECT_LT(cards, isEvent ? 60 : 35) << "a treat, not a habit";
  }
}

TEST(AutoBooker, LeavesTheDarkMatchOutBeforeTheShowProperGoesShort) {
  World world = House(8).Game("CWA");
  OnCards(world, true, kEventRows, [&](const AutoCard& card) {
    EXPECT_TRUE(card.Missing.empty());
    const int dark = card.Rows[0].Kind == kMatch;
    EXPECT_GE(CountKind(card, kMatch) - dark, 4);
  });
}

}  // namespace
}  // namespace grapplemont::test
