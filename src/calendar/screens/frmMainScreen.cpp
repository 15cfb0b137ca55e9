#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>

#include "calendar/advanceday.h"
#include "calendar/deskwork.h"
#include "calendar/guide.h"
#include "calendar/incidents.h"
#include "calendar/passing.h"
#include "calendar/screens/calendarscreens.h"
#include "calendar/screens/screendesk.h"
#include "calendar/screens/screenguide.h"
#include "calendar/screens/screenmail.h"
#include "calendar/screens/screenrooms.h"
#include "calendar/screens/screentiles.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/notes.h"
#include "records/store/slot.h"
#include "show/holdshow.h"
#include "show/nightbook.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// How many days ahead the page shows, and how many letters wide a card of them is at least.
constexpr int kDaysShown = 70;
constexpr int kDeskLetters = 50;

ui::Tone ToneOf(const Appointment& show) {
  if (show.Kind == "Event") return ui::Tone::Gold;
  return show.Kind == "Television" ? ui::Tone::Plain : ui::Tone::Red;
}

class frmMainScreen : public ui::Screen {
 public:
  explicit frmMainScreen(Game& game)
      : Screen(game.Desk(), "frmMainScreen", "Today", ui::Role::Hub), game_(game) {
    CommandNamed("cmdfed").Tip = "Click for promotional matters.";
    txtname.Tip = "Your career: jobs, reputation and the owner's wishes.";
    lstahead.EmptyText =
        "No show in sight. Find a network on the Television page, or plan an Event on the Events "
        "page.";
    lstahead.Room = 5;
    lstahead.Least = 2;  // so that all of the page is seen in a window of the usual size
    lbltonight.Colour = ui::Tone::Gold;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    for (int i = 1; i <= commands.Count(); ++i) {
      const HubCommand& command = kHubCommands[static_cast<std::size_t>(i - 1)];
      if (page.Side.empty() || page.Side.back().Title != command.Group)
        page.Side.push_back({command.Group, {}});
      page.Side.back().Commands.push_back(
          {&commands(i), command.Key, command.Into, command.Also, command.Pages});
    }
    page.Side.push_back({"", {{&cmdquit, "", ui::Reach::Away}}});
    page.Top = {&txtdate, &lblpromotion, &lblimage, &lblmoney};
    page.TopActions = {&txtname, &cmduntil, &cmdnext};
    page.Actions = {&cmdfutures, &cmdmonth, &cmdmorning, &cmdmeet};
    page.Main = &cmdnext;
    page.First = &cmdbook;
    page.Cancel = &cmdquit;
    // What is due stands first: in a small window the rest lies below its edge.
    page.Body = ui::Rows({guide_.Layout(), Due().Grow(5), figures_.Layout(),
                          cards_.People().Grow(2), cards_.Standing().Grow(2)});
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

  /// What stands beside and above every page.
  void ShowBars(const std::vector<FileChange>& changes) {
    if (!game_.HasWorld()) return;
    ShowTopBar();
    const auto isMail = [this](const FileChange& change) {
      return change.Name == world().News().File() || change.Name == world().ReadMails().File();
    };
    if (std::ranges::any_of(changes, isMail)) ShowMail();
  }

  void Note(const std::string& line) {
    done_ += " " + line;
    ShowTheWorld();
  }

  /// Ends the day under the waiting screen and shows the next, after a show what it has done.
  void AdvanceDay(bool cancelled) {
    done_.clear();
    const Day day = world().Today();
    const int promotion = world().PlayerUid();
    Waiting waiting(game_);
    grapplemont::AdvanceDay(world(), cancelled, Teller(waiting));
    waiting.Done();
    if (!cancelled && HasNight(world(), day, promotion)) desk().Open("frmMorning");
    RefreshMainScreen();
  }

 private:
  /// What is to be done and to be read.
  ui::Box Due() {
    return ui::Columns({ui::Group("The weeks ahead", {ui::Columns({ui::Grow(lbltonight), cmdbook}),
                                                      ui::Grow(lstahead)})
                            .Grow(),
                        mail_.Layout().Grow()})
        .Wide(kDeskLetters);
  }

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
    guide_.Show();
    figures_.Show();
    ShowMail();
    ShowMeeting();
    ShowAhead();
    cards_.Show();
  }

