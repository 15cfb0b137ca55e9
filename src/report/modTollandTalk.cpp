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
         "{T} goes through the record of {V}, loss by loss, with dates. \"I could go on,\" {T:he} "
         "says, \"but {V} never could.\" Researched. I could only fault one date. ",
         "\"{V} calls that a career. I have had longer colds,\" says {T}, and never raises {T:his} "
         "voice. Contempt is best served at room temperature. ",
     }},
    {Speech,
     TalkBand(kSingleTalk, kHypeMatch),
     {
         "{T} tells us what {T:he} will do to {V} and, for a wonder, why. There is a beginning, a "
         "middle and a threat. It sold me on the match, and I have a free seat. ",
         "\"Look at my hands, {V}. They have not shaken yet.\" {T} holds them to the camera. A "
         "small thing, done slowly. I believed it. ",
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
         "{T} goes back over what {V} has done, and says that it is not paid for. The facts were "
         "in the right order. You would be surprised how often they are not. ",
         "\"I wake up and the first thing I think of is {V}. I would like that to stop.\" {T} says "
         "it as if {T:he} meant it. This is how to keep a fire in. ",
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
         "{T:members} run down {V}, in turns, with no overlap. It is rehearsed, and it is none the "
         "worse for that. \"Not a team, an accident with four boots,\" was the best line, if {V} "
         "care to hear it. ",
         "\"Somebody told {V} the truth once,\" they begin, \"and it was not well received.\" {T} "
         "finish{T:es} the thought together. Cruel, tidy, six and a half. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kHypeMatch),
     {
         "{T} go{T:es} through the coming match with {V} tag by tag. It is the first interview I "
         "have heard that mentioned the five count. ",
         "\"We have wrestled everybody,\" say {T:members}, \"and {V} {V:is} only part of "
         "everybody.\" As a boast it holds together. I want to see the match now, I suppose that "
         "it did its job. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkTurn),
     {
         "{T} announce{T:s} that they have reached the end of something. {?V}{V} will find out "
         "first what comes after. {.}It was said calmly by two people, so there can be no "
         "mistake. ",
         "\"Forget what we told you last month,\" say {T:members}. I keep a file of what they told "
         "us last month. {?V}\"And tell {V},\" they add. {.}The file is closed. ",
     }},
    {Speech,
     TalkBand(kTeamTalk, kTalkContinueFeud),
     {
         "{T} remind{T:s} {V} of an unpaid bill and promise{T:s} to call in person. One long "
         "thread, kept taut. I have no notes. ",
         "\"We said that we would be back for {V},\" say {T:members}. \"We are back.\" They did "
         "say that. Continuity is not dead. ",
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
         "{m} takes {V} apart with a thin smile while {T} stands behind and says nothing. A silent "
         "{T:man} and a quick tongue. That is a sound structure. ",
         "\"My client does not speak to people like {V}. I have to do it,\" sighs {m}. {T} does "
         "not even look round. It is the sigh that sold it. ",
     }},
    {Speech,
     TalkBand(kManagedTalk, kHypeMatch),
     {
         "{m} makes the case for {T} against {V} like a lawyer with a long afternoon. Evidence, "
         "argument, verdict. I would vote to convict. ",
         "\"Three things {V} cannot do,\" says {m}, and counts. {T} nods at each. The third one "
         "was the finishing move, so somebody has thought about it. ",
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
         "{m} brings the case of {V} up to date. {T} provides the exhibits, mostly bruises. I like "
         "it when a programme remembers last week. ",
         "\"{V} thinks that it is even. It was never going to be even,\" says {m}, with a hand on "
         "the arm of {T}, as though holding back weather. ",
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
         "{m} insults {V} by category: pace, power, breeding. {T} supply the laughter. It is a "
         "full page, and not a word of it wasted. ",
         "\"I have looked for something good to say about {V},\" begins {m}, and hands back a "
         "blank sheet. {T} inspect{T:s} both sides of it. Nice touch with the sheet. ",
     }},
    {Speech,
     TalkBand(kManagedTeamTalk, kHypeMatch),
     {
         "{m} sets out the match with {V} as a general would, and {T} {T:is} the army. It makes "
         "the outcome sound like logistics. I have known worse pitches. ",
         "\"Write down the date,\" says {m}, who knows who reads this. {T} {T:is} to beat {V}. I "
         "have it written down. ",
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
         "{m} lists what is owed by {V}, item by item. {T} initial{T:s} each item. Bookkeeping is "
         "an underrated part of hatred. ",
         "\"{V} sleep badly, I am told,\" says {m}. \"We have not even started.\" {T} say{T:s} "
         "nothing, twice, and it adds to it. ",
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
         "{.}None of them was bad. I will not remember one. ",
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
         "The crowd has not decided what to make of {T}. It will take a week, as these do. ",
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
