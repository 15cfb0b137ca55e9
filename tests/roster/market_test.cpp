#include <gtest/gtest.h>

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

  // Whoever has left the world leaves their place.
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
      {[](Worker& w) { w.Unsackable = false, w.ContractMonths = 8, w.Employer = 1; },
       "Verbally with you, 8 months left."},
      {Free, "Free to sign."}};
  for (const auto& [change, words] : kRows) {
    change(ray);
    EXPECT_EQ(MarketStanding(world, ray), words);
  }
}

// What workers want.

Demands DemandsOf(int size, const Change<Worker>& change) {
  World world = SmallWorld()
                    .Promotion("CWA", size)
                    .Promotion("NEW", kSmall)
                    .OnTheMarket()
                    .Worker("Free Fred")
                    .Game("CWA");
  Worker& fred = Named(world.Workers(), "Free Fred");
  change(fred);
  return ContractDemands(world, fred);
}

TEST(ContractDemands, GoBySizeAgeOverAndWage) {
  const struct {
    int Size, Age, Over, Now;
    bool Employed;
    Demands Wanted;  // position, months, written, wage
  } kCases[] = {
      {1, 16, 91, 49, false, {1, 12, true, 53}},   {1, 17, 90, 49, false, {2, 24, true, 53}},
      {1, 24, 81, 273, false, {2, 24, true, 300}}, {1, 25, 80, 274, false, {3, 36, true, 300}},
      {1, 29, 51, 49, true, {4, 36, true, 63}},    {2, 30, 50, 59, false, {4, 48, true, 61}},
      {2, 34, 86, 59, false, {1, 48, true, 61}},   {2, 35, 85, 59, false, {2, 36, true, 61}},
      {2, 39, 20, 59, false, {6, 36, true, 61}},   {2, 40, 21, 59, false, {5, 24, true, 59}},
      {3, 24, 60, 59, false, {2, 12, false, 59}},  {3, 25, 51, 4, true, {3, 24, false, 4}},
      {3, 37, 50, 5, true, {3, 24, true, 6}},      {3, 38, 11, 250, true, {5, 12, true, 300}},
      {3, 30, 61, 249, true, {2, 6, false, 298}},  {4, 24, 56, 0, false, {1, 12, false, 0}},
      {4, 30, 61, 59, false, {1, 6, false, 59}},   {4, 37, 55, 59, false, {2, 24, false, 59}},
      {5, 30, 36, 6, false, {1, 6, false, 6}},     {5, 30, 5, 7, false, {5, 6, false, 7}},
      {5, 30, 6, 20, false, {4, 6, false, 19}},    {6, 30, 26, 2, false, {1, 6, false, 2}},
      {6, 20, 10, 10, false, {3, 6, false, 9}},    {6, 20, 11, 9, false, {2, 6, false, 9}}};
  int number = 0;
  for (const auto& c : kCases) {
    SCOPED_TRACE("case " + std::to_string(number++));
    const Demands wants = DemandsOf(c.Size, [&](Worker& w) {
      w.Age = c.Age;
      w.Over = c.Over;
      w.Wage = c.Now;
      w.Employer = c.Employed ? 2 : 0;
    });
    EXPECT_EQ(wants.Position, c.Wanted.Position);
    EXPECT_EQ(wants.Months, c.Wanted.Months);
    EXPECT_EQ(wants.Written, c.Wanted.Written);
    EXPECT_EQ(wants.Wage, c.Wanted.Wage);
  }
  for (const auto& [now, wanted] :
       {std::pair<int, int>(kNonWrestler, kNonWrestler), {kManager, kManager}, {kTrainingCamp, 5}})
    EXPECT_EQ(DemandsOf(1, At(now)).Position, wanted);
}

TEST(ContractDemands, WantControlWhenTheyAreStarsOrHaveIt) {
  constexpr struct {
    int Attitude, Age, Over, Wage;
    bool Has, Wants;
  } kCases[] = {{49, 31, 91, 250, false, true},  {49, 49, 91, 250, false, true},
                {50, 31, 91, 250, false, false}, {49, 30, 91, 250, false, false},
                {49, 50, 91, 250, false, false}, {49, 31, 90, 250, false, false},
                {49, 31, 91, 249, false, false}, {80, 49, 50, 10, true, true},
                {80, 50, 50, 10, true, false}};
  for (const auto& c : kCases)
    EXPECT_EQ(DemandsOf(1,
                        [&](Worker& w) {
                          w.Attitude = c.Attitude;
                          w.Age = c.Age;
                          w.Over = c.Over;
                          w.Wage = c.Wage;
                          w.CreativeControl = c.Has;
                        })
                  .CreativeControl,
              c.Wants)
        << c.Attitude << " " << c.Age << " " << c.Over << " " << c.Wage;
}

TEST(RenewalTerms, AskForMoreWithThePlaceOnTheCard) {
  constexpr struct {
    int Position, Wage, Wanted;
  } kCases[] = {{1, 109, 119},  {2, 9, 9},      {2, 10, 11},   {3, 119, 124},
                {4, 20, 21},    {4, 19, 19},    {5, 100, 101}, {6, 99, 99},
                {50, 250, 252}, {81, 200, 202}, {1, 280, 300}, {6, 0, 1}};
  World world = SmallWorld().Promotion("CWA", kCult).Game("CWA");
  for (const auto& c : kCases) {
    Worker worker;
    worker.Position = c.Position;
    worker.Wage = c.Wage;
    EXPECT_EQ(RenewalTermsOf(world, worker).Wage, c.Wanted) << c.Position << " at " << c.Wage;
  }
}

}  // namespace
}  // namespace grapplemont::test
