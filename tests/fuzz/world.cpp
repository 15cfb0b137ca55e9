#include <algorithm>
#include <iterator>

#include "fuzz/livingworld.h"
#include "fuzz/recordchange.h"
#include "fuzz/target.h"

// All files of a world, changed step by step from those of a good game.

namespace grapplemont::fuzz {
namespace {

constexpr int kMostSteps = 64;

/// One of the files that there are; nullptr where there are none left.
Bytes* AnyFile(Input& in, Files& files, std::string& name) {
  if (files.empty()) return nullptr;
  const auto file = std::next(files.begin(), static_cast<std::ptrdiff_t>(in.Below(files.size())));
  name = file->first;
  return &file->second;
}

const RecordLayout* LayoutOfFile(std::string_view name) {
  for (const Table* table : SampleGame().Tables())
    if (table->File() == name) return table->Layout();
  return nullptr;
}

void ChangeFile(Input& in, const RecordLayout* layout, Bytes& file, int how) {
  const std::size_t at = in.Below(file.size() + 1);
  const auto from = file.begin() + static_cast<std::ptrdiff_t>(at);
  if (how == 0 && layout && std::ssize(file) >= layout->Size) {
    test::Dice dice(static_cast<std::uint64_t>(in.Below(1 << 24)));
    return ChangeRecords(dice, *layout, file, file.size() + 4096);
  }
  const ByteSpan put = in.Take(in.Below(64));
  if (how <= 1) {
    std::ranges::copy(put.first(std::min(put.size(), file.size() - at)), from);
  } else if (how == 2) {
    file.insert(from, put.begin(), put.end());
  } else if (how == 3) {
    file.erase(from, file.end());
  } else {
    const Bytes whole = file;
    file.insert(file.end(), whole.begin(), whole.end());
  }
}

void Step(Input& in, Files& files) {
  const auto how = static_cast<int>(in.Below(16));
  std::string name;
  if (how == 15) {  // a file that the game may lack
    const auto tables = SampleGame().Tables();
    const ByteSpan put = in.Piece();
    files[std::string(tables[in.Below(tables.size())]->File())] = {put.begin(), put.end()};
  } else if (Bytes* file = AnyFile(in, files, name); file && how == 14) {
    files.erase(name);
  } else if (file && file->size() < (1 << 14)) {
    ChangeFile(in, LayoutOfFile(name), *file, how < 10 ? 0 : how - 9);
  }
}

void Read(ByteSpan bytes) {
  static World world;
  Files files = SampleFiles();
  Input in(bytes);
  for (int left = kMostSteps; left > 0 && !in.Empty(); --left) Step(in, files);
  LoadAndLive(world, files);
}

const Registered kWorld({.Name = "world", .Run = Read, .Cases = 150, .Most = 512});

}  // namespace
}  // namespace grapplemont::fuzz
