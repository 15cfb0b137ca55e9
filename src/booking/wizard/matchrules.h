#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "records/segments.h"

// The steps of a match: what each of them asks, and what it never lets pass. Objections of the
// people in the ring are another matter (refusals.h).

namespace grapplemont {

/// Wizard::Step of a match; interviews and angles share the first two.
enum MatchStep {
  kKindStep,
  kStyleStep,
  kTypeStep,
  kPeopleStep,
  kTitleStep,
  kResultStep,
  kFinishStep,
  kAftermathStep,
  kPurposeStep
};

/// Whether the finish is brought about by somebody who runs in (styles 1 and 2 alone know one).
bool NeedsFinishRunIn(int style, int finish);
/// Their uids, without an empty one.
std::vector<int> FinishRunIns(const Segment& segment);
bool NeedsAftermathRunIn(int style, int aftermath);
/// The fields that hold the run-ins of the Segment's aftermath: one in a singles match, two in a
/// tag match, none where its aftermath brings nobody.
std::vector<Word*> AftermathRunIns(Segment& segment);
std::vector<int> AftermathRunIns(const Segment& segment);  // their uids, without the empty ones
/// The match as it was when its aftermath was chosen: without the aftermath and its run-ins.
Segment BeforeAftermath(const Segment& match);

/// Whether the match may end without a winner.
bool OffersDraw(const Segment& match);
/// Whom the boxes offer: every worker, or the first of every side.
std::vector<int> ResultCandidates(const Segment& match);
/// The fields of losers in the order in which they leave the match.
std::vector<Word*> LoserFields(Segment& match);
std::vector<int> NamedLosers(const Segment& match);    // their uids, without the empty ones
std::vector<int> LosersInOrder(const Segment& match);  // of them, those that the match asks for
/// Writes the result: winner 0 is a draw, `losers` are those of the boxes, 0 for an empty one.
void StoreResult(Segment& match, int winner, const std::vector<int>& losers);

/// Who would lose if the player names nobody, a uid a box: the others in their order, in a match of
/// two sides those who do not stand beside the winner.
std::vector<int> SuggestedLosers(const Segment& match, int winner);

/// Why the step would not be left with what the Segment holds, as its message says it; empty when
/// it would.
std::string WhyNotLeft(const Segment& match, MatchStep step);

/// The Title has a holder, and they do not stand in the match.
bool IsChampionMissing(const Segment& match, const Title& title);

}  // namespace grapplemont
