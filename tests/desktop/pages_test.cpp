#include <gtest/gtest.h>

#include <QMenu>
#include <QScrollBar>
#include <map>
#include <set>

#include "desktop/card.h"
#include "desktop/player.h"
#include "desktop/topbar.h"
#include "program/richworld.h"
#include "program/screens.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "support/homefolder.h"
#include "ui/game.h"

// What a page makes of the room that it has.

namespace grapplemont::test {
namespace {

void Settle() {
  for (int i = 0; i < 4; ++i) QApplication::processEvents();
}

/// A hub with all that the bar above a game says and offers.
class BusyHub : public ui::Screen {
 public:
  BusyHub(ui::Desk& desk, Log& log) : Screen(desk, "frmHub", "Today", ui::Role::Hub), log_(log) {
    cmdoff.Enabled = false;
    cmdoff.Tip = "Not today.";
  }
  ui::Page Layout() override {
    return {.Main = &cmdnext,
            .Top = {&txtdate, &lblname, &lblimage, &lblmoney},
            .TopActions = {&cmdoff, &cmduntil, &cmdnext}};
  }

 private:
  Log& log_;
  ui::Label txtdate{*this, "txtdate", "Wednesday, 30 September 2026"};
  ui::Label lblname{*this, "lblname", "Coastal Wrestling Alliance (International)"};
  ui::Label lblimage{*this, "lblimage", "Image 62%"};
  ui::Label lblmoney{*this, "lblmoney", "$12,284,500"};
  ui::Button cmdoff{*this, "cmdoff", "Alexandra Archer", [this] { log_.push_back("off"); }};
  ui::Button cmduntil{*this, "cmduntil", "Until the next show",
                      [this] { log_.push_back("until"); }};
  ui::Button cmdnext{*this, "cmdnext", "Next Day", [this] { log_.push_back("next"); }};
};

TEST(TheTopBar, FoldsWhatHasNoRoomIntoAMenuAndTakesTwoLinesAtMost) {
  Log notes;
  Player play;
  play.Open(std::make_unique<BusyHub>(play.Desk, notes));
  const auto lines = [&](const QSize& size, int percent) {
    play.Window.SetLook(desktop::Scheme::Dark, desktop::DesktopText() * (percent - 100) / 100);
    play.Window.resize(size);
    Settle();
    std::set<int> middles;
    for (const char* piece : {"txtdate", "lblmoney", "topmore", "cmdoff", "cmduntil", "cmdnext"})
      if (play.Sees(piece)) {
        const QWidget& seen = *play.See(piece);
        middles.insert(seen.geometry().center().y() / desktop::Px(12));
        EXPECT_LE(seen.geometry().right(), seen.parentWidget()->width()) << piece;
      }
    return middles.size();
  };
  EXPECT_EQ(lines({1920, 1080}, 100), 1U);
  EXPECT_FALSE(play.Sees("topmore"));
  EXPECT_EQ(lines({1024, 640}, 100), 1U);
  EXPECT_LE(lines({1280, 800}, 200), 2U);
  EXPECT_LE(lines({1024, 640}, 200), 2U);
  EXPECT_TRUE(play.Sees("cmdnext")) << "what moves time is always at hand";
  ASSERT_TRUE(play.Sees("topmore"));
  EXPECT_FALSE(play.Sees("cmduntil"));
  play.Click("topmore");
  const auto* menu = play.Window.findChild<QMenu*>("topmoremenu");
  ASSERT_TRUE(menu);
  ASSERT_EQ(menu->actions().size(), 2);
  EXPECT_FALSE(menu->actions()[0]->isEnabled());
  EXPECT_TRUE(menu->actions()[0]->toolTip().contains("Not today."));
  menu->actions()[1]->trigger();
  EXPECT_EQ(notes, Log({"until"}));
  play.Window.SetLook(desktop::Scheme::Dark, 0);
}

/// Three cards of words and buttons that stand beside each other where they can.
class WordyPage : public ui::Screen {
 public:
  explicit WordyPage(ui::Desk& desk) : Screen(desk, "frmWordy", "Words") {
    for (int i = 1; i <= 3; ++i) {
      std::string words;
      for (int k = 0; k < 2 * i; ++k) words += "The crowd has waited for this. ";
      lblwords(i).Text = words;
    }
  }
  ui::Page Layout() override {
    std::vector<ui::Box> cards;
    for (int i = 1; i <= 3; ++i)
      cards.push_back(
          ui::Group("Card", {ui::Columns({ui::Grow(lblwords(i)), cmdone(i), cmdtwo(i)})}).Grow());
    return {.Body = ui::Rows({ui::Columns(std::move(cards)), ui::Spacer()})};
  }

