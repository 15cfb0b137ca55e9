#include "booking/wizard/wizard.h"

#include <algorithm>
#include <iterator>

#include "booking/wizard/matchrules.h"
#include "records/angles.h"
#include "records/segments.h"

namespace grapplemont {

namespace {

constexpr const char* kNotReached = "???";

/// How many steps a match style asks for: the winner is the last one, or the finish, or the
/// purpose.
int MatchSteps(int style) {
  if (!PurposesOf(style).empty()) return kPurposeStep + 1;
  return (FinishesOf(style).empty() ? kResultStep : kFinishStep) + 1;
}

void ClearWorkers(Segment& segment, int from, int count) {
  for (int place = from; place < from + count; ++place)
    segment.Worker[static_cast<std::size_t>(place - 1)] = 0;
}

void ClearResult(Segment& segment) {
  for (Word* place : {&segment.Winner, &segment.Loser, &segment.Place3, &segment.Place4,
                      &segment.Place5, &segment.Place6, &segment.Place7, &segment.Place8})
    *place = 0;
}

using Undo = void (*)(Segment&);

constexpr Undo kClearKind = [](Segment& s) { s.Kind = 0; };
constexpr Undo kClearStyle = [](Segment& s) { s.Style = 0; };
constexpr Undo kClearPurpose = [](Segment& s) { s.Purpose = 0; };

/// What takes back each step, in their order.
constexpr Undo kUndoMatch[] = {
    kClearKind,
    kClearStyle,
    [](Segment& s) { s.MatchType = 0; },
    [](Segment& s) { s.Worker = {}; },
    [](Segment& s) { s.TitleName = "None"; },
    ClearResult,
    [](Segment& s) { s.Finish = s.Other1 = s.Other2 = 0; },
    // Its run-ins share a field with those of the finish in a singles match.
    [](Segment& s) { s = BeforeAftermath(s); },
    kClearPurpose,
};

constexpr Undo kUndoInterview[] = {
    kClearKind,
    kClearStyle,
    [](Segment& s) { s.Worker = {}; },
    [](Segment& s) {
      if (const InterviewStyleRow* style = FindInterviewStyle(s.Style))
        ClearWorkers(s, style->Speakers + 1, style->Targets);
    },
    kClearPurpose,
};

constexpr Undo kUndoAngle[] = {
    kClearKind,
    kClearStyle,
    [](Segment& s) {
      s.Worker = {};
      s.TitleName = "None";
      s.Text = "None";
    },
};

std::span<const Undo> UndoOf(int kind) {
  if (kind == kInterview) return kUndoInterview;
  return kind == kAngle ? std::span<const Undo>(kUndoAngle) : kUndoMatch;
}

std::string Joined(const std::vector<std::string>& parts, std::string_view between) {
  std::string text;
  for (const std::string& part : parts)
    text += (text.empty() ? std::string() : std::string(between)) + part;
  return text;
}

int WorkerAt(const Segment& segment, int place) {
  return segment.Worker[static_cast<std::size_t>(place - 1)];
}

/// What is said of a step once it is done.
using Summary = std::string (*)(const World&, const Segment&);

std::string KindSummary(const World&, const Segment& segment) {
  return "Segment Type = " + std::string(Says(kSegmentKinds, segment.Kind));
}

std::string StyleSummary(const World&, const Segment& segment) {
  const MatchStyleRow* style = FindMatchStyle(segment.Style);
  return "Match Style = " + std::string(style ? style->Says : "");
}

std::string TypeSummary(const World&, const Segment& segment) {
  return "Match Type = " + std::string(MatchTypeText(segment.Style, segment.MatchType));
}

std::string PeopleSummary(const World& world, const Segment& segment) {
  if (segment.Style == kSpecial) return std::to_string(EntrantsOf(segment)) + " Workers Entered";
  std::vector<std::string> sides;
  for (const auto& side : SidesOf(segment)) sides.push_back(SideText(world, side));
  return Joined(sides, " vs ");
}

std::string TitleSummary(const World&, const Segment& segment) {
  return "Title = " + segment.TitleName;
}

std::string ResultSummary(const World& world, const Segment& segment) {
  if (IsDraw(segment)) return "Result = Draw";
  const std::vector<int> winners = WinnersOf(segment);
  return "Result = " + SideText(world, winners) + (winners.size() > 1 ? " Win" : " Wins");
}

std::string FinishSummary(const World& world, const Segment& segment) {
  return "Finish = " + SummaryText(world, segment, FinishesOf(segment.Style), segment.Finish);
}

std::string AftermathSummary(const World& world, const Segment& segment) {
  std::string text =
      "Aftermath = " + SummaryText(world, segment, AftermathsOf(segment.Style), segment.Aftermath);
  if (!NeedsAftermathRunIn(segment.Style, segment.Aftermath)) return text;
  return text + "\nFrom " + SideText(world, AftermathRunIns(segment));
}

std::string PurposeSummary(const World& world, const Segment& segment) {
  return "Purpose = " + SummaryText(world, segment, PurposesOf(segment.Style), segment.Purpose);
}

std::string TalkStyleSummary(const World&, const Segment& segment) {
  const InterviewStyleRow* style = FindInterviewStyle(segment.Style);
  return "Interview Style = " + std::string(style ? style->Says : "");
}

std::string SpeakersSummary(const World& world, const Segment& segment) {
  const auto worker = [&](int place) { return WorkerAt(segment, place); };
  switch (segment.Style) {
    case kTeamTalk:
      return "Participants = " + SideText(world, {worker(1), worker(2)});
    case kManagedTalk:
      return "Participants = " + SideText(world, {worker(1)}) + " With " +
             SideText(world, {worker(2)});
    case kManagedTeamTalk:
      return "Participants = " + SideText(world, {worker(2), worker(3)}) + " With " +
             SideText(world, {worker(1)});
    default:
      return "Participants = " + SideText(world, {worker(1)});
  }
}

std::string TargetsSummary(const World& world, const Segment& segment) {
  const InterviewStyleRow* style = FindInterviewStyle(segment.Style);
  std::vector<int> targets;
  for (int place = 1; style && place <= style->Targets; ++place)
    if (const int uid = WorkerAt(segment, style->Speakers + place)) targets.push_back(uid);
  return "Targets = " + (targets.empty() ? std::string("None") : SideText(world, targets));
}

std::string TalkPurposeSummary(const World&, const Segment& segment) {
  return "Purpose = " + std::string(Says(kInterviewPurposes, segment.Purpose));
}

std::string AngleSummary(const World&, const Segment& segment) {
  const Angle* angle = FindAngle(segment.Style);
  if (!angle) return "Angle = ";
  return "Angle = " + std::string(angle->Summary.empty() ? angle->Says : angle->Summary);
}

std::string CastSummary(const World& world, const Segment& segment) {
  if (IsToldByStable(segment.Style)) return "Participants = " + segment.Text;
  std::vector<std::string> cast;
  for (const int uid : PeopleOf(segment)) cast.push_back(SideText(world, {uid}));
  if (!(segment.Text == "None")) cast.push_back(segment.Text.Str());
  return "Participants = " + Joined(cast, ", ");
}

/// One step of a path: what it is called, who does it, what is said of it.
struct StepRow {
  std::string_view Caption;
  std::string_view Screen;  // empty: by the Segment's style
  Summary Says;
};
constexpr StepRow kKindRow = {"Select Segment Type", "frmBookStyle", KindSummary};
constexpr StepRow kMatchSteps[] = {
    kKindRow,
    {"Select Match Style", "frmBookType", StyleSummary},
    {"Select Match Type", "frmBookMatchStyle", TypeSummary},
    {"Select Participants", "", PeopleSummary},
    {"Select Title", "frmBookBelt", TitleSummary},
    {"Select Result", "", ResultSummary},
    {"Select Finish", "", FinishSummary},
    {"Select Aftermath", "", AftermathSummary},
    {"Select Purpose", "", PurposeSummary},
};
constexpr StepRow kInterviewSteps[] = {
    kKindRow,
    {"Select Interview Style", "frmIVType", TalkStyleSummary},
    {"Select Participants", "", SpeakersSummary},
    {"Select Targets", "", TargetsSummary},
    {"Select Interview Purpose", "frmIVPurpose", TalkPurposeSummary},
};
constexpr StepRow kAngleSteps[] = {
    kKindRow,
    {"Select Angle", "frmAngleType", AngleSummary},
    {"Select Participants", "frmAnglePeople", CastSummary},
};

std::span<const StepRow> StepsOfKind(int kind) {
  if (kind == kInterview) return kInterviewSteps;
  return kind == kAngle ? std::span<const StepRow>(kAngleSteps) : kMatchSteps;
}

/// Where a style has a screen of its own: one row a step, one word a style.
struct ScreensByStyle {
  int Kind;
  int Step;
  std::string_view Screens[9];
};
constexpr ScreensByStyle kScreensByStyle[] = {
    {kMatch,
     kPeopleStep,
     {"frmBook1vs1", "frmBook2vs2", "frmBook3x1", "frmBook3x2", "frmBook4x1", "frmBook4x2",
      "frmBook3vs3", "frmBook4vs4", "frmBookSpecial"}},
    {kMatch,
     kFinishStep,
     {"frmBook1vs1Finish", "frmBook2vs2Finish", "", "", "", "", "frmBook3vs3Finish",
      "frmBook4vs4Finish", ""}},
    {kMatch, kAftermathStep, {"frmBookAfter", "frmBook2vs2After"}},
    {kMatch, kPurposeStep, {"frmBookPurpose", "frmBook2vs2Purpose"}},
    {kInterview, 2, {"frmIV1", "frmIV2", "frmIV1m", "frmIV2m"}},
    {kInterview, 3, {"frmIV1opp", "frmIV2opp", "frmIV1opp", "frmIV2opp"}},
};

std::string ScreenByStyle(const Segment& segment, int step) {
  if (segment.Kind == kMatch && step == kResultStep)
    return std::string(ResultFormOf(segment).Screen);
  for (const ScreensByStyle& row : kScreensByStyle)
    if (row.Kind == segment.Kind && row.Step == step && segment.Style >= 1 && segment.Style <= 9)
      return std::string(row.Screens[segment.Style - 1]);
  return {};
}

}  // namespace

Wizard BeginBooking(int slot, bool isEvent) {
  Wizard wizard;
  wizard.Buffer = EmptySegment();
  wizard.CurrentSlot = slot;
  wizard.View.IsEvent = isEvent;
  return wizard;
}

int StepsOf(const Segment& segment) {
  switch (segment.Kind) {
    case kMatch:
      return MatchSteps(segment.Style);
    case kInterview:
      return static_cast<int>(std::size(kInterviewSteps));
    case kAngle:
      return static_cast<int>(std::size(kAngleSteps));
    default:
      return 1;
  }
}

void StepDone(Wizard& wizard) {
  ++wizard.Step;
  wizard.SegmentComplete = wizard.Step >= StepsOf(wizard.Buffer);
}

void StepBack(Wizard& wizard) {
  if (wizard.Step == 0) return;
  wizard.SegmentComplete = false;
  --wizard.Step;
  const auto undo = UndoOf(wizard.Buffer.Kind);
  if (wizard.Step < static_cast<int>(undo.size()))
    undo[static_cast<std::size_t>(wizard.Step)](wizard.Buffer);
}

StepText TextOfStep(const World& world, const Wizard& wizard, int step) {
  const auto rows = StepsOfKind(wizard.Buffer.Kind);
  if (step > wizard.Step || step >= static_cast<int>(rows.size()) ||
      (wizard.SegmentComplete && step >= wizard.Step))
    return {kNotReached, {}, {}};
  const StepRow& row = rows[static_cast<std::size_t>(step)];
  StepText text{std::string(row.Caption), {}, {}};
  if (step == wizard.Step) return text;
  text.Summary = row.Says(world, wizard.Buffer);
  if (row.Says == FinishSummary && NeedsFinishRunIn(wizard.Buffer.Style, wizard.Buffer.Finish))
    text.Tip = "From " + SideText(world, FinishRunIns(wizard.Buffer));
  return text;
}

std::string ScreenOfStep(const Wizard& wizard, int step) {
  const auto rows = StepsOfKind(wizard.Buffer.Kind);
  if (step < 0 || step >= static_cast<int>(rows.size())) return {};
  const StepRow& row = rows[static_cast<std::size_t>(step)];
  return row.Screen.empty() ? ScreenByStyle(wizard.Buffer, step) : std::string(row.Screen);
}

}  // namespace grapplemont
