#include "calendar/wishes.h"

#include <gtest/gtest.h>

#include "calendar/incidents.h"
#include "calendar/wishkinds.h"
#include "records/segmentwords.h"
#include "support/gameonworld.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;
constexpr Day kNewYear{year{2027} / 1 / 1}, kYearsEnd{year{2027} / 12 / 31};

SmallWorld Owned() {
  SmallWorld small;
  small.Promotion("CWA", kCult)
      .Owner("Ruth Vane", [](Staff& s) { s.Loyalty = 50; })
      .Crew(8)
      .Title("CWA Crown", "CWA Hand 1")
      .Promotion("BIG", kNational)
      .Crew(4)
      .Game("CWA", kNewYear, [](GameInfo& g) { g.Reputation = 60; });
  return small;
}

OwnerWish WishOf(const World& world, int kind, int target) {
  OwnerWish wish{};
  wish.From = kNewYear;
  wish.Until = kYearsEnd;
  wish.Promotion = world.PlayerUid();
  wish.Kind = kind;
  wish.Target = target;
  return wish;
}

TEST(OwnersWishes, AreThreeDifferentOnesThatMakeSense) {
  World world = Owned();
  ScriptLife(world, {1, 1, 1});
  OwnersWishes(world);
  ASSERT_EQ(world.Wishes().Count(), 3);
  // The first that fit, in the order of their kinds: nobody here is a woman.
  EXPECT_EQ(world.Wishes()[1].Kind, kWishNewStars);
  EXPECT_EQ(world.Wishes()[2].Kind, kWishDefendTitle);
  EXPECT_EQ(WishText(world.Wishes()[2]), "Put the Title CWA Crown at stake at 6 Events");
  EXPECT_EQ(world.Wishes()[3].Kind, kWishFewTalks);
  ASSERT_EQ(world.News().Count(), 1);
  EXPECT_EQ(world.News()[1].From, "Ruth Vane");
  OwnersWishes(world);
  EXPECT_EQ(world.Wishes().Count(), 3) << "made once";
  world.Wishes().Rewrite({});
  world.Game().Today = Day{year{2027} / 9 / 2};
  OwnersWishes(world);
  EXPECT_EQ(world.Wishes().Count(), 0) << "too late in the year";
}

TEST(OwnersWishes, AreJudgedAtTheYearsEndAndMoveReputationTrustAndOffers) {
  World world = Owned();
  world.Wishes().Append(WishOf(world, kWishYoungChampion, 99));
  world.Wishes().Append(WishOf(world, kWishTamerProduct, 100));
  world.Wishes().Append(WishOf(world, kWishSponsors, 0));
  world.Game().Today = kYearsEnd - std::chrono::days{1};
  OwnersWishes(world);
  EXPECT_EQ(OpenWishes(world).size(), 3u);
  world.Game().Today = kYearsEnd;
  world.Incidents().Rewrite(std::vector<Incident>(10));
  ScriptLife(world, {{2, 1}, {1, 1}});
  OwnersWishes(world);
  EXPECT_EQ(world.Wishes()[1].State, kWishGranted);
  EXPECT_EQ(world.Game().Reputation, 66);
  EXPECT_EQ(Named(world.AllStaff(), "Ruth Vane").Loyalty, 65);
  ASSERT_TRUE(HasIncident(world));
  EXPECT_EQ(world.Incidents()[1].Type, kJobOffer);
  EXPECT_EQ(world.Incidents()[1].Uid, Named(world.Promotions(), "BIG").Uid);
  EXPECT_EQ(world.News().Count(), 1);
}

TEST(OwnersWishes, MissedOnesCostTrustAndThoseOfAJobThatWasLeftAreDropped) {
  World world = Owned();
  world.Wishes().Append(WishOf(world, kWishSponsors, 4));
  world.Wishes().Append(WishOf(world, kWishEvents, 9));
  OwnerWish former = WishOf(world, kWishEvents, 1);
  former.Promotion = int(Named(world.Promotions(), "BIG").Uid);
  world.Wishes().Append(former);
  world.Game().Today = kYearsEnd;
  ScriptLife(world, {});
  OwnersWishes(world);
  EXPECT_EQ(world.Wishes()[1].State, kWishMissed);
  EXPECT_EQ(world.Wishes()[3].State, kWishDropped);
  EXPECT_EQ(world.Game().Reputation, 58);
  EXPECT_EQ(Named(world.AllStaff(), "Ruth Vane").Loyalty, 40);
}

TEST(OwnersWishes, CountEventsWithTheTitleAndShowsWithTooMuchTalk) {
  World world = Owned();
  world.Game().Today = kNewYear + std::chrono::days{10};
  OwnerWish defend = WishOf(world, kWishDefendTitle, 6);
  defend.About = "CWA Crown";
  world.Wishes().Append(defend);
  world.Wishes().Append(WishOf(world, kWishFewTalks, 2));
  HeldMatch match{};
  match.Promotion = world.PlayerUid();
  match.Title = "CWA Crown";
  for (const auto& [day, isEvent] : {std::pair{-1, true}, {3, true}, {3, true}, {9, false}}) {
    match.On = kNewYear + std::chrono::days{day};
    match.IsEvent = isEvent;
    world.Bouts().Append(match);
  }
  EXPECT_EQ(CameOf(world, world.Wishes()[1]), 1) << "one Event since the year began";
  HistoryEntry show{};
  show.On = kNewYear + std::chrono::days{9};
  show.Kind = kPastTv;
  show.Promotion = world.PlayerUid();
  world.History().Append(show);
  Segment talk{};
  talk.Kind = kInterview;
  talk.Style = 1;
  talk.Worker[0] = int(Named(world.Workers(), "CWA Hand 1").Uid);
  world.Segments().Rewrite({talk, talk, talk});
  OwnersWishes(world);
  EXPECT_EQ(world.Wishes()[2].Slips, 0);
  world.Segments().Append(talk);
  OwnersWishes(world);
  EXPECT_EQ(world.Wishes()[2].Slips, 1);
}

