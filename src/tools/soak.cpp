#include "tools/soak.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "records/checks/checkworld.h"
#include "records/fields/charset.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "session/newgame.h"
#include "tools/commands.h"
#include "tools/manyworlds.h"
#include "tools/officework.h"
#include "tools/tool.h"

namespace grapplemont::tools {

namespace {

using Json = nlohmann::ordered_json;

/// The first of the month before.
Day MonthBefore(Day day) {
  const std::chrono::year_month_day date{day};
  return Day{(date.year() / date.month() - std::chrono::months{1}) / 1};
}

void Increase(Json& count) {
  count = count.get<int>() + 1;
}

Json PromotionsBySize(const World& world) {
  Json counts;
  for (const Term& size : kSizes) counts[std::string(size.Says)] = 0;
  counts["all"] = 0;
  for (const Promotion& promotion : world.Promotions()) {
    if (promotion.Name == kToBeDeleted) continue;
    for (const std::string_view size : {SizeText(promotion.Size), std::string_view("all")})
      if (!size.empty()) Increase(counts[std::string(size)]);
  }
  return counts;
}

Json WorkerCounts(const World& world) {
  int employed = 0, over = 0;
  for (const Worker& worker : world.Workers()) {
    if (worker.Employer == 0) continue;
    ++employed;
    over += worker.Over;
  }
  Json counts{{"employed", employed}, {"free", world.Workers().Count() - employed}};
  counts["meanOver"] = employed == 0 ? Json() : Json(std::round(100.0 * over / employed) / 100);
  return counts;
}

int ShowsOnAir(const World& world) {
  return static_cast<int>(std::count_if(world.Shows().begin(), world.Shows().end(),
                                        [](auto& show) { return show.Owner > 0; }));
}

/// Titles of living promotions, and how many reigns have begun since the day; a vacancy does not
/// count.
Json TitleCounts(const World& world, Day since) {
  int all = 0, held = 0, won = 0, tag = 0, tagVacant = 0;
  for (const Title& title : world.Titles()) {
    if (title.Owner <= 0) continue;
    ++all;
    held += title.Holder != 0;
    tag += !title.Singles;
    tagVacant += !title.Singles && title.Holder == 0;
    for (const Reign& reign : title.Reigns)
      won += Day(reign.Won) >= since && !(reign.Holder == kVacantHolder);
  }
  return {{"all", all}, {"held", held}, {"won", won}, {"tag", tag}, {"tagVacant", tagVacant}};
}

Json PlayerState(const World& world) {
  const Promotion* promotion = world.FindPromotion(world.PlayerUid());
  if (!promotion) return {};
  return {{"promotion", ToUtf8(promotion->Initials)},
          {"size", SizeText(promotion->Size)},
          {"image", int(promotion->Image)},
          {"money", int(promotion->Money)},
          {"reputation", int(world.Game().Reputation)}};
}

constexpr Day kStart{std::chrono::year{2026} / 1 / 1};
constexpr std::uint64_t kMostSeeds = 10000, kMostSoakDays = 40000;

/// One career: whose chair, which chance, what becomes of its shows.
struct Plan {
  int PromotionUid;
  std::uint64_t Seed;
  Shows Do;
  int Days;
};

void Begin(World& world, const World& data, const Plan& plan) {
  world.CopyFrom(data);
  world.SetChance(std::make_unique<SeededDraws>(plan.Seed));
  world.ExchangeProse(std::make_unique<SeededDraws>(plan.Seed + 1));
  world.SetLife(std::make_unique<SeededDraws>(plan.Seed + 2));
  NewGame(world, {.PlayerName = "Nobody",
                  .PromotionUid = plan.PromotionUid,
                  .Difficulty = kEasy + static_cast<int>(plan.Seed % 4),
                  .Start = kStart,
                  .SaveName = "Soak"});
}

/// What a career came to.
struct Soaked {
  std::string Who;
  std::string Told = {};  // its faults, a line each
  int Days = 0, Faults = 0;
  bool Ended = false;

