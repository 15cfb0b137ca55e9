#include "records/store/wayback.h"

#include <algorithm>
#include <cstring>
#include <unordered_map>

#include "records/store/packing.h"

namespace grapplemont {

namespace {

/// So many equal bytes between two that differ are cheaper told apart than put.
constexpr std::size_t kWorthTaking = 6;
/// From so many bytes put on, records that have moved are looked for, where the bytes are at least
/// a quarter of what was compared: records that change where they stand change few of theirs.
constexpr std::size_t kWorthSearching = 4096;
constexpr std::uint64_t kSparse = 4;
// A way that was spoiled on purpose says in a few bytes what would take hours, or all memory. Those
// of a game stay far below this: it has fewer files, and none that is longer.
constexpr std::uint64_t kMostFiles = 128, kMostTold = 16 << 20;
constexpr std::size_t kMostPieces = 2 << 20;

std::size_t Index(std::uint64_t number) {
  return static_cast<std::size_t>(number);
}

/// Small numbers of either sign as small numbers.
std::uint64_t Folded(std::int64_t number) {
  return (static_cast<std::uint64_t>(number) << 1) ^ (number < 0 ? ~std::uint64_t{0} : 0);
}
std::int64_t Unfolded(std::uint64_t number) {
  return static_cast<std::int64_t>((number >> 1) ^ (~(number & 1) + 1));
}

void PutText(Bytes& out, std::string_view text) {
  PutNumber(out, text.size());
  const auto bytes = std::as_bytes(std::span(text));
  out.insert(out.end(), bytes.begin(), bytes.end());
}

std::optional<std::string> TakeText(ByteSpan& in) {
  const auto size = TakeNumber(in);
  if (!size || *size > in.size()) return std::nullopt;
  std::string text(reinterpret_cast<const char*>(in.data()), Index(*size));
  in = in.subspan(Index(*size));
  return text;
}

}  // namespace

void PutNumber(Bytes& out, std::uint64_t number) {
  for (; number >= 0x80; number >>= 7) out.push_back(static_cast<std::byte>(number | 0x80));
  out.push_back(static_cast<std::byte>(number));
}

std::optional<std::uint64_t> TakeNumber(ByteSpan& in) {
  if (!in.empty() && in.front() < std::byte{0x80}) {  // most are small
    const auto small = std::to_integer<std::uint64_t>(in.front());
    in = in.subspan(1);
    return small;
  }
  std::uint64_t number = 0;
  for (unsigned shift = 0; shift < 64 && !in.empty(); shift += 7) {
    const auto next = std::to_integer<std::uint64_t>(in.front());
    in = in.subspan(1);
    number |= (next & 0x7F) << shift;
    if (next < 0x80) return number;
  }
  return std::nullopt;
}

void BytesBack::Take(std::uint64_t from, std::uint64_t count) {
  if (count == 0) return;
  if (!pieces_.empty() && pieces_.back().Own == 0 &&
      pieces_.back().From + pieces_.back().Taken == from)
    pieces_.back().Taken += count;
  else
    pieces_.push_back({from, count, 0});
}

void BytesBack::Put(ByteSpan own) {
  if (own.empty()) return;
  if (pieces_.empty()) pieces_.push_back({0, 0, 0});
  pieces_.back().Own += own.size();
  own_.insert(own_.end(), own.begin(), own.end());
}

std::optional<Bytes> BytesBack::Of(ByteSpan newer, std::int64_t most) const {
  for (const Piece& piece : pieces_)
    if (piece.From > newer.size() || piece.Taken > newer.size() - piece.From) return std::nullopt;
  // A sum of many takings could pass every bound before it is compared with one.
  std::uint64_t length = own_.size();
  for (const Piece& piece : pieces_) {
    length += piece.Taken;
    if (length > static_cast<std::uint64_t>(most)) return std::nullopt;
  }
  Bytes older;
  older.reserve(Index(length));
  std::size_t own = 0;
  for (const Piece& piece : pieces_) {
    const ByteSpan taken = newer.subspan(Index(piece.From), Index(piece.Taken));
    older.insert(older.end(), taken.begin(), taken.end());
    const ByteSpan put = ByteSpan(own_).subspan(own, Index(piece.Own));
    older.insert(older.end(), put.begin(), put.end());
    own += put.size();
  }
  return older;
}

/// Tells stretches of what some bytes tell by what they tell it by.
class BytesBack::Teller {
 public:
  explicit Teller(const BytesBack& of) : of_(of) {
    begins_.reserve(of.pieces_.size());
    for (const Piece& piece : of.pieces_) {
      begins_.push_back({length_, own_});
      length_ += piece.Taken + piece.Own;
      own_ += Index(piece.Own);
    }
  }
  std::uint64_t Length() const { return length_; }
  /// Requires a stretch within the length.
  void Tell(std::uint64_t from, std::uint64_t count, BytesBack& by) {
    Find(from);
    while (count > 0) {
      while (IsBehind(from, number_)) ++number_;
      const Piece& piece = of_.pieces_[number_];
      const std::uint64_t into = from - begins_[number_].At;
      const bool isTaken = into < piece.Taken;
      const std::uint64_t told =
          std::min(count, (isTaken ? piece.Taken : piece.Taken + piece.Own) - into);
      if (isTaken)
        by.Take(piece.From + into, told);
      else
        by.Put(ByteSpan(of_.own_).subspan(begins_[number_].Own + Index(into - piece.Taken),
                                          Index(told)));
      from += told;
      count -= told;
    }
  }

