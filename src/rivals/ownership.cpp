#include "rivals/ownership.h"

#include <algorithm>
#include <array>
#include <set>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "rivals/rivals.h"
#include "roster/postings.h"

namespace grapplemont {

namespace {

constexpr int kDaysBetweenOwners = 14;
constexpr int kAnybody = -1;
constexpr int kNever = 0;

/// An owner of more talent than Above, and of no more than the row before it, comes on a 1 of a
/// draw of In.
struct TalentBand {
  int Above;
  int In;
};
using TalentBands = std::array<TalentBand, 3>;
// By size, Global to Backyard: those too good for a small one stay away as those do whom a big one
// would not have.
constexpr std::array<TalentBands, 6> kBands = {{
    {{{75, 2}, {kAnybody, kNever}, {kAnybody, kNever}}},
    {{{85, 3}, {50, 2}, {kAnybody, kNever}}},
    {{{85, 4}, {40, 2}, {kAnybody, kNever}}},
    {{{75, kNever}, {40, 2}, {15, 3}}},
    {{{65, kNever}, {30, 3}, {kAnybody, 2}}},
    {{{45, kNever}, {15, 3}, {kAnybody, 2}}},
}};

bool Takes(World& world, int size, int talent) {
  for (const TalentBand& band : BySize(kBands, size))
    if (talent > band.Above) return band.In != kNever && world.RandomDraw(band.In) == 1;
  return false;
}

Staff* FindOwnerFor(World& world, int size) {
  for (Staff& staff : world.AllStaff())
    if (staff.Employer == 0 && staff.Position == kOwner && Takes(world, size, staff.Talent))
      return &staff;
  return nullptr;
}

/// Owners whom people know by the way they talk.
struct OwnVoice {
  const char* Owner;
  const char* Words;
};
constexpr OwnVoice kOwnVoices[] = {
    {"Dalton Reeve",
     "Well slap my back and call me Sally, if ol' Dalton ain't runnin' this rodeo now! You keep "
     "them fans hollerin', and we'll be dinin' like kings, if you weeeel!"},
    {"Baron Felix Moneybags",
     "One has bought the place. One has not quite read what it does. Do carry on, and kindly see "
     "that it makes more of the stuff in the vault."},
    {"Tammy Lottowinner",
     "OH MY GOD I own a wrestling company!!! My numbers were my cats' birthdays! Please don't let "
     "me break anything!"},
    {"Carl From The Bank",
     "For the avoidance of doubt: this is no longer a debt, it is an asset. Please keep all "
     "receipts. Carl."},
    {"Gus Hubcap",
     "I've sold used cars for thirty years. Same business, bigger trousers. Shift the stock and we "
     "won't have a problem."},
    {"Tyler Huckstep",
     "sup. i run this now. can we do one where they all jump off the garage? mum says i have to be "
     "home by ten."},
};

// By the owner's style.
constexpr const char* kWelcomes[] = {
    "I own this company now, and I like my wrestling with fists in it. Give me fighters.",
    "The company is mine as of today. I want holds, counter-holds and people who know why.",
    "I have bought us. Surprise me with a good show every week and we will get along.",
    "New management, new heights. I mean it: I want to see people fly.",
    "I'm your new boss. I want faces that people put on their walls, and the women get their due.",
    "I have taken over, and I am building for ten years. Show me the young ones.",
};

// By the owner's style: how risky they want their shows.
constexpr std::array<int, 6> kRisks = {70, 30, 10, 40, 85, 20};

/// What a new boss writes to the player.
std::string OwnersWelcome(const World& world, const Staff& owner) {
  for (const OwnVoice& voice : kOwnVoices)
    if (owner.Name == voice.Owner) return voice.Words;
  return kWelcomes[static_cast<std::size_t>(TasteOf(world, owner.Employer) - 1)];
}

void TakeOver(World& world, Promotion& promotion, Staff& owner) {
  owner.Employer = promotion.Uid;
  owner.ContractMonths = kNoEnd;
  owner.Unsackable = false;
  NoteDeed(world, kDeedOwner, &promotion, owner.Name);
  const bool isOwn = IsPlayers(world, promotion);
  if (!isOwn) FollowOwner(promotion, owner);
  // The mail options are about rivals alone.
  if (isOwn || ShouldTell(world, world.Game().MailOwners, promotion.Size))
    AddNews(world, "News Desk",
            owner.Name + " has taken over control of " + promotion.Name.Str() + "!");
  if (isOwn) AddNews(world, owner.Name, OwnersWelcome(world, owner));
}

constexpr std::array<const char*, 6> kTasteTexts = {
    "Brawlers", "Technicians", "All-rounders", "High-flyers", "Women and stars", "Youth"};
constexpr int kYoung = 28;
constexpr int kUnsackableScore = 101;

int SkillBeforeOver(int skill, const Worker& worker) {
  return (skill * 3 + worker.Over) / 4;
}

/// A Diva counts as if she could do everything, any other woman as half a star; of a man popularity
/// alone counts.
int WomenFirst(const Worker& worker) {
  if (worker.Diva) return (worker.Over + 300) / 4;
  return (worker.Over + (worker.Gender ? 0 : 50)) / 2;
}

/// The young count for what they may become, the others for half of what they are.
int YouthFirst(const Worker& worker) {
  if (worker.Age >= kYoung) return SkillBeforeOver(BestSkillOf(worker), worker) / 2;
  return SkillBeforeOver(std::max<int>(BestSkillOf(worker), worker.Potential), worker);
}

}  // namespace

std::string WhoDecides(const World& world, const Promotion& promotion) {
  const Staff* owner = OwnerOf(world, promotion.Uid);
  return owner ? promotion.Initials + " owner " + owner->Name.Str()
               : "The " + promotion.Initials.Str() + " board";
}

void FollowOwner(Promotion& rival, const Staff& owner) {
  if (owner.Wage >= kBrawlers && owner.Wage <= kYouth)
    rival.Risk = kRisks[static_cast<std::size_t>(owner.Wage - kBrawlers)];
}

void OwnerlessPromotions(World& world) {
  std::set<int> owned;
  for (const Staff& staff : world.AllStaff())
    if (staff.Position == kOwner) owned.insert(staff.Employer);
  for (Promotion& promotion : world.Promotions()) {
    if (!IsAlive(promotion) || owned.contains(promotion.Uid) ||
        world.RandomDraw(kDaysBetweenOwners) != 1)
      continue;
    if (Staff* owner = FindOwnerFor(world, promotion.Size)) TakeOver(world, promotion, *owner);
  }
}

Taste TasteOf(const World& world, int promotionUid) {
  const Staff* owner = OwnerOf(world, promotionUid);
  const int style = owner ? int(owner->Wage) : 0;
  return style >= kBrawlers && style <= kYouth ? static_cast<Taste>(style) : kAllRound;
}

const char* TasteText(Taste taste) {
  return kTasteTexts.at(static_cast<std::size_t>(taste - 1));
}

int WorkerScore(const Worker& worker, Taste taste) {
  switch (taste) {
    case kBrawlers:
      return SkillBeforeOver(worker.Brawl, worker);
    case kTechnicians:
      return SkillBeforeOver(worker.Technical, worker);
    case kHighFlyers:
      return SkillBeforeOver(worker.Speed, worker);
    case kWomen:
      return WomenFirst(worker);
    case kYouth:
      return YouthFirst(worker);
    case kAllRound:
      break;
  }
  return SkillBeforeOver(BestSkillOf(worker), worker);
}

int RosterScore(const Worker& worker, Taste taste) {
  if (worker.Unsackable) return kUnsackableScore;
  if (worker.Position == kManager) return (worker.Charisma * 2 + worker.Over * 3) / 5;
  return WorkerScore(worker, taste);
}

}  // namespace grapplemont
