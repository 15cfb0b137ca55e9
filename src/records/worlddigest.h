#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "records/disk.h"

namespace grapplemont {

/// One number that stands for all files of a world: two worlds of the same digest are the same, as
/// far as 64 bits can tell.
class WorldDigest {
 public:
  void Set(const std::string& name, ByteSpan contents);
  void Set(std::string name, std::uint64_t digest) { files_[std::move(name)] = digest; }
  void Remove(const std::string& name) { files_.erase(name); }
  std::uint64_t Value() const;
  /// One number for each file, by its name.
  const std::map<std::string, std::uint64_t>& OfFiles() const { return files_; }
  /// The names of the files that are not the same in both.
  std::vector<std::string> Differing(const WorldDigest& other) const;

 private:
  std::map<std::string, std::uint64_t> files_;
};

WorldDigest DigestOf(const std::map<std::string, Bytes>& files);

}  // namespace grapplemont
