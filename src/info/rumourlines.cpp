#include <array>

#include "info/rumours.h"

namespace grapplemont {

namespace {

using W = Whisper;

constexpr std::array<WhisperLines, static_cast<std::size_t>(W::kCount)> kLines = {{
    {W::ContractEnds,
     {"A little bird with a calendar says that {who} has {n} left at {house}.",
      "They do say the contract of {who} with {house} is down to {n}.",
      "If the man at the copier is right, {who} and {house} have {n} of paper left between them."}},
    {W::Handshake,
     {"{who} is said to work for {house} on a handshake. Hands can be shaken elsewhere.",
      "I hear there is no paper between {who} and {house}, only manners.",
      "Nothing in writing for {who} at {house}, they whisper. A bigger house need only ask."}},
    {W::Unhappy,
     {"{who} is not happy at {house}, they say, and says it to the walls.",
      "Doors are heard at {house}, and {who} is said to be behind them.",
      "Somebody saw {who} of {house} smile. Then it turned out to be somebody else."}},
    {W::NearBankruptcy,
     {"At {house} the bank is said to sit in the front row, with its coat on.",
      "They say {house} is so close to bankruptcy that the plants have been lent out.",
      "{house} may not see many more first days of a month, if the cashier is right."}},
    {W::InDebt,
     {"{house} owes money, they say, and not only to the caterer.",
      "The books of {house} are said to be red all the way through.",
      "A man with a briefcase asked for {house}. He did not want an autograph."}},
    {W::Saving,
     {"{house} is saving, I hear. Somebody has been counting heads and pencils.",
      "They say {house} would part with anybody who costs more than he draws.",
      "At {house} the lights go off at nine. It is said that some people will, too."}},
    {W::Spending,
     {"{house} has money and is looking around, or so the tailor says.",
      "They say the purse of {house} is open. Hide your best ones.",
      "{house} is said to be buying. The good biscuits are out."}},
    {W::NoOwner,
     {"Nobody seems to own {house}. The cleaner has been signing things.",
      "They say the big chair at {house} is empty and still warm.",
      "Word is that {house} has no owner, and nobody at the board who misses one."}},
    {W::AboutToRise,
     {"{house} is about to be {what}, if you believe the signwriter.",
      "An image of {n} for {house}, they say. {what} is around the corner.",
      "They have ordered bigger paper at {house}. {what}, I hear."}},
    {W::AboutToFall,
     {"{house} may soon be no more than {what}. I would not lend them a van.",
      "The image of {house} is down to {n}, they whisper. {what} would be next.",
      "Somebody at {house} has been asking what {what} pays."}},
    {W::Back,
     {"{who} is said to be running up stairs again. Back on the first, I hear.",
      "They say {house} will have {who} back next month.",
      "The plaster is off {who}, if the nurse is to be believed: next month at {house}."}},
    {W::OldBones,
     {"{who} has a birthday this month and, at {n}, has been asking about gardens.",
      "At {n}, with a birthday this month, {who} is said to think it over. They all do.",
      "Somebody saw {who} with a brochure for a houseboat. At {n}, in the month of the birthday."}},
    {W::LongReign,
     {"{n} days with {what} for {who}. At {house}, they say, reigns of that age end at Events.",
      "The smart money is not on {who} any more: {n} days with {what} of {house}.",
      "{who} has had {what} for {n} days, and somebody at {house} was seen measuring waists."}},
    {W::NetworkCold,
     {"{other} is not happy with {who} of {house}, I hear from the canteen.",
      "They say {other} has begun to watch {who} of {house} with a calculator.",
      "{who} on {other}? Ask {house} about the telephone call, but ask gently."}},
    {W::ShortDeal,
     {"{who} of {house} has {n} left on {other}, they say.",
      "By the canteen's count {house} has {n} on {other} before {who} needs a new deal.",
      "{other} and {house} are down to {n} of {who}, if the calendar in the lift is right."}},
    {W::Turn,
     {"{who} of {house} has been seen practising another face in the mirror.",
      "They say {who} is about to change sides at {house}. I was asked to say nothing.",
      "Do not get too fond of what {who} stands for. {house} has plans, I hear."}},
    {W::Bonfire,
     {"What is between {who} and {other} at {house} is real, they say, or nearly.",
      "They keep {who} and {other} in different corridors at {house}, I hear.",
      "{who} and {other} of {house} cannot be in one lift, if the porter is right."}},
    {W::FreeStar,
     {"{who} is out of work and, they say, answers the telephone before it rings.",
      "Nobody employs {who}, if you believe the man at the labour exchange.",
      "{who} was seen feeding ducks on a working day. No contract, I hear, and {n} would do."}},
    {W::HeldDown,
     {"{who} is worth more than a place as {what} at {house}, or so the crowd says.",
      "They say {who} has begun to count the names above on the posters of {house}. {what} is low.",
      "{house} keep {who} as {what}. It is asked why, and not only by {who}."}},
    {W::NoChampion,
     {"{house} is looking for somebody to carry {what}. It fits most waists.",
      "They say {what} lies in a drawer at {house}, and that the drawer will be opened at an "
      "Event.",
      "Nobody holds {what} of {house}. Several people have been seen standing up straight."}},
    {W::Slipping,
     {"Two bad months in a row at {house}, they say, and the mood is going the same way.",
      "{house} has been going down since before last month, if the doorman can count.",
      "At {house} they have taken the graph off the wall, I hear, and used the other side."}},
}};

constexpr bool IsInOrder() {
  for (std::size_t i = 0; i < kLines.size(); ++i)
    if (kLines[i].Is != static_cast<Whisper>(i)) return false;
  return true;
}
static_assert(IsInOrder());

}  // namespace

const WhisperLines& LinesOf(Whisper whisper) {
  return kLines[static_cast<std::size_t>(whisper)];
}

}  // namespace grapplemont
