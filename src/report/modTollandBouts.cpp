#include "report/voices.h"

namespace grapplemont::modTolland {

Blocks Bouts() {
  return {};
}

}  // namespace grapplemont::modTolland
