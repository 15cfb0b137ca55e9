#include <gtest/gtest.h>

#include "calendar/incidents.h"
#include "records/checks/checkworld.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"

namespace grapplemont::test {
namespace {

SmallWorld Company() {
  SmallWorld small;
  small.Promotion("CWA", kCult).Owner("Ruth Vane");
  small.Worker("Bram Okafor", kMainEvent, 80)
      .Worker("Ilya Marsh")
      .Worker("Ann Teal", [](Worker& w) { w.Gender = false; });
  small.Worker("Cal Drift").Worker("Moe Flint").Promotion("NEW", kNational).Owner("Lou Hart");
  small.Worker("Rival Star", kMainEvent, 80).Promotion("BRD", kRegional);
  return small;
}

struct Listed {
  int Type;
  const char* Whose;
};

World WithIncidents(SmallWorld& small, const std::vector<Listed>& list) {
  World world = small.Game("CWA");
  std::vector<Incident> incidents(10);
  for (std::size_t i = 0; i < list.size(); ++i) {
    incidents[i].Type = list[i].Type;
    incidents[i].Uid = list[i].Type == kJobOffer ? int(Named(world.Promotions(), list[i].Whose).Uid)
                                                 : int(Named(world.Workers(), list[i].Whose).Uid);
  }
  world.Incidents().Rewrite(incidents);
  return world;
}

/// An opened list; the main screen stands behind it.
struct Backstage {
  explicit Backstage(const std::vector<Listed>& list, SmallWorld small = Company(),
                     std::initializer_list<ScriptedDraw> draws = {})
      : Play(WithIncidents(small, list)) {
    ScriptDraws(Play.World(), draws);
    Play.Desk.Open("frmMainScreen");
  }
  ~Backstage() {
    for (const Fault& fault : CheckWorld(Play.World())) ADD_FAILURE() << fault.Line();
  }
  Worker& Who(const char* name) { return Named(Play.World().Workers(), name); }
  std::string Told() { return Play.Desk.Text("txtincident"); }
  bool Waits() { return Play.Desk.TopName() == "frmIncident"; }

