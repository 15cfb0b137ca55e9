#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <iostream>
#include <iterator>

#include "fuzz/quietdesk.h"
#include "program/richworld.h"
#include "program/screens.h"
#include "records/checks/checkworld.h"
#include "records/store/playedslot.h"
#include "records/store/slotcare.h"
#include "records/store/slotfolder.h"
#include "records/world.h"
#include "session/layers.h"
#include "session/slots.h"
#include "support/cutdisk.h"
#include "support/storeworld.h"
#include "ui/acts.h"
#include "ui/game.h"

// Any one file of a home that is not what it was: what reads it works, or says what is wrong,
// where, and what to do; and of the game nothing is lost that stood in another file. SPOILED_CASES
// sets how many are tried; scripts/damage tries very many, and measures time and memory.

namespace grapplemont::test {
namespace {

constexpr const char *kHome = "home", *kGameFolder = "home/s1", *kData = "home/data",
                     *kExported = "home/game.grapplemont";

Game::Options Options() {
  Game::Options options;
  options.Home = kHome;
  options.Today = [] { return kGameStart; };
  options.Seed = 1;
  return options;
}

using FileBytes = std::map<std::string, Bytes>;

/// A home with data, a game that is being played, of which nothing has been put away, and the same
/// game exported. It is left as a killed process leaves it.
struct PlayedHome {
  CutDisk Disk;
  FileBytes World;  // the game's files as they were committed last
  Bytes Exported;
};

FileBytes CommittedFiles(const World& world) {
  FileBytes files;
  for (const Table* table : world.Tables())
    if (table->CommittedExists()) files.emplace(table->File(), table->Committed());
  return files;
}

PlayedHome Play() {
  CutDisk disk;
  for (const char* folder : {kHome, kData}) disk.MakeFolder(folder);
  for (const NewFile& file : FilesOf(RichWorld().Build()))
    WriteNewFile(disk, std::string(kData) + "/" + file.Name, file.Contents);
  const World world = RichWorld().Game("CWA").Feud("CWA Hand 5", "CWA Hand 6");
  Slot::Create(disk, kGameFolder, BeginningFiles(world, true), 7);
  fuzz::QuietDesk desk;
  Game game(desk, disk, Options());
  RegisterScreens(game);
  game.OpenSlot(1);
  desk.Open("frmMainScreen");
  for (int day = 0; day < 20 && desk.Top()->Name() == "frmMainScreen"; ++day)
    ui::Click(desk, *desk.Top(), "cmdnext");
  PlayedHome played{disk.Restarted(), CommittedFiles(game.World()), {}};
  desk.CloseAll();
  CutDisk copy = played.Disk.Restarted();
  ExportSlot(copy, kGameFolder, kExported, {.History = true, .Record = true});
  played.Exported = ReadFile(copy, kExported);
  return played;
}

const PlayedHome& Played() {
  static const PlayedHome played = Play();
  return played;
}

/// Changes bytes as disks, copies and people do, and says how. Nothing may come of it.
class Spoiler {
 public:
  explicit Spoiler(std::uint64_t seed) : chance_(seed) {}
  std::size_t Below(std::size_t n) { return Pick(chance_, std::max<std::size_t>(n, 1)); }

  const char* Spoil(Bytes& bytes) {
    const Way& way = kWays[Below(std::size(kWays))];
    (this->*way.Do)(bytes);
    return way.Name;
  }

 private:
  struct Way {
    const char* Name;
    void (Spoiler::*Do)(Bytes& bytes);
  };
  static const Way kWays[6];

