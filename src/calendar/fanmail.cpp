#include "calendar/fanmail.h"

#include <algorithm>
#include <set>

#include "records/modVar.h"
#include "words/segments.h"

namespace grapplemont {

namespace {

constexpr std::size_t kInARow = 3;

/// The matches of one show of the player's that were not dark, in the order of the card.
using PastShow = std::vector<const HeldMatch*>;

/// The shows up to that day, the latest first; one more than make a complaint.
std::vector<PastShow> ShowsUpTo(const World& world, Day last) {
  std::vector<PastShow> shows;
  Day on{};
  for (int number = world.Bouts().Count(); number >= 1; --number) {
    const HeldMatch& match = world.Bouts()[number];
    if (match.Promotion != world.PlayerUid() || (match.IsEvent && match.Row == 1) ||
        Day(match.On) > last)
      continue;
    if (shows.empty() || Day(match.On) != on) {
      if (shows.size() == kInARow + 1) break;
      shows.emplace_back();
      on = match.On;
    }
    shows.back().insert(shows.back().begin(), &match);
  }
  return shows;
}

std::set<int> EntrantsIn(const HeldMatch& match) {
  std::set<int> people(match.Worker.begin(), match.Worker.end());
  people.erase(0);
  return people;
}
std::set<int> WinnersIn(const HeldMatch& match) {
  const auto winners = std::clamp<int>(match.Winners, 0, static_cast<int>(match.Worker.size()));
  std::set<int> people(match.Worker.begin(), match.Worker.begin() + winners);
  people.erase(0);
  return people;
}

// What of two shows may be alike; a row of the table goes before those below it.

bool SameMain(const PastShow& a, const PastShow& b) {
  return EntrantsIn(*a.back()) == EntrantsIn(*b.back());
}
bool SameOpener(const PastShow& a, const PastShow& b) {
  return a.size() > 1 && b.size() > 1 && EntrantsIn(*a.front()) == EntrantsIn(*b.front());
}
bool SameWinner(const PastShow& a, const PastShow& b) {
  const std::set<int> winners = WinnersIn(*a.back());
  return !winners.empty() && winners == WinnersIn(*b.back());
}
bool SameType(const PastShow& a, const PastShow& b) {
  const HeldMatch &one = *a.back(), &other = *b.back();
  return one.MatchType != kPlainSingles && one.Style == other.Style &&
         one.MatchType == other.MatchType;
}

struct FanComplaint {
  bool (*IsSame)(const PastShow& a, const PastShow& b);
  const char* Says;
};
constexpr FanComplaint kComplaints[] = {
    {SameMain, "Three shows, one main event. I know how it ends, and so does my goldfish."},
    {SameOpener, "The same match has opened three shows in a row. I now come late on purpose."},
    {SameWinner, "Three main events in a row, and the same hand in the air. Do the others know?"},
    {SameType, "The third main event of that kind in a row. What was special is furniture now."}};

/// In each of the last three shows, and not in the one before them.
bool HasJustTired(const std::vector<PastShow>& shows, const FanComplaint& complaint) {
  std::size_t alike = 1;
  while (alike < shows.size() && complaint.IsSame(shows[alike - 1], shows[alike])) ++alike;
  return alike == kInARow;
}

}  // namespace

std::vector<std::string> ComplaintsAfter(const World& world, Day show) {
  const std::vector<PastShow> shows = ShowsUpTo(world, show);
  if (shows.size() < kInARow || Day(shows[0].back()->On) != show) return {};
  std::vector<std::string> complaints;
  for (const FanComplaint& complaint : kComplaints)
    if (HasJustTired(shows, complaint)) complaints.emplace_back(complaint.Says);
  return complaints;
}

void FanMail(World& world) {
  const Day before = world.Today() - std::chrono::days{1};
  const int last = world.Bouts().Count();
  if (last == 0 || Day(world.Bouts()[last].On) != before) return;
  for (const std::string& words : ComplaintsAfter(world, before)) AddNews(world, "Fan Mail", words);
}

}  // namespace grapplemont
