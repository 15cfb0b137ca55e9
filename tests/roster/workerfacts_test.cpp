#include "roster/workerfacts.h"

#include <gtest/gtest.h>

#include <set>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "support/smallworld.h"

// What a worker's page says.

namespace grapplemont::test {
namespace {

using Lines = std::vector<std::string>;
constexpr const char* kBram = "Bram Okafor";

/// The lines under a heading; none where the page has no such heading.
Lines Told(const World& world, std::string_view name, std::string_view heading) {
  const Worker& worker = *std::find_if(world.Workers().begin(), world.Workers().end(),
                                       [&](const Worker& w) { return w.Name == name; });
  for (const FactGroup& group : WorkerFacts(world, worker))
    if (group.Heading == heading) return group.Lines;
  return {};
}

TEST(WorkerFacts, TellEveryFieldInWords) {
  World world = SmallWorld()
                    .Promotion("CWA", kCult,
                               [](Promotion& p) {
                                 for (auto& split : p.Split) split = "Red";
                               })
                    .Worker(kBram,
                            [](Worker& w) {
                              w.Age = 34;
                              w.Weight = "L";
                              w.Over = 66;
                              w.OverFloor = 50;
                              w.Charisma = 71;
                              w.Brawl = 11;
                              w.Technical = 22;
                              w.Speed = 33;
                              w.Stiff = 44;
                              w.Sell = 55;
                              w.Disposition = "H";
                              w.LastTurn = kGameStart - std::chrono::days(15);
                              w.TurnPending = true;
                              w.SuperstarLook = true;
                              w.Speaks = false;
                              w.RetiringSoon = true;
                              w.HighSpots = true;
                              w.Finisher2TopRope = true;
                              w.CreativeControl = true;
                              w.Split = "Red";
                              w.Debuted = false;
                              w.Trainer = true;
                              w.Announcer = true;
                              w.Booker = true;
                              w.Condition = 90;
                              w.Status = "Sus";
                              w.StatusMonths = 2;
                              w.Morale = 19;
                              w.Loyalty = 20;
                              w.Attitude = 79;
                              w.Behaviour = 100;
                            })
                    .Game("CWA");
  EXPECT_EQ(
      Told(world, kBram, kBram),
      Lines({"A man of 34, born in June, a lightweight.", "Known as Okafor for short.",
             HomeLine(Named(world.Workers(), kBram)), "Heel. Over 66, charisma 71.",
             "Turned 2 weeks ago.", "A turn is being prepared.", "Looks like a superstar.",
             "Cannot do interviews.",
             "The fans will always remember: a fall of the promotion never takes Over under 50.",
             "Has announced to retire soon."}));
  EXPECT_EQ(
      Told(world, kBram, "Contract"),
      Lines({"CWA Wrestling: Midcard.", "Written contract for 12 months, at $10,000 per month.",
             "A clause gives creative control.", "Split: Red.",
             "Has not been seen on the shows yet."}));
  EXPECT_EQ(Told(world, kBram, "In the ring"),
            Lines({"Brawl 11, Technical 22, Speed 33.", "Stiffness 44, selling 55.",
                   "Takes the risk of high spots.", "Finisher: Backbreaker (Impact).",
                   "Second finisher: Clothesline (Top Rope).",
                   "Condition 90%. Suspended for 2 months."}));
  EXPECT_EQ(Told(world, kBram, "Character"),
            Lines({"Wants to be anywhere but here.", "Thinks little of you.", "Easy to work with.",
                   "A model of good behaviour."}));
  EXPECT_EQ(Told(world, kBram, "Beside the ring"),
            Lines({"Able to train others.", "Able to announce.", "Able to book."}));
}

TEST(HomeTowns, AreTheirOwnForEverybody) {
  World world = SmallWorld().Promotion("CWA").Crew(40).Game("CWA");
  std::set<std::string> homes;
  for (const Worker& worker : world.Workers()) homes.insert(HomeLine(worker));
  EXPECT_GE(homes.size(), 20u);
}

TEST(WorkerFacts, TellOfFreeAgents) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .OnTheMarket()
                    .Worker("Dot Hale", [](Worker& w) { w.Gender = false, w.Diva = true; })
                    .Game("CWA");
  EXPECT_EQ(Told(world, "Dot Hale", "Contract"),
            Lines({"Works for nobody. Last known as Midcard.", "Last earned $10,000 a month."}));
  EXPECT_EQ(Told(world, "Dot Hale", "Dot Hale").at(0),
            "A woman of 28, born in June, a heavyweight.");
  EXPECT_EQ(Told(world, "Dot Hale", "Dot Hale").at(5), "Has sex appeal.");
  for (const char* heading : {"Titles", "Company", "Feuds", "Beside the ring"})
    EXPECT_TRUE(Told(world, "Dot Hale", heading).empty()) << heading;
}

TEST(WorkerFacts, TellOfTies) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker(kBram)
                    .Worker("Ilya Marsh")
                    .Worker("Sir Reginald", kManager, 40, [](Worker& w) { w.Manager = 0; })
                    .Worker("Judge Hale", kNonWrestler, 40)
                    .Team("Law and Order", kBram, "Ilya Marsh",
                          [](Team& t) { t.Finisher = "The Verdict", t.Experience = 31; })
                    .Stable("The Firm", {kBram})
                    .Network("Nine")
                    .Show("Friday Fire", "Friday", "Nine")
                    .Game("CWA")
                    .Feud(kBram, "Ilya Marsh", [](Feud& f) { f.Heat = 57; });
  Named(world.Workers(), kBram).Manager = Named(world.Workers(), "Sir Reginald").Uid;
  const Worker& judge = Named(world.Workers(), "Judge Hale");
  world.Player().Commissioner = judge.Uid;
  world.Shows()[1].ColourIsWorker = true;
  world.Shows()[1].Colour = judge.Uid;

