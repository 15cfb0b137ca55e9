#include "session/faultlog.h"

#include <algorithm>
#include <exception>

#include "records/fields/fields.h"
#include "session/home.h"

namespace grapplemont {

FaultLog::FaultLog(std::string file, std::string teller, Clock today)
    : file_(std::move(file)),
      teller_(std::move(teller)),
      today_(std::move(today)),
      disk_(RealDisk(Syncs::None)) {}

void FaultLog::Note(std::string_view what) noexcept try {
  const std::lock_guard<std::mutex> alone(busy_);
  if (file_.empty() || what == last_) return;
  last_ = what;
  std::string line = IsoDate(today_()) + " " + teller_ + ": " + last_;
  constexpr std::size_t kLongest = 2000;
  if (line.size() > kLongest) line.replace(kLongest, std::string::npos, "...");
  std::replace(line.begin(), line.end(), '\n', ' ');
  Append(line + "\n");
} catch (const std::exception&) {
  // Nobody is left to be told.
}

void FaultLog::Append(const std::string& line) {
  MakeFolders(*disk_, ParentOf(file_));
  std::int64_t size = 0;
  if (disk_->Look(file_) == Disk::Kind::File) {
    const OpenedFile full(*disk_, file_, false);
    size = disk_->Size(full);
  }
  if (size + std::ssize(line) > kMostBytes) {
    disk_->Rename(file_, file_ + ".old");
    size = 0;
  }
  const OpenedFile file(*disk_, file_, true);
  disk_->WriteAt(file, size, std::as_bytes(std::span(line)));
}

std::string LatestFaults(Disk& disk, const std::string& file) try {
  std::string text;
  for (const std::string& part : {file + ".old", file}) {
    if (disk.Look(part) != Disk::Kind::File) continue;
    const Bytes bytes = ReadStart(disk, part, FaultLog::kMostBytes);
    text.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  }
  constexpr std::size_t kShown = 8000;
  if (text.size() > kShown) text.erase(0, text.find('\n', text.size() - kShown) + 1);
  return text;
} catch (const DiskError& fault) {
  return fault.what();
}

}  // namespace grapplemont
