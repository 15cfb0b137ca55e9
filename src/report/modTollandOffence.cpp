#include "report/voices.h"

namespace grapplemont::modTolland {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {OffenceA,
     kBLow,
     {
         "{a} throws a forearm at the jaw of {d} and finds the collarbone. {d} holds the jaw "
         "regardless, which is called professionalism. ",
         "{a} tries a shoulder block, looked crap. {d} fell over out of courtesy. ",
         "Forearm to the face from {a}, in the sense that the face of {d} was nearby. ",
         "{a} stomps at {d} and takes care to miss. Too much care. ",
         "{a} backs {d} into a corner and stands there, thinking. I have time. ",
         "{d} takes a chop from {a} that made no sound I could write down. ",
         "{a} clubs {d} between the shoulders with what appears to be a damp towel. It was an "
         "arm. ",
         "{a} telegraphs a punch to {d} so plainly that the post office might want a word. ",
         "The first rule of brawling is to hit the opponent. {a} is working up to that one with "
         "{d}. ",
         "{a} gives {d} a shove and considers the matter settled. ",
     }},
    {OffenceA,
     kBMid,
     {
         "Forearm to the face from {a}. {d} rocks back on {d:his} heels, as one should. ",
         "{d} takes a chop from {a}, and the front row does the noise. The front row always does "
         "the noise. ",
         "{a} clubs away at the back of {d}. Not pretty, and not meant to be. ",
         "{a} puts the boots to {d} in the corner. Stomping has not changed much since I started. ",
         "Shoulder block from {a}, who wins that argument. {d} takes a seat. ",
         "{a} runs {d} into the top turnbuckle, at the usual angle. ",
         "{a} rakes the eyes of {d}. The referee asks {a:him} not to, which settles it until the "
         "next time. ",
         "{a} works a headlock on {d} and adds a few short punches under the chin. Sensible use of "
         "a quiet moment. ",
         "{a} drops a knee across {d} and leaves it there. Economical. ",
         "Irish whip by {a}, who follows {d} into the corner with {a:his} full weight. Basic, "
         "sound. ",
     }},
    {OffenceA,
     kBHigh,
     {
         "Forearm to the face from {a}, executed well. That is how you get a crowd to sit down and "
         "watch. ",
         "{d} takes a chop from {a} that left a mark I can see from here. ",
         "{a} knocks {d} flat with a shoulder block and did not even need the run-up. ",
         "{a} marches {d} from post to post and hits {d:him} at each. Good pacing, that. ",
         "{a} trades right hands with {d} and wins on points by a wide margin. ",
         "Uppercut by {a}, short and stiff. {d} has stopped posing. ",
         "{a} stamps on {d} with some purpose. There is a difference, and this is it. ",
         "{a} hammers {d} in the corner to a count of ten. I counted eleven, and none of them was "
         "soft. ",
         "{a} buries a shoulder in the ribs of {d}. Textbook corner work from a {a:man} who knows "
         "what a corner is for. ",
         "{a} headbutts {d}, and looks as if {a:he} enjoyed it. That is worth half a point. ",
     }},
    {OffenceA,
     kTLow,
     {
         "{a} attempts an armdrag on {d}. It was mostly attempt. ",
         "{a} uses a neckbreaker on {d}, and I use the term as loosely as {a:he} held it. ",
         "{d} gets hip tossed by {a} and supplies the height, the distance and the landing. ",
         "{a} puts on a headlock so loose that {d} could have read my notes through it. ",
         "{a} goes for a waistlock, looked crap. {d} waits for another try. ",
         "{a} takes {d} down in three stages, the last of them by accident. ",
         "{a} ties up with {d} and is visibly trying to remember which arm. The left. It is always "
         "the left. ",
         "{a} attempts a snapmare. {d} rolled through it alone, and neatly, I thought. ",
         "Wristlock by {a}, applied to {d} from a diagram held upside down. ",
         "{a} tries a drop toe hold and trips {d} with {a:his} hip. It counts, technically. ",
     }},
    {OffenceA,
     kTMid,
     {
         "{a} uses a neckbreaker on {d}. Early for it, but clean enough. ",
         "{d} gets hip tossed by {a}. Nobody was ever hurt by a hip toss, but it does look nice. ",
         "{a} picks the left arm of {d} and stays on it. I approve of a plan. ",
         "{a} takes {d} over with an armdrag and keeps the arm. That is what the arm is for. ",
         "Snapmare by {a}, followed by a chinlock. We have our mandatory chinlock. ",
         "{a} grinds on a side headlock. {d} pushes off, gets pulled back. Nothing wrong with a "
         "bit of wrestling. ",
         "{a} takes {d} to the mat and rides out the struggle. ",
         "{a} bends back the leg of {d}. Whether {a:he} will remember that leg in five minutes is "
         "another matter. ",
         "Drop toe hold by {a}, well timed. {d} goes down like a gate. ",
         "{a} reverses a wristlock of {d} and reverses the reversal. Old stuff, and still good. ",
     }},
    {OffenceA,
     kTHigh,
     {
         "{a} uses a neckbreaker on {d}, executed well. The turn of the hips is what does it. ",
         "{d} gets hip tossed by {a} with a crispness that I had given up hope of seeing tonight. ",
         "{a} strings four holds together and {d} is a hold behind the whole way. Lovely. ",
         "{a} floats from a waistlock to a front facelock, no daylight in between. Somebody was "
         "taught properly. ",
         "{a} ties up {d} in a bow and knot that I last saw in a book. ",
         "Three armdrags by {a}, each tighter than the one before. {d} slows the pace, wisely. ",
         "Fireman's carry takedown by {a}. {d} was on the mat before {d:his} arm knew about it. ",
         "{a} wrings the arm of {d} and steps through it. It looks easy, and you should try it "
         "some time. ",
         "{a} shoots for the leg of {d} and gets it at once. Amateur background, or a good "
         "imitation. ",
         "Drop toe hold into a front facelock by {a}. Full marks for the transition, and {d} for "
         "selling it. ",
     }},
    {OffenceA,
     kSLow,
     {
         "{a} leapfrogs {d}, or most of {d}. ",
         "{a} runs the ropes twice for no reason I could discover. {d} could not either. ",
         "Dropkick by {a} to the thigh of {d}. I have seen better elevation on a doormat. ",
         "{a} tries a headscissors, looked crap. {d} carried both ends of it. ",
         "{a} cartwheels past {d}. Style without content. It has its followers. ",
         "{a} hits {d} with a crossbody from so low that it was more of a hug. ",
         "{a} loses {a:his} footing and turns it into a slap at {d}. Quick thinking, at least. ",
         "{a} bounces off the ropes and arrives at {d} a beat late. The beat was noticeable. ",
         "Armdrag off the ropes by {a}. {d} did the drag, {a} supplied the arm. ",
         "{a} goes left, {d} goes left. They agree to do it again and everybody saw them agree. ",
     }},
    {OffenceA,
     kSMid,
     {
         "Dropkick by {a}. Chest height, both feet, no complaints. ",
         "{a} leapfrogs {d} and meets {d:him} coming back with an armdrag. The old sequence, at a "
         "decent clip. ",
         "Crossbody by {a}, who bounces up asking for applause. A polite amount is given. ",
         "Headscissors takeover by {a}, and {d} takes it well. It needs two, that move. ",
         "{a} ducks twice and then kicks {d} in the stomach. There is merit in changing the "
         "rhythm. ",
         "{a} comes off the second turnbuckle with both feet for {d}. Not high, but on target. ",
         "Monkey flip out of the corner by {a}. I thought they had stopped making those. ",
         "{a} slides between the legs of {d} and slaps {d:him} from behind. Cheeky. The young ones "
         "like it. ",
         "{a} runs {d} ragged for a while, in the literal sense of both words. ",
         "Springboard armdrag by {a}. There was no need for the springboard, but no harm either. ",
     }},
    {OffenceA,
     kSHigh,
     {
         "Dropkick by {a}, executed well. I make it six and a half feet, and I have an eye for "
         "it. ",
         "{a} circles {d} twice before {d} has finished turning once. ",
         "Headscissors by {a}, full rotation. {d} lands a good way off and stays to think. ",
         "{a} runs the top rope and takes {d} down by the arm. Showy, but when you can, you may. ",
         "{a} flips clear of {d} and lands facing the right way. So few do. ",
         "{a} lands on {a:his} feet out of a toss and has kicked {d} before it registers. Very "
         "quick. ",
         "Slingshot crossbody by {a}. The distance was judged to the inch. ",
         "{a} hits the ropes three times, each pass faster. {d} goes down on the third. Rule of "
         "three, properly observed. ",
         "{a} kips up and kicks {d} on the way. One movement. I rewound it in my head. ",
         "Somewhere in that blur {a} hit {d} with an armdrag. I will take the crowd's word on "
         "how. ",
     }},
    {OffenceB,
     kBLow,
     {
         "{a} swings a haymaker and misses {d} by enough to be safe and by too much to be "
         "believed. ",
         "{a} chokes {d} on the ropes, chiefly with goodwill. ",
         "Elbow drop by {a}, looked crap. {d} had moved, come back and been polite about it. ",
         "{a} hauls {d} up by the hair and then has no second idea. ",
         "{a} aims a boot at the chest of {d} and gets the elbow. {a} limps. ",
         "Corner charge by {a}, at a walk. {d} had a choice and chose to be hit. ",
         "Backhand by {a} that brushed {d} on the way to nowhere. ",
         "{a} pounds the chest of {d} like somebody who does not want to wake the neighbours. ",
         "Bearhug by {a}. We have our mandatory rest hold, and it is not clear which of the two is "
         "resting. ",
         "{a} punches {d} in a place where nothing is. Three out of ten. ",
     }},
    {OffenceB,
     kBMid,
     {
         "{a} drops the elbow on {d}. Straight down, no frills, heart side. ",
         "{a} chokes {d} on the second rope and breaks at four. They all break at four. ",
         "Big boot by {a}. {d} ran into it, as people do, with {d:his} eyes open. ",
         "Bearhug by {a}. I would have saved it for later, but it slows {d} down. ",
         "{a} splashes {d} in the corner, then again for those at the back. ",
         "Back elbow from {a}. {d} was leaning the wrong way. ",
         "{a} bounces {d} off the top turnbuckle while the crowd does its arithmetic. ",
         "Knee to the midsection from {a}. The air goes out of {d}, audibly. ",
         "{a} steps on {d} on the way across. Manners cost nothing. This cost {d} a rib. ",
         "Scoop slam by {a}. It has been done ten thousand times, because it works. ",
     }},
    {OffenceB,
     kBHigh,
     {
         "Back elbow from {a}, executed well, at the exact moment that {d} turned. ",
         "Big boot by {a}, and {d} went down without a thought of catching {d:himself}. That is "
         "trust, or surprise. ",
         "{a} drives {d} down with a scoop slam that I felt through the floor of the press table. ",
         "{a} throws a combination at {d}: two to the body, one over the top. Somebody has boxed. ",
         "Bearhug by {a}, and for once there is some squeezing in it. {d} is the wrong colour. ",
         "{a} hits the corner hard enough to shift the ring, with {d} in between. ",
         "Knee to the gut by {a}, lifted right through. {d} folds in the middle as designed. ",
         "Elbow drop by {a}, from a full standing height. You can teach the drop, but not the "
         "timing. ",
         "{a} knocks {d} down, waits, and knocks {d:him} down again. Unhurried. I like unhurried. ",
         "Short arm clothesline by {a}, who kept hold of the wrist. {d} had nowhere to go but "
         "down. ",
     }},
    {OffenceB,
     kTLow,
     {
         "{a} sets up a suplex, loses it, sets it up again. {d} could have sent for lunch. ",
         "{a} tries a leg lock and gets {a:his} own leg into it. {d} untangles {a:him}, kindly. ",
         "Backbreaker by {a}, looked crap. It was more of a knee rest. ",
         "{a} bodyslams {d} with the caution of somebody carrying a mirror. ",
         "Abdominal stretch by {a}. {d} is taller and merely looks bored. ",
         "{a} goes to the ankle of {d} and gets a boot lace. The knot holds better than the hold. ",
         "{a} loses the grip half way up. {d} improvises the second half. ",
         "Russian legsweep by {a}, swept late. {d} was already going. ",
         "{a} drops {d} at an angle that nobody had agreed on. Careful, now. ",
         "{a} rolls {d} into a cradle and out of the other side of it. No harm done, nor anything "
         "else. ",
     }},
    {OffenceB,
     kTMid,
     {
         "Suplex by {a}, with a decent arc. {d} lands flat, which is the idea. ",
         "Backbreaker by {a}. If {a:he} goes back to the back I will be pleased. They rarely do. ",
         "Legsweep by {a}, elbow to follow on {d}. That is a combination, and it has a point. ",
         "Abdominal stretch by {a}. {d} reaches for the ropes, as tradition demands. ",
         "{a} wraps the knee of {d} around the rope and kicks it. An honest day's work. ",
         "Gutwrench suplex by {a}. You do not see enough of those, and {d} has now seen one. ",
         "Northern lights suplex by {a}. The bridge was short, so the mark is too. ",
         "{a} crosses the legs of {d} and sits back. A hold with a long pedigree. ",
         "Atomic drop by {a}. {d} walks it off with the walk. Everybody has the walk. ",
         "{a} drags {d} down by the arm and leans on the shoulder. Quiet, patient, correct. ",
     }},
    {OffenceB,
     kTHigh,
     {
         "Suplex by {a}, feet planted, back straight, and {d} straight up and down as well. You "
         "could hang it in a classroom. ",
         "Backbreaker by {a}, executed well. The knee was where the back was going to be. ",
         "Two suplexes by {a}, hips rolled through and grip kept. {d} would have liked to get off "
         "after the first. ",
         "{a} goes after the leg of {d} and stays with it. Psychology! I had nearly forgotten how "
         "to spell it. ",
         "Abdominal stretch by {a}, hooked deep, no rope in reach. Even {d} seems to admire it. ",
         "Snap suplex by {a}. The snap is what they leave out these days. {a} left it in. ",
         "{a} counters what {d} had planned for the counter. That is chess, and {d} brought "
         "draughts. ",
         "Grapevine by {a}, and {d} has to drag both of them to the ropes. A minute well spent. ",
         "Northern lights suplex by {a}, with a bridge you could drive a van under. ",
         "{a} bends the arm of {d} over {a:his} own shoulder. Four years of school went into "
         "that. ",
     }},
    {OffenceB,
     kSLow,
     {
         "{a} climbs to the second rope, rethinks, and drops an arm on {d} on the way back down. ",
         "{a} tries a moonsault press and gets the floor. {d} was elsewhere, and had been for some "
         "time. ",
         "Flying forearm by {a}, looked crap. It flew for about a yard and {d} had to reach for "
         "it. ",
         "Spin kick by {a}. The spin was all right. ",
         "{a} runs at {d} and stumbles into something that I shall have to call a tackle. ",
         "{a} does a forward roll in the direction of {d}. I have asked around, and nobody knows "
         "why. ",
         "{a} jumps before {d} is in place. {d} hurries over to be hit. ",
         "Springboard by {a}, at the second attempt. The first never happened, we have all "
         "agreed. ",
         "{a} catches a foot on the rope and lands on {d} shin first. Effective, in its way. ",
         "{a} throws {a:himself} at {d} with more courage than aim. ",
     }},
    {OffenceB,
     kSMid,
     {
         "Axe handle off the second rope by {a}. {d} stood for it a shade long. ",
         "Flying forearm by {a}, which caught {d} on the chin. Solid contact. ",
         "Spin kick by {a}. A little high, but {d} ducked into it. ",
         "Bulldog by {a}, at a run. {d} puts {d:his} hands out, as anyone would. ",
         "Tilt-a-whirl by {a}. It takes longer than it used to, but {d} went over. ",
         "Missile dropkick by {a} off the second rope. Short flight, good landing. ",
         "{a} legdrops {d} off the ropes, twice. The second one was better, so there was a "
         "reason. ",
         "{a} vaults in off the apron, feet first into {d}. Timing fair, height good. ",
         "Running headscissors by {a}. {d} has to spin on {d:his} own for the last part. ",
         "{a} plays to the crowd and gets back to {d} in time. It is a risk, and it paid. ",
     }},
    {OffenceB,
     kSHigh,
     {
         "{a} comes off the second rope with a forearm for {d} and hardly seems to touch it on the "
         "way. ",
         "Spin kick by {a}, executed well. {d} turned a complete circle in reply. ",
         "Standing moonsault by {a} on {d}. No step, no wind-up. I tried to see how and could "
         "not. ",
         "{a} goes over {d}, under {d} and behind {d}, and there is a dropkick at the end. Seven "
         "seconds. ",
         "Tilt-a-whirl headscissors by {a}, twice around. Two is plenty, and {d} would say so. ",
         "Springboard dropkick by {a}. The rope barely moved. That is the mark of it. ",
         "{a} drops three legdrops on {d} in the time that most need to fall over. ",
         "{a} is on the top rope and off it onto {d} without any of the usual housekeeping. ",
         "{a} runs up the chest of {d} and backflips off. It has become a commonplace, but not at "
         "that speed. ",
         "{a} picks up the pace, and {d} cannot. I have made a small tick in the margin. ",
     }},
    {OffenceC,
     kBLow,
     {
         "Messed up bodyslam by {a}. {d} lands on a hip and gives {a:him} a look. ",
         "Big clothesline from {a}, which {d} had to run twice to find. ",
         "{a} tries to press {d} and stops at the chin. The chin trembles. Put {d:him} down. ",
         "{a} charges the corner and bangs {a:his} knee on the post. {d} pretends it was aimed. ",
         "{a} drops a fist across {d} from the height of a coffee table. ",
         "Spinebuster by {a}, looked crap. The spine in question has lodged no complaint. ",
         "{a} runs over {d} at the pace of a removal van, reversing. ",
         "{a} heaves {d} up sideways and they come down in order of weight. {a} first. ",
         "Lariat by {a}. The arm came through late and the rest of {a} later still. {d} waited for "
         "both. ",
         "{a} slams {d} in two instalments. ",
     }},
    {OffenceC,
     kBMid,
     {
         "Big clothesline from {a}. It is a clothesline, it was big, and {d} fell over. No notes. ",
         "{a} hits a bulldog off the ropes. {d} goes down face first, and I wince on schedule. ",
         "Bodyslam by {a}, with {d} held up long enough for a look around. ",
         "Spinebuster by {a}. Caught {d} running in, which is when you want it. ",
         "Press slam by {a}. One repetition would have done. {a} did three, with {d} as the "
         "weight. ",
         "Shoulder tackle by {a}, from a run. {d} might have moved. ",
         "Sidewalk slam by {a}. I have never met a bad one, nor a great one. {d} was dropped by a "
         "good one. ",
         "Clothesline in the corner by {a}, and another as {d} staggers out. Same arm, same "
         "result. ",
         "Double axe handle by {a}. Nobody under forty uses it. They should, {d} went down at "
         "once. ",
         "{a} drops {a:his} whole weight across {d}. Physics does the rest. ",
     }},
    {OffenceC,
     kBHigh,
     {
         "Big clothesline from {a}, executed well. {d} was horizontal for a moment, and then was "
         "not. ",
         "{a} hits a bulldog off the ropes. The whole run-up was on {d:his} neck, and {d} sold it "
         "like it. ",
         "{a} presses {d} overhead and walks with {d:him} before letting go. That is strength, not "
         "showing off. Some of both. ",
         "Spinebuster by {a}, with the pivot. Everybody forgets the pivot. {d} will not. ",
         "{a} throws {d} half the length of the ring. My pen rolled off the table. ",
         "{a} catches {d} in flight and slams {d:him} in one motion. It is worth the price of a "
         "programme. ",
         "Running lariat by {a}. {d} rotated in a manner that I would call complete. ",
         "{a} lays {d} out with a single right hand. If you have a punch, that is how to ration "
         "it. ",
         "Sidewalk slam by {a}, with all the weight behind it. I may have met a great one after "
         "all. ",
         "Splash by {a}, on {d}, from a standing start. The mat showed it for some time. ",
     }},
    {OffenceC,
     kTLow,
     {
         "German suplex by {a}, released by accident. {d} takes most of it on the ear. ",
         "Bridging suplex by {a}, looked crap. The bridge sank at once and {d} stepped off. ",
         "Half crab by {a}. Call it a quarter. {d} is admiring the rafters. ",
         "Swinging neckbreaker by {a}, in which {d} swung and no neck was troubled. ",
         "Fisherman suplex by {a}, with the leg left behind. {d} politely brings it along. ",
         "{a} goes for an armbar and takes a while to establish whose arm. It was {d:hers}, in the "
         "end. ",
         "{a} drops {d} one beat early. You could see them both count. ",
         "Gutbuster by {a}. It was felt, though by {a}, I think, and not by {d}. ",
         "{a} hooks one arm for the double underhook. One. {d} offers the other. ",
         "{a} kicks at the leg of {d} that nobody has been working on. Two minutes of story, "
         "gone. ",
     }},
    {OffenceC,
     kTMid,
     {
         "German suplex by {a}. {d} lands high on the shoulders, and {a} holds on. ",
         "Half crab by {a} in the middle of the ring. {d} crawls. It is a long ring. ",
         "Swinging neckbreaker by {a}. Good swing, fair neck. ",
         "Fisherman suplex by {a}, leg hooked, no slack. {d} thuds. ",
         "Gutbuster by {a} across the knee. It suits {a}, and it does not suit {d}. ",
         "Armbar by {a}, taken to the mat. {d} gets a boot to the ropes and the hold is broken, "
         "eventually. ",
         "Sleeper by {a}. We have our mandatory sleeper, with the mandatory arm drop to come. {d} "
         "fights up at two. ",
         "Double underhook suplex by {a}. It was a big move once, and {d} treats it like one. "
         "Thank you. ",
         "Ankle hold by {a}. {d} kicks it off at the third time of asking. ",
         "Belly to back suplex by {a}. Perfectly acceptable wrestling, as I like to say. ",
     }},
    {OffenceC,
     kTHigh,
     {
         "German suplex by {a}, executed well. Look at the toes, they never left the mat. Look at "
         "{d}, all of {d:him} did. ",
         "Three German suplexes by {a}, and I will forgive the repetition. {d} need not. ",
         "Half crab by {a}, sat so deep that {d} is looking at {d:his} own ankle. Top marks. ",
         "Fisherman suplex by {a} with the perfect plex of a bridge. They no longer print the "
         "manual {d} was beaten with. ",
         "{a} snatches the arm of {d} in mid swing and has it barred before it lands. Very, very "
         "good. ",
         "Double underhook suplex by {a}, floated over. The float over is what separates the "
         "grades. ",
         "Sleeper by {a}, and this one is a real threat. It has the right grip. {d} gets a foot to "
         "the bottom rope. ",
         "{a} makes a go-behind look like an event. {d} is none the wiser. ",
         "Exploder by {a}. High, tight, and {d} dropped where it was meant. Short, so it stays in "
         "the memory. ",
         "{a} takes the leg of {d} apart piece by piece. This is how one builds a match, you at "
         "the back. ",
     }},
    {OffenceC,
     kSLow,
     {
         "{a} hits a bulldog off the ropes. That is what it says on my sheet. {d} and I saw "
         "something else. ",
         "Flying cross body from {a}, short by a yard. {d} moves up. ",
         "Hurricanrana by {a}, looked crap. It became a powerbomb, and then an apology to {d}. ",
         "{a} leaps from the second rope, lands on {a:his} feet in front of {d}, and settles for a "
         "slap. ",
         "{a} falls off the ropes onto {d}. There is a school of thought that says it was "
         "deliberate. I went to another school. ",
         "{a} attempts a shooting star and comes down on {d} like a filing cabinet. ",
         "{a} takes a run of three sides of the ring to reach {d}. It is a square. {d} was next to "
         "{a:him}. ",
         "DDT off the ropes by {a}, in which {d} came down first and waited. ",
         "{a} walks the rope as far as the first wobble. {d} steadies it, and is hit for {d:his} "
         "trouble. ",
         "{a} leaps with {a:his} eyes shut. {d} wished {d:he} had shut {d:hers}. ",
     }},
    {OffenceC,
     kSMid,
     {
         "{a} hits a bulldog off the ropes. Decent spring. {d} takes it flat. ",
         "Hurricanrana by {a}. {d} had to help a little, but that is what hands are for. ",
         "Slingshot splash by {a}, who had {d} lined up well before the jump. One likes to see the "
         "homework. ",
         "Flying cross body from {a}. {d} got caught looking up. ",
         "Fist drop from the second rope by {a}. {d} had been lying there for a while, it must be "
         "said. ",
         "Tornado DDT by {a}. A turn and a half. The half was the good part, ask {d}. ",
         "Elbow from the second rope by {a}. It takes {a:him} a moment to find {d}, but find "
         "{d:him} {a:he} does. ",
         "Slingshot legdrop by {a}. A bit of flash, a bit of leg, all of it on {d}. ",
         "Flying kick by {a}. One foot landed. One was enough for {d}. ",
         "{a} goes apron to rope to {d} without a stumble. I was ready to write stumble. ",
     }},
    {OffenceC,
     kSHigh,
     {
         "Hurricanrana by {a}, executed well. {d} was taken over by the legs alone, and that is "
         "the hard way. ",
         "{a} hits a bulldog off the ropes. Clean take-off, {d} planted, {a} up first. Model "
         "answer. ",
         "Crossbody off the top by {a}. There is a pause at the height of it. I do not know how "
         "that is done, and nor does {d}. ",
         "Tornado DDT by {a}, off one foot. {d} came down straight on the crown. Delicate and "
         "horrible. ",
         "{a} goes from corner to corner with the dropkick. The whole diagonal, {d} sitting at the "
         "end of it. ",
         "Springboard cutter by {a}. We have seen it everywhere this year, and seldom that well. "
         "{d} was cut short. ",
         "Moonsault off the second rope by {a} onto {d} standing. Caught just right. ",
         "Flying elbow from {a}, full length, heart side. {d} shows us how it is taken. ",
         "{a} runs the ropes, leaps, and catches {d} with a knee on the temple. I put a line under "
         "that. ",
         "Something with a twist and a half from {a}. My notes say \"nice\". {d} lies under my "
         "notes. ",
     }},
    {OffenceD,
     kBLow,
     {
         "Powerbomb on {d} by {a}, sat down too soon. More of a chair. ",
         "Chokeslam by {a}. {d} jumped, as one must, and was then let go of rather than slammed. ",
         "{a} goes for a spear and pats {d} about the waist. ",
         "Piledriver by {a}, looked crap. I could have rolled an orange under the head of {d}. ",
         "{a} staggers three steps with {d} up there and sits down. They call it a slam on the "
         "sheet. ",
         "{a} swings for the jaw of {d} and gets an ear. {d} sells the jaw. One of them has read "
         "the script. ",
         "Messed up powerslam by {a}, with {d} on top at the end. It goes down as {a}'s. ",
         "{a} winds up the big right until half of the crowd has gone for drinks. {d} stayed for "
         "it. ",
         "Huge clothesline by {a}. The size was never in question. The contact with {d} was. ",
         "Death valley driver by {a}, which rolled off the shoulder. {d} made the best of it, and "
         "a landing. ",
     }},
    {OffenceD,
     kBMid,
     {
         "Powerbomb on {d} by {a}. All the way up, most of the way through. ",
         "Spear by {a}. {d} turned into it on time, which is half of a spear. ",
         "Chokeslam by {a}. It goes with the size. {d} went with it too. ",
         "Piledriver by {a}. Banned in four territories once. Here it gets a nod from me and a "
         "groan from {d}. ",
         "Powerslam by {a}, caught on the run. I have a weakness for that one. So has {d}, now. ",
         "Lariat by {a}. {d} took it on the chest and landed on the neck, so somebody was trying. ",
         "Samoan drop by {a}. No nonsense about it. A large object fell on {d}. ",
         "Slam off the top by {a}. {d} climbs up there and gets slammed off. Every time. Nobody "
         "learns. ",
         "Sitout slam by {a}. The impact was shared, though {d} got the larger half. ",
         "Boot to the head of {d} by {a}. You can grade a boot on the sound, and I give it a "
         "seven. ",
     }},
    {OffenceD,
     kBHigh,
     {
         "Powerbomb on {d} by {a}, executed well. High, straight, and nobody was hurt who was not "
         "meant to be. ",
         "Spear by {a}. {d} was lifted and carried a good two yards. That has been the best spear "
         "of the month. ",
         "Chokeslam by {a}, held at the top until everyone had seen it. {d} included. ",
         "Piledriver by {a}, knees tight, head safe, and the whole place thinks that {d} is dead. "
         "Mastery. ",
         "Lariat by {a}. {d} turned over once in the air and once more on principle. ",
         "Running powerslam by {a}. The run made it. The slam made {d} think again about this line "
         "of work. ",
         "Death valley driver by {a}. Straight down on the shoulder, no drift. {d} did not move "
         "for a while, nor did I. ",
         "{a} throws {d} overhead into the corner. I looked for the wires. ",
         "Sitout powerbomb by {a}. They do not come better than that. {d} went in as a vertical "
         "and came out as a hinge. ",
         "One right hand from {a}, and {d} drops as if the strings were cut. No embellishment. "
         "Exactly right. ",
     }},
    {OffenceD,
     kTLow,
     {
         "Side suplex from {a}, off the side of the side. {d} slid out of it. ",
         "Tiger suplex by {a} with the arms half hooked. {d} put out a hand, so now it has a name "
         "of its own. ",
         "Brainbuster by {a}, looked crap. {d} landed on the seat. I do not wish to speculate. ",
         "Figure four by {a}, on the wrong leg, for the second time that I can recall. {d} screams "
         "anyway, bless {d:him}. ",
         "Superplex by {a}, who climbs, wobbles, waits, and falls off backwards with {d}. ",
         "DDT by {a}. {d} hit the mat, {a} hit the mat, and the head of {d} did not. ",
         "Crossface by {a}, mostly across the mouth. {d} could be heard asking for a better one. ",
         "Double arm suplex by {a}, with a single arm and a lot of hope. {d} rolls through it. ",
         "Camel clutch by {a}, sitting so far forward that {d} is carrying {a:him}. ",
         "Belly to belly by {a}. They met, they hugged, they toppled. {d} was underneath by a "
         "narrow vote. ",
     }},
    {OffenceD,
     kTMid,
     {
         "Side suplex from {a}. It does the job, and {d} lands on the part that hurts. ",
         "Brainbuster by {a}. A fine move, if not made to sit in the middle of things. {d} is "
         "seeing double. ",
         "Figure four by {a}. {d} is a good arm's length from the ropes, of course. The whole art "
         "is in the length of that arm. ",
         "Superplex by {a}. Both lie there for the count of eight. One always hears that it takes "
         "as much out of the giver as out of {d}. ",
         "DDT by {a}. It used to end matches. Now it ends paragraphs, but {d} feels it. ",
         "Belly to belly by {a}. Good lift, tidy landing, {d} half across the ring. ",
         "Crossface by {a}, and {d} is a long way from anywhere. Well placed. ",
         "Tiger suplex by {a}. The arms were hooked and {d} came down on the back of the neck. Not "
         "for beginners. ",
         "Camel clutch by {a}. It is older than anybody in the building, and {d} hates it as "
         "people always have. ",
         "Dragon screw by {a}, knee first. If {d} is not limping in a minute I will be writing a "
         "letter. ",
     }},
    {OffenceD,
     kTHigh,
     {
         "Side suplex from {a}, executed well. There is such a thing as a perfect one, and {d} "
         "just had it. ",
         "Brainbuster by {a}, straight up, held, straight down. {d} is a punctuation mark. ",
         "Figure four by {a} in the centre, on the leg that has been worked. Thank you. {d} will "
         "not thank you. ",
         "Superplex by {a}, and the hold is kept on landing. That detail is a quarter of a star. "
         "{d} paid for it. ",
         "DDT by {a}, with a spike in it. {d} stood on {d:his} head for an instant, which is what "
         "it is all about. ",
         "Tiger suplex by {a}, arms trapped, toes dug in. The bridge was so good that I forgot {d} "
         "was under it. ",
         "Crossface by {a}, rolled back to the middle whenever {d} got near. Ring sense cannot be "
         "bought. ",
         "Dragon suplex by {a}. I do not care for them on medical grounds. On every other ground, "
         "magnificent, and poor {d}. ",
         "Belly to belly off the ropes by {a}. The timing needed for that is about a tenth of a "
         "second. {a} had it. {d} had the rest. ",
         "Five moves from {a} with no seam between them and a purpose behind each. Show it to the "
         "class. Do not show it to {d}. ",
     }},
    {OffenceD,
     kSLow,
     {
         "Moonsault by {a}, two feet short. {d} wriggled closer, out of loyalty to the art. ",
         "Frogsplash from {a}, looked crap. All four limbs, none of the frog. {d} coughs once. ",
         "Legdrop from the top by {a}. It dropped beside {d}, and that was the good leg. ",
         "{a} tries a hurricanrana off the top, loses the thread, and takes {d} down like a "
         "bookcase. ",
         "Missile dropkick by {a}, one foot at a time. {d} sold both, in order. ",
         "{a} leaps off the top facing the wrong way. There is a plan for that, and it was not for "
         "tonight. {d} gets a back in the face. ",
         "{a} wobbles on the top rope. {d} stands below like somebody with a net. ",
         "450 splash by {a}. It needs 450. I make it 400, and so does the chest of {d}. ",
         "{a} dives off the second rope at {d} and arrives on {a:his} hands. Call it a push. ",
         "Superkick by {a}, waist high. {d} stoops for it. I cannot grade stooping. ",
     }},
    {OffenceD,
     kSMid,
     {
         "Moonsault by {a}. Not much hang, but {d} was under it when it landed. ",
         "Frogsplash from {a}. Good height. The frog is optional, and {d} would have opted out. ",
         "Legdrop from the top by {a}. {a} will have a bad hip at forty. {d} has a bad neck now. ",
         "Missile dropkick by {a}. Two feet, one chest. {d} rolls clear to the far side. ",
         "Hurricanrana off the top by {a}. I hold my breath every time, and so should {d}. ",
         "Diving headbutt by {a}. I wish they would not. {d} wishes it as well. ",
         "{a} leaps the corner post onto {d}. It was further than it looked, and it looked far. ",
         "Springboard DDT by {a}. The spring was better than the DDT, but {d} is not splitting "
         "hairs. ",
         "Superkick by {a}. We have our mandatory superkick. It hit {d} under the chin, so I will "
         "let it pass. ",
         "Senton by {a}. A back is a blunt instrument, and {d} was hit with all of it. ",
     }},
    {OffenceD,
     kSHigh,
     {
         "Moonsault by {a}, executed well. A long, slow arc, and all of it on {d}. I had time to "
         "enjoy it. ",
         "Frogsplash from {a}, from well past half way across. The landing on {d} was full on. I "
         "have seen it bettered once. ",
         "450 splash by {a}. I counted the degrees and there was change. {d} took every one of "
         "them. ",
         "Superkick by {a}, with no step to warn {d}. A crack, a fall. Good. ",
         "{a} leaps three quarters of the ring and hits {d} with both knees. It ought not to be "
         "possible at that weight. ",
         "Shooting star press by {a}. You pray, they rotate, you write it down. {d} was hit "
         "square. ",
         "Hurricanrana off the top by {a}, and {d} came over like a page. That is the difference "
         "between doing it and knowing it. ",
         "Corkscrew by {a}, from the top, in a hurry, and dead centre on {d}. I have nothing to "
         "add. ",
         "Phoenix splash by {a}. I did not think we would get one on this card. {d} had hoped that "
         "we would not. ",
         "Springboard, half twist, elbow on the heart of {d}. {a} makes me sit up straight, and I "
         "have a bad back. ",
     }},
    {OffenceE,
     kBLow,
     {
         "Right hand from {a}, thrown from memory. {d} was standing somewhere else in the memory. ",
         "Kick from {a}, below the knee of {d} and beneath criticism. ",
         "{a} strikes {d} with the flat of the hand, or waves. Opinions differ. ",
         "{a} slaps at {d} as one does at a fly. The fly would have lived. ",
         "{a} swings and turns all the way around. {d} is there when {a:he} gets back. ",
         "Left hand from {a}, looked crap. It is not {a:his} hand, and it shows on {d}. ",
         "{a} elbows {d} in the upper arm, where {d} keeps the padding. ",
         "{a} stamps the mat for noise and forgets to touch {d}. Usually one does both. ",
         "{a} bumps {d} with the chest. Height two, weight three, menace nought. ",
         "{a} punches the guard of {d}, dutifully, four times. ",
     }},
    {OffenceE,
     kBMid,
     {
         "Right hand from {a}. Closed fist, says the rule book. Good luck to the rule book, and to "
         "{d}. ",
         "Kick from {a} to the midsection of {d}. The bread and butter of the trade. ",
         "{a} strikes {d} across the bridge of the nose. That gets a face out of anybody. ",
         "{a} clubs {d} from behind. Tactically it is hard to fault. ",
         "{a} digs {d} in the ribs twice. Infighting, an undervalued skill. ",
         "Knee lift by {a}. {d} straightens up just in time to go over backwards. ",
         "{a} batters {d} about the ears for a bit. It is not wrestling, but it is honest. ",
         "{a} knocks heads with {d}, and comes off slightly the better. Slightly. ",
         "Two lefts by {a}, and {d} is now watching the left. That will matter. ",
         "{a} pins {d} to the ropes and clubs away until told to stop. And after that. ",
     }},
    {OffenceE,
     kBHigh,
     {
         "Right hand from {a}, and it was the kind that makes a back row say oh. {d} said "
         "nothing. ",
         "{a} strikes {d} once. There was no call for a second. ",
         "Kick from {a} to the gut of {d}, executed well. It was all hip. ",
         "{a} fights {d} from one side of the ring to the other and gives away nothing. Good "
         "brawling is rarer than good suplexes. ",
         "{a} swats {d} down with a forearm, almost absently. Contempt, nicely played. ",
         "Elbow from {a}, right on the hinge. {d} will be taking {d:his} soup cold. ",
         "{a} has {d} by the throat and lets the moment breathe. Somebody taught {a:him} to wait. ",
         "{a} drives {d} to one knee with clubbing blows. Each one lands. Put that on the poster. ",
         "Uppercut from {a} that came up from the ankles. {d} rose to meet it, then kept rising. ",
         "{a} throws the heavy ones now, and {d} has no answer but the chin. The chin is a poor "
         "answer. ",
     }},
    {OffenceE,
     kTLow,
     {
         "Kick from {a} at the leg of {d}, at the one that was working. ",
         "{a} takes a wrist of {d} and then gives it back. Undecided. ",
         "{a} strikes {d} with a forearm in the slow motion that they use to teach it. ",
         "{a} tries to unbalance {d} and goes over first. Leading by example. ",
         "Right hand from {a}, looked crap. A technician's punch, and not a good technician's. ",
         "{a} puts {d} into something. I have looked it up, and it is not in there. ",
         "{a} slips out of the lock-up, slips again, and kicks {d} from the floor. ",
         "{a} pulls the hair of {d}. It was the surest grip that {a:he} has had tonight. ",
         "Knee from {a}. It was meant to be under {d} and came down beside {d:him}. ",
         "{a} trips {d} at the third attempt. Persistence counts. Not for much. ",
     }},
    {OffenceE,
     kTMid,
     {
         "Kick from {a} to the back of the knee. {d} buckles a little. It all adds up, if they let "
         "it. ",
         "Right hand from {a}, just to open up the arm of {d}. A means to an end. ",
         "{a} strikes {d} with a forearm and goes straight into the hammerlock. I have no quarrel "
         "with that. ",
         "{a} treads on the fingers of {d}. A small thing, and the small things are the trade. ",
         "{a} yanks {d} down by the arm, shoulder first. ",
         "European uppercut by {a}. It is the thinking person's punch. {d} now thinks less. ",
         "{a} picks an ankle, drops a knee on it, and looks at {d} as if taking notes. We both "
         "are. ",
         "{a} pulls {d} off the ropes by the bad arm. {a:he} remembered. Good. ",
         "{a} snaps the neck of {d} across the top rope. It is a shortcut, yet nobody minds. ",
         "Low kicks from {a}, one, two, three, all on the same spot of {d}. A surveyor could not "
         "do better. ",
     }},
    {OffenceE,
     kTHigh,
     {
         "Kick from {a}, on the joint, to the inch. {d} sits down without meaning to. ",
         "{a} strikes {d} with three European uppercuts, each a little higher up the jaw. A graded "
         "series. ",
         "Right hand from {a} that was never meant to land. {d} covers up, and {a} has the arm. "
         "Beautiful. ",
         "{a} dissects {d}. I use the word with care. ",
         "{a} is behind {d} before the lock-up is finished, and has dumped {d:him}. No wasted "
         "step. ",
         "From hold to hold to hold by {a}, with {d} a passenger throughout. I have stopped taking "
         "notes and am just watching. ",
         "Forearm by {a}, executed well. {d} took it as a compliment, lying down. ",
         "Dropkick to the knee by {a}. The match within the match, and {d} is losing both. ",
         "{a} takes the wrist of {d} and makes it look as though everything else hung from it. "
         "Everything else does. ",
         "{a} baits {d} into a hold and counters it before it is on. Unfair, in the best sense. ",
     }},
    {OffenceE,
     kSLow,
     {
         "Kick from {a}, which missed by a coat of paint. {d} fell over the paint. ",
         "{a} strikes {d} on the way past, with the wrong part of the foot. ",
         "Right hand from {a} at a full run, which ran out just in front of {d}. ",
         "{a} leaps at {d} and needs a hand back down. ",
         "{a} spins, loses count, and leans on {d}. Points for trying, none for the rest. ",
         "{a} hits the ropes a touch slow and {d} a touch soft. ",
         "Flurry of kicks by {a}, looked crap. A flurry ought to hit {d} more than once. ",
         "{a} kicks {d} in the kneepad. It is there for that purpose. ",
         "{a} springs over {d}, who had bent to tie a lace, so it seems. Then comes a slap. The "
         "slap was fine. ",
         "{a} dodges something from {d} that was not coming, and hits back at it. ",
     }},
    {OffenceE,
     kSMid,
     {
         "Kick from {a}, quick and low. {d} was still setting {d:his} feet. ",
         "{a} strikes {d} in passing and does not stay for the reply. Wise. ",
         "Right hand from {a} on the move. There is not much in it, but {d} has to turn for it. ",
         "Dropkick from {a} to the back of {d}. Unsporting, well placed. ",
         "{a} ducks under the arm of {d} and kicks upwards. Neat footwork, no more and no less. ",
         "{a} peppers the thigh of {d} with kicks. Keep at it, and it could mean something. ",
         "{a} vaults {d} and boots {d:him} on landing. Decorative, but it scored. ",
         "{a} skips off the ropes into a running forearm on {d}. The skip is {a:his} own idea. ",
         "{a} draws a wild swing out of {d} and punishes it. That is what speed is for. ",
         "{a} hops up on the back of {d} and steers {d:him} into the corner. One has to smile. "
         "Briefly. ",
     }},
    {OffenceE,
     kSHigh,
     {
         "Kick from {a}, over and done before {d} had raised a hand. I had to ask my neighbour. ",
         "{a} strikes {d} four times in the gap where one would fit. ",
         "Right hand from {a} out of a full turn, executed well. {d} was hit by the end of a "
         "sentence that {d:he} had not heard begin. ",
         "{a} runs {d} dizzy and puts a heel on the jaw at the end. I do like an ending. ",
         "{a} is up on the ropes and back on {d} in a second flat. My watch agrees. ",
         "{a} kicks {d} high, low and high again. Mixing it up, as every column of mine has begged "
         "them to. ",
         "{d} swings at where {a} was, and gets hit from where {a} is. That could serve as a "
         "summary. ",
         "Spinning heel kick by {a}. No drift, no drop in the shoulder. Nine, and only since I "
         "never give tens. {d} would have given one. ",
         "{a} goes past {d}, turns on a coin, and clips the ear of {d} with a boot. Change given. ",
         "{a} skips along the second rope and puts both feet in the chest of {d}. Frivolous. "
         "Perfect. ",
     }},
};

}  // namespace

Blocks Offence() {
  return kBlocks;
}

}  // namespace grapplemont::modTolland
