#include "roster/talks.h"

#include <gtest/gtest.h>

#include "support/smallworld.h"

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
