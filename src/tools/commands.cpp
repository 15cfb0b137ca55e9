#include "tools/commands.h"

#include <ostream>

#include "booking/showstart.h"
#include "calendar/advanceday.h"
#include "calendar/incidents.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/tables/worldreport.h"
#include "report/report.h"
#include "session/home.h"
#include "tools/officework.h"
#include "tools/tell.h"
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
                     2,
                     {},
                     Build};
const Command kExport{"export",
                      "FOLDER TABLES [--replace]",
                      "Writes the world in FOLDER, default data or a saved game, to tables in "
                      "TABLES: a new folder, an empty one or, with --replace, one that holds "
                      "tables and nothing else; nothing is lost.",
                      2,
                      kExportOptions,
                      Export};
const Command kCheck{
    "check",
    "FOLDER",
    "Lists every fault of the world in FOLDER, a line each; ends with 1 when there "
    "is one.",
    1,
    {},
    Check};

namespace {

constexpr std::uint64_t kHighestSeed = ~std::uint64_t{0};
constexpr int kFarthest = 400;  // days; an Event may be a year away

/// The slot's world as it is read, for nobody to write.
World CopyOfSlot(Game& game, int slot) {
  const SlotSummary summary = ReadSlotSummary(game.Disk(), game.SlotFolder(slot));
  if (summary.Empty) throw WorldFault("Slot " + std::to_string(slot) + " is empty.");
  if (!summary.Playable)
    throw WorldFault("Slot " + std::to_string(slot) + ": " + summary.Caption + ".");
  std::map<std::string, Bytes> files;
  const auto known = KnownFiles();
  for (const KnownFile& file : known)
    if (auto contents = Slot::Peek(game.Disk(), game.SlotFolder(slot), known, file.Name))
      files.emplace(file.Name, std::move(*contents));
  World world(game.NewDraws(Game::kPlay), game.NewDraws(Game::kProse));
  world.Load(std::move(files));
  return world;
}

/// Passes days without a show of the wanted kind, and books the first that can be held.
DayKind GoToShow(World& world, bool onlyEvent) {
  if (ShowUnderWay(world)) LeaveShow(world);
  for (int day = 0; day < kFarthest; ++day) {
    const DayKind kind = DayKindToday(world, [] { return true; });
    const bool wanted = kind == DayKind::Event || (kind == DayKind::Television && !onlyEvent);
    if (wanted && BookAutoShow(world, kind == DayKind::Event)) return kind;
    AdvanceDay(world, false);
    while (FirstIncident(world)) CloseIncident(world);
  }
  throw WorldFault("There is no show that the roster could fill.");
}

void TellLine(std::ostream& out, const std::string& text) {
  if (!text.empty()) out << ToUtf8(text) << "\n";
}

void TellDetails(std::ostream& out, const SegmentDetails& details) {
  out << "\n" << ToUtf8(details.Heading) << "\n";
  TellLine(out, details.Type.empty() ? details.Style : details.Style + ", " + details.Type);
  TellLine(out, details.Names);
  TellLine(out, details.Belt);
  TellLine(out, details.Winner);
  out << "\n";
}

void TellRatings(std::ostream& out, const ToldSegment& told, bool isMatch) {
  out << "\n";
  if (isMatch) out << "Match Quality " << int(told.Quality) << "%, ";
  out << "Crowd Reaction " << int(told.Crowd) << "%, Overall Rating " << int(told.Overall) << "%\n";
}

int Tell(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  Game::Options options;
  const auto home = arguments.Text("--home");
  options.Home = home ? FolderName(*disk, *home) : FindHome(*disk);
  options.Today = shell.Today;
  options.Seed = arguments.Number("--seed", 0, kHighestSeed);
  const auto voice = arguments.Number("--voice", kLamplighter, kQvd);
  EmptyDesk desk;
  Game game(desk, *disk, options);
  World world = CopyOfSlot(game, static_cast<int>(*arguments.Number("--slot", 1, kSlots)));
  if (voice) world.Game().Reporter = static_cast<int>(*voice);
  try {
    const DayKind kind = GoToShow(world, arguments.Has("--event"));
    TellShow(world, kind == DayKind::Event, shell.Out);
  } catch (const FieldOverflow& fault) {
    throw WorldFault(world.Explain(fault));
  }
  return 0;
}

constexpr OptionKind kTellOptions[] = {
    {"--home", "H"}, {"--slot", "N", true}, {"--seed", "S"}, {"--voice", "0..2"}, {"--event", ""}};

}  // namespace

void TellShow(World& world, bool isEvent, std::ostream& out) {
  const CommentaryTeam team = isEvent ? BestTeam(world) : TvTeam(world);
  TellLine(out, "Event Report For " + ShowName(world, isEvent));
  TellLine(out, LongDate(world.Today()));
  TellLine(out, "Reported By " + std::string(VoiceName(world.Game().Reporter)));
  LineMemory memory;
  StartShow(world, isEvent, team);
  while (const int number = NextSegment(world)) {
    const Segment segment = world.Segments()[number];
    const ToldSegment told = RunNextSegment(world, &memory);
    TellDetails(out, DetailsOf(world, segment));
    TellLine(out, told.Report);
    TellLine(out, told.Verdict);
    TellRatings(out, told, segment.Kind == kMatch);
  }
  out << "\nThe show: " << CloseShow(world) << "%\n";
}

const Command kTell{"tell",
                    "--home H --slot N --seed S [--voice 0..2] [--event]",
                    "Books the next show (with --event the next Event) of a saved game and prints "
                    "its report; the game itself stays as it is.",
                    0,
                    kTellOptions,
                    Tell};

}  // namespace grapplemont::tools
