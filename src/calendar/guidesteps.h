#pragma once

#include <string_view>

namespace grapplemont {

/// GuideState.Tour: which first week a player is led through.
enum class Tour { None, Backyard, Television };

/// What must have come about for a step that no screen alone makes done.
enum class GuideDone { Seen, Signed, Feud, Show };

/// A step of the guide, done once a screen has been seen (one of those that are named) or something
/// has come about; Page is what it is about.
struct GuideStep {
  Tour Of;
  std::string_view Screen;
  GuideDone Done;
  std::string_view Page, Title, Says;
};

}  // namespace grapplemont
