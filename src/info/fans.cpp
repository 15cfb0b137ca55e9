#include "info/fans.h"

#include <algorithm>

#include "calendar/events.h"
#include "info/fanlines.h"
#include "info/fill.h"
#include "info/worldnews.h"
#include "records/dates.h"
#include "records/modWresCheck.h"
#include "records/segments.h"
#include "rivals/promotionfacts.h"
#include "show/attendance.h"
#include "show/holdshow.h"

namespace grapplemont {

namespace {

constexpr std::size_t kRivals = 3;
constexpr int kVoices = 2;  // say how it was in all
/// A gate is full or empty when it lies so far from what such a show draws on the average.
constexpr int kFullPercent = 110, kEmptyPercent = 90;

struct MoodFrom {
  int Rating;
  FanMood Mood;
};
constexpr MoodFrom kMoods[] = {{85, FanMood::Superb},
                               {70, FanMood::Good},
                               {50, FanMood::Fair},
                               {35, FanMood::Weak},
                               {0, FanMood::Awful}};

FanMood MoodOf(const ShowSeen& show) {
  if (show.CalledOff) return FanMood::CalledOff;
  for (const MoodFrom& row : kMoods)
    if (show.Rating >= row.Rating) return row.Mood;
  return FanMood::Awful;
}

/// The rows that match.dat holds have been told, and no other show is under way.
bool HoldsTheLastShow(const World& world) {
  const auto& segments = world.Segments();
  return !ShowUnderWay(world) &&
         std::any_of(segments.begin(), segments.end(),
                     [](const Segment& s) { return s.Kind != kEmptySegment && s.Rating > 0; });
}

std::vector<ShowSeen::Row> RowsTold(const World& world) {
  std::vector<ShowSeen::Row> rows;
  if (!HoldsTheLastShow(world)) return rows;
  for (const Segment& segment : world.Segments())
    if (segment.Kind != kEmptySegment && segment.Rating > 0)
      rows.push_back({DescribeSegment(world, segment), segment.Rating});
  return rows;
}

ShowSeen SeenOf(const World& world, const HistoryEntry& entry) {
  ShowSeen seen;
  seen.On = entry.On;
  seen.Promotion = entry.Promotion;
  seen.House = PromotionInitials(world, entry.Promotion);
  seen.Show = entry.Name.Str();
  seen.IsPlayers = true;
  seen.CalledOff = entry.CalledOff;
  seen.IsEvent = entry.Kind == kPastEvent;
  seen.Rating = entry.Rating;
  seen.Viewers = entry.Viewers;
  seen.People = entry.Attendance;
  return seen;
}

ShowSeen SeenOf(const Deed& deed) {
  ShowSeen seen;
  seen.On = deed.On;
  seen.Promotion = deed.Promotion;
  seen.House = deed.House.Str();
  seen.Show = deed.Who.Str();
  seen.IsEvent = deed.Kind == kDeedEventHeld;
  seen.Rating = deed.Number;
  seen.Viewers = deed.Viewers;
  seen.People = deed.People;
  return seen;
}

/// The player's last of the kind that is not too long ago.
const HistoryEntry* LastOf(const World& world, int kind) {
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& entry = world.History()[number];
    if (Day(entry.On) < NewsBegin(world)) return nullptr;
    if (entry.Promotion == world.PlayerUid() && entry.Kind == kind) return &entry;
  }
  return nullptr;
}

void AddPlayers(const World& world, std::vector<ShowSeen>& shows) {
  for (const int kind : {int(kPastTv), int(kPastEvent)})
    if (const HistoryEntry* entry = LastOf(world, kind)) shows.push_back(SeenOf(world, *entry));
  std::stable_sort(shows.begin(), shows.end(),
                   [](const ShowSeen& a, const ShowSeen& b) { return a.On > b.On; });
  if (!shows.empty() && !shows.front().CalledOff) shows.front().Rows = RowsTold(world);
}

const Deed* LastShowOf(const World& world, int promotionUid) {
  for (int number = world.Deeds().Count(); number >= 1; --number) {
    const Deed& deed = world.Deeds()[number];
    if (Day(deed.On) < NewsBegin(world)) return nullptr;
    if (deed.Promotion == promotionUid && (deed.Kind == kDeedTvHeld || deed.Kind == kDeedEventHeld))
      return &deed;
  }
  return nullptr;
}

/// Writes posts with handles and lines that have not been used yet.
class Page {
 public:
  Page(const ShowSeen& show, const LineWords& words) : show_(show), words_(words) {}

