#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "records/store/disk.h"
#include "records/world.h"
#include "support/scratchfolder.h"
#include "support/smallworld.h"

// What the work costs a program without tables: the file is opened, its records are read and
// written back one by one, and it is closed.

namespace grapplemont::bench {

/// Once through the records of a file.
struct Walk {
  const RecordLayout* Of;
  bool Writes;  // each is written back
};
/// The walks of a morning's routines, and those of a step by its name, of the day or of a new game.
/// One that goes through a file again and again is counted once.
std::vector<Walk> WalksOf(Day morning);
std::vector<Walk> WalksOf(std::string_view step);

/// A world's files in a temporary folder, removed in the end.
class WorldInFiles {
 public:
  explicit WorldInFiles(const World& world);
  /// One record under an opening of its own.
  void Touch(const RecordLayout& layout, int number, bool writes) const;
  /// Each record in turn under one opening of the file; `visit` gets its bytes.
  void Go(const Walk& walk, const std::function<void(ByteSpan)>& visit = {}) const;
  void Go(const std::vector<Walk>& walks) const;

 private:
  void Reach(Disk::Handle file, std::int64_t at, Bytes& record, bool writes) const;

  std::unique_ptr<Disk> disk_;
  test::ScratchFolder folder_;
};

/// What walks cost at least: the bytes of their files move from memory to memory.
class WorldInMemory {
 public:
  explicit WorldInMemory(const World& world) : files_(test::BytesOf(world)) {}
  void Go(const std::vector<Walk>& walks);

 private:
  const std::map<std::string, Bytes> files_;
  Bytes copy_;
};

}  // namespace grapplemont::bench
