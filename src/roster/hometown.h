#pragma once

#include <string>

#include "records/fields/people.h"

namespace grapplemont {

/// "From Halifax in Canada.": the same in every game, and kept in no file.
std::string HomeLine(const Worker& worker);

}  // namespace grapplemont