  void Post(FanMood mood, const char* name = "", const std::string& word = {}) {
    LineWords words = words_;
    words.emplace_back(name, word);
    const std::string_view line = Fresh(FanLines(mood), "line");
    posts_.push_back({std::string(Fresh(FanHandles(), "handle")), FillLine(line, words)});
  }
  std::vector<FanPost> Posts() { return std::move(posts_); }

 private:
  /// The first that is free from a place on that only the show decides.
  std::string_view Fresh(std::span<const std::string_view> all, const char* what) {
    std::size_t at = ChoiceFor(show_.House + show_.Show + what, show_.On, all.size());
    const auto isUsed = [&](std::string_view text) {
      return std::find(used_.begin(), used_.end(), text) != used_.end();
    };
    for (std::size_t tried = 0; tried < all.size() && isUsed(all[at]); ++tried)
      at = (at + 1) % all.size();
    used_.push_back(all[at]);
    return all[at];
  }

  const ShowSeen& show_;
  LineWords words_;
  std::vector<std::string_view> used_;
  std::vector<FanPost> posts_;
};

void PostAboutRows(Page& page, const ShowSeen& show) {
  if (show.Rows.size() < 2) return;
  const auto [worst, best] = std::minmax_element(
      show.Rows.begin(), show.Rows.end(),
      [](const ShowSeen::Row& a, const ShowSeen::Row& b) { return a.Rating < b.Rating; });
  page.Post(FanMood::Stolen, "what", best->What);
  if (worst->Rating < best->Rating) page.Post(FanMood::Bored, "what", worst->What);
}

/// The most popular of those who are fit to be on a show there.
const Worker* StarOf(const World& world, int promotionUid) {
  const Worker* star = nullptr;
  for (const Worker* worker : RosterOf(world, promotionUid))
    if (IsOnRoster(*worker) && worker->Status == "Nor" && (!star || worker->Over > star->Over))
      star = worker;
  return star;
}

/// What a show of this kind draws there on the average.
int UsualCrowd(const World& world, const Promotion& promotion, const ShowSeen& show) {
  const Event* event = show.IsEvent ? EventOf(world, promotion.Uid, MonthOf(show.On)) : nullptr;
  if (show.IsEvent && !event) return 0;
  const BaseAndDraw crowd = event ? EventCrowd(event->Type, promotion.Size, promotion.Image)
                                  : TvCrowd(promotion.Size, promotion.Image);
  return crowd.Base + crowd.Draw / 2;
}

void PostAboutTheCrowd(Page& page, const World& world, const ShowSeen& show) {
  const Promotion* promotion = world.FindPromotion(show.Promotion);
  const int usual = promotion ? UsualCrowd(world, *promotion, show) : 0;
  if (usual == 0) return;
  const long long percent = static_cast<long long>(show.People) * 100 / usual;
  if (percent >= kFullPercent) page.Post(FanMood::Full);
  if (percent <= kEmptyPercent) page.Post(FanMood::Empty);
}

}  // namespace

std::vector<ShowSeen> ShowsSeen(const World& world) {
  std::vector<ShowSeen> shows;
  AddPlayers(world, shows);
  std::size_t rivals = 0;
  for (const Promotion* promotion : PromotionsByStanding(world)) {
    if (promotion->Uid == world.PlayerUid() || rivals == kRivals) continue;
    const Deed* deed = LastShowOf(world, promotion->Uid);
    if (!deed) continue;
    shows.push_back(SeenOf(*deed));
    ++rivals;
  }
  return shows;
}

std::vector<FanPost> PostsAbout(const World& world, const ShowSeen& show) {
  Page page(show, {{"show", show.Show}, {"house", show.House}});
  for (int voice = 0; voice < kVoices; ++voice) page.Post(MoodOf(show));
  if (show.CalledOff) return page.Posts();
  PostAboutRows(page, show);
  if (const Worker* star = show.Rows.empty() ? StarOf(world, show.Promotion) : nullptr)
    page.Post(FanMood::Star, "who", star->Name.Str());
  PostAboutTheCrowd(page, world, show);
  return page.Posts();
}

}  // namespace grapplemont
