#include "records/store/mornings.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

#include "records/store/packing.h"

namespace grapplemont {

namespace {

constexpr std::uint64_t kMomentsMagic = 0x4E524F4D52464D47;  // "GMFRMORN"
constexpr std::uint32_t kMomentsFormat = 1;
constexpr std::uint32_t kKeeps = 0, kNever = 1;
constexpr std::size_t kMomentsStartAt = 16, kMomentsHead = 24;
// An entry: its size, the checksum of what follows, then kind, days, digest, name and way.
constexpr std::size_t kEntryChecked = 12, kEntryLeast = 12 + 1 + 8 + 8 + 8 + 2;
constexpr std::size_t kLongestName = 200;
/// Far more moments than are kept; a spoiled file has them, to be walked one by one.
constexpr std::size_t kMostEntries = 1000;
/// What is past its time goes only when there are so many more of it: each going writes all that
/// lies behind it.
constexpr int kSlack = 7, kFewFirsts = 2;
/// What counts is no longer, so that moving it together in a full file is rare.
constexpr std::size_t kMostLive = 3 << 20;

Bytes Head(std::uint32_t keeps) {
  Packer out;
  out.Put(kMomentsMagic);
  out.Put(kMomentsFormat);
  out.Put(keeps);
  out.Put(std::uint64_t{kMomentsHead});
  return std::move(out).Packed();
}

/// In 16 hexadecimal digits; how a road tells the moment that was gone back to.
std::string DigitsOf(std::uint64_t digest) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  std::string text;
  for (int shift = 60; shift >= 0; shift -= 4) text += kDigits[(digest >> shift) & 15];
  return text;
}

/// 0 for what is none.
std::uint64_t DigestIn(std::string_view digits) {
  std::uint64_t digest = 0;
  const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), digest, 16);
  const bool isWhole = digits.size() == 16 && read.ptr == digits.data() + digits.size();
  return isWhole && read.ec == std::errc() ? digest : 0;
}

Bytes PackEntry(const Moment& of, const WayBack& way) {
  Packer out;
  out.Put(std::uint32_t{0});
  out.Put(std::uint64_t{0});
  out.Put(static_cast<std::uint8_t>(of.Is));
  out.Put(static_cast<std::int64_t>(of.On.time_since_epoch().count()));
  out.Put(static_cast<std::int64_t>(of.Target.time_since_epoch().count()));
  out.Put(of.Digest);
  const std::string told = of.Is == MomentKind::Left ? DigitsOf(of.TargetDigest) : of.Name;
  const std::string_view name = std::string_view(told).substr(0, kLongestName);
  out.Put(static_cast<std::uint16_t>(name.size()));
  out.Put(name);
  Bytes packed = std::move(out).Packed();
  PackInto(packed, way);
  const auto put = [&packed](std::size_t at, std::uint64_t value, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
      packed[at + i] = static_cast<std::byte>(value >> (8 * i));
  };
  put(0, packed.size(), 4);
  put(4, Checksum(ByteSpan(packed).subspan(kEntryChecked)), 8);
  return packed;
}

Day DayOfCount(std::int64_t days) {
  constexpr std::int64_t kFarthest = 10'000'000;  // no calendar goes on behind it
  return Day{std::chrono::days{static_cast<int>(std::clamp(days, -kFarthest, kFarthest))}};
}

/// Where in the entry its way begins; nothing where the entry is broken.
std::optional<std::size_t> ReadEntry(ByteSpan entry, Moment& of) {
  Unpacker in(entry);
  in.Get<std::uint32_t>();
  if (in.Get<std::uint64_t>() != Checksum(in.Left())) return std::nullopt;
  const auto kind = in.Get<std::uint8_t>();
  if (kind > static_cast<std::uint8_t>(MomentKind::Left)) return std::nullopt;
  of.Is = static_cast<MomentKind>(kind);
  of.On = DayOfCount(in.Get<std::int64_t>());
  of.Target = DayOfCount(in.Get<std::int64_t>());
  of.Digest = in.Get<std::uint64_t>();
  of.Name = in.GetText<std::uint16_t>();
  if (!in.Whole()) return std::nullopt;
  if (of.Is == MomentKind::Left) of.TargetDigest = DigestIn(std::exchange(of.Name, {}));
  return entry.size() - in.Left().size();
}

}  // namespace

