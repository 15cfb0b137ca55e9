#include "records/store/journal.h"

#include <gtest/gtest.h>
// Its header alone: the library need not be there.
#define XXH_INLINE_ALL
#include <xxhash.h>

#include <algorithm>

#include "records/store/journalfile.h"
#include "support/storeworld.h"

namespace grapplemont::test {
namespace {

// Bytes by hand, as docs/saving.md gives them.

Bytes Joined(std::initializer_list<Bytes> parts) {
  Bytes all;
  for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

Bytes Number(std::uint64_t value, int width) {
  Bytes bytes;
  for (int i = 0; i < width; ++i) bytes.push_back(static_cast<std::byte>((value >> (8 * i)) & 255));
  return bytes;
}

/// Fills up to whole blocks and puts in the checksum of all behind it.
Bytes Sealed(Bytes bytes) {
  bytes.resize((bytes.size() + 4095) / 4096 * 4096);
  const Bytes sum = Number(XXH3_64bits(bytes.data() + 20, bytes.size() - 20), 8);
  std::copy(sum.begin(), sum.end(), bytes.begin() + 12);
  return bytes;
}

Bytes HandMadeMarker(std::uint64_t world, std::uint64_t sequence,
                     DigestForm form = DigestForm::Blocks) {
  return Sealed(Joined({BytesOf("GMFRMARK"), Number(static_cast<std::uint64_t>(form), 4),
                        Number(0, 8), Number(world, 8), Number(sequence, 8), Number(7, 8)}));
}

Bytes HandMadeRecord(std::uint64_t world, std::uint64_t sequence, std::uint64_t files,
                     const Bytes& body, DigestForm form = DigestForm::Blocks) {
  const std::uint64_t length = (56 + body.size() + 4095) / 4096 * 4096;
  return Sealed(Joined({BytesOf("GMFRECRD"), Number(static_cast<std::uint64_t>(form), 4),
                        Number(0, 8), Number(sequence, 8), Number(world, 8), Number(length, 8),
                        Number(7, 8), Number(files, 4), body}));
}

constexpr DigestForm kForms[] = {DigestForm::Whole, DigestForm::Blocks};

/// tv.dat becomes "abcdef" of which "cdef" is told, event.dat goes.
Bytes TwoFiles() {
  return Joined({Number(6, 2), BytesOf("tv.dat"), Number(1, 1), Number(6, 8), Number(1, 4),
                 Number(2, 8), Number(4, 8), BytesOf("cdef"), Number(9, 2), BytesOf("event.dat"),
                 Number(0, 1), Number(0, 8), Number(0, 4)});
}

TEST(AJournalMarker, IsLaidOutToTheByteAndRefusedWithAnyWrong) {
  const Bytes good = HandMadeMarker(5, 9);
  EXPECT_EQ(good, PackMarker({5, 9, 7}));
  for (const DigestForm form : kForms) {
    const auto marker = UnpackMarker(HandMadeMarker(5, 9, form));
    ASSERT_TRUE(marker);
    EXPECT_EQ(form, marker->Form);
    EXPECT_EQ(HandMadeMarker(5, 9, form), PackMarker(*marker));
  }
  for (std::size_t at = 0; at < good.size(); at += at < 48 ? 1 : 111) {
    Bytes bad = good;
    bad[at] ^= std::byte{0x40};
    EXPECT_FALSE(UnpackMarker(bad)) << at;
  }
  EXPECT_FALSE(UnpackMarker(ByteSpan(good).first(4095)));
  EXPECT_FALSE(UnpackMarker({}));
}

TEST(AJournalRecord, IsLaidOutToTheByteAndReadWhereItStands) {
  const Bytes contents = BytesOf("cdef"), good = HandMadeRecord(5, 9, 2, TwoFiles());
  const JournalRecord record{
      5, 9, 7, {{"tv.dat", true, 6, {{2, contents}}}, {"event.dat", false, 0, {}}}};
  EXPECT_EQ(good, PackRecord(record));
  const Bytes journal = Joined({Bytes(8192), good, Bytes(4096)});
  for (const std::int64_t at : {0, 12288, 16384})
    EXPECT_FALSE(UnpackRecord(journal, at, StoreFiles()));
  const auto entry = UnpackRecord(journal, 8192, StoreFiles());
  ASSERT_TRUE(entry);
  EXPECT_EQ(4096, entry->Size);
  EXPECT_EQ(9u, entry->Record.Sequence);
  for (const DigestForm form : kForms)
    EXPECT_EQ(form, UnpackRecord(HandMadeRecord(5, 9, 2, TwoFiles(), form), 0, StoreFiles())
                        .value()
                        .Record.Form);
  ASSERT_EQ(2u, entry->Record.Files.size());
  std::optional<Bytes> file = BytesOf("ab");
  ApplyTo(file, entry->Record.Files[0]);
  EXPECT_EQ(BytesOf("abcdef"), file);
  ApplyTo(file, entry->Record.Files[1]);
  EXPECT_FALSE(file);
  for (std::size_t at = 0; at < good.size(); at += at < 160 ? 1 : 97) {
    Bytes bad = good;
    bad[at] ^= std::byte{1};
    EXPECT_FALSE(UnpackRecord(bad, 0, StoreFiles())) << at;
  }
}

/// One file's worth of a record whose checksum is right.
Bytes OneFile(std::string_view name, std::uint64_t length, std::uint64_t offset,
              std::uint64_t count) {
  return Joined({Number(name.size(), 2), BytesOf(name), Number(1, 1), Number(length, 8),
                 Number(1, 4), Number(offset, 8), Number(count, 8), Bytes(10)});
}

TEST(AJournalRecord, MayTouchKnownFilesWithinTheirLimitsOnly) {
  ASSERT_TRUE(UnpackRecord(HandMadeRecord(5, 9, 1, OneFile("tv.dat", 10, 0, 10)), 0, StoreFiles()));
  const std::uint64_t huge = ~std::uint64_t{0};
  const struct {
    const char* Why;
    std::uint64_t Files;
    Bytes Body;
  } kCases[] = {
      {"a file of no slot", 1, OneFile("passwd", 10, 0, 10)},
      {"a path out of the slot", 1, OneFile("../tv.dat", 10, 0, 10)},
      {"longer than it may be", 1, OneFile("tv.dat", 24001, 0, 10)},
      {"a negative length", 1, OneFile("tv.dat", huge, 0, 10)},
      {"behind the file's end", 1, OneFile("tv.dat", 10, 4096, 10)},
      {"over the file's end", 1, OneFile("tv.dat", 10, 1, 10)},
      {"a negative place", 1, OneFile("tv.dat", 10, huge, 1)},
      {"more than the record holds", 1, OneFile("tv.dat", 20000, 0, 10000)},
      {"an immense range", 1, OneFile("tv.dat", 10, 0, huge)},
      {"more files than there are", 4000000000, OneFile("tv.dat", 10, 0, 10)},
      {"a name that never ends", 1, Joined({Number(65535, 2), BytesOf("tv.dat")})},
      {"ranges that never end", 1,
       Joined(
           {Number(6, 2), BytesOf("tv.dat"), Number(1, 1), Number(10, 8), Number(0xffffffff, 4)})},
  };
  for (const auto& bad : kCases)
    EXPECT_FALSE(UnpackRecord(HandMadeRecord(5, 9, bad.Files, bad.Body), 0, StoreFiles()))
        << bad.Why;
}

TEST(ChangedRanges, AreWholeBlocks) {
  using Stretches = std::vector<std::pair<std::int64_t, std::int64_t>>;  // offset, length
  const struct {
    const char* Case;
    std::size_t Before, After;
    std::vector<std::size_t> Changed;
    Stretches Expected;
  } kCases[] = {
      {"nothing", 10000, 10000, {}, {}},
      {"one byte", 10000, 10000, {5000}, {{4096, 4096}}},
      {"the last, short block", 10000, 10000, {9999}, {{8192, 1808}}},
      {"blocks side by side", 20000, 20000, {1, 4096}, {{0, 8192}}},
      {"blocks apart", 20000, 20000, {1, 8200, 19999}, {{0, 4096}, {8192, 4096}, {16384, 3616}}},
      {"longer within a block", 100, 110, {}, {{0, 110}}},
      {"longer by a block", 4096, 4100, {}, {{4096, 4}}},
      {"shorter within a block", 10000, 9000, {}, {{8192, 808}}},
      {"shorter to a block's end", 10000, 8192, {}, {}},
      {"emptied", 10000, 0, {}, {}},
      {"made", 0, 5000, {}, {{0, 5000}}},
  };
  for (const auto& each : kCases) {
    Bytes before(each.Before, std::byte{'x'}), after(each.After, std::byte{'x'});
    for (const std::size_t at : each.Changed) after[at] = std::byte{'y'};
    Stretches found;
    for (const JournalRange& range : ChangedRanges(before, after)) {
      found.emplace_back(range.Offset, std::ssize(range.Contents));
      EXPECT_EQ(after.data() + range.Offset, range.Contents.data());
    }
    EXPECT_EQ(each.Expected, found) << each.Case;
  }
}

TEST(AWorldDigest, FollowsWhatChangesAndFallsBackWhenThatFails) {
  const auto worlds = RandomWorlds(40, 61);
  WorldDigest digest = DigestOf(worlds[0]);
  for (std::size_t world = 1; world < worlds.size(); ++world) {
    const auto changes = ChangesBetween(worlds[world - 1], worlds[world]);
    const std::uint64_t before = digest.Value();
    {
      const DigestAhead ahead(digest, changes);
      EXPECT_EQ(DigestOf(worlds[world]).Value(), digest.Value());
    }
    EXPECT_EQ(before, digest.Value());
    DigestAhead(digest, changes).Reach();
    EXPECT_NE(before, digest.Value());
  }
  EXPECT_TRUE(digest.Differing(DigestOf(worlds.back())).empty());
  // A file that is all there but for its end has another number.
  Bytes longer(3 * 4096), shorter(2 * 4096 + 1);
  EXPECT_NE(FileDigest(longer, DigestForm::Blocks).Value(),
            FileDigest(shorter, DigestForm::Blocks).Value());
}

// The chain, from journals put together block by block.

constexpr std::uint64_t kMine = 5, kOther = 6;

Bytes Torn(Bytes bytes) {
  bytes[100] ^= std::byte{1};
  return bytes;
}

Bytes RecordOf(std::uint64_t sequence, std::uint64_t world = kMine) {
  return HandMadeRecord(world, sequence, 2, TwoFiles());
}

TEST(AJournalChain, IsWhatFollowsTheHigherMarkerWithoutAGap) {
  using enum JournalChain::State;
  const Bytes low = HandMadeMarker(kMine, 8), high = HandMadeMarker(kMine, 10), none(4096);
  const struct {
    const char* Case;
    Bytes Journal;
    JournalChain::State Found;
    std::uint64_t Last;
    std::size_t Records, Behind = 0;
  } kCases[] = {
      {"empty", Joined({low, high, none}), Sound, 10, 0},
      {"two records", Joined({low, high, RecordOf(11), RecordOf(12), none}), Sound, 12, 2},
      {"the markers the other way round", Joined({high, low, RecordOf(11)}), Sound, 11, 1},
      {"a torn end", Joined({low, high, RecordOf(11), Torn(RecordOf(12))}), Sound, 11, 1},
      {"a cut off end", Joined({low, high, RecordOf(11), Bytes(100)}), Sound, 11, 1},
      {"left over records", Joined({low, high, RecordOf(9), RecordOf(10)}), Sound, 10, 0},
      {"left over behind the chain", Joined({low, high, RecordOf(11), RecordOf(10)}), Sound, 11, 1},
      {"left over behind a torn end", Joined({low, high, Torn(RecordOf(11)), RecordOf(10)}), Sound,
       10, 0},
      {"one marker lost", Joined({low, Torn(high), RecordOf(9), RecordOf(10)}), Sound, 10, 2},
      {"both markers lost", Joined({none, none, RecordOf(9), RecordOf(10)}), Sound, 10, 2},
      {"a hole", Joined({low, high, RecordOf(11), Torn(RecordOf(12)), RecordOf(13)}), Damaged, 11,
       1, 1},
      {"the first one lost", Joined({low, high, none, RecordOf(12), RecordOf(13)}), Damaged, 10, 0,
       2},
      {"all but the last lost", Joined({none, none, none, RecordOf(12)}), Damaged, 0, 0, 1},
      {"records of another world behind", Joined({low, high, RecordOf(11), RecordOf(12, kOther)}),
       Sound, 11, 1},
      {"another world's", Joined({HandMadeMarker(kOther, 3), none, RecordOf(4, kOther)}), Foreign,
       0, 0},
      {"another world's, markers lost", Joined({none, none, RecordOf(4, kOther)}), Foreign, 0, 0},
      {"zeros", Joined({none, none, none}), Unreadable, 0, 0},
      {"a few bytes", Bytes(77, std::byte{'x'}), Unreadable, 0, 0},
      {"nothing", {}, Unreadable, 0, 0},
  };
  for (const auto& each : kCases) {
    const JournalChain chain = ReadChain(each.Journal, kMine, StoreFiles());
    EXPECT_EQ(each.Found, chain.Found) << each.Case;
    EXPECT_EQ(each.Records, chain.Records.size()) << each.Case;
    EXPECT_EQ(each.Behind, chain.Behind.size()) << each.Case;
    if (each.Found != Foreign) {
      EXPECT_EQ(each.Last, chain.Last()) << each.Case;
    }
  }
}

TEST(AJournalChain, EndsAtTheSequenceThatIsAskedFor) {
  const Bytes journal =
      Joined({HandMadeMarker(kMine, 10), Bytes(4096), RecordOf(11), RecordOf(12), RecordOf(13)});
  const JournalChain chain = ReadChain(journal, kMine, StoreFiles(), 12);
  EXPECT_EQ(JournalChain::State::Sound, chain.Found);
  EXPECT_EQ(12u, chain.Last());
  EXPECT_EQ(16384, chain.End);
}

}  // namespace
}  // namespace grapplemont::test
