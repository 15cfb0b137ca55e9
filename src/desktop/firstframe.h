#pragma once

namespace grapplemont::desktop {

/// Once something of the program's windows has been painted: "painted" goes to standard output, and
/// the program ends. How long that takes is measured so. Requires a QApplication.
void EndAtFirstFrame();

}  // namespace grapplemont::desktop
