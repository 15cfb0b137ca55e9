#include "tools/replay.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <span>
#include <sstream>

#include "editor/editorhome.h"
#include "records/store/commandlog.h"
#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "session/slots.h"
#include "support/gameonworld.h"
#include "support/smallworld.h"
#include "tools/confineddisk.h"
#include "ui/actlines.h"

// A game that was begun with a seed is played again from what it recorded, to the same bytes.

namespace grapplemont::test {
namespace {

World CareerWorld(const std::string& chair = "CWA") {
  return SmallWorld()
      .Network("Nine")
      .Promotion("CWA", kCult)
      .Owner("Ruth Vane")
      .Crew(8)
      .Promotion("XWF", kSmall)
      .Owner("Nell Ewing")
      .Crew(6)
      .OnTheMarket()
      .Worker("Free Agent")
      .Game(chair);
}

/// Does something to a control, whatever it is.
void ActOn(ScriptDesk& desk, const ui::Control& control,
           const std::function<std::size_t(std::size_t)>& pick) {
  const std::string name = control.Name();
  // A click may take the screen and its controls away.
  if (control.Is() == ui::Kind::Button || control.Is() == ui::Kind::CheckBox)
    desk.Click(name);
  else if (const auto* list = dynamic_cast<const ui::ListBox*>(&control); list && list->Count() > 0)
    desk.Pick(name, 1 + static_cast<int>(pick(static_cast<std::size_t>(list->Count()))));
  else if (const auto* bar = dynamic_cast<const ui::ScrollBar*>(&control);
           bar && bar->Max > bar->Min)
    desk.Slide(
        name, bar->Min + static_cast<int>(pick(static_cast<std::size_t>(bar->Max - bar->Min + 1))));
  else if (control.Is() == ui::Kind::TextBox)
    desk.Type(name, "Pat \\ Lee");
}

/// Clicks, picks, checks and slides whatever the top screen has, takes back and does again; never
/// leaves the game.
void LetMonkey(ScriptDesk& desk, std::uint64_t seed, int clicks) {
  std::mt19937_64 chance(seed);
  const auto pick = [&chance](std::size_t n) { return static_cast<std::size_t>(chance() % n); };
  for (int click = 0; click < clicks; ++click) {
    if (desk.TopName() == "frmGameMenu") desk.Click("cmdeditor");
    const auto& controls = desk.Top()->Controls();
    const ui::Control& control = *controls[pick(controls.size())];
    const std::string& name = control.Name();
    if (!control.Visible || !control.Enabled || name == "cmdquit" || name == "cmdmenu") continue;
    ActOn(desk, control, pick);
    if (pick(12) == 0) desk.Take(pick(3) == 0 ? desk.Redo : desk.Undo);
  }
}

/// A game in a slot that records.
struct Recorded {
  explicit Recorded(bool goesBack = true, const std::string& chair = "CWA",
                    std::unique_ptr<Disk> disk = nullptr)
      : Play(CareerWorld(chair), std::move(disk)) {
    Play.Desk.IsEasy = true;
    Play.Play.CloseSlot();
    Slot::Create(Play.Play.Disk(), Play.Play.SlotFolder(1),
                 BeginningFiles(CareerWorld(chair), true, goesBack), 7);
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
  void Monkey(std::uint64_t seed, int clicks) { LetMonkey(Play.Desk, seed, clicks); }
  std::vector<NewFile> Files() { return ReadSlot(Play.Play.Disk(), Play.Play.SlotFolder(1)); }

  GameOnWorld Play;
};

tools::Replayed PlayAgain(const std::vector<NewFile>& files) {
  const ScratchFolder home;
  const auto disk = RealDisk(Syncs::None);
  return tools::Replay(*disk, files, home.Path(), "");
}

void ExpectReplayed(const tools::Replayed& again, const std::string& which = {}) {
  EXPECT_EQ("", again.Fault) << which;
  EXPECT_EQ("", again.Difference) << which;
}

/// How many clicks the long one makes; GRAPPLEMONT_CLICKS=10000 is what it is meant for.
int ManyClicks() {
  const char* const asked = std::getenv("GRAPPLEMONT_CLICKS");
  return asked ? std::max(1, std::atoi(asked)) : 300;
}

TEST(ARecordedCareer, ComesToTheSameBytesWhenItIsPlayedAgain) {
  for (std::uint64_t seed = 1; seed <= 10; ++seed) {
    Recorded career(seed != 2, seed % 3 == 0 ? "XWF" : "CWA");
    for (std::uint64_t day = 0; day < seed; ++day)
      if (career.Play.Desk.TopName() == "frmMainScreen") career.Play.Desk.Click("cmdnext");
    career.Monkey(seed, 40);
    career.Leave();
    career.Enter();  // another sitting
    career.Monkey(seed + 100, 40);
    career.Leave();
    const tools::Replayed again = PlayAgain(career.Files());
    ExpectReplayed(again, std::to_string(seed));
    EXPECT_GT(again.Commands, 20) << seed;
  }
}

TEST(ARecordedCareer, OfManyClicksComesToTheSameBytes) {
  Recorded career;
  career.Monkey(11, ManyClicks());
  career.Leave();
  ExpectReplayed(PlayAgain(career.Files()));
}

/// A disk of the machine's whose n-th write fails, once.
struct FailingDisk {
  std::unique_ptr<Disk> Machine = RealDisk(Syncs::None);
  tools::ConfinedDisk* Failing = nullptr;
  std::unique_ptr<Disk> Make() {
    auto made = std::make_unique<tools::ConfinedDisk>(
        *Machine, std::filesystem::temp_directory_path().string(), "");
    Failing = made.get();
    return made;
  }
  void FailWrite(int n) {
    Failing->Fails = [n](const std::string&) mutable { return --n == 0; };
  }
};

TEST(ARecordedCareer, MeetsTheFaultsOfTheDiskAgain) {
  FailingDisk disk;
  Recorded career(true, "CWA", disk.Make());
  ScriptDesk& desk = career.Play.Desk;
  for (int n = 1; n <= 12; ++n) {
    if (desk.TopName() != "frmMainScreen") break;
    disk.FailWrite(n);
    desk.Click("cmdnext");
    disk.Failing->Fails = {};
  }
  career.Monkey(5, 10);
  career.Leave();
  const auto files = career.Files();
  const auto found = std::ranges::find(files, kCommandsName, &NewFile::Name);
  ASSERT_NE(found, files.end());
  const std::string_view record(reinterpret_cast<const char*>(found->Contents.data()),
                                found->Contents.size());
  EXPECT_NE(record.find(kDiskTookBack), record.npos);
  EXPECT_NE(record.find(kDiskKept), record.npos);
  ExpectReplayed(PlayAgain(files));
}

std::string TextIn(const std::string& path) {
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

TEST(ARecordedCareer, WritesNoFileThatItsRecordNames) {
  const ScratchFolder elsewhere;
  const std::string file = elsewhere / "book.html";
  std::ofstream(file) << "mine";
  Recorded career;
  ScriptDesk& desk = career.Play.Desk;
  const auto found = desk.NewSearch()("Chronicle", 1);
  ASSERT_FALSE(found.empty());
  desk.Visit(ui::Finding(found.front()));
  ASSERT_EQ(desk.TopName(), "frmChronicle");
  // There already, there no more, and there again: what is asked is of the machine.
  for (const bool isThere : {true, false, true}) {
    if (!isThere) std::filesystem::remove(file);
    desk.ExpectPrompt("The book", kAnyText, file);
    if (isThere) desk.ExpectAsk("Replace?", kAnyText, true);
    desk.Click("cmdbook");
    desk.Finish();
  }
  EXPECT_NE("mine", TextIn(file));
  career.Leave();
  std::ofstream(file) << "precious";
  ExpectReplayed(PlayAgain(career.Files()));
  EXPECT_EQ("precious", TextIn(file));
}

/// A home in whose editor a player sits.
struct Evening : EditorHome {
  Evening() { Desk.IsEasy = true; }
  void Do(std::string_view line) { EXPECT_EQ("", ui::DoAct(Desk, line)); }
};

TEST(AnEveningInTheEditor, ComesToTheSameBytesWhenItsActsAreDoneAgain) {
  Evening first, again;
  std::vector<std::string> acts;
  first.Desk.NoteAct = [&](const ui::Act& act) {
    if (!act.Name.empty()) acts.push_back(act.Line);
  };
  const auto before = first.Files();
  LetMonkey(first.Desk, 5, 250);
  for (const std::string& act : acts) again.Do(act);
  EXPECT_NE(before, first.Files());
  EXPECT_EQ(first.Files(), again.Files());
}

TEST(AConfinedDisk, KeepsWhatIsWrittenInItsFolder) {
  const ScratchFolder all;
  for (const char* folder : {"own", "others"}) std::filesystem::create_directory(all / folder);
  std::ofstream(all / "others/file") << "theirs";
  const auto disk = RealDisk(Syncs::None);
  tools::ConfinedDisk confined(*disk, all / "own", all / "others");
  const std::string text = "written";
  const auto bytes = std::as_bytes(std::span(text));
  for (const std::string& path : {all / "own/../up", all / "others/file", all / "ownx"})
    WriteFile(confined, path, bytes);
  EXPECT_FALSE(std::filesystem::exists(all / "up"));
  EXPECT_FALSE(std::filesystem::exists(all / "ownx"));
  EXPECT_EQ("theirs", TextIn(all / "others/file"));
  EXPECT_EQ(6, std::ssize(ReadStart(confined, all / "others/file", 100)));
  EXPECT_EQ(7, std::ssize(ReadStart(confined, all / "ownx", 100)));
  const OpenedFile theirs(confined, all / "others/file", false);
  EXPECT_THROW(confined.WriteAt(theirs, 0, bytes), DiskError);
  EXPECT_THROW(confined.Resize(theirs, 0), DiskError);
}

TEST(ARecordedCareer, IsRenamedCopiedAndGoneBackInFromTheMenu) {
  Recorded career;
  ScriptDesk& desk = career.Play.Desk;
  Disk& disk = career.Play.Play.Disk();
  for (int day = 0; day < 3; ++day) desk.Click("cmdnext");
  career.Leave();
  RenameSlot(disk, career.Play.Play.SlotFolder(1), "Another Name");
  desk.Open("frmLoadGame");
  desk.Click("cmdmornings1");
  ASSERT_EQ("frmMornings", desk.TopName());
  desk.Pick("lstmornings", 2);
  desk.Click("cmdgo");
  ASSERT_EQ("frmMainScreen", desk.TopName());
  desk.Click("cmdnext");
  career.Leave();
  CopySlot(disk, career.Play.Play.SlotFolder(1), career.Play.Play.SlotFolder(2), "A Copy", 8);
  for (const int slot : {1, 2})
    ExpectReplayed(PlayAgain(ReadSlot(disk, career.Play.Play.SlotFolder(slot))),
                   std::to_string(slot));
}

/// What a button does to the desk is no act beside its own: a click is not taken back twice.
TEST(ARecordedCareer, HasEachActOnce) {
  Recorded career;
  ScriptDesk& desk = career.Play.Desk;
  const auto visit = [&desk](const std::string& page) {
    for (const ui::Finding& found : desk.NewSearch()(page, 5))
      if (found.Words == page) return desk.Visit(ui::Finding(found));
    ADD_FAILURE() << page;
  };
  for (const int price : {31, 32, 33}) {
    visit("Ticket Prices");
    desk.Slide("hsticket", price);
    desk.Click("cmddoit");
  }
  while (desk.TopName() != "frmMainScreen") desk.Click("cmdback");
  desk.Click("cmdmornings");
  desk.Click("cmdundo");
  EXPECT_NE(desk.Undo.What(), "");
  career.Leave();
  ExpectReplayed(PlayAgain(career.Files()));
}

TEST(ARecordedCareer, ThatWasPlayedOnByAToolIsGoodUpToThere) {
  Recorded career;
  career.Play.Desk.Click("cmdnext");
  career.Leave();
  career.Enter();
  career.Play.Play.OpenedSlot().EndRecord("grapplemont-world run");
  career.Play.Desk.Click("cmdnext");
  career.Leave();
  auto files = career.Files();
  const tools::Replayed again = PlayAgain(files);
  ExpectReplayed(again);
  EXPECT_EQ("grapplemont-world run", again.EndedBy);
  const auto commands = std::ranges::find(files, kCommandsName, &NewFile::Name);
  const std::string digits = "outside ";
  const auto at = std::ranges::search(commands->Contents, std::as_bytes(std::span(digits)));
  ASSERT_FALSE(at.empty());
  auto& digit = *(at.begin() + static_cast<std::ptrdiff_t>(digits.size()));
  digit = digit == std::byte{'1'} ? std::byte{'2'} : std::byte{'1'};
  EXPECT_NE("", PlayAgain(files).Difference);
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
  const Bytes good = commands->Contents;
  for (const auto& [extra, why] : {std::pair("click cmdnowhere\n", "cmdnowhere"),
                                   {"frobnicate cmdnext\n", "there is no such command"},
                                   {"pick lstahead 1 2\n", "a number is missing or too many"}}) {
    commands->Contents = good;
    for (const char letter : std::string_view(extra))
      commands->Contents.push_back(static_cast<std::byte>(letter));
    EXPECT_NE(PlayAgain(files).Fault.find(why), std::string::npos) << extra;
  }
  std::erase_if(files, [](const NewFile& file) { return file.Name == kCommandsName; });
  EXPECT_THROW(PlayAgain(files), WorldFault);
}

}  // namespace
}  // namespace grapplemont::test
