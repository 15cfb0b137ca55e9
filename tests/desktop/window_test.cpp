#include <gtest/gtest.h>

#include <QMenu>

#include "desktop/player.h"
#include "desktop/sidebar.h"

// The window as a whole: side bar, keys, boxes, dialogs, its end.

namespace grapplemont::test {
namespace {

class WaitingScreen : public ui::Screen {
 public:
  explicit WaitingScreen(ui::Desk& desk) : Screen(desk, "frmWaits", "Wait", ui::Role::Wait) {}
  ui::Page Layout() override { return {}; }

 private:
  ui::Picture imgwait{*this, "imgwait", "VXM_load1.jpg"};
  ui::Label lblstep{*this, "lblstep", "Step"};
};

class TheWindow : public testing::Test {
 protected:
  TheWindow() { Play.Open(std::make_unique<Hub>(Play.Desk, Notes)); }
  ~TheWindow() override { EXPECT_TRUE(Play.EveryBoxCame()); }

  DeskPage& OpenDesk() {
    Play.Click("cmddesk");
    Notes.clear();
    return dynamic_cast<DeskPage&>(*Play.Desk.Top());
  }
  bool IsNow(const QString& command) {
    return dynamic_cast<desktop::SideLine*>(Play.See(command))->IsNow();
  }
  bool BearsEnter(const QString& button) {
    return dynamic_cast<desktop::PushButton*>(Play.See(button))->ShowsEnter();
  }

  Log Notes;
  Player Play;
};

TEST_F(TheWindow, OpensPagesFromTheSideBarAndLeavesThemForOthers) {
  EXPECT_TRUE(BearsEnter("cmdnext"));
  Play.Click("cmdpeople");
  EXPECT_EQ(Play.Top(), "frmPeople");
  EXPECT_TRUE(IsNow("cmdpeople"));
  EXPECT_FALSE(IsNow("cmddesk"));
  EXPECT_TRUE(BearsEnter("cmdnext")) << "the page has no main action of its own";
  Play.Click("cmddesk");
  EXPECT_EQ(Play.Top(), "frmDesk");
  EXPECT_EQ(Play.Desk.Screens().size(), 2U);
  EXPECT_EQ(Notes, Log({"hub again"}));
  EXPECT_TRUE(IsNow("cmddesk"));
  EXPECT_TRUE(BearsEnter("cmddone"));
  EXPECT_FALSE(BearsEnter("cmdnext"));
  EXPECT_FALSE(Play.Sees("lstpeople"));
  Play.Key(Qt::Key_F2);
  EXPECT_EQ(Play.Top(), "frmPeople");
  Play.Key(Qt::Key_F5);
  EXPECT_EQ(Play.Top(), "frmPeople") << "a disabled command has no key";
}

TEST_F(TheWindow, StaysOnAPageThatDoesNotWantToBeLeft) {
  OpenDesk().AsksBeforeItGoes = true;
  Play.AtNextBox([&] {
    EXPECT_EQ(Play.TextOf("boxtitle"), "Leave?");
    Play.Key(Qt::Key_Return);  // the default is No
  });
  Play.Click("cmdpeople");
  EXPECT_EQ(Play.Top(), "frmDesk");
  Play.AtNextBox([&] { Play.Click("boxyes"); });
  Play.Click("cmdnext");
  EXPECT_EQ(Play.Top(), "frmHub");
  EXPECT_EQ(Notes.back(), "next day") << "the top bar leaves pages too";
}

TEST_F(TheWindow, TakesEnterForMainAndEscapeForCancel) {
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes, Log({"next day"}));
  OpenDesk();
  EXPECT_EQ(Play.FocusName(), "txtname");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes, Log({"done"}));
  for (int i = 0; i < 40 && Play.FocusName() != "cmdmore"; ++i) Play.Key(Qt::Key_Tab);
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes, Log({"done", "done"})) << "whatever has the keyboard";
  Play.Key(Qt::Key_Space);
  ASSERT_EQ(Play.Top(), "frmMore");
  Play.Key(Qt::Key_Escape);
  EXPECT_EQ(Play.FocusName(), "cmdmore");
  Play.Key(Qt::Key_L, Qt::ControlModifier);
  EXPECT_EQ(Play.FocusName(), "cmdmore") << "though all was drawn again";
  Play.Key(Qt::Key_Escape);
  EXPECT_EQ(Play.Top(), "frmHub");
  Play.Key(Qt::Key_Escape);
  EXPECT_EQ(Play.Top(), "frmHub") << "nothing leads back from the hub";
}

