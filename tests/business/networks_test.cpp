#include <gtest/gtest.h>

#include "business/networks.h"
#include "records/checks/checkworld.h"
#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

TEST(AudiencePotential, FollowsSizeAndImage) {
  struct Band {
    int Low, High;
    std::vector<int> BySize;
  };
  const Band kBands[] = {{81, 100, {800, 600, 400, 200, 0, 0}},
                         {61, 80, {760, 560, 360, 160, 0, 0}},
                         {41, 60, {720, 520, 320, 120, 0, 0}},
                         {21, 40, {680, 480, 280, 80, 0, 0}},
                         {0, 20, {640, 440, 240, 40, 0, 0}}};
  for (const Band& band : kBands)
    for (int size = kGlobal; size <= kBackyard; ++size)
      for (const int image : {band.Low, band.High}) {
        Promotion promotion;
        promotion.Size = size;
        promotion.Image = image;
        EXPECT_EQ(AudiencePotential(promotion, 50), band.BySize[static_cast<std::size_t>(size - 1)])
            << size << " at " << image;
      }
}

TEST(AudiencePotential, FollowsTheEconomyRoundedDown) {
  constexpr int kCases[][2] = {{100, 576}, {91, 576}, {90, 528}, {81, 528}, {80, 480},
                               {20, 480},  {19, 432}, {10, 432}, {9, 384},  {0, 384}};
  Promotion promotion;
  promotion.Size = kNational;
  promotion.Image = 40;
  for (const auto& [economy, potential] : kCases)
    EXPECT_EQ(AudiencePotential(promotion, economy), potential) << economy;
}

TEST(Networks, GiveAndBearByTheSlot) {
  Network network;
  network.EarlyAudience = 1;
  network.PrimeAudience = 2;
  network.LateAudience = 3;
  network.GraveAudience = 4;
  network.EarlyRisk = 5;
  network.PrimeRisk = 6;
  network.LateRisk = 7;
  network.GraveRisk = 8;
  struct Case {
    const char* Slot;
    int Audience, Risk;
    const char *Name, *Hours;
  };
  constexpr Case kCases[] = {{"E", 1, 5, "Early Evening", "6:00pm - 8:00pm"},
                             {"P", 2, 6, "Prime Time", "8:00pm - 10:00pm"},
                             {"L", 3, 7, "Late Evening", "10:00pm - 12:00am"},
                             {"G", 4, 8, "Graveyard", "12:00am - 2:00am"},
                             {"X", 4, 8, "Graveyard", "12:00am - 2:00am"}};
  for (const Case& c : kCases) {
    EXPECT_EQ(SlotAudience(network, c.Slot), c.Audience) << c.Slot;
    EXPECT_EQ(SlotRisk(network, c.Slot), c.Risk) << c.Slot;
    EXPECT_EQ(SlotName(c.Slot), c.Name);
    EXPECT_EQ(SlotHours(c.Slot), c.Hours);
  }
}

TEST(Networks, AreFullWithExactlyTwentyEightShows) {
  World world = SmallWorld().Network("Nine").Network("Ten").Promotion("CWA").Game("CWA");
  const Network& nine = world.Networks()[1];
  for (int count = 1; count <= 29; ++count) {
    Show show;
    show.Name = "Show " + std::to_string(count);
    show.Network = nine.Uid;
    world.Shows().Append(show);
    EXPECT_EQ(IsFull(world, nine), count == 28) << count;
    EXPECT_FALSE(IsFull(world, world.Networks()[2]));
  }
}

TEST(Networks, HaveANameEvenWhenTheyAreNoMore) {
  World world = SmallWorld().Network("Nine").Promotion("CWA").Game("CWA");
  EXPECT_EQ(NetworkName(world, 1), "Nine");
  EXPECT_EQ(NetworkName(world, 0), "None");
  EXPECT_EQ(NetworkName(world, 7), "None");
}

Change<Network> Grave(int audience, int risk = 60, bool generic = false) {
  return [=](Network& n) {
    n.GraveAudience = audience;
    n.GraveRisk = risk;
    n.Generic = generic;
  };
}

