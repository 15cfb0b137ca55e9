#include "records/tables/tablenames.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <optional>

#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/world.h"

namespace grapplemont {

namespace {

struct Target {
  Refers To;
  const RecordLayout& (*Layout)();
  std::string_view Key;
  std::string_view What;
  std::string_view Called;
};
constexpr std::array<Target, 5> kTargets = {
    {{Refers::Worker, LayoutOf<Worker>, "Name", "worker", "name"},
     {Refers::Promotion, LayoutOf<Promotion>, "Initials", "promotion", "initials"},
     {Refers::Staff, LayoutOf<Staff>, "Name", "member of staff", "name"},
     {Refers::Network, LayoutOf<Network>, "Name", "network", "name"},
     {Refers::Sponsor, LayoutOf<Sponsor>, "Name", "sponsor", "name"}}};

constexpr char kNumberMark = '#';
/// Names that mistakes may be compared with in all.
constexpr std::size_t kMostCompared = 100'000;

const Target& TargetOf(Refers to) {
  return *std::find_if(kTargets.begin(), kTargets.end(),
                       [&](const Target& target) { return target.To == to; });
}

const Field& FieldOf(const RecordLayout& layout, std::string_view name) {
  return *std::find_if(layout.Fields.begin(), layout.Fields.end(),
                       [&](const Field& field) { return field.Name == name; });
}

/// A commentator is a worker or staff, as their show says.
Refers Resolved(const Field& field, const std::byte* record) {
  if (field.To != Refers::Commentator) return field.To;
  return reinterpret_cast<const Show*>(record)->ColourIsWorker ? Refers::Worker : Refers::Staff;
}

std::optional<int> NumberOf(std::string_view cell) {
  std::int16_t number = 0;
  const auto [end, fault] = std::from_chars(cell.data() + 1, cell.data() + cell.size(), number);
  if (fault != std::errc() || end != cell.data() + cell.size()) return std::nullopt;
  return number;
}

/// Whether a cell of this name is read as a name.
bool ReadsAsName(std::string_view name) {
  return !name.empty() && name.front() != kNumberMark && name != kNoneCell;
}

}  // namespace

bool IsReference(const Field& field) {
  return field.Kind != FieldKind::Text &&
         (field.To == Refers::Commentator ||
          std::any_of(kTargets.begin(), kTargets.end(),
                      [&](const Target& target) { return target.To == field.To; }));
}

TableNames::TableNames(const std::function<ByteSpan(const RecordLayout&)>& recordsOf) {
  for (const Target& target : kTargets) {
    const RecordLayout& layout = target.Layout();
    const Field& uidField = FieldOf(layout, "Uid");
    const Field& nameField = FieldOf(layout, target.Key);
    const ByteSpan records = recordsOf(layout);
    const auto size = static_cast<std::size_t>(layout.Size);
    Index& index = indices_[target.To];
    for (std::size_t at = 0; at + size <= records.size(); at += size) {
      const std::byte* record = records.data() + at;
      const int uid = static_cast<int>(FieldNumber(uidField, record));
      const std::string name = ToUtf8(FieldText(nameField, record));
      index.Uids.try_emplace(name, uid);
      index.Names.try_emplace(uid, ReadsAsName(name) ? name : std::string());
    }
  }
}

const TableNames::Index& TableNames::IndexOf(const Field& field, const std::byte* record) const {
  return indices_.at(Resolved(field, record));
}

std::string TableNames::CellOf(const Column& column, const std::byte* record) const {
  const Field& field = *column.Of;
  const int uid = static_cast<int>(FieldNumber(field, record, column.Index));
  if (uid == 0) return {};
  if (field.MayBeNone && uid == kNoEnd) return std::string(kNoneCell);
  const Index& index = IndexOf(field, record);
  const auto name = index.Names.find(uid);
  const bool byName =
      name != index.Names.end() && !name->second.empty() && index.Uids.at(name->second) == uid;
  return byName ? name->second : kNumberMark + std::to_string(uid);
}

bool TableNames::Take(const Column& column, std::string_view cell, std::byte* record,
                      bool mayBeGone) const {
  const Field& field = *column.Of;
  cell = detail::Trimmed(cell);
  const auto put = [&](int uid) {
    SetFieldNumber(field, record, column.Index, uid);
    return true;
  };
  if (cell.empty()) return put(0);
  if (field.MayBeNone && cell == kNoneCell) return put(kNoEnd);
  const Index& index = IndexOf(field, record);
  if (cell.front() == kNumberMark) {
    const auto uid = NumberOf(cell);
    return uid && (mayBeGone || index.Names.contains(*uid)) && put(*uid);
  }
  const auto found = index.Uids.find(std::string(cell));
  return found != index.Uids.end() && put(found->second);
}

std::string TableNames::WhyNot(const Column& column, std::string_view cell,
                               const std::byte* record) const {
  cell = detail::Trimmed(cell);
  if (cell.front() != kNumberMark) return NobodyOf(*column.Of, cell, record);
  const auto uid = NumberOf(cell);
  if (!uid) return QuotedCell(cell) + " is not the number of a record; one is written like #17";
  return "there is no " + std::string(TargetOf(Resolved(*column.Of, record)).What) +
         " of the number " + std::to_string(*uid);
}

std::string TableNames::NobodyOf(const Field& field, std::string_view cell,
                                 const std::byte* record) const {
  const Refers to = Resolved(field, record);
  const Target& target = TargetOf(to);
  std::string what = "no " + std::string(target.What) + " has the " + std::string(target.Called) +
                     " " + ShortCell(cell);
  if (field.To == Refers::Commentator) {
    const Refers other = to == Refers::Worker ? Refers::Staff : Refers::Worker;
    if (indices_.at(other).Uids.contains(std::string(cell)))
      return what + ", but a " + std::string(TargetOf(other).What) +
             " has; ColourIsWorker tells which is meant";
  }
  // Whoever has many names wrong has not mistyped them.
  const auto& uids = indices_.at(to).Uids;
  if (compared_ > kMostCompared) return what;
  compared_ += uids.size();
  std::vector<std::string_view> names;
  for (const auto& [name, uid] : uids)
    if (!name.empty()) names.push_back(name);
  std::sort(names.begin(), names.end());
  return what + DidYouMean(cell, names);
}

}  // namespace grapplemont
