#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "records/checkworld.h"

// A walk over a world that looks for faults. The same rules serve the check and the clean-up, so
// that the two never disagree: a rule tells each fault together with its remedy, and the inspection
// decides whether to apply it.

namespace grapplemont {

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
  /// mended or told.
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
  const auto all = [&](auto&... records) { (one(records), ...); };
  all(world.Titles(), world.Events(), world.Networks(), world.Promotions(), world.Sponsors(),
      world.Stables(), world.AllStaff(), world.Teams(), world.Shows(), world.Workers(),
      world.GameInfos(), world.News(), world.Feuds(), world.Segments(), world.Incidents(),
      world.ShowRuns(), world.History(), world.Bouts(), world.Tallies(), world.Reigns(),
      world.Reports(), world.Awards(), world.YearEnds(), world.Deeds());
}

}  // namespace grapplemont
