#include "booking/wizard/wizard.h"

#include <span>

#include "booking/wizard/matchrules.h"
#include "records/fields/wording.h"

namespace grapplemont {

namespace {

constexpr const char* kNotReached = "???";

void ClearResult(Segment& segment) {
  for (Word* field : LoserFields(segment)) *field = 0;
  segment.Winner = 0;
}

void ClearTargets(Segment& segment) {
  for (const Role& seat : SeatsOf(segment))
    if (seat.From == Casting::Targets) segment.Worker[static_cast<std::size_t>(seat.Place - 1)] = 0;
}

void ClearCast(Segment& segment) {
  segment.Worker = {};
  segment.TitleName = "None";
  segment.Text = "None";
}

// The wizard's screens of the steps that look different from style to style.

template <std::string_view MatchForm::*screen>
std::string_view ByMatchForm(const Segment& segment) {
  const MatchForm* form = FindMatchForm(segment.Style);
  return form ? form->*screen : std::string_view();
}

template <std::string_view InterviewForm::*screen>
std::string_view ByInterviewForm(const Segment& segment) {
  const InterviewForm* form = FindInterviewForm(segment.Style);
  return form ? form->*screen : std::string_view();
}

std::string_view ByResult(const Segment& segment) {
  return ResultFormOf(segment).Screen;
}

// What is said of a step once it is done.

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
  const std::vector<int> managers = SeatedAs(segment, Casting::TalkManagers);
  return "Participants = " + SideText(world, SeatedAs(segment, Casting::Talkers)) +
         (managers.empty() ? "" : " With " + SideText(world, managers));
}

std::string TargetsSummary(const World& world, const Segment& segment) {
  std::vector<int> targets = SeatedAs(segment, Casting::Targets);
  std::erase(targets, 0);
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
  if (segment.Text != "None") cast.push_back(segment.Text.Str());
  return "Participants = " + Joined(cast, ", ");
}

/// One step of a path: what it is called, the screen that does it, by the Segment's style where
/// there is a function for it, what takes it back, and what is said of it.
struct StepRow {
  std::string_view Caption;
  std::string_view Screen;
  std::string_view (*ByStyle)(const Segment&);
  void (*Undo)(Segment&);
  std::string (*Says)(const World&, const Segment&);
};

void ClearKind(Segment& segment) {
  segment.Kind = 0;
}
void ClearStyle(Segment& segment) {
  segment.Style = 0;
}
void ClearPurpose(Segment& segment) {
  segment.Purpose = 0;
}

constexpr StepRow kKindRow = {"Select Segment Type", "frmBookStyle", nullptr, ClearKind,
                              KindSummary};
constexpr StepRow kMatchSteps[] = {
    kKindRow,
    {"Select Match Style", "frmBookType", nullptr, ClearStyle, StyleSummary},
    {"Select Match Type", "frmBookMatchStyle", nullptr, [](Segment& s) { s.MatchType = 0; },
     TypeSummary},
    {"Select Participants", "", ByMatchForm<&MatchForm::People>, [](Segment& s) { s.Worker = {}; },
     PeopleSummary},
    {"Select Title", "frmBookBelt", nullptr, [](Segment& s) { s.TitleName = "None"; },
     TitleSummary},
    {"Select Result", "", ByResult, ClearResult, ResultSummary},
    {"Select Finish", "", ByMatchForm<&MatchForm::Finish>,
     [](Segment& s) { s.Finish = s.Other1 = s.Other2 = 0; }, FinishSummary},
    // Its run-ins share a field with those of the finish in a singles match.
    {"Select Aftermath", "", ByMatchForm<&MatchForm::Aftermath>,
     [](Segment& s) { s = BeforeAftermath(s); }, AftermathSummary},
    {"Select Purpose", "", ByMatchForm<&MatchForm::Purpose>, ClearPurpose, PurposeSummary},
};
constexpr StepRow kInterviewSteps[] = {
    kKindRow,
    {"Select Interview Style", "frmIVType", nullptr, ClearStyle, TalkStyleSummary},
    {"Select Participants", "", ByInterviewForm<&InterviewForm::SpeakersScreen>,
     [](Segment& s) { s.Worker = {}; }, SpeakersSummary},
    {"Select Targets", "", ByInterviewForm<&InterviewForm::TargetsScreen>, ClearTargets,
     TargetsSummary},
    {"Select Interview Purpose", "frmIVPurpose", nullptr, ClearPurpose, TalkPurposeSummary},
};
constexpr StepRow kAngleSteps[] = {
    kKindRow,
    {"Select Angle", "frmAngleType", nullptr, ClearStyle, AngleSummary},
    {"Select Participants", "frmAnglePeople", nullptr, ClearCast, CastSummary},
};

std::span<const StepRow> StepsOfKind(int kind) {
  if (kind == kInterview) return kInterviewSteps;
  return kind == kAngle ? std::span<const StepRow>(kAngleSteps) : kMatchSteps;
}

/// nullptr beyond the last.
const StepRow* RowOf(const Segment& segment, int step) {
  const auto rows = StepsOfKind(segment.Kind);
  const bool there = step >= 0 && step < static_cast<int>(rows.size());
  return there ? &rows[static_cast<std::size_t>(step)] : nullptr;
}

/// The winner is the last step of a match, or the finish, or the purpose.
int MatchSteps(int style) {
  const MatchForm* row = FindMatchForm(style);
  if (!row || row->Finish.empty()) return kResultStep + 1;
  return (row->Purpose.empty() ? kFinishStep : kPurposeStep) + 1;
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
  if (segment.Kind == kMatch) return MatchSteps(segment.Style);
  const bool isTalk = segment.Kind == kInterview || segment.Kind == kAngle;
  return isTalk ? static_cast<int>(StepsOfKind(segment.Kind).size()) : 1;
}

void StepDone(Wizard& wizard) {
  ++wizard.Step;
  wizard.SegmentComplete = wizard.Step >= StepsOf(wizard.Buffer);
}

void StepBack(Wizard& wizard) {
  if (wizard.Step == 0) return;
  wizard.SegmentComplete = false;
  --wizard.Step;
  if (const StepRow* row = RowOf(wizard.Buffer, wizard.Step)) row->Undo(wizard.Buffer);
}

StepText TextOfStep(const World& world, const Wizard& wizard, int step) {
  const StepRow* row = RowOf(wizard.Buffer, step);
  if (step > wizard.Step || !row || (wizard.SegmentComplete && step >= wizard.Step))
    return {kNotReached, {}, {}};
  StepText text{std::string(row->Caption), {}, {}};
  if (step == wizard.Step) return text;
  text.Summary = row->Says(world, wizard.Buffer);
  if (row->Says == FinishSummary && NeedsFinishRunIn(wizard.Buffer.Style, wizard.Buffer.Finish))
    text.Tip = "From " + SideText(world, FinishRunIns(wizard.Buffer));
  return text;
}

std::string ScreenOfStep(const Wizard& wizard, int step) {
  const StepRow* row = RowOf(wizard.Buffer, step);
  if (!row) return {};
  return std::string(row->ByStyle ? row->ByStyle(wizard.Buffer) : row->Screen);
}

}  // namespace grapplemont
