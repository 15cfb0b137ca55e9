#include <gtest/gtest.h>

#include "booking/wizard/casting.h"
#include "booking/wizard/roster.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

const BookingView kTv, kEvent{true};

TEST(OfferedAngles, GoByRiskSizeCommissionerAndDate) {
  const auto day = [](int month, int of) { return Day{std::chrono::year{2026} / month / of}; };
  const struct {
    int Number, Risk, Size;
    bool Commissioner;
    Day Today;
    const char* WhyNot;
  } kRows[] = {
      {1, 0, kBackyard, false, kGameStart, ""},
      {kAmbush, 36, kBackyard, false, kGameStart, ""},
      {kAmbush, 35, kBackyard, false, kGameStart, "The risk level must be over 35."},
      {20, 0, kGlobal, false, kGameStart, ""},
      {20, 0, kNational, false, kGameStart, "The promotion is too small for it."},
      {10, 0, kCult, true, kGameStart, ""},
      {10, 0, kCult, false, kGameStart, "There is no Commissioner."},
      {67, 0, kCult, false, day(12, 25), ""},
      {67, 0, kCult, false, day(12, 24), "Only on 25 December."},
      {68, 0, kCult, false, day(1, 1), ""},
      {68, 0, kCult, false, day(1, 11), "Only on 01 January."},
  };
  for (const auto& row : kRows) {
    World world = SmallWorld()
                      .Promotion("CWA", row.Size, [&](Promotion& p) { p.Risk = row.Risk; })
                      .Worker("Ada Crown", kNonWrestler, 60)
                      .Game("CWA", row.Today);
    if (row.Commissioner) world.Player().Commissioner = 1;
    const Angle& angle = *FindAngle(row.Number);
    EXPECT_EQ(WhyNotOffered(world, angle), row.WhyNot) << row.Number;
    const auto offered = OfferedAngles(world);
    EXPECT_EQ(std::count(offered.begin(), offered.end(), &angle), *row.WhyNot == 0);
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
      .Worker("Di New", kManager, 50, [](Worker& w) { w.Gender = false, w.Debuted = false; })
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
              [](Worker& w) { w.Debuted = false, w.Disposition = "T", w.TurnPending = true; })
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

TEST(CandidatesFor, KeepToTheSplitAndLeaveOutWhoIsNotFit) {
  World world = Company();
  world.Player().Commissioner = Named(world.Workers(), "Ed Suit").Uid;
  const BookingView blue{false, "Blue"};
  for (const Casting from : {Casting::Plain, Casting::Women, Casting::Turners})
    EXPECT_EQ(List(world, from, blue), Names{"Bea Heel"});
  for (const Casting from : {Casting::Commissioner, Casting::Managers, Casting::Debuts})
    EXPECT_EQ(List(world, from, blue), Names()) << NobodyFor(from);
  world.Player().Commissioner = Named(world.Workers(), "Flo Hurt").Uid;
  EXPECT_EQ(List(world, Casting::Commissioner), Names());
}

}  // namespace
}  // namespace grapplemont::test
