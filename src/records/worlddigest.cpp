#include "records/worlddigest.h"

#include <xxhash.h>

namespace grapplemont {

void WorldDigest::Set(const std::string& name, ByteSpan contents) {
  files_[name] = XXH3_64bits(contents.data(), contents.size());
}

std::uint64_t WorldDigest::Value() const {
  std::string all;
  for (const auto& [name, digest] : files_) all += name + ":" + std::to_string(digest) + "\n";
  return XXH3_64bits(all.data(), all.size());
}

WorldDigest DigestOf(const std::map<std::string, Bytes>& files) {
  WorldDigest digest;
  for (const auto& [name, contents] : files) digest.Set(name, contents);
  return digest;
}

}  // namespace grapplemont
