#include "booking/autobooker.h"
#include "booking/bookingscreens.h"
#include "booking/wizard.h"

// Plain answers until the wizard and the auto booker have their own.

namespace grapplemont {

namespace {

class frmBookSheet : public ui::Screen {
 public:
  explicit frmBookSheet(Game& game)
      : Screen(game.Desk(), "frmBookSheet", "Booking", ui::Role::Dialog) {}
  ui::Page Layout() override {
    ui::Page page;
    page.Cancel = &cmdexit;
    page.Actions = {&cmdexit};
    page.Body = ui::Rows({ui::Spacer()});
    return page;
  }

 private:
  void cmdexit_Click() { Close(); }
  ui::Button cmdexit{*this, "cmdexit", "Exit", &frmBookSheet::cmdexit_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, int, bool) {
  return std::make_unique<frmBookSheet>(game);
}

void OpenWizardAtOnce(Game& game, int slot, bool isEvent) {
  game.Desk().Open(MakefrmBookSheet(game, slot, isEvent));
}

Wizard BeginBooking(int slot, bool isEvent) {
  Wizard wizard;
  wizard.Buffer = EmptySegment();
  wizard.CurrentSlot = slot;
  wizard.View.IsEvent = isEvent;
  return wizard;
}

int StepsOf(const Segment& segment) {
  return segment.Kind == kAngle ? 3 : segment.Kind == kInterview ? 5 : 9;
}

StepText TextOfStep(const World& world, const Wizard& wizard, int step) {
  return {"", step == 0 ? "Segment: " + DescribeSegment(world, wizard.Buffer) : "", ""};
}

AutoCard AutoBook(World& world, bool isEvent, int openRows) {
  AutoCard card;
  for (const Segment& segment : world.Segments()) card.Rows.push_back(segment);
  std::vector<const Worker*> free = EligibleRoster(world, {isEvent, "All"});
  for (const Segment& segment : world.Segments())
    std::erase_if(free, [&](const Worker* worker) { return TakesPart(segment, worker->Uid); });
  for (int row = 0; row < openRows && row < static_cast<int>(card.Rows.size()); ++row) {
    Segment& segment = card.Rows[static_cast<std::size_t>(row)];
    if (segment.Kind != kEmptySegment) continue;
    if (free.size() < 2) {
      card.Missing.push_back("Nobody is free for row " + std::to_string(row + 1) + ".");
      continue;
    }
    if (world.RandomDraw(2) == 1) std::swap(free.front(), free.back());
    segment.Kind = kMatch;
    segment.Style = kSingles;
    segment.MatchType = kPlainSingles;
    segment.Winner = segment.Worker[0] = free[0]->Uid;
    segment.Loser = segment.Worker[1] = free[1]->Uid;
    segment.Finish = kClean;
    segment.Aftermath = segment.Purpose = 1;
    free.erase(free.begin(), free.begin() + 2);
  }
  return card;
}

}  // namespace grapplemont
