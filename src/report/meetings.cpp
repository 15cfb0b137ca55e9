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

/// Whether a match was between these two sides; 1 or 2 for the side whose people come first.
int FirstSide(const HeldMatch& bout, const std::vector<int>& one, const std::vector<int>& two) {
  const auto holds = [&](std::size_t from, const std::vector<int>& side) {
    for (std::size_t i = 0; i < side.size(); ++i)
      if (!IsOneOf(side, bout.Worker[from + i])) return false;
    return true;
  };
  if (one.size() != two.size() || one.empty()) return 0;
  if (holds(0, one)) return holds(one.size(), two) ? 1 : 0;
  return holds(0, two) && holds(one.size(), one) ? 2 : 0;
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

int RunOf(const World& world, int uid) {
  int run = 0;
  for (const int number : std::views::reverse(MatchesWith(world, uid))) {
    const HeldMatch& bout = world.Bouts()[number];
    if (bout.Style == kSpecial || bout.Promotion != world.PlayerUid()) continue;
    const auto* end = bout.Worker.begin() + 8;
    const auto* at = std::find(bout.Worker.begin(), end, uid);
    if (at == end) continue;
    const bool won = at - bout.Worker.begin() < bout.Winners;
    if (bout.Winners == 0 || (run != 0 && (run > 0) != won)) return run;
    run += won ? 1 : -1;
  }
  return run;
}

}  // namespace grapplemont
