#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// What both programs that make C++ of words/ need.

namespace grapplemont {

/// Nothing for a file that cannot be read.
std::optional<std::string> BytesOf(const std::filesystem::path& path);
/// Leaves a file alone that would stay as it is. Throws std::runtime_error.
void WriteIfNew(const std::filesystem::path& path, const std::string& bytes);
/// As a string of C++.
std::string Quoted(std::string_view text);
/// Without blanks at either end.
std::string_view Trimmed(std::string_view text);
/// The cells between two separators, without blanks at either end.
std::vector<std::string> CellsOf(std::string_view text, char separator);

/// Prints what `embed` finds wrong in the folder and where; what main() gives back.
using Embedding = std::vector<std::string> (*)(const std::filesystem::path& words,
                                               const std::filesystem::path& out);
int RunEmbedding(Embedding embed, int count, char** arguments);

}  // namespace grapplemont
