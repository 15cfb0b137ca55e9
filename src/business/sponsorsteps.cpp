#include "business/sponsorlimits.h"
#include "business/sponsors.h"
#include "records/modVar.h"

namespace grapplemont {

namespace {

void Tell(World& world, const Promotion& promotion, const std::string& ours,
          const std::string& theirs) {
  if (promotion.Uid == world.PlayerUid())
    AddNews(world, "News Desk", ours);
  else if (ShouldTell(world, world.Game().MailSponsor, promotion.Size))
    AddNews(world, promotion.Initials + " News", theirs);
}

}  // namespace

void SponsorRiskReview(World& world) {
  for (Sponsor& sponsor : world.Sponsors()) {
    const Promotion* promotion = world.FindPromotion(sponsor.Promotion);
    if (!promotion || BearsRisk(sponsor, promotion->Risk)) continue;
    Tell(world, *promotion,
         sponsor.Name +
             " have ended our sponsorship deal due to the increasingly risky material that we are "
             "using.",
         promotion->Initials + " have ended their sponsorship deal with " + sponsor.Name.Str() +
             " due to the increasingly risky material that they are using.");
    LoseSponsor(world, sponsor);
  }
}

void SponsorContractCountdown(World& world) {
  for (Sponsor& sponsor : world.Sponsors()) {
    if (sponsor.Promotion == 0) continue;
    if (sponsor.ContractMonths > 1) {
      sponsor.ContractMonths -= 1;
      continue;
    }
    if (const Promotion* promotion = world.FindPromotion(sponsor.Promotion))
      Tell(world, *promotion, "Our sponsorship deal with " + sponsor.Name.Str() + " has now ended.",
           sponsor.Name + " have ended their sponsorship deal with " + promotion->Initials.Str() +
               ".");
    LoseSponsor(world, sponsor);
  }
}

}  // namespace grapplemont
