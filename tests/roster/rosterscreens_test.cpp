#include <gtest/gtest.h>

#include <algorithm>

#include "records/modWresCheck.h"
#include "storylines/titles.h"
#include "support/gameonworld.h"
#include "ui/acts.h"

// The roster, the market, the shortlist and the pages, as a player works them.

namespace grapplemont::test {
namespace {

constexpr const char* kBram = "Bram Okafor";
constexpr const char* kRay = "Rival Ray";

SmallWorld Business() {
  SmallWorld small;
  small
      .Promotion(
          "CWA", kCult,
          [](Promotion& p) {
            p.DevName = "The Yard";
            p.CampName = "The Barn";
            p.Split = {Text<10>("Red"), Text<10>("Blue"), Text<10>("None"), Text<10>("None")};
          })
      .Worker(kBram, kMainEvent, 80, [](Worker& w) { w.Wage = 40; })
      .Worker("Ilya Marsh", kMidcard, 64, [](Worker& w) { w.Split = "Red"; })
      .Worker("Low Down", kJobber, 20,
              [](Worker& w) { w.Age = 20, w.Unsackable = true, w.ContractMonths = kNoEnd; })
      .Promotion("NEW", kSmall)
      .Worker(kRay, kMainEvent, 70)
      .Worker("Fixed Fay", kOpener, 30,
              [](Worker& w) { w.Unsackable = true, w.ContractMonths = kNoEnd; })
      .OnTheMarket()
      .Worker("Free Fred", kOpener, 40)
      .Game("CWA");
  return small;
}

bool Holds(const std::string& text, std::string_view words) {
  return text.find(words) != std::string::npos;
}

TEST(frmRoster, ShowsThePlayersPeopleAndThePageOfTheChosen) {
  GameOnWorld play(Business());
  play.Desk.Open("frmRoster");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({kBram, "Ilya Marsh", "Low Down"}));
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 workers, $50,000 a month.");
  EXPECT_TRUE(play.Desk.Text("txtpage").starts_with(kBram));
  play.Desk.Pick("lstwres", "Ilya Marsh");
  EXPECT_TRUE(play.Desk.Text("txtpage").starts_with("Ilya Marsh"));
}

TEST(frmRoster, FiltersByOneAndByAll) {
  GameOnWorld play(Business());
  play.Desk.Open("frmRoster");
  play.Desk.Pick("cmbsplit", "Red");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({"Ilya Marsh"}));
  EXPECT_TRUE(play.Desk.Text("txtpage").starts_with("Ilya Marsh")) << "the choice follows";
  play.Desk.Pick("cmbposition", "Jobber");
  EXPECT_TRUE(play.Desk.FirstColumn("lstwres").empty());
  EXPECT_FALSE(play.Desk.Enabled("cmdcontract"));
  EXPECT_FALSE(play.Desk.Enabled("cmdposition"));
  EXPECT_EQ(play.Desk.Text("lblfilters"),
            "0 of 3: Position \"Jobber\" hides 2, Split \"Red\" hides 2");
  play.Desk.Pick("cmbsplit", "All");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({"Low Down"}));
  play.Desk.Click("cmdclear");
  EXPECT_EQ(play.Desk.Rows("lstwres").size(), 3U);
  EXPECT_FALSE(play.Desk.Visible("cmdclear"));
}

TEST(frmRoster, PickingMakesNoRowsAnew) {
  GameOnWorld play(Business());
  play.Desk.Open("frmRoster");
  const auto* list = dynamic_cast<ui::ListBox*>(play.Desk.Top()->Find("lstwres"));
  const unsigned before = list->Contents();
  play.Desk.Pick("lstwres", 3);
  EXPECT_EQ(list->Contents(), before);
}

