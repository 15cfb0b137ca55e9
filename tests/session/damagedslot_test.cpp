#include <gtest/gtest.h>

#include <filesystem>

#include "records/fields/fields.h"
#include "records/store/journalfile.h"
#include "records/store/slotfolder.h"
#include "records/world.h"
#include "support/cutdisk.h"
#include "support/homefolder.h"
#include "support/smallworld.h"

namespace grapplemont::test {
namespace {

namespace fs = std::filesystem;

World Data() {
  return SmallWorld().Network("Nine").Promotion("CWA", kCult).Owner("Ruth Vane").Crew(6);
}

/// A game in slot 1 that has come five days on from 1 April, each day in another file.
class ADamagedGame : public testing::Test {
 protected:
  ADamagedGame() : home_(Data()) {
    home_.StartNewGame();
    World& world = home_.Play.World();
    const std::function<void()> kSteps[] = {
        [&] { world.Workers()[1].Over = 77; }, [&] { world.AllStaff()[1].Talent = 33; },
        [&] { world.Networks()[1].Name = "Ten"; }, [&] { world.Promotions()[1].Image = 44; },
        [&] { world.Notes().Set("Mine"); }};
    for (const auto& step : kSteps) {
      step();
      world.Game().Today = world.Today() + std::chrono::days{1};
      home_.Play.Commit();
    }
    // A copy of a slot that is being played; nobody closes it.
    fs::copy(home_.Path("s1"), home_.Path("s2"));
    home_.Play.CloseSlot();
    home_.Desk.CloseAll();
    home_.Desk.Open("frmLoadGame");
  }

  /// Leaves the records of the journal up to the second day's.
  std::string CutJournal() {
    const auto disk = RealDisk();
    const Bytes journal = ReadFile(*disk, home_.Path("s2/journal"));
    const auto chain = ReadChain(journal, std::nullopt, KnownFiles());
    const auto shorter = ReadChain(journal, std::nullopt, KnownFiles(), chain.Last() - 3);
    fs::resize_file(home_.Path("s2/journal"), static_cast<std::uintmax_t>(shorter.End));
    return std::to_string(shorter.End);
  }

  HomeFolder home_;
};

TEST_F(ADamagedGame, IsLoadedWithAWordWhereItsFilesHoldEveryDay) {
  const std::string length = CutJournal();
  home_.Desk.ExpectSay("Loading",
                       "The slot was damaged. Its journal was cut short: " + length +
                           " of 4194304 bytes are left. Its files (Monday, 06 April 2026) hold "
                           "more than its journal (Friday, 03 April 2026). Every step could be "
                           "found again (Monday, 06 April 2026).\nThe slot as it was is kept in " +
                           home_.Path("s2.damaged") + ".");
  home_.Desk.Click("cmdload2");
  EXPECT_EQ("Monday, 06 April 2026", LongDate(home_.Play.World().Today()));
  EXPECT_EQ("Ten", home_.Play.World().Networks()[1].Name.View());
  EXPECT_EQ("Mine", home_.Play.World().Notes().Text());
}

TEST_F(ADamagedGame, IsAskedAboutWhereNothingProvesItsFiles) {
  const std::string length = CutJournal();
  home_.Remove("s2/world.seal");
  const std::string question =
      "The slot " + home_.Path("s2") + " is damaged. Its journal was cut short: " + length +
      " of 4194304 bytes are left. Its files (Monday, 06 April 2026) hold more than its journal "
      "(Friday, 03 April 2026). The files are taken as they are (Monday, 06 April 2026); they may "
      "hold parts of several steps. Have the world checked with: grapplemont-world check FOLDER. "
      "The slot as it is now will be kept in " +
      home_.Path("s2.damaged") + ".\nLoad it so?";
  home_.Desk.ExpectAsk("Error Loading", question, false, ui::Default::No);
  home_.Desk.Click("cmdload2");
  EXPECT_EQ("frmLoadGame", home_.Desk.TopName());
  EXPECT_FALSE(fs::exists(home_.Path("s2.damaged")));
  home_.Desk.ExpectAsk("Error Loading", question, true);
  home_.Desk.ExpectSay("Loading", kAnyText);
  home_.Desk.Click("cmdload2");
  EXPECT_EQ("Monday, 06 April 2026", LongDate(home_.Play.World().Today()));
}

TEST(AGameWhoseSlotIsRemoved, SaysSoAtEachStepAndOnLeaving) {
  HomeFolder home(Data());
  home.StartNewGame();
  home.Desk.Click("cmdnext");
  const Day today = home.Play.World().Today();
  home.Remove("s1");
  const std::string fault = "Could not keep anything in " + home.Path("s1/journal") +
                            ": it was removed or replaced while the slot was open.";
  home.Desk.ExpectSay("Error!", fault + " Your last step was taken back.");
  home.Desk.Click("cmdnext");
  EXPECT_EQ(today, home.Play.World().Today());
  home.Desk.ExpectAsk("Quit?", kAnyText, true);
  home.Desk.ExpectSay("Error!", fault);
  home.Desk.Click("cmdquit");
  EXPECT_EQ("frmGameMenu", home.Desk.TopName());
}

TEST_F(ADamagedGame, IsNoneForMoreIncidentsThanADayCanHave) {
  home_.Write("s2/incident.tmp", std::string(13 * sizeof(Incident), '\0'));
  home_.Desk.Click("cmdload2");
  EXPECT_EQ("frmMainScreen", home_.Desk.TopName());
  EXPECT_EQ(10, home_.Play.World().Incidents().Count());
  EXPECT_FALSE(fs::exists(home_.Path("s2.damaged")));
}

}  // namespace
}  // namespace grapplemont::test
