#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "monkey/paper.h"

namespace grapplemont::test {

/// How often something was there to be done, and was done.
struct Tally {
  long Seen = 0, Done = 0;
};

/// What there was to be done to the controls of all screens, and what was: "frmTicket hsticket
/// slide".
class Coverage {
 public:
  Tally& Of(const std::string& way) { return ways_[way]; }
  /// Why a control could not be worked when its screen was looked at.
  enum class Missed { Hidden, Disabled, Empty };
  void Miss(const std::string& control, Missed why) { missed_.emplace(control, why); }
  /// The way home is tried from a screen.
  void GoHomeFrom(const std::string& screen) { homes_.insert(screen); }
  bool WentHomeFrom(const std::string& screen) const { return homes_.contains(screen); }

  void Write(Paper& paper) const;
  /// Adds what was written; false for a line that is none of it.
  bool Read(std::string_view line);
  /// Counts, and the name of every control that was never worked, with the reason, of every act
  /// never done, and of every one of `screens` that was never seen.
  std::string Told(const std::set<std::string>& screens) const;

 private:
  std::map<std::string, Tally> ways_;
  std::set<std::pair<std::string, Missed>> missed_;
  std::set<std::string> homes_;
};

}  // namespace grapplemont::test
