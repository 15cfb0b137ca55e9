#include "tools/manyworlds.h"

#include <algorithm>
#include <iomanip>
#include <nlohmann/json.hpp>

#include "records/houserules.h"
#include "records/store/digest.h"
#include "toolhome.h"

namespace grapplemont::test {
namespace {

/// Whatever number of worlds is played at once, each is what it would be alone.
class ManyWorlds : public ToolHome {
 protected:
  void SetUp() override { BuildSmallData(); }
  void New(const std::string& slot, const std::string& seed) {
    Say("new --home H --slot " + slot +
        " --player Nobody --promotion CWA --difficulty 2 --start "
        "2026-03-01 --seed " +
        seed);
  }
  std::string DigestOfSlot(const std::string& slot) {
    std::map<std::string, Bytes> files;
    for (NewFile& file : FilesOf(WorldOf(Slot(*Machine, In("s" + slot), KnownFiles()))))
      files.emplace(file.Name, std::move(file.Contents));
    const std::uint64_t value = DigestOf(files).Value();
    std::ostringstream digits;
    digits << std::hex << std::setfill('0') << std::setw(16) << value;
    return digits.str();
  }
};

TEST_F(ManyWorlds, RunCopiesThatAreWhatTheGameWouldBe) {
  New("1", "5");
  const auto before = RecordFiles("s1");
  const std::string run = "run --home H --slot 1 --days 70 --seed 7 --no-sync";
  const std::string alone = Say(run + " --worlds 3 --jobs 1 --stats H/one");
  EXPECT_EQ(Say(run + " --worlds 3 --jobs 3 --stats H/three"), alone);
  EXPECT_EQ(Read("three"), Read("one"));
  EXPECT_EQ(std::ranges::count(Read("one"), '\n'), 6) << "a line for each world and month";
  EXPECT_EQ(nlohmann::json::parse(Read("one").substr(0, Read("one").find('\n')))["seed"], 7);
  EXPECT_EQ(RecordFiles("s1"), before);
  std::istringstream lines(alone);
  for (const char* seed : {"7", "8"}) {
    New("1", "5");
    const std::string said =
        Say("run --home H --slot 1 --days 70 --no-sync --seed " + std::string(seed));
    std::string line;
    std::getline(lines, line);
    EXPECT_EQ(line + "\n", "Seed " + std::string(seed) + ", " + DigestOfSlot("1") + ": " +
                               said.substr(said.find(']') + 1))
        << "behind the word that its record ends";
  }
}

TEST_F(ManyWorlds, LiveAsNewAndRunWouldHaveIt) {
  const std::string alone = Say("living-world H/data --seeds 3 --years 1 --jobs 1");
  EXPECT_EQ(Say("living-world H/data --seeds 3 --years 1 --jobs 2"), alone);
  const auto first = nlohmann::json::parse(alone.substr(0, alone.find('\n')));
  EXPECT_EQ(first["seed"], 1);
  EXPECT_EQ(first["chair"], "CWA");
  EXPECT_TRUE(first["faults"].empty());
  New("1", "1");
  Say("run --home H --slot 1 --days 365 --seed 1 --no-sync --go-on --stats H/months");
  EXPECT_EQ(first["digest"], DigestOfSlot("1"));
  std::istringstream months(Read("months"));
  for (const auto& month : first["months"]) {
    std::string line;
    ASSERT_TRUE(std::getline(months, line));
    EXPECT_EQ(month, nlohmann::json::parse(line));
  }
}

/// From every chair, with every seed, and both ways.
TEST_F(ManyWorlds, SoakInTheSameOrder) {
  const std::string alone = Say("soak H/data --seeds 3 --days 20 --jobs 1");
  EXPECT_EQ(alone, "12 careers, 240 days, 0 ended early, 0 faults.\n");
  EXPECT_EQ(Say("soak H/data --seeds 3 --days 20 --jobs 5"), alone);
}

TEST_F(ManyWorlds, SayThatTheAutoBookerStandsInForWhoBooksByHand) {
  New("1", "5");
  World world = WorldOf(Slot(*Machine, In("s1"), KnownFiles()));
  HouseRules rules{};
  rules.On[static_cast<std::size_t>(HouseRule::NoAutoBooker)] = true;
  world.Of<HouseRules>().Rewrite({rules});
  Slot::Create(*Machine, In("s1"), FilesOf(world), 1);
  const std::string run = "run --home H --slot 1 --days 1 --seed 1";
  EXPECT_NE(Say(run).find("Run it with --shows cancel."), std::string::npos);
  const std::string copies = Say(run + " --worlds 1");
  EXPECT_NE(copies.find("it books their shows all the same"), std::string::npos) << copies;
  EXPECT_EQ(Say(run + " --worlds 1 --shows cancel").find("auto booker"), std::string::npos);
}

TEST_F(ManyWorlds, SayWhatMakesNoSense) {
  New("1", "5");
  const std::string said = Say("run --home H --slot 1 --days 1 --jobs 2");
  EXPECT_NE(said.find("--jobs needs --worlds"), std::string::npos) << said;
  EXPECT_TRUE(said.ends_with("=2"));
  EXPECT_NE(Say("soak H/data --jobs 0").find("--jobs needs a whole number from 1"),
            std::string::npos);
  for (const std::string command : {"living-world", "soak"})
    EXPECT_EQ("[grapplemont-world " + command + ": H/s1 holds a saved game, no default data.\n]=1",
              Say(command + " H/s1"));
}

}  // namespace
}  // namespace grapplemont::test
