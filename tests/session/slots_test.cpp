#include "session/slots.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>

#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "records/store/slotfolder.h"
#include "records/world.h"
#include "session/home.h"
#include "session/screens/frmLoadGame.h"
#include "support/checkout.h"
#include "support/cutdisk.h"
#include "support/homefolder.h"
#include "support/smallworld.h"
#include "support/storeworld.h"

namespace grapplemont::test {
namespace {

World Data() {
  return SmallWorld().Network("Nine").Promotion("CWA", kCult).Owner("Ruth Vane").Crew(6);
}

/// The slots on screen with one game, "First", in the first.
class SavedGames : public testing::Test {
 protected:
  SavedGames() : home_(Data()) {
    home_.StartNewGame();
    home_.Play.World().Workers()[1].Over = 77;
    home_.Play.Commit();
    home_.Play.CloseSlot();
    home_.Desk.CloseAll();
    home_.Desk.Open("frmLoadGame");
  }
  /// What is kept in a slot beside its name.
  int Over(int slot) {
    home_.Play.OpenSlot(slot);
    const int over = home_.Play.World().Workers()[1].Over;
    home_.Play.CloseSlot();
    return over;
  }
  std::string Read(const std::string& name) {
    std::ostringstream text;
    text << std::ifstream(home_.Path(name), std::ios::binary).rdbuf();
    return text.str();
  }

