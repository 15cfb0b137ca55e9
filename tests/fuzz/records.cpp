#include "fuzz/livingworld.h"
#include "fuzz/recordchange.h"
#include "fuzz/target.h"

// One file of records alone; the first byte says which.

namespace grapplemont::fuzz {
namespace {

World& Alone() {
  static World world;
  return world;
}

const Table& TableOf(int number) {
  const auto tables = std::as_const(Alone()).Tables();
  return *tables[static_cast<std::size_t>(number) % tables.size()];
}

void Read(ByteSpan bytes) {
  Input in(bytes);
  const std::string name(TableOf(in.Byte()).File());
  const ByteSpan file = in.Rest();
  LoadAndLive(Alone(), {{name, Bytes(file.begin(), file.end())}});
}

void Change(Bytes& bytes, std::size_t most, std::uint64_t seed) {
  test::Dice dice(seed);
  if (bytes.empty()) bytes.push_back(dice.Byte());
  const RecordLayout* layout = TableOf(std::to_integer<int>(bytes[0])).Layout();
  if (!layout) return;
  Bytes file(bytes.begin() + 1, bytes.end());
  ChangeRecords(dice, *layout, file, most);
  bytes.resize(1);
  bytes.insert(bytes.end(), file.begin(), file.end());
}

const Registered kRecords({.Name = "records", .Run = Read, .Change = Change, .Cases = 500});

}  // namespace
}  // namespace grapplemont::fuzz
