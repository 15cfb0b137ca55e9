#pragma once

#include <string>
#include <string_view>

namespace grapplemont {

/// The figure that stands for a slot of words/glossary.txt, as the rule has it that it belongs to;
/// empty for no slot.
std::string GlossaryFigure(std::string_view slot);

}  // namespace grapplemont
