#include "storylines/lineages.h"

#include <algorithm>
#include <functional>
#include <map>
#include <optional>
#include <ranges>
#include <set>
#include <string_view>
#include <utility>

#include "records/fields/fields.h"
#include "records/keepannals.h"
#include "records/modWresCheck.h"
#include "records/store/packing.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

constexpr int kDropped = 1000;
/// A reign that records may tell of for ever: so many days, or defences.
constexpr int kGreatDays = 365, kGreatDefences = 30;

/// A Title as the reigns know it.
using Name = std::pair<int, std::string>;

Name NameOf(const TitleReign& reign) {
  return {reign.Owner, reign.Title.Str()};
}
Name NameOf(const Title& title) {
  return {title.Owner, title.Name.Str()};
}

bool IsUsed(const Reign& line) {
  return line.Holder != "None" && !line.Holder.View().empty();
}

bool IsPresent(const TitleReign& reign, const Title& title) {
  return reign.Worker == title.Holder && reign.Partner == title.Partner &&
         Day(reign.From) == Day(title.Reigns[0].Won);
}

/// Who was called so; for who holds it now the Title itself knows.
std::pair<int, int> PeopleOf(const World& world, const Title& title, const Reign& line) {
  if (&line == &title.Reigns.front()) return {title.Holder, title.Partner};
  for (const Team& team : world.Teams())
    if (!title.Singles && team.Name == line.Holder) return {team.Worker1, team.Worker2};
  for (const Worker& worker : world.Workers())
    if (title.Singles && worker.Name == line.Holder) return {worker.Uid, 0};
  return {0, 0};
}

bool IsGreat(const TitleReign& reign) {
  return !IsVacancy(reign) &&
         (DaysOf(reign, reign.Until) >= kGreatDays || reign.Defences >= kGreatDefences);
}

/// So many stay of each promotion's longest, shortest and most defended, and of one that has
/// closed.
constexpr std::size_t kBestOfEach = 20, kBestOfClosed = 3;

/// What a promotion's tables go by, the higher the better; nothing for who does not stand there.
using Worth = std::optional<int> (*)(const TitleReign&);
constexpr Worth kWorths[] = {
    [](const TitleReign& reign) {
      const int days = DaysOf(reign, reign.Until);
      return days < 0 ? std::nullopt : std::optional(days);
    },
    [](const TitleReign& reign) {
      const int days = DaysOf(reign, reign.Until);
      return days < 0 || reign.End != kReignLost ? std::nullopt : std::optional(-days);
    },
    [](const TitleReign& reign) {
      return reign.Defences > 0 ? std::optional(int(reign.Defences)) : std::nullopt;
    }};

/// The numbers of those that each promotion's tables begin with.
std::set<int> BestOfEach(const World& world) {
  using House = std::pair<int, std::string_view>;
  std::set<int> best;
  for (const Worth worth : kWorths) {
    std::map<House, std::vector<std::pair<int, int>>> ranks;  // worth, and number
    for (const TitleReign& reign : world.Reigns())
      if (const auto value = worth(reign); value && !IsVacancy(reign) && reign.End != kReignLasts)
        ranks[{reign.Owner, reign.Initials.View()}].emplace_back(-*value,
                                                                 world.Reigns().NumberOf(reign));
    for (auto& [house, rank] : ranks) {
      const Promotion* promotion = world.FindPromotion(house.first);
      const bool stands = promotion && promotion->Initials == house.second;
      std::ranges::sort(rank);
      rank.resize(std::min(rank.size(), stands ? kBestOfEach : kBestOfClosed));
      for (const auto& [value, number] : rank) best.insert(number);
    }
  }
  return best;
}

/// Whether each Title has its present holder's reign and no other lasts: on most days.
bool IsUpToDate(const World& world) {
  struct Open {
    int Owner;
    std::string_view Title;
    const TitleReign* Reign;
  };
  std::vector<Open> open;
  for (const TitleReign& reign : world.Reigns())
    if (reign.End == kReignLasts) open.push_back({reign.Owner, reign.Title.View(), &reign});
  const auto key = [](const Open& one) { return std::pair(one.Owner, one.Title); };
  std::ranges::stable_sort(open, {}, key);
  std::size_t met = 0;
  for (const Title& title : world.Titles()) {
    if (title.Owner <= 0) continue;
    const std::pair<int, std::string_view> name(title.Owner, title.Name.View());
    auto known = std::ranges::lower_bound(open, name, {}, key);
    while (known != open.end() && key(*known) == name && !known->Reign) ++known;
    if (known == open.end() || key(*known) != name || !IsPresent(*known->Reign, title))
      return false;
    known->Reign = nullptr;
    ++met;
  }
  return met == open.size();
}

