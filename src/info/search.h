#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

// Finds whatever has a name in the world by a few typed letters.

namespace grapplemont {

struct Found {
  enum class Kind {
    Worker,
    Promotion,
    Title,
    Show,
    Event,
    Team,
    Stable,
    Staff,
    Network,
    Sponsor,
    Mail
  };
  Kind Is;
  int Number;  // of the record in its file
  std::string Name;
  int Fit;  // 0 is best: how far the name is from what was typed; mail is behind all else
};
inline constexpr int kKindsOfFound = static_cast<int>(Found::Kind::Mail) + 1;

/// How far a name is from what was typed: below kSureFit each typed word begins one of its words; a
/// slip counts more than any place. -1 when it does not hold them at all. `also` are other words
/// that people say for it, which forgive no slip; typed words may stand in either. Words such as
/// "how", "a" and "somebody" count only where nothing else is typed.
int FitOfName(std::string_view name, std::string_view also, std::string_view typed);
inline constexpr int kSureFit = 3;
/// Whether a fit is one of letters that are wrong or that stand apart from each other.
bool IsSlip(int fit);

/// The names of a world as they were when this was made. Small and capital letters and accents are
/// all alike.
class NameSearch {
 public:
  explicit NameSearch(const World& world);
  /// Names that hold every typed word: the kinds by their best, in each the best first, the better
  /// known among equals; up to two wrong letters a word where no word begins as typed. At most
  /// `most` of each kind; none for no letters.
  std::vector<Found> Find(std::string_view typed, std::size_t most) const;

 private:
  struct Name {
    Found::Kind Is;
    int Number;
    int Standing;  // the smaller the better known
    std::string Letters;
    std::uint64_t Has;  // which letters, a bit each
  };
  struct Hit {
    const Name* Of;
    int Fit;
  };
  std::vector<Hit> HitsFor(const std::vector<std::string>& words, bool forgiving) const;

  const World& world_;
  std::vector<Name> names_;
};

/// Whether what was found still stands where it was.
bool IsStill(const World& world, const Found& found);
/// What something found is, for the place beside its name: "Main Event, CWA".
std::string AboutFound(const World& world, const Found& found);
/// The heading of its kind: "Workers".
std::string_view KindOfFound(Found::Kind kind);

}  // namespace grapplemont
