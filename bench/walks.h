#pragma once

#include <functional>
#include <memory>

#include "records/store/disk.h"
#include "records/world.h"
#include "support/scratchfolder.h"

// What the work costs a program without tables: the file is opened, its records are read and
// written back one by one, and it is closed.

namespace grapplemont::bench {

/// A world's files in a temporary folder, removed in the end.
class WorldInFiles {
 public:
  explicit WorldInFiles(const World& world);
  /// One record under an opening of its own.
  void Touch(const RecordLayout& layout, int number, bool writes) const;
  /// Each record in turn under one opening of the file; `visit` gets its bytes.
  void Walk(const RecordLayout& layout, bool writes,
            const std::function<void(ByteSpan)>& visit = {}) const;
  /// So many times through the promotions and the workers, writing.
  void WalkAll(int times) const;

 private:
  void Reach(Disk::Handle file, std::int64_t at, Bytes& record, bool writes) const;

  std::unique_ptr<Disk> disk_;
  test::ScratchFolder folder_;
};

/// What the work costs at least: its bytes move from memory to memory and back.
class WorldInMemory {
 public:
  explicit WorldInMemory(const World& world);
  /// So many times the promotions and the workers.
  void CopyAll(int times);

 private:
  Bytes bytes_, copy_;
};

/// How many walks the routines of a morning make.
int WalksOn(Day morning);

}  // namespace grapplemont::bench
