#include "report/voices.h"

namespace grapplemont::modQVD {

namespace {

using enum Family;

constexpr Block kBlocks[] = {
    {AngleText,
     1,
     {
         "{1} in the ring, calls out {2}. \"You and me, any night!\" {2} hears it on the monitor. "
         "Challenge made. ",
         "Glove on the floor. {1} challenges {2}. {2} looks at it, picks it up. Crowd likes that. ",
     }},
    {AngleText,
     2,
     {
         "{1} meets {2} in the hall. Words. Finger in the chest. Officials step in before fists "
         "do. ",
         "{1} blocks the door. {2} won't walk around. Nose to nose, lots of swearing, no punches. "
         "Yet. ",
     }},
    {AngleText,
     3,
     {
         "Backstage, {1} at the locker. Ambush! {2} from behind! {?3}{3} joins in, boots and all. "
         "{.}{?4}{4} runs in with a pipe! Save made! {.}{?turn}Wait, {4}? On that side? That's a "
         "turn! {.}{!4}No help comes. {1} stays down. {.}",
         "Crash in the loading bay. {O} got {1}. {1} goes into the truck, into the wall, down. "
         "{?4}Here's {4}, swinging! {O} leg{O:s} it. {.}{?turn}{4} has switched sides, no doubt "
         "about it. {.}{!4}Nobody saw a thing. {.}",
     }},
    {AngleText,
     4,
     {
         "{1} and {2}, hands raised. Partners. Then a chair! {1} lays {2} out! Team is finished, "
         "{1} has turned. ",
         "{2} talks teamwork. {1} behind, low blow, DDT. No more partners! {1} turns, walks off "
         "alone. ",
     }},
    {AngleText,
     5,
     {
         "{2} gives {1} an order. {1} shakes a finger....right hand! {2} out of the ring! Roof is "
         "off, {1} is a babyface! ",
         "{1} fed up. {2} keeps barking. One clothesline, huge pop. {1} slaps hands all the way up "
         "the ramp. Face turn! ",
     }},
    {AngleText,
     6,
     {
         "{2} offers a hand. {1} takes it, kicks, keeps kicking. Trash flies in. {1} is a heel! ",
         "{1} waits for {2} to look away. Belt to the skull! {1} laughs, rips up a fan's sign. "
         "Heel turn, no question. ",
     }},
    {AngleText,
     7,
     {
         "{1} comes out with {3}, leaves with {2}. Contract torn up on the way. {3} has no "
         "manager, {2} does. {?turn}{1} turns with it. {.}",
         "\"You're fired, {3},\" says {1}, and walks over to {2}. Handshake. New client : {2}. "
         "{?turn}New attitude for {1}, too. That's a turn. {.}",
     }},
    {AngleText,
     8,
     {
         "{1} laughs with {2} by the catering. {3} walks in with flowers. Flowers in the bin. {3} "
         "and {2} nearly come to blows, {1} in the middle. ",
         "{1} kisses {2} on the cheek. {3} saw it. {3} and {2} face to face. {1} doesn't say a "
         "word. ",
     }},
    {AngleText,
     9,
     {
         "{1} sits down mid ring. Arms crossed. Not moving. Show stops. {2} comes out, asks once, "
         "then throws {1} out bodily. ",
         "Sit-in! {1} has a chair, a blanket, a sandwich. Ten minutes. {2} folds the chair up with "
         "{1} in it. Show goes on. ",
     }},
    {AngleText,
     10,
     {
         "Office. Commissioner {1} says no. {2} says fists. Desk over, phone over, {1} under "
         "both. ",
         "{2} beats up the Commissioner! {1} through the door, down the stairs. Somebody call the "
         "board. ",
     }},
    {AngleText,
     11,
     {
         "{F:members} in the ring. {S:members} on the ramp. Four in the middle, nose to nose. "
         "Nobody backs off. ",
         "{S} cut{S:s} off {F} mid sentence. Shoving, shouting, staring. Officials form a line. ",
     }},
    {AngleText,
     12,
     {
         "Brawl! {S} drag{S:s} out a table. {F} {F:is} on it....crash! Through the wood! ",
         "{S} want{S:s} the table. Crowd wants the table. {F} get{F:s} the table. Splinters! ",
     }},
    {AngleText,
     13,
     {
         "{2} with a ladder. {1} turns round. Face! Ribs! Back! {1} lies under it, {2} climbs it. ",
         "{1} talks too long. {2} swings the ladder. Four shots, {1} isn't moving. ",
     }},
    {AngleText,
     14,
     {
         "{2} posts {1}. And again. Blood! {1} is wearing the crimson. {2} licks a thumb. ",
         "Chain by {2}! {1} opened up, badly. Towels, medics, and {2} still swinging. ",
     }},
    {AngleText,
     15,
     {
         "Scuffle! {2} grabs the zip of {1}. Top gone, skirt gone! {1} down to {1:his} underwear, "
         "runs for it. ",
         "{2} strips {1}, piece by piece. Underwear only. {1} hides behind the announce table. {2} "
         "keeps the souvenirs. ",
     }},
    {AngleText,
     16,
     {
         "{O} grab{O:s} the legs of {1}. Ring post. Pull! Oof! {1} won't walk for a while. ",
         "{1} dragged to the post by {O}. Legs on each side. Crunch! Whole front row winced. ",
     }},
    {AngleText,
     17,
     {
         "{2}, {3}, {4}. All at once, all on {1}. Three on one! {1} never had a prayer. ",
         "{1} surrounded. Swings at {2}. Then {3} and {4} pile on. Long beating, no help. ",
     }},
    {AngleText,
     18,
     {
         "{2} asks {1} a straight question. No straight answer. Looks at the floor, looks at the "
         "phone. {2} smells a rat, named {1}. ",
         "{1} hangs up when {2} walks in. \"Who was that?\" No reply. Trust is gone. {1} is up to "
         "something. ",
     }},
    {AngleText,
     19,
     {
         "Bikini contest! {1} first. Cheers. {2} next. Louder. {?3}Here's {3} to spoil it! Paint "
         "everywhere, contest over! {.}{?turn}{3} has turned! {.}{!3}Judge calls it even. {.}",
         "{1} drops the robe. {2} drops the robe. Cameras click. {?3}{3} storms the stage, shoves "
         "both off! No winner. {.}{?turn}That's a whole new {3}. {.}{!3}Applause decides. Too "
         "close. {.}",
     }},
    {AngleText,
     20,
     {
         "{1} stops on the ramp. Famous face in row one! Handshake, photo, big cheer. ",
         "{1} spots a celebrity at ringside. Sits down next door. Popcorn shared. Flashbulbs. ",
     }},
    {AngleText,
     21,
     {
         "{1} challenges {2} for later. \"Why wait?\" {2} swings! Brawl! Six officials, not "
         "enough. ",
         "\"Next week,\" says {1}. {2} says now. Fists! They fight into the crowd, {1} on top, "
         "then {2}. ",
     }},
    {AngleText,
     22,
     {
         "{2} down on a bench. {1} sits. \"Got your back.\" Fist bump. Short, good. ",
         "{1} swears to stand by {2}. No matter what. {2} believes it. So do I, for now. ",
     }},
    {AngleText,
     23,
     {
         "Music hits. That music! {1} is back! {2} stands there, jaw on the mat. Huge pop. ",
         "{2} mid promo. Lights out. Lights on. {1}! Gone for ages, back tonight! ",
     }},
    {AngleText,
     24,
     {
         "{1} dares anybody in the back. New music! It's {2}! Debut! Eye to eye with {1}, crowd on "
         "its feet. ",
         "\"Nobody?\" asks {1}. Somebody. {2}, brand new, walks out, takes the challenge. Hello, "
         "{promotion}. ",
     }},
    {AngleText,
     25,
     {
         "Fan over the rail? No, it's {2}! Debut attack! {1} flat on the mat. ",
         "{1} walks out. A stranger hits the ring. Suplex, boot, gone. Name is {2}. First night "
         "here. ",
     }},
    {AngleText,
     26,
     {
         "Commissioner {1} opens the door. {2} walks in. New contract, first day. Handshake. "
         "Trouble with a badge. ",
         "{1}, the Commissioner, has hired help. Debuting : {2}. \"Problem solver,\" says {1}. "
         "Lockers go quiet. ",
     }},
    {AngleText,
     27,
     {
         "{2} beats {1} to a pulp. Chair, steps, chair. Medics! Stretcher! {2} follows it to the "
         "ambulance. ",
         "{1} not moving. {2} won't stop. Paramedics put on the neck brace. {1} leaves on a "
         "stretcher. ",
     }},
    {AngleText,
     28,
     {
         "{1} wrecks catering. Wrecks a camera. \"{2}! Get out here!\" Monitors next. ",
         "Smash! {1} puts a bin through the set. Wants {2}, wants a match, wants it now. Cleaners "
         "want danger money. ",
     }},
    {AngleText,
     29,
     {
         "{1} and {2}, centre ring, nose to nose. No words. Crowd makes the noise. Both back off "
         "slowly. ",
         "Staredown. {1} doesn't blink. {2} doesn't blink. Long minute. You could cut it. ",
     }},
    {AngleText,
     30,
     {
         "{1} and {2} in the stairwell, whispering. A map. A nod. Somebody is getting it. ",
         "Door closed. {1} has a plan, {2} adds to it. Nasty laugh. Camera is chased off. ",
     }},
    {AngleText,
     31,
     {
         "{1} throws a bag in the trunk. Engine, lights, gate. Gone for the night. ",
         "Car park. {1} drives off, no comment, window up. Done for tonight. ",
     }},
    {AngleText,
     32,
     {
         "Car door opens. {1} is here. Bag, shades, no smile for the camera. ",
         "{1} arrives at the building. Security opens up. Quickly. No autographs. ",
     }},
    {AngleText,
     33,
     {
         "Contract on the table. {1} signs. {2} signs. Table over! But it's official : {1} against "
         "{2}. ",
         "{1} reads, signs. {2} just signs. Stare, shove, officials. Match is on. ",
     }},
    {AngleText,
     34,
     {
         "{1} in the ear of {2}. Louder. Slap! {2} roars, punches a locker. Fired up! ",
         "\"Who wants it?\" {1} shouts. {2} wants it. {2} goes out of there like a bull. Good "
         "managing. ",
     }},
    {AngleText,
     35,
     {
         "Catfight! {1} grabs hair, {2} grabs hair. Over the table, through the make-up. Pulled "
         "apart, twice. ",
         "{1} insults {2}. Slap! Rolling on the floor! Takes four to get {2} off {1}. ",
     }},
    {AngleText,
     36,
     {
         "{1} walks down a corridor. Past catering, past the showers. That's all. ",
         "Hallway shot. {1}, walking. Left, right, left. Looks serious about it. ",
     }},
    {AngleText,
     37,
     {
         "\"I'm not alone,\" says {1}. Curtain! It's {2}! Debut! New ally, big one. ",
         "{1} has backup. First night for {2}, who shakes hands with {1}, then stares at the hard "
         "camera. ",
     }},
    {AngleText,
     38,
     {
         "{2} has a manager! It's {1}, first night in. Suit, phone, big mouth. ",
         "{2} points up the ramp. Out comes {1}, brand new, contract in hand. From now on {1} "
         "talks for {2}. ",
     }},
    {AngleText,
     39,
     {
         "Flash! Fireball by {2}! Right in the face of {1}! Medics, towels, screams. ",
         "{2} opens a hand. Fire! {1} goes down holding the face. Smell of burnt hair. ",
     }},
    {AngleText,
     40,
     {
         "Police! Commissioner {1} points. {2} cuffed, walked out, pushed in the car. ",
         "{1} made a call. Three cops for {2}. Kicks, curses, cuffs. Commissioner waves goodbye. ",
     }},
    {AngleText,
     41,
     {
         "Commissioner {1} : {2} is suspended. {2} kicks the door. Still suspended. ",
         "\"Actions have consequences,\" says {1}. {2} is suspended, effective now. Bag packed. ",
     }},
    {AngleText,
     42,
     {
         "Commissioner {1} makes a match. {2} against {3}, later on. Stamped. ",
         "\"{2}, you wrestle. Against {3}.\" Commissioner {1} has spoken. Not a request. ",
     }},
    {AngleText,
     43,
     {
         "{1} in the hallway. Footsteps behind. Turns....nobody. Then a note on the door : soon. ",
         "Photo in the locker of {1}. Taken last night. Through the window. Creepy. ",
     }},
    {AngleText,
     44,
     {
         "{1} tapes up. Stretches. Shadow boxes. Ready for a match, by the look. ",
         "Weights, skipping rope, cold water. {1} prepares for the match. No smile. ",
     }},
    {AngleText,
     45,
     {
         "{1} introduces \"{2}\". It's a midget in the same gear! Trips, cries, runs away. {1} in "
         "stitches. The real {2} watches. ",
         "Music of {2}. Out comes a midget, same hair, same strut. {1} beats the copy in five "
         "seconds. The original won't forget. ",
     }},
    {AngleText,
     46,
     {
         "{F} attack{F:s} {S} in the lot. Doors, hoods, concrete. {S} left lying. ",
         "Two on two, no warning. {F:members} jump {S:members}. Over before it began. ",
     }},
    {AngleText,
     47,
     {
         "{O:members} catch {1} alone. Knee in a car door! Partner is nowhere. One down. ",
         "Two on one. {O} pick{O:s} out {1}, the weak link. Leg, leg, leg. {1} carried out. ",
     }},
    {AngleText,
     48,
     {
         "{F:members} call out {S:members}. Tag match, name the date. {S} nod{S:s}. On. ",
         "\"Us against you!\" {F} throw{F:s} down the challenge. {S} step{S:s} up. Belts or no "
         "belts. ",
     }},
    {AngleText,
     49,
     {
         "{1} promised a surprise. Curtain....{2}! Debut! New wrestler, same old manager. ",
         "{1} with a new client. Never seen before : {2}. Flexes once. Crowd backs up. ",
     }},
    {AngleText,
     50,
     {
         "{1} in the ring with {G}. Shirt on, hands up. New member! {?turn}{1} turns to get in. "
         "{.}",
         "{G} make room for one more. It's {1}! Hugs, poses, the sign. {?turn}Old fans of {1} are "
         "sick about it, or thrilled. {.}",
     }},
    {AngleText,
     51,
     {
         "{G} vote. {1} is out. Then the boots. Shirt ripped off, thrown away. {?turn}{1} stands "
         "up changed. That's a turn. {.}",
         "\"You're done,\" say {G}. {1} laughs. They don't. Beating, exit, no goodbye. {?turn}{1} "
         "turns, thanks to that. {.}",
     }},
    {AngleText,
     52,
     {
         "{G} surround {1}. Numbers game. {1} fights off one, gets swarmed by the rest. Pose over "
         "the body. ",
         "{1} alone on the ramp. {G} from both sides! Long beating. Message sent. ",
     }},
    {AngleText,
     53,
     {
         "Lights out. Masks at ringside. They jump {1}! Name on the mat : {G}. New faction! ",
         "Who are these people? {1} has no time to ask. Beatdown! They're {G}, and they're new "
         "here. ",
     }},
    {AngleText,
     54,
     {
         "{G} kick in the office door. Commissioner {1} thrown over the desk, out into the hall. "
         "\"We run this place now!\" ",
         "Takeover! {G} beat down the Commissioner. {1} through the window. {G} put their feet on "
         "the desk. ",
     }},
    {AngleText,
     55,
     {
         "{G} find {F:members}. Five seconds of fight, a minute of beating. {F} destroyed. ",
         "{F:members} outnumbered. {G} take one, then the other. Nothing left standing of {F}. ",
     }},
    {AngleText,
     56,
     {
         "{S} give{S:s} {F} the signal. {F} say{F:s} no....and attack{F:s} {S}! Pop! {F:members} "
         "turn face! ",
         "{F:members} look at the crowd. Look at {S}. Double clothesline! Cheers! Babyface team "
         "now. ",
     }},
    {AngleText,
     57,
     {
         "{F} hug{F:s} {S}. Knife in the back! Chairs! {F:members} turn heel, boos all round. ",
         "{S} trusted {F}. Mistake! Stereo low blows. {F:members} laugh at the fans. Heels now. ",
     }},
    {AngleText,
     58,
     {
         "{S:members} want a challenge. New music! {F:members}, first time here! In the ring, face "
         "to face with {S}. Accepted! ",
         "\"Any team!\" say {S:members}. Two new faces walk out. {F:members}. Debut! {S} wanted a "
         "challenge, got one. ",
     }},
    {AngleText,
     59,
     {
         "Two strangers hit the ring! {S} get{S:s} flattened! Names : {F:members}. Debut attack! ",
         "{S:members} jumped at the curtain. By whom? {F:members}, brand new. Some way to say "
         "hello. ",
     }},
    {AngleText,
     60,
     {
         "Music video. {1} hits, {1} runs, {1} wins. Guitars all over it. Good edit. ",
         "Hype reel for {1}. Slow motion, smoke, drums. Crowd watches every second. ",
     }},
    {AngleText,
     61,
     {
         "Video for {F:members}. Double teams, cut to the beat. Fog. Lots of fog. ",
         "Music clip : {F:members}, back to back, big moves. {F} look{F:s} huge. ",
     }},
    {AngleText,
     62,
     {
         "Video : {G}, walking in slow motion. Fire behind. Bodies in front. ",
         "Dark screen. Drums. {G}, one face at a time. Menace, two minutes of it. ",
     }},
    {AngleText,
     63,
     {
         "\"Show yourself!\" yells {2}. Hood off....it's {1}! The stalker is {1}! {?turn}And {1} "
         "turns with it. {.}",
         "{2} reads the last note. Look behind you. {2} looks. {1}! All along! {?turn}No way back "
         "for {1} after that. {.}",
     }},
    {AngleText,
     64,
     {
         "{2} sets a trap. Stalker walks in. Mask off : {1}! {2} has some questions. {?turn}{1} "
         "has turned, caught or not. {.}",
         "Gotcha! {2} grabs the stalker by the collar. It's {1}! Fists before answers. {?turn}A "
         "different {1} gets up. {.}",
     }},
    {AngleText,
     65,
     {
         "Video. Shadows, boots, a name. {1}. Coming soon to {promotion}. ",
         "New face on the screen : {1}. Gym, highway, stare. Debut on the way. ",
     }},
    {AngleText,
     66,
     {
         "Video. Two shadows, one storm. {F:members}. Debut coming soon. ",
         "New team on the screen : {F:members}. Doors kicked in, tag ropes cut. Debut soon. ",
     }},
    {AngleText,
     67,
     {
         "Christmas! Santa has a gift for {2}. It's a fist! Beard off....{1}! {2} down in the "
         "tinsel. ",
         "Ho, ho, ho. {2} opens the sack. Santa swings the sack! It's {1} in the suit. Coal for "
         "{2}. ",
     }},
    {AngleText,
     68,
     {
         "Happy new year! {1} slaps {2}. Again. Again. Twelve in all. {2} is out before the song. ",
         "3....2....1....slap! {1} starts the year on the face of {2}. Two more for luck. ",
     }},
    {AngleText,
     69,
     {
         "Halloween. Pumpkin opens....{1} jumps out! {2} gets the trick. No treat. ",
         "Ghost at the door. {2} hands over candy. Ghost hands over a chair shot. It's {1} under "
         "the sheet! ",
     }},
    {AngleText,
     70,
     {
         "Sam Brandle is here! The creator of VXM! {1} mouths off. One punch! Sam Brandle drops "
         "{1}! ",
         "{1} insults the place. Wrong night. VXM creator Sam Brandle walks out....slam! {1} is "
         "flat, crowd on its feet. ",
     }},
    {AngleText,
     71,
     {
         "Commissioner {1} has {title}. Vacant. Hands it to {2}! New champ, no match. ",
         "{title} on the table. Commissioner {1} calls {2}. Belt on. Confetti. It counts. ",
     }},
    {AngleText,
     72,
     {
         "Commissioner {1} brings out {title}. Vacant no more. {O:members}, new champs! ",
         "{O:members} called to the ring. Commissioner {1} hands over {title}. Photos. Champs. ",
     }},
    {AngleText,
     73,
     {
         "Valentine's Day. {1} on one knee. Ring out. {2} says yes! Kiss! Flowers everywhere. ",
         "{1} asks {2}. Long pause. Yes! Ring on, tears, wedding bells, happy crowd. ",
     }},
    {AngleText,
     74,
     {
         "Valentine's Day. {1} kneels, ring in hand. {2} says no. Laughs. Leaves. {?turn}{2} has "
         "turned, cold as ice. {.}",
         "{1} proposes. {2} slaps the ring away. Rejected! {?turn}That was a turn by {2}. {.}{1} "
         "stays on that knee. ",
     }},
    {AngleText,
     75,
     {
         "Scream backstage. {G} have {1}! Hands, blindfold, van door. Abducted! ",
         "Lights out. {1} gone. Sign of {G} on the mat. Abducted, and nobody saw how. ",
     }},
    {AngleText,
     76,
     {
         "{G} beat {1} down, tape the hands, load the trunk. Kidnapped! ",
         "{1} fights. Too many. {G} pull a bag over the head, drive off. {1} is gone. ",
     }},
    {AngleText,
     77,
     {
         "{G} drag {1} to the stage. A cross. They tie {1} to it. They raise it. No sound in "
         "here. ",
         "{1} beaten cold by {G}. Ropes, wood, a hammer. {1} hangs up there, crucified. Hard to "
         "watch. ",
     }},
    {AngleText,
     78,
     {
         "Black wedding. {1} in black, {2} in chains, {G} with candles. \"Do you?\" {?4}{4} runs "
         "in! Saves {2}! {.}{!4}{2} breaks loose, runs! {.}No wedding. ",
         "{G} chant. {1} lifts the veil of {2}. Last question. {?4}Not tonight! {4} flattens {1}, "
         "carries {2} out! {.}{!4}{2} kicks {1}, flees up the aisle! {.}So close to \"I do\". ",
     }},
    {AngleText,
     79,
     {
         "{G} have {1} in the ring. Bucket overhead. Tip! Blood bath! {1} soaked, red head to "
         "toe. ",
         "A tub on stage, full. {G} push {1} in. Under. Up. Red all over. Blood bath. ",
     }},
};

}  // namespace

Blocks Angles() {
  return kBlocks;
}

}  // namespace grapplemont::modQVD
