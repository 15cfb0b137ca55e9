#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>
#include <set>

#include "desktop/album.h"
#include "desktop/card.h"
#include "desktop/player.h"
#include "desktop/tablegrid.h"
#include "desktop/topbar.h"
#include "program/richworld.h"
#include "program/screens.h"
#include "support/homefolder.h"
#include "ui/game.h"

// How the window looks where room is scarce, large or changes.

namespace grapplemont::test {
namespace {

/// What stands for itself and may cover nothing of its kind. The arrows of a tab bar share a line.
bool IsPiece(const QWidget& widget) {
  if (qobject_cast<const QTabBar*>(widget.parentWidget())) return false;
  return qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
         qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QLabel*>(&widget) ||
         qobject_cast<const QTextEdit*>(&widget);
}

/// Pieces of the window that overlap beside each other: "cmdback over txtname". Buttons of rows
/// that are scrolled away stand out of sight.
QStringList Overlaps(const QWidget& window) {
  QStringList found;
  for (const QWidget* holder : window.findChildren<QWidget*>()) {
    if (!holder->isVisible()) continue;
    std::vector<const QWidget*> pieces;
    for (const QWidget* part :
         holder->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
      if (part->isVisible() && IsPiece(*part) && part->x() >= 0) pieces.push_back(part);
    for (std::size_t i = 0; i < pieces.size(); ++i)
      for (std::size_t k = 0; k < i; ++k)
        if (pieces[i]->geometry().intersects(pieces[k]->geometry()))
          found << pieces[i]->objectName() + " over " + pieces[k]->objectName();
  }
  return found;
}

/// Whatever a card shows that reaches beyond its sides or below it.
QStringList OutOfCards(const QWidget& window) {
  QStringList found;
  for (QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* card = dynamic_cast<const desktop::Card*>(widget);
    if (!card || !card->isVisible()) continue;
    for (const QWidget* part :
         card->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      const QRect place = part->geometry();
      if (part->isVisible() && (place.right() > card->width() || place.bottom() > card->height()))
        found << part->objectName() + " runs out of its card";
    }
  }
  return found;
}

/// Whether a page does, which is as wide as the window lets it.
bool ScrollsAcross(const QWidget& window) {
  return std::ranges::any_of(window.findChildren<QWidget*>(), [](const QWidget* widget) {
    const auto* scroller = dynamic_cast<const desktop::Scroller*>(widget);
    return scroller && scroller->isVisible() && scroller->horizontalScrollBar()->maximum() > 0;
  });
}

/// The most height that a window has for a dialog's card.
int RoomForCard(const desktop::Window& window) {
  using desktop::Px;
  return window.height() - 2 * std::clamp((window.height() - Px(560)) / 2, Px(8), Px(40));
}

/// What is wrong with the way in which the topmost screen scrolls: its main button is not whole in
/// sight over a dialog, what scrolls stands in what scrolls, or a dialog scrolls with room to grow.
QStringList BadlyScrolled(const desktop::Window& window, ui::Screen& top) {
  QStringList found;
  const auto* view = window.findChild<desktop::ScreenView*>(QString::fromStdString(top.Name()));
  if (!view || !view->isVisible()) return found;
  const auto scrolls = [](const QWidget* area) {
    const auto* scroller = dynamic_cast<const desktop::Scroller*>(area);
    return scroller && scroller->isVisible() && scroller->verticalScrollBar()->maximum() > 0;
  };
  for (const QWidget* inner : view->findChildren<QWidget*>())
    for (const QWidget* outer = inner->parentWidget(); scrolls(inner) && outer != view;
         outer = outer->parentWidget())
      if (scrolls(outer)) found << "a scroller in a scroller";
  if (top.Is() == ui::Role::Dialog && view->parentWidget()->height() < RoomForCard(window) &&
      std::ranges::any_of(view->findChildren<QWidget*>(), scrolls))
    found << "it scrolls with room to grow";
  const ui::Button* main = top.Is() == ui::Role::Dialog ? top.Layout().Main : nullptr;
  const auto* gold = main && main->Visible
                         ? view->findChild<QWidget*>(QString::fromStdString(main->Name()))
                         : nullptr;
  if (gold && gold->visibleRegion().boundingRect() != gold->rect())
    found << gold->objectName() + " is cut";
  return found;
}

/// What stands badly in the head of the topmost page: actions in several lines, or the main one
/// cut.
QStringList BadlyHeaded(const desktop::Window& window, ui::Screen& top) {
  QStringList found;
  const auto* view = window.findChild<desktop::ScreenView*>(QString::fromStdString(top.Name()));
  if (top.Is() != ui::Role::Page || !view || !view->isVisible()) return found;
  const ui::Button* const main = view->MainNow();
  std::set<int> middles;
  for (const ui::Button* action : view->ActionsInOrder()) {
    const QWidget* button = view->WidgetOf(*action);
    if (!button) continue;
    middles.insert(button->geometry().center().y());
    if (action == main && button->visibleRegion().boundingRect() != button->rect())
      found << button->objectName() + " is cut";
  }
  if (middles.size() > 1) found << "its actions stand in several lines";
  return found;
}

/// Tables that cut what is read first in them while it has not even half of their room.
QStringList BadlyShared(const QWidget& window) {
  QStringList found;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    const auto* grid = dynamic_cast<const desktop::TableGrid*>(widget);
    if (!grid || !grid->isVisible() || !grid->isEnabled()) continue;
    const auto* model = dynamic_cast<const desktop::TableModel*>(grid->model());
    const auto& columns = model->Table().Columns();
    if (columns.empty() || model->rowCount() == 0) continue;
    const QString table = grid->parentWidget()->objectName();
    const int room = grid->viewport()->width();
    const int name = columns[static_cast<std::size_t>(model->Table().NamePlace())];
    const int usual = std::min(desktop::Px(200), room * 4 / 10);
    for (int row = 0; row < model->rowCount(); ++row)
      if (const int wanted = grid->sizeHintForIndex(model->index(row, name)).width();
          grid->columnWidth(name) < std::min(wanted, usual)) {
        found << table + " cuts " + model->index(row, name).data().toString();
        break;
      }
  }
  return found;
}

TEST(TheAlbum, ComesToTheScreensAndNothingOverlapsInASmallWindowWithLargeText) {
  HomeFolder home(RichWorld().Build());
  home.StartNewGame();
  home.Desk.CloseAll();
  home.Play.CloseSlot();
  const std::unique_ptr<Disk> files = RealDisk(Syncs::None);
  Player play;
  Game game(play.Desk, *files,
            {home.Path("."), [] { return Day{std::chrono::year{2026} / 3 / 17}; }, 11});
  RegisterScreens(game);
  play.Desk.Event([&] { play.Desk.Open("frmTitleScreen"); });
  play.Window.Sync();
  desktop::Album::Looks looks;
  looks.Sizes = {{1024, 640}, {1280, 800}};
  looks.Schemes = {desktop::Scheme::Dark};
  const auto check = [&](const std::string& screen, const QString& look) {
    const QStringList overlaps = Overlaps(play.Window);
    EXPECT_TRUE(overlaps.isEmpty())
        << screen << " " << look.toStdString() << ": " << overlaps.join(", ").toStdString();
    const QStringList shared = BadlyShared(play.Window);
    EXPECT_TRUE(shared.isEmpty()) << screen << " " << look.toStdString() << ": "
                                  << shared.join(", ").toStdString();
    const QStringList headed = BadlyHeaded(play.Window, *play.Desk.Top());
    EXPECT_TRUE(headed.isEmpty()) << screen << " " << look.toStdString() << ": "
                                  << headed.join(", ").toStdString();
    const QStringList out = OutOfCards(play.Window);
    EXPECT_TRUE(out.isEmpty()) << screen << " " << look.toStdString() << ": "
                               << out.join(", ").toStdString();
    EXPECT_FALSE(ScrollsAcross(play.Window)) << screen << " " << look.toStdString();
    const QStringList scrolled = BadlyScrolled(play.Window, *play.Desk.Top());
    EXPECT_TRUE(scrolled.isEmpty())
        << screen << " " << look.toStdString() << ": " << scrolled.join(", ").toStdString();
  };
  desktop::Album album(play.Window, play.Desk, looks, check);
  album.Fill();
  for (const char* screen :
       {"frmNewGame", "frmCredits", "frmEditor", "frmMainScreen", "frmRoster", "frmFinance",
        "frmBooking", "frmMatchOutput", "frmPostShow", "frmProspect", "frmMonth", "frmGodMode"})
    EXPECT_TRUE(album.Taken().contains(screen)) << screen;
  play.Window.SetLook(desktop::Scheme::Dark, 0);
  play.Desk.CloseAll();
  game.CloseSlot();
}

TEST(TheFields, StandBelowTheirLabelsWhereTheyHaveNoRoomBesideThem) {
  class Fields : public ui::Screen {
   public:
    explicit Fields(ui::Desk& desk) : Screen(desk, "frmFields", "Fields") {}
    ui::Page Layout() override {
      return {.Body = ui::Columns(
                  {ui::Group("One", {ui::Field("The price of a ticket in dollars", hsprice)}),
                   ui::Group("Two", {lblmore})})};
    }
    ui::ScrollBar hsprice{*this, "hsprice", 5, 100};
    ui::Label lblmore{*this, "lblmore", "There is more."};
  };
  Log notes;
  Player play;
  play.Open(std::make_unique<Hub>(play.Desk, notes));
  play.Open(std::make_unique<Fields>(play.Desk));
  play.Window.resize(1024, 640);
  for (const int percent : {100, 200}) {
    play.Window.SetLook(desktop::Scheme::Dark, desktop::DesktopText() * (percent - 100) / 100);
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    const QWidget& price = *play.See("hsprice");
    EXPECT_EQ(price.visibleRegion().boundingRect().width(), price.width()) << percent;
  }
  play.Window.SetLook(desktop::Scheme::Dark, 0);
}

/// Also on a page that was there already in letters of another size.
TEST(TheThemes, AreOfOneGeometry) {
  class Form : public ui::Screen {
   public:
    explicit Form(ui::Desk& desk) : Screen(desk, "frmForm", "Form") {
      cmbsize.Add("Small");
      lstpeople.Add({"Zane Tempest", 40, "Heel"}, 1);
    }
    ui::Page Layout() override {
      return {.Body = ui::Rows(
                  {ui::Columns({ui::Field("Size", cmbsize), ui::Spacer()}),
                   ui::Group("Price", {ui::Field("Price", hsprice), ui::Field("Size", cmbother)}),
                   ui::Group("People", {ui::Grow(lstpeople)})})};
    }
    ui::ComboBox cmbsize{*this, "cmbsize"}, cmbother{*this, "cmbother"};
    ui::ScrollBar hsprice{*this, "hsprice", 5, 100};
    ui::ListBox lstpeople{
        *this,
        "lstpeople",
        {{"Name"}, {"Over", ui::ColumnKind::Percent}, {"Side", ui::ColumnKind::Tag}}};
  };
  Log notes;
  Player play;
  play.Open(std::make_unique<Hub>(play.Desk, notes));
  play.Open(std::make_unique<Form>(play.Desk));
  const auto places = [&](desktop::Scheme scheme, int percent) {
    play.Window.SetLook(scheme, desktop::DesktopText() * (percent - 100) / 100);
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    std::vector<std::pair<std::string, QRect>> all;
    for (const QWidget* widget : play.Window.findChildren<QWidget*>())
      if (widget->isVisible())
        all.emplace_back(widget->metaObject()->className() + widget->objectName().toStdString(),
                         QRect(widget->mapTo(&play.Window, QPoint()), widget->size()));
    return all;
  };
  for (const int percent : {200, 100}) {
    const auto dark = places(desktop::Scheme::Dark, percent);
    EXPECT_EQ(dark, places(desktop::Scheme::Light, percent)) << percent;
  }
  play.Window.SetLook(desktop::Scheme::Dark, 0);
}

TEST(TheTopBar, KeepsItsFormFromDayToDay) {
  Log notes;
  Player play;
  play.Open(std::make_unique<Hub>(play.Desk, notes));
  const ui::Screen& hub = *play.Desk.Top();
  auto& date = dynamic_cast<ui::Label&>(*hub.Find("txtdate"));
  auto& image = dynamic_cast<ui::Label&>(*hub.Find("lblimage"));
  for (const QSize& size : {QSize(1024, 640), QSize(1280, 800), QSize(1920, 1080)}) {
    play.Window.resize(size);
    QApplication::processEvents();
    std::vector<QRect> places;
    for (const auto& [day, trend] :
         {std::pair("Friday, 01 May 2026", 0), std::pair("Wednesday, 30 September 2026", 4)}) {
      date.Text = day;
      image.Trend = trend;
      image.Text = trend == 0 ? "Image 8%" : "Image 100%";
      play.Window.Sync();
      QApplication::processEvents();
      for (const char* name : {"txtdate", "lblimage"}) places.push_back(play.See(name)->geometry());
    }
    EXPECT_EQ(places[0], places[2]) << size.width();
    EXPECT_EQ(places[1], places[3]) << size.width();
  }
}

TEST(TheCards, StandInALineWhereEachHasTheLettersItNeeds) {
  class Cards : public ui::Screen {
   public:
    explicit Cards(ui::Desk& desk) : Screen(desk, "frmCards", "Cards") {}
    ui::Page Layout() override {
      std::vector<ui::Box> cards;
      for (int card = 1; card <= lstcard.Count(); ++card)
        cards.push_back(ui::Group("Card", {ui::Grow(lstcard(card))}).Grow());
      return {.Body = ui::Columns(std::move(cards)).Wide(50)};
    }
    ui::Array<ui::ListBox> lstcard{"lstcard", 4, [this](const std::string& name, int) {
                                     return std::make_unique<ui::ListBox>(*this, name);
                                   }};
  };
  Player play;
  play.Open(std::make_unique<Cards>(play.Desk));
  for (const auto& [width, lines] : {std::pair(1024, 2), std::pair(2400, 1)}) {
    play.Window.resize(width, 800);
    QApplication::processEvents();
    std::set<int> tops;
    for (const char* name : {"lstcard(1)", "lstcard(2)", "lstcard(3)", "lstcard(4)"})
      tops.insert(play.See(name)->mapTo(&play.Window, QPoint()).y());
    EXPECT_EQ(std::ssize(tops), lines) << width;
  }
}

TEST(TheCards, LetAFirstOneThatWaitsGoLastBelowEachOther) {
  class Steps : public ui::Screen {
   public:
    explicit Steps(ui::Desk& desk) : Screen(desk, "frmSteps", "Steps") {}
    ui::Page Layout() override {
      return {.Body = ui::Columns({ui::Group("Steps", {ui::Grow(lststeps)}).Grow().AfterOthers(),
                                   ui::Group("Choice", {ui::Grow(lstchoice)}).Grow(3)})
                          .Wide(80)};
    }
    ui::ListBox lststeps{*this, "lststeps"}, lstchoice{*this, "lstchoice"};
  };
  Player play;
  play.Open(std::make_unique<Steps>(play.Desk));
  const auto at = [&](const char* list) { return play.See(list)->mapTo(&play.Window, QPoint()); };
  for (const bool wide : {true, false, true, false}) {
    play.Window.resize(wide ? 1600 : 1024, 800);
    QApplication::processEvents();
    const QPoint steps = at("lststeps"), choice = at("lstchoice");
    EXPECT_EQ(steps.x() < choice.x(), wide);
    EXPECT_EQ(steps.y() > choice.y(), !wide);
    EXPECT_EQ(play.See("lstchoice")->width() > 2 * play.See("lststeps")->width(), wide)
        << "the shares go along";
  }
}

TEST(TheSearch, OfATableStandsBesideWhatFiltersItWhereThereIsRoom) {
  class Mails : public ui::Screen {
   public:
    explicit Mails(ui::Desk& desk) : Screen(desk, "frmMails", "Mails") {
      for (int row = 1; row <= 20; ++row) lstmails.Add({"Somebody writes"}, row);
      cmbfrom.Add("Everybody who has ever written to anybody");
      cmbfrom.Select(1);
    }
    ui::Page Layout() override {
      return {.Body = ui::Group(
                  "", {ui::Columns({ui::Field("From", cmbfrom), chkday}), ui::Grow(lstmails)})};
    }
    ui::ComboBox cmbfrom{*this, "cmbfrom"};
    ui::CheckBox chkday{*this, "chkday", "One row a day for all the others"};
    ui::ListBox lstmails{*this, "lstmails", {{"Mail"}}};
  };
  Player play;
  play.Open(std::make_unique<Mails>(play.Desk));
  for (const auto& [width, percent, beside] : {std::tuple(1280, 100, true), {1024, 200, false}}) {
    play.Window.resize(width, 800);
    play.Window.SetLook(desktop::Scheme::Dark, desktop::DesktopText() * (percent - 100) / 100);
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    const auto top = [&](const char* name) {
      return play.See(name)->mapTo(&play.Window, QPoint()).y();
    };
    EXPECT_EQ(top("lstmails_search") < top("cmbfrom") + play.See("cmbfrom")->height(), beside);
    EXPECT_LT(top("cmbfrom"), top("lstmails"));
  }
  play.Window.SetLook(desktop::Scheme::Dark, 0);
}

TEST(TheCards, AreLeftOutWhereThePageHasNoRoomToSpare) {
  class Cards : public ui::Screen {
   public:
    explicit Cards(ui::Desk& desk) : Screen(desk, "frmCards", "Cards") {}
    ui::Page Layout() override {
      return {.Body = ui::Columns({ui::Group("First", {ui::Grow(lstfirst)}).Grow(),
                                   ui::Group("More", {ui::Grow(lstmore)}).From(200).Grow()})};
    }
    ui::ListBox lstfirst{*this, "lstfirst"}, lstmore{*this, "lstmore"};
  };
  Player play;
  play.Open(std::make_unique<Cards>(play.Desk));
  for (const auto& [width, isThere] : {std::pair(1280, false), {1920, true}, {1024, false}}) {
    play.Window.resize(width, 800);
    QApplication::processEvents();
    play.Window.Sync();
    EXPECT_EQ(play.Sees("lstmore"), isThere) << width;
    EXPECT_GT(play.See("lstfirst")->width(), width * 4 / 10);
  }
}

/// The guide stands on it beside all else, and names keys as the player has set them.
TEST(TheDesk, IsSeenWholeInTheFirstWeek) {
  HomeFolder home(RichWorld().Build());
  home.StartNewGame();
  home.Desk.CloseAll();
  home.Play.CloseSlot();
  const std::unique_ptr<Disk> files = RealDisk(Syncs::None);
  Player play;
  Game game(play.Desk, *files, {home.Path("."), [] { return kGameStart; }, 11});
  RegisterScreens(game);
  play.Window.resize(1280, 800);
  game.OpenSlot(1);
  play.Desk.Event([&] { play.Desk.Open("frmMainScreen"); });
  play.Window.Sync();
  QApplication::processEvents();
  ASSERT_TRUE(play.Sees("txtguide"));
  int scrolls = 0;
  for (const auto* scroller : play.See("frmMainScreen")->findChildren<desktop::Scroller*>())
    scrolls += scroller->verticalScrollBar()->maximum();
  EXPECT_EQ(scrolls, 0);
  const auto guide = [&] { return play.Desk.Top()->Find("txtguide")->Text.Get(); };
  EXPECT_NE(guide().find("Open Roster (F2)."), std::string::npos) << guide();
  play.Window.Kept().SetKey({"cmdroster", "Roster", "Side bar", "F2"}, "Ctrl+R");
  play.Key(Qt::Key_R, Qt::ControlModifier);
  ASSERT_EQ(play.Top(), "frmRoster");
  game.World().Guides()[1].Done[0] = false;
  play.Key(Qt::Key_Escape);
  EXPECT_NE(guide().find("Open Roster (Ctrl+R)."), std::string::npos) << guide();
  play.Desk.CloseAll();
  play.Window.Sync();
  game.CloseSlot();
}

TEST(ALargeDialog, TakesTheRoomOfAUsualWindow) {
  class Lists : public ui::Screen {
   public:
    Lists(ui::Desk& desk, ui::Role role, const std::string& list)
        : Screen(desk, "frm" + list, "Lists", role), lstall(*this, list) {}
    ui::Page Layout() override { return {.Large = true, .Body = ui::Rows({ui::Grow(lstall)})}; }
    ui::ListBox lstall;
  };
  Player play;
  play.Open(std::make_unique<Lists>(play.Desk, ui::Role::Page, "lstpage"));
  play.Open(std::make_unique<Lists>(play.Desk, ui::Role::Dialog, "lstdialog"));
  for (const auto& [size, most] : {std::pair(QSize(1280, 800), QSize(1280, 800)),
                                   std::pair(QSize(2560, 1440), QSize(1480, 960))}) {
    play.Window.resize(size);
    QApplication::processEvents();
    const QSize list = play.See("lstdialog")->size();
    EXPECT_GT(list.width(), most.width() - 200);
    EXPECT_GT(list.height(), most.height() - 320);
    EXPECT_LE(list.width(), most.width());
    EXPECT_LE(list.height(), most.height());
  }
}

/// Steps beside their numbers, tabs, and prose beside drop-downs, in letters twice as large.
TEST(TheWords, AreNeverCutInTheirMiddle) {
  class Wordy : public ui::Screen {
   public:
    explicit Wordy(ui::Desk& desk) : Screen(desk, "frmWordy", "Words") {
      for (ui::ComboBox* choice : {&cmbyear, &cmbsection}) choice->Add("Everything that there is");
      rptstory.Write("Neon Tide Wrestling is National.");
    }
    ui::Page Layout() override {
      const std::vector<ui::Box> steps{ui::Columns({cmdone, ui::Grow(lblone)}),
                                       ui::Columns({cmdtwo, ui::Grow(lbltwo)})};
      return {.Body = ui::Rows(
                  {ui::Columns({ui::Group("Steps", steps).Grow(1),
                                ui::Tabs({ui::Group("Overview", {lblfirst}),
                                          ui::Group("Camp and territory", {lblsecond}),
                                          ui::Group("Championships", {lblthird})})
                                    .Grow(6)}),
                   ui::Group("", {ui::Columns({ui::Rows({ui::Field("Year", cmbyear),
                                                         ui::Field("Section", cmbsection)}),
                                               ui::Grow(rptstory)})})})};
    }
    ui::Button cmdone{*this, "cmdone", "1"}, cmdtwo{*this, "cmdtwo", "2"};
    ui::Label lblone{*this, "lblone", "Segment Type = Match"},
        lbltwo{*this, "lbltwo", "Select Participants"}, lblfirst{*this, "lblfirst", "One"},
        lblsecond{*this, "lblsecond", "Two"}, lblthird{*this, "lblthird", "Three"};
    ui::ComboBox cmbyear{*this, "cmbyear"}, cmbsection{*this, "cmbsection"};
    ui::Report rptstory{*this, "rptstory"};
  };
  Log notes;
  Player play;
  play.Open(std::make_unique<Hub>(play.Desk, notes));
  play.Open(std::make_unique<Wordy>(play.Desk));
  play.Window.resize(1024, 640);
  for (const int percent : {100, 125, 150, 200}) {
    SCOPED_TRACE(percent);
    play.Window.SetLook(desktop::Scheme::Dark, desktop::DesktopText() * (percent - 100) / 100);
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    const QWidget& step = *play.See("lbltwo");
    EXPECT_GE(step.width(), step.fontMetrics().horizontalAdvance("Participants"));
    const auto& bar = *play.See("frmWordy")->findChild<QTabBar*>();
    for (int tab = 0; tab < bar.count(); ++tab)
      if (bar.tabRect(tab).width() < bar.fontMetrics().horizontalAdvance(bar.tabText(tab))) {
        EXPECT_GE(bar.tabRect(tab).width(), desktop::Px(100)) << "enough to tell which it is";
        EXPECT_EQ(bar.elideMode(), Qt::ElideRight);
        EXPECT_EQ(bar.tabToolTip(tab), bar.tabText(tab));
      }
    const auto& story = *qobject_cast<QTextEdit*>(play.See("rptstory"));
    EXPECT_GE(story.viewport()->width(),
              QFontMetrics(desktop::ProseFont()).horizontalAdvance("Wrestling"));
  }
  play.Window.SetLook(desktop::Scheme::Dark, 0);
}

TEST(TheLines, OfProseEndWhereTheyCanBeRead) {
  class Prose : public ui::Screen {
   public:
    explicit Prose(ui::Desk& desk) : Screen(desk, "frmProse", "Prose") {
      std::string words;
      for (int i = 0; i < 60; ++i) words += "The crowd has waited for this. ";
      rptstory.Write(words);
    }
    ui::Page Layout() override {
      return {.Body = ui::Rows({lblline, lbllines, ui::Grow(rptstory)})};
    }
    ui::Label lblline{*this, "lblline",
                      "You must have a minimum of 4 matches, and a minimum of 8 segments overall."},
        lbllines{
            *this, "lbllines",
            "You must have a minimum of 4 matches, and a minimum of 8 segments overall, before "
            "the doors of the hall may be opened to the public."};
    ui::Report rptstory{*this, "rptstory"};
  };
  Player play;
  play.Window.resize(2560, 1440);
  play.Open(std::make_unique<Prose>(play.Desk));
  QApplication::processEvents();
  const auto& story = *qobject_cast<QTextEdit*>(play.See("rptstory"));
  const QString letters(85, 'n');
  EXPECT_LT(story.document()->size().width(),
            QFontMetrics(desktop::ProseFont()).horizontalAdvance(letters));
  EXPECT_GT(story.width(), 2000) << "the page has the room";
  const int line = play.See("lblline")->fontMetrics().height();
  EXPECT_LT(play.See("lblline")->height(), 2 * line) << "no word stands alone below it";
  EXPECT_GE(play.See("lbllines")->height(), 2 * line);
}

}  // namespace
}  // namespace grapplemont::test
