#include "tools/manyworlds.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>

#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/store/digest.h"
#include "session/newgame.h"
#include "tools/commands.h"
#include "tools/officework.h"
#include "tools/runmany.h"
#include "tools/soak.h"

namespace grapplemont::tools {

int ThreadsOf(const Arguments& arguments) {
  constexpr std::uint64_t kMostThreads = 1024;
  const auto asked = arguments.Number(kJobsOption.Name, 1, kMostThreads);
  return asked ? static_cast<int>(*asked) : CoresHere();
}

static constexpr const char* kToLinesEnd = "\x1B[K";  // is emptied

void ProgressLine::Tell(const std::string& text) {
  if (!shell_.Terminal) return;
  shell_.Errors << "\r" << text << (stands_ ? kToLinesEnd : "") << std::flush;
  stands_ = true;
}

void ProgressLine::Clear() {
  if (stands_) shell_.Errors << "\r" << kToLinesEnd << std::flush;
  stands_ = false;
}

namespace {

using Json = nlohmann::ordered_json;

void GiveSeed(World& world, std::uint64_t seed) {
  world.SetChance(Game::DrawsOf(seed, Game::kPlay));
  world.ExchangeProse(Game::DrawsOf(seed, Game::kReportProse));
  world.SetLife(Game::DrawsOf(seed, Game::kLife));
}

/// What opening its slot does to a world.
void Enter(World& world) {
  world.Session = {};
  world.Session.StartSize = world.Player().Size;
  MendNumbers(world);
}

/// The number that stands for all its files, in sixteen digits.
std::string DigestText(const World& world) {
  WorldDigest digest;
  for (const Table* table : std::as_const(world).Tables())
    if (table->Exists()) digest.Set(std::string(table->File()), table->Contents());
  char text[17];
  std::snprintf(text, sizeof text, "%016llx", static_cast<unsigned long long>(digest.Value()));
  return text;
}

/// Faults of one world end its own line, not the others'.
std::string Guarded(const World& world, const std::function<void()>& play) {
  try {
    play();
    return {};
  } catch (const FieldOverflow& fault) {
    return IsoDate(world.Today()) + ": " + world.Explain(fault);
  }
}

}  // namespace

int RunMany(const World& start, const RunPlan& plan, StatsFile* stats, Shell& shell) {
  struct Result {
    std::string Told, Months, Fault;
  };
  int faults = 0;
  const auto play = [&](World& world, int number) {
    const std::uint64_t seed = plan.Seed + static_cast<std::uint64_t>(number - 1);
    world.CopyFrom(start);
    GiveSeed(world, seed);
    Enter(world);
    Result result;
    MonthSummaries months;
    CareerEnd end;
    result.Fault = Guarded(world, [&] {
      end = LiveOn(world, plan.Days, plan.By, [&](int) {
        if (!stats || !IsFirstOfMonth(world.Today())) return true;
        Json month;
        month["seed"] = seed;
        month.update(months.Next(world));
        result.Months += month.dump() + "\n";
        return true;
      });
    });
    const std::string fault = result.Fault.empty() ? "" : ToUtf8(result.Fault) + "\n";
    result.Told = "Seed " + std::to_string(seed) + ", " + DigestText(world) + ": " +
                  (fault.empty() ? EndText(world, end) : fault);
    return result;
  };
  PlayInOrder<Result>(shell, {plan.Worlds, plan.Threads, "worlds"}, play,
                      [&](const Result& result) {
                        shell.Out << result.Told;
                        faults += !result.Fault.empty();
                        if (stats) stats->AddLines(result.Months);
                      });
  return faults == 0 ? 0 : 1;
}

namespace {

/// Chairs of all size classes in turn, so that every class is somebody's.
std::vector<const Promotion*> ChairsInTurn(const World& data) {
  std::array<std::vector<const Promotion*>, std::size(kSizes)> bySize;
  std::size_t most = 0;
  for (const Promotion& promotion : data.Promotions()) {
    if (SizeText(promotion.Size).empty()) continue;
    auto& row = bySize[static_cast<std::size_t>(promotion.Size - kGlobal)];
    row.push_back(&promotion);
    most = std::max(most, row.size());
  }
  std::vector<const Promotion*> chairs;
  for (std::size_t place = 0; place < most; ++place)
    for (const auto& row : bySize)
      if (place < row.size()) chairs.push_back(row[place]);
  if (chairs.empty()) throw WorldFault("promos.dat: there is no promotion to play.");
  return chairs;
}

constexpr std::uint64_t kMostLives = 10000, kMostYears = 200;
constexpr Day kFirstDay{std::chrono::year{2026} / 3 / 1};

/// A game that is begun and played as "new" and "run --go-on" do with this seed, in a line.
std::string Life(World& world, const World& data, const Promotion& chair, std::uint64_t seed,
                 int days) {
  world.CopyFrom(data);
  world.SetChance(Game::DrawsOf(seed, Game::kWorldMaking));
  world.ExchangeProse(Game::DrawsOf(seed, Game::kWorldProse));
  world.SetLife(Game::DrawsOf(seed, Game::kWorldLife));
  NewGame(world, {.PlayerName = "Nobody",
                  .PromotionUid = chair.Uid,
                  .Difficulty = kMedium,
                  .Start = kFirstDay,
                  .SaveName = "Save Game 1"});
  GiveSeed(world, seed);
  Enter(world);
  Json months = Json::array(), ends = Json::array();
  MonthSummaries summaries;
  CareerEnd end;
  const std::string fault = Guarded(world, [&] {
    end = LiveOn(world, days, {.Then = AfterTheEnd::AnotherJob}, [&](int) {
      if (IsFirstOfMonth(world.Today())) months.push_back(summaries.Next(world));
      return true;
    });
  });
  for (const auto& [reason, on] : end.Reasons) ends.push_back({reason, IsoDate(on)});
  std::vector<std::string> faults;
  if (!fault.empty()) faults.push_back(ToUtf8(fault));
  for (const Fault& each : CheckWorld(world)) faults.push_back(ToUtf8(each.Line()));
  return Json{{"seed", seed},     {"chair", ToUtf8(chair.Initials)},
              {"days", end.Days}, {"ends", ends},
              {"faults", faults}, {"digest", DigestText(world)},
              {"months", months}}
             .dump() +
         "\n";
}

int LivingWorld(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World data = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  if (data.HasGame())
    throw WorldFault(arguments.Place(0) + " holds a saved game, no default data.");
  const auto seeds = static_cast<int>(arguments.Number("--seeds", 1, kMostLives).value_or(10));
  const auto years = static_cast<int>(arguments.Number("--years", 1, kMostYears).value_or(30));
  const std::vector<const Promotion*> chairs = ChairsInTurn(data);
  PlayInOrder<std::string>(
      shell, {seeds, ThreadsOf(arguments), "worlds"},
      [&](World& world, int seed) {
        const Promotion& chair = *chairs[static_cast<std::size_t>(seed - 1) % chairs.size()];
        return Life(world, data, chair, static_cast<std::uint64_t>(seed), 365 * years + years / 4);
      },
      [&](const std::string& line) { shell.Out << line << std::flush; });
  return 0;
}

constexpr OptionKind kLivingOptions[] = {{"--seeds", "N"}, {"--years", "Y"}, kJobsOption};

}  // namespace

const Command kLivingWorld{
    "living-world", "DATA",
    "Lets N seeds of the default data in DATA live for Y years, everybody by habit, and prints a "
    "JSON object a line for each: its chair, the ends of its player, its faults, its months.",
    kLivingOptions, LivingWorld};

}  // namespace grapplemont::tools
