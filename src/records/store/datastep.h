#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "records/store/disk.h"
#include "records/store/slot.h"

// How several files of the default data change all or nothing. What they are to be is written whole
// to one file beside the folder, the step; once that is on disk the change is made, whatever comes:
// the files follow, and the step goes. A step that stands when the folder is read counts.

namespace grapplemont {

/// What a step does to one file.
struct StepFile {
  std::string Name;
  std::optional<std::uint64_t> Before;  // a checksum of its bytes; nothing where there was none
  std::optional<Bytes> After;           // nothing: it goes
};
using DataStep = std::vector<StepFile>;

/// What turns one set of files into another; before it, the checksums of the first.
DataStep StepBetween(const std::map<std::string, Bytes>& before,
                     const std::map<std::string, Bytes>& after);

/// Whether every file still is what the step was made from.
bool StepFits(Disk& disk, const std::string& folder, const DataStep& step);

/// Puts the step on disk, for good when it returns. Throws DiskError: then DropStep must come next.
void WriteStep(Disk& disk, const std::string& folder, const DataStep& step);
/// Brings the files to what the step says, however many are there already, for good. Throws
/// DiskError.
void ApplyStep(Disk& disk, const std::string& folder, const DataStep& step);
/// No step stands any more, for good. Throws DiskError.
void DropStep(Disk& disk, const std::string& folder);

/// The step that stands beside the folder, if it is whole and each file is as it was before it or
/// as it is after it; else somebody has changed the files since, and it counts no more.
std::optional<DataStep> StandingStep(Disk& disk, const std::string& folder);
/// Brings a step that was cut short to its end, or clears away what is left of one. Throws
/// DiskError. Requires that nobody else edits the folder.
void FinishStep(Disk& disk, const std::string& folder);
/// Does to files in memory what the step says.
void ApplyTo(std::map<std::string, Bytes>& files, const DataStep& step);

}  // namespace grapplemont