Bytes Mornings::NoWayBack() {
  return Head(kNever);
}

Mornings::Mornings(std::optional<Bytes> file) : exists_(file.has_value()), start_(kMomentsHead) {
  if (file) file_ = *std::move(file);
  stored_ = file_.size();
  isStored_ = exists_ && Read();
  if (isStored_) return;
  spoiled_ = exists_;
  keeps_ = true;
  start_ = kMomentsHead;
  entries_.clear();
  file_ = Head(kKeeps);
}

bool Mornings::Read() {
  Unpacker in(file_);
  if (in.Get<std::uint64_t>() != kMomentsMagic || in.Get<std::uint32_t>() != kMomentsFormat)
    return false;
  keeps_ = in.Get<std::uint32_t>() == kKeeps;
  const auto start = in.Get<std::uint64_t>();
  if (!in.Whole() || start < kMomentsHead || start > file_.size()) return false;
  start_ = static_cast<std::size_t>(start);
  for (std::size_t at = start_; at < file_.size();) {
    const ByteSpan left = ByteSpan(file_).subspan(at);
    const std::size_t size = Unpacker(left).Get<std::uint32_t>();
    if (left.size() < kEntryLeast || size < kEntryLeast || size > left.size()) return false;
    Entry entry{{}, at, size};
    if (entries_.size() == kMostEntries || !ReadEntry(left.first(size), entry.Of)) return false;
    entries_.push_back(std::move(entry));
    at += size;
  }
  return true;
}

std::optional<WayBack> Mornings::Step(std::size_t at) const {
  const ByteSpan entry = ByteSpan(file_).subspan(entries_[at].At, entries_[at].Size);
  Moment of;
  const auto way = ReadEntry(entry, of);
  return way ? UnpackWay(entry.subspan(*way)) : std::nullopt;
}

std::optional<WayBack> Mornings::WayTo(std::size_t at) const {
  return Onward({}, entries_.size(), at);
}

/// The way to where moment `from` begins, and on to the moment `to`.
std::optional<WayBack> Mornings::Onward(WayBack nearer, std::size_t from, std::size_t to) const {
  std::optional<WayBack> way = std::move(nearer);
  for (std::size_t i = from; i > to && way; --i) {
    auto step = Step(i - 1);
    way = step ? Joined(*way, *std::move(step)) : std::nullopt;
  }
  return way;
}

std::optional<std::size_t> Mornings::WouldGo(MomentKind kind) const {
  int met = 0;
  std::optional<std::size_t> goes;
  const int stays = kind == MomentKind::Left ? 1 : 0;
  for (std::size_t i = 0; i < entries_.size(); ++i)
    if (entries_[i].Of.Is == kind && met++ == stays) goes = i;
  return met < (kind == MomentKind::Left ? kLeft : kNamed) ? std::nullopt : goes;
}

Mornings::Past& Mornings::Touch() {
  if (!past_) past_ = Past{entries_.size(), file_.size(), start_, file_.size()};
  return *past_;
}

void Mornings::Cut(std::size_t length) {
  Past& past = Touch();
  if (!past.All) past.All = entries_;
  if (length < past.From) {
    const auto begin = file_.begin();
    past.Tail.insert(past.Tail.begin(), begin + static_cast<std::ptrdiff_t>(length),
                     begin + static_cast<std::ptrdiff_t>(past.From));
    past.From = length;
  }
  file_.resize(length);
}

void Mornings::Append(Moment of, const WayBack& way) {
  const Bytes packed = PackEntry(of, way);
  Append(std::move(of), packed);
}

void Mornings::Append(Moment of, const Bytes& packed) {
  Touch();
  entries_.push_back({std::move(of), file_.size(), packed.size()});
  file_.insert(file_.end(), packed.begin(), packed.end());
}

void Mornings::WriteStart() {
  for (std::size_t i = 0; i < sizeof(std::uint64_t); ++i)
    file_[kMomentsStartAt + i] = static_cast<std::byte>(std::uint64_t{start_} >> (8 * i));
}

