#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "records/fields/gameinfo.h"
#include "records/store/journalfile.h"
#include "records/store/slot.h"
#include "records/store/slotfolder.h"
#include "support/storeworld.h"

// What copies, clouds and failing disks leave of a slot: a journal that was cut short or has zeros
// in it, beside record files that are older than it, newer, or of several days. Power cuts leave
// none of this (cut_test.cpp). Either a committed world is found, or the player is told, with a
// copy of everything as it was.

namespace grapplemont::test {
namespace {

/// A slot that nobody closed, with a chain of records behind a marker of its own.
struct LongChain {
  CutDisk Disk;
  std::vector<Files> Worlds;
  std::vector<Bytes> Seals;  // as it stood with each world
  SlotOptions Options;
  std::int64_t Blocks = 0;
  int Marked = 0;  // the world of the marker
  struct Place {
    std::int64_t Begin, End;
  };
  std::vector<Place> Places;  // of the records behind it, in blocks

  int Last() const { return static_cast<int>(std::ssize(Worlds)) - 1; }
};

std::string In(const std::string& name) {
  return std::string(kStore) + "/" + name;
}

LongChain MakeChain(int commits, std::int64_t blocks, std::uint64_t seed) {
  LongChain chain{{}, RandomWorlds(commits + 1, seed), {}, {blocks * kJournalBlock, {}}, blocks, 0,
                  {}};
  Slot::Create(chain.Disk, kStore, NewFiles(chain.Worlds[0]), kStoreId, chain.Options);
  {
    Slot slot(chain.Disk, kStore, StoreFiles(), Damage::Refuse, chain.Options);
    chain.Seals.push_back(ReadFile(chain.Disk, In(kSealName)));
    for (std::size_t i = 1; i < chain.Worlds.size(); ++i) {
      slot.Commit(ChangesBetween(chain.Worlds[i - 1], chain.Worlds[i]));
      chain.Seals.push_back(ReadFile(chain.Disk, In(kSealName)));
    }
  }
  const Bytes journal = ReadFile(chain.Disk, In(kJournalName));
  const JournalChain read = ReadChain(journal, kStoreId, StoreFiles());
  chain.Marked = static_cast<int>(read.Marker.Sequence);
  std::int64_t at = kJournalStart;
  for (std::size_t i = 0; i < read.Records.size(); ++i) {
    const auto entry = UnpackRecord(journal, at, StoreFiles());
    chain.Places.push_back({at / kJournalBlock, (at + entry->Size) / kJournalBlock});
    at += entry->Size;
  }
  return chain;
}

/// Record files beside the journal, and the seal with them.
struct Beside {
  Files World;
  int Oldest, Newest;  // what they are parts of
  Bytes Seal;
  bool Sealed;  // the seal is of Newest or later
};

void PutBeside(Disk& disk, const Beside& beside) {
  for (const KnownFile& known : StoreFiles()) RemoveTree(disk, In(known.Name));
  for (const auto& [name, contents] : beside.World) WriteNewFile(disk, In(name), contents);
  WriteNewFile(disk, In(kSealName), beside.Seal);
}

/// The files of a day, with the seal of theirs, of the last and with none.
std::vector<Beside> FilesAt(const LongChain& chain, int v) {
  const auto at = static_cast<std::size_t>(v);
  return {{chain.Worlds[at], v, v, chain.Seals[at], true},
          {chain.Worlds[at], v, v, chain.Seals.back(), true},
          {chain.Worlds[at], v, v, {}, false}};
}

/// Files of several days, as a copy takes them that was made during play.
std::vector<Beside> Mixtures(const LongChain& chain, int count) {
  Chance chance(7);
  std::vector<Beside> all;
  for (int i = 0; i < count; ++i) {
    Beside mixed{
        {}, chain.Last(), chain.Marked, i % 2 == 0 ? chain.Seals.back() : Bytes(), i % 2 == 0};
    for (const KnownFile& known : StoreFiles()) {
      const int v =
          chain.Marked + static_cast<int>(Pick(
                             chance, static_cast<std::uint64_t>(chain.Last() - chain.Marked + 1)));
      mixed.Oldest = std::min(mixed.Oldest, v);
      mixed.Newest = std::max(mixed.Newest, v);
      const Files& world = chain.Worlds[static_cast<std::size_t>(v)];
      if (const auto file = world.find(known.Name); file != world.end()) mixed.World.insert(*file);
    }
    all.push_back(std::move(mixed));
  }
  return all;
}

/// Blocks of the journal that are zeros, or gone.
struct Loss {
  std::int64_t Begin, End;
  bool IsCut;
};

/// Where something begins or is in its midst: blocks within one record are all alike.
std::set<std::int64_t> PointsOf(const LongChain& chain) {
  std::set<std::int64_t> points{0, 1, 2, chain.Blocks};
  for (const auto& [begin, end] : chain.Places)
    points.insert({begin, (begin + end) / 2, end, (end + chain.Blocks) / 2});
  return points;
}

std::vector<Loss> EveryLoss(const LongChain& chain) {
  const std::set<std::int64_t> points = PointsOf(chain);
  std::vector<Loss> all;
  for (auto begin = points.begin(); *begin < chain.Blocks; ++begin) {
    all.push_back({*begin, chain.Blocks, true});
    for (auto end = std::next(begin); end != points.end(); ++end)
      all.push_back({*begin, *end, false});
  }
  return all;
}

/// Without the ranges that are neither one block nor all behind it.
std::vector<Loss> EveryEnd(const LongChain& chain) {
  std::vector<Loss> all;
  for (std::int64_t begin = 0; begin < chain.Blocks; ++begin)
    for (const Loss& loss : {Loss{begin, chain.Blocks, true}, Loss{begin, chain.Blocks, false},
                             Loss{begin, begin + 1, false}})
      all.push_back(loss);
  return all;
}

void Lose(Disk& disk, const Loss& loss) {
  const OpenedFile journal(disk, In(kJournalName), false);
  const std::int64_t at = loss.Begin * kJournalBlock;
  if (loss.IsCut)
    disk.Resize(journal, at + (loss.Begin % 2 == 0 ? 0 : 700));
  else
    disk.WriteAt(journal, at,
                 Bytes(static_cast<std::size_t>((loss.End - loss.Begin) * kJournalBlock)));
  disk.Sync(journal);
}

/// How a damaged slot was opened.
struct Outcome {
  bool Asked = false, Told = false;
  Files World;
};

Outcome Opened(CutDisk& disk, const SlotOptions& options) {
  Outcome outcome;
  const auto take = [&](Damage damage) {
    const Slot slot(disk, kStore, StoreFiles(), damage, options);
    outcome.World = slot.Files();
    outcome.Told = !slot.Remarks().empty();
  };
  try {
    take(Damage::Refuse);
  } catch (const SlotDamaged&) {
    outcome.Asked = true;
    take(Damage::Drop);
  }
  return outcome;
}

class Judge {
 public:
  Judge(const LongChain& chain, const Beside& beside) : chain_(chain), beside_(beside) {}

