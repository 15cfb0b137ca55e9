#include <ostream>

#include "records/charset.h"
#include "records/worldreport.h"
#include "tools/commands.h"
#include "tools/folders.h"

namespace grapplemont::tools {

namespace {

int Build(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const Building building = BuildWorld(ReadTables(*disk, FolderName(*disk, arguments.Place(0))));
  for (const Mistake& mistake : building.Mistakes) shell.Errors << mistake.Text() << "\n";
  if (!building.Made) {
    shell.Errors << NothingBuilt(building) << "\n";
    return 1;
  }
  WriteWorld(*disk, arguments.Place(1), *building.Made);
  shell.Out << "Built " << arguments.Place(1) << ": " << ContentsOf(*building.Made) << ".\n";
  return 0;
}

int Export(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  const auto faults = FaultsOf(world);
  WriteTables(*disk, arguments.Place(1), ExportWorld(world));
  if (!faults.empty())
    shell.Errors << arguments.Place(0) << " " << FaultyExport(faults, "\"check\"") << "\n";
  shell.Out << "Wrote the tables of " << ContentsOf(world) << " to " << arguments.Place(1) << ".\n";
  return 0;
}

int Check(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  const auto faults = FaultsOf(world);
  for (const Fault& fault : faults) shell.Out << ToUtf8(fault.Line()) << "\n";
  if (faults.empty()) shell.Out << "No faults: " << ContentsOf(world) << ".\n";
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
