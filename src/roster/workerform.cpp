#include "roster/workerform.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/pastmatches.h"
#include "roster/talks.h"
#include "roster/workerrecord.h"
#include "storylines/feuds.h"
#include "storylines/partners.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

constexpr Ability kAbilities[] = {
    {"Brawl",
     &Worker::Brawl,
     true,
     {"Lost in a brawl", "Gets by", "Holds up an end", "Leads most brawls", "Leads any brawl"}},
    {"Technical",
     &Worker::Technical,
     true,
     {"Knows few holds", "Knows the basics", "Holds up an end", "Leads most holds",
      "A master of holds"}},
    {"Speed",
     &Worker::Speed,
     true,
     {"Keeps to the ground", "Slow", "Keeps up", "Quick", "Faster than most"}},
    {"Stiffness",
     &Worker::Stiff,
     false,
     {"Never hurts anybody", "Safe", "Firm", "Hits hard", "Hurts people"}},
    {"Selling",
     &Worker::Sell,
     true,
     {"Sells nothing", "Sells little", "Sells well enough", "Sells well",
      "Makes others look good"}},
    {"Charisma",
     &Worker::Charisma,
     true,
     {"Nobody looks up", "Plain", "Has some presence", "Holds a crowd", "Could sell anything"}},
    {"Attitude",
     &Worker::Attitude,
     true,
     {"Impossible to work with", "Hard to work with", "Works with most", "Easy to work with",
      "A joy to work with"}},
    {"Behaviour",
     &Worker::Behaviour,
     true,
     {"A trouble maker", "Finds trouble", "Mostly behaves", "Well behaved", "A model to others"}}};

void AddFinisher(std::vector<std::string>& names, const Worker& worker, std::string_view name,
                 int slot) {
  if (name.empty() || name == "None") return;
  names.push_back(std::string(name) + " (" +
                  std::string(FinisherText(FinisherTypeOf(worker, slot))) + ")");
}

}  // namespace

std::span<const Ability> Abilities() {
  return kAbilities;
}

std::string_view WordsFor(const Ability& ability, const Worker& worker) {
  const int step = std::clamp(worker.*ability.Of / 20, 0, 4);
  return ability.Words[static_cast<std::size_t>(step)];
}

int RosterMean(const World& world, Percent Worker::*of) {
  int sum = 0, count = 0;
  for (const Worker& worker : world.Workers()) {
    if (!WorksForPlayer(world, worker) || !IsOnRoster(worker)) continue;
    sum += worker.*of;
    ++count;
  }
  return count == 0 ? -1 : sum / count;
}

std::string WhoLine(const Worker& worker) {
  std::string text = std::to_string(worker.Age);
  if (const std::string_view month = MonthName(worker.BirthMonth); !month.empty())
    text += ", born in " + std::string(month);
  return text + (worker.Weight == "L" ? ", a lightweight" : ", a heavyweight");
}

std::string FinishersLine(const Worker& worker) {
  std::vector<std::string> names;
  AddFinisher(names, worker, worker.Finisher1, 1);
  AddFinisher(names, worker, worker.Finisher2, 2);
  return names.empty() ? "" : "Finishes with " + Joined(names, " and ") + ".";
}

std::vector<std::string> MarksOfWorker(const World& world, const Worker& worker) {
  std::vector<std::string> marks = {std::string(DispositionText(worker.Disposition))};
  for (const Title* title : TitlesHeldBy(world, worker.Uid))
    marks.push_back(title->Name + " champion");
  const auto add = [&](bool holds, const char* mark) {
    if (holds) marks.emplace_back(mark);
  };
  add(worker.TurnPending, "Turn prepared");
  add(worker.SuperstarLook, "Superstar look");
  add(worker.Speaks, "Can talk");
  add(worker.Trainer, "Trainer");
  add(worker.RetiringSoon, "Will retire soon");
  if (const int year = ElectedIn(world, worker.Uid); year != 0)
    marks.push_back("Hall of fame " + std::to_string(year));
  if (worker.Split != "None" && worker.Split != "") marks.push_back("Split: " + worker.Split);
  return marks;
}

