#include "records/modWresCheck.h"
#include "records/segments.h"
#include "report/stages.h"

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

namespace {

bool IsDrawCode(int finish) {
  return finish == kDoubleDq || finish == kDoubleCountOut || finish == kNoContest;
}

/// The bell rings without anybody beaten for the three.
bool EndsWithoutFall(int finish) {
  return finish == kCountOut || finish == kDqThroughInterference;
}

/// Of styles 1 and 2, true to the result that is booked whatever the code.
int FinishCode(const Teller& teller) {
  const int finish = teller.segment.Finish;
  const bool isDraw = teller.cast.Of('w').Empty();
  if (isDraw) return IsDrawCode(finish) ? finish : kDoubleCountOut;
  const Family family =
      teller.segment.Style == kSingles ? Family::SinglesFinish : Family::TagFinish;
  return IsDrawCode(finish) || !RowOf(family).Has(finish) ? kClean : finish;
}

Family FinisherFamily(FinisherType type) {
  switch (type) {
    case FinisherType::Submission:
      return Family::FinishHold;
    case FinisherType::TopRope:
      return Family::FinishTopRope;
    case FinisherType::Ground:
      return Family::FinishGround;
    default:
      return Family::FinishImpact;
  }
}

/// One of the winner's two finishing moves, by a draw where they have both. True for a hold.
bool TellFinisher(Teller& teller) {
  const Party &winner = teller.cast.Of('w'), &loser = teller.cast.Of('l');
  if (winner.Empty() || loser.Empty()) return false;
  const Worker* worker = teller.world.FindWorker(winner.People[0]->Uid);
  std::vector<int> slots;
  for (const int slot : {1, 2})
    if (const auto& name = slot == 1 ? worker->Finisher1 : worker->Finisher2;
        !name.View().empty() && name != "None")
      slots.push_back(slot);
  if (slots.empty()) return false;
  const int slot =
      slots.size() == 1 ? slots[0] : slots[static_cast<std::size_t>(teller.Draw(2) - 1)];
  std::string move = OneSpaced(slot == 1 ? worker->Finisher1 : worker->Finisher2);
  if (move.starts_with("The ") || move.starts_with("the ")) move.erase(0, 4);
  teller.cast.Set(Item::Finisher, move);
  teller.Act(winner.People[0], loser.People[0]);
  const FinisherType type = FinisherTypeOf(*worker, slot);
  teller.Say(FinisherFamily(type));
  return type == FinisherType::Submission;
}

/// The deciding moment, as the stipulation has it.
void Decide(Teller& teller, const BoutRow& bout, bool byHold) {
  if (bout.ByTable && !teller.cast.Of('l').Empty()) {
    teller.Act(teller.cast.Of('w').People[0], teller.cast.Of('l').People[0]);
    teller.Say(Family::TableSpot);
  }
  if (bout.Pinfall) teller.Say(byHold ? Family::TapOut : Family::ThreeCount);
  teller.Say(Family::Closer, Bout(bout.Style, bout.Type));
}

void TellSmallFinish(Teller& teller, const BoutRow& bout) {
  const int finish = FinishCode(teller);
  teller.Say(bout.Style == kSingles ? Family::SinglesFinish : Family::TagFinish, finish);
  if (finish == kDoubleDq) teller.Say(Family::DoubleDq);
  if (IsDrawCode(finish) || EndsWithoutFall(finish)) return;
  const bool byHold = (finish == kClean || finish == kSportsEntertainment) && TellFinisher(teller);
  Decide(teller, bout, byHold);
}

Person* MateOf(Teller& teller, int uid) {
  const int side = SideOf(teller.segment, uid);
  if (side == 0) return nullptr;
  const auto sides = SidesOf(teller.segment);
  for (const int mate : sides[static_cast<std::size_t>(side - 1)])
    if (Person* person = mate == uid ? nullptr : teller.cast.Find(teller.world, mate))
      return person;
  return nullptr;
}

/// The turn of a worker, by whose side they stand on: it costs their side the match, they are
/// beaten and walk out, or they wait until the bell.
void TellTurnFinish(Teller& teller, const BoutRow& bout, int turner) {
  Cast& cast = teller.cast;
  cast.Set('t', cast.Find(teller.world, turner));
  cast.Set('v', MateOf(teller, turner));
  const bool isDraw = cast.Of('w').Empty(),
             isWinning = !isDraw && SideOf(teller.segment, turner) ==
                                        SideOf(teller.segment, teller.segment.Winner);
  if (isDraw) {
    teller.Say(Family::TurnDraw);
    return;
  }
  const Party& loser = cast.Of('l');
  const bool isLoser = !loser.Empty() && loser.People[0]->Uid == turner;
  if (!isWinning) teller.Say(isLoser ? Family::TurnWalksOut : Family::TurnCosts);
  Decide(teller, bout, isWinning && TellFinisher(teller));
  if (!isWinning) return;
  teller.Paragraph();
  teller.Say(Family::TurnAfterWin);
}

/// Styles 7 and 8: behind the turns come the two draws and the draw that is a show.
void TellLargeFinish(Teller& teller, const BoutRow& bout) {
  const int places = EntrantsOf(teller.segment);
  const int finish = teller.segment.Finish, behind = finish - kFirstTurns - places;
  const bool isDraw = teller.cast.Of('w').Empty();
  if (finish >= kFirstTurns && behind < 0) {
    const int turner = UidAt(teller.segment, finish - kFirstTurns + 1);
    if (teller.cast.Find(teller.world, turner)) return TellTurnFinish(teller, bout, turner);
  }
  if (behind == 2) teller.Say(Family::SideShow);
  if (isDraw) {
    if (behind == 0) teller.Say(Family::DoubleDq);
    if (behind != 0 && behind != 2) teller.Say(Family::SideDraw);
    return;
  }
  if (finish == kCheapVictory) teller.Say(Family::CheapFinish);
  Decide(teller, bout, finish != kCheapVictory && TellFinisher(teller));
}

struct Outcome {
  bool Changes, Draw, Vacant, Present;
};

int TitleBand(const Outcome& is, bool winnerHeld) {
  if (is.Draw) return kKeptByDraw;
  if (winnerHeld) return kRetained;
  if (!is.Changes) return kKeptThoughBeaten;
  if (is.Vacant) return kVacancyFilled;
  return is.Present ? kNewChampion : kWonInAbsence;
}

/// Wins by disqualification or count-out leave a Title where it is.
bool PassesOn(const Segment& segment) {
  if (FinishesOf(segment.Style).empty()) return true;
  switch (segment.Finish) {
    case kClean:
    case kInterference:
    case kBotchedInterference:
    case kCheating:
    case kSickBump:
    case kMiscommunication:
    case kPartnerTurns:
      return true;
    default:
      return false;
  }
}

}  // namespace

