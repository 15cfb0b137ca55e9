#include "business/beside.h"

#include <algorithm>

#include "business/finance.h"
#include "business/past.h"
#include "records/notes.h"

namespace grapplemont {

namespace {

using OfMonth = long long BesideLine::*;

long long MonthSum(const std::vector<BesideLine>& lines, OfMonth month) {
  long long sum = 0;
  for (const BesideLine& line : lines) sum += line.*month;
  return sum;
}

/// What the books leave open of the way from one amount of money to the next; what is noted where
/// nobody knows the first.
long long LeftOpen(int before, int after, const MonthBooks& books, long long noted) {
  return before == kNoEnd ? noted : 0LL + after - before - Balance(books);
}

}  // namespace

void MoveBeside(World& world, Promotion& promotion, long long dollars, std::string_view why,
                std::optional<Day> on) {
  promotion.Money += dollars;
  if (promotion.Uid != world.PlayerUid() || dollars == 0) return;
  const Day lastMonth = MonthsBefore(world.Today(), 1);
  world.ShowNotes().Keep(
      [=](const ShowNote& note) { return note.Kind != kNoteBeside || Day(note.On) >= lastMonth; });
  NoteOf of{kNoteBeside, promotion.Name.Str()};
  of.On = on;
  NoteStep(world, of, static_cast<int>(dollars), promotion.Money, why);
}

std::vector<BesideLine> BesideLines(const World& world) {
  const Promotion& player = world.Player();
  const Day month = MonthsBefore(world.Today(), 0), lastMonth = MonthsBefore(world.Today(), 1);
  std::vector<BesideLine> lines;
  for (const ShowNote& note : world.ShowNotes()) {
    if (note.Kind != kNoteBeside || note.Promotion != player.Uid || Day(note.On) < lastMonth)
      continue;
    auto line = std::ranges::find(lines, note.Why.View(), &BesideLine::Why);
    if (line == lines.end()) line = lines.insert(lines.end(), {note.Why.Str()});
    (Day(note.On) < month ? line->Last : line->Present) += note.Change;
  }
  const auto& before = player.MoneyBefore;
  const long long last = MonthSum(lines, &BesideLine::Last),
                  present = MonthSum(lines, &BesideLine::Present);
  const long long openLast =
      before[0] == kNoEnd ? last : LeftOpen(before[1], before[0], player.LastMonth, last);
  const long long open = LeftOpen(before[0], player.Money, player.ThisMonth, present);
  if (openLast != last || open != present)
    lines.push_back({"Other", openLast - last, open - present});
  return lines;
}

BesideLine BesideTotal(const World& world) {
  const std::vector<BesideLine> lines = BesideLines(world);
  return {"Outside the books", MonthSum(lines, &BesideLine::Last),
          MonthSum(lines, &BesideLine::Present)};
}

}  // namespace grapplemont