/// Walks over the Titles and their reigns once.
class Update {
 public:
  explicit Update(World& world) : reigns_(world.Reigns()), world_(world) {
    for (const TitleReign& reign : reigns_)
      if (reign.End == kReignLasts) open_.emplace(NameOf(reign), reigns_.NumberOf(reign));
  }

  void Run() {
    std::vector<const Title*> strangers;
    for (const Title& title : world_.Titles()) {
      if (title.Owner <= 0) continue;  // its promotion has closed
      const auto known = open_.find(NameOf(title));
      if (known == open_.end()) {
        strangers.push_back(&title);
        continue;
      }
      Follow(title, known->second);
      open_.erase(known);
    }
    for (const Title* title : strangers) Meet(*title);
    for (const auto& [name, reign] : open_)
      Close(reigns_.Change(reign), world_.Today(), kReignDissolved);
    for (const TitleReign& reign : fresh_) Append(reign);
  }

 private:
  /// The lines of its record that are new since the reign began.
  void Follow(const Title& title, int number) {
    const TitleReign& reign = std::as_const(reigns_)[number];
    if (IsPresent(reign, title)) return;
    std::size_t fresh = 0;
    while (fresh < title.Reigns.size() && IsUsed(title.Reigns[fresh]) &&
           !IsLine(reign, title.Reigns[fresh]))
      ++fresh;
    if (fresh == 0) fresh = 1;  // somebody has changed the line itself
    Enter(title, fresh, number);
  }

  static bool IsLine(const TitleReign& reign, const Reign& line) {
    return reign.Holder == line.Holder && Day(reign.From) == Day(line.Won);
  }

  /// Appends the first `count` lines, the oldest first, and ends what was there before each:
  /// `before` is the number of the reign before the first, 0 for none.
  void Enter(const Title& title, std::size_t count, int before) {
    for (std::size_t i = count; i-- > 0;) {
      const Reign& line = title.Reigns[i];
      if (before != 0) Close(reigns_.Change(before), line.Won, EndBefore(line));
      fresh_.push_back(ReignOf(title, line));
      before = 0;
      if (i == 0) continue;
      const Reign& next = title.Reigns[i - 1];
      Close(fresh_.back(), line.Lost, EndBefore(next));
    }
  }

  static ReignEnd EndBefore(const Reign& next) {
    return next.Holder == "Vacant" ? kReignVacated : kReignLost;
  }

  static void Close(TitleReign& reign, Day on, ReignEnd how) {
    reign.Until = on;
    reign.End = how;
  }

  TitleReign ReignOf(const Title& title, const Reign& line) const {
    TitleReign reign;
    reign.From = line.Won;
    reign.Until = kNoTitleDate;
    reign.Title = title.Name;
    reign.Owner = title.Owner;
    reign.Initials = PromotionInitials(world_, title.Owner);
    const auto [holder, partner] = PeopleOf(world_, title, line);
    reign.Worker = holder;
    reign.Partner = partner;
    reign.Holder = line.Holder;
    reign.Defences = 0;
    return reign;
  }

  /// A Title nobody knows by its name: one of the promotion's under a new name, or a new one.
  void Meet(const Title& title) {
    const auto renamed = std::ranges::find_if(open_, [&](const auto& known) {
      return known.first.first == title.Owner &&
             IsPresent(std::as_const(reigns_)[known.second], title);
    });
    if (renamed != open_.end()) {
      Rename(renamed->first, title.Name);
      open_.erase(renamed);
      return;
    }
    std::size_t lines = 0;
    while (lines < title.Reigns.size() && IsUsed(title.Reigns[lines])) ++lines;
    if (lines > 0) Enter(title, lines, 0);
  }

  /// The past of a Title goes with its new name.
  void Rename(const Name& before, std::string_view after) {
    reigns_.EditEach([&](TitleReign& reign) {
      if (NameOf(reign) == before) reign.Title = after;
    });
    world_.Annals().EditEach([&](Annal& event) {
      if (event.Kind == kAnnalTitle && event.Promotion == before.first &&
          event.What == before.second)
        event.What = after;
    });
    // Whoever looks for the reign of a match or a feat goes by the Title's name.
    const auto rename = [&](auto& record, auto& title) {
      if (record.Promotion == before.first && title == before.second) title = after;
    };
    world_.Bouts().EditEach([&](HeldMatch& match) { rename(match, match.Title); });
    world_.RivalCards().EditEach([&](CardMatch& match) { rename(match, match.Title); });
    world_.Of<Feat>().EditEach([&](Feat& feat) { rename(feat, feat.What); });
    if (before.first != world_.PlayerUid()) return;
    world_.Wishes().EditEach([&](OwnerWish& wish) {
      if (wish.About == before.second) wish.About = after;
    });
  }

