#include "rivals/challenge.h"

#include <map>
#include <vector>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/founding.h"
#include "rivals/newpromotionnames.h"
#include "rivals/ownership.h"
#include "rivals/rivals.h"
#include "rivals/taste.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"

namespace grapplemont {

namespace {

constexpr const char* kStranger = "Lysander Pinkney";
constexpr NewPromotionName kStrangersNames[] = {{"Pinkney Presents Wrestling", "PPW"},
                                                {"Pinkney's Greater Show", "PGS"},
                                                {"The Pinkney Wrestling Empire", "TPWE"}};
constexpr int kStandingOfGlobals = (kBackyard - kGlobal) * 100;

const NewPromotionName* FreeName(const World& world) {
  for (const NewPromotionName& name : kStrangersNames)
    if (IsNameFree(world, name.Name, name.Initials)) return &name;
  return nullptr;
}

bool WasGlobal(const Promotion& promotion) {
  return std::any_of(promotion.Rank.begin(), promotion.Rank.end(),
                     [](int rank) { return rank >= kStandingOfGlobals; });
}

/// No rival that is still there was Global at any of the five month ends at which the player was.
bool HasLongBeenAlone(const World& world) {
  for (const int rank : world.Player().Rank)
    if (rank < kStandingOfGlobals) return false;
  return std::none_of(world.Promotions().begin(), world.Promotions().end(),
                      [&](auto& p) { return IsRival(world, p) && WasGlobal(p); });
}

bool IsRoomFor(const World& world) {
  return !world.Promotions().Full() && !world.AllStaff().Full();
}

/// He is the owner, of whatever style, and the promotion is as risky as that.
void Employ(World& world, Promotion& promotion) {
  Staff owner;
  owner.Uid = NextStaffUid(world);
  std::string name = kStranger;
  for (const char* behind : {" II", " III", " IV"})
    if (!StaffNameFree(world, name)) name = kStranger + std::string(behind);
  owner.Name = name;
  owner.Gender = true;
  owner.BirthMonth = world.RandomDraw(12);
  owner.Age = 44;
  owner.Employer = promotion.Uid;
  owner.ContractMonths = kNoEnd;
  owner.ContractType = "Non";
  owner.Wage = world.RandomDraw(kYouth);
  owner.Position = kOwner;
  owner.Talent = 92;
  owner.Morale = 100;
  owner.Backstage = 15;
  owner.Loyalty = 100;
  world.AllStaff().Append(owner);
  FollowOwner(promotion, owner);
}

bool IsStar(const Worker& worker) {
  return IsOnRoster(worker) && worker.Over > tuning::kStarsOver && !worker.Unsackable;
}

/// Money that bores its owner buys out any contract, the player's people's among them.
void BuyStars(World& world, const Promotion& promotion) {
  std::vector<Worker*> stars;
  for (Worker& worker : world.Workers())
    if (IsStar(worker) && worker.Employer != promotion.Uid) stars.push_back(&worker);
  std::stable_sort(stars.begin(), stars.end(), [](auto* a, auto* b) { return a->Over > b->Over; });
  std::map<int, int> takenFrom;
  int bought = 0;
  for (Worker* star : stars) {
    if (bought == tuning::kStrangersStars) break;
    const int from = star->Employer;
    if (from != 0 && takenFrom[from] == tuning::kStarsFromOne) continue;
    if (world.RandomDraw(tuning::kStarsAskedFor1) != 1) continue;
    ++takenFrom[from];
    ++bought;
    SignFor(world, promotion, *star);
  }
}

}  // namespace

bool IsAloneAtTheTop(const World& world) {
  return world.Player().Size == kGlobal &&
         std::none_of(world.Promotions().begin(), world.Promotions().end(),
                      [&](auto& p) { return IsRival(world, p) && p.Size == kGlobal; });
}

void AwaitStranger(World& world) {
  GameInfo& game = world.Game();
  if (game.EndCode != 0 || !IsAloneAtTheTop(world) || !HasLongBeenAlone(world) ||
      !IsRoomFor(world) || !FreeName(world))
    return;
  if (world.RandomDraw(tuning::kStrangerIn) == 1) game.EndCode = kStrangerWaits;
}

std::string StrangersWords(const World& world) {
  const std::string us = world.Player().Name.Str();
  return "A long pink car stops where nobody may stop, and a man in a suit of the same colour "
         "walks into your office without knocking.\n"
         "'" +
         std::string(kStranger) + ". Chewing gum, mostly. So this is " + us +
         ". Biggest wrestling company on the planet, and the only one of its size. Do you know "
         "what my father used to say about a shop without another across the street? He used to "
         "buy the street.'\n"
         "He puts a business card on your desk. It smells of strawberry.\n"
         "'I have forty million dollars that bore me and a lawyer who is signing leases as we "
         "speak. By tonight " +
         (FreeName(world) ? FreeName(world)->Name : "my company") +
         " is open for business. Your people have telephones, I take it? Good. Lovely to have met "
         "you, " +
         world.Game().PlayerName.Str() + ".'";
}

void MeetStranger(World& world) {
  world.Game().EndCode = 0;
  const NewPromotionName* name = FreeName(world);
  if (!name || !IsRoomFor(world)) return;
  Promotion promotion = NewPromotion(world, name->Name, name->Initials);
  promotion.Size = kNational;
  promotion.Money = tuning::kStrangersMoney;
  promotion.Image = 80;
  promotion.Momentum = 4;
  Employ(world, promotion);
  NoteDeed(world, kDeedFounded, &promotion, promotion.Name, {}, promotion.Size);
  AddNews(world, "New Promotion", "A new promotion, " + promotion.Name.Str() + ", has opened.");
  BuyStars(world, Open(world, promotion));
}

}  // namespace grapplemont
