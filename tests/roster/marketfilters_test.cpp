#include "roster/market.h"

#include <gtest/gtest.h>

#include <set>

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

TEST(Filters, BeginWithEverybodyAndHaveNamesOfTheirOwn) {
  for (const auto families : {RosterFilters(), MarketFilters()}) {
    std::set<std::string_view> controls;
    for (const FilterFamily& family : families) {
      EXPECT_TRUE(controls.insert(family.Control).second);
      EXPECT_EQ(family.Rows.front().Label, "All");
      EXPECT_TRUE(family.Rows.front().Keeps(Worker()));
    }
  }
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
