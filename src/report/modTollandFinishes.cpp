#include "report/voices.h"

namespace grapplemont::modTolland {

Blocks Finishes() {
  return {};
}

}  // namespace grapplemont::modTolland
