#include "report/voices.h"

namespace grapplemont::modTolland {

Blocks Offence() {
  return {};
}

}  // namespace grapplemont::modTolland
