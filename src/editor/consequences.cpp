#include "editor/consequences.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace grapplemont {

namespace {

struct Tie {
  std::string_view File;
  std::string_view Field;  // a field whose name begins so; empty for the record itself
};
constexpr Tie kTies[] = {{"promos.dat", "Commissioner"},
                         {"promos.dat", "HeadTrainer"},
                         {"promos.dat", "DevBooker"},
                         {"promos.dat", "Sponsor"},
                         {"belt.dat", "Holder"},
                         {"belt.dat", "Partner"},
                         {"wrestler.dat", "Manager"},
                         {"wrestler.dat", "Stable"},
                         {"wrestler.dat", "Split"},
                         {"wrestler.dat", "Employer"},
                         {"staff.dat", "Employer"},
                         {"teams.dat", "Worker"},
                         {"teams.dat", ""},
                         {"tv.dat", "Network"},
                         {"tv.dat", "Announcer"},
                         {"tv.dat", "Colour"}};

/// "CWA Crown: Holder is gone; made 0."
std::string Told(const Fault& fault) {
  std::string words = (fault.Who.empty() ? fault.File : fault.Who) + ": ";
  if (!fault.Field.empty()) words += fault.Field + " ";
  return words + fault.What + ".";
}

std::string WholeKey(const Fault& fault) {
  return fault.File + "#" + std::to_string(fault.Record) + "#" + fault.Field + "#" + fault.What;
}

}  // namespace

FaultCounts::FaultCounts(const World& world, By by) : by_(by) {
  CheckWorld(world, [this](Fault&& fault) { ++counts_[KeyOf(fault)]; });
}

std::size_t FaultCounts::KeyOf(const Fault& fault) const {
  constexpr std::size_t kApart = 0x9E3779B97F4A7C15;
  std::size_t key = by_ == By::Record ? static_cast<std::size_t>(fault.Record) : 0;
  for (const std::string* part : {&fault.File, &fault.Field, &fault.What})
    key = key * kApart + std::hash<std::string>{}(*part);
  return key;
}

std::vector<Fault> FaultCounts::NewIn(const World& world) const {
  auto left = counts_;
  std::vector<Fault> fresh;
  CheckWorld(world, [&](Fault&& fault) {
    if (--left[KeyOf(fault)] < 0) fresh.push_back(std::move(fault));
  });
  return fresh;
}

bool IsConsequence(const Fault& fault) {
  return std::ranges::any_of(kTies, [&](const Tie& tie) {
    return fault.File == tie.File &&
           (tie.Field.empty() ? fault.Field.empty() : fault.Field.starts_with(tie.Field));
  });
}

void MendConsequences(World& world, const FaultCounts& before, std::vector<std::string>& also) {
  // Each round may remove records, and the numbers of the next are others.
  constexpr int kMostRounds = 20;
  for (int round = 0; round < kMostRounds; ++round) {
    std::set<std::string> wanted;
    for (const Fault& fault : before.NewIn(world))
      if (IsConsequence(fault)) wanted.insert(WholeKey(fault));
    if (wanted.empty()) return;
    const auto mended =
        MendWorld(world, [&](const Fault& fault) { return wanted.contains(WholeKey(fault)); });
    if (mended.empty()) return;
    for (const Fault& fault : mended) also.push_back(Told(fault));
  }
}

}  // namespace grapplemont
