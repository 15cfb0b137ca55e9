#pragma once

#include <vector>

#include "editor/arrivals.h"
#include "records/world.h"

// Workers of another world, taken into the data one by one.

namespace grapplemont {

/// The workers of another world's wrestler.dat, put beside the data as wrestler2.dat.
RecordFile<Worker> ReadForeignWorkers(Disk& disk, const std::string& folder);

/// Takes the chosen ones (by record number, in their order) in as free agents: contract, stable,
/// manager and part of a roster end with the world they come from, and so does a posting to
/// development or camp. One whose name is taken stays out; a uid that is taken is exchanged.
/// Requires data in order (WhyNoArrivals); draws nothing.
Arrivals ImportWorkers(World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen);

/// The same on a copy of the data: what would become of each.
Arrivals PreviewImport(const World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen);

}  // namespace grapplemont
