#include "report/report.h"

#include <algorithm>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "report/past.h"
#include "report/stages.h"

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
      teller.Pace.HoldBreath(teller);
      teller.Paragraph();
      TellFinish(teller, bout);
  }
}

void TellMatch(Teller& teller) {
  const BoutRow* bout = FindBout(teller.segment.Style, teller.segment.MatchType);
  if (!bout) return;
  TellOpening(teller);
  TellPast(teller);
  teller.Pace.Open(teller);
  teller.Paragraph();
  TellBout(teller, *bout);
  TellTitleEnding(teller);
  TellPastEnding(teller);
  teller.Pace.AfterBell(teller);
  teller.Paragraph();
  TellAftermath(teller);
}

bool HasTurnPending(const Teller& teller) {
  const auto& turners = teller.scene.Turners;
  return std::any_of(turners.begin(), turners.end(), [&](int uid) {
    const Worker* worker = teller.world.FindWorker(uid);
    return worker && worker->TurnPending;
  });
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

int LineMemory::Pick(Draws& draws, const void* band, int lines, std::span<const int> days) {
  std::vector<bool>& used = used_[band];
  used.resize(static_cast<std::size_t>(lines));
  if (std::find(used.begin(), used.end(), false) == used.end())
    used.assign(static_cast<std::size_t>(lines), false);
  int longest = 0;
  for (std::size_t line = 0; line < days.size(); ++line)
    if (!used[line]) longest = std::max(longest, days[line]);
  const auto isFree = [&](int line) {
    const auto at = static_cast<std::size_t>(line);
    return !used[at] && (days.empty() || days[at] == longest);
  };
  int picked = draws.Draw(lines) - 1;
  if (!isFree(picked)) {
    std::vector<int> unused;
    for (int line = 0; line < lines; ++line)
      if (isFree(line)) unused.push_back(line);
    picked = unused[static_cast<std::size_t>(draws.Draw(static_cast<int>(unused.size())) - 1)];
  }
  used[static_cast<std::size_t>(picked)] = true;
  return picked;
}

bool LineMemory::Used(const void* band, int line) const {
  const auto found = used_.find(band);
  return found != used_.end() && found->second[static_cast<std::size_t>(line)];
}

void TellInterview(Teller& teller) {
  const Segment& segment = teller.segment;
  if (!FindInterviewStyle(segment.Style)) return;
  const int purpose = segment.Purpose >= kVerbalAttack && segment.Purpose <= kTalkNone
                          ? int(segment.Purpose)
                          : int(kTalkNone);
  teller.Say(Family::TalkOpening, segment.Style);
  teller.Say(Family::Speech, TalkBand(segment.Style, purpose));
  if (purpose == kTalkTurn) {
    teller.cast.Set('t', teller.world, teller.scene.Turners);
    TellTurn(teller);
  }
  teller.Say(Family::TalkClosing, purpose);
}

void TellAngle(Teller& teller) {
  if (HasTurnPending(teller)) teller.cast.Set(Item::Turn, "turn");
  teller.Say(Family::AngleText, teller.segment.Style);
}

namespace {

std::string MatchNames(const World& world, const Segment& segment) {
  if (segment.Style == kSpecial) return std::to_string(EntrantsOf(segment)) + " Workers Entered";
  std::string names;
  for (const auto& side : SidesOf(segment))
    names += (names.empty() ? "" : " vs ") + SideText(world, side);
  return names;
}

std::string BeltLine(const World& world, const Segment& segment) {
  if (segment.TitleName == "None" || segment.TitleName.View().empty()) return {};
  const Title* title = FindTitle(world, segment.TitleName);
  const bool forTeams = title && !title->Singles;
  return "(For The " + segment.TitleName.Str() + (forTeams ? " Titles)" : " Title)");
}

std::string WinnerLine(const World& world, const Segment& segment) {
  if (IsDraw(segment)) return "Winner : Draw";
  return "Winner : " + (segment.Style == kSpecial ? WorkerName(world, segment.Winner)
                                                  : SideText(world, WinnersOf(segment)));
}

std::string InterviewNames(const World& world, const Segment& segment) {
  const auto talkers = SeatedAs(segment, Casting::Talkers);
  const auto managers = SeatedAs(segment, Casting::TalkManagers);
  if (talkers.empty()) return {};
  const bool isTeam = talkers.size() == 2;
  const std::string who =
      isTeam ? PairName(world, talkers[0], talkers[1]) : WorkerName(world, talkers[0]);
  if (managers.empty()) return who + (isTeam ? " are backstage. " : " is backstage. ");
  const std::string manager = WorkerName(world, managers[0]);
  // In the order of their seats.
  return isTeam ? manager + " is backstage with " + who + ". "
                : who + " is backstage with " + manager + ". ";
}

std::string AngleNames(const World& world, const Segment& segment) {
  std::string names;
  for (const int uid : PeopleOf(segment))
    if (const std::string name = WorkerName(world, uid); !name.empty())
      names += (names.empty() ? "" : ", ") + name;
  const Angle* angle = FindAngle(segment.Style);
  if (angle && HasStableRole(*angle) && segment.Text != "None")
    names += (names.empty() ? "" : ", ") + segment.Text.Str();
  return names;
}

SegmentDetails MatchDetails(const World& world, const Segment& segment) {
  const MatchStyleRow* style = FindMatchStyle(segment.Style);
  const std::string belt = BeltLine(world, segment);
  return {"Match Details",
          std::string(style ? style->Says : ""),
          std::string(MatchTypeText(segment.Style, segment.MatchType)) +
              (belt.empty() ? "" : " Title Match! "),
          MatchNames(world, segment),
          belt,
          WinnerLine(world, segment)};
}

}  // namespace

SegmentDetails DetailsOf(const World& world, const Segment& segment) {
  SegmentDetails details;
  if (segment.Kind == kMatch) return MatchDetails(world, segment);
  if (segment.Kind == kInterview) {
    const InterviewStyleRow* style = FindInterviewStyle(segment.Style);
    details.Heading = "Interview Details";
    details.Style = style ? style->Says : "";
    details.Type = Says(kInterviewPurposes, segment.Purpose);
    details.Names = InterviewNames(world, segment);
  }
  if (segment.Kind == kAngle) {
    const Angle* angle = FindAngle(segment.Style);
    details.Heading = "Angle Details";
    details.Style = angle ? angle->Says : "";
    details.Names = AngleNames(world, segment);
  }
  return details;
}

}  // namespace grapplemont
