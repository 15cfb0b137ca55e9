#include "business/past.h"

#include "business/books.h"
#include "business/months.h"
#include "records/store/table.h"

namespace grapplemont {

namespace {

constexpr int kDropped = 1000;

template <class Test>
std::vector<const HistoryEntry*> Entries(const World& world, int promotionUid, Test test) {
  std::vector<const HistoryEntry*> found;
  for (const HistoryEntry& entry : world.History())
    if (entry.Promotion == promotionUid && test(entry)) found.push_back(&entry);
  return found;
}

}  // namespace

bool IsShow(const HistoryEntry& entry) {
  return entry.Kind == kPastTv || entry.Kind == kPastEvent;
}

const HistoryEntry* LastShowOf(const World& world, int promotionUid, Day from, int kind) {
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) < from) return nullptr;
    if (entry.Promotion == promotionUid && (kind == 0 ? IsShow(entry) : entry.Kind == kind))
      return &entry;
  }
  return nullptr;
}

std::vector<const HistoryEntry*> MonthsOf(const World& world, int promotionUid) {
  return Entries(world, promotionUid,
                 [](const HistoryEntry& entry) { return entry.Kind == kPastMonth; });
}

std::vector<const HistoryEntry*> PastShowsOf(const World& world, int promotionUid,
                                             std::string_view name) {
  return Entries(world, promotionUid, [&](const HistoryEntry& entry) {
    return name.empty() ? entry.Kind == kPastEvent : entry.Kind == kPastTv && entry.Name == name;
  });
}

long long AttendanceOf(const World& world, int promotionUid, Day from, Day until) {
  long long people = 0;
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) < from) break;
    if (entry.Promotion == promotionUid && IsShow(entry) && Day(entry.On) < until)
      people += entry.Attendance;
  }
  return people;
}

HistoryEntry EntryOf(const World& world, const Promotion& promotion, HistoryKind kind) {
  HistoryEntry entry{};
  entry.On = world.Today();
  entry.Kind = kind;
  entry.Promotion = promotion.Uid;
  entry.Name = promotion.Name;
  entry.Money = promotion.Money;
  entry.Size = promotion.Size;
  entry.Image = promotion.Image;
  return entry;
}

void Remember(World& world, const HistoryEntry& entry) {
  AppendRolling(world.History(), entry, kDropped);
}

void RememberMonth(World& world, const Promotion& promotion) {
  HistoryEntry entry = EntryOf(world, promotion, kPastMonth);
  if (promotion.Uid == world.PlayerUid())
    entry.Attendance =
        AttendanceOf(world, promotion.Uid, MonthsBefore(world.Today(), 1), world.Today());
  entry.Income = TotalIn(promotion.LastMonth);
  entry.Costs = TotalOut(promotion.LastMonth);
  Remember(world, entry);
}

}  // namespace grapplemont
