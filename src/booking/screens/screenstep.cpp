#include "booking/screens/screenstep.h"

#include <algorithm>
#include <span>

#include "booking/wizard/objections.h"
#include "booking/wizard/refusals.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr StepMaker* kMatchSteps[] = {MakeChoiceStep, MakeChoiceStep, MakeChoiceStep,
                                      MakePeopleStep, MakeTitleStep,  MakeResultStep,
                                      MakeEndingStep, MakeEndingStep, MakeEndingStep};
constexpr StepMaker* kInterviewSteps[] = {MakeChoiceStep, MakeChoiceStep, MakeSeatsStep,
                                          MakeSeatsStep, MakeTalkPurposeStep};
constexpr StepMaker* kAngleSteps[] = {MakeChoiceStep, MakeAngleStep, MakeCastStep};

constexpr int kNarrowName = 4;

CellColumns<Worker> PeopleTableOf(bool narrow) {
  using K = ui::ColumnKind;
  const int wide = narrow ? 1 : 2;
  return {{{"Name", K::Text, narrow ? kNarrowName : 6},
           [](auto& worker) { return worker.Name.View(); }},
          {{narrow ? "D." : "Disposition", K::Tag, narrow ? 1 : 3, "Face, Heel or Tweener."},
           [narrow](auto& worker) {
             ui::Cell cell = DispositionCell(worker);
             if (narrow) cell.Text = worker.Disposition.Str();
             return cell;
           }},
          {{narrow ? "Ov" : "Over", K::Number, wide, "Popularity."},
           [](auto& worker) { return ui::Cell(worker.Over); }},
          {{narrow ? "Con" : "Cond.", K::Number, wide, "Condition."},
           [](auto& worker) { return ui::Cell(worker.Condition); }},
          {{narrow ? "Mor" : "Mor.", K::Number, wide, "Morale."},
           [](auto& worker) { return ui::Cell(worker.Morale); }}};
}

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
  page.Actions = {cmdback.get(), cmddone.get(), cmdnext.get()};
  page.Main = cmdnext.get();
  page.Cancel = cmdback.get();
  page.Large = true;
  std::vector<ui::Box> lines;
  for (int line = 1; line <= kLines; ++line) lines.push_back(lblsofar(line));
  lines.push_back(ui::Spacer());
  page.Body = NeedsWidth()
                  ? ui::Rows({ui::Group("", {ui::Columns(std::move(lines))}), Body().Grow()})
                  : ui::Columns({ui::Group("So far", std::move(lines)).Grow(1), Body().Grow(4)});
  return page;
}

void StepScreen::Load() {
  cmdback = std::make_unique<ui::Button>(*this, "cmdback", "Back", [this] { Close(); });
  cmddone = std::make_unique<ui::Button>(*this, "cmddone", "Done", [this] { Finish(false); });
  cmdnext = std::make_unique<ui::Button>(*this, "cmdnext", "Next", [this] { Finish(true); });
  ShowSoFar();
  Prepare();
}

void StepScreen::ShowSoFar() {
  for (int step = 0; step < kLines; ++step) {
    lblsofar(step + 1).Text = TextOfStep(world(), wizard(), step).Summary;
    lblsofar(step + 1).Visible = step < wizard().Step;
  }
  if (wizard().Step > 0) return;
  lblsofar(1).Text = "Nothing has been chosen yet.";
  lblsofar(1).Visible = true;
}

std::vector<const Worker*> StepScreen::WorkersOf(const std::vector<int>& uids) {
  std::vector<const Worker*> workers;
  for (const int uid : uids)
    if (const Worker* worker = world().FindWorker(uid)) workers.push_back(worker);
  return workers;
}

void StepScreen::AllowDone(bool allowed, const std::string& why) {
  for (ui::Button* button : {cmddone.get(), cmdnext.get()}) {
    button->Enabled = allowed;
    button->Tip = allowed ? std::string() : why;
  }
}

void StepScreen::GoOn() {
  if (cmdnext->Enabled) Finish(true);
}

bool StepScreen::Fail(const std::string& message) {
  desk().Say("Error!", message);
  return false;
}

void StepScreen::Finish(bool goOn) {
  if (!Store()) return;
  Close();
  host_.StepStored(goOn);
}

std::unique_ptr<ui::Screen> MakeStepScreen(Game& game, WizardHost& host) {
  const Wizard& wizard = host.State();
  std::span<StepMaker* const> steps = kMatchSteps;
  if (wizard.Buffer.Kind == kInterview) steps = kInterviewSteps;
  if (wizard.Buffer.Kind == kAngle) steps = kAngleSteps;
  const auto step = static_cast<std::size_t>(wizard.Step);
  return step < steps.size() ? steps[step](game, host) : nullptr;
}

void ShowGrievances(ui::Label& label, const World& world, const Segment& booking) {
  const std::string price = GrievanceText(world, booking);
  label.Text = price.empty() ? "Nobody holds this booking against you." : "Morale: " + price + ".";
  label.Colour = price.empty() ? ui::Tone::Muted : ui::Tone::Amber;
}

std::vector<ui::Column> PeopleColumns(int listsAbreast) {
  return HeadingsOf(PeopleTableOf(listsAbreast > 2));
}

void FillPeople(ui::ListBox& list, const std::vector<const Worker*>& people, bool none) {
  const auto columns = PeopleTableOf(list.Columns().front().Width == kNarrowName);
  std::vector<ui::ListBox::Row> rows;
  if (none) rows.push_back({{"None", "", "", "", ""}, 0});
  for (const Worker* worker : people) rows.push_back(RowOf(columns, *worker, worker->Uid));
  list.Fill(std::move(rows), false);
  if (none) list.Select(1);
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
  if (WhyNotLeft(draft, step).empty()) {
    refusals = RefusalsAt(world(), draft, step);
    // Where a purpose follows, its step tells the price.
    if (step == kResultStep && PurposesOf(draft.Style).empty())
      price = HeldAgainstText(world(), draft);
  }
  std::string text;
  for (std::size_t i = 0; i < std::min(refusals.size(), kShown); ++i)
    text += refusals[i].Words + "\n";
  if (refusals.size() > kShown)
    text += "and " + std::to_string(refusals.size() - kShown) + " more.\n";
  if (refusals.empty()) text = price.empty() ? "Nobody objects." : "Nobody objects aloud; ";
  if (!refusals.empty() && !price.empty()) text += "If you insist, ";
  if (!price.empty()) text += price + ".";
  if (text.back() == '\n') text.pop_back();
  txtsay.Text = text;
  txtsay.Colour = refusals.empty() && price.empty() ? ui::Tone::Muted : ui::Tone::Amber;
}

}  // namespace grapplemont
