#include "toolhome.h"

namespace grapplemont::test {
namespace {

using TableCommands = ToolHome;
namespace fs = std::filesystem;

TEST_F(TableCommands, BuildAndExportGoThereAndBack) {
  WriteSmallTables("world");
  const Ran built = Run({"build", In("world"), In("data")});
  EXPECT_EQ(0, built.Code);
  EXPECT_EQ("Built H/data: 2 promotions, 14 workers, 1 staff.\n", built.Out);
  EXPECT_EQ("", built.Errors);
  EXPECT_EQ(kDataSet.size(), RecordFiles("data").size());
  const Ran exported = Run({"export", In("data") + "/", In("tables")});
  EXPECT_EQ(0, exported.Code) << exported.Errors;
  EXPECT_EQ("Wrote the tables of 2 promotions, 14 workers, 1 staff to H/tables.\n", exported.Out);
  EXPECT_EQ(0, Run({"build", In("tables"), In("again")}).Code);
  EXPECT_TRUE(RecordFiles("data") == RecordFiles("again"));
  EXPECT_EQ(Read("world/workers.csv"), Read("tables/workers.csv"));
  const Ran checked = Run({"check", In("again")});
  EXPECT_EQ(0, checked.Code);
  EXPECT_EQ("No faults: 2 promotions, 14 workers, 1 staff.\n", checked.Out);
}

TEST_F(TableCommands, BuildLeavesTheOldWorldWhereATableIsWrong) {
  BuildSmallData();
  const auto before = RecordFiles("data");
  std::string titles = Read("world/titles.csv");
  titles.replace(titles.find("CWA Hand 1"), 10, "CWA Hand X");
  Write("world/titles.csv", titles);
  fs::remove(In("world/events.csv"));
  const Ran ran = Run({"build", In("world"), In("data")});
  EXPECT_EQ(1, ran.Code);
  EXPECT_EQ("", ran.Out);
  EXPECT_EQ(
      "events.csv: is missing; a table without records has only its header\n"
      "1 mistake; nothing was built.\n",
      ran.Errors);
  Write("world/events.csv", "Name,Owner,Month,Type\n");
  EXPECT_EQ(
      "titles.csv, line 2, column Holder: no worker has the name CWA Hand X; did you mean CWA Hand "
      "1?\n1 mistake; nothing was built.\n",
      Run({"build", In("world"), In("data")}).Errors);
  EXPECT_TRUE(before == RecordFiles("data"));
  EXPECT_FALSE(fs::exists(In("data.new")));
}

TEST_F(TableCommands, BuildKeepsItsHandsOffWhatIsNoWorld) {
  BuildSmallData();
  Write("data/mine.txt", "keep me");
  EXPECT_EQ(0, Run({"build", In("world"), In("data")}).Code);
  EXPECT_EQ("keep me", Read("data/mine.txt"));

  MakeSlot("1", Small().Game("CWA"));
  const auto saved = RecordFiles("s1");
  const Ran onGame = Run({"build", In("world"), In("s1")});
  EXPECT_EQ(1, onGame.Code);
  EXPECT_EQ(
      "grapplemont-world build: \"H/s1\" holds a saved game. Name another folder for the world.\n",
      onGame.Errors);
  EXPECT_TRUE(saved == RecordFiles("s1"));

  EXPECT_EQ(0, Run({"export", In("s1"), In("game")}).Code);
  const Ran onData = Run({"build", In("game"), In("data")});
  EXPECT_EQ(1, onData.Code);
  EXPECT_EQ(
      "grapplemont-world build: \"H/data\" holds other files. Name an empty folder for the saved "
      "game.\n",
      onData.Errors);
  EXPECT_EQ("keep me", Read("data/mine.txt"));
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
  ASSERT_EQ(0, Run({"export", In("s1"), In("tables")}).Code);
  EXPECT_EQ(0, Run({"check", In("s1")}).Code);
  ASSERT_EQ(0, Run({"build", In("tables"), In("s2")}).Code);
  EXPECT_TRUE(RecordFiles("s1") == RecordFiles("s2"));
  Slot slot(*Machine, In("s2"), KnownFiles());
  const World world = WorldOf(slot);
  EXPECT_EQ(77, world.Workers()[1].Over);
  EXPECT_EQ("First", world.News()[1].Body.View());
  const Ran busy = Run({"check", In("s2")});
  EXPECT_EQ(1, busy.Code) << "another program plays it";
  EXPECT_NE("", busy.Errors);
}

TEST_F(TableCommands, ExportTakesNobodysFilesAway) {
  BuildSmallData();
  Write("tables/game.csv", "PlayerName\n");
  Write("tables/mine.csv", "Word\n");
  EXPECT_EQ(
      "grapplemont-world export: H/tables holds other things, such as mine.csv. Name a new "
      "folder.\n",
      Run({"export", In("data"), In("tables") + "/", "--replace"}).Errors);
  fs::remove(In("tables/mine.csv"));
  const Ran ran = Run({"export", In("data"), In("tables")});
  EXPECT_EQ(1, ran.Code);
  EXPECT_EQ(
      "grapplemont-world export: H/tables holds game.csv. With --replace the tables of the world "
      "are put in their place.\n",
      ran.Errors);
  EXPECT_TRUE(fs::exists(In("tables/game.csv")));
  EXPECT_EQ(0, Run({"export", In("data"), In("tables"), "--replace"}).Code);
  EXPECT_FALSE(fs::exists(In("tables/game.csv")));
  EXPECT_EQ(1, Run({"export", In("data"), "/"}).Code);

  Write("world.new/mine.txt", "keep me");
  EXPECT_EQ(1, Run({"build", In("tables"), In("world")}).Code);
  EXPECT_EQ("keep me", Read("world.new/mine.txt"));
}

TEST_F(TableCommands, CheckListsEveryFault) {
  World world = Small();
  world.Workers()[2].Employer = 99;
  world.Workers()[2].Morale.Set(0);
  world.Shows()[1].Day = "Tonight";
  for (const NewFile& file : FilesOf(world))
    if (file.Name != "event.dat") {
      std::string bytes(reinterpret_cast<const char*>(file.Contents.data()), file.Contents.size());
      Write("odd/" + file.Name, file.Name == "teams.dat" ? bytes + "xyz" : bytes);
    }
  const Ran ran = Run({"check", In("odd")});
  EXPECT_EQ(1, ran.Code);
  for (const char* line :
       {"event.dat: is missing\n", "teams.dat: ends in 3 bytes that are no whole record\n",
        "wrestler.dat, record 2 (CWA Hand 2), Employer: is 99, but there is no such promotion\n",
        "tv.dat, record 1 (Friday Fire), Day: is \"Tonight\", no known code\n"})
    EXPECT_NE(std::string::npos, ran.Out.find(line)) << line << "in\n" << ran.Out;
  const Ran exported = Run({"export", In("odd"), In("tables")});
  EXPECT_EQ(0, exported.Code);
  EXPECT_EQ(0u, exported.Errors.find("H/odd has ")) << exported.Errors;
  const Ran built = Run({"build", In("tables"), In("data")});
  EXPECT_EQ(1, built.Code);
  EXPECT_NE(std::string::npos,
            built.Errors.find("shows.csv, line 2, column Day: there is no \"Tonight\""))
      << built.Errors;
}

TEST_F(TableCommands, SayWhatFolderIsNoneInUtf8WhateverIsTyped) {
  Write("file", "x");
  fs::create_directories(In("empty"));
  const std::string none = "\" is no folder.\n", nothing = "\" holds no file of a world.\n";
  const struct {
    std::vector<std::string> Arguments;
    std::string Expected;
  } rows[] = {
      {{"check", In("nowhere")}, "check: \"H/nowhere" + none},
      {{"check", In("file")}, "check: \"H/file" + none},
      {{"check", In("caf\xE9")}, "check: \"H/caf\xC3\xA9" + none},
      {{"check", In("caf\xC3\xA9")}, "check: \"H/caf\xC3\xA9" + none},
      {{"check", In("empty")}, "check: \"H/empty" + nothing},
      {{"export", In("empty"), In("t")}, "export: \"H/empty" + nothing},
      {{"build", In("nowhere"), In("d")}, "build: \"H/nowhere" + none},
  };
  for (const auto& row : rows) {
    const Ran ran = Run(row.Arguments);
    EXPECT_EQ(1, ran.Code);
    EXPECT_EQ("grapplemont-world " + row.Expected, ran.Errors);
    EXPECT_EQ("", ran.Out);
  }
  Write("huge/wrestler.dat", std::string(std::size_t{237} * 25001, ' '));
  const Ran huge = Run({"check", In("huge")});
  EXPECT_EQ(1, huge.Code);
  EXPECT_NE(std::string::npos, huge.Errors.find("wrestler.dat")) << huge.Errors;
}

using ToolUsage = ToolHome;

std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

TEST_F(ToolUsage, RefusesWhatMakesNoSense) {
  const std::string begin = "new --slot 1 --promotion CWA --player ",
                    play = "run --slot 1 --days 1 ";
  const struct {
    std::string Typed, Expected;
  } rows[] = {
      {"", ": a command is missing"},
      {"biuld", ": there is no command \"biuld\"; did you mean build?"},
      {"build a", " build: something is missing"},
      {"build a b c", " build: \"c\" is one word too many"},
      {"check", " check: something is missing"},
      {"check --fast a", " check: there is no option \"--fast\""},
      {"new --slot 1 --player Pat", " new: --promotion is missing"},
      {begin + "\t", " new: --player needs a name"},
      {begin + std::string(26, 'x'), " new: --player has room for 25 letters"},
      {begin + "\xC5\x81", " new: --player has a letter that the game cannot hold"},
      {"new --slot 9 --promotion CWA --player Pat",
       " new: --slot needs a whole number from 1 to 8, not \"9\""},
      {begin + "Pat --difficulty 0",
       " new: --difficulty needs a whole number from 1 to 4, not \"0\""},
      {begin + "Pat --start 1.3.2026",
       " new: --start needs a date such as 2026-03-01, not \"1.3.2026\""},
      {begin + "Pat --start 9999-12-31", " new: --start needs a year from 1900 to 9000"},
      {"run --slot 1", " run: --days is missing"},
      {"run --slot 1 --days -3", " run: --days needs a whole number from 0 to 100000, not \"-3\""},
      {play + "--days 2", " run: --days stands there twice"},
      {play + "--stats", " run: --stats needs a value, FILE"},
      {play + "--shows all", " run: --shows is \"auto\" or \"cancel\", not \"all\""},
      {play + "--sede 1", " run: there is no option \"--sede\"; did you mean --seed?"},
  };
  for (const auto& row : rows) {
    std::istringstream typed(row.Typed);
    std::vector<std::string> words;
    for (std::string word; std::getline(typed, word, ' ');) words.push_back(word);
    const Ran ran = Run(words);
    EXPECT_EQ(2, ran.Code) << row.Expected;
    EXPECT_EQ("grapplemont-world" + row.Expected, FirstLine(ran.Errors));
    EXPECT_NE(std::string::npos, ran.Errors.find("usage: grapplemont-world")) << row.Expected;
    EXPECT_EQ("", ran.Out) << row.Expected;
  }
}

TEST_F(ToolUsage, HelpsOnEveryCommand) {
  const Ran all = Run({"--help"});
  EXPECT_EQ(0, all.Code);
  EXPECT_EQ("", all.Errors);
  for (const char* command :
       {"build", "export", "check", "new", "run", "soak", "formats", "columns"}) {
    EXPECT_NE(std::string::npos, all.Out.find("\n  " + std::string(command))) << command;
    const Ran one = Run({command, "--help"});
    EXPECT_EQ(0, one.Code);
    EXPECT_EQ("usage: grapplemont-world " + std::string(command),
              FirstLine(one.Out).substr(0, 25 + std::string(command).size()));
  }
}

class TellCommand : public ToolHome {
 protected:
  Ran Tell(const std::vector<std::string>& more = {}) {
    std::vector<std::string> all = {"tell", "--home", Home, "--slot", "1", "--seed", "4"};
    all.insert(all.end(), more.begin(), more.end());
    return Run(all);
  }
};

TEST_F(TellCommand, PrintsTheNextShowInAnyVoiceAndLeavesTheGameAsItIs) {
  MakeSlot("1", Small().Game("CWA"));
  const auto before = RecordFiles("s1");
  const Ran told = Tell();
  EXPECT_EQ(0, told.Code) << told.Errors;
  EXPECT_TRUE(
      told.Out.starts_with("Event Report For Friday Fire\nFriday, 06 March 2026\n"
                           "Reported By Rafe Tolland\n\n"))
      << told.Out;
  for (const char* part : {"\nMatch Details\n1 vs 1, ", "\nWinner : CWA Hand ",
                           "\n\nMatch Quality ", "%, Overall Rating ", "\n\nThe show: "})
    EXPECT_NE(std::string::npos, told.Out.find(part)) << part << " in\n" << told.Out;
  EXPECT_EQ(std::string::npos, told.Out.find("\n\n\n"));
  const std::string live = Tell({"--voice", "2"}).Out;
  EXPECT_NE(std::string::npos, live.find("Reported By QVD\n"));
  const auto card = [](const std::string& text) {
    return text.substr(text.find("\nWinner : "), 24);
  };
  EXPECT_EQ(card(told.Out), card(live)) << "a voice changes no result";
  EXPECT_EQ(2, Tell({"--voice", "3"}).Code);
  EXPECT_TRUE(before == RecordFiles("s1"));
  EXPECT_EQ(told.Out, Tell().Out) << "the same from the same seed";
}

TEST_F(TellCommand, PassesShowsOnTheWayToAnEvent) {
  MakeSlot("1", Small().Game("CWA"));
  EXPECT_TRUE(
      Tell({"--event"}).Out.starts_with("Event Report For CWA in March\nSunday, 29 March 2026\n"));
}

TEST_F(TellCommand, SaysWhyThereIsNothingToTell) {
  EXPECT_EQ("grapplemont-world tell: Slot 1 is empty.\n", Tell().Errors);
  MakeSlot("1", SmallWorld().Promotion("CWA").Owner("Ruth Vane").Crew(8).Game("CWA"));
  const Ran none = Tell();
  EXPECT_EQ(1, none.Code);
  EXPECT_EQ("grapplemont-world tell: There is no show that the roster could fill.\n", none.Errors);
}

}  // namespace
}  // namespace grapplemont::test
