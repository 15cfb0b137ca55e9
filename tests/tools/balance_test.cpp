#include <gtest/gtest.h>
#include <cstring>

#include "records/checks/checkworld.h"
#include "records/fields/fields.h"
#include "session/newgame.h"
#include "support/checkout.h"
#include "support/defaultworld.h"
#include "support/gameonworld.h"
#include "support/randomworld.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"
#include "toolhome.h"
#include "tools/balance.h"
#include "tools/officework.h"

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
    // Nobody is left to sponsor the last Small one; it lives on what it has and closes in the end.
    if (balance.Of->Initials == "GSG") continue;
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

// Numbers at the ends of their ranges: what the check lets pass stops no day.

using tools::PlayDay;
using tools::Shows;

constexpr std::uint64_t kSeed = 17;

/// A game of the default world with a spring behind it, so that feuds, the past and the news hold
/// something.
World Played() {
  World world = CopyOf(DefaultWorld());
  world.SetChance(std::make_unique<SeededDraws>(kSeed));
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = 1;
  choice.Difficulty = kRockHard;
  choice.Start = std::chrono::year{2026} / 3 / 1;
  choice.SaveName = "First";
  NewGame(world, choice);
  for (int day = 0; day < 60; ++day) PlayDay(world, Shows::Auto);
  return world;
}

/// A number with a range and nothing more: no code, no uid.
bool IsPlainNumber(const Field& field) {
  const bool isNumber = field.Kind == FieldKind::Word || field.Kind == FieldKind::Percent ||
                        field.Kind == FieldKind::Long;
  return isNumber && field.Words.empty() && field.To == Refers::Nothing && !field.IsKey;
}

Bytes BytesOf(const Table& table) {
  return Bytes(table.Contents().begin(), table.Contents().end());
}

/// Whether a number goes to the upper end of its range.
using ToTheTop = bool (*)(Dice&);

/// How many numbers have been set to an end of their range.
int PushToTheEnds(World& world, ToTheTop toTheTop) {
  Dice dice(kSeed);
  int pushed = 0;
  for (Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    Bytes bytes = BytesOf(*table);
    const auto size = static_cast<std::size_t>(table->Layout()->Size);
    for (std::size_t at = 0; at < bytes.size(); at += size)
      for (const Field& field : table->Layout()->Fields)
        for (int index = 0; IsPlainNumber(field) && index < field.Count; ++index, ++pushed)
          SetFieldNumber(field, bytes.data() + at, index, toTheTop(dice) ? field.Max : field.Min);
    table->Load(bytes);
  }
  return pushed;
}

/// Gives back its old bytes to what the check finds fault with, in the one record or in all.
void TakeBack(World& world, const World& before, const Fault& fault, bool inAll) {
  for (std::size_t i = 0; i < world.Tables().size(); ++i) {
    Table& table = *world.Tables()[i];
    if (table.File() != fault.File || fault.Record == 0) continue;
    const Bytes old = BytesOf(*before.Tables()[i]);
    Bytes bytes = BytesOf(table);
    const auto size = static_cast<std::size_t>(table.Layout()->Size);
    const std::size_t only = static_cast<std::size_t>(fault.Record - 1) * size;
    for (std::size_t record = inAll ? 0 : only; record < (inAll ? bytes.size() : only + size);
         record += size)
      for (const Field& field : table.Layout()->Fields)
        for (int index = 0; index < field.Count; ++index)
          if (fault.Field.empty() || FieldName(field, index) == fault.Field)
            std::memcpy(bytes.data() + record + field.Offset + index * field.Stride,
                        old.data() + record + field.Offset + index * field.Stride,
                        static_cast<std::size_t>(field.Width));
    table.Load(bytes);
  }
}

/// What one gives back may clash with what another has; then all of them do.
void TakeBackFaults(World& world, const World& before) {
  for (const bool inAll : {false, false, true, true})
    for (const Fault& fault : CheckWorld(world)) TakeBack(world, before, fault, inAll);
}

TEST(NumbersAtTheEndsOfTheirRanges, StopNoDayOfAYear) {
  const World before = Played();
  const struct {
    const char* What;
    ToTheTop Top;
  } ends[] = {{"least", [](Dice&) { return false; }},
              {"most", [](Dice&) { return true; }},
              {"either", [](Dice& dice) { return dice.OneIn(2); }},
              {"mostly least", [](Dice& dice) { return dice.OneIn(8); }},
              {"mostly most", [](Dice& dice) { return !dice.OneIn(8); }}};
  for (const auto& end : ends) {
    SCOPED_TRACE(end.What);
    World world = CopyOf(before);
    world.SetChance(std::make_unique<SeededDraws>(kSeed));
    EXPECT_GT(PushToTheEnds(world, end.Top), 10000);
    TakeBackFaults(world, before);
    ASSERT_EQ(CheckWorld(world).size(), 0u) << CheckWorld(world)[0].Line();
    for (int day = 0; day < 366; ++day) {
      try {
        PlayDay(world, Shows::Auto);
      } catch (const FieldOverflow& fault) {
        FAIL() << IsoDate(world.Today()) << ": " << world.Explain(fault);
      }
      world.Game().EndCode = 0;  // whoever has no chair left plays on
      if (!IsFirstOfMonth(world.Today())) continue;
      const auto faults = CheckWorld(world);
      ASSERT_TRUE(faults.empty()) << IsoDate(world.Today()) << ": " << faults[0].Line();
    }
  }
}

// What a player whom nobody watches does beside his shows.

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
