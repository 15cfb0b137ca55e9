#include <gtest/gtest.h>

#include <fstream>

#include "calendar/guide.h"
#include "calendar/guidesteps.h"
#include "info/screens/glossary.h"
#include "info/screens/glossaryfigures.h"
#include "info/screens/helpscreens.h"
#include "program/richworld.h"
#include "records/modVar.h"
#include "support/checkout.h"
#include "support/gameonworld.h"
#include "support/homefolder.h"

namespace grapplemont::test {
namespace {

TEST(Help, HasAnEntryForEveryScreen) {
  const auto names = ScreenNames();
  EXPECT_GT(names.size(), 100U);
  for (const std::string& name : names)
    EXPECT_TRUE(name == "frmHelp" || HasHelp(name)) << name << ": words/help.txt lacks it";
}

TEST(Help, TellsWhatAPageIsForItsKeysItsWordsAndWhatIsNotPossible) {
  GameOnWorld play(RichWorld().Game("CWA"));
  play.Desk.Open("frmShortlist");
  EXPECT_TRUE(play.Desk.OpenHelp());
  ASSERT_EQ(play.Desk.TopName(), "frmHelp");
  const std::string text = play.Desk.Text("txthelp") + "\n" + play.Desk.Text("txtkeys");
  for (const char* part : {"Whom you keep an eye on", "Keys\n", "Enter \x96 Talks",
                           "Escape \x96 Back", "Words\n", "Over: How many people care",
                           "0 to 100%.", "Not possible now\n", "Remove: Choose a worker first."})
    EXPECT_NE(text.find(part), std::string::npos) << part << " is missing in\n" << text;
  EXPECT_FALSE(play.Desk.OpenHelp()) << "help needs no help";
  play.Desk.Click("cmdglossary");
  play.Desk.Pick("lstterms", "Condition");
  EXPECT_NE(play.Desk.Text("txtterm").find("Under 40 injuries are twice as likely."),
            std::string::npos);
}

TEST(Help, TellsTheImageOfATitleFromAPromotions) {
  GameOnWorld play(RichWorld().Game("CWA"));
  play.Desk.Open("frmBelts");
  ASSERT_TRUE(play.Desk.OpenHelp());
  const std::string text = play.Desk.Text("txthelp");
  EXPECT_NE(text.find("\nTitle image: "), std::string::npos) << text;
  EXPECT_EQ(text.find("\nImage: "), std::string::npos) << text;
}

TEST(Glossary, KnowsTheShortHeadingsAndEveryFieldItsTableNames) {
  const std::pair<const char*, const char*> kHeadings[] = {{"Disp.", "Disposition"},
                                                           {"cond.", "Condition"},
                                                           {"Tech.", "Technical"},
                                                           {"Gate", "Attendance"}};
  for (const auto& [heading, term] : kHeadings) {
    ASSERT_TRUE(FindTerm(heading)) << heading;
    EXPECT_EQ(FindTerm(heading)->Name, term);
  }
  EXPECT_EQ(FindTerm("Disposition")->Range, "Face, Heel or Tweener");
  EXPECT_FALSE(FindTerm("Gibberish"));
  EXPECT_FALSE(FindTerm("Loading set")) << "only the program reads it";
  std::ifstream in(Checkout("/words/glossary.txt"));
  int rows = 0;
  for (std::string line; std::getline(in, line);) {
    const auto bar = line.find(" | ");
    if (line.starts_with('#') || bar == line.npos || line.starts_with("Term |")) continue;
    const GlossaryTerm* term = FindTerm(line.substr(0, bar));
    ASSERT_TRUE(term) << line << ": no field is called so";
    ++rows;
  }
  EXPECT_GT(rows, 40);
}

/// Numbers in braces come from the rules.
TEST(Glossary, FillsEveryFigureFromItsRule) {
  std::ifstream in(Checkout("/words/glossary.txt"));
  const std::string text{std::istreambuf_iterator<char>(in), {}};
  int figures = 0;
  for (auto at = text.find('{'); at != text.npos; at = text.find('{', at + 1), ++figures) {
    const std::string slot = text.substr(at + 1, text.find('}', at) - at - 1);
    EXPECT_FALSE(GlossaryFigure(slot).empty()) << slot;
  }
  EXPECT_GT(figures, 60);
  for (const GlossaryTerm& term : Glossary())
    EXPECT_EQ((term.Range + term.Means + term.Moves).find('{'), std::string::npos) << term.Name;
  const std::pair<const char*, const char*> kTold[] = {
      {"Over", "one that fails costs 11 to 25."},
      {"Condition", "A match costs 4 to 50 by its Strain."},
      {"Morale", "one below costs 3 to 17 by Attitude"},
      {"Image", "by -15 to 25 with the size. Difficulty moves it by 1 to -3 a show"},
      {"Heat", "by 1 to 15 at a time; talk alone lifts none beyond 75 to 90."},
      {"Production", "$1,000 to $22,000 a point"},
      {"Ticket price", "more at each step: 5, 15, 30."},
      {"Loan", "up to 8% of the whole sum"},
      {"Loan", "whoever has 25% of it in hand"},
      {"Pay", "brings 25% or 10% of it"},
      {"Standing", "100 a class, and the image"},
      {"OverFloor", "to 30 for whoever has an Over of 51"}};
  for (const auto& [term, words] : kTold)
    EXPECT_NE((FindTerm(term)->Means + FindTerm(term)->Moves).find(words), std::string::npos)
        << term << ": " << FindTerm(term)->Moves;
}

TEST(Guide, CountsWhoeverIsTakenFromARivalAsSigned) {
  World world = RichWorld().Game("CWA");
  GuideState guide{};
  guide.Tour = static_cast<int>(Tour::Backyard);
  world.Guides().Rewrite({guide});
  NoteDeed(world, kDeedStolen, &world.Player(), world.Workers()[1], "Rivals");
  WatchGuide(world, {});
  EXPECT_TRUE(world.Guides()[1].Done[3]);
}

TEST(Guide, WatchesTheFirstWeekAndIsClosedForGood) {
  HomeFolder home(RichWorld());
  home.StartNewGame();
  ScriptDesk& desk = home.Desk;
  ASSERT_TRUE(desk.Visible("txtguide"));
  World& world = home.Play.World();
  const auto isDone = [&](int step) -> bool {
    return world.Guides()[1].Done[static_cast<std::size_t>(step - 1)];
  };
  EXPECT_TRUE(desk.Text("txtguide").starts_with("Step 1 of 8: See who draws\nOpen Roster."))
      << desk.Text("txtguide");
  EXPECT_FALSE(isDone(1));
  desk.Click("cmdstep");
  ASSERT_EQ(desk.TopName(), "frmRoster") << "the step leads to the page that it is about";
  desk.Top()->Layout();
  EXPECT_TRUE(desk.Visible("lblguide"));
  desk.Click("cmdback");
  EXPECT_TRUE(isDone(1));
  EXPECT_FALSE(isDone(2));
  EXPECT_TRUE(desk.Text("txtguide").starts_with("Step 2 of 8: "));
  desk.Click("cmdfeud");
  desk.Top()->Layout();
  EXPECT_TRUE(desk.Visible("lblguide"));
  Feud& feud = world.Feuds()[1];
  feud.Singles = true;
  feud.Worker1 = int(world.Workers()[1].Uid);
  feud.Worker2 = int(world.Workers()[2].Uid);
  desk.Pick("lstfeuds", 1);
  EXPECT_FALSE(desk.Visible("lblguide")) << "the open page says no step that is done";
  desk.Click("cmdback");
  EXPECT_TRUE(isDone(5)) << "what has come about counts, whatever came before";
  HistoryEntry held{};
  held.Kind = kPastTv;
  held.Promotion = world.PlayerUid();
  held.Name = "Monday";
  world.History().Append(held);
  desk.Click("cmdstaff");
  desk.Click("cmdback");
  EXPECT_TRUE(desk.Text("txtguide").starts_with("Step 8 of 8: ")) << "the first show has been held";
  EXPECT_NE(desk.Text("txtguide").find("Left out so far: 2 "), std::string::npos)
      << desk.Text("txtguide");
  EXPECT_TRUE(GuideOnPage(world, "frmMorning", 0).starts_with("Your first show, step 8: "));
  desk.Click("cmdresults");
  desk.Click("cmdback");
  EXPECT_EQ(GuideOnPage(world, "frmMorning", 0), "") << "the first morning has been read";
  EXPECT_TRUE(desk.Text("txtguide").starts_with("Step 2 of 8, left out so far: "))
      << desk.Text("txtguide");
  desk.Click("cmdguide");
  EXPECT_FALSE(desk.Visible("txtguide"));
  home.Play.CloseSlot();
  home.Play.OpenSlot(1);
  EXPECT_TRUE(home.Play.World().Guides()[1].Closed);
}

}  // namespace
}  // namespace grapplemont::test
