#include "report/ring.h"

#include <algorithm>

#include "records/segments.h"

namespace grapplemont {

namespace {

struct StepRow {
  char Step;
  Family Calls;
};
constexpr StepRow kOffence[] = {{'A', Family::OffenceA},
                                {'B', Family::OffenceB},
                                {'C', Family::OffenceC},
                                {'D', Family::OffenceD},
                                {'E', Family::OffenceE}};
constexpr StepRow kPlain[] = {{'2', Family::TwoCount},   {'N', Family::NearFall},
                              {'R', Family::RefBump},    {'P', Family::PinNoRef},
                              {'L', Family::LadderSpot}, {'W', Family::WeaponSpot},
                              {'K', Family::TableSpot}};

template <class Rows>
const StepRow* FindStep(const Rows& rows, char step) {
  const auto found = std::find_if(std::begin(rows), std::end(rows),
                                  [&](const StepRow& row) { return row.Step == step; });
  return found == std::end(rows) ? nullptr : &*found;
}

}  // namespace

Ring::Ring(Teller& teller) : teller_(teller) {
  std::vector<Person*> seen;
  for (const auto& uids : ::grapplemont::SidesOf(teller.segment)) {
    Side side;
    for (const int uid : uids)
      if (Person* person = teller.cast.Find(teller.world, uid);
          person && std::find(seen.begin(), seen.end(), person) == seen.end()) {
        side.People.push_back(person);
        seen.push_back(person);
      }
    if (!side.People.empty()) sides_.push_back(std::move(side));
  }
}

std::vector<Person*> Ring::All() const {
  std::vector<Person*> all;
  for (const Side& side : sides_) all.insert(all.end(), side.People.begin(), side.People.end());
  return all;
}

std::vector<Person*> Ring::Against(const Person* person) const {
  std::vector<Person*> all;
  const int own = SideOf(person);
  for (int i = 0; i < Sides(); ++i)
    if (const auto& people = sides_[static_cast<std::size_t>(i)].People; i != own)
      all.insert(all.end(), people.begin(), people.end());
  return all;
}

int Ring::SideOf(const Person* person) const {
  for (int i = 0; i < Sides(); ++i) {
    const auto& people = sides_[static_cast<std::size_t>(i)].People;
    if (std::find(people.begin(), people.end(), person) != people.end()) return i;
  }
  return -1;
}

void Ring::Remove(const Person* person) {
  const int side = SideOf(person);
  if (side < 0) return;
  auto& people = sides_[static_cast<std::size_t>(side)].People;
  people.erase(std::find(people.begin(), people.end(), person));
  sides_[static_cast<std::size_t>(side)].Legal = 0;
  if (people.empty()) sides_.erase(sides_.begin() + side);
}

void Ring::RemoveSide(const Person* person) {
  if (const int side = SideOf(person); side >= 0) sides_.erase(sides_.begin() + side);
}

Person* Ring::Legal(int side) const {
  const Side& at = sides_[static_cast<std::size_t>(side)];
  return at.People[at.Legal];
}

Person* Ring::Partner(int side) const {
  const Side& at = sides_[static_cast<std::size_t>(side)];
  return at.People.size() < 2 ? nullptr : at.People[(at.Legal + 1) % at.People.size()];
}

void Ring::Act() {
  teller_.Act(Legal(attacker_), Legal(defender_));
}

int Ring::OtherSide(int side, int notThis) {
  std::vector<int> others;
  for (int i = 0; i < Sides(); ++i)
    if (i != side && (i != notThis || Sides() < 3)) others.push_back(i);
  return others[others.size() < 2
                    ? 0
                    : static_cast<std::size_t>(teller_.Draw(static_cast<int>(others.size())) - 1)];
}

/// Each counter changes hands once: an even number of them brings the beginner back on top.
void Ring::Begin(std::string_view script, const Person* last, const Person* under) {
  const auto put = [&](const Person* person, int side) {
    Side& at = sides_[static_cast<std::size_t>(side)];
    const auto found = std::find(at.People.begin(), at.People.end(), person);
    at.Legal = found == at.People.end() ? 0 : static_cast<std::size_t>(found - at.People.begin());
  };
  const int top = last ? SideOf(last) : -1, bottom = under ? SideOf(under) : -1;
  attacker_ = top >= 0 ? top : 0;
  defender_ = bottom >= 0 && bottom != attacker_ ? bottom : OtherSide(attacker_);
  put(last, attacker_);
  put(under, defender_);
  if (top >= 0 && std::count(script.begin(), script.end(), '#') % 2 == 1)
    std::swap(attacker_, defender_);
}

void Ring::Play(std::string_view script, int spot, const Person* last, const Person* under) {
  if (!CanFight()) return;
  Begin(script, last, under);
  for (const char step : script) Step(step, spot);
}

void Ring::Step(char step, int spot) {
  Act();
  if (const StepRow* row = FindStep(kOffence, step)) return teller_.SayOffence(row->Calls);
  if (const StepRow* row = FindStep(kPlain, step)) {
    teller_.Say(row->Calls);
    return;
  }
  switch (step) {
    case '#':
      std::swap(attacker_, defender_);
      Act();
      teller_.Say(Family::Counter);
      break;
    case 'S':
      teller_.Say(Family::Spot, spot);
      break;
    case 'T':
      TagOut();
      break;
    case 'X':
      DoubleTeam();
      break;
    case '~':
      BreakIn();
      break;
    default:
      break;
  }
}

void Ring::BreakIn() {
  const int old = attacker_;
  attacker_ = OtherSide(old, defender_);
  defender_ = old;
  Act();
  teller_.Say(Family::BreakIn);
}

void Ring::TagOut() {
  Person* partner = Partner(attacker_);
  if (!partner) return;
  teller_.cast.Set('b', partner);
  teller_.Say(Family::TagOut);
  Side& side = sides_[static_cast<std::size_t>(attacker_)];
  side.Legal = (side.Legal + 1) % side.People.size();
}

void Ring::DoubleTeam() {
  Person* partner = Partner(attacker_);
  if (!partner) return;
  teller_.cast.Set('b', partner);
  teller_.Say(Family::DoubleTeam);
}

Person* OneOf(Teller& teller, const std::vector<Person*>& people) {
  if (people.empty()) return nullptr;
  return people[static_cast<std::size_t>(teller.Draw(static_cast<int>(people.size())) - 1)];
}

}  // namespace grapplemont
