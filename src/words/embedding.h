#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace grapplemont {

/// Makes a compile unit in `out` of every file in `words`, and leaves those alone that would stay
/// as they are. Gives the mistakes found, each with file and line ("words/qvd/talk.txt:12: ...");
/// where there is one, nothing is written.
std::vector<std::string> EmbedWords(const std::filesystem::path& words,
                                    const std::filesystem::path& out);

}  // namespace grapplemont
