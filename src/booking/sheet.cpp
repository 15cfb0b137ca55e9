#include "booking/sheet.h"

#include <algorithm>
#include <iterator>
#include <set>

#include "booking/wizard/casting.h"
#include "booking/wizard/interviews.h"
#include "booking/wizard/matchrules.h"
#include "booking/wizard/wizard.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/modWresCheck.h"
#include "records/segmentparts.h"
#include "records/segments.h"
#include "show/holdshow.h"
#include "show/showfeuds.h"
#include "show/titlechange.h"
#include "show/turns.h"
#include "storylines/feuds.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

// In the order of kTvTerms. The last one stands for every other code.
constexpr std::string_view kSlots[] = {"P", "E", "L", "G"};

std::string NameOf(const World& world, int uid) {
  return SideText(world, {uid});
}

/// Those the uids stand for: themselves, or with `teams` the sides that they are the first of.
std::string NamesOf(const World& world, const Segment& match, const std::vector<int>& uids,
                    bool teams = false) {
  const auto sides = SidesOf(match);
  std::vector<std::string> names;
  for (const int uid : uids) {
    const int side = teams ? SideOf(match, uid) : 0;
    names.push_back(side == 0 ? NameOf(world, uid)
                              : SideText(world, sides[static_cast<std::size_t>(side - 1)]));
  }
  return Joined(names);
}

std::vector<std::string> DetailsOfMatch(const World& world, const Segment& match) {
  if (match.Style == kSpecial)
    return {"Entrants: " + NamesOf(world, match, PeopleOf(match)),
            "Runner-up: " + NameOf(world, match.Loser)};
  const ResultForm& form = ResultFormOf(match);
  if (IsDraw(match) || form.Losers == 0) return {};
  if (form.Losers == 1)
    return {"Fall: " + NameOf(world, match.Winner) + " over " + NameOf(world, match.Loser)};
  return {"Order of elimination: " + NamesOf(world, match, LosersInOrder(match), form.Teams)};
}

/// The feud of a slot as it ends: who, and how it stands.
std::string FeudEnding(const World& world, int slot) {
  const Feud& feud = world.Feuds()[slot];
  const FeudScore score = FeudWins(feud);
  const bool hottest = std::ranges::none_of(world.Feuds(), [&feud](const Feud& other) {
    return !IsFreeSlot(other) && other.Heat > feud.Heat;
  });
  return "The feud between " + FeudText(world, feud) + " ends: heat " + std::to_string(feud.Heat) +
         (hottest ? ", the hottest you have, " : ", ") +
         Counted((world.Today() - Day(feud.Started)).count(), "day") + ", " +
         std::to_string(score.One) + " : " + std::to_string(score.Two) + ".";
}

std::string PlayedBy(const World& world, const Segment& angle, const Role& role) {
  if (role.From == Casting::Stables) return angle.Text.Str();
  if (role.Place == 0) return angle.TitleName.Str();
  return NameOf(world, UidAt(angle, role.Place));
}

std::vector<std::string> DetailsOfAngle(const World& world, const Segment& segment) {
  std::vector<std::string> lines;
  for (const Role& seat : SeatsOf(segment))
    if (IsCast(segment, seat))
      lines.push_back(std::string(seat.Caption) + ": " + PlayedBy(world, segment, seat));
  return lines;
}

}  // namespace

SheetTerms TermsOfSlot(std::string_view name) {
  const auto slot = std::find(std::begin(kSlots), std::end(kSlots) - 1, name);
  return kTvTerms[slot - std::begin(kSlots)];
}

SheetTerms TermsOf(const World& world, bool isEvent) {
  if (isEvent) return EventOfToday(world) ? kEventTerms : SheetTerms{};
  const Show* show = ShowOfToday(world);
  return show ? TermsOfSlot(show->Slot) : SheetTerms{};
}

SheetCount CountSheet(const World& world, bool isEvent) {
  SheetCount count;
  for (int record = 1; record <= world.Segments().Count(); ++record) {
    const int kind = world.Segments()[record].Kind;
    if (kind == kEmptySegment || (isEvent && record == kDarkMatch)) continue;
    ++count.Segments;
    if (kind == kMatch) ++count.Matches;
  }
  return count;
}

