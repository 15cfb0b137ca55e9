#pragma once

#include "editor/merge.h"
#include "support/smallworld.h"

namespace grapplemont::test {

template <class T>
RecordFile<T> FileOf(const Records<T>& records, std::string name) {
  return {std::move(name), true, {records.begin(), records.end()}, {}};
}

/// All that a world has of the six kinds, as the files to be merged.
inline NewRecords AsNew(const World& world) {
  return {FileOf(world.Networks(), "newnetwork.dat"), FileOf(world.Promotions(), "newpromos.dat"),
          FileOf(world.Workers(), "newwrestler.dat"), FileOf(world.AllStaff(), "newstaff.dat"),
          FileOf(world.Teams(), "newteams.dat"),      FileOf(world.Shows(), "newtv.dat")};
}

/// "Worker Bram Okafor 1>7: Its uid belongs to Cal Drift." for one that got another uid, "Team The
/// Hands" for one that came as it was, "Show Friday Fire out: The name is taken."
inline std::string Line(const Arrival& row) {
  std::string line = std::string(row.Kind) + " " + row.Name;
  if (row.Comes == Fate::Renumbered)
    line += " " + std::to_string(row.Uid) + ">" + std::to_string(row.Becomes);
  if (row.Comes == Fate::LeftOut) line += " out";
  return row.Why.empty() ? line : line + ": " + row.Why;
}

inline std::vector<std::string> Lines(const Arrivals& arrivals) {
  std::vector<std::string> lines;
  for (const Arrival& row : arrivals.Rows) lines.push_back(Line(row));
  return lines;
}

inline std::vector<std::string> Lines(const auto& faults) {
  std::vector<std::string> lines;
  for (const Fault& fault : faults) lines.push_back(fault.Line());
  return lines;
}

/// With all ten files of a data folder, be they empty.
inline World Complete(World world) {
  for (const std::string_view file : kDataSet)
    for (Table* table : world.Tables())
      if (table->File() == file && !table->Exists()) table->Load({});
  world.MarkCommitted();
  return world;
}

using Texts = std::vector<std::string>;

}  // namespace grapplemont::test
