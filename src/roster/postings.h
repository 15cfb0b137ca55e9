#pragma once

#include <span>
#include <string>
#include <string_view>

#include "records/world.h"

// Where the player's people stand: their place on the card, the development territory, the training
// camp, the split. Each act has a check that says why it cannot be; empty when it can.

namespace grapplemont {

/// The highest of Brawl, Technical and Speed.
int BestSkillOf(const Worker& worker);
/// 2 with a Brawl, Technical or Speed of 76 and more, 1 with one of 61 and more, else 0.
int SkillTier(const Worker& worker);

bool IsInCamp(const Worker& worker);
bool IsInFeud(const World& world, int workerUid);
/// "Main Event", "Midcard, in development", "Training Camp": of any code.
std::string PlaceText(const Worker& worker);

/// Their place on the card waits for them.
std::string WhyNotToDevelopment(const World& world, const Worker& worker);
void SendToDevelopment(Worker& worker);
/// Only the young who cannot do much yet go there; they lose their place on the card.
std::string WhyNotToCamp(const World& world, const Worker& worker);
void SendToCamp(Worker& worker);
/// Whether EndPosting of records/severing.h may bring them back.
std::string WhyNotRecall(const World& world, const Worker& worker);

/// The positions that a worker can be moved to, in the order of screens.
std::span<const int> PositionsToMoveTo();
std::string WhyNotMove(const World& world, const Worker& worker, int position);
/// What a move does to their morale: the card's places alone count, and a single one does nothing.
int MoraleOfMove(int from, int to);
/// Everything else that the move ends, a sentence each; empty when it ends nothing.
std::string EndedByMove(const World& world, const Worker& worker, int position);
void MovePosition(World& world, Worker& worker, int position);

/// "None" takes them out of any.
std::string WhyNotSplit(const World& world, const Worker& worker, std::string_view split);
void AssignSplit(Worker& worker, std::string_view split);

/// The card position 1 to 6 that this Over earns in a promotion of this size. The small ones have
/// no low places: a Small promotion begins at 5, a Backyard one at 3.
int FittingPosition(int size, int over);
/// The position a worker takes when such a promotion signs them; managers and non-wrestlers keep
/// theirs.
int PlacementPosition(const Worker& worker, int size);

/// Months of a contract that a rival of this size gives.
int ContractMonthsAt(int size);

}  // namespace grapplemont
