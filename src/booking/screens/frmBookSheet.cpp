#include "booking/screens/bookingscreens.h"
#include "booking/screens/screenstep.h"
#include "booking/sheet.h"
#include "booking/wizard/earlier.h"
#include "booking/wizard/foresight.h"
#include "booking/wizard/objections.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// The wizard: one row a step, what has been chosen so far, and the way on and back.
class frmBookSheet : public ui::Screen, public WizardHost {
 public:
  /// With `atOnce` its first step is opened over it: it is seen once there is something to see.
  frmBookSheet(Game& game, Wizard wizard, bool atOnce = false)
      : Screen(game.Desk(), "frmBookSheet", "Book A Segment", ui::Role::Dialog),
        game_(game),
        wizard_(std::move(wizard)),
        atOnce_(atOnce) {
    cmbsplit.Tip = "Limit official competitors to roster split";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdexit, &cmdcomplete, &cmdstep};
    page.Main = &cmdstep;
    page.Then = &cmdcomplete;
    page.Cancel = &cmdexit;
    page.Loses = [this]() -> std::string {
      if (wizard_.Step == 0) return {};
      return "What you have chosen for this segment is not on the sheet yet. Leave without it?";
    };
    std::vector<ui::Box> rows;
    for (int step = 0; step < kRows; ++step)
      rows.push_back(ui::Columns({ui::Grow(At(txtstep, step)), ui::Grow(At(txtdesc, step)),
                                  At(cmdback, step), At(cmdbook, step), At(cmdjump, step)}));
    page.Body =
        ui::Rows({ui::Group("", {ui::Rows(std::move(rows))}), lblforecast, lblprice, ui::Spacer(),
                  ui::Field("Limit official competitors to roster split", cmbsplit)});
    return page;
  }

  void Load() override {
    cmbsplit.Add("All");
    const Promotion& player = game_.World().Player();
    for (const auto& split : player.Split)
      if (split != "None" && !split.View().empty()) cmbsplit.Add(split.Str());
    cmbsplit.Select(1);
    RefreshWizard();
  }

  void Return() override { RefreshWizard(); }

  Wizard& State() override { return wizard_; }

  void StepStored(bool goOn) override {
    StepDone(wizard_);
    KeepWhatHolds(game_.World(), wizard_);
    RefreshWizard();
    if (goOn && !wizard_.SegmentComplete) OpenStep();
  }

  void Complete() override {
    if (wizard_.SegmentComplete) cmdcomplete_Click();
  }

  void StepLeft() override {
    if (atOnce_ && wizard_.Step == 0 && wizard_.EarlierSteps == 0) Close();
  }

  void GoTo(int step) override {
    JumpTo(wizard_, step);
    RefreshWizard();
    OpenStep();
  }

  void OpenStep() {
    if (auto step = MakeStepScreen(game_, *this)) desk().Open(std::move(step));
  }

 private:
  static constexpr int kRows = 10;

  /// The control of a row; rows count from 0, as steps do.
  template <class C>
  static C& At(ui::Array<C>& controls, int step) {
    return controls(step + 1);
  }

  /// The row whose step is to be done, or was the last one.
  int CurrentRow() const { return wizard_.SegmentComplete ? wizard_.Step - 1 : wizard_.Step; }
  int BackRow() const { return wizard_.Step - 1; }

  void RefreshWizard() {
    for (int step = 0; step < kRows; ++step) ShowRow(step);
    lblfacts.Text = "Row " + std::to_string(wizard_.CurrentSlot);
    ShowOutlook();
    cmdstep.Visible = !wizard_.SegmentComplete;
    EnableUnless(cmdcomplete, wizard_.SegmentComplete ? "" : "Every step must be done first.");
  }

  /// Of a finished booking.
  void ShowOutlook() {
    lblforecast.Visible = lblprice.Visible = wizard_.SegmentComplete;
    if (!wizard_.SegmentComplete) return;
    const World& world = game_.World();
    const Forecast forecast =
        ForecastRow(world, wizard_.View.IsEvent, wizard_.CurrentSlot, wizard_.Buffer).Rating;
    lblforecast.Text =
        "Forecast: " + RangeText(forecast) + (wizard_.IsDraft ? ", as things stand today." : ".");
    lblforecast.Visible = forecast != Forecast{};
    const PriceTold price = TellPrice(world, wizard_.Buffer, wizard_.Paid);
    lblprice.Text = price.Text;
    lblprice.Colour = price.IsFree ? ui::Tone::Muted : ui::Tone::Amber;
  }

  void ShowRow(int step) {
    const StepText text = TextOfStep(game_.World(), wizard_, step);
    At(txtstep, step).Text = text.Caption;
    At(txtstep, step).Colour = step == CurrentRow() ? ui::Tone::Gold : ui::Tone::Muted;
    At(txtdesc, step).Text = text.Summary;
    At(txtdesc, step).Tip = text.Tip;
    EnableUnless(At(cmdbook, step), step == CurrentRow() ? "" : "It is another step's turn.");
    EnableUnless(At(cmdback, step),
                 step == BackRow() ? "" : "Only the last step can be taken back.");
    At(cmdjump, step).Visible = step < wizard_.Step;
  }

  /// On a finished booking the last step is done again.
  void cmdbook_Click() {
    if (wizard_.SegmentComplete) JumpTo(wizard_, wizard_.Step - 1);
    OpenStep();
  }

  void cmdback_Click() {
    StepBack(wizard_);
    wizard_.EarlierSteps = 0;
    RefreshWizard();
  }

  void cmdcomplete_Click() {
    if (!wizard_.IsDraft) ApplyBookingGrievances(game_.World(), wizard_.Buffer, wizard_.Paid);
    game_.World().Segments()[wizard_.CurrentSlot] = wizard_.Buffer;
    Close();
  }

  /// A control for each row, "txtstep(0)" and on.
  template <class C, class... More>
  ui::Array<C> ForRows(const char* name, More... more) {
    return {"", kRows, [=, this](const std::string&, int i) {
              return std::make_unique<C>(
                  *this, std::string(name) + "(" + std::to_string(i - 1) + ")", more...);
            }};
  }

  Game& game_;
  Wizard wizard_;
  bool atOnce_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Array<ui::Label> txtstep = ForRows<ui::Label>("txtstep");
  ui::Array<ui::Label> txtdesc = ForRows<ui::Label>("txtdesc");
  ui::Array<ui::Button> cmdback =
      ForRows<ui::Button>("cmdback", "Back", &frmBookSheet::cmdback_Click);
  ui::Array<ui::Button> cmdbook =
      ForRows<ui::Button>("cmdbook", "Select", &frmBookSheet::cmdbook_Click);
  ui::Array<ui::Button> cmdjump{"", kRows, [this](const std::string&, int i) {
                                  auto jump = std::make_unique<ui::Button>(
                                      *this, "cmdjump(" + std::to_string(i - 1) + ")", "Change",
                                      [this, i] { GoTo(i - 1); });
                                  jump->Key = "Alt+" + std::to_string(i);
                                  jump->Tip = jump->Key + " changes this step.";
                                  return jump;
                                }};
  ui::Label lblforecast{*this, "lblforecast"};
  ui::Label lblprice{*this, "lblprice"};
  ui::ComboBox cmbsplit{*this, "cmbsplit", [this] { wizard_.View.Split = cmbsplit.Text; }};
  ui::Button cmdexit{*this, "cmdexit", "Exit", [this] { Close(); }};
  ui::Button cmdcomplete{*this, "cmdcomplete", "Complete Booking This Segment",
                         &frmBookSheet::cmdcomplete_Click};
  ui::Button cmdstep{*this, "cmdstep", "Next Step", &frmBookSheet::OpenStep};
};

}  // namespace

