#include "show/recap.h"

#include <algorithm>
#include <set>
#include <utility>

#include "records/segments.h"
#include "report/report.h"
#include "show/holdshow.h"
#include "show/runsegment.h"

namespace grapplemont {

namespace {

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

std::vector<ScoreStep> SumOf(const ShowRun& run, const ShowRecap& recap) {
  Score sum;
  int ratings = 0;
  for (const RecapLine& line : recap.Lines)
    if (Counts(run, line)) ratings += line.Rating;
  sum.Add(run.AnnouncerCharge, "The announcer");
  sum.Add(run.ColourCharge, "The colour commentator");
  sum.Add(run.ExtraBonus, "The extra of the Event");
  const bool isDarkMatchLeft = recap.Lines.size() > 0 && !Counts(run, recap.Lines.front());
  sum.Add(ratings, isDarkMatchLeft ? "The Segments but the dark match" : "The Segments");
  sum.Add(run.LastOverall, "The closing Segment once more");
  sum.Add(run.ProductionCharge, "Poor production");
  std::vector<ScoreStep> steps = sum.Steps();
  steps.push_back({"Together", sum});
  steps.push_back({"Divided by " + std::to_string(run.ShowSegments) + " ratings", run.ShowSum});
  return steps;
}

/// What the sheet announced as a win has been won.
std::string WonWhat(const Segment& segment) {
  if (segment.Kind != kMatch) return {};
  if (segment.Style == kThreeTeams) return "triangle tag match";
  if (segment.Style == kFourTeams) return "four-way tag match";
  return segment.Style == kSpecial ? std::string(MatchTypeText(kSpecial, segment.MatchType))
                                   : std::string();
}

}  // namespace

std::string SegmentResult(const World& world, const Segment& segment) {
  const std::string won = WonWhat(segment);
  if (won.empty()) return DescribeSegment(world, segment);
  return SideText(world, WinnersOf(segment)) + " won a " + won;
}

namespace {

using ShowKey = std::pair<Day, int>;

ShowKey KeyOf(const ReportPart& part) {
  return {part.On, part.Promotion};
}
ShowKey KeyOfToday(const World& world) {
  return {world.Today(), world.PlayerUid()};
}

std::set<ShowKey> KeysOf(const World& world) {
  std::set<ShowKey> keys;
  for (const ReportPart& part : world.Reports())
    if (part.Kind != kNoReport) keys.insert(KeyOf(part));
  return keys;
}

void Free(World& world, const ShowKey& show) {
  Records<ReportPart>& parts = world.Reports();
  for (int number = 1; number <= parts.Count(); ++number)
    if (KeyOf(std::as_const(parts)[number]) == show) parts.Change(number) = ReportPart{};
}

/// Writes the texts of one row, into free places first.
class Writer {
 public:
  Writer(World& world, int row) : world_(world), row_(row) {}

  void Write(ReportKind kind, std::string_view text) {
    if (text.empty()) return;
    for (const ReportPiece& piece : CutToPieces(text, decltype(ReportPart::Words)::kWidth))
      Put(kind, piece);
  }

 private:
  void Put(ReportKind kind, const ReportPiece& piece) {
    ReportPart part;
    part.On = world_.Today();
    part.Promotion = world_.PlayerUid();
    part.Voice = world_.Game().Reporter;
    part.Row = row_;
    part.Line = ++line_;
    part.Kind = kind;
    part.Join = piece.Join;
    part.Words = piece.Words;
    if (const int place = Place()) world_.Reports().Change(place) = part;
  }

  /// The number of a free place; 0 when the file is full of today's show alone.
  int Place() {
    Records<ReportPart>& parts = world_.Reports();
    for (; next_ <= parts.Count(); ++next_)
      if (parts[next_].Kind == kNoReport) return next_++;
    if (!parts.Full()) {
      parts.Append(ReportPart{});
      return next_++;
    }
    const std::set<ShowKey> keys = KeysOf(world_);
    if (keys.empty() || *keys.begin() == KeyOfToday(world_)) return 0;
    Free(world_, *keys.begin());
    next_ = 1;
    return Place();
  }

