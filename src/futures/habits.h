#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "calendar/advanceday.h"
#include "records/world.h"

// What a sensible player does by habit, for days that nobody plays: the shows booked by the auto
// booker, the office kept.

namespace grapplemont {

/// What a sensible player does beside the shows, once a day: fills the sponsors' places, looks
/// after television, keeps the contracts of those they need, the roster and the posts as full as a
/// rival's (where a rise is near, as those of the class above), and spends by the promotion's
/// standing, less when in debt.
void WorkInTheOffice(World& world);

/// What a sensible player does for their place on television, once a day: takes what networks
/// offer, asks for more weeks in time, and sends a tape a month until they have a show.
void WorkOnTelevision(World& world);

/// "CWA Friday", or "CWA Friday 2" where that is taken: what a show on a day of the week (1 Monday)
/// is called by habit.
std::string NameOfNewShow(const World& world, int day);

/// What becomes of the player's shows while nobody watches.
enum class Shows { Auto, Cancel };
/// Whether their words are written. They move no result, and take longer than all else.
enum class Prose { Written, Skipped };

/// 1 to 9: why the career is over; 0: it goes on.
int EndCodeOf(const World& world);
/// The day as "Next Day" would take it; `watcher` as in AdvanceDay. A show that has begun is seen
/// to its end. Nothing is committed.
void PlayDay(World& world, Shows shows, const StepWatcher& watcher = {},
             Prose prose = Prose::Written);

/// Whether whoever is dismissed looks for another job in the same world.
enum class AfterTheEnd { Stop, AnotherJob };

/// How days are played.
struct Habits {
  Shows Do = Shows::Auto;
  AfterTheEnd Then = AfterTheEnd::Stop;
  Prose Words = Prose::Written;
};

/// How far a career went.
struct CareerEnd {
  int Days = 0;     // that passed
  int EndCode = 0;  // 1 to 9: why it is over; 0: it goes on
  /// The EndCode of each end on the way, and its day.
  std::vector<std::pair<int, Day>> Reasons;
};

/// Plays a number of days of a world; a day is over when the next one's routines are. `dayPassed`
/// hears of each by its number; false ends it there.
CareerEnd LiveOn(World& world, int days, const Habits& habits,
                 const std::function<bool(int day)>& dayPassed);

}  // namespace grapplemont
