#include "monkey/worlds.h"

#include "program/richworld.h"
#include "support/defaultworld.h"
#include "support/homefolder.h"
#include "support/randomworld.h"

namespace grapplemont::test {

std::optional<Data> DataNamed(std::string_view word) {
  constexpr std::string_view kWords[] = {"small", "default", "random"};
  for (int i = 0; i < 3; ++i)
    if (kWords[i] == word) return static_cast<Data>(i);
  return std::nullopt;
}

Data DataOf(std::uint64_t seed) {
  constexpr Data kTurn[] = {Data::Small, Data::Default, Data::Small, Data::Random, Data::Small};
  return kTurn[seed % std::size(kTurn)];
}

CutDisk HomeOf(Data data, std::uint64_t seed) {
  const World made = data == Data::Small     ? RichWorld().Build()
                     : data == Data::Default ? CopyOf(DefaultWorld())
                                             : RandomData(seed);
  CutDisk disk;
  for (const char* folder : {"home", "home/data", "home/gfx", "home/extra"})
    disk.MakeFolder(folder);
  for (const NewFile& file : HomeFiles(made))
    WriteNewFile(disk, "home/" + file.Name, file.Contents);
  return disk.Restarted();
}

std::string ExpressionOf(Data data, std::uint64_t seed) {
  return data == Data::Small     ? "RichWorld().Build()"
         : data == Data::Default ? "DefaultWorld()"
                                 : "RandomData(" + std::to_string(seed) + ")";
}

}  // namespace grapplemont::test
