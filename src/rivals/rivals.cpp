#include "rivals/rivals.h"

#include <algorithm>
#include <vector>

#include "business/sponsors.h"
#include "records/severing.h"
#include "rivals/tuning.h"

namespace grapplemont {

bool IsOnMainRoster(const Worker& worker) {
  return IsOnRoster(worker) || worker.Position == kManager || worker.Position == kNonWrestler;
}

Rosters::Rosters(const World& world) : workers_(world.Workers()) {
  for (int number = 1; number <= workers_.Count(); ++number) {
    const Worker& worker = workers_[number];
    if (worker.Employer == 0) continue;
    House& house = HouseOf(worker.Employer);
    house.Numbers.push_back(number);
    house.OnMainRoster += IsOnMainRoster(worker);
  }
}

const Rosters::House* Rosters::FindHouse(int promotionUid) const {
  if (promotionUid >= 0 && promotionUid < kNear)
    return &near_[static_cast<std::size_t>(promotionUid)];
  const auto found = far_.find(promotionUid);
  return found == far_.end() ? nullptr : &found->second;
}

Rosters::House& Rosters::HouseOf(int promotionUid) {
  const House* near = promotionUid < kNear ? FindHouse(promotionUid) : nullptr;
  return near ? const_cast<House&>(*near) : far_[promotionUid];
}

int Rosters::Of(int promotionUid) const {
  const House* house = FindHouse(promotionUid);
  return house ? house->OnMainRoster : 0;
}

const std::vector<int>& Rosters::NumbersOf(int promotionUid) const {
  static const std::vector<int> kNobody;
  const House* house = FindHouse(promotionUid);
  return house ? house->Numbers : kNobody;
}

void Rosters::Move(const Worker& worker, int fromUid, int toUid) {
  const int number = static_cast<int>(&worker - &workers_[1]) + 1;
  if (fromUid != 0) {
    House& house = HouseOf(fromUid);
    std::erase(house.Numbers, number);
    house.OnMainRoster -= IsOnMainRoster(worker);
  }
  if (toUid != 0) {
    House& house = HouseOf(toUid);
    house.Numbers.insert(std::ranges::upper_bound(house.Numbers, number), number);
    house.OnMainRoster += IsOnMainRoster(worker);
  }
}

void PartWays(World& world, const std::vector<Worker*>& workers) {
  std::set<int> uids;
  for (Worker* worker : workers) {
    SeverWorker(world, *worker);
    worker->Split = "None";
    uids.insert(worker->Uid);
  }
  LoseClients(world, uids);
}

namespace {

bool IsWilling(const Sponsor& sponsor, const Promotion& rival) {
  return BearsRisk(sponsor, rival.Risk) &&
         sponsor.Pay < RivalSponsorPayLimit(rival.Size, rival.Image);
}

}  // namespace

bool FitsRival(const Sponsor& sponsor, const Promotion& rival) {
  const tuning::PayBand& usual = BySize(tuning::kUsualPay, rival.Size);
  return IsWilling(sponsor, rival) && sponsor.Pay >= usual.From && sponsor.Pay <= usual.To;
}

namespace {

/// More than any sponsor pays, in thousands of dollars a show.
constexpr int kSponsorPays = 1001;

/// How far off what is usual for the class the pay is: less rather than more.
int Oddness(const Sponsor& sponsor, int size) {
  const tuning::PayBand& usual = BySize(tuning::kUsualPay, size);
  return sponsor.Pay > usual.To ? kSponsorPays + sponsor.Pay - usual.To : usual.From - sponsor.Pay;
}

/// One of those who are free and fit, by a draw of World::Life; else, of those who are free and
/// willing, who pays most like what is usual; nullptr for nobody.
Sponsor* DrawSponsor(World& world, const Promotion& rival) {
  std::vector<Sponsor*> fitting;
  Sponsor* nearest = nullptr;
  for (Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != 0 || !IsWilling(sponsor, rival)) continue;
    if (FitsRival(sponsor, rival))
      fitting.push_back(&sponsor);
    else if (!nearest || Oddness(sponsor, rival.Size) < Oddness(*nearest, rival.Size))
      nearest = &sponsor;
  }
  if (fitting.empty()) return nearest;
  const int drawn = world.Life().Draw(static_cast<int>(fitting.size()));
  return fitting[static_cast<std::size_t>(drawn - 1)];
}

}  // namespace

void RivalSponsorSigning(World& world) {
  for (Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    for (int slot = 1; slot <= static_cast<int>(rival.Sponsor.size()); ++slot) {
      if (SponsorAt(world, rival, slot)) continue;
      Sponsor* sponsor = DrawSponsor(world, rival);
      if (!sponsor) break;
      SignSponsor(world, rival, *sponsor, slot);
      TellOf(world, world.Game().MailSponsor, rival,
             rival.Initials + " have signed a sponsorship deal with " + sponsor->Name.Str() + "!");
    }
  }
}

}  // namespace grapplemont
