#include "booking/wizard/wizard.h"

#include <span>

#include "booking/wizard/matchrules.h"
#include "records/fields/wording.h"

namespace grapplemont {

namespace {

constexpr const char* kNotReached = "???";

// What a step has put into a Segment, taken from another.

template <auto... fields>
void Take(Segment& to, const Segment& from) {
  ((to.*fields = from.*fields), ...);
}

/// Of two the other one loses, whoever that is.
void TakeResult(Segment& to, const Segment& from) {
  if (to.Style == kSingles && from.Winner != 0) return StoreResult(to, from.Winner, {});
  Segment copy = from;
  const std::vector<Word*> fields = LoserFields(to), held = LoserFields(copy);
  for (std::size_t i = 0; i < fields.size(); ++i) *fields[i] = *held[i];
  to.Winner = from.Winner;
}

/// Its run-ins share a field with those of the aftermath in a singles match.
void TakeFinish(Segment& to, const Segment& from) {
  Take<&Segment::Finish, &Segment::Other1, &Segment::Other2>(to, BeforeAftermath(from));
}

void TakeAftermath(Segment& to, const Segment& from) {
  to = BeforeAftermath(to);
  to.Aftermath = from.Aftermath;
  Segment copy = from;
  const std::vector<Word*> fields = AftermathRunIns(to), held = AftermathRunIns(copy);
  for (std::size_t i = 0; i < fields.size(); ++i) *fields[i] = *held[i];
}

template <bool targets>
void TakeSeats(Segment& to, const Segment& from) {
  for (const Role& seat : SeatsOf(to)) {
    const auto place = static_cast<std::size_t>(seat.Place - 1);
    if ((seat.From == Casting::Targets) == targets) to.Worker[place] = from.Worker[place];
  }
}

// The wizard's screens of the steps that look different from style to style.

template <auto find, auto screen>
std::string_view ByForm(const Segment& segment) {
  const auto* form = find(segment.Style);
  return form ? form->*screen : std::string_view();
}

std::string_view ByResult(const Segment& segment) {
  return ResultFormOf(segment).Screen;
}

// What is said of a step once it is done, behind its row's name for it.

/// What a table says of a style.
template <auto find>
std::string StyleText(const World&, const Segment& segment) {
  const auto* style = find(segment.Style);
  return std::string(style ? style->Says : "");
}

template <const auto& terms, Word Segment::*code>
std::string TermText(const World&, const Segment& segment) {
  return std::string(Says(terms, segment.*code));
}

template <auto phrases, Word Segment::*code>
std::string CodeText(const World& world, const Segment& segment) {
  return SummaryText(world, segment, phrases(segment.Style), segment.*code);
}

std::string PeopleText(const World& world, const Segment& segment) {
  if (segment.Style == kSpecial) return std::to_string(EntrantsOf(segment)) + " Workers Entered";
  std::vector<std::string> sides;
  for (const auto& side : SidesOf(segment)) sides.push_back(SideText(world, side));
  return Joined(sides, " vs ");
}

std::string ResultText(const World& world, const Segment& segment) {
  if (IsDraw(segment)) return "Draw";
  const std::vector<int> winners = WinnersOf(segment);
  return SideText(world, winners) + (winners.size() > 1 ? " Win" : " Wins");
}

std::string AftermathText(const World& world, const Segment& segment) {
  const std::string text = CodeText<AftermathsOf, &Segment::Aftermath>(world, segment);
  if (!NeedsAftermathRunIn(segment.Style, segment.Aftermath)) return text;
  return text + "\nFrom " + SideText(world, AftermathRunIns(segment));
}

std::string SpeakersText(const World& world, const Segment& segment) {
  const std::vector<int> managers = SeatedAs(segment, Casting::TalkManagers);
  return SideText(world, SeatedAs(segment, Casting::Talkers)) +
         (managers.empty() ? "" : " With " + SideText(world, managers));
}

std::string TargetsText(const World& world, const Segment& segment) {
  std::vector<int> targets = SeatedAs(segment, Casting::Targets);
  std::erase(targets, 0);
  return targets.empty() ? "None" : SideText(world, targets);
}

std::string AngleText(const World&, const Segment& segment) {
  const Angle* angle = FindAngle(segment.Style);
  return std::string(!angle ? "" : angle->Summary.empty() ? angle->Says : angle->Summary);
}

std::string CastText(const World& world, const Segment& segment) {
  if (IsToldByStable(segment.Style)) return segment.Text.Str();
  std::vector<std::string> cast;
  for (const int uid : PeopleOf(segment)) cast.push_back(SideText(world, {uid}));
  if (segment.Text != "None") cast.push_back(segment.Text.Str());
  return Joined(cast, ", ");
}

/// One step of a path: what it is called, the screen that does it, by the Segment's style where
/// there is a function for it, what it puts into a Segment, and what is said of it.
struct StepRow {
  std::string_view Caption;
  std::string_view Screen;
  std::string_view (*ByStyle)(const Segment&);
  void (*Takes)(Segment& to, const Segment& from);
  std::string_view Named;
  std::string (*Says)(const World&, const Segment&);
};

constexpr StepRow kKindRow = {
    "Select Segment Type", "frmBookStyle",    nullptr,
    Take<&Segment::Kind>,  "Segment Type = ", TermText<kSegmentKinds, &Segment::Kind>};
constexpr StepRow kMatchSteps[] = {
    kKindRow,
    {"Select Match Style", "frmBookType", nullptr, Take<&Segment::Style>,
     "Match Style = ", StyleText<FindMatchStyle>},
    {"Select Match Type", "frmBookMatchStyle", nullptr, Take<&Segment::MatchType>, "Match Type = ",
     [](const World&, const Segment& s) {
       return std::string(MatchTypeText(s.Style, s.MatchType));
     }},
    {"Select Participants", "", ByForm<FindMatchForm, &MatchForm::People>, Take<&Segment::Worker>,
     "", PeopleText},
    {"Select Title", "frmBookBelt", nullptr, Take<&Segment::TitleName>,
     "Title = ", [](const World&, const Segment& s) { return s.TitleName.Str(); }},
    {"Select Result", "", ByResult, TakeResult, "Result = ", ResultText},
    {"Select Finish", "", ByForm<FindMatchForm, &MatchForm::Finish>, TakeFinish,
     "Finish = ", CodeText<FinishesOf, &Segment::Finish>},
    {"Select Aftermath", "", ByForm<FindMatchForm, &MatchForm::Aftermath>, TakeAftermath,
     "Aftermath = ", AftermathText},
    {"Select Purpose", "", ByForm<FindMatchForm, &MatchForm::Purpose>, Take<&Segment::Purpose>,
     "Purpose = ", CodeText<PurposesOf, &Segment::Purpose>},
};
constexpr StepRow kInterviewSteps[] = {
    kKindRow,
    {"Select Interview Style", "frmIVType", nullptr, Take<&Segment::Style>,
     "Interview Style = ", StyleText<FindInterviewStyle>},
    {"Select Participants", "", ByForm<FindInterviewForm, &InterviewForm::SpeakersScreen>,
     TakeSeats<false>, "Participants = ", SpeakersText},
    {"Select Targets", "", ByForm<FindInterviewForm, &InterviewForm::TargetsScreen>,
     TakeSeats<true>, "Targets = ", TargetsText},
    {"Select Interview Purpose", "frmIVPurpose", nullptr, Take<&Segment::Purpose>,
     "Purpose = ", TermText<kInterviewPurposes, &Segment::Purpose>},
};
constexpr StepRow kAngleSteps[] = {
    kKindRow,
    {"Select Angle", "frmAngleType", nullptr, Take<&Segment::Style>, "Angle = ", AngleText},
    {"Select Participants", "frmAnglePeople", nullptr,
     Take<&Segment::Worker, &Segment::TitleName, &Segment::Text>, "Participants = ", CastText},
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
  TakeStep(wizard.Buffer, EmptySegment(), wizard.Step);
}

void TakeStep(Segment& to, const Segment& from, int step) {
  if (const StepRow* row = RowOf(to, step)) row->Takes(to, from);
}

StepText TextOfStep(const World& world, const Wizard& wizard, int step) {
  const StepRow* row = RowOf(wizard.Buffer, step);
  if (step > wizard.Step || !row || (wizard.SegmentComplete && step >= wizard.Step))
    return {kNotReached, {}, {}};
  StepText text{std::string(row->Caption), {}, {}};
  if (step == wizard.Step) return text;
  text.Summary = std::string(row->Named) + row->Says(world, wizard.Buffer);
  if (step == kFinishStep && wizard.Buffer.Kind == kMatch &&
      NeedsFinishRunIn(wizard.Buffer.Style, wizard.Buffer.Finish))
    text.Tip = "From " + SideText(world, FinishRunIns(wizard.Buffer));
  return text;
}

std::string ScreenOfStep(const Wizard& wizard, int step) {
  const StepRow* row = RowOf(wizard.Buffer, step);
  if (!row) return {};
  return std::string(row->ByStyle ? row->ByStyle(wizard.Buffer) : row->Screen);
}

}  // namespace grapplemont
