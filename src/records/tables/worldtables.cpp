#include "records/tables/worldtables.h"

#include <algorithm>
#include <cctype>

#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/tables/tablenames.h"
#include "records/tables/tablereader.h"

namespace grapplemont {

namespace {

// Of all tables together.
constexpr std::size_t kMostMistakes = 500;

bool IsTable(std::string_view name) {
  return name == kNotesTable || FindTableKind(name) != nullptr;
}

/// From the tables' texts to a world, step by step; what is wrong is gathered on the way.
class Builder {
 public:
  explicit Builder(const Tables& tables)
      : tables_(tables), isGame_(tables.contains(std::string(kGameTable))) {}

  Building Build() {
    FindStrangers();
    const bool namesAll = ReadAll();
    if (namesAll) Connect();
    if (!HasMistakes()) Load();
    if (!HasMistakes()) FindHomelessNames();
    if (!HasMistakes()) Check();
    return Result();
  }

 private:
  void FindStrangers() {
    std::vector<std::string_view> names;
    for (const TableKind& kind : TableKinds()) names.push_back(kind.Name);
    for (const auto& [name, text] : tables_)
      if (!IsTable(name) && name.ends_with(".csv"))
        general_.Note(name, 0, {}, "is not a table of a world" + DidYouMean(name, names));
  }

  /// False when some record is not known by its name.
  bool ReadAll() {
    bool namesAll = true;
    for (const TableKind& kind : TableKinds()) {
      const auto text = tables_.find(std::string(kind.Name));
      if (text != tables_.end()) {
        read_.push_back(ReadTableOf(kind, text->second));
        namesAll = namesAll && read_.back().NamesAll;
      } else if (!kind.OfGame && !isGame_) {
        general_.Note(kind.Name, 0, {}, "is missing; a table without records has only its header");
        namesAll = false;
      }
    }
    return namesAll;
  }

  ReadTable* Read(const RecordLayout& layout) {
    for (ReadTable& table : read_)
      if (table.Kind->Layout == &layout) return &table;
    return nullptr;
  }

  void Connect() {
    const TableNames names([&](const RecordLayout& layout) -> ByteSpan {
      const ReadTable* table = Read(layout);
      return table ? ByteSpan(table->Records) : ByteSpan();
    });
    for (ReadTable& table : read_) {
      for (const WaitingCell& cell : table.Waiting) {
        std::byte* record = table.Record(cell.Row);
        if (names.Take(cell.Place, cell.Cell, record, isGame_)) continue;
        table.Note(
            cell.Row, cell.Place.Name(),
            table.Mistakes.IsFull() ? std::string() : names.WhyNot(cell.Place, cell.Cell, record));
      }
    }
  }

  void Load() {
    for (Table* table : world_.Tables())
      if (const RecordLayout* layout = table->Layout())
        if (const ReadTable* read = Read(*layout)) table->Load(read->Records);
    LoadNotes();
    world_.MarkCommitted();
  }

  void LoadNotes() {
    const auto notes = tables_.find(std::string(kNotesTable));
    if (notes == tables_.end()) return;
    const auto text = FromUtf8(notes->second);
    const auto note = [&](std::string_view what) { general_.Note(kNotesTable, 0, {}, what); };
    if (!text)
      note("has the letter " + FirstForeignLetter(notes->second) +
           ", which the game cannot hold: it knows those of Windows-1252");
    else if (static_cast<std::int64_t>(text->size()) > world_.Notes().MaxBytes())
      note("is longer than " + std::to_string(world_.Notes().MaxBytes()) + " letters");
    else
      world_.Notes().Set(*text);
  }

  /// Stables and splits are kept as names, so that a wrong one would only be found by the check,
  /// which knows no better name.
  void FindHomelessNames() {
    std::multimap<int, std::string> stables;
    for (const Stable& stable : world_.Stables())
      stables.emplace(stable.Owner, ToUtf8(stable.Name));
    for (const Worker& worker : world_.Workers()) {
      const Promotion* employer = world_.FindPromotion(worker.Employer);
      if (!employer) continue;
      std::vector<std::string> own, splits;
      for (auto [at, end] = stables.equal_range(employer->Uid); at != end; ++at)
        own.push_back(at->second);
      for (const auto& split : employer->Split)
        if (!(split == "None")) splits.push_back(ToUtf8(split));
      FindHomeless(worker, "Stable", "stable", ToUtf8(worker.Stable), own);
      FindHomeless(worker, "Split", "part of its roster", ToUtf8(worker.Split), splits);
    }
  }