/// The player "CWA" has the uid 4, so that the rival can be any of the others.
SmallWorld RivalOf(int uid, int size, const Change<Promotion>& change = {}) {
  SmallWorld small;
  small.Network("Nine", Grave(400));
  for (int other = 1; other <= 5; ++other) {
    const std::string initials = other == 4     ? "CWA"
                                 : other == uid ? "NEW"
                                                : "P" + std::to_string(other);
    small.Promotion(initials, other == uid ? size : kRegional, [&](Promotion& p) {
      p.Risk = 60;
      p.Image = 50;
      if (other == uid && change) change(p);
    });
  }
  small.Game("CWA");
  return small;
}

void AddShow(World& world, const std::string& name, int owner, const char* day, const char* slot,
             int network = 1) {
  Show show;
  show.Name = name;
  show.Owner = owner;
  show.Day = day;
  show.Slot = slot;
  show.Network = network;
  show.ContractWeeks = 10;
  world.Shows().Append(show);
}

TEST(RivalNewTvShows, SignsADeal) {
  struct Case {
    int Uid, Size;
    const char* Slot;
    int Weeks;
  };
  constexpr Case kCases[] = {{1, kCult, "P", 12},   {2, kNational, "L", 24}, {3, kGlobal, "E", 52},
                             {5, kGlobal, "G", 52}, {5, kNational, "G", 24}, {5, kCult, "G", 12}};
  for (const Case& c : kCases) {
    World world = RivalOf(c.Uid, c.Size);
    world.Networks()[1].GraveAudience = 10;
    ScriptDraws(world, {{6, 2}, {100, 50}, {7, 3}, {7, 5}, {7, 4}});
    RivalNewTvShows(world);
    ASSERT_EQ(world.Shows().Count(), 1);
    const Show& show = world.Shows()[1];
    EXPECT_EQ(show.Name.View(), "NEW Thursday");
    EXPECT_EQ(show.Owner, c.Uid);
    EXPECT_EQ(show.Day.View(), "Thursday");
    EXPECT_EQ(show.Slot.View(), c.Slot);
    EXPECT_EQ(show.Network, 1);
    EXPECT_EQ(show.ContractWeeks, c.Weeks);
    EXPECT_EQ(
        show.Announcer + show.Colour + show.Rating1 + show.Rating2 + show.Rating3 + show.Rating4,
        0);
    EXPECT_FALSE(show.ColourIsWorker);
    EXPECT_EQ(NewsOf(world), "TV News: NEW have a new TV show on Thursdays!\n");
    for (const auto& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
  }
}

TEST(RivalNewTvShows, IsForCultAndAboveAndNotForThePlayer) {
  for (int size = kRegional; size <= kBackyard; ++size) {
    World world = RivalOf(5, size);
    world.Player().Size = kGlobal;
    ScriptDraws(world, {});
    RivalNewTvShows(world);
    EXPECT_EQ(world.Shows().Count(), 0);
  }
}

TEST(RivalNewTvShows, PassesOverAPromotionThatIsBeingClosed) {
  World world = RivalOf(5, kGlobal, [](Promotion& p) { p.Name = kToBeDeleted; }).BuildUnchecked();
  ScriptDraws(world, {});
  RivalNewTvShows(world);
  EXPECT_EQ(world.Shows().Count(), 0);
}

// A Cult rival of image 50 could draw 320: eight tenths of 401 are 320, of 402 they are 321.
TEST(RivalNewTvShows, AsksTheNetworkInThisOrder) {
  struct Case {
    const char* What;
    int Audience, Risk, Shows;
    bool Generic;
    std::vector<ScriptedDraw> Draws;
    bool Signs;
  };
  const std::vector<ScriptedDraw> kSigned = {{6, 2}, {100, 1}, {7, 1}, {7, 1}, {7, 1}};
  const Case kCases[] = {
      {"too risky draws nothing", 10, 59, 0, false, {}, false},
      {"full draws nothing", 10, 60, 28, false, {}, false},
      {"full but generic", 10, 60, 28, true, kSigned, true},
      {"over-full", 10, 60, 29, false, kSigned, true},
      {"just enough draw", 401, 60, 0, false, kSigned, true},
      {"too few draw, after the draw", 402, 60, 0, false, {{6, 2}}, false},
      {"no interest on 1", 10, 60, 0, false, {{6, 1}}, false},
      {"no interest on 3", 10, 60, 0, false, {{6, 3}}, false},
  };
  for (const Case& c : kCases) {
    World world = RivalOf(5, kCult);
    Grave(c.Audience, c.Risk, c.Generic)(world.Networks()[1]);
    for (int i = 0; i < c.Shows; ++i) AddShow(world, "Show " + std::to_string(i), 0, "Monday", "E");
    ScriptDraws(world, c.Draws);
    RivalNewTvShows(world);
    EXPECT_EQ(world.Shows().Count(), c.Shows + (c.Signs ? 1 : 0)) << c.What;
  }
}

TEST(RivalNewTvShows, GoesToTheBiggestNetworkATieToTheEarlier) {
  struct Case {
    int Draws[3];
    int Network;
  };
  constexpr Case kCases[] = {{{50, 40, 1}, 1}, {{50, 41, 1}, 2}, {{1, 1, 100}, 3}};
  for (const Case& c : kCases) {
    World world = SmallWorld()
                      .Network("Nine", Grave(100))
                      .Network("Ten", Grave(110))
                      .Network("Shut", Grave(390, 10))
                      .Network("Eleven", Grave(90))
                      .Promotion("CWA")
                      .Promotion("NEW", kCult)
                      .Game("CWA");
    ScriptDraws(world, {{6, 2},
                        {100, c.Draws[0]},
                        {6, 2},
                        {100, c.Draws[1]},
                        {6, 2},
                        {100, c.Draws[2]},
                        {7, 1},
                        {7, 1},
                        {7, 1}});
    RivalNewTvShows(world);
    ASSERT_EQ(world.Shows().Count(), 1);
    EXPECT_EQ(world.Shows()[1].Network, c.Network == 3 ? 4 : c.Network);
  }
}

TEST(RivalNewTvShows, FindsADay) {
  struct Case {
    const char* What;
    std::vector<int> Draws;
    const char* Day;
  };
  // Saturday and Sunday are the rival's own or the network's; Monday to Wednesday too.
  const Case kCases[] = {{"no draw hits: the last free one", {1, 6, 7}, "Friday"},
                         {"the first draw hits", {4, 1, 2}, "Thursday"},
                         {"the last hit counts", {4, 5, 3}, "Friday"},
                         {"the third hits", {1, 5, 4}, "Thursday"}};
  for (const Case& c : kCases) {
    World world = RivalOf(5, kCult);
    AddShow(world, "Own", 5, "Saturday", "P");
    for (const char* day : {"Monday", "Tuesday", "Wednesday", "Sunday"})
      AddShow(world, std::string("Other ") + day, 3, day, "G");
    AddShow(world, "Elsewhere", 3, "Thursday", "P");
    AddShow(world, "On another network", 3, "Friday", "G", 99);
    ScriptDraws(world, {{6, 2}, {100, 9}, {7, c.Draws[0]}, {7, c.Draws[1]}, {7, c.Draws[2]}});
    RivalNewTvShows(world);
    EXPECT_EQ(world.Shows()[world.Shows().Count()].Day.View(), c.Day) << c.What;
  }
}

TEST(RivalNewTvShows, SharesTheSpotsOfAGenericNetwork) {
  World world = RivalOf(5, kCult);
  world.Networks()[1].Generic = true;
  for (const Term& day : kWeekDays)
    AddShow(world, "Other " + std::string(day.Says), 3, day.Says.data(), "G");
  ScriptDraws(world, {{6, 2}, {100, 9}, {7, 2}, {7, 2}, {7, 2}});
  RivalNewTvShows(world);
  EXPECT_EQ(Named(world.Shows(), "NEW Tuesday").Owner, 5);
}

TEST(RivalNewTvShows, GivesNobodyAFourthShow) {
  World world = RivalOf(5, kCult);
  for (const char* day : {"Monday", "Tuesday", "Friday"})
    AddShow(world, std::string("Own ") + day, 5, day, "P");
  ScriptDraws(world, {{6, 2}, {100, 9}});
  RivalNewTvShows(world);
  EXPECT_EQ(world.Shows().Count(), 3);
}

TEST(RivalNewTvShows, NumbersANameThatIsTaken) {
  World world = RivalOf(5, kCult);
  AddShow(world, "NEW Monday", 3, "Monday", "P");
  AddShow(world, "NEW Monday 2", 3, "Friday", "P");
  ScriptDraws(world, {{6, 2}, {100, 9}, {7, 1}, {7, 1}, {7, 1}});
  RivalNewTvShows(world);
  EXPECT_EQ(world.Shows()[3].Name.View(), "NEW Monday 3");
  EXPECT_EQ(NewsOf(world), "TV News: NEW have a new TV show on Mondays!\n");
}

}  // namespace
}  // namespace grapplemont::test
