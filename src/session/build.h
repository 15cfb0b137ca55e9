#pragma once

// What the build knows and no source says.

namespace grapplemont {

/// "1.0.0"
extern const char* const kProgramVersion;
/// Where the world and the pictures are installed: "/usr/share/grapplemont".
extern const char* const kInstalledShare;

}  // namespace grapplemont