TEST_F(TheWindow, TakesNothingThatWasTypedWhileAPageWasLongInComing) {
  constexpr int kLong = 300;  // milliseconds, more than anybody calls at once
  Play.Window.Act([&] {
    Play.Desk.Open(std::make_unique<DeskPage>(Play.Desk, Notes));
    QApplication::postEvent(&Play.Window,
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
    QTest::qSleep(kLong);
    return std::string();
  });
  QApplication::processEvents();
  EXPECT_EQ(Play.Top(), "frmDesk");
  EXPECT_EQ(Notes, Log()) << "it was meant for the page before";
}

TEST_F(TheWindow, SaysWhyEnterDoesNothing) {
  DeskPage& page = OpenDesk();
  page.cmddone.Enabled = false;
  page.cmddone.Tip = "Nothing is chosen yet.";
  Play.Window.Sync();
  EXPECT_TRUE(BearsEnter("cmddone"));
  EXPECT_FALSE(BearsEnter("cmdnext")) << "a name that is finished with Enter never ends the day";
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.TextOf("hint"), "Nothing is chosen yet.");
  const QWidget& done = *Play.See("cmddone");
  EXPECT_NEAR(Play.See("hint")->mapTo(&Play.Window, QPoint()).y(),
              done.mapTo(&Play.Window, QPoint(0, done.height())).y(), 10)
      << "it stands below what refused";
  EXPECT_EQ(Notes, Log());
  Play.See("cmdask")->setFocus(Qt::TabFocusReason);
  Play.Window.Sync();
  EXPECT_TRUE(BearsEnter("cmddone")) << "where nothing is typed, too";
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.Top(), "frmDesk") << "it leads nowhere else";
}

TEST_F(TheWindow, OpensRoomsAboveAPageThatStaysAndComesBackToIt) {
  auto page = std::make_unique<DeskPage>(Play.Desk, Notes);
  page->WhyItStays = "First things first.";
  Play.Open(std::move(page));
  Play.See("cmdask")->setFocus(Qt::TabFocusReason);
  for (const char* command : {"cmddesk", "cmdnext"}) {
    EXPECT_FALSE(Play.See(command)->isEnabled()) << command;
    EXPECT_TRUE(Play.See(command)->toolTip().contains("First things first.")) << command;
  }
  Play.Key(Qt::Key_F4);
  EXPECT_EQ(Play.TextOf("hint"), "First things first.");
  EXPECT_EQ(Play.Desk.Screens().size(), 2U);
  Play.Key(Qt::Key_F2);
  ASSERT_EQ(Play.Top(), "frmPeople");
  EXPECT_FALSE(Play.Sees("hint")) << "it was said of the page before";
  EXPECT_EQ(Play.Desk.Screens().size(), 3U);
  EXPECT_TRUE(IsNow("cmdpeople"));
  EXPECT_FALSE(BearsEnter("cmdnext"));
  EXPECT_TRUE(BearsEnter("cmdback")) << "the day cannot end from here";
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.Top(), "frmDesk");
  Play.Key(Qt::Key_F2);
  Play.Key(Qt::Key_F2);
  EXPECT_EQ(Play.Desk.Screens().size(), 3U) << "one room at a time";
  Play.Key(Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(Play.See("cmdnext")->isEnabled()) << "in other colours, too";
  EXPECT_FALSE(BearsEnter("cmdnext"));
  Play.Key(Qt::Key_Escape);
  EXPECT_EQ(Play.Top(), "frmDesk");
  EXPECT_EQ(Play.FocusName(), "cmdask");
  EXPECT_EQ(Notes, Log({"page again", "page again", "page again"}));
  Play.Click("cmdback");
  EXPECT_TRUE(Play.See("cmddesk")->isEnabled());
}