  /// What is wrong with what was found; empty for nothing.
  std::string Fault(const Loss& loss, const Outcome& outcome) const {
    int found = chain_.Last();
    while (found >= 0 && !Same(chain_.Worlds[static_cast<std::size_t>(found)], outcome.World))
      --found;
    const bool silent = !outcome.Told;
    if (outcome.Asked && silent) return "nothing was said after the question";
    const bool isWhole = beside_.Oldest == beside_.Newest;
    if (found < 0 && (isWhole || silent)) return "no committed world";
    if (found < beside_.Newest && beside_.Sealed && silent) return "rolled back in silence";
    if (found < beside_.Newest && beside_.Sealed && isWhole && !outcome.Asked)
      return "rolled back without a question";
    if (found < Provable(loss)) return "less than what can be proven";
    if (beside_.Seal == chain_.Seals.back() && Provable(loss) == chain_.Last() && outcome.Asked)
      return "a question where nothing is lost";
    return {};
  }

 private:
  bool IsWhole(int record, const Loss& loss) const {
    const LongChain::Place& place =
        chain_.Places[static_cast<std::size_t>(record - chain_.Marked - 1)];
    return place.End <= loss.Begin || (!loss.IsCut && place.Begin >= loss.End);
  }

  /// The newest world that files, seal and what is left of the journal prove without doubt.
  int Provable(const Loss& loss) const {
    const int last = chain_.Last();
    const bool isSealed = beside_.Seal == chain_.Seals[static_cast<std::size_t>(beside_.Newest)];
    int provable = isSealed && beside_.Oldest == beside_.Newest ? beside_.Newest : -1;
    if (beside_.Oldest < chain_.Marked) return provable;
    bool all = true;
    for (int record = beside_.Oldest + 1; record <= last; ++record) all &= IsWhole(record, loss);
    // Without a record behind the loss nothing tells that the files are the last.
    if (all && beside_.Oldest < last) return last;
    int before = chain_.Marked;
    while (before < last && IsWhole(before + 1, loss) &&
           chain_.Places[static_cast<std::size_t>(before - chain_.Marked)].End <= loss.Begin)
      ++before;
    if (loss.Begin >= 2 && beside_.Newest <= before) provable = std::max(provable, before);
    return provable;
  }

