#include "records/modWresCheck.h"

#include "records/fields/wording.h"

#include <algorithm>

namespace grapplemont {

namespace {

constexpr int kHighestUid = 32767;
using Uids = std::vector<bool>;

void MarkNamed(const RecordLayout& layout, const Field& field, ByteSpan records, Uids& taken) {
  for (std::size_t at = 0; at + static_cast<std::size_t>(layout.Size) <= records.size();
       at += static_cast<std::size_t>(layout.Size))
    for (int index = 0; index < field.Count; ++index) {
      const long long uid = FieldNumber(field, records.data() + at, index);
      if (uid > 0 && uid <= kHighestUid) taken[static_cast<std::size_t>(uid)] = true;
    }
}

/// Every uid that some record names as one of this kind; commentators may be of two.
void MarkReferences(const World& world, Refers to, Uids& taken) {
  for (const Table* table : world.Tables()) {
    if (!table->Layout()) continue;
    for (const Field& field : table->Layout()->Fields)
      if (field.To == to || field.To == Refers::Commentator)
        MarkNamed(*table->Layout(), field, table->RecordBytes(), taken);
  }
}

template <class T>
int NextUid(const World& world, const Records<T>& records, Refers to) {
  int highest = 0;
  for (const T& record : records) highest = std::max<int>(highest, record.Uid);
  if (highest < kHighestUid) return highest + 1;
  Uids taken(kHighestUid + 1);
  for (const T& record : records)
    if (record.Uid > 0) taken[static_cast<std::size_t>(int(record.Uid))] = true;
  // Files hold fewer records than there are numbers, so one is free in any case.
  Uids named = taken;
  MarkReferences(world, to, named);
  const auto unnamed = std::find(named.begin() + 1, named.end(), false);
  if (unnamed != named.end()) return static_cast<int>(unnamed - named.begin());
  return static_cast<int>(std::find(taken.begin() + 1, taken.end(), false) - taken.begin());
}

template <class T>
const T* FindNamed(const Records<T>& records, std::string_view name) {
  for (const T& record : records)
    if (record.Name == name) return &record;
  return nullptr;
}

template <class T>
std::string NameOrEmpty(const T* record) {
  return record ? record->Name.Str() : std::string();
}

std::string PerMonth(int wage) {
  return std::to_string(wage) + (wage == 0 ? " per month" : ",000 per month");
}

constexpr Term kFinisherTexts[] = {{static_cast<int>(FinisherType::Impact), "", "Impact"},
                                   {static_cast<int>(FinisherType::Submission), "", "Submission"},
                                   {static_cast<int>(FinisherType::TopRope), "", "Top Rope"},
                                   {static_cast<int>(FinisherType::Ground), "", "Ground"}};

std::string_view KnownOr(std::string_view text) {
  return text.empty() ? "Unknown" : text;
}

}  // namespace

int NextWorkerUid(const World& world) {
  return NextUid(world, world.Workers(), Refers::Worker);
}
int NextStaffUid(const World& world) {
  return NextUid(world, world.AllStaff(), Refers::Staff);
}
int NextPromotionUid(const World& world) {
  return NextUid(world, world.Promotions(), Refers::Promotion);
}
int NextNetworkUid(const World& world) {
  return NextUid(world, world.Networks(), Refers::Network);
}
int NextSponsorUid(const World& world) {
  return NextUid(world, world.Sponsors(), Refers::Sponsor);
}

bool WorkerNameFree(const World& world, std::string_view name) {
  return !FindNamed(world.Workers(), name);
}
bool StaffNameFree(const World& world, std::string_view name) {
  return !FindNamed(world.AllStaff(), name);
}

std::string PromotionName(const World& world, int promotionUid) {
  const Promotion* promotion = world.FindPromotion(promotionUid);
  return promotion ? promotion->Name.Str() : "None";
}

std::string PromotionInitials(const World& world, int promotionUid) {
  const Promotion* promotion = world.FindPromotion(promotionUid);
  return promotion ? promotion->Initials.Str() : "None";
}

std::string WorkerName(const World& world, int workerUid) {
  return NameOrEmpty(world.FindWorker(workerUid));
}

std::string WorkerShortName(const World& world, int workerUid) {
  const Worker* worker = world.FindWorker(workerUid);
  return worker ? worker->ShortName.Str() : std::string();
}

std::string StaffName(const World& world, int staffUid) {
  return NameOrEmpty(world.FindStaff(staffUid));
}

std::string TeamNameOf(const World& world, int workerA, int workerB) {
  for (const Team& team : world.Teams())
    if ((team.Worker1 == workerA && team.Worker2 == workerB) ||
        (team.Worker1 == workerB && team.Worker2 == workerA))
      return team.Name.Str();
  return "None";
}

std::string PairName(const World& world, int workerA, int workerB) {
  const std::string team = TeamNameOf(world, workerA, workerB);
  return team != "None" ? team : WorkerName(world, workerA) + " \\ " + WorkerName(world, workerB);
}

const Stable* FindStable(const World& world, std::string_view name) {
  return FindNamed(world.Stables(), name);
}
const Title* FindTitle(const World& world, std::string_view name) {
  return FindNamed(world.Titles(), name);
}

const Staff* OwnerOf(const World& world, int promotionUid) {
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer == promotionUid && staff.Position == kOwner) return &staff;
  return nullptr;
}

