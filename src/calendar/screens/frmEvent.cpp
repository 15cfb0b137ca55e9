#include "calendar/events.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "show/attendance.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// The player's year, month by month: which Event ends it, and how big it is.
class frmEvent : public GameScreen {
 public:
  explicit frmEvent(Game& game) : GameScreen(game, "frmEvent", "Events", {.Manages = true}) {
    lstevents.Room = 12;
    txtname.Hint = "Name of the Event";
    for (const Term& type : kEventTypes)
      cmbtype.Add(std::string(type.Says) + ", " + Dollars(EventProductionCost(type.Code)),
                  type.Code);
    lblnote.Text =
        "A type stays until your image moves: then all Events take the type that fits your size.";
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Columns(
            {ui::Group("The year", {ui::Grow(lstevents)}).Grow(3),
             ui::Rows(
                 {ui::Group("The month's Event",
                            {lblmonth, ui::Columns({ui::Field("Name", txtname), cmdrename}),
                             ui::Columns({ui::Field("Type", cmbtype), cmdtype}), cmdadd, lblnote}),
                  ui::Spacer()})
                 .Grow(2)}),
        &lblfacts, {&cmddrop});
    page.Main = nullptr;  // Enter is the hub's
    return page;
  }

  void Load() override {
    ShowYear();
    lstevents.SelectKey(MonthOf(world().Today()));
    lstevents_Click();
  }
  void Return() override {
    ShowYear();
    lstevents_Click();
  }

 private:
  int Month() { return lstevents.Key(); }
  /// nullptr when none is planned, or no month selected.
  const grapplemont::Event* Chosen() { return PlayerEvent(world(), Month()); }

  void ShowYear() {
    std::vector<ui::ListBox::Row> rows;
    int planned = 0;
    for (int month = 1; month <= 12; ++month) {
      planned += PlayerEvent(world(), month) != nullptr;
      rows.push_back(RowOf(month));
    }
    lstevents.Fill(std::move(rows));
    lblfacts.Text = std::to_string(planned) + " of 12 months have an Event";
  }

  ui::ListBox::Row RowOf(int month) {
    const Day day = NextEventDay(world(), month);
    const ui::Cell name{double(month), std::string(MonthName(month))};
    const ui::Cell date{static_cast<double>((day - kDayZero).count()), PlainDate(day)};
    const grapplemont::Event* event = PlayerEvent(world(), month);
    if (!event)
      return {
          {name, ui::Cell("Nothing planned", ui::Tone::Muted), "", "", date, MarkOf(month, false)},
          month};
    const int cost = EventProductionCost(event->Type);
    return {{name, event->Name.View(), Says(kEventTypes, event->Type),
             ui::Cell(cost, Dollars(cost)), date, MarkOf(month, true)},
            month};
  }

  /// The last Sunday of this month has passed when the next one is a year away.
  ui::Cell MarkOf(int month, bool planned) {
    const Day today = world().Today();
    if (month != MonthOf(today)) return "";
    const Day day = NextEventDay(world(), month);
    if (YearOf(day) != YearOf(today)) return {"Over", ui::Tone::Muted};
    if (!planned) return {"Missing", ui::Tone::Red};
    return {day == today ? "Tonight" : "Due", ui::Tone::Gold};
  }

  void lstevents_Click() {
    const grapplemont::Event* event = Chosen();
    lblmonth.Text = std::string(MonthName(Month()));
    txtname.Text = event ? event->Name.Str()
                   : Month() == 0
                       ? std::string()
                       : world().Player().Initials + " in " + std::string(MonthName(Month()));
    cmbtype.SelectKey(event ? int(event->Type) : NewEventType(world().Player()));
    ShowButtons();
  }

  void ShowButtons() {
    const bool none = Month() == 0;
    const std::string missing = none       ? "Choose a month first."
                                : Chosen() ? ""
                                           : "There is no Event in this month.";
    for (ui::Button* button : {&cmdrename, &cmdtype, &cmddrop}) EnableUnless(*button, missing);
    EnableUnless(cmdadd, none       ? "Choose a month first."
                         : Chosen() ? "There is an Event in this month already."
                                    : "");
  }

  void cmdadd_Click() {
    const std::string name = txtname.Text.Get();
    if (desk().Objects(WhyNotPlan(world(), Month(), name, cmbtype.Key()))) return;
    PlanEvent(world(), Month(), name, cmbtype.Key());
    Return();
  }

  void cmdrename_Click() {
    const std::string name = txtname.Text.Get();
    if (desk().Objects(WhyNotEventName(world(), Month(), name))) return;
    RenameEvent(world(), Month(), name);
    Return();
  }

  void cmdtype_Click() {
    if (desk().Objects(WhyNotEventType(world().Player(), cmbtype.Key()))) return;
    ChangeEventType(world(), Month(), cmbtype.Key());
    Return();
  }

  void cmddrop_Click() {
    if (!desk().Ask("Drop Event?",
                    "Are you sure you wish to drop " + Chosen()->Name.Str() +
                        "? A month without an Event costs image.",
                    ui::Default::No))
      return;
    DropEvent(world(), Month());
    Return();
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstevents{*this,
                        "lstevents",
                        {{"Month", K::Date, 3},
                         {"Event", K::Text, 5},
                         {"Type", K::Text, 3},
                         {"Cost", K::Number, 2, "What its production costs."},
                         {"Next", K::Date, 4, "The last Sunday of the month."},
                         {"", K::Tag, 2}},
                        &frmEvent::lstevents_Click};
  ui::Label lblmonth{*this, "lblmonth"};
  ui::TextBox txtname{*this, "txtname", {}, decltype(grapplemont::Event::Name)::kWidth};
  ui::Button cmdrename{*this, "cmdrename", "Rename", &frmEvent::cmdrename_Click};
  ui::ComboBox cmbtype{*this, "cmbtype"};
  ui::Button cmdtype{*this, "cmdtype", "Change Type", &frmEvent::cmdtype_Click};
  ui::Button cmdadd{*this, "cmdadd", "Plan It", &frmEvent::cmdadd_Click};
  ui::Label lblnote{*this, "lblnote"};
  ui::Button cmddrop{*this, "cmddrop", "Drop", &frmEvent::cmddrop_Click};
};

}  // namespace

SCREEN(frmEvent)

}  // namespace grapplemont
