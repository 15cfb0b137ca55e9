#include "bench/keptworlds.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <span>
#include <stdexcept>

#include "records/store/digest.h"
#include "records/store/machine.h"
#include "support/checkout.h"
#include "support/smallworld.h"

namespace grapplemont::bench {

namespace {

namespace fs = std::filesystem;
using Files = std::map<std::string, Bytes>;

/// Disk opens files for writing too, which no system lets anybody do with a program that runs.
std::string ContentsOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) throw std::runtime_error(path.generic_string() + " cannot be read.");
  return {std::istreambuf_iterator<char>(file), {}};
}

/// What a world depends on: the rules, which are in the program, and the tables of the data that it
/// begins with.
std::string DigestOfAll(const std::string& program) {
  WorldDigest digest;
  const auto add = [&](const fs::path& path) {
    const std::string contents = ContentsOf(path);
    digest.Set(path.generic_string(), std::as_bytes(std::span(contents)));
  };
  add(program);
  for (const auto& entry : fs::recursive_directory_iterator(test::Checkout("/world")))
    if (entry.is_regular_file()) add(entry.path());
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
