#include "report/voices.h"

namespace grapplemont::modQVD {

Blocks Bouts() {
  return {};
}

}  // namespace grapplemont::modQVD