  void FindHomeless(const Worker& worker, const char* column, const std::string& what,
                    const std::string& name, const std::vector<std::string>& names) {
    if (name.empty() || name == "None") return;
    if (std::find(names.begin(), names.end(), name) != names.end()) return;
    const std::string employer = world_.FindPromotion(worker.Employer)->Initials.Str();
    const auto row = static_cast<std::size_t>(world_.Workers().NumberOf(worker) - 1);
    Read(LayoutOf<Worker>())
        ->Note(row, column,
               ToUtf8(employer) + " has no " + what + " of the name " + name +
                   DidYouMean(name, {names.begin(), names.end()}));
  }

  void Check() {
    CheckWorld(world_, [this](Fault&& fault) { Translate(fault); });
  }

  /// A fault of a record as a mistake of its line.
  void Translate(const Fault& fault) {
    const auto table = std::find_if(read_.begin(), read_.end(), [&](const ReadTable& read) {
      return read.Kind->Layout->File == fault.File;
    });
    if (table == read_.end()) {
      general_.Note(fault.File, 0, fault.Field, ToUtf8(fault.What));
    } else if (fault.Record == 0) {
      general_.Note(table->Kind->Name, 0, fault.Field, ToUtf8(fault.What));
    } else {
      const std::string who = fault.Who.empty() ? "" : ToUtf8(fault.Who) + " ";
      table->Note(static_cast<std::size_t>(fault.Record - 1), fault.Field,
                  who + ToUtf8(ByLines(fault.What, *table)));
    }
  }

  /// A fault that names a further record of its file names its line instead.
  static std::string ByLines(const std::string& what, const ReadTable& table) {
    constexpr std::string_view kRecord = "record ";
    const auto at = what.find(kRecord);
    if (at == std::string::npos) return what;
    const std::size_t start = at + kRecord.size();
    std::size_t end = start;
    while (end < what.size() && std::isdigit(static_cast<unsigned char>(what[end]))) ++end;
    if (end == start || end - start > 6) return what;
    const auto number = static_cast<std::size_t>(std::stoi(what.substr(start, end - start)));
    if (number < 1 || number > table.Count()) return what;
    return what.substr(0, at) + "line " + std::to_string(table.Lines[number - 1]) +
           what.substr(end);
  }

  bool HasMistakes() const {
    return general_.Count > 0 || std::any_of(read_.begin(), read_.end(),
                                             [](auto& table) { return table.Mistakes.Count > 0; });
  }

  Building Result() {
    Building building;
    const auto take = [&](TableMistakes& mistakes) {
      std::move(mistakes.First.begin(), mistakes.First.end(),
                std::back_inserter(building.Mistakes));
      building.MistakeCount += mistakes.Count;
    };
    take(general_);
    for (ReadTable& table : read_) {
      std::stable_sort(table.Mistakes.First.begin(), table.Mistakes.First.end(),
                       [](const Mistake& a, const Mistake& b) { return a.Line < b.Line; });
      take(table.Mistakes);
    }
    if (building.Mistakes.size() > kMostMistakes) building.Mistakes.resize(kMostMistakes);
    if (building.MistakeCount == 0) building.Made = std::move(world_);
    return building;
  }

  const Tables& tables_;
  bool isGame_;
  std::vector<ReadTable> read_;
  TableMistakes general_;
  World world_;
};

/// One record file as a table.
class TableWriter {
 public:
  TableWriter(const TableKind& kind, ByteSpan records, const TableNames& names)
      : kind_(kind), records_(records), names_(names) {}

  std::string Write() const {
    const std::vector<Column> columns = ColumnsWorthWriting();
    std::vector<std::string> header;
    for (const Column& column : columns) header.push_back(column.Name());
    std::string text = CsvLine(header);
    for (std::size_t row = 0; row < Count(); ++row) text += LineOf(columns, row);
    return text;
  }