TEST_F(TheWindow, HandsEnterOnWhenMainIsGone) {
  auto dialog = std::make_unique<Dialog>(Play.Desk, Notes);
  Dialog& shown = *dialog;
  Play.Open(std::move(dialog));
  EXPECT_TRUE(BearsEnter("cmdok"));
  shown.cmdok.Visible = false;
  shown.cmdlast.Visible = true;
  Play.Window.Sync();
  EXPECT_TRUE(BearsEnter("cmdlast"));
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes, Log({"last", "hub again"}));
}

TEST_F(TheWindow, ShowsADialogOverThePageAndNothingBelowTakesClicks) {
  OpenDesk();
  Play.Click("cmdmore");
  ASSERT_EQ(Play.Top(), "frmMore");
  EXPECT_TRUE(BearsEnter("cmdok"));
  Play.Click("cmdpeople");
  Play.Click("cmdnext");
  Play.Key(Qt::Key_F2);
  EXPECT_EQ(Play.Top(), "frmMore");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes, Log({"ok", "page again"}));
  Play.Click("cmdmore");
  Play.Key(Qt::Key_Escape);
  EXPECT_EQ(Notes, Log({"ok", "page again", "cancel", "page again"}));
  EXPECT_EQ(Play.Top(), "frmDesk");
}

TEST_F(TheWindow, AsksAndTakesTheAnswerByKeyOrClick) {
  OpenDesk();
  const std::pair<std::function<void()>, const char*> kAnswers[] = {
      {[&] { Play.Key(Qt::Key_Return); }, "yes"},
      {[&] { Play.Key(Qt::Key_Escape); }, "no"},
      {[&] { Play.Click("boxno"); }, "no"},
      {[&] { Play.Click("boxyes"); }, "yes"},
      {[&] { Play.Type("n"); }, "no"},
      {[&] { Play.Type("Y"); }, "yes"},
  };
  for (const auto& [answer, noted] : kAnswers) {
    Notes.clear();
    Play.AtNextBox(answer);
    Play.Click("cmdask");
    EXPECT_EQ(Notes, Log({noted}));
  }
  Play.AtNextBox([&] {
    EXPECT_EQ(Play.TextOf("boxtext"), "Are you sure?\nReally?");
    Play.Key(Qt::Key_Left);  // to No, and round again
    EXPECT_TRUE(BearsEnter("boxno"));
    EXPECT_FALSE(BearsEnter("boxyes"));
    EXPECT_FALSE(BearsEnter("cmddone")) << "one sign in the window";
    Play.Key(Qt::Key_Return);
  });
  Play.Click("cmdask");
  EXPECT_EQ(Notes.back(), "no");
}

TEST_F(TheWindow, PromptsWithWhatItOffersSelected) {
  OpenDesk();
  Play.AtNextBox([&] { Play.Key(Qt::Key_Return); });
  Play.Click("cmdname");
  Play.AtNextBox([&] {
    Play.Type(QString::fromUtf8("M\u00FCller"));
    Play.Key(Qt::Key_Return);
  });
  Play.Click("cmdname");
  Play.AtNextBox([&] { Play.Key(Qt::Key_Escape); });
  Play.Click("cmdname");
  EXPECT_EQ(Notes, Log({"[Save Game 1]", "[M\xFCller]", "[]"}));
}

