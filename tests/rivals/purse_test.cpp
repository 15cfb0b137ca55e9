#include "rivals/purse.h"

#include <gtest/gtest.h>

#include "records/modWresCheck.h"
#include "records/severing.h"
#include "rivals/faults.h"
#include "rivals/rivals.h"
#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

/// A Regional rival in debt.
SmallWorld ForSale(int money = -700000) {
  SmallWorld small;
  small.Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Promotion("XWF", kRegional,
                 [=](Promotion& p) {
                   p.Money = money;
                   p.LastMonth.StaffWages = 20000;
                   p.LastMonth.WrestlerWages = 80000;
                 })
      .Owner("Sir Sell")
      .Staff("Pen", kWriter, 50,
             [](Staff& s) { s.Unsackable = true, s.ContractMonths = kNoEnd, s.Morale = 4; })
      .Worker("Champ", kMainEvent, 70)
      .Worker("Home Body", kMidcard, 30,
              [](Worker& w) { w.Status = "Hom", w.Morale = 3, w.ContractMonths = 1; })
      .Worker("Safe", kMidcard, 45,
              [](Worker& w) { w.Unsackable = true, w.ContractMonths = kNoEnd; })
      .Worker("Camper", kTrainingCamp, 20, [](Worker& w) { w.ContractMonths = 2; })
      .Stable("The Firm", {"Champ", "Safe"})
      .Title("XWF Tag Titles", "Champ", "Safe")
      .Game("CWA");
  return small;
}

TEST(Takeover, BringsThePeopleOver) {
  World world = ForSale();
  world.Player().Money = 1000000;
  Named(world.Workers(), "Champ").Manager = Named(world.Workers(), "Safe").Uid;
  Named(world.Workers(), "Champ").TurnPending = true;
  TakeOverRival(world, Named(world.Promotions(), "XWF"), Takeover::Complete);
  EXPECT_EQ(world.Player().Money, 300000);
  EXPECT_EQ(world.Promotions()[2].Name.Str(), kToBeDeleted);
  struct Row {
    const char* Name;
    int Position, Months, Morale;
  };
  for (const Row& row : {Row{"Champ", kMainEvent, 12, 80},
                         {"Home Body", kLowerMidcard, 3, 10},
                         {"Safe", kMidcard, 3, 80},
                         {"Camper", kOpener, 2, 80}}) {
    const Worker& worker = Named(world.Workers(), row.Name);
    EXPECT_EQ(worker.Employer, world.PlayerUid()) << row.Name;
    EXPECT_EQ(worker.Position, row.Position) << row.Name;
    EXPECT_EQ(worker.ContractMonths, row.Months) << row.Name;
    EXPECT_EQ(worker.Morale, row.Morale) << row.Name;
    EXPECT_EQ(worker.Status.Str(), "Nor") << row.Name;
    EXPECT_EQ(worker.Stable.Str(), "None") << row.Name;
    EXPECT_EQ(worker.Manager, 0) << row.Name;
    EXPECT_FALSE(worker.Unsackable || worker.TurnPending) << row.Name;
  }
  const Staff& pen = Named(world.AllStaff(), "Pen");
  EXPECT_EQ(pen.Employer, world.PlayerUid());
  EXPECT_EQ(pen.ContractMonths, 3);
  EXPECT_EQ(pen.Morale, 10);
  EXPECT_FALSE(pen.Unsackable);
  SweepDeadPromotions(world);
  EXPECT_EQ(FaultsOf(world), "");
  EXPECT_EQ(world.Titles()[1].Holder, 0);
  EXPECT_EQ(Named(world.AllStaff(), "Sir Sell").Employer, 0);
  EXPECT_EQ(OwnerOf(world, world.PlayerUid())->Name.Str(), "Ruth Vane");
}

void ChooseRival(GameOnWorld& play) {
  play.Desk.Open("frmMainScreen");
  play.Desk.Click("cmdotherfed");
  ASSERT_EQ(play.Desk.TopName(), "frmOtherFed");
  play.Desk.Pick("lstfeds", "XWF Wrestling");
}

