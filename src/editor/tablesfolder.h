#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/tables/worldreport.h"

// The data as a folder of tables that people can edit, out and in.

namespace grapplemont {

/// How many records of a file there are, and how many there would be.
struct RecordCount {
  std::string Table, File;
  int Now = 0;
  std::optional<int> Then = {};
};
/// One for each file of the data; `then` may be left out.
std::vector<RecordCount> CountsOf(const World& now, const World* then);

/// Tables looked at before they take the place of the data.
struct TablesPreview {
  std::string WhyNot;                 // the folder is none, or its tables are of no use here
  std::vector<std::string> Mistakes;  // what is wrong in them, a line each
  std::optional<World> Made;          // when nothing is
  std::vector<RecordCount> Counts;
};
TablesPreview LookAtTables(Disk& disk, const std::string& folder, const World& data);

/// The data become what the tables have made; the ten files and nothing else.
void TakeOver(World& data, const World& made);

/// The path, in UTF-8, of what a player typed: in the home unless it begins at the root; without
/// slashes at its end.
std::string PathInHome(const std::string& home, std::string_view typed);

}  // namespace grapplemont
