#include "rivals/rivals.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "business/sponsors.h"
#include "records/modVar.h"
#include "records/severing.h"
#include "rivals/tuning.h"

namespace grapplemont {

bool IsAlive(const Promotion& promotion) {
  return promotion.Name != kToBeDeleted;
}

bool IsPlayers(const World& world, const Promotion& promotion) {
  return promotion.Uid == world.PlayerUid();
}

bool IsRival(const World& world, const Promotion& promotion) {
  return !IsPlayers(world, promotion) && IsAlive(promotion);
}

bool IsOnMainRoster(const Worker& worker) {
  return IsOnRoster(worker) || worker.Position == kManager || worker.Position == kNonWrestler;
}

Rosters::Rosters(const World& world) {
  for (const Worker& worker : world.Workers())
    if (worker.Employer != 0 && IsOnMainRoster(worker)) ++counts_[worker.Employer];
}

int Rosters::Of(int promotionUid) const {
  const auto found = counts_.find(promotionUid);
  return found == counts_.end() ? 0 : found->second;
}

void Rosters::Move(const Worker& worker, int fromUid, int toUid) {
  if (!IsOnMainRoster(worker)) return;
  if (fromUid != 0) --counts_[fromUid];
  if (toUid != 0) ++counts_[toUid];
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

/// One of those who are free and fit, by a draw of World::Life. Whoever has no sponsor at all takes
/// the dearest of those who pay less than is usual; nullptr for nobody.
Sponsor* DrawSponsor(World& world, const Promotion& rival, bool hasOne) {
  std::vector<Sponsor*> fitting;
  Sponsor* dearest = nullptr;
  for (Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion != 0 || !IsWilling(sponsor, rival)) continue;
    if (FitsRival(sponsor, rival))
      fitting.push_back(&sponsor);
    else if (sponsor.Pay < BySize(tuning::kUsualPay, rival.Size).From &&
             (!dearest || sponsor.Pay > dearest->Pay))
      dearest = &sponsor;
  }
  if (fitting.empty()) return hasOne ? nullptr : dearest;
  const int drawn = world.Life().Draw(static_cast<int>(fitting.size()));
  return fitting[static_cast<std::size_t>(drawn - 1)];
}

}  // namespace

void RivalSponsorSigning(World& world) {
  for (Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    bool hasOne = std::ranges::any_of(rival.Sponsor, [](int uid) { return uid != 0; });
    for (int slot = 1; slot <= static_cast<int>(rival.Sponsor.size()); ++slot) {
      if (SponsorAt(world, rival, slot)) continue;
      Sponsor* sponsor = DrawSponsor(world, rival, std::exchange(hasOne, true));
      if (!sponsor) break;
      SignSponsor(world, rival, *sponsor, slot);
      TellOf(world, world.Game().MailSponsor, rival,
             rival.Initials + " have signed a sponsorship deal with " + sponsor->Name.Str() + "!");
    }
  }
}

}  // namespace grapplemont
