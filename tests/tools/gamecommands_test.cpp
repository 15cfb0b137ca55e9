#include <nlohmann/json.hpp>

#include "support/checkout.h"
#include "toolhome.h"

namespace grapplemont::test {
namespace {

class GameCommands : public ToolHome {
 protected:
  std::string New(const std::string& slot, const std::string& seed,
                  const std::string& promotion = "CWA") {
    return Say("new --home H --slot " + slot + " --player Pat --promotion " + promotion +
               " --difficulty 3 --start 2026-03-09 --seed " + seed);
  }
  std::string Days(const std::string& slot, const std::string& days, const std::string& more = "",
                   bool terminal = false) {
    return Say(
        "run --home H --slot " + slot + " --days " + days + " --seed 4 --shows cancel" + more,
        terminal);
  }
  World Saved(const std::string& slot) {
    return WorldOf(Slot(*Machine, In("s" + slot), KnownFiles()));
  }
};

TEST_F(GameCommands, NewBeginsTheGameThatWasChosen) {
  BuildSmallData();
  EXPECT_EQ("Slot 2: Pat takes over CWA Wrestling (Hard) on Wednesday, 01 April 2026.\n",
            New("2", "11"));
  const World world = Saved("2");
  EXPECT_EQ("Pat", world.Game().PlayerName.View());
  EXPECT_EQ("Save Game 2", world.Game().SaveName.View());
  EXPECT_EQ("CWA", world.Player().Initials.View());
  EXPECT_EQ(kHard, world.Game().Difficulty);
  ExpectSound(world);
}

TEST_F(GameCommands, NewMakesTheSameWorldFromTheSameSeed) {
  BuildSmallData();
  // A game takes the place of another.
  for (const auto& [slot, seed] : {std::pair("1", "11"), {"2", "11"}, {"1", "12"}, {"3", "12"}})
    New(slot, seed);
  const auto wrestlers = [&](const char* slot) { return RecordFiles(slot).at("wrestler.dat"); };
  EXPECT_TRUE(wrestlers("s1") == wrestlers("s3"));
  EXPECT_FALSE(wrestlers("s1") == wrestlers("s2"));
}

TEST_F(GameCommands, NewSaysWhatIsNotThere) {
  std::filesystem::create_directories(In("data"));
  EXPECT_EQ(
      "[grapplemont-world new: H/data/belt.dat is missing. Build the default world first.\n]=1",
      New("1", "1"));
  BuildSmallData();
  EXPECT_EQ(
      "[grapplemont-world new: promos.dat: no promotion has the initials CWAA; did you mean CWA?\n"
      "]=1",
      New("1", "1", "CWAA"));
  EXPECT_FALSE(std::filesystem::exists(In("s1")));
  EXPECT_EQ(
      "[grapplemont-world new: \"H/none\" is not there. Make that folder first, or leave --home "
      "out "
      "and play where your games are usually kept.\n]=1",
      Say("new --home H/none --slot 1 --player P --promotion CWA"));
}

TEST_F(GameCommands, BookIsAPageOfHtmlAndNothingElse) {
  BuildSmallData();
  New("1", "1");
  EXPECT_NE(Say("book H/s1 H/chronicle.html").find("chapters"), std::string::npos);
  EXPECT_TRUE(Read("chronicle.html").starts_with("<!DOCTYPE html>"));
  EXPECT_NE(Say("book H/s1 H/chronicle.pdf").find("page of HTML"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(In("chronicle.pdf"))) << "which no reader could open";
}

TEST_F(GameCommands, RunPlaysTheDaysAndKeepsThem) {
  BuildSmallData();
  New("1", "11");
  EXPECT_EQ(
      "[Slot 1: its record ends here. What is run is not the player's: it can be played again up "
      "to "
      "this day and no further.\n]After 45 days it is Saturday, 16 May 2026.\n",
      Days("1", "45"));
  const World world = Saved("1");
  EXPECT_EQ(Day(std::chrono::year{2026} / 5 / 16), world.Today());
  ExpectSound(world);
  EXPECT_EQ("After 0 days it is Saturday, 16 May 2026.\n", Days("1", "0"));
  EXPECT_EQ("[\r2026-05-17, day 1 of 1\r\x1B[K]After 1 day it is Sunday, 17 May 2026.\n",
            Days("1", "1", "", true))
      << "only a terminal hears of the progress";
}

TEST_F(GameCommands, RunGivesTheSameBytesFromTheSameSeed) {
  BuildSmallData();
  New("1", "11");
  Days("1", "70");
  const World synced = Saved("1");
  New("1", "11");
  Days("1", "70", " --no-sync");
  ExpectSame(Saved("1"), synced);
}

TEST_F(GameCommands, RunSumsUpEveryMonth) {
  BuildSmallData();
  New("1", "11");
  Days("1", "61", " --stats H/stats");
  std::istringstream lines(Read("stats"));
  std::vector<nlohmann::json> months;
  for (std::string line; std::getline(lines, line);) months.push_back(nlohmann::json::parse(line));
  ASSERT_EQ(2u, months.size());
  EXPECT_EQ("2026-05-01", months[0]["date"]);
  const World world = Saved("1");
  const nlohmann::json& last = months[1];
  EXPECT_EQ("2026-06-01", last["date"]);
  const std::string size(SizeText(world.Player().Size));  // every show has been called off
  EXPECT_NE("Cult", size);
  EXPECT_GE(last["promotions"][size], 1);
  EXPECT_EQ(world.Promotions().Count(), last["promotions"]["all"]);
  EXPECT_EQ("CWA", last["player"]["promotion"]);
  EXPECT_EQ(int(world.Player().Money), last["player"]["money"]);
  EXPECT_EQ(world.News().Count(), last["mails"]);
  EXPECT_EQ(world.Shows().Count(), last["shows"]);
  EXPECT_EQ(world.Titles().Count(), last["titles"]["all"]);
  int employed = 0, over = 0;
  for (const Worker& worker : world.Workers())
    if (worker.Employer != 0) {
      ++employed;
      over += worker.Over;
    }
  EXPECT_EQ(employed, last["workers"]["employed"]);
  EXPECT_EQ(world.Workers().Count() - employed, last["workers"]["free"]);
  EXPECT_NEAR(double(over) / employed, last["workers"]["meanOver"].get<double>(), 0.005 + 1e-9)
      << "rounded to two places";
}

TEST_F(GameCommands, RunStopsWhenTheCareerEnds) {
  for (const auto& [code, said] :
       {std::pair(3,
                  "The career has ended before (reason 3): it is Sunday, 01 March 2026, and no day "
                  "passes. Load the game to go back in time or to take another chair.\n"),
        {int(kStrangerWaits), "After 3 days it is Wednesday, 04 March 2026.\n"}}) {
    MakeSlot("1", Small().Game("CWA", kGameStart,
                               [code = code](GameInfo& game) { game.EndCode = code; }));
    EXPECT_EQ(said, Days("1", "3"));
  }
}

TEST_F(GameCommands, RunSaysWhyASlotCannotBePlayed) {
  EXPECT_EQ("[grapplemont-world run: Slot 4 is empty.\n]=1", Days("4", "1"));
  MakeSlot("1", Small()
                    .Game("CWA", kGameStart, [](GameInfo& game) { game.Version = "Version 1.0"; })
                    .BuildUnchecked());
  EXPECT_EQ("[grapplemont-world run: Slot 1: Save Slot Not In 2.0 Format.\n]=1", Days("1", "1"));
  MakeSlot("2", Small().Game("CWA"));
  Slot held(*Machine, In("s2"), KnownFiles());
  const std::string busy = Days("2", "1");
  EXPECT_EQ(1, std::count(busy.begin(), busy.end(), '\n')) << busy;
  EXPECT_TRUE(busy.ends_with("\n]=1")) << busy;
}

// Pages of docs/ that a command prints are committed, and stay what it prints.

using ToolPages = ToolHome;

std::string Document(const std::string& name) {
  std::ifstream file(Checkout("/docs/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(ToolPages, AreWhatTheCommandsPrint) {
  EXPECT_TRUE(Document("file-formats.md") == Say("formats"))
      << "Run: grapplemont-world formats >docs/file-formats.md";
  const std::string begin = "<!-- columns -->\n", end = "\n<!-- end of columns -->\n";
  EXPECT_NE(std::string::npos, Document("world-making.md").find(begin + Say("columns") + end))
      << "Put what grapplemont-world columns prints between the marks of docs/world-making.md.";
  Say("build " + Checkout("/world") + " H/data");
  EXPECT_TRUE(Document("balance.md") == Say("balance H/data"))
      << "Run: grapplemont-world balance data >docs/balance.md";
}

}  // namespace
}  // namespace grapplemont::test
