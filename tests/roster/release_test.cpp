#include "roster/leaving.h"

#include <gtest/gtest.h>

#include "support/newsof.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

SmallWorld Employed(const Change<Worker>& change = {}) {
  SmallWorld small;
  small.Network("Nine").Promotion("CWA", kRegional).Worker("Ilya Marsh");
  small.Worker("Bram Okafor", kMidcard, 60, change);
  return small;
}

Worker& Bram(World& world) {
  return Named(world.Workers(), "Bram Okafor");
}

TEST(ReleaseWorker, EndsWhateverBoundHim) {
  World world = Employed([](Worker& worker) {
                  worker.Status = "Hom";
                  worker.Morale = 3;
                  worker.Manager = 1;
                  worker.TurnPending = true;
                  worker.Debuted = false;
                  worker.Unsackable = true;
                  worker.ContractMonths = kNoEnd;
                })
                    .Stable("The Bench", {"Bram Okafor"})
                    .Show("Fire", "Friday", "Nine",
                          [](Show& show) { show.ColourIsWorker = true, show.Colour = 2; })
                    .Title("Crown", "Bram Okafor")
                    .Title("Cups", "Ilya Marsh", "Bram Okafor", [](Title& t) { t.Image = 9; })
                    .Title("Belt", "Ilya Marsh")
                    .Promotion("NEW", kCult)
                    .Game("CWA")
                    .Feud("Ilya Marsh", "Bram Okafor");
  for (Promotion& promotion : world.Promotions()) promotion.Commissioner = 2;
  world.Player().Split[0] = "Blue";
  Bram(world).Split = "Blue";
  Named(world.Workers(), "Ilya Marsh").Manager = 2;
  ScriptDraws(world, {{3, 3}});
  ReleaseWorker(world, Bram(world));
  const Worker& bram = Bram(world);
  EXPECT_EQ(bram.Employer, 0);
  EXPECT_EQ(bram.Status.View(), "Nor");
  EXPECT_EQ(bram.Morale, 80);
  EXPECT_EQ(bram.Split.View(), "None");
  EXPECT_EQ(bram.Stable.View(), "None");
  EXPECT_EQ(bram.ContractMonths, 0);
  EXPECT_EQ(bram.ContractType.View(), "Non");
  EXPECT_EQ(bram.Manager, 0);
  EXPECT_FALSE(bram.Unsackable);
  EXPECT_FALSE(bram.TurnPending);
  EXPECT_TRUE(bram.Debuted);
  for (const Promotion& promotion : world.Promotions()) EXPECT_EQ(promotion.Commissioner, 0);
  EXPECT_EQ(Named(world.Workers(), "Ilya Marsh").Manager, 0);
  EXPECT_EQ(world.Feuds()[1].Worker1, 0);
  EXPECT_EQ(world.Feuds()[1].Worker2, 0);
  EXPECT_FALSE(world.Shows()[1].ColourIsWorker);
  EXPECT_EQ(world.Shows()[1].Colour, 0);
  for (const auto& [name, image] : {std::pair("Crown", 45), {"Cups", 9}}) {
    const Title& title = Named(world.Titles(), name);
    EXPECT_EQ(title.Holder, 0);
    EXPECT_EQ(title.Partner, 0);
    EXPECT_EQ(title.Image, image) << name << " loses the whole tenth";
    EXPECT_EQ(title.Reigns[0].Holder.View(), "Vacant");
    EXPECT_EQ(Day(title.Reigns[0].Won), kGameStart);
    EXPECT_EQ(Day(title.Reigns[1].Lost), kGameStart);
  }
  EXPECT_EQ(Named(world.Titles(), "Crown").Reigns[1].Holder.View(), "Bram Okafor");
  EXPECT_EQ(Named(world.Titles(), "Belt").Holder, 1);
  ExpectSound(world);
}

struct Rival {
  const char* Initials;
  int Size, Image;
};

/// Released to these rivals with the draws that follow the 1 of 3; the initials of who signs them,
/// empty for nobody.
std::string SignedBy(const std::vector<Rival>& rivals, int over, int wage, std::vector<int> bids) {
  SmallWorld small = Employed([&](Worker& worker) { worker.Over = over, worker.Wage = wage; });
  for (const Rival& rival : rivals)
    small.Promotion(rival.Initials, rival.Size, [&](Promotion& p) { p.Image = rival.Image; });
  World world = small.Game("CWA");
  bids.insert(bids.begin(), 1);
  ScriptDraws(world, bids);
  ReleaseWorker(world, Bram(world));
  const Promotion* employer = world.FindPromotion(Bram(world).Employer);
  return employer ? employer->Initials.Str() : std::string();
}

