#include "report/verdict.h"

namespace grapplemont::modTolland {

namespace {

// The pokers count down: five giant ones are the worst, a single one is mild.
constexpr VerdictBand kVerdicts[] = {
    {15,
     {"MY EYES! MY EYES! I may go blind from watching such a display of world-beating crapness. ",
      "I have asked for my ticket money back, and I came in on a press pass. Unratable. "}},
    {20,
     {"That gets a well-earned FIVE GIANT red-hot pokers up the ass as a rating. ",
      "FIVE GIANT red-hot pokers up the ass for everybody who approved of that. ",
      "There is no number low enough, so FIVE GIANT red-hot pokers up the ass will have to do. "}},
    {25,
     {"TWO red-hot pokers up the ass for the bookers for that crap. ",
      "TWO red-hot pokers up the ass, one for each participant in the planning meeting. ",
      "I counted the ceiling tiles. TWO red-hot pokers up the ass for making me. "}},
    {30,
     {"I'm giving the bookers one red-hot poker up the ass as a rating. ",
      "Just the one red-hot poker up the ass, since the ring ropes held up well. ",
      "A single red-hot poker up the ass, and it was nearly two. "}},
    {35,
     {"DUD. Nothing to see here, move along. ", "DUD. It had a beginning and an end. ",
      "DUD. I have had more excitement waiting for a lift. "}},
    {40,
     {"Welcome to DUDville, please drive carefully. ",
      "We are now leaving the outskirts of DUDville, but not fast enough. DUD. ",
      "The good people of DUDville have a new mayor. DUD. "}},
    {45,
     {"Slap a DUD on it, move on. ", "A DUD, if a harmless one. Next. ",
      "Two moves away from being something. It's a DUD. "}},
    {50,
     {"Rating: 1\\2 star. ", "There was effort here, I think. 1\\2 star. ",
      "1\\2 star, and that is for the entrances. "}},
    {55,
     {"I'll give it a * rating for not being too bad. ",
      "A single * for turning up and hitting most of it. ",
      "* rating. It did no harm and will be forgotten by breakfast. "}},
    {60,
     {"I'll give it a *1\\2 rating. ", "*1\\2 rating, and they should be content with that. ",
      "It found its feet just as it ended. *1\\2 rating. "}},
    {66,
     {"** rating for this one. Perfectly Acceptable Wrestling. ",
      "Sound, sensible, soon over. ** rating. ",
      "They did what was asked and nothing more. ** rating. "}},
    {71,
     {"**1\\2 rating for a decent contest. ", "**1\\2 rating. The middle portion had some life. ",
      "Better than it had any need to be. **1\\2 rating. "}},
    {75,
     {"Almost wandered into *** match territory, but there was too much that dragged it down ... "
      "so it stays at **3\\4. ",
      "**3\\4 rating. Trim two minutes off and I am feeling generous. ",
      "One sloppy exchange costs them the full three. **3\\4 rating. "}},
    {80,
     {"*** rating, as it was good, but nothing too special. ",
      "A good, honest *** match. There should be one on every show. ",
      "*** rating. I put my pen down for a while, which is a compliment. "}},
    {84,
     {"I can't decide whether it's a *** or a ***1\\2 match...let's go for a ***1\\4 rating to "
      "make it fair ... ",
      "***1\\4 rating. The finish was better than the road to it. ",
      "Somewhere north of good. ***1\\4 rating. "}},
    {86,
     {"Almost got a **** match, but was lacking in certain areas, so i'm knocking off half a star "
      "... ***1\\2 it is. ",
      "***1\\2 rating. One more near fall and I would have stood up. ",
      "Smart work, well paced. ***1\\2 rating. "}},
    {90,
     {"That was good. **** rating. ", "**** rating. Show this one to the trainees. ",
      "I have no complaints, which worries me. **** rating. "}},
    {93,
     {"Great match, a ****1\\4 rating i think. ",
      "****1\\4 rating. The crowd was on its feet and so, briefly, was I. ",
      "That is how it's done. ****1\\4 rating. "}},
    {97,
     {"Almost a ***** match...but it was missing something, so it only gets a ****1\\2. ",
      "****1\\2 rating. I looked for the flaw and had to look hard. ",
      "One heartbeat short of perfect. ****1\\2 rating. "}},
    {99,
     {"Excellent match, a ***** rating! ",
      "***** rating, and I have not written that more than a handful of times. ",
      "Nothing wasted, nothing missing. ***** rating! "}},
    {100,
     {"Awesome, Match Of All Time Candidate, this gets a ***** rating AND the ultimate compliment: "
      "I want to see it again, right now. ",
      "***** rating, and if there were a sixth star I would go out and fetch it myself. ",
      "***** rating. I am retiring this notebook, there is nothing left to put in it. "}},
};

}  // namespace

std::span<const VerdictBand> Verdicts() {
  return kVerdicts;
}

}  // namespace grapplemont::modTolland
