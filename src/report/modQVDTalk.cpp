#include "report/voices.h"

namespace grapplemont::modQVD {

Blocks Talk() {
  return {};
}

}  // namespace grapplemont::modQVD