TEST(ReleaseWorker, FindsOnlyRivalsWhoPayForHim) {
  // Four fifths of the wage must fit, and the Over lie above the size's.
  constexpr struct {
    int Size, Over, Wage;
    bool Signs;
  } kCases[] = {{kGlobal, 81, 188, true},   {kGlobal, 81, 189, false},   {kGlobal, 80, 10, false},
                {kNational, 66, 126, true}, {kNational, 66, 127, false}, {kNational, 65, 10, false},
                {kCult, 51, 88, true},      {kCult, 51, 89, false},      {kCult, 50, 10, false},
                {kRegional, 41, 51, true},  {kRegional, 41, 52, false},  {kRegional, 40, 10, false},
                {kSmall, 21, 26, true},     {kSmall, 21, 27, false},     {kSmall, 20, 10, false},
                {kBackyard, 20, 13, true},  {kBackyard, 20, 14, false},  {kBackyard, 10, 1, false},
                {kBackyard, 21, 10, false}};  // nobody above 20 goes so low
  for (const auto& c : kCases)
    EXPECT_EQ(SignedBy({{"NEW", c.Size, 50}}, c.Over, c.Wage,
                       c.Signs ? std::vector<int>{40, 1} : std::vector<int>()),
              c.Signs ? "NEW" : "")
        << c.Size << " " << c.Over << " " << c.Wage;
}

TEST(ReleaseWorker, ComparesABidWithTheBestsPlainImage) {
  // The first bids 50 + 80, and 49 + 2 beats its image of 50 all the same.
  EXPECT_EQ(SignedBy({{"ONE", kCult, 50}, {"TWO", kCult, 49}}, 60, 10, {80, 2, 1}), "TWO");
  EXPECT_EQ(SignedBy({{"ONE", kCult, 50}, {"TWO", kCult, 49}}, 60, 10, {80, 1, 1}), "ONE");
  // A smaller one never takes the place of a bigger, and draws in vain.
  EXPECT_EQ(SignedBy({{"ONE", kCult, 10}, {"TWO", kRegional, 90}}, 60, 10, {1, 80, 1}), "ONE");
  EXPECT_EQ(SignedBy({{"TWO", kRegional, 90}, {"ONE", kCult, 20}}, 60, 10, {1, 80, 1}), "ONE");
  EXPECT_EQ(SignedBy({{"TWO", kRegional, 90}, {"ONE", kCult, 20}}, 60, 10, {1, 70, 1}), "TWO");
  // Who cannot pay draws nothing.
  EXPECT_EQ(SignedBy({{"BIG", kGlobal, 90}, {"ONE", kCult, 20}}, 60, 10, {5, 1}), "ONE");
}

TEST(ReleaseWorker, SignsHimOnTheTermsOfTheSize) {
  constexpr struct {
    int Size, Over, Months;
    const char* Type;
    int Position;
  } kCases[] = {{kGlobal, 90, 24, "Wri", kMainEvent},  {kNational, 70, 24, "Wri", kUpperMidcard},
                {kCult, 60, 12, "Wri", kUpperMidcard}, {kRegional, 45, 12, "Non", kUpperMidcard},
                {kSmall, 30, 6, "Non", kUpperMidcard}, {kBackyard, 15, 6, "Non", kUpperMidcard}};
  for (const auto& c : kCases) {
    World world = Employed([&](Worker& worker) {
                    worker.Over = c.Over;
                    worker.Wage = 12;
                    worker.Morale = 75;
                  })
                      .Promotion("NEW", c.Size)
                      .Game("CWA");
    world.Game().MailWorkerHire = 0;
    ScriptDraws(world, {{3, 1}, {80, 7}, {3, 2}});
    ReleaseWorker(world, Bram(world));
    const Worker& bram = Bram(world);
    EXPECT_EQ(bram.Over, c.Over + 2);
    EXPECT_EQ(bram.ContractMonths, c.Months) << c.Size;
    EXPECT_EQ(bram.ContractType.View(), c.Type) << c.Size;
    EXPECT_EQ(bram.Position, c.Position) << c.Size;
    EXPECT_EQ(bram.Morale, 95);
    EXPECT_EQ(bram.Wage, 12);
    EXPECT_EQ(NewsOf(world), "NEW News: Bram Okafor has signed for NEW!\n");
  }
}

TEST(ReleaseWorker, PassesOverAPromotionThatIsGoneWithoutADraw) {
  World world = Employed().Promotion("NEW", kCult).Game("CWA");
  Named(world.Promotions(), "NEW").Name = kToBeDeleted;
  ScriptDraws(world, {{3, 1}});
  ReleaseWorker(world, Bram(world));
  EXPECT_EQ(Bram(world).Employer, 0);
}

TEST(ReleaseWorker, TellsOfTheSigningUnderTheOption) {
  for (const auto& [option, size, told] :
       {std::tuple(0, kSmall, true), {1, kRegional, true}, {1, kSmall, false}, {2, kCult, false}}) {
    World world = Employed().Promotion("NEW", size).Game("CWA");
    world.Game().MailWorkerHire = option;
    ScriptDraws(world, {1, 1, 1});
    ReleaseWorker(world, Bram(world));
    EXPECT_NE(Bram(world).Employer, 0);
    EXPECT_EQ(world.News().Count(), told ? 1 : 0) << option << " " << size;
  }
}

}  // namespace
}  // namespace grapplemont::test
