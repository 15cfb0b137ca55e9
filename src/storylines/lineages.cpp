#include "storylines/lineages.h"

#include <algorithm>
#include <functional>
#include <map>
#include <ranges>

#include "records/fields/fields.h"
#include "records/keepannals.h"
#include "records/modWresCheck.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

constexpr int kDropped = 1000;

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

/// Walks over the Titles and their reigns once.
class Update {
 public:
  explicit Update(World& world) : world_(world) {
    for (TitleReign& reign : world.Reigns())
      if (reign.End == kReignLasts) open_.emplace(NameOf(reign), &reign);
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
    for (const auto& [name, reign] : open_) Close(*reign, world_.Today(), kReignDissolved);
    for (const TitleReign& reign : fresh_) Append(reign);
  }

 private:
  /// The lines of its record that are new since the reign began.
  void Follow(const Title& title, TitleReign* reign) {
    if (IsPresent(*reign, title)) return;
    std::size_t fresh = 0;
    while (fresh < title.Reigns.size() && IsUsed(title.Reigns[fresh]) &&
           !IsLine(*reign, title.Reigns[fresh]))
      ++fresh;
    if (fresh == 0) fresh = 1;  // somebody has changed the line itself
    Enter(title, fresh, reign);
  }

  static bool IsLine(const TitleReign& reign, const Reign& line) {
    return reign.Holder == line.Holder && Day(reign.From) == Day(line.Won);
  }

  /// Appends the first `count` lines, the oldest first, and ends what was there before each.
  void Enter(const Title& title, std::size_t count, TitleReign* before) {
    for (std::size_t i = count; i-- > 0;) {
      const Reign& line = title.Reigns[i];
      if (before) Close(*before, line.Won, EndBefore(line));
      fresh_.push_back(ReignOf(title, line));
      before = nullptr;
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
      return known.first.first == title.Owner && IsPresent(*known.second, title);
    });
    if (renamed != open_.end()) {
      Rename(renamed->first, title.Name);
      open_.erase(renamed);
      return;
    }
    std::size_t lines = 0;
    while (lines < title.Reigns.size() && IsUsed(title.Reigns[lines])) ++lines;
    if (lines > 0) Enter(title, lines, nullptr);
  }

  /// The past of a Title goes with its new name.
  void Rename(const Name& before, std::string_view after) {
    for (TitleReign& reign : world_.Reigns())
      if (NameOf(reign) == before) reign.Title = after;
    for (Annal& event : world_.Annals())
      if (event.Kind == kAnnalTitle && event.Promotion == before.first &&
          event.What == before.second)
        event.What = after;
  }

  void Append(const TitleReign& reign) {
    Records<TitleReign>& reigns = world_.Reigns();
    if (reigns.Full()) {
      int dropped = 0;
      reigns.Keep(
          [&](const TitleReign& old) { return old.End == kReignLasts || ++dropped > kDropped; });
    }
    if (!reigns.Full()) reigns.Append(reign);
  }

  World& world_;
  std::multimap<Name, TitleReign*> open_;  // those that last
  std::vector<TitleReign> fresh_;          // appended at the end: an append may move the others
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
  Update(world).Run();
}

namespace {

/// The one that lasts; those are late in the file. nullptr where the reigns lag behind the Title.
TitleReign* PresentReign(World& world, const Title& title) {
  for (TitleReign& reign : std::views::reverse(world.Reigns()))
    if (reign.End == kReignLasts && reign.Owner == title.Owner && reign.Title == title.Name)
      return IsPresent(reign, title) ? &reign : nullptr;
  return nullptr;
}

}  // namespace

void CountDefence(World& world, const Title& title) {
  TitleReign* reign = PresentReign(world, title);
  if (!reign) {
    UpdateReigns(world);
    reign = PresentReign(world, title);
  }
  if (reign) reign->Defences = std::max<int>(0, reign->Defences) + 1;
}

std::vector<Lineage> LineagesOf(const World& world) {
  std::vector<Lineage> lineages;
  const auto add = [&](const Lineage& lineage) {
    if (std::ranges::find(lineages, lineage) == lineages.end()) lineages.push_back(lineage);
  };
  for (const Title& title : world.Titles())
    if (title.Owner > 0)
      add({title.Name.Str(), title.Owner, PromotionInitials(world, title.Owner), true});
  for (const TitleReign& reign : std::views::reverse(world.Reigns()))
    add({reign.Title.Str(), reign.Owner, reign.Initials.Str(), false});
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
