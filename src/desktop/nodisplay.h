#pragma once

#include <string>
#include <vector>

namespace grapplemont {
class FaultLog;
}

namespace grapplemont::desktop {

/// What becomes of the program where no window can be opened.
struct WithoutDisplay {
  std::string Console;                 // the program that serves the same screens as text
  std::vector<std::string> Arguments;  // for it
  bool MayTurn = true;                 // else the program ends
  std::string Then = {};               // what is added to the sentence about the console
};

/// From here on what Qt reports is noted in the log, and where it gives up on a display, as it does
/// by ending the program, the console takes the program's place, behind a sentence. `log` must live
/// as long as the program.
void WatchQt(FaultLog& log, WithoutDisplay without);
/// A window can be opened: what Qt gives up on from here on is a fault like any other, and what it
/// reports is also printed.
void DisplayIsThere();

}  // namespace grapplemont::desktop
