#pragma once

#include "support/smallworld.h"

namespace grapplemont::test {

/// A company that can book every interview and every angle that no date asks for: talkers, a
/// manager with two clients, a debut manager, women and men, debuts, turners, a stable of two,
/// vacant Titles, a Commissioner, writers for one show.
inline SmallWorld TalkCompany() {
  const auto client = [](Worker& w) { w.Manager = 1; };
  SmallWorld small;
  small.Network("Channel Nine")
      .Promotion("CWA", kGlobal, [](Promotion& p) { p.Risk = 100, p.Commissioner = 2; })
      .Worker("Max Mouth", kManager, 50)
      .Worker("Com Boss", kNonWrestler, 50)
      .Worker("Bob Bold", kMainEvent, 80, client)
      .Worker("Cal Cold", kMidcard, 60, client)
      .Worker("Dan Dark", kMidcard, 60, [](Worker& w) { w.TurnPending = true; })
      .Worker("Eve East", kMidcard, 60, [](Worker& w) { w.Gender = false; })
      .Worker("Fay Fair", kMidcard, 60,
              [](Worker& w) { w.Gender = false, w.Disposition = "H", w.TurnPending = true; })
      .Worker("New Noel", kMidcard, 40, [](Worker& w) { w.Debuted = false; })
      .Worker("New Nora", kMidcard, 40,
              [](Worker& w) { w.Gender = false, w.Debuted = false, w.Manager = 1; })
      .Worker("Tide One", kMidcard, 60)
      .Worker("Tide Two", kMidcard, 60, [](Worker& w) { w.Manager = 12; })
      .Worker("Mo Fresh", kManager, 30, [](Worker& w) { w.Debuted = false; })
      .Team("Law and Order", "Bob Bold", "Cal Cold")
      .Stable("The Tide", {"Tide One", "Tide Two"})
      .Title("Open Crown")
      .Title("Open Pair", {}, {}, [](Title& t) { t.Singles = false; })
      .Show("Friday Fire", "Friday", "Channel Nine")
      .Staff("Writer One", kWriter)
      .Staff("Writer Two", kWriter)
      .Game("CWA");
  return small;
}

}  // namespace grapplemont::test
