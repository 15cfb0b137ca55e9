#include <algorithm>
#include <optional>
#include <ostream>

#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "session/home.h"
#include "session/newgame.h"
#include "tools/commands.h"
#include "tools/officework.h"
#include "tools/soak.h"
#include "tools/tool.h"

namespace grapplemont::tools {

namespace {

constexpr std::uint64_t kHighestSeed = ~std::uint64_t{0};
// No career leaves the years of the calendar.
constexpr std::uint64_t kMostDays = 100000;
constexpr int kFirstYear = 1900, kLastYear = 9000;

Game::Options GameOptions(const Arguments& arguments, Disk& disk, const Shell& shell) {
  Game::Options options;
  const auto home = arguments.Text("--home");
  options.Home = home ? FolderName(disk, *home) : FindHome(disk);
  options.Today = shell.Today;
  options.Seed = arguments.Number("--seed", 0, kHighestSeed);
  return options;
}

int SlotOf(const Arguments& arguments) {
  return static_cast<int>(*arguments.Number("--slot", 1, kSlots));
}

/// The player's name in the records' letters.
std::string PlayerName(const Arguments& arguments) {
  const auto name = FromUtf8(*arguments.Text("--player"));
  if (!name) throw UsageError("--player has a letter that the game cannot hold");
  const std::string_view trimmed = detail::Trimmed(*name);
  constexpr auto kMost = static_cast<std::size_t>(decltype(GameInfo::PlayerName)::kWidth);
  if (trimmed.empty()) throw UsageError("--player needs a name");
  if (std::any_of(trimmed.begin(), trimmed.end(), IsControl))
    throw UsageError("--player is one line of plain text");
  if (trimmed.size() > kMost)
    throw UsageError("--player has room for " + std::to_string(kMost) + " letters");
  return std::string(trimmed);
}

int PromotionUid(const World& world, const std::string& initials) {
  std::vector<std::string> all;
  for (const Promotion& promotion : world.Promotions()) {
    if (promotion.Name == kToBeDeleted) continue;
    all.push_back(ToUtf8(promotion.Initials));
    if (all.back() == initials) return promotion.Uid;
  }
  throw WorldFault("promos.dat: no promotion has the initials " + initials +
                   DidYouMean(initials, {all.begin(), all.end()}));
}

World ReadDefaultWorld(Game& game) {
  const auto missing = MissingDataFiles(game.Disk(), game.DataFolder());
  if (!missing.empty())
    throw WorldFault(game.DataFolder() + "/" + missing.front() +
                     " is missing. Build the default world first.");
  World world(game.NewDraws(Game::kWorldMaking), game.NewDraws(Game::kWorldProse));
  world.Load(ReadWorldFiles(game.Disk(), game.DataFolder()));
  return world;
}

Day StartOf(const Arguments& arguments, const Shell& shell) {
  const Day start = arguments.Date("--start").value_or(shell.Today());
  if (YearOf(start) >= kFirstYear && YearOf(start) <= kLastYear) return NextFirst(start);
  throw UsageError("--start needs a year from " + std::to_string(kFirstYear) + " to " +
                   std::to_string(kLastYear));
}

FaultList Begin(World& world, const NewGameChoice& choice) {
  try {
    return NewGame(world, choice);
  } catch (const FieldOverflow& fault) {
    throw WorldFault(world.Explain(fault));
  }
}

int New(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const int slot = SlotOf(arguments);
  NewGameChoice choice;
  choice.PlayerName = PlayerName(arguments);
  choice.Difficulty =
      static_cast<int>(arguments.Number("--difficulty", kEasy, kRockHard).value_or(kMedium));
  choice.Start = StartOf(arguments, shell);
  choice.SaveName = "Save Game " + std::to_string(slot);
  EmptyDesk desk;
  Game game(desk, *disk, GameOptions(arguments, *disk, shell));
  World world = ReadDefaultWorld(game);
  choice.PromotionUid = PromotionUid(world, *arguments.Text("--promotion"));
  const FaultList mended = Begin(world, choice);
  for (const Fault& fault : mended) shell.Out << ToUtf8(fault.Line()) << "\n";
  if (mended.Count > mended.First.size())
    shell.Out << "and " << mended.Count - mended.First.size() << " more\n";
  Slot::Create(*disk, game.SlotFolder(slot), FilesOf(world), game.NewWorldId());
  shell.Out << "Slot " << slot << ": " << ToUtf8(choice.PlayerName) << " takes over "
            << ToUtf8(world.Player().Name) << " (" << Says(kDifficulties, choice.Difficulty)
            << ") on " << LongDate(choice.Start) << ".\n";
  return 0;
}

Shows ShowsOf(const Arguments& arguments) {
  const std::string shows = arguments.Text("--shows").value_or("auto");
  if (shows == "auto") return Shows::Auto;
  if (shows == "cancel") return Shows::Cancel;
  throw UsageError("--shows is \"auto\" or \"cancel\", not \"" + shows + "\"");
}

/// Throws for a slot that no game can be played in.
void RequireGame(Game& game, int slot) {
  const SlotSummary summary = ReadSlotSummary(game.Disk(), game.SlotFolder(slot));
  if (summary.Empty) throw WorldFault("Slot " + std::to_string(slot) + " is empty.");
  if (!summary.Playable)
    throw WorldFault("Slot " + std::to_string(slot) + ": " + summary.Caption + ".");
}

/// Tells of the days on a terminal, and of each month in the file of summaries.
class Watcher {
 public:
  Watcher(Game& game, const Shell& shell, int days) : game_(game), shell_(shell), days_(days) {}
  void WriteTo(const std::string& path) { stats_.emplace(game_.Disk(), path); }

