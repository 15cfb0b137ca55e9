#include <gtest/gtest.h>

#include <map>

#include "booking/wizard/casting.h"
#include "booking/wizard/roster.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using Numbers = std::vector<int>;
using Names = std::vector<std::string>;
constexpr BookingView kTv, kEvent{true};

Numbers Offered(int risk, int size, bool commissioner = false, Day today = kGameStart) {
  SmallWorld small;
  small.Promotion("CWA", size, [&](Promotion& p) { p.Risk = risk; })
      .Worker("Ada Crown", kNonWrestler, 60)
      .Game("CWA", today);
  World world = small;
  if (commissioner) world.Player().Commissioner = Named(world.Workers(), "Ada Crown").Uid;
  Numbers numbers;
  for (const Angle* angle : OfferedAngles(world)) numbers.push_back(angle->Number);
  return numbers;
}

/// What the second list has more than the first.
Numbers More(const Numbers& few, const Numbers& many) {
  Numbers more;
  std::set_difference(many.begin(), many.end(), few.begin(), few.end(), std::back_inserter(more));
  return more;
}

TEST(OfferedAngles, AreInTheOrderOfTheirNumbersAndAskForNothingAtFirst) {
  EXPECT_EQ(Offered(0, kBackyard),
            (Numbers{1,  2,  4,  5,  6,  7,  8,  9,  11, 18, 21, 22, 23, 24, 25, 27,
                     29, 30, 31, 32, 34, 35, 36, 37, 38, 43, 44, 45, 46, 47, 48, 49,
                     50, 51, 52, 53, 55, 56, 57, 58, 59, 60, 61, 62, 63, 64, 65, 66}));
}

TEST(OfferedAngles, GrowWithRisk) {
  const std::map<int, Numbers> kSteps = {
      {35, {3, 19}},      {40, {76}},     {45, {13, 17, 33}}, {55, {12, 16, 79}},
      {60, {14, 39, 75}}, {65, {15, 78}}, {80, {77}},
  };
  for (int risk = 0; risk < 100; ++risk) {
    const auto step = kSteps.find(risk);
    EXPECT_EQ(More(Offered(risk, kBackyard), Offered(risk + 1, kBackyard)),
              step == kSteps.end() ? Numbers() : step->second)
        << risk;
  }
}

TEST(OfferedAngles, GrowWithTheSizeOfThePromotion) {
  EXPECT_EQ(More(Offered(0, kNational), Offered(0, kGlobal)), Numbers{20});
  EXPECT_EQ(More(Offered(56, kRegional), Offered(56, kCult)), Numbers{28});
  EXPECT_EQ(Offered(55, kCult), Offered(55, kRegional));
}

TEST(OfferedAngles, NeedACommissionerForHisOwn) {
  EXPECT_EQ(More(Offered(0, kCult), Offered(0, kCult, true)),
            (Numbers{10, 26, 40, 41, 42, 54, 71, 72}));
}

TEST(OfferedAngles, ComeOnTheirDays) {
  const auto on = [](int month, unsigned day) {
    const Day date{std::chrono::year{2026} / month / static_cast<int>(day)};
    return More(Offered(0, kCult), Offered(0, kCult, false, date));
  };
  const std::tuple<int, unsigned, Numbers> kDays[] = {
      {12, 25, {67}}, {1, 1, {68}}, {10, 31, {69}}, {7, 23, {70}}, {2, 14, {73, 74}}};
  for (const auto& [month, day, angles] : kDays) EXPECT_EQ(on(month, day), angles) << month;
  for (const auto& [month, day] :
       {std::pair{12, 24u}, {12, 26u}, {1, 2u}, {1, 11u}, {10, 30u}, {7, 22u}, {2, 13u}, {2, 15u}})
    EXPECT_EQ(on(month, day), Numbers()) << month << "/" << day;
}

TEST(EnoughWriters, DependsOnTheShowsOnTelevisionAlone) {
  struct Case {
    int Shows, Few;  // one writer fewer than enough
  };
  for (const Case& row : {Case{0, 0}, {1, 1}, {2, 3}, {3, 5}, {4, 9}, {5, 9}}) {
    SmallWorld small;
    small.Network("Channel Nine").Promotion("CWA").Staff("A Trainer", kTrainer);
    for (int i = 0; i < row.Shows; ++i)
      small.Show("Show " + std::to_string(i), "Friday", "Channel Nine");
    for (int i = 0; i < row.Few; ++i) small.Staff("Writer " + std::to_string(i), kWriter);
    small.Promotion("NEW").Staff("Strange Writer", kWriter);
    World world = small.Game("CWA").BuildUnchecked();
    EXPECT_FALSE(EnoughWriters(world, false)) << row.Shows;
    EXPECT_EQ(EnoughWriters(world, true), row.Few > 0) << row.Shows;
    Named(world.AllStaff(), "Strange Writer").Employer = world.PlayerUid();
    EXPECT_TRUE(EnoughWriters(world, false)) << row.Shows;
  }
}

