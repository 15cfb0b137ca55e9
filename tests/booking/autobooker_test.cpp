#include "autocards.h"

#include "booking/auto/autoplan.h"
#include "records/angles.h"

namespace grapplemont::test {
namespace {

using Lines = std::vector<std::string>;
constexpr int kTv = 8;

int Uid(const World& world, std::string_view name) {
  return Named(world.Workers(), name).Uid;
}

int MatchesOf(const AutoCard& card, int uid) {
  return Count(card, [&](const Segment& row) { return row.Kind == kMatch && TakesPart(row, uid); });
}

TEST(AutoBooker, FillsEverySheetWithAMixAndTheTopLast) {
  struct {
    bool IsEvent;
    int Rows, Matches, Talks;
  } const kSheets[] = {
      {false, 11, 6, 5}, {false, 8, 5, 3}, {false, 6, 4, 2}, {false, 5, 3, 2}, {true, 9, 7, 2}};
  World world = House(40).Game("CWA");
  const World before = CopyOf(world);
  for (const auto& sheet : kSheets)
    CardsWith(world, sheet.IsEvent, sheet.Rows, [&](const AutoCard& card) {
      EXPECT_EQ(static_cast<std::size_t>(sheet.Rows), card.Rows.size());
      EXPECT_EQ(sheet.Matches, CountKind(card, kMatch));
      EXPECT_EQ(sheet.Talks, CountKind(card, kInterview) + CountKind(card, kAngle));
      EXPECT_TRUE(card.Missing.empty());
      int least = 0;
      for (const Segment& row : card.Rows) {
        if (row.Kind != kMatch || sheet.IsEvent) continue;
        const int crowd = ExpectedCrowd(world, row);
        EXPECT_GE(crowd, least) << DescribeSegment(world, row);
        least = crowd;
      }
      return true;
    });
  ExpectSame(world, before);
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
  CardsWith(world, true, kEventRows, [&](const AutoCard& card) {
    for (const Segment& row : card.Rows)
      for (const int uid : row.Kind == kMatch ? PeopleOf(row) : std::vector<int>())
        EXPECT_EQ(bool(world.FindWorker(uid)->Gender),
                  bool(world.FindWorker(row.Worker[0])->Gender));
    EXPECT_TRUE(TitleMatch(card, "Feather") && TitleMatch(card, "Rose"));
    return true;
  });
}

TEST(AutoBooker, FindsPairsForTagTitlesWhereTeamsAreLacking) {
  World world = House(20)
                    .Team("The Firsts", "Hand 1", "Hand 3")
                    .Title("Pillars", {}, {}, [](Title& t) { t.Singles = false; })
                    .Title("Roses", {}, {}, [](Title& t) { t.Singles = false, t.Woman = true; })
                    .Game("CWA");
  for (int hand = 11; hand <= 20; ++hand)
    Named(world.Workers(), "Hand " + std::to_string(hand)).Gender = false;
  CardsWith(world, true, kEventRows, [&](const AutoCard& card) {
    for (const bool women : {false, true}) {
      const Segment* match = TitleMatch(card, women ? "Roses" : "Pillars");
      EXPECT_TRUE(match && match->Style == kTag && match->Winner != 0);
      if (!match) continue;
      const auto who = [&](int place) -> const Worker& {
        return *world.FindWorker(match->Worker[static_cast<std::size_t>(place)]);
      };
      for (const int place : {0, 1, 2, 3}) EXPECT_EQ(women, !who(place).Gender);
      for (const int place : {0, 2}) EXPECT_EQ(who(place).Disposition, who(place + 1).Disposition);
    }
    return true;
  });
}

TEST(AutoBooker, LetsTheTiredRestWhereOthersAreThere) {
  World world = House(30).Game("CWA");
  Worker& tired = Named(world.Workers(), "Hand 1");
  tired.Condition = 25;
  for (const bool isEvent : {false, true})
    EXPECT_EQ(0, CardsWith(world, isEvent, isEvent ? kEventRows : kTv,
                           [&](const AutoCard& card) { return MatchesOf(card, tired.Uid) > 0; }));
  World small = House(8).Game("CWA");
  for (Worker& worker : small.Workers()) worker.Condition = 20;
  EXPECT_EQ(int(kSeeds), CardsWith(small, false, kTv,
                                   [&](const AutoCard& card) { return card.Missing.empty(); }));
}

TEST(AutoBooker, LetsTheRisingBeatTheFading) {
  World world = House(2).Game("CWA");
  Worker &young = world.Workers()[1], &old = world.Workers()[2];
  young.Over = old.Over = old.Potential = 50;
  young.Potential = 95;
  young.Age = 23;
  old.Age = 44;
  EXPECT_EQ(int(kSeeds), CardsWith(world, false, 5, [&](const AutoCard& card) {
              const Segment* match = MatchOf(card, young.Uid, old.Uid);
              return match && match->Winner == young.Uid;
            }));
}

TEST(AutoBooker, SaysWhatASmallRosterLacks) {
  const std::string kNobody = "the roster has nobody left who is fit.";
  const std::string kSilent = "nobody is left who can speak, and angles need more writers.";
  struct {
    int Wrestlers;
    bool IsEvent;
    int Rows;
    Lines Missing;
  } const kRosters[] = {
      {0, false, 5, {"Two more matches: " + kNobody, "Three more segments: " + kSilent}},
      {2, false, 5, {"One more match: " + kNobody, "Two more segments: " + kSilent}},
      {4, false, 5, {"One more segment: " + kSilent}},
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
  const int champion = Uid(world, "Hand 1");
  for (int row = 0; row < kEventRows; ++row) world.Segments().Append(EmptySegment());
  Segment& match = world.Segments()[9];
  match = NewSegment(kMatch, kSingles, {champion, Uid(world, "Hand 2")});
  match.MatchType = kPlainSingles;
  match.Winner = champion;
  match.Loser = match.Worker[1];
  match.Finish = kClean;
  match.Aftermath = after1::kNothing;
  match.Purpose = purpose1::kGoodMatch;
  match.TitleName = "Crown";
  Segment& talk = world.Segments()[4];
  talk = NewSegment(kInterview, kSingleTalk, {champion, Uid(world, "Hand 4")});
  talk.Purpose = kVerbalAttack;
  CardsWith(world, true, kEventRows, [&](const AutoCard& card) {
    EXPECT_EQ("Hand 1 over Hand 2", DescribeSegment(world, card.Rows[8]));
    EXPECT_EQ(talk.Worker[1], card.Rows[3].Worker[1]);
    EXPECT_EQ(2, PartsOf(card, champion)) << "they are on the card twice already";
    EXPECT_EQ(1, Count(card, [](const Segment& row) { return row.TitleName == "Crown"; }));
    EXPECT_TRUE(TitleMatch(card, "Belt"));
    EXPECT_EQ(7, CountKind(card, kMatch));
    EXPECT_EQ(0, CountKind(card, kEmptySegment));
    return true;
  });
}

TEST(AutoBooker, MissesARowWhenTalkHasTakenThem) {
  World world = House(20).Game("CWA");
  world.Segments().Append(EmptySegment());
  for (int hand = 2; hand <= 5; ++hand) {
    Segment talk =
        NewSegment(kInterview, kSingleTalk, {Uid(world, "Hand " + std::to_string(hand))});
    talk.Purpose = kSelfPromotion;
    world.Segments().Append(talk);
  }
  const AutoCard card = BookedBy(world, false, 5, 3);
  EXPECT_EQ(kMatch, card.Rows[0].Kind);
  EXPECT_EQ(Lines{"One more match: no row is left."}, card.Missing);
}

TEST(AutoBooker, LeavesTheDarkMatchOutBeforeTheShowProperGoesShort) {
  World world = House(8).Game("CWA");
  CardsWith(world, true, kEventRows, [&](const AutoCard& card) {
    EXPECT_TRUE(card.Missing.empty());
    EXPECT_GE(CountKind(card, kMatch) - (card.Rows[0].Kind == kMatch), 4);
    return true;
  });
}

TEST(AutoFeuds, EndAtAnEventOnceTheyHaveHadEnough) {
  struct {
    const char* Says;
    bool IsEvent;
    int CleanOne, DirtyTwo, DaysOld, Heat;
    bool Ends;
  } const kFeudsSoFar[] = {
      {"long", true, 7, 8, 100, 90, true},
      {"long, on a show", false, 7, 8, 100, 90, false},
      {"evens out after weeks", true, 4, 5, 60, 50, true},
      {"evens out, but young", true, 4, 5, 20, 50, false},
      {"evens out, but hot", true, 4, 5, 60, 70, false},
      {"nobody gains by it", true, 3, 5, 60, 50, false},
      {"barely begun", true, 1, 0, 10, 50, false},
      {"dragging on", true, 2, 3, 200, 50, true},
      {"dragging on, and filling the house", true, 2, 3, 200, 80, false},
  };
  for (const auto& feud : kFeudsSoFar) {
    World world =
        House(30).Title("Belt", "Hand 2").Game("CWA").Feud("Hand 1", "Hand 2", [&](Feud& record) {
          record.Clean1 = feud.CleanOne;
          record.Dirty2 = feud.DirtyTwo;
          record.Heat = feud.Heat;
          record.Started = kGameStart - std::chrono::days{feud.DaysOld};
        });
    const int rows = feud.IsEvent ? kEventRows : kTv;
    const int ended = CardsWith(world, feud.IsEvent, rows, [&](const AutoCard& card) {
      const Segment* match = MatchOf(card, Uid(world, "Hand 1"), Uid(world, "Hand 2"));
      const bool ends = match && match->Purpose == purpose1::kEndFeud;
      EXPECT_TRUE(!ends || match->TitleName == "Belt") << "of whoever holds one";
      return ends;
    });
    EXPECT_EQ(feud.Ends ? int(kSeeds) : 0, ended) << feud.Says;
  }
}

/// The first row with a match of two people of the talk; -1 for none.
int RowOfTheirMatch(const AutoCard& card, const Segment& talk) {
  const std::vector<int> people = EverybodyOf(talk);
  const auto match = std::ranges::find_if(card.Rows, [&](const Segment& row) {
    return row.Kind == kMatch &&
           std::ranges::count_if(people, [&](int uid) { return TakesPart(row, uid); }) > 1;
  });
  return match == card.Rows.end() ? -1 : static_cast<int>(match - card.Rows.begin());
}

TEST(AutoTalk, LiesBetweenTheMatchesAndHypesWhatIsToCome) {
  World world = House(40).Game("CWA");
  DismissWriters(world);
  int hyped = 0;
  for (const auto& [isEvent, rows] :
       {std::pair(false, 11), {false, 8}, {false, 6}, {false, 5}, {true, kEventRows}})
    CardsWith(world, isEvent, rows, [&](const AutoCard& card) {
      int row = 0;
      for (const Segment& talk : card.Rows) {
        ++row;
        if (talk.Kind != kInterview) continue;
        const bool isLast = row == std::ssize(card.Rows);
        EXPECT_TRUE(!isLast && card.Rows[static_cast<std::size_t>(row)].Kind == kMatch);
        if (talk.Purpose != kHypeMatch) continue;
        ++hyped;
        EXPECT_GE(RowOfTheirMatch(card, talk), row) << DescribeSegment(world, talk);
      }
      return true;
    });
  EXPECT_GT(hyped, 0);
}

TEST(AutoTalk, HypesAMatchThatIsDrafted) {
  World world = House(12).Game("CWA");
  DismissWriters(world);
  for (Worker& worker : world.Workers()) worker.Speaks = worker.Name == "Hand 1";
  const int star = Uid(world, "Hand 1"), other = Uid(world, "Hand 4");
  world.FindWorker(star)->Condition = world.FindWorker(other)->Condition = 0;  // not tonight
  const auto hypes = [&](const AutoCard& card) {
    return Count(card, [&](const Segment& row) {
             return row.Kind == kInterview && row.Purpose == kHypeMatch && row.Worker[0] == star &&
                    TakesPart(row, other);
           }) > 0;
  };
  EXPECT_EQ(0, CardsWith(world, false, 5, hypes));
  KeptRow row{};
  row.Booked = NewSegment(kMatch, kSingles, {other, star});
  row.Show = "Spring";
  row.IsEvent = row.IsDraft = true;
  row.Row = 9;
  row.On = world.Today() + std::chrono::days{20};
  world.KeptRows().Append(row);
  EXPECT_EQ(int(kSeeds), CardsWith(world, false, 5, hypes));
}

TEST(AutoTalk, NeedsWritersForAnglesAndBringsManagersAlong) {
  World world = House(20).Worker("Mr. Silk", kManager, 60).Game("CWA");
  for (Worker& worker : world.Workers())
    if (worker.Position != kManager) worker.Manager = Uid(world, "Mr. Silk");
  const auto angles = [](const AutoCard& card) { return CountKind(card, kAngle) > 0; };
  EXPECT_GT(CardsWith(world, false, kTv, angles), 0);
  DismissWriters(world);
  EXPECT_EQ(0, CardsWith(world, false, kTv, angles));
  EXPECT_GT(CardsWith(world, false, kTv,
                      [&](const AutoCard& card) {
                        return Count(card, [&](const Segment& row) {
                                 return row.Kind == kInterview && row.Style == kManagedTalk;
                               }) > 0;
                      }),
            int(kSeeds) / 2);
}

TEST(AutoChanges, AWaitingTurnIsMade) {
  for (const bool speaks : {true, false}) {
    World world = House(24).Worker("Mr. Silk", kManager, 60).Game("CWA");
    Worker& turner = Named(world.Workers(), "Hand 4");
    turner.Manager = Uid(world, "Mr. Silk");  // who must not turn in their place
    for (const char* name : {"Hand 4", "Mr. Silk"}) Named(world.Workers(), name).TurnPending = true;
    turner.Speaks = speaks;
    if (!speaks) DismissWriters(world);
    const auto turns = [&](const AutoCard& card) {
      return Count(card, [&](const Segment& row) {
               const bool match = row.Kind == kMatch && row.Purpose == purpose1::kTurnLoser &&
                                  row.Loser == turner.Uid;
               const bool talk = (row.Kind == kInterview && row.Purpose == kTalkTurn) ||
                                 (row.Kind == kAngle &&
                                  (row.Style == kFaceTurnAngle || row.Style == kBetterEnemies));
               return match || (speaks && talk && row.Worker[0] == turner.Uid);
             }) == 1;
    };
    EXPECT_EQ(int(kSeeds), CardsWith(world, false, kTv, turns)) << speaks;
    turner.LastTurn = kGameStart - std::chrono::days{100};
    EXPECT_EQ(0, CardsWith(world, false, kTv, turns)) << "the fans would not have it yet";
  }
}

TEST(AutoChanges, NewcomersAreIntroducedOneAShow) {
  for (const bool writers : {true, false}) {
    World world = House(24).Game("CWA");
    if (!writers) DismissWriters(world);
    for (const char* name : {"Hand 9", "Hand 10"}) Named(world.Workers(), name).Debuted = false;
    EXPECT_EQ(int(kSeeds), CardsWith(world, false, kTv, [&](const AutoCard& card) {
                const int debuts = (PartsOf(card, Uid(world, "Hand 9")) > 0) +
                                   (PartsOf(card, Uid(world, "Hand 10")) > 0);
                const int told = Count(card, [](const Segment& row) {
                  return (row.Kind == kAngle && (row.Style == 24 || row.Style == 25)) ||
                         (row.Kind == kMatch && (row.Purpose == purpose1::kDebutFirst ||
                                                 row.Purpose == purpose1::kDebutSecond));
                });
                return debuts == 1 && told == 1;
              }));
  }
}

}  // namespace
}  // namespace grapplemont::test
