#include "info/fanlines.h"

#include <array>

namespace grapplemont {

namespace {

using Line = std::string_view;

constexpr Line kSuperb[] = {
    "I rang my mother after {show}. She does not like wrestling. She listened for an hour.",
    "{show}: I have no notes. I ate the notes.",
    "Whoever booked {show} may marry my sister. She has been asked.",
    "I was hoarse by the third row of it and dumb by the last.",
    "If {house} do this again next time I will have to buy better shoes to stand in.",
    "Best evening of my year, and I got divorced this year.",
    "They could have charged double for {show}. Please do not tell them.",
    "I have watched {show} twice and cried at the same place. It was the entrance music.",
    "My dog barked at the right moments. That is how good {show} was.",
    "Five turnbuckles out of five. I do not have a sixth."};
constexpr Line kGood[] = {
    "{show} was good, and I say that as somebody who writes to complain.",
    "A solid night from {house}. The pie was solid, too.",
    "I would watch {show} again if the remote were closer.",
    "Good show. I stood up three times and only once for the toilet.",
    "More of that, please, and less of the man in front of me.",
    "{house} know what they are doing. It is unsettling.",
    "Four turnbuckles. The fifth I keep for emergencies.",
    "I had a nice time at {show} and have told nobody at work.",
    "My brother-in-law enjoyed it, so there must be something wrong that I missed."};
constexpr Line kFair[] = {"{show} was on. I was on the sofa. We got along.",
                          "There were good parts. They were parts.",
                          "I have seen worse from {house} and I have seen better from {house}.",
                          "Three turnbuckles for {show}, of which one is for the referee's shirt.",
                          "It passed the time, which would have passed anyway.",
                          "I ironed during {show}. The shirts came out well.",
                          "Somewhere in {show} there was a great show of half the length.",
                          "Not sorry that I watched. Not telling the grandchildren either.",
                          "A fair night. Nobody was hurt who had not been told to be."};
constexpr Line kWeak[] = {
    "I watched all of {show} so that you do not have to.",
    "Two turnbuckles, and I had to go round the back for the second.",
    "{house}, I say this with love: what?",
    "I missed ten minutes of {show} looking for my glasses. They were the best ten.",
    "The crowd sat on its hands. Mine have gone numb.",
    "My popcorn had a better middle.",
    "{show} made me clean the oven. It is a very clean oven now.",
    "There is a good promotion inside {house}. I heard it knocking.",
    "I clapped once. It was a moth."};
constexpr Line kAwful[] = {
    "I would like my evening back from {house}, in coins if necessary.",
    "Half a turnbuckle. I am keeping the other half as evidence.",
    "At {show} somebody shouted for the fire alarm. By name.",
    "My grandfather slept through a war and woke up for {show}. He went back to the war.",
    "I have unplugged the set and turned it to the wall so that it can think about {show}.",
    "Our goldfish turned away.",
    "{house} owe my sofa an apology.",
    "I have had teeth out that built better to a finish.",
    "If {show} was a joke, I would like to be told, so that I can not laugh at the right time."};
constexpr Line kCalledOff[] = {
    "No {show}. I stood outside with a foam finger and my thoughts.",
    "They called {show} off. The doorman did a cartwheel. He got a cheer.",
    "I drove two hours for {show} and have now seen a locked door from all sides.",
    "{house} called it off. I had a babysitter.",
    "Best technical door of the year: shut from bell to bell.",
    "Nobody lost at {show}. Nobody did anything.",
    "We sang outside for a while. It was a better main event than some.",
    "My ticket says non-refundable. My letter says otherwise."};
constexpr Line kStolen[] = {
    "{what}: that was the show. The rest was a frame around it.",
    "{what} stole the night and did not even run.",
    "I will remember {what} when I have forgotten where I live.",
    "Say what you like about the rest, but {what}!",
    "I spilt everything I had at {what}, and it was soup.",
    "{what} alone was worth the walk home in the rain.",
    "If they had only shown {what}, twice, I would have been happy.",
    "The man beside me took his hat off for {what}. He has worn it since the spring."};
constexpr Line kBored[] = {
    "During {what} I read the emergency exits. All of them.",
    "{what} is when the queue at the bar was longest.",
    "I do not want to say that {what} was long, but I have a beard now.",
    "Somebody please tell me how {what} ended. I was looking at my shoes.",
    "{what}? I thought they were setting up the ring.",
    "My neighbour explained his mortgage to me during {what}. I asked questions.",
    "For {what} I had the whole of the gentlemen's to myself. No, the other way round.",
    "I counted the lamps during {what}. There are forty. One flickers."};
constexpr Line kStar[] = {"As long as {house} have {who} I will find the channel.",
                          "I do not even like {house}. I like {who}.",
                          "{who} could read out a bus timetable and I would miss the bus.",
                          "My daughter has a poster of {who}. It was mine.",
                          "Give {who} the microphone and the keys and go home.",
                          "{house} without {who} would be a very large gym.",
                          "I have named a tomato plant after {who}. It is doing well.",
                          "You can keep the fireworks. I came for {who}."};
constexpr Line kFull[] = {"Not a free seat at {show}. I know, because I looked for mine.",
                          "I saw {show} from behind a pillar and was glad of the pillar.",
                          "So many people at {show} that the floor learned to dance.",
                          "They were hanging from the rafters. One was the electrician, but still.",
                          "I have never been so close to so many elbows.",
                          "The queue for {show} went round the block and met itself.",
                          "It was so full that my coat had its own adventures.",
                          "Half the town was at {show}. The other half sold them sausages."};
constexpr Line kEmpty[] = {"I had a row to myself at {show}, and then the row behind it.",
                           "We did a wave. It took me some time.",
                           "The echo at {show} got over better than the referee.",
                           "They thanked us for coming by name.",
                           "I counted the crowd twice and got home early.",
                           "There were more chairs used in the ring than in front of it.",
                           "At {show} I met both other people who were there.",
                           "I caught the souvenir T-shirt. Somebody had to."};

constexpr Line kHandles[] = {
    "ropebreak_ruth",    "MatPaste",         "ThirdRowBarry",    "suplex_soup",
    "LordOfTheRinghook", "kneepad_kid",      "grandma_elbow",    "TurnbuckleTed",
    "notaworker",        "HeadlockHilda",    "two_and_a_half",   "CornerPost",
    "FoamFinger",        "bellringer44",     "SquaredCircleSue", "chairshotcharlie",
    "Botchamuffin",      "DropkickDoreen",   "apronbump",        "KayfabeKen",
    "TheOtherDave",      "LegdropLen",       "whisper_in_row_z", "PiledriverPam",
    "ringrust",          "MaskedAccountant", "OldSchoolOlga",    "HammerlockHarv",
    "popcorn_heel",      "CurtainJerk",      "moonsault_mo",     "DoubleCountOut",
    "Armbar_Annie",      "TapOutTony",       "dq_finish",        "LumberJackie",
    "SleeperHold_Sid",   "ElbowPatch",       "figurefourfred",   "SteelStepsStella"};

}  // namespace

std::span<const std::string_view> FanLines(FanMood mood) {
  constexpr std::array<std::span<const Line>, 11> kMoods = {
      kSuperb, kGood, kFair, kWeak, kAwful, kCalledOff, kStolen, kBored, kStar, kFull, kEmpty};
  return kMoods[static_cast<std::size_t>(mood)];
}

std::span<const std::string_view> FanHandles() {
  return kHandles;
}

}  // namespace grapplemont
