#pragma once

#include <map>

#include "editor/arrivals.h"
#include "records/world.h"

// New records that somebody else made, taken into the data.

namespace grapplemont {

/// What lies beside the data to be merged into it.
struct NewRecords {
  RecordFile<Network> Networks;      // newnetwork.dat
  RecordFile<Promotion> Promotions;  // newpromos.dat
  RecordFile<Worker> Workers;        // newwrestler.dat
  RecordFile<Staff> AllStaff;        // newstaff.dat
  RecordFile<Team> Teams;            // newteams.dat
  RecordFile<Show> Shows;            // newtv.dat

  /// Each file for the player: its name, how many records it brings ("not there"), and what is
  /// wrong with it.
  struct FileLine {
    std::string Name, Brings, Remark;
  };
  std::vector<FileLine> Files() const;
  bool Empty() const;
};

/// Reads those of the six files that are there.
NewRecords ReadNewRecords(Disk& disk, const std::string& folder);

/// Another name, or other initials, for a record whose own are taken; empty ones change nothing.
struct NewName {
  std::string Name, Initials;
};
/// By kind and record number.
using NewNames = std::map<std::pair<std::string_view, int>, NewName>;

/// Takes the new records in and tells what became of each. A record whose name (of a promotion also
/// the initials) is taken stays out, and who refers to it gets the one who has the name; one whose
/// uid is taken gets a free one, and who refers to it follows. Where the new files know nobody of a
/// uid, the data's own is meant. Requires data in order (WhyNoArrivals); draws nothing.
Arrivals MergeNewRecords(World& world, const NewRecords& coming, const NewNames& names = {});

/// The same on a copy of the data: what would become of each.
Arrivals PreviewMerge(const World& world, const NewRecords& coming, const NewNames& names = {});

}  // namespace grapplemont
