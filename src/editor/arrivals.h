#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "editor/recordfile.h"
#include "records/checks/checkworld.h"
#include "records/store/table.h"

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

/// Puts in order what came into a world that was in order before: references to nobody, values out
/// of range and what does not fit to what was there.
void MendArrivals(World& world, Arrivals& arrivals);

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
      row.Why =
          row.Uid < 1 ? "Its uid is none." : "Its uid belongs to " + Shown(holders_[row.Uid]) + ".";
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

}  // namespace grapplemont
