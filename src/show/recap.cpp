#include "show/recap.h"

#include <algorithm>

#include "records/segments.h"
#include "show/holdshow.h"

namespace grapplemont {

namespace {

std::string Signed(int number) {
  return (number > 0 ? "+" : "") + std::to_string(number);
}

std::string Rated(const RecapLine& line) {
  return line.What + ", " + std::to_string(line.Rating) + "%";
}

bool WasTold(const World& world, const Segment& segment) {
  return segment.Kind != kEmptySegment && !IsPassedOver(world, segment);
}

/// An Event's first row is the dark match: it is rated and counts for nothing.
bool Counts(const ShowRun& run, const RecapLine& line) {
  return !run.IsEvent || line.Number != 1;
}

void AddIfAny(std::vector<ScoreStep>& sum, const char* why, int change) {
  if (change != 0) sum.push_back({why, change});
}

std::vector<ScoreStep> SumOf(const ShowRun& run, const ShowRecap& recap) {
  std::vector<ScoreStep> sum;
  int ratings = 0;
  for (const RecapLine& line : recap.Lines)
    if (Counts(run, line)) ratings += line.Rating;
  AddIfAny(sum, "The announcer", run.AnnouncerCharge);
  AddIfAny(sum, "The colour commentator", run.ColourCharge);
  AddIfAny(sum, "The extra of the Event", run.ExtraBonus);
  AddIfAny(sum, "The Segments", ratings);
  AddIfAny(sum, "The closing Segment once more", run.LastOverall);
  AddIfAny(sum, "Poor production", run.ProductionCharge);
  int total = 0;
  for (const ScoreStep& step : sum) total += step.Change;
  sum.push_back({"Together", total});
  sum.push_back({"Over " + std::to_string(run.ShowSegments) + " ratings", run.ShowSum});
  return sum;
}

/// What the sheet announced as a win has been won.
std::string WonWhat(const Segment& segment) {
  if (segment.Kind != kMatch) return {};
  if (segment.Style == kThreeTeams) return "triangle tag match";
  if (segment.Style == kFourTeams) return "four-way tag match";
  return segment.Style == kSpecial ? std::string(MatchTypeText(kSpecial, segment.MatchType))
                                   : std::string();
}

std::string ResultText(const World& world, const Segment& segment) {
  const std::string won = WonWhat(segment);
  if (won.empty()) return DescribeSegment(world, segment);
  return SideText(world, WinnersOf(segment)) + " won a " + won;
}

}  // namespace

RatingsSoFar RatingsOfShow(const World& world) {
  RatingsSoFar ratings;
  const ShowRun& run = *ShowUnderWay(world);
  for (int number = 1; number <= std::min(RowsOf(run.IsEvent), world.Segments().Count());
       ++number) {
    if (!WasTold(world, world.Segments()[number])) continue;
    ratings.Rows.push_back(std::to_string(number));
    if (number <= run.Current) ratings.Values.push_back(world.Segments()[number].Rating);
  }
  return ratings;
}

ShowRecap RecapOf(const World& world) {
  const ShowRun& run = *ShowUnderWay(world);
  ShowRecap recap;
  recap.Rating = run.ShowSum;
  for (int number = 1; number <= std::min(RowsOf(run.IsEvent), world.Segments().Count()); ++number)
    if (const Segment& segment = world.Segments()[number]; WasTold(world, segment))
      recap.Lines.push_back({number, ResultText(world, segment), segment.Rating});
  const auto byRating = [](const RecapLine& a, const RecapLine& b) { return a.Rating < b.Rating; };
  if (const auto [worst, best] =
          std::minmax_element(recap.Lines.begin(), recap.Lines.end(), byRating);
      worst != recap.Lines.end()) {
    recap.Best = Rated(*best);
    recap.Worst = Rated(*worst);
  }
  recap.Sum = SumOf(run, recap);
  return recap;
}

std::string WhyText(std::string_view caption, const Score& score) {
  std::string text = std::string(caption) + " " + std::to_string(score) + " =";
  bool first = true;
  for (const ScoreStep& step : score.Steps()) {
    text += "\n" + (first ? std::to_string(step.Change) : Signed(step.Change)) + " " + step.Why;
    first = false;
  }
  return text;
}

}  // namespace grapplemont
