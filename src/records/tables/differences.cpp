#include "records/tables/differences.h"

#include <algorithm>
#include <optional>

#include "records/fields/charset.h"
#include "records/tables/worldtables.h"

namespace grapplemont {

namespace {

bool SameBytes(ByteSpan a, ByteSpan b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end());
}

/// One of the two worlds, with the names of its records once they are asked for.
class Side {
 public:
  explicit Side(const World& world) : world_(world), tables_(world.Tables()) {}
  const Table& At(std::size_t table) const { return *tables_[table]; }

  std::string Cell(const TableKind& kind, const Column& column, const std::byte* record) {
    if (!IsReference(*column.Of)) return CellOf(kind, column, record);
    if (!names_) names_.emplace(NamesIn(world_));
    return names_->CellOf(column, record);
  }

 private:
  const World& world_;
  std::array<const Table*, World::kTables> tables_;
  std::optional<TableNames> names_;
};

class Comparison {
 public:
  Comparison(const World& world, const World& before, std::size_t most)
      : is_(world), was_(before), most_(most) {}

  std::vector<Difference> Run() {
    for (std::size_t i = 0; i < World::kTables && !Full(); ++i) Compare(is_.At(i), was_.At(i));
    return std::move(found_);
  }

 private:
  bool Full() const { return found_.size() >= most_; }
  void Add(Difference difference) {
    if (!Full()) found_.push_back(std::move(difference));
  }

  void Compare(const Table& is, const Table& was) {
    if (is.Exists() != was.Exists())
      Add({is.File(), 0, "", "", std::string(was.Exists() ? kThere : kMissing),
           std::string(is.Exists() ? kThere : kMissing)});
    const ByteSpan now = is.Contents(), then = was.Contents();
    if (SameBytes(now, then)) return;
    if (is.Layout()) return CompareRecords(*is.Layout(), now, then);
    const auto text = [](ByteSpan bytes) {
      return ToUtf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    };
    Add({is.File(), 0, "", "Text", text(then), text(now)});
  }

  void CompareRecords(const RecordLayout& layout, ByteSpan now, ByteSpan then) {
    const auto size = static_cast<std::size_t>(layout.Size);
    const std::size_t count = now.size() / size, before = then.size() / size;
    kind_ = &TableKindOf(layout);
    columns_ = ColumnsOfTable(*kind_);
    for (std::size_t i = 0; i < std::max(count, before) && !Full(); ++i)
      CompareRecord(static_cast<int>(i) + 1, i < count ? now.data() + i * size : nullptr,
                    i < before ? then.data() + i * size : nullptr);
    if (!SameBytes(now.subspan(count * size), then.subspan(before * size)))
      Add({layout.File, 0, "", "Bytes behind the last record", std::to_string(then.size() % size),
           std::to_string(now.size() % size)});
  }

  void CompareRecord(int number, const std::byte* now, const std::byte* then) {
    const std::string_view file = kind_->Layout->File;
    const std::string name = NameOf(now ? now : then);
    if (!now || !then)
      Add({file, number, name, "", std::string(then ? kThere : kMissing),
           std::string(now ? kThere : kMissing)});
    if (!now) return;
    const std::byte* base = then ? then : kind_->Default.data();
    for (const Column& column : columns_) {
      if (SameBytes(BytesAt(column, now), BytesAt(column, base))) continue;
      Add({file, number, name, column.Name(), then ? was_.Cell(*kind_, column, then) : "",
           is_.Cell(*kind_, column, now)});
    }
  }

  std::string NameOf(const std::byte* record) const {
    for (const Column& column : columns_)
      if (column.Of->Name == "Name") return CellOf(*kind_, column, record);
    return {};
  }

  Side is_, was_;
  std::size_t most_;
  std::vector<Difference> found_;
  const TableKind* kind_ = nullptr;
  std::vector<Column> columns_;
};

}  // namespace

std::string Difference::Line() const {
  std::string line(File);
  if (Record != 0) line += ", record " + std::to_string(Record);
  for (const std::string& part : {Name, Field})
    if (!part.empty()) line += ", " + part;
  return line + ": was " + Was + ", is " + Is;
}

std::vector<Difference> Differences(const World& world, const World& before, std::size_t most) {
  return Comparison(world, before, most).Run();
}

std::string FirstDifference(const World& world, const World& expected) {
  const auto first = Differences(world, expected, 1);
  return first.empty() ? std::string() : first.front().Line();
}

}  // namespace grapplemont