TEST(frmTakeover, MakesTheDealAndTheRivalIsGone) {
  GameOnWorld play(ForSale());
  ChooseRival(play);
  play.Desk.ExpectSay("Accepted!", "XWF owner Sir Sell is willing to sell the company.");
  play.Desk.Click("cmdbuyout");
  ASSERT_EQ(play.Desk.TopName(), "frmTakeover");
  EXPECT_EQ(play.Desk.Text("lblcost1"), "Cost : $700000");
  EXPECT_EQ(play.Desk.Text("lblcost2"), "Cost : $800000");
  EXPECT_TRUE(play.Desk.Checked("opt1"));
  play.Desk.Check("opt2");
  play.World().Player().Money = 799999;
  play.Desk.ExpectSay("Error!", "You cannot afford the cost!");
  play.Desk.Click("cmddoit");
  ASSERT_EQ(play.Desk.TopName(), "frmTakeover");
  play.World().Player().Money = 800000;
  play.Desk.ExpectSay("Done!", "Takeover completed!");
  play.Desk.Click("cmddoit");
  ASSERT_EQ(play.Desk.TopName(), "frmOtherFed");
  EXPECT_EQ(play.Desk.FirstColumn("lstfeds"), Names{"CWA Wrestling"});
  EXPECT_FALSE(play.Desk.Enabled("cmdbuyout"));
  EXPECT_EQ(play.World().Player().Money, 0);
  EXPECT_EQ(Named(play.World().Workers(), "Champ").Employer, 0);
  EXPECT_EQ(FaultsOf(play.World()), "") << "marked until the day ends";
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.World().Promotions().Count(), 1);
  EXPECT_EQ(FaultsOf(play.World()), "");
}

TEST(frmTakeover, IsNotReachedWhereNobodySells) {
  for (const bool owned : {true, false}) {
    GameOnWorld play(ForSale(-624999));  // a dollar less debt than a quarter of the line
    if (!owned) Named(play.World().AllStaff(), "Sir Sell").Employer = 0;
    ChooseRival(play);
    play.Desk.ExpectSay("Rejected!", owned ? "XWF owner Sir Sell is not interested in selling."
                                           : "The XWF board are not interested in selling.");
    play.Desk.Click("cmdbuyout");
    EXPECT_EQ(play.Desk.TopName(), "frmOtherFed");
    Named(play.World().Promotions(), "XWF").Money = -625000;
    play.Desk.ExpectSay("Accepted!", kAnyText);
    play.Desk.Click("cmdbuyout");
  }
}

TEST(Bankruptcy, WarnsAndClosesAtTheLinesOfTheSize) {
  struct Row {
    int Money;
    bool Warned, Closed;
    const char* InWords;
  };
  for (const Row& row : {Row{6000000, false, false, "Rich"},
                         {5999999, false, false, "Comfortable"},
                         {1999999, false, false, "Sound"},
                         {799999, false, false, "Short of money"},
                         {0, false, false, "Scraping by"},
                         {-2300000, false, false, "In debt"},
                         {-2300001, true, false, "Close to bankruptcy"},
                         {-2499999, true, false, "Close to bankruptcy"},
                         {-2500000, false, false, "Close to bankruptcy"},
                         {-2500001, false, true, "Close to bankruptcy"}})
    for (const int promotion : {1, 2}) {
      SCOPED_TRACE(row.Money);
      EXPECT_EQ(MoneyInWords(kRegional, row.Money), row.InWords);
      World world = SmallWorld().Promotion("P1").Promotion("P2").Game("P1");
      world.Promotions()[promotion].Money = row.Money;
      BankruptcyCheck(world);
      EXPECT_EQ(world.Game().EndCode, row.Closed && promotion == 1 ? kEndBankrupt : 0);
      EXPECT_EQ(world.Promotions()[2].Name == kToBeDeleted, row.Closed && promotion == 2);
      const char* warning = promotion == 1 ? "Finance Dept.: The bank are warning that we face "
                                             "bankruptcy if our finances fall much lower!\n"
                                           : "P2 News: P2 Wrestling have issued a bankruptcy "
                                             "warning!\n";
      const char* closed = promotion == 1 ? "" : "P2 News: P2 Wrestling have gone bankrupt!\n";
      EXPECT_EQ(NewsOf(world), row.Warned ? warning : row.Closed ? closed : "");
    }
}

}  // namespace
}  // namespace grapplemont::test
