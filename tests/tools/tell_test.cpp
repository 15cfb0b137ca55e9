#include "toolhome.h"

namespace grapplemont::test {
namespace {

class TellCommand : public ToolHome {
 protected:
  void MakeSlot() {
    World world = Small().Game("CWA");
    Slot::Create(*Machine, In("s1"), FilesOf(world), 1);
  }
  Ran Tell(const std::vector<std::string>& more = {}) {
    std::vector<std::string> all = {"tell", "--home", Home, "--slot", "1", "--seed", "4"};
    all.insert(all.end(), more.begin(), more.end());
    return Run(all);
  }
};

TEST_F(TellCommand, PrintsTheNextShowAndLeavesTheGameAsItIs) {
  MakeSlot();
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
  EXPECT_TRUE(before == RecordFiles("s1"));
  EXPECT_EQ(told.Out, Tell().Out) << "the same from the same seed";
}

TEST_F(TellCommand, SpeaksInTheVoiceThatIsAskedFor) {
  MakeSlot();
  const std::string dry = Tell({"--voice", "1"}).Out, live = Tell({"--voice", "2"}).Out;
  EXPECT_NE(std::string::npos, dry.find("Reported By Rafe Tolland\n"));
  EXPECT_NE(std::string::npos, live.find("Reported By QVD\n"));
  const auto card = [](const std::string& text) {
    return text.substr(text.find("\nWinner : "), 24);
  };
  EXPECT_EQ(card(dry), card(live)) << "a voice changes no result";
  EXPECT_EQ(2, Tell({"--voice", "3"}).Code);
}

TEST_F(TellCommand, PassesShowsOnTheWayToAnEvent) {
  MakeSlot();
  const Ran told = Tell({"--event"});
  EXPECT_TRUE(told.Out.starts_with("Event Report For CWA in March\nSunday, 29 March 2026\n"))
      << told.Out.substr(0, 80) << told.Errors;
}

TEST_F(TellCommand, SaysWhyThereIsNothingToTell) {
  EXPECT_EQ("grapplemont-world tell: Slot 1 is empty.\n", Tell().Errors);
  World world = SmallWorld().Promotion("CWA").Owner("Ruth Vane").Crew(8).Game("CWA");
  Slot::Create(*Machine, In("s1"), FilesOf(world), 1);
  const Ran none = Tell();
  EXPECT_EQ(1, none.Code);
  EXPECT_EQ("grapplemont-world tell: There is no show that the roster could fill.\n", none.Errors);
}

}  // namespace
}  // namespace grapplemont::test
