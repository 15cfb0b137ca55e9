#include "roster/postings.h"

#include <gtest/gtest.h>

#include "records/severing.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

constexpr const char* kBram = "Bram Okafor";

/// A promotion with a territory, a camp and two splits.
SmallWorld House() {
  SmallWorld small;
  small
      .Promotion(
          "CWA", kCult,
          [](Promotion& p) {
            p.DevName = "The Yard";
            p.CampName = "The Barn";
            p.Split = {Text<10>("Red"), Text<10>("None"), Text<10>("None"), Text<10>("Blue")};
          })
      .Worker(kBram, kMidcard, 64)
      .Worker("Cal Drift", kMidcard, 62);
  return small;
}

TEST(MovePosition, TouchesMoraleByTheGapOfPlaces) {
  constexpr struct {
    int From, To, Morale;
  } kRows[] = {{1, 2, 0},   {1, 3, -10}, {1, 6, -10}, {2, 1, 0},  {3, 1, 5},  {6, 1, 5},
               {4, 6, -10}, {5, 6, 0},   {6, 5, 0},   {5, 3, 5},  {1, 25, 0}, {1, 50, 0},
               {25, 6, 0},  {50, 1, 0},  {50, 25, 0}, {6, 50, 0}, {3, 2, 0},  {3, 5, -10}};
  World world = House().Game("CWA");
  Worker& bram = Named(world.Workers(), kBram);
  for (const auto& row : kRows) {
    SCOPED_TRACE(std::to_string(row.From) + " to " + std::to_string(row.To));
    bram.Position = row.From;
    bram.Morale = 50;
    EXPECT_EQ(WhyNotMove(world, bram, row.To), "");
    MovePosition(world, bram, row.To);
    EXPECT_EQ(bram.Position, row.To);
    EXPECT_EQ(bram.Morale, 50 + row.Morale);
  }
  bram.Position = kMainEvent;
  bram.Morale = 4;
  MovePosition(world, bram, kJobber);
  EXPECT_EQ(bram.Morale, 0);
}

TEST(MovePosition, EndsWhatThePlaceBroughtAlong) {
  World world = House()
                    .Worker("Sir Reginald", kManager, 40)
                    .Worker("Judge Marsh", kNonWrestler, 40)
                    .Game("CWA");
  Worker& bram = Named(world.Workers(), kBram);
  Worker& reginald = Named(world.Workers(), "Sir Reginald");
  Worker& judge = Named(world.Workers(), "Judge Marsh");
  world.Player().Commissioner = judge.Uid;
  bram.Manager = reginald.Uid;
  Named(world.Workers(), "Cal Drift").Manager = reginald.Uid;

  EXPECT_EQ(EndedByMove(world, bram, kManager), "Bram Okafor will have no manager.");
  MovePosition(world, bram, kManager);
  EXPECT_EQ(bram.Manager, 0);

  EXPECT_EQ(EndedByMove(world, reginald, kJobber), "The clients lose their manager.");
  MovePosition(world, reginald, kJobber);
  EXPECT_EQ(Named(world.Workers(), "Cal Drift").Manager, 0);
  EXPECT_EQ(EndedByMove(world, reginald, kOpener), "");

  EXPECT_EQ(EndedByMove(world, judge, kManager), "You lose your Commissioner.");
  MovePosition(world, judge, kManager);
  EXPECT_EQ(world.Player().Commissioner, 0);
  ExpectSound(world);
}

TEST(MovePosition, IsRefusedWithItsReason) {
  World world = House().Title("CWA Crown", kBram).Promotion("NEW").Worker("Rival Ray").Game("CWA");
  Worker& bram = Named(world.Workers(), kBram);
  Worker& cal = Named(world.Workers(), "Cal Drift");
  EXPECT_EQ(WhyNotMove(world, bram, kMidcard), "Bram Okafor has this position already.");
  EXPECT_EQ(WhyNotMove(world, bram, kManager),
            "Bram Okafor holds the CWA Crown and has to lose it first.");
  EXPECT_EQ(WhyNotMove(world, bram, kJobber), "");
  for (const int position : {0, 7, 75, 83})
    EXPECT_EQ(WhyNotMove(world, cal, position), "There is no such position.") << position;
  EXPECT_EQ(WhyNotMove(world, Named(world.Workers(), "Rival Ray"), kJobber),
            "Rival Ray does not work for you.");
  for (const int away : {7, 75, 83}) {
    cal.Position = away;
    EXPECT_EQ(WhyNotMove(world, cal, kJobber), "Cal Drift is away and has to be recalled first.");
  }
}

TEST(Development, KeepsThePlaceOfWhoIsSentThere) {
  World world = House().Game("CWA");
  Worker& bram = Named(world.Workers(), kBram);
  for (int place = kMainEvent; place <= kJobber; ++place) {
    bram.Position = place;
    ASSERT_EQ(WhyNotToDevelopment(world, bram), "");
    SendToDevelopment(bram);
    EXPECT_EQ(bram.Position, 80 + place);
    EXPECT_TRUE(IsInDevelopment(bram));
    EXPECT_EQ(WhyNotToDevelopment(world, bram),
              "Bram Okafor is in the development territory already.");
    ASSERT_EQ(WhyNotRecall(world, bram), "");
    EndPosting(bram);
    EXPECT_EQ(bram.Position, place);
    EXPECT_EQ(WhyNotRecall(world, bram), "Bram Okafor has not been sent away.");
  }
}