/// Matches, shows and month ends around New Year, in the order of their days.
void Happen(World& world) {
  const int woman = Named(world.Workers(), "CWA Hand 7").Uid;
  const int other = Named(world.Workers(), "CWA Hand 8").Uid;
  for (const int uid : {woman, other}) world.FindWorker(uid)->Gender = false;
  const int man = Named(world.Workers(), "CWA Hand 1").Uid;
  struct {
    int Day, One;
    bool IsEvent, IsFeud;
  } const kMatches[] = {{-3, woman, true, true},
                        {3, woman, true, false},
                        {3, man, true, true},
                        {9, man, false, true}};
  for (const auto& row : kMatches) {
    HeldMatch match{};
    match.On = kNewYear + std::chrono::days{row.Day};
    match.Promotion = world.PlayerUid();
    match.IsEvent = row.IsEvent;
    match.Worker[0] = row.One;
    match.Worker[1] = other;
    if (row.IsFeud) match.Feud[0] = row.One;
    world.Bouts().Append(match);
  }
  struct {
    int Day, Kind, Rating;
    bool CalledOff;
    int Income, Costs;
  } const kPasts[] = {{-2, kPastTv, 99, false, 0, 0},   {0, kPastMonth, 0, false, 900, 0},
                      {3, kPastEvent, 71, false, 0, 0}, {9, kPastTv, 60, false, 0, 0},
                      {16, kPastTv, 90, true, 0, 0},    {31, kPastMonth, 0, false, 500, 800}};
  for (const auto& row : kPasts) {
    HistoryEntry entry{};
    entry.On = kNewYear + std::chrono::days{row.Day};
    entry.Promotion = world.PlayerUid();
    entry.Kind = row.Kind;
    entry.Rating = row.Rating;
    entry.CalledOff = row.CalledOff;
    entry.Income = row.Income;
    entry.Costs = row.Costs;
    world.History().Append(entry);
  }
}

TEST(OwnersWishes, CountWhatHasComeAboutSinceTheyWereMade) {
  World world = Owned();
  world.Game().Today = kNewYear + std::chrono::days{40};
  Happen(world);
  const int before = StandingScore(world.Player());
  world.Player().Image += 7;
  for (Worker& worker : world.Workers()) worker.Over = 30;
  for (const int hand : {1, 2, 3}) {
    Worker& star = Named(world.Workers(), "CWA Hand " + std::to_string(hand));
    star.Over = 95;
    YearEnd& row = world.YearEnds().Append(YearEnd{});
    row.Worker = star.Uid;
    row.Over = hand == 2 ? 95 : 30;
  }
  for (const auto& [kind, came] : {std::pair(kWishNewStars, 2),
                                   {kWishProfit, -300},
                                   {kWishBestShow, 71},
                                   {kWishGoodShows, 65},
                                   {kWishStanding, 7},
                                   {kWishEvents, 1},
                                   {kWishWomensMatches, 1},
                                   {kWishFeudMatches, 1},
                                   {kWishOnAir, 0}}) {
    OwnerWish wish = WishOf(world, kind, 1);
    if (kind == kWishStanding) wish.Base = before;
    EXPECT_EQ(CameOf(world, wish), came) << WishText(wish);
  }
  Show show{};
  show.Owner = world.PlayerUid();
  world.Shows().Append(show);
  EXPECT_EQ(CameOf(world, WishOf(world, kWishOnAir, 1)), 1);
}

TEST(OwnersWishes, AskForMoneyInRoundNumbersAndNeverForMoreThanCanBeKept) {
  World world = Owned();
  OwnerWish wish = WishOf(world, kWishSavings, 0);
  world.Player().Money = 1234567;
  EXPECT_TRUE(WishRuleOf(kWishSavings).Plan(world, wish, 12));
  EXPECT_EQ(wish.Target, 2040000);
  world.Player().Money = 89500000;
  EXPECT_FALSE(WishRuleOf(kWishSavings).Plan(world, wish, 12));
}

TEST(CareerScreen, ShowsHowFarEachWishIs) {
  World world = Owned();
  world.Wishes().Append(WishOf(world, kWishSavings, 5000));
  world.Player().Money = 7000;
  GameOnWorld play(std::move(world));
  play.Desk.Open("frmUser");
  EXPECT_EQ(play.Desk.Rows("lstwishes"),
            (std::vector<std::vector<std::string>>{{"Have $5,000 in hand when the year ends",
                                                    "As wished", "$7,000 of $5,000", "2027"}}));
}

}  // namespace
}  // namespace grapplemont::test
