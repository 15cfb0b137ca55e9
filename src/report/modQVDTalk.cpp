#include "report/voices.h"

namespace grapplemont::modQVD {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {TalkOpening,
     kSingleTalk,
     {
         "{T} backstage. Mic on. ",
         "Interview time. {T} steps in. ",
         "{T} at the curtain, out of breath. ",
     }},
    {TalkOpening,
     kTeamTalk,
     {
         "{T:members} backstage, one mic. ",
         "Both in shot : {T:members}. ",
         "{T} push{T:es} in. Red light on. ",
     }},
    {TalkOpening,
     kManagedTalk,
     {
         "{m} with {T}. {m} has the mic. ",
         "{T} poses. {m} talks. ",
         "Backstage : {m}, {T}, sunglasses. ",
     }},
    {TalkOpening,
     kManagedTeamTalk,
     {
         "{m} in front, {T} behind. ",
         "{m} brings {T:members}. Small room. ",
         "{T} flank{T:s} {m}. Camera rolls. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kVerbalAttack),
     {
         "\"Coward, fake, waste of a ticket!\" {T} doesn't hold back. {?V}{V} {V:is} the target. "
         "{.}",
         "{?V}{T} tears into {V}. {.}{!V}{T} tears into everybody. {.}Mothers get mentioned. "
         "Bleep, bleep, bleep. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kHypeMatch),
     {
         "\"One bell, one winner,\" says {T}. {V} should watch this back. ",
         "{T} counts on the fingers : lockup, finisher, three. {V} {V:has} been told. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkTurn),
     {
         "\"I'm done doing it your way.\" {T} means it. {?V}{V} {V:is} in trouble. {.}",
         "{T} drops the old shirt on the floor. Steps on it. {?V}\"That's for {V}!\" {.}",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkContinueFeud),
     {
         "{T} shows the bruises. Every one has a name, and it's the same name. {?V}It's {V}. {.}",
         "\"Not finished, not even close!\" {T} shakes with anger. {?V}{V} will hear it. {.}",
     }},
    {Speech,
     TalkBand(kSingleTalk, kSelfPromotion),
     {
         "{T} on {T}. Five stars, says {T}. ",
         "\"Best in {promotion}. Ask anyone. Ask me.\" {T} answers, too. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkNone),
     {
         "{T} chats. Weather, travel, gym. {?V}Mentions {V}. {.}",
         "Small talk from {T}. {?V}A nod to {V}. {.}Nothing settled. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kVerbalAttack),
     {
         "{T} trade{T:s} insults, one each. {?V}All about {V}. {.}Then another round. ",
         "\"Jokes, jobbers, nobodies!\" {T} spit{T:s} it out. {?V}At {V}, mostly. {.}",
     }},
    {Speech,
     TalkBand(kTeamTalk, kHypeMatch),
     {
         "\"We tag, you drop,\" say {T:members}. {V} next. ",
         "{T} act{T:s} out the double team. Cameraman plays the victim. {?V}{V} {V:is} next, for "
         "real. {.}",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkTurn),
     {
         "\"We tried nice, we tried nasty. Time to switch.\" {T} agree{T:s}. {?V}{V} won't like "
         "it. {.}",
         "{T} tear{T:s} up the old poster. {?V}Half of it goes to {V}. {.}",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkContinueFeud),
     {
         "{T} want{T:s} more. Taped ribs, taped fists, same grudge. {?V}{V} started it. {.}",
         "\"Round two, round three, round ten!\" {T} won't let it lie. {?V}{V} can pick the night. "
         "{.}",
     }},
    {Speech,
     TalkBand(kTeamTalk, kSelfPromotion),
     {
         "{T} hype{T:s} {T}. High fives all round. ",
         "\"Greatest team ever,\" say {T:members}. Vote was two to nil. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkNone),
     {
         "{T} talk{T:s} road stories. {?V}One has {V} in it. {.}",
         "Quick word from {T}. {?V}Hello to {V}. {.}Back to the cards. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kVerbalAttack),
     {
         "{m} rants for a minute flat. {?V}{V} {V:is} the subject. {.}{T} nods on every word. ",
         "\"Look at my {T:man},\" says {m}. {?V}\"Now look at {V}, and stop laughing.\" {.}{T} "
         "cracks the knuckles. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kHypeMatch),
     {
         "{m} sells it hard : {T}, one night, no mercy. {V} on the other side. ",
         "\"Buy a ticket,\" says {m}, pointing at {T}. \"Bring a mop.\" {V} gets no say. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkTurn),
     {
         "{m} takes it all back. New plan, new side, {T} goes along. {?V}{V} takes the first hit. "
         "{.}",
         "\"Forget what I said,\" says {m}. \"All of it.\" {T} grins. {?V}Bad news for {V}. {.}",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkContinueFeud),
     {
         "{m} holds {T} back by the belt. Barely. {?V}\"Not yet. Soon, {V}.\" {.}",
         "\"This ends in a hospital,\" says {m}. {T} knows which one. {V} {V:has} the bed. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kSelfPromotion),
     {
         "{m} lists what {T} has won. Short list, long speech. ",
         "\"The complete package,\" says {m}, slapping {T} on the back. {T} flexes. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkNone),
     {
         "{m} thanks the fans. {T} yawns. {?V}Regards to {V}. {.}",
         "{m} talks, {T} stretches. {?V}{V} comes up once. {.}No news. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kVerbalAttack),
     {
         "{m} runs out of insults, starts over. {?V}{V} {V:is} called all of them. {.}{T} "
         "laugh{T:s} on cue. ",
         "\"Amateurs,\" says {m}. {?V}{T} boo{T:s} a photo of {V}. {.}{!V}{T} boo{T:s} along. {.}",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kHypeMatch),
     {
         "\"Double the pain, half the time,\" says {m}. {T} point{T:s} at the camera. {V} had "
         "better rest. ",
         "{m} draws it on a board. {T} follow{T:s}, more or less. {V} {V:is} the X. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkTurn),
     {
         "{m} announces it : {T}, new attitude. {?V}{V} first. {.}",
         "\"New rules,\" says {m}. {T} throw{T:s} the old gear at the wall. {?V}Next throw is {V}. "
         "{.}",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkContinueFeud),
     {
         "{m} plays the tape again. {?V}{V} on it, smiling. {.}{T} punch{T:es} a locker. ",
         "\"Nobody does that to us,\" says {m}. {T} want{T:s} payback, tonight if possible. "
         "{?V}{V} can run. {.}",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kSelfPromotion),
     {
         "{m} unveils a banner. It says {T}. Nice banner. ",
         "\"Remember the name,\" says {m}. {T} remember{T:s} it. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkNone),
     {
         "{m} reads the schedule. {T} listen{T:s}, almost. {?V}{V} {V:is} on it. {.}",
         "Nothing new from {m}. {T} wave{T:s}. {?V}So long, {V}. {.}",
     }},
    {TalkClosing,
     kVerbalAttack,
     {
         "Mic drop. {T} gone. ",
         "{T} exit{T:s}, steaming. ",
     }},
    {TalkClosing,
     kHypeMatch,
     {
         "{T} leave{T:s} shouting. Sold. ",
         "Cut. {T} {T:is} ready. ",
     }},
    {TalkClosing,
     kTalkTurn,
     {
         "{T} walk{T:s} off. Everybody stares. ",
         "Silence, then noise. {T} {T:is} gone. ",
     }},
    {TalkClosing,
     kTalkContinueFeud,
     {
         "{T} storm{T:s} out. Door slams. ",
         "Not over. {T} kick{T:s} a crate. ",
     }},
    {TalkClosing,
     kSelfPromotion,
     {
         "{T} still talking at the fade. ",
         "Fade out. {T} wink{T:s}. ",
     }},
    {TalkClosing,
     kTalkNone,
     {
         "That's it from {T}. Back to ringside. ",
         "{T} leave{T:s}. Short one. ",
     }},
};

}  // namespace

Blocks Talk() {
  return kBlocks;
}

}  // namespace grapplemont::modQVD