  void DayPassed(int day) {
    const World& world = game_.World();
    if (stats_ && IsFirstOfMonth(world.Today())) stats_->Add(MonthSummary(world));
    if (shell_.Terminal)
      shell_.Errors << "\r" << IsoDate(world.Today()) << ", day " << day << " of " << days_
                    << std::flush;
  }
  void Done() {
    if (shell_.Terminal) shell_.Errors << "\r\x1B[K" << std::flush;
  }

 private:
  Game& game_;
  const Shell& shell_;
  int days_;
  std::optional<StatsFile> stats_;
};

/// "3, 2": why he has lost his jobs, in their order.
std::string Reasons(const CareerEnd& end) {
  std::string list;
  for (const int reason : end.Reasons) list += (list.empty() ? "" : ", ") + std::to_string(reason);
  return list;
}

void TellEnd(const World& world, const CareerEnd& end, std::ostream& out) {
  if (end.EndCode == 0 && !end.Reasons.empty())
    out << "Dismissed on the way (reason " << Reasons(end) << ").\n";
  const std::string days = Counted(end.Days, "day");
  if (end.EndCode == 0)
    out << "After " << days << " it is " << LongDate(world.Today()) << ".\n";
  else
    out << "The career ended after " << days << ", on " << LongDate(world.Today()) << " (reason "
        << end.EndCode << ").\n";
}

int Run(const Arguments& arguments, Shell& shell) {
  const int slot = SlotOf(arguments);
  const int days = static_cast<int>(*arguments.Number("--days", 0, kMostDays));
  const Shows shows = ShowsOf(arguments);
  const auto after = arguments.Has("--go-on") ? AfterTheEnd::AnotherJob : AfterTheEnd::Stop;
  const auto disk = RealDisk(arguments.Has("--no-sync") ? Syncs::None : Syncs::Real);
  EmptyDesk desk;
  Game game(desk, *disk, GameOptions(arguments, *disk, shell));
  RequireGame(game, slot);
  for (const std::string& remark : game.OpenSlot(slot)) shell.Errors << ToUtf8(remark) << "\n";
  Watcher watcher(game, shell, days);
  if (const auto stats = arguments.Text("--stats")) watcher.WriteTo(*stats);
  CareerEnd end;
  try {
    end = PlayDays(
        game, days, shows, [&](int day) { watcher.DayPassed(day); }, after);
  } catch (const FieldOverflow& fault) {
    watcher.Done();
    throw WorldFault(IsoDate(game.World().Today()) + ": " + game.Explain(fault));
  }
  watcher.Done();
  TellEnd(game.World(), end, shell.Out);
  game.CloseSlot();
  return 0;
}

constexpr OptionKind kNewOptions[] = {{"--home", "H"},
                                      {"--slot", "N", true},
                                      {"--player", "NAME", true},
                                      {"--promotion", "INITIALS", true},
                                      {"--difficulty", "1..4"},
                                      {"--start", "YYYY-MM-DD"},
                                      {"--seed", "S"}};
constexpr OptionKind kRunOptions[] = {{"--home", "H"},
                                      {"--slot", "N", true},
                                      {"--days", "D", true},
                                      {"--seed", "S"},
                                      {"--shows", "auto|cancel"},
                                      {"--no-sync", ""},
                                      {"--stats", "FILE"},
                                      {"--go-on", ""}};

}  // namespace

const Command kNew{"new",
                   "--home H --slot N --player NAME --promotion INITIALS --difficulty 1..4 --start "
                   "YYYY-MM-DD --seed S",
                   "Begins a game in a slot of the home H, in place of one that is there, on the "
                   "first of a month from the start on.",
                   0,
                   kNewOptions,
                   New};
const Command kRun{"run",
                   "--home H --slot N --days D --seed S --shows auto|cancel [--no-sync] [--stats "
                   "FILE]",
                   "Plays days of a saved game; FILE gets a JSON object a line for each month.",
                   0,
                   kRunOptions,
                   Run};

}  // namespace grapplemont::tools
