#include "rivals/founding.h"

#include <algorithm>
#include <map>
#include <vector>

#include "business/finance.h"
#include "records/arithmetic.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/ownership.h"
#include "rivals/rivals.h"
#include "rivals/staffmarket.h"
#include "rivals/tuning.h"
#include "rivals/workermarket.h"
#include "storylines/titles.h"
#include "words/promotions.h"

namespace grapplemont {

namespace {

/// The Title of this name that a promotion has left behind, or any such once the file is full.
Title* LeftBehind(World& world, std::string_view name) {
  Title* any = nullptr;
  for (Title& title : world.Titles()) {
    if (title.Owner != kNoEnd) continue;
    if (title.Name == name) return &title;
    if (!any && world.Titles().Full()) any = &title;
  }
  return any;
}

/// "CWA Crown", or "CWA Crown II" and on where that is taken.
template <class Taken>
std::string NumberedName(const std::string& plain, Taken isTaken) {
  std::string name = plain;
  for (const char* behind :
       {" II", " III", " IV", " V", " VI", " VII", " VIII", " IX", " X", " XI", " XII"})
    if (isTaken(name)) name = plain + behind;
  return name;
}

bool IsHeld(const World& world, std::string_view name) {
  return std::ranges::any_of(world.Titles(), [&](const Title& title) {
    return title.Owner != kNoEnd && title.Name == name;
  });
}

/// Whether no promotion has the name or the initials, or had them until today.
bool IsNameFree(const World& world, std::string_view name, std::string_view initials) {
  return std::ranges::none_of(world.Promotions(),
                              [&](auto& p) { return p.Name == name || p.Initials == initials; });
}

/// A promotion of this name without people, sponsors, Titles or a past. Size, money, image and risk
/// are the caller's to set before `Open`.
Promotion NewPromotion(const World& world, std::string_view name, std::string_view initials) {
  Promotion promotion;
  promotion.Uid = NextPromotionUid(world);
  promotion.Active = true;
  promotion.Name = name;
  promotion.Initials = initials;
  promotion.MeetingDay = "Monday";
  for (auto& rank : promotion.Rank) rank = kNoEnd;
  for (Cash& money : promotion.MoneyBefore) money = kNoEnd;
  for (auto& split : promotion.Split) split = "None";
  promotion.CampName = "None";
  promotion.DevName = "None";
  return promotion;
}

/// Spends as its size does and enters the file.
Promotion& Enter(World& world, Promotion promotion) {
  const RivalSpending spending = RivalSpendingFor(promotion.Size);
  promotion.Merchandising = spending.Merchandising;
  promotion.Production = spending.Production;
  promotion.TicketPrice = FairTicketPrice(promotion.Size);
  promotion.Rank[0] = StandingScore(promotion);
  return world.Promotions().Append(promotion);
}

/// It opens today, and looks for workers and staff at once.
Promotion& Open(World& world, const Promotion& promotion) {
  Promotion& opened = Enter(world, promotion);
  Rosters rosters(world);
  FitRoster(world, opened, rosters);
  FitPosts(world, opened, Posts(world));
  return opened;
}

constexpr int kFewPromotions = 16;
constexpr int kManyPromotions = 30;
constexpr int kOpens = 2;
// By size; nobody opens as a Global promotion.
constexpr std::array<int, 6> kCapital = {0, 10000000, 5000000, 2000000, 1000000, 200000};

bool IsUnused(const World& world, const NewPromotionName& name) {
  return IsNameFree(world, name.Name, name.Initials);
}

bool AnyNameLeft(const World& world) {
  return std::ranges::any_of(kNewPromotionNames, [&](auto& name) { return IsUnused(world, name); });
}

const NewPromotionName& DrawUnusedName(World& world) {
  const auto draw = [&world]() -> const NewPromotionName& {
    const int row = world.RandomDraw(static_cast<int>(std::size(kNewPromotionNames)));
    return kNewPromotionNames[row - 1];
  };
  const NewPromotionName* name = &draw();
  while (!IsUnused(world, *name)) name = &draw();
  return *name;
}

void OpenSomewhere(World& world) {
  const NewPromotionName& name = DrawUnusedName(world);
  Promotion promotion = NewPromotion(world, name.Name, name.Initials);
  promotion.Size = 1 + world.RandomDraw(5);
  promotion.Money = BySize(kCapital, promotion.Size);
  promotion.Image = 20 + world.RandomDraw(60);
  promotion.Momentum = world.RandomDraw(4);
  promotion.Risk = 20 + world.RandomDraw(70);
  if (ShouldTell(world, world.Game().MailOtherFed, promotion.Size))
    AddNews(world, "New Promotion", "A new promotion, " + promotion.Name.Str() + ", has opened.");
  NoteDeed(world, kDeedFounded, &promotion, promotion.Name, {}, promotion.Size);
  Open(world, promotion);
}

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
  return std::ranges::any_of(promotion.Rank, [](int rank) { return rank >= kStandingOfGlobals; });
}

/// No rival that is still there was Global at any of the five month ends at which the player was.
bool HasLongBeenAlone(const World& world) {
  for (const int rank : world.Player().Rank)
    if (rank < kStandingOfGlobals) return false;
  return std::ranges::none_of(world.Promotions(),
                              [&](auto& p) { return IsRival(world, p) && WasGlobal(p); });
}

bool IsRoomFor(const World& world) {
  return !world.Promotions().Full() && !world.AllStaff().Full();
}

/// They are the owner, of whatever style, and the promotion is as risky as that.
void Employ(World& world, Promotion& promotion) {
  Staff owner;
  owner.Uid = NextStaffUid(world);
  owner.Name =
      NumberedName(kStranger, [&](std::string_view name) { return !StaffNameFree(world, name); });
  owner.Gender = true;
  owner.BirthMonth = world.Life().Draw(12);
  owner.Age = 44;
  owner.Employer = promotion.Uid;
  owner.ContractMonths = kNoEnd;
  owner.ContractType = "Non";
  owner.Wage = world.Life().Draw(kYouth);
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
  std::ranges::stable_sort(stars, [](auto* a, auto* b) { return a->Over > b->Over; });
  std::map<int, int> takenFrom;
  int bought = 0;
  for (Worker* star : stars) {
    if (bought == tuning::kStrangersStars) break;
    const int from = star->Employer;
    if (from != 0 && takenFrom[from] == tuning::kStarsFromOne) continue;
    if (world.Life().Draw(tuning::kStarsAskedFor1) != 1) continue;
    ++takenFrom[from];
    ++bought;
    SignFor(world, promotion, *star);
  }
}

}  // namespace

