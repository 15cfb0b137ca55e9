#include <algorithm>

#include "records/segments.h"
#include "report/told.h"

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

Script Exchange(Teller& teller) {
  const Scripts rows = ExchangeScripts();
  return rows[static_cast<std::size_t>(teller.Draw(static_cast<int>(rows.size())) - 1)];
}

/// Plays the exchange that ends with the one out, and says who did it.
Person* PlayOut(Teller& teller, Ring& ring, const BoutRow& bout, Person* out, Person* by) {
  if (!by) by = OneOf(teller, ring.Against(out));
  ring.Play(Exchange(teller), bout.Spot, by, out);
  teller.Act(by, out);
  return by;
}

char SidePart(const Segment& segment, int uid) {
  constexpr std::string_view kSides = "FSXY";
  const int side = SideOf(segment, uid);
  return side == 0 ? 'F' : kSides[static_cast<std::size_t>(side - 1)];
}

/// The side of the one who was pinned, under the letter that the lines know.
void SayTeamOut(Teller& teller, const Person* out) {
  const Party third = teller.cast.Of('X');
  teller.cast.Of('X') = Party(teller.cast.Of(SidePart(teller.segment, out->Uid)));
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
  Person* winner = teller.cast.Of('w').Empty() ? nullptr : teller.cast.Of('w').People[0];
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
  Person* winner = teller.cast.Of('w').Empty() ? nullptr : teller.cast.Of('w').People[0];
  const auto out = Booked(teller, ring, winner);
  for (Person* person : out) {
    const auto rivals = ring.Against(person);
    const bool isLast = person == out.back();
    const bool byWinner = isLast && std::find(rivals.begin(), rivals.end(), winner) != rivals.end();
    PlayOut(teller, ring, bout, person, byWinner ? winner : nullptr);
    if (!isLast) teller.Say(Family::SurvivorOut);
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

}  // namespace grapplemont