 private:
  std::size_t Count() const {
    return records_.size() / static_cast<std::size_t>(kind_.Layout->Size);
  }
  const std::byte* Record(std::size_t row) const {
    return records_.data() + row * static_cast<std::size_t>(kind_.Layout->Size);
  }

  std::string Cell(const Column& column, std::size_t row) const {
    return IsReference(*column.Of) ? names_.CellOf(column, Record(row))
                                   : CellOf(kind_, column, Record(row));
  }

  std::string LineOf(const std::vector<Column>& columns, std::size_t row) const {
    std::vector<std::string> cells;
    for (const Column& column : columns) cells.push_back(Cell(column, row));
    // A line of empty cells would be passed over: an empty text is written as one.
    if (std::all_of(cells.begin(), cells.end(), [](auto& cell) { return cell.empty(); }))
      *std::find_if(cells.begin(), cells.end(), [&](const std::string& cell) {
        return columns[static_cast<std::size_t>(&cell - cells.data())].Of->Kind == FieldKind::Text;
      }) = "\\";
    return CsvLine(cells);
  }

  /// Records that number themselves in their order, as the reader would.
  bool AreNumberedInOrder(const Column& uid) const {
    for (std::size_t row = 0; row < Count(); ++row)
      if (FieldNumber(*uid.Of, Record(row)) != static_cast<long long>(row) + 1) return false;
    return true;
  }

  bool HoldsOnlyDefaults(const Column& column) const {
    const ByteSpan wanted = BytesAt(column, kind_.Default.data());
    for (std::size_t row = 0; row < Count(); ++row)
      if (!std::equal(wanted.begin(), wanted.end(), BytesAt(column, Record(row)).begin()))
        return false;
    return true;
  }

  /// The column that every table has: the name of its records; where they have none, a number,
  /// whose cells are never empty.
  static const Column& Anchor(const std::vector<Column>& columns) {
    const auto first = [&](auto fits) {
      return std::find_if(columns.begin(), columns.end(), fits);
    };
    const auto text =
        first([](const Column& column) { return column.Of->Kind == FieldKind::Text; });
    if (text != columns.end()) return *text;
    const auto number = first([](const Column& column) {
      return column.Of->Kind != FieldKind::Date && !IsReference(*column.Of) && !IsUid(*column.Of);
    });
    return number == columns.end() ? columns.front() : *number;
  }

  std::vector<Column> ColumnsWorthWriting() const {
    const std::vector<Column> all = ColumnsOfTable(kind_);
    const Column& anchor = Anchor(all);
    std::vector<Column> columns;
    for (const Column& column : all) {
      const bool worth = IsUid(*column.Of)
                             ? !AreNumberedInOrder(column)
                             : &column == &anchor || Count() == 0 || !HasDefault(kind_, column) ||
                                   !HoldsOnlyDefaults(column);
      if (worth) columns.push_back(column);
    }
    return columns;
  }

  const TableKind& kind_;
  ByteSpan records_;
  const TableNames& names_;
};

}  // namespace

Building BuildWorld(const Tables& tables) {
  return Builder(tables).Build();
}

TableNames NamesIn(const World& world) {
  return TableNames([files = world.Tables()](const RecordLayout& layout) {
    const auto found = std::find_if(files.begin(), files.end(),
                                    [&](const Table* file) { return file->Layout() == &layout; });
    return (*found)->Contents();
  });
}

Tables ExportWorld(const World& world) {
  const auto files = world.Tables();
  const TableNames names = NamesIn(world);
  Tables tables;
  for (const Table* file : files) {
    if (!file->Exists()) continue;
    if (const RecordLayout* layout = file->Layout()) {
      const TableKind& kind = TableKindOf(*layout);
      tables.emplace(kind.Name, TableWriter(kind, file->Contents(), names).Write());
    } else {
      tables.emplace(kNotesTable, ToUtf8(world.Notes().Text()));
    }
  }
  return tables;
}

}  // namespace grapplemont
