#include "report/voices.h"

namespace grapplemont::modLamplighter {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {AngleText,
     1,
     {
         "{1} stands in the ring and calls {2} out by name, rank and shoe size. \"Any night, any "
         "place!\" The challenge is made. {2} watches on a screen and chews very slowly. ",
         "{1} throws down a glove in front of {2}. An actual glove! {2} looks at it for a while "
         "and picks it up. It's a challenge, and somebody's hand is cold. ",
     }},
    {AngleText,
     2,
     {
         "{1} comes round one corner and {2} round the other. Words are had, fingers are wagged, "
         "nobody blinks. {1} pokes {2}, {2} pokes {1}, and they have to be pulled apart by the tea "
         "lady. ",
         "{1} is in the way of {2}, or the reverse. They go face to face until the foreheads "
         "touch. \"After you,\" says nobody. ",
     }},
    {AngleText,
     3,
     {
         "{1} is looking in a locker when {2} comes up from behind with the door. {?3}{3} joins "
         "in, because two is company. {.}{?4}But here's {4}, who clears them off and helps {1} up! "
         "{.}{?turn}{4}, of all people! Whose side {4:he} {4:is} on is pretty plain now. "
         "{.}{!4}Nobody comes to help. {.}",
         "There's a crash backstage, and it's {1}, under a trolley. {O} put{O:s} the boots in. "
         "{?4}{4} arrives with a fire extinguisher and {O} run{O:s} for it. {.}{?turn}I'd never "
         "have guessed it of {4}, that's a turn and a half. {.}{!4}They leave {1} there with the "
         "laundry. {.}",
     }},
    {AngleText,
     4,
     {
         "{1} and {2} celebrate in the ring like the best of friends. {1} lifts the arm of {2}, "
         "smiles, and lays {2:him} out with it. That's the end of the team, and of my faith in "
         "people. {1} has turned! ",
         "{2} talks about loyalty. Behind {2:him} {1} is folding a chair. I shout, the crowd "
         "shouts, the chair lands. {1} has turned on {1:his} partner, and walks off alone. ",
     }},
    {AngleText,
     5,
     {
         "{2} orders {1} to finish somebody off. {1} looks at the people, looks at {2}, and knocks "
         "{2} over the top rope! The roof comes off. {1} is one of the good guys now, and I'm not "
         "crying, you are. ",
         "{1} has had it with {2}, and with being booed. One punch sends {2} through the ropes. "
         "{1} holds out a hand to a kid in the front row. Face turn complete, pass the hankies. ",
     }},
    {AngleText,
     6,
     {
         "{2} holds out a hand to {1}. {1} shakes it, does not let go, and kicks {2} in the gut. "
         "And again. {1} spits on a fan's sign on the way out. Say hello to the newest villain in "
         "{promotion}. ",
         "{1} waits until {2} has turned to wave at the crowd. Then comes the low blow, then the "
         "belt, then the laugh. I'll not be buying the doll of {1} again: {1} has gone heel. ",
     }},
    {AngleText,
     7,
     {
         "{1} marches out with {3}, stops, looks at the contract and tears it up. Then {1:he} goes "
         "and stands next to {2}. {3} has lost {3:his} manager, and {2} has gained one. {?turn}And "
         "what a change of tune from {1}! {.}",
         "\"It's not you,\" {1} tells {3}, \"it's your record.\" {2} comes out and holds up a "
         "cheque. {1} manages {2} from tonight. {3} is left holding the towel. {?turn}That makes "
         "{1} a turncoat, and it fits {1:him}. {.}",
     }},
    {AngleText,
     8,
     {
         "{1} is chatting with {2} by the coffee machine, giggling and all. {3} walks in with a "
         "bunch of flowers, sees it, and drops them. {2} smirks. {1} says that it's not what it "
         "looks like. It was what it looked like. ",
         "{3} had saved a seat for {1}. {1} comes in on the arm of {2} and never looks at the "
         "seat. {3} and {2} stare at each other over the head of {1}. This ends in stitches. ",
     }},
    {AngleText,
     9,
     {
         "{1} sits down in the middle of the ring, crosses {1:his} legs and won't move until "
         "somebody makes {1:him}. They try shouting. They try music. In the end {2} comes out and "
         "carries {1} off over a shoulder, chair and all. ",
         "{1} has brought a folding chair, a flask and a crossword. {1:he} {1:is} staging a "
         "sit-in. {2} asks nicely, then doesn't, and the flask goes flying. Seven across was "
         "mayhem. ",
     }},
    {AngleText,
     10,
     {
         "The Commissioner, {1}, lays down the law for {2}. {2} lays down the Commissioner. The "
         "desk goes over, the plaque goes flying, and {1} is under the lot. Office hours are "
         "over. ",
         "{2} kicks in the office door and beats {1} from the filing cabinet to the fax machine. "
         "{1} may be the Commissioner, but right now {1:he} {1:is} a paper jam. ",
     }},
    {AngleText,
     11,
     {
         "{F:members} have the ring, and {S:members} come out to have it as well. Four in a row, "
         "nose to nose, like a queue for nothing. Nobody swings first, but nobody leaves first "
         "either. ",
         "{F} and {S} both want the last word. The last word was something I can't print, and it "
         "was said by all four. ",
     }},
    {AngleText,
     12,
     {
         "{S} drag{S:s} a table out from under the ring and the crowd says thank you. {F} {F:is} "
         "laid on it, there's a climb, there's a prayer. Crash! {F} went through, and that table "
         "will never host a dinner again. ",
         "A fight, a table, a bad idea. {S} get{S:s} the upper hand and {F} get{F:s} the plywood. "
         "Through it! I've a splinter in my tea. ",
     }},
    {AngleText,
     13,
     {
         "{2} comes down the ramp with a ladder, and {1} asks what it's for. {2} shows {1:him}: "
         "end on, side on, and flat. {1} is left lying under it like laundry. ",
         "{1} was painting a pretty picture of {1:himself} when {2} swung a ladder into it. Three "
         "shots with the rungs, one with the hinge. {2} climbs up and takes a bow. ",
     }},
    {AngleText,
     14,
     {
         "{2} has {1} by the hair and the ring post by the other end. Once, twice, and there it "
         "is, red all down the face of {1}. {2} wipes {2:his} hands on the flag. ",
         "A punch, a chair, a chain. {1} is down and bleeding like a tap in a cheap hotel, and {2} "
         "isn't even puffed. Somebody throws {1} a towel. It was a small towel. ",
     }},
    {AngleText,
     15,
     {
         "{1} and {2} get into it, and {2} gets hold of a zip. Off comes the top, off comes the "
         "rest, and {1} is out there in {1:his} underwear with a programme for a skirt. {2} keeps "
         "the clothes. ",
         "{2} chases {1} round the ring, and a piece of the outfit stays behind on every side. By "
         "the fourth {1} is down to {1:his} underwear and off up the aisle. {2} waves the blouse. ",
     }},
    {AngleText,
     16,
     {
         "{O} grab{O:s} a leg each, or both, of {1}, and pull. There is a ring post. There is {1}. "
         "They meet. The whole building crossed its legs at once. ",
         "{1} is dragged to the corner by {O}, one side of the post for each leg. Clang! {1} sang "
         "a high C, and held it. ",
     }},
    {AngleText,
     17,
     {
         "{1} turns left: {2}. Right: {3}. Back: {4}. Three on one, and they're not there for the "
         "autograph. {1} is left in the ring with the print of six boots. ",
         "{O:members} surround {1}. {1} puts up a fight for as long as it takes to say so. Then "
         "it's three on one, and one is on the floor. ",
     }},
    {AngleText,
     18,
     {
         "{2} asks {1} straight out: where were you last week? {1} says asleep. {2} says with "
         "whom? {1} won't look up. There's something going on with {1}, and {2} smells it. So do "
         "I, or it's the drains. ",
         "{1} shuts a phone as {2} comes in. \"Wrong number,\" says {1}. \"For an hour?\" says "
         "{2}. I wouldn't turn my back on {1} if I was {2}, and {2} doesn't. ",
     }},
    {AngleText,
     19,
     {
         "It's the bikini contest! {1} goes first, {2} goes one better, and the judge needs a "
         "sit-down. {?3}Then {3} storms in and ruins the whole thing, kicking over the podium. "
         "Boo! {.}{?turn}We liked {3} until about a minute ago. {.}{!3}The crowd can't choose, and "
         "asks for extra time. {.}",
         "{1} and {2} take the robes off, and somebody drops a tray. {?3}Just as the cheering is "
         "being measured here's {3} with a bucket of paint. It's over, it's green. "
         "{.}{?turn}That's {3} off the Christmas list for good. {.}{!3}I had it even. I'd like to "
         "see it again to be sure. {.}",
     }},
    {AngleText,
     20,
     {
         "{1} stops halfway down the ramp, because there's a famous face in row one. They shake "
         "hands, the camera goes mad, and {1} asks for an autograph, for a nephew. There's no "
         "nephew. ",
         "{1} spots somebody off the telly in the crowd, sits down in the next seat and shares the "
         "popcorn. The star laughs. The star is moved three rows back at once. ",
     }},
    {AngleText,
     21,
     {
         "{1} challenges {2} for later. \"Why wait?\" says {2}, and hits {1:him} with the "
         "microphone. They're at it all over the stage, and it takes eight officials to get {1} "
         "off {2}, or {2} off {1}. ",
         "\"You and me, next week,\" says {1}. {2} looks at a bare wrist as if at a watch and "
         "throws the first punch. The brawl goes into the crowd. My seat is gone. ",
     }},
    {AngleText,
     22,
     {
         "{1} finds {2} on a bench, low as a snake's belly. \"I've got your back,\" says {1}, and "
         "pats it. {2} nods. I've gone all warm, or it's the chilli. ",
         "{1} promises {2} to be there, come what may. They bump fists. In my experience that's "
         "where trouble starts, but it was nicely said. ",
     }},
    {AngleText,
     23,
     {
         "That music! It can't be! It is! {1} is back, and {2} is in the ring with a mouth like a "
         "letter box. {1} walks round {2} once and grins. Where have you been all my life? ",
         "{2} is in the middle of a sentence when the lights go out. When they come on, {1} is "
         "there, back after all that time. {2} never finished the sentence. ",
     }},
    {AngleText,
     24,
     {
         "{1} wants a fight with anyone, says that nobody in the back has the guts. Somebody new "
         "does! {2} comes out, and takes the microphone, and the cheer. Welcome to {promotion}, "
         "{2}. Watch your step, {1}. ",
         "\"Is there nobody?\" asks {1}. There is, and none of us has ever seen {2:him}. It's {2}, "
         "who walks right up to {1} and says hello with {2:his} forehead. What a debut. ",
     }},
    {AngleText,
     25,
     {
         "{1} is minding {1:his} own business when a stranger comes over the railing. It's {2}, "
         "brand new, and {2} has left {1} flat on the mat before anybody knows the name. We do "
         "now. ",
         "Who's that? Who is that? Somebody passes me a note: {2}. {2} has just planted {1} in the "
         "middle of the ring. As a first impression it's deep, about three inches. ",
     }},
    {AngleText,
     26,
     {
         "{1}, our Commissioner, opens the door, and in comes a new face. {1} shakes the hand of "
         "{2} and gives {2:him} a locker, a contract, and a wink. {2} is going to be trouble, with "
         "a stamp on it. ",
         "The Commissioner has hired muscle. {1} introduces {2}, debut and all, and says that a "
         "few people out there might want to behave. {2} cracks a smile, and a pencil. ",
     }},
    {AngleText,
     27,
     {
         "{2} hits {1} with everything, then goes looking for more. {1} isn't moving. The "
         "paramedics come with the stretcher and {2} tips it over. They need a second stretcher "
         "for the paramedics. ",
         "That's a siren. {2} has beaten {1} so badly that they're putting {1:him} in an "
         "ambulance. {2} waves it off, and gives the driver directions. Wrong ones. ",
     }},
    {AngleText,
     28,
     {
         "{1} is breaking things: lamps, a monitor, a table of sandwiches. \"Come out, {2}!\" "
         "{1:he} roar{1:s} between the sandwiches. I'd come out if I was {2}, before there's no "
         "building. ",
         "A crash, another one, that was the drinks machine. {1} wants {2} and is going to take "
         "the place apart until {2:he} say{2:s} yes. The caretaker has resigned. ",
     }},
    {AngleText,
     29,
     {
         "{1} and {2} stand nose to nose in the middle of the ring. Nothing is said. Nobody "
         "blinks. I blinked four times. In the end both back off, and neither looks away. ",
         "It's a staredown. {1} is so close to {2} that they're sharing a breath, and by the looks "
         "of it somebody had onions. ",
     }},
    {AngleText,
     30,
     {
         "{1} and {2} are whispering in a stairwell. There's a plan, a map, and some unpleasant "
         "giggling. \"And nobody will know?\" asks {2}. \"Nobody,\" says {1}, right into our "
         "microphone. ",
         "{1} draws the curtain, {2} checks the door, and they put their heads together. I heard "
         "midnight, ladder and pudding. Somebody should be very worried. ",
     }},
    {AngleText,
     31,
     {
         "{1} throws {1:his} bag in the boot, gets in, and drives off for the night. No goodbye, "
         "no indicator. ",
         "There goes {1}, out of the car park and over a cone. If anybody was looking for {1:him}, "
         "{1:he} {1:has} left for the night. ",
     }},
    {AngleText,
     32,
     {
         "A car pulls up and {1} gets out, sunglasses on, in the dark. {1:he} {1:has} arrived, and "
         "walks into the door. A real star. ",
         "{1} arrives at the arena with a bag, a coffee and a look. The security man asks for a "
         "pass and gets the coffee. ",
     }},
    {AngleText,
     33,
     {
         "There's a table, two chairs and a contract. {1} signs. {2} signs. They shake, they "
         "squeeze, the table goes over, as tables will. But it's signed: {1} and {2}, it's on. ",
         "{1} reads every page of the contract and {2} none. Both of them sign, then there's a "
         "fight about who keeps the pen. Legally it's binding, the match and the pen. ",
     }},
    {AngleText,
     34,
     {
         "{1} has {2} against the lockers and is shouting from an inch away. \"Who are you?\" "
         "\"{2}!\" \"I can't hear you!\" I could. {2} goes off and headbutts a door. It's "
         "motivation, I'm told. ",
         "{1} slaps {2} on both cheeks and gives {2:him} the speech, the one with the mountain and "
         "the eagle. {2} is steaming by the end. So is the eagle. ",
     }},
    {AngleText,
     35,
     {
         "{1} calls {2} something, {2} calls {1} something worse, and there goes the hair. They "
         "roll through make-up, wardrobe and the buffet. Catfight! Five officials go in, three "
         "come out. ",
         "{1} wants the mirror, {2} is at the mirror. Nails, hair, handbags, all at once. I've "
         "seen less fuss in a fox den. {1} and {2} have to be carried off in opposite directions. ",
     }},
    {AngleText,
     36,
     {
         "{1} walks down a corridor. {1:he} get{1:s} to the end of it. I've known worse plots. ",
         "Camera two finds {1}, walking. Left foot, right foot, left foot. {1:he} look{1:s} "
         "determined, or lost. ",
     }},
    {AngleText,
     37,
     {
         "\"You're on your own, are you?\" they ask {1}. {1} smiles and points to the curtain, and "
         "out comes {2}, new, large and loyal. {1} has an ally, and everyone else has a problem. ",
         "{1} promised a surprise, and here it is: {2}, in {2:his} very first night in "
         "{promotion}. They shake hands. {1} looks ten feet taller with {2} behind {1:him}. ",
     }},
    {AngleText,
     38,
     {
         "{2} clears {2:his} throat: from tonight there's somebody who takes care of {2:his} "
         "business. It's {1}! A suit, a briefcase, a grin. {2} has a manager, and {1} has a "
         "debut. ",
         "Out comes {2}, and with {2:him} a new face, in a hat. That's {1}, the manager of {2}, "
         "and {1} has a word about how things are going to go. It took a while. It was a long "
         "word. ",
     }},
    {AngleText,
     39,
     {
         "{2} has something in {2:his} hand. There's a spark, a whoosh, and a fireball in the face "
         "of {1}! Water! Blanket! {1} is rolling, and {2} blows on {2:his} fingers. ",
         "Don't look into the hand, {1}! {1} looked into the hand. {2} throws fire, eyebrows go "
         "up, and not in the usual way. Somebody get {1} a doctor and a fringe. ",
     }},
    {AngleText,
     40,
     {
         "{1} has made a call, and here come the police. {2} is cuffed, read something, and put in "
         "the back of a car. The Commissioner waves {2} off, like at a wedding. ",
         "\"Take {2:him} away,\" says {1}, and three officers do. {2} shouts about lawyers all the "
         "way down the corridor. Being Commissioner has its days. ",
     }},
    {AngleText,
     41,
     {
         "{1} reads it out: for actions unbecoming, {2} is suspended. {2} kicks a bin. That's "
         "another week. {2} kicks it again. {1} can do this all night. ",
         "The Commissioner asks {2} into the office. The door shuts. We hear a no, a no, and a NO. "
         "{2} comes out suspended, and {1} has a new paperweight: the badge. ",
     }},
    {AngleText,
     42,
     {
         "{1} likes a good idea, and {1:he} {1:has} one: {2} against {3}, later on. {2} says fine. "
         "{3} says fine. Neither of them looked it. The Commissioner stamps it. ",
         "\"You,\" says {1} to {2}, \"have a match, and it's against {3}.\" There's a pause in "
         "which {2} thinks about {3}. The Commissioner is already off to lunch. ",
     }},
    {AngleText,
     43,
     {
         "{1} opens {1:his} locker and there's a photograph in it: {1}, asleep. On the back it "
         "says soon. Somewhere behind {1:him} a camera clicks. Brrr. ",
         "{1} walks to the car. Somebody else walks too, and stops when {1:he} stop{1:s}. {1} "
         "turns round. Nobody! Only a glove, and a whistle from the dark. ",
     }},
    {AngleText,
     44,
     {
         "{1} laces a boot, tapes a wrist, hits a bag until it says sorry. {1:he} {1:is} ready for "
         "a match. The bag isn't. ",
         "Press-ups, squats, a raw egg. {1} gets prepared. The egg comes back, but {1} is prepared "
         "for that as well. ",
     }},
    {AngleText,
     45,
     {
         "{1} has a guest: {2}! Only about half the size. A midget in the gear of {2} falls over, "
         "blames everybody, and runs from a balloon. {1} laughs until {1:he} cr{1:ies}. {2} "
         "won't. ",
         "\"Ladies and gentlemen, {2},\" says {1}, and out comes a very small one, with the walk, "
         "the hair and all. It loses to a chair. It's the spit of {2}, and I do mean spit. ",
     }},
    {AngleText,
     46,
     {
         "{F:members} catch {S:members} on the way in. Doors, walls, a skip: {S} {S:is} thrown "
         "into the lot, and {F} shut{F:s} the lid. ",
         "Two on two, but {S} never saw it start. {F} leave{F:s} {S} lying across each other like "
         "cutlery. ",
     }},
    {AngleText,
     47,
     {
         "{O:members} wait until {1} is alone, then it's two on one with a car door. {1} holds the "
         "knee and howls. The other half of that team has a long night ahead. ",
         "Every chain has its weakest link, say {O:members}, and they have chosen {1}. They work "
         "{1} over until {1} can't get up, and then wait for {1:him} to try. ",
     }},
    {AngleText,
     48,
     {
         "{F:members} have a bit of paper, and it says that they challenge {S:members}. The "
         "spelling is wild. The meaning isn't. {S} take{S:s} the paper and eat{S:s} it, which "
         "means yes. ",
         "\"Us, you, and no excuses,\" say {F:members}. {S} look{S:s} at each other, then at the "
         "belts they may or may not have, and nod. A challenge is a challenge. ",
     }},
    {AngleText,
     49,
     {
         "{1} has been smug all night, and now we know why. The curtain opens, and it's {2}, in "
         "{2:his} first ever appearance, at the side of {1}. {2} flexes. Something in the rafters "
         "broke. ",
         "\"I've found somebody,\" says {1}, \"who makes the rest of you look like luggage.\" Out "
         "comes {2}, making a debut. I feel like luggage. ",
     }},
    {AngleText,
     50,
     {
         "{G} stand in a ring round {1}. There's an oath, a handshake, and a jacket a size too "
         "small. {1} is one of them now: {1} has joined {G}. {?turn}And to think that we used to "
         "know where {1} stood. {.}",
         "{1} pulls off the shirt, and under it is another one, with {G} on the front. There's "
         "hugging. {G} {G:has} a new member, and it's {1}. {?turn}That changes {1} for good, or "
         "for bad. {.}",
     }},
    {AngleText,
     51,
     {
         "{G} call a meeting, and {1} brings biscuits. It's a short one. They kick {1} out, with "
         "feet, down the ramp. The biscuits stay. {?turn}I never thought that I'd feel for {1}, "
         "but there it is. {.}",
         "\"All those in favour,\" say {G}, and every hand goes up but that of {1}. Then the hands "
         "become fists. {1} is out of {G}. {?turn}Look at {1} now, a whole new animal. {.}",
     }},
    {AngleText,
     52,
     {
         "{G} come through the crowd from four sides, and {1} is in the middle. There's a beating, "
         "and then the group photograph with {1} in front, lying down. ",
         "{1} hears boots. A lot of boots. {G} leave {1} in a heap by the ring steps, and take "
         "turns standing on {1:him}. ",
     }},
    {AngleText,
     53,
     {
         "Who are those people? They hit {1} all at once, spell it out on the mat in tape, and "
         "there it is: {G}. We have a new gang in {promotion}, and {1} was the welcome mat. ",
         "{1} is talking when the lights flicker. When they stop there are shapes round the ring. "
         "The shapes jump {1}. That was the debut of {G}, and {1} will remember it, once {1:he} "
         "{1:is} awake. ",
     }},
    {AngleText,
     54,
     {
         "{G} want the keys. The Commissioner, {1}, says no, and ends up in the drawer with the "
         "keys. They've wrecked the office and they've wrecked {1}. \"We're taking over!\" So I "
         "heard. ",
         "The door of {1} comes off, and in come {G}. The Commissioner goes over the desk, through "
         "the window, and into the fountain. {G} put their feet up. There's a new order, and it's "
         "for pizza. ",
     }},
    {AngleText,
     55,
     {
         "{G} find {F:members} and the odds find {G}. {F} {F:is} bounced off the truck, off the "
         "gate, off each other. There's nothing left of that team but the tag. ",
         "{F:members} come to the ring as a pair and leave it as a pile. {G} did that, all of "
         "them, and did it slowly. ",
     }},
    {AngleText,
     56,
     {
         "{S} expect{S:s} {F} to do the dirty work. {F} think{F:s} about it, and hit{F:s} {S} with "
         "the bucket. The crowd explodes! {F:members} are on the side of the angels, and a kid "
         "gave them a lolly. ",
         "{F:members} look at {S}, at the fans, at {S} again. Then the fists fly, and they're the "
         "right fists. It's a turn for the better by {F}. I've hugged a stranger. ",
     }},
    {AngleText,
     57,
     {
         "{F:members} come out to back up {S}, and stab {S:him} in it. Chairs, boots, the lot. {F} "
         "{F:has} turned, and somebody is burning a foam finger. ",
         "{S} think{S:s} that {F} {F:has} come to shake hands. {F:members} shake, rattle and roll. "
         "Two of the nicest people I knew, and they've gone heel! ",
     }},
    {AngleText,
     58,
     {
         "{S:members} ask if any team out there dares. A pause, new music, and two new faces! It's "
         "{F:members}, on the debut, straight into the ring, straight into {S}. The answer was "
         "yes. ",
         "\"No takers?\" say {S:members}. Then out come {F:members}, whom I've never laid eyes on. "
         "{S} {S:has} asked for it, and {F} {F:has} brought it. ",
     }},
    {AngleText,
     59,
     {
         "{S} {S:is} signing autographs when two newcomers sign {S} instead, with their boots. "
         "They're {F:members}, and they'd like to be noticed. Done! ",
         "It's chaos by the ramp. {F:members}, never seen here before, have jumped {S:members} and "
         "left them in the flower beds. That's what I call a debut. ",
     }},
    {AngleText,
     60,
     {
         "The lights dim for a video of {1}. Slow motion, fast music, an eagle for some reason. "
         "{1} walks away from an explosion. By the end I'd have voted for {1:him}. ",
         "A music video: {1} hits people in time to the drums. There's a guitar solo over the "
         "clothesline. {1} looks great in black and white, like the milk. ",
     }},
    {AngleText,
     61,
     {
         "It's a video of {F:members}, back to back, arms folded, fog machine at full blast. {F} "
         "win{F:s} a lot in it. They also ride a motorbike, both of them, on the one. ",
         "Music up! {F:members} run up a hill, drag a lorry, high five in front of a sunset. I "
         "don't know the song, but it knows {F}. ",
     }},
    {AngleText,
     62,
     {
         "A video for {G}. They walk towards us in a line, the way gangs do, and nobody trips. "
         "There are flames, and a wolf. I'd cross the road. ",
         "The screen goes dark, a voice says {G}, and then it's a minute of people flying out of "
         "rings. Lovely cutting. Awful for those being cut. ",
     }},
    {AngleText,
     63,
     {
         "{2} has had enough of notes and shadows. \"Show yourself!\" And the stalker does, off "
         "comes the hood: it's {1}! {2} turns white. {?turn}All those smiles of {1} at breakfast, "
         "and that's what {1:he} {1:was} up to! {.}",
         "The phone rings. {2} answers, and hears {2:his} own voice, live. Behind {2:him} stands "
         "the stalker, and it was {1} all along. {?turn}Cross {1} off the list of the good ones. "
         "Or the bad ones. I've lost the list. {.}",
     }},
    {AngleText,
     64,
     {
         "{2} has set a trap with a mirror and a string of tins. Clatter! The stalker is caught by "
         "the ankle, and the mask comes off: {1}! {2} doesn't call the police, not just yet. "
         "{?turn}What {1} is now we'll all have to find out. {.}",
         "The stalker creeps up once too often. {2} spins round, grabs the hood, and pulls. It's "
         "{1}, red as a beetroot. {2} has a few questions, and asks them with {2:his} fists. "
         "{?turn}Nobody will look at {1} the same way again. {.}",
     }},
    {AngleText,
     65,
     {
         "A video. A shadow, a boot, a name: {1}. Coming soon, it says. I like the boot. ",
         "We see a small town, a big {1:man}, a long road. \"They don't know me,\" says {1}, \"but "
         "they will.\" A debut on the way! I don't know {1:him}, but I will. ",
     }},
    {AngleText,
     66,
     {
         "Two silhouettes on the screen, a storm behind them. {F:members}, says the writing, on "
         "their way to {promotion}. The thunder was in stereo, one each. ",
         "\"Two are coming,\" growls the voice. There's a clip of {F:members} breaking a lot of "
         "planks. The planks had it coming. Debut soon! ",
     }},
    {AngleText,
     67,
     {
         "It's Christmas, and Santa's in the ring with a sack for {2}. {2} looks inside. There's "
         "nothing in it but a fist. Off comes the beard: it's {1}! Ho, ho, and down goes {2}. ",
         "{2} sits on Santa's knee. I can't say why. Santa asks if {2} has been good, and lays "
         "{2:him} out before there's an answer. {1} is under the hat, handing out coal. ",
     }},
    {AngleText,
     68,
     {
         "Happy new year! {1} has a resolution, which is to slap {2}. Slap! And again, for the old "
         "year. {2} goes down at the twelfth, with bells on. ",
         "Ten, nine, eight, and at midnight {1} kisses nobody and slaps {2} across the room. Slap, "
         "slap! Should old acquaintance be forgot. ",
     }},
    {AngleText,
     69,
     {
         "\"Trick or treat,\" says a sheet with eyeholes. {2} gives it a sweet. It gives {2} a "
         "chair. Under the sheet is {1}, and the treat was for {1}. ",
         "{2} reaches into a pumpkin for a chocolate, and the pumpkin has {2:him} by the throat. "
         "It's {1}, in there since noon! {2} is put to bed with a stomach ache and a headache. ",
     }},
    {AngleText,
     70,
     {
         "Hold everything, it's Sam Brandle! The creator of VXM walks out to a hero's welcome, and "
         "{1} asks who that old fool is. Sam Brandle shows {1:him}, with a stunner of a right "
         "hand. {1} knows now. ",
         "{1} is in the ring, insulting everybody, when Sam Brandle, the creator of VXM, comes out "
         "of the crowd. {1} offers a hand. Sam Brandle rewrites {1:him} on the spot. I've asked "
         "for an autograph. ",
     }},
    {AngleText,
     71,
     {
         "{1} has {title} on a cushion. It has no owner, and the Commissioner has made up {1:his} "
         "mind: it goes to {2}! {2} puts it on and won't take it off for the photograph. ",
         "The Commissioner calls {2} to the ring. \"It is yours, {title},\" says {1}. Confetti! "
         "{2} is a champion without breaking a sweat, and {2:he} tell{2:s} us so. ",
     }},
    {AngleText,
     72,
     {
         "{1} holds up {title}, two belts and nobody in them. \"They go to {O},\" says the "
         "Commissioner. {O:members} have a belt each, and a dance together. ",
         "The Commissioner, {1}, calls out {O:members} and hands over {title}. No match, no fuss. "
         "{O} {O:is} champions, and I'm told that it counts. ",
     }},
    {AngleText,
     73,
     {
         "It's Valentine's Day, and {1} is down on one knee in the ring, and not because of a leg "
         "lock. {2} looks at the ring in the box. \"Yes!\" They kiss, the doves fly, one of them "
         "hits the lights. ",
         "{1} has a speech, and forgets it. {2} takes the microphone: \"Ask.\" {1} asks. {2} says "
         "yes! There isn't a dry eye, what with the smoke machine. ",
     }},
    {AngleText,
     74,
     {
         "It's Valentine's Day. {1} goes down on one knee and holds up a ring. {2} laughs. It's a "
         "no! {2} drops the ring in somebody's drink and walks off. Poor {1}. {?turn}What a cold "
         "turn of heart by {2}! {.}",
         "{1} proposes, with a violin and everything. {2} lets {1:him} finish, then slaps {1:him}. "
         "That's a rejected proposal. The violin plays on for a bar. {?turn}And {2} was so nice "
         "before today. {.}",
     }},
    {AngleText,
     75,
     {
         "The lights go out, there's a scream, and when they're back, {1} is gone. On the mat is "
         "the sign of {G}. They've abducted {1:him}, and left one shoe. ",
         "{1} is on the phone when hands come out of a van. Lots of hands. {G} slide the door "
         "shut, and {1} has been abducted. The phone is still talking. ",
     }},
    {AngleText,
     76,
     {
         "{G} beat {1} down, roll {1:him} up in a carpet, and carry it to a van. That's a kidnap, "
         "and it's a nice carpet, too. Nobody knows where they've taken {1}. ",
         "{1} fights off one, and another, but there's always one more of {G}. A bag over the "
         "head, a slammed boot, a squeal of tyres. {1} has been kidnapped. ",
     }},
    {AngleText,
     77,
     {
         "I don't like to write this one. {G} beat {1} senseless and tie {1:him} to a great wooden "
         "cross on the stage. It goes up, with {1} on it, and the place goes quiet. ",
         "{G} wheel out a cross. {1} sees what it's for, far too late. They tie the arms, they "
         "raise it, and they kneel in front of {1}. I've no joke. That was a crucifixion. ",
     }},
    {AngleText,
     78,
     {
         "Candles, black veils, and {G} humming something awful. {1} waits by the altar and {2} is "
         "carried in, kicking. \"Do you?\" No! {?4}And here's {4}, through the candles, swinging! "
         "{4} knocks {1} into the cake and saves {2}. {.}{!4}At the last word {2} bites the priest "
         "and runs. {.}No wedding today. ",
         "It's a wedding, and a black one. {1} wears the hat, {2} wears the chains, {G} throw the "
         "rice, cooked. {?4}Before anyone can say I do {4} crashes in and takes {2} out of there. "
         "{.}{!4}Just before the ring goes on the lights fail, and {2} gets away. {.}I'd brought a "
         "toaster. ",
     }},
    {AngleText,
     79,
     {
         "{1} stands in the ring and looks up. Never look up. {G} have a tank up there, and it's "
         "all coming down: red, thick, all over {1}. That's a blood bath, and I'm in the splash "
         "zone. ",
         "{G} drag {1} to a tub on the stage. I thought it was soup. They push {1} under, and {1} "
         "comes up red from head to foot. A blood bath! I'll never have soup again. ",
     }},
};

}  // namespace

Blocks Angles() {
  return kBlocks;
}

}  // namespace grapplemont::modLamplighter
