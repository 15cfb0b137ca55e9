#include "tools/balance.h"

#include "support/checkout.h"
#include "support/defaultworld.h"
#include "toolhome.h"

namespace grapplemont::test {
namespace {

using ToolBalance = ToolHome;

TEST_F(ToolBalance, PageIsWhatTheCommandPrintsOfTheBuiltWorld) {
  ASSERT_EQ(0, Run({"build", Checkout("/world"), In("data")}).Code);
  const Ran ran = Run({"balance", In("data")});
  EXPECT_EQ(0, ran.Code);
  std::ifstream file(Checkout("/docs/balance.md"), std::ios::binary);
  const std::string page{std::istreambuf_iterator<char>(file), {}};
  EXPECT_TRUE(page == ran.Out) << "Run: grapplemont-world balance data >docs/balance.md";
}

TEST(Balance, KnowsTheHouseShowsOfRivals) {
  for (const auto& balance : tools::BalanceOf(DefaultWorld())) {
    EXPECT_EQ(balance.AsPlayers.HouseShows, 0);
    if (!(balance.Of->Initials == "ZWS")) continue;
    EXPECT_EQ(balance.AsRival.HouseShows, (60'000 + 60'000 * 74 / 100) * 52LL / 12);
  }
}

TEST(Balance, LetsNobodyStartInRuin) {
  for (const auto& balance : tools::BalanceOf(DefaultWorld())) {
    EXPECT_LE(balance.AsPlayers.CostsPerHundred(), 150) << balance.Of->Initials.Str();
    EXPECT_LE(balance.AsRival.CostsPerHundred(), 150) << balance.Of->Initials.Str();
    // What is lost in a year must be there, or may be owed.
    constexpr int kRuin[] = {20'000'000, 15'000'000, 5'000'000, 2'500'000, 1'000'000, 500'000};
    const auto lost = balance.AsRival.Costs() - balance.AsRival.Income();
    EXPECT_LT(12 * lost, balance.Of->Money + kRuin[balance.Of->Size - 1])
        << balance.Of->Initials.Str();
  }
}

TEST(Balance, MakesNobodyRichWithoutWork) {
  for (const auto& balance : tools::BalanceOf(DefaultWorld()))
    if (balance.Of->Size < kBackyard) {
      EXPECT_GE(balance.AsPlayers.CostsPerHundred(), 60) << balance.Of->Initials.Str();
      // A year of waiting must not win more than one and a half times what there was.
      const auto won = balance.AsPlayers.Income() - balance.AsPlayers.Costs();
      EXPECT_LE(2 * 12 * won, 3LL * balance.Of->Money) << balance.Of->Initials.Str();
    }
}

/// One National promotion with every source of money, reckoned by hand below.
World Reckoned() {
  return SmallWorld()
      .Network("Nine")
      .Promotion("CWA", kNational,
                 [](Promotion& p) {
                   p.Image = 55;
                   p.Risk = 40;
                   p.Production = 50;
                   p.Advertising = 7;
                   p.Merchandising = 90;
                 })
      .Owner("Ruth Vane")
      .Staff("Vic Tolliver", kAnnouncer, 70, [](Staff& s) { s.Wage = 12; })
      .Worker("Star", kMainEvent, 85, [](Worker& w) { w.Wage = 60; })
      .Worker("Second", kMainEvent, 80, [](Worker& w) { w.Wage = 40; })
      .Worker("Fixture", kMidcard, 60,
              [](Worker& w) {
                w.Wage = 99;
                w.Unsackable = true;
                w.ContractMonths = kNoEnd;
              })
      .Show("Monday Mayhem", "Monday", "Nine")
      .Show("Sunday Sermon", "Sunday", "Nine")
      .Event(3, 1)
      .Event(9, 2)
      .OnTheMarket()
      .Sponsor("Willing",
               [](Sponsor& s) {
                 s.Pay = 400;
                 s.Morality = 60;
               })
      .Sponsor("Stingy",
               [](Sponsor& s) {
                 s.Pay = 101;
                 s.Morality = 0;
               })
      .Sponsor("Prim",
               [](Sponsor& s) {
                 s.Pay = 300;
                 s.Morality = 61;
               })
      .Sponsor("Grand", [](Sponsor& s) {
        s.Pay = 751;
        s.Morality = 0;
      });
}

TEST(Balance, AddsUpAnAverageMonth) {
  const World world = Reckoned();
  const auto balances = tools::BalanceOf(world);
  ASSERT_EQ(balances.size(), 1u);
  const auto& [of, card, player, rival] = balances[0];
  // Image 55 draws 1750 + 5 to a show, 52 Mondays and 40 Sundays that are no Event's.
  EXPECT_EQ(player.TvTickets, 1755LL * 40 * 92 / 12);
  // A pay-per-view before 7000 + 100, a large Event before 3800 + 50.
  EXPECT_EQ(player.EventTickets, (7100LL + 3850) * 40 / 12);
  EXPECT_EQ(player.PayPerView, 59LL * 25000 / 12);
  EXPECT_EQ(player.Events, 1'700'000 / 12);
  EXPECT_EQ(player.Merchandise, 90 * 24'000);
  EXPECT_EQ(player.WorkerWages, 100'000) << "the one with no end draws no wage";
  EXPECT_EQ(player.StaffWages, 12'000) << "nor does the Owner";
  EXPECT_EQ(player.Production, 500'000);
  EXPECT_EQ(player.Advertising, 70'000);
  EXPECT_EQ(player.Merchandising, 1'800'000);
  // Two sign, at 400 and 101: whole at an Event; a quarter or a tenth at a show, three of the
  // latter for each of the former.
  EXPECT_EQ(player.Sponsors, ((501LL * 2 * 2) + (100 + 25 + 3 * (40 + 10)) * 92LL) * 1000 / 2 / 12);
  EXPECT_EQ(rival.Advertising, 750'000);
  EXPECT_EQ(rival.Merchandising, 1'600'000);
  EXPECT_EQ(rival.Merchandise, 80 * 24'000);
  EXPECT_EQ(rival.Production, 600'000);
  // In the order of the list, the grand one too: whole at twelve Events, at a show a quarter or a
  // tenth.
  EXPECT_EQ(rival.Sponsors, ((400LL + 101 + 751) * 12 + (100 + 10 + 75) * 92LL) * 1000 / 12);
  EXPECT_EQ(player.TvTickets, rival.TvTickets);
  EXPECT_EQ(rival.EventTickets, 3850LL * 40) << "a large Event a month at its image";
  EXPECT_EQ(rival.Events, 200'000);
  EXPECT_EQ(rival.HouseShows, 0) << "three are no crew";
  EXPECT_EQ(player.Income(), player.TvTickets + player.EventTickets + player.PayPerView +
                                 player.Merchandise + player.Sponsors);
  ASSERT_EQ(card.size(), 2u);
  EXPECT_EQ(card[0].Workers, 2);
  EXPECT_EQ(card[0].MeanOver, 83);
}

}  // namespace
}  // namespace grapplemont::test
