#include "info/newslines.h"

namespace grapplemont {

namespace {

constexpr std::array<DeedLine, 22> kLines = {{
    {kDeedSigned,
     "Signing",
     {"{who} has signed for {house}.", "{house} have signed {who}. Both sides smiled at the pen.",
      "{who} works for {house} now. The contract was dry by evening."}},
    {kDeedStolen,
     "Signing",
     {"{house} have taken {who} from {other}.",
      "{who} has left {other} for {house}. {other} heard it on the radio.",
      "{house} waved something at {who}, and {other} have a free hook in the changing room."}},
    {kDeedFired,
     "Departure",
     {"{house} have let {who} go.", "{who} no longer works for {house}. There was a box.",
      "{house} and {who} have parted. One of them had the idea."}},
    {kDeedLeft,
     "Departure",
     {"{who} has left {house}.", "{who} is gone from {house}, bag and boots.",
      "{house} will have to do without {who}, who has left."}},
    {kDeedRetiring,
     "Retirement",
     {"{who} has announced the end of a career.",
      "{who} will retire, and meant it to sound better.", "{who} has had enough and will retire."}},
    {kDeedRetired,
     "Retirement",
     {"{who} has retired.", "{who} has hung up the boots. A nail was found.",
      "{who} has retired and is looking at gardens."}},
    {kDeedInjured,
     "Injury",
     {"{who} is hurt: {other}, {months}.", "{other} for {who} of {house}, out for {months}.",
      "{house} will be without {who} for {months}. The doctors say: {other}."}},
    {kDeedOnAir,
     "Television",
     {"{who} of {house} has a place on {other}, for {weeks}.",
      "{other} will show {who} for {weeks}. {house} have bought a new tie.",
      "{house} are on {other} with {who}, for {weeks}."}},
    {kDeedRenewed,
     "Television",
     {"{other} keeps {who} for another {weeks}.",
      "{who} of {house} stays on {other}, {weeks} longer.",
      "{house} and {other} have shaken hands on {weeks} more of {who}."}},
    {kDeedOffAir,
     "Television",
     {"{who} of {house} is no longer on {other}.",
      "{other} shows something else now where {who} used to be.",
      "{who} is off the air. {other} had no words, {house} had several."}},
    {kDeedFounded,
     "Promotion",
     {"A new promotion has opened: {who}, {size}.", "{who} are open for business, as {size}.",
      "Somebody had money over: {who} have opened, {size} from the first day."}},
    {kDeedMissed,
     "Money",
     {"{who} could not pay the bank this month.", "{who} owe the bank a month.",
      "The bank waited for {who}, and went home."}},
    {kDeedWarned,
     "Money",
     {"{who} have issued a bankruptcy warning.", "{who} are close to bankruptcy and say so.",
      "{who} have warned that the money runs out."}},
    {kDeedClosed,
     "Promotion",
     {"{who} have closed.", "{who} are no more. The furniture is for sale.",
      "The lights are out at {who}, and paid for by nobody."}},
    {kDeedBought,
     "Promotion",
     {"{other} have bought {who}.", "{who} belong to {other} now, what there is of them.",
      "{other} opened the purse, and {who} are gone."}},
    {kDeedRisen,
     "Standing",
     {"{who} have risen to {size}.", "{who} are {size} now, and have had the sign repainted.",
      "A step up for {who}: {size}."}},
    {kDeedFallen,
     "Standing",
     {"{who} have fallen to {size}.", "{who} are {size} now. It was quicker than the way up.",
      "A step down for {who}: {size}."}},
    {kDeedOwner,
     "Owner",
     {"{who} has taken over {house}.", "{house} have an owner: {who}.",
      "{who} owns {house} now, and has moved the desk."}},
    {kDeedOwnerQuit,
     "Owner",
     {"{who} owns {house} no more.", "{who} has walked away from {house}.",
      "{house} have lost their owner: {who} has quit."}},
    {kDeedTvHeld,
     "Show",
     {"{who} of {house}: a rating of {rating}, {people}.",
      "{people} saw {who} of {house} in the hall; on the screen it drew {rating}.",
      "{house} held {who}. Rating {rating}, {people}."}},
    {kDeedEventHeld,
     "Event",
     {"{house} held {who} before {people}.", "{people} came to {who} of {house}.",
      "{who} of {house} is over: {people}."}},
    {kDeedCalledOff,
     "Show",
     {"{who} had to call off a show.", "No show from {who}: called off.",
      "{who} called a show off, for want of people to be on it."}},
}};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kLines.size(); ++i)
    if (kLines[i].Kind != static_cast<int>(i) + kDeedSigned) return false;
  return true;
}
static_assert(IsInOrder());

}  // namespace

const DeedLine* LineOfDeed(int kind) {
  if (kind < kDeedSigned || kind > kDeedCalledOff) return nullptr;
  return &kLines[static_cast<std::size_t>(kind - kDeedSigned)];
}

}  // namespace grapplemont
