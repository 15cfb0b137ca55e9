#include "editor/keeping.h"

#include <algorithm>
#include <span>
#include <stdexcept>

#include "editor/following.h"
#include "editor/recordfile.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "records/tables/tablekinds.h"

namespace grapplemont {

const RecordLayout& LayoutOf(RecordKind kind) {
  static const World empty;
  return WithRecords(
      empty, kind, []<class T>(const Records<T>&) -> const RecordLayout& { return LayoutOf<T>(); });
}

int CountOf(const World& world, RecordKind kind) {
  return WithRecords(world, kind, [](const auto& records) { return records.Count(); });
}

const std::byte* RecordAt(const World& world, RecordKind kind, int number) {
  return WithRecords(world, kind, [number](const auto& records) {
    return reinterpret_cast<const std::byte*>(&records[number]);
  });
}

std::byte* RecordAt(World& world, RecordKind kind, int number) {
  return WithRecords(world, kind, [number](auto& records) {
    return reinterpret_cast<std::byte*>(&records[number]);
  });
}

FieldPlace FieldNamed(RecordKind kind, std::string_view name) {
  for (const Field& field : LayoutOf(kind).Fields)
    for (int index = 0; index < field.Count; ++index)
      if (FieldName(field, index) == name) return {&field, index};
  throw std::out_of_range(std::string(LayoutOf(kind).Name) + " has no field " + std::string(name));
}

std::string NameOf(RecordKind kind, const std::byte* record) {
  const FieldPlace name = FieldNamed(kind, "Name");
  std::string text(FieldText(*name.Of, record, name.Index));
  if (kind == RecordKind::Promotion) text += " (" + As<Promotion>(record).Initials.Str() + ")";
  return text;
}

namespace {

/// By kind; nobody goes by the uid of the others.
constexpr int (*kNextUid[])(const World&) = {
    NextWorkerUid, NextPromotionUid, NextStaffUid,   nullptr,        nullptr,
    nullptr,       nullptr,          NextNetworkUid, NextSponsorUid, nullptr};

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

/// A name, or a promotion's initials.
bool IsName(const Field& field) {
  return field.Kind == FieldKind::Text && (field.IsKey || field.Name == "Name");
}

/// Unique in its file, whatever else; other names are held to their promotion by the check.
bool MustBeFree(RecordKind kind, const Field& field) {
  return field.IsKey || (kind == RecordKind::Show && field.Name == "Name");
}

std::string WhyNotNamed(const World& world, RecordKind kind, int number, const std::byte* record) {
  for (const Field& field : LayoutOf(kind).Fields) {
    if (!IsName(field)) continue;
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
    if constexpr (requires { record.Uid; })
      record.Uid = kNextUid[static_cast<std::size_t>(kind)](world);
    return records.NumberOf(records.Append(record));
  });
}

/// What a field of a new record holds, where the table's default is not a sensible beginning.
struct Beginning {
  std::string_view Field;
  int Number;
  std::string_view Text = {};  // of a text field
};
constexpr int kYes = -1;
constexpr Beginning kOfWorker[] = {
    {"Gender", kYes}, {"Age", 25},       {"Weight", 0, "H"},     {"Position", kOpener},
    {"Brawl", 50},    {"Technical", 50}, {"Speed", 50},          {"Stiff", 50},
    {"Sell", 50},     {"Charisma", 50},  {"Attitude", 50},       {"Behaviour", 50},
    {"Over", 30},     {"Speaks", kYes},  {"Disposition", 0, "F"}};
constexpr Beginning kOfPromotion[] = {{"Size", kBackyard}, {"TicketPrice", 5},
                                      {"Image", 50},       {"Production", 5},
                                      {"Risk", 50},        {"MeetingDay", 0, "Monday"}};
constexpr Beginning kOfStaff[] = {{"Gender", kYes},         {"BirthMonth", 1}, {"Age", 35},
                                  {"Position", kAnnouncer}, {"Talent", 50},    {"Backstage", 50}};
constexpr Beginning kOfTeam[] = {{"Experience", 50}};
constexpr Beginning kOfTitle[] = {{"Singles", kYes}, {"Image", 50}};
constexpr Beginning kOfShow[] = {{"Day", 0, "Monday"}, {"Slot", 0, "P"}};
constexpr Beginning kOfNetwork[] = {
    {"EarlyAudience", 100}, {"PrimeAudience", 100}, {"LateAudience", 100}, {"GraveAudience", 100},
    {"EarlyRisk", 50},      {"PrimeRisk", 50},      {"LateRisk", 50},      {"GraveRisk", 50}};
constexpr Beginning kOfSponsor[] = {{"Morality", 50}, {"Pay", 10}};
constexpr Beginning kOfEvent[] = {{"Month", 1}, {"Type", 4}};
constexpr std::span<const Beginning> kBeginnings[] = {
    kOfWorker, kOfPromotion, kOfStaff,   kOfTeam,    {},
    kOfTitle,  kOfShow,      kOfNetwork, kOfSponsor, kOfEvent};

void Part(Promotion& promotion) {
  promotion.Commissioner = 0;
  promotion.HeadTrainer = 0;
  promotion.DevBooker = 0;
  promotion.Sponsor = {};
}

void Part(Staff& staff) {
  if (staff.Position == kOwner) staff.Employer = 0;
}

void Part(Sponsor& sponsor) {
  sponsor.Promotion = 0;
  sponsor.ContractMonths = 0;
}

template <class T>
void Part(T&) {}

/// "Bram Okafor 2", "CWA2": the first that no record has in this field.
std::string FreeText(const World& world, RecordKind kind, const Field& field,
                     std::string_view text) {
  std::vector<std::string> taken;
  for (int number = 1; number <= CountOf(world, kind); ++number)
    taken.emplace_back(FieldText(field, RecordAt(world, kind, number)));
  for (int n = 2;; ++n) {
    const std::string behind = (field.Width > 6 ? " " : "") + std::to_string(n);
    std::string free(
        detail::Trimmed(text.substr(0, static_cast<std::size_t>(field.Width) - behind.size())));
    free += behind;
    if (std::find(taken.begin(), taken.end(), free) == taken.end()) return free;
  }
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

// What a record holds before an author has said anything, and what a copy holds.

Bytes NewRecord(RecordKind kind) {
  Bytes record = TableKindOf(LayoutOf(kind)).Default;
  for (const Beginning& beginning : kBeginnings[static_cast<std::size_t>(kind)]) {
    const Field& field = *FieldNamed(kind, beginning.Field).Of;
    if (field.Kind == FieldKind::Text)
      SetFieldText(field, record.data(), 0, beginning.Text);
    else
      SetFieldNumber(field, record.data(), 0, beginning.Number);
  }
  return record;
}

Bytes CopyOfRecord(const World& world, RecordKind kind, int number) {
  const std::byte* from = RecordAt(world, kind, number);
  Bytes record(from, from + LayoutOf(kind).Size);
  for (const Field& field : LayoutOf(kind).Fields)
    if (IsName(field))
      SetFieldText(field, record.data(), 0, FreeText(world, kind, field, FieldText(field, from)));
  WithRecords(world, kind, [&]<class T>(const Records<T>&) {
    T& copy = As<T>(record.data());
    Part(copy);
    if constexpr (requires { copy.Uid; }) copy.Uid = 0;  // nobody's yet, so nobody works for it
  });
  return record;
}

}  // namespace grapplemont
