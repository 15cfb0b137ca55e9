#include "editor/keeping.h"

#include "editor/consequences.h"
#include "editor/following.h"
#include "editor/recordfile.h"
#include "records/modWresCheck.h"
#include "records/severing.h"

namespace grapplemont {

namespace {

int FreeUid(const World& world, RecordKind kind) {
  switch (kind) {
    case RecordKind::Worker:
      return NextWorkerUid(world);
    case RecordKind::Promotion:
      return NextPromotionUid(world);
    case RecordKind::Staff:
      return NextStaffUid(world);
    case RecordKind::Network:
      return NextNetworkUid(world);
    case RecordKind::Sponsor:
      return NextSponsorUid(world);
    default:
      return 0;
  }
}

template <class T>
constexpr bool kHasUid = requires(T& record) {
  record.Uid;
};

// What a record owes to its own fields.

void Settle(Worker& worker) {
  if (worker.Gender) worker.Diva = false;
  if (worker.Unsackable) worker.ContractMonths = kNoEnd;
  if (worker.Employer != 0) return;
  worker.Unsackable = false;
  worker.ContractMonths = 0;
  worker.ContractType = "Non";
  worker.Stable = "None";
  worker.Split = "None";
  worker.Manager = 0;
  if (worker.Status == "Hom") worker.Status = "Nor";
  EndPosting(worker);
}

void Settle(Staff& staff) {
  if (staff.Unsackable || staff.Position == kOwner) staff.ContractMonths = kNoEnd;
  if (staff.Employer != 0) return;
  staff.Unsackable = false;
  staff.ContractMonths = 0;
  staff.ContractType = "Non";
}

void Settle(Promotion& promotion) {
  promotion.Active = true;
}

void Settle(Title& title) {
  if (title.Singles || title.Holder == 0) title.Partner = 0;
}

void Settle(Sponsor& sponsor) {
  if (sponsor.Promotion == 0) sponsor.ContractMonths = 0;
}

template <class T>
void Settle(T&) {}

/// Words that a name may not be: they stand for nobody, and for what is gone.
bool IsReserved(std::string_view name) {
  return name == "None" || name == kToBeDeleted;
}

/// Unique in its file, whatever else; other names are held to their promotion by the check.
bool MustBeFree(RecordKind kind, const Field& field) {
  return field.IsKey || (kind == RecordKind::Show && field.Name == "Name");
}

std::string WhyNotNamed(const World& world, RecordKind kind, int number, const std::byte* record) {
  for (const Field& field : LayoutOf(kind).Fields) {
    if (field.Kind != FieldKind::Text || (!field.IsKey && field.Name != "Name")) continue;
    const std::string text(FieldText(field, record));
    const bool isName = field.Name == "Name";
    if (text.empty()) return isName ? "It needs a name." : "It needs initials.";
    if (IsReserved(text)) return "Nobody can be called \"" + text + "\".";
    if (!MustBeFree(kind, field)) continue;
    for (int other = 1; other <= CountOf(world, kind); ++other)
      if (other != number && FieldText(field, RecordAt(world, kind, other)) == text)
        return isName ? "This name already exists!" : "These initials already exist!";
  }
  return {};
}

int Put(World& world, RecordKind kind, int number, const Bytes& bytes) {
  return WithRecords(world, kind, [&]<class T>(Records<T>& records) {
    T record = As<T>(bytes.data());
    Settle(record);
    if (number > 0) {
      records[number] = record;
      return number;
    }
    if constexpr (kHasUid<T>) record.Uid = FreeUid(world, kind);
    return records.NumberOf(records.Append(record));
  });
}

}  // namespace

std::string WhyNoMore(const World& world, RecordKind kind) {
  if (CountOf(world, kind) < LayoutOf(kind).Limit) return {};
  return LimitMessage(LayoutOf(kind));
}

Keeping KeepRecord(World& world, RecordKind kind, int number, Bytes record) {
  Keeping keeping;
  if (number == 0) keeping.WhyNot = WhyNoMore(world, kind);
  if (keeping.WhyNot.empty()) keeping.WhyNot = WhyNotNamed(world, kind, number, record.data());
  if (!keeping.WhyNot.empty()) return keeping;
  const FaultCounts before(world, FaultCounts::By::Record);
  Bytes old;
  if (number > 0) {
    const std::byte* was = RecordAt(world, kind, number);
    old.assign(was, was + LayoutOf(kind).Size);
  }
  keeping.Number = Put(world, kind, number, record);
  keeping.WhyNot = FollowChange(world, kind, old, keeping.Number, keeping.Also);
  if (!keeping.WhyNot.empty()) return keeping;
  const std::string_view file = LayoutOf(kind).File;
  for (Fault& fault : before.NewIn(world)) {
    const bool own = fault.File == file && fault.Record == keeping.Number;
    if (own || !IsConsequence(fault)) keeping.Wrong.push_back(std::move(fault));
  }
  if (keeping.Done()) MendConsequences(world, before, keeping.Also);
  return keeping;
}

std::vector<std::string> DeleteRecord(World& world, RecordKind kind, int number) {
  const FaultCounts before(world, FaultCounts::By::What);
  std::vector<std::string> also;
  Forget(world, kind, number, also);
  MendConsequences(world, before, also);
  return also;
}

}  // namespace grapplemont