TEST_F(TheWindow, TellsAFaultInABoxThatHoldsTheKeyboardAndGoesBack) {
  OpenDesk();
  Play.AtNextBox([&] {
    EXPECT_EQ(Play.TextOf("boxtext"), "The disk is full.");
    for (int i = 0; i < 3; ++i) {
      Play.Key(Qt::Key_Tab);
      EXPECT_TRUE(Play.FocusName().startsWith("box")) << Play.FocusName().toStdString();
    }
    Play.Key(Qt::Key_F2);
    Play.Click("cmdpeople");
    Play.Click("boxok");
  });
  Play.Click("cmdthrow");
  EXPECT_EQ(Play.Top(), "frmDesk");
  EXPECT_TRUE(Play.Sees("cmdthrow"));
  EXPECT_FALSE(Play.Sees("frmMore"));
  EXPECT_EQ(Play.FocusName(), "txtname") << "the page begins there, and nothing is written yet";
}

TEST_F(TheWindow, FindsWhatCanBeDoneByItsLetters) {
  OpenDesk();
  Play.Key(Qt::Key_K, Qt::ControlModifier);
  ASSERT_TRUE(Play.Sees("finder"));
  Play.Type("ppl");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.Top(), "frmPeople");
  EXPECT_FALSE(Play.Sees("finder"));
  Play.Click("searcheverything");
  Play.Type("later");
  Play.Key(Qt::Key_Return);
  EXPECT_FALSE(Play.Sees("finder"));
  EXPECT_EQ(Play.TextOf("hint"), "Later cannot be pressed now.") << "there is no reason to be told";
  EXPECT_EQ(Play.Top(), "frmPeople");
  Play.Desk.Screens().front()->Find("cmdlater")->Tip = "Not before noon.";
  Play.Click("searcheverything");
  Play.Type("latre");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.TextOf("hint"), "Not before noon.") << "a slip, and the reason";
  EXPECT_EQ(Play.Top(), "frmPeople");
}

TEST_F(TheWindow, ShowsInTheSearchWhatIsMeantForSureAndNoMore) {
  OpenDesk().cmddone.Text = "Lather";
  Play.Key(Qt::Key_K, Qt::ControlModifier);
  const auto* list = dynamic_cast<QListWidget*>(Play.See("finderlist"));
  const int top = Play.See("finderline")->mapTo(&Play.Window, QPoint()).y(), full = list->height();
  Play.Type("lathr");
  EXPECT_EQ(list->findItems("Later", Qt::MatchExactly).size(), 1) << "either may be meant";
  Play.Key(Qt::Key_Backspace);
  Play.Type("er");
  EXPECT_EQ(list->findItems("Lather", Qt::MatchExactly).size(), 1);
  EXPECT_TRUE(list->findItems("Later", Qt::MatchExactly).isEmpty());
  const QRect last = list->visualItemRect(list->item(list->count() - 1));
  EXPECT_EQ(list->viewport()->height(), last.bottom() + 1) << "as high as what was found";
  EXPECT_LT(list->height(), full);
  EXPECT_EQ(Play.See("finderline")->mapTo(&Play.Window, QPoint()).y(), top);
  Play.Key(Qt::Key_Escape);
}

TEST_F(TheWindow, FindsWhatCanBeDoneOnceTheDialogAboveIsLeft) {
  OpenDesk();
  Play.Click("cmdmore");
  Play.Key(Qt::Key_K, Qt::ControlModifier);
  Play.Type("done");
  const auto* list = dynamic_cast<QListWidget*>(Play.See("finderlist"));
  ASSERT_EQ(list->currentItem()->text(), "Done");
  EXPECT_EQ(list->currentItem()->data(Qt::AccessibleDescriptionRole).toString(),
            "Not now: Leave More first.");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.TextOf("hint"), "Leave More first.");
  EXPECT_LT(Play.See("hint")->height(), 2 * Play.See("hint")->fontMetrics().height() + 12)
      << "in one line";
  EXPECT_EQ(Play.Top(), "frmMore");
  EXPECT_EQ(Notes, Log());
}

