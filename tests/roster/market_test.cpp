#include <gtest/gtest.h>
#include <set>

#include "roster/market.h"
#include "roster/talks.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

/// A row of a family by their names; a missing one fails the test.
bool Keeps(std::span<const FilterFamily> families, std::string_view control, std::string_view label,
           const Worker& worker) {
  for (const FilterFamily& family : families)
    for (const WorkerFilter& row : family.Rows)
      if (family.Control == control && row.Label == label) return row.Keeps(worker);
  ADD_FAILURE() << "no filter " << control << " " << label;
  return false;
}

Worker Plain() {
  Worker worker;
  worker.Gender = true;
  worker.Age = 30;
  worker.Employer = 1;
  worker.ContractType = "Wri";
  worker.ContractMonths = 12;
  worker.Position = kMidcard;
  worker.Status = "Nor";
  worker.Disposition = "F";
  return worker;
}

struct Row {
  const char *Control, *Label;
  Change<Worker> Made;
  bool Kept;
};

void ExpectRows(std::span<const FilterFamily> families, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    Worker worker = Plain();
    if (row.Made) row.Made(worker);
    EXPECT_EQ(Keeps(families, row.Control, row.Label, worker), row.Kept)
        << row.Control << " " << row.Label << " " << (&row - rows.data());
  }
}

Change<Worker> At(int position) {
  return [position](Worker& w) { w.Position = position; };
}
Change<Worker> Months(int months) {
  return [months](Worker& w) { w.ContractMonths = months; };
}
Change<Worker> Status(const char* status) {
  return [status](Worker& w) { w.Status = status; };
}
Change<Worker> Aged(int age) {
  return [age](Worker& w) { w.Age = age; };
}
void Free(Worker& w) {
  w.Employer = 0;
  w.ContractType = "Non";
  w.ContractMonths = 0;
}
void Verbal(Worker& w) {
  w.ContractType = "Non";
}
void Unsackable(Worker& w) {
  w.Unsackable = true;
  w.ContractMonths = kNoEnd;
  w.ContractType = "Non";
}

TEST(RosterFilters, KeepWhomTheyName) {
  ExpectRows(RosterFilters(), {{"cmbposition", "Midcard", {}, true},
                               {"cmbposition", "Opener", {}, false},
                               {"cmbposition", "Midcard", At(83), false},
                               {"cmbposition", "In development", At(83), true},
                               {"cmbposition", "In development", At(7), true},
                               {"cmbposition", "In development", At(75), false},
                               {"cmbposition", "Training Camp", At(75), true},
                               {"cmbsex", "Men", {}, true},
                               {"cmbsex", "Women", {}, false},
                               {"cmbdispo", "Face", {}, true},
                               {"cmbdispo", "Heel", {}, false},
                               {"cmbstatus", "Available", {}, true},
                               {"cmbstatus", "Not available", {}, false},
                               {"cmbstatus", "Not available", Status("Hom"), true},
                               {"cmbstatus", "Sitting out", Status("Hom"), true},
                               {"cmbstatus", "Injured", Status("Inj"), true},
                               {"cmbstatus", "Injured", Status("Sus"), false},
                               {"cmbstatus", "Suspended", Status("Sus"), true},
                               {"cmbstatus", "In rehab", Status("Reh"), true},
                               {"cmbmonths", "12 months or less", {}, true},
                               {"cmbmonths", "6 months or less", {}, false},
                               {"cmbmonths", "6 months or less", Months(6), true},
                               {"cmbmonths", "3 months or less", Months(4), false},
                               {"cmbmonths", "1 month or less", Months(1), true},
                               {"cmbmonths", "1 month or less", Unsackable, false},
                               {"cmbmonths", "No end", Unsackable, true},
                               {"cmbmonths", "No end", {}, false}});
}

