#include <algorithm>
#include <array>

#include "calendar/advanceday.h"
#include "calendar/incidents.h"
#include "calendar/screens/calendarscreens.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "show/holdshow.h"
#include "storylines/screens/screenpeople.h"
#include "ui/acts.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// A command of the hub: the control, its caption, the screen it opens, its group and key in the
/// side bar.
struct Command {
  const char* Control;
  const char* Caption;
  const char* Screen;
  const char* Group;
  const char* Key;
};
constexpr std::array<Command, 19> kCommands = {{
    {"cmdroster", "Roster", "frmRoster", "People", "F2"},
    {"cmdstaff", "Staff", "frmStaff", "People", "F3"},
    {"cmdtag", "Tag Teams", "frmTagTeams", "People", ""},
    {"cmdstables", "Stables", "frmStables", "People", ""},
    {"cmdbelt", "Titles", "frmBelts", "People", "F4"},
    {"cmdfeud", "Feuds", "frmFeuds", "People", "F5"},
    {"cmdtv", "Television", "frmTelevision", "Business", "F6"},
    {"cmdevents", "Events", "frmEvent", "Business", ""},
    {"cmdfed", "", "frmFed", "Business", "F7"},
    {"cmdfinance", "Finance", "frmFinance", "Business", "F8"},
    {"cmdotherwres", "Other Workers", "frmOtherWres", "World", "F9"},
    {"cmdotherstaff", "Other Staff", "frmOtherStaff", "World", ""},
    {"cmdotherfed", "Other Promotions", "frmOtherFed", "World", ""},
    {"cmdnet", "Internet", "frmInternet", "World", ""},
    {"cmdnews", "News", "frmNews", "Desk", "F10"},
    {"cmdresults", "Results", "frmResults", "Desk", ""},
    {"cmdmeeting", "Meeting", "frmTalk", "Desk", ""},
    {"cmdnotepad", "Notepad", "frmNotepad", "Desk", "Ctrl+N"},
    {"cmdoptions", "Options", "frmOptions", "Desk", "F12"},
}};

/// How many mails and how many days ahead the page shows.
constexpr int kMailsShown = 12;
constexpr int kDaysShown = 35;

