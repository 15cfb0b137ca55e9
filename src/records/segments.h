#pragma once

#include <string>
#include <vector>

#include "records/segmentforms.h"
#include "records/world.h"
#include "words/segments.h"

// What a Segment's numbers mean: who stands where, who won, and how its codes read.

namespace grapplemont {

/// Empties the slot: kind, style, type, result, finish, run-ins, the first four workers, purpose,
/// aftermath and rating; "None" for Title and text. Worker5 and up and Place5 to Place8 stay as
/// they are.
void ClearSegment(Segment& segment);
/// A Segment in which everything is empty.
Segment EmptySegment();

/// nullptr for an unknown type.
const MatchTypeRow* FindMatchType(int style, int type);
/// Empty for an unknown code.
std::string_view MatchTypeText(int style, int type);
/// The codes of a match style; empty where the style has no such step.
Phrases FinishesOf(int style);
Phrases AftermathsOf(int style);
Phrases PurposesOf(int style);

/// nullptr for nobody.
const Worker* WorkerAt(const World& world, const Segment& segment, int place);
/// How many take part in a match; 0 for what is not a match.
int EntrantsOf(const Segment& segment);
/// The uids of all who take part by the Segment's places, in their order, without the empty ones:
/// a match's entrants, an interview's speakers and targets, an angle's people.
std::vector<int> PeopleOf(const Segment& segment);
/// The same, and then who runs in.
std::vector<int> EverybodyOf(const Segment& segment);
/// The uids of a match's sides, first side first.
std::vector<std::vector<int>> SidesOf(const Segment& segment);
/// The side this worker stands on, from 1; 0 for none.
int SideOf(const Segment& segment, int uid);
/// All members of the side of Winner; empty for a draw.
std::vector<int> WinnersOf(const Segment& segment);
/// All members of the side of Loser; where no loser is named, everybody but the winners. Empty for
/// a draw.
std::vector<int> LosersOf(const Segment& segment);
/// The one who stands on the same side of a two-on-two match; 0 for none.
int PartnerOf(const Segment& segment, int uid);
bool IsDraw(const Segment& segment);
/// Whether a match of this style and type with a winner has somebody who takes the fall. Where it
/// does, a Loser of 1 is the worker of that uid; where not, and in a draw, it is kNoLoser.
bool NamesLoser(const Segment& segment);
/// The result has been chosen.
bool HasResult(const Segment& segment);
/// Whether the worker takes part in any way, run-ins included.
bool TakesPart(const Segment& segment, int uid);

/// "Bram Okafor", "The Dock Rats" or "A \ B" of a side.
std::string SideText(const World& world, const std::vector<int>& side);
/// A phrase with its names in place; "<Error>" for somebody who is not there.
std::string FillPhrase(const World& world, const Segment& segment, std::string_view phrase);
/// What a list says of a code; empty for an unknown one.
std::string PhraseText(const World& world, const Segment& segment, Phrases phrases, int code);
/// The same for the wizard's summary, without "Finish = " and its like in front.
std::string SummaryText(const World& world, const Segment& segment, Phrases phrases, int code);

/// The one line that stands for a Segment on a sheet; "<Nothing Booked>" for an empty one.
std::string DescribeSegment(const World& world, const Segment& segment);

}  // namespace grapplemont
