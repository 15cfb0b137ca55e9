#include "records/houserules.h"

namespace grapplemont {

namespace {

constexpr int kOldestHomegrown = 23;

constexpr HouseRuleRow kHouseRuleRows[] = {
    {HouseRule::EconomyCycles, "an economy that cycles",
     "The economy swings from slump to boom and back in four years instead of drifting."},
    {HouseRule::OneTalk, "one talk a show", "Nobody is in more than one interview of a show."},
    {HouseRule::Homegrown, "homegrown only",
     "Only people of 23 years or younger are signed, and only those who work for nobody."},
    {HouseRule::WomenOnly, "women only",
     "The men who wrestle leave before the game begins, free women take their places, and no man "
     "is signed."},
    {HouseRule::NoAutoBooker, "no auto booker", "Every row is booked by hand."},
    {HouseRule::HarderBoards, "harder boards",
     "A year without one wish fulfilled ends the career, and so does every fall of class."},
    {HouseRule::GodMode, "god mode",
     "God Mode, under Options, changes any record of the running game. Whatever is changed marks "
     "the game for good."},
    {HouseRule::RandomWorld, "random world",
     "Promotions, Titles, shows, workers and staff have other names, bodies and gifts than in the "
     "default world, invented for this game."}};

}  // namespace

std::span<const HouseRuleRow> AllHouseRules() {
  return kHouseRuleRows;
}

bool Holds(const HouseRules& rules, HouseRule rule) {
  return rules.On[static_cast<std::size_t>(rule)];
}

bool Holds(const World& world, HouseRule rule) {
  const Records<HouseRules>& rules = world.Of<HouseRules>();
  return rules.Count() > 0 && Holds(rules[1], rule);
}

std::string HouseRulesText(const HouseRules& rules) {
  std::string text;
  for (const HouseRuleRow& row : kHouseRuleRows)
    if (Holds(rules, row.Is)) text += (text.empty() ? "" : ", ") + std::string(row.Name);
  if (rules.Edited) text += (text.empty() ? "" : ", ") + std::string("changed by hand");
  return text;
}

std::string WhyNotInThisHouse(const World& world, const Worker& worker) {
  if (Holds(world, HouseRule::WomenOnly) && worker.Gender)
    return "A rule of the house: no man is signed.";
  if (!Holds(world, HouseRule::Homegrown)) return {};
  if (worker.Employer != 0) return "A rule of the house: nobody is signed away from others.";
  if (worker.Age > kOldestHomegrown)
    return "A rule of the house: nobody above " + std::to_string(kOldestHomegrown) + " is signed.";
  return {};
}

}  // namespace grapplemont
