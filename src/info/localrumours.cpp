#include <algorithm>

#include "business/sponsors.h"
#include "info/meeting.h"
#include "info/smallmonth.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "roster/signing.h"
#include "roster/staff.h"
#include "roster/workerfacts.h"

// What is said in the streets around a small promotion's hall.

namespace grapplemont {

namespace {

constexpr int kDiscontent = 40;
constexpr std::size_t kTalkedOf = 8;

/// One of them, the same all month while they stay what they are; nullptr for none.
template <class T>
const T* OneByFate(const World& world, int kind, const std::vector<const T*>& all) {
  if (all.empty()) return nullptr;
  const int month = YearOf(world.Today()) * 12 + MonthOf(world.Today());
  SeededDraws draws = world.Fate("local rumour", {world.PlayerUid(), month, kind});
  return all[static_cast<std::size_t>(draws.Draw(static_cast<int>(all.size())) - 1)];
}

using Rumours = std::vector<LocalRumour>;

void OfSponsors(const World& world, int kind, Rumours& rumours) {
  std::vector<const Sponsor*> willing;
  for (const Sponsor& sponsor : world.Sponsors())
    if (sponsor.Promotion == 0 && AnswerOf(sponsor, world.Player()) == SponsorAnswer::Accepts)
      willing.push_back(&sponsor);
  if (const Sponsor* one = OneByFate(world, kind, willing))
    rumours.push_back({one->Name + " would put their name on our ring today, for " +
                           Dollars(one->Pay * 1000LL) + " an Event.",
                       0, "frmFedSponsor"});
}

/// The most popular of those whom the test keeps and who would come.
template <class Test>
std::vector<const Worker*> WhoWouldCome(const World& world, Test test) {
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (!WorksForPlayer(world, worker) && worker.Status == "Nor" && test(worker) &&
        WhyNoSigning(world, worker).empty())
      people.push_back(&worker);
  std::ranges::stable_sort(people, [](auto* a, auto* b) { return a->Over > b->Over; });
  if (people.size() > kTalkedOf) people.resize(kTalkedOf);
  return people;
}

void OfTheFree(const World& world, int kind, Rumours& rumours) {
  const auto people = WhoWouldCome(world, [](const Worker& w) { return w.Employer == 0; });
  if (const Worker* one = OneByFate(world, kind, people))
    rumours.push_back({one->Name + " wrestles nowhere, lives two streets away and would come for " +
                           WageText(ContractDemands(world, *one).Wage) + " a month.",
                       one->Uid});
}

void OfTheDiscontent(const World& world, int kind, Rumours& rumours) {
  const auto people = WhoWouldCome(
      world, [](const Worker& w) { return w.Employer != 0 && w.Morale < kDiscontent; });
  if (const Worker* one = OneByFate(world, kind, people))
    rumours.push_back({one->Name + " of " + PromotionInitials(world, one->Employer) +
                           " tells every barber that they have had enough there.",
                       one->Uid});
}

void OfStaff(const World& world, int kind, Rumours& rumours) {
  const int most = TalentCeiling(world.Player().Size);
  std::vector<const Staff*> free;
  for (const PostCount& post : PostCounts(world))
    for (const Staff& staff : world.AllStaff())
      if (IsShort(post) && staff.Employer == 0 && staff.Position == post.Post &&
          staff.Talent <= most && WhyNoStaffOffer(world, staff).empty())
        free.push_back(&staff);
  if (const Staff* one = OneByFate(world, kind, free))
    rumours.push_back({one->Name +
                           " asked at the door for work: " + std::string(PostText(one->Position)) +
                           ", talent " + std::to_string(one->Talent) + ". We are short of one.",
                       0, "frmOtherStaff"});
}

void OfNeighbours(const World& world, int kind, Rumours& rumours) {
  std::vector<const Promotion*> forSale;
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion) && HasSmallMonth(promotion) && IsForSale(promotion))
      forSale.push_back(&promotion);
  if (const Promotion* one = OneByFate(world, kind, forSale))
    rumours.push_back({"Whoever pays the debts of " + one->Name.Str() + ", " +
                           Dollars(-static_cast<long long>(one->Money)) +
                           ", can have it with all its people.",
                       0, "frmOtherFed"});
}

constexpr void (*kTellers[])(const World&, int kind, Rumours&) = {
    OfSponsors, OfTheFree, OfTheDiscontent, OfStaff, OfNeighbours};

}  // namespace

std::vector<LocalRumour> LocalRumours(const World& world) {
  Rumours rumours;
  if (!HasSmallMonth(world.Player())) return rumours;
  int kind = 0;
  for (const auto tell : kTellers) tell(world, kind++, rumours);
  return rumours;
}

}  // namespace grapplemont