namespace {

std::string OfLeast(int count, int least, const char* what) {
  const std::string some = std::to_string(count), needed = std::to_string(least);
  if (count > least) return some + " " + what + " (at least " + needed + ")";
  return some + " of " + needed + " " + what;
}

}  // namespace

std::string CountText(const SheetCount& count, const SheetTerms& terms) {
  return OfLeast(count.Matches, terms.MinMatches, "matches") + ", " +
         OfLeast(count.Segments, terms.MinSegments, "segments") + " booked.";
}

std::string WhyNotInThisHouse(const World& world) {
  if (!Holds(world, HouseRule::OneTalk)) return {};
  std::set<int> talked;
  for (const Segment& segment : world.Segments()) {
    if (segment.Kind != kInterview) continue;
    for (const int uid : SpeakersOf(segment))
      if (uid != 0 && !talked.insert(uid).second)
        return "A rule of the house: " + WorkerName(world, uid) + " talks more than once.";
  }
  return {};
}

bool MayStart(const World& world, bool isEvent) {
  if (!WhyNotInThisHouse(world).empty()) return false;
  const SheetTerms terms = TermsOf(world, isEvent);
  const SheetCount count = CountSheet(world, isEvent);
  return terms.OpenRows > 0 && count.Matches >= terms.MinMatches &&
         count.Segments >= terms.MinSegments;
}

void EmptySheet(World& world, bool isEvent) {
  world.Segments().Rewrite(
      std::vector<Segment>(static_cast<std::size_t>(RowsOf(isEvent)), EmptySegment()));
}

void TakeCard(World& world, const AutoCard& card) {
  auto row = card.Rows.begin();
  for (Segment& record : world.Segments())
    if (row != card.Rows.end()) record = *row++;
}

int NewSegments(const World& world, const AutoCard& card) {
  int fresh = 0;
  auto row = card.Rows.begin();
  for (const Segment& record : world.Segments())
    if (row != card.Rows.end())
      fresh += row++->Kind != kEmptySegment && record.Kind == kEmptySegment;
  return fresh;
}

std::string SheetHeading(const World& world, bool isEvent) {
  return (isEvent ? "Event Booking Sheet For " : "Television Booking Sheet For ") +
         ShowName(world, isEvent);
}

std::string SheetWarning(const SheetTerms& terms, bool isEvent) {
  if (isEvent)
    return "Warning : You must have a minimum of 4 matches, and 6 segments overall (not including "
           "the dark match).";
  return "Warning : You must have a minimum of " + std::to_string(terms.MinMatches) +
         " matches, and a minimum of " + std::to_string(terms.MinSegments) + " segments overall.";
}

std::string TitleTip(const Segment& segment) {
  if (segment.Kind == kEmptySegment || segment.TitleName == "None") return {};
  return segment.TitleName + (segment.Kind == kMatch ? " Title Match!" : " Title Segment!");
}

std::string WhyNoAutoBooker(const World& world) {
  if (Holds(world, HouseRule::NoAutoBooker))
    return "A rule of the house: every row is booked by hand.";
  const bool isAnybodyFit = std::ranges::any_of(world.Workers(), [&](const Worker& worker) {
    return WorksForPlayer(world, worker) && worker.Status == "Nor" && worker.Position < kJobber;
  });
  return isAnybodyFit ? "" : "Nobody above the jobbers is fit, so there is nobody to book.";
}

std::string KindOfRow(const Segment& segment) {
  if (segment.Kind == kMatch) return std::string(MatchTypeText(segment.Style, segment.MatchType));
  return std::string(segment.Kind == kEmptySegment ? "" : Says(kSegmentKinds, segment.Kind));
}

std::string FeudOfRow(const World& world, const Segment& segment) {
  if (segment.Kind == kEmptySegment) return {};
  const std::vector<int> people = EverybodyOf(segment);
  int hottest = -1;
  for (const Feud& feud : world.Feuds())
    if (feud.Heat > hottest && EnemiesMeet(feud, people)) hottest = feud.Heat;
  return hottest < 0 ? std::string() : "Feud " + std::to_string(hottest);
}

std::string RangeText(const Forecast& forecast) {
  if (forecast.Low == forecast.High) return std::to_string(forecast.Low) + "%";
  return std::to_string(forecast.Low) + " \x96 " + std::to_string(forecast.High) + "%";
}

