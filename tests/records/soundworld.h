#pragma once

#include "support/smallworld.h"

namespace grapplemont::test {

/// Something of everything, all in order.
inline SmallWorld Sound() {
  SmallWorld told;
  told.Network("Channel Nine")
      .Network("Everywhere", [](Network& n) { n.Generic = true; })
      .Promotion("CWA", kCult,
                 [](Promotion& p) {
                   p.Split[0] = "North";
                   p.HeadTrainer = 3;
                   p.DevBooker = 2;
                   p.Commissioner = 5;
                 })
      .Owner("Ruth Vane")
      .Staff("Vic Tolliver", kAnnouncer)
      .Staff("Sal Mender", kTrainer)
      .Worker("Bram Okafor", [](Worker& w) { w.Manager = 4; })
      .Worker("Ilya Marsh", [](Worker& w) { w.Split = "North"; })
      .Worker("Cal Drift")
      .Worker("Mo Grace", kManager, 40)
      .Worker("Old Hand", kNonWrestler, 60)
      .Team("Mud and Iron", "Bram Okafor", "Ilya Marsh")
      .Stable("The Bench", {"Bram Okafor", "Cal Drift"})
      .Title("CWA Crown", "Bram Okafor")
      .Title("CWA Pairs", "Bram Okafor", "Ilya Marsh")
      .Title("CWA Cup")
      .Show("Friday Fire", "Friday", "Channel Nine", [](Show& s) { s.Announcer = 2; })
      .Show("Monday Mire", "Monday", "Everywhere",
            [](Show& s) { s.Colour = 3, s.ColourIsWorker = true; })
      .Sponsor("Colossal Cola")
      .Event(3)
      .Promotion("NEW", kSmall)
      .Owner("Tess Hale")
      .Worker("Eli Fenn")
      .Stable("The Pack", {"Eli Fenn"})
      .OnTheMarket()
      .Worker("Fay Loose", [](Worker& w) { w.Gender = false; })
      .Sponsor("Tough Trucks");
  return told;
}

inline World SoundData() {
  return Sound();
}
inline World SoundGame() {
  return Sound().Game("CWA").Feud("Bram Okafor", "Cal Drift").Mail("Maeve", "Good morning.");
}

}  // namespace grapplemont::test