  /// The staff meet once a week.
  void ShowMeeting() {
    ui::Button& meeting = CommandNamed("cmdmeeting");
    const std::string why = WhyNoMeeting(world());
    EnableUnless(meeting, why);
    meeting.Badge = why.empty() ? "today" : "";
    cmdmeet.Visible = why.empty();
  }

  void ShowTopBar() {
    const Promotion& player = world().Player();
    txtdate.Text = LongDate(world().Today());
    txtname.Text = world().Game().PlayerName.Str();
    CommandNamed("cmdfed").Text = player.Initials.Str();
    lblpromotion.Text = player.Name + " (" + std::string(SizeText(player.Size)) + ")";
    lblimage.Text = "Image " + std::to_string(player.Image) + "%";
    lblimage.Trend = int(MomentumSteps(world()));
    lblimage.Tip =
        "The arrow is the momentum: size and image against the last month end. Why? beside it on "
        "the promotion's page tells each step.";
    lblmoney.Text = Dollars(player.Money);
    lblmoney.Colour = player.Money < 0 ? ui::Tone::Red : ui::Tone::Plain;
    const std::pair<ui::Button*, const char*> moves[] = {
        {&cmdnext, "Ends the day; on the day of a show it opens the sheet first."},
        {&cmduntil, "Lets plain days pass, and stops where you are needed."}};
    for (const auto& [button, does] : moves) {
      EnableUnless(*button, HasEnded(world().Game()) ? kCareerIsOver : "");
      if (button->Enabled) button->Tip = does;
    }
  }

  void ShowMail() {
    const int unread = mail_.Show();
    CommandNamed("cmdnews").Badge = unread == 0 ? std::string() : std::to_string(unread);
  }

  void ShowAhead() {
    std::vector<ui::ListBox::Row> rows;
    std::string today;
    for (const Appointment& show : ComingShows(world(), kDaysShown)) {
      const int day = static_cast<int>((show.On - kDayZero).count());
      const bool isToday = show.On == world().Today();
      if (isToday) today += (today.empty() ? "" : ", ") + show.What;
      const std::string booked = BookedText(world(), show);
      rows.push_back({{ui::Cell(day, isToday ? std::string("Today") : ShortDate(show.On)),
                       {std::atof(booked.c_str()), booked.substr(0, booked.find(','))},
                       show.What,
                       ui::Cell(show.Kind, ToneOf(show)),
                       {double(DayNumber(DayName(show.On))), std::string(DayName(show.On))}},
                      static_cast<int>(rows.size()) + 1});
    }
    lstahead.Fill(std::move(rows), false);
    const bool isOver = HasEnded(world().Game());
    const bool isDue = !isOver && HasShowTonight();
    cmdbook.Visible = lbltonight.Visible = isDue;
    lbltonight.Text = TonightText(world());
    cmdmorning.Visible = !isOver && HasAnyNight(world());
    cmdfutures.Visible = !isOver;
    cmdmonth.Visible = !isOver && HasSmallMonth(world().Player());
    const int ventures = VenturesLeft(world());
    cmdmonth.Badge = ventures == 0 ? std::string() : std::to_string(ventures);
    cmdmonth.Tip = Counted(ventures, "venture") + " of this month still open.";
    if (WhyNoMeeting(world()).empty())
      today += (today.empty() ? "" : ", ") + std::string("the staff meeting");
    lblfacts.Text = isOver
                        ? WaysAfterTheEnd(game_)
                        : (today.empty() ? "Nothing is due today." : "Due today: " + today + ".") +
                              " " + PeopleText(world()) + done_;
  }

  /// A show that has a sheet.
  bool HasShowTonight() {
    const auto shows = ComingShows(world(), 1);
    return !shows.empty() && shows.front().Kind != "No Event";
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

  /// Once is enough: afterwards the player reads the world as they left it.
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
    const Passing passing(world());
    Waiting waiting(game_);
    AdvanceToNextShow(world(), Teller(waiting));
    waiting.Done();
    const std::string passed = passing.Text(world());
    done_ = passed.empty() ? "" : " " + passed;
    RefreshMainScreen();
  }

