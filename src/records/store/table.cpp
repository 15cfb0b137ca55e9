#include "records/store/table.h"

#include <algorithm>

namespace grapplemont {

TableFull::TableFull(const RecordLayout& layout)
    : std::runtime_error(std::string(layout.File) + " is full: it holds its most of " +
                         std::to_string(layout.Limit) + " records.") {}

void ThrowNoRecord(std::string_view file, int number) {
  throw std::out_of_range(std::string(file) + " has no record " + std::to_string(number));
}

std::optional<FileChange> Table::Difference() const {
  FileChange change{std::string(File()), committedExists_, exists_, CommittedLength(),
                    Contents(),          ChangedSince(),   image_};
  if (exists_ == committedExists_ && std::ssize(change.After) == change.LengthBefore &&
      change.Ranges.empty())
    return std::nullopt;
  if (committedExists_ && exists_) change.Were = WereIn(change.After);
  return change;
}

void Table::MarkCommitted() {
  const auto change = Difference();
  MarkCommitted(change ? change->Ranges : std::vector<JournalRange>());
}

void Table::MarkCommitted(const std::vector<JournalRange>& changed) {
  TakeOver(changed);
  committedExists_ = exists_;
}

void Table::TakeOver(const std::vector<JournalRange>& changed) {
  image_.resize(Contents().size());
  for (const JournalRange& range : changed)
    std::copy(range.Contents.begin(), range.Contents.end(), image_.begin() + range.Offset);
}

void Table::Rollback() {
  if (committedExists_) {
    Restore();
  } else {
    Remove();
  }
}

void TextFile::Remove() {
  exists_ = false;
  text_.clear();
}

void TextFile::Load(ByteSpan bytes) {
  if (static_cast<std::int64_t>(bytes.size()) > MaxBytes())
    throw WorldFault(std::string(file_) + " is longer than " + std::to_string(MaxBytes()) +
                     " bytes. Shorten it and try again.");
  text_.assign(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  exists_ = true;
}

void TextFile::CopyFrom(const TextFile& other) {
  ForgetCommitted();
  text_ = other.text_;
  exists_ = other.exists_;
}

void TextFile::Set(std::string_view text) {
  text_ = text.substr(0, static_cast<std::size_t>(MaxBytes()));
  exists_ = true;
}

void RequireWithinLimit(const RecordLayout& layout, std::size_t bytes) {
  const auto limit = static_cast<std::size_t>(layout.Limit);
  if (bytes / static_cast<std::size_t>(layout.Size) > limit)
    throw WorldFault(std::string(layout.File) + " holds " +
                     std::to_string(bytes / static_cast<std::size_t>(layout.Size)) +
                     " records, more than its most of " + std::to_string(limit) +
                     ". Put back a file of this game.");
}

}  // namespace grapplemont
