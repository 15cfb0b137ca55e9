#include <algorithm>

#include "session/build.h"
#include "toolhome.h"

namespace grapplemont::test {
namespace {

using TableCommands = ToolHome;
namespace fs = std::filesystem;

TEST_F(TableCommands, BuildAndExportGoThereAndBack) {
  BuildSmallData();
  EXPECT_EQ(kDataSet.size(), RecordFiles("data").size());
  EXPECT_EQ("Wrote the tables of 2 promotions, 14 workers, 1 staff to H/tables.\n",
            Say("export H/data/ H/tables"));
  Say("build H/tables H/again");
  EXPECT_TRUE(RecordFiles("data") == RecordFiles("again"));
  EXPECT_EQ(Read("world/workers.csv"), Read("tables/workers.csv"));
  EXPECT_EQ("No faults: 2 promotions, 14 workers, 1 staff.\n", Say("check H/again"));
}

TEST_F(TableCommands, BuildLeavesTheOldWorldWhereATableIsWrong) {
  BuildSmallData();
  const auto before = RecordFiles("data");
  std::string titles = Read("world/titles.csv");
  Write("world/titles.csv", titles.replace(titles.find("CWA Hand 1"), 10, "CWA Hand X"));
  fs::remove(In("world/events.csv"));
  EXPECT_EQ(
      "[events.csv: is missing; a table without records has only its header\n"
      "1 mistake; nothing was built.\n]=1",
      Say("build H/world H/data"));
  Write("world/events.csv", "Name,Owner,Month,Type\n");
  EXPECT_EQ(
      "[titles.csv, line 2, column Holder: no worker has the name CWA Hand X; did you mean CWA "
      "Hand 1?\n1 mistake; nothing was built.\n]=1",
      Say("build H/world H/data"));
  EXPECT_TRUE(before == RecordFiles("data"));
  EXPECT_FALSE(fs::exists(In("data.new")));
}

TEST_F(TableCommands, BuildKeepsItsHandsOffWhatIsNoWorld) {
  BuildSmallData();
  Write("data/mine.txt", "keep me");
  BuildSmallData();
  MakeSlot("1", Small().Game("CWA"));
  const auto saved = RecordFiles("s1");
  EXPECT_EQ(
      "[grapplemont-world build: \"H/s1\" holds a saved game. Name another folder for the world.\n"
      "]=1",
      Say("build H/world H/s1"));
  EXPECT_TRUE(saved == RecordFiles("s1"));
  Say("export H/s1 H/game");
  EXPECT_EQ(
      "[grapplemont-world build: \"H/data\" holds other files. Name an empty folder for the saved "
      "game.\n]=1",
      Say("build H/game H/data"));
  EXPECT_EQ("keep me", Read("data/mine.txt"));
  Write("world.new/mine.txt", "keep me");
  EXPECT_TRUE(Say("build H/world H/world").ends_with("=1"));
  EXPECT_EQ("keep me", Read("world.new/mine.txt"));
}

TEST_F(TableCommands, ExportTakesASavedGameWithAllThatItsJournalHolds) {
  MakeSlot("1", Small().Game("CWA").Mail("Maeve", "First"));
  {
    // Left without a checkpoint, as by a program that was killed.
    Slot slot(*Machine, In("s1"), KnownFiles());
    World world = WorldOf(slot);
    world.Workers()[1].Over = 77;
    slot.Commit(world.Changes());
  }
  Say("export H/s1 H/tables");
  EXPECT_EQ("No faults: 2 promotions, 14 workers, 1 staff.\n", Say("check H/s1"));
  Say("build H/tables H/s2");
  EXPECT_TRUE(RecordFiles("s1") == RecordFiles("s2"));
  Slot slot(*Machine, In("s2"), KnownFiles());
  EXPECT_EQ(77, WorldOf(slot).Workers()[1].Over);
  EXPECT_EQ("First", WorldOf(slot).News()[1].Body.View());
  EXPECT_TRUE(Say("check H/s2").ends_with("]=1")) << "another program plays it";
}

TEST_F(TableCommands, ExportTakesNobodysFilesAway) {
  BuildSmallData();
  Write("tables/notes.txt", "Without a game's tables beside them notes are somebody's own.");
  EXPECT_EQ(
      "[grapplemont-world export: H/tables holds other things, such as notes.txt. Name a new "
      "folder.\n]=1",
      Say("export H/data H/tables --replace"));
  Write("tables/game.csv", "PlayerName\n");
  Write("tables/mine.csv", "Word\n");
  EXPECT_EQ(
      "[grapplemont-world export: H/tables holds other things, such as mine.csv. Name a new "
      "folder.\n]=1",
      Say("export H/data H/tables/ --replace"));
  fs::remove(In("tables/mine.csv"));
  EXPECT_EQ(
      "[grapplemont-world export: H/tables holds game.csv and notes.txt. With --replace the tables "
      "of the world "
      "are put in their place.\n]=1",
      Say("export H/data H/tables"));
  EXPECT_TRUE(fs::exists(In("tables/game.csv")));
  Say("export H/data H/tables --replace");
  EXPECT_FALSE(fs::exists(In("tables/game.csv")));
  EXPECT_TRUE(Say("export H/data /").ends_with("=1"));
}

TEST_F(TableCommands, CheckListsEveryFault) {
  World world = Small();
  world.Workers()[2].Employer = 99;
  world.Shows()[1].Day = "Tonight";
  for (const NewFile& file : FilesOf(world))
    if (file.Name != "event.dat") {
      std::string bytes(reinterpret_cast<const char*>(file.Contents.data()), file.Contents.size());
      Write("odd/" + file.Name, file.Name == "teams.dat" ? bytes + "xyz" : bytes);
    }
  const std::string checked = Say("check H/odd");
  for (const char* line :
       {"event.dat: is missing\n", "teams.dat: ends in 3 bytes that are not a whole record\n",
        "wrestler.dat, record 2 (CWA Hand 2), Employer: is 99, but there is no such promotion\n",
        "tv.dat, record 1 (Friday Fire), Day: is \"Tonight\", no known code\n"})
    EXPECT_NE(std::string::npos, checked.find(line)) << line << "in\n" << checked;
  EXPECT_TRUE(checked.ends_with("=1"));
  EXPECT_TRUE(Say("export H/odd H/tables").starts_with("[H/odd has "));
  EXPECT_NE(
      std::string::npos,
      Say("build H/tables H/data").find("shows.csv, line 2, column Day: there is no \"Tonight\""));
}

TEST_F(TableCommands, SayWhatFolderIsNoneInUtf8WhateverIsTyped) {
  Write("file", "x");
  fs::create_directories(In("empty"));
  const std::pair<const char*, std::string> kRows[] = {
      {"check H/nowhere", "check: \"H/nowhere\" is not a folder."},
      {"check H/file", "check: \"H/file\" is not a folder."},
      {"check H/caf\xE9", "check: \"H/caf\xC3\xA9\" is not a folder."},
      {"check H/caf\xC3\xA9", "check: \"H/caf\xC3\xA9\" is not a folder."},
      {"check H/empty", "check: \"H/empty\" holds no file of a world."},
      {"export H/empty H/t", "export: \"H/empty\" holds no file of a world."},
      {"build H/nowhere H/d", "build: \"H/nowhere\" is not a folder."}};
  for (const auto& [typed, why] : kRows)
    EXPECT_EQ("[grapplemont-world " + why + "\n]=1", Say(typed));
  Write("huge/wrestler.dat", std::string(std::size_t{237} * 25001, ' '));
  EXPECT_NE(std::string::npos, Say("check H/huge").find("wrestler.dat"));
}

using ToolUsage = ToolHome;

TEST_F(ToolUsage, RefusesWhatMakesNoSense) {
  const std::string begin = "new --slot 1 --promotion CWA --player ",
                    play = "run --slot 1 --days 1 ";
  const std::pair<std::string, std::string> kRows[] = {
      {"", ": a command is missing"},
      {"--home H run", ": \"--home\" stands where the command belongs; options come behind it"},
      {"biuld", ": there is no command \"biuld\"; did you mean build?"},
      {"build a", " build: something is missing"},
      {"build a b c", " build: \"c\" is one word too many"},
      {"check --fast a", " check: there is no option \"--fast\""},
      {"new --slot 1 --player Pat", " new: --promotion is missing"},
      {begin + " ", " new: --player needs a name"},
      {begin + std::string(26, 'x'), " new: --player has room for 25 letters"},
      {begin + "\xC5\x81", " new: --player has a letter that the game cannot hold"},
      {"new --slot 9 --promotion CWA --player Pat",
       " new: --slot needs a whole number from 1 to 8, not \"9\""},
      {begin + "Pat --difficulty 0",
       " new: --difficulty needs a whole number from 1 to 4, not \"0\""},
      {begin + "Pat --start 1.3.2026",
       " new: --start needs a date such as 2026-03-01, not \"1.3.2026\""},
      {begin + "Pat --start 9999-12-31", " new: --start needs a year from 1900 to 9000"},
      {"run --slot 1 --days -3", " run: --days needs a whole number from 0 to 100000, not \"-3\""},
      {play + "--days 2", " run: --days stands there twice"},
      {play + "--stats", " run: --stats needs a value, FILE"},
      {play + "--shows all", " run: --shows is \"auto\" or \"cancel\", not \"all\""},
      {play + "--sede 1", " run: there is no option \"--sede\"; did you mean --seed?"}};
  for (const auto& [typed, why] : kRows) {
    const std::string said = Say(typed);
    EXPECT_TRUE(said.starts_with("[grapplemont-world" + why + "\nusage: ")) << said;
    EXPECT_TRUE(said.ends_with("]=2")) << said;
    EXPECT_EQ(std::ranges::count(said, '\n'), 2) << "nothing pushes the sentence out of sight";
  }
}

TEST_F(ToolUsage, HelpsOnEveryCommand) {
  const std::string all = Say("--help");
  for (const std::string command :
       {"build", "export", "check", "new", "run", "soak", "formats", "columns"}) {
    EXPECT_NE(std::string::npos, all.find("\n  " + command)) << command;
    for (const char* help : {" --help", " --home H -h"})
      EXPECT_TRUE(Say(command + help).starts_with("usage: grapplemont-world " + command));
  }
  EXPECT_EQ(all, Say("-h"));
  EXPECT_EQ(all, Say("help"));
  EXPECT_EQ(std::string("grapplemont-world ") + kProgramVersion + "\n", Say("--version"));
  EXPECT_EQ(
      "usage: grapplemont-world new [--home FOLDER] --slot N --player NAME --promotion INITIALS "
      "[--difficulty 1..4] [--start YYYY-MM-DD] [--seed S] [--voice 0..2]",
      Say("new --help").substr(0, Say("new --help").find('\n')))
      << "read from the options that it takes";
}

using TellCommand = ToolHome;
constexpr const char* kTell = "tell --home H --slot 1 --seed 4";

TEST_F(TellCommand, PrintsTheNextShowInAnyVoiceAndLeavesTheGameAsItIs) {
  MakeSlot("1", Small().Game("CWA"));
  const auto before = RecordFiles("s1");
  const std::string told = Say(kTell);
  EXPECT_TRUE(
      told.starts_with("Event Report For Friday Fire\nFriday, 06 March 2026\n"
                       "Reported By Rafe Tolland\n\n"))
      << told;
  for (const char* part : {"\nMatch Details\n1 vs 1, ", "\nWinner : CWA Hand ",
                           "\n\nMatch Quality ", "%, Overall Rating ", "\n\nThe show: "})
    EXPECT_NE(std::string::npos, told.find(part)) << part << " in\n" << told;
  EXPECT_EQ(std::string::npos, told.find("\n\n\n"));
  const std::string live = Say(std::string(kTell) + " --voice 2");
  EXPECT_NE(std::string::npos, live.find("Reported By QVD\n"));
  const auto winner = [](const std::string& report) {
    const auto at = report.find("\nWinner : ") + 1;
    return report.substr(at, report.find('\n', at) - at);
  };
  EXPECT_EQ(winner(told), winner(live)) << "a voice changes no result";
  EXPECT_TRUE(Say(std::string(kTell) + " --voice 3").ends_with("=2"));
  EXPECT_TRUE(before == RecordFiles("s1"));
  EXPECT_EQ(told, Say(kTell)) << "the same from the same seed";
}

TEST_F(TellCommand, PassesShowsOnTheWayToAnEvent) {
  MakeSlot("1", Small().Game("CWA"));
  EXPECT_TRUE(Say(std::string(kTell) + " --event")
                  .starts_with("Event Report For CWA in March\nSunday, 29 March 2026\n"));
}

TEST_F(TellCommand, SaysWhyThereIsNothingToTell) {
  EXPECT_EQ("[grapplemont-world tell: Slot 1 is empty.\n]=1", Say(kTell));
  MakeSlot("1", SmallWorld().Promotion("CWA").Owner("Ruth Vane").Crew(8).Game("CWA"));
  EXPECT_EQ("[grapplemont-world tell: There is no show that the roster could fill.\n]=1",
            Say(kTell));
}

}  // namespace
}  // namespace grapplemont::test
