#include "chronicle/archive.h"

#include <algorithm>
#include <ranges>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

const TitleReign* Unless(const TitleReign* reign) {
  return reign && !IsVacancy(*reign) ? reign : nullptr;
}

bool IsOf(const Annal& event, std::initializer_list<AnnalKind> kinds) {
  return std::ranges::any_of(kinds, [&](AnnalKind kind) { return event.Kind == kind; });
}

}  // namespace

const TitleReign* HeldCrown::Before() const {
  return Unless(At == 0 ? nullptr : Of->Reigns[At - 1]);
}

const TitleReign* HeldCrown::After() const {
  return Unless(At + 1 >= Of->Reigns.size() ? nullptr : Of->Reigns[At + 1]);
}

Archive::Archive(const World& world) : world_(world) {
  firstYear_ = lastYear_ = YearOf(world.Today());
  FindTheGone();
  SortAnnals();
  SortReigns();
  SortTheRest();
  PairFeuds();
}

/// A name may be somebody else's after they have gone: the days tell them apart. Former names lead
/// to whoever took the new one.
void Archive::FindTheGone() {
  const auto& annals = world_.Annals();
  for (const Annal& event : annals)
    if (event.Kind == kAnnalRetired && event.Who[0] == 0)
      gone_[event.Name.Str()].emplace_back(event.On, -annals.NumberOf(event));
  for (const Annal& event : std::views::reverse(annals))
    if (event.Kind == kAnnalRenamed && event.Who[0] == 0)
      if (const int person = PersonOf(0, event.Name, event.On); person != 0)
        gone_[event.Other.Str()].emplace_back(event.On, person);
  for (auto& [name, ends] : gone_) std::ranges::sort(ends);
}

int Archive::PersonOf(int uid, std::string_view name, Day on) const {
  if (uid != 0) return uid;
  const auto found = gone_.find(name);
  if (found == gone_.end()) return 0;
  const auto end =
      std::ranges::find_if(found->second, [=](const auto& e) { return e.first >= on; });
  return end == found->second.end() ? 0 : end->second;
}

void Archive::SortAnnals() {
  std::map<int, std::string> owners;
  for (const Annal& event : world_.Annals()) {
    // Who owns it already comes into no new possession.
    if (event.Kind == kAnnalOwner &&
        std::exchange(owners[event.Promotion], event.Name.Str()) == event.Name.Str())
      continue;
    byYear_[YearOf(event.On)].push_back(&event);
    firstYear_ = std::min(firstYear_, YearOf(event.On));
    if (event.Promotion != 0) {
      byHouse_[event.Promotion].push_back(&event);
      auto& [initials, full] = houses_[event.Promotion];
      initials = event.House.Str();
      if (IsOf(event, {kAnnalFounded, kAnnalClosed, kAnnalBought, kAnnalRisen, kAnnalFallen}))
        full = event.What.Str();
    }
    std::vector<int> people;
    const auto add = [&](const auto& uids, std::string_view name) {
      const bool alone = uids[1] == 0 && event.Sex != kSeveral;
      for (const int uid : uids)
        if (uid != 0) people.push_back(uid);
      if (alone && uids[0] == 0)
        if (const int person = PersonOf(0, name, event.On); person != 0) people.push_back(person);
    };
    add(event.Who, event.Name);
    if (event.Kind == kAnnalFeud || event.Kind == kAnnalFeudOver || event.Kind == kAnnalFeudCold)
      add(event.Whom, event.Other);
    for (const int person : people) byPerson_[person].push_back(&event);
  }
}

void Archive::SortReigns() {
  for (const TitleReign& reign : world_.Reigns()) {
    CrownLine& line = lines_[{reign.Owner, reign.Title.Str()}];
    line.Owner = reign.Owner;
    line.Title = reign.Title.Str();
    line.Initials = reign.Initials.Str();
    line.Reigns.push_back(&reign);
    if (auto& [initials, full] = houses_[reign.Owner]; initials.empty()) initials = line.Initials;
  }
  for (const auto& [name, line] : lines_)
    for (std::size_t at = 0; at < line.Reigns.size(); ++at) {
      const TitleReign& reign = *line.Reigns[at];
      if (IsVacancy(reign)) continue;
      const Day until = reign.End == kReignLasts ? world_.Today() : Day(reign.Until);
      const int holder = PersonOf(reign.Worker, reign.Holder, until);
      for (const int person : {holder, int(reign.Partner)})
        if (person != 0) crowns_[person].push_back({&line, at});
    }
}

void Archive::SortTheRest() {
  for (const YearAward& award : world_.Awards())
    for (const int person : {PersonOf(award.Worker, award.Winner, award.On), int(award.Partner)})
      if (person != 0 && award.Kind != kFeudOfTheYear && award.Kind != kMatchOfTheYear)
        awards_[person].push_back(&award);
  for (const MatchTally& tally : world_.Tallies())
    if (const int person = PersonOf(tally.Worker, tally.Name, tally.Last); person != 0)
      tallies_[person].push_back(&tally);
  for (const HeldMatch& bout : world_.Bouts())
    for (const int uid : bout.Worker)
      if (uid != 0) bouts_[uid].push_back(&bout);
  for (const HistoryEntry& entry : world_.History()) {
    history_[entry.Promotion].push_back(&entry);
    if (entry.Kind == kPastMonth) houses_[entry.Promotion].second = entry.Name.Str();
  }
}

