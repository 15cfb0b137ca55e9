#include "bench/keptworlds.h"

#include <filesystem>
#include <map>

#include "records/store/digest.h"
#include "records/store/machine.h"
#include "support/checkout.h"
#include "support/smallworld.h"

namespace grapplemont::bench {

namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, Bytes>;

constexpr std::int64_t kMost = std::int64_t{1} << 30;  // bytes of a program or a table

/// What a world depends on: the rules, which are in the program, and the tables of the data that it
/// begins with.
std::string DigestOfAll(const std::string& program) {
  const auto disk = RealDisk();
  WorldDigest digest;
  const auto add = [&](const std::string& path) {
    digest.Set(path, ReadWithin(*disk, path, kMost).value());
  };
  add(program);
  for (const auto& entry : fs::recursive_directory_iterator(test::Checkout("/world")))
    if (entry.is_regular_file()) add(entry.path().generic_string());
  return std::to_string(digest.Value());
}

/// "BUILD/bench-worlds/PROGRAM/DIGEST", those of earlier builds gone; empty where the machine does
/// not say which file the program is.
std::string FolderOfKept() {
  const std::string program = ProgramFile();
  if (program.empty()) return {};
  const fs::path file = program;
  const fs::path all = file.parent_path().parent_path() / "bench-worlds" / file.filename();
  const fs::path own = all / DigestOfAll(program);
  if (!fs::exists(own)) fs::remove_all(all);
  fs::create_directories(own);
  return own.generic_string();
}

/// All of it or nothing: whoever is interrupted leaves no half of a world under its name.
void WriteAside(const Files& files, const std::string& path) {
  const auto disk = RealDisk(Syncs::None);
  const std::string beside = path + ".half";
  RemoveTree(*disk, beside);
  disk->MakeFolder(beside);
  for (const auto& [name, contents] : files) WriteFile(*disk, beside + "/" + name, contents);
  disk->Rename(beside, path);
}

Files ReadOrMake(const std::string& name, const std::function<World()>& make) {
  static const std::string folder = FolderOfKept();
  if (folder.empty()) return test::BytesOf(make());
  const std::string path = folder + "/" + name;
  const auto disk = RealDisk();
  if (!IsFolder(*disk, path)) WriteAside(test::BytesOf(make()), path);
  return ReadWorldFiles(*disk, path);
}

}  // namespace

World Kept(const std::string& name, const std::function<World()>& make) {
  static std::map<std::string, Files> known;
  auto found = known.find(name);
  if (found == known.end()) found = known.emplace(name, ReadOrMake(name, make)).first;
  World world;
  world.Load(found->second);
  return world;
}

}  // namespace grapplemont::bench