TEST_F(TheWindow, KeepsTheSearchAndANoteOverAPageThatChangesByItself) {
  auto more = std::make_unique<Dialog>(Play.Desk, Notes);
  more->cmdok.Enabled = false;
  Dialog& page = *more;
  Play.Open(std::move(more));
  const auto isOnTop = [&](const char* name) {
    QWidget* seen = Play.See(name);
    page.lblmore.Text = "There is still more.";
    Play.Window.Sync();
    return Play.Window.childAt(seen->mapTo(&Play.Window, seen->rect().center())) == seen;
  };
  Play.Key(Qt::Key_K, Qt::ControlModifier);
  EXPECT_TRUE(isOnTop("finderline"));
  Play.Type("OK");
  Play.Key(Qt::Key_Return);
  EXPECT_TRUE(isOnTop("hint"));
}

TEST_F(TheWindow, TellsInTheSearchWhyAPagesActionCannotBeDone) {
  DeskPage& page = OpenDesk();
  page.cmddone.Enabled = false;
  page.cmddone.Tip = "Nothing is chosen yet.";
  Play.Key(Qt::Key_K, Qt::ControlModifier);
  Play.Type("Done");
  const auto* list = dynamic_cast<QListWidget*>(Play.See("finderlist"));
  ASSERT_EQ(list->currentItem()->text(), "Done");
  EXPECT_EQ(list->currentItem()->data(Qt::AccessibleDescriptionRole).toString(),
            "Not now: Nothing is chosen yet.");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Play.TextOf("hint"), "Nothing is chosen yet.");
  EXPECT_EQ(Notes, Log());
  Play.Desk.Screens().front()->Find("cmdnext")->Tip = "Ends the day.";
  Play.Key(Qt::Key_K, Qt::ControlModifier);
  Play.Type("Next Day");
  list = dynamic_cast<QListWidget*>(Play.See("finderlist"));
  EXPECT_EQ(list->item(0)->text(), "Commands") << "it is no room";
  EXPECT_EQ(list->currentItem()->text(), "Next Day");
  EXPECT_EQ(list->currentItem()->data(Qt::AccessibleDescriptionRole).toString(), "Ends the day.");
  Play.Key(Qt::Key_Escape);
}

TEST_F(TheWindow, GivesTheKeyboardBackToWhatOpenedAPage) {
  Play.See("cmdpeople")->setFocus(Qt::TabFocusReason);
  Play.Key(Qt::Key_Space);
  ASSERT_EQ(Play.Top(), "frmPeople");
  Play.See("cmdback")->setFocus(Qt::TabFocusReason);
  Play.Key(Qt::Key_Space);
  EXPECT_EQ(Play.FocusName(), "cmdpeople") << "though it stands beside the page";
  OpenDesk();
  Play.See("cmdask")->setFocus(Qt::TabFocusReason);
  Play.Open(std::make_unique<PeoplePage>(Play.Desk, Notes));
  Play.Key(Qt::Key_L, Qt::ControlModifier);
  Play.Key(Qt::Key_Escape);
  ASSERT_EQ(Play.Top(), "frmDesk");
  EXPECT_EQ(Play.FocusName(), "cmdask") << "though the page below was drawn again";
}

/// A cover that has no picture behind it.
class BareCover : public ui::Screen {
 public:
  explicit BareCover(ui::Desk& desk) : Screen(desk, "frmBare", "Bare", ui::Role::Cover) {}
  ui::Page Layout() override { return {.Body = ui::Rows({lblwords})}; }

 private:
  ui::Label lblwords{*this, "lblwords", "Words"};
};

int warnings = 0;

TEST_F(TheWindow, DrawsACoverWithoutAPictureInSilence) {
  warnings = 0;
  const auto before = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString&) { ++warnings; });
  Play.Open(std::make_unique<BareCover>(Play.Desk));
  Play.Window.grab();
  qInstallMessageHandler(before);
  EXPECT_EQ(warnings, 0);
}

/// A picture that fills the window.
class Poster : public ui::Screen {
 public:
  explicit Poster(ui::Desk& desk) : Screen(desk, "frmPoster", "Poster", ui::Role::Cover) {}
  ui::Page Layout() override { return {.Body = ui::Rows({ui::Grow(imgtitle)})}; }

