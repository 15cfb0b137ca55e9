#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace grapplemont {

/// A term of the game. `Of` says whose it is: "Worker", or "The trade" for a number of no record.
struct GlossaryTerm {
  std::string Name, Of, Range, Means, Moves;
  std::vector<std::string> Also;  // short headings that mean the same

  /// "Popularity. 0 to 100%."
  std::string Line() const;
};

/// The fields and the numbers of the rules that a player reads, by the alphabet.
const std::vector<GlossaryTerm>& Glossary();
/// By its name or a short heading; of several of a name a worker's, then the first. nullptr for
/// none.
const GlossaryTerm* FindTerm(std::string_view heading);
/// A term, and how far it is from what was typed: 0 is best.
struct TermFit {
  const GlossaryTerm* Term;
  int Fit;
};
/// Terms that are called like this, or whose short headings are, the best first; a slip is
/// forgiven. None for no letters.
std::vector<TermFit> TermsLike(std::string_view typed, std::size_t most);

}  // namespace grapplemont