TEST(MarketFilters, KeepWhomTheyName) {
  ExpectRows(MarketFilters(),
             {{"cmbbond", "Free agents", Free, true},
              {"cmbbond", "Free agents", Verbal, false},
              {"cmbbond", "Verbal contracts", Verbal, true},
              {"cmbbond", "Verbal contracts", Free, false},
              {"cmbbond", "Verbal contracts", Unsackable, false},
              {"cmbbond", "Written contracts", {}, true},
              {"cmbbond", "Expiring contracts", Months(3), true},
              {"cmbbond", "Expiring contracts", Months(4), false},
              {"cmbbond", "Expiring contracts", Free, false},
              {"cmbbond", "Expiring contracts", Unsackable, false},
              {"cmbwork", "Wrestlers", At(83), true},
              {"cmbwork", "Wrestlers", At(50), false},
              {"cmbwork", "Wrestlers", At(25), false},
              {"cmbwork", "Managers", At(50), true},
              {"cmbwork", "Non-wrestlers", At(25), true},
              {"cmbskill", "One of 61 up", {}, false},
              {"cmbskill", "One of 61 up", [](Worker& w) { w.Speed = 61; }, true},
              {"cmbskill", "One of 76 up", [](Worker& w) { w.Brawl = 75; }, false},
              {"cmbskill", "One of 76 up", [](Worker& w) { w.Brawl = 76; }, true},
              {"cmbskill", "Technical 61 up", [](Worker& w) { w.Technical = 61; }, true},
              {"cmbskill", "Brawl 61 up", [](Worker& w) { w.Technical = 90; }, false},
              {"cmbage", "Under 25", Aged(24), true},
              {"cmbage", "Under 25", Aged(25), false},
              {"cmbage", "25 to 34", Aged(25), true},
              {"cmbage", "25 to 34", Aged(35), false},
              {"cmbage", "35 to 44", Aged(44), true},
              {"cmbage", "45 and over", Aged(45), true},
              {"cmbage", "45 and over", Aged(44), false}});
}

TEST(Shortlist, HoldsFifteen) {
  World world =
      SmallWorld().Promotion("CWA").Worker("Own Hand").Promotion("NEW").Crew(17).Game("CWA");
  const auto rival = [&](int i) -> Worker& {
    return Named(world.Workers(), "NEW Hand " + std::to_string(i));
  };
  EXPECT_EQ(WhyNotShortlist(world, Named(world.Workers(), "Own Hand")), "Own Hand works for you.");
  for (int i = 1; i <= 15; ++i) {
    ASSERT_EQ(WhyNotShortlist(world, rival(i)), "");
    AddToShortlist(world, rival(i).Uid);
  }
  EXPECT_EQ(WhyNotShortlist(world, rival(3)), "NEW Hand 3 is on your shortlist already.");
  EXPECT_EQ(WhyNotShortlist(world, rival(16)),
            "Your shortlist is full: it holds 15 workers. Take somebody off it first.");
  AddToShortlist(world, rival(16).Uid);
  EXPECT_FALSE(IsShortlisted(world, rival(16).Uid));

  RemoveFromShortlist(world, rival(2).Uid);
  EXPECT_FALSE(IsShortlisted(world, rival(2).Uid));
  ASSERT_EQ(WhyNotShortlist(world, rival(16)), "");
  AddToShortlist(world, rival(16).Uid);
  EXPECT_EQ(Shortlisted(world).at(1)->Name, "NEW Hand 16") << "the place that came free";

  // Whoever has left the world leaves his place.
  rival(5).Uid = 900;
  ASSERT_EQ(WhyNotShortlist(world, rival(17)), "");
  AddToShortlist(world, rival(17).Uid);
  EXPECT_EQ(Shortlisted(world).at(4)->Name, "NEW Hand 17");
}

