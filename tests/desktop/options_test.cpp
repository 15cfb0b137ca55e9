#include <gtest/gtest.h>

#include <QClipboard>
#include <QFile>
#include <algorithm>
#include <cmath>
#include <memory>

#include "desktop/desktopcolours.h"
#include "desktop/look.h"
#include "desktop/player.h"
#include "desktop/sharing.h"
#include "desktop/sound.h"
#include "records/fields/fields.h"
#include "support/scratchfolder.h"
#include "ui/acts.h"

// What the player sets about the window, and that it is there the next time.

namespace grapplemont::test {
namespace {

/// A page with the same day of each month, and with dates in its labels.
class YearPage : public ui::Screen {
 public:
  explicit YearPage(ui::Desk& desk) : Screen(desk, "frmYear", "The Year") {
    for (int month = 0; month < 14; ++month) {  // more than a table without a search line has
      const Day day{std::chrono::year{2026} / 1 / 9 + std::chrono::months{month}};
      lstdays.Add({{double(month), PlainDate(day)}}, month + 1);
    }
  }
  ui::Page Layout() override {
    return {.Actions = {&cmdback},
            .Cancel = &cmdback,
            .Body = ui::Rows({lblnext, lbltold, ui::Grow(lstdays)})};
  }

 private:
  ui::Label lblnext{*this, "lblnext", "Monday, 09 March 2026, 7 rows"};
  ui::Label lbltold{*this, "lbltold", "The staff meet on Monday, 09 March 2026."};
  ui::ListBox lstdays{*this, "lstdays", {{"On", ui::ColumnKind::Date}}};
  ui::Button cmdback{*this, "cmdback", "Back", [this] { Close(); }};
};

class TheOptions : public testing::Test {
 protected:
  void Begin() {
    Play.reset();
    Play = std::make_unique<Player>(QString::fromStdString(folder_ / "settings.ini"));
    Play->Open(std::make_unique<Hub>(Play->Desk, Notes));
  }
  void OpenOptions() {
    Play->Key(Qt::Key_Comma, Qt::ControlModifier);
    ASSERT_EQ(Play->Top(), "frmWindow");
  }
  void Find(const char* letters) {
    Play->Key(Qt::Key_K, Qt::ControlModifier);
    Play->Type(letters);
    Play->Key(Qt::Key_Return);
  }
  void Choose(const char* box, int row) {
    Play->Window.Act([&] { return ui::Pick(Play->Desk, *Play->Desk.Top(), box, row); });
  }
  /// What is said to a key that the command chosen cannot have; it is asked for again then.
  std::string WhyRefused(const char* key) {
    std::string said;
    Play->AtNextBox([&] {
      Play->Type(key);
      Play->AtNextBox([&] {
        said = Play->TextOf("boxtext").toStdString();
        Play->AtNextBox([&] {
          EXPECT_EQ(Play->TextOf("boxline"), key);
          Play->Click("boxcancel");
        });
        Play->Click("boxok");
      });
      Play->Click("boxok");
    });
    Play->Click("cmdkey");
    return said;
  }
  std::string Text(const char* name) { return Play->Desk.Top()->Find(name)->Text.Get(); }