std::string ForecastOfRow(const ShowForecast& forecast, int record) {
  const auto row = static_cast<std::size_t>(record - 1);
  if (row >= forecast.Rows.size() || forecast.Rows[row] == Forecast{}) return {};
  return RangeText(forecast.Rows[row]);
}

std::vector<std::string> SummaryOfRow(const World& world, const Segment& segment, bool isEvent) {
  Wizard wizard = BeginBooking(1, isEvent);
  wizard.Buffer = segment;
  wizard.Step = StepsOf(segment);
  wizard.SegmentComplete = true;
  std::vector<std::string> lines;
  for (int step = 0; step < wizard.Step; ++step) {
    const StepText text = TextOfStep(world, wizard, step);
    if (!text.Summary.empty()) lines.push_back(text.Summary);
    if (!text.Tip.empty()) lines.push_back(text.Tip);
  }
  return lines;
}

std::vector<std::string> DetailsOfRow(const World& world, const Segment& segment) {
  if (segment.Kind == kMatch) return DetailsOfMatch(world, segment);
  if (segment.Kind == kAngle) return DetailsOfAngle(world, segment);
  return {};
}

std::vector<std::string> ChangesBy(const World& world, const Segment& segment) {
  std::vector<std::string> changes;
  if (segment.Kind == kEmptySegment) return changes;
  if (const std::vector<int> won = NewChampions(world, segment); !won.empty())
    changes.push_back(SideText(world, won) + (won.size() > 1 ? " win the " : " wins the ") +
                      segment.TitleName + ".");
  for (const TurnCall& turn : BookedTurns(world, segment))
    changes.push_back(NameOf(world, turn.Turner) + " turns" +
                      (turn.Other == 0 ? "" : " on " + NameOf(world, turn.Other)) + ".");
  for (const int uid : EverybodyOf(segment))
    if (const Worker* worker = world.FindWorker(uid); worker && !worker->Debuted)
      changes.push_back(worker->Name + " is seen for the first time.");
  if (const int slot = FeudEndedBy(world, segment)) changes.push_back(FeudEnding(world, slot));
  return changes;
}

std::vector<std::string> ChangesBy(const World& world, const AutoCard& card) {
  std::vector<std::string> changes;
  std::set<std::string> said;
  for (std::size_t row = 0; row < card.Rows.size(); ++row) {
    if (card.Reasons[row].empty()) continue;
    for (const std::string& change : ChangesBy(world, card.Rows[row]))
      // Nobody is seen for the first time twice.
      if (said.insert(change).second)
        changes.push_back("Row " + std::to_string(row + 1) + ": " + change);
  }
  return changes;
}

std::vector<const Worker*> NotOnTheCard(const World& world, bool isEvent) {
  std::vector<const Worker*> free = EligibleRoster(world, {isEvent, "All"});
  for (const Segment& segment : world.Segments())
    std::erase_if(free, [&](const Worker* worker) { return TakesPart(segment, worker->Uid); });
  SortByOver(free);
  return free;
}

std::vector<int> AtHand(const World& world, bool isEvent) {
  std::vector<int> uids;
  for (const Segment& segment : world.Segments())
    for (const int uid : EverybodyOf(segment)) {
      const Worker* worker = world.FindWorker(uid);
      if (worker && IsAvailable(world, *worker, {isEvent, "All"})) uids.push_back(uid);
    }
  return uids;
}

std::vector<std::string> EmptyRowsOfGone(World& world, bool isEvent,
                                         const std::vector<int>& wereAtHand) {
  const std::vector<int> still = AtHand(world, isEvent);
  const auto has = [](const std::vector<int>& uids, int uid) {
    return std::ranges::find(uids, uid) != uids.end();
  };
  std::vector<std::string> lines;
  for (int record = 1; record <= world.Segments().Count(); ++record) {
    const std::vector<int> people = EverybodyOf(world.Segments()[record]);
    const auto gone = std::ranges::find_if(
        people, [&](int uid) { return has(wereAtHand, uid) && !has(still, uid); });
    if (gone == people.end()) continue;
    lines.push_back(NameOf(world, *gone) + " cannot be booked any more: row " +
                    std::to_string(record) + " is empty again.");
    ClearSegment(world.Segments()[record]);
  }
  return lines;
}

}  // namespace grapplemont
