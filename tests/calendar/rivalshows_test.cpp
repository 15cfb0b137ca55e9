#include <gtest/gtest.h>

#include "calendar/advanceday.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

constexpr Day kLastSunday{year{2026} / 3 / 29};
constexpr Day kFriday{year{2026} / 3 / 6};

struct Post {
  int Position, Over;
};

/// A rival "NEW" with these people, shows on Friday and Sunday, and a player who minds his own.
SmallWorld Rival(int size, const std::vector<Post>& people) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kRegional).Promotion("NEW", size);
  int number = 0;
  for (const Post& post : people)
    small.Worker("Hand " + std::to_string(++number), post.Position, post.Over);
  small.Show("New Hour", "Friday", "Nine").Show("New Sunday", "Sunday", "Nine");
  small.Sponsor("Gulp", [](Sponsor& s) { s.Pay = 105; });
  small.Sponsor("Crunch", [](Sponsor& s) { s.Pay = 95; });
  return small;
}

int ImageAfter(World world) {
  RivalShows(world);
  return Named(world.Promotions(), "NEW").Image;
}

// At Cult size a quality of 48 lifts an Event by 2 and television by 1; 47 takes 1 off.
TEST(RivalShows, WeighTheRosterForAnEvent) {
  std::vector<Post> people = {
      {kMainEvent, 60},        {kUpperMidcard, 40},  {kMidcard, 40}, {kNonWrestler, 44},
      {kManager, 44},          {kLowerMidcard, 100}, {kOpener, 0},   {kJobber, 100},
      {kDevelopmentDeal, 100}, {kTrainingCamp, 100}, {81, 100}};
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kLastSunday)), 52);
  people[3].Over = 43;
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kLastSunday)), 49);
}

TEST(RivalShows, WeighTheRosterForTelevision) {
  std::vector<Post> people = {{kMainEvent, 60},       {kUpperMidcard, 40}, {kMidcard, 40},
                              {kLowerMidcard, 44},    {kMidcard, 44},      {kNonWrestler, 0},
                              {kManager, 100},        {kOpener, 0},        {kJobber, 100},
                              {kDevelopmentDeal, 100}};
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kFriday)), 51);
  people[3].Over = 43;
  EXPECT_EQ(ImageAfter(Rival(kCult, people).Game("CWA", kFriday)), 49);
}

TEST(RivalShows, HoldAnEventThatNobodyHadPlanned) {
  const std::vector<Post> people(6, {kMidcard, 70});
  World world = Rival(kCult, people).Game("CWA", kLastSunday);
  ScriptDraws(world, {{50, 20}});
  RivalShows(world);
  const Promotion& rival = Named(world.Promotions(), "NEW");
  ASSERT_EQ(world.Events().Count(), 1);
  EXPECT_EQ(world.Events()[1].Name.View(), "NEW in March");
  EXPECT_EQ(rival.Image, 54);
  EXPECT_EQ(rival.ThisMonth.SponsorIncome, 200000);
  EXPECT_EQ(rival.ThisMonth.TicketIncome, 820 * 30);
  EXPECT_EQ(rival.ThisMonth.ProductionCost, 25000);
  EXPECT_EQ(rival.Money, 5000000 + 200000 + 24600 - 25000);
  EXPECT_EQ(rival.Merchandising, 60) << "and spends by its standing";
  EXPECT_EQ(NewsOf(world),
            "NEW News: NEW in March was attended by 820 people!\n"
            "They made $24600 from ticket sales.\n");
  EXPECT_EQ(Named(world.Shows(), "New Sunday").Rating3, 0) << "no television on an Event's day";
  EXPECT_EQ(world.Player().Money, 2000000) << "the player's own show is another step's";
}

TEST(RivalShows, SellAPayPerView) {
  World world = Rival(kGlobal, std::vector<Post>(3, {kMainEvent, 85})).Game("CWA", kLastSunday);
  ScriptDraws(world, {{4, 2}, {1000, 500}});
  RivalShows(world);
  const Promotion& rival = Named(world.Promotions(), "NEW");
  EXPECT_EQ(rival.Image, 54);
  EXPECT_EQ(rival.ThisMonth.PpvIncome, 144 * 25000);
  EXPECT_EQ(rival.Money, 20000000 + 200000 + 3600000 + 15500 * 60 - 1500000);
  EXPECT_EQ(NewsOf(world),
            "NEW News: NEW got a 1.44 buy rate for 'NEW in March'!\n"
            "The event was attended by 15500 people.\n"
            "They made $3600000 from pay-per-view revenue.\n"
            "They made $930000 from ticket sales.\n");
}

