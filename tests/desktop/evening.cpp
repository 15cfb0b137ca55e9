#include "desktop/evening.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <algorithm>
#include <stdexcept>

#include "program/screens.h"
#include "records/segments.h"
#include "support/smallworld.h"

namespace grapplemont::test {

namespace {

constexpr int kBoxesEvery = 2;    // milliseconds
constexpr int kMostTabs = 150;    // through a page and the side bar
constexpr int kMostSteps = 60;    // of a show, or of a wizard
constexpr int kLongestWait = 40;  // days
constexpr const char* kPlayerName = "Pat Lee";

}  // namespace

Evening::Evening(const World& data, Hands hands, std::uint64_t seed)
    : home_(data),
      hands_(hands),
      game_(play_.Desk, *disk_, {home_.Path("."), [] { return kGameStart; }, seed}) {
  RegisterScreens(game_);
  play_.Window.resize(1280, 800);
  QObject::connect(&boxes_, &QTimer::timeout, &boxes_, [this] { AnswerBox(); });
  boxes_.start(kBoxesEvery);
}

Evening::~Evening() {
  boxes_.stop();
  play_.Desk.CloseAll();
  play_.Window.Sync();
  game_.CloseSlot();
}

void Evening::Painted(const std::string& what) {
  const QScopedValueRollback<bool> painting(painting_, true);
  QCoreApplication::sendPostedEvents();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  if (Watch) Watch(what, static_cast<double>(since_.nsecsElapsed()) / 1e6);
  since_.restart();
}

void Evening::Act(const std::string& what, const std::function<void()>& act) {
  doing_ = what;
  since_.restart();
  act();
  Painted(what);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Every message is read and every question answered with yes, as somebody does who means it.
void Evening::AnswerBox() {
  if (painting_ || !Sees("box")) return;
  const std::string asked = doing_;
  Painted(asked);
  if (Sees("boxyes"))
    Press("boxyes");
  else
    Act("Enter", [&] { play_.Key(Qt::Key_Return); });
}

void Evening::Reach(const QString& control) {
  QWidget* wanted = play_.See(control);
  const auto there = [&] {
    const QWidget* focus = play_.Window.focusWidget();
    return focus && (focus == wanted || wanted->isAncestorOf(focus));
  };
  QString seen;
  for (int i = 0; i < kMostTabs && !there(); ++i) {
    Act("Tab", [&] { play_.Key(Qt::Key_Tab); });
    if (const QString name = play_.FocusName(); !seen.contains(name)) seen += name + " ";
  }
  if (!there())
    throw std::runtime_error("Tab does not lead to " + control.toStdString() + " of " + Top() +
                             ", only to " + seen.toStdString());
}

void Evening::Press(const QString& button) {
  if (hands_ == Hands::Mouse) return Act(button.toStdString(), [&] { play_.Click(button); });
  Reach(button);
  Act(button.toStdString(), [&] { play_.Key(Qt::Key_Space); });
}

void Evening::PickRow(const QString& list, int row) {
  if (hands_ == Hands::Mouse) return Act(list.toStdString(), [&] { play_.ClickRow(list, row); });
  Reach(list);
  Act("Home", [&] { play_.Key(Qt::Key_Home, Qt::ControlModifier); });
  for (int i = 0; i < row; ++i) Act("Down", [&] { play_.Key(Qt::Key_Down); });
}

void Evening::Fill(const QString& line, const QString& text) {
  if (hands_ == Hands::Mouse)
    Act(line.toStdString(), [&] { play_.Click(line); });
  else
    Reach(line);
  for (const QChar letter : text) Act("a letter", [&] { play_.Type(letter); });
}

void Evening::Leave() {
  Act("Escape", [&] { play_.Key(Qt::Key_Escape); });
}

/// By the careful answer: nobody leaves for another promotion on their first evening.
void Evening::DecideWhatWaits() {
  for (int step = 0; step < kMostSteps && (Top() == "frmIncident" || Top() == "frmPinky"); ++step) {
    Leave();
    ++decided_;
  }
}

/// What waits on the way is answered with what it offers.
void Evening::GoHome() {
  for (int step = 0; step < kMostSteps && Top() != "frmMainScreen"; ++step) {
    DecideWhatWaits();
    if (Top() == "frmMainScreen") return;
    const std::string before = Top();
    Leave();
    if (Top() == before) Act("Enter", [&] { play_.Key(Qt::Key_Return); });
  }
}

void Evening::Arrive(const std::string& screen) {
  ASSERT_EQ(Top(), screen);
}

void Evening::NewGame() {
  Act("start", [&] {
    play_.Desk.Event([&] { play_.Desk.Open("frmTitleScreen"); });
    play_.Window.Sync();
  });
  Press("cmdbegin");
  Press("cmdcontinue");
  Press("cmdnewgame");
  Fill("txtname", kPlayerName);
  Press("cmdbegin");
  Press("cmdload1");
  Arrive("frmMainScreen");
  EXPECT_EQ(TheWorld().Game().PlayerName.Str(), kPlayerName);
}

void Evening::FirstWeek() {
  ASSERT_TRUE(Sees("txtguide"));
  Press("cmdroster");
  Arrive("frmRoster");
  Leave();
  Arrive("frmMainScreen");
  EXPECT_TRUE(TheWorld().Guides()[1].Done[0]) << "the guide has not seen the roster opened";
  Press("cmdguide");
  EXPECT_FALSE(Sees("txtguide"));
}

void Evening::SignSomebody() {
  const auto roster = [&] {
    return std::ranges::count_if(TheWorld().Workers(), [&](const Worker& worker) {
      return worker.Employer == TheWorld().PlayerUid();
    });
  };
  const auto before = roster();
  Press("cmdotherwres");
  Arrive("frmOtherWres");
  const int rows = play_.Grid("lstwres").model()->rowCount();
  for (int row = 0; row < std::min(rows, kMostSteps) && roster() == before; ++row) {
    PickRow("lstwres", row);
    if (!play_.See("cmdcontract")->isEnabled()) continue;
    Press("cmdcontract");
    if (Top() == "frmOtherWres") continue;
    if (play_.See("cmdoffer")->isEnabled()) Press("cmdoffer");
    while (Top() != "frmOtherWres") Leave();
  }
  EXPECT_GT(roster(), before) << "nobody on the market signs";
  Leave();
  Arrive("frmMainScreen");
}

void Evening::BookARow() {
  for (int step = 0; step < kMostSteps && Top() != "frmBooking"; ++step) {
    int row = 0;
    const QWidget* view = play_.See(QString::fromStdString(Top()));
    for (const auto* list : view->findChildren<desktop::TableGrid*>()) {
      if (!list->isVisible() || !list->isEnabled() || list->model()->rowCount() == 0 ||
          list->selectionModel()->hasSelection())
        continue;
      const QString name = list->parentWidget()->objectName();
      if (name.startsWith("lst")) PickRow(name, row++);
    }
    Press("cmdnext");
  }
  ASSERT_EQ(Top(), "frmBooking");
}

void Evening::FillTheRest() {
  Press("cmdfill");
  Arrive("frmFill");
  Press("cmdsheet");
}

void Evening::BookAShow() {
  for (int day = 0; day < kLongestWait && Top() != "frmBooking"; ++day) {
    Press("cmdnext");
    DecideWhatWaits();
  }
  Arrive("frmBooking");
  Press("cmdbook(1)");
  BookARow();
  EXPECT_NE(TheWorld().Segments()[1].Kind, kEmptySegment);
  FillTheRest();
  EXPECT_TRUE(play_.See("cmddoshow")->isEnabled());
}

void Evening::HoldIt() {
  const Day day = TheWorld().Today();
  Press("cmddoshow");
  bool read = false;
  for (int step = 0; step < kMostSteps && Top() != "frmMainScreen" && Top() != "frmMorning";
       ++step) {
    read = read || Top() == "frmMatchOutput";
    Act("Enter", [&] { play_.Key(Qt::Key_Return); });
    DecideWhatWaits();
  }
  EXPECT_TRUE(read) << "nothing of the show was reported";
  EXPECT_GT(TheWorld().Today(), day);
}

void Evening::MorningAfter() {
  if (Top() != "frmMorning") GoHome();
  if (Top() != "frmMorning") Press("cmdmorning");
  Arrive("frmMorning");
  EXPECT_TRUE(Sees("cmdwhy(1)"));
  Press("cmdwhy(1)");
  GoHome();
}

void Evening::ToTheMonthsEnd() {
  const auto month = [&] { return MonthOf(TheWorld().Today()); };
  const int began = month();
  for (int act = 0; act < kMostSteps && month() == began; ++act) {
    if (Top() == "frmBooking" || Top() == "frmPPVBooking") {
      FillTheRest();
      HoldIt();
    } else if (Top() == "frmMainScreen") {
      Press("cmdnext");
      DecideWhatWaits();
    } else {
      GoHome();
    }
  }
  EXPECT_NE(month(), began);
  GoHome();
}

void Evening::ReadMail() {
  Press("cmdnews");
  Arrive("frmNews");
  Press("cmdread");
  Leave();
  Arrive("frmMainScreen");
}

void Evening::Search(const QString& name) {
  Act("Ctrl+K", [&] { play_.Key(Qt::Key_K, Qt::ControlModifier); });
  EXPECT_TRUE(Sees("finder"));
  for (const QChar letter : name) Act("a letter of the search", [&] { play_.Type(letter); });
  Leave();
}

void Evening::CopySaveAndLoad() {
  const Day day = TheWorld().Today();
  Press("cmdquit");
  Arrive("frmGameMenu");
  Press("cmdloadgame");
  Arrive("frmLoadGame");
  Press("cmdcopy1");
  Press("cmdload2");
  Arrive("frmMainScreen");
  EXPECT_EQ(game_.Opened().Slot, 2);
  EXPECT_EQ(TheWorld().Today(), day);
}

void Evening::All() {
  for (void (Evening::*part)() :
       {&Evening::NewGame, &Evening::FirstWeek, &Evening::SignSomebody, &Evening::BookAShow,
        &Evening::HoldIt, &Evening::MorningAfter, &Evening::ToTheMonthsEnd, &Evening::ReadMail,
        &Evening::CopySaveAndLoad}) {
    if (testing::Test::HasFailure()) return;
    (this->*part)();
  }
}

}  // namespace grapplemont::test
