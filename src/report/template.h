#pragma once

#include <string>
#include <string_view>

#include "report/cast.h"

namespace grapplemont {

/// Appends a line with its slots filled. A sentence that names a part nobody plays, or a thing that
/// is not there, is left out. A word or name that begins a sentence gets a capital. False when
/// nothing was said.
bool Fill(Cast& cast, std::string_view line, std::string& out);

}  // namespace grapplemont