  void Tell(const World& world, const std::string& what) {
    ++Faults;
    Told += ToUtf8(Who) + ", " + IsoDate(world.Today()) + ": " + ToUtf8(what) + "\n";
  }
  void Look(const World& world) {
    for (const Fault& fault : CheckWorld(world)) Tell(world, fault.Line());
  }
};

Soaked Play(World& world, const World& data, const Plan& plan) {
  Begin(world, data, plan);
  Soaked soaked{world.Player().Initials + ", seed " + std::to_string(plan.Seed) +
                (plan.Do == Shows::Auto ? ", auto" : ", cancel")};
  try {
    LiveOn(world, plan.Days, {.Do = plan.Do}, [&](int day) {
      soaked.Days = day;
      if (IsFirstOfMonth(world.Today())) soaked.Look(world);
      return true;
    });
  } catch (const FieldOverflow& fault) {
    soaked.Tell(world, world.Explain(fault));
  } catch (const std::exception& fault) {
    soaked.Tell(world, fault.what());
  }
  soaked.Look(world);
  soaked.Ended = EndCodeOf(world) != 0;
  return soaked;
}

std::vector<Plan> PlansOf(const World& data, std::uint64_t seeds, int days) {
  std::vector<Plan> plans;
  for (std::uint64_t seed = 1; seed <= seeds; ++seed)
    for (const Promotion& promotion : data.Promotions())
      for (const Shows shows : {Shows::Auto, Shows::Cancel})
        plans.push_back({promotion.Uid, seed, shows, days});
  return plans;
}

int Soak(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World data = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  if (data.HasGame())
    throw WorldFault(arguments.Place(0) + " holds a saved game, no default data.");
  const std::uint64_t seeds = arguments.Number("--seeds", 1, kMostSeeds).value_or(1);
  const int days = static_cast<int>(arguments.Number("--days", 1, kMostSoakDays).value_or(365));
  const std::vector<Plan> plans = PlansOf(data, seeds, days);
  long played = 0;
  int ended = 0, faults = 0;
  PlayInOrder<Soaked>(
      shell, {static_cast<int>(plans.size()), ThreadsOf(arguments), "careers"},
      [&](World& world, int number) {
        return Play(world, data, plans[static_cast<std::size_t>(number - 1)]);
      },
      [&](const Soaked& soaked) {
        shell.Out << soaked.Told;
        played += soaked.Days;
        ended += soaked.Ended;
        faults += soaked.Faults;
      });
  shell.Out << Counted(std::ssize(plans), "career") << ", " << Counted(played, "day") << ", "
            << ended << " ended early, " << Counted(faults, "fault") << ".\n";
  return faults == 0 ? 0 : 1;
}

constexpr OptionKind kSoakOptions[] = {{"--seeds", "N"}, {"--days", "D"}, kJobsOption};

}  // namespace

namespace {

Json SummaryOf(const World& world) {
  return Json{{"date", IsoDate(world.Today())},
              {"economy", int(world.Game().Economy)},
              {"promotions", PromotionsBySize(world)},
              {"workers", WorkerCounts(world)},
              {"shows", ShowsOnAir(world)},
              {"titles", TitleCounts(world, MonthBefore(world.Today()))},
              {"player", PlayerState(world)},
              {"mails", world.News().Count()},
              {"people", PeopleFigures(world)},
              {"money", MoneyFigures(world)}};
}

}  // namespace

StatsFile::StatsFile(Disk& disk, const std::string& path) : disk_(disk), file_(disk, path, true) {
  disk_.Resize(file_, 0);
}

Json MonthSummaries::Next(const World& world) {
  watch_.Look(world);
  Json month = SummaryOf(world);
  month["since"] = watch_.Figures();
  return month;
}

void StatsFile::Add(const World& world) {
  AddLines(months_.Next(world).dump() + "\n");
}

void StatsFile::AddLines(const std::string& lines) {
  disk_.WriteAt(file_, end_, std::as_bytes(std::span(lines)));
  end_ += static_cast<std::int64_t>(lines.size());
}

// Many careers that nobody watches, looked at for faults month by month.

const Command kSoak{"soak", "DATA",
                    "Plays a year, or D days, from every chair of the default data in DATA with N "
                    "seeds, all shows booked and all called off; lists every fault, a line each, "
                    "and ends with 1 when there is one.",
                    kSoakOptions, Soak};

}  // namespace grapplemont::tools
