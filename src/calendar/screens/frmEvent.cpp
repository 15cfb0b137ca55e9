#include "business/past.h"
#include "calendar/events.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "show/attendance.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// How many Events the line of ratings goes back.
constexpr std::size_t kEventsShown = 24;

using EventCell = ui::ColumnKind;
const CellColumns<HistoryEntry> kHeldTable = {
    {{"Date", EventCell::Date, 3}, [](const HistoryEntry& held) { return DayCell(held.On); }},
    {{"Event", EventCell::Text, 4},
     [](const HistoryEntry& held) {
       return held.CalledOff ? ui::Cell(held.Name + ", called off", ui::Tone::Red)
                             : ui::Cell(held.Name.View());
     }},
    {{"Rating", EventCell::Percent, 3},
     [](const HistoryEntry& held) {
       return held.CalledOff ? ui::Cell("") : ui::Cell(int(held.Rating));
     }},
    {{"Gate", EventCell::Number, 2, "How many people came."},
     [](const HistoryEntry& held) { return CountCell(held.Attendance); }},
    {{"Buy rate", EventCell::Number, 2},
     [](const HistoryEntry& held) {
       return ui::Cell(double(int(held.Viewers)), RatingText(held.Viewers));
     }},
    {{"Made", EventCell::Number, 2, "What it brought, less what it cost."},
     [](const HistoryEntry& held) {
       const long long made = static_cast<long long>(int(held.Income)) - int(held.Costs);
       return ui::Cell(static_cast<double>(made), Dollars(made),
                       made < 0 ? ui::Tone::Red : ui::Tone::Plain);
     }}};

/// The player's year, month by month: which Event ends it, and how big it is.
class frmEvent : public GameScreen {
 public:
  explicit frmEvent(Game& game) : GameScreen(game, "frmEvent", "Events", {.Manages = true}) {
    lstevents.Room = 12;
    lstheld.EmptyText = "No Event of this month has been held yet. What comes of it is kept here.";
    txtname.Hint = "Name of the Event";
    for (const Term& type : kEventTypes)
      cmbtype.Add(std::string(type.Says) + ", " + Dollars(EventProductionCost(type.Code)),
                  type.Code);
    lblnote.Text =
        "A type stays until your image moves: then all Events take the type that fits your size.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Group("The year", {ui::Grow(lstevents)}).Grow(3),
             ui::Rows(
                 {ui::Group(
                      "The month's Event",
                      {lblmonth, ui::Columns({ui::Field("Name", txtname).Grow(), cmdrename}),
                       ui::Columns({ui::Field("Type", cmbtype).Grow(), cmdtype}), cmdadd, lblnote}),
                  ui::Group("Held in this month", {ui::Grow(lstheld)}).Grow(3),
                  ui::Group("Ratings of your Events", {ui::Grow(chtratings)}).Grow(2)})
                 .Grow(2)}),
        &lblfacts, {&cmddrop});
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
    ShowRatings();
  }

  /// Of those that were held, the oldest first.
  void ShowRatings() {
    auto events = EventsOf(world(), world().PlayerUid());
    std::erase_if(events, [](const HistoryEntry* event) { return bool(event->CalledOff); });
    if (events.size() > kEventsShown) events.resize(kEventsShown);
    std::vector<double> ratings;
    std::vector<Day> days;
    for (auto event = events.rbegin(); event != events.rend(); ++event) {
      ratings.push_back((*event)->Rating);
      days.push_back((*event)->On);
    }
    chtratings.Captions = DayCaptions(days);
    chtratings.Lines = std::vector<ui::Chart::Series>{{"", std::move(ratings), ui::Tone::Gold}};
  }

  ui::ListBox::Row RowOf(int month) {
    const Day day = NextEventDay(world(), month);
    const ui::Cell name{double(month), std::string(MonthName(month))};
    const ui::Cell date{static_cast<double>((day - kDayZero).count()), DayCaptions({day}).front()};
    const grapplemont::Event* event = PlayerEvent(world(), month);
    if (!event)
      return {
          {name, ui::Cell("Nothing planned", ui::Tone::Muted), date, MarkOf(month, false), "", ""},
          month};
    const int cost = EventProductionCost(event->Type);
    return {{name, event->Name.View(), date, MarkOf(month, true), Says(kEventTypes, event->Type),
             ui::Cell(cost, Dollars(cost))},
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
    lblmonth.Text = Month() == 0 ? std::string() : LongDate(NextEventDay(world(), Month()));
    txtname.Text = event ? event->Name.Str()
                   : Month() == 0
                       ? std::string()
                       : world().Player().Initials + " in " + std::string(MonthName(Month()));
    cmbtype.SelectKey(event ? int(event->Type) : NewEventType(world().Player()));
    FillPlaces(lstheld, kHeldTable,
               Month() == 0 ? std::vector<const HistoryEntry*>()
                            : EventsOf(world(), world().PlayerUid(), Month()));
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
                         {"Next", K::Date, 2, "The last Sunday of the month."},
                         {"", K::Tag, 2},
                         {"Type", K::Text, 3},
                         {"Cost", K::Number, 2, "What its production costs."}},
                        &frmEvent::lstevents_Click};
  ui::Label lblmonth{*this, "lblmonth"};
  ui::TextBox txtname{*this, "txtname", {}, decltype(grapplemont::Event::Name)::kWidth};
  ui::Button cmdrename{*this, "cmdrename", "Rename", &frmEvent::cmdrename_Click};
  ui::ComboBox cmbtype{*this, "cmbtype"};
  ui::Button cmdtype{*this, "cmdtype", "Change Type", &frmEvent::cmdtype_Click};
  ui::Button cmdadd{*this, "cmdadd", "Plan It", &frmEvent::cmdadd_Click};
  ui::Label lblnote{*this, "lblnote"};
  ui::ListBox lstheld{*this, "lstheld", HeadingsOf(kHeldTable)};
  ui::Chart chtratings{*this, "chtratings"};
  ui::Button cmddrop{*this, "cmddrop", "Drop", &frmEvent::cmddrop_Click};
};

}  // namespace

SCREEN(frmEvent)

}  // namespace grapplemont