TEST(frmRoster, MovesPositionsAndSaysBeforehandWhatItDoes) {
  GameOnWorld play(Business());
  play.Desk.Open("frmRoster");
  EXPECT_EQ(play.Desk.Tip("cmdposition"), "Bram Okafor has this position already.");
  play.Desk.Pick("cmbnewposition", "Upper Midcard");
  EXPECT_FALSE(play.Desk.Visible("lblmove"));
  play.Desk.Pick("cmbnewposition", "Jobber");
  EXPECT_TRUE(Holds(play.Desk.Text("lblmove"), "A fall that costs 10 morale."));
  play.Desk.Click("cmdposition");
  play.Desk.Pick("cmbnewposition", "Midcard");
  EXPECT_TRUE(Holds(play.Desk.Text("lblmove"), "A rise that gives 5 morale."));
  play.Reopen();
  EXPECT_EQ(Named(play.World().Workers(), kBram).Position, kJobber);
  EXPECT_EQ(Named(play.World().Workers(), kBram).Morale, 70);
}

TEST(frmRoster, SendsAwayAndRecalls) {
  GameOnWorld play(Business());
  Worker& bram = Named(play.World().Workers(), kBram);
  Worker& low = Named(play.World().Workers(), "Low Down");
  low.Brawl = low.Technical = low.Speed = 20;
  play.Desk.Open("frmRoster");
  play.Desk.Click("cmddevelopment");
  EXPECT_EQ(bram.Position, 81);
  EXPECT_EQ(play.Desk.Text("cmddevelopment"), "Recall From Development");
  EXPECT_FALSE(play.Desk.Enabled("cmdcamp"));
  EXPECT_FALSE(play.Desk.Enabled("cmdposition"));
  play.Desk.Click("cmddevelopment");
  EXPECT_EQ(bram.Position, kMainEvent);

  play.Desk.Pick("lstwres", "Low Down");
  play.Desk.Click("cmdcamp");
  EXPECT_EQ(low.Position, kTrainingCamp);
  EXPECT_EQ(play.Desk.Text("cmdcamp"), "Recall From Camp");
  play.Desk.Click("cmdcamp");
  EXPECT_EQ(low.Position, kJobber);
}

TEST(frmRoster, ActsOnSeveralAndSaysToWhomAndToWhomNot) {
  GameOnWorld play(Business());
  const auto choose = [&](std::vector<int> rows) {
    EXPECT_EQ(ui::PickRows(play.Desk, *play.Desk.Top(), "lstwres", std::move(rows)), "");
  };
  play.Desk.Open("frmRoster");
  choose({1, 2, 3});
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 workers, $50,000 a month.");
  EXPECT_EQ(play.Desk.Text("lblchosen"), "3 are chosen.");
  EXPECT_EQ(play.Desk.Text("cmdposition"), "Move (3)");
  play.Desk.Click("cmdcompare");
  EXPECT_EQ(play.Desk.Rows("lstmeetings").size(), 3U) << "each of the chosen against each";
  play.Desk.Click("cmdback");
  play.Desk.Pick("cmbnewposition", "Midcard");
  EXPECT_EQ(play.Desk.Text("lblmove"), "Morale: Bram Okafor -10, Low Down +5");
  play.Desk.ExpectSay("Move",
                      "Done: Bram Okafor, Low Down.\nNot done:\n"
                      "Ilya Marsh has this position already.");
  play.Desk.Click("cmdposition");
  EXPECT_EQ(Named(play.World().Workers(), kBram).Position, kMidcard);
  EXPECT_EQ(play.Desk.Selected("lstwres"), std::vector<int>({1, 2, 3})) << "the choice stays";

  choose({1, 2});
  play.Desk.ExpectSay("Send To Development", "Done: Bram Okafor, Ilya Marsh.");
  play.Desk.Click("cmddevelopment");
  EXPECT_EQ(play.Desk.Text("cmddevelopment"), "Recall From Development (2)");
  play.Desk.ExpectSay("Recall From Development", "Done: Bram Okafor, Ilya Marsh.");
  play.Desk.Click("cmddevelopment");
  EXPECT_EQ(Named(play.World().Workers(), "Ilya Marsh").Position, kMidcard);

  Named(play.World().Workers(), kBram).Morale = 10;
  Named(play.World().Workers(), "Ilya Marsh").Morale = 10;
  choose({1, 2, 3});
  play.Desk.ExpectAsk("Release", kAnyText, true, ui::Default::No);
  play.Desk.Click("cmdrelease");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({"Low Down"}));
}