  void Append(const TitleReign& reign) {
    for (const bool great : {true, false}) {  // those that records tell of go last
      int dropped = 0;
      if (!reigns_.Full()) break;
      const std::set<int> best = great ? BestOfEach(world_) : std::set<int>();
      reigns_.Keep([&](const TitleReign& old) {
        return old.End == kReignLasts ||
               (great && (IsGreat(old) || best.contains(reigns_.NumberOf(old)))) ||
               ++dropped > kDropped;
      });
    }
    if (!reigns_.Full()) reigns_.Append(reign);
  }

  Records<TitleReign>& reigns_;
  World& world_;
  std::multimap<Name, int> open_;  // the numbers of those that last
  std::vector<TitleReign> fresh_;  // appended at the end: an append may move the others
};

/// The latest first.
template <class Test>
std::vector<const TitleReign*> ReignsWhere(const World& world, Test test) {
  std::vector<const TitleReign*> reigns;
  for (const TitleReign& reign : std::views::reverse(world.Reigns()))
    if (test(reign)) reigns.push_back(&reign);
  return reigns;
}

}  // namespace

void UpdateReigns(World& world) {
  const Records<TitleReign>& reigns = world.Reigns();
  const SessionWords::Agreed now{reigns.Changes(), reigns.Count(),
                                 Checksum(world.Titles().RecordBytes())};
  if (world.Session.Reigns == now) return;
  if (IsUpToDate(world))
    world.Session.Reigns = now;
  else
    Update(world).Run();
}

bool HaveReignsGone(const World& world) {
  return world.Reigns().Count() >= LayoutOf<TitleReign>().Limit - kDropped;
}

namespace {

/// The number of the one that lasts; those are late in the file. 0 where the reigns lag behind the
/// Title.
int PresentReign(const World& world, const Title& title) {
  const auto& reigns = world.Reigns();
  for (int number = reigns.Count(); number >= 1; --number) {
    const TitleReign& reign = reigns[number];
    if (reign.End == kReignLasts && reign.Owner == title.Owner && reign.Title == title.Name)
      return IsPresent(reign, title) ? number : 0;
  }
  return 0;
}

}  // namespace

void CountDefence(World& world, const Title& title) {
  int number = PresentReign(world, title);
  if (number == 0) {
    UpdateReigns(world);
    number = PresentReign(world, title);
  }
  if (number == 0) return;
  TitleReign& reign = world.Reigns().Change(number);
  reign.Defences = std::max<int>(0, reign.Defences) + 1;
}

std::vector<Lineage> LineagesOf(const World& world) {
  std::vector<Lineage> lineages;
  std::set<std::pair<int, std::string_view>> known;
  for (const Title& title : world.Titles())
    if (title.Owner > 0 && known.emplace(title.Owner, title.Name.View()).second)
      lineages.push_back(
          {title.Name.Str(), title.Owner, PromotionInitials(world, title.Owner), true});
  for (const TitleReign& reign : std::views::reverse(world.Reigns()))
    if (known.emplace(reign.Owner, reign.Title.View()).second)
      lineages.push_back({reign.Title.Str(), reign.Owner, reign.Initials.Str(), false});
  return lineages;
}

std::vector<const TitleReign*> ReignsOf(const World& world, const Lineage& lineage) {
  return ReignsWhere(world, [&](const TitleReign& reign) {
    return reign.Owner == lineage.Owner && reign.Title == lineage.Title;
  });
}

bool IsVacancy(const TitleReign& reign) {
  return reign.Holder == "Vacant";
}

int DaysOf(const TitleReign& reign, Day today) {
  const Day from = reign.From, until = reign.End == kReignLasts ? today : Day(reign.Until);
  if (from <= kNoTitleDate || until <= kNoTitleDate || until < from) return -1;
  return static_cast<int>((until - from).count());
}

std::vector<ChampionTotal> TotalsOf(const World& world, const Lineage& lineage) {
  std::vector<ChampionTotal> totals;
  for (const TitleReign* reign : ReignsOf(world, lineage)) {
    if (IsVacancy(*reign)) continue;
    auto total = std::ranges::find(totals, reign->Holder.View(), &ChampionTotal::Name);
    if (total == totals.end()) {
      totals.push_back(
          {reign->Holder.Str(), 0, 0, kNoEnd, reign->Partner == 0 ? int(reign->Worker) : 0});
      total = totals.end() - 1;
    }
    ++total->Reigns;
    total->Days += std::max(0, DaysOf(*reign, world.Today()));
    if (reign->Defences >= 0) total->Defences = std::max(0, total->Defences) + reign->Defences;
  }
  std::ranges::stable_sort(totals, std::greater{}, [](const ChampionTotal& total) {
    return std::pair(total.Days, total.Reigns);
  });
  return totals;
}

std::vector<const TitleReign*> ReignsOfWorker(const World& world, int workerUid) {
  return ReignsWhere(world, [&](const TitleReign& reign) {
    return workerUid != 0 && (reign.Worker == workerUid || reign.Partner == workerUid);
  });
}

}  // namespace grapplemont
