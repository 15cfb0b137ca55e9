#include <algorithm>
#include <ostream>

#include "records/charset.h"
#include "records/checkworld.h"
#include "records/worldtables.h"
#include "tools/commands.h"
#include "tools/folders.h"

namespace grapplemont::tools {

namespace {

std::string Counted(std::size_t count, std::string_view what) {
  return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

/// "18 promotions, 648 workers, 302 staff"
std::string Contents(const World& world) {
  const auto count = [](const auto& records) { return static_cast<std::size_t>(records.Count()); };
  return Counted(count(world.Promotions()), "promotion") + ", " +
         Counted(count(world.Workers()), "worker") + ", " +
         std::to_string(world.AllStaff().Count()) + " staff";
}

/// What CheckWorld takes for granted, and all that it finds.
std::vector<std::string> FaultsOf(const World& world) {
  std::vector<std::string> faults;
  for (const Table* table : world.Tables())
    if (!table->Exists() &&
        std::find(kDataSet.begin(), kDataSet.end(), table->File()) != kDataSet.end())
      faults.push_back(std::string(table->File()) + ": is missing");
  for (const Fault& fault : CheckWorld(world)) faults.push_back(ToUtf8(fault.Line()));
  return faults;
}

int Build(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const Building building = BuildWorld(ReadTables(*disk, FolderName(*disk, arguments.Place(0))));
  for (const Mistake& mistake : building.Mistakes) shell.Errors << mistake.Text() << "\n";
  if (!building.Made) {
    shell.Errors << Counted(building.Mistakes.size(), "mistake") << "; nothing was built.\n";
    return 1;
  }
  WriteWorld(*disk, arguments.Place(1), *building.Made);
  shell.Out << "Built " << arguments.Place(1) << ": " << Contents(*building.Made) << ".\n";
  return 0;
}

int Export(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  const auto faults = FaultsOf(world);
  WriteTables(*disk, arguments.Place(1), ExportWorld(world));
  if (!faults.empty())
    shell.Errors << arguments.Place(0) << " has " << Counted(faults.size(), "fault")
                 << ", which \"check\" lists; the tables will not build until they are mended.\n";
  shell.Out << "Wrote the tables of " << Contents(world) << " to " << arguments.Place(1) << ".\n";
  return 0;
}

int Check(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  const auto faults = FaultsOf(world);
  for (const std::string& fault : faults) shell.Out << fault << "\n";
  if (faults.empty()) shell.Out << "No faults: " << Contents(world) << ".\n";
  return faults.empty() ? 0 : 1;
}

}  // namespace

const Command kBuild{"build",
                     "TABLES DATA",
                     "Makes the files of a world in DATA from the tables in TABLES; names every "
                     "mistake by file and line.",
                     2,
                     {},
                     Build};
const Command kExport{"export",
                      "FOLDER TABLES",
                      "Writes the world in FOLDER, default data or a saved game, to tables in "
                      "TABLES; nothing is lost.",
                      2,
                      {},
                      Export};
const Command kCheck{
    "check",
    "FOLDER",
    "Lists every fault of the world in FOLDER, a line each; ends with 1 when there "
    "is one.",
    1,
    {},
    Check};

}  // namespace grapplemont::tools
