#include <gtest/gtest.h>

#include "business/development.h"
#include "business/past.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

constexpr Day kTenthOfMay{year{2026} / 5 / 10};

/// "Mar 2026 Cult 60", a place of the chart each.
std::vector<std::string> Told(const World& world, int most = 120) {
  const auto standings = StandingsOf(world, world.Player(), most);
  const auto captions = CaptionsOf(standings);
  std::vector<std::string> told;
  for (std::size_t i = 0; i < standings.size(); ++i)
    told.push_back(captions[i] + " " + std::string(SizeText(standings[i].Size)) + " " +
                   std::to_string(standings[i].Image) + " = " +
                   std::to_string(standings[i].Score()));
  return told;
}

void CloseMonth(World& world, Day first, int size, int image) {
  HistoryEntry month = EntryOf(world, world.Player(), kPastMonth);
  month.On = first;
  month.Size = size;
  month.Image = image;
  Remember(world, month);
}

using Lines = std::vector<std::string>;

TEST(Standings, ReachFromTheRecordOverThePastToToday) {
  World world = SmallWorld().Promotion("CWA", kCult).Game("CWA", kTenthOfMay);
  EXPECT_EQ(Told(world), (Lines{"Apr 2026 Cult 50 = 350", "Today Cult 50 = 350"}));
  std::ranges::copy(std::array{361, 290, 600, 0, kNoEnd}, world.Player().Rank.begin());
  EXPECT_EQ(Told(world),
            (Lines{"Jan 2026 Backyard 0 = 0", "Feb 2026 Global 100 = 600",
                   "Mar 2026 Regional 90 = 290", "Apr 2026 Cult 61 = 361", "Today Cult 50 = 350"}));
  CloseMonth(world, Day{year{2026} / 4 / 1}, kNational, 12);
  CloseMonth(world, Day{year{2026} / 5 / 1}, kCult, 88);
  EXPECT_EQ(Told(world),
            (Lines{"Jan 2026 Backyard 0 = 0", "Feb 2026 Global 100 = 600",
                   "Mar 2026 National 12 = 412", "Apr 2026 Cult 88 = 388", "Today Cult 50 = 350"}))
      << "what is remembered goes before the record";
  EXPECT_EQ(Told(world, 2), (Lines{"Apr 2026 Cult 88 = 388", "Today Cult 50 = 350"}));
  world.Game().Today = Day{year{2026} / 5 / 1};
  EXPECT_EQ(Told(world, 1), (Lines{"Today Cult 50 = 350"})) << "not twice on the first";
  EXPECT_EQ(Told(world).size(), 4u);
}

World Divided() {
  World world = SmallWorld()
                    .Promotion("CWA", kRegional, [](Promotion& p) { p.Split[0] = "Red"; })
                    .Worker("Ash", [](Worker& w) { w.Split = "Red"; })
                    .Worker("Bea")
                    .Promotion("NEW", kRegional, [](Promotion& p) { p.Split[0] = "Red"; })
                    .Worker("Zed", [](Worker& w) { w.Split = "Red"; })
                    .Game("CWA");
  return world;
}

TEST(Splits, KeepTheirPeopleUnderAnotherNameAndLoseThemWhenDissolved) {
  World world = Divided();
  const auto split = [&](const char* name) { return Named(world.Workers(), name).Split.Str(); };
  NameSplit(world, 1, " Scarlet ");
  NameSplit(world, 1, "Scarlet");  // changes nothing
  EXPECT_EQ(split("Ash") + split("Bea") + split("Zed"), "ScarletNoneRed") << "Zed is a rival's";
  EXPECT_EQ(PeopleInSplit(world, "Scarlet"), 1);
  DissolveSplit(world, 1);
  DissolveSplit(world, 2);
  EXPECT_EQ(split("Ash") + split("Zed"), "NoneRed");
  EXPECT_EQ(world.Player().Split[0].View(), "None");
}