std::string FoundTitle(World& world, const Promotion& promotion, std::string_view what,
                       TitleTerms terms) {
  const std::string plain = promotion.Initials + " " + std::string(what);
  terms.Name = NumberedName(plain, [&](std::string_view name) { return IsHeld(world, name); });
  Title* before = LeftBehind(world, terms.Name);
  if (!before && world.Titles().Full()) return {};
  Title title =
      VacantTitle(world, terms, promotion.Uid, BySize(tuning::kNewTitleImage, promotion.Size));
  if (before && before->Name == terms.Name && before->Holder == 0) title.Reigns = before->Reigns;
  if (before)
    *before = title;
  else
    world.Titles().Append(title);
  return title.Name.Str();
}

void FoundTitles(World& world, const Promotion& promotion) {
  FoundTitle(world, promotion, "Crown", {});
  FoundTitle(world, promotion, "Tag Titles", {.Name = {}, .Singles = false});
}

std::string WhyNotFound(const World& world, std::string_view name, std::string_view initials) {
  constexpr std::size_t kLongestName = 40, kLongestInitials = 6;
  if (world.Promotions().Full()) return "The world holds no more promotions.";
  if (name.empty() || initials.empty()) return "It needs a name and initials.";
  if (name.size() > kLongestName || initials.size() > kLongestInitials)
    return "A name has 40 letters at most, initials have 6.";
  if (name == kToBeDeleted || name == "None" || !IsNameFree(world, name, initials))
    return "There is a promotion of that name, or with those initials.";
  return {};
}

Promotion& FoundOwn(World& world, std::string_view name, std::string_view initials) {
  Promotion promotion = NewPromotion(world, name, initials);
  promotion.Size = kBackyard;
  promotion.Money = kOwnCapital;
  promotion.Image = tuning::kOwnImage;
  promotion.Momentum = tuning::kOwnMomentum;
  promotion.Risk = tuning::kOwnRisk;
  NoteDeed(world, kDeedFounded, &promotion, promotion.Name, {}, promotion.Size);
  return Enter(world, promotion);
}

void NewPromotionCheck(World& world) {
  const auto count = std::ranges::count_if(world.Promotions(), IsAlive);
  const bool opens = world.RandomDraw(count < kFewPromotions ? 3 : 5) == kOpens;
  if (opens && count < kManyPromotions && !world.Promotions().Full() && AnyNameLeft(world))
    OpenSomewhere(world);
  AwaitStranger(world);
}

bool IsAloneAtTheTop(const World& world) {
  return world.Player().Size == kGlobal && std::ranges::none_of(world.Promotions(), [&](auto& p) {
           return IsRival(world, p) && p.Size == kGlobal;
         });
}

void AwaitStranger(World& world) {
  GameInfo& game = world.Game();
  if (game.EndCode != 0 || !IsAloneAtTheTop(world) || !HasLongBeenAlone(world) ||
      !IsRoomFor(world) || !FreeName(world))
    return;
  if (world.Life().Draw(tuning::kStrangerIn) == 1) game.EndCode = kStrangerWaits;
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
