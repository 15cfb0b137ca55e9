#include "session/build.h"

namespace grapplemont {

const char* const kProgramVersion = GRAPPLEMONT_VERSION;
const char* const kInstalledShare = GRAPPLEMONT_SHARE;

}  // namespace grapplemont
