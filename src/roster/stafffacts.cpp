#include "roster/stafffacts.h"

#include <algorithm>
#include <array>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "roster/stafftalks.h"

namespace grapplemont {

namespace {

/// Words for 0, 20, 40, 60 and 80 up.
using Steps = std::array<const char*, 5>;
constexpr Steps kTalent = {"Has everything to learn.", "Knows the basics.", "Does a decent job.",
                           "Is good at it.", "Is among the best there are."};
constexpr Steps kBackstage = {"A trouble maker behind the scenes.",
                              "Stirs up trouble now and then.", "Gets on with most people.",
                              "A good colleague.", "Everybody's friend behind the scenes."};

std::string StepOf(const Steps& steps, int value) {
  const std::size_t step = value < 0 ? 0 : static_cast<std::size_t>(value) / 20;
  return steps[std::min<std::size_t>(step, 4)];
}

FactGroup Person(const Staff& staff) {
  std::string who =
      std::string(staff.Gender ? "A man of " : "A woman of ") + std::to_string(staff.Age);
  if (const auto month = MonthName(staff.BirthMonth); !month.empty())
    who += ", born in " + std::string(month);
  FactGroup group{staff.Name.Str(), {who + ".", std::string(PostText(staff.Position)) + "."}};
  if (staff.Position != kOwner)
    group.Lines.push_back("Talent " + std::to_string(staff.Talent) + ". " +
                          StepOf(kTalent, staff.Talent));
  if (staff.Booker) group.Lines.push_back("Can book as well.");
  return group;
}

FactGroup Contract(const World& world, const Staff& staff) {
  FactGroup group{"Contract", {}};
  if (staff.Employer == 0) {
    group.Lines = {"Works for nobody."};
    if (staff.Wage > 0 && staff.Position != kOwner)
      group.Lines.push_back("Last earned " + WageText(staff.Wage) + " a month.");
    return group;
  }
  const std::string employer = PromotionName(world, staff.Employer);
  group.Lines = {(staff.Position == kOwner ? "Owns " : "Works for ") + employer + "."};
  if (const std::string line = StaffContractLine(staff); !line.empty())
    group.Lines.push_back(line + ".");
  return group;
}

FactGroup Offices(const World& world, const Staff& staff) {
  FactGroup group{"Duties", {}};
  for (const Promotion& promotion : world.Promotions()) {
    if (promotion.HeadTrainer == staff.Uid)
      group.Lines.push_back("Heads the training camp " + promotion.CampName.Str() + ".");
    if (promotion.DevBooker == staff.Uid)
      group.Lines.push_back("Books " + promotion.DevName.Str() + ".");
  }
  for (const Show& show : world.Shows()) {
    if (show.Announcer == staff.Uid) group.Lines.push_back("Calls " + show.Name.Str() + ".");
    if (show.Colour == staff.Uid && !show.ColourIsWorker)
      group.Lines.push_back("Does the colour on " + show.Name.Str() + ".");
  }
  return group;
}

}  // namespace

std::string_view PostText(int post) {
  const std::string_view words = Says(kStaffPositions, post);
  return words.empty() ? "Unknown" : words;
}

std::string StaffContractLine(const Staff& staff) {
  if (staff.Employer == 0 || staff.Position == kOwner) return {};
  if (IsEndless(staff)) return "Unsackable, agreement for " + WageText(staff.Wage) + " per month";
  return (staff.ContractType == "Wri" ? "Written contract for " : "Verbal agreement for ") +
         MonthsText(staff.ContractMonths) + ", at " + WageText(staff.Wage) + " per month";
}

std::vector<FactGroup> StaffFacts(const World& world, const Staff& staff) {
  std::vector<FactGroup> facts = {Person(staff),
                                  Contract(world, staff),
                                  {"Character",
                                   {MoraleWords(staff.Morale), LoyaltyWords(staff.Loyalty),
                                    StepOf(kBackstage, staff.Backstage)}},
                                  Offices(world, staff)};
  std::erase_if(facts, [](const FactGroup& group) { return group.Lines.empty(); });
  return facts;
}

}  // namespace grapplemont