class frmMainScreen : public ui::Screen {
 public:
  explicit frmMainScreen(Game& game)
      : Screen(game.Desk(), "frmMainScreen", "Today", ui::Role::Hub), game_(game) {
    CommandNamed("cmdfed").Tip = "Click for promotional matters.";
    lstmail.EmptyText = "No mail. What the world has to tell you arrives here.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    for (int i = 1; i <= commands.Count(); ++i) {
      const Command& command = kCommands[static_cast<std::size_t>(i - 1)];
      if (page.Side.empty() || page.Side.back().Title != command.Group)
        page.Side.push_back({command.Group, {}});
      page.Side.back().Commands.push_back({&commands(i), command.Key});
    }
    page.Side.push_back({"", {{&cmdquit, ""}}});
    page.Top = {&txtdate, &lblpromotion, &lblimage, &lblmoney};
    page.TopActions = {&txtname, &cmduntil, &cmdnext};
    page.Main = &cmdnext;
    page.Cancel = &cmdquit;
    page.Body = ui::Columns({ui::Group("The weeks ahead", {ui::Grow(lstahead)}).Grow(2),
                             ui::Group("Latest mail", {imgmail, ui::Grow(lstmail)}).Grow(3)});
    return page;
  }

  void Load() override { RefreshMainScreen(); }
  void Return() override { ShowTheWorld(); }

  /// Shows the world as it is, and opens what waits for the player.
  void RefreshMainScreen() {
    if (!game_.HasWorld()) return;
    ShowTheWorld();
    OpenWhatWaits();
  }

  /// Ends the day under the waiting screen and shows the next.
  void AdvanceDay(bool cancelled) {
    Waiting waiting(game_);
    grapplemont::AdvanceDay(world(), cancelled, Teller(waiting));
    waiting.Done();
    RefreshMainScreen();
  }

 private:
  ui::Button& CommandNamed(std::string_view control) {
    for (int i = 1; i <= commands.Count(); ++i)
      if (commands(i).Name() == control) return commands(i);
    throw std::logic_error("No command " + std::string(control));
  }
  World& world() { return game_.World(); }

  static StepWatcher Teller(Waiting& waiting) {
    return [&waiting](std::string_view step) { waiting.Tell(step); };
  }

  void ShowTheWorld() {
    if (!game_.HasWorld()) return;
    ShowTopBar();
    ShowMail();
    ShowMeeting();
    ShowAhead();
  }

  /// The staff meet once a week.
  void ShowMeeting() {
    ui::Button& meeting = CommandNamed("cmdmeeting");
    const std::string why = WhyNoMeeting(world());
    EnableUnless(meeting, why);
    meeting.Badge = why.empty() ? "today" : "";
  }

  void ShowTopBar() {
    const Promotion& player = world().Player();
    txtdate.Text = LongDate(world().Today());
    txtname.Text = world().Game().PlayerName.Str();
    CommandNamed("cmdfed").Text = player.Initials.Str();
    lblpromotion.Text = player.Name + " (" + std::string(SizeText(player.Size)) + ")";
    lblimage.Text = "Image " + std::to_string(player.Image) + "%";
    lblimage.Trend = player.Rank[0] == kNoEnd ? 0 : StandingScore(player) - player.Rank[0];
    lblimage.Tip = "The arrow compares it with the last month end.";
    lblmoney.Text = Dollars(player.Money);
    lblmoney.Colour = player.Money < 0 ? ui::Tone::Red : ui::Tone::Plain;
    for (ui::Button* button : {&cmdnext, &cmduntil})
      EnableUnless(*button, HasEnded(world().Game()) ? kCareerIsOver : "");
  }

  void ShowMail() {
    const int count = world().News().Count();
    imgmail.Enabled = HasNews(world());
    imgmail.Text = Counted(count, "mail");
    const int fresh = FreshMails(world());
    CommandNamed("cmdnews").Badge = fresh == 0 ? std::string() : std::to_string(fresh);
    std::vector<ui::ListBox::Row> rows;
    for (int number = count; number >= 1 && number > count - kMailsShown; --number) {
      const Mail& mail = world().News()[number];
      rows.push_back(
          {{mail.From.View(), ui::Cell(mail.Date.View(), ui::Tone::Muted), mail.Body.View()},
           number});
    }
    lstmail.Fill(std::move(rows));
  }

  void ShowAhead() {
    std::vector<ui::ListBox::Row> rows;
    std::string today;
    for (const Appointment& show : ComingShows(world(), kDaysShown)) {
      const int day = static_cast<int>((show.On - kDayZero).count());
      const bool isToday = show.On == world().Today();
      if (isToday) today += (today.empty() ? "" : ", ") + show.What;
      rows.push_back({{ui::Cell(day, isToday ? std::string("Today") : ShortDate(show.On)),
                       DayName(show.On), show.What, ui::Cell(show.Kind, ToneOf(show))},
                      static_cast<int>(rows.size()) + 1});
    }
    lstahead.Fill(std::move(rows), false);
    lblfacts.Text = HasEnded(world().Game()) ? kCareerIsOver
                    : today.empty()          ? "Nothing is due today."
                                             : "Due today: " + today + ".";
  }

  static ui::Tone ToneOf(const Appointment& show) {
    if (show.Kind == "Event") return ui::Tone::Gold;
    return show.Kind == "Television" ? ui::Tone::Plain : ui::Tone::Red;
  }

  /// What stops the game until the player has dealt with it.
  void OpenWhatWaits() {
    if (HasEnded(world().Game())) return TellTheEnd();
    if (ShowUnderWay(world()))
      return OpenUnlessOpen(ShowIsClosed(world()) ? "frmPostShow" : "frmMatchOutput");
    const int endCode = world().Game().EndCode;
    if (endCode == kStrangerWaits) return OpenUnlessOpen("frmPinky");
    if (endCode == 0 && HasIncident(world())) OpenUnlessOpen("frmIncident");
  }

  /// Once is enough: afterwards the player reads the world as he left it.
  void TellTheEnd() {
    if (endIsTold_) return;
    endIsTold_ = true;
    OpenUnlessOpen("frmTheEnd");
  }

  void OpenUnlessOpen(const char* screen) {
    const auto isThere = [&](const auto& open) { return open->Name() == screen; };
    const auto& screens = desk().Screens();
    if (std::ranges::none_of(screens, isThere)) desk().Open(screen);
  }

  void cmdnext_Click() {
    world().Session.ShowRating = 0;
    world().Session.ShowFlag = 0;
    const auto holdNone = [this] {
      return desk().Ask("No Show!",
                        "It is the end of the month, yet you have no major show planned!\n"
                        "Are you sure you wish to not hold a big event this month?",
                        ui::Default::No);
    };
    switch (DayKindToday(world(), holdNone)) {
      case DayKind::Plain:
        return AdvanceDay(false);
      case DayKind::Television:
        return desk().Open("frmBooking");
      case DayKind::Event:
        return desk().Open("frmPPVBooking");
      case DayKind::Stay:
        return;
    }
  }

  /// Plain days pass until a show is due or something waits for the player; at least one does.
  void cmduntil_Click() {
    if (NeedsThePlayer(world())) return cmdnext_Click();
    Waiting waiting(game_);
    AdvanceToNextShow(world(), Teller(waiting));
    waiting.Done();
    RefreshMainScreen();
  }

  /// The mailbox lists the same mails in the same order.
  void lstmail_Open() {
    const int row = lstmail.Selected();
    desk().Open("frmNews");
    ui::Pick(desk(), *desk().Top(), "lstnews", row);
  }

  void cmdquit_Click() {
    if (!desk().Ask("Quit?", "Are you sure you want to quit?")) return;
    game_.Commit();
    game_.CloseSlot();
    desk().CloseAll();
    desk().Open("frmGameMenu");
  }

  using K = ui::ColumnKind;
  Game& game_;
  bool endIsTold_ = false;
  ui::Label txtdate{*this, "txtdate"};
  ui::Label lblpromotion{*this, "lblpromotion"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Button txtname{*this, "txtname", "", [this] { desk().Open("frmUser"); }};
  ui::Button cmdnext{*this, "cmdnext", "Next Day", &frmMainScreen::cmdnext_Click};
  ui::Button cmduntil{*this, "cmduntil", "Until the next show", &frmMainScreen::cmduntil_Click};
  ui::Array<ui::Button> commands{
      "", static_cast<int>(kCommands.size()), [this](const std::string&, int i) {
        const Command& command = kCommands[static_cast<std::size_t>(i - 1)];
        return std::make_unique<ui::Button>(*this, command.Control, command.Caption,
                                            [this, &command] { desk().Open(command.Screen); });
      }};
  ui::Label imgmail{*this, "imgmail"};
  ui::ListBox lstahead{
      *this, "lstahead", {{"Date", K::Number}, {"Day"}, {"Show"}, {"Kind", K::Tag}}};
  ui::ListBox lstmail{
      *this, "lstmail", {{"From"}, {"Date"}, {"Mail"}}, ui::Handler{}, [this] { lstmail_Open(); }};
  ui::Button cmdquit{*this, "cmdquit", "Quit", &frmMainScreen::cmdquit_Click};
};

frmMainScreen* FindMainScreen(Game& game) {
  for (const auto& screen : game.Desk().Screens())
    if (auto* main = dynamic_cast<frmMainScreen*>(screen.get())) return main;
  return nullptr;
}

}  // namespace

SCREEN(frmMainScreen)

void ConnectCalendar(Game& game) {
  game.RefreshMainScreen = [&game] {
    if (frmMainScreen* main = FindMainScreen(game)) main->RefreshMainScreen();
  };
  game.AdvanceDay = [&game](bool cancelled) {
    if (frmMainScreen* main = FindMainScreen(game)) main->AdvanceDay(cancelled);
  };
}

}  // namespace grapplemont
