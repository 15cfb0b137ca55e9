#include "monkey/worlds.h"

#include <algorithm>
#include <iterator>

#include "program/richworld.h"
#include "support/defaultworld.h"
#include "support/homefolder.h"
#include "support/randomworld.h"

namespace grapplemont::test {

std::optional<Data> DataNamed(std::string_view word) {
  constexpr std::string_view kWords[] = {"small", "default", "random", "hostile"};
  const auto at = std::ranges::find(kWords, word) - std::begin(kWords);
  if (at == std::ssize(kWords)) return std::nullopt;
  return static_cast<Data>(at);
}

Data DataOf(std::uint64_t seed) {
  constexpr Data kTurn[] = {Data::Small, Data::Default, Data::Small, Data::Random, Data::Small};
  return kTurn[seed % std::size(kTurn)];
}

World DataWorld(Data data, std::uint64_t seed) {
  switch (data) {
    case Data::Small:
      return RichWorld().Build();
    case Data::Default:
      return CopyOf(DefaultWorld());
    case Data::Random:
      return RandomData(seed);
    default:
      return HostileData(seed);
  }
}

CutDisk HomeOf(Data data, std::uint64_t seed) {
  const std::string home = kHomeFolder, lies = data == Data::Default ? kShareFolder : kHomeFolder;
  CutDisk disk;
  for (const std::string& folder : {home, home + "/extra"}) disk.MakeFolder(folder);
  if (lies != home) disk.MakeFolder(lies);
  for (const char* folder : {"/data", "/gfx"}) disk.MakeFolder(lies + folder);
  for (const NewFile& file : HomeFiles(DataWorld(data, seed)))
    WriteNewFile(disk, lies + "/" + file.Name, file.Contents);
  return disk.Restarted();
}

std::string ExpressionOf(Data data, std::uint64_t seed) {
  constexpr const char* kMade[] = {"RichWorld().Build()", "DefaultWorld()", "RandomData(",
                                   "HostileData("};
  const std::string made = kMade[static_cast<int>(data)];
  return made.ends_with("(") ? made + std::to_string(seed) + ")" : made;
}

}  // namespace grapplemont::test
