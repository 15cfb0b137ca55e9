#include <algorithm>

#include "editor/keeping.h"
#include "records/tables/tablekinds.h"

// What a record holds before an author has said anything, and what a copy holds.

namespace grapplemont {

namespace {

void Begin(Worker& worker) {
  worker.Gender = true;
  worker.Age = 25;
  worker.Weight = "H";
  worker.Position = kOpener;
  for (Percent Worker::*skill :
       {&Worker::Brawl, &Worker::Technical, &Worker::Speed, &Worker::Stiff, &Worker::Sell,
        &Worker::Charisma, &Worker::Attitude, &Worker::Behaviour})
    worker.*skill = 50;
  worker.Over = 30;
  worker.Speaks = true;
  worker.Disposition = "F";
}

void Begin(Promotion& promotion) {
  promotion.Size = kBackyard;
  promotion.TicketPrice = 5;
  promotion.Image = 50;
  promotion.Production = 5;
  promotion.Risk = 50;
  promotion.MeetingDay = "Monday";
}

void Begin(Staff& staff) {
  staff.Gender = true;
  staff.BirthMonth = 1;
  staff.Age = 35;
  staff.Position = kAnnouncer;
  staff.Talent = 50;
  staff.Backstage = 50;
}

void Begin(Team& team) {
  team.Experience = 50;
}

void Begin(Stable&) {}

void Begin(Title& title) {
  title.Singles = true;
  title.Image = 50;
}

void Begin(Show& show) {
  show.Day = "Monday";
  show.Slot = "P";
}

void Begin(Network& network) {
  for (Hundredths Network::*audience : {&Network::EarlyAudience, &Network::PrimeAudience,
                                        &Network::LateAudience, &Network::GraveAudience})
    network.*audience = 100;
  for (Percent Network::*risk :
       {&Network::EarlyRisk, &Network::PrimeRisk, &Network::LateRisk, &Network::GraveRisk})
    network.*risk = 50;
}

void Begin(Sponsor& sponsor) {
  sponsor.Morality = 50;
  sponsor.Pay = 10;
}

void Begin(Event& event) {
  event.Month = 1;
  event.Type = 4;
}

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

Bytes NewRecord(RecordKind kind) {
  Bytes record = TableKindOf(LayoutOf(kind)).Default;
  const World world;
  WithRecords(world, kind, [&]<class T>(const Records<T>&) { Begin(As<T>(record.data())); });
  return record;
}

Bytes CopyOfRecord(const World& world, RecordKind kind, int number) {
  const std::byte* from = RecordAt(world, kind, number);
  Bytes record(from, from + LayoutOf(kind).Size);
  for (const Field& field : LayoutOf(kind).Fields) {
    if (field.Kind != FieldKind::Text || (!field.IsKey && field.Name != "Name")) continue;
    SetFieldText(field, record.data(), 0, FreeText(world, kind, field, FieldText(field, from)));
  }
  WithRecords(world, kind, [&]<class T>(const Records<T>&) {
    T& copy = As<T>(record.data());
    Part(copy);
    if constexpr (requires { copy.Uid; }) copy.Uid = 0;  // nobody's yet, so nobody works for it
  });
  return record;
}

}  // namespace grapplemont
