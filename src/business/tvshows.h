#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "business/tvtalks.h"
#include "records/world.h"

// The shows that are on the air: whose they are, what they are called, which days are free.

namespace grapplemont {

/// As many as a promotion may have.
inline constexpr int kMostShows = 3;
/// Why the player can have no more shows; empty when they can.
std::string WhyNoMoreShows(const World& world);

/// A promotion's shows in the order of the file.
std::vector<const Show*> ShowsOf(const World& world, int promotionUid);

/// Why no show can have this name from now on, in the words of `taken` where one has it; empty when
/// one can.
std::string WhyNoShowName(const World& world, std::string_view name, const char* taken);
bool ShowNameTaken(const World& world, std::string_view name);

/// Whether the network has a show in the slot on some day. A generic one has room for any number.
bool SlotTaken(const World& world, const Network& network, std::string_view slot);
/// The days, 1 Monday to 7 Sunday, on which the promotion has no show and the network room in the
/// slot.
std::vector<int> FreeDays(const World& world, int promotionUid, const Network& network,
                          std::string_view slot);

/// A deal that begins: nobody at the table, no rating, no strike.
struct TvDeal {
  int Owner = 0;    // promotion uid
  int Network = 0;  // uid
  std::string_view Slot;
  int Day = 0;  // 1 Monday to 7 Sunday
  int Weeks = 0;
};
/// Puts the show on the air. Throws TableFull at the file's limit.
void AddShow(World& world, std::string_view name, const TvDeal& deal);
/// Takes the show off the air at once. Requires a show of this world.
void EndShow(World& world, Show& show);

/// Tells the player about a promotion's television deal, as their mail option has it.
void TellOfDeal(World& world, const Promotion& owner, std::string_view text);

// Who sits at the commentary table, who could, and what the public of a promotion expects of them.

/// The talent that commentators need at a promotion of this size.
int WantedTalent(int size);

/// The player's announcers.
std::vector<const Staff*> CommentaryStaff(const World& world);
/// The player's workers who could do the colour.
std::vector<const Worker*> CommentaryWorkers(const World& world);

/// Somebody for the table: a member of staff by their talent, or a worker by their charisma.
struct Commentator {
  std::string Name;
  int Uid = 0;
  bool IsWorker = false;
  int Skill = 0;
  bool Speaks = true;
};
std::vector<Commentator> AnnouncersToChoose(const World& world);
/// Staff first.
std::vector<Commentator> ColourMenToChoose(const World& world);

/// Who sits there now; nothing for an empty chair and for somebody who is no more.
std::optional<Commentator> AnnouncerOf(const World& world, const Show& show);
std::optional<Commentator> ColourManOf(const World& world, const Show& show);
/// Their name; "None" for nobody.
std::string NameOf(const std::optional<Commentator>& commentator);

/// Why the two cannot share a table; empty when they can.
std::string WhyNoTable(int announcer, int colour, bool colourIsWorker);

/// What Maeve thinks of a show of the player's, box by box.
std::vector<TvRemark> TvAdvice(const World& world, const Show& show, const Network& network);

/// What the network asks of the show, a line each.
std::string NetworkWants(const Promotion& promotion, const Show& show, const Network& network);

}  // namespace grapplemont