  EXPECT_EQ(Told(world, kBram, "Company"),
            Lines({"Member of The Firm.",
                   "Law and Order with Ilya Marsh, experience 31, finisher The Verdict.",
                   "Managed by Sir Reginald."}));
  EXPECT_EQ(Told(world, "Sir Reginald", "Company"), Lines({"Manages Bram Okafor."}));
  EXPECT_EQ(Told(world, "Judge Hale", "Beside the ring"),
            Lines({"Commissioner of CWA Wrestling.", "Colour commentator of Friday Fire."}));
  EXPECT_EQ(Told(world, "Ilya Marsh", "Feuds"), Lines({"Bram Okafor vs Ilya Marsh, heat 57."}));
}

TEST(WorkerFacts, TellOfTitlesHeldAndReignsThatWere) {
  const Day won{std::chrono::year{2025} / 5 / 4}, lost{std::chrono::year{2025} / 9 / 1};
  const auto past = [&](const char* holder, Day from, Day to) {
    return [=](Title& title) {
      title.Reigns[1].Holder = holder;
      title.Reigns[1].Won = from;
      title.Reigns[1].Lost = to;
    };
  };
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker(kBram)
                    .Worker("Ilya Marsh")
                    .Worker("Cal Drift")
                    .Team("Law and Order", kBram, "Ilya Marsh")
                    .Title("CWA Crown", kBram, {}, past("Cal Drift", won, lost))
                    .Title("CWA Tag", kBram, "Ilya Marsh", past("Drift \\ Marsh", won, lost))
                    .Title("CWA Cup", {}, {}, past(kBram, kNoTitleDate, lost))
                    .Game("CWA");
  Named(world.Titles(), "CWA Crown").Reigns[0].Won = lost;
  Named(world.Titles(), "CWA Tag").Reigns[0].Won = kNoTitleDate;

  EXPECT_EQ(
      Told(world, kBram, "Titles"),
      Lines({"Holds the CWA Crown.", "Holds the CWA Tag.", "CWA Crown, since 01 September 2025.",
             "CWA Tag as Law and Order, to this day.", "CWA Cup, until 01 September 2025."}));
  EXPECT_EQ(Told(world, "Cal Drift", "Titles"),
            Lines({"CWA Crown, 04 May 2025 to 01 September 2025.",
                   "CWA Tag as Drift \\ Marsh, 04 May 2025 to 01 September 2025."}));

  // The present reign goes by who holds the Title; the past knows them by their former name.
  Named(world.Workers(), kBram).Name = "Big Bram";
  EXPECT_EQ(Told(world, "Big Bram", "Titles"), Lines({"Holds the CWA Crown.", "Holds the CWA Tag.",
                                                      "CWA Crown, since 01 September 2025.",
                                                      "CWA Tag as Law and Order, to this day."}));
}