  std::span<std::byte> Piece(Bytes& bytes) {
    const std::size_t at = Below(bytes.size()), most = Below(3) == 0 ? 16384 : 64;
    return std::span(bytes).subspan(at, std::min(bytes.size() - at, 1 + Below(most)));
  }
  void Flip(Bytes& bytes) {
    for (std::size_t left = 1 + Below(4); left > 0 && !bytes.empty(); --left)
      bytes[Below(bytes.size())] ^= std::byte{1} << Below(8);
  }
  void Cut(Bytes& bytes) { bytes.resize(Below(bytes.size() + 1)); }
  void Grow(Bytes& bytes) {
    const Bytes more = RandomBytes(chance_, 1 + Below(Below(4) == 0 ? 100000 : 300));
    bytes.insert(bytes.end(), more.begin(), more.end());
  }
  void Zero(Bytes& bytes) { std::ranges::fill(Piece(bytes), std::byte{}); }
  void Swap(Bytes& bytes) {
    constexpr std::size_t kBlocks[] = {16, 512, 4096};
    const std::size_t size = kBlocks[Below(3)], count = bytes.size() / size;
    if (count < 2) return Flip(bytes);
    const auto block = [&](std::size_t n) {
      return bytes.begin() + static_cast<std::ptrdiff_t>(n * size);
    };
    const std::size_t a = Below(count), b = Below(count);
    if (a != b) std::swap_ranges(block(a), block(a) + static_cast<std::ptrdiff_t>(size), block(b));
  }
  /// What other versions write differs first in its head: a number there is another.
  void Version(Bytes& bytes) {
    if (!bytes.empty())
      bytes[Below(std::min<std::size_t>(bytes.size(), 24))] = std::byte(Below(256));
  }

