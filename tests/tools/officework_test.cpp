#include "tools/officework.h"

#include <gtest/gtest.h>

#include "records/checks/checkworld.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"

// What a player whom nobody watches does beside his shows.

namespace grapplemont::test {
namespace {

using std::chrono::year;

void ExpectSound(const World& world) {
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

TEST(OfficeWork, SignsTheBestSponsorsWhoAreWilling) {
  SmallWorld small;
  small.Promotion("CWA", kRegional, [](Promotion& p) { p.Image = 51; }).OnTheMarket();
  for (const int pay : {401, 100, 400, 50, 300, 200})
    small.Sponsor("Pays " + std::to_string(pay), [=](Sponsor& sponsor) { sponsor.Pay = pay; });
  World world = small.Game("CWA", year{2026} / 3 / 4);
  ScriptDraws(world, {{18, 1}, {18, 1}, {18, 1}, {18, 1}});
  tools::WorkInTheOffice(world);
  int place = 0;
  for (const int pay : {400, 300, 200, 100})
    EXPECT_EQ(world.FindSponsor(world.Player().Sponsor[static_cast<std::size_t>(place++)])->Pay,
              pay);
  ExpectSound(world);
}

TEST(OfficeWork, KeepsContractsAndSpendsByTheStanding) {
  for (const int money : {1000000, -1}) {
    World world = SmallWorld()
                      .Promotion("CWA", kRegional,
                                 [&](Promotion& p) {
                                   p.Money = money;
                                   p.TicketPrice = 90;
                                   p.Image = 50;
                                   p.Merchandising = 100;
                                 })
                      .Crew(20)
                      .Game("CWA", year{2026} / 4 / 1);
    for (Worker& worker : world.Workers()) worker.ContractMonths = 1;
    tools::WorkInTheOffice(world);
    int renewed = 0;
    for (const Worker& worker : world.Workers()) renewed += worker.ContractMonths > 1;
    EXPECT_EQ(renewed, 9) << "of twelve whom the size can hold, but for the three least wanted";
    EXPECT_EQ(world.Player().TicketPrice, 20);
    EXPECT_EQ(world.Player().Merchandising, 25) << "600000 dollars of sales, 24000 a level";
    EXPECT_EQ(world.Player().Production, 20);
    EXPECT_EQ(world.Player().Advertising, money < 0 ? 0 : 17);
  }
}

TEST(OfficeWork, SignsOnMondaysUnlessThereIsMoneyToSave) {
  for (const int money : {1000000, -1}) {
    SmallWorld small;
    small.Promotion("CWA", kBackyard, [=](Promotion& p) { p.Money = money; }).Crew(9);
    small.OnTheMarket().Worker("Free", kMidcard, 10);
    World world = small.Game("CWA", year{2026} / 3 / 9);
    ScriptDraws(world, money < 0 ? std::vector<int>{} : std::vector<int>{1});
    tools::WorkInTheOffice(world);
    EXPECT_EQ(Named(world.Workers(), "Free").Employer, money < 0 ? 0 : world.PlayerUid());
  }
}

TEST(OfficeWork, AsksForWeeksAndTakesOffers) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA", kRegional)
                    .Show("Slam", "Friday", "Nine",
                          [](Show& show) {
                            show.ContractWeeks = 3;
                            show.Rating1 = show.Rating2 = show.Rating3 = 600;
                          })
                    .Game("CWA", year{2026} / 3 / 9, [](GameInfo& game) { game.TvOfferWait = 1; });
  ScriptDraws(world, std::vector<int>{});
  tools::WorkInTheOffice(world);
  ASSERT_EQ(world.Shows().Count(), 2);
  EXPECT_GT(world.Shows()[1].ContractWeeks, 3);
  EXPECT_EQ(world.Shows()[2].Name.Str(), "CWA Monday");
  EXPECT_EQ(world.Game().TvOfferWait, 0);
  ExpectSound(world);
}

TEST(OfficeWork, SendsATapeWhileThereIsNoShow) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Network("Ten")
                    .Promotion("CWA", kRegional)
                    .Game("CWA", year{2026} / 4 / 2);
  ScriptDraws(world, {{2, 2}});
  tools::WorkInTheOffice(world);
  EXPECT_EQ(world.Game().TapeWait, 2);
}

TEST(Career, GoesOnElsewhereWhereAnotherJobIsWanted) {
  for (const auto after : {tools::AfterTheEnd::Stop, tools::AfterTheEnd::AnotherJob}) {
    GameOnWorld play(SmallWorld()
                         .Promotion("CWA", kRegional, [](Promotion& p) { p.Money = -3000000; })
                         .Promotion("BIG", kGlobal)
                         .Promotion("XWF", kSmall)
                         .Game("CWA", year{2026} / 3 / 31));
    const auto end = tools::PlayDays(
        play.Play, 40, tools::Shows::Cancel, [](int) {}, after);
    EXPECT_EQ(end.Reasons, std::vector{2});
    const bool goesOn = after == tools::AfterTheEnd::AnotherJob;
    EXPECT_EQ(end.EndCode, goesOn ? 0 : 2);
    EXPECT_EQ(end.Days, goesOn ? 40 : 1);
    EXPECT_EQ(play.World().Player().Initials.Str(), goesOn ? "XWF" : "CWA");
    EXPECT_EQ(play.World().Game().Jobs[1].Promotion.Str(), goesOn ? "CWA Wrestling" : "None");
    ExpectSound(play.World());
  }
}

}  // namespace
}  // namespace grapplemont::test
