#include "tools/monthstats.h"

#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>

#include "records/fields/charset.h"
#include "records/fields/fields.h"

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

/// Titles of living promotions, and how many reigns have begun since the day; a vacancy is none.
Json TitleCounts(const World& world, Day since) {
  int all = 0, held = 0, won = 0;
  for (const Title& title : world.Titles()) {
    if (title.Owner <= 0) continue;
    ++all;
    held += title.Holder != 0;
    for (const Reign& reign : title.Reigns)
      won += Day(reign.Won) >= since && !(reign.Holder == kVacantHolder);
  }
  return {{"all", all}, {"held", held}, {"won", won}};
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

}  // namespace

std::string MonthSummary(const World& world) {
  return Json{{"date", IsoDate(world.Today())},
              {"economy", int(world.Game().Economy)},
              {"promotions", PromotionsBySize(world)},
              {"workers", WorkerCounts(world)},
              {"shows", ShowsOnAir(world)},
              {"titles", TitleCounts(world, MonthBefore(world.Today()))},
              {"player", PlayerState(world)},
              {"mails", world.News().Count()}}
      .dump();
}

StatsFile::StatsFile(Disk& disk, const std::string& path) : disk_(disk), file_(disk, path, true) {
  disk_.Resize(file_, 0);
}

void StatsFile::Add(const std::string& line) {
  const std::string text = line + "\n";
  disk_.WriteAt(file_, end_, std::as_bytes(std::span(text)));
  end_ += static_cast<std::int64_t>(text.size());
}

}  // namespace grapplemont::tools
