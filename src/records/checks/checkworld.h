#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "records/world.h"

namespace grapplemont {

/// One thing that is wrong in a world.
struct Fault {
  std::string File;   // "wrestler.dat"
  int Record = 0;     // 0: the file as a whole
  std::string Who;    // the record's own name, where it has one
  std::string Field;  // "Morale"; empty for the record as a whole
  std::string What;   // "is 140, outside 0 to 100"
  /// "wrestler.dat, record 17 (Bram Okafor), Morale: is 140, outside 0 to 100"
  std::string Line() const;
};

/// A damaged file has a fault in every field of every record: who needs no more than a look at them
/// takes them one by one.
using TakeFault = std::function<void(Fault&&)>;
using WantFault = std::function<bool(const Fault&)>;

/// The first faults of many, and how many there are.
struct FaultList {
  static constexpr std::size_t kMost = 1000;
  std::vector<Fault> First;
  std::size_t Count = 0;

  void Take(Fault&& fault) {
    if (++Count <= kMost) First.push_back(std::move(fault));
  }
  void Take(FaultList&& others) {
    for (Fault& fault : others.First) Take(std::move(fault));
    Count += others.Count - others.First.size();
  }
  bool empty() const { return Count == 0; }
  auto begin() const { return First.begin(); }
  auto end() const { return First.end(); }
};

/// Every invariant of a world that does not hold. A running game (one with gameinfo.dat) is held to
/// more than a folder of default data, and on a day on which a promotion was bought to what the end
/// of the day leaves.
void CheckWorld(const World& world, const TakeFault& take);
std::vector<Fault> CheckWorld(const World& world);

/// The clean-up of a copied database: references to nobody and to the gone, doubles and values out
/// of range are mended. What was done, a line each; nothing for a world in order. Draws nothing.
FaultList MendWorld(World& world);
/// The same for those faults alone to which `wanted` says yes; all others stay.
std::vector<Fault> MendWorld(World& world, const WantFault& wanted);
/// Throws WorldFault where a newer version of the game has added up the past in a form of its own.
void RequireKnownTotals(const World& world);
/// Brings back into its range every number of a running game that rules count with, so that no day
/// stumbles over it.
std::vector<Fault> MendNumbers(World& world);

// A walk over a world that looks for faults. The same rules serve the check and the clean-up, so
// that the two never disagree: a rule tells each fault together with its remedy, and the inspection
// decides whether to apply it.

/// What mends a fault; a fault without one stays.
struct Remedy {
  std::string How;  // "made 100"
  std::function<void()> Do;
};

/// One record as the generic rules see it.
struct Place {
  const RecordLayout& Layout;
  int Number;
  std::byte* Record;
};

class Inspection {
 public:
  enum class Purpose { Check, Mend, MendGame };

  /// Mend looks at any world as at default data. `take` gets each fault. With `wanted`, no other is
  /// mended or reported.
  Inspection(World& world, Purpose purpose, TakeFault take, WantFault wanted = {});

  World& Of() const { return world_; }
  /// Looked at as default data: the ten files of a data set, all in order for a game to begin. Else
  /// as a running game, in which some things may go their own way.
  bool AsData() const { return asData_; }
  /// Whether this file is looked at.
  bool Covers(const RecordLayout& layout) const;

  void NoteFile(std::string_view file, std::string what, const Remedy& remedy = {});
  void NoteField(const Place& place, std::string_view field, std::string what,
                 const Remedy& remedy = {});
  template <class T>
  void Note(Records<T>& file, T& record, std::string_view field, std::string what,
            const Remedy& remedy = {}) {
    NoteField({LayoutOf<T>(), file.NumberOf(record), reinterpret_cast<std::byte*>(&record)}, field,
              std::move(what), remedy);
  }

 private:
  void Take(Fault fault, const Remedy& remedy);

  World& world_;
  Purpose purpose_;
  TakeFault take_;
  WantFault wanted_;
  bool asData_;
};

/// Records that are to go; they stay where they are until Apply.
template <class T>
class Removal {
 public:
  explicit Removal(Records<T>& from) : from_(from) {}
  /// A remedy that removes this record.
  Remedy Of(const T& record) {
    return {"removed", [this, number = from_.NumberOf(record)] { Add(number); }};
  }
  void Apply() {
    if (gone_.empty()) return;
    std::vector<T> kept;
    for (int number = 1; number <= from_.Count(); ++number)
      if (!gone_[static_cast<std::size_t>(number)]) kept.push_back(from_[number]);
    from_.Rewrite(std::move(kept));
    gone_.clear();
  }

 private:
  void Add(int number) {
    gone_.resize(static_cast<std::size_t>(from_.Count()) + 1);
    gone_[static_cast<std::size_t>(number)] = true;
  }

  Records<T>& from_;
  std::vector<bool> gone_;
};

/// Calls `visit` with the Records of every file of the world that the inspection covers.
template <class Visit>
void ForEachFile(Inspection& inspection, Visit visit) {
  World& world = inspection.Of();
  const auto one = [&]<class T>(Records<T>& records) {
    if (inspection.Covers(LayoutOf<T>())) visit(records);
  };
  world.ForEachFile(one);
}

}  // namespace grapplemont
