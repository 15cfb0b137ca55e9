#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "editor/recordfile.h"
#include "records/checks/checkworld.h"
#include "records/store/table.h"
#include "records/world.h"

// Records from elsewhere that come into the data: under which uid, or why not.

namespace grapplemont {

inline constexpr const char* kNameTaken = "The name is taken.";
inline constexpr const char* kInitialsTaken = "The initials are taken.";
inline constexpr const char* kNoName = "It has no name.";

enum class Fate { Added, Renumbered, LeftOut };

/// What becomes of one record.
struct Arrival {
  std::string_view Kind;  // "Worker"
  int Record = 0;         // in its own file
  std::string Name;
  int Uid = 0;      // its own; 0 where it has none
  int Becomes = 0;  // its uid in the data, once it is added
  Fate Comes = Fate::Added;
  std::string Why = {};    // for all but Added
  bool NameTaken = false;  // another name would let it in
};

struct Arrivals {
  std::vector<Arrival> Rows;
  std::vector<Fault> Mended;  // what was put right in those who came
  int Count(Fate fate) const;
};

/// Why nothing may be taken in: the data has faults of its own. Empty when it is in order.
std::string WhyNoArrivals(const World& world);

/// Blanks for control characters, so that a damaged name does no harm on a screen.
std::string Shown(std::string_view text);
/// No name at all: nothing that can be seen, or the word for nobody.
bool IsNoName(std::string_view text);

/// The names that a file holds, with the record that has each.
class NamesTaken {
 public:
  bool Has(std::string_view name) const { return uids_.contains(std::string(name)); }
  /// The uid of who has it; 0 for nobody.
  int UidOf(std::string_view name) const;
  void Mark(std::string_view name, int uid) { uids_.emplace(std::string(name), uid); }

 private:
  std::unordered_map<std::string, int> uids_;
};

/// Where the uids of records from elsewhere lead once these have come in.
class UidMap {
 public:
  template <class T>
  explicit UidMap(const Records<T>& here) {
    for (const T& record : here) here_.insert(record.Uid);
  }
  /// The first record of a uid is the one that is meant; no uid leads to nobody.
  void Lead(int uid, int to) {
    if (uid > 0) leads_.emplace(uid, to);
  }
  /// 0 for a uid that leads nowhere, else where it leads: among the arrivals before those who were
  /// here.
  int operator()(int uid) const;

 private:
  std::unordered_map<int, int> leads_;
  std::unordered_set<int> here_;
};

/// Lets the records of one kind with uid and name in, one by one.
template <class T>
class Entrance {
 public:
  Entrance(Records<T>& into, const std::vector<T>& coming)
      : into_(into), free_(into), leads_(into) {
    for (const T& record : into) {
      names_.Mark(record.Name, record.Uid);
      holders_.emplace(record.Uid, record.Name);
    }
    for (const T& record : coming) free_.PassBy(record.Uid);
  }
  const UidMap& Leads() const { return leads_; }
  const NamesTaken& Names() const { return names_; }

  /// `barred` is a reason of the caller's own not to let it in, where there is one.
  Arrival Admit(T record, int number, const std::string& barred = {}) {
    Arrival row{LayoutOf<T>().Name, number, Shown(record.Name), record.Uid};
    row.Why = barred.empty() ? WhyNot(record, row) : barred;
    if (row.Why.empty()) {
      LetIn(record, row);
    } else {
      row.Comes = Fate::LeftOut;
      // Who is here under this name is meant by those who refer to it.
      leads_.Lead(row.Uid, names_.UidOf(record.Name));
    }
    return row;
  }

 private:
  std::string WhyNot(const T& record, Arrival& row) const {
    if (record.Name == kToBeDeleted) return "It is marked as gone.";
    if (IsNoName(record.Name)) return kNoName;
    row.NameTaken = names_.Has(record.Name);
    if (row.NameTaken) return kNameTaken;
    return into_.Full() ? LimitMessage(LayoutOf<T>()) : "";
  }

  void LetIn(T& record, Arrival& row) {
    row.Becomes = row.Uid;
    if (row.Uid < 1 || free_.Has(row.Uid)) {
      row.Comes = Fate::Renumbered;
      row.Why = row.Uid < 1 ? "Its uid is invalid."
                            : "Its uid belongs to " + Shown(holders_[row.Uid]) + ".";
      row.Becomes = free_.Take();
    }
    free_.Mark(row.Becomes);
    record.Uid = row.Becomes;
    into_.Append(record);
    names_.Mark(record.Name, row.Becomes);
    holders_.emplace(row.Becomes, record.Name);
    leads_.Lead(row.Uid, row.Becomes);
  }

  Records<T>& into_;
  FreeUids free_;
  NamesTaken names_;
  std::unordered_map<int, decltype(T::Name)> holders_;
  UidMap leads_;
};

// Workers of another world, taken into the data one by one.

/// The workers of another world's wrestler.dat, put beside the data as wrestler2.dat.
RecordFile<Worker> ReadForeignWorkers(Disk& disk, const std::string& folder);

/// Takes the chosen ones (by record number, in their order) in as free agents: contract, stable,
/// manager and part of a roster end with the world they come from, and so does a posting to
/// development or camp. One whose name is taken stays out; a uid that is taken is exchanged.
/// Requires data in order (WhyNoArrivals); draws nothing.
Arrivals ImportWorkers(World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen);

/// The same on a copy of the data: what would become of each.
Arrivals PreviewImport(const World& world, const std::vector<Worker>& all,
                       const std::vector<int>& chosen);

// New records that somebody else made, taken into the data.

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