  Chance chance_;
};
const Spoiler::Way Spoiler::kWays[] = {
    {"flipped", &Spoiler::Flip}, {"cut", &Spoiler::Cut},
    {"grown", &Spoiler::Grow},   {"zeroed", &Spoiler::Zero},
    {"swapped", &Spoiler::Swap}, {"of another version", &Spoiler::Version}};

struct Outcome {
  enum Kind { Silent, Told, Asked, Refused } Is = Silent;
  std::string Fault = {};  // what is wrong with it; empty for nothing
};

bool Holds(const std::string& text, std::string_view part) {
  return text.find(part) != text.npos;
}

/// The game of this home is opened, however much has to be asked; gives what was told.
std::string Open(Game& game, Outcome& outcome) {
  std::string told;
  const auto open = [&](bool drop) {
    for (const std::string& remark : game.OpenSlot(1, drop)) told += remark + "\n";
  };
  try {
    open(false);
    if (!told.empty()) outcome.Is = Outcome::Told;
  } catch (const SlotDamaged& damage) {
    outcome.Is = Outcome::Asked;
    told = damage.what();
    open(true);
  } catch (const WorldFault& fault) {
    outcome.Is = Outcome::Refused;
    told = fault.what();
  } catch (const DiskError& fault) {
    outcome.Is = Outcome::Refused;
    told = fault.what();
  }
  return told;
}

/// What has become of files that nobody spoiled, or of any while nothing is said.
std::string Lost(const FileBytes& found, const std::string& spoiled, bool isSilent) {
  for (const auto& [name, contents] : Played().World) {
    const KnownFile* known = FindFile(KnownFiles(), name);
    if (known && known->Fleeting) continue;
    if (name == spoiled && !isSilent) continue;
    const auto file = found.find(name);
    if (file == found.end() || file->second != contents) return name + " is not what it was";
  }
  return {};
}

Outcome OpenSpoiledSlot(CutDisk& disk, const std::string& name) {
  fuzz::QuietDesk desk;
  Game game(desk, disk, Options());
  Outcome outcome;
  std::string told;
  try {
    told = Open(game, outcome);
  } catch (const WorldFault& fault) {  // once what is damaged has been dropped
    outcome = {Outcome::Refused};
    told = fault.what();
  }
  if (outcome.Is == Outcome::Asked && (!Holds(told, kGameFolder) || !Holds(told, "kept in")))
    outcome.Fault = "asked without a place: " + told;
  if (outcome.Is == Outcome::Asked && disk.Look("home/s1.damaged") != Disk::Kind::Folder)
    outcome.Fault = "no copy was kept";
  if (outcome.Is == Outcome::Refused && !Holds(told, name) && !Holds(told, kGameFolder))
    outcome.Fault = "refused without a place: " + told;
  if (!game.HasWorld() || !outcome.Fault.empty()) return outcome;
  outcome.Fault = Lost(CommittedFiles(game.World()), name, outcome.Is == Outcome::Silent);
  CheckWorld(game.World());
  game.CloseSlot();
  return outcome;
}

Outcome ReadSpoiledData(CutDisk& disk, const std::string& name) {
  try {
    World world;
    world.Load(ReadDefaultData(disk, {kData}));
    MendWorld(world);
    if (const auto left = CheckWorld(world); !left.empty())
      return {Outcome::Silent, "left by the clean-up: " + left.front().Line()};
    return {};
  } catch (const WorldFault& fault) {
    return {Outcome::Refused, Holds(fault.what(), name) ? "" : fault.what()};
  }
}

Outcome ReadSpoiledExport(CutDisk& disk) {
  World scratch;
  try {
    ReadExported(disk, kExported, scratch);
    const bool isSame = ReadFile(disk, kExported) == Played().Exported;
    return {Outcome::Silent, isSame ? "" : "a spoiled file was taken for a game"};
  } catch (const WorldFault& fault) {
    const std::string told = fault.what();
    const bool saysWhatToDo = Holds(told, "have it exported again") ||
                              Holds(told, "Choose another file") || Holds(told, "Update the game");
    return {Outcome::Refused, Holds(told, kExported) && saysWhatToDo ? "" : told};
  }
}

/// The number of cases: what SPOILED_CASES says, or so many.
int SpoiledCases(int usual) {
  const char* wanted = std::getenv("SPOILED_CASES");
  return wanted ? std::atoi(wanted) : usual;
}

struct Part {
  const char* Name;
  const char* Folder;  // each of its files is spoiled; or the file itself
  Outcome (*Read)(CutDisk& disk, const std::string& file);
  int Cases, LeastRefused;  // in a hundred: told, asked about or refused
};

class SpoiledHome : public testing::TestWithParam<Part> {};

TEST_P(SpoiledHome, WorksOrSaysWhatIsWrongWhereAndWhatToDo) {
  const Part& part = GetParam();
  CutDisk base = Played().Disk.Restarted();
  WriteNewFile(base, kExported, Played().Exported);
  const bool isFolder = base.Look(part.Folder) == Disk::Kind::Folder;
  const auto names = isFolder ? base.List(part.Folder) : std::vector<std::string>{""};
  int counts[4] = {};
  std::chrono::duration<double> longest{};
  const int cases = SpoiledCases(part.Cases);
  for (int i = 0; i < cases; ++i) {
    CutDisk disk = base.Restarted();
    Spoiler spoiler(static_cast<std::uint64_t>(i) + 1);
    const std::string name = names[static_cast<std::size_t>(i) % names.size()];
    const std::string path = std::string(part.Folder) + (isFolder ? "/" + name : "");
    Bytes bytes = ReadFile(disk, path);
    const char* const how = spoiler.Spoil(bytes);
    WriteNewFile(disk, path, bytes);
    const auto begin = std::chrono::steady_clock::now();
    const Outcome outcome = part.Read(disk, name);
    longest =
        std::max<std::chrono::duration<double>>(longest, std::chrono::steady_clock::now() - begin);
    ++counts[outcome.Is];
    ASSERT_EQ("", outcome.Fault) << path << " " << how << ", case " << i;
  }
  EXPECT_GE((counts[Outcome::Told] + counts[Outcome::Asked] + counts[Outcome::Refused]) * 100,
            cases * part.LeastRefused);
  if (std::getenv("SPOILED_CASES"))
    std::cout << part.Name << ": " << cases << " cases, " << counts[Outcome::Silent]
              << " as before, " << counts[Outcome::Told] << " mended, " << counts[Outcome::Asked]
              << " asked about, " << counts[Outcome::Refused] << " refused; the longest took "
              << longest.count() << " s\n";
}

constexpr Part kParts[] = {
    {"Slot", kGameFolder, OpenSpoiledSlot, 60, 20},
    {"Data", kData, ReadSpoiledData, 60, 0},
    {"Export", kExported, [](CutDisk& disk, const std::string&) { return ReadSpoiledExport(disk); },
     100, 90},
};
INSTANTIATE_TEST_SUITE_P(Of, SpoiledHome, testing::ValuesIn(kParts),
                         [](const auto& of) { return std::string(of.param.Name); });

}  // namespace
}  // namespace grapplemont::test