TEST(Potential, IsToldByWhoTeachesThePlayersPeople) {
  constexpr struct {
    int Position, Over, Potential;
    const char* Words;
  } kRows[] = {{kMidcard, 40, 90, ""},
               {7, 50, 50, "Ox McGinty thinks that Okafor has learned what can be learned here."},
               {83, 50, 60, "Ox McGinty thinks that Okafor has a little left to learn."},
               {83, 50, 75, "Ox McGinty thinks that Okafor has room to grow."},
               {83, 50, 76, "Ox McGinty thinks that Okafor could go very far."},
               {75, 50, 76, "Coach Choi thinks that Okafor could go very far."}};
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Staff("Ox McGinty", kRoadAgent)
                    .Staff("Coach Choi", kTrainer)
                    .Worker(kBram)
                    .Promotion("NEW")
                    .Worker("Rival Ray", 83, 40)
                    .Game("CWA");
  world.Player().DevBooker = Named(world.AllStaff(), "Ox McGinty").Uid;
  world.Player().HeadTrainer = Named(world.AllStaff(), "Coach Choi").Uid;
  const auto thought = [&](std::string_view name) {
    for (const std::string& line : Told(world, name, name))
      if (line.find(" thinks that ") != std::string::npos) return line;
    return std::string();
  };
  Worker& bram = Named(world.Workers(), kBram);
  for (const auto& row : kRows) {
    bram.Position = row.Position;
    bram.Over = row.Over;
    bram.Potential = row.Potential;
    EXPECT_EQ(thought(kBram), row.Words);
  }
  EXPECT_EQ(thought("Rival Ray"), "");
  world.Player().HeadTrainer = 0;
  EXPECT_EQ(thought(kBram), "") << "nobody is there to tell";
}

TEST(WorkerFacts, TellOfMatchesReignsAndAwardsOfThePast) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker(kBram)
                    .Worker("Cal Drift")
                    .Title("CWA Crown")
                    .Game("CWA");
  const int bram = Named(world.Workers(), kBram).Uid, cal = Named(world.Workers(), "Cal Drift").Uid;
  const auto fight = [&](int day, int winners, int first, int second, const char* title) {
    HeldMatch match;
    match.On = kGameStart + std::chrono::days{day};
    match.Rating = 70 + day;
    match.Winners = winners;
    match.Title = title;
    match.Worker[0] = first;
    match.Worker[1] = second;
    match.Won = WorkerName(world, first);
    match.Lost = WorkerName(world, second);
    world.Bouts().Append(match);
  };
  fight(0, 1, bram, cal, "CWA Crown");
  fight(1, 0, bram, cal, "None");
  fight(2, 0, cal, bram, "None");
  fight(3, 1, cal, bram, "None");
  MatchTally tally;
  tally.Promotion = world.PlayerUid();
  tally.Worker = bram;
  tally.Won = 12;
  tally.Lost = 5;
  tally.Drawn = 3;
  tally.ForTitles = 2;
  tally.Ratings = 1239;
  world.Tallies().Append(tally);
  tally.Promotion = 77;
  tally.ForTitles = 0;
  world.Tallies().Append(tally);
  TitleReign reign;
  reign.Title = "CWA Crown";
  reign.Worker = bram;
  reign.Holder = kBram;
  reign.From = kGameStart - std::chrono::days{10};
  reign.Until = kGameStart - std::chrono::days{1};
  reign.Defences = 1;
  reign.End = kReignLost;
  world.Reigns().Append(reign);
  reign.Partner = cal;
  reign.Holder = "The Docks";
  reign.From = reign.Until = kNoTitleDate;
  reign.Defences = kNoEnd;
  reign.End = kReignLasts;
  world.Reigns().Append(reign);
  YearAward award;
  award.On = kGameStart;
  award.Kind = kTeamOfTheYear;
  award.Partner = bram;
  world.Awards().Append(award);

  EXPECT_EQ(Told(world, kBram, "Matches"),
            Lines({"CWA: 12 won, 5 lost, 3 drawn, 2 for a Title. Rated 61% on average.",
                   "Elsewhere: 12 won, 5 lost, 3 drawn. Rated 61% on average."}));
  EXPECT_EQ(Told(world, kBram, "Last matches"),
            Lines({"04/03/26: lost to Cal Drift, 73%.", "03/03/26: drew with Cal Drift, 72%.",
                   "02/03/26: drew with Cal Drift, 71%.",
                   "01/03/26: beat Cal Drift for the CWA Crown, 70%."}));
  EXPECT_EQ(Told(world, kBram, "Titles"),
            Lines({"CWA Crown as The Docks, to this day.",
                   "CWA Crown, 19 February 2026 to 28 February 2026 (9 days, 1 defence)."}));
  EXPECT_EQ(Told(world, kBram, "Awards"), Lines({"Tag Team of the Year 2026."}));
  EXPECT_EQ(Told(world, "Cal Drift", "Matches"), Lines());
}

}  // namespace
}  // namespace grapplemont::test