namespace {

/// The two sides, whoever is named first.
using Sides = std::pair<std::string, std::string>;
Sides SidesOf(const Annal& event) {
  return std::minmax(event.Name.Str(), event.Other.Str());
}

}  // namespace

void Archive::PairFeuds() {
  std::map<std::pair<int, Sides>, std::size_t> open;
  for (const Annal& event : world_.Annals()) {
    const std::pair<int, Sides> key{event.Promotion, SidesOf(event)};
    if (event.Kind == kAnnalFeud) {
      open[key] = feuds_.size();
      feuds_.push_back({&event, nullptr});
    } else if (event.Kind == kAnnalFeudOver || event.Kind == kAnnalFeudCold) {
      if (const auto found = open.find(key); found != open.end()) {
        feuds_[found->second].Ended = &event;
        open.erase(found);
      } else {
        feuds_.push_back({nullptr, &event});
      }
    }
  }
}

bool Archive::Lasts(const TitleReign& reign) const {
  return reign.End == kReignLasts && std::ranges::any_of(world_.Titles(), [&](auto& title) {
           return title.Owner == reign.Owner && title.Name == reign.Title &&
                  title.Holder == reign.Worker && title.Partner == reign.Partner;
         });
}

const CrownLine* Archive::LineOf(int owner, const std::string& title) const {
  const auto found = lines_.find({owner, title});
  return found == lines_.end() ? nullptr : &found->second;
}

std::string Archive::HouseName(int promotion) const {
  if (const Promotion* house = world_.FindPromotion(promotion)) return house->Initials.Str();
  const auto found = houses_.find(promotion);
  return found == houses_.end() ? std::string() : found->second.first;
}

std::string Archive::FullHouseName(int promotion) const {
  if (const Promotion* house = world_.FindPromotion(promotion)) return house->Name.Str();
  const auto found = houses_.find(promotion);
  if (found == houses_.end()) return {};
  return found->second.second.empty() ? found->second.first : found->second.second;
}

std::vector<Subject> Archive::Subjects(About kind) const {
  std::vector<Subject> subjects;
  switch (kind) {
    case About::Worker:
      AddWorkers(subjects);
      break;
    case About::Title:
      AddTitles(subjects);
      break;
    case About::Feud:
      AddFeuds(subjects);
      break;
    case About::Promotion:
      AddHouses(subjects);
      break;
    case About::Year:
      AddYears(subjects);
      break;
  }
  for (Subject& subject : subjects) subject.Is = kind;
  if (kind != About::Year) std::ranges::stable_sort(subjects, std::greater{}, &Subject::Weight);
  return subjects;
}

int Archive::WeightOf(int person) const {
  constexpr int kCrown = 10, kAward = 15, kEvent = 1, kMonth = 30;
  int weight = static_cast<int>(AwardsOf(person).size()) * kAward +
               static_cast<int>(EventsOfPerson(person).size()) * kEvent;
  for (const HeldCrown& held : CrownsOf(person))
    weight += kCrown + std::max(0, DaysOf(held.Reign(), world_.Today())) / kMonth;
  return weight;
}

void Archive::AddWorkers(std::vector<Subject>& subjects) const {
  for (const Worker& worker : world_.Workers())
    if (worker.Uid != 0)
      subjects.push_back({{}, worker.Uid, worker.Name.Str(), WeightOf(worker.Uid)});
  for (const auto& [name, ends] : gone_)
    for (const auto& [on, person] : ends)
      // A former name leads to the same person.
      if (world_.Annals()[-person].Name == name)
        subjects.push_back({{}, person, name, WeightOf(person)});
}

void Archive::AddTitles(std::vector<Subject>& subjects) const {
  for (const auto& [name, line] : lines_)
    subjects.push_back({{}, line.Owner, line.Title, static_cast<int>(line.Reigns.size())});
}

void Archive::AddFeuds(std::vector<Subject>& subjects) const {
  constexpr int kPlayers = 10000;
  for (const FeudPast& feud : feuds_) {
    const int matches = feud.Ended ? feud.Ended->Number + feud.Ended->Against : 0;
    const Annal& first = feud.First();
    subjects.push_back({{},
                        world_.Annals().NumberOf(first),
                        first.Name + " and " + first.Other.Str(),
                        matches + (first.Promotion == world_.PlayerUid() ? kPlayers : 0)});
  }
}

void Archive::AddHouses(std::vector<Subject>& subjects) const {
  constexpr int kStands = 1000, kClass = 100;
  for (const Promotion& house : world_.Promotions())
    subjects.push_back({{}, house.Uid, house.Name.Str(), kStands + (7 - house.Size) * kClass});
  for (const auto& [uid, names] : houses_)
    if (uid != 0 && !world_.FindPromotion(uid))
      subjects.push_back(
          {{}, uid, FullHouseName(uid), static_cast<int>(EventsOfHouse(uid).size())});
}

void Archive::AddYears(std::vector<Subject>& subjects) const {
  for (int year = firstYear_; year <= lastYear_; ++year)
    subjects.push_back({{}, year, std::to_string(year), 0});
}

}  // namespace grapplemont
