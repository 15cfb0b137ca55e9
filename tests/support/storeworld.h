#pragma once

#include <functional>
#include <map>
#include <ranges>
#include <string>
#include <vector>

#include "records/store/slot.h"
#include "support/cutdisk.h"

// Worlds of nothing but bytes, for tests of the store.

namespace grapplemont::test {

using Files = std::map<std::string, Bytes>;

/// Seeds from one on, so many as usual or as POWER_CUTS says: each a story of its own.
inline auto Seeds(std::uint64_t first, int usual) {
  return std::views::iota(first, first + static_cast<std::uint64_t>(Often(usual)));
}
/// The files such a world may have.
std::vector<KnownFile> StoreFiles();
/// A world and what became of it: each differs from the one before by a few stretches, lengths, new
/// files and files gone.
std::vector<Files> RandomWorlds(int count, std::uint64_t seed);
/// Byte for byte, and faster than == between vectors.
bool Same(const Files& a, const Files& b);
/// `bare`: with bytes in place of blocks, which the cuts must notice.
std::vector<FileChange> ChangesBetween(const Files& before, const Files& after, bool bare = false);
std::vector<NewFile> NewFiles(const Files& files);
Bytes BytesOf(std::string_view text);
Bytes RandomBytes(Chance& chance, std::size_t count);

inline constexpr const char* kStore = "s1";
inline constexpr std::uint64_t kStoreId = 0x1234567890abcdef;
/// A journal so small that it is emptied every few commits.
SlotOptions SmallJournal(JournalQuirks quirks = {});

/// The number among `worlds`, from `least` to `most`, of what the real code finds on the disk; -1
/// for anything else and for a slot that is remarked on, with `fault` saying what. Opens the slot
/// on the way.
int FoundWorld(Disk& disk, const std::vector<Files>& worlds, int least, int most,
               const SlotOptions& options, std::string* fault = nullptr);

/// Whether a slot that was found with this world is in order, takes a further commit and gives it
/// back.
bool GoesOn(Disk& disk, const Files& found, const SlotOptions& options);
/// Every file of a folder.
Files FilesIn(Disk& disk, const std::string& folder);

/// A run on a recording disk: a slot with worlds[0], then a commit for each of the others, and a
/// clean exit.
struct Story {
  CutDisk Recorded;
  std::vector<Files> Worlds;
  SlotOptions Options;
};
/// `prepare` may make the disk lie or fail before the first commit. A commit that fails is followed
/// by the world before it: once it has been taken back, it may not come up again.
Story TellStory(int commits, std::uint64_t seed, JournalQuirks quirks = {},
                const std::function<void(CutDisk&)>& prepare = {}, bool bare = false);

/// How many of the cuts (`each` at every moment from one on) leave something else than they may,
/// and the first of them in words.
struct BadCuts {
  int Cuts = 0, Bad = 0;
  std::string First;

  void Add(const BadCuts& more, const std::string& where = {}) {
    if (Bad == 0 && more.Bad > 0) First = where + more.First;
    Cuts += more.Cuts;
    Bad += more.Bad;
  }
};
BadCuts CountBadCuts(const Story& story, int each, std::uint64_t seed, int from = 0);

}  // namespace grapplemont::test
