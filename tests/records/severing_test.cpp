#include "records/severing.h"

#include <gtest/gtest.h>

#include "records/fields/fields.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::Change;
using test::CopyOf;
using test::ExpectSame;
using test::Named;
using test::SmallWorld;

/// Two promotions; Bram of the player's holds all that one can hold.
World Busy() {
  return SmallWorld()
      .Network("Channel Nine", [](Network& n) { n.Generic = true; })
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Staff("Vic Tolliver", kAnnouncer)
      .Staff("Sal Mender", kTrainer)
      .Worker("Bram Okafor", [](Worker& w) { w.TurnPending = true; })
      .Worker("Ilya Marsh")
      .Worker("Cal Drift")
      .Worker("Dov Pell")
      .Team("Mud and Iron", "Bram Okafor", "Ilya Marsh")
      .Stable("The Bench", {"Bram Okafor", "Cal Drift"})
      .Title("CWA Crown", "Bram Okafor", "", [](Title& t) { t.Image = 90; })
      .Title("CWA Pairs", "Ilya Marsh", "Bram Okafor", [](Title& t) { t.Image = 15; })
      .Title("CWA Cup", "Cal Drift")
      .Show("Friday Fire", "Friday", "Channel Nine",
            [](Show& s) {
              s.Colour = 1;
              s.ColourIsWorker = true;
              s.Announcer = 2;
            })
      .Show("Monday Mire", "Monday", "Channel Nine", [](Show& s) { s.Colour = 2; })
      .Sponsor("Colossal Cola")
      .Event(3)
      .Promotion("NEW", kSmall)
      .Worker("Eli Fenn")
      .Stable("The Bench", {"Eli Fenn"})
      .Title("NEW Crown", "Eli Fenn")
      .Owner("Tess Hale")
      .Show("New Night", "Friday", "Channel Nine",
            [](Show& s) {
              s.Colour = 1;
              s.ColourIsWorker = true;
              s.Announcer = 2;
            })
      .Sponsor("Tough Trucks")
      .Event(3)
      .Event(4)
      .Game("CWA")
      .Feud("Ilya Marsh", "Cal Drift")
      .TagFeud("Cal Drift", "Dov Pell", "Ilya Marsh", "Bram Okafor")
      .Feud("Bram Okafor", "Dov Pell");
}

/// What becomes of a Title that is vacated on the game's first day.
void Vacated(Title& title, int image) {
  title.Holder = 0;
  title.Partner = 0;
  title.Image = image;
  title.Reigns[1] = title.Reigns[0];
  title.Reigns[1].Lost = test::kGameStart;
  title.Reigns[0].Won = test::kGameStart;
  title.Reigns[0].Holder = "Vacant";
}

void Free(Worker& worker) {
  worker.Employer = 0;
  worker.ContractMonths = 0;
  worker.ContractType = "Non";
  worker.Stable = "None";
  worker.Manager = 0;
  worker.TurnPending = false;
  worker.Unsackable = false;
}

void Empty(Feud& feud) {
  for (Word* party : {&feud.Worker1, &feud.Worker2, &feud.Worker3, &feud.Worker4}) *party = 0;
}

TEST(SeverWorker, EndsAllThatTiesHimToHisPromotion) {
  World world = Busy();
  World expected = CopyOf(world);
  Free(expected.Workers()[1]);
  Vacated(Named(expected.Titles(), "CWA Crown"), 70);
  Vacated(Named(expected.Titles(), "CWA Pairs"), 0);
  Empty(expected.Feuds()[2]);
  Empty(expected.Feuds()[3]);
  Show& fire = Named(expected.Shows(), "Friday Fire");
  fire.Colour = 0;
  fire.ColourIsWorker = false;
  SeverWorker(world, Named(world.Workers(), "Bram Okafor"));
  ExpectSame(world, expected);
}

TEST(SeverWorker, LeavesTheStaffCommentatorOfTheSameUidAlone) {
  World world = Busy();
  World expected = CopyOf(world);
  Worker& marsh = Named(expected.Workers(), "Ilya Marsh");
  ASSERT_EQ(2, marsh.Uid);
  Free(marsh);
  Vacated(Named(expected.Titles(), "CWA Pairs"), 0);
  Empty(expected.Feuds()[1]);
  Empty(expected.Feuds()[2]);
  SeverWorker(world, Named(world.Workers(), "Ilya Marsh"));
  ExpectSame(world, expected);
}

