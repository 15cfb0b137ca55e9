#pragma once

#include <functional>
#include <iosfwd>
#include <utility>
#include <vector>

#include "calendar/advanceday.h"
#include "records/world.h"
#include "ui/game.h"

namespace grapplemont::tools {

/// What a sensible player does beside the shows, once a day: fills the sponsors' places, looks
/// after television, keeps the contracts of those they need, the roster and the posts as full as a
/// rival's (where a rise is near, as those of the class above), and spends by the promotion's
/// standing, less when in debt.
void WorkInTheOffice(World& world);

/// What a sensible player does for their place on television, once a day: takes what networks
/// offer, asks for more weeks in time, and sends a tape a month until they have a show.
void WorkOnTelevision(World& world);

/// What becomes of the player's shows while nobody watches.
enum class Shows { Auto, Cancel };

/// A desk where nobody sits: every question is answered yes, every text by what is offered.
class EmptyDesk : public ui::Desk {
 public:
  void Say(const std::string&, const std::string&) override {}
  bool Ask(const std::string&, const std::string&, ui::Default) override { return true; }
  std::string Prompt(const std::string&, const std::string&, const std::string& offered) override {
    return offered;
  }
};

/// How far a career went.
struct CareerEnd {
  int Days = 0;     // that passed
  int EndCode = 0;  // 1 to 9: why it is over; 0: it goes on
  /// The EndCode of each end on the way, and its day.
  std::vector<std::pair<int, Day>> Reasons;
};

/// 1 to 9: why the career is over; 0: it goes on.
int EndCodeOf(const World& world);
/// The day as "Next Day" would take it; `watcher` as in AdvanceDay. Nothing is committed.
void PlayDay(World& world, Shows shows, const StepWatcher& watcher = {});

/// Whether whoever is dismissed looks for another job in the same world.
enum class AfterTheEnd { Stop, AnotherJob };

/// Plays a number of days of the open game, a commit each; a day is over when the next one's
/// routines are. `dayPassed` hears of each.
CareerEnd PlayDays(Game& game, int days, Shows shows, const std::function<void(int day)>& dayPassed,
                   AfterTheEnd after = AfterTheEnd::Stop);

/// Holds the show that match.dat holds and tells it from start to close, in UTF-8.
void TellShow(World& world, bool isEvent, std::ostream& out);

}  // namespace grapplemont::tools
