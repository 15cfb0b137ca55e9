#pragma once

#include <memory>
#include <string>
#include <vector>

#include "chronicle/archive.h"
#include "ui/game.h"

namespace grapplemont {

/// The chronicle, open at the subject.
std::unique_ptr<ui::Screen> ChronicleScreen(Game& game, const Subject& subject);
/// What proves a sentence, field by field.
std::unique_ptr<ui::Screen> ProofScreen(Game& game, std::string sentence, std::vector<Proof> by);
/// Gives the game its ways to chapters.
void ConnectChronicle(Game& game);

}  // namespace grapplemont
