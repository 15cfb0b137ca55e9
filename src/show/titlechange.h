#pragma once

#include <vector>

#include "show/segmentrun.h"

namespace grapplemont {

/// The player's Title that the Segment names; nullptr for none.
Title* TitleAtStake(World& world, const Segment& segment);
/// Whether the two hold it together.
bool AreChampions(const Title& title, int one, int other);
/// The Title gets new holders (`partner` 0 for a singles Title), and the notes tell it: " won " or
/// another way in which they came by it.
void PassTitle(SegmentRun& run, Title& title, int holder, int partner, std::string_view how);
/// Who would hold the Title at stake after the match and does not now: a uid, or two of a team;
/// nobody where it stays.
std::vector<int> NewChampions(const World& world, const Segment& segment);
/// The Title at stake goes to its new holders, if the result takes it there.
void ChangeTitle(SegmentRun& run);
// How far a Title's image goes at a time, the second from further off.
inline constexpr int kTitleImageStep = 2, kTitleImageLeap = 4;
/// Of a Title at stake, by the final rating.
void MoveTitleImage(SegmentRun& run);

}  // namespace grapplemont
