#pragma once

#include <functional>
#include <iosfwd>

#include "futures/habits.h"
#include "records/world.h"
#include "ui/game.h"

namespace grapplemont::tools {

// Games are played by the habits of futures/habits.h.
using grapplemont::AfterTheEnd;
using grapplemont::CareerEnd;
using grapplemont::EndCodeOf;
using grapplemont::PlayDay;
using grapplemont::Shows;
using grapplemont::WorkInTheOffice;

/// A desk where nobody sits: every question is answered yes, every text by what is offered.
class EmptyDesk : public ui::Desk {
 public:
  void Say(const std::string&, const std::string&) override {}
  bool Ask(const std::string&, const std::string&, ui::Default) override { return true; }
  std::string Prompt(const std::string&, const std::string&, const std::string& offered) override {
    return offered;
  }
};

/// Plays a number of days of the open game, a commit each. `dayPassed` hears of each.
CareerEnd PlayDays(Game& game, int days, Shows shows, const std::function<void(int day)>& dayPassed,
                   AfterTheEnd after = AfterTheEnd::Stop);

/// Holds the show that match.dat holds and tells it from start to close, in UTF-8.
void TellShow(World& world, bool isEvent, std::ostream& out);

}  // namespace grapplemont::tools
