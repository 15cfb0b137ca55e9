#include "report/voices.h"

namespace grapplemont::modTolland {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {TalkOpening,
     kSingleTalk,
     {
         "{T} has interview time. I set my watch. ",
         "We find {T} in front of the usual backdrop, microphone at the usual height. ",
         "{T} steps up to speak. A good talker needs ninety seconds. Let us see. ",
     }},
    {TalkOpening,
     kTeamTalk,
     {
         "{T:members} have the floor. One will talk too much, and I have a guess which. ",
         "{T} share{T:s} the microphone, and the trick is to know when to hand it over. ",
         "Interview time for {T:members}, standing in order of size. ",
     }},
    {TalkOpening,
     kManagedTalk,
     {
         "{m} speaks for {T} tonight. It is what managers are for, and there are too few of them. ",
         "{m} has the microphone, {T} the look. I have no objection to a division of labour. ",
         "Here are {T} and {m}. The first stands still, the second does not. ",
     }},
    {TalkOpening,
     kManagedTeamTalk,
     {
         "{m} brings out {T:members}. Three people, one script. ",
         "{m} takes a place between the two halves of {T}, where one can be seen. ",
         "{T} {T:is} here, and {m} is here to say so. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kVerbalAttack),
     {
         "{?V}{T} goes through the record of {V}, loss by loss, with dates. {.}{!V}{T} goes "
         "through the locker room, name by name, with dates. {.}\"I could go on,\" {T:he} says, "
         "and plainly could. Well researched. I could only fault one date. ",
         "{?V}\"What {V} has is not a career,\" says {T}. {.}{!V}\"What they have back there are "
         "not careers,\" says {T}. {.}\"I have had longer colds.\" It is never once above a "
         "murmur. Contempt is best served at room temperature. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kHypeMatch),
     {
         "{?V}{T} tells us what {T:he} will do to {V} and, for a wonder, why. {.}{!V}{T} tells us "
         "what is going to happen in that ring and, for a wonder, why. {.}There is a beginning, a "
         "middle and a threat. It sold me on the match, and I have a free seat. ",
         "{?V}\"Look at my hands, {V}.\" {.}{!V}\"Look at my hands.\" {.}{T} holds them to the "
         "camera. They do not shake. A small thing, done slowly. I believed it. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkTurn),
     {
         "\"You had me figured out. Check your figures,\" says {T}, and leaves a pause where the "
         "reaction goes. {?V}\"Yours as well, {V}.\" {.}The reaction came. I noted a gasp. ",
         "{T} explains {T:himself} for once, in order, without shouting. From tonight it is a "
         "different {T}. {?V}{V} was the last straw, we learn. {.}Turns are seldom explained. One "
         "mark extra. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkContinueFeud),
     {
         "{?V}{T} goes back over what {V} {V:has} done, and says that it is not paid for. "
         "{.}{!V}{T} goes back over what was done, and says that it is not paid for. {.}The facts "
         "were in the right order. You would be surprised how often they are not. ",
         "{?V}\"I wake up and the first thing I think of is {V},\" says {T}. {.}{!V}\"I wake up "
         "and I think of one thing,\" says {T}. {.}\"I would like that to stop.\" It sounded "
         "meant. This is how to keep a fire in. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kSelfPromotion),
     {
         "{T} lists the achievements of {T}. Some of them happened. The delivery was crisp, so I "
         "let the arithmetic pass. ",
         "\"There is a best in this business, and it is a matter of record,\" says {T}. I keep "
         "those records. {T:he} comes out of them rather well, though not as well as that. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kTalkNone),
     {
         "{T} speaks, thanks everybody, and comes to no point that I could find. {?V}{V} got a nod "
         "in passing. {.}Not bad. Not anything. ",
         "{T} muses on the road and the years on it. {?V}There was a kind word in it for {V}. "
         "{.}Pleasant, and three minutes that nobody will ask for back, or for again. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kVerbalAttack),
     {
         "{?V}{T:members} run down {V}, in turns, with no overlap. {.}{!V}{T:members} run down the "
         "whole division, in turns, with no overlap. {.}It is rehearsed, and it is none the worse "
         "for that. \"An accident with boots on,\" was the best line of a good many. ",
         "{?V}\"Somebody told {V} the truth once,\" {T} begin{T:s}, \"and it was not well "
         "received.\" {.}{!V}\"Nobody here likes the truth,\" {T} begin{T:s}. {.}Then the truth is "
         "told, by two voices, in a rising order of unkindness. Tidy. Six and a half. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kHypeMatch),
     {
         "{?V}{T} go{T:es} through the coming match with {V} tag by tag. {.}{!V}{T} go{T:es} "
         "through the coming match tag by tag. {.}It is the first interview I have heard that "
         "mentioned the five count. ",
         "\"We have wrestled everybody,\" say {T:members}. {?V}\"And {V} {V:is} only a part of "
         "everybody.\" {.}As a boast it holds together. I want to see the match now, so I suppose "
         "that it did its job. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkTurn),
     {
         "{T} announce{T:s} that they have reached the end of something. {?V}{V} will find out "
         "first what comes after. {.}It was said calmly by two people, so there can be no "
         "mistake. ",
         "\"Forget what we told you last month,\" say {T:members}. I keep a file of what they told "
         "us last month. {?V}A copy is to go to {V}. {.}The file is closed. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkContinueFeud),
     {
         "{?V}{T} remind{T:s} {V} of an unpaid bill and promise{T:s} to call in person. {.}{!V}{T} "
         "speak{T:s} of an unpaid bill and promise{T:s} to call in person. {.}One long thread, "
         "kept taut. I have no notes. ",
         "\"We said that we would be back,\" say {T:members}. They did say that. {?V}It was {V} "
         "who had not written it down. {.}Continuity is not dead. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kSelfPromotion),
     {
         "{T} rate{T:s} the tag teams of the last thirty years and come{T:s} in first. I have a "
         "list of my own, and somebody has read it upside down. ",
         "{T:members} speak on the subject of {T}. The last third repeated the first, but it was "
         "brisk, and nobody got the name wrong. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkNone),
     {
         "{T} talk{T:s} about travel and sore knees. {?V}{V} got a mention, and quite a friendly "
         "one. {.}As talk it was fine. As television it was on. ",
         "{T:members} tell an anecdote that each believes to be about the other. {?V}{V} came into "
         "it near the end. {.}I smiled once. I looked around first. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kVerbalAttack),
     {
         "{?V}{m} takes {V} apart with a thin smile. {.}{!V}{m} takes the roster apart with a thin "
         "smile. {.}{T} stands behind and says nothing. A silent {T:man} and a quick tongue: that "
         "is a sound structure. ",
         "{?V}\"My client does not speak to people like {V},\" sighs {m}. {.}{!V}\"My client does "
         "not speak to people,\" sighs {m}. {.}{T} does not even look round. It is the sigh that "
         "sold it. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kHypeMatch),
     {
         "{?V}{m} makes the case for {T} against {V} like a lawyer with a long afternoon. "
         "{.}{!V}{m} makes the case for {T} like a lawyer with a long afternoon. {.}Evidence, "
         "argument, verdict. I would vote to convict. ",
         "{?V}\"There are three things that {V} cannot do,\" says {m}, and counts. {.}{!V}\"There "
         "are three things that nobody can do,\" says {m}, and counts. {.}{T} nods at each. The "
         "third was to kick out of the finishing move, so somebody has thought about it. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkTurn),
     {
         "{m} says that things will be run differently from tonight, and puts it down to "
         "experience. {?V}The name of {V} is read out in a tone that I had not heard from {m:him}. "
         "{.}{T} stays at {m:his} side, so that settles that. ",
         "\"I have been on the wrong side of this business,\" says {m}. Which side that was "
         "depends on where you sit. {?V}It comes with a warning to {V}. {.}{T} had been told. You "
         "could see it. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkContinueFeud),
     {
         "{?V}{m} brings the case of {V} up to date. {.}{!V}{m} brings an old case up to date. "
         "{.}{T} provides the exhibits, mostly bruises. I like it when a programme remembers last "
         "week. ",
         "{?V}\"I am told that {V} think{V:s} it is even,\" says {m}. {.}{!V}\"I hear that we are "
         "supposed to be even,\" says {m}. {.}There is a hand on the arm of {T}, as though holding "
         "back weather. Good posture, good menace. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kSelfPromotion),
     {
         "{m} describes {T} for two minutes without an adjective repeated. I checked. {T} might "
         "consider living up to half of them. ",
         "{m} calls {T} an investment, and quotes growth. It is a dry sort of pitch. It was made "
         "for me. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kTalkNone),
     {
         "{m} reads some announcements while {T} looks at the ceiling. {?V}One of them concerned "
         "{V}. {.}All of it will be in the programme. ",
         "{m} passes the time of day on behalf of {T}. {?V}{V} was wished well, I think. {.}I have "
         "nothing written down but the date. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kVerbalAttack),
     {
         "{?V}{m} insults {V} by category: pace, power, breeding. {.}{!V}{m} insults the field by "
         "category: pace, power, breeding. {.}{T} suppl{T:ies} the laughter. It is a full page, "
         "and not a word of it wasted. ",
         "{?V}\"I have looked for something good to say about {V},\" begins {m}, and holds up a "
         "blank sheet. {.}{!V}\"I wrote down everything good about the other teams,\" begins {m}, "
         "and holds up a blank sheet. {.}{T} inspect{T:s} both sides of it. Nice touch, the "
         "sheet. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kHypeMatch),
     {
         "{?V}{m} sets out the match with {V} as a general would, and {T} {T:is} the army. "
         "{.}{!V}{m} sets out the match as a general would, and {T} {T:is} the army. {.}It makes "
         "the outcome sound like logistics. I have known worse pitches. ",
         "\"Write down the date,\" says {m}, who knows who reads this. {?V}It is when {T} {T:is} "
         "to beat {V}, with the method given. {.}{T} confirm{T:s} the spelling. I have it written "
         "down. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkTurn),
     {
         "{m} hands over to {T:members}, who say that they are through with what they were. "
         "{?V}{V} will be the first to see it. {.}The stable door is open, and the horse gave "
         "reasons. ",
         "\"There has been a vote,\" says {m}. {T} voted to become something else. {?V}{V} had no "
         "vote. {.}It is a turn by committee, and a rare thing. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkContinueFeud),
     {
         "{?V}{m} lists what is owed by {V}, item by item. {.}{!V}{m} lists what is owed, item by "
         "item. {.}{T} initial{T:s} each item. Bookkeeping is an underrated part of hatred. ",
         "{?V}\"I am told that {V} sleep{V:s} badly,\" says {m}. {.}{!V}\"I am told that somebody "
         "sleeps badly,\" says {m}. {.}{T} say{T:s} nothing, and say{T:s} it twice, and that adds "
         "to it. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kSelfPromotion),
     {
         "{m} gives us the figures on {T:members}. Wins, minutes, weights. It may be that I am the "
         "only one it was meant for. ",
         "{m} declares {T} the finest team in the world. I note that {m:he} said that of the last "
         "one. The conviction has grown, at least. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kTalkNone),
     {
         "{m} fills two minutes, and {T} fill{T:s} the frame. {?V}{V} took up some of the first "
         "minute. {.}It held together, as water does in a glass. ",
         "{m} and {T:members} exchange remarks in front of a camera. {?V}One remark was about {V}. "
         "{.}Not one was bad. I will not remember one. ",
     }},
    {TalkClosing,
     kVerbalAttack,
     {
         "{T} leave{T:s} it there, one sentence before it became too many. That is the skill. ",
         "The segment ends with {T} looking down the lens. Somebody will have to answer that. ",
     }},
    {TalkClosing,
     kHypeMatch,
     {
         "{T} walk{T:s} off with the match sold. Now they only have to have it. ",
         "That is the pitch from {T}. I would rate it, but I do not rate pitches. ",
     }},
    {TalkClosing,
     kTalkTurn,
     {
         "{T} go{T:es}, and my file needs a new heading. ",
         "{T} leave{T:s} them to talk it over. It will take a week, as these do. ",
     }},
    {TalkClosing,
     kTalkContinueFeud,
     {
         "{T} {T:is} done talking. It moved things on by one square, which is what a week is for. ",
         "Off go{T:es} {T}. No blow was struck, and it did not need one. ",
     }},
    {TalkClosing,
     kSelfPromotion,
     {
         "{T} stop{T:s}, having run out of time and not of subject. ",
         "{T} bow{T:s} slightly and withdraw{T:s}. One has to admire the nerve. ",
     }},
    {TalkClosing,
     kTalkNone,
     {
         "{T} leave{T:s}. It was the length it was. ",
         "And that was {T}. I have ruled a line under it, out of habit. ",
     }},
};

}  // namespace

Blocks Talk() {
  return kBlocks;
}

}  // namespace grapplemont::modTolland