TEST(frmRoster, SetsTheSplit) {
  GameOnWorld play(Business());
  play.Desk.Open("frmRoster");
  EXPECT_FALSE(play.Desk.Enabled("cmdsplit"));
  play.Desk.Pick("cmbnewsplit", "Blue");
  play.Desk.Click("cmdsplit");
  EXPECT_EQ(Named(play.World().Workers(), kBram).Split, "Blue");
  play.Desk.Pick("lstwres", "Ilya Marsh");
  EXPECT_EQ(play.Desk.Text("cmbnewsplit"), "Red");
  play.Desk.Pick("cmbnewsplit", "None");
  play.Desk.Click("cmdsplit");
  EXPECT_EQ(Named(play.World().Workers(), "Ilya Marsh").Split, "None");
}

TEST(frmRoster, HasNoTalksWithTheUnsackable) {
  GameOnWorld play(Business());
  play.Desk.Open("frmRoster");
  EXPECT_TRUE(play.Desk.Enabled("cmdcontract"));
  play.Desk.Pick("lstwres", "Low Down");
  EXPECT_FALSE(play.Desk.Enabled("cmdcontract"));
  EXPECT_TRUE(Holds(play.Desk.Tip("cmdcontract"), "Low Down is unsackable"));
  play.Desk.OpenRow("lstwres", "Low Down");
  EXPECT_EQ(play.Desk.TopName(), "frmWorker") << "a row opens the page, whatever there is to talk";
}

TEST(frmRoster, MeetsSomebodyWhoVanishedMeanwhile) {
  GameOnWorld play(Business());
  play.Desk.Open("frmRoster");
  play.Desk.Pick("cmbnewposition", "Jobber");
  Worker& bram = Named(play.World().Workers(), kBram);
  bram.Employer = 2;  // signed away under the screen
  play.Desk.Click("cmdposition");
  EXPECT_EQ(bram.Position, kMainEvent);
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({"Ilya Marsh", "Low Down"}));

  play.World().Workers().Keep([](const Worker& w) { return !(w.Name == "Ilya Marsh"); });
  play.Desk.Click("cmddevelopment");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({"Low Down"}));
}

TEST(frmOtherWres, ShowsEverybodyElse) {
  GameOnWorld play(Business());
  play.Desk.Open("frmOtherWres");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({kRay, "Free Fred", "Fixed Fay"}));
  EXPECT_EQ(play.Desk.Rows("lstwres")[0][2], "NEW");
  EXPECT_EQ(play.Desk.Rows("lstwres")[1][2], "Free");
  play.Desk.Pick("cmbbond", "Free agents");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({"Free Fred"}));
  EXPECT_EQ(play.Desk.Text("lblfacts"), "1 of 3 workers, 0 on your shortlist.");
  play.Desk.Pick("cmbbond", "All");
  play.Desk.Pick("cmbtalks", "Would listen to us");
  const Names listening = play.Desk.FirstColumn("lstwres");
  EXPECT_EQ(std::ranges::count(listening, "Fixed Fay"), 0) << "bound for good";
  EXPECT_EQ(std::ranges::count(listening, "Free Fred"), 1);
  play.Desk.Click("cmdclear");
  ASSERT_EQ(play.Desk.Rows("lstwres").size(), 3U);
  play.Desk.Pick("lstwres", "Fixed Fay");
  EXPECT_FALSE(play.Desk.Enabled("cmdcontract"));
}

TEST(frmOtherWres, ShortlistsSeveralAtOnce) {
  GameOnWorld play(Business());
  play.Desk.Open("frmOtherWres");
  EXPECT_EQ(ui::PickToo(play.Desk, *play.Desk.Top(), "lstwres", "Free Fred"), "");
  play.Desk.ExpectSay("Put On Shortlist", "Done: Rival Ray, Free Fred.");
  play.Desk.Click("cmdshortlist");
  EXPECT_EQ(play.Desk.Text("cmdshortlist"), "Take Off Shortlist (2)");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 workers, 2 on your shortlist.");
  EXPECT_EQ(play.Desk.Text("lblchosen"), "2 are chosen.");
}

