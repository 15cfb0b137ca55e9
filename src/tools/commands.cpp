#include "tools/commands.h"

#include "records/fields/charset.h"
#include "records/tables/worldreport.h"
#include "tools/tool.h"

namespace grapplemont::tools {

namespace {

int Build(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const Building building = BuildWorld(ReadTables(*disk, FolderName(*disk, arguments.Place(0))));
  for (const std::string& line : MistakeLines(building)) shell.Errors << line << "\n";
  if (!building.Made) {
    shell.Errors << NothingBuilt(building) << "\n";
    return 1;
  }
  WriteWorld(*disk, arguments.Place(1), *building.Made);
  shell.Out << "Built " << ValidUtf8(arguments.Place(1)) << ": " << ContentsOf(*building.Made)
            << ".\n";
  return 0;
}

constexpr std::string_view kReplace = "--replace";

/// Nobody loses a file of their own over an export.
void RequirePlace(Disk& disk, const std::string& folder, bool replace) {
  const TablesPlace place = LookForExport(disk, folder);
  if (!place.WhyNot.empty()) throw WorldFault(place.WhyNot);
  if (!place.Present.empty() && !replace)
    throw WorldFault(ForScreen(folder) + " holds " + ForScreen(Listed(place.Present)) + ". With " +
                     std::string(kReplace) + " the tables of the world are put in their place.");
}

int Export(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const std::string folder = WithoutSlashes(arguments.Place(1));
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  RequirePlace(*disk, folder, arguments.Has(kReplace));
  ExportTables(*disk, folder, world);
  if (const std::size_t faults = TellFaults(world); faults > 0)
    shell.Errors << ValidUtf8(arguments.Place(0)) << " " << FaultyExport(faults, "\"check\"")
                 << "\n";
  shell.Out << "Wrote the tables of " << ContentsOf(world) << " to " << ValidUtf8(folder) << ".\n";
  return 0;
}

int Check(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World world = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  const std::size_t faults =
      TellFaults(world, [&](Fault&& fault) { shell.Out << ToUtf8(fault.Line()) << "\n"; });
  if (faults == 0) shell.Out << "No faults: " << ContentsOf(world) << ".\n";
  return faults == 0 ? 0 : 1;
}

constexpr OptionKind kExportOptions[] = {{kReplace, ""}};

}  // namespace

const Command kBuild{"build",
                     "TABLES DATA",
                     "Makes the files of a world in DATA from the tables in TABLES; names every "
                     "mistake by file and line.",
                     {},
                     Build};
const Command kExport{"export", "FOLDER TABLES",
                      "Writes the world in FOLDER, default data or a saved game, to tables in "
                      "TABLES: a new folder, an empty one or, with --replace, one that holds "
                      "tables and nothing else; nothing is lost.",
                      kExportOptions, Export};
const Command kCheck{
    "check",
    "FOLDER",
    "Lists every fault of the world in FOLDER, a line each; ends with 1 when there "
    "is one.",
    {},
    Check};

}  // namespace grapplemont::tools
