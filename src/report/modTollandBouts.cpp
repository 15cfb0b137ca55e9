#include "report/voices.h"

namespace grapplemont::modTolland {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {Counter,
     0,
     {
         "{a} sees the backdrop coming and kicks {d} in the chest. {d} always puts the head down "
         "too early. They all do. ",
         "{a} ducks a clothesline attempt. {d} turns around into trouble, as the sequence "
         "requires. ",
         "{a} blocks the right hand of {d} and answers with two. That is how a comeback is "
         "spelled. ",
         "{a} catches the foot of {d} and spins {d:him} round by it. Kicks are a loan. ",
         "{d} charges, {a} steps out of the corner, and the post makes the point. ",
         "{a} slides down the back of {d} and shoves {d:him} into the ropes. It changes hands. ",
         "{a} gets a boot up in the corner. {d} had every opportunity to see it. ",
         "{a} reverses the whip. I have seen people plan for that. {d} had not. ",
         "{a} goes to the eyes of {d}. A shortcut, but the traffic was bad. ",
         "{d} lifts {a} for a slam, and {a} drops behind with the waist already held. ",
         "{a} lands on {a:his} feet, to the surprise of {d}, who had moved on to the next thing. ",
         "{d} goes to the well once too often, and {a} has got there first. ",
         "{a} fights up to a vertical base with elbows. We have our mandatory elbows to the gut. "
         "{d} lets go at the third. ",
         "{a} holds on to the ropes while {d} takes the dropkick to an empty house. ",
         "{a} rolls aside. {d} drops an elbow on the canvas, which does not sell. ",
         "{a} slips the hold by the thumb. A thumb is always where a hold is weakest, and {d} had "
         "forgotten. ",
         "{a} turns a headlock into a back suplex. It has been done before, {d} should know, "
         "{d:he} {d:was} there. ",
         "{a} catches {d} with a jawbreaker out of nowhere in particular. Good instinct. ",
         "{d} stops to play to the crowd. {a} does not. The rest writes itself. ",
         "{a} pulls down the top rope, and {d} tips on to the apron and is hauled back in by the "
         "hair. ",
         "{a} sidesteps and lets {d} do the damage alone. Least effort, best result. ",
         "{a} stamps on the instep of {d}. Small, mean, and I have never seen it fail. ",
         "{a} runs {d} backwards into the corner to break the grip. Brute logic. ",
         "{d} hesitates over what to do next. {a} has been waiting for that since the bell. ",
         "{d} has {a} up for a suplex, {a} shifts {a:his} weight, and it is {d} who goes over. ",
         "{a} trips the run of {d} with a drop toe hold. A neat way of changing the subject. ",
         "{a} sweeps the legs of {d} from the mat. Never stand near a beaten {a:man} who is not "
         "beaten. ",
         "{a} absorbs one, absorbs another, and then catches the third in mid air. {d} looks at "
         "the fist with regret. ",
         "{a} ducks the first, ducks the second, and by now {d} is facing the wrong way. That is "
         "momentum. ",
         "{a} wriggles free of a pin attempt in the making and has a waistlock on {d}. The better "
         "wrestler, for that second at any rate. ",
     }},
    {TwoCount,
     0,
     {
         "Hooks the leg for a two count. ",
         "A lateral press, no leg, for two. ",
         "Cover, a clear two. ",
     }},
    {NearFall,
     0,
     {
         "Two and three quarters, by my watch. ",
         "One, two, and {d} kicks out late enough to worry my pencil. ",
         "Two and nine tenths, and the crowd treats it as such. ",
         "A long two. {d} is out of it by the width of a shoulder. ",
         "One, two, and a shoulder. I would have bought that one. ",
     }},
    {ThreeCount,
     0,
     {
         "One, two, three. {w} has beaten {l}. ",
         "{w} covers {l}, hooks the leg, and gets all three. ",
         "Three count, {w} over {l}. ",
         "{w} makes the cover. {l} does not stir, and it is three. ",
         "The shoulders of {l} are down for three, and {w} has the win. ",
         "{w} makes the cover, and the three is a formality. {l} is beaten. ",
         "One, two, three. {w} beats {l}, and the timing of it was right. ",
         "Shoulders down, three counted, {w} the winner over {l}. It can be as simple as that. ",
     }},
    {TapOut,
     0,
     {
         "{l} taps, and {w} wins by submission. Tapping early is just good sense. ",
         "{l} holds out longer than I would and then taps. {w} wins. ",
         "There is the tap from {l}. {w} releases at once, as one professional to another. ",
         "{l} looks for the ropes, does the sum, and submits. The win goes to {w}. ",
         "{l} gives up. {w} had worked towards it, and I like to see work paid. ",
         "There is the tap from {l}. {w} lets go at once, which is good manners, and wins. ",
     }},
    {PinNoRef,
     0,
     {
         "Hooks the leg, but the referee is still out. That would have been three, and we shall be "
         "told so for weeks. ",
         "A cover, with nobody to count it. I make it five. My count is not official. ",
         "Pin, no referee. The visual fall, they call it. I call it a habit. ",
         "The shoulders are down, the official is down, the pace is down. One of them had better "
         "get up. ",
         "A perfectly good cover, and no official to see it. It is the oldest waste there is. ",
         "The shoulders were down for five by my watch. My watch has no standing. ",
     }},
    {RefBump,
     0,
     {
         "{a} swings at {d} and the referee gets between them. We have our mandatory ref bump, as "
         "he goes down after accidentally getting caught. ",
         "The referee bumps after catching a wild right hand and is down. It was meant for {d}. ",
         "{d} is whipped into the corner, where the referee was standing. I do not know why. I "
         "have never known why they stand there. ",
         "{a} and {d} collide with the official, who sells it as if from a rooftop. It is the two "
         "hundredth this year by my tally. ",
         "{d} backs into the referee, lightly. That is five minutes out. It is a delicate "
         "profession. ",
         "{a} shoves {d}, {d} meets the referee, the referee meets the floor. Ref bump, and I sigh "
         "so that you do not have to. ",
     }},
    {TagOut,
     0,
     {
         "Tag between {a} and {b}. ",
         "{a} tags out to {b}. ",
         "{a} makes the tag to {b}, inside the five seconds. ",
         "{b} has the arm out, and {a} reaches it. ",
         "Quick tag from {a} to {b}. ",
         "{a} finds the hand of {b} and rolls out of the way. ",
         "{a} tags {b}. Both feet on the apron, hand over the rope, all as it should be. ",
         "{b} is in, {a} is out, and the pace picks up by a notch. ",
         "A tag to {b}. {a} had about a minute left in the legs. ",
         "{a} works back to the corner and brings in {b}. Sensible. ",
         "{a} makes the tag at full stretch. {b} comes in with the crowd behind. ",
         "{b} takes over from {a} without letting anyone up. That is how it is taught. ",
     }},
    {DoubleTeam,
     0,
     {
         "{a} and {b} lift {d} between them, then hit a double suplex. Good synchrony. ",
         "{a} and {b} send {d} into the ropes and hit a double clothesline. I award it no points "
         "for originality. ",
         "{b} holds {d} up and {a} lands the boot. They have drilled that. ",
         "{a} drops to all fours behind {d} and {b} does the pushing. School playgrounds have "
         "produced worse. ",
         "{a} whips {b} into {d} in the corner. Two bodies, one post. The referee takes an "
         "interest at last. ",
         "Elbow by {a}, legdrop by {b}, both on {d}, both on the beat. That is a team and not just "
         "two people. ",
     }},
    {BreakIn,
     0,
     {
         "{a} breaks it up with a boot to the back of {d}. Wise, since waiting loses you matches "
         "like this. ",
         "{a} pulls {d} out of it by the ankle and takes over. ",
         "{a} drops a knee across {d} to break it up. Somebody had to, or I could have gone home. ",
         "{a} comes back into it from the blind side of {d}. These things are won on the blind "
         "side. ",
         "{a} has rested long enough and hauls {d} away. ",
         "{a} cuts in on {d}, as at a dance. The steps are much the same. ",
         "{a} returns and takes {d} out of the exchange. Somebody has to stand aside, it seems, "
         "and it varies. ",
         "{a} pulls {d} away by the ankle. The pairing changes, the pace holds. ",
         "{d} had stopped looking over the shoulder. {a} was there. ",
         "A kick from {a} puts an end to what {d} had going. It had gone far enough. ",
     }},
    {LadderSpot,
     0,
     {
         "{a} drives the ladder into {d}, short end first. The short end is harder. ",
         "Whip into the ladder by {a}, and {d} takes it high on the back. You can hear which bumps "
         "are real. ",
         "{a} drops the ladder across {d}. Not subtle, but then ladders are not. ",
         "{a} swings the ladder and {d} runs into it. It is four feet wide. One could see it. ",
         "{a} stands the ladder in the corner and whips {d} at it. A proper use for the corner. ",
         "{a} folds the ladder on {d} and leans. The creative part of the evening. ",
         "{a} tips {d} off the ladder at the third rung. Not far, yet far enough to count. ",
         "{a} slams {d} on the open ladder. I have asked them to stop. My letters go unanswered. ",
     }},
    {WeaponSpot,
     0,
     {
         "{a} finds a chair for the back of {d}. Flat side, to {a:his} credit. ",
         "{a} empties a dustbin over {d} and then uses it as nature never meant. It dents nicely. ",
         "{a} brings out a kendo stick. It stings, says {d}, without words. ",
         "{a} hits {d} with a baking tray. They ring well, that is the secret of the baking tray. ",
         "{a} throws a chair at {d} from across the ring. We have our mandatory thrown chair. ",
         "{a} breaks a mop handle over {d}. It was sawn half through. It is always sawn half "
         "through. ",
         "{a} chokes {d} with a length of cable from under the ring. There is nothing useful under "
         "there, and everything else. ",
         "{a} hits {d} with a stop sign. My views on props are on file. ",
         "{a} unscrews a turnbuckle, and {d} is introduced to what was beneath. Slow to build, but "
         "it paid. ",
         "{a} bounces a cookie sheet, a bucket and a crutch off {d}, in ascending order of merit. ",
     }},
    {Spot,
     kHoldSpot,
     {
         "{a} twists, {d} grits {d:his} teeth, the referee asks. {d} says no. It will be asked "
         "again. ",
         "{a} goes back to the part that has been hurting. A submission match should be about "
         "something, and this one is. ",
         "{a} has it locked in the middle. {d} claws at the mat by inches. I find that I am "
         "counting them. ",
         "{a} moves from the wrist to the elbow to the shoulder of {d}. Logical. ",
         "{a} changes the grip a little. {d} makes a noise that was not rehearsed. ",
         "{d} has the ropes in sight and {a} on {d:his} back. It takes a long time. It is meant "
         "to. ",
         "{a} leaves the arm, goes to the leg, and returns to the arm. {d} never had a chance to "
         "guard both. ",
         "The referee bends down to ask, and {d} turns away. {a} adds an inch. ",
     }},
    {Spot,
     kClockSpot,
     {
         "{a} looks at the clock, then at {d}, and slows down on purpose. That is how you wrestle "
         "time. ",
         "Time is passing, and {a} spends it all on {d}. Conditioning is going to tell. ",
         "{a} lies on {d} and makes {d:him} carry the weight. It is dull, and quite right. ",
         "The pace drops. {a} takes a breath with {d} caught in a front facelock. No blame for "
         "that, in one of these. ",
         "{a} lets {d} up, since a fall now is worth less than a fall later. Chess, in boots. ",
         "{d} is blowing hard. {a} is too, with a better poker face. ",
         "{a} and {d} exchange holds at half speed. It is honest tiredness, and it looks well. ",
         "The clock has been shown twice now, and {a} has looked at it both times. {d} has not "
         "dared. ",
     }},
    {Spot,
     kJunkSpot,
     {
         "{a} wheels in a trolley of scrap. {d} is hit with the contents, then the trolley. It is "
         "thorough work. ",
         "{a} uses a fire extinguisher on {d}. Powder everywhere, and nobody can see whether it "
         "was any good. ",
         "{a} wraps the bell rope around {d} and pulls. One note. ",
         "{a} puts a bucket over the head of {d} and hits it with a stick. I gave up objecting to "
         "that some years ago. ",
         "{a} finds a folding sign and folds {d} into it. Ingenuity of a sort. ",
         "A mop is used. {a} uses it, {d} regrets it, I put down one mop. ",
         "{a} strikes {d} with a pot, and then with its lid. At least it matches. ",
         "{a} returns from under the ring with a length of hose. {d} finds out what it is for. ",
     }},
    {Spot,
     kCageSpot,
     {
         "{a} runs the face of {d} along the mesh. A cage is there to be used, and for once it "
         "is. ",
         "{a} starts over the top. {d} gets a hand on a boot and the climb is off. That is a good "
         "false finish. ",
         "{a} throws {d} at the steel from close in. No give at all. One hears the difference. ",
         "{a} crawls at the door with {d} wrapped around one leg. It takes a full minute, and "
         "every inch is earned. ",
         "{a} leaves {d} slumped on the mesh and thinks about the door. The thinking costs {a:him} "
         "the chance. ",
         "{d} is on the top, {a} has a wrist. They stay like that for a while. Good picture. ",
         "{a} drives {d} along two walls of four. I should have liked to see all four. ",
         "{a} pulls {d} off the steel by both ankles. There is nothing pretty about that landing. ",
     }},
    {Spot,
     kTexasSpot,
     {
         "{a} pins {d} for the three, so now we count to ten. {d} is up at eight. It all takes "
         "rather long. ",
         "A fall to {a}. {d} is up at nine, by way of the ropes, since that is where the drama is "
         "kept. ",
         "{a} gets three, then watches {d} rise at seven. The look on {a} was worth a little "
         "something. ",
         "{a} has {d} pinned. The ten count begins, and {d} rolls to a knee at six. Too soon, hold "
         "out for eight. ",
         "{a} takes a fall, which here is only half of one. {d} stirs at five and stands at "
         "eight. ",
         "A pin for {a}. The count that follows is where the acting comes in, and {d} does it "
         "well. ",
         "Three for {a}, nine for {d}. I preferred it when the one was enough. ",
         "{a} pins {d} and sits down to wait. {d} obliges at eight. A good little scene. ",
     }},
    {Spot,
     kTenCountSpot,
     {
         "{a} puts {d} down and steps back. Eight. Nine. {d} is on both feet. I have yet to see "
         "anybody rise at four. ",
         "{d} pulls up by the ropes at seven, and {a} is there to make it a waste of effort. ",
         "{a} has {d} flat and the count at eight. Nobody in the building believes it yet, and "
         "they are right. ",
         "{a} lays {d} low. The count goes slow enough to be generous. {d} rises, wobbling. ",
         "{a} stands over the count. {d} is up at nine. It is always nine, but this time I was not "
         "sure. ",
         "{a} has the patience to let the count run. {d} breaks it at eight on the strength of one "
         "arm. ",
         "{d} uses {a} to get up, hand over hand. {a} ought to have moved. ",
         "The count reaches six before {d} so much as blinks. {a} begins to believe it. ",
     }},
    {Spot,
     kAnywhereSpot,
     {
         "{a} and {d} take it up the aisle, where I can no longer see. I am told that {a} had the "
         "best of it. ",
         "{a} throws {d} over a trestle of programmes. Mine is among them. ",
         "{a} slams {d} on the concrete of the concourse. I winced, and I am not a wincer. ",
         "{a} and {d} brawl by the exit. The crowd gets to touch them. This is the appeal, such as "
         "it is. ",
         "{a} and {d} go by me and on into the seats. I have saved my notes and lost my tea. ",
         "{d} is rammed into a pillar. The building wins that one, on behalf of {a}. ",
         "{a} tries for a fall at the foot of the stairs. The referee is still at the top of "
         "them. ",
         "{a} has dragged {d} half the way round the hall. Those in the cheap seats have got their "
         "money's worth. ",
     }},
    {Spot,
     kClimbSpot,
     {
         "{a} climbs slowly, as everyone does until the finish. {d} shoves the ladder over. ",
         "{a} gets a fingertip to {prize} and {d} hauls {a:him} down by the belt. Good tease. ",
         "Both climb. {a} hits {d} at the top with a right hand, and both come down with it. The "
         "rungs take no sides. ",
         "{a} sets the ladder under {prize} first and checks that it is steady. Thoughtful. {d} "
         "knocks it over. ",
         "{d} is down, {a} is up, and for once the climb is at a human speed. {d} gets there by "
         "one rung. ",
         "{a} has a hand near {prize}. The other one is busy with {d}, who is busy with the "
         "ladder. ",
         "The ladder leans, {a} leans with it, and {d} only has to watch. Neatly done. ",
         "{a} sees that {d} is stirring and climbs on. It is a fair gamble. It fails. ",
     }},
    {Spot,
     kTableSetUp,
     {
         "{a} sets up a table with the care of a restorer. {d} kicks out a leg of it. ",
         "{a} lifts {d} over the table and {d} blocks it, twice. The longer it stands, the better "
         "it breaks. ",
         "{a} aims {d} at the wood and misses by a foot. The tease was well paced. ",
         "{a} props a table in the corner. Everyone has now been told how it may end. {d} has been "
         "told as well, and stays clear. ",
         "{a} takes {d} to the edge of the apron. The table is below. It stays whole, and so does "
         "{d}. ",
         "A table is up and nobody is near it. {a} begins to steer {d} over, by degrees. ",
         "{d} counters with a foot against the edge of the table. {a} has to start over. The wood "
         "is patient. ",
         "{a} and {d} fight beside a table without going through it. There is craft in that. ",
     }},
    {Spot,
     kClothesSpot,
     {
         "{a} takes hold of a strap of {d}, who takes hold of a wrist. That is the whole of the "
         "technique. ",
         "{a} loses {a:his} grip on a sleeve of {d}. A stitch went. I recorded the stitch. ",
         "{a} and {d} roll over and over. There was a headlock in there. I like to mention "
         "headlocks. ",
         "{a} tugs, {d} tugs back. This is a match type, I am assured by the office. ",
         "{a} gains a ribbon. {d} keeps the rest. The score is open. ",
         "There is a hold in this, almost a hammerlock, and {a} lets go of it for the sake of a "
         "cuff of {d}. ",
         "{d} retreats to the ropes to tie something. {a} unties it. ",
         "{a} pulls at a hem. I have consulted the rules, and they are a page and a half shorter "
         "than I feared. ",
     }},
    {Spot,
     kQuitSpot,
     {
         "{a} has the hold on and the microphone is lowered to {d}. It picks up language, but not "
         "surrender. ",
         "Asked whether {d:he} quit{d:s}, {d} says that {d:he} {d:does} not. {a} reapplies the "
         "question. ",
         "{a} screams at {d} to say it. {d} breathes. It is a good long breath, and well mixed. ",
         "The official asks, {a} leans, {d} shakes {d:his} head. These stand or fall on the "
         "acting. It stands. ",
         "{d} says no for the fourth time. {a} has run out of questions and not of holds. ",
         "{a} takes the microphone away and makes {d} wait for the next one. That is clever. ",
         "{d} opens {d:his} mouth, thinks, and closes it. {a} bends the arm further. The hall is "
         "quite still. ",
         "The answer of {d} is not fit to print. {a} resumes. ",
     }},
    {Spot,
     kBloodSpot,
     {
         "{a} sends {d} into the post. Everyone leans in to look. Nothing yet. ",
         "{a} works on the eyebrow of {d} with the knuckles. It is the sensible place, says my "
         "medical column. ",
         "{d} covers the face as {a} looks for a way around the arms. There is real caution here. "
         "It suits. ",
         "{a} swings something metal at {d}, who gets a hand to it. The hand smarts. The rules say "
         "that smarting is not bleeding. ",
         "{a} has gone to the same spot three times. {d} touches it and looks at the hand. It is "
         "clean. ",
         "{d} shies from the post. {a} has a second post. ",
         "The official stops {a}, inspects {d}, and waves them on. One could hear the crowd lean "
         "back. ",
         "{a} rakes the brow of {d} across the top rope. It is a matter of time and of skin. ",
     }},
    {Spot,
     kFireSpot,
     {
         "{a} backs {d} to the edge, and both think better of it. The heat keeps the work rate "
         "down. It always does. ",
         "{a} has {d} bent back over the ropes, a foot from the flames. The foot is well judged. ",
         "{d} hangs over the fire by one arm and drags {a} back with the other. I put my collar "
         "up. ",
         "The flames jump on each bump. {a} makes {d} bump. The rest of us shade our eyes. ",
         "{a} pins {d} to the ropes by the throat and lets the fire do the talking. ",
         "{d} drops flat, and {a} almost goes over instead. That would have been a finish. ",
         "It is hard to wrestle without the corners. {a} and {d} make do with the middle third of "
         "a ring. ",
         "{a} steers {d} along the apron, a boot's width from the flames. The footwork is better "
         "than the idea. ",
     }},
    {Spot,
     kCellSpot,
     {
         "{a} uses the wall of the cell on {d}. It is more than scenery, or ought to be. ",
         "{a} traps {d} between the apron and the mesh and kicks. Nowhere to fall. That is nasty, "
         "and clever. ",
         "{a} goes for the top and {d} follows. I have said what I think about the top. I shall "
         "watch it through a gap. ",
         "{a} rakes {d} across the links. The grip of the tale is all in the steel. ",
         "{a} finds the door post and introduces {d}. Steel has just the one answer. ",
         "{d} is thrown from one wall to the other, and {a} takes {a:his} time between. Good. A "
         "cell is for taking time. ",
         "{a} picks up the steps, as one does in there. {d} goes down under them. ",
         "{d} crawls along the wall to find a gap. There is none. {a} follows at a walk. ",
     }},
    {Spot,
     kIncidentSpot,
     {
         "{a} and {d} trade fists at a height where one trade ends badly. Nobody is doing holds up "
         "there. ",
         "{d} dangles, {a} stamps on a hand, {d} swaps hands. It is nonsense, and my palms are "
         "wet. ",
         "{a} edges out along a beam after {d}. The match slows to a crawl, by necessity. ",
         "{a} shakes the structure. {d} clings. I have stopped grading and begun worrying. ",
         "{a} misses with a right hand and has to hug a girder. {d} is too careful to profit by "
         "it. ",
         "{d} hangs by the elbows. {a} kneels to look, and that is no kindness. ",
         "Neither {a} nor {d} is looking down. I do it for them. ",
         "{a} has {d} over the rail, and back. I do not think that the second part was planned. ",
     }},
    {Spot,
     kWireSpot,
     {
         "{a} sends {d} into the strands. Even the referee keeps at a distance. ",
         "{a} drags the forearm of {d} along the barbs. I look at my notes for a while. ",
         "{d} stops an inch short of the wire. {a} supplies the inch. ",
         "{a} wraps a strand around the boot and steps on {d}. That is inventive. Perhaps too "
         "inventive. ",
         "{a} holds {d} close to the strands and lets {d:him} think about it. The thinking is the "
         "best of it. ",
         "{d} gets loose at the cost of a sleeve. {a} has the sleeve and no use for it. ",
         "{a} whips, {d} stops, {a} does not. They both come away with marks. ",
         "A strand has come down. {a} picks it up with two fingers, and {d} backs away. That is "
         "good sense all round. ",
     }},
    {Spot,
     kDeathSpot,
     {
         "{a} puts a light tube over the head of {d}. Dust, noise, glass. It is a spectacle. I do "
         "not have a column for spectacle. ",
         "{a} spills the pins and drops {d} in them. The crowd counts how many stuck. I will not. ",
         "{a} slams {d} on a board of nails. The art lies in landing flat. {d} had practised, I "
         "hope. ",
         "{a} brings a staple gun to {d}. I recall the days of the headlock, and with some "
         "warmth. ",
         "{a} breaks a pane over {d}. A man with a broom gets the best hand of the night. ",
         "{d} is backed on to the tacks in socks. {a} has thought about this, and that is what "
         "troubles me. ",
         "{a} takes a saw to something. It was not {d}. I have asked to be told what it was. ",
         "{a} and {d} stand in the glass and throw fists. It would have been as good without the "
         "glass. It usually is. ",
     }},
    {Spot,
     kNakedSpot,
     {
         "{a} removes one more item from {d}. For the record: it was a boot. ",
         "{d} clings to what is left with both hands, leaving none for wrestling. {a} has the same "
         "problem. ",
         "{a} gets a sash off {d} in what was very nearly a go-behind. ",
         "{a} and {d} circle, each with a fistful of the other's outfit. I grade on coverage. ",
         "{a} has a stocking of {d}. I enter one stocking. ",
         "{d} ties a knot. {a} unties it. There is more counter wrestling in this than one would "
         "suppose. ",
         "The referee hands {d} a towel, and {a} counts that as an item. There is an argument, "
         "with rules. ",
         "{a} takes a jacket off {d}, folds it, and goes back in. Manners have not died out. ",
     }},
    {Spot,
     kTlcSpot,
     {
         "{a} sets a chair on a table and a ladder on both. {d} is going to go through one of the "
         "three. For now, the chair. ",
         "{a} is on the way up when {d} throws a chair. Right between the shoulders. Never mind "
         "the art, that was good aim. ",
         "{a} lays {d} on the bridge between ladder and apron, and it holds. Somebody measured. ",
         "Table, ladder, chair, each used once by {a} on {d}. I tick them off. The form has boxes "
         "for it. ",
         "{a} lays a ladder across two chairs. It holds {d} for a moment and no longer. ",
         "{d} is under the table when {a} comes through it. Nobody tells me that it was the plan. ",
         "{a} climbs. {d} climbs. A third thing falls over by itself. It is that kind of match. ",
         "{a} throws a chair from the ladder and hits {d} on the bounce. I have to give marks for "
         "that. ",
     }},
    {FinishImpact,
     0,
     {
         "{a} hits {d} with the {finisher}. Clean contact. ",
         "The {finisher} by {a} on {d}, just when it was due. ",
         "{a} waits for {d} to turn around, and there is the {finisher}. ",
         "{a} lands the {finisher} on {d}, flush. ",
         "{a} sets it up, looks at nobody, and hits {d} with the {finisher}. ",
         "{a} has one arm free, and one is enough for the {finisher}. {d} never moves. ",
         "The {finisher}. {a} has beaten better than {d} with that. ",
         "One mistake by {d}, one {finisher} from {a}. ",
     }},
    {FinishHold,
     0,
     {
         "{a} locks the {finisher} on {d}, in the middle, where it belongs. ",
         "The {finisher} by {a}. It is on deep, and {d} has no way out. ",
         "{a} has the {finisher} on {d} and sinks it a notch deeper each time that {d} moves. ",
         "{d} fights the hands, loses, and {a} has the {finisher} cinched in. ",
         "{a} moves from one hold into the next, and the next is the {finisher}. {d} saw it too "
         "late. ",
         "{a} hooks the second leg, and {d} is in the {finisher}. The rest is arithmetic. ",
     }},
    {FinishTopRope,
     0,
     {
         "{a} goes up, takes aim, and hits {d} with the {finisher}. Worth the wait. ",
         "The {finisher} from the top by {a}. {d} is caught flush. ",
         "{a} climbs without hurry and brings down the {finisher} on {d}. Good height, good "
         "landing. ",
         "{d} is down in the right spot, {a} is up on the right rope, and the {finisher} does the "
         "rest. ",
         "{a} has the time to climb and takes it. {d} takes the {finisher}. ",
         "Down comes {a} with the {finisher}. {d} had no breath left to roll away with. ",
     }},
    {FinishGround,
     0,
     {
         "{d} is down, and {a} adds the {finisher} for certainty. ",
         "{a} finds {d} flat on the mat and delivers the {finisher}. No shine on it, just weight. ",
         "The {finisher} by {a} on a {d:man} already beaten. Thoroughness is a virtue. ",
         "{a} stands over {d}, nods, and drops the {finisher}. ",
         "{a} does not let {d} up. The {finisher}, from close in. ",
         "{d} reaches for a rope. {a} answers with the {finisher}. ",
     }},
    {IronFall,
     0,
     {
         "{a} pins {d}. The board reads {tally}. ",
         "Fall to {a} over {d}. {tally}. It is the sort of match in which one falls by "
         "arithmetic. ",
         "{a} catches {d} napping for a quick one. {tally}, and plenty of story left. ",
         "{a} takes a fall that was earned. {d} takes the rest period. {tally}. ",
         "{d} is down for three. {a} goes straight back to work, and the count is {tally}. ",
         "A roll-up by {a} on {d}, and that is {tally}. I prefer these to the long ones. ",
     }},
    {IronSum,
     0,
     {
         "The final score is {tally}. {w} has outlasted {l}, and pacing did it. ",
         "{tally} at the end of the period. {w} takes it. I would like to see the chart. ",
         "The clock has run out at {tally}, so {w} is the winner. {l} asks for one more minute. So "
         "they all do. ",
     }},
    {EliminatedOne,
     0,
     {
         "{a} pins {d}, who is eliminated. About the right moment, too. ",
         "{d} is out, pinned by {a}. I expected that one second. ",
         "{a} gets the three on {d}. The field thins, and the match improves, as these do. ",
         "One, two, three, and {d} goes to the back. {a} stays. ",
         "{d} is eliminated after a flat finish by {a}. They are saving the good one. ",
         "{a} rolls up {d} for the elimination. {d} stays to complain. There is no desk for that. ",
     }},
    {EliminatedTeam,
     0,
     {
         "{a} pins {d}, so {X} {X:is} eliminated. ",
         "Three count on {d}, and {X} go{X:es} to the back. {a} did it with the simple thing, done "
         "right. ",
         "{d} is beaten by {a} and takes {X} along. It was a team effort in the wrong direction. ",
         "{X} {X:is} out, as {d} could not kick out of that from {a}. I had {X:him} going "
         "further. ",
     }},
    {SurvivorOut,
     0,
     {
         "{d} is eliminated by {a}. A quick one, for the numbers. ",
         "{a} pins {d}, and the sides are no longer what they were. ",
         "One, two, three. {d} is gone, to the displeasure of {d:his} partners, and {a} tags out "
         "for a rest. ",
         "{d} never saw {a} coming. Eliminated from behind, as is the fashion in these. ",
         "{a} sees to {d}. I put a line through the name. I use a ruler. ",
         "{d} out, {a} the one who did it. They might have given {d} another minute. ",
         "{a} catches {d} in a cradle, and that is an elimination. Wrestling still works now and "
         "then. ",
         "The three on {d} goes to {a}. We are getting to the part that matters. ",
     }},
    {Survivors,
     0,
     {
         "The survivors are {Z:members}. My card had it differently. ",
         "Left at the end of it: {Z:members}. I would not have changed that. ",
         "{Z:members} survive{Z:s}, and {Z:has} the marks to show. ",
     }},
    {RumbleStart,
     0,
     {
         "Entry #1 is {a} and entry #2 is {d}. {a} and {d} are the first two competitors. Somebody "
         "has to be, and it is seldom anybody who wins. ",
         "{a} has drawn entry #1. Out comes entry #2, {d}. {a} and {d} are the first two "
         "competitors. The long road is a good story, when they let it be told. ",
     }},
    {RumbleEntry,
     0,
     {
         "Entry #{no} is {a}, twelve seconds early by my watch. ",
         "{a} is entry #{no}, to a warm hand. ",
         "Entry #{no}: {a}. It livens things up. ",
         "The buzzer brings {a} as entry #{no}. I had another name in the envelope. ",
         "Entry #{no} is {a}, who picks the nearest back and hits it. ",
         "Here is {a}, entry #{no}, at a dead run. ",
         "{a} walks out at entry #{no} and takes {a:his} time. ",
         "Entry #{no}, {a}, over the second rope and straight into traffic. ",
         "{a} comes in as entry #{no}, hits the first four {a:he} meet{a:s}, and then leans in a "
         "corner. ",
         "At entry #{no} we get {a}. I have {a:him} down as a dark horse. ",
         "Entry #{no} is for {a}. There is a pop. ",
         "{a} is entry #{no}. I tick the chart. ",
     }},
    {EliminationTry,
     0,
     {
         "{a} tried to eliminate {d}, who held onto the ropes. They teach that first. ",
         "{a} has {d} on the wrong side of the top rope. {d} skins the cat. It is the finest thing "
         "in these matches. ",
         "{a} pushes at {d} in the corner. Four minutes of most battle royals are this. ",
         "{d} goes over, lands on the apron, and is back in behind {a}. Crisply done. ",
         "{a} lifts a leg of {d}. The other leg is not persuaded. ",
         "{d} dangles by both hands. {a} turns away too soon to celebrate. I keep a count of that "
         "one. ",
         "{a} runs at {d} and nearly goes out {a:himself}. Momentum has no friends. ",
         "{a} has {d} all but out, and someone unwise pulls {d} back in. Explain that to me. ",
     }},
    {Elimination,
     0,
     {
         "{d} got thrown over the top rope by {a} (Elimination #{no}). ",
         "{d} was eliminated by {a} (Elimination #{no}). No ceremony. ",
         "{a} backdrops {d} out (Elimination #{no}). Nice height. ",
         "{d} charges, {a} ducks, {d} is on the floor (Elimination #{no}). ",
         "{a} clotheslines {d} over the top rope and out (Elimination #{no}). ",
         "{d} is tipped out from behind by {a} while posing (Elimination #{no}). ",
         "{a} finishes what was started and kicks {d} off the apron (Elimination #{no}). ",
         "{d} loses hold of the rope at last, and {a} gets the credit (Elimination #{no}). ",
         "{a} lifts {d} clean over and drops {d:him} outside (Elimination #{no}). That is "
         "strength. ",
         "{d} goes out, still arguing with {a} on the way down (Elimination #{no}). ",
         "{a} pulls down the top rope, and {d} does the rest (Elimination #{no}). Efficient. ",
         "{d} was dumped by {a} just as something was starting there (Elimination #{no}). ",
     }},
    {LastTwo,
     0,
     {
         "It has come down to {w} and {l}. This is now a wrestling match, and not before time. ",
         "{w} and {l} are left. I would have picked one of them. ",
         "Two remain: {w} and {l}. They circle, and suddenly everybody is paying attention, me "
         "included. ",
     }},
    {Opening,
     Bout(kSingles, kPlainSingles),
     {
         "{1} versus {2}, one fall. ",
         "{1} and {2}, a singles match. A fresh page, a sharp pencil. ",
         "{1} meets {2}. Collar and elbow to start, which is how I like it. ",
         "One fall, {1} and {2}. I have seen them both better, and both worse. ",
         "{1} against {2}. The bell rings on time. ",
         "A singles match for {1} and {2}, with no decoration. Let us see what they have. ",
         "{2} stands across from {1}. They take a minute to feel each other out, and I approve. ",
         "{1} and {2}, one on one. I have sharpened the pencil and lowered my hopes to a sensible "
         "height. ",
     }},
    {Opening,
     Bout(kSingles, kSubmission),
     {
         "{1} and {2} in a submission match. No pins, so it stands or falls on the mat work. ",
         "Submissions only for {1} and {2}. I have sharpened the good pencil. ",
     }},
    {Opening,
     Bout(kSingles, kIronMan),
     {
         "An Iron Man match between {1} and {2}. Most falls in the time. Patience, from them and "
         "from you. ",
         "{1} and {2} go by the clock and by the fall. Pacing is everything. I shall be watching "
         "it. ",
     }},
    {Opening,
     Bout(kSingles, kHardcore),
     {
         "{1} meets {2} under hardcore rules, which saves the referee some trouble. ",
         "Hardcore rules for {1} and {2}. Good ones tell a story. The others tell an inventory. ",
     }},
    {Opening,
     Bout(kSingles, kCage),
     {
         "{1} and {2} are locked in the cage. By the door or over the top. I am old enough to have "
         "seen it mean something. ",
         "A steel cage match, {1} with {2}. First one to the floor outside wins. ",
     }},
    {Opening,
     Bout(kSingles, kTexasDeath),
     {
         "Texas Death for {1} and {2}. A pin, then a ten count. It is a slow form, and hard to do "
         "well. ",
         "{1} and {2} under Texas Death rules. Score a fall first, then keep the loser down for "
         "ten. Bring a book, or two good workers. ",
     }},
    {Opening,
     Bout(kSingles, kLastManStanding),
     {
         "{1} against {2}, and it ends at a count of ten. There will be a great deal of lying "
         "about. ",
         "No pins here. {1} or {2} must stay down for ten. The trick is to make seven matter. ",
     }},
    {Opening,
     Bout(kSingles, kFallsCountAnywhere),
     {
         "Falls count anywhere for {1} and {2}. I have brought comfortable shoes. ",
         "{1} and {2} may pin each other where they like. It is usually by the exit. ",
     }},
    {Opening,
     Bout(kSingles, kLadder),
     {
         "{1} and {2} in a ladder match, with {prize} on the hook. They will climb very slowly "
         "until they do not. ",
         "{prize} hang{prize:s} up there. {1} and {2} are to go and get it. I ask only that the "
         "ladder is used for a reason. ",
     }},
    {Opening,
     Bout(kSingles, kTables),
     {
         "A tables match. {1} or {2} goes through the wood, and whoever does has lost. ",
         "{1} versus {2}, decided by furniture. Done right it is all anticipation. ",
     }},
    {Opening,
     Bout(kSingles, kBraAndPanties),
     {
         "{1} and {2} in what the sheet calls Bra and Panties. I have brought something to read. ",
         "The first of {1} and {2} down to the underwear loses. I am to grade this. I have asked "
         "for guidance. ",
     }},
    {Opening,
     Bout(kSingles, kIQuit),
     {
         "An I Quit match between {1} and {2}. It needs a microphone, a reason and two people who "
         "can act. ",
         "{1} or {2} must say I quit. The great ones of this sort I could count on a hand. ",
     }},
    {Opening,
     Bout(kSingles, kFirstBlood),
     {
         "{1} against {2}, and whoever bleeds first loses. It tends to be short, it tends to be "
         "guarded. ",
         "First Blood rules for {1} and {2}. It is a match about the forehead. ",
     }},
    {Opening,
     Bout(kSingles, kInferno),
     {
         "An Inferno match. {1} or {2} must be set alight. I note it without comment. ",
         "The flames are lit around {1} and {2}. You can have fire or you can have wrestling. We "
         "shall see which. ",
     }},
    {Opening,
     Bout(kSingles, kHellInACell),
     {
         "{1} and {2} in Hell In A Cell. It should be the end of something, or it should not be "
         "booked. ",
         "The cell is lowered over {1} and {2}. I hope that they have earned it. It is not a place "
         "to begin. ",
     }},
    {Opening,
     Bout(kSingles, kHighIncident),
     {
         "A High Incident match for {1} and {2}. All of it leads to one fall, and one worries "
         "about that fall. ",
         "{1} and {2} will fight up on the scaffolding. I have nothing against the ground, "
         "myself. ",
     }},
    {Opening,
     Bout(kSingles, kBarbedWire),
     {
         "Barbed wire for ropes, {1} and {2} between them. A little goes a long way, and there is "
         "not a little. ",
         "{1} meets {2} in a barbed wire match. The wise would stay in the middle. ",
     }},
    {Opening,
     Bout(kSingles, kDeathMatch),
     {
         "A Death Match for {1} and {2}. I know the arguments for it. I know mine as well. ",
         "{1}, {2}, and a ring full of things that belong in a skip. Death Match rules. ",
     }},
    {Opening,
     Bout(kSingles, kBuckNaked),
     {
         "A Buck Naked match, {1} against {2}. I have four thousand cards behind me, and now this "
         "one. ",
         "{1} and {2}, to the last stitch. My editor said to keep an open mind. ",
     }},
    {Opening,
     Bout(kTag, kPlainTag),
     {
         "{F:members} against {S:members} in tag team action. ",
         "Tag match, {F:members} facing {S:members}. The form is foolproof, which has been "
         "tested. ",
         "Tag rules, and {F:members} and {S:members} seem to know them. ",
         "{F:members} meet {S:members}. One of these four will spend ten minutes reaching for a "
         "hand. ",
         "{F:members} on one side, {S:members} on the other. I shall be watching the corners. ",
     }},
    {Opening,
     Bout(kTag, kTagHardcore),
     {
         "Hardcore tag: {F:members} against {S:members}. It spares them the rope, and the rest. ",
         "{F:members} meet {S:members} with no rules, so four brawls in two halves. ",
     }},
    {Opening,
     Bout(kTag, kTagCage),
     {
         "{F:members} are caged with {S:members} tonight. Both partners must be out before it "
         "counts. ",
         "A cage, {F:members} in it, and {S:members} with them. Four people do crowd it. "
         "Choreography will tell. ",
     }},
    {Opening,
     Bout(kTag, kTagLadder),
     {
         "A ladder match for teams, {F:members} against {S:members}. One side will take down "
         "{prize}. ",
         "{prize} hang{prize:s} above, and {F:members} take on {S:members} for it. Somebody "
         "changed this form for good once. It has been repeated since. ",
     }},
    {Opening,
     Bout(kTag, kTagTables),
     {
         "Tag team tables, {F:members} against {S:members}. A single table decides it, so it had "
         "better be a good one. ",
         "{F:members} meet {S:members}, and wood decides. I hope for some build. ",
     }},
    {Opening,
     Bout(kThreeWay, kElimination),
     {
         "{1}, {2} and {3} with eliminations. At least nobody can lose by not being looked at. ",
         "A three way elimination match: {1}, {2}, {3}. There is a duel at the end of it. Getting "
         "there is the trouble. ",
     }},
    {Opening,
     Bout(kThreeWay, kTriangle),
     {
         "{1}, {2} and {3} in a triangle match. One will be lying outside for most of it. We have "
         "our mandatory triangle match. ",
         "One fall between {1}, {2} and {3}. The trick is to keep all three busy. ",
     }},
    {Opening,
     Bout(kThreeWay, 3),
     {
         "{1}, {2} and {3} with hardcore rules. It is hard to hide a lull when there are three of "
         "them to have it. ",
         "A three way hardcore match. {1}, {2} and {3} have the full toolbox. ",
     }},
    {Opening,
     Bout(kThreeWay, 4),
     {
         "{1}, {2} and {3} in a cage. Two are enough, but here we are. First out wins. ",
         "A cage with three in it: {1}, {2} and {3}. While two fight, one climbs. So it goes. ",
     }},
    {Opening,
     Bout(kThreeTeams, kElimination),
     {
         "{F:members} against {S:members} against {X:members}, by elimination. I have drawn up "
         "columns. ",
         "Three teams go to the last one left: {F:members} against {S:members} against "
         "{X:members}. The rules are clear, so that is a start. ",
     }},
    {Opening,
     Bout(kThreeTeams, kTriangle),
     {
         "{F:members} against {S:members} against {X:members}, one fall. Who tags whom is anyone's "
         "guess, and they are guessing. ",
         "A triangle for teams: {F:members} against {S:members} against {X:members}. Traffic "
         "control will be graded. ",
     }},
    {Opening,
     Bout(kThreeTeams, kThreeTeamsLadder),
     {
         "It is {F:members} against {S:members} against {X:members}, on ladders, for {prize}. Six "
         "bodies. Somebody will be out of place. ",
         "Three teams and ladders, with {prize} on top: {F:members} against {S:members} against "
         "{X:members}. Pace yourselves. ",
     }},
    {Opening,
     Bout(kThreeTeams, kThreeTeamsTlc),
     {
         "Tables, ladders, chairs: {F:members} against {S:members} against {X:members}. They will "
         "sacrifice a year of their backs. I will at least watch. ",
         "{F:members} against {S:members} against {X:members} in a TLC match. I ask for a story, "
         "and I will take stunts. ",
     }},
    {Opening,
     Bout(kFourWay, kElimination),
     {
         "{1}, {2}, {3} and {4}, eliminated one by one. It starts as a mess and ends as a match. ",
         "Four under elimination rules: {1}, {2}, {3}, {4}. I shall begin grading when there are "
         "two. ",
     }},
    {Opening,
     Bout(kFourWay, 2),
     {
         "4 Corners for {1}, {2}, {3} and {4}, one fall. The least protected person here is the "
         "reader of results. ",
         "{1}, {2}, {3} and {4} in a 4 Corners match. Watch the one whom nobody else is watching. ",
     }},
    {Opening,
     Bout(kFourTeams, kElimination),
     {
         "{F:members} against {S:members} against {X:members} against {Y:members}. Four teams, "
         "elimination rules, a whole page of my book. ",
         "Elimination rules for {F:members} against {S:members} against {X:members} against "
         "{Y:members}. There is a good team in there somewhere. ",
     }},
    {Opening,
     Bout(kFourTeams, kFourTeamsTlc),
     {
         "{F:members} against {S:members} against {X:members} against {Y:members} in a TLC match. "
         "I count eight people and no clear view. ",
         "TLC with four teams: {F:members} against {S:members} against {X:members} against "
         "{Y:members}. It will be a blur, and I hope a good one. ",
     }},
    {Opening,
     Bout(kThreeOnThree, 1),
     {
         "{F:members} against {S:members}. The six man tag hides everybody's weak spot. I am fond "
         "of it. ",
         "Six in this one: {F:members} on one side, {S:members} on the other. Short turns, quick "
         "tags. It rarely goes wrong. ",
     }},
    {Opening,
     Bout(kFourOnFour, kPlainEightMan),
     {
         "{F:members} face {S:members}. With eight of them one gets forty seconds each. ",
         "An eight man tag, {F:members} against {S:members}. It is a way to get everyone on the "
         "card. ",
     }},
    {Opening,
     Bout(kFourOnFour, kSurvivor),
     {
         "{F:members} meet {S:members} under Survivor rules. I rank these by who goes out first. ",
         "A Survivor match, {F:members} against {S:members}. It is elimination, so nobody is safe "
         "and somebody is wasted. ",
     }},
    {Opening,
     Bout(kSpecial, kRoyalRumble),
     {
         "The Royal Rumble. Thirty entrants at intervals, over the top and out. It is the one "
         "gimmick match that has never let me down entirely. ",
         "Royal Rumble, thirty names, one left. I have a chart, three pens and low blood sugar. ",
     }},
    {Opening,
     Bout(kSpecial, kTwentyMan),
     {
         "A 20 Man Battle Royal. Nineteen people will lean on ropes. ",
         "Twenty in the ring at once. Over the top rope and out. I will call what I can see. ",
     }},
    {Opening,
     Bout(kSpecial, kTenMan),
     {
         "Ten in a Battle Royal. That is about as many as can be told apart. ",
         "A 10 Man Battle Royal, over the top rope. It has the merit of brevity. ",
     }},
    {Closer,
     Bout(kSingles, kPlainSingles),
     {
         "{w} gets the duke. ",
         "In the book it goes, under {w}. ",
         "A win for {w}. I have no quarrel with it. ",
         "{w} wins, and {l} was not made to look foolish. That is worth a line. ",
         "So {w} has the match. It ended about when it should have. ",
         "{w} leaves as the winner, {l} as a name in the other column. ",
         "That is a point to {w}. The rest is for the archivists, of whom I am one. ",
         "{w} has it, and the referee had very little to do. Ideal. ",
     }},
    {Closer,
     Bout(kSingles, kSubmission),
     {
         "{l} submits, and {w} has it. A hold won a match. I will be up all night. ",
         "{w} makes {l} give up. That is what it said on the ticket, so good. ",
     }},
    {Closer,
     Bout(kSingles, kIronMan),
     {
         "Time. {w} has the last fall of it, and both can breathe. ",
         "The period ends with {w} in front. Conditioning, as I keep saying. ",
     }},
    {Closer,
     Bout(kSingles, kHardcore),
     {
         "{w} wins, and someone may now tidy up. It had a shape, under all that tin. ",
         "{w} takes the hardcore match. The weapons did their share. {w} did more. ",
     }},
    {Closer,
     Bout(kSingles, kCage),
     {
         "{w} has both feet on the floor, and that is the match. {l} is left in there with the "
         "light on. ",
         "{w} is over the top and down. The escape was well timed, so I shall not gripe. ",
     }},
    {Closer,
     Bout(kSingles, kTexasDeath),
     {
         "Ten, and {l} is still down. {w} wins under Texas Death rules. For once the count was the "
         "drama. ",
         "{w} has the fall and then the ten. {l} gave it all that a person can, lying down. ",
     }},
    {Closer,
     Bout(kSingles, kLastManStanding),
     {
         "Ten. {l} got as far as one elbow. {w} is the last one standing. ",
         "{w} stays up, {l} does not, and the count of ten says so. Simple, and earned. ",
     }},
    {Closer,
     Bout(kSingles, kFallsCountAnywhere),
     {
         "{w} has won it, a long way from the ring. I had to ask a steward. ",
         "It counted there, as it counts anywhere. {w} is the winner, and I have a long walk "
         "back. ",
     }},
    {Closer,
     Bout(kSingles, kLadder),
     {
         "{w} unhooks {prize}, at a normal speed at last. {w} wins. ",
         "{l} is a second late, and {w} has {prize} down. That is how close they should be. ",
     }},
    {Closer,
     Bout(kSingles, kTables),
     {
         "The table is broken, {l} is in it, and {w} wins. I have graded the break, and it was "
         "even. ",
         "{l} went through clean. {w} has the match. ",
     }},
    {Closer,
     Bout(kSingles, kBraAndPanties),
     {
         "{l} is down to the underwear, and {w} has won. I looked up for the finish. ",
         "{w} wins it by a zip. {l} covers up and goes. So do my notes. ",
     }},
    {Closer,
     Bout(kSingles, kIQuit),
     {
         "{l} says I quit. {w} wins. The delivery was convincing, and that is the whole of the "
         "match. ",
         "\"I quit,\" says {l}, low but clear. {w} lets go and the place falls silent. That is "
         "how. ",
     }},
    {Closer,
     Bout(kSingles, kFirstBlood),
     {
         "{l} is cut. The referee sees it, the bell rings, {w} has it. ",
         "There is blood, and it is that of {l}. {w} wins, a little abruptly, as these end. ",
     }},
    {Closer,
     Bout(kSingles, kInferno),
     {
         "{l} is alight, and {w} is the winner. They have extinguishers ready, I was glad to see. ",
         "{w} puts {l} into the flames. That ends it. I have no scale for it. ",
     }},
    {Closer,
     Bout(kSingles, kHellInACell),
     {
         "{w} has won in the cell. Whether it was the end of something we shall see by next "
         "month. ",
         "{w} walks out, {l} does not. The cell did what it is there for. ",
     }},
    {Closer,
     Bout(kSingles, kHighIncident),
     {
         "{l} falls. It is a long way, through more than one layer. {w} wins, and I put my pencil "
         "down for a bit. ",
         "{w} is up there, {l} is down here, and there is a hole between them. Your winner is "
         "{w}. ",
     }},
    {Closer,
     Bout(kSingles, kBarbedWire),
     {
         "{w} has beaten {l}. They are cutting {l} loose as I write. ",
         "{w} wins the barbed wire match. I respect it, from a distance. ",
     }},
    {Closer,
     Bout(kSingles, kDeathMatch),
     {
         "{w} wins the Death Match. I hope that somebody is proud. {w} is, by the look of it. ",
         "It is over, {w} has won, {l} is being swept around. I have said my piece about these. ",
     }},
    {Closer,
     Bout(kSingles, kBuckNaked),
     {
         "{l} has nothing on and is gone. {w} wins. That will do. ",
         "{w} takes the last of it and the match. I made no sketch. ",
     }},
    {Closer,
     Bout(kTag, kPlainTag),
     {
         "{W:members} win, and I tick the box. ",
         "The match goes to {W}, with {w} the one who got it done. ",
         "{W} win{W:s}, and it was the better team that did. ",
         "That is one for {W:members}. The corner work decided it. ",
         "{W} {W:has} the win. {L} will want to look at the last two minutes again. ",
     }},
    {Closer,
     Bout(kTag, kTagHardcore),
     {
         "{W:members} take the hardcore tag. Tidier than I had feared. ",
         "{W} {W:has} won it, amid a good deal of kitchenware. {w} was the pick of them. ",
     }},
    {Closer,
     Bout(kTag, kTagCage),
     {
         "{W:members} are both out, and that settles it. The second escape is always the harder "
         "one. ",
         "{w} follows {j} to the floor, and the cage match goes to {W}. ",
     }},
    {Closer,
     Bout(kTag, kTagLadder),
     {
         "{w} takes down {prize}, and {W} {W:has} the match. There was even a reason for the last "
         "climb. ",
         "{prize} belong{prize:s} to {W}. {w} did the climbing. ",
     }},
    {Closer,
     Bout(kTag, kTagTables),
     {
         "{l} is through the table, and {W} win{W:s}. Good placing, cheap table. ",
         "{W} {W:has} it, with {l} in the debris. The build was worth the bang. ",
     }},
    {Closer,
     Bout(kThreeWay, kElimination),
     {
         "{w} is the last one left, and the last part was the good part. ",
         "{w} outlasts both. I marked the final third only. ",
     }},
    {Closer,
     Bout(kThreeWay, kTriangle),
     {
         "{w} gets the one fall. Somebody was not pinned and lost all the same. That is the form. ",
         "The triangle goes to {w}, who was in the right place. One often is, when one wins. ",
     }},
    {Closer,
     Bout(kThreeWay, 3),
     {
         "{w} wins the three way hardcore. I would have used half of the hardware. ",
         "It goes to {w}. They can have the dustbins back now. ",
     }},
    {Closer,
     Bout(kThreeWay, 4),
     {
         "{w} is down on the floor outside, and two are still in there looking for {w:him}. ",
         "{w} leaves by the door while the others are occupied. Sound tactics, if little else. ",
     }},
    {Closer,
     Bout(kThreeTeams, kElimination),
     {
         "{W:members} are the last team in. The others had a longer rest. ",
         "{W} {W:has} survived the other two. No objection. ",
     }},
    {Closer,
     Bout(kThreeTeams, kTriangle),
     {
         "{w} has the fall for {W}. The third team was on the floor. The third team is always on "
         "the floor. ",
         "The match goes to {W:members}. It was busy, and it was mostly clean. ",
     }},
    {Closer,
     Bout(kThreeTeams, kThreeTeamsLadder),
     {
         "{w} reaches {prize} first. {W} {W:has} won, and six bodies need an early night. ",
         "{prize} come{prize:s} down in the hands of {w}. {W} win{W:s} it, and on effort I dock "
         "nobody. ",
     }},
    {Closer,
     Bout(kThreeTeams, kThreeTeamsTlc),
     {
         "{w} has {prize}, and {W} take{W:s} the match. They have shortened three careers by a "
         "month each. ",
         "{W} win{W:s} the TLC match, {w} on top of the last ladder that stood. I have to admit "
         "that it worked. ",
     }},
    {Closer,
     Bout(kFourWay, kElimination),
     {
         "{w} is the last of the four. It sorted itself out in the end. ",
         "Three eliminated, and {w} is left. The order made sense, for once. ",
     }},
    {Closer,
     Bout(kFourWay, 2),
     {
         "{w} takes the 4 Corners match. Somebody had to, and it was done well enough. ",
         "One fall, and it is {w} who has it. The three others may all claim not to have been "
         "beaten. Two may. ",
     }},
    {Closer,
     Bout(kFourTeams, kElimination),
     {
         "{W:members} outlast three teams. That is a long night, and they paced it. ",
         "The last team left is {W}. My columns add up. ",
     }},
    {Closer,
     Bout(kFourTeams, kFourTeamsTlc),
     {
         "{w} has {prize}. {W} {W:has} won, from what I could make out through the wreckage. ",
         "{W} take{W:s} the TLC match. {w} climbed, seven watched from the floor, and not by "
         "choice. ",
     }},
    {Closer,
     Bout(kThreeOnThree, 1),
     {
         "{W:members} win the six man tag. Brisk, and nobody overstayed. ",
         "{w} gets the win for {W:members}. I said that these rarely go wrong. ",
     }},
    {Closer,
     Bout(kFourOnFour, kPlainEightMan),
     {
         "{W:members} win, by way of {w}. Everybody got on. Some of them got off again in time. ",
         "{w} settles it for {W:members}. I had to check who was legal. {w} was. ",
     }},
    {Closer,
     Bout(kFourOnFour, kSurvivor),
     {
         "{l} is the last of {L:members} to go, and {w} ends it. ",
         "{w} has finished the other side. It goes to {W:members}, and the order was a good one. ",
     }},
    {Closer,
     Bout(kSpecial, kRoyalRumble),
     {
         "{w} wins the Royal Rumble, with {l} the last one out. The chart is full, the pens are "
         "dry, I have no complaint. ",
         "{l} is over, and {w} has won the Rumble. Somewhere in there was an hour that I enjoyed. ",
     }},
    {Closer,
     Bout(kSpecial, kTwentyMan),
     {
         "{w} wins the battle royal. {l} came second, which is nothing, in these. ",
         "The last one in is {w}. The other nineteen have my sympathy, and {l} most of it. ",
     }},
    {Closer,
     Bout(kSpecial, kTenMan),
     {
         "{w} wins. {l} was next to last. That is all there is to it. ",
         "{w} is the one left of ten, {l} the last to leave. It was short, and I thank them all "
         "for it. ",
     }},
};

}  // namespace

Blocks Bouts() {
  return kBlocks;
}

}  // namespace grapplemont::modTolland
