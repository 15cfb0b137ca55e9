#include "rivals/staffmarket.h"

#include "records/modVar.h"
#include "records/severing.h"
#include "rivals/rivals.h"
#include "roster/postings.h"

namespace grapplemont {

namespace {

// How many people a rival wants in a post, Announcer to Trainer; by size, Global to Backyard.
constexpr std::array<std::array<int, 6>, 7> kTargets = {{{5, 4, 3, 2, 1, 0},
                                                         {4, 3, 2, 1, 1, 1},
                                                         {4, 4, 3, 1, 0, 0},
                                                         {2, 2, 1, 1, 0, 0},
                                                         {3, 2, 1, 1, 0, 0},
                                                         {4, 3, 2, 1, 0, 0},
                                                         {2, 1, 1, 1, 0, 0}}};

struct TalentLimits {
  int AtMost;
  int Above;
};
constexpr std::array<TalentLimits, 6> kTalent = {
    {{100, 70}, {100, 40}, {80, 30}, {60, 15}, {40, 0}, {20, 0}}};
constexpr std::array<int, 6> kStaffWageRise = {5, 4, 2, 1, 0, 0};

constexpr int kHighestStaffWage = 100;  // thousands of dollars a month
constexpr int kStaffMoodSwing = 20;
constexpr int kUnsackableTalent = 101;
constexpr int kAboveAllTalents = 102;

}  // namespace

Posts::Posts(const World& world) {
  for (const Staff& staff : world.AllStaff())
    if (staff.Employer != 0 && staff.Position >= kOwner && staff.Position <= kTrainer)
      ++counts_[staff.Employer][static_cast<std::size_t>(int(staff.Position))];
}

int Posts::Of(int promotionUid, int position) const {
  const auto found = counts_.find(promotionUid);
  return found == counts_.end() ? 0 : found->second[static_cast<std::size_t>(position)];
}

Staff* FindStaffFor(World& world, int position, int size) {
  const TalentLimits& limits = BySize(kTalent, size);
  Staff* best = nullptr;
  for (Staff& staff : world.AllStaff()) {
    if (staff.Employer != 0 || staff.Position != position || world.RandomDraw(5) != 1) continue;
    if (staff.Talent > limits.AtMost || staff.Talent <= limits.Above) continue;
    if (!best || staff.Talent > best->Talent) best = &staff;
  }
  return best;
}

void SignStaff(World& world, const Promotion& rival, Staff& staff) {
  staff.Employer = rival.Uid;
  staff.ContractMonths = ContractMonthsAt(rival.Size);
  staff.ContractType = rival.Size < kCult ? "Wri" : "Non";
  staff.Unsackable = false;
  staff.Morale += kStaffMoodSwing;
  staff.Wage = std::min(staff.Wage + BySize(kStaffWageRise, rival.Size), kHighestStaffWage);
  TellOf(world, world.Game().MailStaffHire, rival,
         rival.Initials + " have signed staff member " + staff.Name.Str() + "!");
}

Staff* FindWeakestStaff(World& world, int promotionUid, int position) {
  Staff* weakest = nullptr;
  int lowest = kAboveAllTalents;
  for (Staff& staff : world.AllStaff()) {
    if (staff.Employer != promotionUid || staff.Position != position) continue;
    const int talent = staff.Unsackable ? kUnsackableTalent : int(staff.Talent);
    if (talent >= lowest) continue;
    weakest = &staff;
    lowest = talent;
  }
  return weakest;
}

void FireStaff(World& world, const Promotion& rival, Staff& staff) {
  DismissStaff(world, staff);
  staff.ContractType = "Non";
  staff.Unsackable = false;
  staff.Morale -= kStaffMoodSwing;
  TellOf(world, world.Game().MailStaffFire, rival,
         rival.Initials + " have fired staff member " + staff.Name.Str() + "!");
}

void FitPosts(World& world, const Promotion& rival, const Posts& posts) {
  for (int position = kAnnouncer; position <= kTrainer; ++position) {
    const int wanted =
        BySize(kTargets.at(static_cast<std::size_t>(position - kAnnouncer)), rival.Size);
    const int count = posts.Of(rival.Uid, position);
    for (int n = count; n < wanted; ++n) {
      Staff* staff = FindStaffFor(world, position, rival.Size);
      if (!staff) break;
      SignStaff(world, rival, *staff);
    }
    for (int n = wanted; n < count; ++n)
      if (Staff* staff = FindWeakestStaff(world, rival.Uid, position))
        FireStaff(world, rival, *staff);
  }
}

void RivalStaffHiring(World& world) {
  const Posts posts(world);
  for (const Promotion& promotion : world.Promotions())
    if (IsRival(world, promotion)) FitPosts(world, promotion, posts);
}

}  // namespace grapplemont
