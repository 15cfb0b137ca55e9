#include <cstring>

#include "editor/newrecords.h"
#include "fuzz/recordchange.h"
#include "fuzz/target.h"
#include "records/checks/checkworld.h"
#include "records/soundworld.h"

// Records from elsewhere that are merged into data in order, or whose workers are taken in.

namespace grapplemont::fuzz {
namespace {

const World& Here() {
  static const World world = test::Complete(test::SoundData());
  return world;
}

/// Some records of the file, read from bytes; now and then those of the data themselves.
template <class T>
void Put(Input& in, RecordFile<T>& file) {
  if (in.Below(2) == 0) file.Records.clear();
  for (std::size_t left = in.Below(4); left > 0; --left) {
    T record{};
    if (!file.Records.empty() && in.Below(4) > 0)
      record = file.Records[in.Below(file.Records.size())];
    auto* const bytes = reinterpret_cast<std::byte*>(&record);
    test::Dice dice(static_cast<std::uint64_t>(in.Below(1 << 16)));
    for (std::size_t fields = in.Below(6); fields > 0; --fields)
      ChangeField(dice, LayoutOf<T>(), bytes);
    const ByteSpan own = in.Take(in.Below(16));
    std::memcpy(bytes + in.Below(sizeof(T) - own.size()), own.data(), own.size());
    file.Records.push_back(record);
  }
}

void RequireSound(const World& world) {
  CheckWorld(world, [](Fault&& fault) { throw Finding("brought in: " + fault.Line()); });
}

void Read(ByteSpan bytes) {
  static World world;
  Input in(bytes);
  NewRecords coming = test::AsNew(Here());
  Put(in, coming.Networks);
  Put(in, coming.Promotions);
  Put(in, coming.Workers);
  Put(in, coming.AllStaff);
  Put(in, coming.Teams);
  Put(in, coming.Shows);
  world.CopyFrom(Here());
  MergeNewRecords(world, coming);
  RequireSound(world);
  world.CopyFrom(Here());
  std::vector<int> chosen;
  for (std::size_t record = 1; record <= coming.Workers.Records.size(); ++record)
    chosen.push_back(static_cast<int>(record));
  ImportWorkers(world, coming.Workers.Records, chosen);
  RequireSound(world);
}

const Registered kMerge({.Name = "merge", .Run = Read, .Cases = 80, .Most = 512});

}  // namespace
}  // namespace grapplemont::fuzz
