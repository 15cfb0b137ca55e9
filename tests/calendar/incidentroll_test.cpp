#include <gtest/gtest.h>

#include <map>

#include "calendar/advanceday.h"
#include "calendar/incidents.h"
#include "support/scripteddraws.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

using std::chrono::year;

/// Day 61 of a game: the first on which an offer can come.
constexpr Day kLater{year{2026} / 5 / 1};

/// 1 for every draw but those that are told otherwise by their size; notes of how many.
class DrawsBySize : public Draws {
 public:
  DrawsBySize(std::vector<int>& asked, std::map<int, int> answers)
      : asked_(asked), answers_(std::move(answers)) {}
  int Draw(int n) override {
    asked_.push_back(n);
    const auto answer = answers_.find(n);
    return answer == answers_.end() ? 1 : answer->second;
  }

 private:
  std::vector<int>& asked_;
  std::map<int, int> answers_;
};

std::vector<int> Asked(World& world, const std::map<int, int>& answers = {}) {
  std::vector<int> asked;
  world.SetChance(std::make_unique<DrawsBySize>(asked, answers));
  IncidentRoll(world);
  world.SetChance(std::make_unique<SeededDraws>(1));
  return asked;
}

std::vector<std::pair<int, int>> Booked(const World& world) {
  std::vector<std::pair<int, int>> booked;
  for (const Incident& incident : world.Incidents())
    if (incident.Type != 0) booked.emplace_back(incident.Type, incident.Uid);
  return booked;
}

SmallWorld WithAgents(int agents) {
  SmallWorld small;
  small.Promotion("CWA");
  for (int i = 0; i < agents; ++i) small.Staff("Agent " + std::to_string(i), kRoadAgent);
  return small;
}

World Lone(int behaviour, int condition, int agents = 1) {
  return WithAgents(agents)
      .Worker("Bram Okafor",
              [&](Worker& worker) { worker.Behaviour = behaviour, worker.Condition = condition; })
      .Game("CWA", kLater);
}

TEST(IncidentRoll, RollsByConditionAndBehaviour) {
  const struct {
    int Condition, Injury, Behaviour;
    std::vector<int> Odds;
  } kCases[] = {{100, 2500, 90, {}},
                {90, 2500, 70, {10000, 9000, 8000, 8000}},
                {89, 1800, 69, {6000, 6500, 4000, 5000}},
                {60, 1800, 49, {4000, 4200, 1000, 1200}},
                {59, 1200, 29, {2500, 2800, 500, 800}},
                {40, 1200, 10, {2500, 2800, 500, 800}},
                {39, 800, 9, {1200, 1400, 100, 200}}};
  constexpr int kOff[] = {200, 150, 30, 20};
  for (const auto& c : kCases)
    for (const bool isShort : {false, true}) {
      World world = Lone(c.Behaviour, c.Condition, isShort ? 0 : 1);
      std::vector<int> expected{180, c.Injury};
      for (std::size_t i = 0; i < c.Odds.size(); ++i)
        expected.push_back(c.Odds[i] - (isShort ? kOff[i] : 0));
      EXPECT_EQ(Asked(world), expected) << c.Behaviour << isShort;
      EXPECT_TRUE(Booked(world).empty());
    }
}

TEST(IncidentRoll, BooksTheFirstThatHits) {
  const struct {
    std::map<int, int> Answers;
    int Type;  // 0 none
  } kCases[] = {
      {{{2500, 100}}, kInjury},
      {{{2500, 101}}, 0},
      {{{6000, 200}}, kRehab},
      {{{6500, 400}}, kPolice},
      {{{4000, 3}}, kLate},
      {{{5000, 25}}, kFight},
      {{{2500, 100}, {6000, 200}, {5000, 25}}, kInjury},
      {{{6000, 200}, {6500, 400}, {4000, 3}}, kRehab},
      {{{6500, 400}, {4000, 3}, {5000, 25}}, kPolice},
      {{{4000, 3}, {5000, 25}}, kLate},
  };
  for (const auto& c : kCases) {
    World world = Lone(60, 100);
    Asked(world, c.Answers);
    std::vector<std::pair<int, int>> expected;
    if (c.Type != 0) expected.emplace_back(c.Type, world.Workers()[1].Uid);
    EXPECT_EQ(Booked(world), expected);
    EXPECT_EQ(world.Incidents().Count(), 10);
  }
}

TEST(IncidentRoll, LooksOnlyAtWhoIsAround) {
  const Change<Worker> kAbsent[] = {
      [](Worker& w) { w.Position = kDevelopmentDeal; },
      [](Worker& w) { w.Position = kTrainingCamp; }, [](Worker& w) { w.Position = 81; },
      [](Worker& w) { w.Status = "Hom"; }, [](Worker& w) { w.Employer = 0; }};
  for (const Change<Worker>& absent : kAbsent) {
    World world = Lone(95, 100);
    absent(world.Workers()[1]);
    EXPECT_EQ(Asked(world), std::vector<int>{180});
  }
}

TEST(IncidentRoll, KeepsTenADay) {
  World world = WithAgents(1).Crew(12).Game("CWA", kLater);
  world.Incidents().Append({});  // yesterday's list
  world.Incidents()[1].Type = kFight;
  world.Incidents()[1].Uid = 12;
  Asked(world, {{2500, 100}});
  const auto booked = Booked(world);
  ASSERT_EQ(booked.size(), 10u);
  for (int i = 0; i < 10; ++i)
    EXPECT_EQ(booked[static_cast<std::size_t>(i)],
              std::pair(int(kInjury), int(world.Workers()[i + 1].Uid)));
  Asked(world);
  EXPECT_TRUE(Booked(world).empty()) << "a new day has a new list";
  EXPECT_EQ(world.Incidents().Count(), 10);
}

TEST(IncidentRoll, OffersAfterSixtyDaysWhatIsNotTooFarAbove) {
  constexpr struct {
    Day On;
    int Own, Size, Drawn;
    bool Offers;
  } kCases[] = {{kLater, kRegional, kNational, 2, true},
                {kLater, kRegional, kGlobal, 2, false},
                {kLater, kGlobal, kBackyard, 2, true},
                {kLater, kRegional, kNational, 1, false},  // their own
                {kLater - std::chrono::days{1}, kRegional, kNational, 2, false}};
  for (const auto& c : kCases) {
    World world = WithAgents(1).Promotion("NEW", c.Size).Game("CWA", c.On);
    world.Session.StartSize = c.Own;
    ScriptDraws(world, c.On == kLater ? std::vector<ScriptedDraw>{{180, 5}, {2, c.Drawn}}
                                      : std::vector<ScriptedDraw>{{180, 5}});
    IncidentRoll(world);
    std::vector<std::pair<int, int>> expected;
    if (c.Offers) expected.emplace_back(kJobOffer, Named(world.Promotions(), "NEW").Uid);
    EXPECT_EQ(Booked(world), expected) << c.Own << " from " << c.Size;
  }
}

}  // namespace
}  // namespace grapplemont::test
