#include "info/career.h"

#include "records/fields/fields.h"

namespace grapplemont {

namespace {

struct Standing {
  int From;
  const char* Words;
};
// By the lowest reputation, from the top.
constexpr Standing kStandings[] = {{90, "A legend of the business"},
                                   {75, "Respected"},
                                   {50, "Well thought of"},
                                   {25, "Doubted"},
                                   {1, "Distrusted"}};

JobLine LineOf(const Job& job) {
  return {job.Promotion.Str(), job.Started,    {},          false,
          job.StartSize,       job.StartImage, job.EndSize, job.EndImage};
}

bool IsTaken(const Job& job) {
  return !(job.Promotion == "None") && !job.Promotion.View().empty();
}

void CountShow(const HistoryEntry& show, JobRecord& record, long long& sum) {
  if (show.CalledOff) {
    ++record.CalledOff;
    return;
  }
  ++(show.Kind == kPastTv ? record.Shows : record.Events);
  sum += show.Rating;
  if (record.BestShow.empty() || show.Rating > record.BestRating) {
    record.BestShow = show.Name.Str();
    record.BestRating = show.Rating;
  }
}

}  // namespace

std::string ReputationText(int reputation) {
  for (const Standing& standing : kStandings)
    if (reputation >= standing.From) return standing.Words;
  return "Finished in the eyes of many";
}

std::vector<JobLine> CareerOf(const World& world) {
  std::vector<JobLine> career;
  Day next = world.Today();
  for (const Job& job : world.Game().Jobs) {
    const bool present = &job == &world.Game().Jobs.front();
    if (!present && !IsTaken(job)) continue;
    JobLine& line = career.emplace_back(LineOf(job));
    line.To = next;
    line.Present = present;
    next = line.From;
  }
  if (const Promotion* player = world.FindPromotion(world.PlayerUid())) {
    career.front().Promotion = player->Name.Str();
    career.front().EndSize = player->Size;
    career.front().EndImage = player->Image;
  }
  return career;
}

JobRecord RecordOfJob(const World& world) {
  JobRecord record;
  long long sum = 0;
  const Day started = world.Game().Jobs.front().Started;
  for (const HistoryEntry& entry : world.History()) {
    if (entry.Promotion != world.PlayerUid() || Day(entry.On) < started) continue;
    if (entry.Kind == kPastMonth) {
      ++record.Months;
      record.Profit += static_cast<long long>(entry.Income) - entry.Costs;
    } else {
      CountShow(entry, record, sum);
    }
  }
  const int held = record.Shows + record.Events;
  record.MeanRating = held == 0 ? 0 : static_cast<int>(sum / held);
  return record;
}

}  // namespace grapplemont