bool HasReport(const World& world, Day on, int promotionUid) {
  return std::ranges::any_of(world.Reports(), [=](const ReportPart& part) {
    return part.Kind != kNoReport && Day(part.On) == on && part.Promotion == promotionUid;
  });
}

std::string_view PositionText(int position) {
  return KnownOr(Says(kPositions, position));
}

std::string_view DispositionText(std::string_view code) {
  return KnownOr(Says(kDispositions, code));
}
std::string_view DispositionCode(std::string_view text) {
  for (const Term& term : kDispositions)
    if (term.Says == text) return term.Stored;
  return {};
}

std::string ContractLine(const Worker& worker) {
  if (worker.Unsackable) return "Unsackable, agreement for $" + PerMonth(worker.Wage);
  const std::string kind =
      worker.ContractType == "Wri" ? "Written contract for " : "Verbal agreement for ";
  return kind + Counted(worker.ContractMonths, "month") + ", at $" + PerMonth(worker.Wage);
}

std::string StatusLine(const Worker& worker) {
  if (worker.Status == "Inj")
    return worker.InjuryName + ", out for " + Counted(worker.StatusMonths, "month");
  if (worker.Status == "Sus") return "Suspended for " + Counted(worker.StatusMonths, "month");
  if (worker.Status == "Reh") return "Currently in rehab";
  if (worker.Status == "Hom") return "Sitting out contract";
  return "Available";
}

std::string_view FinisherText(FinisherType type) {
  return Says(kFinisherTexts, static_cast<int>(type));
}

FinisherType FinisherTypeOf(const Worker& worker, int slot) {
  const bool first = slot == 1;
  if (first ? worker.Finisher1Submission : worker.Finisher2Submission)
    return FinisherType::Submission;
  if (first ? worker.Finisher1TopRope : worker.Finisher2TopRope) return FinisherType::TopRope;
  if (first ? worker.Finisher1Ground : worker.Finisher2Ground) return FinisherType::Ground;
  return FinisherType::Impact;
}

void FinisherFlags(Worker& worker, int slot, FinisherType type) {
  const bool first = slot == 1;
  (first ? worker.Finisher1Submission : worker.Finisher2Submission) =
      type == FinisherType::Submission;
  (first ? worker.Finisher1TopRope : worker.Finisher2TopRope) = type == FinisherType::TopRope;
  (first ? worker.Finisher1Ground : worker.Finisher2Ground) = type == FinisherType::Ground;
}

}  // namespace grapplemont