  World& world_;
  int row_;
  int line_ = 0;
  int next_ = 1;  // the place that is looked at next
};

void BeginReport(World& world) {
  std::set<ShowKey> keys = KeysOf(world);
  if (keys.contains(KeyOfToday(world))) return;
  while (static_cast<int>(keys.size()) >= kKeptShows) {
    Free(world, *keys.begin());
    keys.erase(keys.begin());
  }
  Writer(world, 0).Write(kShowName, ShowName(world, world.ShowRuns()[1].IsEvent));
}

std::string Details(const SegmentDetails& details) {
  std::string text = details.Style;
  for (const std::string& more : {details.Type, details.Belt})
    if (!more.empty()) text += (text.empty() ? "" : ", ") + more;
  return text;
}

std::string Figures(const ToldSegment& told, bool isMatch) {
  const auto percent = [](const char* what, int value) {
    return what + std::to_string(value) + "%";
  };
  return (isMatch ? percent("Match Quality ", told.Quality) + ", " : std::string()) +
         percent("Crowd Reaction ", told.Crowd) + ", " + percent("Overall Rating ", told.Overall);
}

/// The blank at which a line is cut: one between two words, as far back as the width allows; npos
/// for none.
std::size_t BlankWithin(std::string_view line, std::size_t width) {
  for (std::size_t at = std::min(width, line.size() - 2); at > 0; --at)
    if (line[at] == ' ' && line[at - 1] != ' ' && line[at + 1] != ' ') return at;
  return std::string_view::npos;
}

/// Where a line is cut that has no such blank: never beside one, which a field would lose.
std::size_t CutWithin(std::string_view line, std::size_t width) {
  std::size_t at = width;
  while (at > 1 && (line[at - 1] == ' ' || line[at] == ' ')) --at;
  return at;
}

void CutLine(std::string_view line, int join, std::size_t width, std::vector<ReportPiece>& pieces) {
  while (line.size() > width) {
    const std::size_t blank = BlankWithin(line, width);
    const bool atBlank = blank != std::string_view::npos;
    const std::size_t cut = atBlank ? blank : CutWithin(line, width);
    pieces.push_back({join, std::string(line.substr(0, cut))});
    line.remove_prefix(cut + (atBlank ? 1 : 0));
    join = atBlank ? kAfterBlank : kAtOnce;
  }
  pieces.push_back({join, std::string(line)});
}

void Add(std::vector<ReportText>& texts, const ReportPart& part) {
  const bool begins = part.Join == kBegins || texts.empty() || texts.back().Kind != part.Kind ||
                      texts.back().Row != part.Row;
  if (begins) return texts.push_back({part.Row, part.Kind, part.Words.Str()});
  if (part.Join == kAfterBlank) texts.back().Words += ' ';
  if (part.Join == kAfterBreak) texts.back().Words += '\n';
  texts.back().Words += part.Words.View();
}

}  // namespace

RatingsSoFar RatingsOfShow(const World& world) {
  RatingsSoFar ratings;
  const ShowRun& run = *ShowUnderWay(world);
  for (int number = 1; number <= LastRow(world, run.IsEvent); ++number) {
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
  for (int number = 1; number <= LastRow(world, run.IsEvent); ++number)
    if (const Segment& segment = world.Segments()[number]; WasTold(world, segment))
      recap.Lines.push_back({number, SegmentResult(world, segment), segment.Rating});
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

std::vector<ReportPiece> CutToPieces(std::string_view text, std::size_t width) {
  std::vector<ReportPiece> pieces;
  int join = kBegins;
  for (;;) {
    const auto end = text.find('\n');
    CutLine(text.substr(0, end), join, width, pieces);
    if (end == std::string_view::npos) return pieces;
    text.remove_prefix(end + 1);
    join = kAfterBreak;
  }
}

void KeepReport(World& world, int number, const ToldSegment& told, bool first) {
  if (first) BeginReport(world);
  const Segment& segment = world.Segments()[number];
  const SegmentDetails details = DetailsOf(world, segment);
  Writer writer(world, number);
  writer.Write(kWhoMet, details.Names);
  writer.Write(kDetails, Details(details));
  writer.Write(kProse, told.Report);
  writer.Write(kVerdict, told.Verdict);
  writer.Write(kWinner, details.Winner);
  writer.Write(kFigures, Figures(told, segment.Kind == kMatch));
}

std::vector<KeptShow> ShowsInTheColumn(const World& world) {
  std::vector<KeptShow> shows;
  for (const ShowKey& key : KeysOf(world)) shows.push_back({key.first, key.second, {}, 0});
  std::reverse(shows.begin(), shows.end());
  for (const ReportPart& part : world.Reports()) {
    if (part.Kind != kShowName) continue;
    for (KeptShow& show : shows) {
      if (ShowKey{show.On, show.Promotion} != KeyOf(part)) continue;
      show.Name = part.Words.Str();
      show.Voice = part.Voice;
    }
  }
  return shows;
}

std::vector<ReportText> ReportOf(const World& world, Day on, int promotionUid) {
  std::vector<const ReportPart*> parts;
  for (const ReportPart& part : world.Reports())
    if (part.Kind != kNoReport && part.Row != 0 && KeyOf(part) == ShowKey{on, promotionUid})
      parts.push_back(&part);
  std::stable_sort(parts.begin(), parts.end(), [](const ReportPart* a, const ReportPart* b) {
    return std::pair<int, int>(a->Row, a->Line) < std::pair<int, int>(b->Row, b->Line);
  });
  std::vector<ReportText> texts;
  for (const ReportPart* part : parts) Add(texts, *part);
  return texts;
}

}  // namespace grapplemont
