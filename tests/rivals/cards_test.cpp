#include <gtest/gtest.h>

#include <set>

#include "records/modWresCheck.h"
#include "rivals/faults.h"
#include "rivals/grudges.h"
#include "rivals/rivalcards.h"
#include "rivals/rivalresults.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

// The cards that rivals hold out of sight.

namespace grapplemont::test {
namespace {

/// The day of an Event, a rival with three who are fit and a champion.
World TitleNight() {
  return SmallWorld()
      .Promotion("CWA")
      .Worker("Mine", kMainEvent, 90)
      .Title("CWA Crown")
      .Promotion("XWF", kBackyard)
      .Worker("Best", kMainEvent, 60)
      .Worker("Second", kMainEvent, 50)
      .Worker("Third", kMainEvent, 40)
      .Worker("Hurt", kMainEvent, 70, [](Worker& w) { w.Status = "Inj", w.StatusMonths = 2; })
      .Worker("Corner", kManager, 80)
      .Title("XWF Crown", "Best")
      .Game("CWA", Day{std::chrono::year{2026} / 3 / 29});
}

Title& Belt(World& world) {
  return Named(world.Titles(), "XWF Crown");
}

const Promotion& Rival(const World& world) {
  return world.Promotions()[2];
}

std::string LastLine(const World& world) {
  return MatchLine(world, world.RivalCards()[world.RivalCards().Count()]);
}

TEST(RivalTitles, ChangeHandsOnTheCardTheSoonerTheLongerTheReign) {
  for (const auto& [days, chance] : {std::pair(180, 50), {90, 35}, {45, 18}, {44, 4}})
    for (const int over : {0, 1}) {
      World world = TitleNight();
      Belt(world).Reigns[0].Won = world.Today() - std::chrono::days{days};
      std::vector<ScriptedDraw> draws{{2, 2}, {100, chance + over}, {13, 7}};
      if (over == 0) draws.push_back({3, 2});  // no grudge comes of it
      ScriptLife(world, draws);
      HoldCard(world, Rival(world), kUnseenEvent);
      EXPECT_EQ(Belt(world).Reigns[0].Holder.Str(), over == 0 ? "Third" : "Best") << days;
      EXPECT_EQ(Belt(world).Image, over == 0 ? 49 : 51) << "a step towards the champion's Over";
      ASSERT_EQ(world.RivalCards().Count(), 1);
      EXPECT_EQ(LastLine(world), over == 0 ? "Third beat Best to win the XWF Crown"
                                           : "Best beat Third to keep the XWF Crown");
      EXPECT_EQ(FaultsOf(world), "");
    }
}

TEST(RivalTitles, FindChampionsAmongThoseWhoMayHoldThem) {
  World world = TitleNight();
  Title& crown = Belt(world);
  crown.Holder = 0;
  crown.Reigns[0].Holder = "Vacant";
  crown.Lightweight = true;
  Named(world.Workers(), "Second").Weight = "L";
  // Nobody is there to beat for it, and the three meet in whatever else there is.
  ScriptLife(world, {{1, 1}, {3, 3}, {100, 1}, {20, 2}, {13, 7}});
  HoldCard(world, Rival(world), kUnseenEvent);
  EXPECT_EQ(crown.Holder, 0);
  Named(world.Workers(), "Third").Weight = "L";
  ScriptLife(world, {{2, 2}, {1, 1}, {100, 40}, {13, 7}, {3, 2}});
  HoldCard(world, Rival(world), kUnseenEvent);
  EXPECT_EQ(crown.Reigns[0].Holder.Str(), "Third");
  EXPECT_EQ(Day(crown.Reigns[0].Won), world.Today());
  EXPECT_EQ(LastLine(world), "Third beat Second to win the vacant XWF Crown");
  EXPECT_EQ(Named(world.Titles(), "CWA Crown").Holder, 0) << "the player books their own";
}

TEST(RivalTitles, AreLostBeforeTheirChampionLeavesToSomebodyWhoStays) {
  World world = TitleNight();
  Named(world.Workers(), "Best").ContractMonths = 1;
  Named(world.Workers(), "Second").ContractMonths = 1;
  // Of a house show no draw says whether it is at stake there, nor who loses it.
  ScriptLife(world, {{1, 1}, {13, 7}, {3, 2}});
  HoldCard(world, Rival(world), kUnseenHouseShow);
  EXPECT_EQ(LastLine(world), "Third beat Best to win the XWF Crown");
  EXPECT_EQ(Belt(world).Reigns[0].Holder.Str(), "Third");
  EXPECT_EQ(FaultsOf(world), "");
}

TEST(RivalTitles, WaitForAChampionWhoIsHurt) {
  World world = TitleNight();
  Named(world.Workers(), "Best").Status = "Inj";
  ScriptLife(world, {{2, 2}, {100, 40}, {20, 2}, {13, 7}});
  HoldCard(world, Rival(world), kUnseenEvent);
  EXPECT_EQ(LastLine(world), "Third beat Second");
  EXPECT_EQ(Belt(world).Reigns[0].Holder.Str(), "Best");
}

TEST(Grudges, FindTheirWayIntoTitleMatchesAndAreSettledAtAnEvent) {
  World world = TitleNight();
  const int best = Named(world.Workers(), "Best").Uid, third = Named(world.Workers(), "Third").Uid;
  ASSERT_TRUE(BeginGrudge(world, Rival(world), best, third, kGrudgeCard));
  EXPECT_FALSE(BeginGrudge(world, Rival(world), third, best, kGrudgeTitle)) << "one is enough";
  ScriptLife(world, {{100, 100}, {13, 7}});  // nobody is drawn: it is Third's turn
  HoldCard(world, Rival(world), kUnseenEvent);
  EXPECT_EQ(LastLine(world), "Best beat Third to keep the XWF Crown");
  const Grudge& grudge = world.Grudges()[1];
  EXPECT_EQ(std::pair(int(grudge.WonOne), int(grudge.Heat)), std::pair(1, 39));

  world.Grudges()[1].Heat = 60;
  ScriptLife(world, {{100, 100}, {13, 7}});
  HoldCard(world, Rival(world), kUnseenEvent);
  EXPECT_EQ(world.Grudges().Count(), 0);
  EXPECT_EQ(world.Deeds()[world.Deeds().Count()].Kind, kDeedSettled);
}

TEST(Grudges, EndWhenTheyAreColdOrTheirPeopleHaveParted) {
  World world = TitleNight();
  Worker &best = Named(world.Workers(), "Best"), &third = Named(world.Workers(), "Third");
  BeginGrudge(world, Rival(world), best.Uid, third.Uid, kGrudgeCard);
  CoolGrudges(world);
  EXPECT_EQ(GrudgeOf(world, best.Employer, third.Uid)->Heat, 27);
  third.Employer = world.PlayerUid();
  CoolGrudges(world);
  EXPECT_EQ(world.Grudges().Count(), 0);
  third.Employer = best.Employer;
  BeginGrudge(world, Rival(world), best.Uid, third.Uid, kGrudgeCard);
  for (int week = 0; week < 10; ++week) CoolGrudges(world);
  EXPECT_EQ(world.Grudges().Count(), 0);
}

/// A rival with a full house, two of whose people are hurt.
World FullHouse() {
  SmallWorld small;
  small.Promotion("CWA").Promotion("XWF", kCult).Crew(24);
  small.Team("The Twos", "XWF Hand 1", "XWF Hand 2").Team("The Eights", "XWF Hand 7", "XWF Hand 8");
  small.Title("XWF Crown", "XWF Hand 1").Title("XWF Tag Titles", "XWF Hand 7", "XWF Hand 8");
  World world = small.Game("CWA");
  for (const char* name : {"XWF Hand 1", "XWF Hand 9"}) {
    Named(world.Workers(), name).Status = "Inj";
    Named(world.Workers(), name).StatusMonths = 2;
  }
  return world;
}

TEST(RivalCards, HoldNobodyTwiceAndNobodyWhoIsHurt) {
  for (const auto& [show, matches] :
       {std::pair(kUnseenTv, 5), {kUnseenEvent, 8}, {kUnseenHouseShow, 6}})
    for (int seed = 1; seed <= 20; ++seed) {
      World world = FullHouse();
      world.SetLife(std::make_unique<SeededDraws>(static_cast<unsigned>(seed)));
      HoldCard(world, Rival(world), show);
      const std::vector<RivalShow> shows = RivalShowsOf(world, Rival(world).Uid);
      ASSERT_EQ(shows.size(), 1u);
      ASSERT_EQ(shows[0].Matches.size(), static_cast<std::size_t>(matches));
      std::set<int> seen;
      for (const CardMatch* match : shows[0].Matches)
        for (const int uid : match->Worker) {
          if (uid == 0) continue;
          EXPECT_TRUE(seen.insert(uid).second) << WorkerName(world, uid);
          EXPECT_EQ(world.FindWorker(uid)->Status.Str(), "Nor");
        }
      EXPECT_EQ(FaultsOf(world), "");
    }
}

TEST(RivalCards, DropTheOldestOnceTheFileIsFull) {
  World world = FullHouse();
  for (int show = 0; show < 700; ++show) HoldCard(world, Rival(world), kUnseenHouseShow);
  HoldCard(world, Rival(world), kUnseenTv);
  EXPECT_GT(world.RivalCards().Count(), 3500);
  EXPECT_EQ(RivalShowsOf(world, Rival(world).Uid)[0].Is, kUnseenTv);
}

TEST(RivalCards, TellAMainEventTheSameWheneverItIsRead) {
  World world = TitleNight();
  HoldCard(world, Rival(world), kUnseenEvent);
  const CardMatch match = world.RivalCards()[1];
  const std::string told = TellMatch(world, match);
  EXPECT_NE(told.find("Best"), std::string::npos);
  EXPECT_EQ(told, TellMatch(world, match));
  // What the player's promotion and the Titles have come to since is not known on that day.
  world.Game().Today = world.Today() + std::chrono::days{60};
  HeldMatch ours{};
  ours.On = world.Today();
  ours.Promotion = world.PlayerUid();
  ours.Style = match.Style;
  ours.Rating = 95;
  ours.Winners = 1;
  for (std::size_t at = 0; at < match.Worker.size(); ++at) ours.Worker[at] = match.Worker[at];
  for (int times = 0; times < 12; ++times) world.Bouts().Append(ours);
  for (Worker& worker : world.Workers()) worker.RetiringSoon = true;
  EXPECT_EQ(told, TellMatch(world, match));
  CardMatch dull = match, great = match;
  dull.Rating = 20;
  great.Rating = 95;
  EXPECT_GT(TellMatch(world, great).size(), TellMatch(world, dull).size());
  CardMatch other = match;
  other.Worker[1] = 0;
  EXPECT_EQ(TellMatch(world, other), "") << "who has left the business is not written about";
  EXPECT_NE(MatchLine(world, other).find("left the business"), std::string::npos);
}

}  // namespace
}  // namespace grapplemont::test
