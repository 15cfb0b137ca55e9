#include <algorithm>
#include <optional>
#include <ostream>

#include "booking/showstart.h"
#include "calendar/advanceday.h"
#include "calendar/incidents.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/store/playedslot.h"
#include "report/report.h"
#include "session/home.h"
#include "session/newgame.h"
#include "session/slots.h"
#include "tools/commands.h"
#include "tools/manyworlds.h"
#include "tools/officework.h"
#include "tools/runmany.h"
#include "tools/soak.h"
#include "tools/tool.h"

namespace grapplemont::tools {

namespace {

constexpr std::uint64_t kHighestSeed = ~std::uint64_t{0};
// No career leaves the years of the calendar.
constexpr std::uint64_t kMostDays = 100000;
constexpr std::uint64_t kMostWorlds = 100000;
constexpr int kFirstYear = 1900, kLastYear = 9000;

Game::Options GameOptions(const Arguments& arguments, Disk& disk, const Shell& shell) {
  Game::Options options;
  const auto named = arguments.Text("--home");
  const Home home =
      named ? HomeAt(disk, WithoutSlashes(*named), shell.Where) : FindHome(disk, shell.Where);
  options.Home = home.Folder;
  options.Share = home.Share;
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
  const auto missing = MissingDataFiles(game.Disk(), game.DataFolders());
  if (!missing.empty())
    throw WorldFault(game.DataFolder() + "/" + missing.front() +
                     " is missing. Build the default world first.");
  World world(game.NewDraws(Game::kWorldMaking), game.NewDraws(Game::kWorldProse),
              game.NewDraws(Game::kWorldLife));
  world.Load(ReadDefaultData(game.Disk(), game.DataFolders()));
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
  if (const auto voice = arguments.Number("--voice", kLamplighter, kQvd))
    world.Game().Reporter = static_cast<int>(*voice);
  for (const Fault& fault : mended) shell.Out << ToUtf8(fault.Line()) << "\n";
  if (mended.Count > mended.First.size())
    shell.Out << "and " << mended.Count - mended.First.size() << " more\n";
  Slot::Create(*disk, game.SlotFolder(slot), BeginningFiles(world, game.HasSeed()),
               game.NewWorldId());
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

/// The slot's world as it is read, for nobody to write.
World CopyOfSlot(Game& game, int slot) {
  RequireGame(game, slot);
  std::map<std::string, Bytes> files;
  const auto known = KnownFiles();
  for (const KnownFile& file : known)
    if (auto contents = Slot::Peek(game.Disk(), game.SlotFolder(slot), known, file.Name))
      files.emplace(file.Name, std::move(*contents));
  World world(game.NewDraws(Game::kPlay), game.NewDraws(Game::kReportProse),
              game.NewDraws(Game::kLife));
  world.Load(std::move(files));
  return world;
}

int RunCopies(const Arguments& arguments, Game& game, RunPlan plan, Shell& shell) {
  plan.Threads = ThreadsOf(arguments);
  plan.Seed = arguments.Number("--seed", 0, kHighestSeed).value_or(MachineSeed());
  const World start = CopyOfSlot(game, SlotOf(arguments));
  if (plan.By.Do == Shows::Auto && Holds(start, HouseRule::NoAutoBooker))
    shell.Errors << "Slot " << SlotOf(arguments)
                 << ": a rule of the house forbids the auto booker. These copies are nobody's "
                    "career: it books their shows all the same. --shows cancel calls them off.\n";
  std::optional<StatsFile> stats;
  if (const auto path = arguments.Text("--stats")) stats.emplace(game.Disk(), *path);
  return RunMany(start, plan, stats ? &*stats : nullptr, shell);
}

int Run(const Arguments& arguments, Shell& shell) {
  const int slot = SlotOf(arguments);
  const int days = static_cast<int>(*arguments.Number("--days", 0, kMostDays));
  const Shows shows = ShowsOf(arguments);
  const auto after = arguments.Has("--go-on") ? AfterTheEnd::AnotherJob : AfterTheEnd::Stop;
  const auto disk = RealDisk(arguments.Has("--no-sync") ? Syncs::None : Syncs::Real);
  EmptyDesk desk;
  Game game(desk, *disk, GameOptions(arguments, *disk, shell));
  if (const auto worlds = arguments.Number("--worlds", 1, kMostWorlds))
    return RunCopies(arguments, game, {static_cast<int>(*worlds), days, 0, {shows, after}, 1},
                     shell);
  if (arguments.Has("--jobs")) throw UsageError("--jobs needs --worlds: one game is played by one");
  RequireGame(game, slot);
  for (const std::string& remark : game.OpenSlot(slot)) shell.Errors << ToUtf8(remark) << "\n";
  std::optional<StatsFile> stats;
  if (const auto path = arguments.Text("--stats")) stats.emplace(*disk, *path);
  const World& world = game.World();
  if (shows == Shows::Auto && Holds(world, HouseRule::NoAutoBooker))
    throw WorldFault("Slot " + std::to_string(slot) +
                     ": a rule of the house, every row is booked by hand. Run it with --shows "
                     "cancel.");
  if (days > 0 && game.OpenedSlot().Records()) {
    game.OpenedSlot().EndRecord("grapplemont-world run on " + IsoDate(world.Today()));
    shell.Errors << "Slot " << slot << ": its record ends here. What is run is not the player's: "
                 << "it can be played again up to this day and no further.\n";
  }
  ProgressLine line(shell);
  const auto dayPassed = [&](int day) {
    if (stats && IsFirstOfMonth(world.Today())) stats->Add(world);
    line.Tell(IsoDate(world.Today()) + ", day " + std::to_string(day) + " of " +
              std::to_string(days));
  };
  CareerEnd end;
  try {
    end = PlayDays(game, days, shows, dayPassed, after);
  } catch (const FieldOverflow& fault) {
    throw WorldFault(IsoDate(world.Today()) + ": " + game.Explain(fault));
  }
  line.Clear();
  shell.Out << EndText(world, end);
  game.CloseSlot();
  return 0;
}

constexpr OptionKind kNewOptions[] = {kHomeOption,
                                      {"--slot", "N", true},
                                      {"--player", "NAME", true},
                                      {"--promotion", "INITIALS", true},
                                      {"--difficulty", "1..4"},
                                      {"--start", "YYYY-MM-DD"},
                                      {"--seed", "S"},
                                      {"--voice", "0..2"}};
constexpr OptionKind kRunOptions[] = {kHomeOption,
                                      {"--slot", "N", true},
                                      {"--days", "D", true},
                                      {"--seed", "S"},
                                      {"--shows", "auto|cancel"},
                                      {"--no-sync", ""},
                                      {"--stats", "FILE"},
                                      {"--go-on", ""},
                                      {"--worlds", "W"},
                                      kJobsOption};

constexpr int kFarthest = 400;  // days; an Event may be a year away

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
  const auto voice = arguments.Number("--voice", kLamplighter, kQvd);
  EmptyDesk desk;
  Game game(desk, *disk, GameOptions(arguments, *disk, shell));
  World world = CopyOfSlot(game, SlotOf(arguments));
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
    kHomeOption, {"--slot", "N", true}, {"--seed", "S"}, {"--voice", "0..2"}, {"--event", ""}};

}  // namespace

const Command kNew{
    "new", "",
    "Begins a game in a slot, in place of one that is there, on the first of a month "
    "from the start on.",
    kNewOptions, New};
const Command kRun{
    "run", "",
    "Plays days of a saved game; FILE gets a JSON object a line for each month. With "
    "--worlds it plays W copies instead, on N cores, the first with the seed S, each "
    "with one more, and leaves the game as it is. Where a rule of the house forbids the auto "
    "booker, a game needs --shows cancel; copies are booked by it all the same.",
    kRunOptions, Run};

std::string EndText(const World& world, const CareerEnd& end) {
  std::vector<std::string> reasons;
  for (const auto& [reason, on] : end.Reasons)
    reasons.push_back(std::to_string(reason) + " on " + IsoDate(on));
  const std::string days = Counted(end.Days, "day"), today = LongDate(world.Today());
  if (end.EndCode != 0 && end.Reasons.empty())
    return "The career has ended before (reason " + std::to_string(end.EndCode) + "): it is " +
           today +
           ", and no day passes. Load the game to go back in time or to take another "
           "chair.\n";
  if (end.EndCode != 0)
    return "The career ended after " + days + ", on " + today + " (reason " +
           std::to_string(end.EndCode) + ").\n";
  const std::string dismissed =
      reasons.empty() ? "" : "Dismissed on the way (reason " + Joined(reasons) + ").\n";
  return dismissed + "After " + days + " it is " + today + ".\n";
}

// The next show of a game, told.

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

const Command kTell{"tell", "",
                    "Books the next show (with --event the next Event) of a saved game and prints "
                    "its report; the game itself stays as it is.",
                    kTellOptions, Tell};

}  // namespace grapplemont::tools
