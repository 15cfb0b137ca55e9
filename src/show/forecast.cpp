#include "show/forecast.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <set>
#include <span>

#include "records/segments.h"
#include "show/holdshow.h"
#include "show/runsegment.h"

namespace grapplemont {

namespace {

constexpr int kRehearsals = 16;
constexpr std::uint64_t kSeed = 20260301;
constexpr std::uint64_t kSpread = 1099511628211;  // spreads a byte over all bits of a seed
constexpr int kTooOften = 3;

/// What a road agent's note foretells when it comes in half of the rehearsals.
struct Omen {
  std::string_view Note;
  std::string_view Warning;
};
constexpr Omen kOmens[] = {
    {"the crowd were still pumped up", "the crowd will still be spent from the match before"},
    {"The crowd were confused", "a Title match without its champion confuses the crowd"},
    {"no-sold everything", "somebody who must sell will not"},
};

/// What the slot keeps of its past says nothing of the show to come.
constexpr std::string_view kPast[] = {"history.dat", "bouts.dat",  "tallies.dat",  "reports.dat",
                                      "said.dat",    "awards.dat", "yearend.dat",  "months.dat",
                                      "moods.dat",   "cards.dat",  "mornings.dat", "telling.dat",
                                      "annals.dat"};

bool IsPast(std::string_view file) {
  return std::find(std::begin(kPast), std::end(kPast), file) != std::end(kPast);
}

/// A world to try a show in: as often as one likes from the same beginning.
class Stage {
 public:
  Stage(const World& world, const std::vector<Segment>& sheet)
      : world_(std::make_unique<SeededDraws>(kSeed), std::make_unique<SeededDraws>(kSeed)) {
    std::map<std::string, Bytes> files;
    for (const Table* table : world.Tables())
      if (const ByteSpan bytes = table->Contents(); table->Exists() && !IsPast(table->File()))
        files.emplace(table->File(), Bytes(bytes.begin(), bytes.end()));
    world_.Load(files);
    world_.Segments().Rewrite(sheet);
    world_.Session = world.Session;
    world_.MarkCommitted();
  }
  World& Begin() {
    world_.Rollback();
    return world_;
  }

 private:
  World world_;
};

/// The chance of a Segment in one of the rehearsals, from what is booked.
std::uint64_t SeedOf(const Segment& segment, int turn) {
  std::uint64_t seed = kSeed + static_cast<std::uint64_t>(turn);
  for (const std::byte byte : std::as_bytes(std::span(&segment, 1)))
    seed = (seed ^ std::to_integer<std::uint64_t>(byte)) * kSpread;
  return seed;
}

void Widen(Forecast& range, int value, bool first) {
  range.Low = first ? value : std::min(range.Low, value);
  range.High = first ? value : std::max(range.High, value);
}

/// Rehearses the show again and again and gathers what comes out.
class Rehearsals {
 public:
  Rehearsals(const World& world, const std::vector<Segment>& sheet, bool isEvent,
             const CommentaryTeam& team, int watched = 0)
      : stage_(world, sheet), isEvent_(isEvent), team_(team), watched_(watched) {
    forecast_.Rows.resize(static_cast<std::size_t>(RowsOf(isEvent)));
  }

  ShowForecast Hold() {
    for (int turn = 0; turn < kRehearsals; ++turn) HoldOne(turn);
    for (const auto& [omen, times] : omens_)
      if (times * 2 >= kRehearsals)
        forecast_.Warnings.push_back("Row " + std::to_string(omen.first) + ": " +
                                     std::string(kOmens[omen.second].Warning) + ".");
    return std::move(forecast_);
  }

  /// How the row that is watched came to the middle of its ratings. Requires that it was held.
  ToldSegment Typical() {
    const auto middle = told_.begin() + std::ssize(told_) / 2;
    std::ranges::nth_element(told_, middle, {}, [](const auto& told) { return int(told.Overall); });
    return std::move(*middle);
  }
  bool WasHeld() const { return !told_.empty(); }

