#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "records/disk.h"

namespace grapplemont {

/// One number that stands for all files of a world: two worlds of the same digest are the same, as
/// far as 64 bits can tell.
class WorldDigest {
 public:
  void Set(const std::string& name, ByteSpan contents);
  void Remove(const std::string& name) { files_.erase(name); }
  std::uint64_t Value() const;

 private:
  std::map<std::string, std::uint64_t> files_;
};

WorldDigest DigestOf(const std::map<std::string, Bytes>& files);

}  // namespace grapplemont
