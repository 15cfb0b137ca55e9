#include "roster/releaseoffer.h"

#include <algorithm>

namespace grapplemont {

namespace {

constexpr int kPoorMarket = 40;  // of the economy

struct Reason {
  bool (*Holds)(const Promotion& own, const Worker& who);
  const char* Words;
};
constexpr Reason kReasons[] = {
    {[](const Promotion& own, const Worker&) { return own.Money < 0; },
     ": 'With the financial situation of the company the way it is, i accept!'"},
    {[](const Promotion&, const Worker& who) { return who.Morale < 40; },
     ": 'I am unhappy here, so i accept!'"},
    {[](const Promotion& own, const Worker& who) {
       return own.Size == kBackyard && who.Over >= 21;
     },
     ": 'I accept, i'd like to try my luck in a bigger promotion.'"},
    {[](const Promotion& own, const Worker& who) { return own.Size == kSmall && who.Over >= 41; },
     ": 'I was thinking of moving to another promotion anyway, so i accept!'"},
    {[](const Promotion& own, const Worker& who) {
       return own.Size == kRegional && who.Over >= 56;
     },
     ": 'Thanks boss, i was hoping to try my luck elsewhere. I accept.'"},
    {[](const Promotion& own, const Worker& who) {
       return (own.Size == kCult && who.Over >= 71) || (own.Size == kNational && who.Over >= 83);
     },
     ": 'Thanks, i will accept so that i can try my luck elsewhere.'"},
};

constexpr const char* kPoorTimes =
    ": 'I do not feel it is wise for me to leave when the market is in such a poor state!'";
constexpr const char* kNowhere =
    ": 'I do not want to leave, there are few other promotions big enough for me to work for!'";
constexpr const char* kNoMove =
    ": 'I don't think leaving is a good career move for me at the moment.'";

/// Why he would go; nullptr when he would rather stay.
const Reason* ReasonToGo(const World& world, const Worker& worker) {
  const Promotion& own = world.Player();
  const auto reason = std::find_if(std::begin(kReasons), std::end(kReasons),
                                   [&](const Reason& r) { return r.Holds(own, worker); });
  return reason == std::end(kReasons) ? nullptr : reason;
}

}  // namespace

int SmallestFor(int over) {
  if (over >= 86) return kNational;
  if (over >= 66) return kCult;
  if (over >= 41) return kRegional;
  return over >= 20 ? kSmall : kBackyard;
}

bool HasMarket(const World& world, const Worker& worker) {
  const int smallest = SmallestFor(worker.Over);
  const auto& all = world.Promotions();
  return std::any_of(all.begin(), all.end(),
                     [=](const Promotion& promotion) { return promotion.Size <= smallest; });
}

ReleaseAnswer AnswerToRelease(const World& world, const Worker& worker) {
  ReleaseAnswer answer;
  const auto say = [&](const char* title, const char* words) {
    answer.Remarks.push_back({title, worker.Name + words});
  };
  const bool poor = world.Game().Economy < kPoorMarket, market = HasMarket(world, worker);
  if (poor) say("Rejected", kPoorTimes);
  if (!market) say("Rejected", kNowhere);
  if (!poor && market) {
    const Reason* reason = ReasonToGo(world, worker);
    answer.Accepted = reason != nullptr;
    reason ? say("Accepted", reason->Words) : say("Rejected", kNoMove);
  }
  if (!answer.Accepted) say("Rejected", " formally rejects your offer of a release.");
  return answer;
}

}  // namespace grapplemont
