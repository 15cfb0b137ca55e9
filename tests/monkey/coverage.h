#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

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
  /// A control that is shown and cannot be worked.
  void SeeDisabled(const std::string& control) { ++disabled_[control]; }

  void Write(Paper& paper) const;
  /// Adds what was written; false for a line that is none of it.
  bool Read(std::string_view line);
  /// Counts, and the name of every control that was never worked and of every act never done.
  std::string Told() const;
  /// The screens that were seen.
  std::size_t Screens() const;

 private:
  std::map<std::string, Tally> ways_;
  std::map<std::string, long> disabled_;
};

}  // namespace grapplemont::test
