#include "tools/worldwatch.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "records/modVar.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using tools::MoneyFigures;
using tools::PeopleFigures;
using tools::WorldWatch;

TEST(WorldWatch, CountsRisesClassesYearsWithoutChangeAndClosedStarters) {
  World world = SmallWorld()
                    .Promotion("CWA", kCult)
                    .Worker("Our Own", kOpener, 40)
                    .Promotion("XWF", kSmall)
                    .Worker("Riser", kOpener, 49)
                    .Worker("Still", kOpener, 50)
                    .Promotion("NEW", kSmall)
                    .Game("CWA");
  WorldWatch watch;
  watch.Look(world);
  for (int month = 1; month <= 23; ++month) {
    if (month == 6) Named(world.Workers(), "Riser").Over = 80;
    if (month == 7) Named(world.Workers(), "Still").Over = 80;
    if (month == 5) Named(world.Promotions(), "XWF").Size = kBackyard;
    if (month == 8) Named(world.Promotions(), "XWF").Size = kRegional;
    if (month == 8) NoteDeed(world, kDeedClosed, &Named(world.Promotions(), "NEW"), "NEW");
    watch.Look(world);
  }
  EXPECT_EQ(
      watch.Figures().dump(),
      R"({"rises":1,"classChanges":3,"rivalYears":2,"stillYears":0,"startersLost":1,"honoured":0})");
  watch.Look(world);
  EXPECT_EQ(watch.Figures()["rivalYears"], 4);
  EXPECT_EQ(watch.Figures()["stillYears"], 2) << "in the second year nothing moved";
}

TEST(WorldFigures, TellWhoIsAtTheTopAndWhatTheyAre) {
  World world = SmallWorld()
                    .Promotion("CWA", kGlobal)
                    .Worker("Kit Ash", kOpener, 30, [](Worker& w) { w.Weight = "L"; })
                    .Worker("Jo Ash", kMainEvent, 90, [](Worker& w) { w.Gender = false; })
                    .Worker("Ray Holt", kManager, 50)
                    .Team("Ashes", "Kit Ash", "Jo Ash")
                    .Stable("The Pack", {"Kit Ash", "Ray Holt"})
                    .OnTheMarket()
                    .Worker("Cal Drift", kOpener, 10)
                    .Game("CWA");
  for (Worker& worker : world.Workers()) worker.Age = worker.Over;
  Named(world.Workers(), "Kit Ash").ShortName = "Ash";
  Named(world.Workers(), "Jo Ash").ShortName = "Ash";
  Named(world.Workers(), "Kit Ash").Manager = Named(world.Workers(), "Ray Holt").Uid;
  const auto people = PeopleFigures(world);
  EXPECT_EQ(people["top"][0], int(Named(world.Workers(), "Jo Ash").Uid));
  EXPECT_EQ(people["topAge"], 45.0);
  EXPECT_EQ(people["women"], 25.0);
  EXPECT_EQ(people["rosterLight"], 50.0);
  for (const auto& [figure, count] :
       {std::pair("clashes", 2), {"teams", 1}, {"stables", 1}, {"clients", 1}})
    EXPECT_EQ(people[figure], count) << figure;
  Promotion& cwa = world.Player();
  cwa.Money = 80000001;
  cwa.LastMonth.TicketIncome = 100;
  cwa.LastMonth.WrestlerWages = 40;
  EXPECT_EQ(MoneyFigures(world).dump(), R"({"over80":1,"globalIncome":100,"globalWages":40})");
}

}  // namespace
}  // namespace grapplemont::test
