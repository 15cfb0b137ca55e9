#include <algorithm>

#include "records/segments.h"
#include "report/purposes.h"
#include "report/told.h"

namespace grapplemont {

namespace {

void TellPurpose(Teller& teller, const PurposePart& purpose) {
  if (purpose.Part != 0) {
    TurnOf(teller, purpose.Part);
    if (teller.cast.Of('t').Empty()) return;
  }
  switch (purpose.Does) {
    case Purpose::GoodMatch:
      teller.Say(Family::PurposeEnding, kGoodMatchTold);
      break;
    case Purpose::PutsOver:
      teller.Say(Family::PurposeEnding, kPutOverTold);
      break;
    case Purpose::BothOver:
      teller.Say(Family::PurposeEnding, kBothOverTold);
      break;
    case Purpose::EyeCandy:
      teller.Say(Family::PurposeEnding, kEyeCandyTold);
      break;
    case Purpose::Debuts:
      if (IsRunIn(purpose)) teller.Say(Family::PurposeEnding, kRunInDebutTold);
      break;
    case Purpose::Turns:
      TellTurn(teller);
      break;
    default:
      break;
  }
}

/// The turns that a tag match's finish and aftermath name.
void TellTagTurns(Teller& teller) {
  if (teller.segment.Style != kTag) return;
  const int aftermath = teller.segment.Aftermath;
  if (teller.segment.Finish == kPartnerTurns && !teller.cast.Of('w').Empty()) {
    TurnOf(teller, 'k');
    TellTurn(teller);
  }
  if (aftermath >= after2::kFirstTurns && aftermath <= after2::kFourthTurns) {
    TurnOf(teller, static_cast<char>('1' + aftermath - after2::kFirstTurns));
    TellTurn(teller);
  }
}

/// Finishes of six and eight who turn.
void TellSideTurn(Teller& teller) {
  const int style = teller.segment.Style, place = teller.segment.Finish - kFirstTurns;
  if (style != kThreeOnThree && style != kFourOnFour) return;
  if (place < 0 || place >= EntrantsOf(teller.segment)) return;
  TurnOf(teller, static_cast<char>('1' + place));
  TellTurn(teller);
}

}  // namespace

void TurnOf(Teller& teller, char part) {
  teller.cast.Of('t') = teller.cast.Of(part);
}

void TellTurn(Teller& teller) {
  Party& turner = teller.cast.Of('t');
  const auto& booked = teller.scene.Turners;
  std::erase_if(turner.People, [&](const Person* person) {
    return std::find(booked.begin(), booked.end(), person->Uid) == booked.end();
  });
  if (turner.People.empty()) return;
  const Worker* worker = teller.world.FindWorker(turner.People[0]->Uid);
  if (!worker) return;
  int band = worker->Disposition == "F" ? kTurnsHeel : kTurnsFace;
  if (worker->Disposition == "T") band = kTweenerTurns;
  teller.Say(Family::Turn, worker->TurnPending ? band : int(kBaffling));
}

void TellAftermath(Teller& teller) {
  const Segment& segment = teller.segment;
  if (segment.Style == kSingles)
    teller.Say(Family::SinglesAftermath, segment.Aftermath);
  else if (segment.Style == kTag)
    teller.Say(Family::TagAftermath, segment.Aftermath);
  TellTagTurns(teller);
  TellSideTurn(teller);
  const PurposePart* purpose = PurposeOf(segment);
  if (purpose) TellPurpose(teller, *purpose);
  if (const FeudOfSides feud = FeudTold(teller); feud.Between)
    SayFeud(teller, feud, Family::FeudEnding,
            purpose && purpose->Does == Purpose::EndsFeud ? kFeudIsOver : kFeudGoesOn);
}

}  // namespace grapplemont
