#include "roster/workerfacts.h"

#include <algorithm>
#include <array>

#include "records/fields/fields.h"
#include "records/fields/outside.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/market.h"
#include "roster/postings.h"
#include "roster/staff.h"
#include "roster/workerrecord.h"
#include "storylines/feuds.h"
#include "storylines/partners.h"
#include "words/names.h"

namespace grapplemont {

namespace {

/// Words for 0, 20, 40, 60 and 80 up.
using Steps = std::array<const char*, 5>;
constexpr Steps kMorale = {"Wants to be anywhere but here.", "Unhappy.", "Less than happy.",
                           "In good spirits.", "Could not be happier."};
constexpr Steps kLoyalty = {"Would never work for you.", "Thinks little of you.",
                            "Has no strong feelings about you.", "Thinks well of you.",
                            "Would go through fire for you."};
/// The same of whoever knows the player by name only.
constexpr Steps kRepute = {"Would never work for you.", "Thinks little of you.",
                           "Has no strong feelings about you.", "Has heard good of you.",
                           "Has heard nothing but good of you."};
constexpr Steps kAttitude = {"Impossible to work with.", "Hard to work with.",
                             "Works with most people.", "Easy to work with.",
                             "A joy to work with."};
constexpr Steps kBehaviour = {"A trouble maker.", "Finds trouble more often than not.",
                              "Mostly stays out of trouble.", "Well behaved.",
                              "A model of good behaviour."};

std::string StepOf(const Steps& steps, int value) {
  const int step = value < 0 ? 0 : value / 20;
  return steps[static_cast<std::size_t>(step > 4 ? 4 : step)];
}

/// "A man of 34, born in June".
template <class Person>
std::string WhoHeIs(const Person& person) {
  const std::string who =
      (person.Gender ? "A man of " : "A woman of ") + std::to_string(person.Age);
  const std::string month(MonthName(person.BirthMonth));
  return month.empty() ? who : who + ", born in " + month;
}

std::string WhenTurned(const World& world, const Worker& worker) {
  const int days = DaysSinceTurn(world, worker);
  if (days < 0) return "Has never turned.";
  const int weeks = days / 7;
  return weeks == 0   ? "Turned this week."
         : weeks == 1 ? "Turned a week ago."
                      : "Turned " + std::to_string(weeks) + " weeks ago.";
}

void AddIf(FactGroup& group, bool holds, std::string line) {
  if (holds && !line.empty()) group.Lines.push_back(std::move(line));
}
void Add(FactGroup& group, std::string line) {
  AddIf(group, true, std::move(line));
}

/// Whoever teaches them; nullptr for nobody.
const Staff* TeacherOf(const World& world, const Worker& worker) {
  if (!WorksForPlayer(world, worker)) return nullptr;
  if (IsInDevelopment(worker)) return world.FindStaff(world.Player().DevBooker);
  return IsInCamp(worker) ? world.FindStaff(world.Player().HeadTrainer) : nullptr;
}

/// How far they can rise, as their teacher sees it; empty where nobody can tell.
std::string PotentialWords(const World& world, const Worker& worker) {
  const Staff* teacher = TeacherOf(world, worker);
  if (!teacher) return {};
  const int room = worker.Potential - worker.Over;
  const char* words = room <= 0    ? "has learned what can be learned here."
                      : room <= 10 ? "has a little left to learn."
                      : room <= 25 ? "has room to grow."
                                   : "could go very far.";
  return teacher->Name + " thinks that " + worker.ShortName.Str() + " " + words;
}

FactGroup Person(const World& world, const Worker& worker) {
  FactGroup group{worker.Name.Str(), {}};
  Add(group, WhoHeIs(worker) + (worker.Weight == "L" ? ", a lightweight." : ", a heavyweight."));
  Add(group, "Known as " + worker.ShortName + " for short.");
  Add(group, HomeLine(worker));
  Add(group, std::string(DispositionText(worker.Disposition)) + ". Over " +
                 std::to_string(worker.Over) + ", charisma " + std::to_string(worker.Charisma) +
                 ".");
  Add(group, WhenTurned(world, worker));
  AddIf(group, worker.TurnPending, "A turn is being prepared.");
  AddIf(group, worker.SuperstarLook, "Looks like a superstar.");
  AddIf(group, worker.Diva, "Has sex appeal.");
  Add(group, worker.Speaks ? "Can do interviews." : "Cannot do interviews.");
  AddIf(group, worker.OverFloor > 0,
        "The fans will always remember: a fall of the promotion never takes Over under " +
            std::to_string(worker.OverFloor) + ".");
  Add(group, PotentialWords(world, worker));
  AddIf(group, worker.RetiringSoon, "Has announced to retire soon.");
  AddIf(group, IsShortlisted(world, worker.Uid), "On your shortlist.");
  return group;
}

std::string FinisherLine(const char* which, std::string_view name, FinisherType type) {
  if (name.empty() || name == "None") return {};
  return which + std::string(name) + " (" + std::string(FinisherText(type)) + ").";
}

FactGroup InTheRing(const Worker& worker) {
  FactGroup group{"In the ring", {}};
  Add(group, "Brawl " + std::to_string(worker.Brawl) + ", Technical " +
                 std::to_string(worker.Technical) + ", Speed " + std::to_string(worker.Speed) +
                 ".");
  Add(group, "Stiffness " + std::to_string(worker.Stiff) + ", selling " +
                 std::to_string(worker.Sell) + ".");
  Add(group, worker.HighSpots ? "Takes the risk of high spots." : "Keeps to the ground.");
  Add(group, FinisherLine("Finisher: ", worker.Finisher1, FinisherTypeOf(worker, 1)));
  Add(group, FinisherLine("Second finisher: ", worker.Finisher2, FinisherTypeOf(worker, 2)));
  Add(group, "Condition " + std::to_string(worker.Condition) + "%. " + StatusLine(worker) + ".");
  return group;
}

template <class Person>
std::string OpinionOf(const World& world, const Person& person) {
  return StepOf(WorksForPlayer(world, person) ? kLoyalty : kRepute, person.Loyalty);
}

FactGroup Character(const World& world, const Worker& worker) {
  return {"Character",
          {StepOf(kMorale, worker.Morale), OpinionOf(world, worker),
           StepOf(kAttitude, worker.Attitude), StepOf(kBehaviour, worker.Behaviour)}};
}

FactGroup Contract(const World& world, const Worker& worker) {
  FactGroup group{"Contract", {}};
  if (worker.Employer == 0) {
    Add(group, "Works for nobody. Last known as " + PlaceText(worker) + ".");
    AddIf(group, worker.Wage > 0, "Last earned " + Dollars(1000LL * worker.Wage) + " a month.");
  } else {
    Add(group, PromotionName(world, worker.Employer) + ": " + PlaceText(worker) + ".");
    Add(group, ContractLine(worker) + ".");
  }
  AddIf(group, worker.CreativeControl, "A clause gives creative control.");
  AddIf(group, !(worker.Split == "None" || worker.Split == ""), "Split: " + worker.Split + ".");
  AddIf(group, worker.Employer != 0 && !worker.Debuted, "Has not been seen on the shows yet.");
  return group;
}

/// Commissioner of a promotion, voice beside the ring.
std::vector<std::string> OfficesOf(const World& world, const Worker& worker) {
  std::vector<std::string> offices;
  for (const Promotion& promotion : world.Promotions())
    if (promotion.Commissioner == worker.Uid)
      offices.push_back("Commissioner of " + promotion.Name + ".");
  for (const Show& show : world.Shows())
    if (show.ColourIsWorker && show.Colour == worker.Uid)
      offices.push_back("Colour commentator of " + show.Name + ".");
  return offices;
}

FactGroup BesideTheRing(const World& world, const Worker& worker) {
  FactGroup group{"Beside the ring", OfficesOf(world, worker)};
  AddIf(group, worker.Trainer, "Able to train others.");
  AddIf(group, worker.Announcer, "Able to announce.");
  AddIf(group, worker.Booker, "Able to book.");
  return group;
}

FactGroup Titles(const World& world, const Worker& worker) {
  FactGroup group{"Titles", {}};
  for (const Title* title : TitlesHeldBy(world, worker.Uid))
    Add(group, "Holds the " + title->Name.Str() + ".");
  for (const std::string& reign : ReignsOf(world, worker)) Add(group, reign + ".");
  return group;
}

/// How many of their matches the page tells.
constexpr int kMatchesTold = 6;

std::string TeamLine(const World& world, const Team& team, const Worker& worker) {
  const int partner = team.Worker1 == worker.Uid ? team.Worker2 : team.Worker1;
  const std::string finisher =
      team.Finisher == "None" || team.Finisher == "" ? "" : ", finisher " + team.Finisher.Str();
  return team.Name + " with " + WorkerName(world, partner) + ", experience " +
         std::to_string(team.Experience) + finisher + ".";
}

/// The names before, their stable, their Tag Teams, their manager and those whom they manage.
std::vector<std::string> CompanyOf(const World& world, const Worker& worker) {
  std::vector<std::string> company;
  for (const RingName& before : world.RingNames())
    if (before.Worker == worker.Uid)
      company.push_back("Was called " + before.Name + " until " + PlainDate(before.Until) + ".");
  if (worker.Stable != "None" && !worker.Stable.View().empty())
    company.push_back("Member of " + worker.Stable + ".");
  for (const Team& team : world.Teams())
    if (team.Worker1 == worker.Uid || team.Worker2 == worker.Uid)
      company.push_back(TeamLine(world, team, worker));
  if (const Worker* manager = world.FindWorker(worker.Manager))
    company.push_back("Managed by " + manager->Name + ".");
  for (const Worker& client : world.Workers())
    if (client.Manager == worker.Uid) company.push_back("Manages " + client.Name + ".");
  return company;
}

constexpr Steps kTalent = {"Has everything to learn.", "Knows the basics.", "Does a decent job.",
                           "Is good at it.", "Is among the best there are."};
constexpr Steps kBackstage = {"A trouble maker behind the scenes.",
                              "Stirs up trouble now and then.", "Gets on with most people.",
                              "A good colleague.", "Everybody's friend behind the scenes."};

FactGroup Person(const Staff& staff) {
  FactGroup group{staff.Name.Str(),
                  {WhoHeIs(staff) + ".", std::string(PostText(staff.Position)) + "."}};
  AddIf(group, staff.Position != kOwner,
        "Talent " + std::to_string(staff.Talent) + ". " + StepOf(kTalent, staff.Talent));
  AddIf(group, staff.Booker, "Can book as well.");
  return group;
}

/// "Written contract for 12 months, at $5,000 per month".
std::string ContractLineOf(const Staff& staff) {
  if (IsEndless(staff)) return "Unsackable, agreement for " + WageText(staff.Wage) + " per month";
  return (staff.ContractType == "Wri" ? "Written contract for " : "Verbal agreement for ") +
         MonthsText(staff.ContractMonths) + ", at " + WageText(staff.Wage) + " per month";
}

FactGroup Contract(const World& world, const Staff& staff) {
  const bool owns = staff.Position == kOwner;
  if (staff.Employer != 0) {
    FactGroup group{"Contract",
                    {(owns ? "Owns " : "Works for ") + PromotionName(world, staff.Employer) + "."}};
    AddIf(group, !owns, ContractLineOf(staff) + ".");
    return group;
  }
  FactGroup group{"Contract", {"Works for nobody."}};
  AddIf(group, staff.Wage > 0 && !owns, "Last earned " + WageText(staff.Wage) + " a month.");
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

std::string HomeLine(const Worker& worker) {
  // By the number alone, so that who was there from the start comes from one place in every game.
  constexpr std::uint64_t kApart = 0x9E3779B97F4A7C15;
  const int drawn =
      SeededDraws(static_cast<std::uint64_t>(int(worker.Uid)) * kApart).Draw(kHomeTowns);
  const HomeTown& home = HomeTowns[static_cast<std::size_t>(drawn - 1)];
  std::string line = "From " + std::string(home.Name);
  if (!home.Where.empty()) line += " " + std::string(home.Where);
  return line + ".";
}

std::vector<FactGroup> WorkerFacts(const World& world, const Worker& worker) {
  std::vector<FactGroup> facts = {Person(world, worker),
                                  Contract(world, worker),
                                  InTheRing(worker),
                                  Character(world, worker),
                                  BesideTheRing(world, worker),
                                  Titles(world, worker),
                                  {"Awards", AwardLines(world, worker)},
                                  {"Where", TenureLines(world, worker)},
                                  {"Matches", RecordLines(world, worker)},
                                  {"Last matches", LastMatchLines(world, worker, kMatchesTold)},
                                  {"Company", CompanyOf(world, worker)},
                                  {"Feuds", FeudsOf(world, worker)}};
  std::erase_if(facts, [](const FactGroup& group) { return group.Lines.empty(); });
  return facts;
}

std::vector<std::string> FeudsOf(const World& world, const Worker& worker) {
  std::vector<std::string> feuds;
  for (const Feud& feud : world.Feuds()) {
    const FeudSides sides = SidesOf(feud);
    if (IsFreeSlot(feud) || (!sides.One.Has(worker.Uid) && !sides.Two.Has(worker.Uid))) continue;
    feuds.push_back(SideName(world, sides.One) + " vs " + SideName(world, sides.Two) + ", heat " +
                    std::to_string(feud.Heat) + ".");
  }
  return feuds;
}

std::string_view PostText(int post) {
  const std::string_view words = Says(kStaffPositions, post);
  return words.empty() ? "Unknown" : words;
}

std::vector<FactGroup> StaffFacts(const World& world, const Staff& staff) {
  std::vector<FactGroup> facts = {Person(staff),
                                  Contract(world, staff),
                                  {"Character",
                                   {StepOf(kMorale, staff.Morale), OpinionOf(world, staff),
                                    StepOf(kBackstage, staff.Backstage)}},
                                  Offices(world, staff)};
  std::erase_if(facts, [](const FactGroup& group) { return group.Lines.empty(); });
  return facts;
}

}  // namespace grapplemont
