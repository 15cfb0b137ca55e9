#include "report/voices.h"

namespace grapplemont::modTolland {

Blocks Talk() {
  return {};
}

}  // namespace grapplemont::modTolland
