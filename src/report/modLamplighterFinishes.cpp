#include "report/voices.h"

namespace grapplemont::modLamplighter {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {DoubleDq,
     0,
     {
         "The referee has had enough and calls for the bell. This is a double DQ. ",
         "The referee throws both arms up, looks for a third, and calls for the bell. Everybody is "
         "disqualified, and so is my accountant. ",
         "Ring it, ring it! The referee throws the whole thing out, double disqualification. ",
     }},
    {SinglesFinish,
     kClean,
     {
         "{w} sees the opening, and it's a barn door. ",
         "{l} swings, {w} doesn't mind, and here comes the end. ",
         "{w} drags {l} to the middle and lets the crowd know what is next. ",
         "{l} is on wobbly legs, and {w} can smell it from there. ",
         "{l} goes for one big swing too many, and {w} isn't where the swing is. ",
         "Something in {l} has just run out. I think it was everything. {w} moves in. ",
     }},
    {SinglesFinish,
     kCountOut,
     {
         "Out on the floor {w} drops {l} on the railing and dives back in at nine. {l} does not "
         "make it, and {w} wins by count out. ",
         "{l} has a chair, the referee has eyes for once, and {l} is disqualified. {w} wins, with "
         "a lump. ",
         "{l} goes for a walk, the referee counts to ten, and {w} wins by count out, sitting on "
         "the top rope. ",
     }},
    {SinglesFinish,
     kInterference,
     {
         "While the referee looks for a contact lens, {o} runs in and brains {l} with the belt of "
         "somebody's trousers. {w} says thanks. ",
         "{o} is on the apron, {l} takes the bait, and {w} takes {l} from behind. ",
         "Here comes {o}! One swing at {l}, gone again, and {w} wouldn't know a thing about it. ",
     }},
    {SinglesFinish,
     kBotchedInterference,
     {
         "{o} runs in, swings at {w}, misses, and flattens {l}. You had one job! ",
         "{o} throws powder at {w}. {w} ducks. {l} is now a very surprised doughnut. ",
         "{o} holds {w} for {l}, {l} charges, {w} moves. {o} and {l} bang heads like coconuts. ",
     }},
    {SinglesFinish,
     kCheating,
     {
         "{w} has something in {w:his} boot, then in {w:his} fist, and then it's on the jaw of "
         "{l}. What referee? ",
         "{w} hits {l} where the sun is shy, and smiles at the referee like a choirboy. ",
         "A thumb to the eye of {l}, both feet on the ropes. {w} has won prettier ones. ",
     }},
    {SinglesFinish,
     kDoubleDq,
     {
         "{1} swings a chair, {2} swings a bell, and nobody is listening to the referee. ",
         "{1} and {2} are both choking each other, and then both of them choke the referee. ",
         "{1} shoves the referee, {2} shoves the referee back. Stripes has had it with the pair of "
         "them. ",
     }},
    {SinglesFinish,
     kDoubleCountOut,
     {
         "{1} and {2} brawl past the railing, past the programme seller, past ten. Double count "
         "out! ",
         "Eight, nine, ten, and {1} and {2} are still on the floor arguing over a chair. Nobody "
         "wins. ",
         "Out on the floor {1} and {2} don't hear the count. I did. It got to ten. A double count "
         "out. ",
     }},
    {SinglesFinish,
     kNoContest,
     {
         "Here's {o}, and {o} hits {1}, and {o} hits {2}, and nobody can call this a match any "
         "more. No contest. ",
         "{o} comes through the crowd and wipes out {1} and {2} both. It's thrown out as a no "
         "contest. ",
         "{o} has ruined it for everyone! {1} and {2} are down, and the referee waves it off. No "
         "contest! ",
     }},
    {SinglesFinish,
     kSportsEntertainment,
     {
         "The lights go out, the lights go on, {l} is covered in foam and nobody will say why. {w} "
         "makes the most of it. ",
         "A dancing bear distracts {l}. I swear I've had only the two beers. {w} doesn't ask "
         "questions. ",
         "Music plays, it's nobody's, {l} stares at the ramp, and {w} is right behind. Sports "
         "entertainment, folks. ",
     }},
    {SinglesFinish,
     kSickBump,
     {
         "{w} throws {l} off the top of everything. Oh no. Oh no! The thud came a second later. ",
         "{l} goes backwards through the announce table from so high up that I had time to pray. "
         "{w} looks sorry for almost a second. ",
         "{w} sends {l} off the side, down, down, into the floor. I'm not joking about that one. ",
     }},
    {SinglesFinish,
     kDqThroughInterference,
     {
         "{o} jumps {w} in front of the referee, three judges and me. That's a DQ, so {w} wins, "
         "flat on {w:his} back. ",
         "{w} had it won until {o} came in with both boots. The bell rings, and {w} wins by "
         "disqualification. ",
         "{o} can't wait and hits {w} with a chair. {l} is disqualified, {w} wins, and sees "
         "stars. ",
     }},
    {TagFinish,
     kClean,
     {
         "{k} is down on the floor, {l} is all alone, and {w} licks {w:his} lips. ",
         "{j} keeps {k} busy, and {w} has {l} where {w:he} want{w:s} {l:him}. ",
         "Everybody is in, everybody is out, and it's {w} with {l} in the middle. ",
         "{j} sends {k} off the apron, and that leaves {w} alone with {l}. ",
         "The tags have stopped, the plans have gone, and {w} has hold of {l}. ",
         "{k} arrives one second late to the break-up, and {w} has {l} all lined up. ",
     }},
    {TagFinish,
     kCountOut,
     {
         "{l} and {k} fight on the floor, {w} slides in, and the ten is in the book. {W} win{W:s} "
         "by count out. ",
         "{k} breaks a chair on {w}, and the referee was facing that way. {W} win{W:s} by "
         "disqualification. ",
         "{L} {L:has} had enough and take{L:s} a walk. Count them out: {W} win{W:s}. ",
     }},
    {TagFinish,
     kInterference,
     {
         "{O} slip{O:s} in while the referee shouts at {j}, and {l} never sees it coming. {w} "
         "does. ",
         "In come{O:s} {O}, down goes {l}, out go{O:es} {O}. {w} drops an arm on what's left. ",
         "{O} trip{O:s} {l} from outside, and {w} is on {l:him} like jam on a carpet. ",
     }},
    {TagFinish,
     kBotchedInterference,
     {
         "{O} come{O:s} to help {L}, swing{O:s} at {w}, and flatten{O:s} {l}. With friends like "
         "that! ",
         "{O} aim{O:s} for {w} and hit{O:s} {l}. Geography was never {O:his} subject. ",
         "{w} ducks, {O} {O:does} not stop in time, and {l} takes all of it. ",
     }},
    {TagFinish,
     kCheating,
     {
         "{j} has the referee by the ear and {w} has {l} by the tights. Robbery! ",
         "{w} borrows the tag rope for the throat of {l}. Nobody saw, except everybody. ",
         "{j} slips {w} something hard, and {w} slips it to {l}. ",
     }},
    {TagFinish,
     kDoubleDq,
     {
         "All four of them are in, with chairs, and the referee is under the ring. ",
         "{F} and {S} stop pretending to tag. The referee gets hit from both sides. ",
         "{F} and {S} have thrown out the rules, so the referee throws them after. ",
     }},
    {TagFinish,
     kDoubleCountOut,
     {
         "{F} and {S} fight up the aisle and the count reaches ten without them. Double count "
         "out! ",
         "All four are on the floor at ten. {F} and {S} don't care. Double count out. ",
         "{F} and {S} are counted out together, and it's the first thing they've agreed on. ",
     }},
    {TagFinish,
     kNoContest,
     {
         "{O} storm{O:s} the ring and hit{O:s} whatever moves. {F} and {S} were what moved. No "
         "contest! ",
         "The bell rings since {O} {O:is} in there swinging at {F} and {S}. A no contest, and a "
         "shame. ",
         "{O} {O:has} gatecrashed it. {F} {F:is} down, {S} {S:is} down, and it's no contest. ",
     }},
    {TagFinish,
     kSportsEntertainment,
     {
         "The lights go out. When they're back there's a cake in the ring and {l} is in it. Ask "
         "{w}. ",
         "{l} and {k} see a ghost on the big screen. {w} and {j} see a chance. ",
         "A siren goes, balloons fall, {l} is confused and {w} is not. Sports entertainment! ",
     }},
    {TagFinish,
     kSickBump,
     {
         "{l} goes off the ladder, over the ropes and through the floor, thanks to {w}. Good "
         "grief! ",
         "{w} kicks the ladder away, and {l} falls for so long that I could have filed this. ",
         "{l} is thrown from the very top by {w}. That crunch was not the popcorn. ",
     }},
    {TagFinish,
     kMiscommunication,
     {
         "{k} swings at {w}, {w} ducks, and {k} knocks out {l}. They'll talk about it at home. ",
         "{l} runs right into {k}. Their heads make a lovely sound. {w} is there. ",
         "{k} lands the big one on {l}, who is on {k:his} own side, for the record. Cheers, says "
         "{w}. ",
     }},
    {TagFinish,
     kPartnerTurns,
     {
         "{l} reaches for the tag, {k} looks at the hand, and hits {l} instead! {k} has turned on "
         "{k:his} own partner! ",
         "{k} floors {k:his} own partner with a right hand to the jaw, then drops down off the "
         "apron. {l} never saw who it was. {w} did. ",
         "{k} comes in to save {l}, and lays {l:him} out. Judas had better manners. {w} looks for "
         "the catch. ",
     }},
    {TagFinish,
     kDqThroughInterference,
     {
         "{O} jump{O:s} {w} and {j} in plain view. {W} win{W:s} by disqualification and will feel "
         "rotten about it. ",
         "{O} {O:is} in with chairs, so the bell goes. It's a DQ, and {W} win{W:s}. ",
         "{w} had {l} beaten, but {O} spoil{O:s} it. Disqualification! {W} win{W:s}. ",
     }},
    {CheapFinish,
     0,
     {
         "{w} pulls {l} down by the tights while five people block the view. Cheap! ",
         "{w} hits {l} with a foreign object. Domestic ones work as well, I'm told. ",
         "With the referee sorting out the traffic, {w} goes low on {l}. ",
     }},
    {SideDraw,
     0,
     {
         "They are all out on the floor, all of them, and the count is ten. {F} and {S} are "
         "counted out. ",
         "{F} and {S} brawl into the crowd. Eight, nine, ten, and that's a double count out. ",
         "Nobody comes back in. {F} and {S} have gone sightseeing. Double count out! ",
     }},
    {SideShow,
     0,
     {
         "Out goes the light, in comes the smoke, on comes the music. {?w}{w} is the only one who "
         "read the script.{.}{!w}When it clears nobody has won, and a goat is in the ring.{.} ",
         "Fireworks! Someone leaned on the button. {?w}{w} is the first to stop staring.{.}{!w}The "
         "whole match is thrown out and everybody dances. Sports entertainment.{.} ",
     }},
    {TurnCosts,
     0,
     {
         "{t} floors {t:his} own partner with a right hand to the jaw, then drops down off the "
         "apron. {w} scores with a quick small package on {l}. {t} leaves the ring with the chair "
         "in hand. ",
         "{l} looks for help, and {t} helps {l:him} to a chair, across the back! {w} can't believe "
         "{w:his} luck, and {t} can't stop grinning. ",
         "{t} drops off the apron just as {l} needs the tag, waves goodbye, and comes back to trip "
         "{l:him}. {w} pounces. ",
     }},
    {TurnWalksOut,
     0,
     {
         "{t} tells {v} where to go, swings and misses, and turns straight into {w}. ",
         "{t} slaps {v} in front of everyone, and {v} lets {w} have {t:him}. ",
         "{t} has had it with {v}, and says so with {t:his} fists. {w} taps {t:him} on the "
         "shoulder. ",
     }},
    {TurnAfterWin,
     0,
     {
         "They celebrate, {t} lifts the arm of {v}, and then clotheslines {v:him} out of {v:his} "
         "boots. Some party! ",
         "The music plays, {v} smiles, and {t} hits {v} from behind with a chair. They WON! ",
         "{t} hugs {v}. {t} does not let go. {t} drops {v} on {v:his} head. ",
     }},
    {TurnDraw,
     0,
     {
         "{t} turns on {v}! Now everybody hits somebody, and the referee can't find a match in "
         "there to referee. It's thrown out. ",
         "{t} lays out {v} with a chair, {F} and {S} pile in, and the bell just keeps on ringing. "
         "No winner. ",
         "{t} stabs {v} in the back, and {F} and {S} boil over. A draw, if you want to be tidy. ",
     }},

