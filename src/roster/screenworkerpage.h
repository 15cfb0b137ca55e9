#pragma once

#include <string>

#include "records/world.h"
#include "ui/controls.h"

namespace grapplemont {

/// Writes the page of a worker; for nullptr the words for nobody.
void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody);

}  // namespace grapplemont
