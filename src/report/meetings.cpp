#include <algorithm>
#include <ranges>

#include "records/fields/fields.h"
#include "records/pastmatches.h"
#include "records/segments.h"
#include "records/world.h"
#include "report/pastlook.h"

// What the book of matches knows of two sides, of one worker, of the year.

namespace grapplemont {

namespace {

bool IsOneOf(const std::vector<int>& uids, int uid) {
  return std::find(uids.begin(), uids.end(), uid) != uids.end();
}

/// The side of a match between as many whose people these are, from 1; 0 for neither.
int SideIn(const HeldMatch& bout, const std::vector<int>& uids) {
  const auto isAt = [&](std::size_t from) {
    for (std::size_t i = 0; i < uids.size(); ++i)
      if (!IsOneOf(uids, bout.Worker[from + i])) return false;
    return true;
  };
  if (uids.empty() || 2 * uids.size() > bout.Worker.size()) return 0;
  return isAt(0) ? 1 : isAt(uids.size()) ? 2 : 0;
}

/// Whether a match was between these two sides; 1 or 2 for the side whose people come first.
int FirstSide(const HeldMatch& bout, const std::vector<int>& one, const std::vector<int>& two) {
  if (one.size() != two.size()) return 0;
  const int side = SideIn(bout, one);
  return side != 0 && SideIn(bout, two) == 3 - side ? side : 0;
}

/// Of the player's, between two or four, and of the present year.
bool IsOfTheYear(const World& world, const HeldMatch& bout) {
  return (bout.Style == kSingles || bout.Style == kTag) && bout.Promotion == world.PlayerUid() &&
         YearOf(bout.On) == YearOf(world.Today());
}

}  // namespace

std::vector<int> Shared(const std::vector<int>& side, const std::vector<int>& others) {
  std::vector<int> shared;
  for (const int uid : side)
    if (IsOneOf(others, uid)) shared.push_back(uid);
  return shared;
}

const HeldMatch* BestOfTheYear(const World& world) {
  const HeldMatch* best = nullptr;
  for (const HeldMatch& bout : world.Bouts())
    if (IsOfTheYear(world, bout) && bout.Winners > 0 && (!best || bout.Rating > best->Rating))
      best = &bout;
  return best;
}

bool IsOnTheYearsList(const World& world, int rating) {
  constexpr int kGreat = 80;
  constexpr std::ptrdiff_t kLong = 10;
  const auto& bouts = world.Bouts();
  return rating >= kGreat && std::count_if(bouts.begin(), bouts.end(), [&](const HeldMatch& bout) {
                               return IsOfTheYear(world, bout) && bout.Rating > rating;
                             }) < kLong;
}

bool AnyOf(const std::vector<int>& some, const std::vector<int>& others) {
  return std::any_of(some.begin(), some.end(), [&](int uid) { return IsOneOf(others, uid); });
}

Meetings MeetingsOf(const World& world, int style, const std::vector<int>& one,
                    const std::vector<int>& two) {
  Meetings had;
  if (one.empty()) return had;
  for (const int number : MatchesWith(world, one[0])) {
    const HeldMatch& bout = world.Bouts()[number];
    if (bout.Style != style || bout.Promotion != world.PlayerUid()) continue;
    const int first = FirstSide(bout, one, two);
    if (first == 0) continue;
    ++had.Met;
    had.LastDaysAgo = static_cast<int>((world.Today() - Day(bout.On)).count());
    had.LastWinner = bout.Winners == 0 ? 0 : first;
    if (had.LastWinner == 1) ++had.One;
    if (had.LastWinner == 2) ++had.Two;
    if (had.LastDaysAgo <= 365) ++had.LastYear;
    if (YearOf(bout.On) == YearOf(world.Today()) && bout.Rating > had.BestRating) {
      had.BestRating = bout.Rating;
      had.BestDaysAgo = had.LastDaysAgo;
    }
  }
  return had;
}

bool HaveSharedARing(const World& world, const std::vector<int>& one, const std::vector<int>& two) {
  return std::any_of(one.begin(), one.end(), [&](int uid) {
    const std::vector<int>& matches = MatchesWith(world, uid);
    return std::any_of(matches.begin(), matches.end(), [&](int number) {
      const HeldMatch& bout = world.Bouts()[number];
      return bout.Promotion == world.PlayerUid() &&
             std::any_of(two.begin(), two.end(), [&](int other) {
               return std::find(bout.Worker.begin(), bout.Worker.end(), other) != bout.Worker.end();
             });
    });
  });
}

bool HaveFoughtFor(const World& world, std::string_view title, const std::vector<int>& any,
                   Day since) {
  for (const int uid : any)
    for (const int number : std::views::reverse(MatchesWith(world, uid))) {
      const HeldMatch& bout = world.Bouts()[number];
      if (Day(bout.On) <= since) break;
      if (bout.Promotion == world.PlayerUid() && bout.Title == title) return true;
    }
  return false;
}

namespace {

/// Whether a match counts for a run: of the player's, and no crowd's.
bool CountsInARun(const World& world, const HeldMatch& bout, int uid) {
  const auto* end = bout.Worker.begin() + 8;
  return bout.Style != kSpecial && bout.Promotion == world.PlayerUid() &&
         std::find(bout.Worker.begin(), end, uid) != end;
}

}  // namespace

int RunOf(const World& world, int uid, int without) {
  int run = 0;
  for (const int number : std::views::reverse(MatchesWith(world, uid))) {
    const HeldMatch& bout = world.Bouts()[number];
    if (!CountsInARun(world, bout, uid) || without-- > 0) continue;
    const bool won = HasWon(bout, {uid});
    if (bout.Winners == 0 || (run != 0 && (run > 0) != won)) return run;
    run += won ? 1 : -1;
  }
  return run;
}

const HeldMatch* LastInTheRun(const World& world, int uid) {
  for (const int number : std::views::reverse(MatchesWith(world, uid)))
    if (const HeldMatch& bout = world.Bouts()[number]; CountsInARun(world, bout, uid)) return &bout;
  return nullptr;
}

std::vector<const HeldMatch*> MatchesBetween(const World& world, const std::vector<int>& one,
                                             const std::vector<int>& two, Day since, int row) {
  std::vector<const HeldMatch*> met;
  if (one.empty() || one.size() > 2) return met;
  const int style = one.size() == 1 ? kSingles : kTag;
  for (const int number : std::views::reverse(MatchesWith(world, one[0]))) {
    const HeldMatch& bout = world.Bouts()[number];
    if (std::pair(Day(bout.On), int(bout.Row)) <= std::pair(since, row)) break;
    if (bout.Style == style && bout.Promotion == world.PlayerUid() &&
        (two.empty() ? SideIn(bout, one) : FirstSide(bout, one, two)) != 0)
      met.push_back(&bout);
  }
  return met;
}

bool HasWon(const HeldMatch& bout, const std::vector<int>& side) {
  const auto* end = bout.Worker.begin() + int(bout.Winners);
  return !side.empty() && std::find(bout.Worker.begin(), end, side[0]) != end;
}

std::vector<int> OpponentsIn(const HeldMatch& bout, const std::vector<int>& side) {
  std::vector<int> others;
  const int own = SideIn(bout, side);
  if (own == 0) return others;
  const std::size_t from = own == 1 ? side.size() : 0;
  for (std::size_t i = 0; i < side.size(); ++i)
    if (const int uid = bout.Worker[from + i]; uid != 0) others.push_back(uid);
  return others;
}

}  // namespace grapplemont