 private:
  template <class C>
  ui::Array<C> Three(const std::string& name) {
    return {name, 3, [this](const std::string& full, int) {
              return std::make_unique<C>(*this, full, "A button of some width");
            }};
  }
  ui::Array<ui::Label> lblwords = Three<ui::Label>("lblwords");
  ui::Array<ui::Button> cmdone = Three<ui::Button>("cmdone"), cmdtwo = Three<ui::Button>("cmdtwo");
};

TEST(ThePage, LooksTheSameHoweverTheWindowHasComeToItsSizeAndCutsNothing) {
  Player play;
  play.Open(std::make_unique<WordyPage>(play.Desk));
  // With such a text the cards turn amid these widths.
  play.Window.SetLook(desktop::Scheme::Dark, desktop::DesktopText() * 3 / 4);
  const auto look = [&](const QSize& size) {
    play.Window.resize(size);
    Settle();
    QStringList places;
    for (int i = 1; i <= 3; ++i) {
      const auto& words = *qobject_cast<QLabel*>(play.See("lblwords(" + QString::number(i) + ")"));
      EXPECT_GE(words.height(), words.heightForWidth(words.width())) << size.width();
      places << QString("%1x%2").arg(words.width()).arg(words.height());
    }
    return places.join(" ");
  };
  for (int height = 640; height <= 800; height += 32) {
    std::map<int, QString> narrowing;
    for (int width = 1320; width >= 1024; width -= 8) narrowing[width] = look({width, height});
    for (int width = 1024; width <= 1320; width += 8)
      EXPECT_EQ(look({width, height}), narrowing[width]) << width << " x " << height;
  }
  play.Window.SetLook(desktop::Scheme::Dark, 0);
}

TEST(ThePage, CoversTheDialogThatItWasOpenedFrom) {
  Log notes;
  Player play;
  play.Open(std::make_unique<Hub>(play.Desk, notes));
  play.Click("cmddesk");
  play.Click("cmdmore");
  play.Open(std::make_unique<PeoplePage>(play.Desk, notes));
  EXPECT_TRUE(play.Sees("lstpeople"));
  EXPECT_FALSE(play.Sees("cmdok"));
  play.Key(Qt::Key_Escape);
  EXPECT_EQ(play.Top(), "frmMore");
  EXPECT_TRUE(play.Sees("cmdok"));
  EXPECT_FALSE(play.Sees("lstpeople"));
}

/// Two rows of cards with a line on each but for the first, which has more.
class CardsPage : public ui::Screen {
 public:
  explicit CardsPage(ui::Desk& desk) : Screen(desk, "frmCards", "Cards") {
    for (int i = 1; i <= kCards; ++i) {
      lblslot(i).Text = i == 1 ? "One\nTwo\nThree\nFour" : "Empty";
      cmdexport(i).Plain = true;
    }
  }
  ui::Page Layout() override {
    std::vector<ui::Box> rows;
    for (int first = 1; first <= kCards; first += 4) {
      std::vector<ui::Box> cards;
      for (int i = first; i < first + 4; ++i)
        cards.push_back(ui::Group("", {lblslot(i), ui::Columns({cmdexport(i)})}).Grow());
      rows.push_back(ui::Columns(std::move(cards)));
    }
    rows.push_back(ui::Spacer());
    return {.Body = ui::Rows(std::move(rows))};
  }
  static constexpr int kCards = 8;
  ui::Array<ui::Label> lblslot{"lblslot", kCards, [this](const std::string& name, int) {
                                 return std::make_unique<ui::Label>(*this, name);
                               }};
  ui::Array<ui::Button> cmdexport{"cmdexport", kCards, [this](const std::string& name, int) {
                                    return std::make_unique<ui::Button>(*this, name, "Export",
                                                                        ui::Handler([] {}));
                                  }};
};

TEST(TheCards, OfOneKindAreOfOneHeightAndTheirLinksAreWhole) {
  Player play;
  auto page = std::make_unique<CardsPage>(play.Desk);
  CardsPage& shown = *page;
  play.Open(std::move(page));
  const auto heights = [&] {
    Settle();
    std::set<int> found;
    for (const QWidget* widget : play.Window.findChildren<QWidget*>())
      if (dynamic_cast<const desktop::Card*>(widget) && widget->isVisible())
        found.insert(widget->height());
    return found;
  };
  for (const int width : {1024, 1280, 1920}) {
    play.Window.resize(width, 800);
    EXPECT_EQ(heights().size(), 1U) << width;
  }
  const int before = *heights().begin();
  shown.lblslot(6).Text = "One\nTwo\nThree\nFour\nFive\nSix";
  play.Window.Sync();
  EXPECT_EQ(heights().size(), 1U);
  EXPECT_GT(*heights().begin(), before);
  const QWidget& link = *play.See("cmdexport(1)");
  EXPECT_GE(link.width() - 2 * desktop::Px(3),
            QFontMetricsF(desktop::TextFont()).horizontalAdvance("Export"));
}

TEST(TheFields, HaveTheirWhyRightBehindThemAndNoRoomForWordsThatAreClosed) {
  class Facts : public ui::Screen {
   public:
    explicit Facts(ui::Desk& desk) : Screen(desk, "frmFacts", "Facts") { txtwhy.Brief = true; }
    ui::Page Layout() override {
      return {.Body =
                  ui::Rows({ui::Group("Facts", {ui::Field("Image", lblimage, {&cmdwhy, &txtwhy}),
                                                ui::Field("The owner", lblowner)}),
                            ui::Spacer()})};
    }
    ui::Label lblimage{*this, "lblimage", "37%"};
    ui::Button cmdwhy{*this, "cmdwhy", "Why?", [this] { txtwhy.WriteLines("37: as before"); }};
    ui::Report txtwhy{*this, "txtwhy"};
    ui::Label lblowner{*this, "lblowner", "Ruth Vane"};
  };
  Player play;
  play.Open(std::make_unique<Facts>(play.Desk));
  Settle();
  const auto place = [&](const char* name) {
    const QWidget* seen = play.See(name);
    return QRect(seen->mapTo(&play.Window, QPoint()), seen->size());
  };
  EXPECT_LT(place("cmdwhy").left() - place("lblimage").right(), desktop::Px(24));
  EXPECT_EQ(place("lblimage").left(), place("lblowner").left()) << "one column of labels";
  EXPECT_FALSE(play.Sees("txtwhy"));
  EXPECT_LT(place("lblowner").top() - place("cmdwhy").bottom(), desktop::Px(24));
  play.Click("cmdwhy");
  Settle();
  EXPECT_GT(place("txtwhy").top(), place("cmdwhy").bottom());
  EXPECT_GT(place("lblowner").top(), place("txtwhy").bottom());
}

TEST(TheWorkersPage, StandsBesideTheSideBarWithAllOfItSideBySide) {
  HomeFolder home(RichWorld().Build());
  home.StartNewGame();
  home.Desk.CloseAll();
  home.Play.CloseSlot();
  const std::unique_ptr<Disk> files = RealDisk(Syncs::None);
  Player play;
  Game game(play.Desk, *files,
            {home.Path("."), [] { return Day{std::chrono::year{2026} / 3 / 17}; }, 11});
  RegisterScreens(game);
  game.OpenSlot(1);
  play.Desk.Event([&] { play.Desk.Open("frmMainScreen"); });
  play.Window.resize(1280, 800);
  int own = 0;
  for (const Worker& worker : game.World().Workers())
    if (own == 0 && WorksForPlayer(game.World(), worker)) own = worker.Uid;
  ASSERT_NE(own, 0);
  const auto place = [&](const char* name) {
    const QWidget* seen = play.See(name);
    return QRect(seen->mapTo(&play.Window, QPoint()), seen->size());
  };
  play.Desk.Event([&] { game.OpenWorker(own); });
  play.Window.Sync();
  Settle();
  ASSERT_EQ(play.Top(), "frmWorker");
  const QRect page = place("frmWorker");
  EXPECT_LT(place("cmdnotepad").right(), page.left()) << "the side bar is in sight";
  EXPECT_EQ(page.bottomRight(), QPoint(1279, 799)) << "all the room beside it is the page's";
  EXPECT_LT(place("picworker").right(), place("title").left());
  EXPECT_LT(place("lstskills").right(), place("chtmonths").left());
  EXPECT_LT(place("chtmonths").right(), place("txtwhy").left());
  EXPECT_LT(place("txtwhy").bottom(), place("lstform").top());
  EXPECT_LT(place("lstform").bottom(), place("txttitles").top());
  EXPECT_LT(place("txttitles").right(), place("lstcompany").left());
  for (const QWidget* above = play.See("lstskills"); above; above = above->parentWidget())
    if (const auto* area = qobject_cast<const QScrollArea*>(above)) {
      EXPECT_EQ(area->verticalScrollBar()->maximum(), 0) << "all of it is seen at once";
    }

  play.Click("cmdcompare");
  Settle();
  ASSERT_EQ(play.Top(), "frmCompare");
  EXPECT_EQ(place("frmCompare"), page);
  EXPECT_LT(place("lstcompare").right(), place("chtover").left());
  play.Key(Qt::Key_Escape);
  play.Key(Qt::Key_Escape);
  EXPECT_EQ(play.Top(), "frmMainScreen");
  play.Desk.CloseAll();
  play.Window.Sync();
  game.CloseSlot();
}

TEST(ACard, TakesFromWhatItsPartsWouldLikeBeforeTheyCoverEachOther) {
  class Facts : public ui::Screen {
   public:
    explicit Facts(ui::Desk& desk) : Screen(desk, "frmFacts", "Facts") {
      txtabout.Brief = true;
      txtabout.WriteLines("1\n2\n3\n4\n5\n6\n7\n8\n9\n10\n11\n12\n13\n14");
      for (int row = 1; row <= 5; ++row) lstdeals.Add({"A deal"}, row);
    }
    ui::Page Layout() override {
      return {.Body = ui::Tabs({ui::Group(
                  "One", {txtabout, ui::Group("", {lbldeals, ui::Grow(lstdeals)}).Grow()})})};
    }
    ui::Report txtabout{*this, "txtabout"};
    ui::Label lbldeals{*this, "lbldeals", "What has been agreed"};
    ui::ListBox lstdeals{*this, "lstdeals", {{"Deal"}}};
  };
  Player play;
  play.Open(std::make_unique<Facts>(play.Desk));
  for (int height = 760; height >= 640; height -= 8) {
    play.Window.resize(1024, height);
    for (int i = 0; i < 4; ++i) QApplication::processEvents();
    EXPECT_LT(play.See("txtabout")->geometry().bottom(), play.See("lbldeals")->y()) << height;
    EXPECT_LT(play.See("lbldeals")->geometry().bottom(), play.See("lstdeals")->y()) << height;
  }
}

}  // namespace
}  // namespace grapplemont::test
