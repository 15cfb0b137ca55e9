#include "bench/walks.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <utility>

#include "calendar/advanceday.h"
#include "records/fields/fields.h"

namespace grapplemont::bench {

WorldInFiles::WorldInFiles(const World& world) : disk_(RealDisk()) {
  for (const NewFile& file : FilesOf(world)) WriteFile(*disk_, folder_ / file.Name, file.Contents);
}

void WorldInFiles::Reach(Disk::Handle file, std::int64_t at, Bytes& record, bool writes) const {
  disk_->ReadAt(file, at, record);
  benchmark::DoNotOptimize(record);
  if (writes) disk_->WriteAt(file, at, record);
}

void WorldInFiles::Touch(const RecordLayout& layout, int number, bool writes) const {
  const OpenedFile file(*disk_, folder_ / std::string(layout.File), false);
  Bytes record(static_cast<std::size_t>(layout.Size));
  Reach(file, (number - 1) * std::ssize(record), record, writes);
}

void WorldInFiles::Walk(const RecordLayout& layout, bool writes,
                        const std::function<void(ByteSpan)>& visit) const {
  const OpenedFile file(*disk_, folder_ / std::string(layout.File), false);
  Bytes record(static_cast<std::size_t>(layout.Size));
  const std::int64_t size = disk_->Size(file);
  for (std::int64_t at = 0; at + layout.Size <= size; at += layout.Size) {
    Reach(file, at, record, writes);
    if (visit) visit(record);
  }
}

void WorldInFiles::WalkAll(int times) const {
  for (int walk = 0; walk < times; ++walk) {
    Walk(LayoutOf<Promotion>(), true);
    Walk(LayoutOf<Worker>(), true);
  }
}

WorldInMemory::WorldInMemory(const World& world) {
  for (const NewFile& file : FilesOf(world))
    if (file.Name == LayoutOf<Promotion>().File || file.Name == LayoutOf<Worker>().File)
      bytes_.insert(bytes_.end(), file.Contents.begin(), file.Contents.end());
  copy_ = bytes_;
}

void WorldInMemory::CopyAll(int times) {
  for (int walk = 0; walk < times; ++walk) {
    std::ranges::copy(bytes_, copy_.begin());
    benchmark::DoNotOptimize(copy_.data());
    benchmark::ClobberMemory();
    std::swap(bytes_, copy_);
  }
}

int WalksOn(Day morning) {
  const auto count = [](auto steps) { return static_cast<int>(steps.size()); };
  int walks = 2 + count(kDayBlocks.Daily) + count(kDayBlocks.Closing);
  if (IsMonday(morning)) walks += count(kDayBlocks.Monday);
  if (IsFirstOfMonth(morning)) walks += count(kDayBlocks.FirstOfMonth);
  return walks;
}

}  // namespace grapplemont::bench
