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

  World game = Small().Game("CWA");
  Slot::Create(*Machine, In("s1"), FilesOf(game), 1);
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
  World game = Small().Game("CWA").Mail("Maeve", "First");
  Slot::Create(*Machine, In("s1"), FilesOf(game), 1);
  {
    // Left without a checkpoint, as by a program that was killed.
    Slot slot(*Machine, In("s1"), KnownFiles());
    World world;
    world.Load(slot.Files());
    world.Workers()[1].Over = 77;
    slot.Commit(world.Changes());
  }
  ASSERT_EQ(0, Run({"export", In("s1"), In("tables")}).Code);
  EXPECT_EQ(0, Run({"check", In("s1")}).Code);
  ASSERT_EQ(0, Run({"build", In("tables"), In("s2")}).Code);
  EXPECT_TRUE(RecordFiles("s1") == RecordFiles("s2"));
  Slot slot(*Machine, In("s2"), KnownFiles());
  World world;
  world.Load(slot.Files());
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

TEST_F(TableCommands, SpeakUtf8WhateverIsTyped) {
  EXPECT_EQ("grapplemont-world check: \"H/caf\xC3\xA9\" is no folder.\n",
            Run({"check", In("caf\xE9")}).Errors);
  EXPECT_EQ("grapplemont-world check: \"H/caf\xC3\xA9\" is no folder.\n",
            Run({"check", In("caf\xC3\xA9")}).Errors);
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

TEST_F(TableCommands, SayWhatFolderIsNone) {
  Write("file", "x");
  fs::create_directories(In("empty"));
  const struct {
    std::vector<std::string> Arguments;
    std::string Expected;
  } rows[] = {
      {{"check", In("nowhere")}, "grapplemont-world check: \"H/nowhere\" is no folder.\n"},
      {{"check", In("file")}, "grapplemont-world check: \"H/file\" is no folder.\n"},
      {{"check", In("empty")}, "grapplemont-world check: \"H/empty\" holds no file of a world.\n"},
      {{"export", In("empty"), In("t")},
       "grapplemont-world export: \"H/empty\" holds no file of a world.\n"},
      {{"build", In("nowhere"), In("d")}, "grapplemont-world build: \"H/nowhere\" is no folder.\n"},
  };
  for (const auto& row : rows) {
    const Ran ran = Run(row.Arguments);
    EXPECT_EQ(1, ran.Code);
    EXPECT_EQ(row.Expected, ran.Errors);
    EXPECT_EQ("", ran.Out);
  }
  Write("huge/wrestler.dat", std::string(std::size_t{237} * 25001, ' '));
  const Ran huge = Run({"check", In("huge")});
  EXPECT_EQ(1, huge.Code);
  EXPECT_NE(std::string::npos, huge.Errors.find("wrestler.dat")) << huge.Errors;
}

}  // namespace
}  // namespace grapplemont::test
