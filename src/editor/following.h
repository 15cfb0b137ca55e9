#pragma once

#include <string>
#include <unordered_map>
#include <vector>

#include "editor/keeping.h"
#include "records/checks/checkworld.h"

// What a change of one record does to the order of the rest. The rules of CheckWorld say it: a
// fault that was not there before is either the author's to put right, or something that cannot
// stay and is mended as the clean-up would.

namespace grapplemont {

/// The faults that the data had at a moment.
class FaultCounts {
 public:
  /// By record where numbers stay; else by what the fault says alone.
  enum class By { Record, What };
  FaultCounts(const World& world, By by);
  /// Those that are more than there were then.
  std::vector<Fault> NewIn(const World& world) const;

 private:
  std::size_t KeyOf(const Fault& fault) const;
  By by_;
  std::unordered_map<std::size_t, int> counts_;  // by hash: damaged data have a million faults
};

/// Whether it is a tie to something else that ends by itself: an office, a Title, a manager.
bool IsConsequence(const Fault& fault);
/// Ends the ties that are wrong only since `before`; what was done is added to `also`.
void MendConsequences(World& world, const FaultCounts& before, std::vector<std::string>& also);

// What follows a record that is changed or goes, beyond the ties that the check knows.

/// Names that lead to record `number` follow it, sponsors and promotions stay of one mind. `old` is
/// what the record was, empty for a new one. Gives why it cannot be, else nothing; `also` lists
/// what else changed.
std::string FollowChange(World& world, RecordKind kind, const Bytes& old, int number,
                         std::vector<std::string>& also);
/// Removes record `number` and whatever of it the check would not see.
void Forget(World& world, RecordKind kind, int number, std::vector<std::string>& also);

}  // namespace grapplemont