TEST(SeverWorker, ChangesTheWorkerByTable) {
  const struct {
    const char* What;
    void (*Before)(Worker&);
    void (*After)(Worker&);
  } rows[] = {
      {"a roster position stays", [](Worker& w) { w.Position = kOpener; }, [](Worker&) {}},
      {"sent away", [](Worker& w) { w.Position = 83; }, [](Worker& w) { w.Position = 3; }},
      {"sent away from the top", [](Worker& w) { w.Position = 81; },
       [](Worker& w) { w.Position = 1; }},
      {"sent away by nothing", [](Worker& w) { w.Position = 80; }, [](Worker&) {}},
      {"sent away with a deal",
       [](Worker& w) {
         w.Position = 87;
         w.Over = 81;
       },
       [](Worker& w) { w.Position = kUpperMidcard; }},
      {"a manager stays one", [](Worker& w) { w.Position = kManager; }, [](Worker&) {}},
      {"development deal",
       [](Worker& w) {
         w.Position = kDevelopmentDeal;
         w.Over = 71;
       },
       [](Worker& w) { w.Position = kMidcard; }},
      {"training camp",
       [](Worker& w) {
         w.Position = kTrainingCamp;
         w.Over = 29;
       },
       [](Worker& w) { w.Position = kJobber; }},
      {"sitting out",
       [](Worker& w) {
         w.Status = "Hom";
         w.Morale = 0;
       },
       [](Worker& w) {
         w.Status = "Nor";
         w.Morale = 80;
       }},
      {"injured",
       [](Worker& w) {
         w.Status = "Inj";
         w.Morale = 3;
       },
       [](Worker&) {}},
      {"unsackable",
       [](Worker& w) {
         w.Unsackable = true;
         w.ContractMonths = kNoEnd;
       },
       [](Worker&) {}},
      {"managed", [](Worker& w) { w.Manager = 4; }, [](Worker&) {}},
      {"a part of the roster", [](Worker& w) { w.Split = "North"; }, [](Worker&) {}},
  };
  for (const auto& row : rows) {
    World world = SmallWorld()
                      .Promotion("CWA", kCult, [](Promotion& p) { p.Split[0] = "North"; })
                      .Worker("Bram Okafor", row.Before)
                      .Game("CWA")
                      .BuildUnchecked();
    World expected = CopyOf(world);
    row.After(expected.Workers()[1]);
    Free(expected.Workers()[1]);
    SeverWorker(world, world.Workers()[1]);
    SCOPED_TRACE(row.What);
    ExpectSame(world, expected);
  }
}

TEST(SeverWorker, TakesTheCommissionerOutOfOfficeInHisPromotionAlone) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker("Bram Okafor", kNonWrestler, 60)
                    .Promotion("NEW")
                    .Game("CWA");
  for (Promotion& promotion : world.Promotions()) promotion.Commissioner = 1;
  SeverWorker(world, world.Workers()[1]);
  EXPECT_EQ(0, world.Promotions()[1].Commissioner);
  EXPECT_EQ(1, world.Promotions()[2].Commissioner);
}

TEST(SeverWorker, OfUidNobodyTouchesNothingOfNobodys) {
  World world = Busy();
  Named(world.Workers(), "Dov Pell").Uid = 0;
  World expected = CopyOf(world);
  Free(Named(expected.Workers(), "Dov Pell"));
  SeverWorker(world, Named(world.Workers(), "Dov Pell"));
  ExpectSame(world, expected);
}

TEST(VacateTitle, ShiftsTheReignsAndForgetsTheOldest) {
  World world = SmallWorld()
                    .Promotion("CWA")
                    .Worker("Bram Okafor")
                    .Title("CWA Crown", "Bram Okafor")
                    .Game("CWA");
  Title& title = world.Titles()[1];
  using std::chrono::year;
  for (int i = 0; i < 5; ++i) {
    Reign& reign = title.Reigns[static_cast<std::size_t>(i)];
    reign.Holder = "Champion " + std::to_string(i + 1);
    reign.Won = Day(year{2020 - i} / 1 / 1);
    reign.Lost = i == 0 ? kNoTitleDate : Day(year{2021 - i} / 1 / 1);
  }
  VacateTitle(world, title);
  const char* holders[] = {"Vacant", "Champion 1", "Champion 2", "Champion 3", "Champion 4"};
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(holders[i], title.Reigns[i].Holder.View());
  EXPECT_EQ(test::kGameStart, Day(title.Reigns[0].Won));
  EXPECT_EQ(kNoTitleDate, Day(title.Reigns[0].Lost));
  EXPECT_EQ(Day(year{2020} / 1 / 1), Day(title.Reigns[1].Won));
  EXPECT_EQ(test::kGameStart, Day(title.Reigns[1].Lost));
  EXPECT_EQ(Day(year{2020} / 1 / 1), Day(title.Reigns[2].Lost));
  EXPECT_EQ(Day(year{2017} / 1 / 1), Day(title.Reigns[4].Won));
}

