#include "booking/screens/screenstep.h"

#include <algorithm>

#include "booking/screens/stepscreens.h"
#include "booking/wizard/objections.h"
#include "booking/wizard/refusals.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

const StepTable& MatchSteps() {
  static const StepTable kSteps = {
      {"frmBookStyle", MakeChoiceStep},
      {"frmBookType", MakeChoiceStep},
      {"frmBookMatchStyle", MakeChoiceStep},
      {"frmBook1vs1", MakePeopleStep},
      {"frmBook2vs2", MakePeopleStep},
      {"frmBook3x1", MakePeopleStep},
      {"frmBook3x2", MakePeopleStep},
      {"frmBook4x1", MakePeopleStep},
      {"frmBook4x2", MakePeopleStep},
      {"frmBook3vs3", MakePeopleStep},
      {"frmBook4vs4", MakePeopleStep},
      {"frmBookSpecial", MakeSpecialStep},
      {"frmBookBelt", MakeTitleStep},
      {"frmBook1vs1Winner", MakeResultStep},
      {"frmBook2vs2Winner", MakeResultStep},
      {"frmBook3x1Winner", MakeResultStep},
      {"frmBook3x1eWinner", MakeResultStep},
      {"frmBook3x2Winner", MakeResultStep},
      {"frmBook3x2eWinner", MakeResultStep},
      {"frmBook3x2oWinner", MakeResultStep},
      {"frmBook4x1eWinner", MakeResultStep},
      {"frmBook4x2eWinner", MakeResultStep},
      {"frmBook3vs3Winner", MakeResultStep},
      {"frmBook4vs4Winner", MakeResultStep},
      {"frmBookSurvivorWinner", MakeResultStep},
      {"frmBookSpecialWinner", MakeResultStep},
      {"frmBook1vs1Finish", MakeEndingStep},
      {"frmBook2vs2Finish", MakeEndingStep},
      {"frmBook3vs3Finish", MakeEndingStep},
      {"frmBook4vs4Finish", MakeEndingStep},
      {"frmBookAfter", MakeEndingStep},
      {"frmBook2vs2After", MakeEndingStep},
      {"frmBookPurpose", MakeEndingStep},
      {"frmBook2vs2Purpose", MakeEndingStep},
  };
  return kSteps;
}

constexpr int kNarrowName = 4;

ui::Tone ToneOf(const Worker& worker) {
  if (worker.Disposition == "F") return ui::Tone::Blue;
  return worker.Disposition == "H" ? ui::Tone::Red : ui::Tone::Muted;
}

}  // namespace

StepScreen::StepScreen(Game& game, WizardHost& host, std::string name, std::string title)
    : Screen(game.Desk(), std::move(name), std::move(title), ui::Role::Dialog),
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
  cmdback = std::make_unique<ui::Button>(*this, "cmdback", "Back", &StepScreen::cmdback_Click);
  cmddone = std::make_unique<ui::Button>(*this, "cmddone", "Done", &StepScreen::cmddone_Click);
  cmdnext = std::make_unique<ui::Button>(*this, "cmdnext", "Next", &StepScreen::cmdnext_Click);
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

void StepScreen::cmddone_Click() {
  Finish(false);
}

void StepScreen::cmdnext_Click() {
  Finish(true);
}

void StepScreen::cmdback_Click() {
  Close();
}

void StepScreen::Finish(bool goOn) {
  if (!Store()) return;
  Close();
  host_.StepStored(goOn);
}

std::unique_ptr<ui::Screen> MakeStepScreen(Game& game, WizardHost& host, const std::string& name) {
  for (const StepTable* steps : {&MatchSteps(), &TalkSteps()})
    if (const auto found = steps->find(name); found != steps->end())
      return found->second(game, host, name);
  return nullptr;
}

std::vector<ui::Column> PeopleColumns(int listsAbreast) {
  using K = ui::ColumnKind;
  if (listsAbreast > 2)
    return {{"Name", K::Text, kNarrowName},
            {"D.", K::Tag, 1, "Face, Heel or Tweener."},
            {"Ov", K::Number, 1, "Popularity."},
            {"Con", K::Number, 1, "Condition."},
            {"Mor", K::Number, 1, "Morale."}};
  return {{"Name", K::Text, 6},
          {"Disp.", K::Tag, 3, "Face, Heel or Tweener."},
          {"Over", K::Number, 2, "Popularity."},
          {"Cond.", K::Number, 2, "Condition."},
          {"Mor.", K::Number, 2, "Morale."}};
}

void FillPeople(ui::ListBox& list, const std::vector<const Worker*>& people, bool none) {
  const bool narrow = list.Columns().front().Width == kNarrowName;
  std::vector<ui::ListBox::Row> rows;
  if (none) rows.push_back({{"None", "", "", "", ""}, 0});
  for (const Worker* worker : people) {
    const std::string_view side =
        narrow ? worker->Disposition.View() : DispositionText(worker->Disposition);
    rows.push_back({{worker->Name.View(), ui::Cell(side, ToneOf(*worker)), ui::Cell(worker->Over),
                     ui::Cell(worker->Condition), ui::Cell(worker->Morale)},
                    worker->Uid});
  }
  list.Fill(std::move(rows), false);
  if (none) list.Select(1);
}

namespace {

/// A battle royal may have many objections; these are read out beforehand.
constexpr std::size_t kShown = 4;

std::string WhyNot(const Segment& draft, MatchStep step) {
  switch (step) {
    case kPeopleStep:
      return WhyNotPeople(draft);
    case kResultStep:
      return WhyNotResult(draft);
    case kFinishStep:
      return WhyNotFinish(draft);
    case kAftermathStep:
      return WhyNotAftermath(draft);
    default:
      return {};
  }
}

}  // namespace

bool MatchStepScreen::Accept(const Segment& draft, MatchStep step) {
  if (const std::string why = WhyNot(draft, step); !why.empty()) return Fail(why);
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
  if (WhyNot(draft, step).empty()) {
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