TEST(frmOtherWres, KeepsTheShortlist) {
  GameOnWorld play(Business());
  play.Desk.Open("frmOtherWres");
  play.Desk.Click("cmdshortlist");
  EXPECT_EQ(play.Desk.Text("cmdshortlist"), "Take Off Shortlist");
  EXPECT_EQ(play.Desk.Text("lblfacts"), "3 workers, 1 on your shortlist.");
  EXPECT_TRUE(Holds(play.Desk.Text("txtpage"), "On your shortlist."));
  play.Desk.Pick("lstwres", "Free Fred");
  play.Desk.Click("cmdshortlist");
  play.Desk.Click("cmdlist");
  ASSERT_EQ(play.Desk.TopName(), "frmShortlist");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({kRay, "Free Fred"}));
  EXPECT_EQ(play.Desk.Rows("lstwres")[1][3], "Free to sign.");
  play.Desk.OpenRow("lstwres", kRay);
  EXPECT_EQ(play.Desk.TopName(), "frmWorker");
  play.Desk.Click("cmdback");
  play.Desk.Pick("lstwres", kRay);
  play.Desk.Click("cmdremove");
  EXPECT_EQ(play.Desk.FirstColumn("lstwres"), Names({"Free Fred"}));
  EXPECT_TRUE(play.Desk.Text("txtpage").starts_with("Free Fred"));
  play.Desk.Click("cmdremove");
  EXPECT_FALSE(play.Desk.Enabled("cmdremove"));
  play.Reopen();
  for (const Word& place : play.World().Game().Shortlist) EXPECT_EQ(place, 0);
}

TEST(frmWorker, OffersWhatAppliesAndSurvivesItsSubject) {
  GameOnWorld play(Business());
  const int ray = Named(play.World().Workers(), kRay).Uid;
  play.Play.OpenWorker(Named(play.World().Workers(), kBram).Uid);
  EXPECT_EQ(play.Desk.Title(), kBram);
  EXPECT_EQ(play.Desk.Text("cmdcontract"), "Contract");
  EXPECT_FALSE(play.Desk.Enabled("cmdshortlist"));

  play.Play.OpenWorker(ray);
  EXPECT_EQ(play.Desk.Text("cmdcontract"), "Talks");
  play.Desk.Click("cmdshortlist");
  EXPECT_TRUE(Holds(play.Desk.Text("txtpage"), "On your shortlist."));

  Named(play.World().Workers(), kRay).Uid = 900;  // somebody else has their record now
  play.Desk.Click("cmdshortlist");
  EXPECT_TRUE(Holds(play.Desk.Text("txtpage"), "not in the business any more"));
  EXPECT_FALSE(play.Desk.Enabled("cmdcontract"));
  play.Desk.Click("cmdback");
  play.Desk.ExpectSay("Gone", kAnyText);
  play.Play.OpenWorker(ray);
  EXPECT_EQ(play.Desk.Title(), kBram);
}

/// Ilya has beaten Bram for the Crown on a show whose report is kept.
World AfterAShow() {
  World world = Business().Team("Law and Order", kBram, "Ilya Marsh");
  const int cwa = world.PlayerUid(), ilya = Named(world.Workers(), "Ilya Marsh").Uid;
  Crown(world, world.Titles()[CreateTitle(world, {.Name = "CWA Crown"})], ilya, 0);
  HeldMatch match;
  match.On = kGameStart;
  match.Promotion = cwa;
  match.Row = 1;
  match.Rating = 71;
  match.Winners = 1;
  match.Title = "CWA Crown";
  match.Worker[0] = ilya;
  match.Worker[1] = Named(world.Workers(), kBram).Uid;
  match.Won = "Ilya Marsh";
  match.Lost = kBram;
  world.Bouts().Append(match);
  HistoryEntry show;
  show.On = kGameStart;
  show.Kind = kPastTv;
  show.Promotion = cwa;
  show.Name = "Sunday Slam";
  show.Size = kCult;
  world.History().Append(show);
  ReportPart part;
  part.On = kGameStart;
  part.Promotion = cwa;
  part.Kind = kShowName;
  part.Words = "Sunday Slam";
  world.Reports().Append(part);
  return world;
}

