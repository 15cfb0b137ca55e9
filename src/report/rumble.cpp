#include <algorithm>

#include "records/segments.h"
#include "report/told.h"

namespace grapplemont {

namespace {

constexpr int kCrowded = 7;    // in the ring, from here on somebody has to go
constexpr int kParagraph = 6;  // entries or eliminations
constexpr int kTryOneIn = 4;

/// Over the top rope: who is in, how many are out. The winner and the runner-up are safe until the
/// end.
class Melee {
 public:
  explicit Melee(Teller& teller) : teller_(teller) {
    winner_ = First('w');
    loser_ = First('l');
  }

  bool HasEnd() const { return winner_ && loser_; }
  int Count() const { return static_cast<int>(in_.size()); }
  void Enter(Person* person) { in_.push_back(person); }

  /// One goes, of those who may. False when only the last two are in.
  bool OneOut() {
    Person* out = OneOf(teller_, MayGo());
    if (!out) return false;
    Throw(OneOf(teller_, Others(out)), out);
    return true;
  }

  void Throw(Person* by, Person* out) {
    in_.erase(std::remove(in_.begin(), in_.end(), out), in_.end());
    teller_.cast.Set(Item::No, std::to_string(++out_));
    teller_.Act(by, out);
    teller_.Say(Family::Elimination);
  }

  /// Some blows, and now and then somebody nearly goes.
  void Scuffle() {
    if (Count() < 2) return;
    Person* one = OneOf(teller_, in_);
    Person* two = OneOf(teller_, Others(one));
    teller_.Act(one, two);
    if (teller_.Draw(kTryOneIn) == 1)
      teller_.Say(Family::EliminationTry);
    else
      teller_.SayOffence(Family::OffenceE);
  }

  void LastTwo() {
    teller_.Paragraph();
    teller_.Say(Family::LastTwo);
    for (Person* by : {loser_, winner_, loser_, winner_}) {
      teller_.Act(by, by == winner_ ? loser_ : winner_);
      teller_.SayOffence(by == winner_ ? Family::OffenceC : Family::OffenceB);
    }
    teller_.Act(loser_, winner_);
    teller_.Say(Family::EliminationTry);
    teller_.Act(winner_, loser_);
    teller_.Say(Family::Counter);
    teller_.Paragraph();
    Throw(winner_, loser_);
  }

 private:
  Person* First(char part) const {
    const Party& party = teller_.cast.Of(part);
    return party.People.empty() ? nullptr : party.People[0];
  }
  std::vector<Person*> MayGo() const {
    std::vector<Person*> may;
    for (Person* person : in_)
      if (person != winner_ && person != loser_) may.push_back(person);
    return may;
  }
  std::vector<Person*> Others(const Person* person) const {
    std::vector<Person*> others;
    for (Person* other : in_)
      if (other != person) others.push_back(other);
    return others;
  }

  Teller& teller_;
  Person *winner_ = nullptr, *loser_ = nullptr;
  std::vector<Person*> in_;
  int out_ = 0;
};

std::vector<Person*> Entrants(Teller& teller) {
  std::vector<Person*> entrants;
  for (const int uid : PeopleOf(teller.segment))
    if (Person* person = teller.cast.Find(teller.world, uid);
        person && std::find(entrants.begin(), entrants.end(), person) == entrants.end())
      entrants.push_back(person);
  return entrants;
}

/// Down to the last two, and then the end.
void ClearOut(Teller& teller, Melee& melee) {
  for (int count = 1; melee.Count() > 2 && melee.OneOut(); ++count) {
    if (melee.Count() > 2) melee.Scuffle();
    if (count % kParagraph == 0) teller.Paragraph();
  }
  if (!melee.HasEnd()) return;
  melee.LastTwo();
  if (FindMatchType(kSpecial, teller.segment.MatchType))
    teller.Say(Family::Closer, Bout(kSpecial, teller.segment.MatchType));
}

}  // namespace

void TellRumble(Teller& teller) {
  const auto entrants = Entrants(teller);
  Melee melee(teller);
  if (entrants.size() < 2) return;
  teller.Act(entrants[0], entrants[1]);
  teller.Say(Family::RumbleStart);
  melee.Enter(entrants[0]);
  melee.Enter(entrants[1]);
  melee.Scuffle();
  for (std::size_t i = 2; i < entrants.size(); ++i) {
    melee.Enter(entrants[i]);
    teller.cast.Set(Item::No, std::to_string(i + 1));
    teller.cast.Set('a', entrants[i]);
    teller.Say(Family::RumbleEntry);
    if (teller.Draw(2) == 1) melee.Scuffle();
    if (melee.Count() >= kCrowded || (melee.Count() > 2 && teller.Draw(3) == 1)) melee.OneOut();
    if (i % kParagraph == 0) teller.Paragraph();
  }
  teller.Paragraph();
  ClearOut(teller, melee);
}

void TellBattleRoyal(Teller& teller) {
  Melee melee(teller);
  for (Person* person : Entrants(teller)) melee.Enter(person);
  if (melee.Count() < 2) return;
  melee.Scuffle();
  melee.Scuffle();
  ClearOut(teller, melee);
}

}  // namespace grapplemont
