#pragma once

#include <cstdint>
#include <string>

namespace grapplemont {

/// What a commit is to the player.
struct PlayedStep {
  enum Kind {
    Click,
    Undo,  // of PlayedSlot::ClickToUndo; the world is what it was before it
    Redo,  // of the click that was undone last
    Left   // the world is what it was at an earlier moment
  };
  Kind Is = Click;
  std::string Name = {};      // empty: no click of the player's own, and part of the one before
  bool GoesOn = false;        // with the click before it, of the same name: a letter more
  std::string Commands = {};  // of the player since the last commit, a line each
  std::string Page = {};      // that lay on the main screen before it; empty for none
  std::uint64_t Target = 0;   // of Left: the digest of the moment that was gone back to
};

}  // namespace grapplemont
