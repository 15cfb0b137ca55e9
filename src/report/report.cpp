#include "report/report.h"

#include <algorithm>

#include "records/angles.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "report/pasttold.h"
#include "report/stages.h"
#include "report/talkpast.h"

namespace grapplemont {

namespace {

/// What so few lines have told ends in the same paragraph.
constexpr int kLinesApart = 4;

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
      if (!teller.IsTitleSquash) teller.Pace.HoldBreath(teller);
      if (teller.LinesHere() >= kLinesApart) teller.Paragraph();
      TellFinish(teller, bout);
      if (teller.IsTitleSquash) teller.Say(Family::Squash, kSquashDone);
  }
}

void TellMatch(Teller& teller) {
  const BoutRow* bout = FindBout(teller.segment.Style, teller.segment.MatchType);
  if (!bout) return;
  teller.Counts = bout->Pinfall;
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

/// What the turns of an angle make of those who turn, as far as the crowd goes along.
void SetTurn(Teller& teller) {
  const auto& turns = teller.scene.Turns;
  if (std::any_of(turns.begin(), turns.end(), [](auto& turn) { return !turn.Becomes.empty(); }))
    teller.cast.Set(Item::Turn, "turn");
  const bool isHit = std::all_of(turns.begin(), turns.end(), [&](const Turning& turn) {
    return !turn.FellFlat && !turn.CameTooSoon && turn.Becomes == turns.front().Becomes;
  });
  if (isHit && !turns.empty()) SetSide(teller, turns.front().Becomes);
}

}  // namespace

std::string WriteReport(World& world, const Segment& segment, const Scene& scene,
                        LineMemory& memory, std::vector<SaidSentence>* sentences) {
  memory.BeginSegment();
  Teller teller(world, segment, scene, memory);
  if (scene.Row == 1) TellYear(teller, Family::PastOpening, kYearRecalled);
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
  if (scene.IsLast) TellYear(teller, Family::PastEnding, kYearStands);
  if (sentences) *sentences = teller.Sentences();
  return teller.Text();
}

std::vector<Feud> FeudsAtTheBell(const World& world) {
  std::vector<Feud> feuds;
  for (const Feud& feud : world.Feuds())
    if (feud.Worker1 != 0) feuds.push_back(feud);
  return feuds;
}

std::vector<std::size_t> LineMemory::Open(const void* band, std::vector<bool>& fits) {
  if (std::count(fits.begin(), fits.end(), true) == 0) fits.flip();
  std::vector<Use>& uses = uses_[band];
  uses.resize(fits.size());
  const auto turn = [&](std::size_t line) {
    const Use& use = uses[line];
    return std::pair(use.Segment == segment_ ? use.At : 0, use.Times);
  };
  std::vector<std::size_t> open;
  for (std::size_t line = 0; line < fits.size(); ++line) {
    if (!fits[line]) continue;
    if (!open.empty() && turn(line) < turn(open.front())) open.clear();
    if (open.empty() || turn(line) == turn(open.front())) open.push_back(line);
  }
  // A band that begins again does not begin with the line that ended it.
  if (open.size() > 1 && uses[open.front()].Times > 0) std::erase(open, last_[band]);
  return open;
}

int LineMemory::Take(const void* band, std::size_t line) {
  Use& use = uses_[band][line];
  use = {use.Times + 1, segment_, ++count_};
  last_[band] = line;
  return static_cast<int>(line);
}

int LineMemory::Pick(Draws& draws, const void* band, std::vector<bool> fits,
                     std::span<const int> days) {
  std::vector<std::size_t> choice = Open(band, fits);
  if (!days.empty()) {
    int longest = 0;
    for (const std::size_t line : choice) longest = std::max(longest, days[line]);
    std::erase_if(choice, [&](std::size_t line) { return days[line] != longest; });
  }
  auto picked = static_cast<std::size_t>(draws.Draw(static_cast<int>(fits.size())) - 1);
  if (std::find(choice.begin(), choice.end(), picked) == choice.end())
    picked = choice[static_cast<std::size_t>(draws.Draw(static_cast<int>(choice.size())) - 1)];
  return Take(band, picked);
}

int LineMemory::PickAsWished(Draws& draws, const void* band, std::vector<bool> fits,
                             std::span<const int> days, std::span<const int> lengths,
                             LineWish wish) {
  if (wish == LineWish::Any) return Pick(draws, band, std::move(fits), days);
  std::vector<std::size_t> choice = Open(band, fits);
  const auto half = choice.begin() + static_cast<std::ptrdiff_t>((choice.size() - 1) / 2);
  std::nth_element(choice.begin(), half, choice.end(),
                   [&](std::size_t a, std::size_t b) { return days[a] > days[b]; });
  const int least = days[*half];
  std::erase_if(choice, [&](std::size_t line) { return days[line] < least; });
  std::sort(choice.begin(), choice.end(), [&](std::size_t a, std::size_t b) {
    return std::pair(wish == LineWish::Long ? -lengths[a] : lengths[a], a) <
           std::pair(wish == LineWish::Long ? -lengths[b] : lengths[b], b);
  });
  const std::size_t best = std::min<std::size_t>(choice.size(), 2);
  return Take(band, choice[static_cast<std::size_t>(draws.Draw(static_cast<int>(best)) - 1)]);
}

bool LineMemory::SaidAll(const void* band, const std::vector<bool>& fits) const {
  const auto found = uses_.find(band);
  for (std::size_t line = 0; line < fits.size(); ++line)
    if (fits[line] && (found == uses_.end() || found->second[line].Times == 0 ||
                       found->second[line].Segment != segment_))
      return false;
  return true;
}

bool LineMemory::Used(const void* band, int line) const {
  const auto found = uses_.find(band);
  return found != uses_.end() && found->second[static_cast<std::size_t>(line)].Times > 0;
}

void TellInterview(Teller& teller) {
  const Segment& segment = teller.segment;
  if (!FindInterviewStyle(segment.Style)) return;
  const int purpose = segment.Purpose >= kVerbalAttack && segment.Purpose <= kTalkNone
                          ? int(segment.Purpose)
                          : int(kTalkNone);
  teller.SayAs('T', Family::TalkOpening, segment.Style);
  if (const auto past = PastOfTalk(teller)) TellTalkPast(teller, *past);
  // Nobody makes a speech that has been heard tonight.
  if (!teller.SayNew(Family::Speech, TalkBand(segment.Style, purpose)))
    teller.Say(Family::SpeechAgain);
  if (purpose == kTalkTurn) {
    std::vector<int> turners;
    for (const Turning& turn : teller.scene.Turns) turners.push_back(turn.Uid);
    teller.cast.Set('t', teller.world, turners);
    TellTurn(teller);
  }
  teller.SayAs('T', Family::TalkClosing, purpose);
}

void TellAngle(Teller& teller) {
  SetTurn(teller);
  const auto past = PastOfTalk(teller);
  if (past && !past->IsAnswer()) TellTalkPast(teller, *past);
  teller.Say(Family::AngleText, teller.segment.Style);
  if (past && past->IsAnswer()) TellTalkPast(teller, *past);
  for (const Turning& turn : teller.scene.Turns) {
    if (turn.Becomes.empty()) continue;
    teller.cast.Set('t', teller.world, {turn.Uid});
    TellTurn(teller);
  }
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