 private:
  ui::Picture imgtitle{*this, "imgtitle", "vxm_title.jpg"};
};

TEST_F(TheWindow, LeavesAPosterDarkAndGivesThePagesBeforeItTheChosenColours) {
  for (const auto scheme : {desktop::Scheme::Light, desktop::Scheme::Dark}) {
    Play.Window.SetLook(scheme, 0);
    Play.Open(std::make_unique<BareCover>(Play.Desk));
    EXPECT_EQ(desktop::ColoursOf(Play.See("frmBare")).Dark, scheme == desktop::Scheme::Dark);
    Play.Open(std::make_unique<Poster>(Play.Desk));
    EXPECT_TRUE(desktop::ColoursOf(Play.See("frmPoster")).Dark);
  }
}

TEST_F(TheWindow, FindsNamesUnderHeadingsAndRemembersWhatWasChosen) {
  Play.Desk.BeginSearch = [this]() -> ui::NameSearch {
    return [this](std::string_view typed, std::size_t) {
      std::vector<ui::Finding> found;
      for (const char* name : {"Bram Okafor", "Bramwell Fox"})
        if (std::string_view(name).starts_with(typed))
          found.push_back({"Workers", name, "Main Event", ui::Portrait{7},
                           [this, name] { Notes.push_back(name); }});
      return found;
    };
  };
  const auto list = [&] {
    std::vector<QString> rows;
    const auto* found = dynamic_cast<QListWidget*>(Play.See("finderlist"));
    for (int row = 0; row < found->count(); ++row) rows.push_back(found->item(row)->text());
    return rows;
  };
  const auto find = [&](const char* typed) {
    Play.Key(Qt::Key_K, Qt::ControlModifier);
    Play.Type(typed);
  };
  using Rows = std::vector<QString>;
  find("Bram");
  EXPECT_EQ(list(), (Rows{"Workers", "Bram Okafor", "Bramwell Fox"}));
  Play.Key(Qt::Key_Up);  // headings cannot be chosen
  Play.Key(Qt::Key_Down);
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes.back(), "Bramwell Fox");
  find("Bram");
  EXPECT_EQ(list(), (Rows{"Workers", "Bramwell Fox", "Bram Okafor"}));
  Play.Key(Qt::Key_Escape);
  find("Next Day");
  Play.Key(Qt::Key_Return);
  EXPECT_EQ(Notes.back(), "next day");
  find("");
  const Rows all = list();
  ASSERT_GT(all.size(), 4U);
  EXPECT_EQ(Rows(all.begin(), all.begin() + 3), (Rows{"Recent", "Next Day", "Bramwell Fox"}));
  Play.Type("xq");
  EXPECT_EQ(list(), Rows{"Nothing is called \"xq\". Try one word of it."});
  Play.Key(Qt::Key_Return);
  EXPECT_TRUE(Play.Sees("finder"));
  Play.Key(Qt::Key_Escape);
  find("dark theem");
  EXPECT_EQ(list(), (Rows{"Window", "Dark colours", "Light colours", "High contrast",
                          "Colours as the desktop has them"}))
      << "a slip in what people call it, where nothing else is found";
}

