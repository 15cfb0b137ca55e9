#include "rivals/taste.h"

#include <algorithm>
#include <array>

#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

constexpr std::array<const char*, 6> kTasteTexts = {
    "Brawlers", "Technicians", "All-rounders", "High-flyers", "Women and stars", "Youth"};
constexpr int kYoung = 28;
constexpr int kUnsackableScore = 101;

int BestSkill(const Worker& worker) {
  return std::max({int(worker.Brawl), int(worker.Technical), int(worker.Speed)});
}

int SkillBeforeOver(int skill, const Worker& worker) {
  return (skill * 3 + worker.Over) / 4;
}

/// A Diva counts as if she could do everything, any other woman as half a star; a man has his
/// popularity alone.
int WomenFirst(const Worker& worker) {
  if (worker.Diva) return (worker.Over + 300) / 4;
  return (worker.Over + (worker.Gender ? 0 : 50)) / 2;
}

/// The young count for what they may become, the others for half of what they are.
int YouthFirst(const Worker& worker) {
  if (worker.Age >= kYoung) return SkillBeforeOver(BestSkill(worker), worker) / 2;
  return SkillBeforeOver(std::max<int>(BestSkill(worker), worker.Potential), worker);
}

}  // namespace

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
  return SkillBeforeOver(BestSkill(worker), worker);
}

int RosterScore(const Worker& worker, Taste taste) {
  if (worker.Unsackable) return kUnsackableScore;
  if (worker.Position == kManager) return (worker.Charisma * 2 + worker.Over * 3) / 5;
  return WorkerScore(worker, taste);
}

}  // namespace grapplemont
