#pragma once

#include <memory>
#include <mutex>
#include <string>
#include <string_view>

#include "records/fields/outside.h"
#include "records/store/disk.h"

namespace grapplemont {

/// What went wrong while the program ran, a line each, to be put into a report of it. The file
/// begins anew when it is full; the one before is kept beside it as ".old".
class FaultLog {
 public:
  static constexpr std::int64_t kMostBytes = 64 * 1024;  // of each of the two

  /// An empty file name keeps nothing. `teller` is put into each line: the program and its version.
  FaultLog(std::string file, std::string teller, Clock today = MachineToday);
  /// From any thread. What was noted last is not noted again. A disk that refuses is no fault of
  /// its own: this never throws.
  void Note(std::string_view what) noexcept;
  const std::string& File() const { return file_; }

 private:
  void Append(const std::string& line);

  std::string file_, teller_, last_;
  Clock today_;
  std::unique_ptr<Disk> disk_;
  std::mutex busy_;
};

/// The end of what such a file holds, in whole lines; empty where there is none.
std::string LatestFaults(Disk& disk, const std::string& file);

}  // namespace grapplemont
