#include <gtest/gtest.h>

#include <fstream>

#include "program/screens.h"
#include "session/build.h"
#include "session/faultlog.h"
#include "support/samplescreen.h"
#include "support/scratchfolder.h"
#include "support/scriptdesk.h"
#include "ui/game.h"

namespace grapplemont::test {
namespace {

const Clock kOneDay = [] { return Day{std::chrono::year{2026} / 3 / 17}; };

std::string ReadText(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(AboutPage, TellsTheVersionWhatIsNewTheLicenceAndTheFaults) {
  const ScratchFolder scratch;
  std::ofstream(scratch / "CHANGELOG.md")
      << "# Changelog\n\n- A page about\n  the game.\n- More.\n";
  const auto disk = RealDisk(Syncs::None);
  FaultLog(scratch / "faults.log", "program 1", kOneDay).Note("frmRoster: it broke");
  ScriptDesk desk;
  Game game(desk, *disk, {scratch / ".", kOneDay, 1, scratch.Path(), scratch / "faults.log"});
  RegisterScreens(game);
  desk.Open("frmAbout");
  EXPECT_TRUE(desk.Text("rptabout").starts_with(std::string("Grapplemont ") + kProgramVersion));
  EXPECT_EQ(desk.Text("rptnew"), "Changelog\nA page about the game.\nMore.");
  EXPECT_EQ(desk.Text("rptlicence"), "The licence can be read at gnu.org/licenses.");
  EXPECT_EQ(desk.Text("rptfaults"), "2026-03-17 program 1: frmRoster: it broke");
  EXPECT_NE(desk.Text("lblfaults").find(scratch / "faults.log"), std::string::npos);
}

TEST(TheFaultLog, IsMadeWithItsFirstLineAndNeverGrowsBeyondItsBounds) {
  const ScratchFolder scratch;
  const std::string file = scratch / "state/game/faults.log";
  FaultLog log(file, "program 1", kOneDay);
  const auto disk = RealDisk(Syncs::None);
  EXPECT_EQ(disk->Look(scratch / "state"), Disk::Kind::Nothing);
  EXPECT_EQ(LatestFaults(*disk, file), "");
  log.Note("one\nline");
  log.Note("one\nline");
  EXPECT_EQ(ReadText(file), "2026-03-17 program 1: one line\n") << "said once in a row";
  for (int i = 0; i < 1000; ++i) log.Note(std::to_string(i) + std::string(500, 'x'));
  const std::string now = ReadText(file), old = ReadText(file + ".old");
  EXPECT_LE(now.size(), std::size_t{FaultLog::kMostBytes});
  EXPECT_LE(old.size(), std::size_t{FaultLog::kMostBytes});
  EXPECT_EQ(disk->List(scratch / "state/game").size(), 2u);
  const std::string latest = LatestFaults(*disk, file);
  EXPECT_TRUE(latest.starts_with("2026-03-17 program 1: ")) << "whole lines";
  EXPECT_NE(latest.find(": 999xxx"), std::string::npos);
  EXPECT_LT(latest.size(), 9000u);
  log.Note(std::string(5000, 'y'));
  EXPECT_LT(ReadText(file).size(), now.size() + 2100) << "a long one is cut";
}

TEST(TheFaultLog, IsSilentWhereItCannotWrite) {
  FaultLog none("", "program 1", kOneDay), refused("/dev/null/faults.log", "program 1", kOneDay);
  none.Note("lost");
  refused.Note("lost");
  EXPECT_EQ(LatestFaults(*RealDisk(), "/dev/null/faults.log"), "");
}

TEST(TheDesk, TellsTheLogOfWhatItTakesBack) {
  ScriptDesk desk;
  std::vector<std::string> noted, clicks;
  desk.NoteFault = [&](const std::string& fault) { noted.push_back(fault); };
  SampleScreen::On(desk, clicks);
  desk.ExpectSay("Error!", kAnyText);
  desk.Click("cmdthrow");
  EXPECT_EQ(noted, std::vector<std::string>{"frmSample: " + desk.Boxes().back().Text});
}

}  // namespace
}  // namespace grapplemont::test
