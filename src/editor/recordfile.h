#pragma once

#include <optional>
#include <string>
#include <vector>

#include "records/store/table.h"
#include "records/tables/worldreport.h"

// Record files that came from elsewhere and lie beside the data: what can be read of them, and what
// is to be said about the rest.

namespace grapplemont {

/// "Maximum 25,000 wrestlers per file!"
std::string LimitMessage(const RecordLayout& layout);

/// A file as it lies there.
struct FileBytes {
  bool Exists = false;
  Bytes Whole;         // all whole records, none where there is nothing to be read
  std::string Remark;  // what was left aside, and why: "newtv.dat is empty."
};
/// Reads a file of records of this layout; one that is too long, unreadable or no file at all is
/// reported in the remark and gives no record.
FileBytes ReadFileBytes(Disk& disk, const std::string& folder, const std::string& name,
                        const RecordLayout& layout);

template <class T>
struct RecordFile {
  std::string Name;
  bool Exists = false;
  std::vector<T> Records;
  std::string Remark;
};

template <class T>
RecordFile<T> ReadRecordFile(Disk& disk, const std::string& folder, const std::string& name) {
  FileBytes file = ReadFileBytes(disk, folder, name, LayoutOf<T>());
  RecordFile<T> read{name, file.Exists, std::vector<T>(file.Whole.size() / sizeof(T)),
                     std::move(file.Remark)};
  if (!file.Whole.empty())
    std::memcpy(read.Records.data(), file.Whole.data(), read.Records.size() * sizeof(T));
  return read;
}

// The data as a folder of tables that people can edit, out and in.

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
  std::string WhyNot;                 // the folder is missing, or its tables are of no use here
  std::vector<std::string> Mistakes;  // what is wrong in them, a line each
  std::optional<World> Made;          // when nothing is
  std::vector<RecordCount> Counts;
};
TablesPreview LookAtTables(Disk& disk, const std::string& folder, const World& data);

/// The data become what the tables have made; the ten files and nothing else.
void TakeOver(World& data, const World& made);

}  // namespace grapplemont