  const LongChain& chain_;
  const Beside& beside_;
};

struct Figures {
  int Cases = 0, Silent = 0, Mended = 0, Asked = 0, Bad = 0;
  std::string First;
};

void Try(const LongChain& chain, const Beside& beside, const std::vector<Loss>& losses,
         Figures& figures) {
  CutDisk with = chain.Disk.Restarted();
  PutBeside(with, beside);
  const Judge judge(chain, beside);
  for (const Loss& loss : losses) {
    CutDisk disk = with.Restarted();
    Lose(disk, loss);
    const Files before = FilesIn(disk, kStore);
    const Outcome outcome = Opened(disk, chain.Options);
    std::string fault = judge.Fault(loss, outcome);
    const std::string copy = std::string(kStore) + ".damaged";
    const bool hasCopy = disk.Look(copy) == Disk::Kind::Folder;
    if (fault.empty() && hasCopy != outcome.Told) fault = "a copy without a word, or none";
    if (fault.empty() && hasCopy && !Same(FilesIn(disk, copy), before))
      fault = "the copy is another";
    if (fault.empty() && figures.Cases % 64 == 0 && !GoesOn(disk, outcome.World, chain.Options))
      fault = "it does not go on";
    ++figures.Cases;
    ++(outcome.Asked ? figures.Asked : outcome.Told ? figures.Mended : figures.Silent);
    if (fault.empty() || figures.Bad++ > 0) continue;
    figures.First = fault + ": files " + std::to_string(beside.Oldest) + " to " +
                    std::to_string(beside.Newest) + (beside.Sealed ? ", sealed" : "") + ", " +
                    (loss.IsCut ? "cut" : "zeros") + " from block " + std::to_string(loss.Begin) +
                    " to " + std::to_string(loss.End);
  }
}

const LongChain& Damaged() {
  static const LongChain chain = MakeChain(18, 40, 171);
  return chain;
}

TEST(DamagedJournals, LeaveACommittedWorldOrTellWithACopy) {
  const LongChain& chain = Damaged();
  ASSERT_GE(chain.Marked, 2);
  ASSERT_GE(chain.Places.size(), 6u);
  const std::vector<Loss> every = EveryLoss(chain), ends = EveryEnd(chain);
  // Older than the marker, at it, in the middle of the chain and at its end.
  const std::set<int> inFull{chain.Marked - 2, chain.Marked, (chain.Marked + chain.Last()) / 2,
                             chain.Last() - 1, chain.Last()};
  Figures figures;
  for (int v = 0; v <= chain.Last(); ++v)
    for (const Beside& beside : FilesAt(chain, v))
      Try(chain, beside, inFull.contains(v) ? every : ends, figures);
  for (const Beside& beside : Mixtures(chain, 6)) Try(chain, beside, every, figures);
  EXPECT_EQ(0, figures.Bad) << "of " << figures.Cases << ", first " << figures.First;
  EXPECT_GT(std::min({figures.Silent, figures.Mended, figures.Asked}), 100);
}

/// The files hold all that the journal has lost.
TEST(DamagedJournals, AreFoundOutByTheSealAlone) {
  LongChain chain = Damaged();
  chain.Options.Quirks.TrustTheChain = true;
  Figures figures;
  Try(chain, {chain.Worlds.back(), chain.Last(), chain.Last(), chain.Seals.back(), true},
      EveryLoss(chain), figures);
  EXPECT_GT(figures.Bad, 30) << "of " << figures.Cases;
}

/// The power is cut while a damaged slot is mended: the same world is found, and the copy is there.
TEST(DamagedJournals, AreMendedWholeOrNotAtAll) {
  const LongChain& chain = Damaged();
  const LongChain::Place& third = chain.Places[2];
  const auto last = static_cast<std::size_t>(chain.Last());
  const auto marked = static_cast<std::size_t>(chain.Marked);
  const Loss hole{third.Begin, third.End, false}, cut{third.Begin, chain.Blocks, true};
  const std::pair<Beside, Loss> kCases[] = {
      {{chain.Worlds[last], chain.Last(), chain.Last(), chain.Seals[last], true}, cut},
      {{chain.Worlds[marked], chain.Marked, chain.Marked, chain.Seals[last], true}, cut},
      {{chain.Worlds[marked + 3], chain.Marked + 3, chain.Marked + 3, {}, false}, hole},
  };
  for (const auto& [beside, loss] : kCases) {
    CutDisk disk = chain.Disk.Restarted();
    PutBeside(disk, beside);
    Lose(disk, loss);
    for (const char* folder : {kStore, "."}) disk.SyncFolder(folder);
    const Files before = FilesIn(disk, kStore);
    disk.Record();
    const Files mended = Opened(disk, chain.Options).World;
    const int cuts = ForEveryCut(disk, Often(4), 172, [&](CutDisk& after, const Cut& at) {
      ASSERT_EQ(mended, Opened(after, chain.Options).World) << at.Where;
      bool kept = false;
      for (const std::string& name : after.List("."))
        kept |= name.starts_with("s1.damaged") && FilesIn(after, name) == before;
      ASSERT_TRUE(kept) << at.Where;
    });
    EXPECT_GT(cuts, 60);
  }
}

/// A game's own file alone tells whether the files are of a later day than the journal, where their
/// seal is missing or as old as the journal.
TEST(ASlotOfAGame, KeepsFilesThatAreLaterThanTheirJournal) {
  CutDisk disk;
  const std::vector<KnownFile> known = {{"gameinfo.dat", 4096}};
  const auto game = [](unsigned day) -> Files {
    GameInfo info;
    info.PlayerName = "Pat Lee";
    info.Today = std::chrono::sys_days(std::chrono::year(2026) / 3 / day);
    const auto bytes = std::as_bytes(std::span(&info, 1));
    return {{"gameinfo.dat", Bytes(bytes.begin(), bytes.end())}};
  };
  Slot::Create(disk, "s1", NewFiles(game(1)), 7);
  Files earlier;
  {
    Slot slot(disk, "s1", known);
    for (unsigned day = 1; day < 9; ++day) {
      if (day == 5)
        for (const char* name : {"journal", "world.seal"})
          earlier[name] = ReadFile(disk, std::string("s1/") + name);
      const Bytes before = game(day).at("gameinfo.dat"), after = game(day + 1).at("gameinfo.dat");
      slot.Commit({ChangeBetween("gameinfo.dat", &before, &after).value()});
    }
  }
  for (const bool sealed : {false, true}) {
    CutDisk old = disk.Restarted();
    WriteFile(old, "s1/journal", earlier.at("journal"));
    old.Remove("s1/world.seal");
    if (sealed) WriteFile(old, "s1/world.seal", earlier.at("world.seal"));
    EXPECT_THROW(Slot(old, "s1", known), SlotDamaged);
    EXPECT_EQ(Slot(old, "s1", known, Damage::Drop).Files(), game(9));
  }
}

}  // namespace
}  // namespace grapplemont::test