void Mornings::DropOldest(std::size_t count) {
  if (count == 0) return;
  Past& past = Touch();
  if (!past.All) past.All = entries_;
  start_ = count < entries_.size() ? entries_[count].At : file_.size();
  entries_.erase(entries_.begin(), entries_.begin() + static_cast<std::ptrdiff_t>(count));
  WriteStart();
}

/// Whether the road that is played has no moment of this day yet. What the player has named is no
/// morning; who went back to a day has its morning already.
bool Mornings::IsNewDay(Day on) const {
  for (std::size_t i = entries_.size(); i-- > 0;) {
    const Moment& of = entries_[i].Of;
    if (of.Is != MomentKind::Named) return (of.Is == MomentKind::Left ? of.Target : of.On) != on;
  }
  return true;
}

void Mornings::Add(Moment of, const WayBack& way, Day after) {
  if (!keeps_) return;
  if (of.Is == MomentKind::Click && IsNewDay(of.On)) of.Is = MomentKind::Morning;
  const bool dayIsOver = after != of.On;
  Append(std::move(of), way);
  Thin(dayIsOver);
  Bound();
}

/// What is past its time becomes part of the step to the moment before it.
void Mornings::Thin(bool dayIsOver) {
  struct Limit {
    int Most, Slack, Met = 0;
  };
  enum { kDaily, kMonthly, kByName, kRoads, kClicked };
  std::array<Limit, 5> limits{{{kDays, kSlack},
                               {kFirsts, kFewFirsts},
                               {kNamed, 0},
                               {kLeft, 0},
                               {dayIsOver ? 0 : kClicks, dayIsOver ? 0 : kClicks}}};
  const auto limitOf = [&](const Moment& of) -> Limit& {
    if (of.Is == MomentKind::Named) return limits[kByName];
    if (of.Is == MomentKind::Left) return limits[kRoads];
    if (of.Is == MomentKind::Click) return limits[kClicked];
    return limits[IsFirstOfMonth(of.On) ? kMonthly : kDaily];
  };
  for (const Entry& entry : entries_) ++limitOf(entry.Of).Met;
  bool any = false;
  for (Limit& limit : limits) {
    limit.Met = limit.Met > limit.Most + limit.Slack ? limit.Met - limit.Most : 0;
    any |= limit.Met > 0;
  }
  if (!any) return;
  std::vector<bool> goes(entries_.size());
  bool isFirstRoad = true;  // it is the player's own, which they went back from
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].Of.Is == MomentKind::Left && std::exchange(isFirstRoad, false)) continue;
    Limit& limit = limitOf(entries_[i].Of);
    goes[i] = limit.Met > 0;
    if (goes[i]) --limit.Met;
  }
  Fold(std::move(goes));
}

void Mornings::Forget(std::size_t at) {
  std::vector<bool> goes(entries_.size());
  goes[at] = true;
  Fold(std::move(goes));
}

void Mornings::Fold(std::vector<bool> goes) {
  const auto oldest = std::ranges::find(goes, false) - goes.begin();
  goes.erase(goes.begin(), goes.begin() + oldest);
  DropOldest(static_cast<std::size_t>(oldest));
  const auto first = static_cast<std::size_t>(std::ranges::find(goes, true) - goes.begin());
  if (first == goes.size()) return;
  std::vector<Staying> stay;
  for (std::size_t i = first - 1; i < entries_.size(); ++i) {
    if (!goes[i]) {
      stay.push_back({entries_[i].Of, i, {}});
      continue;
    }
    Staying& last = stay.back();
    if (!last.Way) last.Way = Step(last.At);
    auto step = Step(i);
    if (step && last.Way) step = Joined(*step, *std::move(last.Way));
    if (!step || !last.Way) return Clear();
    last.Way = std::move(step);
    // It is more than that click then, but for a name that was given behind it.
    const bool isMore = entries_[i].Of.Is != MomentKind::Named;
    if (isMore && last.Of.Is == MomentKind::Morning) last.Of.Name.clear();
  }
  Keep(std::move(stay), first - 1);
}

