#pragma once

#include <string>

namespace grapplemont {

/// What a commit is to the player.
struct PlayedStep {
  enum Kind {
    Click,
    Undo,  // of the last moment, which is a click; the world is what it was before it
    Redo,  // of the click that was undone last
    Left   // the world is what it was at an earlier moment
  };
  Kind Is = Click;
  std::string Name = {};
  bool GoesOn = false;        // with the click before it, of the same name: a letter more
  std::string Commands = {};  // of the player since the last commit, a line each
};

}  // namespace grapplemont
