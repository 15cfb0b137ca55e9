#include "bench/walks.h"

#include <benchmark/benchmark.h>

#include <filesystem>

#include "calendar/advanceday.h"
#include "records/dates.h"

namespace grapplemont::bench {

namespace {

template <class T>
void WalkFile(Disk& disk, const std::string& path) {
  const auto file = disk.Open(path, false);
  const auto count = disk.Size(file) / static_cast<std::int64_t>(sizeof(T));
  T record;
  for (std::int64_t i = 0; i < count; ++i) {
    const auto at = i * static_cast<std::int64_t>(sizeof(T));
    disk.ReadAt(file, at, std::as_writable_bytes(std::span(&record, 1)));
    benchmark::DoNotOptimize(record);
    disk.WriteAt(file, at, std::as_bytes(std::span(&record, 1)));
  }
  disk.Close(file);
}

}  // namespace

WorldInFiles::WorldInFiles(const World& world)
    : disk_(RealDisk()),
      folder_((std::filesystem::temp_directory_path() / "grapplemont-bench").string()) {
  RemoveTree(*disk_, folder_);
  disk_->MakeFolder(folder_);
  for (const NewFile& file : FilesOf(world))
    WriteFile(*disk_, folder_ + "/" + file.Name, file.Contents);
}

WorldInFiles::~WorldInFiles() {
  RemoveTree(*disk_, folder_);
}

void WorldInFiles::Walk(int times) const {
  for (int walk = 0; walk < times; ++walk) {
    WalkFile<Promotion>(*disk_, folder_ + "/promos.dat");
    WalkFile<Worker>(*disk_, folder_ + "/wrestler.dat");
  }
}

int WalksOn(Day morning) {
  const auto count = [](auto steps) { return static_cast<int>(steps.size()); };
  int walks = 2 + count(DailySteps()) + count(ClosingSteps());
  if (IsMonday(morning)) walks += count(MondaySteps());
  if (IsFirstOfMonth(morning))
    walks += count(FirstOfMonthSteps()) + count(SecondFirstOfMonthSteps());
  return walks;
}

}  // namespace grapplemont::bench
