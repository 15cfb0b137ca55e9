#pragma once

#include <string>
#include <vector>

#include "records/store/mornings.h"
#include "ui/game.h"

// Back in time within a game that is being played. What is done here is kept by the commit at the
// end of the event.

namespace grapplemont {

struct Promotion;

/// A moment of the open slot, and what became of the player's promotion since.
struct PastMoment {
  std::size_t Number;  // of the slot's moments
  Moment Of;
  bool OnOtherRoad = false;  // it does not lead to the present: the days after it were left
  int Image = 0;             // of the promotion that the player had
  long long Money = 0;       // dollars
  int Size = 0;
  std::string Promotion = {};  // its name
};

/// What the open game can go back to, the latest first: mornings, what the player has named, and
/// where a road was left. Empty for a game that never goes back.
std::vector<PastMoment> PastMoments(Game& game);
/// "The morning of Tuesday, 05 May 2026", "before the Event (...)", "The road you left on ...".
std::string MomentText(const Moment& moment);
/// What has happened since, in a line: the shows held, how image and money have moved.
std::string SinceText(Game& game, const PastMoment& moment);
/// Why there is no way back in this game; empty where there is one.
std::string WhyNoWayBack(Game& game);

/// Takes the world to the moment of this number, and the player to the main screen. What the world
/// is now becomes a moment itself. Throws WorldFault where the moment cannot be made of the files.
void GoBackTo(Game& game, std::size_t moment);
/// Asks first; false when the player would rather stay.
bool AskAndGoBack(Game& game, const PastMoment& moment);

/// Opens what can be gone back to above what lies on the desk, in place of the news of an end; an
/// act of the player.
void OpenMornings(Game& game);

/// Whether the main screen lies at the bottom of the desk.
bool IsOnMainScreen(const ui::Desk& desk);
/// The page on the main screen, where it can be opened by its name and does not come up by itself,
/// and the one above that the desk knows by name and title; empty for none.
std::string PageOnHub(const ui::Desk& desk);

/// Tells the desk how clicks of today are taken back and done again.
void ConnectGoingBack(Game& game);

}  // namespace grapplemont