TEST(Postings, EarnAPlaceByOverWhereNoneWaits) {
  constexpr struct {
    int Over, Position;
  } kRows[] = {{29, 6}, {30, 5}, {50, 5}, {51, 4}, {70, 4}, {71, 3}, {80, 3}, {81, 2}};
  World world = House().Game("CWA");
  Worker& bram = Named(world.Workers(), kBram);
  for (const auto& row : kRows)
    for (const int posting : {kDevelopmentDeal, kTrainingCamp}) {
      bram.Over = row.Over;
      bram.Position = posting;
      ASSERT_EQ(WhyNotRecall(world, bram), "");
      EndPosting(bram);
      EXPECT_EQ(bram.Position, row.Position) << row.Over << " out of " << posting;
    }
}

TEST(Camp, TakesTheYoungWhoCannotDoMuchYet) {
  constexpr struct {
    int Age, Brawl, Technical, Speed;
    const char* Why;
  } kRows[] = {
      {24, 60, 60, 60, ""},
      {25, 60, 60, 60, "Bram Okafor is over 24 and too old for a trainee."},
      {24, 61, 0, 0, "Bram Okafor has learned all that a camp can teach."},
      {24, 0, 61, 0, "Bram Okafor has learned all that a camp can teach."},
      {24, 0, 0, 61, "Bram Okafor has learned all that a camp can teach."},
  };
  World world = House().Game("CWA");
  Worker& bram = Named(world.Workers(), kBram);
  for (const auto& row : kRows) {
    bram.Age = row.Age;
    bram.Brawl = row.Brawl;
    bram.Technical = row.Technical;
    bram.Speed = row.Speed;
    EXPECT_EQ(WhyNotToCamp(world, bram), row.Why);
  }
  bram.Speed = 10;
  SendToCamp(bram);
  EXPECT_EQ(bram.Position, kTrainingCamp);
  EXPECT_EQ(WhyNotToDevelopment(world, bram), "Bram Okafor is in the training camp already.");
}

TEST(Postings, NeedAPlaceToGoTo) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker(kBram, kMidcard, 30, [](Worker& w) { w.Age = 20; })
                    .Game("CWA");
  const Worker& bram = Named(world.Workers(), kBram);
  EXPECT_EQ(WhyNotToDevelopment(world, bram), "You do not have a development territory set up!");
  EXPECT_EQ(WhyNotToCamp(world, bram), "You do not have a training camp set up!");
}

TEST(Postings, KeepWhomTheShowsNeed) {
  constexpr struct {
    const char *Name, *Why;
  } kRows[] = {
      {"Champ", "Champ holds the CWA Crown and has to lose it first."},
      {"Partner", "Partner holds the CWA Tag and has to lose it first."},
      {"Foe", "Foe is in a feud, which has to end first."},
      {"Sulky", "Sulky sits out the contract and goes nowhere."},
      {"Boss", "Only wrestlers can be sent there."},
      {"Voice", "Only wrestlers can be sent there."},
      {"Rival Ray", "Rival Ray does not work for you."},
      {"Free Fred", "Free Fred does not work for you."},
      {"Hurt", ""},
  };
  World world = House()
                    .Worker("Champ")
                    .Worker("Partner")
                    .Worker("Foe")
                    .Worker("Sulky", [](Worker& w) { w.Status = "Hom"; })
                    .Worker("Boss", kManager, 40)
                    .Worker("Voice", kNonWrestler, 40)
                    .Worker("Hurt",
                            [](Worker& w) {
                              w.Status = "Inj";
                              w.StatusMonths = 2;
                              w.InjuryName = "Broken Leg";
                            })
                    .Title("CWA Crown", "Champ")
                    .Title("CWA Tag", kBram, "Partner")
                    .Promotion("NEW")
                    .Worker("Rival Ray")
                    .OnTheMarket()
                    .Worker("Free Fred")
                    .Game("CWA")
                    .Feud("Foe", "Cal Drift");
  for (Worker& worker : world.Workers()) {
    worker.Age = 20;
    worker.Brawl = worker.Technical = worker.Speed = 20;
  }
  for (const auto& row : kRows) {
    const Worker& worker = Named(world.Workers(), row.Name);
    EXPECT_EQ(WhyNotToDevelopment(world, worker), row.Why);
    EXPECT_EQ(WhyNotToCamp(world, worker), row.Why);
  }
}

TEST(Splits, AreThoseOfThePromotion) {
  World world = House().Game("CWA");
  Worker& bram = Named(world.Workers(), kBram);
  EXPECT_EQ(WhyNotSplit(world, bram, "Green"), "Your promotion has no such split.");
  EXPECT_EQ(WhyNotSplit(world, bram, "None"), "Bram Okafor is in no split.");
  ASSERT_EQ(WhyNotSplit(world, bram, "Blue"), "");
  AssignSplit(bram, "Blue");
  EXPECT_EQ(bram.Split, "Blue");
  EXPECT_EQ(WhyNotSplit(world, bram, "Blue"), "Bram Okafor is in this split already.");
  EXPECT_EQ(WhyNotSplit(world, bram, "None"), "");
}

TEST(PlaceText, KnowsEveryPosting) {
  constexpr struct {
    int Position;
    const char* Text;
  } kRows[] = {{1, "Main Event"},     {7, "Development Deal"},         {50, "Manager"},
               {75, "Training Camp"}, {83, "Midcard, in development"}, {80, "Unknown"}};
  Worker worker;
  for (const auto& row : kRows) {
    worker.Position = row.Position;
    EXPECT_EQ(PlaceText(worker), row.Text);
  }
}

}  // namespace
}  // namespace grapplemont::test
