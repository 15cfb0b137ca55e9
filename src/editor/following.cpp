#include "editor/following.h"

#include <algorithm>
#include <set>
#include <string_view>

#include "records/modWresCheck.h"
#include "records/severing.h"

namespace grapplemont {

namespace {

struct Tie {
  std::string_view File;
  std::string_view Field;  // a field whose name begins so; empty for the record itself
};
constexpr Tie kTies[] = {{"promos.dat", "Commissioner"},
                         {"promos.dat", "HeadTrainer"},
                         {"promos.dat", "DevBooker"},
                         {"promos.dat", "Sponsor"},
                         {"belt.dat", "Holder"},
                         {"belt.dat", "Partner"},
                         {"wrestler.dat", "Manager"},
                         {"wrestler.dat", "Stable"},
                         {"wrestler.dat", "Split"},
                         {"wrestler.dat", "Employer"},
                         {"staff.dat", "Employer"},
                         {"teams.dat", "Worker"},
                         {"teams.dat", ""},
                         {"tv.dat", "Network"},
                         {"tv.dat", "Announcer"},
                         {"tv.dat", "Colour"}};

/// "CWA Crown: Holder is gone; made 0."
std::string Told(const Fault& fault) {
  std::string words = (fault.Who.empty() ? fault.File : fault.Who) + ": ";
  if (!fault.Field.empty()) words += fault.Field + " ";
  return words + fault.What + ".";
}

}  // namespace

FaultCounts::FaultCounts(const World& world, By by) : by_(by) {
  CheckWorld(world, [this](Fault&& fault) { ++counts_[KeyOf(fault)]; });
}

std::size_t FaultCounts::KeyOf(const Fault& fault) const {
  constexpr std::size_t kApart = 0x9E3779B97F4A7C15;
  std::size_t key = by_ == By::Record ? static_cast<std::size_t>(fault.Record) : 0;
  for (const std::string* part : {&fault.File, &fault.Field, &fault.What})
    key = key * kApart + std::hash<std::string>{}(*part);
  return key;
}

std::vector<Fault> FaultCounts::NewIn(const World& world) const {
  auto left = counts_;
  std::vector<Fault> fresh;
  CheckWorld(world, [&](Fault&& fault) {
    if (--left[KeyOf(fault)] < 0) fresh.push_back(std::move(fault));
  });
  return fresh;
}

bool IsConsequence(const Fault& fault) {
  return std::ranges::any_of(kTies, [&](const Tie& tie) {
    return fault.File == tie.File &&
           (tie.Field.empty() ? fault.Field.empty() : fault.Field.starts_with(tie.Field));
  });
}

void MendConsequences(World& world, const FaultCounts& before, std::vector<std::string>& also) {
  // Each round may remove records, and the numbers of the next are others.
  constexpr int kMostRounds = 20;
  for (int round = 0; round < kMostRounds; ++round) {
    std::set<std::string> wanted;
    for (const Fault& fault : before.NewIn(world))
      if (IsConsequence(fault)) wanted.insert(fault.Line());
    if (wanted.empty()) return;
    const auto mended =
        MendWorld(world, [&](const Fault& fault) { return wanted.contains(fault.Line()); });
    if (mended.empty()) return;
    for (const Fault& fault : mended) also.push_back(Told(fault));
  }
}

namespace {

void FollowStable(World& world, const Stable& old, const Stable& now) {
  if (old.Name == now.Name) return;
  for (Worker& worker : world.Workers())
    if (worker.Employer == old.Owner && worker.Stable == old.Name) worker.Stable = now.Name.View();
}

void FollowSplits(World& world, const Promotion& old, const Promotion& now) {
  for (std::size_t i = 0; i < old.Split.size(); ++i) {
    if (old.Split[i] == now.Split[i] || old.Split[i] == "None" || now.Split[i] == "None") continue;
    for (Worker& worker : world.Workers())
      if (worker.Employer == now.Uid && worker.Split == old.Split[i])
        worker.Split = now.Split[i].View();
  }
}

/// Nobody talks beside the ring of a promotion that they have left.
template <class T>
void LeaveShows(World& world, const T& who, std::vector<std::string>& also) {
  constexpr bool isWorker = std::is_same_v<T, Worker>;
  for (Show& show : world.Shows()) {
    if (show.Owner != who.Employer || who.Uid == 0) continue;
    if (!isWorker && show.Announcer == who.Uid) {
      show.Announcer = 0;
      also.push_back(show.Name + " loses its announcer.");
    }
    if (show.Colour == who.Uid && bool(show.ColourIsWorker) == isWorker) {
      show.Colour = 0;
      show.ColourIsWorker = false;
      also.push_back(show.Name + " loses its colour commentator.");
    }
  }
}

template <class T>
void FollowEmployer(World& world, const Bytes& old, const std::byte* now,
                    std::vector<std::string>& also) {
  if (old.empty()) return;
  const T was = As<T>(old.data());
  if (was.Employer != As<T>(now).Employer) LeaveShows(world, was, also);
}

void FreePlaces(Promotion& promotion, int sponsorUid) {
  for (Word& place : promotion.Sponsor)
    if (place == sponsorUid) place = 0;
}

std::string FollowSponsor(World& world, const Sponsor& sponsor) {
  for (Promotion& promotion : world.Promotions())
    if (promotion.Uid != sponsor.Promotion) FreePlaces(promotion, sponsor.Uid);
  Promotion* promotion = world.FindPromotion(sponsor.Promotion);
  if (!promotion || std::ranges::find(promotion->Sponsor, sponsor.Uid) != promotion->Sponsor.end())
    return {};
  const auto free = std::ranges::find(promotion->Sponsor, 0);
  if (free == promotion->Sponsor.end()) return promotion->Initials + " has four sponsors already.";
  *free = sponsor.Uid;
  return {};
}

std::string FollowPlaces(World& world, const Promotion& promotion) {
  for (const Word& place : promotion.Sponsor) {
    Sponsor* sponsor = world.FindSponsor(place);
    if (!sponsor) continue;
    if (sponsor->Promotion != 0 && sponsor->Promotion != promotion.Uid)
      return sponsor->Name + " sponsors " + PromotionInitials(world, sponsor->Promotion) +
             " already.";
    sponsor->Promotion = promotion.Uid;
  }
  for (Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == promotion.Uid &&
        std::ranges::find(promotion.Sponsor, sponsor.Uid) == promotion.Sponsor.end()) {
      sponsor.Promotion = 0;
      sponsor.ContractMonths = 0;
    }
  return {};
}

bool SamePlaces(const Promotion& a, const Promotion& b) {
  return std::ranges::equal(a.Sponsor, b.Sponsor,
                            [](const Word& one, const Word& other) { return int(one) == other; });
}

/// "39 workers are free agents now".
template <class T, class Belongs>
void TellHowMany(const Records<T>& records, Belongs belongs, const char* one, const char* many,
                 std::vector<std::string>& also) {
  const auto count = std::count_if(records.begin(), records.end(), belongs);
  if (count > 0) also.push_back(std::to_string(count) + (count == 1 ? one : many));
}

void TellOfTheEnd(const World& world, int uid, std::vector<std::string>& also) {
  const auto employs = [uid](const auto& person) { return person.Employer == uid; };
  const auto owns = [uid](const auto& thing) { return thing.Owner == uid; };
  TellHowMany(world.Workers(), employs, " worker goes free.", " workers go free.", also);
  TellHowMany(world.AllStaff(), employs, " member of staff goes free.",
              " members of staff go free.", also);
  TellHowMany(world.Shows(), owns, " television show ends.", " television shows end.", also);
  TellHowMany(world.Titles(), owns, " Title is nobody's.", " Titles are nobody's.", also);
  TellHowMany(world.Events(), owns, " Event is nobody's.", " Events are nobody's.", also);
  TellHowMany(world.Stables(), owns, " stable ends.", " stables end.", also);
}

void EndPromotion(World& world, int number, std::vector<std::string>& also) {
  // One that only shares its uid may live on, and its people with it.
  Promotion& gone = world.Promotions()[number];
  const bool shared = std::ranges::count_if(world.Promotions(), [&](const Promotion& other) {
                        return other.Uid == gone.Uid;
                      }) > 1;
  if (shared || gone.Uid == 0) return world.Promotions().Erase(number);
  TellOfTheEnd(world, gone.Uid, also);
  const int before = world.Promotions().Count();
  gone.Name = kToBeDeleted;
  SweepDeadPromotions(world);
  SweepDeadShows(world);
  if (world.Promotions().Count() == before) world.Promotions().Erase(number);
}

}  // namespace

std::string FollowChange(World& world, RecordKind kind, const Bytes& old, int number,
                         std::vector<std::string>& also) {
  const std::byte* now = RecordAt(std::as_const(world), kind, number);
  switch (kind) {
    case RecordKind::Sponsor:
      if (old.empty() || As<Sponsor>(old.data()).Promotion != As<Sponsor>(now).Promotion)
        return FollowSponsor(world, As<Sponsor>(now));
      break;
    case RecordKind::Promotion:
      if (!old.empty()) FollowSplits(world, As<Promotion>(old.data()), As<Promotion>(now));
      if (old.empty() || !SamePlaces(As<Promotion>(old.data()), As<Promotion>(now)))
        return FollowPlaces(world, As<Promotion>(now));
      break;
    case RecordKind::Stable:
      if (!old.empty()) FollowStable(world, As<Stable>(old.data()), As<Stable>(now));
      break;
    case RecordKind::Worker:
      FollowEmployer<Worker>(world, old, now, also);
      break;
    case RecordKind::Staff:
      FollowEmployer<Staff>(world, old, now, also);
      break;
    default:
      break;
  }
  return {};
}

void Forget(World& world, RecordKind kind, int number, std::vector<std::string>& also) {
  if (kind == RecordKind::Promotion) return EndPromotion(world, number, also);
  if (kind == RecordKind::Worker) LeaveShows(world, world.Workers()[number], also);
  if (kind == RecordKind::Staff) LeaveShows(world, world.AllStaff()[number], also);
  WithRecords(world, kind, [number](auto& records) { records.Erase(number); });
}

}  // namespace grapplemont
