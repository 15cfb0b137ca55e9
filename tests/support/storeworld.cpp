#include "support/storeworld.h"

#include <algorithm>
#include <cstring>

namespace grapplemont::test {

namespace {

constexpr std::int64_t kLongest = 24000;
const char* const kNames[] = {"belt.dat",   "event.dat", "feudinfo.dat", "match.dat",   "news.dat",
                              "promos.dat", "staff.dat", "tv.dat",       "wrestler.dat"};

std::size_t PickSize(Chance& chance, std::size_t n) {
  return static_cast<std::size_t>(Pick(chance, n));
}

void ChangeFile(Chance& chance, Bytes& file) {
  switch (Pick(chance, 6)) {
    case 0:  // longer
      for (const std::byte byte : RandomBytes(chance, 1 + PickSize(chance, 5000)))
        if (std::ssize(file) < kLongest) file.push_back(byte);
      break;
    case 1:  // shorter
      file.resize(PickSize(chance, file.size() + 1));
      break;
    default:
      for (std::uint64_t stretches = 1 + Pick(chance, 4); stretches > 0 && !file.empty();
           --stretches) {
        const std::size_t at = PickSize(chance, file.size());
        const std::size_t count = std::min(file.size() - at, 1 + PickSize(chance, 300));
        const Bytes bytes = RandomBytes(chance, count);
        std::copy(bytes.begin(), bytes.end(), file.begin() + static_cast<std::ptrdiff_t>(at));
      }
  }
}

Files Changed(Chance& chance, Files world) {
  for (std::uint64_t changes = 1 + Pick(chance, 4); changes > 0; --changes) {
    const std::string name = kNames[Pick(chance, std::size(kNames))];
    if (!world.contains(name))
      world[name] = RandomBytes(chance, PickSize(chance, 9000));
    else if (Pick(chance, 8) == 0)
      world.erase(name);
    else
      ChangeFile(chance, world[name]);
  }
  return world;
}

}  // namespace

std::vector<KnownFile> StoreFiles() {
  std::vector<KnownFile> known;
  for (const char* name : kNames) known.push_back({name, kLongest});
  return known;
}

bool Same(const Files& a, const Files& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](auto& one, auto& other) {
    const auto& [name, bytes] = one;
    return name == other.first && bytes.size() == other.second.size() &&
           (bytes.empty() || std::memcmp(bytes.data(), other.second.data(), bytes.size()) == 0);
  });
}

Bytes BytesOf(std::string_view text) {
  const auto bytes = std::as_bytes(std::span(text));
  return {bytes.begin(), bytes.end()};
}

Bytes RandomBytes(Chance& chance, std::size_t count) {
  Bytes bytes(count);
  for (std::byte& byte : bytes) byte = static_cast<std::byte>(Pick(chance, 256));
  return bytes;
}

std::vector<Files> RandomWorlds(int count, std::uint64_t seed) {
  Chance chance(seed);
  std::vector<Files> worlds(1);
  for (const char* name : kNames)
    if (Pick(chance, 4) != 0) worlds[0][name] = RandomBytes(chance, PickSize(chance, 15000));
  while (std::ssize(worlds) < count) {
    Files next = Changed(chance, worlds.back());
    if (next != worlds.back()) worlds.push_back(std::move(next));
  }
  return worlds;
}

std::vector<FileChange> ChangesBetween(const Files& before, const Files& after, bool bare) {
  const auto in = [](const Files& files, const char* name) {
    const auto found = files.find(name);
    return found == files.end() ? nullptr : &found->second;
  };
  std::vector<FileChange> changes;
  for (const char* name : kNames)
    if (auto change = ChangeBetween(name, in(before, name), in(after, name), bare))
      changes.push_back(*std::move(change));
  return changes;
}

std::vector<NewFile> NewFiles(const Files& files) {
  std::vector<NewFile> all;
  for (const auto& [name, contents] : files) all.push_back({name, contents});
  return all;
}

SlotOptions SmallJournal(JournalQuirks quirks) {
  return {14 * kJournalBlock, quirks};
}

int FoundWorld(Disk& disk, const std::vector<Files>& worlds, int least, int most,
               const SlotOptions& options, std::string* fault) {
  std::string ignored;
  std::string& why = fault ? *fault : ignored;
  try {
    const Slot slot(disk, kStore, StoreFiles(), Damage::Refuse, options);
    if (!slot.Remarks().empty()) {
      why = slot.Remarks().front();
      return -1;
    }
    for (int world = most; world >= least; --world)
      if (Same(slot.Files(), worlds[static_cast<std::size_t>(world)])) return world;
    why = "no world from " + std::to_string(least) + " to " + std::to_string(most);
    for (std::size_t world = 0; world < worlds.size(); ++world)
      if (Same(slot.Files(), worlds[world])) why += ", but world " + std::to_string(world);
  } catch (const std::exception& thrown) {
    why = thrown.what();
  }
  return -1;
}

bool GoesOn(Disk& disk, const Files& found, const SlotOptions& options) {
  Files after = found;
  after["news.dat"] = BytesOf("The show goes on.");
  {
    Slot slot(disk, kStore, StoreFiles(), Damage::Refuse, options);
    if (!slot.Remarks().empty() || !Same(slot.Files(), found)) return false;
    slot.Commit(ChangesBetween(found, after));
  }
  return FoundWorld(disk, {after}, 0, 0, options) == 0;
}

Files FilesIn(Disk& disk, const std::string& folder) {
  Files all;
  for (const std::string& name : disk.List(folder)) all[name] = ReadFile(disk, folder + "/" + name);
  return all;
}

Story TellStory(int commits, std::uint64_t seed, JournalQuirks quirks,
                const std::function<void(CutDisk&)>& prepare, bool bare) {
  const std::vector<Files> worlds = RandomWorlds(commits + 1, seed);
  Story story{CutDisk(), {worlds[0]}, SmallJournal(quirks)};
  CutDisk& disk = story.Recorded;
  Slot::Create(disk, kStore, NewFiles(worlds[0]), kStoreId, story.Options);
  disk.Record();
  Slot slot(disk, kStore, StoreFiles(), Damage::Refuse, story.Options);
  if (prepare) prepare(disk);
  const auto next = [&](const Files& world) {
    story.Worlds.push_back(world);
    disk.Begins(static_cast<int>(std::ssize(story.Worlds)) - 1);
  };
  for (std::size_t i = 1; i < worlds.size(); ++i) {
    const Files before = story.Worlds.back();
    next(worlds[i]);
    try {
      slot.Commit(ChangesBetween(before, worlds[i], bare));
    } catch (const DiskError&) {
      if (!slot.Committed()) next(before);
    }
    disk.Shows(static_cast<int>(std::ssize(story.Worlds)) - 1);
  }
  try {
    slot.Checkpoint();
  } catch (const DiskError&) {
    // What is promised is in the journal; the cuts will tell.
  }
  return story;
}

BadCuts CountBadCuts(const Story& story, int each, std::uint64_t seed, int from) {
  BadCuts found;
  const auto check = [&](CutDisk& after, const Cut& cut) {
    std::string why;
    if (FoundWorld(after, story.Worlds, cut.Least, cut.Most, story.Options, &why) >= 0) return;
    if (found.Bad++ == 0)
      found.First = "after call " + std::to_string(cut.Index) + " (" + cut.Where + "): " + why;
  };
  found.Cuts = ForEveryCut(story.Recorded, each, seed, check, from);
  return found;
}

}  // namespace grapplemont::test
