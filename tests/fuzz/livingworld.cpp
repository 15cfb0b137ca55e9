#include "fuzz/livingworld.h"

#include <algorithm>

#include "fuzz/target.h"
#include "records/checks/checkworld.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "records/soundworld.h"

namespace grapplemont::fuzz {

const World& SampleGame() {
  static const World world = test::SoundGame();
  return world;
}

const Files& SampleFiles() {
  static const Files files = test::BytesOf(SampleGame());
  return files;
}

namespace {

/// Everything that reads a world without a rule of the game; the sum of lengths, so that nothing is
/// left out.
std::size_t LookAtEverything(World& world) {
  std::size_t length = 1;
  CheckWorld(world, [&](Fault&& fault) { length += fault.Line().size(); });
  for (const Worker& worker : world.Workers())
    length += ContractLine(worker).size() + StatusLine(worker).size() +
              PairName(world, worker.Uid, worker.Manager).size();
  world.ForEachFile([&]<class T>(const Records<T>& records) {
    for (const T& record : records)
      for (const Field& field : LayoutOf<T>().Fields)
        length +=
            FieldShown(field, reinterpret_cast<const std::byte*>(&record), field.Count - 1).size();
  });
  return length;
}

void ChangeALittle(World& world) {
  if (world.Workers().Count() > 0) SeverWorker(world, world.Workers()[1]);
  if (world.AllStaff().Count() > 0) SeverStaff(world, world.AllStaff()[1]);
  if (world.Promotions().Count() > 0) world.Promotions()[1].Name = kToBeDeleted;
  SweepDeadPromotions(world);
  SweepDeadShows(world);
  if (world.HasGame()) AddNews(world, "Maeve", "Well, well.");
}

void RequireAFile(const std::string& message) {
  const auto tables = SampleGame().Tables();
  Require(
      std::ranges::any_of(
          tables, [&](const Table* table) { return message.find(table->File()) != message.npos; }),
      "a message names no file: " + message);
}

void RequireSame(const World& world, const Files& files, const char* when) {
  for (const Table* table : world.Tables()) {
    const auto file = files.find(std::string(table->File()));
    Require(table->Exists() == (file != files.end()) &&
                (!table->Exists() || std::ranges::equal(table->Contents(), file->second)),
            std::string(table->File()) + " is another " + when);
  }
}

void MendForGood(World& world) {
  world.GameInfos().Remove();
  MendWorld(world);
  CheckWorld(world, [](Fault&& fault) { throw Finding("mended, and left: " + fault.Line()); });
  Require(MendWorld(world).empty(), "what was mended is mended again");
}

}  // namespace

bool LoadAndLive(World& world, const Files& files) {
  try {
    world.Load(files);
  } catch (const WorldFault& fault) {
    RequireAFile(fault.what());
    return false;
  }
  RequireSame(world, files, "once it is loaded");
  Require(LookAtEverything(world) > 0, "nothing is to be seen");
  try {
    ChangeALittle(world);
  } catch (const FieldOverflow& fault) {
    RequireAFile(world.Explain(fault));
  }
  world.Rollback();
  RequireSame(world, files, "once it is taken back");
  MendForGood(world);
  return true;
}

}  // namespace grapplemont::fuzz
