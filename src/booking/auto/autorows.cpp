#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>

#include "booking/auto/autoplan.h"
#include "booking/auto/autotalk.h"
#include "records/segments.h"

// Which row everything gets: matches rise to the main event, talk lies between them, and what is
// said of a match comes before it.

namespace grapplemont {

namespace {

constexpr std::string_view kHeaviest =
    " Of the matches proposed it promises most, with its feud and its Title: it comes last.";

constexpr std::size_t kDarkMatch = 0;  // the first row of an Event

/// The dark match is left out when the show proper needs everything there is.
bool WantsDarkMatch(const AutoPlan& plan) {
  if (!plan.View.IsEvent || plan.Matches.empty() || plan.Rows[kDarkMatch].Kind != kEmptySegment)
    return false;
  if (plan.RowsLeft() == 0 && plan.Talks.empty()) return true;
  return Booked(plan, kMatch) - 1 >= plan.LeastMatches && Booked(plan) - 1 >= plan.LeastSegments;
}

/// Nothing that matters happens before the show proper, if it can be helped.
void PlaceDarkMatch(AutoPlan& plan) {
  auto dark = std::find_if(plan.Matches.begin(), plan.Matches.end(), [](const Planned& planned) {
    const Segment& match = planned.Segment;
    const bool feud = match.Style <= kTag && (match.Purpose == purpose1::kEndFeud ||
                                              match.Purpose == purpose1::kContinueFeud);
    return match.TitleName == "None" && !feud;
  });
  if (dark == plan.Matches.end()) dark = plan.Matches.begin();
  plan.Rows[kDarkMatch] = dark->Segment;
  plan.Reasons[kDarkMatch] = dark->Because;
  plan.Matches.erase(dark);
}

/// Without a dark match its row stays empty, and there may be one Segment too many: the last of the
/// talk.
void DropWhatHasNoRow(AutoPlan& plan) {
  if (!plan.View.IsEvent || plan.Talks.empty() || plan.RowsLeft() > 0) return;
  if (plan.Rows[kDarkMatch].Kind == kEmptySegment) plan.Talks.pop_back();
}

// Rows as their kinds; talk is the lesser letter, so that of equal orders the one with talk first
// is met first.
constexpr char kTalkRow = 'a', kMatchRow = 'b', kNoRow = ' ';

// What a crowd minds. One more of a kind in a row counts once more each time.
constexpr int kTalkOnTalk = 10, kMatchOnMatch = 2, kWrongOpening = 5, kTalkLast = 1000;

int Tedium(std::string_view kinds, bool opensWithTalk) {
  int tedium = 0, again = 0;
  char before = kNoRow;
  for (const char kind : kinds) {
    if (kind == kNoRow) continue;
    again = kind == before ? again + 1 : 0;
    tedium += again * (kind == kTalkRow ? kTalkOnTalk : kMatchOnMatch);
    if (before == kNoRow && (kind == kTalkRow) != opensWithTalk) tedium += kWrongOpening;
    before = kind;
  }
  return before == kTalkRow ? tedium + kTalkLast : tedium;
}

char KindOfRow(const AutoPlan& plan, std::size_t row) {
  const int kind = plan.Rows[row].Kind;
  if (kind == kEmptySegment || (plan.View.IsEvent && row == kDarkMatch)) return kNoRow;
  return kind == kMatch ? kMatchRow : kTalkRow;
}

/// A kind for each row: the first empty ones get what is planned, in the order that the crowd minds
/// least. A show opens with talk when it has much of it, an Event with a match.
std::string OrderOfRows(const AutoPlan& plan) {
  std::string order = std::string(plan.Talks.size(), kTalkRow);
  order.append(plan.Matches.size(), kMatchRow);
  std::string kinds;
  std::vector<std::size_t> open;
  for (std::size_t row = 0; row < plan.Rows.size(); ++row) {
    kinds += KindOfRow(plan, row);
    const bool isOpen = plan.Rows[row].Kind == kEmptySegment && open.size() < order.size();
    if (isOpen && !(plan.View.IsEvent && row == kDarkMatch)) open.push_back(row);
  }
  const bool opensWithTalk = !plan.View.IsEvent && plan.Talks.size() > 1;
  std::string best;
  int least = std::numeric_limits<int>::max();
  do {
    for (std::size_t i = 0; i < open.size(); ++i) kinds[open[i]] = order[i];
    const int tedium = Tedium(kinds, opensWithTalk);
    if (tedium < least) best = kinds;
    least = std::min(least, tedium);
  } while (std::next_permutation(order.begin(), order.end()));
  return best;
}

void PutOn(AutoPlan& plan, std::size_t row, const Planned& planned) {
  plan.Rows[row] = planned.Segment;
  plan.Reasons[row] = planned.Because;
}

bool ShareSomebody(const Segment& one, const Segment& other) {
  if (one.Kind == kEmptySegment || other.Kind == kEmptySegment) return false;
  const std::vector<int> people = EverybodyOf(one);
  return std::ranges::any_of(
      EverybodyOf(other), [&](int uid) { return std::ranges::find(people, uid) != people.end(); });
}

/// The first row whose match is between people of the talk.
std::optional<std::size_t> MatchAbout(const AutoPlan& plan, const Segment& talk) {
  const std::vector<int> people = EverybodyOf(talk);
  for (std::size_t row = 0; row < plan.Rows.size(); ++row) {
    const Segment& match = plan.Rows[row];
    if (match.Kind == kMatch &&
        std::ranges::count_if(people, [&](int uid) { return TakesPart(match, uid); }) > 1)
      return row;
  }
  return std::nullopt;
}

// What speaks against a talk in a row, and for it.
constexpr int kMatchIsOver = 100, kLastChance = -50, kSameFaces = 10, kSameKind = 3;

/// `next` is the row of the next talk.
int Misfit(const AutoPlan& plan, const Segment& talk, std::size_t row, std::size_t next) {
  int misfit = 0;
  if (const auto match = MatchAbout(plan, talk); match && *match < row)
    misfit += kMatchIsOver;
  else if (match && *match < next)
    misfit += kLastChance;
  if (row > 0 && ShareSomebody(talk, plan.Rows[row - 1])) misfit += kSameFaces;
  if (row + 1 < plan.Rows.size() && ShareSomebody(talk, plan.Rows[row + 1])) misfit += kSameFaces;
  if (row > 0 && plan.Rows[row - 1].Kind == talk.Kind) misfit += kSameKind;
  return misfit;
}

/// The matches must have their rows.
void PlaceTalk(AutoPlan& plan, const std::string& kinds) {
  const auto isFree = [&](std::size_t row) {
    return kinds[row] == kTalkRow && plan.Rows[row].Kind == kEmptySegment;
  };
  for (std::size_t row = 0; row < kinds.size() && !plan.Talks.empty(); ++row) {
    if (!isFree(row)) continue;
    std::size_t next = row + 1;
    while (next < kinds.size() && !isFree(next)) ++next;
    const auto best = std::ranges::min_element(
        plan.Talks, {}, [&](const Planned& talk) { return Misfit(plan, talk.Segment, row, next); });
    PutOn(plan, row, *best);
    plan.Talks.erase(best);
  }
}

/// Nobody hypes what nobody will see: a talk whose match found no row behind it only attacks.
void HypeWhatIsToCome(AutoPlan& plan) {
  for (std::size_t row = 0; row < plan.Rows.size(); ++row) {
    Segment& talk = plan.Rows[row];
    const bool isOurs = !plan.Reasons[row].empty();
    if (!isOurs || talk.Kind != kInterview || talk.Purpose != kHypeMatch) continue;
    const auto match = MatchAbout(plan, talk);
    if (match ? *match < row : !IsDrafted(plan.World, talk)) talk.Purpose = kVerbalAttack;
  }
}

}  // namespace

int RowsOf(const AutoPlan& plan, int kind) {
  int count = 0;
  for (std::size_t row = 0; row < plan.Rows.size(); ++row) {
    if (plan.View.IsEvent && row == kDarkMatch) continue;
    const int found = plan.Rows[row].Kind;
    count += kind == kEmptySegment ? found != kEmptySegment : found == kind;
  }
  return count;
}

int Booked(const AutoPlan& plan, int kind) {
  const std::size_t talks = kind == kMatch ? 0 : plan.Talks.size();
  return RowsOf(plan, kind) + static_cast<int>(plan.Matches.size() + talks);
}

void PlaceOnRows(AutoPlan& plan) {
  std::ranges::stable_sort(plan.Matches, {}, &Planned::Weight);
  std::ranges::stable_sort(plan.Talks, {}, &Planned::Weight);
  if (plan.Matches.size() > 1) plan.Matches.back().Because += kHeaviest;
  if (WantsDarkMatch(plan))
    PlaceDarkMatch(plan);
  else
    DropWhatHasNoRow(plan);
  const std::string kinds = OrderOfRows(plan);
  auto match = plan.Matches.begin();
  for (std::size_t row = 0; row < kinds.size(); ++row)
    if (kinds[row] == kMatchRow && plan.Rows[row].Kind == kEmptySegment) PutOn(plan, row, *match++);
  PlaceTalk(plan, kinds);
  HypeWhatIsToCome(plan);
  plan.Matches.clear();
  plan.Talks.clear();
}

}  // namespace grapplemont