TEST(frmWorker, ShowsAtAGlanceAndLeadsOn) {
  GameOnWorld play(AfterAShow());
  Worker& bram = Named(play.World().Workers(), kBram);
  play.Play.OpenWorker(bram.Uid);
  EXPECT_EQ(play.Desk.FirstColumn("lstskills")[0], "Brawl");
  EXPECT_EQ(play.Desk.Rows("lstskills")[0][1], std::to_string(bram.Brawl));
  EXPECT_EQ(play.Desk.Text("lblform"),
            "0 won, 1 lost, 0 drawn: L, the latest first. Rated 71% on average.");
  const Names lost = {"Ilya Marsh", "Lost", "71", "Sunday Slam (Title)", "01 Mar 2026"};
  EXPECT_EQ(play.Desk.Rows("lstform")[0], lost);
  EXPECT_FALSE(play.Desk.Visible("cmdread(2)")) << "no match, no report";
  play.Desk.OpenRow("lstform", 1);
  EXPECT_EQ(play.Desk.TopName(), "frmReports");
  play.Desk.Click("cmdback");
  play.Desk.Click("cmdread(1)");
  EXPECT_EQ(play.Desk.TopName(), "frmReports");
  play.Desk.Click("cmdback");

  EXPECT_FALSE(play.Desk.Enabled("cmdpromote")) << "they are at the top";
  play.Desk.Click("cmddemote");
  EXPECT_EQ(bram.Position, kMainEvent + 1);
  play.Desk.Click("cmdturn");
  EXPECT_TRUE(bram.TurnPending);
  EXPECT_EQ(play.Desk.Text("cmdturn"), "Call The Turn Off");
  EXPECT_TRUE(Holds(play.Desk.Text("txtwhy"), "Nothing has moved morale"));

  EXPECT_FALSE(play.Desk.Enabled("cmdprevious"));
  play.Desk.Click("cmdnext");
  EXPECT_EQ(play.Desk.Title(), "Ilya Marsh");
  play.Desk.Click("cmdprevious");
  EXPECT_EQ(play.Desk.Title(), kBram);

  play.Desk.OpenRow("lstcompany", "Ilya Marsh");
  EXPECT_EQ(play.Desk.Title(), "Ilya Marsh");
  EXPECT_TRUE(Holds(play.Desk.Text("txttitles"), "CWA Crown\nHolds it"));
  EXPECT_TRUE(Holds(play.Desk.Text("lblmarks"), "CWA Crown champion"));
}

TEST(frmCompare, PutsUpToFourSideBySideAndMarksTheBest) {
  GameOnWorld play(AfterAShow());
  play.Desk.Open("frmRoster");
  play.Desk.Pick("lstwres", kBram);
  play.Desk.Click("cmdcompare");
  ASSERT_EQ(play.Desk.TopName(), "frmCompare");
  EXPECT_FALSE(play.Desk.Enabled("cmdremove(1)"));
  play.Desk.Pick("cmbadd", "Ilya Marsh");
  const auto& list = dynamic_cast<const ui::ListBox&>(*play.Desk.Top()->Find("lstcompare"));
  const auto row = std::ranges::find_if(
      list.Rows(), [](const ui::ListBox::Row& each) { return each.Cells[0].Text == "Over"; });
  ASSERT_NE(row, list.Rows().end());
  EXPECT_EQ(row->Cells[1].Text, "80");
  EXPECT_TRUE(row->Cells[1].Best);
  EXPECT_FALSE(row->Cells[2].Best);
  for (const ui::ListBox::Row& each : list.Rows()) {
    const bool best = each.Cells[1].Best || each.Cells[2].Best;
    EXPECT_FALSE(best && each.Cells[0].Text == "Stiffness") << "neither more nor less is better";
  }
  EXPECT_EQ(play.Desk.Rows("lstmeetings")[0][1], "0-1");
  EXPECT_TRUE(Holds(play.Desk.Text("txtword"), "Bram Okafor leads in Over"));
  play.Desk.Pick("cmbadd", "Low Down");
  EXPECT_EQ(play.Desk.Rows("lstmeetings").size(), 3U);
  play.Desk.Click("cmdremove(1)");
  EXPECT_EQ(play.Desk.Rows("lstmeetings").size(), 1U);
  play.World().Workers().Keep([](const Worker& w) { return !(w.Name == "Low Down"); });
  play.Desk.Pick("cmbadd", kBram);
  EXPECT_EQ(play.Desk.Rows("lstmeetings").size(), 1U) << "who has gone is left out";

  std::string elsewhere;
  for (const Worker& worker : play.World().Workers())
    if (!WorksForPlayer(play.World(), worker)) elsewhere = worker.Name.Str();
  ASSERT_NE(elsewhere, "");
  play.Desk.Type("txtadd", "nobody has this");
  EXPECT_EQ(play.Desk.FirstColumn("cmbadd"), Names{"Nobody is called that"});
  play.Desk.Type("txtadd", elsewhere);
  play.Desk.Pick("cmbadd", elsewhere);
  EXPECT_EQ(play.Desk.Rows("lstmeetings").size(), 3U) << "anybody in the business can be added";
  EXPECT_EQ(play.Desk.Text("txtadd"), "");
}

