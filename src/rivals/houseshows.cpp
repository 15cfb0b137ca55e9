#include "rivals/houseshows.h"

#include <vector>

#include "records/fields/fields.h"
#include "rivals/rivals.h"
#include "rivals/tuning.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

bool Works(const Worker& worker) {
  return IsOnRoster(worker) && worker.Status == "Nor";
}

bool IsEnough(int crew) {
  return crew >= tuning::kHouseShowCrew;
}

/// Who might hold a Title next; `Second` for its partner.
struct Contender {
  const Worker* First;
  const Worker* Second = nullptr;
  int Over = 0;
};

bool MayHold(const Worker& worker, const Title& title) {
  return worker.Employer == title.Owner && Works(worker) && FitsTitle(title, worker) &&
         worker.Uid != title.Holder && worker.Uid != title.Partner;
}

std::vector<Contender> Singles(const World& world, const Title& title) {
  std::vector<Contender> found;
  for (const Worker& worker : world.Workers())
    if (MayHold(worker, title)) found.push_back({&worker, nullptr, worker.Over});
  return found;
}

/// Teams that stand; where there are none, neighbours on the card pair up for the night.
std::vector<Contender> Pairs(const World& world, const Title& title) {
  std::vector<Contender> found;
  for (const Team& team : world.Teams()) {
    const Worker* one = world.FindWorker(team.Worker1);
    const Worker* two = world.FindWorker(team.Worker2);
    if (one && two && MayHold(*one, title) && MayHold(*two, title))
      found.push_back({one, two, (one->Over + two->Over) / 2});
  }
  if (!found.empty()) return found;
  std::vector<Contender> alone = Singles(world, title);
  std::ranges::stable_sort(alone, [](const Contender& a, const Contender& b) {
    return std::pair<int, int>(a.First->Position, -a.Over) <
           std::pair<int, int>(b.First->Position, -b.Over);
  });
  for (std::size_t i = 0; i + 1 < alone.size(); i += 2)
    found.push_back({alone[i].First, alone[i + 1].First, (alone[i].Over + alone[i + 1].Over) / 2});
  return found;
}

/// The best first, no more than count for a Title's holder.
std::vector<Contender> BestContenders(const World& world, const Title& title) {
  std::vector<Contender> found = title.Singles ? Singles(world, title) : Pairs(world, title);
  std::ranges::stable_sort(found,
                           [](const Contender& a, const Contender& b) { return a.Over > b.Over; });
  if (found.size() > tuning::kContenders) found.resize(tuning::kContenders);
  return found;
}

bool IsLost(World& world, const Title& title) {
  const auto days = (world.Today() - Day(title.Reigns[0].Won)).count();
  const int drawn = world.RandomDraw(100);
  for (const tuning::LongReign& row : tuning::kLongReigns)
    if (days >= row.From) return drawn <= row.LosesIn100;
  return false;
}

/// The belt's renown goes a step towards that of whoever carries it.
void FollowChampion(Title& title, int over) {
  title.Image += over > title.Image ? 1 : over < title.Image ? -1 : 0;
}

int ChampionsOver(const World& world, const Title& title) {
  const Worker* holder = world.FindWorker(title.Holder);
  return holder ? int(holder->Over) : 0;
}

/// Each Title of a rival's that is not suspended: a vacant one finds champions if anybody may hold
/// it, the other changes hands in this many of a hundred defences, the sooner the longer it has
/// not. Draws of a hundred for a defence, then once for who wins.
void DefendRivalTitles(World& world) {
  for (Title& title : world.Titles()) {
    const Promotion* owner = world.FindPromotion(title.Owner);
    if (!owner || !IsRival(world, *owner) || title.Suspended) continue;
    if (title.Holder == 0 || IsLost(world, title)) {
      const std::vector<Contender> contenders = BestContenders(world, title);
      if (!contenders.empty()) {
        const int drawn = world.RandomDraw(static_cast<int>(contenders.size()));
        const Contender& next = contenders[static_cast<std::size_t>(drawn - 1)];
        Crown(world, title, next.First->Uid, next.Second ? int(next.Second->Uid) : 0);
      }
    }
    if (title.Holder != 0) FollowChampion(title, ChampionsOver(world, title));
  }
}

}  // namespace

std::map<int, int> HouseShowCrews(const World& world) {
  std::map<int, int> crews;
  for (const Worker& worker : world.Workers())
    if (Works(worker)) ++crews[worker.Employer];
  return crews;
}

int HouseShowIncome(const Promotion& rival, int crew) {
  if (!IsEnough(crew)) return 0;
  const int sure = BySize(tuning::kHouseShow, rival.Size) / 2;
  return sure + sure * rival.Image / 100;
}

void RivalHouseShows(World& world) {
  std::map<int, int> crews = HouseShowCrews(world);
  for (Promotion& promotion : world.Promotions()) {
    if (!IsRival(world, promotion)) continue;
    const int dollars = HouseShowIncome(promotion, crews[promotion.Uid]);
    promotion.Money += dollars;
    promotion.ThisMonth.TicketIncome += dollars;
  }
  for (Worker& worker : world.Workers()) {
    const Promotion* employer = world.FindPromotion(worker.Employer);
    if (employer && IsRival(world, *employer) && Works(worker) && IsEnough(crews[employer->Uid]))
      worker.Condition -= world.RandomDraw(tuning::kHouseShowWear);
  }
  if (IsEventDay(world.Today() - std::chrono::days{1})) DefendRivalTitles(world);
}

}  // namespace grapplemont
