#include "report/voices.h"

namespace grapplemont::modQVD {

Blocks Offence() {
  return {};
}

}  // namespace grapplemont::modQVD
