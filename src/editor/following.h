#pragma once

#include <string>
#include <vector>

#include "editor/recordkinds.h"

// What follows a record that is changed or goes, beyond the ties that the check knows.

namespace grapplemont {

/// Names that lead to record `number` follow it, sponsors and promotions stay of one mind. `old` is
/// what the record was, empty for a new one. Gives why it cannot be, else nothing; `also` is told.
std::string FollowChange(World& world, RecordKind kind, const Bytes& old, int number,
                         std::vector<std::string>& also);
/// Removes record `number` and whatever of it the check would not see.
void Forget(World& world, RecordKind kind, int number, std::vector<std::string>& also);

}  // namespace grapplemont
