#include "records/world.h"

#include <algorithm>
#include <functional>

#include "records/fields/charset.h"
#include "records/store/datastep.h"

namespace grapplemont {

World::World(std::unique_ptr<Draws> chance, std::unique_ptr<Draws> prose,
             std::unique_ptr<Draws> life)
    : chance_(std::move(chance)), prose_(std::move(prose)), life_(std::move(life)) {}
World::World(World&&) noexcept = default;
World& World::operator=(World&&) noexcept = default;
World::~World() = default;

void World::ThrowNoGame() {
  throw WorldFault("This folder has no gameinfo.dat: no game is played in it.");
}

Promotion& World::Player() {
  return const_cast<Promotion&>(std::as_const(*this).Player());
}

const Promotion& World::Player() const {
  const Promotion* player = FindPromotion(Game().PlayerPromotion);
  if (!player)
    throw WorldFault("gameinfo.dat, record 1, PlayerPromotion: promos.dat has no promotion " +
                     std::to_string(Game().PlayerPromotion) +
                     ". Put back the files of this game, or start a new one.");
  return *player;
}

SeededDraws World::Fate(std::string_view purpose, std::initializer_list<int> subject) const {
  // FNV-1a, stirred at the end: neighbours by uid or by day have nothing in common.
  std::uint64_t seed = 0xCBF29CE484222325;
  const auto add = [&seed](std::uint64_t value) { seed = (seed ^ value) * 0x100000001B3; };
  add(Keys().Count() > 0 ? static_cast<std::uint32_t>(int(Keys()[1].Key)) : 0);
  for (const char letter : purpose) add(static_cast<unsigned char>(letter));
  for (const int number : subject) add(static_cast<std::uint32_t>(number));
  seed = (seed ^ (seed >> 30)) * 0xBF58476D1CE4E5B9;
  return SeededDraws(seed ^ (seed >> 31));
}

std::array<Table*, World::kTables> World::Tables() {
  return std::apply([](auto&... table) { return std::array<Table*, kTables>{&table...}; }, tables_);
}

std::array<const Table*, World::kTables> World::Tables() const {
  std::array<const Table*, kTables> tables{};
  const auto own = const_cast<World*>(this)->Tables();
  for (std::size_t i = 0; i < own.size(); ++i) tables[i] = own[i];
  return tables;
}

void World::Load(const std::map<std::string, Bytes>& files) {
  // An old guess that still holds would hide an earlier record of the same uid.
  std::apply([](auto&... index) { (index.Numbers.clear(), ...); }, indices_);
  for (Table* table : Tables()) {
    const auto file = files.find(std::string(table->File()));
    if (file == files.end()) {
      table->Remove();
    } else {
      table->Load(file->second);
    }
    table->MarkCommitted();
  }
}

void World::CopyFrom(const World& other) {
  std::apply([](auto&... index) { (index.Numbers.clear(), ...); }, indices_);
  const auto copy = [&]<class... Kept>(Kept&... table) {
    (table.CopyFrom(std::get<Kept>(other.tables_)), ...);
  };
  std::apply(copy, tables_);
  Session = other.Session;
  Session.Reigns.reset();  // its reigns count their changes by themselves
}

std::vector<FileChange> World::Changes() const {
  std::vector<FileChange> changes;
  for (const Table* table : Tables())
    if (auto change = table->Difference()) changes.push_back(*std::move(change));
  return changes;
}

void World::MarkCommitted(const std::vector<FileChange>& changes) {
  for (Table* table : Tables()) {
    const auto change = std::ranges::find(changes, table->File(), &FileChange::Name);
    table->MarkCommitted(change == changes.end() ? std::vector<JournalRange>() : change->Ranges);
  }
  committedSession_ = Session;
}

void World::Rollback() {
  for (Table* table : Tables())
    if (table->Changed()) table->Rollback();
  Session = committedSession_;
}

std::string World::Explain(const FieldOverflow& fault) const {
  const auto* at = static_cast<const std::byte*>(fault.Field());
  for (const Table* table : Tables()) {
    const ByteSpan bytes = table->RecordBytes();
    const RecordLayout* layout = table->Layout();
    const auto before = std::less<const std::byte*>();
    if (bytes.empty() || before(at, bytes.data()) || !before(at, bytes.data() + bytes.size()))
      continue;
    const auto offset = static_cast<int>(at - bytes.data());
    const int number = offset / layout->Size + 1;
    for (const Field& field : layout->Fields)
      for (int i = 0; i < field.Count; ++i)
        if (field.Offset + i * field.Stride == offset % layout->Size)
          return std::string(layout->File) + ", record " + std::to_string(number) + ", " +
                 FieldName(field, i) + ": " + fault.what();
  }
  return fault.what();
}

std::map<std::string, Bytes> ReadWorldFiles(Disk& disk, const std::string& folder) {
  std::map<std::string, Bytes> files;
  for (const KnownFile& known : KnownFiles()) {
    const std::string path = folder + "/" + known.Name;
    const Disk::Kind kind = disk.Look(path);
    if (kind == Disk::Kind::Nothing) continue;
    if (kind != Disk::Kind::File)
      throw WorldFault(ForScreen(path) + " is not a plain file. Put the real file in its place.");
    if (known.Fleeting) {
      files.emplace(known.Name, ReadStart(disk, path, known.MostBytes()));
      continue;
    }
    auto bytes = ReadWithin(disk, path, known.MaxBytes);
    if (!bytes)
      throw WorldFault(ForScreen(path) + " is longer than its most of " +
                       std::to_string(known.MaxBytes) + " bytes. Put back a file of this game.");
    files.emplace(known.Name, *std::move(bytes));
  }
  if (const auto step = StandingStep(disk, folder)) ApplyTo(files, *step);
  return files;
}

std::vector<NewFile> FilesOf(const World& world) {
  std::vector<NewFile> files;
  for (const Table* table : world.Tables()) {
    if (!table->Exists()) continue;
    const ByteSpan bytes = table->Contents();
    files.push_back({std::string(table->File()), Bytes(bytes.begin(), bytes.end())});
  }
  return files;
}

}  // namespace grapplemont
