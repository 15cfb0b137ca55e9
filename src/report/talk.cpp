#include "records/angles.h"
#include "records/segments.h"
#include "report/told.h"

namespace grapplemont {

namespace {

constexpr char kNobody = 0;

/// Whose turn an angle brings with it, when he has one pending.
struct AngleTurn {
  int Number;
  char Turner;
};
constexpr AngleTurn kAngleTurns[] = {
    {kAmbush, '4'},           {kBetterEnemies, '1'}, {kFaceTurnAngle, '1'},   {kHeelTurnAngle, '1'},
    {kManagementIssues, '1'}, {kDivaFever, '3'},     {kStableInduction, '1'}, {kStableKickOut, '1'},
    {kTeamFaceTurn, 'F'},     {kTeamHeelTurn, 'F'},  {kStalkerReveal, '1'},   {kStalkerCaught, '1'},
    {kRejectedProposal, '2'}};

char TurnerOf(int angle) {
  for (const AngleTurn& row : kAngleTurns)
    if (row.Number == angle) return row.Turner;
  return kNobody;
}

bool HasTurnPending(const Teller& teller, char part) {
  const Party& party = teller.cast.Of(part);
  if (party.People.empty()) return false;
  const Worker* worker = teller.world.FindWorker(party.People[0]->Uid);
  return worker && worker->TurnPending;
}

/// A manager who speaks for somebody turns himself; the others turn together.
char TalkTurner(int style) {
  return style == kManagedTalk ? 'm' : 'T';
}

}  // namespace

void TellInterview(Teller& teller) {
  const Segment& segment = teller.segment;
  if (!FindInterviewStyle(segment.Style)) return;
  const int purpose = segment.Purpose >= kVerbalAttack && segment.Purpose <= kTalkNone
                          ? int(segment.Purpose)
                          : int(kTalkNone);
  teller.Say(Family::TalkOpening, segment.Style);
  teller.Say(Family::Speech, TalkBand(segment.Style, purpose));
  if (purpose == kTalkTurn) {
    TurnOf(teller, TalkTurner(segment.Style));
    TellTurn(teller);
  }
  teller.Say(Family::TalkClosing, purpose);
}

void TellAngle(Teller& teller) {
  const int number = teller.segment.Style;
  const char turner = TurnerOf(number);
  if (turner != kNobody && HasTurnPending(teller, turner)) teller.cast.Set(Item::Turn, "turn");
  teller.Say(Family::AngleText, number);
}

}  // namespace grapplemont
