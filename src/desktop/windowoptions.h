#pragma once

#include <memory>
#include <string>
#include <vector>

#include "desktop/settings.h"
#include "ui/desk.h"

namespace grapplemont::desktop {

class Window;

/// Sizes of the text to choose from, in percent of the usual one, and how far one of them is from
/// the desktop's.
inline constexpr int kTextSizes[] = {85, 100, 115, 130, 150, 175, 200};
int ZoomFor(int percent);
/// Scales of the whole window to choose from, in percent.
inline constexpr int kScales[] = {75, 100, 125, 150, 175, 200, 250};

inline constexpr const char* kWindowOptions = "frmWindow";

/// What can be set about the window: colours, sizes, what moves, sound, how dates are written,
/// keys.
std::unique_ptr<ui::Screen> NewWindowOptions(ui::Desk& desk, Window& window,
                                             std::vector<KeyedCommand> commands);

}  // namespace grapplemont::desktop