std::string AskingLine(const World& world, const Worker& worker) {
  if (worker.Unsackable && worker.Employer != 0) return "There is nothing to talk about.";
  const auto would = [](int wage) { return "Would ask about " + WageText(wage) + " a month."; };
  if (!WorksForPlayer(world, worker)) return would(ContractDemands(world, worker).Wage);
  const std::string why = WhyNoRenewal(worker);
  return why.empty() ? would(RenewalTermsOf(world, worker).Wage) : why;
}

namespace {

void AddFeuds(const World& world, int uid, std::vector<Companion>& companions) {
  for (const Feud& feud : world.Feuds()) {
    const FeudSides sides = SidesOf(feud);
    if (IsFreeSlot(feud) || (!sides.One.Has(uid) && !sides.Two.Has(uid))) continue;
    const FeudSide& other = sides.One.Has(uid) ? sides.Two : sides.One;
    companions.push_back(
        {"Feud", SideName(world, other), other.First, "heat " + std::to_string(feud.Heat)});
  }
}

void AddTeams(const World& world, int uid, std::vector<Companion>& companions) {
  for (const Team& team : world.Teams()) {
    if (team.Worker1 != uid && team.Worker2 != uid) continue;
    const int partner = team.Worker1 == uid ? team.Worker2 : team.Worker1;
    companions.push_back({"Team", WorkerName(world, partner), partner,
                          team.Name + ", experience " + std::to_string(team.Experience)});
  }
}

}  // namespace

std::vector<Companion> CompanionsOf(const World& world, const Worker& worker) {
  std::vector<Companion> companions;
  if (worker.Uid == 0) return companions;
  AddFeuds(world, worker.Uid, companions);
  AddTeams(world, worker.Uid, companions);
  if (const Worker* manager = world.FindWorker(worker.Manager))
    companions.push_back({"Manager", manager->Name.Str(), manager->Uid, ""});
  for (const Worker& client : world.Workers())
    if (client.Manager == worker.Uid)
      companions.push_back({"Client", client.Name.Str(), client.Uid, ""});
  if (IsInStable(worker)) companions.push_back({"Stable", worker.Stable.Str(), 0, ""});
  return companions;
}

Neighbours NeighboursOf(const World& world, const Worker& worker) {
  if (worker.Employer == 0) return {};
  std::vector<const Worker*> people;
  for (const Worker& other : world.Workers())
    if (other.Employer == worker.Employer) people.push_back(&other);
  SortByOver(people);
  const auto place = std::ranges::find(people, &worker);
  Neighbours beside{.Place = static_cast<int>(place - people.begin()) + 1,
                    .Of = static_cast<int>(people.size())};
  if (place != people.begin()) beside.Before = (*(place - 1))->Uid;
  if (place + 1 != people.end()) beside.After = (*(place + 1))->Uid;
  return beside;
}

Encounters EncountersOf(const World& world, int firstUid, int secondUid) {
  Encounters meetings;
  for (const int number : MatchesWith(world, firstUid)) {
    const HeldMatch& bout = world.Bouts()[number];
    const auto placeOf = [&](int uid) {
      const auto at = std::ranges::find_if(bout.Worker, [=](const Word& w) { return w == uid; });
      return static_cast<int>(at - bout.Worker.begin());
    };
    const int first = placeOf(firstUid), second = placeOf(secondUid);
    const int nobody = static_cast<int>(bout.Worker.size());
    const bool firstWon = first < bout.Winners, secondWon = second < bout.Winners;
    if (first == nobody || second == nobody || (bout.Winners > 0 && firstWon == secondWon))
      continue;
    ++(firstWon ? meetings.Won : secondWon ? meetings.Lost : meetings.Drawn);
    meetings.Mean += bout.Rating;
  }
  if (meetings.Count() > 0) meetings.Mean /= meetings.Count();
  return meetings;
}

}  // namespace grapplemont
