#include "report/report.h"

#include "records/segments.h"
#include "report/told.h"

namespace grapplemont {

namespace {

void TellBout(Teller& teller, const BoutRow& bout) {
  switch (bout.Shape) {
    case BoutShape::IronMan:
      return TellIronMan(teller, bout);
    case BoutShape::Elimination:
      return TellEliminations(teller, bout);
    case BoutShape::Survivor:
      return TellSurvivor(teller, bout);
    case BoutShape::Rumble:
      return TellRumble(teller);
    case BoutShape::BattleRoyal:
      return TellBattleRoyal(teller);
    case BoutShape::Duel:
    case BoutShape::Scramble:
      TellBody(teller, bout);
      teller.Paragraph();
      TellFinish(teller, bout);
  }
}

void TellMatch(Teller& teller) {
  const BoutRow* bout = FindBout(teller.segment.Style, teller.segment.MatchType);
  if (!bout) return;
  TellOpening(teller);
  teller.Paragraph();
  TellBout(teller, *bout);
  TellTitleEnding(teller);
  teller.Paragraph();
  TellAftermath(teller);
}

}  // namespace

std::string WriteReport(World& world, const Segment& segment, const Scene& scene,
                        LineMemory& memory) {
  Teller teller(world, segment, scene, memory);
  switch (segment.Kind) {
    case kMatch:
      TellMatch(teller);
      break;
    case kInterview:
      TellInterview(teller);
      break;
    case kAngle:
      TellAngle(teller);
      break;
    default:
      break;
  }
  return teller.Text();
}

}  // namespace grapplemont