namespace {

Wizard AtPlace(Wizard wizard, const SheetPlace& place) {
  wizard.IsDraft = place.IsDraft;
  return wizard;
}

}  // namespace

std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, const SheetPlace& place) {
  return std::make_unique<frmBookSheet>(game,
                                        AtPlace(BeginBooking(place.Record, place.IsEvent), place));
}

std::unique_ptr<ui::Screen> MakefrmBookSheet(Game& game, int slot, bool isEvent) {
  return MakefrmBookSheet(game, {slot, isEvent});
}

std::unique_ptr<ui::Screen> MakeEditSheet(Game& game, const SheetPlace& place) {
  const Segment& booked = game.World().Segments()[place.Record];
  return std::make_unique<frmBookSheet>(
      game, AtPlace(EditBooking(booked, place.Record, place.IsEvent), place));
}

void OpenWizardAtOnce(Game& game, const SheetPlace& place) {
  game.Desk().Event([&] {
    auto wizard = std::make_unique<frmBookSheet>(
        game, AtPlace(BeginBooking(place.Record, place.IsEvent), place), true);
    frmBookSheet& sheet = *wizard;
    game.Desk().Open(std::move(wizard));
    sheet.OpenStep();
  });
}

void OpenWizardAtOnce(Game& game, int slot, bool isEvent) {
  OpenWizardAtOnce(game, SheetPlace{slot, isEvent});
}

}  // namespace grapplemont