void TellFinish(Teller& teller, const BoutRow& bout) {
  if (bout.Style == kSingles || bout.Style == kTag) return TellSmallFinish(teller, bout);
  if (bout.Style == kThreeOnThree || bout.Style == kFourOnFour)
    return TellLargeFinish(teller, bout);
  if (!teller.cast.Of('w').Empty()) Decide(teller, bout, TellFinisher(teller));
}

void TellTitleEnding(Teller& teller) {
  if (teller.cast.Thing(Item::Title).empty()) return;
  Cast& cast = teller.cast;
  const int holder = teller.scene.Champion;
  const Title* title = FindTitle(teller.world, teller.segment.TitleName);
  const bool forTeams = title && !title->Singles;
  cast.Of('C') = cast.Of(forTeams ? 'W' : 'w');
  const bool isDraw = cast.Of('C').Empty();
  bool winnerHeld = false, isPresent = false;
  for (const Person* person : cast.Of('C').People)
    if (holder != 0 && person->Uid == holder) winnerHeld = true;
  for (const int uid : PeopleOf(teller.segment)) isPresent = isPresent || (holder && uid == holder);
  const bool passesOn = PassesOn(teller.segment);
  if ((holder == 0 || !isPresent) && (isDraw || !passesOn)) return;
  teller.Say(Family::TitleEnding,
             TitleBand({passesOn, isDraw, holder == 0, isPresent}, winnerHeld));
}

}  // namespace grapplemont
