#include "report/voices.h"

namespace grapplemont::modTolland {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {DoubleDq,
     0,
     {
         "The referee has seen enough and calls for the bell. This is a double DQ. I have a drawer "
         "for these. ",
         "Both are disqualified. A double DQ settles nothing, which I take to be its purpose. ",
         "The bell goes, double disqualification. Somebody is keeping both of them strong, and the "
         "rest of us waiting. ",
     }},
    {SinglesFinish,
     kClean,
     {
         "{l} is out on {l:his} feet, and {w} has noticed. ",
         "{w} calls for it, with {l} in no state to object. ",
         "The last exchange goes to {w}, and this is going to be an honest ending. ",
         "{l} is half a second slow, and {w} does not need the other half. ",
         "The match has been moving to this. {w} has worn {l} down, and knows it. ",
         "{w} cuts {l} off for the last time. Nothing lucky about it. ",
     }},
    {SinglesFinish,
     kCountOut,
     {
         "{l} is thrown to the floor, {w} rolls back in, and the referee reaches ten. {w} wins by "
         "count out. Sigh. ",
         "{l} reaches for a chair and uses it in front of the official. {l} is disqualified and "
         "{w} wins. It was a stupid finish, executed with some conviction. ",
         "{w} and {l} fight outside, and only {w} can count. {w} wins by count out. Ten thousand "
         "hours of training, beaten by arithmetic. ",
     }},
    {SinglesFinish,
     kInterference,
     {
         "{o} comes in behind the referee and levels {l}. We have our mandatory run-in. {w} did "
         "not ask how {l} came to be lying there. ",
         "The referee is busy with a loose turnbuckle pad, so {o} is busy with {l}. {w} picks up "
         "the pieces. ",
         "{o} reaches in and trips {l}. It is small, it is neat, and it makes {w} look no better. "
         "Two sighs. ",
     }},
    {SinglesFinish,
     kBotchedInterference,
     {
         "{o} swings for {w}, {w} moves, {l} does not. The mistimed run-in, the eighth on my list "
         "this quarter. ",
         "{o} holds {w} for a free shot by {l}. {w} slips it, and {o} gets the shot. {l} stops to "
         "apologise. I would not have. ",
         "{o} throws something at {w} and hits {l}. It was either a mistake or a slow-burning "
         "plot, and I have seen both booked by accident. ",
     }},
    {SinglesFinish,
     kCheating,
     {
         "{w} takes something out of the tights, uses it on {l}, and puts it back. The referee was "
         "retying a shoe. ",
         "{w} goes low on {l}. It is the cheapest move there is, and among the best rewarded. ",
         "{w} has {l} rolled up with a foot on the second rope. The referee never looks at the "
         "foot. I always look at the foot. ",
     }},
    {SinglesFinish,
     kDoubleDq,
     {
         "{1} uses a chair, {2} uses the bell hammer, and neither will stop. ",
         "{1} and {2} both have hands on the throat and will not let go at five. One has to keep a "
         "rule or two. ",
         "{1} hits the referee, by mistake I think. {2} does it on purpose. That is the difference "
         "between them, and it costs them both. ",
     }},
    {SinglesFinish,
     kDoubleCountOut,
     {
         "{1} and {2} are still on the floor at ten. A double count out, and I could feel the air "
         "leave the room. ",
         "Neither {1} nor {2} hears the count, or says so. It is a double count out. They could at "
         "least have run out of time. ",
         "{1} and {2} are trading punches by the railing when the referee reaches ten. Double "
         "count out. The punches were good, for what it is worth. ",
     }},
    {SinglesFinish,
     kNoContest,
     {
         "{o} arrives, hits {1}, hits {2}, and takes no questions. The match is thrown out as a no "
         "contest. I turned the page rather hard. ",
         "It is going well, so here comes {o} to end it. {1} and {2} are both laid out. No "
         "contest. ",
         "{o} attacks the pair of them, and the bell rings. A no contest. {1} and {2} deserved an "
         "ending, and I deserved to see it. ",
     }},
    {SinglesFinish,
     kSportsEntertainment,
     {
         "The lights flicker, music plays, and {l} stops to look up at it. {w} does not. Somebody "
         "was paid to think of that. ",
         "A parcel addressed to {l} is brought to ringside. {l} opens it, {w} takes the opening. I "
         "would tell you what was in it, but nor would they. ",
         "Somebody in costume walks by on the stage, and {l} stares. {w} profits. They call this "
         "entertainment, and they do not call it wrestling. ",
     }},
    {SinglesFinish,
     kSickBump,
     {
         "{w} sends {l} off the apron, backwards, with nothing to break it but the floor. I have "
         "asked for less of this. It was hard to look away, and that is the argument against me. ",
         "{l} goes from the very top to the very bottom, thanks to {w}. There was no technique in "
         "it, only nerve. The building has gone quiet. ",
         "{w} throws {l} through the table at ringside from further up than I would ever allow. I "
         "did not write for a minute. {w} looked over the edge twice. ",
     }},
    {SinglesFinish,
     kDqThroughInterference,
     {
         "{o} attacks {w} in full view, so {w} wins by disqualification, and {l} can say it was "
         "never lost. That is the whole idea. Yes, I sighed. ",
         "{w} had {l} beaten until {o} came through the ropes. The bell, the disqualification, the "
         "win to {w}. Filed under stupid. ",
         "{o} strikes {w} with the referee looking on. It is a disqualification. {w} gets the "
         "decision and a headache, and I share one of those. ",
     }},
    {TagFinish,
     kClean,
     {
         "{k} has been taken out of it on the floor, and {w} has {l} to work with. It is how a tag "
         "match ought to be decided. ",
         "{j} cuts off {k}. That leaves {w} and {l}, and {w} is the fresher by some distance. ",
         "All four for a moment, then the two who count: {w} on top, {l} under. ",
         "{k} is out on the floor, {l} has nobody to tag, and {w} closes in. ",
         "{j} takes care of {k}, which is half of any tag finish. {w} turns to {l}. ",
         "{l} looks to the corner and finds it empty. {w} has seen that as well. ",
     }},
    {TagFinish,
     kCountOut,
     {
         "{l} and {k} are on the outside at ten, {w} is not. {W} win{W:s} by count out. A flat end "
         "to it. ",
         "{k} brings a chair in and swings it at {w} while the referee is still looking. {W} "
         "win{W:s} by disqualification. You have to wait for the back to be turned. They always "
         "wait. ",
         "{L} walk{L:s} away up the aisle. Ten is counted, and {W} win{W:s} by count out. A "
         "walk-out is a finish as a shrug is an answer. ",
     }},
    {TagFinish,
     kInterference,
     {
         "{j} has the ear of the referee. {O} {O:has} the head of {l}. {w} is left with the simple "
         "part. ",
         "{O} come{O:s} up on the blind side and flatten{O:s} {l}. The run-in, number three of the "
         "kinds I keep a list of. {w} is quick to profit and slow to blush. ",
         "{O} hit{O:s} {l} from the apron, {w} never looks round. I wrote down a better finish two "
         "minutes earlier. ",
     }},
    {TagFinish,
     kBotchedInterference,
     {
         "{O} take{O:s} aim at {w} and lay{O:s} out {l}. When help comes in wrestling one should "
         "run. ",
         "{w} stoops, and {l} gets what {O} had for {w}. It is an old trick, and here it was on "
         "the beat. ",
         "{O} mean{O:s} well by {L}. Then {l} walks into it. {w} has only to be there. ",
     }},
    {TagFinish,
     kCheating,
     {
         "{j} argues, the referee turns, {w} uses the tag rope on {l}. It is a very old recipe. It "
         "has never needed changing. ",
         "{w} has a handful of the tights of {l} and {j} has hold of {w} from the apron. Leverage, "
         "the learned call it. ",
         "{w} gets a little something from {j} and hits {l} with it. I saw it, you saw it. One man "
         "was looking at the crowd. ",
     }},
    {TagFinish,
     kDoubleDq,
     {
         "It breaks down to all four in the ring, as it generally does, but this time nobody goes "
         "back to the apron. ",
         "{F} and {S} bring in whatever is under the ring. The referee asks, then begs. ",
         "{F} and {S} ignore one five count too many between them. A rule has been enforced. I "
         "noted the date. ",
     }},
    {TagFinish,
     kDoubleCountOut,
     {
         "{F} and {S} are on the floor, all four, and there is nobody to be counted in. Double "
         "count out. ",
         "{F} and {S} brawl around the ring and past ten. A double count out. All that way, for "
         "that. ",
         "Neither {F} nor {S} beat the count. It goes down as a double count out, and in my book "
         "with a downward stroke. ",
     }},
    {TagFinish,
     kNoContest,
     {
         "{O} come{O:s} in swinging, at {F} and at {S} without distinction. It is ruled a no "
         "contest. Naturally. ",
         "{O} end{O:s} what {F} and {S} had begun rather well. No contest. I shall try not to take "
         "it personally. ",
         "The ring fills up, {O} {O:is} in the middle of it, {F} and {S} are down. The bell goes "
         "for a no contest. I make it the fourth this season. ",
     }},
    {TagFinish,
     kSportsEntertainment,
     {
         "A film starts playing on the screen and {l} turns to watch. It is, I suppose, only "
         "human. {w} is less so. ",
         "Somebody pulls a curtain away from something on the stage. {l} and {k} gape, {w} and {j} "
         "do not. I have been asked not to say what it was, and I would rather not. ",
         "The house lights fail at a convenient time. When they are back {l} is seeing double, and "
         "{w} sees that. Sports entertainment, as it is called by those who book it. ",
     }},
    {TagFinish,
     kSickBump,
     {
         "{w} sends {l} backwards off the ladder, to the floor. It was a stunt, and a great one, "
         "and I hope that it stays the only one. ",
         "{l} goes through two tables on the outside after a shove from {w}. Nobody near me is "
         "sitting down. I am, but I have gone white. ",
         "From the highest point to hand {w} pushes {l} off. It takes a while. I have seen people "
         "end careers on less. ",
     }},
    {TagFinish,
     kMiscommunication,
     {
         "{k} comes in to help and catches {l} by mistake. We have our mandatory miscommunication. "
         "{w} was standing where {l} is now. ",
         "{l} and {k} run into each other. You could teach children to call out. {w} takes what is "
         "offered. ",
         "{w} pulls aside, and {k} lands it on {l}. It has to be sold with the face, and {k} has "
         "the face for it. ",
     }},
    {TagFinish,
     kPartnerTurns,
     {
         "{l} crawls for the tag. {k} watches it all the way, then drops off the apron with an arm "
         "outstretched and a smile. {k} has turned on {k:his} own partner. It was set up well, I "
         "grant them that. {w} gratefully steps in. ",
         "{k} comes in as if to make the save, and hits {l} instead. A turn in the ring, mid "
         "match, in cold blood. {w} has the sense not to ask. ",
         "{l} tags, {k} lets the hand slap air, then slaps {l}. No blows needed. {k} has walked "
         "out on {l}, and {w} is waiting. ",
     }},
    {TagFinish,
     kDqThroughInterference,
     {
         "{O} attack{O:s} {w} before the eyes of the referee. {W} win{W:s} by disqualification, "
         "for all the joy it brings. ",
         "It was nearly done. Then in come{O:s} {O}, so it is a disqualification, and {W} {W:has} "
         "a win without an ending. ",
         "{O} go{O:es} after {j} first and then {w}. The bell is rung. {W} win{W:s} by "
         "disqualification, and I have run out of sighs. ",
     }},
    {CheapFinish,
     0,
     {
         "{w} schoolboys {l} with a fistful of trunks. The referee was at the wrong angle, as one "
         "is paid to be. ",
         "There is a scuffle on the apron. Behind it {w} hits {l} with something from a boot. "
         "Cheap, and tidily hidden. ",
         "With this many in the ring somebody will go low, and {w} does, on {l}. I gave it a line, "
         "and now it has had two. ",
     }},
    {SideDraw,
     0,
     {
         "{F} and {S} are on the floor together as the count runs out. A double count out, and "
         "nobody has anything to show. ",
         "The count of ten catches all of them outside. {F} and {S} draw by double count out, by "
         "which I mean that both lose. ",
         "{F} and {S} take it into the seats, and it will not come back from there. Double count "
         "out. Put in a time limit, I say, it would at least be a reason. ",
     }},
    {SideShow,
     0,
     {
         "Smoke, sirens, and a procession of some kind. {?w}{w} is the first to remember that "
         "there is a match on. {.}{!w}The match is abandoned, and I believe that was a dance. {.}",
         "Somebody has let off the fireworks early. {?w}{w} does not look up, which is what wins "
         "it. {.}{!w}By the time the smoke has gone so has the match. It is thrown out, and this "
         "is what they call entertainment. {.}",
     }},
    {TurnCosts,
     0,
     {
         "{t} waits for the tag, refuses it, and hits {l} instead. It is all done with the eyes "
         "first, so I call it good. {w} is not one to turn that down. ",
         "{l} backs into {t} and looks relieved. {t} clubs {l} from behind and leaves by the "
         "apron. {w} has the easiest job of the night. ",
         "{t} pulls {l} off the cover by a leg. Explanations will follow, and they will be long. "
         "{w} does not wait for them. ",
     }},
    {TurnWalksOut,
     0,
     {
         "{t} has words with {v}, does not get the ones {t:he} wanted, and turns around into the "
         "path of {w}. ",
         "{t} shoves {v} and refuses to go back to the corner. One should not turn on a partner "
         "with {w} standing there. ",
         "{t} slaps the offered hand of {v} away, and spends too long enjoying it. {w} is behind "
         "{t:him}. ",
     }},
    {TurnAfterWin,
     0,
     {
         "With the win in the bag {t} raises the hand of {v}, and then does not let go. {v} is "
         "laid out. To turn after a win is the colder way, and the better one. ",
         "{v} is still bowing to the crowd when {t} attacks from behind. I had seen the look. I "
         "have seen it so often. ",
         "{t} waits for the music, nods to the beat, and drops {v} on the winning side's own mat. "
         "A turn, and well timed. ",
     }},
    {TurnDraw,
     0,
     {
         "{t} turns on {v} and everything falls apart. The bell is rung with no winner, and I "
         "cannot say that I followed the rules to that point. ",
         "{t} attacks {v}, {F} and {S} lose all order, and the referee ends it with no result. A "
         "turn is an ending for one only. ",
         "{v} is felled by {t}. {F} and {S} fight on over it until it is called off. It is a draw, "
         "for the book. ",
     }},
    {TitleOpening,
     kDefended,
     {
         "{title} {title:is} on the line. {c} defend{c:s}, which is what a title is for. ",
         "{c} put{c:s} {title} at stake. A title match gets a page of its own. ",
         "At stake {title:is} {title}, held by {c}. I expect a slower start and a better finish. ",
     }},
    {TitleOpening,
     kVacant,
     {
         "{title} {title:is} vacant, and this will fill it. That beats handing it over on a "
         "cushion. ",
         "The winner gets {title}, which nobody holds. An empty title makes for careful "
         "wrestling. ",
         "No champion walks out with {title}, for there is none. One will walk back. ",
     }},
    {TitleOpening,
     kChampionAway,
     {
         "{title} {title:is} at stake, and the champion is not in the match. I have read the sheet "
         "three times. ",
         "This is for {title}. The champion is not taking part. There is a rule for that, they "
         "tell me, and they could not find it. ",
         "The champion can lose {title} here without being beaten, or being present. I remain "
         "calm. ",
     }},
    {FeudOpening,
     kSimmers,
     {
         "{F} and {S} have had dealings. It gives the match a floor to stand on. ",
         "There is an open account between {F} and {S}, with modest interest so far. ",
         "{F} and {S} do not care for each other. It shows, in small ways, and small ways are the "
         "right ones. ",
         "There is some feeling between {F} and {S}. It is not yet a story, but it has a first "
         "page. ",
         "{F} and {S} have met before, and it was not settled. So they lock up a little harder. ",
     }},
    {FeudOpening,
     kBoils,
     {
         "{F} and {S} have built to this for weeks. No lock-up, they go straight to fists. "
         "Correct. ",
         "The heat between {F} and {S} is real, or so well made that I cannot tell. Either will "
         "do. ",
         "{F} against {S} is why the people came. It has been the best thing in this column for a "
         "while. ",
         "{F} and {S}. I could fill the page with how it came to this. They fill it with fists. ",
         "Few things here have been told as well as {F} against {S}. Now they have to pay for it. ",
     }},
    {DebutOpening,
     0,
     {
         "{t} make{t:s} {t:his} debut. A new page. I write the name at the top, in pencil. ",
         "This is the first match of {t} in {promotion}. I look for footwork, and I look for "
         "nerves. ",
         "{t} {t:is} new here. I give everyone three matches before I say anything unkind. ",
     }},
    {ChampionNote,
     0,
     {
         "{c} hold{c:s} {title}, though not for tonight's purposes. Non-title, so you may draw "
         "your own conclusions. ",
         "{title} belong{title:s} to {c} and stay{title:s} with {c:him}, whatever happens here. ",
         "{c} brought {title} along and will take {title:it} home again. Champions lose such "
         "matches more often than they should. ",
         "A word for the record: {c} hold{c:s} {title}. Nobody can win {title:it} here. ",
         "{title} {title:is} not at stake. {c} could lose and lose nothing, which has never helped "
         "a match. ",
         "{c} {c:is} announced with {title}, and the fans are right to expect a little more. ",
     }},
    {SinglesAftermath,
     after1::kAttacksReferee,
     {
         "{l} lays out the referee, who was only doing sums. A fine follows. A fine always "
         "follows. ",
         "{l} takes the result up with the referee, by the collar. That is a month off for "
         "somebody, and it will not be {l}. ",
     }},
    {SinglesAftermath,
     after1::kTantrum,
     {
         "{l} throws a temper tantrum with the ring steps. Six on the tantrum scale, good "
         "extension. ",
         "{l} argues, shouts, kicks the bottom rope and hurts a toe. It was more lively than some "
         "of the match. ",
     }},
    {SinglesAftermath,
     after1::kRunInOnFirst,
     {
         "After the bell {o} jumps {1}. We have our mandatory post-match beating. ",
         "{o} has come down to attack {1}. I will need to hear a reason, and I may even get one. ",
     }},
    {SinglesAftermath,
     after1::kRunInOnSecond,
     {
         "{o} runs in on {2}. Short, sharp, and it says what it has to. ",
         "{2} is still catching {2:his} breath when {o} takes it away again. ",
     }},
    {SinglesAftermath,
     after1::kRunInOnBoth,
     {
         "{o} attacks both {1} and {2}. Two birds, one stone, no explanation. ",
         "{1} is hit first and {2} second. {o} has clearly come for the pair. ",
     }},
    {SinglesAftermath,
     after1::kRevengeAttack,
     {
         "{l} will not leave it there and attacks {w} from behind. It keeps the programme warm. ",
         "{l} hits {w} on the way up the aisle. Sore losing is half of this industry. ",
     }},
    {SinglesAftermath,
     after1::kBeatDown,
     {
         "{w} goes on with it after the bell. {l} was beaten once already. The second time is for "
         "my benefit, I suppose. ",
         "{w} keeps at {l} until officials appear. They are never quick. ",
     }},
    {SinglesAftermath,
     after1::kGetsRevenge,
     {
         "{l} goes straight for {o}, and then for {w}. Both leave in a hurry. Crowd satisfied, "
         "balance restored, three sentences. That is economy. ",
         "{l} gets up before {w} and {o} have finished gloating, and clears the ring. It is good "
         "to see somebody get up. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnLoser,
     {
         "{w} and {o} put the boots to {l} together. It does make them a pair. It was plain enough "
         "after the first boot. ",
         "{o} holds, {w} hits, {l} suffers. The classic division of labour. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnWinner,
     {
         "{l} gets help from {o}, and {w} is beaten down. The win will be forgotten, and that is "
         "rather the point. ",
         "{o} and {l} make it two on one against {w}. If only somebody came to the rescue. Another "
         "week. ",
     }},
    {SinglesAftermath,
     after1::kAttacksRunIn,
     {
         "{l} turns on {o} for the part that {o:he} played in it. It was about time, and about "
         "right. ",
         "{o} stays to explain. {l} is past that, and lets fly. Reasonable behaviour is so rare. ",
     }},
    {SinglesAftermath,
     after1::kRunInDestroys,
     {
         "{o} lays out {1} and then {2}. It is a statement, and the statement is {o}. ",
         "{1} falls, {2} falls, {o} does not. They want us to think of {o} as dangerous. I do. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnFirst,
     {
         "{2} and {o} are suddenly on the same side, and {1} is on the other. Somebody wrote that "
         "on the back of a napkin. ",
         "{o} comes in and {2} does not object. {1} takes a two on one beating of medium length. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnSecond,
     {
         "{1} joins {o} in stamping on {2}. Alliances are cheap here. I keep a ledger. ",
         "{2} against {1} and {o}: it lasts as long as it takes to type that out. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnRunIn,
     {
         "{o} has misjudged it. {1} and {2} put the match aside and see to {o} together. ",
         "{1} and {2} join forces for a moment and clear {o} out. Best teamwork on the show. ",
     }},
    {SinglesAftermath,
     after1::kThreeWayBrawl,
     {
         "{1}, {2} and {o} fight it out, all against all. The desk in the way came fourth. ",
         "A three way brawl of {1}, {2} and {o}, with nobody on top at the end of it. I suspect a "
         "plan. ",
     }},
    {SinglesAftermath,
     after1::kLoserRuns,
     {
         "{l} leaves over the barrier and does not look back. Best time of the night over forty "
         "yards. ",
         "{l} is gone before the hand of {w} is up. Cowardice is an underrated character trait. ",
     }},
    {SinglesAftermath,
     after1::kHandshake,
     {
         "{1} and {2} shake hands, and both seem to mean it. It costs nothing, and I would have it "
         "more often. ",
         "A handshake between {1} and {2}. I waited for the kick. There was no kick. I am moved, "
         "in my way. ",
     }},
    {SinglesAftermath,
     after1::kCheapShot,
     {
         "{l} holds out a hand, and it is the oldest lie in the trade. {w} takes it, and the cheap "
         "shot follows. ",
         "{w} accepts the handshake and gets a boot. You would think that {w:he} had never seen "
         "{l}, or a wrestling show. ",
     }},
    {SinglesAftermath,
     after1::kFirstRefusesHand,
     {
         "{2} offers the hand and {1} declines it. There is a story in that, if somebody picks it "
         "up. ",
         "{1} looks at the hand of {2}, then at {2}, and goes. Understated. I liked it. ",
     }},
    {SinglesAftermath,
     after1::kSecondRefusesHand,
     {
         "{2} will not shake the hand of {1}. Now we know where we are. ",
         "{1} extends a hand. {2} thinks it over for rather long and leaves it there. Good acting, "
         "that pause. ",
     }},
    {SinglesAftermath,
     after1::kBrawlToTheBack,
     {
         "{1} and {2} brawl to the back, through a curtain and out of my jurisdiction. ",
         "It goes on up the aisle, {1} with {2} by the hair, then the reverse. That will run and "
         "run. ",
     }},
    {SinglesAftermath,
     after1::kWinnerRuns,
     {
         "{w} takes the win and goes, at some pace. Getting out with it is half of the skill. ",
         "{w} has left before {l} can get up. One cannot call it noble. One can call it quick. ",
     }},
    {SinglesAftermath,
     after1::kAssaultGoesOn,
     {
         "{o} has not finished with {v}. I had. It goes on all the same. ",
         "{o} keeps up the attack on {v} well past what was needed. Somebody ought to come. Nobody "
         "does. ",
     }},
    {SinglesAftermath,
     after1::kSave,
     {
         "{o} and {u} have {v} down, and then {p} makes the save. Clean, timely, the crowd liked "
         "it. Saves are seldom wrong. ",
         "{p} comes to the aid of {v} and sees off {o} and {u}. So we have a new friendship, and "
         "probably a match. ",
     }},
    {SinglesAftermath,
     after1::kFailedSave,
     {
         "{p} tries to save {v}. {o} and {u} were ready for it. Now there are two on the mat, and "
         "that I had not expected. ",
         "{p} runs in for {v} and is cut down at once by {o} and {u}. A rescue that fails does "
         "more than one that works. ",
     }},
    {TagAftermath,
     after2::kRevenge,
     {
         "{L} attack{L:s} {W} from behind before the result is even read out. A return match, I "
         "would guess. ",
         "{L} {L:is} not having it, and go{L:es} after {W}. The beaten want another go. Who does "
         "not? ",
     }},
    {TagAftermath,
     after2::kBeatenDown,
     {
         "{W} go{W:es} on beating {L} after the bell. It adds nothing but time. ",
         "The match is won, yet {W} {W:is} still at it, with {L} on the floor. Point made, I "
         "should say. ",
     }},
    {TagAftermath,
     after2::kFirstTurns,
     {
         "{1} has a few words for {2}, and then an elbow. {1} has turned on {2}. The team was good "
         "for one more month, by my estimate. ",
         "{1} drops {2} without a word. I give the turn a seven, and the timing an eight. ",
     }},
    {TagAftermath,
     after2::kSecondTurns,
     {
         "{2} lets {1} walk in front and hits {1:him} from behind. So ends that. {2} has turned. ",
         "A pat on the back from {2} for {1}, and then the other hand. {2} turns on {1}, and few "
         "in here saw it coming. I had it for week nine. ",
     }},
    {TagAftermath,
     after2::kThirdTurns,
     {
         "{3} attacks {4}. It was in the way that {3} stood on the apron, all night. ",
         "{3} lifts {4} up only to put {4:him} down. A turn, with good body language. ",
     }},
    {TagAftermath,
     after2::kFourthTurns,
     {
         "{4} has had enough and floors {3}. {4} has turned, and tag team wrestling is the "
         "poorer. ",
         "{4} holds the ropes open for {3}, then kicks. That is a turn. It is also a waste of good "
         "manners. ",
     }},
    {TagAftermath,
     after2::kBrawling,
     {
         "{F} and {S} are still fighting. It was never about the match. ",
         "{F} and {S} brawl on past the bell, while officials hang on to whoever is nearest. ",
     }},
    {TagAftermath,
     after2::kFirstBeatsSecond,
     {
         "{F} get{F:s} the better of the fight that follows and stand{F:s} over {S}. ",
         "{F} drop{F:s} {S} one at a time, in order, and leave{F:s}. Neatly filed. ",
     }},
    {TagAftermath,
     after2::kSecondBeatsFirst,
     {
         "{S} win{S:s} the fight after the match. {F} {F:has} to be helped up. ",
         "{S} {S:has} the last word, and {F} {F:is} lying under it. ",
     }},
    {TagAftermath,
     after2::kAssaultGoesOn,
     {
         "{O} carr{O:ies} on against {V}. My pen has stopped, they have not. ",
         "{O} {O:is} still in there, and {V} {V:is} still taking it. It could be cut by half. ",
     }},
    {TagAftermath,
     after2::kThreeOnTwo,
     {
         "{o} joins {U} and it is three on two. {V} {V:has} no chance, nor {V:is} meant to have. ",
         "With {o} added to {U} the beating of {V} takes very little time. ",
     }},
    {TagAftermath,
     after2::kAttackRunIn,
     {
         "{L} settle{L:s} up with {o}, there and then. Prompt payment. ",
         "{o} tries to slip away, but {L} {L:has} not forgotten. It is short and it is deserved. ",
     }},
    {TagAftermath,
     after2::kAttackRunIns,
     {
         "{L} go{L:es} after {O}, and I can follow the reasoning. It is a nice change. ",
         "{O} stood about too long. {L} get{L:s} to {O:him}, with interest. ",
     }},
    {TagAftermath,
     after2::kThreeTeamBrawl,
     {
         "{F} fight{F:s} {S}, and {O} fight{O:s} both. Three sides with reasons: we may have a "
         "match out of that. ",
         "A three team brawl: {O} and everybody else. I write down who hit whom, and give up. ",
     }},
    {TagAftermath,
     after2::kLosersArgue,
     {
         "{l} and {k} argue about it. First comes the argument, then the miscommunication, then "
         "the turn. I have seen the calendar. ",
         "{k} blames {l}, {l} blames {k}. From here I would say that both have a case. ",
     }},
    {TagAftermath,
     after2::kThreeOnOne,
     {
         "{k} sides with {W}, and {l} is alone with three. A handicap beating. It is brisk. ",
         "{l} looks to {k} for help. {k} helps {W}. It was a good look while it lasted. ",
     }},
    {TagAftermath,
     after2::kSave,
     {
         "{Q} make{Q:s} the save, and {V} {V:is} spared the rest. {U} back{U:s} off. Marks for "
         "punctuality. ",
         "{Q} come{Q:s} out to even the odds for {V}. The ring is cleared. It is old, it works, "
         "leave it alone. ",
     }},
    {TagAftermath,
     after2::kFailedSave,
     {
         "{Q} run{Q:s} to help {V} and {Q:is} beaten down as well. It makes the attackers. I had "
         "thought that nobody booked that any more. ",
         "The rescue of {V} by {Q} fails. It is two heaps now. I would have had one of them get "
         "up. ",
     }},
    {TagAftermath,
     after2::kBrawlToTheBack,
     {
         "{F} and {S} fight up the aisle and to the back. The camera stays where it was, out of "
         "breath. ",
         "Through the curtain go {F} and {S}, still swinging. It ends in a dot, dot, dot. ",
     }},
    {TagAftermath,
     after2::kRunInOnFirst,
     {
         "{Q} attack{Q:s} {1} after the bell. I look for the motive and leave a gap on the page. ",
         "Nobody is watching {1} but {Q}, who wait{Q:s} for the lull. It was a good lull. ",
     }},
    {TagAftermath,
     after2::kRunInOnSecond,
     {
         "{Q} pick{Q:s} out {2} for a beating. There must be a reason. I shall look back through "
         "my notes. ",
         "{2} is jumped by {Q}, right after the bell. Nothing that I would file under subtle. ",
     }},
    {TagAftermath,
     after2::kRunInOnThird,
     {
         "{3} has {Q} to deal with now. It does not go well for {3}. ",
         "{Q} come{Q:s} from under the stage and fall{Q:s} on {3}. Nobody has ever explained what "
         "they are all doing under there. ",
     }},
    {TagAftermath,
     after2::kRunInOnFourth,
     {
         "{Q} leave{Q:s} {4} lying and the rest guessing. ",
         "{4} gets the attentions of {Q}. Two for force, one for logic. ",
     }},
    {TagAftermath,
     after2::kRunInOnFirstTeam,
     {
         "{Q} beat{Q:s} down {F}, and it is no accident that it comes on this night. ",
         "{F} {F:is} ambushed by {Q}. The seeds of a programme, planted with boots. ",
     }},
    {TagAftermath,
     after2::kRunInOnSecondTeam,
     {
         "{S} had enough to bear already. {Q} add{Q:s} to it, with fists. ",
         "{Q} storm{Q:s} in on {S}. As a message it lacks words, but it reads well. ",
     }},
    {TagAftermath,
     after2::kRunInOnBoth,
     {
         "{Q} attack{Q:s} {F} and {S} alike. They are all for equal treatment. ",
         "{Q} put{Q:s} down {F} first, then {S}. If the office meant it as a statement, it was "
         "legible. ",
     }},
    {TitleEnding,
     kRetained,
     {
         "{C} keep{C:s} {title}. Business as usual, and rightly. ",
         "{title} stay{title:s} with {C}. A good reign is a matter of nights like this. ",
         "{C} still hold{C:s} {title}. The line under that reign grows by one. ",
         "{title} {title:does} not move. {C} {C:has} another defence in the book. ",
         "A defence for {C}. {title} will be here next time, and so shall I. ",
     }},
    {TitleEnding,
     kNewChampion,
     {
         "{C} {C:has} taken {title} from {c}. A change of champion. I put down the date. ",
         "New name on {title}: {C}. {c} had a reign, and I will total it up later. ",
         "{title} change{title:s} hands. {C} win{C:s}, {c} lose{c:s}, and my forecast was two "
         "months out. ",
     }},
    {TitleEnding,
     kVacancyFilled,
     {
         "{title} {title:is} vacant no longer. {C} hold{C:s} {title:it} now, won in a ring. ",
         "{C} take{C:s} the vacant spot with {title}. That is one gap in my table filled. ",
         "So {title} go{title:es} to {C}. Let us hope for defences. ",
     }},
    {TitleEnding,
     kKeptThoughBeaten,
     {
         "{c} lose{c:s} the match and keep{c:s} {title}. There are rules for that, and they have "
         "made a lot of money over the years. ",
         "{title} {title:does} not change hands on that kind of finish. {C} won nothing but the "
         "match. ",
         "{C} win{C:s}, yet {title} stay{title:s} with {c}. I have known since I was seven how "
         "that works, and it still irks. ",
     }},
    {TitleEnding,
     kKeptByDraw,
     {
         "{c} keep{c:s} {title} with a draw. Nobody beat the champion, nobody was beaten. ",
         "No winner, no change. {title} stay{title:s} with {c}. ",
         "A draw favours the holder, so {title} go{title:es} home with {c}. I make no comment. ",
     }},
    {TitleEnding,
     kWonInAbsence,
     {
         "{C} now hold{C:s} {title}, off a champion who was not in the match. I have stopped "
         "asking. ",
         "{title} go{title:es} to {C}. The old champion will hear it from somebody. It would be a "
         "courtesy to ring. ",
         "With the champion elsewhere {C} win{C:s} {title}. It counts. I looked into it. ",
     }},
    {FeudEnding,
     kFeudGoesOn,
     {
         "It is not the last of {F} and {S}, and I am in no hurry. ",
         "{F} and {S} have more left. Do not rush it, please. ",
         "There is a next chapter in {F} and {S}. For once I want to read it. ",
         "{F} and {S} are not done, and the crowd would not have it otherwise. ",
         "It stays open between {F} and {S}. I leave a gap on the page. ",
         "{F} and {S} leave something for another night. Restraint is a skill. ",
     }},
    {FeudEnding,
     kFeudIsOver,
     {
         "That is the end of it between {F} and {S}. Ended in the ring, where they should be. ",
         "{F} and {S} are done. It ran its length and stopped, which is an art in itself. ",
         "I can close the file on {F} and {S}. I will keep it. ",
     }},
    {PurposeEnding,
     kGoodMatchTold,
     {
         "{F} and {S} were asked for a match and delivered one. ",
         "{F} and {S} wrestled, without a story to lean on. I could do with one a week. ",
         "Take away everything around it, and {F} and {S} would still have had that. ",
         "No angle, no fuss, a match. {F} and {S} may do that on every card I see. ",
         "{F} and {S} were given time and used it. It is rarer than it sounds. ",
     }},
    {PurposeEnding,
     kPutOverTold,
     {
         "{t} come{t:s} out of that better than {t:he} went in. It was meant so, and it worked. ",
         "All of it was there to make {t}, and {t} was made. Some are asked to build and some to "
         "be built. ",
         "I had not given {t} much of a page. I have now turned to a bigger one. ",
         "If the point was to lift {t}, then the point was made, and not laboured. ",
         "{t} will be taken more seriously from here on. I have started. ",
         "The fans left their seats for {t}. I note that for the next time. ",
     }},
    {PurposeEnding,
     kBothOverTold,
     {
         "Both come out ahead, {F} and {S}. It is the hardest trick in the book. ",
         "{F} gain{F:s} by it, and {S} {S:does} too. Would that it were always so. ",
         "You could not say who was the stronger for it, {F} or {S}. Somebody with a steady hand "
         "laid that out. ",
     }},
    {PurposeEnding,
     kEyeCandyTold,
     {
         "It was meant for the eyes, I believe. Mine are past it. ",
         "As an athletic contest: no. As what it was, I am not the one to ask. ",
         "I used the time to bring my files up to date. ",
     }},
    {PurposeEnding,
     kRunInDebutTold,
     {
         "That was {t}, newly of {promotion}. They could have been introduced. This was better. ",
         "So {t} {t:has} arrived. A debut by run-in is a cliche, but a serviceable one. ",
         "{t}, ladies and gentlemen, unannounced. I start a card with {t:his} name on it. ",
     }},
    {Turn,
     kTurnsHeel,
     {
         "{t} {t:has} turned on the people. Good. They were getting bored, and so {t:was} {t}. ",
         "A heel turn for {t}. It could have waited, but so could I have, and I have waited long "
         "enough. ",
         "{t} go{t:es} over to the other side. I had marked down three hints. They were there if "
         "you looked. ",
     }},
    {Turn,
     kTurnsFace,
     {
         "{t} {t:is} with the crowd now. They had made up their minds some weeks ago. ",
         "A face turn for {t}, and the noise was real. You cannot order that noise. ",
         "{t} do{t:es} the right thing for once. I hope they let it last. ",
     }},
    {Turn,
     kTweenerTurns,
     {
         "{t} {t:has} come off the fence. I shall miss the ambiguity, such as it was. ",
         "In the end {t} had to pick one. It is tidier for my files. ",
         "{t} stood in the middle for a good while. The middle is where careers wait. ",
     }},
    {Turn,
     kBaffling,
     {
         "It was plain enough what {t} did, and not at all why. The crowd could only frown. ",
         "A turn wants a reason and some weeks of warning. {t} had neither to offer, and it died "
         "in the front row. ",
         "The crowd had no idea what to make of {t}, and made nothing of it. One red mark. ",
     }},
};

}  // namespace

Blocks Finishes() {
  return kBlocks;
}

}  // namespace grapplemont::modTolland
