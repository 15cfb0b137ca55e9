#include <algorithm>

#include "fuzz/livingworld.h"
#include "fuzz/recordchange.h"
#include "fuzz/target.h"
#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "session/home.h"
#include "session/slots.h"
#include "support/cutdisk.h"

// An exported game, looked at and taken in. No guess would find what its files are compressed to,
// so most cases are told as files, those of a good game or others, and packed here.

namespace grapplemont::fuzz {
namespace {

constexpr const char* kPath = "home/game.grapplemont";

std::string AName(Input& in) {
  const auto& known = KnownFiles();
  const std::size_t which = in.Below(known.size() + 1);
  return which < known.size() ? known[which].Name : std::string(TextOf(in.Take(in.Below(12))));
}

Bytes Packed(Input& in) {
  Files files = SampleFiles();
  std::vector<NewFile> others;
  for (int left = 16; left > 0 && !in.Empty(); --left) {
    const std::string name = AName(in);
    const auto file = files.find(name);
    const std::size_t how = in.Below(4);
    if (how == 0) {
      files.erase(name);
    } else if (how == 1 && file != files.end() && !file->second.empty()) {
      for (std::size_t count = in.Below(8); count > 0; --count)
        file->second[in.Below(file->second.size())] = static_cast<std::byte>(in.Byte());
    } else {
      const ByteSpan put = in.Take(in.Below(256));
      others.push_back({name, {put.begin(), put.end()}});
      if (how == 2) files.erase(name);
    }
  }
  for (const auto& [name, contents] : files) others.push_back({name, contents});
  return PackSlot(others, "A game.");
}

Bytes AFile(Input& in) {
  const int how = in.Byte();
  if (how % 8 == 7) {
    const ByteSpan all = in.Rest();
    return {all.begin(), all.end()};
  }
  Bytes packed = Packed(in);
  if (how % 8 == 6)
    ChangeBytes(packed, packed.size() + 64, static_cast<std::uint64_t>(how), {}, in.Rest());
  return packed;
}

void TakeIn(Disk& disk, const Importable& game) {
  ImportSlot(disk, game, "home/s1", 7);
  Require(!ReadSlotSummary(disk, "home/s1").Empty, "what was imported is not there");
  const PlayedSlot slot(disk, "home/s1");
  for (const NewFile& file : game.Files) {
    const auto found = slot.Files().find(file.Name);
    Require(found == slot.Files().end() || found->second == file.Contents,
            file.Name + " is imported as another");
  }
}

void Read(ByteSpan bytes) {
  Input in(bytes);
  const bool takesIn = in.Below(8) == 0;
  test::CutDisk disk;
  disk.MakeFolder("home");
  WriteNewFile(disk, kPath, AFile(in));
  static World scratch;
  try {
    const Importable game = ReadExported(disk, kPath, scratch);
    Require(!game.Preview.empty(), "nothing is told of the game");
    if (takesIn) TakeIn(disk, game);
  } catch (const WorldFault& fault) {
    const std::string told = fault.what();
    const bool namesAFile = std::ranges::any_of(
        KnownFiles(), [&](const KnownFile& known) { return told.find(known.Name) != told.npos; });
    Require(namesAFile || told.find(kPath) != told.npos, "a message names no file: " + told);
  } catch (const DiskError& fault) {
    Require(fault.Path() == kPath, "a message names another file: " + std::string(fault.what()));
  }
}

const Registered kExported({.Name = "exported", .Run = Read, .Cases = 60, .Most = 1024});

}  // namespace
}  // namespace grapplemont::fuzz
