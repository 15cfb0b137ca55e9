#include "records/severing.h"

#include <gtest/gtest.h>

#include "records/fields/fields.h"
#include "support/smallworld.h"

namespace grapplemont {
namespace {

using test::CopyOf;
using test::ExpectSame;
using test::Named;
using test::SmallWorld;

/// Bram holds all that one can hold.
World Busy() {
  return SmallWorld()
      .Network("Channel Nine", [](Network& n) { n.Generic = true; })
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Staff("Vic Tolliver", kAnnouncer)
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
            [](Show& s) { s.Colour = 1, s.ColourIsWorker = true; })
      .Show("Monday Mire", "Monday", "Channel Nine", [](Show& s) { s.Colour = 2; })
      .Promotion("NEW", kSmall)
      .Worker("Eli Fenn")
      .Show("New Night", "Friday", "Channel Nine",
            [](Show& s) { s.Colour = 1, s.ColourIsWorker = true; })
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
  EXPECT_GT(world.Annals().Count(), 0) << "feuds that went cold";
  expected.Annals() = world.Annals();
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
  EXPECT_GT(world.Annals().Count(), 0) << "feuds that went cold";
  expected.Annals() = world.Annals();
  ExpectSame(world, expected);
}

TEST(SeverWorker, GivesBackAPlaceOnTheRosterAndGoodSpirits) {
  const struct {
    int Position, Over, Becomes;
  } rows[] = {{kOpener, 50, kOpener},      {83, 50, 3},
              {81, 50, kMainEvent},        {80, 50, 80},
              {87, 81, kUpperMidcard},  // sent away under a deal
              {kManager, 50, kManager},    {kDevelopmentDeal, 71, kMidcard},
              {kTrainingCamp, 29, kJobber}};
  World world = SmallWorld()
                    .Promotion("CWA", kCult, [](Promotion& p) { p.Split[0] = "North"; })
                    .Worker("Bram Okafor", [](Worker& w) { w.Split = "North"; })
                    .Game("CWA");
  Worker& bram = world.Workers()[1];
  for (const auto& row : rows)
    for (const char* status : {"Hom", "Inj"}) {
      bram.Position = row.Position;
      bram.Over = row.Over;
      bram.Status = status;
      bram.Morale = 3;
      bram.Unsackable = true;
      bram.ContractMonths = kNoEnd;
      bram.Manager = 4;
      World expected = CopyOf(world);
      Worker& after = expected.Workers()[1];
      Free(after);
      after.Position = row.Becomes;
      after.Status = bram.Status == "Hom" ? "Nor" : "Inj";
      after.Morale = bram.Status == "Hom" ? 80 : 3;
      SeverWorker(world, bram);
      SCOPED_TRACE(row.Position);
      ExpectSame(world, expected);
      world.Rollback();
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

TEST(RemoveShow, TakesTheFirstOfTheNameAndASweepAllThatAreMarked) {
  World world = SmallWorld().Promotion("CWA");
  for (const char* name : {"To Be Deleted", "Same", "Other", "To Be Deleted", "Same"})
    world.Shows().Append({}).Name = name;
  const auto names = [&] {
    std::string all;
    for (const Show& show : world.Shows()) all += show.Name + ",";
    return all;
  };
  EXPECT_FALSE(RemoveShow(world, "same"));
  EXPECT_TRUE(RemoveShow(world, "Same"));
  EXPECT_EQ("To Be Deleted,Other,To Be Deleted,Same,", names());
  SweepDeadShows(world);
  EXPECT_EQ("Other,Same,", names());
}

}  // namespace
}  // namespace grapplemont
