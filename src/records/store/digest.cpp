#include "records/store/digest.h"

#include <algorithm>
#include <span>

#include "records/store/packing.h"

namespace grapplemont {

namespace {

constexpr auto kBlock = static_cast<std::size_t>(kJournalBlock);
constexpr std::size_t kNumber = sizeof(std::uint64_t);

void PutNumber(Bytes& bytes, std::size_t number, std::uint64_t value) {
  for (std::size_t i = 0; i < kNumber; ++i)
    bytes[number * kNumber + i] = static_cast<std::byte>(value >> (8 * i));
}

}  // namespace

FileDigest::FileDigest(ByteSpan contents, DigestForm form) {
  if (form == DigestForm::Whole)
    value_ = Checksum(contents);
  else
    Follow(contents, {{0, contents}});
}

void FileDigest::Follow(ByteSpan contents, const std::vector<JournalRange>& changed) {
  blocks_.resize((1 + (contents.size() + kBlock - 1) / kBlock) * kNumber);
  PutNumber(blocks_, 0, contents.size());
  for (const JournalRange& range : changed) {
    const auto from = static_cast<std::size_t>(range.Offset);
    for (std::size_t at = from / kBlock * kBlock; at < from + range.Contents.size(); at += kBlock)
      PutNumber(blocks_, 1 + at / kBlock,
                Checksum(contents.subspan(at, std::min(kBlock, contents.size() - at))));
  }
  value_ = Checksum(blocks_);
}

WorldDigest::Aside WorldDigest::Follow(const std::vector<FileChange>& changes) {
  Aside before;
  for (const FileChange& change : changes) {
    const auto found = files_.find(change.Name);
    before.emplace_back(change.Name,
                        found == files_.end() ? std::nullopt : std::optional(found->second));
    if (change.ExistsAfter)
      files_[change.Name].Follow(change.After, change.Ranges);
    else
      files_.erase(change.Name);
  }
  return before;
}

void WorldDigest::PutBack(Aside before) {
  for (auto& [name, digest] : before) {
    if (digest)
      files_[name] = *std::move(digest);
    else
      files_.erase(name);
  }
}

std::uint64_t WorldDigest::Value() const {
  if (form_ == DigestForm::Whole) {
    std::string all;
    for (const auto& [name, digest] : files_)
      all += name + ":" + std::to_string(digest.Value()) + "\n";
    return Checksum(std::as_bytes(std::span(all)));
  }
  Packer all;
  for (const auto& [name, digest] : files_) {
    all.Put(static_cast<std::uint16_t>(name.size()));
    all.Put(std::string_view(name));
    all.Put(digest.Value());
  }
  return Checksum(all.Packed());
}

std::vector<std::string> WorldDigest::Differing(const WorldDigest& other) const {
  std::vector<std::string> names;
  const auto isIn = [](const WorldDigest& digest, const std::string& name, const FileDigest& file) {
    const auto found = digest.files_.find(name);
    return found != digest.files_.end() && found->second.Value() == file.Value();
  };
  for (const auto& [name, file] : files_)
    if (!isIn(other, name, file)) names.push_back(name);
  for (const auto& [name, file] : other.files_)
    if (!files_.contains(name)) names.push_back(name);
  std::ranges::sort(names);
  return names;
}

WorldDigest DigestOf(const std::map<std::string, Bytes>& files, DigestForm form) {
  WorldDigest digest(form);
  for (const auto& [name, contents] : files) digest.Set(name, contents);
  return digest;
}

}  // namespace grapplemont
