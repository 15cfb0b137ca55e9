#include "report/voices.h"

namespace grapplemont::modLamplighter {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {TalkOpening,
     kSingleTalk,
     {
         "{T} walks into the shot, takes the microphone, and taps it. It's on. ",
         "{T} is backstage, in front of the curtain with the stain. ",
         "We go to {T}, who was waiting for us, or for the toilet. ",
     }},
    {TalkOpening,
     kTeamTalk,
     {
         "{T:members} squeeze into the picture. Somebody's elbow is in somebody's ear. ",
         "{T} share{T:s} one microphone, and not very well. ",
         "It's {T}, both talking, so I write down every second word. ",
     }},
    {TalkOpening,
     kManagedTalk,
     {
         "{m} straightens the collar of {T} and clears {m:his} throat. ",
         "{T} stands at the back looking mean, and {m} stands at the front looking expensive. ",
         "{m} brings {T} along, so that's two egos for one camera. ",
     }},
    {TalkOpening,
     kManagedTeamTalk,
     {
         "{m} arrives with {T} in tow, like a nurse on an outing. ",
         "{m} has {T} on either side and the microphone in the middle. ",
         "{m}, {T:members}, one camera, and no deodorant. ",
     }},

    {Speech,
     TalkBand(kSingleTalk, kVerbalAttack),
     {
         "{T} says that {V} {V:is} a coward, a fake, and a poor tipper. \"I've scraped better "
         "things off my boot,\" {T:he} add{T:s}, and shows us the boot. ",
         "\"Somebody tell {V} that mirrors don't lie,\" snaps {T}. It goes on like that for two "
         "minutes, and the bit about {V:his} mother was bleeped. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kHypeMatch),
     {
         "{T} can't wait to get {V} in that ring. {T:he} describes it blow by blow, does the "
         "noises as well, and wins, which is a surprise. ",
         "\"Mark the day, {V}!\" {T} has marked it, on {T:his} hand, in biro. There are three "
         "moves and a shopping list. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkTurn),
     {
         "\"I'm through with what you want,\" says {T}. {?V}\"And {V} can go and whistle.\" {.}The "
         "people behind the barrier are looking for their jaws. ",
         "{T} takes off the old colours and drops them in a bin. {?V}\"That was for {V},\" {T:he} "
         "say{T:s}. {.}The bin looked shocked, too. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkContinueFeud),
     {
         "{T} rolls up a sleeve and shows us what {V} did to {T:him}. \"It itches when I don't hit "
         "somebody,\" {T:he} explain{T:s}. ",
         "\"It's not over, {V}, it's not over by a mile,\" says {T}. A mile is about what it'll "
         "take, by the look of {T:him}. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kSelfPromotion),
     {
         "{T} talks about {T}. {T:he} found the subject fascinating, and spoke warmly of "
         "{T:himself}, quoting {T:himself} twice. ",
         "\"When I look in the mirror the mirror says thank you,\" says {T}. I've had a look in "
         "mine. It said nothing. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkNone),
     {
         "{T} tells a story about a dog and a bus. It has no point, but the dog got home. {?V}At "
         "the end {T:he} nods to {V}. {.}",
         "{T} talks for a bit. I was eating. {?V}I caught the name of {V}. {.}It seemed friendly "
         "enough. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kVerbalAttack),
     {
         "{T} take{T:s} turns at it: one does the insults, the other does the echo. {V} {V:is} "
         "called everything from a weasel to a spoon. ",
         "The two of them yell it together. {?V}It's about {V}. {.}\"Couldn't beat an egg!\" High "
         "fives. They miss. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kHypeMatch),
     {
         "{T} {T:has} a plan for {V}, and act{T:s} it out with two cups and a banana. I fear for "
         "the banana. ",
         "\"Two of us,\" say {T:members}, \"and that's two too many for {V}.\" They count on their "
         "fingers to make sure. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkTurn),
     {
         "{T} look{T:s} at the camera, at each other, and tear{T:s} up a fan club card. "
         "{?V}\"Blame {V},\" they say. {.}That's that, then. ",
         "\"We did it your way, and where did it get us?\" ask {T:members}. {?V}\"Next to {V}!\" "
         "{.}They're doing it their own way from now on. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkContinueFeud),
     {
         "{T} {T:has} brought pictures of what {V} did. They hold them too close, so it's all "
         "thumbs. It's the thought. ",
         "\"{V}, this stops when you stop moving,\" {T} promise{T:s}. It takes two to tango, and "
         "four for that. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kSelfPromotion),
     {
         "{T} agree{T:s} that there's never been a team like {T}, and that modesty is the best "
         "thing about it. ",
         "{T} sing{T:s} a song. It rhymes team with supreme, and then with ice cream. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkNone),
     {
         "{T} finish{T:es} each other's sentences, if not always the same one. {?V}There's "
         "something about {V} in there. {.}No harm done. ",
         "{T} chat{T:s} about the road, the food, the hotel with one bed. {?V}{V} {V:was} there, "
         "it seems. {.}Laughter. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kVerbalAttack),
     {
         "{m} reads out a list of what's wrong with {V}. It's laminated. {T} nods at number nine, "
         "and cracks {T:his} knuckles at ten. ",
         "\"{V}, my {T:man} here eats people like you with toast,\" says {m}. {T} asks quietly "
         "about the toast. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kHypeMatch),
     {
         "{m} sells us {T} against {V} as though the tickets were {m:his} own. I think they are. ",
         "\"One night, one ring, and {V} is in the way,\" says {m}. {T} breathes through {T:his} "
         "nose at the right moments. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkTurn),
     {
         "{m} asks for quiet and gets it. \"I've changed my mind about all of you,\" {m:he} says, "
         "with a hand on the shoulder of {T}. {?V}\"Start running, {V}.\" {.}",
         "{m} tears up a speech and makes another one, and it's the other way round. {T} smiles. "
         "{?V}{V} won't. {.}",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkContinueFeud),
     {
         "{m} says that the lawyers have been in touch with {V}, and then the fists will be. The "
         "fists of {T} look ready. ",
         "\"You had your fun, {V}, now it's our turn,\" says {m}, and {T} holds up whatever {V} "
         "left {T:him} of {T:his} gear. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kSelfPromotion),
     {
         "{m} calls {T} the greatest thing on two legs, and {T} checks: two. ",
         "{m} has a chart. The line goes up, the line is {T}, and {m} takes ten percent of it. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkNone),
     {
         "{m} does the talking, {T} does the standing. {?V}{V} got a mention. {.}Everybody does "
         "what they're best at. ",
         "{m} thanks everybody, and I mean everybody, alphabetically. {?V}{V} came up under pests. "
         "{.}{T} waits by the door. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kVerbalAttack),
     {
         "{m} insults {V} in rhyme, while {T} do{T:es} the beat. It's dreadful, and it scans. ",
         "{?V}{m} has heard of {V}. {.}\"I've got bunions with more talent!\" {T} would like to "
         "see the bunions. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kHypeMatch),
     {
         "{m} has worked out how {T} will beat {V}, with arrows. One of the arrows is me, I "
         "think. ",
         "\"Bring {V}, bring the doctors,\" says {m}, and {T} bring{T:s} the noise. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkTurn),
     {
         "{m} steps aside, and {T} tell{T:s} us that it's over, the smiling or the scowling, "
         "whichever it was. {?V}{V} had better listen. {.}",
         "\"My team has an announcement,\" says {m}. {T} make{T:s} it, with a bin and some matches "
         "and the old ring jackets. {?V}\"You're next, {V}.\" {.}",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkContinueFeud),
     {
         "{m} keeps {T} on a short lead. \"They want {V},\" {m:he} says, \"and my arm is getting "
         "tired.\" ",
         "{T} won't eat, won't sleep, says {m}, until {V} {V:has} paid for it. They've had "
         "crisps. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kSelfPromotion),
     {
         "{m} presents {T} as if they were a new car: two doors, no brakes. ",
         "\"The best team money can buy,\" says {m}, who'd know. {T} point{T:s} at each other. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkNone),
     {
         "{m} asks if there are questions. There are none. {?V}{V} might have had one. {.}{T} "
         "wave{T:s} to somebody off camera. ",
         "{m} thanks {T}, {T} thank{T:s} {m}, and we're out of time. {?V}Regards to {V}. {.}",
     }},

    {TalkClosing,
     kVerbalAttack,
     {
         "{T} drop{T:s} the microphone. It bounces. ",
         "Off go{T:es} {T}, leaving scorch marks. ",
     }},
    {TalkClosing,
     kHypeMatch,
     {
         "I'd buy a ticket, if I paid for mine. {T} leave{T:s}. ",
         "{T} shout{T:s} it once more for the hard of hearing. ",
     }},
    {TalkClosing,
     kTalkTurn,
     {
         "And off goes everything we knew about {T}. ",
         "{T} leave{T:s} to a noise I've never heard before. ",
     }},
    {TalkClosing,
     kTalkContinueFeud,
     {
         "{T} storm{T:s} off, and back, since that was the cupboard, and off again. ",
         "Don't hold your breath for a truce from {T}. ",
     }},
    {TalkClosing,
     kSelfPromotion,
     {
         "{T} {T:is} still talking as we fade out. ",
         "{T} sign{T:s} my notebook without being asked. ",
     }},
    {TalkClosing,
     kTalkNone,
     {
         "{T} wander{T:s} off, and that was that. ",
         "The camera loses {T} and finds a pot plant. ",
     }},
};

}  // namespace

Blocks Talk() {
  return kBlocks;
}

}  // namespace grapplemont::modLamplighter