    {TitleOpening,
     kDefended,
     {
         "{title} {title:is} at stake, and {c} bring{c:s} {title:it} in polished. ",
         "{c} put{c:s} up {title}. I wouldn't, but then I'd never have won it. ",
         "{title}: {c} {c:has} {title:it}, everybody else wants {title:it}. ",
     }},
    {TitleOpening,
     kVacant,
     {
         "{title} {title:has} no owner tonight, and whoever wins gets to wear {title:it} home. ",
         "Nobody holds {title}. The gold has been sitting in a cupboard with the mops. ",
         "The winner takes {title}, vacant as my wallet. ",
     }},
    {TitleOpening,
     kChampionAway,
     {
         "They say that {title} {title:is} at stake, but the champion isn't even in it. I asked "
         "twice. ",
         "{title} {title:is} on the line, and the champion is at home with a takeaway. ",
         "This is for {title}, without the champion. Don't look at me, I only work here. ",
     }},
    {FeudOpening,
     kSimmers,
     {
         "{F} and {S} have a bone to pick, and it isn't a small one. ",
         "There's history between {F} and {S}, mostly the bruising kind. ",
         "{F} and {S} did not exchange Christmas cards. ",
         "{F} and {S} start with a stare. Somebody forgot to book the violins. ",
         "You could fry an egg on the look between {F} and {S}, if slowly. ",
     }},
    {FeudOpening,
     kBoils,
     {
         "{F} and {S} hate each other, and not in the nice way. The place is boiling! ",
         "Keep the children back: {F} and {S} in one ring is a fire hazard. ",
         "The referee has made a will. {F} and {S} can't stand to share a planet. ",
         "There isn't a handshake. There isn't even a bell. {F} and {S} are at it already! ",
         "I've moved back a row. {F} and {S} in there, and the splash zone is the whole hall. ",
     }},
    {DebutOpening,
     0,
     {
         "It's the debut of {t}, so be gentle. Nobody else will. ",
         "First night for {t}, who still has the shop creases in {t:his} gear. ",
         "Never seen {t} before? Me neither. Welcome to {promotion}, {t}. ",
     }},
    {ChampionNote,
     0,
     {
         "{c} hold{c:s} {title}, but the gold stays in the bag tonight. ",
         "{title} {title:is} safe: {c} {c:has} left {title:it} with the coat check. ",
         "No gold at stake for {c}, but {title} get{title:s} an outing on the shoulder. ",
         "{c} turn{c:s} up with {title} and without any plan to lose {title:it}. ",
         "Nobody can win {title} off {c} in this one. It's on the house. ",
         "The announcer mentions {title} when {c} come{c:s} out, so I do, too. ",
     }},

