#include "booking/cardsteps.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "booking/wizard/objections.h"
#include "booking/wizard/refusals.h"
#include "booking/wizard/segmentcheck.h"
#include "records/modWresCheck.h"
#include "records/segments.h"

namespace grapplemont {

namespace {

bool IsSame(const Segment& a, const Segment& b) {
  return std::memcmp(&a, &b, sizeof(Segment)) == 0;
}

bool IsSame(const Card& a, const Card& b) {
  return a.size() == b.size() &&
         (a.empty() || std::memcmp(a.data(), b.data(), a.size() * sizeof(Segment)) == 0);
}

std::string WhyNotLaid(const World& world, const Segment& segment, int row, bool isEvent,
                       int openRows) {
  if (row > openRows) return "The show has no such row.";
  const std::vector<std::string> why = WhyNotBookable(world, segment, {isEvent, "All"});
  return why.empty() ? std::string() : why.front();
}

}  // namespace

Card CardOf(const World& world) {
  return {world.Segments().begin(), world.Segments().end()};
}

std::vector<std::string> LayCard(World& world, const Card& card, bool isEvent, int openRows) {
  std::vector<std::string> dropped;
  int row = 0;
  for (Segment& record : world.Segments()) {
    if (++row > static_cast<int>(card.size())) break;
    const Segment& segment = card[static_cast<std::size_t>(row - 1)];
    if (IsSame(record, segment)) continue;
    std::string why;
    if (segment.Kind != kEmptySegment) why = WhyNotLaid(world, segment, row, isEvent, openRows);
    record = why.empty() ? segment : EmptySegment();
    if (!why.empty())
      dropped.push_back("Row " + std::to_string(row) + ", " + DescribeSegment(world, segment) +
                        ": " + why);
  }
  return dropped;
}

namespace {

/// The rows of a card that another does not hold at their place.
Card NewRows(const Card& card, const Card& other) {
  Card fresh;
  for (std::size_t row = 0; row < card.size(); ++row)
    if (card[row].Kind != kEmptySegment && (row >= other.size() || !IsSame(card[row], other[row])))
      fresh.push_back(card[row]);
  return fresh;
}

}  // namespace

std::string MindedBy(const World& world, const Card& card) {
  std::string text;
  PriceOfBooking all;
  for (const Segment& segment : NewRows(card, CardOf(world))) {
    for (const Refusal& refusal : RefusalsOf(world, segment))
      if (!refusal.IsFinal && refusal.Veto.empty()) text += refusal.Words + "\n";
    for (const auto& [uid, morale] : PriceOf(world, segment)) all[uid] += morale;
  }
  if (!all.empty()) text += "If you insist, " + HeldAgainstText(all) + ".";
  if (text.ends_with('\n')) text.pop_back();
  return text;
}

void PayForRows(World& world, const Card& before) {
  for (const Segment& segment : NewRows(CardOf(world), before))
    ApplyBookingGrievances(world, segment);
}

namespace {

template <class Rows>
void MoveRow(Rows& rows, int from, int to) {
  const auto at = [&](int row) { return rows.begin() + (row - 1); };
  if (from < to)
    std::rotate(at(from), at(from + 1), at(to + 1));
  else
    std::rotate(at(to), at(from), at(from + 1));
}

const Segment& RowOf(const Card& card, int row) {
  return card[static_cast<std::size_t>(row - 1)];
}

/// The rows at which two cards of one sheet differ.
std::vector<int> RowsChanged(const Card& before, const Card& after) {
  std::vector<int> rows;
  for (int row = 1; row <= std::ssize(before); ++row)
    if (!IsSame(RowOf(before, row), RowOf(after, row))) rows.push_back(row);
  return rows;
}

bool AreEmpty(const Card& card, const std::vector<int>& rows) {
  return std::ranges::all_of(rows, [&](int row) { return RowOf(card, row).Kind == kEmptySegment; });
}

/// "A over B, moved from row 2 to row 4"; empty where no row has been moved.
std::string MoveWords(const World& world, const Card& before, const Card& after, int first,
                      int last) {
  for (const auto& [from, to] : {std::pair(first, last), std::pair(last, first)}) {
    Card moved = before;
    MoveRow(moved, from, to);
    if (RowOf(before, from).Kind != kEmptySegment && IsSame(moved, after))
      return DescribeSegment(world, RowOf(before, from)) + ", moved from row " +
             std::to_string(from) + " to row " + std::to_string(to);
  }
  return {};
}

std::string StepWords(const World& world, const Card& before, const Card& after) {
  const std::vector<int> rows = RowsChanged(before, after);
  if (rows.empty()) return "a step without a change";
  const int row = rows.front();
  if (rows.size() > 1) {
    const std::string moved = MoveWords(world, before, after, row, rows.back());
    const bool fills = AreEmpty(before, rows), empties = AreEmpty(after, rows);
    return !moved.empty() ? moved
                          : std::to_string(rows.size()) + (fills     ? " rows booked"
                                                           : empties ? " rows emptied"
                                                                     : " rows changed");
  }
  const bool goes = RowOf(after, row).Kind == kEmptySegment;
  const bool comes = RowOf(before, row).Kind == kEmptySegment;
  return DescribeSegment(world, RowOf(goes ? before : after, row)) +
         (goes    ? ", removed from row "
          : comes ? ", booked in row "
                  : ", changed in row ") +
         std::to_string(row);
}

}  // namespace

void MoveRow(World& world, int from, int to) {
  MoveRow(world.Segments(), from, to);
}

int RowAfter(const Card& before, const Card& after, int row) {
  const std::vector<int> changed = RowsChanged(before, after);
  if (changed.empty()) return row;
  if (std::ranges::count(changed, row) > 0 && RowOf(before, row).Kind != kEmptySegment)
    for (const int to : changed)
      if (IsSame(RowOf(before, row), RowOf(after, to))) return to;
  return changed.front();
}

SheetHistory::Morale SheetHistory::MoraleOf(const World& world) {
  Morale morale;
  for (const Worker& worker : world.Workers())
    if (WorksForPlayer(world, worker)) morale[worker.Uid] = worker.Morale;
  return morale;
}

void SheetHistory::Look(const World& world) {
  const Card card = CardOf(world);
  const Morale morale = MoraleOf(world);
  if (isOpen_ && !IsSame(card, card_)) {
    Step step{card_, card, {}};
    for (const auto& [uid, now] : morale)
      if (const auto before = morale_.find(uid); before != morale_.end() && before->second != now)
        step.Change[uid] = now - before->second;
    steps_.resize(done_);
    steps_.push_back(std::move(step));
    ++done_;
  }
  isOpen_ = true;
  card_ = card;
  morale_ = morale;
}

std::string SheetHistory::ToUndo(const World& world) const {
  if (done_ == 0) return {};
  return StepWords(world, steps_[done_ - 1].Before, steps_[done_ - 1].After);
}

std::string SheetHistory::ToRedo(const World& world) const {
  if (done_ == steps_.size()) return {};
  return StepWords(world, steps_[done_].Before, steps_[done_].After);
}

std::vector<std::string> SheetHistory::Undo(World& world, bool isEvent, int openRows) {
  const Step& step = steps_[--done_];
  return Lay(world, step.Before, step.Change, -1, isEvent, openRows);
}

std::vector<std::string> SheetHistory::Redo(World& world, bool isEvent, int openRows) {
  const Step& step = steps_[done_++];
  return Lay(world, step.After, step.Change, 1, isEvent, openRows);
}

std::vector<std::string> SheetHistory::Lay(World& world, const Card& card, const Morale& change,
                                           int times, bool isEvent, int openRows) {
  std::vector<std::string> dropped = LayCard(world, card, isEvent, openRows);
  for (const auto& [uid, by] : change)
    if (Worker* worker = world.FindWorker(uid)) worker->Morale += times * by;
  card_ = CardOf(world);  // no step of its own
  morale_ = MoraleOf(world);
  return dropped;
}

}  // namespace grapplemont
