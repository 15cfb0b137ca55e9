#include <algorithm>

#include "records/modWresCheck.h"
#include "records/segments.h"
#include "report/drama.h"
#include "report/stages.h"

namespace grapplemont {

namespace {

/// A shape and a variant of it; a draw is never a squash.
Script SinglesRow(Teller& teller, Scripts rows, bool isDraw) {
  const int shape = teller.Draw(isDraw ? kShapes - 1 : kShapes), variant = teller.Draw(kVariants);
  return rows[static_cast<std::size_t>((shape - 1) * kVariants + variant - 1)];
}

std::string Tally(const Person& one, int falls, const Person& two, int fallsTwo) {
  return (one.NeedsFull ? one.Full : one.Short) + " " + std::to_string(falls) + ", " +
         (two.NeedsFull ? two.Full : two.Short) + " " + std::to_string(fallsTwo);
}

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

/// What beats the loser where the winner has no finishing move: their best, and the loser lies.
void TellPlainEnd(Teller& teller, Person* winner, Person* loser) {
  teller.Act(winner, loser);
  teller.SayOffence(Family::OffenceD, kDownTag);
  if (teller.Under != Footing::Down) teller.Say(Family::PutDown);
}

/// One of the winner's two finishing moves, by a draw where they have both; where they have none, a
/// plain one if a count follows. True for a hold.
bool TellFinisher(Teller& teller) {
  Person *winner = teller.cast.First('w'), *loser = teller.cast.First('l');
  if (!winner || !loser) return false;
  const Worker* worker = teller.world.FindWorker(winner->Uid);
  const auto moveIn = [&](int slot) { return slot == 1 ? worker->Finisher1 : worker->Finisher2; };
  std::vector<int> slots;
  for (const int slot : {1, 2})
    if (!moveIn(slot).View().empty() && moveIn(slot) != "None") slots.push_back(slot);
  if (slots.empty()) {
    if (teller.Counts) TellPlainEnd(teller, winner, loser);
    return false;
  }
  const int slot = slots.size() == 1 ? slots[0] : teller.OneOf(slots);
  teller.cast.Set(Item::Finisher, WithoutThe(moveIn(slot)));
  teller.Act(winner, loser);
  const FinisherType type = FinisherTypeOf(*worker, slot);
  teller.Say(FinisherFamily(type));
  return type == FinisherType::Submission;
}

/// The deciding moment, as the stipulation has it.
void Decide(Teller& teller, const BoutRow& bout, bool byHold) {
  if (Person* loser = teller.cast.First('l'); bout.ByTable && loser) {
    teller.Act(teller.cast.First('w'), loser);
    teller.Say(Family::TableSpot);
  }
  if (bout.Pinfall) teller.Say(byHold ? Family::TapOut : Family::ThreeCount);
  teller.Say(Family::Closer, Bout(bout.Style, bout.Type));
}

void TellSmallFinish(Teller& teller, const BoutRow& bout) {
  const int finish = FinishCode(teller);
  if (bout.Style == kSingles && finish == kClean) TellLimb(teller);
  teller.Say(bout.Style == kSingles ? Family::SinglesFinish : Family::TagFinish, finish);
  if (finish == kDoubleDq) teller.Say(Family::DoubleDq);
  if (IsDrawCode(finish) || EndsWithoutFall(finish)) return;
  const bool byHold = (finish == kClean || finish == kSportsEntertainment) && TellFinisher(teller);
  Decide(teller, bout, byHold);
}

Person* MateOf(Teller& teller, int uid) {
  for (const auto& side : SidesOf(teller.segment)) {
    if (std::find(side.begin(), side.end(), uid) == side.end()) continue;
    Person* out = nullptr;  // nobody who is still in is passed over for them
    for (const int mate : side)
      if (Person* person = mate == uid ? nullptr : teller.cast.Find(teller.world, mate)) {
        if (!person->IsOut) return person;
        if (!out) out = person;
      }
    return out;
  }
  return nullptr;
}

/// The turn of a worker, by whose side they stand on: it costs their side the match, they are
/// beaten and walk out, or they wait until the bell.
void TellTurnFinish(Teller& teller, const BoutRow& bout, int turner) {
  Cast& cast = teller.cast;
  cast.Set('t', cast.Find(teller.world, turner));
  cast.Set('v', MateOf(teller, turner));
  if (!cast.First('w')) {
    teller.Say(Family::TurnDraw);
    return;
  }
  const bool isWinning =
      SideOf(teller.segment, turner) == SideOf(teller.segment, teller.segment.Winner);
  const Person* loser = cast.First('l');
  const bool isLoser = loser && loser->Uid == turner;
  const bool isBack = cast.First('t')->IsOut;
  if (cast.First('v') && cast.First('v')->IsOut && !isWinning) cast.Set('v', nullptr);
  if (!isWinning)
    teller.Say(isLoser ? Family::TurnWalksOut : isBack ? Family::TurnReturns : Family::TurnCosts);
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

}  // namespace

void TellBody(Teller& teller, const BoutRow& bout) {
  Ring ring(teller);
  if (!ring.CanFight()) return;
  const Person *winner = teller.cast.First('w'), *loser = teller.cast.First('l');
  const bool isSingles = bout.Style == kSingles && bout.Type == kPlainSingles;
  const Script row =
      isSingles ? SinglesRow(teller, bout.Rows, winner == nullptr) : teller.OneOf(bout.Rows);
  teller.IsBrief = row.size() <= kSquashSteps;
  teller.IsTitleSquash = isSingles && teller.IsBrief && !teller.cast.Thing(Item::Title).empty() &&
                         !EndsWithoutFall(FinishCode(teller));
  // Whoever is hit first and has to turn it has rushed at nobody.
  const bool isOneWay = row.find('#') == row.npos;
  if (teller.IsTitleSquash && isOneWay) teller.Say(Family::Squash, kSquashBegins);
  ring.Play(row, bout.Spot, winner, loser);
}

/// The score is even until the last fall, which is the winner's. The sum of the falls stands behind
/// the marker.
void TellIronMan(Teller& teller, const BoutRow& bout) {
  Ring ring(teller);
  Person *winner = teller.cast.First('w'), *loser = teller.cast.First('l');
  const bool canTell = ring.CanFight() && winner && loser;
  int won = 0, lost = 0;
  const int each = canTell ? teller.Draw(3) - 1 : 0;
  while (won + lost < 2 * each) {
    const bool winners = lost == each || (won < each && teller.Draw(2) == 1);
    Person *taker = winners ? winner : loser, *giver = winners ? loser : winner;
    ring.Play(teller.OneOf(bout.Rows), bout.Spot, taker, giver);
    ++(winners ? won : lost);
    teller.Act(taker, giver);
    teller.cast.Set(Item::Tally, Tally(*winner, won, *loser, lost));
    teller.Say(Family::IronFall);
    teller.Paragraph();
  }
  if (canTell) {
    ring.Play(teller.OneOf(bout.Rows), bout.Spot, winner, loser);
    teller.Say(Family::Spot, kClockSpot);
    teller.cast.Set(Item::Tally, Tally(*winner, won + 1, *loser, lost));
  }
  teller.Paragraph();
  TellFinish(teller, bout);
  teller.Append("END OF BOUT. ");
  teller.Say(Family::IronSum);
}

void TellFinish(Teller& teller, const BoutRow& bout) {
  if (teller.cast.First('w') && teller.cast.First('l'))
    teller.Act(teller.cast.First('w'), teller.cast.First('l'));
  if (bout.Style == kSingles || bout.Style == kTag) return TellSmallFinish(teller, bout);
  if (bout.Style == kThreeOnThree || bout.Style == kFourOnFour)
    return TellLargeFinish(teller, bout);
  if (!teller.cast.Of('w').Empty()) Decide(teller, bout, TellFinisher(teller));
}

bool EndsCleanly(const Segment& segment) {
  const int finish = segment.Finish, after = segment.Aftermath;
  if (segment.Style == kThreeOnThree || segment.Style == kFourOnFour) return finish < kCheapVictory;
  if (segment.Style != kSingles && segment.Style != kTag) return true;
  const bool isPeaceful = segment.Style == kSingles
                              ? after <= after1::kNothing || after == after1::kHandshake
                              : after <= after2::kNothing;
  return isPeaceful && (finish == kClean || finish == kSportsEntertainment);
}

bool PassesTitles(const Segment& segment) {
  constexpr int kDecisive[] = {kClean,    kInterference,     kBotchedInterference, kCheating,
                               kSickBump, kMiscommunication, kPartnerTurns};
  return FinishesOf(segment.Style).empty() ||
         std::count(std::begin(kDecisive), std::end(kDecisive), int(segment.Finish)) != 0;
}

void TellTitleEnding(Teller& teller) {
  if (teller.cast.Thing(Item::Title).empty()) return;
  Cast& cast = teller.cast;
  const int holder = teller.scene.Champion;
  const Title* title = FindTitle(teller.world, teller.segment.TitleName);
  const bool forTeams = title && !title->Singles;
  cast.Of('C') = cast.Of(forTeams ? 'W' : 'w');
  const bool isDraw = cast.Of('C').Empty();
  const auto& champions = cast.Of('C').People;
  const bool winnerHeld =
      holder != 0 && std::any_of(champions.begin(), champions.end(),
                                 [&](const Person* person) { return person->Uid == holder; });
  const bool isPresent = IsEntrant(teller.segment, holder);
  const bool passesOn = PassesTitles(teller.segment);
  if ((holder == 0 || !isPresent) && (isDraw || !passesOn)) return;
  teller.Say(Family::TitleEnding,
             TitleBand({passesOn, isDraw, holder == 0, isPresent}, winnerHeld));
}

}  // namespace grapplemont