TEST(Splits, HaveNamesOfTheirOwn) {
  const World world = Divided();
  for (const auto& [place, name, why] : std::vector<std::tuple<int, std::string, std::string>>{
           {2, "  Red ", "There is a split called Red already."},
           {2, " \t ", "Type a name first."},
           {2, "All", "\"All\" stands for the whole roster and cannot be a split."},
           {2, "Elevenlette", "A name has at most 10 letters. This one has 11."},
           {4, "Blue", ""},
           {5, "Blue", "Choose a split first."}})
    EXPECT_EQ(WhyNotSplitName(world, place, name), why) << place << name;
}

SmallWorld Schools() {
  SmallWorld small;
  small.Promotion("CWA", kCult, [](Promotion& p) { p.Money = 500000, p.Commissioner = 4; })
      .Worker("Raw", kTrainingCamp, 20)
      .Worker("Deal", kDevelopmentDeal, 75)
      .Worker("Sent", 82, 30)
      .Worker("Suit", kNonWrestler, 40)
      .Worker("Star", kMainEvent, 90)
      .Staff("Coach", kTrainer, 61)
      .Staff("Pen", kWriter, 40, [](Staff& s) { s.Booker = true; })
      .Owner("Ruth Vane", [](Staff& s) { s.Booker = true; })
      .Promotion("NEW")
      .Worker("Other", kTrainingCamp, 20)
      .Worker("Cape", kNonWrestler, 50)
      .Staff("Guru", kTrainer, 99)
      .Game("CWA", kTenthOfMay);
  return small;
}

TEST(Camp, CostsItsLevelOnceAndStandsInThePast) {
  World world = Schools();
  EXPECT_EQ(SitePrice(Site::Camp, 1) + SitePrice(Site::Camp, 2) + SitePrice(Site::Camp, 4),
            1125000);
  world.Player().Money = 399999;
  EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Shed", 0), "Choose the facilities first.");
  EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Shed", 3),
            "You cannot afford this! It costs $400,000, and you have $399,999.");
  world.Player().Money = 400000;
  ASSERT_EQ(WhyNotOpen(world, Site::Camp, "The Shed", 3), "");
  OpenSite(world, Site::Camp, " The Shed ", 3);
  EXPECT_EQ(world.Player().Money, 0);
  EXPECT_EQ(world.Player().CampName.View(), "The Shed");
  EXPECT_EQ(world.Player().CampFacilities, 3);
  const HistoryEntry& entry = world.History()[1];
  EXPECT_EQ(entry.Kind, kPastCamp);
  EXPECT_EQ(entry.Name.View(), "The Shed");
  EXPECT_EQ(entry.Costs, 400000);
  EXPECT_EQ(entry.Money, 0);
}

TEST(Camp, IsImprovedToABetterLevelForTheWholePrice) {
  World world = Schools();
  EXPECT_EQ(WhyNotRaiseCamp(world, 2), "There is no training camp.");
  world.Player().CampName = "The Shed";
  world.Player().CampFacilities = 2;
  EXPECT_EQ(WhyNotRaiseCamp(world, 2), "The facilities are as good as that already.");
  EXPECT_EQ(WhyNotRaiseCamp(world, 5), "Choose the facilities first.");
  EXPECT_EQ(WhyNotOpen(world, Site::Camp, "Another", 4), "You have a training camp already.");
  ASSERT_EQ(WhyNotRaiseCamp(world, 3), "");
  RaiseCamp(world, 3);
  EXPECT_EQ(world.Player().Money, 100000);
  world.Player().CampFacilities = 4;
  EXPECT_EQ(WhyNotRaiseCamp(world, 4), "No camp in the world has better facilities.");
}

