#include "editor/importworkers.h"

#include "editor/worldcopy.h"
#include "records/severing.h"

namespace grapplemont {

namespace {

void MakeFreeAgent(World& world, Worker& worker) {
  worker.Employer = 0;  // of the other world: nobody here lost him
  SeverWorker(world, worker);
  worker.CreativeControl = false;
  worker.Split = "None";
  worker.Debuted = false;
}

}  // namespace

RecordFile<Worker> ReadForeignWorkers(Disk& disk, const std::string& folder) {
  return ReadRecordFile<Worker>(disk, folder, "wrestler2.dat");
}

Arrivals ImportWorkers(World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen) {
  Arrivals arrivals;
  Entrance<Worker> entrance(world.Workers(), all);
  for (const int number : chosen) {
    arrivals.Rows.push_back(entrance.Admit(all.at(static_cast<std::size_t>(number - 1)), number));
    if (arrivals.Rows.back().Comes != Fate::LeftOut)
      MakeFreeAgent(world, world.Workers()[world.Workers().Count()]);
  }
  MendArrivals(world, arrivals);
  return arrivals;
}

Arrivals PreviewImport(const World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen) {
  World trial = TrialCopyOf(world);
  return ImportWorkers(trial, all, chosen);
}

}  // namespace grapplemont
