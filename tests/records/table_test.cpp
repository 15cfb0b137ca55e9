#include "records/store/table.h"

#include <gtest/gtest.h>

#include "records/fields/companies.h"
#include "records/fields/people.h"
#include "records/fields/storyrecords.h"
#include "support/thrown.h"

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
    EXPECT_EQ(file, AsText(stables.Contents()));
  }
}

TEST(Records, NumberFromOneAndTakeNoMoreThanTheirLimit) {
  Records<Feud> feuds;
  for (int i = 0; i < kFeuds; ++i) feuds.Append({}).Heat = i;
  EXPECT_TRUE(feuds.Full());
  EXPECT_EQ("feudinfo.dat is full: it holds its most of 8 records.",
            test::ThrownBy<TableFull>([&] { feuds.Append({}); }));
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
            test::ThrownBy<WorldFault>([&] { feuds.Load(Bytes(9 * sizeof(Feud))); }));
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