 private:
  struct Begin {
    std::uint64_t At;
    std::size_t Own;
  };
  bool IsBehind(std::uint64_t from, std::size_t piece) const {
    return piece + 1 < begins_.size() && begins_[piece + 1].At <= from;
  }
  /// Most stretches follow each other closely.
  void Find(std::uint64_t from) {
    const bool isNear = number_ < begins_.size() && begins_[number_].At <= from &&
                        !(IsBehind(from, number_) && IsBehind(from, number_ + 1));
    if (isNear || begins_.empty()) return;
    const auto next = std::ranges::upper_bound(begins_, from, {}, &Begin::At);
    number_ = static_cast<std::size_t>(next - begins_.begin()) - 1;
  }

  const BytesBack& of_;
  std::vector<Begin> begins_;
  std::uint64_t length_ = 0;
  std::size_t own_ = 0, number_ = 0;
};

std::optional<BytesBack> BytesBack::Behind(const BytesBack& nearer) const {
  Teller teller(nearer);
  BytesBack joined;
  joined.pieces_.reserve(pieces_.size() + nearer.pieces_.size());
  std::size_t own = 0;
  std::uint64_t told = 0;
  for (const Piece& piece : pieces_) {
    if (piece.From > teller.Length() || piece.Taken > teller.Length() - piece.From)
      return std::nullopt;
    told += piece.Taken + piece.Own;
    if (told > kMostTold || joined.pieces_.size() > kMostPieces) return std::nullopt;
    teller.Tell(piece.From, piece.Taken, joined);
    joined.Put(ByteSpan(own_).subspan(own, Index(piece.Own)));
    own += Index(piece.Own);
  }
  return joined;
}

void BytesBack::PackInto(Bytes& out) const {
  PutNumber(out, pieces_.size());
  std::uint64_t expected = 0;
  for (const Piece& piece : pieces_) {
    PutNumber(out, Folded(static_cast<std::int64_t>(piece.From - expected)));
    PutNumber(out, piece.Taken);
    PutNumber(out, piece.Own);
    expected = piece.From + piece.Taken + piece.Own;
  }
  PutNumber(out, own_.size());
  out.insert(out.end(), own_.begin(), own_.end());
}

std::optional<BytesBack> BytesBack::Unpack(ByteSpan& in) {
  BytesBack back;
  const auto count = TakeNumber(in);
  if (!count || *count > in.size() / 3) return std::nullopt;
  back.pieces_.reserve(Index(*count));
  std::uint64_t expected = 0, own = 0;
  for (std::uint64_t i = 0; i < *count; ++i) {
    const auto skipped = TakeNumber(in), taken = TakeNumber(in), put = TakeNumber(in);
    if (!skipped || !taken || !put || *put > in.size() || *taken + *put == 0) return std::nullopt;
    const std::uint64_t from = expected + static_cast<std::uint64_t>(Unfolded(*skipped));
    if (*taken >> 40 || from >> 40) return std::nullopt;
    back.pieces_.push_back({from, *taken, *put});
    expected = from + *taken + *put;
    own += *put;
  }
  const auto size = TakeNumber(in);
  if (!size || *size > in.size() || *size != own) return std::nullopt;
  const ByteSpan bytes = in.first(Index(*size));
  back.own_.assign(bytes.begin(), bytes.end());
  in = in.subspan(bytes.size());
  return back;
}

namespace {

/// Where the two differ first from `from` on; `both` where they do not before it. Most bytes of
/// most files are alike: they are compared eight, and four times eight, at a time.
std::size_t SameUntil(ByteSpan one, ByteSpan two, std::size_t from, std::size_t both) {
  const auto differs = [&](std::size_t at) {
    std::uint64_t a, b;
    std::memcpy(&a, one.data() + at, sizeof(a));
    std::memcpy(&b, two.data() + at, sizeof(b));
    return a ^ b;
  };
  std::size_t i = from;
  while (i + 32 <= both && (differs(i) | differs(i + 8) | differs(i + 16) | differs(i + 24)) == 0)
    i += 32;
  while (i + 8 <= both && differs(i) == 0) i += 8;
  while (i < both && one[i] == two[i]) ++i;
  return i;
}

/// Tells `before` by `now`, which begin at the same place of their file.
void TellInPlace(BytesBack& back, std::uint64_t at, ByteSpan before, ByteSpan now) {
  const std::size_t both = std::min(before.size(), now.size());
  const auto sameFrom = [&](std::size_t from) { return SameUntil(before, now, from, both); };
  std::size_t i = 0;
  while (i < both) {
    const std::size_t same = sameFrom(i);
    back.Take(at + i, same - i);
    std::size_t end = same;
    for (i = same; i < both;) {
      while (i < both && before[i] != now[i]) ++i;
      end = i;
      i = sameFrom(i);
      if (i - end >= kWorthTaking) break;
    }
    if (i == both && i - end < kWorthTaking) end = i;
    back.Put(before.subspan(same, end - same));
    i = end;
  }
  back.Put(before.subspan(both));
}

/// Tells a file by the records that stand somewhere in it still.
BytesBack TellByRecords(ByteSpan before, ByteSpan now, std::size_t size) {
  std::unordered_map<std::uint64_t, std::size_t> places;
  for (std::size_t at = 0; at + size <= now.size(); at += size)
    places.try_emplace(Checksum(now.subspan(at, size)), at);
  BytesBack back;
  std::size_t expected = 0;
  const auto isAt = [&](std::size_t at, ByteSpan record) {
    return at + size <= now.size() && std::memcmp(now.data() + at, record.data(), size) == 0;
  };
  std::size_t from = 0;
  for (; from + size <= before.size(); from += size, expected += size) {
    const ByteSpan record = before.subspan(from, size);
    if (!isAt(expected, record)) {
      const auto place = places.find(Checksum(record));
      if (place == places.end() || !isAt(place->second, record)) {
        back.Put(record);
        continue;
      }
      expected = place->second;
    }
    back.Take(expected, size);
  }
  back.Put(before.subspan(from));
  return back;
}

}  // namespace

FileBack BackFrom(const FileChange& change) {
  FileBack file{change.Name, change.ExistsBefore, {}};
  std::int64_t at = 0;
  const auto takeUntil = [&](std::int64_t until) {
    file.Contents.Take(static_cast<std::uint64_t>(at), static_cast<std::uint64_t>(until - at));
    at = until;
  };
  for (const JournalRange& was : *change.Were) {
    takeUntil(was.Offset);
    const auto from = static_cast<std::size_t>(was.Offset);
    TellInPlace(file.Contents, from, was.Contents, change.After.subspan(from, was.Contents.size()));
    at += std::ssize(was.Contents);
  }
  takeUntil(change.LengthBefore);
  return file;
}

FileBack BackFrom(const FileChange& change, std::int64_t recordBytes, const ReadBefore& read) {
  FileBack file{change.Name, change.ExistsBefore, {}};
  if (!change.ExistsBefore) return file;
  const std::int64_t before = change.LengthBefore, now = std::ssize(change.After);
  const auto older = [&](std::int64_t from, std::int64_t to) {
    return to > from ? read(from, to - from) : ByteSpan();
  };
  std::int64_t at = 0;
  std::uint64_t compared = 0;
  for (const JournalRange& range : change.Ranges) {
    const std::int64_t from = range.Offset;
    if (from >= before) break;
    const std::int64_t end = from + std::ssize(range.Contents);
    file.Contents.Take(static_cast<std::uint64_t>(at), static_cast<std::uint64_t>(from - at));
    const ByteSpan was = older(from, std::min(before, end));
    compared += was.size();
    TellInPlace(file.Contents, static_cast<std::uint64_t>(from), was, range.Contents);
    at = from + std::ssize(was);
  }
  const std::int64_t kept = std::max(at, std::min(before, now));
  file.Contents.Take(static_cast<std::uint64_t>(at), static_cast<std::uint64_t>(kept - at));
  file.Contents.Put(older(kept, before));
  compared += static_cast<std::uint64_t>(std::max<std::int64_t>(0, before - kept));
  const std::size_t own = file.Contents.OwnBytes();
  if (recordBytes > 1 && own >= kWorthSearching && own * kSparse >= compared) {
    BytesBack moved =
        TellByRecords(older(0, before), change.After, static_cast<std::size_t>(recordBytes));
    if (moved.OwnBytes() < own) file.Contents = std::move(moved);
  }
  return file;
}

std::optional<WayBack> Joined(const WayBack& nearer, WayBack farther) {
  for (const FileBack& near : nearer) {
    const auto far = std::ranges::find(farther, near.Name, &FileBack::Name);
    if (far == farther.end()) {
      farther.push_back(near);
    } else if (near.Existed && far->Existed) {
      auto both = far->Contents.Behind(near.Contents);
      if (!both) return std::nullopt;
      far->Contents = *std::move(both);
    }
  }
  return farther;
}

bool GoBack(const WayBack& way, std::map<std::string, Bytes>& files,
            const std::function<std::int64_t(const std::string& name)>& mostBytes) {
  for (const FileBack& file : way) {
    if (!file.Existed) {
      files.erase(file.Name);
      continue;
    }
    auto older = file.Contents.Of(files[file.Name], mostBytes(file.Name));
    if (!older) return false;
    files[file.Name] = *std::move(older);
  }
  return true;
}

void PackInto(Bytes& out, const WayBack& way) {
  PutNumber(out, way.size());
  for (const FileBack& file : way) {
    PutText(out, file.Name);
    out.push_back(static_cast<std::byte>(file.Existed));
    if (file.Existed) file.Contents.PackInto(out);
  }
}

std::optional<WayBack> UnpackWay(ByteSpan in) {
  const auto count = TakeNumber(in);
  if (!count || *count > kMostFiles) return std::nullopt;
  WayBack way;
  for (std::uint64_t i = 0; i < *count; ++i) {
    auto name = TakeText(in);
    if (!name || in.empty()) return std::nullopt;
    FileBack file{*std::move(name), in.front() != std::byte{0}, {}};
    in = in.subspan(1);
    if (file.Existed) {
      auto contents = BytesBack::Unpack(in);
      if (!contents) return std::nullopt;
      file.Contents = *std::move(contents);
    }
    way.push_back(std::move(file));
  }
  return in.empty() ? std::optional(std::move(way)) : std::nullopt;
}

}  // namespace grapplemont
