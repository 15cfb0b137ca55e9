#include <algorithm>

#include "records/segments.h"
#include "report/stages.h"

namespace grapplemont {

namespace {

/// Those who go, first to last: as booked, without anybody named twice, unknown or on the winner's
/// side where sides go whole.
std::vector<Person*> Booked(Teller& teller, const Ring& ring, const Person* winner) {
  const Segment& s = teller.segment;
  std::vector<Person*> out;
  for (const int uid : {int(s.Loser), int(s.Place3), int(s.Place4), int(s.Place5), int(s.Place6),
                        int(s.Place7), int(s.Place8)}) {
    Person* person = TakesPart(s, uid) ? teller.cast.Find(teller.world, uid) : nullptr;
    if (person && person != winner && ring.Holds(person) &&
        std::find(out.begin(), out.end(), person) == out.end())
      out.push_back(person);
  }
  return out;
}

/// Plays the exchange that ends with the one out, and says who did it.
void PlayOut(Teller& teller, Ring& ring, const BoutRow& bout, Person* out, Person* by) {
  if (!by) by = OneOf(teller, ring.Against(out));
  ring.Play(teller.OneOf(bout.Rows), bout.Spot, by, out);
  teller.Act(by, out);
}

/// The side of the one who was pinned, under the letter that the lines know.
void SayTeamOut(Teller& teller, const Person* out) {
  const int side = SideOf(teller.segment, out->Uid);
  const Party third = teller.cast.Of('X');
  teller.cast.Of('X') =
      Party(teller.cast.Of(kSideParts[static_cast<std::size_t>(std::max(side, 1) - 1)]));
  teller.Say(Family::EliminatedTeam);
  teller.cast.Of('X') = third;
}

/// Of an elimination match: one for each side, the booked ones first, then whoever is left over.
std::vector<Person*> OnePerSide(Teller& teller, const Ring& ring, const Person* winner) {
  std::vector<Person*> out;
  std::vector<int> gone = {winner ? SideOf(teller.segment, winner->Uid) : 0};
  auto candidates = Booked(teller, ring, winner);
  const auto all = ring.All();
  candidates.insert(candidates.end(), all.begin(), all.end());
  for (Person* person : candidates) {
    const int side = SideOf(teller.segment, person->Uid);
    if (std::find(gone.begin(), gone.end(), side) != gone.end()) continue;
    gone.push_back(side);
    out.push_back(person);
  }
  return out;
}

}  // namespace

void TellEliminations(Teller& teller, const BoutRow& bout) {
  Ring ring(teller);
  Person* winner = teller.cast.First('w');
  if (!winner || !ring.CanFight()) return;
  const auto out = OnePerSide(teller, ring, winner);
  for (Person* person : out) {
    const bool isLast = person == out.back();
    PlayOut(teller, ring, bout, person, isLast ? winner : nullptr);
    if (isLast) break;
    if (FindMatchStyle(bout.Style)->PerSide > 1)
      SayTeamOut(teller, person);
    else
      teller.Say(Family::EliminatedOne);
    ring.RemoveSide(person);
    teller.Paragraph();
  }
  teller.Paragraph();
  if (!out.empty()) teller.cast.Set('l', out.back());
  TellFinish(teller, bout);
}

void TellSurvivor(Teller& teller, const BoutRow& bout) {
  Ring ring(teller);
  Person* winner = teller.cast.First('w');
  auto out = Booked(teller, ring, winner);
  // With the last of the losing side the match is over, whoever is booked behind them.
  const auto isBeaten = [&](const Person* person) {
    return winner && SideOf(teller.segment, person->Uid) != SideOf(teller.segment, winner->Uid);
  };
  if (const auto last = std::find_if(out.rbegin(), out.rend(), isBeaten); last != out.rend())
    std::rotate(last.base() - 1, last.base(), out.end());
  for (Person* person : out) {
    const auto rivals = ring.Against(person);
    const bool isLast = person == out.back();
    const bool byWinner = isLast && std::find(rivals.begin(), rivals.end(), winner) != rivals.end();
    PlayOut(teller, ring, bout, person, byWinner ? winner : nullptr);
    if (!isLast) teller.Say(Family::SurvivorOut);
    person->IsOut = !isLast;
    ring.Remove(person);
    teller.Paragraph();
  }
  if (!out.empty()) {
    teller.cast.Set('l', out.back());
    teller.cast.Of('v') = teller.cast.Of('l');
  }
  TellFinish(teller, bout);
  Party survivors;
  for (Person* person : teller.cast.Of('W').People)
    if (ring.Holds(person)) survivors.People.push_back(person);
  teller.cast.Of('Z') = survivors;
  if (!survivors.Empty()) teller.Say(Family::Survivors);
}

namespace {

constexpr int kCrowded = 7;    // in the ring, from here on somebody has to go
constexpr int kParagraph = 6;  // entries or eliminations
constexpr int kTryOneIn = 4;

/// Over the top rope: who is in, how many are out. The winner and the runner-up are safe until the
/// end.
class Melee {
 public:
  explicit Melee(Teller& teller)
      : teller_(teller), winner_(teller.cast.First('w')), loser_(teller.cast.First('l')) {}

  bool HasEnd() const { return winner_ && loser_; }
  int Count() const { return static_cast<int>(in_.size()); }
  void Enter(Person* person) { in_.push_back(person); }

  /// One goes, of those who may. False when only the last two are in.
  bool OneOut() {
    Person* out = OneOf(teller_, InBut(winner_, loser_));
    if (!out) return false;
    Throw(OneOf(teller_, InBut(out, out)), out);
    return true;
  }

  void Throw(Person* by, Person* out) {
    std::erase(in_, out);
    teller_.cast.Set(Item::No, std::to_string(++out_));
    teller_.Act(by, out);
    teller_.Say(Family::Elimination);
  }

  /// Some blows, and now and then somebody nearly goes.
  void Scuffle() {
    if (Count() < 2) return;
    Person* one = OneOf(teller_, in_);
    Person* two = OneOf(teller_, InBut(one, one));
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
  std::vector<Person*> InBut(const Person* one, const Person* other) const {
    std::vector<Person*> some = in_;
    std::erase_if(some, [&](const Person* each) { return each == one || each == other; });
    return some;
  }

  Teller& teller_;
  Person *winner_, *loser_;
  std::vector<Person*> in_;
  int out_ = 0;
};

std::vector<Person*> Entrants(Teller& teller) {
  return teller.cast.Together(teller.world, PeopleOf(teller.segment)).People;
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
