#pragma once

#include "storylines/feuds.h"

namespace grapplemont {

/// How a feud that has ended went, as its people remember it. Nobody writes about a plain one.
enum class FeudStory { Plain, Comeback, Long, Rout };

/// The mails of the sides that won and lost the last match.
void WriteAboutFeud(World& world, FeudStory story, const FeudSide& winners, const FeudSide& losers);

}  // namespace grapplemont
