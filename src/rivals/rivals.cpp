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
  for (const Worker& worker : workers_)
    if (worker.Employer != 0 && IsOnMainRoster(worker)) ++onMainRoster_[worker.Employer];
}

const std::vector<int>& Rosters::NumbersOf(int promotionUid) const {
  if (!numbers_) {
    numbers_ = std::make_unique<Numbers>();
    for (int number = 1; number <= workers_.Count(); ++number)
      if (const int employer = workers_[number].Employer; employer != 0)
        (*numbers_)[employer].push_back(number);
  }
  return numbers_->Of(promotionUid);
}

void Rosters::Move(const Worker& worker, int fromUid, int toUid) {
  const int number = workers_.NumberOf(worker);
  for (const auto& [uid, step] : {std::pair(fromUid, -1), std::pair(toUid, 1)}) {
    if (uid == 0) continue;
    onMainRoster_[uid] += step * IsOnMainRoster(worker);
    if (!numbers_) continue;
    std::vector<int>& numbers = (*numbers_)[uid];
    if (step < 0)
      std::erase(numbers, number);
    else
      numbers.insert(std::ranges::upper_bound(numbers, number), number);
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
