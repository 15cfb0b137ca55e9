#include <gtest/gtest.h>

#include "business/development.h"
#include "business/past.h"
#include "business/sponsors.h"
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
}

TEST(Standings, DoNotShowTheFirstOfAMonthTwice) {
  World world = SmallWorld().Promotion("CWA").Game("CWA", Day{year{2026} / 5 / 1});
  CloseMonth(world, world.Today(), kRegional, 50);
  EXPECT_EQ(Told(world), (Lines{"Today Regional 50 = 250"}));
}

TEST(EconomyText, FollowsTheBandsOfCrowdsAndSales) {
  for (const auto& [economy, words] : {std::pair(100, "Booming"),
                                       {90, "Booming"},
                                       {89, "Strong"},
                                       {81, "Strong"},
                                       {80, "Steady"},
                                       {30, "Steady"},
                                       {29, "Slow"},
                                       {20, "Slow"},
                                       {19, "In a recession"},
                                       {10, "In a recession"},
                                       {9, "In a slump"},
                                       {-6, "In a slump"}})
    EXPECT_EQ(EconomyText(economy), words) << economy;
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
  NameSplit(world, 1, " Scarlet ");
  EXPECT_EQ(SplitName(world.Player(), 1), "Scarlet");
  EXPECT_EQ(Named(world.Workers(), "Ash").Split.View(), "Scarlet");
  EXPECT_EQ(Named(world.Workers(), "Bea").Split.View(), "None");
  EXPECT_EQ(Named(world.Workers(), "Zed").Split.View(), "Red") << "a rival's";
  EXPECT_EQ(PeopleInSplit(world, "Scarlet"), 1);
  NameSplit(world, 1, "Scarlet");
  EXPECT_EQ(PeopleInSplit(world, "Scarlet"), 1) << "the same name changes nothing";
  DissolveSplit(world, 1);
  DissolveSplit(world, 2);
  EXPECT_EQ(Named(world.Workers(), "Ash").Split.View(), "None");
  EXPECT_EQ(world.Player().Split[0].View(), "None");
  EXPECT_EQ(Named(world.Workers(), "Zed").Split.View(), "Red");
}

TEST(Splits, HaveNamesOfTheirOwn) {
  const World world = Divided();
  const std::string taken = "There is a split called Red already.";
  for (const auto& [place, name, why] : std::vector<std::tuple<int, std::string, std::string>>{
           {2, "Red", taken},
           {2, "  Red ", taken},
           {1, "Red", ""},
           {2, "red", ""},
           {2, "", "Type a name first."},
           {2, " \t ", "Type a name first."},
           {2, "None", "\"None\" stands for nothing at all and cannot be a name."},
           {2, "All", "\"All\" stands for the whole roster and cannot be a split."},
           {2, "Ten letter", ""},
           {2, "Elevenlette", "A name has at most 10 letters. This one has 11."},
           {2, "Two\nlines", "A name is one line of plain text."},
           {2, "\xC9lite", ""},
           {0, "Blue", "Choose a split first."},
           {5, "Blue", "Choose a split first."}})
    EXPECT_EQ(WhyNotSplitName(world, place, name), why) << place << name;
}