 private:
  void HoldOne(int turn) {
    World& world = stage_.Begin();
    const bool first = turn == 0;
    world.SetChance(std::make_unique<SeededDraws>(kSeed + static_cast<std::uint64_t>(turn)));
    StartShow(world, isEvent_, team_);
    world.ShowRuns()[1].FlatNight = false;  // a forecast tells of the other nights
    while (const int number = NextSegment(world)) {
      world.SetChance(std::make_unique<SeededDraws>(SeedOf(world.Segments()[number], turn)));
      ToldSegment told = RunNextSegment(world, nullptr);
      Widen(forecast_.Rows[static_cast<std::size_t>(number - 1)], told.Overall, first);
      NoteOmens(number, told.Notes);
      if (number == watched_) told_.push_back(std::move(told));
    }
    Widen(forecast_.Rating, CloseShow(world), first);
  }

  void NoteOmens(int number, std::string_view notes) {
    for (std::size_t omen = 0; omen < std::size(kOmens); ++omen)
      if (notes.find(kOmens[omen].Note) != std::string_view::npos) ++omens_[{number, omen}];
  }

  Stage stage_;
  bool isEvent_;
  CommentaryTeam team_;
  int watched_;  // a row; 0 for none
  ShowForecast forecast_;
  std::vector<ToldSegment> told_;  // that row, as often as it was held
  std::map<std::pair<int, std::size_t>, int> omens_;
};

std::vector<Segment> SheetOf(const World& world) {
  return {world.Segments().begin(), world.Segments().end()};
}

bool IsAnythingBooked(const World& world, bool isEvent) {
  for (int number = 1; number <= LastRow(world, isEvent); ++number)
    if (world.Segments()[number].Kind != kEmptySegment) return true;
  return false;
}

void WarnOfTable(const World& world, const CommentaryTeam& team,
                 std::vector<std::string>& warnings) {
  if (!world.FindStaff(team.Announcer))
    warnings.emplace_back("There is no announcer.");
  else if (WithAnnouncer(world, team.Announcer, 0) < 0)
    warnings.push_back(AnnouncerName(world, team) +
                       " is not an announcer for a show of this size.");
  if (ColourName(world, team) == "None")
    warnings.emplace_back("There is no colour commentator.");
  else if (WithColour(world, team.Colour, team.ColourIsWorker, 0) < 0)
    warnings.push_back(ColourName(world, team) +
                       " is not a colour commentator for a show of this size.");
  if (ProductionCharge(world.Player()) < 0)
    warnings.emplace_back("The production is too poor for a promotion of this size.");
}

/// Each worker of the card once, in the order of the file, with what speaks against them.
void WarnOfWorkers(const World& world, bool isEvent, std::vector<std::string>& warnings) {
  std::map<int, int> seen;
  for (int number = 1; number <= LastRow(world, isEvent); ++number) {
    const Segment& segment = world.Segments()[number];
    const std::vector<int> people = PeopleOf(segment);
    if (segment.Kind == kMatch || segment.Kind == kAngle)
      for (const int uid : std::set<int>(people.begin(), people.end())) ++seen[uid];
  }
  for (const Worker& worker : world.Workers()) {
    const auto found = seen.find(worker.Uid);
    if (found == seen.end() || worker.Uid == 0) continue;
    if (worker.Condition < kTiredBelow)
      warnings.push_back(worker.Name + " is tired (condition " + std::to_string(worker.Condition) +
                         "%).");
    if (found->second >= kTooOften)
      warnings.push_back(worker.Name + " is on the card " + std::to_string(found->second) +
                         " times: the fans tire of that.");
  }
}

}  // namespace

ShowForecast ForecastShow(const World& world, bool isEvent, const CommentaryTeam& team) {
  ShowForecast forecast;
  forecast.Rows.resize(static_cast<std::size_t>(RowsOf(isEvent)));
  if (IsAnythingBooked(world, isEvent))
    forecast = Rehearsals(world, SheetOf(world), isEvent, team).Hold();
  WarnOfTable(world, team, forecast.Warnings);
  WarnOfWorkers(world, isEvent, forecast.Warnings);
  return forecast;
}

RowForecast ForecastRow(const World& world, bool isEvent, int record, const Segment& segment) {
  std::vector<Segment> sheet = SheetOf(world);
  const auto row = static_cast<std::size_t>(record - 1);
  if (record > LastRow(world, isEvent)) return {};
  sheet[row] = segment;
  // Who sits at the table moves the show's sum and no row.
  Rehearsals rehearsals(world, sheet, isEvent, {}, record);
  const Forecast rating = rehearsals.Hold().Rows[row];
  if (!rehearsals.WasHeld()) return {};
  return {rating, rehearsals.Typical()};
}

}  // namespace grapplemont
