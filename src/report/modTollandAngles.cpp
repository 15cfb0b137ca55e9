#include "report/voices.h"

namespace grapplemont::modTolland {

Blocks Angles() {
  return {};
}

}  // namespace grapplemont::modTolland
