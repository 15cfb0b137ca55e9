#include <gtest/gtest.h>

#include "calendar/incidents.h"
#include "records/modVar.h"
#include "roster/talks.h"
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
  small.Worker("Rival Star", kMainEvent, 80).Promotion("BRD", kRegional).Game("CWA");
  return small;
}

struct Listed {
  int Type;
  const char* Whose;
};

World WithIncidents(SmallWorld& small, const std::vector<Listed>& list) {
  World world = small.Build();
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
  ~Backstage() { ExpectSound(Play.World()); }
  Worker& Who(const char* name) { return Named(Play.World().Workers(), name); }
  std::string Told() { return Play.Desk.Text("txtincident"); }
  bool Waits() { return Play.Desk.TopName() == "frmIncident"; }

  GameOnWorld Play;
};

TEST(IncidentScreen, TellsOfEachKind) {
  const struct {
    Listed What;
    std::initializer_list<ScriptedDraw> Draws;
    const char* Words;
  } kCases[] = {
      {{kPolice, "Ann Teal"},
       {},
       "Ann Teal has been involved in a police incident! Apparently she was carrying drugs when "
       "stopped."},
      {{kRehab, "Cal Drift"},
       {{3, 1}},
       "Cal Drift has been forced to check into rehab because of personal problems!\nThe stay "
       "takes 2 months."},
      {{kJobOffer, "BRD"}, {}, "The BRD board would like to offer you a job. "},
  };
  for (const auto& c : kCases) {
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

TEST(IncidentScreen, FiresWithoutABuyOutWhomTheContractDoesNotProtect) {
  Backstage backstage({{kFight, "Bram Okafor"}, {kLate, "Ilya Marsh"}}, Company(), {{3, 2}});
  ScriptDesk& desk = backstage.Play.Desk;
  backstage.Who("Bram Okafor").Unsackable = true;
  backstage.Who("Bram Okafor").ContractMonths = kNoEnd;
  desk.CloseAll();
  desk.Open("frmMainScreen");
  EXPECT_FALSE(desk.Enabled("cmdfire"));
  EXPECT_EQ(desk.Tip("cmdfire"), "The contract does not allow it.");
  EXPECT_FALSE(desk.Visible("lbldone"));
  desk.Click("cmdignore");
  EXPECT_EQ(desk.Text("lbldone"), "What Bram Okafor did was ignored.");
  const int money = backstage.Play.World().Player().Money;
  desk.ExpectAsk("Fire?", "Are you sure you wish to fire Ilya Marsh?", false);
  desk.Click("cmdfire");
  EXPECT_TRUE(backstage.Waits());
  EXPECT_NE(backstage.Who("Ilya Marsh").Employer, 0);
  desk.ExpectAsk("Fire?", kAnyText, true, ui::Default::No);
  desk.Click("cmdfire");
  EXPECT_FALSE(backstage.Waits());
  EXPECT_EQ(backstage.Who("Ilya Marsh").Employer, 0);
  EXPECT_EQ(backstage.Play.World().Player().Money, money);
  EXPECT_TRUE(
      desk.Text("lblfacts").ends_with(" What Bram Okafor did was ignored. Ilya Marsh was fired."));
}

TEST(IncidentScreen, GoesOnWhereItWasClosed) {
  Backstage backstage({{kFight, "Bram Okafor"}, {kInjury, "Cal Drift"}, {kLate, "Ilya Marsh"}},
                      Company(), {{12, 1}, {6, 4}});
  GameOnWorld& play = backstage.Play;
  const std::string hurt = "Cal Drift has sustained an injury!\nBroken Arm, out for 4 months.";
  EXPECT_EQ(play.Desk.Text("lblleft"), "And 2 more.");
  const std::string answers = play.Desk.Text("txtchoices");
  EXPECT_NE(answers.find("Suspend 3 Months: not to be booked in that time, and " +
                         Dollars(3LL * MonthlyWage(backstage.Who("Bram Okafor"))) + " paid"),
            std::string::npos)
      << answers;
  play.Desk.Click("cmdsuspend(1)");
  EXPECT_EQ(backstage.Told(), hurt);
  play.Desk.CloseAll();
  play.Reopen();
  ScriptDraws(play.World(), {});
  play.Desk.Open("frmMainScreen");
  EXPECT_EQ(backstage.Told(), hurt) << "hurt once, and nothing is drawn again";
  EXPECT_EQ(play.Desk.Text("lblleft"), "And 1 more.");
  play.Desk.Click("cmdignore");
  EXPECT_EQ(backstage.Told(), "Ilya Marsh showed up very late to our last show!");
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
  small.Network("Nine").Title("BRD Crown");
  small.Game("CWA", kGameStart, [](GameInfo& game) {
    game.TapeWait = game.TvOfferWait = 1;
    for (std::size_t i = 1; i < game.Jobs.size(); ++i) {
      game.Jobs[i].Promotion = "Former " + std::to_string(i);
      game.Jobs[i].EndImage = 10 + static_cast<int>(i);
    }
  });
  small.Feud("Bram Okafor", "Ilya Marsh");
  // The fighter is a rival's once the job is taken.
  World world = WithIncidents(small, {{kJobOffer, "NEW"}, {kFight, "Bram Okafor"}});
  world.Player().Image = 71;
  Named(world.Workers(), "Bram Okafor").TurnPending = true;
  Named(world.Workers(), "Bram Okafor").Debuted = false;
  Title& crown = Named(world.Titles(), "BRD Crown");
  crown.Owner = world.PlayerUid();
  crown.Suspended = true;
  Show show;
  show.Owner = Named(world.Promotions(), "NEW").Uid;
  show.Network = world.Networks()[1].Uid;
  show.Name = "Slam";
  show.Announcer = Named(world.AllStaff(), "Lou Hart").Uid;
  show.Colour = Named(world.Workers(), "Moe Flint").Uid;
  show.ColourIsWorker = true;
  world.Shows().Append(show);
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
  EXPECT_EQ(game.TapeWait, 0);
  EXPECT_EQ(game.TvOfferWait, 0);
  EXPECT_EQ(play.World().Session.StartSize, kNational);
  const char* kJobs[] = {"NEW Wrestling", "CWA Wrestling", "Former 1", "Former 2", "Former 3"};
  constexpr int kEndImages[] = {0, 71, 11, 12, 13};
  for (std::size_t i = 0; i < 5; ++i) {
    EXPECT_EQ(game.Jobs[i].Promotion.View(), kJobs[i]);
    EXPECT_EQ(game.Jobs[i].EndImage, kEndImages[i]) << i;
  }
  EXPECT_EQ(game.Jobs[0].StartImage, 50);
  EXPECT_EQ(game.Jobs[0].StartSize, kNational);
  EXPECT_EQ(game.Jobs[1].EndSize, kCult);
  EXPECT_EQ(Day(game.Jobs[0].Started), Day(game.Today));
  EXPECT_EQ(play.World().Feuds()[1].Worker1, 0);
  const Worker& bram = Named(play.World().Workers(), "Bram Okafor");
  EXPECT_TRUE(bram.Debuted && !bram.TurnPending) << "a rival makes no use of what one had in mind";
  EXPECT_FALSE(play.World().Titles()[1].Suspended);
  EXPECT_EQ(play.World().Shows()[1].Announcer, show.Announcer);
  EXPECT_EQ(play.World().Shows()[1].Colour, 0) << "they work elsewhere";
  EXPECT_FALSE(play.World().Shows()[1].ColourIsWorker);
}

}  // namespace
}  // namespace grapplemont::test
