#include "tools/replay.h"

#include <gtest/gtest.h>

#include <random>

#include "records/store/commandlog.h"
#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "session/slots.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"

// A game that was begun with a seed is played again from what it recorded, to the same bytes.

namespace grapplemont::test {
namespace {

World CareerWorld() {
  return SmallWorld()
      .Network("Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Crew(8)
      .Promotion("XWF", kSmall)
      .Crew(6)
      .OnTheMarket()
      .Worker("Free Agent")
      .Game("CWA");
}

/// A game in a slot that records.
struct Recorded {
  explicit Recorded(bool goesBack = true) : Play(CareerWorld()) {
    Play.Desk.IsEasy = true;
    Play.Play.CloseSlot();
    Slot::Create(Play.Play.Disk(), Play.Play.SlotFolder(1),
                 BeginningFiles(CareerWorld(), true, goesBack), 7);
    Enter();
  }
  void Enter() {
    Play.Play.OpenSlot(1);
    Play.Desk.Open("frmMainScreen");
  }
  void Leave() {
    Play.Desk.CloseAll();
    Play.Play.CloseSlot();
  }
  /// Clicks, picks, checks and slides whatever the top screen has; never leaves the game.
  void Monkey(std::uint64_t seed, int clicks) {
    std::mt19937_64 chance(seed);
    const auto pick = [&chance](std::size_t n) { return static_cast<std::size_t>(chance() % n); };
    ScriptDesk& desk = Play.Desk;
    for (int click = 0; click < clicks; ++click) {
      ui::Screen& top = *desk.Top();
      const auto& controls = top.Controls();
      const ui::Control& control = *controls[pick(controls.size())];
      const std::string name = control.Name();
      if (!control.Visible || !control.Enabled || name == "cmdquit") continue;
      // A click may take the screen and its controls away.
      if (control.Is() == ui::Kind::Button || control.Is() == ui::Kind::CheckBox)
        desk.Click(name);
      else if (const auto* list = dynamic_cast<const ui::ListBox*>(&control);
               list && list->Count() > 0)
        desk.Pick(name, 1 + static_cast<int>(pick(static_cast<std::size_t>(list->Count()))));
      else if (const auto* bar = dynamic_cast<const ui::ScrollBar*>(&control);
               bar && bar->Max > bar->Min)
        desk.Slide(name, bar->Min + static_cast<int>(
                                        pick(static_cast<std::size_t>(bar->Max - bar->Min + 1))));
      else if (control.Is() == ui::Kind::TextBox)
        desk.Type(name, "Pat \\ Lee");
      if (pick(12) == 0) desk.Take(pick(3) == 0 ? desk.Redo : desk.Undo);
    }
  }
  std::vector<NewFile> Files() { return ReadSlot(Play.Play.Disk(), Play.Play.SlotFolder(1)); }

  GameOnWorld Play;
};

tools::Replayed PlayAgain(const std::vector<NewFile>& files) {
  const ScratchFolder home;
  const auto disk = RealDisk(Syncs::None);
  return tools::Replay(*disk, files, home.Path(), "");
}

TEST(ARecordedCareer, ComesToTheSameBytesWhenItIsPlayedAgain) {
  for (std::uint64_t seed = 1; seed <= 2; ++seed) {
    Recorded career(seed != 2);
    for (int day = 0; day < 10; ++day)
      if (career.Play.Desk.TopName() == "frmMainScreen") career.Play.Desk.Click("cmdnext");
    career.Monkey(seed, 150);
    career.Leave();
    career.Enter();  // another sitting
    career.Monkey(seed + 100, 150);
    career.Leave();
    const tools::Replayed again = PlayAgain(career.Files());
    EXPECT_EQ("", again.Fault) << seed;
    EXPECT_EQ("", again.Difference) << seed;
    EXPECT_GT(again.Commands, 50) << seed;
  }
}

TEST(ARecordedCareer, ThatWasChangedIsFoundOut) {
  Recorded career;
  for (int day = 0; day < 5; ++day) career.Play.Desk.Click("cmdnext");
  career.Leave();
  auto files = career.Files();
  const auto workers = std::ranges::find(files, "wrestler.dat", &NewFile::Name);
  workers->Contents[sizeof(Worker) + 40] ^= std::byte{1};
  EXPECT_NE(PlayAgain(files).Difference.find("wrestler.dat, record 2"), std::string::npos);
  files = career.Files();
  const auto commands = std::ranges::find(files, kCommandsName, &NewFile::Name);
  const std::string_view extra = "click cmdnowhere\n";
  for (const char letter : extra) commands->Contents.push_back(static_cast<std::byte>(letter));
  EXPECT_NE(PlayAgain(files).Fault.find("cmdnowhere"), std::string::npos);
  std::erase_if(files, [](const NewFile& file) { return file.Name == kCommandsName; });
  EXPECT_THROW(PlayAgain(files), WorldFault);
}

}  // namespace
}  // namespace grapplemont::test