  ScratchFolder folder_;
  Log Notes;
  std::unique_ptr<Player> Play;
};

TEST_F(TheOptions, AreKeptFromOneStartToTheNext) {
  Begin();
  const int before = Play->See("cmdnext")->height();
  OpenOptions();
  Choose("cmbtheme", 4);
  Choose("cmbtext", 7);
  Choose("cmbscale", 3);
  Play->Click("chkstill");
  EXPECT_EQ(QApplication::cursorFlashTime(), 0);
  Play->Key(Qt::Key_Escape);
  Begin();
  EXPECT_EQ(&desktop::ColoursOf(Play->See("cmdnext")), &desktop::ContrastColours());
  EXPECT_NEAR(Play->See("cmdnext")->height(), 2 * before, 2);
  OpenOptions();
  EXPECT_EQ(Text("cmbtheme"), "High contrast");
  EXPECT_EQ(Text("cmbtext"), "200%");
  EXPECT_EQ(Text("cmbscale"), "125%");
  Play->Click("chkstill");
  EXPECT_GT(QApplication::cursorFlashTime(), 0);
}

TEST_F(TheOptions, GiveACommandAnotherKey) {
  Begin();
  OpenOptions();
  for (const char* refused : {"x", "F4", "F11", "Ctrl+K"}) EXPECT_NE(WhyRefused(refused), "");
  Play->AtNextBox([&] {
    Play->Key(Qt::Key_F5);
    EXPECT_EQ(Play->TextOf("boxline"), "F5");
    Play->Key(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(Play->TextOf("boxline"), "Ctrl+R");
    Play->Click("boxok");
  });
  Play->Click("cmdkey");
  Play->Key(Qt::Key_Escape);
  Play->Key(Qt::Key_F2);
  EXPECT_EQ(Play->Top(), "frmHub") << "it is nobody's key any more";
  Play->Key(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(Play->Top(), "frmPeople");
  Begin();
  Play->Key(Qt::Key_R, Qt::ControlModifier);
  EXPECT_EQ(Play->Top(), "frmPeople");
  OpenOptions();
  Play->Click("cmdusual");
  Play->Key(Qt::Key_Escape);
  Play->Key(Qt::Key_Escape);
  Play->Key(Qt::Key_F2);
  EXPECT_EQ(Play->Top(), "frmPeople");
}

TEST_F(TheOptions, GiveAPageAndTheWindowOtherKeys) {
  Begin();
  Play->Key(Qt::Key_F4);
  ASSERT_EQ(Play->Top(), "frmDesk");
  const auto choose = [&](const char* command) {
    const auto* keys = dynamic_cast<ui::ListBox*>(Play->Desk.Top()->Find("lstkeys"));
    for (int row = 1; row <= keys->Count(); ++row)
      if (keys->Rows()[static_cast<std::size_t>(row - 1)].Cells[0].Text == command)
        return Choose("lstkeys", row);
    ADD_FAILURE() << "no key can be set for " << command;
  };
  const auto set = [&](const char* command, const char* key) {
    choose(command);
    Play->AtNextBox([&] {
      Play->Type(key);
      Play->Click("boxok");
    });
    Play->Click("cmdkey");
  };
  OpenOptions();
  set("Done", "Ctrl+D");
  set("Search everything", "Ctrl+G");
  Play->Key(Qt::Key_Escape);
  EXPECT_TRUE(Play->See("cmddone")->toolTip().contains("Ctrl+D"));
  const auto tells = [&](ui::Screen& screen, const char* line) {
    const std::vector<std::string> lines = Play->Desk.Help.Keys(screen);
    return std::find(lines.begin(), lines.end(), line) != lines.end();
  };
  EXPECT_TRUE(tells(*Play->Desk.Top(), "Ctrl+D: Done"));
  EXPECT_FALSE(tells(*Play->Desk.Top(), "Ctrl+G: Search everything")) << "no key of this page";
  EXPECT_TRUE(tells(*Play->Desk.Screens().front(), "Ctrl+G: Search everything"));
  Notes.clear();
  Play->Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Notes, Log({"done"}));
  Play->Key(Qt::Key_K, Qt::ControlModifier);
  EXPECT_FALSE(Play->Sees("finder"));
  Play->Key(Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(Play->Sees("finder"));
  Play->Key(Qt::Key_Escape);
  Begin();
  OpenOptions();
  choose("Done");  // its page is not open, and it is known all the same
  Play->Click("cmdreset");
  Play->Key(Qt::Key_Escape);
  Play->Key(Qt::Key_F4);
  Notes.clear();
  Play->Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Notes, Log());
}

TEST_F(TheOptions, SayWhoseKeyAKeyIs) {
  Begin();
  OpenOptions();
  for (const auto& [key, whose] :
       {std::pair("F4", "F4 is the key of Desk. Choose one that is free"),
        {"Ctrl+L", "Ctrl+L is the key of Dark or light colours."},
        {"Ctrl+C", "Ctrl+C is a key of tables and lines of text."}}) {
    const std::string said = WhyRefused(key);
    EXPECT_TRUE(said.starts_with(whose)) << said;
  }
}

TEST_F(TheOptions, MakeShowsHeardOnceTheyAreTurnedOn) {
  Begin();
  const auto cheer = [&] {
    Play->Window.Act([&] {
      for (int twice = 0; twice < 2; ++twice) Play->Desk.Hear(ui::Sound::Crowd);
      return std::string();
    });
  };
  cheer();
  EXPECT_TRUE(Play->Heard.empty()) << "silent until it is asked for";
  Find("Sound on");
  const std::vector<std::pair<ui::Sound, int>> atOnce = {{ui::Sound::Bell, 50}};
  EXPECT_EQ(Play->Heard, atOnce);
  OpenOptions();
  EXPECT_TRUE(Play->See("chksound")->property("checked").toBool());
  Play->Window.Act([&] { return ui::Slide(Play->Desk, *Play->Desk.Top(), "hsvolume", 80); });
  Begin();
  cheer();
  const std::vector<std::pair<ui::Sound, int>> once = {{ui::Sound::Crowd, 80}};
  EXPECT_EQ(Play->Heard, once);
  OpenOptions();
  Play->Click("chksound");
  EXPECT_FALSE(Play->See("hsvolume")->isEnabled());
  cheer();
  EXPECT_EQ(Play->Heard, once);
}

TEST_F(TheOptions, WriteTheDatesOfListsAndHeadingsInAnotherLanguage) {
  Begin();
  Play->Open(std::make_unique<YearPage>(Play->Desk));
  const auto dates = [&] { return Play->Column("lstdays", 0); };
  EXPECT_EQ(dates().at(2), "09 March 2026");
  Find("Dates: German");
  EXPECT_EQ(dates().at(2), QString::fromUtf8("9. M\u00E4rz 2026"));
  EXPECT_EQ(Play->TextOf("lblnext"), QString::fromUtf8("Montag, 9. M\u00E4rz 2026, 7 rows"));
  EXPECT_EQ(Play->TextOf("lbltold"), "The staff meet on Monday, 09 March 2026.");
  EXPECT_EQ(Play->See("txtdate")->accessibleName(), QString::fromUtf8("Montag, 9. M\u00E4rz 2026"));
  EXPECT_EQ(Text("lblnext"), "Monday, 09 March 2026, 7 rows") << "the screen itself knows nothing";
  Play->Grid("lstdays").setFocus();
  Play->Type(QString::fromUtf8("m\u00E4rz"));
  EXPECT_EQ(dates(), std::vector<QString>{QString::fromUtf8("9. M\u00E4rz 2026")})
      << "what is typed is what is seen";
  Begin();
  EXPECT_EQ(Play->See("txtdate")->accessibleName(), QString::fromUtf8("Montag, 9. M\u00E4rz 2026"));
  OpenOptions();
  Choose("cmbdates", 2);
  EXPECT_EQ(Play->TextOf("lblsample"), "Monday, 2002-07-08");
  Choose("cmbdates", 1);
  EXPECT_EQ(Play->TextOf("lblsample"), "Monday, 08 July 2002");
}

TEST(TheDates, AreWrittenAsEachLanguageDoes) {
  using desktop::DateForm;
  const struct {
    DateForm Form;
    const char *Long, *Plain, *Month, *Short;
  } kForms[] = {
      {DateForm::Iso, "Monday, 2002-07-08", "2002-07-08", "2002-07", "2002-07-08"},
      {DateForm::French, "lundi 8 juillet 2002", "8 juillet 2002", "juillet 2002", "08/07/02"},
      {DateForm::Spanish, "lunes, 8 de julio de 2002", "8 de julio de 2002", "julio de 2002",
       "08/07/02"},
      {DateForm::Italian, "luned\u00EC 8 luglio 2002", "8 luglio 2002", "luglio 2002", "08/07/02"},
      {DateForm::Portuguese, "segunda-feira, 8 de julho de 2002", "8 de julho de 2002",
       "julho de 2002", "08/07/02"},
      {DateForm::Japanese, "2002\u5E747\u67088\u65E5\u6708\u66DC\u65E5", "2002\u5E747\u67088\u65E5",
       "2002\u5E747\u6708", "02/07/08"},
      {DateForm::Game, "Monday, 08 July 2002", "08 July 2002", "July 2002", "08/07/02"}};
  for (const auto& form : kForms) {
    desktop::UseDateForm(form.Form);
    EXPECT_EQ(desktop::Dated("Monday, 08 July 2002"), QString::fromUtf8(form.Long));
    EXPECT_EQ(desktop::Dated("since 08 July 2002"), QString::fromUtf8("since ") + form.Plain);
    EXPECT_EQ(desktop::Dated("July 2002"), QString::fromUtf8(form.Month));
    EXPECT_EQ(desktop::Dated("Mail, 08/07/02: 3"), QString("Mail, %1: 3").arg(form.Short));
    for (const char* none : {"31 June 2002", "40/07/02", "7/10/02", "308/07/02"})
      EXPECT_EQ(desktop::Dated(none), none);
  }
  desktop::UseDateForm(DateForm::French);
  EXPECT_EQ(desktop::DatedAlone("July"), "juillet");
  EXPECT_EQ(desktop::DatedAlone("Friday"), "vendredi");
  EXPECT_EQ(desktop::DatedAlone("08 Jul"), "08/07");
  EXPECT_EQ(desktop::DatedAlone("08 Jul 2002"), "08/07/02");
  EXPECT_EQ(desktop::DatedAlone("31 Jun 2002"), "31 Jun 2002");
  EXPECT_EQ(desktop::DatedAlone("Main Event"), "Main Event");
  EXPECT_EQ(desktop::Dated("July"), "July") << "it may be somebody's name";
  EXPECT_NE(desktop::WithShortNames(desktop::Dated("08 July 2002")),
            desktop::WithShortNames(desktop::Dated("08 June 2002")))
      << "juin is not juillet";
  desktop::UseDateForm(DateForm::Game);
}

TEST(TheSounds, AreABellThatDiesAwayAndACrowdThatSwells) {
  const auto loudness = [](const std::vector<std::int16_t>& samples, double from, double to) {
    double sum = 0;
    for (double second = from; second < to; second += 1.0 / desktop::kSamplesASecond)
      sum += std::abs(samples.at(static_cast<std::size_t>(second * desktop::kSamplesASecond)));
    return sum / (to - from);
  };
  const auto bell = desktop::SamplesOf(ui::Sound::Bell),
             crowd = desktop::SamplesOf(ui::Sound::Crowd);
  EXPECT_GT(loudness(bell, 0, 0.2), 3 * loudness(bell, 1, 1.2));
  EXPECT_GT(loudness(crowd, 0.8, 1), 3 * loudness(crowd, 0, 0.2));
  EXPECT_GT(loudness(crowd, 0.8, 1), 3 * loudness(crowd, 3.5, 3.7));
  for (const auto& samples : {bell, crowd}) EXPECT_EQ(samples.back(), 0);
  EXPECT_EQ(crowd, desktop::SamplesOf(ui::Sound::Crowd));
}

TEST_F(TheOptions, AreFoundAsCommands) {
  Begin();
  Find("High contrast");
  EXPECT_EQ(&desktop::ColoursOf(Play->See("cmdnext")), &desktop::ContrastColours());
  Find("light");
  Find("dark");
  EXPECT_EQ(&desktop::ColoursOf(Play->See("cmdnext")), &desktop::DarkColours())
      << "what is called so goes before what was chosen last";
  Find("text 150");
  EXPECT_EQ(Play->Window.Kept().Zoom() + desktop::DesktopText(), 20) << "of usually 13";
  Find("text 100");
  Find("Window scale: 125%");
  EXPECT_EQ(Play->Window.Kept().Scale(), 125);
  Find("Full screen");
  EXPECT_TRUE(Play->Window.isFullScreen());
  Find("Change keys");
  EXPECT_EQ(Play->Top(), "frmWindow");
}

TEST_F(TheOptions, AreFoundByWhatPeopleCallThem) {
  Begin();
  const std::pair<const char*, const char*> words[] = {{"theme", "High contrast"},
                                                       {"dark", "Dark colours"},
                                                       {"light", "Light colours"},
                                                       {"text size", "Larger text"},
                                                       {"volume", "Sound on"},
                                                       {"language", "Dates: German"},
                                                       {"animat", "Nothing moves by itself"},
                                                       {"scale", "Window scale: 125%"},
                                                       {"share", "Copy this page as HTML"},
                                                       {"clipboard", "Copy this page as Markdown"},
                                                       {"screenshot", "Save this page to a file"}};
  for (const auto& [typed, found] : words) {
    Play->Key(Qt::Key_K, Qt::ControlModifier);
    Play->Type(typed);
    const auto* list = dynamic_cast<QListWidget*>(Play->See("finderlist"));
    EXPECT_FALSE(list->findItems(found, Qt::MatchExactly).isEmpty()) << typed;
    Play->Key(Qt::Key_Escape);
  }
}

TEST_F(TheOptions, LeaveThePageItselfToBeShared) {
  Begin();
  Play->Open(std::make_unique<PeoplePage>(Play->Desk, Notes));
  Find("Copy this page as Markdown");
  EXPECT_TRUE(QApplication::clipboard()->text().startsWith("# People\n\n| \\# | Name |"));
  Find("Copy this page as a picture");
  EXPECT_FALSE(QApplication::clipboard()->image().isNull());
  const auto height = [] { return QApplication::clipboard()->image().height(); };
  Find("Copy all words of this page as a picture");
  const int ofAll = height();
  dynamic_cast<PeoplePage&>(*Play->Desk.Top()).lstpeople.Clear();
  Play->Window.Sync();
  Find("Copy all words of this page as a picture");
  EXPECT_LT(height(), ofAll) << "the picture is as high as its words";
  const desktop::Shareable wide = desktop::WordsToShare([](ui::Form) {
    std::string cells;
    for (int column = 0; column < 20; ++column) cells += "<td>Champion</td>";
    return "<table><tr>" + cells + "</tr></table>";
  });
  const int word = QFontMetrics(desktop::TextFont()).horizontalAdvance("Champion");
  EXPECT_GT(wide.Picture().width(), 20 * word) << "no word is broken";
  const desktop::Shareable page = desktop::PageToShare(
      *Play->Desk.Top(), dynamic_cast<desktop::ScreenView&>(*Play->See("frmPeople")));
  const QString file = QString::fromStdString(folder_ / "people.");
  for (const auto& [ending, start] : {std::pair("md", "# People"),
                                      {"html", "<!DOCTYPE html>"},
                                      {"txt", "[size=150]"},
                                      {"png", "\x89PNG"}}) {
    EXPECT_EQ(desktop::WriteShared(file + ending, page), "");
    QFile written(file + ending);
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_TRUE(written.readAll().startsWith(start)) << ending;
  }
  const QString nowhere = QString::fromStdString(folder_ / "no/where.md");
  EXPECT_TRUE(desktop::WriteShared(nowhere, page).startsWith("Could not write " + nowhere));
}

TEST_F(TheOptions, FillTheScreenByF11) {
  Begin();
  for (const bool full : {true, false}) {
    Play->Key(Qt::Key_F11);
    EXPECT_EQ(Play->Window.isFullScreen(), full);
  }
}

TEST(TheDesktopsColours, AreFollowedWhileItRunsUntilThePlayerChoosesOthers) {
  Player play;
  desktop::DesktopColours desktop([&](bool dark) { play.Window.FollowDesktop(dark); });
  const auto turn = [&](uint preference, const char* key = "color-scheme") {
    desktop.Heard("org.freedesktop.appearance", key, QDBusVariant(preference));
    return desktop::ColoursOf(&play.Window).Dark;
  };
  play.Window.SetColours(desktop::Scheme::System);
  EXPECT_FALSE(turn(2));
  EXPECT_FALSE(turn(1, "accent-color"));
  EXPECT_TRUE(turn(1));
  EXPECT_FALSE(turn(0)) << "back to the usual style of a desktop that has a dark one beside it";
  EXPECT_TRUE(turn(1));
  desktop.Heard("org.freedesktop.appearance", "color-scheme",
                QDBusVariant(QVariant::fromValue(QDBusVariant(2u))));
  EXPECT_FALSE(desktop::ColoursOf(&play.Window).Dark) << "as the first answer is wrapped";
  play.Window.SetColours(desktop::Scheme::Light);
  EXPECT_FALSE(turn(1)) << "the player's own";
  play.Window.SetColours(desktop::Scheme::System);
  EXPECT_TRUE(desktop::ColoursOf(&play.Window).Dark) << "back to what the desktop has by now";
}

}  // namespace
}  // namespace grapplemont::test
