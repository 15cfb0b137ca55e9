#include <iostream>
#include <string>

#include "booking/randomsegment.h"
#include "booking/showstart.h"
#include "calendar/advanceday.h"
#include "calendar/incidents.h"
#include "prose/segmentlines.h"
#include "records/store/disk.h"
#include "records/tables/worldtables.h"
#include "report/report.h"
#include "session/newgame.h"
#include "show/holdshow.h"
#include "storylines/feuds.h"
#include "support/randomworld.h"
#include "tools/officework.h"

// prose_lines WORLD SHOWS SEED: plays shows from the world's tables and prints every Segment as a
// JSON object a line, for scripts/read-prose. Half of the shows are as the auto booker has them; in
// the others every second row is whatever the wizard would let pass. The voices take turns, and a
// career is over after a season.

namespace grapplemont::test {
namespace {

constexpr Day kStart{std::chrono::year{2026} / 3 / 1};
constexpr int kSeason = 24;  // shows
constexpr int kPatience = 400, kFeuds = 4;

World DataOf(const std::string& folder) {
  const auto disk = RealDisk();
  Building building = BuildWorld(ReadTables(*disk, folder));
  if (!building.Made) throw std::runtime_error(folder + " does not make a world");
  return std::move(*building.Made);
}

World Begin(const World& data, int career, std::uint64_t seed) {
  std::vector<int> chairs;
  for (const Promotion& promotion : data.Promotions())
    if (!(promotion.Name == kToBeDeleted)) chairs.push_back(promotion.Uid);
  World world(std::make_unique<SeededDraws>(seed), std::make_unique<SeededDraws>(seed + 1),
              std::make_unique<SeededDraws>(seed + 2));
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(data)) files[file.Name] = std::move(file.Contents);
  world.Load(files);
  NewGame(world, {.PlayerName = "Nobody",
                  .PromotionUid = chairs[static_cast<std::size_t>(career) % chairs.size()],
                  .Difficulty = kMedium,
                  .Start = kStart,
                  .SaveName = "Prose"});
  return world;
}

void PassDay(World& world) {
  AdvanceDay(world, false);
  while (FirstIncident(world)) CloseIncident(world);
  if (!HasEnded(world.Game())) tools::WorkInTheOffice(world);
}

/// False when the career ends before there is one.
bool GoToShow(World& world, bool& isEvent) {
  for (int day = 0; day < kPatience && !HasEnded(world.Game()); ++day) {
    const DayKind kind = DayKindToday(world, [] { return true; });
    isEvent = kind == DayKind::Event;
    if ((isEvent || kind == DayKind::Television) && BookAutoShow(world, isEvent)) return true;
    PassDay(world);
  }
  return false;
}

/// Feuds between some who would have one, some who wait to turn, some without a finishing move.
void StirUp(World& world, Dice& dice) {
  const auto roster = FeudRoster(world);
  const auto anybody = [&] {
    return int(roster[static_cast<std::size_t>(dice.From(0, int(roster.size()) - 1))]->Uid);
  };
  for (int tries = 0; tries < kFeuds && roster.size() > 4 && FreeFeudSlot(world) <= kFeuds &&
                      FreeFeudSlot(world) != 0;
       ++tries) {
    const FeudSides sides = dice.OneIn(3)
                                ? FeudSides{{anybody(), anybody()}, {anybody(), anybody()}}
                                : FeudSides{{anybody(), 0}, {anybody(), 0}};
    if (WhyNoFeud(world, sides).empty()) StartFeud(world, sides);
  }
  for (Worker& worker : world.Workers()) {
    if (worker.Employer != world.PlayerUid()) continue;
    if (dice.OneIn(6)) worker.TurnPending = true;
    if (dice.OneIn(40)) worker.Finisher1 = worker.Finisher2 = "None";
  }
}

void BookAtRandom(World& world, Dice& dice, bool isEvent) {
  StirUp(world, dice);
  for (int row = 1; row <= RowsOf(isEvent); ++row)
    if (dice.OneIn(2))
      if (const auto drawn = RandomSegment(world, dice, {isEvent, "All"}))
        world.Segments()[row] = *drawn;
}

void Tell(World& world, bool isEvent, int career, int show) {
  LineMemory memory;
  StartShow(world, isEvent, isEvent ? BestTeam(world) : TvTeam(world));
  while (const int number = NextSegment(world)) {
    const SegmentLine line(world, number);
    const ToldSegment told = RunNextSegment(world, &memory);
    std::cout << "{\"show\":" << show << ",\"row\":" << number << ",\"career\":" << career << ","
              << line.Told(world, told).substr(1) << "\n";
  }
  CloseShow(world);
  LeaveShow(world);
}

void Play(const World& data, int shows, std::uint64_t seed) {
  Dice dice(seed);
  for (int show = 0, career = 0; show < shows; ++career) {
    World world = Begin(data, career, seed + static_cast<std::uint64_t>(career));
    bool isEvent = false;
    for (int told = 0; told < kSeason && show < shows && GoToShow(world, isEvent); ++told) {
      world.Game().Reporter = show % 3;
      if (show % 2 == 1) BookAtRandom(world, dice, isEvent);
      Tell(world, isEvent, career, show++);
      PassDay(world);
    }
  }
}

}  // namespace
}  // namespace grapplemont::test

int main(int count, char** arguments) {
  if (count != 4) {
    std::cerr << "usage: prose_lines WORLD SHOWS SEED\n";
    return 2;
  }
  grapplemont::test::Play(grapplemont::test::DataOf(arguments[1]), std::stoi(arguments[2]),
                          std::stoull(arguments[3]));
  return 0;
}
