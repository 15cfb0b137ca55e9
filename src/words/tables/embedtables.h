#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace grapplemont {

/// Makes the headers of the tables in `words` in the folder `out`, and leaves those alone that
/// would stay as they are. Gives the mistakes found, each with file and line; where there is one,
/// nothing is written.
std::vector<std::string> EmbedTables(const std::filesystem::path& words,
                                     const std::filesystem::path& out);

}  // namespace grapplemont
