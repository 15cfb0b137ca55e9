#pragma once

#include <optional>
#include <string>

#include "report/pasttold.h"
#include "report/recalled.h"

// What the records know of those who speak in an interview or meet in an angle.

namespace grapplemont {

class Teller;

/// One thing of the past, and the Title that it is about, if any.
struct TalkFact {
  TalkRecalls Is{};
  PastFact Of;
  std::string Title = {};  // as prose has it
  /// What has just been done answers it, so that it is said behind that.
  bool IsAnswer() const { return Is == kHitBack || Is == kHitAgain; }
};

/// The most telling one; none where nothing is worth a word.
std::optional<TalkFact> PastOfTalk(Teller& teller);
void TellTalkPast(Teller& teller, const TalkFact& fact);

}  // namespace grapplemont