TEST(Development, IsBuiltOnceAMonthAtMost) {
  World world = Schools();
  world.Player().Money = 9000000;
  const std::string why =
      "The builders have been here in May already. They come once a month at most.";
  OpenSite(world, Site::Camp, "The Shed", 1);
  EXPECT_EQ(WhyNotRaiseCamp(world, 2), why);
  EXPECT_EQ(WhyNotOpen(world, Site::Territory, "The Sticks"), "") << "each has its own";
  OpenSite(world, Site::Territory, "The Sticks");
  EXPECT_EQ(world.Player().Money, 9000000 - 25000 - 250000);
  CloseSite(world, Site::Camp);
  CloseSite(world, Site::Territory);
  for (const auto& [month, day, says] : {std::tuple(5u, 10u, why), {5u, 31u, why}, {6u, 1u, ""}}) {
    world.Game().Today = Day{year{2026} / std::chrono::month{month} / std::chrono::day{day}};
    EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Barn", 1), says) << "closing does not help";
    EXPECT_EQ(WhyNotOpen(world, Site::Territory, "The Woods"), says);
  }
  world.Game().Today = kTenthOfMay;
  world.Game().PlayerPromotion = Named(world.Promotions(), "NEW").Uid;
  world.Player().Money = 9000000;
  EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Barn", 1), "") << "another promotion's builders";
}

TEST(Development, SendsItsPeopleBackWhenItCloses) {
  World world = Schools();
  world.Player().HeadTrainer = 1;
  world.Player().DevBooker = 2;
  world.Player().CampName = "The Shed";
  world.Player().CampFacilities = 2;
  world.Player().DevName = "The Sticks";
  const auto position = [&](const char* name) {
    return int(Named(world.Workers(), name).Position);
  };
  CloseSite(world, Site::Camp);
  EXPECT_EQ(position("Raw"), kJobber) << "what an Over of 20 earns";
  EXPECT_EQ(position("Deal"), kDevelopmentDeal);
  EXPECT_EQ(position("Other"), kTrainingCamp) << "a rival's";
  EXPECT_EQ(world.Player().CampFacilities + world.Player().HeadTrainer, 0);
  CloseSite(world, Site::Territory);
  EXPECT_EQ(position("Deal"), kMidcard);
  EXPECT_EQ(position("Sent"), kUpperMidcard) << "where they came from";
  EXPECT_EQ(world.Player().DevBooker, 0);
  EXPECT_FALSE(HasSite(world.Player(), Site::Camp) || HasSite(world.Player(), Site::Territory));
}

TEST(Offices, GoToWhomTheyAreFor) {
  World world = Schools();
  const auto names = [&](Office office) {
    std::string all;
    for (const OfficeSeeker& seeker : CandidatesFor(world, office)) all += seeker.Name + ";";
    return all;
  };
  EXPECT_EQ(names(Office::Commissioner), "Suit;");
  EXPECT_EQ(names(Office::HeadTrainer), "Coach;");
  EXPECT_EQ(names(Office::DevBooker), "Pen;") << "no owner";
  const int coach = Named(world.AllStaff(), "Coach").Uid, pen = Named(world.AllStaff(), "Pen").Uid;
  EXPECT_EQ(WhyNotAppoint(world, Office::HeadTrainer, coach), "There is no training camp.");
  EXPECT_EQ(WhyNotAppoint(world, Office::DevBooker, pen), "There is no development territory.");
  world.Player().CampName = "The Shed";
  world.Player().DevName = "The Sticks";
  EXPECT_EQ(WhyNotAppoint(world, Office::HeadTrainer, coach), "");
  EXPECT_EQ(WhyNotAppoint(world, Office::HeadTrainer, pen), "Pen is not one of your trainers.");
  EXPECT_EQ(WhyNotAppoint(world, Office::DevBooker, coach),
            "Coach is not one of your staff who can book.");
  EXPECT_EQ(WhyNotAppoint(world, Office::Commissioner, 0), "");
  EXPECT_EQ(WhyNotAppoint(world, Office::Commissioner, Named(world.Workers(), "Cape").Uid),
            "Cape is not one of your non-wrestlers.");
  EXPECT_EQ(WhyNotAppoint(world, Office::Commissioner, 999),
            "Whoever that was is not one of your non-wrestlers.");
  EXPECT_EQ(HolderName(world, Office::Commissioner), "Suit");
  Appoint(world, Office::Commissioner, 0);
  EXPECT_EQ(HolderName(world, Office::Commissioner), "None");
  world.Player().HeadTrainer = 999;
  EXPECT_EQ(HolderOf(world, Office::HeadTrainer), 0) << "a uid that leads nowhere";
}

}  // namespace
}  // namespace grapplemont::test
