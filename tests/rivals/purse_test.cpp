#include "rivals/purse.h"

#include <gtest/gtest.h>

#include <cstring>

#include "calendar/advanceday.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "rivals/faults.h"
#include "rivals/rivals.h"
#include "support/gameonworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

using Names = std::vector<std::string>;

/// A Regional rival in debt with one of everything.
SmallWorld ForSale(int money = -700000, const Change<SmallWorld>& others = {}) {
  SmallWorld small;
  small.Network("Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Worker("Mine", kMainEvent, 80)
      .Promotion("XWF", kRegional,
                 [=](Promotion& p) {
                   p.Money = money;
                   p.LastMonth.StaffWages = 20000;
                   p.LastMonth.WrestlerWages = 80000;
                 })
      .Owner("Sir Sell")
      .Staff("Coach", kTrainer, 50, [](Staff& s) { s.ContractMonths = 24; })
      .Staff("Pen", kWriter, 50,
             [](Staff& s) {
               s.ContractMonths = 1;
               s.Morale = 4;
               s.Booker = true;
             })
      .Staff("Voice", kAnnouncer, 50,
             [](Staff& s) {
               s.Unsackable = true;
               s.ContractMonths = kNoEnd;
               s.ContractType = "Wri";
             })
      .Worker("Champ", kMainEvent, 70)
      .Worker("Home Body", kMidcard, 30,
              [](Worker& w) {
                w.Status = "Hom";
                w.Morale = 3;
                w.ContractMonths = 1;
                w.Unsackable = false;
              })
      .Worker("Safe", kMidcard, 45,
              [](Worker& w) {
                w.Unsackable = true;
                w.ContractMonths = kNoEnd;
              })
      .Worker("Corner", kManager, 40)
      .Worker("Boss", kNonWrestler, 40)
      .Worker("Camper", kTrainingCamp, 20, [](Worker& w) { w.ContractMonths = 2; })
      .Stable("The Firm", {"Champ", "Safe"})
      .Title("XWF Crown", "Champ")
      .Title("XWF Tag Titles", "Champ", "Safe")
      .Show("Slam", "Monday", "Nine")
      .Sponsor("Gulp")
      .Event(5);
  if (others) others(small);
  small.Game("CWA");
  return small;
}

World Sold() {
  World world = ForSale();
  Promotion& rival = Named(world.Promotions(), "XWF");
  rival.Commissioner = Named(world.Workers(), "Boss").Uid;
  rival.HeadTrainer = Named(world.AllStaff(), "Coach").Uid;
  rival.DevBooker = Named(world.AllStaff(), "Pen").Uid;
  Named(world.Workers(), "Champ").Manager = Named(world.Workers(), "Corner").Uid;
  Named(world.Workers(), "Champ").TurnPending = true;
  EXPECT_EQ(FaultsOf(world), "");
  return world;
}

/// The day's end.
void Sweep(World& world) {
  SweepDeadPromotions(world);
  SweepDeadShows(world);
}

void ExpectNothingIsLeft(World& world) {
  Sweep(world);
  EXPECT_EQ(FaultsOf(world), "");
  EXPECT_EQ(world.Promotions().Count(), 1);
  EXPECT_EQ(world.Shows().Count(), 0);
  EXPECT_EQ(world.Sponsors()[1].Promotion, 0);
  EXPECT_EQ(world.Events()[1].Owner, 0);
  EXPECT_EQ(world.Stables()[1].Owner, kNoEnd);
  for (const Title& title : world.Titles()) {
    EXPECT_EQ(title.Owner, kNoEnd);
    EXPECT_EQ(title.Holder, 0);
    EXPECT_EQ(title.Partner, 0);
  }
  EXPECT_EQ(Named(world.AllStaff(), "Sir Sell").Employer, 0);
}

TEST(Takeover, BringsThePeopleOver) {
  World world = Sold();
  world.Player().Money = 1000000;
  TakeOverRival(world, Named(world.Promotions(), "XWF"), Takeover::Complete);
  EXPECT_EQ(world.Player().Money, 300000);
  EXPECT_EQ(world.Promotions()[2].Name.Str(), kToBeDeleted);
  struct Row {
    const char* Name;
    int Position, Months, Morale;
  };
  for (const Row& row : {Row{"Champ", kMainEvent, 12, 80}, Row{"Home Body", kLowerMidcard, 3, 10},
                         Row{"Safe", kMidcard, 3, 80}, Row{"Corner", kManager, 12, 80},
                         Row{"Boss", kNonWrestler, 12, 80}, Row{"Camper", kOpener, 2, 80}}) {
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
  struct StaffRow {
    const char* Name;
    int Months, Morale;
  };
  for (const StaffRow& row : {StaffRow{"Coach", 24, 80}, {"Pen", 3, 10}, {"Voice", 3, 80}}) {
    const Staff& staff = Named(world.AllStaff(), row.Name);
    EXPECT_EQ(staff.Employer, world.PlayerUid()) << row.Name;
    EXPECT_EQ(staff.ContractMonths, row.Months) << row.Name;
    EXPECT_EQ(staff.Morale, row.Morale) << row.Name;
    EXPECT_FALSE(staff.Unsackable) << row.Name;
  }
  EXPECT_EQ(world.Promotions()[2].HeadTrainer, 0);
  EXPECT_EQ(world.Promotions()[2].DevBooker, 0);
  ExpectNothingIsLeft(world);
  EXPECT_EQ(OwnerOf(world, world.PlayerUid())->Name.Str(), "Ruth Vane");
}

TEST(Takeover, DestroysForAMonthsWagesMore) {
  World world = Sold();
  world.Player().Money = 1000000;
  TakeOverRival(world, Named(world.Promotions(), "XWF"), Takeover::Destruction);
  EXPECT_EQ(world.Player().Money, 200000);
  for (const Worker& worker : world.Workers())
    EXPECT_EQ(worker.Employer, worker.Name == "Mine" ? world.PlayerUid() : 0) << worker.Name.Str();
  EXPECT_EQ(Named(world.AllStaff(), "Coach").Employer, 0);
  ExpectNothingIsLeft(world);
}

TEST(Takeover, LeavesEverybodyElseAlone) {
  for (const Takeover kind : {Takeover::Complete, Takeover::Destruction}) {
    World world = ForSale(-700000, [](SmallWorld& small) {
      small.Promotion("YWF", kRegional)
          .Owner("Ann Else")
          .Staff("Other Voice", kAnnouncer)
          .Worker("Elsewhere", kMainEvent, 60)
          .Stable("The Others", {"Elsewhere"})
          .Title("YWF Crown", "Elsewhere")
          .Show("Rumble", "Friday", "Nine")
          .Sponsor("Chew")
          .Event(6);
    });
    const Promotion before = Named(world.Promotions(), "YWF");
    const Worker worker = Named(world.Workers(), "Elsewhere");
    TakeOverRival(world, Named(world.Promotions(), "XWF"), kind);
    Sweep(world);
    EXPECT_EQ(FaultsOf(world), "");
    ASSERT_EQ(world.Promotions().Count(), 2);
    const Promotion& other = Named(world.Promotions(), "YWF");
    EXPECT_EQ(std::memcmp(&other, &before, sizeof other), 0);
    EXPECT_EQ(std::memcmp(&Named(world.Workers(), "Elsewhere"), &worker, sizeof worker), 0);
    ASSERT_EQ(world.Shows().Count(), 1);
    EXPECT_EQ(world.Shows()[1].Name.Str(), "Rumble");
    EXPECT_EQ(Named(world.Titles(), "YWF Crown").Owner, other.Uid);
    EXPECT_EQ(Named(world.Titles(), "YWF Crown").Holder, worker.Uid);
    EXPECT_EQ(Named(world.Sponsors(), "Chew").Promotion, other.Uid);
    EXPECT_EQ(Named(world.Events(), "YWF in June").Owner, other.Uid);
    EXPECT_EQ(Named(world.Stables(), "The Others").Owner, other.Uid);
    for (const char* name : {"Ann Else", "Other Voice"})
      EXPECT_EQ(Named(world.AllStaff(), name).Employer, other.Uid);
  }
}

TEST(Takeover, IsForWhoeverIsDeepEnoughInDebt) {
  const int kLimits[6] = {-5000000, -3750000, -1250000, -625000, -250000, -125000};
  for (int size = 1; size <= 6; ++size) {
    Promotion rival;
    rival.Size = size;
    rival.Money = kLimits[size - 1];
    EXPECT_TRUE(IsForSale(rival)) << size;
    rival.Money = kLimits[size - 1] + 1;
    EXPECT_FALSE(IsForSale(rival)) << size;
  }
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
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.World().Promotions().Count(), 1);
  EXPECT_EQ(FaultsOf(play.World()), "");
}

TEST(frmTakeover, IsNotReachedWhereNobodySells) {
  for (const bool owned : {true, false}) {
    GameOnWorld play(ForSale(-624999));
    if (!owned) Named(play.World().AllStaff(), "Sir Sell").Employer = 0;
    ChooseRival(play);
    play.Desk.ExpectSay("Rejected!", owned ? "XWF owner Sir Sell is not interested in selling."
                                           : "The XWF board are not interested in selling.");
    play.Desk.Click("cmdbuyout");
    EXPECT_EQ(play.Desk.TopName(), "frmOtherFed");
  }
}

World Two(int size) {
  World world = SmallWorld().Promotion("P1", size).Promotion("P2", size).Game("P1");
  world.Game().MailOtherFed = 0;
  return world;
}

/// The first of April comes to a rival with one of everything, and to the player.
World LastDayOfMarch(const Change<Promotion>& change) {
  World world = SmallWorld()
                    .Network("Nine")
                    .Promotion("CWA", kRegional)
                    .Owner("Ruth Vane")
                    .Crew(8)
                    .Promotion("XWF", kRegional, change)
                    .Owner("Sir Sink")
                    .Staff("Coach", kTrainer)
                    .Crew(8)
                    .Stable("The Firm", {"XWF Hand 1", "XWF Hand 2"})
                    .Title("XWF Crown", "XWF Hand 1")
                    .Show("Slam", "Monday", "Nine")
                    .Sponsor("Gulp")
                    .Event(5)
                    .Game("CWA", Day{std::chrono::year{2026} / 3 / 31});
  Promotion& rival = world.Promotions()[2];
  rival.HeadTrainer = Named(world.AllStaff(), "Coach").Uid;
  Worker& commissioner = Named(world.Workers(), "XWF Hand 3");
  commissioner.Position = kNonWrestler;
  rival.Commissioner = commissioner.Uid;
  rival.Split[0] = "Red";
  Named(world.Workers(), "XWF Hand 4").Split = "Red";
  world.Game().MailOtherFed = 0;
  world.SetChance(std::make_unique<SeededDraws>(7));
  return world;
}

TEST(Bankruptcy, WarnsAndClosesAtTheLinesOfEachSize) {
  const int kLines[6][3] = {{-19999999, -18000000, -20000000}, {-14999999, -13000000, -15000000},
                            {-4999999, -4400000, -5000000},    {-2499999, -2300000, -2500000},
                            {-999999, -800000, -1000000},      {-499999, -420000, -500000}};
  for (int size = 1; size <= 6; ++size) {
    const auto& [from, below, line] = kLines[size - 1];
    struct Row {
      int Money;
      bool Warned, Closed;
    };
    for (const Row& row :
         {Row{below, false, false}, Row{below - 1, true, false}, Row{from, true, false},
          Row{from - 1, false, false}, Row{line, false, false}, Row{line - 1, false, true}}) {
      SCOPED_TRACE(std::to_string(size) + " with " + std::to_string(row.Money));
      World world = Two(size);
      world.Promotions()[2].Money = row.Money;
      BankruptcyCheck(world);
      EXPECT_EQ(world.Promotions()[2].Name == kToBeDeleted, row.Closed);
      EXPECT_EQ(NewsOf(world), row.Warned   ? "P2 News: P2 Wrestling have issued a bankruptcy "
                                              "warning!\n"
                               : row.Closed ? "P2 News: P2 Wrestling have gone bankrupt!\n"
                                            : "");
      EXPECT_EQ(world.Game().EndCode, 0);

      World own = Two(size);
      own.Promotions()[1].Money = row.Money;
      BankruptcyCheck(own);
      EXPECT_EQ(own.Game().EndCode, row.Closed ? 2 : 0);
      EXPECT_EQ(NewsOf(own), row.Warned ? "Finance Dept.: The bank are warning that we face "
                                          "bankruptcy if our finances fall much lower!\n"
                                        : "");
    }
  }
}

TEST(Bankruptcy, IsTheEndOfEverythingThatARivalHad) {
  struct Row {
    Change<Promotion> Falls;
    const char* Mail;
  };
  const Row kRows[] = {
      {[](Promotion& p) { p.Money = -4000000; }, "XWF News: XWF Wrestling have gone bankrupt!\n"},
      {[](Promotion& p) {
         p.Money = 0;
         p.LoanAmount = 50000000;
         p.LoanMonths = 12;
         p.LoanMissed = 2;
       },
       "XWF News: XWF have gone out of business!\n"}};
  for (const Row& row : kRows) {
    World world = LastDayOfMarch(row.Falls);
    ASSERT_EQ(FaultsOf(world), "");
    AdvanceDay(world, false);
    EXPECT_NE(NewsOf(world).find(row.Mail), std::string::npos) << NewsOf(world);
    EXPECT_EQ(FaultsOf(world), "");
    EXPECT_EQ(world.FindPromotion(2), nullptr);
    for (const Worker& worker : world.Workers()) {
      EXPECT_NE(worker.Employer, 2);
      EXPECT_EQ(worker.Split.Str(), "None") << worker.Name.Str();
    }
    for (const Staff& staff : world.AllStaff()) EXPECT_NE(staff.Employer, 2);
    EXPECT_EQ(Named(world.Titles(), "XWF Crown").Owner, kNoEnd);
    EXPECT_EQ(Named(world.Titles(), "XWF Crown").Holder, 0);
    EXPECT_EQ(world.Shows().Count(), 0);
    EXPECT_EQ(Named(world.Sponsors(), "Gulp").Promotion, 0);
  }
}

}  // namespace
}  // namespace grapplemont::test
