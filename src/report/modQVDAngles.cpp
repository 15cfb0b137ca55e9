#include "report/voices.h"

namespace grapplemont::modQVD {

Blocks Angles() {
  return {};
}

}  // namespace grapplemont::modQVD