TEST(RivalShows, RunTelevisionWithTheThirdPersonsWords) {
  World world = Rival(kCult, std::vector<Post>(6, {kMidcard, 70})).Game("CWA", kFriday);
  Promotion& rival = Named(world.Promotions(), "NEW");
  rival.Risk = 61;
  ScriptDraws(world, {{10, 5}, {20, 12}});
  RivalShows(world);
  EXPECT_EQ(rival.Image, 52);
  EXPECT_EQ(rival.ThisMonth.SponsorIncome, 35000);
  EXPECT_EQ(rival.Money, 5000000 + 35000 + 412 * 30);
  const Show& show = Named(world.Shows(), "New Hour");
  EXPECT_EQ(show.Rating3, 225);
  EXPECT_EQ(show.Rating4, 1) << "a strike, and no mail to the player";
  EXPECT_EQ(NewsOf(world),
            "NEW News: NEW got a 2.25 television rating for 'New Hour'!\n"
            "The event was attended by 412 people.\nThey made $12360 from ticket sales.\n");
}

TEST(RivalShows, ReportUnderTheirMailOptions) {
  struct Case {
    int Size, Shows, TvShow;
    bool Event, Tv;
  };
  constexpr Case kCases[] = {{kRegional, 1, 2, true, false},
                             {kSmall, 1, 1, false, false},
                             {kSmall, 0, 2, true, false},
                             {kSmall, 2, 0, false, true},
                             {kCult, 2, 1, false, true}};
  for (const Case& c : kCases)
    for (const bool isEvent : {true, false}) {
      World world = Rival(c.Size, std::vector<Post>(6, {kMidcard, 50}))
                        .Game("CWA", isEvent ? kLastSunday : kFriday);
      world.Game().MailShows = c.Shows;
      world.Game().MailTvShow = c.TvShow;
      RivalShows(world);
      EXPECT_EQ(world.News().Count(), (isEvent ? c.Event : c.Tv) ? 1 : 0) << c.Size << isEvent;
    }
}

TEST(RivalShows, AreCalledOffWithTooFewPeople) {
  const std::vector<Post> people(5, {kMidcard, 70});
  World event = Rival(kNational, people).Game("CWA", kLastSunday);
  ScriptDraws(event, {});
  RivalShows(event);
  EXPECT_EQ(Named(event.Promotions(), "NEW").Image, 35);
  EXPECT_EQ(Named(event.Promotions(), "NEW").Money, 10000000 - 1000000);
  EXPECT_EQ(NewsOf(event), "NEW News: NEW were forced to cancel their last show.\n");

  World tv = Rival(kNational, people).Game("CWA", kFriday);
  ScriptDraws(tv, {});
  RivalShows(tv);
  EXPECT_EQ(Named(tv.Promotions(), "NEW").Image, 35);
  EXPECT_EQ(Named(tv.Promotions(), "NEW").Money, 10000000);
  EXPECT_EQ(Named(tv.Shows(), "New Hour").Rating4, 1);
  EXPECT_EQ(NewsOf(tv), "NEW News: NEW were forced to cancel their last television show.\n");

  for (const Day day : {kLastSunday, kFriday}) {
    World untold = Rival(kNational, people).Game("CWA", day);
    untold.Game().MailShows = untold.Game().MailTvShow = 2;
    RivalShows(untold);
    EXPECT_EQ(NewsOf(untold), "");
  }
}

TEST(RivalShows, CountAMainEventerTwice) {
  EXPECT_EQ(ImageAfter(Rival(kCult, std::vector<Post>(3, {kMainEvent, 80})).Game("CWA", kFriday)),
            53);
  EXPECT_EQ(ImageAfter(Rival(kCult, std::vector<Post>(2, {kMainEvent, 80})).Game("CWA", kFriday)),
            35);
}

}  // namespace
}  // namespace grapplemont::test