  /// Today's show opens its sheet, a later one what is drafted.
  void lstahead_Open() {
    const auto shows = ComingShows(world(), kDaysShown);
    const auto place = static_cast<std::size_t>(lstahead.Key());
    if (place < 1 || place > shows.size() || HasEnded(world().Game())) return;
    if (shows[place - 1].On == world().Today()) return cmdnext_Click();
    desk().Open("frmDrafts");
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
  std::string done_;  // what was decided backstage today, or passed on the way to it
  ui::Label txtdate{*this, "txtdate"};
  ui::Label lblpromotion{*this, "lblpromotion"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Button txtname{*this, "txtname", "", [this] { desk().Open("frmUser"); }};
  ui::Button cmdnext{*this, "cmdnext", "Next Day", &frmMainScreen::cmdnext_Click};
  ui::Button cmduntil{*this, "cmduntil", "Until the next show", &frmMainScreen::cmduntil_Click};
  ui::Array<ui::Button> commands{
      "", static_cast<int>(kHubCommands.size()), [this](const std::string&, int i) {
        const HubCommand& command = kHubCommands[static_cast<std::size_t>(i - 1)];
        return std::make_unique<ui::Button>(*this, command.Control, command.Caption,
                                            [this, &command] { desk().Open(ScreenOf(command)); });
      }};
  GuideCard guide_{*this, game_, [this] { cmdnext_Click(); }};
  DeskFigures figures_{*this, game_};
  ui::ListBox lstahead{*this,
                       "lstahead",
                       {{"Date", K::Number},
                        {"Booked", K::Date, 0,  // by its number, and as seldom cut
                         "Segments that are booked, of the least that the show needs."},
                        {"Show"},
                        {"Kind", K::Tag},
                        {"Day", K::Date}},
                       ui::Handler{},
                       [this] { lstahead_Open(); }};
  DeskMail mail_{*this, game_};
  ui::Label lbltonight{*this, "lbltonight"};
  ui::Button cmdbook{*this, "cmdbook", "Book", &frmMainScreen::cmdnext_Click};
  ui::Button cmdmorning{*this, "cmdmorning", "Morning After",
                        [this] { desk().Open("frmMorning"); }};
  ui::Button cmdmeet{*this, "cmdmeet", "Meeting", [this] { desk().Open("frmTalk"); }};
  ui::Button cmdfutures{*this, "cmdfutures", "A Hundred Futures",
                        [this] { desk().Open("frmFutures"); }};
  /// Small promotions have months of their own.
  ui::Button cmdmonth{*this, "cmdmonth", "This Month", [this] { desk().Open("frmMonth"); }};
  DeskCards cards_{*this, game_};
  ui::Button cmdquit{*this, "cmdquit", "Quit", &frmMainScreen::cmdquit_Click};
};

frmMainScreen* FindMainScreen(Game& game) {
  for (const auto& screen : game.Desk().Screens())
    if (auto* main = dynamic_cast<frmMainScreen*>(screen.get())) return main;
  return nullptr;
}

/// What pages that are open already say of the guide, once a step has been done.
void RenewGuideLines(Game& game) {
  for (const auto& screen : game.Desk().Screens()) {
    auto* line = dynamic_cast<ui::Label*>(screen->Find("lblguide"));
    if (!line) continue;
    line->Text = WithKeys(game.Desk(), GuideOnPage(game.World(), screen->Name(), 0));
    line->Visible = !line->Text->empty();
  }
}

}  // namespace

SCREEN(frmMainScreen)

void ConnectCalendar(Game& game) {
  const auto justDone = std::make_shared<int>();  // as long as its page is looked at
  game.Watch = [&game, justDone] {
    std::vector<std::string_view> screens;
    for (const auto& screen : game.Desk().Screens()) screens.push_back(screen->Name());
    *justDone = WatchGuide(game.World(), screens);
    if (*justDone > 0) RenewGuideLines(game);
  };
  game.NoteOn = [&game, justDone](std::string_view screen) {
    return WithKeys(game.Desk(), GuideOnPage(game.World(), screen, *justDone));
  };
  game.Kept = [&game](const std::vector<FileChange>& changes) {
    // What was kept may be a world that cannot be played.
    const World& world = game.World();
    if (!world.HasGame() || !world.FindPromotion(world.PlayerUid())) return;
    if (frmMainScreen* main = FindMainScreen(game)) main->ShowBars(changes);
  };
  game.RefreshMainScreen = [&game] {
    if (frmMainScreen* main = FindMainScreen(game)) main->RefreshMainScreen();
  };
  game.AdvanceDay = [&game](bool cancelled) {
    if (frmMainScreen* main = FindMainScreen(game)) main->AdvanceDay(cancelled);
  };
}

void NoteOnMainScreen(Game& game, const std::string& line) {
  if (frmMainScreen* main = FindMainScreen(game)) main->Note(line);
}

}  // namespace grapplemont