TEST(MarketStanding, TellsEmployerAndEnd) {
  World world = SmallWorld().Promotion("CWA").Promotion("NEW").Worker("Ray").Game("CWA");
  Worker& ray = Named(world.Workers(), "Ray");
  const std::pair<Change<Worker>, const char*> kRows[] = {
      {[](Worker&) {}, "Under contract to NEW, 12 months left."},
      {Months(1), "Under contract to NEW, in the last month."},
      {Months(2), "Under contract to NEW, 2 months left."},
      {Verbal, "Verbally with NEW, 2 months left."},
      {Unsackable, "Bound to NEW for good."},
      {[](Worker& w) {
         w.Unsackable = false;
         w.ContractMonths = 8;
         w.Employer = 1;
       },
       "Verbally with you, 8 months left."},
      {Free, "Free to sign."}};
  for (const auto& [change, words] : kRows) {
    change(ray);
    EXPECT_EQ(MarketStanding(world, ray), words);
  }
}

}  // namespace
}  // namespace grapplemont::test

// What workers want, by every band: the tables stand here a second time, as ranges.

namespace grapplemont::test {
namespace {

World Of(int size) {
  return SmallWorld()
      .Promotion("CWA", size)
      .Promotion("NEW", kSmall)
      .OnTheMarket()
      .Worker("Free Fred")
      .Game("CWA");
}

Demands DemandsOf(int size, const Change<Worker>& change) {
  World world = Of(size);
  Worker& fred = Named(world.Workers(), "Free Fred");
  change(fred);
  return ContractDemands(world, fred);
}

TEST(ContractDemands, WantThePositionOfTheirOver) {
  struct Range {
    int Size, Low, High, Position;
  };
  constexpr Range kRanges[] = {{1, 91, 100, 1}, {1, 81, 90, 2},  {1, 71, 80, 3},  {1, 51, 70, 4},
                               {1, 31, 50, 5},  {1, 0, 30, 6},   {2, 86, 100, 1}, {2, 71, 85, 2},
                               {2, 61, 70, 3},  {2, 46, 60, 4},  {2, 21, 45, 5},  {2, 0, 20, 6},
                               {3, 66, 100, 1}, {3, 56, 65, 2},  {3, 41, 55, 3},  {3, 31, 40, 4},
                               {3, 11, 30, 5},  {3, 0, 10, 6},   {4, 56, 100, 1}, {4, 41, 55, 2},
                               {4, 31, 40, 3},  {4, 26, 30, 4},  {4, 11, 25, 5},  {4, 0, 10, 6},
                               {5, 36, 100, 1}, {5, 21, 35, 2},  {5, 11, 20, 3},  {5, 6, 10, 4},
                               {5, 0, 5, 5},    {6, 26, 100, 1}, {6, 11, 25, 2},  {6, 0, 10, 3}};
  for (const Range& r : kRanges)
    for (const int over : {r.Low, r.High})
      EXPECT_EQ(DemandsOf(r.Size, [&](Worker& w) { w.Over = over; }).Position, r.Position)
          << "size " << r.Size << " over " << over;
  for (const int kept : {kNonWrestler, kManager})
    EXPECT_EQ(DemandsOf(1, [&](Worker& w) { w.Position = kept; }).Position, kept);
  EXPECT_EQ(DemandsOf(1, [](Worker& w) { w.Position = kTrainingCamp; }).Position, kOpener);
}

TEST(ContractDemands, WantMonthsByAgeAndSize) {
  struct Case {
    int Size, Age, Over, Months;
  };
  constexpr Case kCases[] = {{1, 16, 50, 12}, {1, 17, 50, 24}, {1, 24, 50, 24}, {1, 25, 50, 36},
                             {1, 29, 50, 36}, {2, 30, 50, 48}, {2, 34, 90, 48}, {2, 35, 50, 36},
                             {2, 39, 50, 36}, {2, 40, 50, 24}, {2, 70, 50, 24}, {3, 24, 60, 12},
                             {3, 25, 60, 24}, {3, 37, 60, 24}, {3, 38, 60, 12}, {3, 30, 61, 6},
                             {4, 24, 60, 12}, {4, 37, 60, 24}, {4, 38, 60, 12}, {4, 30, 61, 6},
                             {5, 30, 10, 6},  {6, 20, 90, 6}};
  for (const Case& c : kCases)
    EXPECT_EQ(DemandsOf(c.Size,
                        [&](Worker& w) {
                          w.Age = c.Age;
                          w.Over = c.Over;
                        })
                  .Months,
              c.Months)
        << "size " << c.Size << " age " << c.Age << " over " << c.Over;
}

TEST(ContractDemands, WantAWageByWhatTheyEarnAndWhoAsks) {
  struct Case {
    int Size, Age, Wage;
    bool Employed;
    int Wanted;
  };
  constexpr Case kCases[] = {
      {1, 39, 49, false, 53},   {1, 40, 49, false, 49},   {2, 39, 59, false, 61},
      {2, 40, 59, false, 59},   {3, 30, 59, false, 59},   {4, 30, 59, false, 59},
      {5, 30, 6, false, 6},     {5, 30, 7, false, 7},     {5, 30, 20, false, 19},
      {6, 30, 2, false, 2},     {6, 30, 10, false, 9},    {6, 30, 9, false, 9},
      {1, 39, 49, true, 63},    {3, 30, 4, true, 4},      {3, 30, 5, true, 6},
      {1, 30, 273, false, 300}, {1, 30, 274, false, 300}, {3, 30, 250, true, 300},
      {3, 30, 249, true, 298},  {3, 30, 0, true, 0}};
  for (const Case& c : kCases)
    EXPECT_EQ(DemandsOf(c.Size,
                        [&](Worker& w) {
                          w.Age = c.Age;
                          w.Wage = c.Wage;
                          w.Employer = c.Employed ? 2 : 0;
                        })
                  .Wage,
              c.Wanted)
        << "size " << c.Size << " age " << c.Age << " wage " << c.Wage << " " << c.Employed;
}

TEST(ContractDemands, WantControlWhenTheyAreStarsOrHaveIt) {
  const auto star = [](Worker& w) {
    w.Attitude = 49;
    w.Age = 31;
    w.Over = 91;
    w.Wage = 250;
  };
  EXPECT_TRUE(DemandsOf(1, star).CreativeControl);
  const std::vector<Change<Worker>> kMisses = {
      [](Worker& w) { w.Attitude = 50; }, [](Worker& w) { w.Age = 30; },
      [](Worker& w) { w.Age = 50; }, [](Worker& w) { w.Over = 90; },
      [](Worker& w) { w.Wage = 249; }};
  for (std::size_t i = 0; i < kMisses.size(); ++i)
    EXPECT_FALSE(DemandsOf(1,
                           [&](Worker& w) {
                             star(w);
                             kMisses[i](w);
                           })
                     .CreativeControl)
        << i;
  for (const auto& [age, wants] : {std::pair(49, true), {50, false}})
    EXPECT_EQ(DemandsOf(1,
                        [age = age](Worker& w) {
                          w.CreativeControl = true;
                          w.Age = age;
                        })
                  .CreativeControl,
              wants)
        << age;
}

TEST(WantsWritten, TurnsFromWrittenToVerbalAtCult) {
  Worker worker;
  for (const auto& [size, over, written] : {std::tuple(1, 100, true),
                                            {2, 100, true},
                                            {3, 50, true},
                                            {3, 51, false},
                                            {4, 0, false},
                                            {5, 0, false},
                                            {6, 0, false}}) {
    worker.Over = over;
    EXPECT_EQ(WantsWritten(size, worker), written) << size << " " << over;
  }
}

TEST(RenewalWage, RisesWithThePlaceOnTheCard) {
  struct Case {
    int Position, Wage, Wanted;
  };
  constexpr Case kCases[] = {{1, 109, 119},  {2, 9, 9},      {2, 10, 11},   {3, 119, 124},
                             {4, 20, 21},    {4, 19, 19},    {5, 100, 101}, {6, 99, 99},
                             {50, 250, 252}, {81, 200, 202}, {1, 280, 300}, {6, 0, 1}};
  for (const Case& c : kCases) {
    Worker worker;
    worker.Position = c.Position;
    worker.Wage = c.Wage;
    EXPECT_EQ(RenewalWage(worker), c.Wanted) << c.Position << " at " << c.Wage;
  }
}

}  // namespace
}  // namespace grapplemont::test