TEST(frmWorker, HasNoTalksInTheMidstOfAShow) {
  GameOnWorld play(Business().Game("CWA"));
  play.Desk.Open("frmPPVBooking");
  play.Play.OpenWorker(Named(play.World().Workers(), kBram).Uid);
  ASSERT_EQ(play.Desk.TopName(), "frmWorker");
  for (const char* act : {"cmdcontract", "cmdturn", "cmddemote"})
    EXPECT_EQ(play.Desk.Tip(act), "There is a show to see to first.");
  const ui::Page page = play.Desk.Top()->Layout();
  EXPECT_EQ(page.Then, page.Cancel) << "Enter goes back";
}

TEST(Links, LeadFromAMailToThePageAndOn) {
  GameOnWorld play(Business()
                       .Team("Law and Order", kBram, "Ilya Marsh")
                       .Mail("Maeve", "Bram Okafor's fans miss Nobody Known of NEW."));
  play.Desk.Open("frmNews");
  const auto follow = [&](const char* name) {
    return ui::Follow(play.Desk, *play.Desk.Top(), name);
  };
  EXPECT_EQ(follow("Nobody Known"), "frmNews shows no link \"Nobody Known\".");
  EXPECT_EQ(follow("Bram"), "frmNews shows no link \"Bram\".");
  EXPECT_EQ(follow("Ilya Marsh"), "frmNews shows no link \"Ilya Marsh\".");
  EXPECT_EQ(follow(""), "frmNews shows no link \"\".");
  EXPECT_EQ(follow(kBram), "");
  EXPECT_EQ(play.Desk.Title(), kBram);
  EXPECT_EQ(follow("Ilya Marsh"), "") << "their partner";
  EXPECT_EQ(play.Desk.Title(), "Ilya Marsh");
  EXPECT_EQ(follow(kBram), "");
  EXPECT_EQ(play.Desk.Title(), kBram);
  EXPECT_EQ(play.Desk.Screens().size(), 2U) << "back to the page that was open";
}

TEST(Links, LeadToAPromotionOnceItHasAPage) {
  GameOnWorld play(Business().Mail("Maeve", "NEW is on the move."));
  play.Play.OpenPromotion = nullptr;
  play.Desk.Open("frmNews");
  EXPECT_NE(ui::Follow(play.Desk, *play.Desk.Top(), "NEW"), "");
  int opened = 0;
  play.Play.OpenPromotion = [&](int uid) { opened = uid; };
  EXPECT_EQ(ui::Follow(play.Desk, *play.Desk.Top(), "NEW"), "");
  EXPECT_EQ(opened, Named(play.World().Promotions(), "NEW").Uid);
}

TEST(Links, AreInTablesToo) {
  GameOnWorld play(Business());
  play.Desk.Open("frmOtherWres");
  EXPECT_EQ(ui::Follow(play.Desk, *play.Desk.Top(), "Free Fred"), "");
  EXPECT_EQ(play.Desk.Title(), "Free Fred");
}

TEST(Links, AreNoneBeforeAGame) {
  GameOnWorld play(Business());
  play.Play.CloseSlot();
  EXPECT_TRUE(play.Desk.LinksIn(kBram).empty());
}

}  // namespace
}  // namespace grapplemont::test
