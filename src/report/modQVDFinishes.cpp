#include "report/voices.h"

namespace grapplemont::modQVD {

Blocks Finishes() {
  return {};
}

}  // namespace grapplemont::modQVD
