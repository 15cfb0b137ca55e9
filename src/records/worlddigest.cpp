#include "records/worlddigest.h"

#include <xxhash.h>

#include <algorithm>
#include <iterator>
#include <set>

namespace grapplemont {

void WorldDigest::Set(const std::string& name, ByteSpan contents) {
  files_[name] = XXH3_64bits(contents.data(), contents.size());
}

std::uint64_t WorldDigest::Value() const {
  std::string all;
  for (const auto& [name, digest] : files_) all += name + ":" + std::to_string(digest) + "\n";
  return XXH3_64bits(all.data(), all.size());
}

std::vector<std::string> WorldDigest::Differing(const WorldDigest& other) const {
  std::vector<std::pair<std::string, std::uint64_t>> differing;
  std::set_symmetric_difference(files_.begin(), files_.end(), other.files_.begin(),
                                other.files_.end(), std::back_inserter(differing));
  std::set<std::string> names;
  for (const auto& [name, digest] : differing) names.insert(name);
  return {names.begin(), names.end()};
}

WorldDigest DigestOf(const std::map<std::string, Bytes>& files) {
  WorldDigest digest;
  for (const auto& [name, contents] : files) digest.Set(name, contents);
  return digest;
}

}  // namespace grapplemont
