#include "report/voices.h"

namespace grapplemont::modTolland {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {AngleText,
     1,
     {
         "{1} comes to the ring, asks for {2} by name, and issues a challenge. No insults, no "
         "props, terms clearly stated. {2} hears it out from the stage and keeps the answer back. "
         "I had forgotten how good the plain version is. ",
         "\"I want {2},\" says {1}. \"I do not mind when.\" It is a challenge, in under a dozen "
         "words. {2} is shown on a monitor, thinking about it. Thinking is good television when it "
         "is done well. ",
     }},
    {AngleText,
     2,
     {
         "{1} and {2} come face to face in a corridor, and neither gives way. There are words, not "
         "many, and none of them is shouted. A producer steps in between just in time. It is "
         "always just in time, but the tension was their own work. ",
         "{1} is talking to somebody when {2} walks into the picture and stays in it. The "
         "confrontation goes on for a minute. Nobody swings. You would not believe how rare it is "
         "that nobody swings. ",
     }},
    {AngleText,
     3,
     {
         "{1} is ambushed backstage by {O}. We have our mandatory man with a cup of coffee, who "
         "drops it. {?4}{4} comes running and drives them away from {1}. The save was on time. "
         "{.}{?turn}From {4}, though. I had {4:him} down on the other side, and must now change "
         "the card. {.}{!4}No help arrives, and {1} is left on the tiles. {.}",
         "{2} has been waiting behind a door for {1}, with patience and a pipe. {?3}{3} is there "
         "to hold the door. {.}{?4}It ends when {4} makes the save and stands guard over {1}. "
         "{.}{?turn}It changes everything we knew of {4}. It was planted three weeks ago, for "
         "those who take notes. {.}{!4}The ambush runs its full course. {1} is found later, by a "
         "caterer. {.}",
     }},
    {AngleText,
     4,
     {
         "{1} and {2} are a team until about the middle of the segment. Then {1} strikes from "
         "behind, and they are not. It was paced like a good last reel. {1} has turned, the "
         "partnership is over, and {2} has a reason to train. ",
         "{2} has an arm around {1} when it happens. One short blow, no speech. {1} has turned on "
         "{1:his} own partner and walks off in no hurry. I give it an eight, mostly for the "
         "walking. ",
     }},
    {AngleText,
     5,
     {
         "{2} gives {1} an order too many. {1} hears the crowd, and you could watch {1:him} hear "
         "it. One right hand and {2} is down. {1} is with the people now. I put my pen down for "
         "it. ",
         "{1} refuses to go through with the beating {2} had in mind, and turns on {2} instead. It "
         "is a face turn by a matter of conscience, the old kind. The noise was honest. ",
     }},
    {AngleText,
     6,
     {
         "{1} has the sympathy of the whole building, and gives all of it up for one blow to the "
         "back of the head of {2}. {1} has turned heel. Effective, and unpleasant to watch, as it "
         "ought to be. ",
         "\"I have been decent for years,\" {1} says to {2}, \"and look where you are.\" Then the "
         "chair. {1} goes heel with a reason that one can almost follow. Those are the dangerous "
         "ones. ",
     }},
    {AngleText,
     7,
     {
         "{1} has come to a business decision. {3} is released, {2} is taken on. {3} learns of it "
         "along with the rest of us, and stands there with the bag. {?turn}It makes {1} somebody "
         "else as well. I have a column for managers, and there are few changes in it. {.}",
         "{1} shakes hands with {2}, and {3} walks in on it. So {3} has no manager, and {2} has "
         "one. No blows. Just a look, which I rate above a blow. {?turn}With {2} comes a new "
         "outlook, by the sound of {1}. {.}",
     }},
    {AngleText,
     8,
     {
         "{1} has dinner with {2}. It comes out that {3} had booked the same table. {1} says that "
         "{1:he} {1:is} sorry, to one of them. I cannot tell to which, and I suspect that this is "
         "the angle. ",
         "{3} sees {1} laughing with {2}, and the flowers go in a bin. {2} notices, and lets it "
         "show. Two of them and one of {1:him}. It is the second oldest plot there is, and they "
         "did not rush it. ",
     }},
    {AngleText,
     9,
     {
         "{1} sits down in the ring and states that {1:he} will not move. The show waits. It is a "
         "strange, slow, rather good three minutes. Then {2} removes {1}, by the collar, since all "
         "else has been tried. ",
         "A sit-in by {1}. I am told it is about principle. {2} is sent to talk {1} out of it, and "
         "talks for about four seconds before dragging. I had started to side with the chair. ",
     }},
    {AngleText,
     10,
     {
         "{2} did not care for the ruling and takes it up with the Commissioner, physically. {1} "
         "is beaten up across {1:his} own desk. They all have a desk, and they all go over it. ",
         "{1}, the Commissioner, is mid memo when {2} comes in. The beating is thorough, and the "
         "memo was too long anyway. {2} leaves by the door, so there is a first. ",
     }},
    {AngleText,
     11,
     {
         "{F:members} are in the ring as {S:members} come out, and we get a confrontation. Four "
         "people in a line, each sizing up the wrong one, then the right one. It was blocked like "
         "theatre. ",
         "{F} and {S} exchange views. They do not differ on much, except on who is better. No "
         "punches. I score it to {S}, on diction. ",
     }},
    {AngleText,
     12,
     {
         "{S} set{S:s} up a table, and everybody knows what for. {F} put{F:s} up a fight for as "
         "long as is decent. Then it is through the table, with a nice even break. There is a "
         "technique to it, and the technique is lying still. ",
         "A scuffle, then a table, then {F} in the middle of it. {S} did the driving. The build "
         "took a minute, and the minute was the good part. ",
     }},
    {AngleText,
     13,
     {
         "{2} brings a ladder to a conversation. {1} is hit with it first at one end and then the "
         "other, and is left under it. I have a form for such assaults. There is no box left for "
         "ladders. ",
         "{1} is attacked by {2}, who makes full use of a ladder, though not as the makers would "
         "have it. Five shots, each heavier. The pacing was sound. I would have stopped at four. ",
     }},
    {AngleText,
     14,
     {
         "{2} opens up the forehead of {1} on the post and keeps working on it. There is a good "
         "deal of blood. I do not like it as a habit. As an exception it does its work, and "
         "tonight it did. ",
         "By the end of it {1} is on one elbow, red to the chin, and {2} is examining a fist. It "
         "was violent, it had a point. Both are rarer than the blood. ",
     }},
    {AngleText,
     15,
     {
         "A fight between {1} and {2}, which {2} wins by taking the outfit of {1} in parts. {1} is "
         "left in {1:his} underwear and covers up as far as the curtain. I studied the ceiling, "
         "which needs paint. ",
         "{2} does not beat {1} so much as unwrap {1:him}. It ends at the underwear. The crowd was "
         "pleased. I am paid to be here. ",
     }},
    {AngleText,
     16,
     {
         "{1} is pulled crotch first into the ring post by {O}. There is not much to grade. I "
         "wince at it as I did at the first one, in another century. ",
         "The post, {1}, and {O} at the other end of the legs. One tug. Everybody made the same "
         "noise at once. Call it universal. ",
     }},
    {AngleText,
     17,
     {
         "{2}, {3} and {4} have caught {1} alone. {1} lasts rather longer than most would, which "
         "is a nice bit of booking. It ends as three on one does. ",
         "Three on one. {O:members} take turns, {1} takes all of it. An attack by numbers, and "
         "each one had something to do. Well laid out. ",
     }},
    {AngleText,
     18,
     {
         "{2} wants to know where {1} has been lately. The answer comes half a second late, and "
         "{2} has noticed. So have I. I have put a small question mark behind {1}. ",
         "{1} and {2} talk about trust. It is a bad sign when they talk about trust. {2} leaves "
         "less sure of {1} than before, and the camera stays on {1} for a beat too long. Mark it "
         "down. ",
     }},
    {AngleText,
     19,
     {
         "{1} and {2} are in a bikini contest. I read the fire regulations on the wall. {?3}Before "
         "there is a verdict {3} comes out and spoils it, at some length. {.}{?turn}A heavy choice "
         "by {3}, and the people will treat {3:him} differently for it. {.}{!3}It ends in a tie, "
         "and I found no misprints. {.}",
         "The bikini contest: {1} in red, {2} in blue, a loud man holding cards. {?3}{3} "
         "interrupts, tips over the table with the trophy, and that is that. I was not as sorry as "
         "the rest. {.}{?turn}It says a good deal about where {3} stands from here on. {.}{!3}Both "
         "won, if I understood the cards. {.}",
     }},
    {AngleText,
     20,
     {
         "{1} spots a famous face in the front row and goes over for a handshake. It was the face "
         "from the thing that we all pretend not to watch. The star could name one wrestler, and "
         "it was the wrong one. ",
         "There is a celebrity at ringside, and {1} makes sure to be seen with one. Both smiled "
         "for the cameras. The mutual benefit lasted for a minute and a half. ",
     }},
    {AngleText,
     21,
     {
         "{1} challenges {2} to a match. \"Why wait?\" says {2}, or the fists do. The brawl is a "
         "good one, loose and mean, and takes up the whole stage until they are parted. I did not "
         "look at my watch. ",
         "The challenge by {1} gets as far as the date. {2} has come down to settle it at once, "
         "and they go at it, with officials clinging on. An impromptu brawl, the card says. Well "
         "rehearsed, then. ",
     }},
    {AngleText,
     22,
     {
         "{1} tells {2} that {2:he} can count on {1:him}. {2} says thank you. I have heard it said "
         "many times, and sometimes it has even been so. ",
         "\"I have got your back,\" says {1} to {2}. Each is sincere, as far as I can judge. My "
         "file on the phrase is mostly in red, but let us be generous. ",
     }},
    {AngleText,
     23,
     {
         "{2} is interrupted by music that nobody has heard in a long time. It is {1}, back after "
         "an absence. A return needs one look and no words, and they got that right. {2} supplies "
         "the other look. ",
         "{1} has returned. {2} is the first to see {1:him}, and stops talking, which I put down "
         "to {1}. The pop was loud and came in two waves: those who saw, then those who believed. ",
     }},
    {AngleText,
     24,
     {
         "{1} lays out an open challenge, with the traditional pause. The answer comes from a new "
         "face: {2}, who has not been seen here until now. {1} had expected somebody easier. It "
         "was a debut with a purpose, the only kind worth having. ",
         "\"Anybody,\" says {1}, and one should never say that. {2} steps out for the first time "
         "and walks all the way down. They stand eye to eye. As a debut it is a seven, and could "
         "still go up. ",
     }},
    {AngleText,
     25,
     {
         "{1} is attacked from behind by a newcomer. It takes a moment until somebody has the "
         "name: {2}. {1} is left lying. First impressions should be short, hard and clear. This "
         "one was. ",
         "{2} makes {2:his} debut at the expense of {1}, with a beating of about a minute. No "
         "music, no name on the screen. You had to be paying attention, and I was. ",
     }},
    {AngleText,
     26,
     {
         "The Commissioner has somebody to present. {1} shakes the hand of {2}, who is new here, "
         "and they seem to get on. A debut with the seal of the office on it. There will be "
         "favours, so there will be enemies. ",
         "{1} calls {2} into the office, where there are two glasses ready. {2} is now on the "
         "roster, and on good terms with the Commissioner. It was quiet. Power generally is. ",
     }},
    {AngleText,
     27,
     {
         "{2} does not stop. {1} had stopped moving some time before. The paramedics come, with a "
         "board and a collar. I have seen it overdone. It was done about right. ",
         "{1} is beaten by {2} until paramedics have to be called, and then a little more. The "
         "stretcher went past me. It makes {2} very dangerous, and it was meant to. ",
     }},
    {AngleText,
     28,
     {
         "{1} begins on the monitors, goes on to the catering, and has a word to say to {2} "
         "between each item. It is a challenge by damage. I hope that the coffee machine was "
         "insured. It was a poor coffee machine. ",
         "A wall, a door, a good deal of glass. {1} will go on until {2} accepts, says {1}. It is "
         "one way to put a challenge. I have marked the volume down and the sincerity up. ",
     }},
    {AngleText,
     29,
     {
         "{1} and {2} go nose to nose. It lasts for forty seconds, and nobody moves. Hold a "
         "silence in front of a crowd for forty seconds some time. Then grade it. ",
         "A staredown. {1} looks up, {2} looks down, or it may be the reverse. Neither blinks. It "
         "says more than last week's three interviews did. ",
     }},
    {AngleText,
     30,
     {
         "{1} and {2} are in conference by the boiler. There is a plan, and it will not be to "
         "everyone's taste. They plot in front of a camera. They always plot in front of the "
         "camera. ",
         "We hear half of it: {1} says when, {2} says how. The rest is nodding. As conspiracies go "
         "it is at a promising stage. ",
     }},
    {AngleText,
     31,
     {
         "{1} gets in a car and leaves for the night. The brake lights did most of the acting. I "
         "have no further notes. ",
         "{1} is driving off. That is the segment. It has a beginning and an end, and I have seen "
         "longer ones with neither. ",
     }},
    {AngleText,
     32,
     {
         "{1} arrives at the arena, with one bag and no comment. The security man waves. I do not "
         "grade arrivals, but the walk was good. ",
         "A car stops and {1} gets out of it. So {1:he} {1:is} here, then. We have our mandatory "
         "arrival shot. ",
     }},
    {AngleText,
     33,
     {
         "A contract signing. {1} signs, {2} signs, and the table is still standing. I waited. "
         "There it goes. Both names are on the paper, so the match is on, and cliche number one is "
         "off my list. ",
         "{1} and {2} sit down on either side of a contract, with a man in a blazer between. They "
         "sign to face each other. Nobody was put through anything, and I could have kissed the "
         "man in the blazer. ",
     }},
    {AngleText,
     34,
     {
         "{1} gives {2} a talking to. It starts from low down and builds, and by the end {2} is on "
         "{2:his} feet, ready to walk through something. Managers used to do that every week. ",
         "\"Tell me what you see,\" says {1}. \"A loser,\" says {2}, looking in a mirror. {1} "
         "breaks the mirror and asks again. It is a little much. It worked on {2}, and the props "
         "were not spared. ",
     }},
    {AngleText,
     35,
     {
         "{1} and {2} come to blows in the dressing room, and it is called a catfight on my sheet. "
         "There was a rather good headlock in it. I seem to be the only one who noticed. ",
         "A remark by {1}, a drink over the head from {2}, and we are off. It takes four people to "
         "get them apart. Sloppy, heated, alive. I have graded championship matches lower. ",
     }},
    {AngleText,
     36,
     {
         "{1} walks down a corridor. We have our mandatory corridor. I admire the lighting. ",
         "We see {1} walking. There are some doors. {1:he} {1:is} still walking as we leave. Two "
         "for pace, nothing for plot. ",
     }},
    {AngleText,
     37,
     {
         "{1} has found an ally, and it is {2}, in a first appearance. Introduced, shaken by the "
         "hand, stood beside. It is a clean debut, and you know at once what {2} is for. ",
         "\"You have been asking who would stand with me,\" says {1}. {2} does. It is the debut of "
         "{2}, and it gives {1} somebody to be seen with. Simple writing. I approve. ",
     }},
    {AngleText,
     38,
     {
         "{2} has a manager, says {2}, and here is the {1:man}: {1}. It is a debut. {1} says two "
         "sentences, and both of them were better than what {2} has been saying. So I see the "
         "sense in it. ",
         "New at the side of {2}: {1}, who will take care of the talking from now on. A first "
         "night, a good suit, a folded list. Managers with lists go far. ",
     }},
    {AngleText,
     39,
     {
         "{2} throws a ball of fire at the face of {1}. There are blankets, shouting, a smell. It "
         "is a territorial trick from before my time, and it has never been improved on. ",
         "A flash out of the hand of {2}, and {1} is down, holding {1:his} face. I know how it is "
         "done. I jumped. ",
     }},
    {AngleText,
     40,
     {
         "{1} has called the police, and {2} is led off in cuffs. The Commissioner watches from a "
         "window. The officers had the right hats on, which is more than one gets as a rule. ",
         "{2} is under arrest, on the word of the Commissioner. {1} reads out a reason, and it is "
         "a longer one than I expected. {2} goes quietly for three steps. The rest was better. ",
     }},
    {AngleText,
     41,
     {
         "{2} is suspended. {1} states for what, and for how long, in a voice without heat. A "
         "Commissioner who reads from the rules! I felt quite young. ",
         "The Commissioner has looked at the tape, and {2} is suspended for what is on it. {2} has "
         "objections. {1} has a stamp. The stamp wins. ",
     }},
    {AngleText,
     42,
     {
         "{1} books {2} against {3} for later tonight. It took under a minute. This is what a "
         "Commissioner is for, and they so seldom do it. ",
         "{1} sends for {2} and hands over a slip: {3}, tonight. {2} reads it twice. The "
         "Commissioner has moved on to the next slip. I have it in my running order now, in "
         "pencil, as with all of them. ",
     }},
    {AngleText,
     43,
     {
         "{1} is being followed. A shadow, a breath, an open door that was shut. We are not shown "
         "who, and the good thing about a stalker is not being shown. Keep it going. Do not tell "
         "us for a while. ",
         "Someone has been at the bag of {1} and left a note. No signature. {1} looks around, and "
         "so did I. There are three suspects on my pad. There will be a fourth, and it will be "
         "that one. ",
     }},
    {AngleText,
     44,
     {
         "{1} tapes both wrists and says nothing. I could watch this sort of thing for an hour. "
         "Preparation seems to have gone out of fashion. ",
         "{1} gets ready for a match, with stretches and a rope. There was sweat, and it was real. "
         "Not a word was said. Nine. ",
     }},
    {AngleText,
     45,
     {
         "{1} brings out a very small man dressed as {2}. The walk is there, the voice is there, "
         "there is a fall off a box. I was not going to laugh. {2}, watching, was not either. ",
         "An impression of {2}, by a midget in the right colours, hired by {1}. I have seen the "
         "gag eleven times. The eyebrows lifted it. ",
     }},
    {AngleText,
     46,
     {
         "{F:members} get to {S:members} before the bell can. It is a two on two assault, and only "
         "one of the twos was ready. {S} {S:is} left in a doorway. Efficient. ",
         "{S} {S:is} set upon by {F}, who have thought out which of the two to hit first. The "
         "bigger one. Most teams get that wrong. ",
     }},
    {AngleText,
     47,
     {
         "{O:members} pick off {1} with the partner nowhere near. Half of a team is taken out of "
         "it, and that is sound strategy, and unpleasant to see. Good heel work is both. ",
         "{1} is alone, and {O} {O:has} been waiting for that. They take apart the one to get at "
         "the two. I wish that matches had as much of a plan. ",
     }},
    {AngleText,
     48,
     {
         "{F:members} challenge {S:members} to a match, four names and no nonsense. {S} take{S:s} "
         "a moment over it. A tag match with a reason, then. I could get used to that. ",
         "\"Two on two,\" say {F:members} to {S}, \"with a referee, if you can find one.\" It is a "
         "challenge. It has a date, a place, and a grudge. That is three out of three. ",
     }},
    {AngleText,
     49,
     {
         "{1} has been promising a surprise since last week. It is {2}, on {2:his} first night. "
         "{1} steps aside and lets {2} be looked at. Let them look, that is all a debut needs. ",
         "{1} introduces a new client: {2}. It was a good build by a manager who knows when to "
         "stop. {2} makes {2:his} debut by standing quite still. It suited. ",
     }},
    {AngleText,
     50,
     {
         "{G} have a place to fill, and {1} fills it. {1} is in, with a shirt to prove it. "
         "{?turn}With the shirt comes the attitude, so {1} has turned as well. I shall move the "
         "card. {.}",
         "They make {1} wait in the middle, in silence, and then {G} close around {1:him}. A "
         "handshake from each. {1} has joined {G}. {?turn}It is not the {1} whom we knew, and that "
         "was well played. {.}",
     }},
    {AngleText,
     51,
     {
         "{G} have come to a decision about {1}, and carry it out with their boots. {1} is out of "
         "{G}. It was coming for a month, and they had the good sense to let it. {?turn}It makes "
         "{1} a different proposition. The crowd shifted on the spot. I could feel it. {.}",
         "{1} reaches for a handshake, and there are none to be had. {G} beat {1} down and out. So "
         "one leaves a stable. {?turn}And {1}, of all people, has now changed sides with it. {.}",
     }},
    {AngleText,
     52,
     {
         "{G} come from everywhere and lay a beating on {1}. Nobody runs into anybody. A mass "
         "attack is mainly a matter of traffic, and this was well directed. ",
         "{1} against all of {G}. I will not pretend that there was suspense. They left {1} on the "
         "ramp, in good order. ",
     }},
    {AngleText,
     53,
     {
         "A group that nobody has seen before surrounds {1}, and when it is finished there is a "
         "name: {G}. It is a debut by violence, on a {1:man} of some standing, and there is no "
         "better address. ",
         "{1} is beaten down by several people at once. They are {G}, and they are new. No speech "
         "was made. The first night of a stable should be short of words, and it was. ",
     }},
    {AngleText,
     54,
     {
         "{G} walk into the office of the Commissioner and take it over, with {1} beaten up on the "
         "carpet. It is a coup. I have seen nine. They hold for about two months, in my "
         "experience. ",
         "\"Under new management,\" says one of {G}, standing on what is left of the desk. {1}, "
         "still the Commissioner by title, is under it. Destroyed is the word on the sheet, and I "
         "cannot improve on that. ",
     }},
    {AngleText,
     55,
     {
         "{G} deal with {F:members} by weight of numbers. First one, then the other, then one "
         "again. It goes on a bit. But it does say what {G} are. ",
         "{F} {F:is} cut off, closed in and beaten down by {G}. You could see {F:him} look for "
         "each other, which was a nice detail in an ugly scene. ",
     }},
    {AngleText,
     56,
     {
         "{F} {F:is} told by {S} what to do, and {F:is} done with being told. Down go{S:es} {S}. A "
         "face turn for two, which is twice as difficult to time. The people were with it before "
         "the first punch. ",
         "{F:members} look at {S}, shake their heads, and change sides with both fists. They have "
         "turned face. I did not expect to be pleased. I am marking it as I found it. ",
     }},
    {AngleText,
     57,
     {
         "{F} come{F:s} out smiling to join {S}, and the smile was the giveaway. {S} {S:is} beaten "
         "from behind. They have turned heel, both in one night. Cold work. Good. ",
         "{F:members} wait until {S} {S:has} turned away. A heel turn by a team needs that one "
         "look between the two, and we were given it. Then the boots. ",
     }},
    {AngleText,
     58,
     {
         "{S:members} say that there is no team left to beat, and get their answer from two who "
         "are new here. It is {F:members}, on their debut. {S} had it coming. They never learn, "
         "and I would be out of work if they did. ",
         "The open challenge by {S} is taken up by {F:members}, whom I had to look up. A debut by "
         "two, straight to the point. I have given them adjoining cards. ",
     }},
    {AngleText,
     59,
     {
         "{F:members} are new, and the first thing that they do is to run over {S:members}. It is "
         "a debut attack, tight and well timed, with {S} left in a heap. They might tell us their "
         "names next. ",
         "{S} never got as far as the ring. Two newcomers saw to it: {F:members}. An impact, then, "
         "and they made it as a team. One high, one low. ",
     }},
    {AngleText,
     60,
     {
         "There follows a music video about {1}. The editing is better than it was, the music is "
         "what it always is. I learned that {1} is not to be taken lightly. So noted. ",
         "A hype video for {1}. Best moves, slowed down, and no talking. There were two moves in "
         "it that I had not seen before, so it earned its time. ",
     }},
    {AngleText,
     61,
     {
         "A video about {F:members}. They win, they pose, they win again. It was cut to the beat, "
         "and the losses were cut altogether. ",
         "We are shown {F} at {F:his} best, to music. Two minutes, forty clips, one double team "
         "worth slowing down for. It did what it was for. ",
     }},
    {AngleText,
     62,
     {
         "A music video for {G}, all walking and no hurry. You could not tell from it what they "
         "want. You could tell that they expect to get it. ",
         "{G} in slow motion, in the rain, in rows. I counted six cliches and gave up happily. It "
         "was very well lit. ",
     }},
    {AngleText,
     63,
     {
         "The stalker steps out of the dark and lets {2} see who it is: {1}. I had that name on my "
         "pad, third from the top. {?turn}So {1} is not the {1:man} we took {1:him} for. It was "
         "planned from the start, and it shows in the best way. {.}",
         "{2} gets the last note, and on it is a name. {1}, who is right behind {2:him}. The "
         "stalker has been revealed. {?turn}It turns {1} around entirely. I looked back over my "
         "notes, and the signs are all there. {.}",
     }},
    {AngleText,
     64,
     {
         "{2} sets a trap, and the stalker walks into it. The hood is off, it is {1}. Caught, and "
         "rather foolishly. They are always caught rather foolishly. {?turn}I must file {1} "
         "somewhere else from now on. {.}",
         "This time {2} was the one who waited in the dark. One arm around the neck, one look "
         "under the mask: {1}. {2} has a right to be angry, and uses it. {?turn}Exposed, {1} makes "
         "no excuses. A new side of {1:him}, and the real one, perhaps. {.}",
     }},
    {AngleText,
     65,
     {
         "A video announces {1}, on the way to {promotion}. Gym, road, skyline. I have seen the "
         "skyline in eight of them. But there was one suplex that made me rewind, so let us wait. ",
         "{1} is coming, says the screen. There is a face, a name and no date. It is the right "
         "amount to tell. I have started a card. ",
     }},
    {AngleText,
     66,
     {
         "{F:members} are on their way, by the look of a video. Two faces, half in shadow, both "
         "badly lit. A debut to wait for. ",
         "We are told to expect {F}, and shown why: a double team from somewhere with poor "
         "cameras. It was a good double team. The debut can come. ",
     }},
    {AngleText,
     67,
     {
         "It is Christmas, and a Santa is in the ring. {2} comes near enough to be hit, for "
         "beneath the beard is {1}. I have sat through this every December of my working life. It "
         "was the best wrapped one. ",
         "Santa has something for {2}: a beating, and it turns out to be from {1}. Seasonal "
         "violence. The sack had chairs in it. One year it will have presents, and I shall be "
         "lost. ",
     }},
    {AngleText,
     68,
     {
         "{1} starts the year by slapping {2}, and then again, for luck. Open hand, full swing. A "
         "resolution kept is a rare thing in January. ",
         "Happy New Year, says {1}, and slaps {2} across the face. It goes on for a bit. I make it "
         "eleven slaps, each of them fresh. ",
     }},
    {AngleText,
     69,
     {
         "{2} is surprised by something in a sheet on Halloween. It is {1}, with a chair. I did "
         "not see the chair coming. I saw everything else. ",
         "Trick or treat, and {1} goes for the first. {2} is left among the pumpkins. It comes "
         "once a year, and I would defend the practice. ",
     }},
    {AngleText,
     70,
     {
         "Sam Brandle is here, the creator of VXM. {1} makes the error of not knowing who that is. "
         "{1} is then shown, and goes down. One owes a certain amount to Sam Brandle, so I will "
         "just say that the form was excellent. ",
         "{1} calls out the old guard, and it is Sam Brandle who comes: the creator of VXM. {1} is "
         "dropped in the middle of a sentence. I stood up. It is the only time that I do, in a "
         "year. ",
     }},
    {AngleText,
     71,
     {
         "The Commissioner gives {title} to {2}, as nobody holds it. {1} does the buckle. I would "
         "rather see a match. I would rather see two people and a coin. But {2} is the champion, "
         "and so it goes in my table, with a mark behind it. ",
         "{1} awards {title} to {2}. It had been vacant, and now it has been filled by signature. "
         "{2} took it with some grace. My objection is in the post. ",
     }},
    {AngleText,
     72,
     {
         "{1} hands {title} to {O:members}. Vacant until tonight, says the Commissioner, and now "
         "filled. It is quick and it is legal. I have asked for a copy of the rule. ",
         "{1}, as Commissioner, settles the matter of {title} with a nod: {O:members} are the "
         "champions. Two belts, no match. They looked a little surprised. So did the page. ",
     }},
    {AngleText,
     73,
     {
         "It is the fourteenth of February, and {1} gets down on one knee in front of {2}. {2:he} "
         "says yes. I do not grade these. I may have had something in my eye. ",
         "{1} proposes to {2}, who accepts. Nobody came out to ruin it. I kept watching the "
         "entrance until the very end, and nobody came. Remarkable. ",
     }},
    {AngleText,
     74,
     {
         "{1} proposes. {2} lets {1:him} come to the end of it before the no. It is cruel, and it "
         "was perfectly timed. {?turn}So {2} shows us another face. It had been under the first "
         "one, I suspect. {.}",
         "A ring, a knee, a question from {1}, and a refusal from {2}. {1} stays down there for a "
         "while. I had to turn over my page. {?turn}The people will not forgive {2} that, or not "
         "for months. It was a turn without a blow. {.}",
     }},
    {AngleText,
     75,
     {
         "The lights fail, and once they are back {1} is no longer there. {G} have abducted "
         "{1:him}. It was done without a struggle, which I found worse than with one. ",
         "{1} walks to the car, and {G} are in it. {1:he} {1:is} gone before anybody has reached "
         "the door. An abduction, the second of my career. The first was never resolved. I still "
         "have the file. ",
     }},
    {AngleText,
     76,
     {
         "{G} beat {1} down, tie {1:him} up and take {1:him} away in a van. A kidnapping, in front "
         "of a loading bay full of people, who let it happen. Somebody should look into loading "
         "bays. ",
         "{1} makes a fight of it, and a decent one. But {G} have more hands, and a van. I wrote "
         "down the number plate, as one does. It has been a kidnap, and we shall hear demands. ",
     }},
    {AngleText,
     77,
     {
         "{G} beat {1}, bind {1:him} to a cross, and raise it. I do not want to grade this. The "
         "crowd did not make a sound. I suppose that is what was wanted. ",
         "{1} is crucified on the stage by {G}. There are things one can do on a show, and things "
         "one ought to do. I put the cap on my pen until it was over. ",
     }},
    {AngleText,
     78,
     {
         "A black wedding, with {G} in attendance, {1} as the groom and {2} against {2:his} will. "
         "They get as far as the vows. {?4}Then {4} breaks it up and gets {2} out of there. "
         "{.}{!4}Then {2} tears loose and is gone, veil and all. {.}So it does not go ahead. They "
         "never go ahead. I have kept the invitation. ",
         "{2} is led to {1} by {G}, in black. There is a celebrant, with a fair voice. {?4}Just "
         "short of the last words {4} comes in and carries {2} off. {.}{!4}Just short of the last "
         "words {2} kicks over the altar and runs. {.}It almost happened. As a set piece I would "
         "put it in my top five, of a field of six. ",
     }},
    {AngleText,
     79,
     {
         "{G} have {1} where they want, below a great vat, and they pull the cord. It comes down "
         "red. {1} is soaked in it. A blood bath, and I was wearing the pale coat. ",
         "It takes all of {G} to get {1} into the tub, and what is in the tub is red. {1} comes "
         "out of it the colour of a bad dream. It was well staged. I would not care to see it "
         "again, and I would not have missed it. ",
     }},
};

}  // namespace

Blocks Angles() {
  return kBlocks;
}

}  // namespace grapplemont::modTolland
