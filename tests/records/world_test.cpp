#include <gtest/gtest.h>

#include "records/modVar.h"
#include "records/world.h"
#include "support/smallworld.h"
#include "support/thrown.h"

namespace grapplemont {

namespace {

using test::BytesOf;
using test::CopyOf;
using test::ExpectSame;
using test::Named;
using test::SmallWorld;
using test::ThrownBy;

World Small() {
  return SmallWorld()
      .Promotion("CWA", kCult)
      .Worker("Bram Okafor")
      .Worker("Ilya Marsh")
      .Promotion("NEW", kSmall)
      .Worker("Cal Drift")
      .Game("CWA");
}

std::string ChangedFiles(const World& world) {
  std::string files;
  for (const FileChange& change : world.Changes()) files += change.Name + " ";
  return files;
}

TEST(World, TellsWhatHasChangedFileByFile) {
  World world = Small();
  EXPECT_EQ("", ChangedFiles(world));
  Named(world.Workers(), "Bram Okafor").Morale = 61;
  world.News().Append({});
  world.Feuds().Remove();
  EXPECT_EQ("wrestler.dat news.dat feudinfo.dat ", ChangedFiles(world));
  const auto changes = world.Changes();
  EXPECT_TRUE(changes[0].ExistsBefore && changes[0].ExistsAfter);
  EXPECT_EQ(std::ssize(changes[0].After), changes[0].LengthBefore);
  EXPECT_FALSE(changes[1].ExistsBefore);
  EXPECT_EQ(sizeof(Mail), changes[1].After.size());
  EXPECT_FALSE(changes[2].ExistsAfter);
  EXPECT_EQ(static_cast<std::int64_t>(8 * sizeof(Feud)), changes[2].LengthBefore);
  world.MarkCommitted();
  EXPECT_EQ("", ChangedFiles(world));
}

TEST(World, GoesBackToTheLastCommit) {
  World world = Small();
  const World before = CopyOf(world);
  world.Workers()[1].Name = "Somebody Else";
  world.Workers().Append(world.Workers()[2]);
  world.Promotions().Erase(2);
  world.Notes().Set("Scribbled over");
  world.GameInfos().Remove();
  world.Incidents().Append({});
  world.Rollback();
  ExpectSame(world, before);
  EXPECT_EQ("", ChangedFiles(world));
}

TEST(World, LoadsAndListsExactlyTheFilesItIsGiven) {
  World world = Small();
  auto files = BytesOf(world);
  files.erase("wrestler.dat");
  files["notes.dat"] = {};
  world.Workers()[1].Age = 44;
  world.Load(files);
  EXPECT_EQ("", ChangedFiles(world));
  EXPECT_FALSE(world.Workers().Exists());
  EXPECT_TRUE(world.Notes().Exists());
  EXPECT_EQ(files, BytesOf(world));
  std::map<std::string, Bytes> listed;
  for (const NewFile& file : FilesOf(world)) listed[file.Name] = file.Contents;
  EXPECT_EQ(files, listed);
}

TEST(World, LooksUpByUid) {
  const World world = Small();
  EXPECT_EQ("Ilya Marsh", world.FindWorker(2)->Name.View());
  EXPECT_EQ("NEW", world.FindPromotion(2)->Initials.View());
  for (const int uid : {0, -1, 4, 32767, 32768, -32768, 2147483647, -2147483647})
    EXPECT_EQ(nullptr, world.FindWorker(uid)) << uid;
  EXPECT_EQ(nullptr, World().FindSponsor(1));
}

TEST(World, FindsRecordsWhereverTheyHaveGone) {
  World world = SmallWorld().Promotion("CWA").Crew(50);
  for (int uid = 1; uid <= 50; ++uid) ASSERT_EQ(uid, world.FindWorker(uid)->Uid);

  world.Workers().Keep([](const Worker& worker) { return worker.Uid % 3 != 0; });
  for (int uid = 1; uid <= 50; ++uid) {
    const Worker* worker = world.FindWorker(uid);
    ASSERT_EQ(uid % 3 != 0, worker != nullptr) << uid;
    EXPECT_EQ(worker ? uid : 0, worker ? int(worker->Uid) : 0);
  }

  world.Workers()[1].Uid = 900;  // another person in an old record
  EXPECT_EQ(nullptr, world.FindWorker(1));
  EXPECT_EQ(&world.Workers()[1], world.FindWorker(900));

  Worker fresh;
  fresh.Uid = 32767;
  EXPECT_EQ(nullptr, world.FindWorker(32767));
  world.Workers().Append(fresh);
  EXPECT_EQ(world.Workers().Count(), world.Workers().NumberOf(*world.FindWorker(32767)));

  world.Rollback();
  for (int uid = 1; uid <= 50; ++uid) ASSERT_EQ(uid, world.FindWorker(uid)->Uid);
  EXPECT_EQ(nullptr, world.FindWorker(900));
}

TEST(World, TheFirstOfTwoWithOneUidIsTheOneFound) {
  World world = SmallWorld().Promotion("CWA").Crew(4);
  world.Workers()[3].Uid = 2;
  EXPECT_EQ(&world.Workers()[2], world.FindWorker(2));
  EXPECT_EQ(&world.Workers()[4], world.FindWorker(4));  // builds the index again
  EXPECT_EQ(&world.Workers()[2], world.FindWorker(2));
  world.Workers().Erase(2);
  EXPECT_EQ(&world.Workers()[2], world.FindWorker(2));
}

TEST(World, AFolderLoadedAnewIsLookedUpAnew) {
  World world = SmallWorld().Promotion("CWA").Crew(4);
  const auto files = BytesOf(world);
  world.Workers()[1].Uid = 4;
  const auto changed = BytesOf(world);
  world.Load(files);
  ASSERT_EQ(&world.Workers()[4], world.FindWorker(4));
  world.Load(changed);
  EXPECT_EQ(&world.Workers()[1], world.FindWorker(4));
}

TEST(World, SaysWhatIsMissingInAFolderWithoutAGameOrItsPromotion) {
  World world = Small();
  world.Game().PlayerPromotion = 77;
  EXPECT_EQ(
      "gameinfo.dat, record 1, PlayerPromotion: promos.dat has no promotion 77. Put back the files "
      "of this game, or start a new one.",
      ThrownBy<WorldFault>([&] { world.Player(); }));
  world.GameInfos().Remove();
  EXPECT_EQ(0, world.PlayerUid());
  EXPECT_EQ("This folder has no gameinfo.dat: no game is played in it.",
            ThrownBy<WorldFault>([&] { world.Today(); }));
}

TEST(World, ExplainsAnOverflowByRecordAndField) {
  World world = Small();
  const auto explain = [&](auto change) {
    try {
      change();
    } catch (const FieldOverflow& fault) {
      return world.Explain(fault);
    }
    return std::string("no overflow");
  };
  EXPECT_EQ("wrestler.dat, record 3, Manager: The value 40000 does not fit a field of 16 bits.",
            explain([&] { world.Workers()[3].Manager = 40000; }));
  EXPECT_EQ("promos.dat, record 2, Sponsor4: The value 9999999999 does not fit a field of 16 bits.",
            explain([&] { world.Promotions()[2].Sponsor[3] = 9999999999LL; }));
  EXPECT_EQ(
      "gameinfo.dat, record 1, Job2EndSize: The value -40000 does not fit a field of 16 bits.",
      explain([&] { world.Game().Jobs[1].EndSize = -40000; }));
  EXPECT_EQ("The value 70000 does not fit a field of 16 bits.", explain([] {
              Worker nowhere;
              nowhere.Manager = 70000;
            }));
}

TEST(FirstDifference, NamesRecordAndField) {
  const World expected = Small();
  const struct {
    const char* Says;
    void (*Change)(World&);
  } rows[] = {
      {"", [](World&) {}},
      {"wrestler.dat, record 2, Ilya Marsh, Morale: was 80, is 61",
       [](World& w) { w.Workers()[2].Morale = 61; }},
      {"wrestler.dat, record 1, Bram Okafor, Employer: was CWA, is ",
       [](World& w) { w.Workers()[1].Employer = 0; }},
      {"wrestler.dat, record 3, Cal Drift: was there, is missing",
       [](World& w) { w.Workers().Erase(3); }},
      {"news.dat: was missing, is there", [](World& w) { w.News().Append({}); }},
      {"feudinfo.dat: was there, is missing", [](World& w) { w.Feuds().Remove(); }},
      {"notes.dat, Text: was Notepad, is notepad", [](World& w) { w.Notes().Set("notepad"); }},
  };
  for (const auto& row : rows) {
    World world = CopyOf(expected);
    row.Change(world);
    EXPECT_EQ(row.Says, FirstDifference(world, expected));
  }
}

TEST(Headroom, IsRemarkedOnFromNineTenthsOn) {
  World world;
  EXPECT_TRUE(NearlyFullFiles(world).empty());
  world.Workers().Rewrite(std::vector<Worker>(22499));
  world.AllStaff().Rewrite(std::vector<Staff>(8999));
  EXPECT_TRUE(NearlyFullFiles(world).empty());
  world.Workers().Append({});
  world.AllStaff().Append({});
  EXPECT_EQ((std::vector<std::string>{"wrestler.dat holds 22500 workers; 25000 is the most. Start "
                                      "the next game from a smaller database.",
                                      "staff.dat holds 9000 staff; 10000 is the most. Start the "
                                      "next game from a smaller database."}),
            NearlyFullFiles(world));
}

// The tables that a world is made of.

Bytes AsBytes(std::string_view text) {
  const auto bytes = std::as_bytes(std::span(text));
  return {bytes.begin(), bytes.end()};
}

std::string AsText(ByteSpan bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

Stable StableNamed(std::string_view name) {
  Stable stable;
  stable.Name = name;
  return stable;
}

/// A file of stables and its records as text.
std::string FileOf(std::initializer_list<std::string_view> names) {
  std::string file;
  for (const std::string_view name : names) {
    const Stable stable = StableNamed(name);
    file.append(reinterpret_cast<const char*>(&stable), sizeof stable);
  }
  return file;
}

std::string Names(const Records<Stable>& stables) {
  std::string names;
  for (const Stable& stable : stables) names += (names.empty() ? "" : ",") + stable.Name.Str();
  return names;
}

TEST(Records, CountWholeRecordsAndKeepTheRestUntilAnAppend) {
  const std::string whole = FileOf({"One", "Two"});
  for (const std::size_t surplus : {0u, 1u, 26u}) {
    const std::string file = whole + FileOf({"Lost"}).substr(0, surplus);
    Records<Stable> stables;
    stables.Load(AsBytes(file));
    stables.MarkCommitted();
    EXPECT_EQ(2, stables.Count());
    EXPECT_EQ(file, AsText(stables.Contents())) << surplus;
    EXPECT_FALSE(stables.Changed());
    stables[2].Name = "Too";
    EXPECT_EQ(FileOf({"One", "Too"}) + file.substr(whole.size()), AsText(stables.Contents()));
    stables.Append(StableNamed("Three"));
    EXPECT_EQ(FileOf({"One", "Too", "Three"}), AsText(stables.Contents()));
    stables.Rollback();
    EXPECT_EQ(file, AsText(stables.Contents()));
  }
}

TEST(Records, AFileShorterThanARecordIsEmptyButThere) {
  Records<Stable> stables;
  EXPECT_FALSE(stables.Exists());
  for (const std::string file : {"", "short"}) {
    stables.Load(AsBytes(file));
    EXPECT_TRUE(stables.Exists());
    EXPECT_EQ(0, stables.Count());
    EXPECT_EQ(file, AsText(stables.Contents()));
  }
}

TEST(Records, NumberFromOneAndTakeNoMoreThanTheirLimit) {
  Records<Feud> feuds;
  for (int i = 0; i < kFeuds; ++i) feuds.Append({}).Heat = i;
  EXPECT_TRUE(feuds.Full());
  EXPECT_EQ("feudinfo.dat is full: it holds its most of 8 records.",
            ThrownBy<TableFull>([&] { feuds.Append({}); }));
  EXPECT_EQ(kFeuds, feuds.Count());
  EXPECT_EQ(0, feuds[1].Heat);
  EXPECT_EQ(2, feuds.NumberOf(feuds[2]));
  for (const int number : {0, 9, -1, 32767}) EXPECT_THROW(feuds[number], std::out_of_range);
  EXPECT_THROW(feuds.Erase(9), std::out_of_range);
  const Bytes atTheLimit(8 * sizeof(Feud) + sizeof(Feud) - 1);
  feuds.Load(atTheLimit);
  EXPECT_EQ(8, feuds.Count());
  EXPECT_EQ(feuds.MaxBytes(), static_cast<std::int64_t>(atTheLimit.size()));
  EXPECT_EQ("feudinfo.dat holds 9 records, more than its most of 8. Put back a file of this game.",
            ThrownBy<WorldFault>([&] { feuds.Load(Bytes(9 * sizeof(Feud))); }));
}

TEST(Records, ReferencesStayGoodWhileRecordsAreAppended) {
  Records<Staff> all;
  Staff& first = all.Append({});
  first.Name = "Ruth Vane";
  const Staff* place = &first;
  while (!all.Full()) all.Append(first);
  EXPECT_EQ(10000, all.Count());
  EXPECT_EQ(place, &all[1]);
  EXPECT_EQ("Ruth Vane", all[10000].Name.View());
}

TEST(Records, CompactionKeepsTheOrderOfWhatStays) {
  Records<Stable> stables;
  stables.Load(AsBytes(FileOf({"A", "x", "B", "x", "x", "C"}) + "tail"));
  stables.Keep([](const Stable&) { return true; });
  EXPECT_EQ("A,x,B,x,x,C", Names(stables));
  EXPECT_EQ("tail", AsText(stables.Contents()).substr(6 * sizeof(Stable)));
  stables.Keep([](const Stable& stable) { return !(stable.Name == "x"); });
  EXPECT_EQ(FileOf({"A", "B", "C"}), AsText(stables.Contents()));
  stables.Erase(2);
  EXPECT_EQ("A,C", Names(stables));
  stables.Keep([](const Stable&) { return false; });
  EXPECT_TRUE(stables.Exists());
  EXPECT_EQ(0, stables.Count());
}

TEST(Records, KnowWhatHasChangedSinceTheCommit) {
  Records<Stable> stables;
  stables.Rewrite({});
  EXPECT_TRUE(stables.Changed()) << "an empty file is not none";
  stables.Rewrite({StableNamed("One")});
  stables.MarkCommitted();
  stables[1].Owner = 7;
  EXPECT_TRUE(stables.Changed());
  stables[1].Owner = 0;
  EXPECT_FALSE(stables.Changed());
  stables.Append(StableNamed("Two"));
  EXPECT_TRUE(stables.Changed());
  stables.Remove();
  EXPECT_TRUE(stables.Changed());
  stables.Rollback();
  EXPECT_EQ("One", Names(stables));
}

TEST(TextFile, HoldsItsTextToTheLetterAndIsCutAtItsMost) {
  TextFile notes("notes.dat");
  notes.Set("Notepad");
  notes.MarkCommitted();
  notes.Set("Sign Bram.\r\nTape!\xE9");
  EXPECT_TRUE(notes.Changed());
  notes.Rollback();
  EXPECT_EQ("Notepad", AsText(notes.Contents()));
  notes.Load({});
  EXPECT_TRUE(notes.Exists());
  EXPECT_EQ("", notes.Text());
  const auto most = static_cast<std::size_t>(notes.MaxBytes());
  notes.Set(std::string(most + 5, 'a'));
  EXPECT_EQ(most, notes.Text().size());
  EXPECT_THROW(notes.Load(Bytes(most + 1)), WorldFault);
}

}  // namespace
}  // namespace grapplemont