TEST_F(TheWindow, OpensHelpForThePageOnTop) {
  Play.Key(Qt::Key_F1);
  EXPECT_EQ(Play.Top(), "frmHub") << "without pages of help nothing happens";
  Play.Desk.Help.About = [this](ui::Screen& of) -> std::unique_ptr<ui::Screen> {
    Notes.push_back("help for " + of.Name());
    return std::make_unique<Dialog>(Play.Desk, Notes);
  };
  Play.Desk.Help.Glossary = [this](std::string_view term) -> std::unique_ptr<ui::Screen> {
    Notes.push_back("glossary at " + std::string(term));
    return std::make_unique<Dialog>(Play.Desk, Notes);
  };
  Play.Desk.Help.Meaning = [](std::string_view heading) {
    return heading == "Over" ? "Popularity." : "";
  };
  Play.Key(Qt::Key_F2);
  Play.Key(Qt::Key_F1);
  EXPECT_EQ(Play.Top(), "frmMore");
  EXPECT_EQ(Notes.back(), "help for frmPeople");
  Play.Key(Qt::Key_Escape);
  const QAbstractItemModel& model = *Play.Grid("lstpeople").model();
  const auto tip = [&](int column) {
    return model.headerData(column, Qt::Horizontal, Qt::ToolTipRole).toString();
  };
  EXPECT_TRUE(tip(3).contains("Popularity.")) << tip(3).toStdString();
  EXPECT_EQ(tip(1), "");
  QHeaderView& heading = Play.Grid("lstpeople").Heading();
  emit heading.customContextMenuRequested({heading.sectionViewportPosition(3) + 5, 5});
  const auto* menu = Play.Window.findChild<QMenu*>("headingmenu");
  ASSERT_TRUE(menu);
  for (QAction* action : menu->actions())
    if (action->text() == "What it means") action->trigger();
  EXPECT_EQ(Notes.back(), "glossary at Over");
}

TEST_F(TheWindow, ShowsAWaitingScreenAndTakesNoKeysAmidALongEvent) {
  const auto work = [&] {
    Play.Desk.Open(std::make_unique<WaitingScreen>(Play.Desk));
    QApplication::postEvent(&Play.Window, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, {}));
    QApplication::postEvent(Play.See("cmdnext"),
                            new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, {}));
    EXPECT_FALSE(Play.Sees("frmWaits")) << "who has hardly waited sees no picture";
    for (int step = 0; step < 1000 && !Play.Sees("frmWaits"); ++step) {
      QTest::qSleep(10);
      Play.Desk.Repaint();
    }
    EXPECT_TRUE(Play.Sees("frmWaits"));
    EXPECT_TRUE(Play.Sees("lblstep"));
    Play.Desk.Close(*Play.Desk.Top());
  };
  Play.Window.Act([&] {
    Play.Desk.Event(work);
    return std::string();
  });
  QApplication::processEvents();
  EXPECT_EQ(Notes, Log({"hub again"}));
  EXPECT_TRUE(Play.Sees("cmdnext"));
  EXPECT_FALSE(Play.Sees("frmWaits"));
}

TEST_F(TheWindow, EndsWithTheLastScreenOrWhenItIsClosedWithoutAQuestion) {
  Play.Click("cmdquit");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Play.Window.isVisible(); }, 10000));
  EXPECT_EQ(Play.Closings, 1);
  Player other;
  auto page = std::make_unique<DeskPage>(other.Desk, Notes);
  page->AsksBeforeItGoes = true;
  other.Open(std::move(page));
  EXPECT_TRUE(other.Window.close());
  EXPECT_EQ(other.Closings, 1);
}

TEST_F(TheWindow, ClosedAmidAQuestionGivesTheCarefulAnswerFirst) {
  OpenDesk();
  Play.AtNextBox([&] {
    EXPECT_FALSE(Play.Window.close());
    EXPECT_EQ(Play.Closings, 0);
  });
  Play.Click("cmdask");
  EXPECT_EQ(Notes, Log({"no"}));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Play.Window.isVisible(); }, 10000));
  EXPECT_EQ(Play.Closings, 1);
}

TEST_F(TheWindow, ChangesColoursAndSizeByKeyAndGoesOn) {
  DeskPage& page = OpenDesk();
  const int before = Play.See("cmdask")->height();
  Play.Type("Al");
  Play.Key(Qt::Key_L, Qt::ControlModifier);
  Play.Key(Qt::Key_Plus, Qt::ControlModifier);
  Play.Key(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(Play.See("cmdask")->height(), before);
  EXPECT_EQ(Play.TextOf("txtname"), "Al");
  EXPECT_TRUE(IsNow("cmddesk"));
  Play.Click("chkday");
  EXPECT_TRUE(page.chkday.Checked.Get());
  Play.Key(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Play.See("cmdask")->height(), before);
}

}  // namespace
}  // namespace grapplemont::test
