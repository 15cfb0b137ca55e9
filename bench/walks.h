#pragma once

#include <memory>
#include <string>

#include "records/disk.h"
#include "records/world.h"

// What a day costs a program without tables: for each routine the file is opened, every record of
// it read and written back, and the file closed.

namespace grapplemont::bench {

/// A world's files in a temporary folder, removed in the end.
class WorldInFiles {
 public:
  explicit WorldInFiles(const World& world);
  ~WorldInFiles();
  WorldInFiles(const WorldInFiles&) = delete;
  WorldInFiles& operator=(const WorldInFiles&) = delete;
  /// So many times through the promotions and the workers.
  void Walk(int times) const;

 private:
  std::unique_ptr<Disk> disk_;
  std::string folder_;
};

/// How many walks the routines of a morning make.
int WalksOn(Day morning);

}  // namespace grapplemont::bench