/// One of every kind that lists tell apart, and some who are out of reach.
SmallWorld Company() {
  SmallWorld small;
  small.Promotion("CWA", kCult, [](Promotion& p) { p.Split[0] = "Blue"; })
      .Worker("Abel Face", kMidcard, 50, [](Worker& w) { w.TurnPending = true; })
      .Worker("Bea Heel", kMidcard, 50,
              [](Worker& w) {
                w.Gender = false;
                w.Disposition = "H";
                w.TurnPending = true;
                w.Split = "Blue";
              })
      .Worker("Cy Manager", kManager, 50)
      .Worker("Di New", kManager, 50,
              [](Worker& w) {
                w.Gender = false;
                w.Debuted = false;
              })
      .Worker("Ed Suit", kNonWrestler, 50)
      .Worker("Flo Hurt", kMidcard, 50,
              [](Worker& w) {
                w.Gender = false;
                w.Status = "Inj";
                w.InjuryName = "Broken Leg";
                w.StatusMonths = 2;
                w.Debuted = false;
                w.TurnPending = true;
              })
      .Worker("Gus Fresh", kJobber, 20,
              [](Worker& w) {
                w.Debuted = false;
                w.Disposition = "T";
                w.TurnPending = true;
              })
      .Stable("The Tide", {"Abel Face"})
      .Stable("The Guild")
      .Title("Held Crown", "Abel Face")
      .Title("Open Crown")
      .Title("Open Pair", {}, {}, [](Title& t) { t.Singles = false; })
      .Promotion("NEW")
      .Worker("Hal Stranger", kManager, 50, [](Worker& w) { w.Debuted = false; })
      .Stable("The Others")
      .Title("Other Crown")
      .Game("CWA");
  return small;
}

Names List(const World& world, Casting from, const BookingView& view = kTv, int angle = kWalking) {
  Names names;
  Segment segment = EmptySegment();
  segment.Kind = kAngle;
  segment.Style = angle;
  for (const Candidate& candidate : CandidatesFor(world, from, segment, view)) {
    names.push_back(candidate.Name);
    const Worker* worker = world.FindWorker(candidate.Uid);
    EXPECT_EQ(worker ? worker->Name.Str() : candidate.Name, candidate.Name);
  }
  return names;
}

TEST(CandidatesFor, FillEachListWithThoseItIsFor) {
  World world = Company();
  world.Player().Commissioner = Named(world.Workers(), "Ed Suit").Uid;
  const std::pair<Casting, Names> kLists[] = {
      {Casting::Plain, {"Abel Face", "Bea Heel", "Cy Manager", "Di New", "Gus Fresh"}},
      {Casting::Commissioner, {"Ed Suit"}},
      {Casting::Managers, {"Cy Manager", "Di New"}},
      {Casting::DebutManagers, {"Di New"}},
      {Casting::Turners, {"Abel Face", "Bea Heel", "Gus Fresh"}},
      {Casting::Women, {"Bea Heel", "Di New"}},
      {Casting::Men, {"Abel Face", "Cy Manager", "Ed Suit", "Gus Fresh"}},
      {Casting::Debuts, {"Di New", "Gus Fresh"}},
      {Casting::Stables, {"The Tide", "The Guild"}},
      {Casting::SinglesTitles, {"Open Crown"}},
      {Casting::TagTitles, {"Open Pair"}},
  };
  for (const auto& [from, names] : kLists) EXPECT_EQ(List(world, from), names) << NobodyFor(from);
  EXPECT_EQ(List(world, Casting::Turners, kTv, kTeamFaceTurn), (Names{"Bea Heel", "Gus Fresh"}));
  EXPECT_EQ(List(world, Casting::Turners, kTv, kTeamHeelTurn), (Names{"Abel Face", "Gus Fresh"}));
  EXPECT_EQ(List(world, Casting::Plain, kEvent),
            (Names{"Abel Face", "Bea Heel", "Cy Manager", "Di New", "Ed Suit", "Gus Fresh"}));
}

TEST(CandidatesFor, KeepToTheSplit) {
  World world = Company();
  world.Player().Commissioner = Named(world.Workers(), "Ed Suit").Uid;
  const BookingView blue{false, "Blue"};
  for (const Casting from : {Casting::Plain, Casting::Women, Casting::Turners})
    EXPECT_EQ(List(world, from, blue), Names{"Bea Heel"});
  for (const Casting from :
       {Casting::Commissioner, Casting::Managers, Casting::Men, Casting::Debuts})
    EXPECT_EQ(List(world, from, blue), Names()) << NobodyFor(from);
}

TEST(CandidatesFor, LeaveOutACommissionerWhoIsNotFit) {
  World world = Company();
  world.Player().Commissioner = Named(world.Workers(), "Flo Hurt").Uid;
  EXPECT_EQ(List(world, Casting::Commissioner), Names());
}

}  // namespace
}  // namespace grapplemont::test