/// Those from entry `first` on go, but for what stays.
void Mornings::Keep(std::vector<Staying> stay, std::size_t first) {
  std::vector<Bytes> packed;
  for (const Staying& each : stay) {
    const ByteSpan entry = ByteSpan(file_).subspan(entries_[each.At].At, entries_[each.At].Size);
    packed.push_back(each.Way ? PackEntry(each.Of, *each.Way) : Bytes(entry.begin(), entry.end()));
  }
  Cut(entries_[first].At);
  entries_.resize(first);
  for (std::size_t i = 0; i < stay.size(); ++i) Append(std::move(stay[i].Of), packed[i]);
}

/// Lets the oldest go where there are too many bytes, and moves together what counts where the file
/// is full.
void Mornings::Bound() {
  std::size_t oldest = 0;
  const auto live = [&] {
    return oldest < entries_.size() ? file_.size() - entries_[oldest].At : 0;
  };
  while (live() > kMostLive) ++oldest;
  DropOldest(oldest);
  if (std::ssize(file_) <= kMostMornings) return;
  const Bytes moved(file_.begin() + static_cast<std::ptrdiff_t>(start_), file_.end());
  const std::size_t by = start_ - kMomentsHead;
  Cut(kMomentsHead);
  file_.insert(file_.end(), moved.begin(), moved.end());
  for (Entry& entry : entries_) entry.At -= by;
  start_ = kMomentsHead;
  WriteStart();
}

void Mornings::DropLast() {
  if (entries_.empty()) return;
  Cut(entries_.back().At);
  entries_.pop_back();
}

void Mornings::TakeBack(std::size_t click, const WayBack& way, std::uint64_t digest) {
  std::vector<std::size_t> stay;
  for (std::size_t i = click + 1; i < entries_.size(); ++i)
    if (entries_[i].Of.Is == MomentKind::Named) stay.push_back(i);
  // What is behind the click is told by it, unless something stays between or it is not quite this.
  const bool isTold = stay.empty() && entries_[click].Of.Digest == digest;
  if (!isTold && click > 0) stay.insert(stay.begin(), click - 1);
  std::vector<std::pair<Moment, WayBack>> told;
  for (std::size_t i = 0; i < stay.size(); ++i) {
    const bool isLast = i + 1 == stay.size();
    auto step = Onward(isLast ? way : WayBack(), isLast ? entries_.size() : stay[i + 1], stay[i]);
    if (!step) return Clear();
    told.emplace_back(entries_[stay[i]].Of, *std::move(step));
  }
  const std::size_t first = stay.empty() ? click : std::min(click, stay.front());
  Cut(entries_[first].At);
  entries_.resize(first);
  for (auto& [of, back] : told) Append(std::move(of), back);
}

void Mornings::Clear() {
  Cut(kMomentsHead);
  entries_.clear();
  start_ = kMomentsHead;
  WriteStart();
}

std::optional<FileChange> Mornings::Change() const {
  if (!past_) return std::nullopt;
  FileChange change{kMorningsName, exists_, true, 0, file_, {}};
  change.LengthBefore = static_cast<std::int64_t>(isStored_ ? past_->Length : stored_);
  ChangedBlocks changed(file_);
  if (!isStored_) {
    changed.Add(0, file_.size());
  } else {
    if (start_ != past_->Start) changed.Add(0, kMomentsHead);
    const bool isShorter = past_->From == file_.size() && file_.size() < past_->Length;
    if (past_->From < file_.size() || (isShorter && file_.size() % kJournalBlock != 0))
      changed.Add(std::min(past_->From, file_.size() - 1), file_.size());
  }
  change.Ranges = std::move(changed).Take();
  return change;
}

void Mornings::Reach() {
  if (past_) exists_ = isStored_ = true;
  past_.reset();
}

void Mornings::PutBack() {
  if (!past_) return;
  file_.resize(past_->From);
  file_.insert(file_.end(), past_->Tail.begin(), past_->Tail.end());
  file_.resize(past_->Length);
  if (past_->All) entries_ = *std::move(past_->All);
  entries_.resize(past_->Count);
  start_ = past_->Start;
  WriteStart();
  past_.reset();
}

}  // namespace grapplemont
