#include "editor/merge.h"

#include <gtest/gtest.h>

#include "newrecords.h"

namespace grapplemont::test {
namespace {

World Here() {
  return SmallWorld().Promotion("CWA", kCult).Crew(3);
}

/// People under contract in another world, with all that ties them to it.
std::vector<Worker> Foreign() {
  World world = SmallWorld()
                    .Promotion("FAR", kCult, [](Promotion& p) { p.Split[0] = "Blue"; })
                    .Worker("Mae Boss", kManager, 40)
                    .Worker("Gil Tied",
                            [](Worker& w) {
                              w.Split = "Blue";
                              w.Unsackable = true;
                              w.ContractMonths = kNoEnd;
                              w.ContractType = "Wri";
                              w.CreativeControl = true;
                              w.Debuted = true;
                              w.TurnPending = true;
                              w.Status = "Hom";
                              w.StatusMonths = 2;
                              w.Morale = 10;
                            })
                    .Worker("CWA Hand 2")
                    .Worker("Dev Young", kDevelopmentDeal, 35)
                    .Worker("Sent Away", kSentToDevelopment + kMidcard, 60)
                    .Stable("The Far Firm", {"Gil Tied"});
  Named(world.Workers(), "Gil Tied").Manager = Named(world.Workers(), "Mae Boss").Uid;
  return {world.Workers().begin(), world.Workers().end()};
}

TEST(Import, LeavesContractsAndTiesBehind) {
  World world = Here();
  const Arrivals arrivals = ImportWorkers(world, Foreign(), {2, 4, 5});
  EXPECT_EQ(Lines(arrivals), (Texts{"Worker Gil Tied 2>6: Its uid belongs to CWA Hand 2.",
                                    "Worker Dev Young", "Worker Sent Away"}));
  EXPECT_EQ(Lines(arrivals.Mended), Texts{});
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
  Worker wanted = Foreign()[1];
  wanted.Uid = 6;
  wanted.Employer = 0;
  wanted.ContractType = "Non";
  wanted.ContractMonths = 0;
  wanted.CreativeControl = false;
  wanted.Status = "Nor";
  wanted.Morale = 80;
  wanted.Stable = "None";
  wanted.Manager = 0;
  wanted.Split = "None";
  wanted.Unsackable = false;
  wanted.TurnPending = false;
  wanted.Debuted = false;
  World expected = Here();
  expected.Workers().Append(wanted);
  world.Workers().Keep([](const Worker& w) { return !(w.Uid == 4 || w.Uid == 5); });
  ExpectSame(world, expected);
}

TEST(Import, EndsPostingsToDevelopmentAndCamp) {
  World world = Here();
  ImportWorkers(world, Foreign(), {4, 5});
  EXPECT_EQ(Named(world.Workers(), "Dev Young").Position, kOpener);
  EXPECT_EQ(Named(world.Workers(), "Sent Away").Position, kMidcard);
}

TEST(Import, ANameThatIsTakenStaysOutAndTheSameCannotComeTwice) {
  World world = Here();
  const std::vector<Worker> foreign = Foreign();
  EXPECT_EQ(Lines(PreviewImport(world, foreign, {3, 1, 1})),
            (Texts{"Worker CWA Hand 2 out: The name is taken.",
                   "Worker Mae Boss 1>6: Its uid belongs to CWA Hand 1.",
                   "Worker Mae Boss out: The name is taken."}));
  ExpectSame(world, Here());
}

TEST(Import, AWorkerWhoIsOutOfRangeIsPutRight) {
  World world = Here();
  std::vector<Worker> foreign = Foreign();
  foreign[0].BirthMonth = 999;
  foreign[0].Disposition = "Q";
  foreign[0].LastTurn.SetRaw(1e300);
  const Arrivals arrivals = ImportWorkers(world, foreign, {1});
  EXPECT_EQ(
      Lines(arrivals.Mended),
      (Texts{"wrestler.dat, record 4 (Mae Boss), BirthMonth: is 999, outside 0 to 12; made 12",
             "wrestler.dat, record 4 (Mae Boss), Disposition: is \"Q\", no known code; made "
             "\"F\"",
             "wrestler.dat, record 4 (Mae Boss), LastTurn: is no date of the calendar; made "
             "1899-12-30"}));
  EXPECT_EQ(Lines(CheckWorld(world)), Texts{});
}

TEST(Import, StopsAtTheLimitInTheEditorsWords) {
  World world;
  Worker worker = Foreign()[0];
  worker.Employer = 0;
  for (int i = 1; i < LayoutOf<Worker>().Limit; ++i) {
    worker.Uid = i;
    worker.Name = "W" + std::to_string(i);
    world.Workers().Append(worker);
  }
  const Arrivals arrivals = PreviewImport(world, Foreign(), {1, 2});
  EXPECT_EQ(arrivals.Rows[0].Comes, Fate::Renumbered);
  EXPECT_EQ(arrivals.Rows[1].Why, "Maximum 25,000 wrestlers per file!");
}

TEST(Import, NeedsDataInOrder) {
  World world = Complete(Here());
  EXPECT_EQ(WhyNoArrivals(world), "");
  world.Workers()[1].BirthMonth = 500;
  EXPECT_EQ(WhyNoArrivals(world), "The data have 1 fault. Clean them up first.");
}

}  // namespace
}  // namespace grapplemont::test
