#pragma once

#include <cstddef>
#include <functional>
#include <string>
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
/// more than a folder of default data.
void CheckWorld(const World& world, const TakeFault& take);
std::vector<Fault> CheckWorld(const World& world);

/// The clean-up of a copied database: references to nobody and to the gone, doubles and values out
/// of range are mended. What was done, a line each; nothing for a world in order. Draws nothing.
FaultList MendWorld(World& world);
/// The same for those faults alone to which `wanted` says yes; all others stay.
std::vector<Fault> MendWorld(World& world, const WantFault& wanted);
/// Brings back into its range every number of a running game that rules count with, so that no day
/// stumbles over it.
std::vector<Fault> MendNumbers(World& world);

}  // namespace grapplemont
