#include "editor/choices.h"

#include <algorithm>

namespace grapplemont {

namespace {

template <class T, class Fits>
std::vector<Choice> Those(const Records<T>& records, Fits fits) {
  std::vector<Choice> choices;
  for (const T& record : records)
    if (fits(record)) choices.push_back({record.Name.Str(), record.Uid});
  return choices;
}

template <class Fits>
std::vector<Choice> Commentators(const World& world, int owner, Fits fits) {
  std::vector<Choice> choices = Those(world.AllStaff(), fits);
  for (const Worker& worker : world.Workers())
    if (worker.Announcer && worker.Employer == owner)
      choices.push_back({worker.Name + " (worker)", -worker.Uid});
  return choices;
}

std::vector<Choice> WorkersFor(const World& world, RecordKind kind, const std::byte* record) {
  const auto& workers = world.Workers();
  if (kind == RecordKind::Worker) {
    const auto& client = As<Worker>(record);
    return Those(workers, [&](const Worker& worker) {
      return client.Employer != 0 && worker.Employer == client.Employer &&
             worker.Position == kManager && worker.Uid != client.Uid;
    });
  }
  if (kind == RecordKind::Promotion)
    return Those(workers, [uid = int(As<Promotion>(record).Uid)](const Worker& worker) {
      return uid > 0 && worker.Employer == uid && worker.Position == kNonWrestler;
    });
  if (kind == RecordKind::Title)
    return Those(workers, [owner = int(As<Title>(record).Owner)](const Worker& worker) {
      return owner > 0 && worker.Employer == owner && worker.Position != kManager;
    });
  return Those(workers, [](const Worker&) { return true; });
}

std::vector<Choice> StaffFor(const World& world, RecordKind kind, const Field& field,
                             const std::byte* record) {
  const int employer =
      kind == RecordKind::Show ? int(As<Show>(record).Owner) : int(As<Promotion>(record).Uid);
  if (employer <= 0) return {};
  const auto isAnnouncer = [employer](const Staff& staff) {
    return staff.Employer == employer && staff.Position == kAnnouncer;
  };
  if (field.To == Refers::Commentator) return Commentators(world, employer, isAnnouncer);
  if (kind == RecordKind::Show) return Those(world.AllStaff(), isAnnouncer);
  const bool trains = field.Name == "HeadTrainer";
  return Those(world.AllStaff(), [=](const Staff& staff) {
    return staff.Employer == employer && staff.Position != kOwner &&
           (trains ? staff.Position == kTrainer : bool(staff.Booker));
  });
}

std::vector<Choice> NamesFor(const World& world, const Field& field, const Worker& worker) {
  std::vector<Choice> choices;
  if (field.To == Refers::Stable) {
    for (const Stable& stable : world.Stables())
      if (worker.Employer != 0 && stable.Owner == worker.Employer)
        choices.push_back({stable.Name.Str()});
  } else if (const Promotion* promotion = world.FindPromotion(worker.Employer)) {
    for (const auto& split : promotion->Split)
      if (!split.View().empty() && !(split == "None")) choices.push_back({split.Str()});
  }
  return choices;
}

std::vector<Choice> Unsorted(const World& world, RecordKind kind, const Field& field,
                             const std::byte* record) {
  switch (field.To) {
    case Refers::Worker:
      return WorkersFor(world, kind, record);
    case Refers::Staff:
    case Refers::Commentator:
      return StaffFor(world, kind, field, record);
    case Refers::Network:
      return Those(world.Networks(), [](auto&) { return true; });
    case Refers::Sponsor:
      return Those(world.Sponsors(),
                   [uid = int(As<Promotion>(record).Uid)](const Sponsor& sponsor) {
                     return sponsor.Promotion == 0 || sponsor.Promotion == uid;
                   });
    case Refers::Promotion: {
      std::vector<Choice> all;
      for (const Promotion& promotion : world.Promotions())
        all.push_back({promotion.Initials.Str(), promotion.Uid});
      return all;
    }
    default:
      return NamesFor(world, field, As<Worker>(record));
  }
}

template <class T>
std::string NameOrGone(const T* record, int uid) {
  return record ? record->Name.Str() : "#" + std::to_string(uid) + " (gone)";
}

}  // namespace

std::vector<Choice> ChoicesFor(const World& world, RecordKind kind, const FieldPlace& place,
                               const std::byte* record) {
  auto choices = Unsorted(world, kind, *place.Of, record);
  std::stable_sort(choices.begin(), choices.end(),
                   [](const Choice& a, const Choice& b) { return a.Says < b.Says; });
  return choices;
}

bool HangsOnTheRecord(RecordKind kind, const Field& field) {
  if (field.To == Refers::Promotion || field.To == Refers::Network) return false;
  return !(kind == RecordKind::Team && field.To == Refers::Worker);
}

std::string NameOfUid(const World& world, Refers to, int uid) {
  if (uid == 0 || (uid == kNoEnd && to != Refers::Commentator)) return "None";
  switch (to) {
    case Refers::Worker:
      return NameOrGone(world.FindWorker(uid), uid);
    case Refers::Staff:
      return NameOrGone(world.FindStaff(uid), uid);
    case Refers::Commentator:
      return uid < 0 ? NameOrGone(world.FindWorker(-uid), -uid)
                     : NameOrGone(world.FindStaff(uid), uid);
    case Refers::Network:
      return NameOrGone(world.FindNetwork(uid), uid);
    case Refers::Sponsor:
      return NameOrGone(world.FindSponsor(uid), uid);
    case Refers::Promotion:
      if (const Promotion* promotion = world.FindPromotion(uid)) return promotion->Initials.Str();
      return NameOrGone<Promotion>(nullptr, uid);
    default:
      return {};
  }
}

}  // namespace grapplemont