  HomeFolder home_;
};

TEST_F(SavedGames, AreCardsWithTheLastOneOnTop) {
  EXPECT_EQ(home_.Desk.Text("lblfacts"),
            "1 of 8 slots in use. A game saves itself with every click.");
  EXPECT_EQ(home_.Desk.Text("lblplayed"), "Slot 1, First, Medium level");
  EXPECT_EQ(home_.Desk.Text("lblpromotion"), "CWA Wrestling");
  EXPECT_EQ(home_.Desk.Text("lbltoday"), "Wednesday, 01 April 2026");
  EXPECT_EQ(home_.Desk.Text("lblfed1"), "Slot 1, CWA Wrestling");
  EXPECT_FALSE(home_.Desk.Visible("imgpage")) << "no page was kept";
  EXPECT_FALSE(home_.Desk.Visible("cmddelete2"));
  home_.Desk.Click("cmdnew7");
  home_.Desk.Type("txtname", "Pat Lee");
  home_.Desk.Click("cmdbegin");
  EXPECT_EQ(home_.Desk.Top()->Layout().Main->Name(), "cmdload7") << "the card it was begun from";
  for (int back = 0; back < 2; ++back) home_.Desk.Click("cmdback");
  home_.Desk.ExpectPrompt("Duplicate", "Save Game Name:", "Second", "First copy");
  home_.Desk.Click("cmdcopy1");
  EXPECT_EQ(home_.Desk.Text("cmdload2"), "Second");
  EXPECT_EQ(Over(2), 77);
  home_.Desk.Click("cmdload2");
  EXPECT_EQ(home_.Desk.TopName(), "frmMainScreen");
  home_.Write("s2.png", "a page");
  home_.Play.CloseSlot();
  home_.Desk.CloseAll();
  home_.Desk.Open("frmLoadGame");
  EXPECT_EQ(home_.Desk.Text("lblplayed"), "Slot 2, Second, Medium level");
  EXPECT_TRUE(home_.Desk.Visible("imgpage"));
  home_.Desk.Click("cmdcontinue");
  EXPECT_EQ(home_.Play.World().Game().SaveName.View(), "Second");
}

TEST_F(SavedGames, ShowTheirPageInAHomeWithoutPicturesOfItsOwn) {
  home_.Write("s1.png", "a page");
  home_.Remove("gfx");
  home_.Desk.CloseAll();
  home_.Desk.Open("frmLoadGame");
  ASSERT_TRUE(home_.Desk.Visible("imgpage"));
  const auto& page = dynamic_cast<ui::Picture&>(*home_.Desk.Top()->Find("imgpage"));
  std::string found;
  for (const std::string& folder : WithPages(home_.Play.PictureFolders(), home_.Play.Home()))
    if (std::filesystem::exists(folder + "/" + page.File.Get())) found = folder;
  EXPECT_EQ(found, home_.Play.Home());
}

TEST_F(SavedGames, AreRenamedByOneStepThatIsKept) {
  for (const char* name : {"", "Two\nlines"}) {
    home_.Desk.ExpectPrompt("Rename", "Save Game Name:", name, "First");
    if (*name) home_.Desk.ExpectSay("Error!", "A name is one line of plain text.");
    home_.Desk.Click("cmdrename1");
    EXPECT_EQ(home_.Desk.Text("cmdload1"), "First");
  }
  home_.Desk.ExpectPrompt("Rename", "Save Game Name:", "Harbor years", "First");
  home_.Desk.Click("cmdrename1");
  EXPECT_EQ(home_.Desk.Text("cmdload1"), "Harbor years");
  EXPECT_EQ(Over(1), 77);
}

TEST_F(SavedGames, GoToAFileAndComeBackFromIt) {
  home_.Desk.ExpectPrompt("Export", kAnyText, "First.grapplemont", "First.grapplemont");
  home_.Desk.ExpectAsk("Export", kAnyText, false, ui::Default::No);
  home_.Desk.ExpectAsk("Export", kAnyText, true, ui::Default::Yes);
  home_.Desk.Click("cmdexport1");
  const std::string packed = Read("First.grapplemont");
  EXPECT_NE(packed.find("A saved game of Grapplemont: First"), std::string::npos);
  for (const bool over : {false, true}) {
    home_.Desk.ExpectPrompt("Export", kAnyText, "First.grapplemont");
    home_.Desk.ExpectAsk("Replace?", kAnyText, over, ui::Default::No);
    for (const bool along : {false, true})
      if (over) home_.Desk.ExpectAsk("Export", kAnyText, along);
    home_.Desk.Click("cmdexport1");
  }
  EXPECT_EQ(packed, Read("First.grapplemont"));
  std::string longer = packed + "x", changed = packed, newer = packed;
  changed[packed.size() / 2] ^= 1;
  ++newer[8];
  const std::pair<std::string, const char*> kBad[] = {
      {"", "not an exported saved game"},
      {"a diary", "not an exported saved game"},
      {packed.substr(0, packed.size() / 2), "spoiled"},
      {longer, "spoiled"},
      {changed, "spoiled"},
      {newer, "). Update the game to read it."}};
  for (const auto& [bytes, why] : kBad) {
    home_.Write("bad.grapplemont", bytes);
    home_.Desk.ExpectPrompt("Import", kAnyText, "bad.grapplemont");
    home_.Desk.ExpectSay("Error!", kAnyText);
    home_.Desk.Click("cmdimport");
    EXPECT_NE(home_.Desk.Boxes().back().Text.find(why), std::string::npos) << why;
    EXPECT_FALSE(home_.Desk.Enabled("cmdload2"));
  }
  for (const bool sure : {false, true}) {
    home_.Desk.ExpectPrompt("Import", kAnyText, "First.grapplemont");
    home_.Desk.ExpectAsk("Import", kAnyText, sure);
    home_.Desk.Click("cmdimport");
    EXPECT_EQ(home_.Desk.Enabled("cmdload2"), sure);
  }
  const std::string preview = home_.Desk.Boxes().back().Text;
  for (const char* told : {"First ( Medium level", "image ", "order", "slot 2?"})
    EXPECT_NE(preview.find(told), std::string::npos) << told << " in " << preview;
  EXPECT_EQ(home_.Desk.Text("cmdload2"), "First");
  EXPECT_EQ(Over(2), 77);
  EXPECT_FALSE(home_.Desk.Visible("cmdbring2"));
  home_.Desk.ExpectPrompt("Import", kAnyText, "First.grapplemont");
  home_.Desk.ExpectAsk("Import", kAnyText, true, ui::Default::Yes);
  home_.Desk.Click("cmdbring5");
  EXPECT_EQ(home_.Desk.Text("cmdload5"), "First");
  for (const bool yes : {false, true}) {
    home_.Desk.ExpectAsk("Import?", kAnyText, yes, ui::Default::Yes);
    home_.Desk.Event([&] { OfferImport(home_.Play, home_.Path("First.grapplemont")); });
    EXPECT_EQ(home_.Desk.TopName(), yes ? "frmMainScreen" : "frmLoadGame");
  }
  EXPECT_EQ(home_.Play.Opened().Slot, 3) << "the first slot that is empty";
}

TEST_F(SavedGames, NameEveryFaultOfAFileBeforeItIsTakenIn) {
  constexpr int kCrew = 12, kNobody = 999;
  World spoiled = SmallWorld().Promotion("CWA", kCult).Crew(kCrew).Game("CWA");
  for (Worker& worker : spoiled.Workers()) worker.Employer = kNobody;
  const Bytes packed = PackSlot(FilesOf(spoiled), "A game.");
  home_.Write("spoiled", {reinterpret_cast<const char*>(packed.data()), packed.size()});
  home_.Desk.ExpectPrompt("Import", kAnyText, "spoiled");
  home_.Desk.ExpectAsk("Import", kAnyText, false);
  home_.Desk.Click("cmdimport");
  const std::string preview = home_.Desk.Boxes().back().Text;
  for (int record = 1; record <= kCrew; ++record)
    EXPECT_NE(preview.find("wrestler.dat, record " + std::to_string(record) + " ("),
              std::string::npos)
        << record << " in " << preview;
}

TEST_F(SavedGames, TakeAlongWhatTheyCanGoBackToOnRequest) {
  const auto moments = [this](int slot) {
    home_.Play.OpenSlot(slot);
    const std::size_t count = home_.Play.OpenedSlot().Moments().Count();
    home_.Play.CloseSlot();
    return count;
  };
  for (const bool along : {false, true}) {
    const std::string name = along ? "with" : "without";
    home_.Desk.ExpectPrompt("Export", kAnyText, name);
    home_.Desk.ExpectAsk("Export", kAnyText, along);
    home_.Desk.ExpectAsk("Export", kAnyText, false);
    home_.Desk.Click("cmdexport1");
    home_.Desk.ExpectPrompt("Import", kAnyText, name);
    home_.Desk.ExpectAsk("Import", kAnyText, true, ui::Default::Yes);
    home_.Desk.Click("cmdimport");
    const bool told = home_.Desk.Boxes().back().Text.find("can go back to") != std::string::npos;
    EXPECT_EQ(told, along);
  }
  EXPECT_EQ(moments(2), 0u);
  EXPECT_EQ(moments(3), moments(1));
  EXPECT_GT(moments(1), 0u);
}

TEST(ExportedGames, NameEveryFaultThatTheyHave) {
  const auto refused = [](const std::vector<NewFile>& files, std::size_t changed = 0) {
    Bytes packed = PackSlot(files, "about");
    if (changed > 0) packed[changed] ^= std::byte{8};
    try {
      UnpackSlot(packed, "game");
    } catch (const WorldFault& fault) {
      return std::string(fault.what());
    }
    return std::string();
  };
  const Bytes some(40), many(std::size_t{3} << 20);
  const std::pair<std::string, const char*> kFaults[] = {
      {refused({{"notes.dat", some}}), ""},
      {refused({{"notes.dat", some}}, 8), "newer version"},
      {refused({{"notes.dat", some}}, 24), "spoiled"},
      {refused({{"../diary", some}}), "../diary in it is no file"},
      {refused({{"notes.dat", many}}), "notes.dat in it is longer"},
      {refused({{"notes.dat", some}, {"notes.dat", some}}), "notes.dat is in it twice"}};
  for (const auto& [told, wanted] : kFaults) {
    EXPECT_NE(told.find(wanted), std::string::npos) << wanted << " in " << told;
    EXPECT_EQ(told.empty(), *wanted == '\0') << told;
  }
}

/// A game of each version is kept as that version exported it.
TEST(ReleasedVersions, LeaveGamesThatStillOpen) {
  int games = 0;
  for (const auto& file : std::filesystem::directory_iterator(Checkout("/tests/versions"))) {
    SCOPED_TRACE(file.path().filename().string());
    HomeFolder home(Data());
    World scratch;
    const Importable game = ReadExported(home.Play.Disk(), file.path().string(), scratch);
    EXPECT_NE(game.Preview.find("in order"), std::string::npos) << game.Preview;
    ImportSlot(home.Play.Disk(), game, home.Play.SlotFolder(3), 5);
    EXPECT_TRUE(home.Play.OpenSlot(3).empty());
    EXPECT_EQ(home.Play.World().Game().PlayerName.View(), "Pat Lee");
    home.Play.CloseSlot();
    ++games;
  }
  EXPECT_GE(games, 1);
}

TEST_F(SavedGames, AreKeptForAWeekOnceTheyAreDeleted) {
  home_.Write("s1/diary.txt", "mine");
  const auto disk = RealDisk();
  WriteFile(*disk, PageOf(home_.Path("s1")), Bytes(9));
  for (const bool sure : {false, true}) {
    home_.Desk.ExpectAsk("Delete?", kAnyText, sure, ui::Default::No);
    home_.Desk.Click("cmddelete1");
    EXPECT_EQ(home_.Desk.Visible("cmdrestore"), sure);
    EXPECT_EQ(disk->Look(PageOf(home_.Path("s1"))) == Disk::Kind::Nothing, sure);
  }
  EXPECT_FALSE(home_.Desk.Visible("cmdcontinue"));
  EXPECT_EQ(home_.Desk.Rows("cmbdeleted")[0][0],
            "First, deleted on Tuesday, 17 March 2026, kept for 7 more days");
  home_.Desk.Click("cmdrestore");
  EXPECT_EQ(home_.Desk.Text("cmdload1"), "First");
  EXPECT_EQ(Over(1), 77);
  EXPECT_EQ(Read("s1/diary.txt"), "mine");
  EXPECT_EQ(disk->Look(PageOf(home_.Path("s1"))), Disk::Kind::File);

  // Put away on the day that makes it a week, and a day later.
  for (const char* day : {"2026-03-11", "2026-03-10"}) {
    PutAway(*disk, home_.Path("s1"), home_.Path(std::string("s1.deleted.") + day));
    home_.Desk.CloseAll();
    home_.Desk.Open("frmLoadGame");
    if (std::string_view(day) == "2026-03-11") home_.Desk.Click("cmdrestore");
  }
  EXPECT_FALSE(home_.Desk.Visible("cmdrestore"));
  EXPECT_EQ(disk->List(home_.Path("s1.deleted.2026-03-10")),
            (std::vector<std::string>{"diary.txt"}));
}

TEST_F(SavedGames, AreLeftAloneWhileTheyArePlayedElsewhere) {
  const auto other = RealDisk();
  const Slot held(*other, home_.Path("s1"), KnownFiles());
  const std::pair<const char*, std::function<void()>> kActs[] = {
      {"cmdcopy1", [&] { home_.Desk.ExpectPrompt("Duplicate", kAnyText, "Second"); }},
      {"cmdrename1", [&] { home_.Desk.ExpectPrompt("Rename", kAnyText, "Second"); }},
      {"cmdexport1",
       [&] {
         home_.Desk.ExpectPrompt("Export", kAnyText, "out");
         home_.Desk.ExpectAsk("Export", kAnyText, false);
         home_.Desk.ExpectAsk("Export", kAnyText, false);
       }},
      {"cmddelete1", [&] { home_.Desk.ExpectAsk("Delete?", kAnyText, true); }}};
  for (const auto& [button, expect] : kActs) {
    expect();
    home_.Desk.ExpectSay("Error!", kAnyText);
    home_.Desk.Click(button);
    EXPECT_NE(home_.Desk.Boxes().back().Text.find("another program"), std::string::npos) << button;
  }
  EXPECT_EQ(home_.Desk.Text("cmdload1"), "First");
  EXPECT_EQ(RealDisk()->Look(home_.Path("out")), Disk::Kind::Nothing);
}

/// However the power goes, a deleted game is in its slot or beside it, whole.
TEST(ASlotThatIsPutAway, IsWholeInOneOfItsPlacesAfterAnyCut) {
  CutDisk disk;
  const auto worlds = RandomWorlds(3, 17);
  Slot::Create(disk, "s1", NewFiles(worlds[0]), 1);
  {
    Slot slot(disk, "s1", StoreFiles());
    slot.Commit(ChangesBetween(worlds[0], worlds[1]));
  }
  disk.Record();
  PutAway(disk, "s1", "s1.deleted.2026-03-17");
  BringBack(disk, "s1.deleted.2026-03-17", "s1");
  int places = 0;
  ForEveryCut(disk, Often(4), 17, [&](CutDisk& after, const Cut&) {
    const bool home = after.Look("s1") == Disk::Kind::Folder;
    ASSERT_NE(home, after.Look("s1.deleted.2026-03-17") == Disk::Kind::Folder);
    places |= home ? 1 : 2;
    if (!home) BringBack(after, "s1.deleted.2026-03-17", "s1");
    EXPECT_EQ(worlds[1], Slot(after, "s1", StoreFiles()).Files());
  });
  EXPECT_EQ(places, 3);
}

/// However the power goes, a copy is what its original would be under that name, or is not there.
TEST(ACopiedGame, IsWholeAndUnderItsOwnNameOrNotThereAfterAnyCut) {
  const World world = SmallWorld().Promotion("CWA", kCult).Owner("Ruth Vane").Crew(2).Game("CWA");
  for (const bool hasMoments : {false, true}) {
    CutDisk disk;
    Slot::Create(disk, "s1", BeginningFiles(world, true), 1);
    if (hasMoments) RenameSlot(disk, "s1", "First");
    disk.Record();
    CopySlot(disk, "s1", "s2", "Second", 2);
    CutDisk original = disk.Restarted();
    RenameSlot(original, "s1", "Second");
    const auto wanted = PlayedSlot(original, "s1").Files();
    int found = 0;
    ForEveryCut(disk, Often(1), 19, [&](CutDisk& after, const Cut& cut) {
      if (StandingFolder(after, "s2").empty()) return;
      ++found;
      EXPECT_EQ(PlayedSlot(after, "s2").Files(), wanted) << cut.Where;
    });
    EXPECT_GT(found, 0);
  }
}

}  // namespace
}  // namespace grapplemont::test
