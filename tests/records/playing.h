#pragma once

#include <cstring>
#include <optional>

#include "records/fields/gameinfo.h"
#include "records/store/playedslot.h"
#include "support/storeworld.h"

// A slot of nothing but bytes and days, for tests of what a game can go back to.

namespace grapplemont::test {

inline constexpr Day kStart{std::chrono::year{2026} / 1 / 1};
inline const std::string kGameFile(LayoutOf<GameInfo>().File);

inline Files OnDay(Files world, Day day) {
  GameInfo game{};
  game.Today = day;
  world[kGameFile] = Bytes(sizeof(game));
  std::memcpy(world[kGameFile].data(), &game, sizeof(game));
  return world;
}

inline std::vector<KnownFile> PlayedFiles() {
  auto known = StoreFiles();
  known.push_back({kGameFile, sizeof(GameInfo)});
  known.push_back({"large.dat", 1 << 21});
  return known;
}

inline std::vector<FileChange> AllChanges(const Files& before, const Files& after) {
  auto changes = ChangesBetween(before, after);
  for (const std::string& name : {kGameFile, std::string("large.dat")}) {
    const auto in = [&](const Files& files) {
      const auto found = files.find(name);
      return found == files.end() ? nullptr : &found->second;
    };
    if (auto change = ChangeBetween(name, in(before), in(after))) changes.push_back(*change);
  }
  return changes;
}

/// The world at a moment by what it is now; nothing where it is not what was promised.
inline std::optional<Files> Restored(const PlayedSlot& slot, const Files& now, std::size_t moment) {
  const auto way = slot.Moments().WayTo(moment);
  Files files = now;
  if (!way || !slot.Restore(*way, slot.Moments()[moment].Digest, files)) return std::nullopt;
  return files;
}

/// A slot that a test plays in.
struct Playing {
  explicit Playing(CutDisk& disk, Files world, const SlotOptions& options = {},
                   PlayedQuirks quirks = {}, std::optional<Bytes> moments = {})
      : World(std::move(world)) {
    auto files = NewFiles(World);
    if (moments) files.push_back({kMorningsName, *moments});
    Slot::Create(disk, kStore, files, kStoreId, options);
    disk.Record();
    Slot.emplace(disk, kStore, PlayedFiles(), Damage::Refuse, options, quirks);
  }
  void Go(const Files& next, const PlayedStep& step = {}) {
    Slot->Commit(AllChanges(World, next), step);
    World = next;
  }
  /// As the game takes back the last click, or goes back to a moment.
  void GoBackTo(std::size_t moment, PlayedStep::Kind as) {
    Go(Restored(*Slot, World, moment).value(), {as, "back"});
  }
  std::size_t Last() const { return Slot->Moments().Count() - 1; }

  Files World;
  std::optional<PlayedSlot> Slot;
};

}  // namespace grapplemont::test
