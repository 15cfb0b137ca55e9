#include "bench/walks.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <stdexcept>

#include "calendar/advanceday.h"
#include "records/fields/fields.h"

namespace grapplemont::bench {

WorldInFiles::WorldInFiles(const World& world) : disk_(RealDisk()) {
  for (const NewFile& file : FilesOf(world)) WriteFile(*disk_, folder_ / file.Name, file.Contents);
}

void WorldInFiles::Reach(Disk::Handle file, std::int64_t at, Bytes& record, bool writes) const {
  disk_->ReadAt(file, at, record);
  benchmark::DoNotOptimize(record);
  if (writes) disk_->WriteAt(file, at, record);
}

void WorldInFiles::Touch(const RecordLayout& layout, int number, bool writes) const {
  const OpenedFile file(*disk_, folder_ / std::string(layout.File), false);
  Bytes record(static_cast<std::size_t>(layout.Size));
  Reach(file, (number - 1) * std::ssize(record), record, writes);
}

void WorldInFiles::Go(const Walk& walk, const std::function<void(ByteSpan)>& visit) const {
  const OpenedFile file(*disk_, folder_ / std::string(walk.Of->File), false);
  Bytes record(static_cast<std::size_t>(walk.Of->Size));
  const std::int64_t size = disk_->Size(file);
  for (std::int64_t at = 0; at + walk.Of->Size <= size; at += walk.Of->Size) {
    Reach(file, at, record, walk.Writes);
    if (visit) visit(record);
  }
}

void WorldInFiles::Go(const std::vector<Walk>& walks) const {
  for (const Walk& walk : walks) Go(walk);
}

void WorldInMemory::Go(const std::vector<Walk>& walks) {
  for (const Walk& walk : walks) {
    const Bytes& bytes = files_.at(std::string(walk.Of->File));
    copy_.resize(std::max(copy_.size(), bytes.size()));
    std::ranges::copy(bytes, copy_.begin());
    benchmark::DoNotOptimize(copy_.data());
    benchmark::ClobberMemory();
  }
}

namespace {

const RecordLayout& LayoutBy(char letter) {
  switch (letter) {
    case 'W':
      return LayoutOf<Worker>();
    case 'P':
      return LayoutOf<Promotion>();
    case 'S':
      return LayoutOf<Staff>();
    case 'B':
      return LayoutOf<Title>();
    case 'T':
      return LayoutOf<Show>();
    case 'M':
      return LayoutOf<Team>();
    default:
      return LayoutOf<Sponsor>();
  }
}

/// What a step goes through, by the letters above, whatever comes of it. Where it looks at a few
/// records alone, or where most worlds give it nothing to do, that is nothing.
struct StepRow {
  std::string_view Name, Reads, Writes;
  bool OnlyOnFirsts = false;
};
constexpr StepRow kSteps[] = {
    // The day.
    {"RivalShows", "P", ""},
    {"OwnerlessPromotions", "SP", ""},
    {"RivalWorkerHiring", "WP", ""},
    {"RivalStaffHiring", "SP", ""},
    {"RivalSponsorSigning", "P", ""},
    {"DailyWorkerUpkeep", "", "WS"},
    {"IncidentRoll", "W", ""},
    {"SweepDeadPromotions", "P", ""},
    {"SweepDeadShows", "T", ""},
    {"TellOfTheMonth", "", ""},
    {"UpdateReigns", "B", ""},
    {"OwnersWishes", "", ""},
    {"NoteMonths", "W", "", true},
    {"BoardWarning", "", ""},
    {"FanMail", "", ""},
    // Mondays.
    {"RivalPositions", "", "W"},
    {"RivalHouseShows", "W", "P"},
    {"WriterWorkload", "TS", ""},
    {"TvContractReview", "T", ""},
    {"SponsorRiskReview", "N", ""},
    {"EconomyDrift", "", ""},
    {"RivalAdvertising", "", "P"},
    {"RosterSizeReview", "WP", ""},
    {"RivalStories", "WPM", ""},
    // Firsts of a month.
    {"CountThePast", "W", ""},
    {"PoorFormMorale", "P", ""},
    {"DiscoverFreeAgents", "", "W"},
    {"DevelopmentMonth", "", ""},
    {"TrainingCampMonth", "", ""},
    {"StatusCountdown", "", "W"},
    {"AgeAndRetire", "", "SW"},
    {"RivalNewTvShows", "P", ""},
    {"PayWagesAndContracts", "", "WS"},
    {"RivalContractRenewals", "PS", "W"},
    {"SponsorContractCountdown", "", "N"},
    {"LoanRepayments", "", "P"},
    {"MerchandiseIncome", "", "P"},
    {"MonthlyCosts", "", "P"},
    {"MonthlyReview", "", "P"},
    {"CloseMonthBooks", "", "P"},
    {"BankruptcyCheck", "P", ""},
    {"NewPromotionCheck", "P", ""},
    {"WorkersCareers", "", "W"},
    // A new game.
    {"Clean-up", "", "WPSBTMN"},
    {"Promotions", "", "P"},
    {"Challenge", "P", ""},
    {"Workers", "", "W"},
    {"New workers", "", ""},
    {"House rules", "", ""},
    {"Staff", "", "S"},
    {"New staff", "S", ""},
    {"Sponsors", "", "N"},
    {"Television", "", "T"},
    {"Titles", "", "B"},
    {"The past", "WB", ""},
    {"Welcome", "S", ""},
};

const StepRow& RowOf(std::string_view step) {
  const auto row = std::ranges::find(kSteps, step, &StepRow::Name);
  if (row != std::end(kSteps)) return *row;
  throw std::runtime_error("The bench does not know what " + std::string(step) + " goes through.");
}

void Add(std::vector<Walk>& walks, const StepRow& step) {
  for (const char letter : step.Reads) walks.push_back({&LayoutBy(letter), false});
  for (const char letter : step.Writes) walks.push_back({&LayoutBy(letter), true});
}

}  // namespace

std::vector<Walk> WalksOf(std::string_view step) {
  std::vector<Walk> walks;
  Add(walks, RowOf(step));
  return walks;
}

std::vector<Walk> WalksOf(Day morning) {
  std::vector<Walk> walks = WalksOf("RivalShows");
  const auto add = [&](std::span<const Step> steps) {
    for (const Step& step : steps)
      if (const StepRow& row = RowOf(step.Name); !row.OnlyOnFirsts || IsFirstOfMonth(morning))
        Add(walks, row);
  };
  add(kDayBlocks.Daily);
  if (IsMonday(morning)) add(kDayBlocks.Monday);
  if (IsFirstOfMonth(morning)) add(kDayBlocks.FirstOfMonth);
  add(kDayBlocks.Closing);
  return walks;
}

}  // namespace grapplemont::bench
