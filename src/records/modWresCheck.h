#pragma once

#include <string>
#include <string_view>

#include "records/world.h"

// The shared look-ups, and the conversions between codes and their texts.

namespace grapplemont {

/// The highest uid present plus 1; once that is used up, the lowest that nobody has and no record
/// names, be it one that still tells of somebody long gone.
int NextWorkerUid(const World& world);
int NextStaffUid(const World& world);
int NextPromotionUid(const World& world);
int NextNetworkUid(const World& world);
int NextSponsorUid(const World& world);
/// True if no record has this name; compared trimmed, case as it stands.
bool WorkerNameFree(const World& world, std::string_view name);
bool StaffNameFree(const World& world, std::string_view name);

/// Whether the player's promotion employs them. Nobody works for a player without one.
inline bool WorksForPlayer(const World& world, const Worker& worker) {
  return worker.Employer != 0 && worker.Employer == world.PlayerUid();
}
inline bool WorksForPlayer(const World& world, const Staff& staff) {
  return staff.Employer != 0 && staff.Employer == world.PlayerUid();
}
/// "None" for uid 0 and for a uid that leads nowhere.
std::string PromotionName(const World& world, int promotionUid);
std::string PromotionInitials(const World& world, int promotionUid);
/// Empty when not found.
std::string WorkerName(const World& world, int workerUid);
std::string WorkerShortName(const World& world, int workerUid);
std::string StaffName(const World& world, int staffUid);
/// The name of the Tag Team of these two in either order, else "None".
std::string TeamNameOf(const World& world, int workerA, int workerB);
/// How a pair is called: its team's name, else "A \ B" of the two full names.
std::string PairName(const World& world, int workerA, int workerB);
/// The first record of this name; nullptr for none.
const Stable* FindStable(const World& world, std::string_view name);
const Title* FindTitle(const World& world, std::string_view name);
/// The promotion's Owner on the staff; nullptr for a promotion without one.
const Staff* OwnerOf(const World& world, int promotionUid);

/// Whether the words of the promotion's show of that day are kept.
bool HasReport(const World& world, Day on, int promotionUid);

/// "Main Event" and so on; "Unknown" for a code without a text.
std::string_view PositionText(int position);
/// "Face", "Heel", "Tweener", "Unknown"; the code is "F", "H", "T", empty for an unknown text.
std::string_view DispositionText(std::string_view code);
std::string_view DispositionCode(std::string_view text);
/// "Written contract for 12 months, at $40,000 per month", as the roster shows it.
std::string ContractLine(const Worker& worker);
/// "Available", "Broken Leg, out for 3 months" and so on.
std::string StatusLine(const Worker& worker);

/// How a finisher is done; three flags of the record tell it, all clear meaning Impact.
enum class FinisherType { Impact, Submission, TopRope, Ground };
std::string_view FinisherText(FinisherType type);
FinisherType FinisherTypeOf(const Worker& worker, int slot);  // slot 1 or 2
void FinisherFlags(Worker& worker, int slot, FinisherType type);

}  // namespace grapplemont