  GameOnWorld Play;
};

TEST(IncidentScreen, TellsOfEachKind) {
  struct Case {
    Listed What;
    std::initializer_list<ScriptedDraw> Draws;
    const char* Words;
  };
  const Case kCases[] = {
      {{kFight, "Bram Okafor"}, {}, "Bram Okafor has been involved in a backstage fight!"},
      {{kLate, "Ilya Marsh"}, {}, "Ilya Marsh showed up very late to our last show!"},
      {{kPolice, "Cal Drift"},
       {},
       "Cal Drift has been involved in a police incident! Apparently he was carrying drugs when "
       "stopped."},
      {{kPolice, "Ann Teal"},
       {},
       "Ann Teal has been involved in a police incident! Apparently she was carrying drugs when "
       "stopped."},
      {{kRehab, "Cal Drift"},
       {{3, 1}},
       "Cal Drift has been forced to check into rehab because of personal problems!\nThe stay "
       "takes 2 months."},
      {{kInjury, "Moe Flint"},
       {{12, 9}, {6, 1}},
       "Moe Flint has sustained an injury!\nKnee Injury, out for 1 month."},
      {{kJobOffer, "NEW"}, {}, "NEW owner Lou Hart would like to offer you a job. "},
      {{kJobOffer, "BRD"}, {}, "The BRD board would like to offer you a job. "},
  };
  for (const Case& c : kCases) {
    Backstage backstage({c.What}, Company(), c.Draws);
    ASSERT_TRUE(backstage.Waits());
    EXPECT_EQ(backstage.Told(), c.Words);
    EXPECT_EQ(backstage.Play.Desk.Visible("cmdfire"), c.What.Type != kJobOffer);
    for (const char* button : {"cmdsuspend(1)", "cmdsuspend(2)", "cmdsuspend(3)", "cmdsuspend(4)"})
      EXPECT_EQ(backstage.Play.Desk.Visible(button), c.What.Type <= kPolice) << c.Words;
    EXPECT_EQ(backstage.Play.Desk.Visible("cmdaccept"), c.What.Type == kJobOffer);
    backstage.Play.Desk.Click("cmdignore");
    EXPECT_FALSE(backstage.Waits());
    EXPECT_EQ(backstage.Play.World().Incidents()[1].Type, 0);
  }
}

TEST(IncidentScreen, SuspendsForTheMonthsOfTheButton) {
  constexpr int kMonths[] = {1, 3, 6, 12};
  for (int i = 1; i <= 4; ++i) {
    Backstage backstage({{kFight, "Bram Okafor"}});
    EXPECT_EQ(backstage.Play.Desk.Text("cmdsuspend(" + std::to_string(i) + ")"),
              "Suspend " + std::to_string(kMonths[i - 1]) + (i == 1 ? " Month" : " Months"));
    backstage.Play.Desk.Click("cmdsuspend(" + std::to_string(i) + ")");
    EXPECT_EQ(backstage.Who("Bram Okafor").Status.View(), "Sus");
    EXPECT_EQ(backstage.Who("Bram Okafor").StatusMonths, kMonths[i - 1]);
    EXPECT_FALSE(backstage.Waits());
  }
}

TEST(IncidentScreen, FiresWithoutABuyOut) {
  Backstage backstage({{kLate, "Ilya Marsh"}}, Company(), {{3, 2}});
  const int money = backstage.Play.World().Player().Money;
  backstage.Play.Desk.ExpectAsk("Fire?", "Are you sure you wish to fire Ilya Marsh?", false);
  backstage.Play.Desk.Click("cmdfire");
  EXPECT_TRUE(backstage.Waits());
  EXPECT_NE(backstage.Who("Ilya Marsh").Employer, 0);
  backstage.Play.Desk.ExpectAsk("Fire?", "Are you sure you wish to fire Ilya Marsh?", true,
                                ui::Default::No);
  backstage.Play.Desk.Click("cmdfire");
  EXPECT_FALSE(backstage.Waits());
  EXPECT_EQ(backstage.Who("Ilya Marsh").Employer, 0);
  EXPECT_EQ(backstage.Play.World().Player().Money, money);
}

TEST(IncidentScreen, CannotFireWhomTheContractProtects) {
  SmallWorld small = Company();
  World world = WithIncidents(small, {{kFight, "Bram Okafor"}});
  Named(world.Workers(), "Bram Okafor").Unsackable = true;
  Named(world.Workers(), "Bram Okafor").ContractMonths = kNoEnd;
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmMainScreen");
  EXPECT_FALSE(play.Desk.Enabled("cmdfire"));
  EXPECT_EQ(play.Desk.Tip("cmdfire"), "The contract does not allow it.");
  EXPECT_TRUE(play.Desk.Enabled("cmdsuspend(2)"));
}

TEST(IncidentScreen, GoesOnWhereItWasClosed) {
  Backstage backstage({{kFight, "Bram Okafor"},
                       {kInjury, "Cal Drift"},
                       {kLate, "Ilya Marsh"},
                       {kPolice, "Moe Flint"}},
                      Company(), {{12, 1}, {6, 4}});
  GameOnWorld& play = backstage.Play;
  EXPECT_EQ(play.Desk.Text("lblleft"), "And 3 more.");
  play.Desk.Click("cmdsuspend(1)");
  EXPECT_EQ(backstage.Told(), "Cal Drift has sustained an injury!\nBroken Arm, out for 4 months.");
  play.Desk.CloseAll();
  play.Reopen();
  ScriptDraws(play.World(), {});
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(backstage.Told(), "Cal Drift has sustained an injury!\nBroken Arm, out for 4 months.")
      << "hurt once, and nothing is drawn again";
  EXPECT_EQ(play.Desk.Text("lblleft"), "And 2 more.");
  play.Desk.Click("cmdignore");
  EXPECT_EQ(backstage.Told(), "Ilya Marsh showed up very late to our last show!");
  play.Desk.Click("cmdignore");
  EXPECT_EQ(play.Desk.Text("lblleft"), "");
  play.Desk.Click("cmdignore");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_EQ(backstage.Who("Bram Okafor").Status.View(), "Sus");
}

TEST(IncidentScreen, PassesOverWhoIsGoneMeanwhile) {
  SmallWorld small = Company();
  World world = WithIncidents(small, {{kRehab, "Bram Okafor"},
                                      {kInjury, "Ilya Marsh"},
                                      {kJobOffer, "NEW"},
                                      {kFight, "Moe Flint"},
                                      {kFight, "Rival Star"}});
  Named(world.Workers(), "Bram Okafor").Employer = 0;
  Named(world.Workers(), "Bram Okafor").ContractMonths = 0;
  world.Incidents()[2].Uid = 999;
  world.Incidents()[3].Uid = 99;
  GameOnWorld play(std::move(world));
  ScriptDraws(play.World(), {});
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Text("txtincident"), "Moe Flint has been involved in a backstage fight!");
  EXPECT_EQ(Named(play.World().Workers(), "Bram Okafor").Status.View(), "Nor");
  play.Desk.Click("cmdignore");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
}

TEST(IncidentScreen, AcceptsAJobAndMovesTheFormerOnesOn) {
  SmallWorld small = Company();
  small.Network("Nine").Network("Ten");
  small.Game("CWA", kGameStart, [](GameInfo& game) {
    game.TapeWait = 1;
    game.TvOfferWait = 2;
    for (std::size_t i = 1; i < game.Jobs.size(); ++i) {
      game.Jobs[i].Promotion = "Former " + std::to_string(i);
      game.Jobs[i].Started = kGameStart - std::chrono::days{100 * static_cast<int>(i)};
      game.Jobs[i].EndImage = 10 + static_cast<int>(i);
      game.Jobs[i].EndSize = kSmall;
    }
  });
  small.Feud("Bram Okafor", "Ilya Marsh");
  World world = small.Build();
  world.Player().Image = 71;
  std::vector<Incident> incidents(10);
  incidents[0].Type = kJobOffer;
  incidents[0].Uid = Named(world.Promotions(), "NEW").Uid;
  incidents[1].Type = kFight;  // whose worker is a rival's then
  incidents[1].Uid = Named(world.Workers(), "Bram Okafor").Uid;
  world.Incidents().Rewrite(incidents);
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(play.Desk.Text("lblabout"), "NEW Wrestling: National, image 50%.");
  const char* question = "Are you sure you wish to leave CWA Wrestling for NEW Wrestling?";
  play.Desk.ExpectAsk("Job Offer", question, false, ui::Default::No);
  play.Desk.Click("cmdaccept");
  EXPECT_EQ(play.World().Player().Initials.View(), "CWA");
  play.Desk.ExpectAsk("Job Offer", question, true);
  play.Desk.Click("cmdaccept");
  EXPECT_EQ(play.Desk.TopName(), "frmMainScreen");
  EXPECT_EQ(play.Desk.Text("cmdfed"), "NEW");

  const GameInfo& game = play.World().Game();
  EXPECT_EQ(game.PlayerPromotion, Named(play.World().Promotions(), "NEW").Uid);
  EXPECT_EQ(game.TapeWait, 0);
  EXPECT_EQ(game.TvOfferWait, 0);
  EXPECT_EQ(play.World().Session.StartSize, kNational);
  struct Slot {
    const char* Name;
    int StartImage, StartSize, EndImage, EndSize;
  };
  constexpr Slot kSlots[] = {{"NEW Wrestling", 50, kNational, 0, 0},
                             {"CWA Wrestling", 50, kCult, 71, kCult},
                             {"Former 1", 0, 0, 11, kSmall},
                             {"Former 2", 0, 0, 12, kSmall},
                             {"Former 3", 0, 0, 13, kSmall}};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(game.Jobs[i].Promotion.View(), kSlots[i].Name);
    EXPECT_EQ(game.Jobs[i].StartImage, kSlots[i].StartImage) << i;
    EXPECT_EQ(game.Jobs[i].StartSize, kSlots[i].StartSize) << i;
    EXPECT_EQ(game.Jobs[i].EndImage, kSlots[i].EndImage) << i;
    EXPECT_EQ(game.Jobs[i].EndSize, kSlots[i].EndSize) << i;
  }
  EXPECT_EQ(Day(game.Jobs[0].Started), Day(game.Today));
  EXPECT_EQ(Day(game.Jobs[2].Started), kGameStart - std::chrono::days{100});
  for (const Feud& feud : play.World().Feuds()) EXPECT_EQ(feud.Worker1, 0);
  for (const Fault& fault : CheckWorld(play.World())) ADD_FAILURE() << fault.Line();
}

}  // namespace
}  // namespace grapplemont::test