SmallWorld Schools() {
  SmallWorld small;
  small
      .Promotion("CWA", kCult,
                 [](Promotion& p) {
                   p.Money = 500000;
                   p.Commissioner = 4;
                 })
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
  constexpr int kPrices[] = {25000, 100000, 400000, 1000000};
  constexpr const char* kWords[] = {
      "$25,000, and you have $24,999.", "$100,000, and you have $99,999.",
      "$400,000, and you have $399,999.", "$1,000,000, and you have $999,999."};
  for (int level = 1; level <= 4; ++level) {
    World world = Schools();
    EXPECT_EQ(SitePrice(Site::Camp, level), kPrices[level - 1]);
    world.Player().Money = kPrices[level - 1] - 1;
    EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Shed", level),
              std::string("You cannot afford this! It costs ") + kWords[level - 1]);
    world.Player().Money += 1;
    ASSERT_EQ(WhyNotOpen(world, Site::Camp, "The Shed", level), "");
    OpenSite(world, Site::Camp, " The Shed ", level);
    EXPECT_EQ(world.Player().Money, 0);
    EXPECT_EQ(world.Player().CampName.View(), "The Shed");
    EXPECT_EQ(world.Player().CampFacilities, level);
    const HistoryEntry& entry = world.History()[1];
    EXPECT_EQ(entry.Kind, kPastCamp);
    EXPECT_EQ(entry.Name.View(), "The Shed");
    EXPECT_EQ(entry.Costs, kPrices[level - 1]);
    EXPECT_EQ(entry.Money, 0);
  }
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
  EXPECT_EQ(world.Player().CampFacilities, 3);
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
  EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Barn", 1), why) << "closing does not help";
  EXPECT_EQ(WhyNotOpen(world, Site::Territory, "The Woods"), why);
  world.Game().Today = Day{year{2026} / 5 / 31};
  EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Barn", 1), why);
  world.Game().Today = Day{year{2026} / 6 / 1};
  EXPECT_EQ(WhyNotOpen(world, Site::Camp, "The Barn", 1), "");
  world.Game().Today = Day{year{2026} / 5 / 31};
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
  ASSERT_EQ(PeopleAt(world, Site::Camp).size(), 1u);
  ASSERT_EQ(PeopleAt(world, Site::Territory).size(), 2u);
  CloseSite(world, Site::Camp);
  EXPECT_EQ(Named(world.Workers(), "Raw").Position, kJobber) << "what an Over of 20 earns";
  EXPECT_EQ(Named(world.Workers(), "Deal").Position, kDevelopmentDeal);
  EXPECT_EQ(Named(world.Workers(), "Other").Position, kTrainingCamp) << "a rival's";
  EXPECT_EQ(world.Player().CampFacilities, 0);
  EXPECT_EQ(world.Player().HeadTrainer, 0);
  CloseSite(world, Site::Territory);
  EXPECT_EQ(Named(world.Workers(), "Deal").Position, kMidcard);
  EXPECT_EQ(Named(world.Workers(), "Sent").Position, kUpperMidcard) << "where he came from";
  EXPECT_EQ(world.Player().DevBooker, 0);
  EXPECT_FALSE(HasSite(world.Player(), Site::Camp) || HasSite(world.Player(), Site::Territory));
  EXPECT_EQ(world.Player().Money, 500000);
  EXPECT_EQ(world.History().Count(), 0);
}

std::vector<std::string> NamesOf(const std::vector<OfficeSeeker>& candidates) {
  std::vector<std::string> names;
  for (const OfficeSeeker& candidate : candidates) names.push_back(candidate.Name);
  return names;
}

