#pragma once

#include <string_view>
#include <vector>

namespace grapplemont {

/// What a bout comes to on its way to the end: the two are feeling it out, somebody is in trouble,
/// the near falls or, where nothing is counted, the last exchange. Each has paragraphs of its own.
enum class Stretch { Early, Trouble, NearFalls };

/// The stretch of each step of a row (ring.h). A short row has one alone.
std::vector<Stretch> StretchesOf(std::string_view row);

/// Whether a paragraph of so many lines ends before this step of the same stretch.
bool IsEnough(char step, int lines);

}  // namespace grapplemont
