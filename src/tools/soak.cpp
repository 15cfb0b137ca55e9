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

World Begin(const World& data, const Plan& plan) {
  World world(std::make_unique<SeededDraws>(plan.Seed),
              std::make_unique<SeededDraws>(plan.Seed + 1),
              std::make_unique<SeededDraws>(plan.Seed + 2));
  std::map<std::string, Bytes> files;
  for (NewFile& file : FilesOf(data)) files[file.Name] = std::move(file.Contents);
  world.Load(files);
  NewGame(world, {.PlayerName = "Nobody",
                  .PromotionUid = plan.PromotionUid,
                  .Difficulty = kEasy + static_cast<int>(plan.Seed % 4),
                  .Start = kStart,
                  .SaveName = "Soak"});
  return world;
}

/// Plays careers and counts what they come to.
class Soaking {
 public:
  Soaking(const World& data, Shell& shell) : data_(data), shell_(shell) {}

  void Play(const Plan& plan) {
    World world = Begin(data_, plan);
    const std::string name = world.Player().Initials + ", seed " + std::to_string(plan.Seed) +
                             (plan.Do == Shows::Auto ? ", auto" : ", cancel");
    ++careers_;
    try {
      for (int day = 0; day < plan.Days && EndCodeOf(world) == 0; ++day) {
        PlayDay(world, plan.Do);
        ++days_;
        if (IsFirstOfMonth(world.Today())) Look(world, name);
      }
    } catch (const FieldOverflow& fault) {
      Tell(world, name, world.Explain(fault));
    } catch (const std::exception& fault) {
      Tell(world, name, fault.what());
    }
    Look(world, name);
    ended_ += EndCodeOf(world) != 0;
  }

  int Close() {
    shell_.Out << Counted(careers_, "career") << ", " << Counted(days_, "day") << ", " << ended_
               << " ended early, " << Counted(faults_, "fault") << ".\n";
    return faults_ == 0 ? 0 : 1;
  }

 private:
  void Look(const World& world, const std::string& name) {
    for (const Fault& fault : CheckWorld(world)) Tell(world, name, fault.Line());
  }
  void Tell(const World& world, const std::string& name, const std::string& what) {
    ++faults_;
    shell_.Out << ToUtf8(name) << ", " << IsoDate(world.Today()) << ": " << ToUtf8(what) << "\n";
  }

  const World& data_;
  Shell& shell_;
  int careers_ = 0, ended_ = 0, faults_ = 0;
  long days_ = 0;
};

int Soak(const Arguments& arguments, Shell& shell) {
  const auto disk = RealDisk();
  const World data = ReadWorld(*disk, arguments.Place(0), shell.Errors);
  if (data.HasGame())
    throw WorldFault(arguments.Place(0) + " holds a saved game, no default data.");
  const std::uint64_t seeds = arguments.Number("--seeds", 1, kMostSeeds).value_or(1);
  const int days = static_cast<int>(arguments.Number("--days", 1, kMostSoakDays).value_or(365));
  Soaking soaking(data, shell);
  for (std::uint64_t seed = 1; seed <= seeds; ++seed)
    for (const Promotion& promotion : data.Promotions())
      for (const Shows shows : {Shows::Auto, Shows::Cancel})
        soaking.Play({promotion.Uid, seed, shows, days});
  return soaking.Close();
}

constexpr OptionKind kSoakOptions[] = {{"--seeds", "N"}, {"--days", "D"}};

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

void StatsFile::Add(const World& world) {
  watch_.Look(world);
  Json month = SummaryOf(world);
  month["since"] = watch_.Figures();
  const std::string text = month.dump() + "\n";
  disk_.WriteAt(file_, end_, std::as_bytes(std::span(text)));
  end_ += static_cast<std::int64_t>(text.size());
}

// Many careers that nobody watches, looked at for faults month by month.

const Command kSoak{"soak", "DATA",
                    "Plays a year, or D days, from every chair of the default data in DATA with N "
                    "seeds, all shows booked and all called off; lists every fault, a line each, "
                    "and ends with 1 when there is one.",
                    kSoakOptions, Soak};

}  // namespace grapplemont::tools
