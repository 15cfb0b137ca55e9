#include "records/store/table.h"

#include <gtest/gtest.h>

#include "records/fields/companies.h"
#include "records/fields/gameinfo.h"
#include "records/fields/people.h"
#include "records/fields/storyrecords.h"

namespace grapplemont {
namespace {

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
    EXPECT_TRUE(stables.begin() == stables.end());
    EXPECT_EQ(file, AsText(stables.Contents()));
  }
}

TEST(Records, NumberFromOneAndRefuseOthers) {
  Records<Stable> stables;
  stables.Load(AsBytes(FileOf({"One", "Two"})));
  EXPECT_EQ("One", stables[1].Name.View());
  EXPECT_EQ(2, stables.NumberOf(stables[2]));
  for (const int number : {0, 3, -1, 32767}) EXPECT_THROW(stables[number], std::out_of_range);
  EXPECT_THROW(stables.Erase(3), std::out_of_range);
}

TEST(Records, TakeNoMoreThanTheirLimit) {
  Records<Feud> feuds;
  for (int i = 0; i < kFeuds; ++i) feuds.Append({});
  EXPECT_TRUE(feuds.Full());
  try {
    feuds.Append({});
    FAIL();
  } catch (const TableFull& full) {
    EXPECT_STREQ("feudinfo.dat is full: it holds its most of 8 records.", full.what());
  }
  EXPECT_EQ(kFeuds, feuds.Count());
  const Bytes atTheLimit(8 * sizeof(Feud) + sizeof(Feud) - 1);
  feuds.Load(atTheLimit);
  EXPECT_EQ(8, feuds.Count());
  EXPECT_EQ(feuds.MaxBytes(), static_cast<std::int64_t>(atTheLimit.size()));
  EXPECT_THROW(feuds.Load(Bytes(9 * sizeof(Feud))), WorldFault);
}

TEST(Records, AFullFileThatIsRefusedSaysSo) {
  Records<GameInfo> games;
  try {
    games.Load(Bytes(2 * sizeof(GameInfo)));
    FAIL();
  } catch (const WorldFault& fault) {
    EXPECT_NE(std::string::npos,
              std::string(fault.what()).find("gameinfo.dat holds 2 records, more than its most"));
  }
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
  EXPECT_FALSE(stables.Changed());
  stables.Rewrite({});
  EXPECT_TRUE(stables.Changed()) << "an empty file is not none";
  stables.MarkCommitted();
  stables.Append(StableNamed("One"));
  EXPECT_TRUE(stables.Changed());
  stables.Rollback();
  EXPECT_FALSE(stables.Changed());
  EXPECT_EQ(0, stables.Count());
  stables.Rewrite({StableNamed("One")});
  stables.MarkCommitted();
  stables[1].Owner = 7;
  EXPECT_TRUE(stables.Changed());
  stables[1].Owner = 0;
  EXPECT_FALSE(stables.Changed());
  stables.Remove();
  EXPECT_TRUE(stables.Changed());
  stables.Rollback();
  EXPECT_EQ("One", Names(stables));
}

TEST(TextFile, HoldsItsTextToTheLetter) {
  TextFile notes("notes.dat");
  notes.Set("Notepad");
  EXPECT_EQ("Notepad", AsText(notes.Contents()));
  notes.MarkCommitted();
  notes.Set("Sign Bram.\r\nTape!\xE9");
  EXPECT_TRUE(notes.Changed());
  notes.Rollback();
  EXPECT_EQ("Notepad", notes.Text());
  notes.Load(AsBytes(""));
  EXPECT_TRUE(notes.Exists());
  EXPECT_EQ("", notes.Text());
  notes.Load({});
  EXPECT_TRUE(notes.Exists());
}

TEST(TextFile, IsCutAtItsMostAndRefusesAFileBeyond) {
  TextFile notes("notes.dat");
  const auto most = static_cast<std::size_t>(notes.MaxBytes());
  notes.Set(std::string(most + 5, 'a'));
  EXPECT_EQ(most, notes.Text().size());
  notes.Load(Bytes(most));
  EXPECT_THROW(notes.Load(Bytes(most + 1)), WorldFault);
}

}  // namespace
}  // namespace grapplemont
