#include <nlohmann/json.hpp>

#include "records/checks/checkworld.h"
#include "records/tables/tablekinds.h"
#include "support/checkout.h"
#include "toolhome.h"
#include "tools/pages.h"

namespace grapplemont::test {
namespace {

class GameCommands : public ToolHome {
 protected:
  Ran New(const std::string& slot, const std::string& seed, const std::string& promotion = "CWA") {
    return Run({"new", "--home", Home, "--slot", slot, "--player", "Pat Lee", "--promotion",
                promotion, "--difficulty", "3", "--start", "2026-03-09", "--seed", seed});
  }
  Ran Days(const std::string& slot, const std::string& days,
           std::vector<std::string> more = {"--shows", "cancel"}) {
    std::vector<std::string> all = {"run",    "--home", Home,     "--slot", slot,
                                    "--days", days,     "--seed", "4"};
    all.insert(all.end(), more.begin(), more.end());
    return Run(all);
  }
  World Saved(const std::string& slot) {
    return WorldOf(Slot(*Machine, In("s" + slot), KnownFiles()));
  }
};

TEST_F(GameCommands, NewBeginsTheGameThatWasChosen) {
  BuildSmallData();
  const Ran ran = New("2", "11");
  EXPECT_EQ(0, ran.Code) << ran.Errors;
  EXPECT_EQ("Slot 2: Pat Lee takes over CWA Wrestling (Hard) on Wednesday, 01 April 2026.\n",
            ran.Out);
  const World world = Saved("2");
  EXPECT_EQ("Pat Lee", world.Game().PlayerName.View());
  EXPECT_EQ("Save Game 2", world.Game().SaveName.View());
  EXPECT_EQ("CWA", world.Player().Initials.View());
  EXPECT_EQ(kHard, world.Game().Difficulty);
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
}

TEST_F(GameCommands, NewMakesTheSameWorldFromTheSameSeed) {
  BuildSmallData();
  for (const auto& [slot, seed] : {std::pair("1", "11"), {"2", "11"}, {"1", "12"}, {"3", "12"}})
    ASSERT_EQ(0, New(slot, seed).Code) << "a game takes the place of another";
  const auto wrestlers = [&](const char* slot) { return RecordFiles(slot).at("wrestler.dat"); };
  EXPECT_TRUE(wrestlers("s1") == wrestlers("s3"));
  EXPECT_FALSE(wrestlers("s1") == wrestlers("s2"));
}

TEST_F(GameCommands, NewSaysWhatIsNotThere) {
  std::filesystem::create_directories(In("data"));
  EXPECT_EQ("grapplemont-world new: H/data/belt.dat is missing. Build the default world first.\n",
            New("1", "1").Errors);
  BuildSmallData();
  const Ran ran = New("1", "1", "CWAA");
  EXPECT_EQ(1, ran.Code);
  EXPECT_EQ(
      "grapplemont-world new: promos.dat: no promotion has the initials CWAA; did you mean CWA?\n",
      ran.Errors);
  EXPECT_FALSE(std::filesystem::exists(In("s1")));
  EXPECT_EQ("grapplemont-world new: \"H/none\" is no folder.\n",
            Run({"new", "--home", In("none"), "--slot", "1", "--player", "P", "--promotion", "CWA"})
                .Errors);
}

TEST_F(GameCommands, RunPlaysTheDaysAndKeepsThem) {
  BuildSmallData();
  ASSERT_EQ(0, New("1", "11").Code);
  const Ran ran = Days("1", "45");
  EXPECT_EQ(0, ran.Code) << ran.Errors;
  EXPECT_EQ("After 45 days it is Saturday, 16 May 2026.\n", ran.Out);
  EXPECT_EQ("", ran.Errors);
  const World world = Saved("1");
  EXPECT_EQ(Day(std::chrono::year{2026} / 5 / 16), world.Today());
  for (const Fault& fault : CheckWorld(world)) ADD_FAILURE() << fault.Line();
  EXPECT_EQ("After 0 days it is Saturday, 16 May 2026.\n", Days("1", "0").Out);
  EXPECT_EQ("After 1 day it is Sunday, 17 May 2026.\n", Days("1", "1").Out);
}

TEST_F(GameCommands, RunGivesTheSameBytesFromTheSameSeed) {
  BuildSmallData();
  ASSERT_EQ(0, New("1", "11").Code);
  ASSERT_EQ(0, Days("1", "70").Code);
  const World synced = Saved("1");
  ASSERT_EQ(0, New("1", "11").Code);
  EXPECT_EQ("", Days("1", "70", {"--shows", "cancel", "--no-sync"}).Errors);
  ExpectSame(Saved("1"), synced);
}

TEST_F(GameCommands, RunSumsUpEveryMonth) {
  BuildSmallData();
  ASSERT_EQ(0, New("1", "11").Code);
  ASSERT_EQ(0, Days("1", "61", {"--shows", "cancel", "--stats", In("stats")}).Code);
  std::istringstream lines(Read("stats"));
  std::vector<nlohmann::json> months;
  for (std::string line; std::getline(lines, line);) months.push_back(nlohmann::json::parse(line));
  ASSERT_EQ(2u, months.size());
  EXPECT_EQ("2026-05-01", months[0]["date"]);
  EXPECT_EQ("2026-06-01", months[1]["date"]);
  const World world = Saved("1");
  const nlohmann::json& last = months[1];
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
  EXPECT_NEAR(double(over) / employed, last["workers"]["meanOver"].get<double>(), 0.005);
}

TEST_F(GameCommands, RunStopsWhenTheCareerEnds) {
  const auto ended = [](int code) {
    return Small().Game("CWA", kGameStart, [=](GameInfo& game) { game.EndCode = code; }).Build();
  };
  MakeSlot("1", ended(3));
  const auto before = RecordFiles("s1");
  EXPECT_EQ("The career ended after 0 days, on Sunday, 01 March 2026 (reason 3).\n",
            Days("1", "30").Out);
  EXPECT_TRUE(before == RecordFiles("s1"));
  MakeSlot("2", ended(kStrangerWaits));
  EXPECT_EQ("After 3 days it is Wednesday, 04 March 2026.\n", Days("2", "3").Out);
}

TEST_F(GameCommands, RunTellsOfItsProgressOnlyToATerminal) {
  MakeSlot("1", Small().Game("CWA"));
  const Ran ran =
      Run({"run", "--home", Home, "--slot", "1", "--days", "2", "--shows", "cancel"}, true);
  EXPECT_EQ("\r2026-03-02, day 1 of 2\r2026-03-03, day 2 of 2\r\x1B[K", ran.Errors);
  EXPECT_EQ("After 2 days it is Tuesday, 03 March 2026.\n", ran.Out);
}

TEST_F(GameCommands, RunSaysWhyASlotCannotBePlayed) {
  EXPECT_EQ("grapplemont-world run: Slot 4 is empty.\n", Days("4", "1").Errors);
  MakeSlot("1", Small()
                    .Game("CWA", kGameStart, [](GameInfo& game) { game.Version = "Version 1.0"; })
                    .BuildUnchecked());
  EXPECT_EQ("grapplemont-world run: Slot 1: Save Slot Not In 2.0 Format.\n", Days("1", "1").Errors);
  MakeSlot("2", Small().Game("CWA"));
  Slot held(*Machine, In("s2"), KnownFiles());
  const Ran busy = Days("2", "1");
  EXPECT_EQ(1, busy.Code);
  EXPECT_EQ("", busy.Out);
  EXPECT_EQ(1, std::count(busy.Errors.begin(), busy.Errors.end(), '\n')) << busy.Errors;
}

TEST_F(GameCommands, SoakFromEveryChairWithEverySeedAndBothWays) {
  BuildSmallData();
  const Ran ran = Run({"soak", In("data"), "--seeds", "2", "--days", "20"});
  EXPECT_EQ("8 careers, 160 days, 0 ended early, 0 faults.\n", ran.Out);
  EXPECT_EQ(0, ran.Code) << ran.Errors;
  ASSERT_EQ(0, New("1", "1").Code);
  EXPECT_EQ("grapplemont-world soak: H/s1 holds a saved game, no default data.\n",
            Run({"soak", In("s1")}).Errors);
}

// Pages of docs/ that a command prints are committed, and stay what it prints.

using ToolPages = ToolHome;

std::string Document(const std::string& name) {
  std::ifstream file(Checkout("/docs/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST_F(ToolPages, FileFormatsAreWhatTheCommandPrints) {
  const Ran ran = Run({"formats"});
  EXPECT_EQ(0, ran.Code);
  EXPECT_TRUE(Document("file-formats.md") == ran.Out)
      << "Run: grapplemont-world formats >docs/file-formats.md";
}

TEST_F(ToolPages, WorldMakingHoldsTheColumnsThatTheCommandPrints) {
  const std::string page = Document("world-making.md");
  const std::string begin = "<!-- columns -->\n", end = "\n<!-- end of columns -->\n";
  EXPECT_NE(std::string::npos, page.find(begin + Run({"columns"}).Out + end))
      << "Put what grapplemont-world columns prints between the marks of docs/world-making.md.";
}

TEST(Pages, TellEveryFieldOnce) {
  const std::string formats = tools::FormatsPage(), columns = tools::ColumnsPage();
  for (const TableKind& kind : TableKinds()) {
    const auto section = formats.find("\n## " + std::string(kind.Layout->File));
    ASSERT_NE(std::string::npos, section) << kind.Name;
    for (const Field& field : kind.Layout->Fields) {
      const auto row = formats.find("`" + FieldName(field, 0) + "`", section);
      EXPECT_NE(std::string::npos, row) << field.Name;
      EXPECT_FALSE(field.Help.empty()) << kind.Name << " " << field.Name;
    }
    EXPECT_EQ(kind.OfGame, columns.find("### " + std::string(kind.Name)) == std::string::npos);
  }
}

}  // namespace
}  // namespace grapplemont::test
