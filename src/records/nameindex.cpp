#include "records/nameindex.h"

#include <algorithm>
#include <cstring>

namespace grapplemont {

namespace {

/// Letters and digits of Windows-1252.
bool IsLetter(char c) {
  const auto code = static_cast<unsigned char>(c);
  if (code < 0x80) return (code | 0x20) >= 'a' ? (code | 0x20) <= 'z' : code >= '0' && code <= '9';
  constexpr std::string_view kLow = "\x83\x8A\x8C\x8E\x9A\x9C\x9E\x9F";
  return code >= 0xC0 ? code != 0xD7 && code != 0xF7 : kLow.find(c) != std::string_view::npos;
}

bool IsLetterAt(std::string_view text, std::size_t at) {
  return at < text.size() && IsLetter(text[at]);
}

/// A hyphen or an apostrophe between letters is part of the word, save that of "Okafor's".
bool IsInWord(std::string_view text, std::size_t at) {
  if (IsLetter(text[at])) return true;
  const bool quote = text[at] == '\'' || text[at] == '\x92';
  if (!quote && text[at] != '-') return false;
  if (at == 0 || !IsLetter(text[at - 1]) || !IsLetterAt(text, at + 1)) return false;
  const bool possessive = quote && text[at + 1] == 's' && !IsLetterAt(text, at + 2);
  return !possessive;
}

/// Whether no word goes on from the letter before to the one at this place.
bool IsBoundary(std::string_view text, std::size_t at) {
  if (at == 0 || at >= text.size()) return true;
  return !IsInWord(text, at - 1) || !IsInWord(text, at);
}

/// The word or the sign that stands at this place.
std::string_view PieceAt(std::string_view text, std::size_t from) {
  std::size_t end = from + 1;
  while (!IsBoundary(text, end)) ++end;
  return text.substr(from, end - from);
}

// Uid and names stand together at the head of their records.
constexpr std::size_t kWorkerHead = offsetof(Worker, ShortName);
constexpr std::size_t kPromotionHead = offsetof(Promotion, Size);
static_assert(offsetof(Worker, Uid) == 0 && offsetof(Worker, Name) < kWorkerHead);
static_assert(offsetof(Promotion, Uid) == 0 && offsetof(Promotion, Initials) < kPromotionHead);

template <class R>
bool HeadsAre(const R& records, std::size_t head, const char* seen) {
  for (const auto& record : records) {
    if (std::memcmp(&record, seen, head) != 0) return false;
    seen += head;
  }
  return true;
}

template <class R>
void AppendHeads(const R& records, std::size_t head, std::string& to) {
  for (const auto& record : records) to.append(reinterpret_cast<const char*>(&record), head);
}

/// The bytes of all heads, workers first.
std::size_t BytesOfHeads(const World& world) {
  return static_cast<std::size_t>(world.Workers().Count()) * kWorkerHead +
         static_cast<std::size_t>(world.Promotions().Count()) * kPromotionHead;
}

bool IsUpToDate(const World& world, const std::string& seen) {
  const auto workers = static_cast<std::size_t>(world.Workers().Count()) * kWorkerHead;
  return seen.size() == BytesOfHeads(world) &&
         HeadsAre(world.Workers(), kWorkerHead, seen.data()) &&
         HeadsAre(world.Promotions(), kPromotionHead, seen.data() + workers);
}

}  // namespace

void NameIndex::Enter(std::string_view name, Named named) {
  if (name.size() < 2 || name == "None" || name == kToBeDeleted) return;
  names_.try_emplace(std::string(name), named);
  std::size_t& longest = longest_[std::string(PieceAt(name, 0))];
  longest = std::max(longest, name.size());
}

void NameIndex::Build(const World& world) {
  names_.clear();
  longest_.clear();
  using Kind = NameSpan::Kind;
  for (const Worker& worker : world.Workers()) Enter(worker.Name, {Kind::Worker, worker.Uid});
  for (const Promotion& promotion : world.Promotions())
    Enter(promotion.Name, {Kind::Promotion, promotion.Uid});
  for (const Promotion& promotion : world.Promotions())
    if (!(promotion.Name == kToBeDeleted))
      Enter(promotion.Initials, {Kind::Promotion, promotion.Uid});
  seen_.clear();
  seen_.reserve(BytesOfHeads(world));
  AppendHeads(world.Workers(), kWorkerHead, seen_);
  AppendHeads(world.Promotions(), kPromotionHead, seen_);
}

const NameIndex::Named* NameIndex::At(std::string_view text, std::size_t from,
                                      std::size_t& length) const {
  const auto longest = longest_.find(PieceAt(text, from));
  if (longest == longest_.end()) return nullptr;
  for (length = std::min(longest->second, text.size() - from); length > 0; --length) {
    if (!IsBoundary(text, from + length)) continue;
    const auto found = names_.find(text.substr(from, length));
    if (found != names_.end()) return &found->second;
  }
  return nullptr;
}

std::vector<NameSpan> NameIndex::Find(const World& world, std::string_view text, bool known) {
  std::vector<NameSpan> spans;
  if (text.empty()) return spans;
  if (!known && !IsUpToDate(world, seen_)) Build(world);
  for (std::size_t at = 0; at < text.size();) {
    std::size_t length = 0;
    const Named* named = text[at] == ' ' ? nullptr : At(text, at, length);
    if (named) spans.push_back({at, length, named->Of, named->Uid});
    at += named ? length : PieceAt(text, at).size();
  }
  return spans;
}

}  // namespace grapplemont
