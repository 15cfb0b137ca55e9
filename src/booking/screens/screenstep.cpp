#include "booking/screens/screenstep.h"

#include <algorithm>
#include <cstring>
#include <set>
#include <span>

#include "booking/screens/bookingscreens.h"
#include "booking/sheet.h"
#include "booking/wizard/foresight.h"
#include "booking/wizard/objections.h"
#include "booking/wizard/refusals.h"
#include "records/fields/wording.h"
#include "show/titlechange.h"
#include "storylines/partners.h"
#include "storylines/storynames.h"
#include "ui/pictureof.h"

namespace grapplemont {

namespace {

constexpr StepMaker* kMatchSteps[] = {MakeChoiceStep, MakeChoiceStep, MakeChoiceStep,
                                      MakePeopleStep, MakeTitleStep,  MakeResultStep,
                                      MakeEndingStep, MakeEndingStep, MakeEndingStep};
constexpr StepMaker* kInterviewSteps[] = {MakeChoiceStep, MakeChoiceStep, MakeSeatsStep,
                                          MakeSeatsStep, MakeTalkPurposeStep};
constexpr StepMaker* kAngleSteps[] = {MakeChoiceStep, MakeAngleStep, MakeCastStep};

constexpr const char* kStepAlone =
    "Done with this step alone: keeps the choice and shows all steps, from which the booking is "
    "completed. Next goes straight on.";

/// A battle royal may have many objections; these are read out beforehand.
constexpr std::size_t kShown = 4;

}  // namespace

StepScreen::StepScreen(Game& game, WizardHost& host)
    : Screen(game.Desk(), ScreenOfStep(host.State(), host.State().Step),
             TextOfStep(game.World(), host.State(), host.State().Step).Caption, ui::Role::Dialog),
      game_(game),
      host_(host) {}

ui::Page StepScreen::Layout() {
  ui::Page page;
  page.Facts = &lblplace;
  page.Actions = {cmdback.get(), cmddone.get(), cmdnext.get()};
  page.Main = cmdnext.get();
  page.Cancel = cmdback.get();
  page.Large = true;
  page.Body = ui::Columns({ui::Group("Steps", StepBoxes()).Grow(7).AfterOthers(),
                           ui::Rows({Body().Grow(), Outlook()}).Grow(36)});
  return page;
}

/// A number to go back to the step by, and what was chosen there.
std::vector<ui::Box> StepScreen::StepBoxes() {
  std::vector<ui::Box> boxes;
  for (int line = 1; line <= kLines; ++line)
    boxes.push_back(ui::Columns({(*cmdjump)(line), ui::Grow(lblsofar(line))}));
  boxes.push_back(ui::Spacer());
  return boxes;
}

/// Below the choice, in every step at the same place, with what the people in it say.
ui::Box StepScreen::Outlook() {
  std::optional<ui::Box> voices = Voices();
  std::vector<ui::Box> cards = {
      ui::Group("So far",
                {ui::Columns({picfirst, picsecond, ui::Rows({lblwho, lblpartner}).Grow()})})
          .Grow(voices ? 3 : 4),
      ui::Group("Forecast", {ui::Columns({ui::Grow(lblforecast), *cmdwhy})}).Grow(2),
      ui::Group("What it costs", {lblprice}).Grow(2)};
  if (voices) cards.push_back(std::move(*voices).Grow(3));
  return ui::Columns(std::move(cards));
}

void StepScreen::Load() {
  MakeButtons();
  ShowSteps();
  lblpartner.Colour = ui::Tone::Blue;
  Prepare();
  const Wizard& at = wizard();
  const bool alike = at.Earlier.Kind == at.Buffer.Kind || at.Step == kKindStep;
  const bool asLeft =
      at.Left.Step == at.Step && std::memcmp(&at.Left.Buffer, &at.Buffer, sizeof(Segment)) == 0;
  if (asLeft) {
    Recall(at.Left.Picks);
  } else if (alike && at.Step < at.EarlierSteps) {
    Recall(at.Earlier);
  }
  isReady_ = true;
  ShowOutlook();
}

void StepScreen::MakeButtons() {
  cmdback = std::make_unique<ui::Button>(*this, "cmdback", "Back", [this] { Leave(); });
  cmddone = std::make_unique<ui::Button>(*this, "cmddone", "Done", [this] { Finish(false); });
  cmdnext = std::make_unique<ui::Button>(*this, "cmdnext",
                                         IsLast() ? "Complete Booking This Segment" : "Next",
                                         [this] { Finish(true); });
  cmddone->Plain = !IsLast();  // nothing is done yet but this step
  cmddone->Tip = kStepAlone;
  cmdwhy = std::make_unique<ui::Button>(*this, "cmdwhy", "Why?",
                                        [this] { desk().Open(MakefrmForecast(game_, typical_)); });
  cmdjump = std::make_unique<ui::Array<ui::Button>>(
      "cmdjump", kLines, [this](const std::string& name, int line) {
        auto jump = std::make_unique<ui::Button>(*this, name, std::to_string(line), [this, line] {
          Close();
          host_.GoTo(line - 1);
        });
        jump->Key = "Alt+" + std::to_string(line);
        return jump;
      });
}

/// What is picked is picked again when the step is opened again.
void StepScreen::Leave() {
  wizard().Left = {wizard().Step, buffer(), Draft()};
  Close();
  host_.StepLeft();
}

/// Which row it is for, and how far it is.
void StepScreen::ShowPlace() {
  const Wizard& at = wizard();
  const std::string show = ShowName(world(), at.View.IsEvent);
  lblplace.Text = "Row " + std::to_string(at.CurrentSlot) + (show.empty() ? "" : " of " + show) +
                  ", step " + std::to_string(at.Step + 1) +
                  (at.EarlierSteps > at.Step ? "; the later steps keep what still holds" : "");
}

void StepScreen::ShowSteps() {
  ShowPlace();
  for (int step = 0; step < kLines; ++step) ShowStep(step);
}

/// Done ones say what was chosen, the present one what it asks, and those that were done earlier
/// what they are going to keep.
void StepScreen::ShowStep(int step) {
  Wizard earlier = wizard();
  const bool kept = step > wizard().Step && step < wizard().EarlierSteps;
  if (kept) {
    earlier.Buffer = earlier.Earlier;
    earlier.Step = earlier.EarlierSteps;
  }
  const StepText text = TextOfStep(world(), earlier, step);
  const bool isNow = step == wizard().Step, isDone = step < wizard().Step;
  lblsofar(step + 1).Text = isNow ? text.Caption : text.Summary;
  lblsofar(step + 1).Colour = isNow ? ui::Tone::Gold : kept ? ui::Tone::Muted : ui::Tone::Plain;
  lblsofar(step + 1).Visible = isNow || isDone || kept;
  ui::Button& jump = (*cmdjump)(step + 1);
  jump.Visible = isNow || isDone || kept;
  jump.Enabled = isDone;
  jump.Tip = isDone ? jump.Key +
                          " goes back to this step. What the later ones hold stays as far as "
                          "it can."
             : isNow ? "This is the step that is open."
                     : "Kept from before, if it still holds then.";
}

std::vector<std::string> StepScreen::ChosenLines(const Segment& draft) {
  std::vector<std::string> lines = SoFar(world(), draft);
  const bool isCrowd = draft.Kind == kMatch && draft.Style == kSpecial;
  if (!marks_ || isCrowd) return lines;
  std::vector<std::string> others;  // who share a line with somebody
  std::set<int> told;               // somebody may be picked twice, until they are refused
  for (const int uid : PeopleOf(draft)) {
    const std::string marks = MarksOf(uid), name = SideText(world(), {uid});
    if (marks.empty() || !told.insert(uid).second) continue;
    const auto own = std::ranges::find_if(
        lines, [&](const std::string& line) { return line.starts_with(name + ": "); });
    if (own != lines.end())
      *own += ", " + marks;
    else
      others.push_back(name + ": " + marks);
  }
  if (!others.empty()) lines.push_back(Joined(others, "; "));
  return lines;
}

void StepScreen::ShowOutlook() {
  if (!isReady_) return;
  const Segment draft = Draft();
  std::string lines = Joined(ChosenLines(draft), "\n");
  const std::vector<int> champions = NewChampions(world(), draft);
  if (!champions.empty()) lines += "\nNew champion: " + SideText(world(), champions);
  lblwho.Text = lines.empty() ? "Nobody has been chosen yet." : lines;
  lblpartner.Visible = !lblpartner.Text->empty();
  ShowFaces(draft);
  ShowForecast(draft);
  const PriceTold price = TellPrice(world(), draft, wizard().Paid);
  lblprice.Text = lines.empty() ? "Told once people are chosen." : price.Text;
  lblprice.Colour = price.IsFree ? ui::Tone::Muted : ui::Tone::Amber;
}

/// The first of each side, or of those who talk.
void StepScreen::ShowFaces(const Segment& draft) {
  std::vector<int> faces;
  if (draft.Kind != kMatch) faces = PeopleOf(draft);
  if (draft.Kind == kMatch && draft.Style != kSpecial)
    for (const std::vector<int>& side : SidesOf(draft)) faces.push_back(side.front());
  faces.resize(2);
  int at = 0;
  for (ui::Picture* face : {&picfirst, &picsecond}) {
    const Worker* worker = world().FindWorker(faces[static_cast<std::size_t>(at++)]);
    face->Drawn = worker ? ui::Drawing(PortraitOf(*worker)) : ui::Drawing();
    face->Visible = worker && ListsAbreast() == 1;  // else those in the lists have to do
    face->Tip = worker ? worker->Name.Str() : std::string();
    face->Height = 56;
  }
}

void StepScreen::ShowForecast(const Segment& draft) {
  auto foreseen = Foreseen(world(), draft, wizard().View);
  const bool whole = foreseen.has_value();
  if (!whole) foreseen = ForeseenWithOthers(world(), draft, wizard().View);
  // A rehearsal takes its time, and most picks of a list's cursor change nothing.
  const bool same = foreseen && rehearsed_ && whole == isWhole_ &&
                    std::memcmp(&*foreseen, &*rehearsed_, sizeof(Segment)) == 0;
  if (same) return;
  rehearsed_ = foreseen;
  isWhole_ = whole;
  RowForecast now;
  if (foreseen) now = ForecastRow(world(), wizard().View.IsEvent, wizard().CurrentSlot, *foreseen);
  const bool any = now.Rating != Forecast{};
  lblforecast.Colour = any ? ui::Tone::Plain : ui::Tone::Muted;
  lblforecast.Tip = any && draft.Kind == kMatch ? kLuckLeftOut : "";
  lblforecast.Text = any                       ? ForecastText(now.Rating)
                     : PeopleOf(draft).empty() ? "Told once people are chosen."
                                               : "Told once nothing is missing.";
  EnableUnless(*cmdwhy, any ? "" : "Nothing has been foreseen yet.");
  before_ = any && whole ? std::optional(now.Rating) : std::nullopt;
  typical_ = std::move(now.Typical);
}

/// With what it moved by since the last pick, and with what it takes for granted.
std::string StepScreen::ForecastText(const Forecast& now) {
  std::string text = RangeText(now);
  if (wizard().IsDraft) text += " as things stand today";
  if (!isWhole_) return text + ", with the most popular of the others in the free places";
  const int change = before_ ? (now.Low + now.High - before_->Low - before_->High) / 2 : 0;
  if (change != 0) text += (change > 0 ? ", +" : ", ") + std::to_string(change) + " with this pick";
  return text;
}

void StepScreen::FillPeople(ui::ListBox& list, const std::vector<const Worker*>& people,
                            bool none) {
  grapplemont::FillPeople(list, people, buffer().Kind, Marks(), none);
}

const RosterMarks& StepScreen::Marks() {
  if (!marks_) marks_.emplace(world(), wizard().CurrentSlot);
  return *marks_;
}

std::string StepScreen::MarksOf(int uid) {
  const Worker* worker = world().FindWorker(uid);
  if (!worker) return {};
  std::vector<std::string> marks = Marks().Of(*worker);
  if (const auto team = std::ranges::find(marks, "Team"); team != marks.end()) {
    std::vector<std::string> partners;
    for (const int partner : PartnersOf(world(), uid))
      partners.push_back(SideText(world(), {partner}));
    *team += " with " + Joined(partners, " and ");
  }
  return Joined(marks);
}

void StepScreen::FillRoster(ui::ListBox& list, std::vector<const Worker*> people, bool none) {
  SortByOver(people);
  FillPeople(list, people, none);
}

std::vector<const Worker*> StepScreen::WorkersOf(const std::vector<int>& uids) {
  std::vector<const Worker*> workers;
  for (const int uid : uids)
    if (const Worker* worker = world().FindWorker(uid)) workers.push_back(worker);
  return workers;
}

void StepScreen::AllowDone(bool allowed, const std::string& why) {
  cmddone->Enabled = cmdnext->Enabled = allowed;
  cmddone->Tip = allowed ? kStepAlone : why;
  cmdnext->Tip = allowed ? std::string() : why;
}

void StepScreen::GoOn() {
  if (cmdnext->Enabled) Finish(true);
}

bool StepScreen::Fail(const std::string& message) {
  desk().Say("Error!", message);
  return false;
}

/// Whether nothing is asked after it. Before a kind is chosen more is to come.
bool StepScreen::IsLast() {
  return buffer().Kind != kEmptySegment && wizard().Step + 1 == StepsOf(buffer());
}

void StepScreen::Finish(bool goOn) {
  const bool completes = goOn && IsLast();
  if (!Store()) return;
  Close();
  host_.StepStored(goOn);
  if (completes) host_.Complete();
}

std::unique_ptr<ui::Screen> MakeStepScreen(Game& game, WizardHost& host) {
  const Wizard& wizard = host.State();
  std::span<StepMaker* const> steps = kMatchSteps;
  if (wizard.Buffer.Kind == kInterview) steps = kInterviewSteps;
  if (wizard.Buffer.Kind == kAngle) steps = kAngleSteps;
  const auto step = static_cast<std::size_t>(wizard.Step);
  return step < steps.size() ? steps[step](game, host) : nullptr;
}

bool MatchStepScreen::Accept(const Segment& draft, MatchStep step) {
  if (const std::string why = WhyNotLeft(draft, step); !why.empty()) return Fail(why);
  for (const Refusal& refusal : RefusalsAt(world(), draft, step))
    if (!IsOverruled(refusal)) return false;
  buffer() = draft;
  return true;
}

bool MatchStepScreen::IsOverruled(const Refusal& refusal) {
  desk().Say("Refusal!", refusal.Words);
  if (refusal.IsFinal) return false;
  if (refusal.Veto.empty()) return desk().Ask("Continue?", "Contine Anyway?", ui::Default::No);
  desk().Say("Creative Control", refusal.Veto);
  return false;
}

void MatchStepScreen::ShowObjections(const Segment& draft, MatchStep step) {
  std::vector<Refusal> refusals;
  std::string price;
  const std::string lacks = WhyNotLeft(draft, step);
  if (lacks.empty()) {
    refusals = RefusalsAt(world(), draft, step);
    // Where a purpose follows, its step tells the price.
    if (step == kResultStep && PurposesOf(draft.Style).empty())
      price = HeldAgainstText(PriceOf(world(), draft, wizard().Paid));
  }
  std::string text;
  for (std::size_t i = 0; i < std::min(refusals.size(), kShown); ++i)
    text += refusals[i].Words + "\n";
  if (refusals.size() > kShown)
    text += "and " + std::to_string(refusals.size() - kShown) + " more.\n";
  if (refusals.empty()) text = price.empty() ? "Nobody objects." : "Nobody objects aloud; ";
  if (!lacks.empty()) text = "Nobody has been asked yet.";
  if (!refusals.empty() && !price.empty()) text += "If you insist, ";
  if (!price.empty()) text += price + ".";
  if (text.back() == '\n') text.pop_back();
  txtsay.Text = text;
  txtsay.Colour = refusals.empty() && price.empty() ? ui::Tone::Muted : ui::Tone::Amber;
}

}  // namespace grapplemont