TEST(Offices, GoToWhomTheyAreFor) {
  World world = Schools();
  EXPECT_EQ(NamesOf(CandidatesFor(world, Office::Commissioner)), (Lines{"Suit"}));
  EXPECT_EQ(NamesOf(CandidatesFor(world, Office::HeadTrainer)), (Lines{"Coach"}));
  EXPECT_EQ(NamesOf(CandidatesFor(world, Office::DevBooker)), (Lines{"Pen"})) << "no owner";
  const int coach = Named(world.AllStaff(), "Coach").Uid, pen = Named(world.AllStaff(), "Pen").Uid;
  EXPECT_EQ(WhyNotAppoint(world, Office::HeadTrainer, coach), "There is no training camp.");
  EXPECT_EQ(WhyNotAppoint(world, Office::DevBooker, pen), "There is no development territory.");
  world.Player().CampName = "The Shed";
  world.Player().DevName = "The Sticks";
  struct Case {
    Office For;
    int Uid;
    const char* Why;
  };
  const int star = Named(world.Workers(), "Star").Uid, cape = Named(world.Workers(), "Cape").Uid;
  const int suit = Named(world.Workers(), "Suit").Uid, guru = Named(world.AllStaff(), "Guru").Uid;
  for (const Case& c :
       {Case{Office::HeadTrainer, coach, ""},
        {Office::HeadTrainer, pen, "Pen is not one of your trainers."},
        {Office::HeadTrainer, guru, "Guru is not one of your trainers."},
        {Office::DevBooker, pen, ""},
        {Office::DevBooker, coach, "Coach is not one of your staff who can book."},
        {Office::Commissioner, suit, ""},
        {Office::Commissioner, 0, ""},
        {Office::Commissioner, star, "Star is not one of your non-wrestlers."},
        {Office::Commissioner, cape, "Cape is not one of your non-wrestlers."},
        {Office::Commissioner, 999, "Whoever that was is not one of your non-wrestlers."}})
    EXPECT_EQ(WhyNotAppoint(world, c.For, c.Uid), c.Why) << c.Uid;
  EXPECT_EQ(HolderName(world, Office::Commissioner), "Suit");
  Appoint(world, Office::Commissioner, 0);
  EXPECT_EQ(HolderName(world, Office::Commissioner), "None");
  world.Player().HeadTrainer = 999;
  EXPECT_EQ(HolderOf(world, Office::HeadTrainer), 0) << "a uid that leads nowhere";
}

TEST(RiskLimits, AreThoseOfShowsAndSponsors) {
  World world =
      SmallWorld()
          .Network("Nine", [](Network& n) { n.PrimeRisk = 60, n.LateRisk = 70, n.EarlyRisk = 20; })
          .Promotion("CWA")
          .Show("Friday Fire", "Friday", "Nine")
          .Show("Late Fire", "Monday", "Nine", [](Show& s) { s.Slot = "L"; })
          .Sponsor("Gulp", [](Sponsor& s) { s.Morality = 55; })
          .Sponsor("Crunch", [](Sponsor& s) { s.Morality = 0; })
          .Promotion("NEW")
          .Show("Theirs", "Friday", "Nine", [](Show& s) { s.Slot = "E"; })
          .Game("CWA");
  std::vector<std::string> lines;
  for (const RiskLimit& limit : RiskLimits(world))
    lines.push_back(limit.Who + ": " + limit.What + ", " + std::to_string(limit.Limit));
  EXPECT_EQ(lines, (Lines{"Friday Fire: Television, Prime Time on Nine, 60",
                          "Late Fire: Television, Late Night on Nine, 70", "Gulp: Main sponsor, 45",
                          "Crunch: Minor sponsor, 100"}));
  Network& nine = world.Networks()[1];
  nine.GraveRisk = 90;
  for (const auto& [risk, sponsors, slots] : {std::tuple(0, 2, 4),
                                              {20, 2, 4},
                                              {21, 2, 3},
                                              {45, 2, 3},
                                              {46, 1, 3},
                                              {71, 1, 1},
                                              {91, 1, 0}}) {
    const RiskMarket market = MarketFor(world, risk);
    EXPECT_EQ(market.Sponsors, 2);
    EXPECT_EQ(market.SponsorsThatBear, sponsors) << risk;
    EXPECT_EQ(market.Slots, 4);
    EXPECT_EQ(market.SlotsThatBear, slots) << risk;
  }
}

TEST(ProductRisk, IsToldInWordsByItsBand) {
  struct Case {
    int Risk;
    const char* Words;
  };
  constexpr Case kCases[] = {{0, "For the whole family"},    {20, "For the whole family"},
                             {21, "For most of the family"}, {40, "For most of the family"},
                             {41, "An edge that some mind"}, {60, "An edge that some mind"},
                             {61, "For grown-ups only"},     {80, "For grown-ups only"},
                             {81, "Nothing is too much"},    {100, "Nothing is too much"}};
  for (const Case& c : kCases) EXPECT_STREQ(RiskText(c.Risk), c.Words) << c.Risk;
}

}  // namespace
}  // namespace grapplemont::test
