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
/// Terms in whose names the letters stand, those that begin with them first; none for no letters.
std::vector<const GlossaryTerm*> TermsLike(std::string_view typed, std::size_t most);

}  // namespace grapplemont
