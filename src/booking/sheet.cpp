#include "booking/sheet.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "show/holdshow.h"

namespace grapplemont {

namespace {

struct TimeSlot {
  std::string_view Code;
  SheetTerms Terms;
};
// The last one stands for a code that is none of them.
constexpr TimeSlot kTimeSlotTerms[] = {
    {"P", {11, 4, 8}}, {"E", {8, 3, 7}}, {"L", {6, 3, 6}}, {"G", {5, 2, 5}}};
constexpr SheetTerms kEventTerms = {kEventRows, 4, 6};

/// Jobbers alone are nothing that the auto booker could start from.
constexpr int kAutoBookable = 6;

bool Counts(int record, bool isEvent) {
  return !isEvent || record != kDarkMatch;
}

}  // namespace

SheetTerms TermsOf(const World& world, bool isEvent) {
  if (isEvent) return EventOfToday(world) ? kEventTerms : SheetTerms{};
  const Show* show = ShowOfToday(world);
  if (!show) return {};
  for (const TimeSlot& slot : kTimeSlotTerms)
    if (show->Slot == slot.Code) return slot.Terms;
  return std::end(kTimeSlotTerms)[-1].Terms;
}

SheetCount CountSheet(const World& world, bool isEvent) {
  SheetCount count;
  for (int record = 1; record <= world.Segments().Count(); ++record) {
    const int kind = world.Segments()[record].Kind;
    if (kind == kEmptySegment || !Counts(record, isEvent)) continue;
    ++count.Segments;
    if (kind == kMatch) ++count.Matches;
  }
  return count;
}

bool MayStart(const World& world, bool isEvent) {
  const SheetTerms terms = TermsOf(world, isEvent);
  const SheetCount count = CountSheet(world, isEvent);
  return terms.OpenRows > 0 && count.Matches >= terms.MinMatches &&
         count.Segments >= terms.MinSegments;
}

void EmptySheet(World& world, bool isEvent) {
  world.Segments().Rewrite(
      std::vector<Segment>(static_cast<std::size_t>(RowsOf(isEvent)), EmptySegment()));
}

void RemoveBooking(World& world, int record) {
  ClearSegment(world.Segments()[record]);
}

void TakeCard(World& world, const AutoCard& card) {
  for (int record = 1; record <= world.Segments().Count(); ++record)
    if (const auto row = static_cast<std::size_t>(record - 1); row < card.Rows.size())
      world.Segments()[record] = card.Rows[row];
}

int NewSegments(const World& world, const AutoCard& card) {
  int fresh = 0;
  for (int record = 1; record <= world.Segments().Count(); ++record) {
    const auto row = static_cast<std::size_t>(record - 1);
    if (row < card.Rows.size() && card.Rows[row].Kind != kEmptySegment &&
        world.Segments()[record].Kind == kEmptySegment)
      ++fresh;
  }
  return fresh;
}

std::string SheetHeading(const World& world, bool isEvent) {
  return (isEvent ? "Event Booking Sheet For " : "Television Booking Sheet For ") +
         ShowName(world, isEvent);
}

std::string SheetWarning(const World& world, bool isEvent) {
  if (isEvent)
    return "Warning : You must have a minimum of 4 matches, and 6 segments overall (not including "
           "the dark match).";
  const SheetTerms terms = TermsOf(world, false);
  return "Warning : You must have a minimum of " + std::to_string(terms.MinMatches) +
         " matches, and a minimum of " + std::to_string(terms.MinSegments) + " segments overall.";
}

std::string DarkMatchHeading(const World& world) {
  const Show* show = ShowOfToday(world);
  return show ? show->Name + " Main Event Match Description" : "Pre-Show Match Description";
}

std::string TitleTip(const Segment& segment) {
  if (segment.Kind == kEmptySegment || segment.TitleName == "None") return {};
  return segment.TitleName + (segment.Kind == kMatch ? " Title Match!" : " Title Segment!");
}

bool HasAutoBooker(const World& world) {
  return std::any_of(world.Workers().begin(), world.Workers().end(), [&](const Worker& worker) {
    return WorksForPlayer(world, worker) && worker.Status == "Nor" &&
           worker.Position < kAutoBookable;
  });
}

}  // namespace grapplemont