    {SinglesAftermath,
     after1::kAttacksReferee,
     {
         "{l} takes it out on the referee, who only ever counted. Hah, die referee scum! ",
         "{l} picks the referee up and puts the referee down, quite hard. One, two, sheep. ",
     }},
    {SinglesAftermath,
     after1::kTantrum,
     {
         "{l} kicks the steps, the ropes, and the air. My youngest does it better. ",
         "{l} throws a temper tantrum, lying on {l:his} back and drumming {l:his} heels. Bedtime! ",
     }},
    {SinglesAftermath,
     after1::kRunInOnFirst,
     {
         "It isn't over! {o} runs in and jumps {1}. ",
         "{o} comes out of nowhere and flattens {1}. I didn't even know nowhere had a door. ",
     }},
    {SinglesAftermath,
     after1::kRunInOnSecond,
     {
         "{o} slides in behind {2} and swings. Boo, hiss, ow. ",
         "Look out, {2}! Too late. {o} leaves {2:him} flat. ",
     }},
    {SinglesAftermath,
     after1::kRunInOnBoth,
     {
         "{o} runs in and attacks {1} and {2} alike. No favourites. ",
         "{1} and {2} turn around, and there stands {o}, swinging for the two of them. ",
     }},
    {SinglesAftermath,
     after1::kRevengeAttack,
     {
         "{l} can't take it and jumps {w} from behind. Sore? Never! ",
         "{w} poses, and {l} picks up a chair. The pose falls over. ",
     }},
    {SinglesAftermath,
     after1::kBeatDown,
     {
         "{w} isn't done. {l} gets a second helping, with extra boots. ",
         "The bell has gone, but {w} keeps hitting {l}. Someone tell {w:him}. Not me. ",
     }},
    {SinglesAftermath,
     after1::kGetsRevenge,
     {
         "{l} knows who to thank, and gets it back on the spot: {o} is sent over the railing, and "
         "{w} goes after. ",
         "{l} gets up, gets mad, and gets even. {w} and {o} leave faster than they came. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnLoser,
     {
         "{w} and {o} both put the boots to {l}. That's two against half. ",
         "{o} holds {l} and {w} swings, then they swap. Teamwork! ",
     }},
    {SinglesAftermath,
     after1::kTwoOnWinner,
     {
         "{l} and {o} gang up on {w}, who won the match and loses the argument. ",
         "Two on one: {o} and {l} stomp on {w} until I've run out of ink. ",
     }},
    {SinglesAftermath,
     after1::kAttacksRunIn,
     {
         "{l} wants a word with {o}, and the word is bam. ",
         "{o} says sorry. {l} says it with a punch. ",
     }},
    {SinglesAftermath,
     after1::kRunInDestroys,
     {
         "{o} isn't finished. {1} goes out on one side and {2} on the other, and {o} has the ring "
         "to {o:himself}. ",
         "{o} destroys everyone: {1}, {2}, a cameraman, and a perfectly good potted plant. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnFirst,
     {
         "{2} and {o} find that they agree about {1}. Two on one, and not a pretty one. ",
         "{o} grabs {1}, {2} wades in, and {1} is the meat in it. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnSecond,
     {
         "{1} and {o} shake on it and then jump on {2}. Friendship is lovely. ",
         "{o} gives {1} a nod, and the pair of them stamp {2} flat. ",
     }},
    {SinglesAftermath,
     after1::kTwoOnRunIn,
     {
         "{1} looks at {2}, {2} looks at {1}, and both look at {o}. Run, {o}! ",
         "{1} and {2} have found something in common, and it's the face of {o}. ",
     }},
    {SinglesAftermath,
     after1::kThreeWayBrawl,
     {
         "{1}, {2} and {o} all go at it, and I've lost track of whose arm is whose. ",
         "Three way brawl! {1} hits {2}, {2} hits {o}, {o} hits {1}, and round again. ",
     }},
    {SinglesAftermath,
     after1::kLoserRuns,
     {
         "{l} is off up the ramp like a {l:man} who left the oven on. ",
         "{l} doesn't stay to chat. You can still see the dust. ",
     }},
    {SinglesAftermath,
     after1::kHandshake,
     {
         "{1} and {2} shake hands. I've something in my eye. Sand, I think. ",
         "{1} offers a hand, {2} takes it, and nobody gets hurt. Is this still wrestling? ",
     }},
    {SinglesAftermath,
     after1::kCheapShot,
     {
         "{l} offers a hand, {w} takes it, and {l} kicks {w} where it counts. ",
         "A handshake, how nice, and there's the cheap shot by {l}. {w} goes down like a piano. ",
     }},
    {SinglesAftermath,
     after1::kFirstRefusesHand,
     {
         "{2} holds out a hand. {1} looks at it like it's a fish and walks off. ",
         "{1} refuses to shake. {2} has to high five {2:himself}. ",
     }},
    {SinglesAftermath,
     after1::kSecondRefusesHand,
     {
         "{1} holds out a hand, and {2} leaves it hanging. Awkward! ",
         "{2} won't shake, so {1} shakes {1:his} head in place of it. ",
     }},
    {SinglesAftermath,
     after1::kBrawlToTheBack,
     {
         "{1} and {2} aren't finished, and brawl all the way to the back. Mind the catering! ",
         "Up the ramp go {1} and {2}, swinging, through the curtain and into somebody's soup. ",
     }},
    {SinglesAftermath,
     after1::kWinnerRuns,
     {
         "{w} grabs the win and runs before anybody asks for it back. ",
         "{w} has won, and is already in the car. ",
     }},
    {SinglesAftermath,
     after1::kAssaultGoesOn,
     {
         "{o} hasn't had enough, and goes on hammering {v}. ",
         "{o} is back on {v} with a chair and bad intentions. Somebody stop this! Not yet. Now. ",
     }},
    {SinglesAftermath,
     after1::kSave,
     {
         "{o} and {u} are all over {v}, but here comes {p}! {p} clears the ring, bless {p:him}. ",
         "{p} to the rescue! {o} goes one way, {u} goes the other, and {v} is saved. ",
     }},
    {SinglesAftermath,
     after1::kFailedSave,
     {
         "{p} comes to save {v} from {o} and {u}, and gets flattened as well. It's the thought "
         "that counts. ",
         "Here's {p} to help {v}! There goes {p}, on {p:his} back. {o} and {u} laugh. ",
     }},

    {TagAftermath,
     after2::kRevenge,
     {
         "{L} won't have it, and jump{L:s} {W} from behind. Revenge, served warm. ",
         "{W} turn{W:s} around to wave, and {L} {L:is} there with chairs. ",
     }},
    {TagAftermath,
     after2::kBeatenDown,
     {
         "{W} add{W:s} a beating to the beating. {L} didn't order that. ",
         "The bell's gone, and {W} {W:is} still stamping on {L}. ",
     }},
    {TagAftermath,
     after2::kFirstTurns,
     {
         "{1} looks at {2}, sighs, and lays {2:him} out! So much for teamwork. ",
         "{1} has had enough of {2} and says so with a chair. ",
     }},
    {TagAftermath,
     after2::kSecondTurns,
     {
         "{2} hugs {1}, and then there's a knee. {2} has turned on {1}! ",
         "{2} drops {1} and walks up the ramp without looking back. ",
     }},
    {TagAftermath,
     after2::kThirdTurns,
     {
         "{3} helps {4} up and knocks {4:him} down again. {3} has turned! ",
         "A slap, and then a punch: {3} is done with {4}. ",
     }},
    {TagAftermath,
     after2::kFourthTurns,
     {
         "{4} blames {3}, and puts it in writing on {3:his} forehead. ",
         "{4} clobbers {3} from behind. The team photo is in the bin. ",
     }},
    {TagAftermath,
     after2::kBrawling,
     {
         "The bell? What bell? {F} and {S} keep brawling. ",
         "{F} and {S} carry on as if nobody had told them. Somebody did, and got hit. ",
     }},
    {TagAftermath,
     after2::kFirstBeatsSecond,
     {
         "{F} get{F:s} the better of it and leave{F:s} {S} in a heap. ",
         "{F} beat{F:s} {S} down, pile{F:s} them up, and dust{F:s} off. ",
     }},
    {TagAftermath,
     after2::kSecondBeatsFirst,
     {
         "{S} come{S:s} out on top, and {F} {F:is} at the bottom, under the steps. ",
         "{S} put{S:s} the boots to {F}. Four boots, four ribs each. ",
     }},
    {TagAftermath,
     after2::kAssaultGoesOn,
     {
         "{O} stay{O:s} for afters, and {V} {V:is} the afters. ",
         "{O} keep{O:s} hammering {V}, and security is on its tea break. ",
     }},
    {TagAftermath,
     after2::kThreeOnTwo,
     {
         "{o} lends a hand to {U}, and it's three on two with {V} underneath. ",
         "Three on two! {o} and {U} take turns on {V}. ",
     }},
    {TagAftermath,
     after2::kAttackRunIn,
     {
         "{L} {L:has} a bone to pick with {o}, and pick{L:s} it on the spot. ",
         "{o} backs off. {L} {L:does} not. Down goes {o}! ",
     }},
    {TagAftermath,
     after2::kAttackRunIns,
     {
         "{L} jump{L:s} on {O}. Thanks for the help, here's some back. ",
         "{O} tr{O:ies} to explain. {L} {L:is} not listening, {L:he} {L:is} punching. ",
     }},
    {TagAftermath,
     after2::kThreeTeamBrawl,
     {
         "{F}, {S} and {O} all go at once. I need more eyes. ",
         "A three team brawl, with {F} here, {S} there, and {O} all over the place. ",
     }},
    {TagAftermath,
     after2::kLosersArgue,
     {
         "{l} and {k} argue about whose fault it was. It was both, boys and girls. ",
         "{k} pokes {l} in the chest. {l} pokes back. This team needs counselling. ",
     }},
    {TagAftermath,
     after2::kThreeOnOne,
     {
         "{k} joins {W}, and it's three on one. Poor {l}! ",
         "{W} hold{W:s} {l} up, and {k} gets one more in. With friends like {k}! ",
     }},
    {TagAftermath,
     after2::kSave,
     {
         "{O} and {U} {?V}have {V} where they want, but {.}here come{Q:s} {Q} to clear the ring! ",
         "{Q} to the rescue! {V} {V:is} saved, and {U} think{U:s} again. ",
     }},
    {TagAftermath,
     after2::kFailedSave,
     {
         "{Q} come{Q:s} to save {V}, and end{Q:s} up in the same pile. ",
         "Here {Q:is} {Q}! Oh. There {Q:was} {Q}. {U} and {O} shut the door on the rescue of {V}. ",
     }},
    {TagAftermath,
     after2::kBrawlToTheBack,
     {
         "{F} and {S} brawl to the back, and the catering goes with them. ",
         "Up the ramp and through the curtain: {F} and {S} will finish this by the vending "
         "machine. ",
     }},
    {TagAftermath,
     after2::kRunInOnFirst,
     {
         "{Q} run{Q:s} in and take{Q:s} {1} out. ",
         "From behind! {Q} jump{Q:s} {1}, and {2} is too far away to help. ",
     }},
    {TagAftermath,
     after2::kRunInOnSecond,
     {
         "{Q} run{Q:s} in, straight for {2}. ",
         "{2} never saw {Q}. Everybody else did, and shouted. ",
     }},
    {TagAftermath,
     after2::kRunInOnThird,
     {
         "{Q} want{Q:s} a word with {3}. The word is thud. ",
         "Out of the crowd come{Q:s} {Q}, and {3} is flat. ",
     }},
    {TagAftermath,
     after2::kRunInOnFourth,
     {
         "{Q} pick{Q:s} out {4} and leave{Q:s} {4:him} looking at the lights. ",
         "{4} turns, and there {Q:is} {Q}. Good night, {4}. ",
     }},
    {TagAftermath,
     after2::kRunInOnFirstTeam,
     {
         "{Q} storm{Q:s} the ring and flatten{Q:s} {F}. ",
         "{F} {F:is} under attack! {Q} {Q:has} come with a grudge and a crowbar. ",
     }},
    {TagAftermath,
     after2::kRunInOnSecondTeam,
     {
         "{Q} run{Q:s} in and lay{Q:s} waste to {S}. ",
         "It's {Q}, and {S} {S:is} the target. Bullseye, twice. ",
     }},
    {TagAftermath,
     after2::kRunInOnBoth,
     {
         "{Q} attack{Q:s} everybody: {F}, {S}, and I'm hiding under the table. ",
         "{F} go{F:es} down, {S} go{S:es} down. {Q} {Q:does} not care who is who. ",
     }},

    {TitleEnding,
     kRetained,
     {
         "{C} keep{C:s} {title}! It goes with the boots, anyhow. ",
         "No change at the top: {C}, with {title} held high. ",
         "{title} stay{title:s} just where {title:is} best looked after, with {C}. ",
         "The crowd counts the belts, and nothing is missing: {C} still {C:has} {title}. ",
         "{C} get{C:s} to dust {title} for another week. ",
     }},
    {TitleEnding,
     kNewChampion,
     {
         "New champion! {C} take{C:s} {title} off {c}, and the roof off the place. ",
         "{title} change{title:s} hands! Make room for {C}, and {c} {c:has} to hand over the key "
         "to the good shower. ",
         "It's over for {c}! {C} {C:has} won {title}! ",
     }},
    {TitleEnding,
     kVacancyFilled,
     {
         "{title} {title:has} a home again, with {C}! ",
         "Somebody owns {title} at last, and the somebody is {C}. ",
         "{C} strap{C:s} on {title}. A perfect fit. ",
     }},
    {TitleEnding,
     kKeptThoughBeaten,
     {
         "But {title} {title:does} not change hands like that. {c} can go on polishing "
         "{title:it}. ",
         "{C} won the match but not {title}. Read the small print. ",
         "A win's a win, but {title} stay{title:s} with {c}. Boo! ",
     }},
    {TitleEnding,
     kKeptByDraw,
     {
         "No winner, so {title} stay{title:s} with {c}. ",
         "{c} keep{c:s} {title}, because nobody beat anybody. ",
         "A draw changes nothing, least of all {title}. {c} will take that. ",
     }},
    {TitleEnding,
     kWonInAbsence,
     {
         "{C} walk{C:s} off with {title}, and the old champion can read about it here. ",
         "And {title} go{title:es} to {C}! Somebody had better ring the champion. Gently. ",
         "{C} {C:has} won {title} from somebody who wasn't in the ring. I love this business. ",
     }},
    {FeudEnding,
     kFeudGoesOn,
     {
         "{F} and {S} aren't done, mark my words. They're marked. ",
         "This one between {F} and {S} has a way to go yet. ",
         "Something tells me that {F} and {S} won't be sharing a taxi. ",
         "If that was meant to settle it between {F} and {S}, somebody forgot the glue. ",
         "{F} and {S} leave by different doors. Wise. ",
         "{F} and {S} aren't through. My pencil is, nearly. ",
     }},
    {FeudEnding,
     kFeudIsOver,
     {
         "And that's the end of it between {F} and {S}. I'll miss the shouting. ",
         "{F} and {S} have settled it, once and for all. Or until the reunion tour. ",
         "The book is closed on {F} and {S}. Somebody paint the ring. ",
     }},
    {PurposeEnding,
     kGoodMatchTold,
     {
         "{F} and {S} went out to put on a match, and by gum that's what they did. ",
         "No nonsense, just wrestling from {F} and {S}. I nearly put my beer down. ",
         "You can keep your explosions, I'll take {F} and {S} doing that. ",
         "Somebody behind me said that {F} and {S} were worth the bus fare. From up there that's "
         "poetry. ",
         "{F} and {S} could do that again tomorrow and I'd come. I'd even pay. Half. ",
     }},
    {PurposeEnding,
     kPutOverTold,
     {
         "If you didn't know {t} before, you do now. ",
         "That was all about {t}, and it suits {t:him}. ",
         "{t} look{t:s} like a million. Well, half. I've seen the books. ",
         "There's a new poster to print, and {t} {t:is} on it. ",
         "Somebody in the office likes {t}. After that, so do I. ",
         "{t} walk{t:s} out of here two inches taller. So does my stack of notes. ",
     }},
    {PurposeEnding,
     kBothOverTold,
     {
         "{F} and {S} both come out of that looking taller. ",
         "Hard to say who gained more by it, {F} or {S}. Me, I think. ",
         "Credit to {F}, credit to {S}, and cash for the popcorn man. ",
     }},
    {PurposeEnding,
     kEyeCandyTold,
     {
         "As wrestling goes, it went. Nobody in row one is asking for a refund. ",
         "My glasses have steamed up. Strictly the weather. ",
         "The holds were a blur, and so was the camera. ",
     }},
    {PurposeEnding,
     kRunInDebutTold,
     {
         "And who's that? It's {t}, and {t:he} {t:has} just said hello to {promotion}. ",
         "That was {t}, folks, on the first night, without so much as a name tag. ",
         "{t} {t:has} arrived, and I'd never even seen {t:him} parking. ",
     }},
    {Turn,
     kTurnsHeel,
     {
         "Oh, {t}, how could you? The babies in the crowd are crying, and so are the mothers. ",
         "They loved {t}, and that's how {t:he} pay{t:s} it back. Boo with me, all together! ",
         "{t} {t:has} gone to the dark side, where the pension is better. ",
     }},
    {Turn,
     kTurnsFace,
     {
         "Are they cheering {t}? They are! I'm cheering {t}! What's happening to me? ",
         "{t} {t:has} found a conscience. It was down the back of the sofa. ",
         "Take a bow, {t}. Last week they'd have thrown something. ",
     }},
    {Turn,
     kTweenerTurns,
     {
         "{t} {t:has} picked a side at last. The fence had splinters. ",
         "No more sitting in the middle for {t}. ",
         "{t} {t:has} made up {t:his} mind, and we'll all have to live with it. ",
     }},
    {Turn,
     kBaffling,
     {
         "Only nobody had been told to expect that of {t}. The crowd looks at itself, baffled. ",
         "You can hear the place think it over and give up. A turn from {t}? What for? ",
         "{t} wait{t:s} for the noise and get{t:s} a room full of people scratching their heads. ",
     }},
};

}  // namespace

Blocks Finishes() {
  return kBlocks;
}

}  // namespace grapplemont::modLamplighter
