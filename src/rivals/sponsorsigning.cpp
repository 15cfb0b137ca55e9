#include "business/sponsorlimits.h"
#include "business/sponsors.h"
#include "records/modVar.h"
#include "rivals/rivals.h"
#include "rivals/rivalsteps.h"

namespace grapplemont {

Sponsor* SponsorForRival(World& world, const Promotion& rival) {
  const int limit = RivalSponsorPayLimit(rival.Size, rival.Image);
  for (Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == 0 && BearsRisk(sponsor, rival.Risk) && sponsor.Pay < limit)
      return &sponsor;
  return nullptr;
}

void RivalSponsorSigning(World& world) {
  for (Promotion& rival : world.Promotions()) {
    if (!IsRival(world, rival)) continue;
    for (int slot = 1; slot <= static_cast<int>(rival.Sponsor.size()); ++slot) {
      if (SponsorAt(world, rival, slot)) continue;
      Sponsor* sponsor = SponsorForRival(world, rival);
      if (!sponsor) break;
      SignSponsor(world, rival, *sponsor, slot);
      TellOf(world, world.Game().MailSponsor, rival,
             rival.Initials + " have signed a sponsorship deal with " + sponsor->Name.Str() + "!");
    }
  }
}

}  // namespace grapplemont
