#include <map>
#include <string>

#include "fuzz/target.h"
#include "records/store/commandlog.h"
#include "records/store/mornings.h"
#include "records/store/packing.h"

// The file of moments that a game can go back to, and the log of commands beside it. Entries are
// told by what stands in them; their sizes and checksums are put right.

namespace grapplemont::fuzz {
namespace {

constexpr std::int64_t kMostBytes = 1 << 16;
constexpr Day kToday{std::chrono::year{2026} / 3 / 17};

/// A head as every file of moments has it, now and then another.
void PutHead(Input& in, Packer& out) {
  constexpr std::uint64_t kMagic = 0x4E524F4D52464D47, kStart = 24;
  const bool odd = in.Below(16) == 0;
  out.Put(kMagic);
  out.Put(static_cast<std::uint32_t>(odd ? in.Below(4) : 1));
  out.Put(static_cast<std::uint32_t>(in.Below(16) == 0));
  out.Put(odd ? static_cast<std::uint64_t>(in.Below(1 << 16)) : kStart);
}

void PutEntry(Input& in, Packer& out) {
  Packer body;
  body.Put(static_cast<std::uint8_t>(in.Below(5)));
  for (int day = 0; day < 2; ++day)
    body.Put(static_cast<std::int64_t>(kToday.time_since_epoch().count()) + in.Byte() - 128);
  body.Put(static_cast<std::uint64_t>(in.Byte()));
  const ByteSpan name = in.Take(in.Below(16));
  body.Put(static_cast<std::uint16_t>(name.size()));
  body.Put(name);
  body.Put(in.Take(in.Below(128)));  // the way
  out.Put(static_cast<std::uint32_t>(body.Packed().size() + 12));
  out.Put(Checksum(body.Packed()));
  out.Put(ByteSpan(body.Packed()));
}

Bytes AFile(Input& in) {
  if (in.Below(8) == 7) {
    const ByteSpan all = in.Rest();
    return {all.begin(), all.end()};
  }
  Packer out;
  PutHead(in, out);
  for (int left = 64; left > 0 && !in.Empty(); --left) PutEntry(in, out);
  return std::move(out).Packed();
}

void GoTo(const std::optional<WayBack>& way) {
  if (!way) return;
  std::map<std::string, Bytes> files{{"belt.dat", Bytes(300)}, {"", Bytes(40)}};
  GoBack(*way, files, [](const std::string&) { return kMostBytes; });
  for (const auto& [name, contents] : files)
    Require(std::ssize(contents) <= kMostBytes, "more than a file may hold");
  if (way->size() > 16) return;  // more than a way may have
  Bytes packed;
  PackInto(packed, *way);
  const auto again = UnpackWay(packed);
  Require(again.has_value(), "a way that was packed is spoiled");
  Bytes twice;
  PackInto(twice, *again);
  Require(packed == twice, "a way comes back different");
}

/// What is put back is what was there, and what is added can be read again.
void PlayOn(Mornings& moments) {
  if (!moments.Keeps()) return;
  const std::size_t count = moments.Count();
  moments.Add({MomentKind::Click, kToday, 1, "click", {}}, {}, kToday);
  moments.DropLast();
  moments.Add({MomentKind::Named, kToday, 2, "mine", {}}, {}, kToday + std::chrono::days(1));
  const auto change = moments.Change();
  Require(change.has_value(), "a moment changes nothing");
  const Bytes after(change->After.begin(), change->After.end());
  Require(!Mornings(after).WasSpoiled(), "the moments spoil themselves");
  moments.PutBack();
  Require(moments.Count() == count && !moments.Change(), "what was put back is another");
}

void ReadLog(ByteSpan bytes) {
  CommandLog log(Bytes(bytes.begin(), bytes.end()));
  log.Add("click cmdnext\n");
  Require(log.Change().has_value() == log.Records(), "a command is lost, or one too many");
  log.PutBack();
  Require(!log.Change(), "a command that was put back stays");
}

void Read(ByteSpan bytes) {
  Input in(bytes);
  Mornings moments(AFile(in));
  for (std::size_t i = 0; i < moments.Count(); ++i) {
    GoTo(moments.Step(i));
    GoTo(moments.WayTo(i));
  }
  PlayOn(moments);
  ReadLog(bytes);
}

const Registered kMoments({.Name = "moments", .Run = Read, .Cases = 1500, .Most = 1024});

}  // namespace
}  // namespace grapplemont::fuzz