TEST(SeverStaff, EndsHisContractHisPostsAndHisCommentary) {
  World world = Busy();
  for (Promotion& promotion : world.Promotions()) {
    promotion.HeadTrainer = 2;
    promotion.DevBooker = 3;
  }
  World expected = CopyOf(world);
  Staff& vic = Named(expected.AllStaff(), "Vic Tolliver");
  ASSERT_EQ(2, vic.Uid);
  vic.Employer = 0;
  vic.ContractMonths = 0;
  for (Promotion& promotion : expected.Promotions()) promotion.HeadTrainer = 0;
  Named(expected.Shows(), "Friday Fire").Announcer = 0;
  SeverStaff(world, Named(world.AllStaff(), "Vic Tolliver"));
  ExpectSame(world, expected);

  for (Promotion& promotion : expected.Promotions()) promotion.DevBooker = 0;
  Named(expected.AllStaff(), "Sal Mender").Employer = 0;
  Named(expected.AllStaff(), "Sal Mender").ContractMonths = 0;
  SeverStaff(world, Named(world.AllStaff(), "Sal Mender"));
  ExpectSame(world, expected);
}

TEST(SweepDeadPromotions, EndsARivalAndAllThatWasHis) {
  World world = Busy();
  World expected = CopyOf(world);
  Free(Named(expected.Workers(), "Eli Fenn"));
  Staff& owner = Named(expected.AllStaff(), "Tess Hale");
  owner.Employer = 0;
  owner.ContractMonths = 0;
  Title& crown = Named(expected.Titles(), "NEW Crown");
  Vacated(crown, 30);
  crown.Owner = -1;
  expected.Stables()[2].Owner = -1;
  for (Event& event : expected.Events())
    if (event.Owner == 2) event.Owner = 0;
  Sponsor& trucks = Named(expected.Sponsors(), "Tough Trucks");
  trucks.Promotion = 0;
  trucks.ContractMonths = 0;
  Named(expected.Shows(), "New Night").Name = kToBeDeleted;
  expected.Promotions().Erase(2);

  Named(world.Promotions(), "NEW").Name = kToBeDeleted;
  SweepDeadPromotions(world);
  ExpectSame(world, expected);

  expected.Shows().Erase(3);
  SweepDeadShows(world);
  ExpectSame(world, expected);
  SweepDeadPromotions(world);
  SweepDeadShows(world);
  ExpectSame(world, expected);
}

TEST(SweepDeadPromotions, MovesThoseBehindUp) {
  World world =
      SmallWorld().Promotion("A").Promotion("B").Promotion("C").Promotion("D").Worker("Cal Drift");
  world.Promotions()[1].Name = kToBeDeleted;
  world.Promotions()[3].Name = kToBeDeleted;
  SweepDeadPromotions(world);
  ASSERT_EQ(2, world.Promotions().Count());
  EXPECT_EQ("B", world.Promotions()[1].Initials.View());
  EXPECT_EQ("D", world.Promotions()[2].Initials.View());
  EXPECT_EQ(&world.Promotions()[2], world.FindPromotion(4));
  EXPECT_EQ(4, world.Workers()[1].Employer);
}

TEST(RemoveShow, TakesTheFirstOfTheNameAlone) {
  World world = SmallWorld()
                    .Network("Channel Nine")
                    .Promotion("CWA")
                    .Show("Same", "Monday", "Channel Nine")
                    .Show("Other", "Tuesday", "Channel Nine")
                    .Show("Same", "Friday", "Channel Nine");
  EXPECT_FALSE(RemoveShow(world, "same"));
  EXPECT_TRUE(RemoveShow(world, "Same"));
  ASSERT_EQ(2, world.Shows().Count());
  EXPECT_EQ("Other", world.Shows()[1].Name.View());
  EXPECT_EQ("Friday", world.Shows()[2].Day.View());
}

TEST(SweepDeadShows, TakesAllThatAreMarked) {
  World world = SmallWorld().Network("Channel Nine").Promotion("CWA");
  const char* names[] = {"To Be Deleted", "A", "To Be Deleted",
                         "To Be Deleted", "B", "To Be Deleted"};
  for (const char* name : names) {
    Show show;
    show.Name = name;
    world.Shows().Append(show);
  }
  SweepDeadShows(world);
  ASSERT_EQ(2, world.Shows().Count());
  EXPECT_EQ("A", world.Shows()[1].Name.View());
  EXPECT_EQ("B", world.Shows()[2].Name.View());
  World empty;
  SweepDeadShows(empty);
  SweepDeadPromotions(empty);
  EXPECT_EQ(0, empty.Shows().Count());
}

}  // namespace
}  // namespace grapplemont
