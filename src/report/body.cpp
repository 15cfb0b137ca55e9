#include "records/segments.h"
#include "report/told.h"

namespace grapplemont {

namespace {

Script RowByDraw(Teller& teller, Scripts rows) {
  return rows[static_cast<std::size_t>(teller.Draw(static_cast<int>(rows.size())) - 1)];
}

/// A shape and a variant of it; a draw is never a squash.
Script SinglesRow(Teller& teller, bool isDraw) {
  const int shape = teller.Draw(isDraw ? kShapes - 1 : kShapes), variant = teller.Draw(kVariants);
  return SinglesScripts()[static_cast<std::size_t>((shape - 1) * kVariants + variant - 1)];
}

Person* FirstOf(const Teller& teller, char part) {
  const Party& party = teller.cast.Of(part);
  return party.People.empty() ? nullptr : party.People[0];
}

}  // namespace

void TellBody(Teller& teller, const BoutRow& bout) {
  Ring ring(teller);
  if (!ring.CanFight()) return;
  const Person *winner = FirstOf(teller, 'w'), *loser = FirstOf(teller, 'l');
  const bool isSingles = bout.Style == kSingles && bout.Type == kPlainSingles;
  const Script row =
      isSingles ? SinglesRow(teller, winner == nullptr) : RowByDraw(teller, bout.Rows);
  ring.Play(row, bout.Spot, winner, loser);
}

namespace {

std::string Tally(const Person& one, int falls, const Person& two, int fallsTwo) {
  return (one.NeedsFull ? one.Full : one.Short) + " " + std::to_string(falls) + ", " +
         (two.NeedsFull ? two.Full : two.Short) + " " + std::to_string(fallsTwo);
}

}  // namespace

/// The score is even until the last fall, which is the winner's. The sum of the falls stands behind
/// the marker.
void TellIronMan(Teller& teller, const BoutRow& bout) {
  Ring ring(teller);
  Person *winner = FirstOf(teller, 'w'), *loser = FirstOf(teller, 'l');
  const bool canTell = ring.CanFight() && winner && loser;
  int won = 0, lost = 0;
  const int each = canTell ? teller.Draw(3) - 1 : 0;
  while (won + lost < 2 * each) {
    const bool winners = lost == each || (won < each && teller.Draw(2) == 1);
    Person *taker = winners ? winner : loser, *giver = winners ? loser : winner;
    ring.Play(RowByDraw(teller, bout.Rows), bout.Spot, taker, giver);
    ++(winners ? won : lost);
    teller.Act(taker, giver);
    teller.cast.Set(Item::Tally, Tally(*winner, won, *loser, lost));
    teller.Say(Family::IronFall);
    teller.Paragraph();
  }
  if (canTell) {
    ring.Play(RowByDraw(teller, bout.Rows), bout.Spot, winner, loser);
    teller.Say(Family::Spot, kClockSpot);
    teller.cast.Set(Item::Tally, Tally(*winner, won + 1, *loser, lost));
  }
  teller.Paragraph();
  TellFinish(teller, bout);
  teller.Append("END OF BOUT. ");
  teller.Say(Family::IronSum);
}

}  // namespace grapplemont
