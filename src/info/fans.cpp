#include "info/fans.h"

#include <algorithm>
#include <set>

#include "business/past.h"
#include "calendar/events.h"
#include "calendar/fanmail.h"
#include "info/infowords.h"
#include "info/results.h"
#include "info/worldnews.h"
#include "records/fields/fields.h"
#include "records/modWresCheck.h"
#include "rivals/promotionfacts.h"
#include "show/attendance.h"

namespace grapplemont {

namespace {

constexpr std::size_t kRivals = 3;
constexpr int kVoices = 2;  // say how it was in all
/// A gate is full or empty when it lies so far from what such a show draws on the average.
constexpr int kFullPercent = 110, kEmptyPercent = 90;

std::span<const std::string_view> FanLines(FanMood mood) {
  return LinesUnder(words::Fans(), static_cast<int>(mood));
}

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

/// The name of the most popular of several; empty for nobody.
std::string StarOf(const std::vector<const Worker*>& people) {
  const auto star = std::max_element(people.begin(), people.end(),
                                     [](auto* a, auto* b) { return a->Over < b->Over; });
  return star == people.end() ? "" : (*star)->Name.Str();
}

std::vector<const Worker*> PeopleOf(const World& world,
                                    const std::vector<const HeldMatch*>& matches) {
  std::vector<const Worker*> people;
  for (const HeldMatch* match : matches)
    for (const Word& uid : match->Worker)
      if (const Worker* worker = world.FindWorker(uid)) people.push_back(worker);
  return people;
}

ShowSeen SeenOf(const World& world, const HistoryEntry& entry) {
  const auto matches = MatchesOf(world, entry);
  ShowSeen seen;
  seen.On = entry.On;
  seen.Promotion = entry.Promotion;
  seen.House = PromotionInitials(world, entry.Promotion);
  seen.Show = entry.Name.Str();
  seen.IsPlayers = true;
  seen.CalledOff = entry.CalledOff;
  seen.IsEvent = entry.Kind == kPastEvent;
  seen.SameClass = entry.Size == world.Player().Size;
  seen.Rating = entry.Rating;
  seen.Viewers = entry.Viewers;
  seen.People = entry.Attendance;
  for (const HeldMatch* match : matches)
    seen.Rows.push_back({match->Won + " against " + match->Lost.Str(), match->Rating});
  seen.Star = StarOf(PeopleOf(world, matches));
  return seen;
}

/// What the promotion has done since a deed of its own.
std::vector<const Deed*> DeedsSince(const World& world, const Deed& show) {
  std::vector<const Deed*> deeds;
  for (int number = world.Deeds().NumberOf(show) + 1; number <= world.Deeds().Count(); ++number)
    if (world.Deeds()[number].Promotion == show.Promotion) deeds.push_back(&world.Deeds()[number]);
  return deeds;
}

bool ChangesClass(const Deed* deed) {
  return deed->Kind == kDeedRisen || deed->Kind == kDeedFallen;
}

/// Those who are fit and on the card there, and were not taken on since.
std::vector<const Worker*> PeopleSince(const World& world, int promotionUid,
                                       const std::vector<const Deed*>& since) {
  std::vector<const Worker*> people;
  for (const Worker* worker : RosterOf(world, promotionUid)) {
    const bool isNew = std::any_of(since.begin(), since.end(), [&](const Deed* deed) {
      return (deed->Kind == kDeedSigned || deed->Kind == kDeedStolen) && deed->Who == worker->Name;
    });
    if (!isNew && IsOnRoster(*worker) && worker->Status == "Nor") people.push_back(worker);
  }
  return people;
}

ShowSeen SeenOf(const World& world, const Deed& deed) {
  const auto since = DeedsSince(world, deed);
  ShowSeen seen;
  seen.On = deed.On;
  seen.Promotion = deed.Promotion;
  seen.House = deed.House.Str();
  seen.Show = deed.Who.Str();
  seen.IsEvent = deed.Kind == kDeedEventHeld;
  seen.SameClass = std::none_of(since.begin(), since.end(), ChangesClass);
  seen.Rating = deed.Number;
  seen.Viewers = deed.Viewers;
  seen.People = deed.People;
  seen.Star = StarOf(PeopleSince(world, deed.Promotion, since));
  return seen;
}

void AddPlayers(const World& world, std::vector<ShowSeen>& shows) {
  for (const int kind : {int(kPastTv), int(kPastEvent)})
    if (const HistoryEntry* entry = LastShowOf(world, world.PlayerUid(), NewsBegin(world), kind))
      shows.push_back(SeenOf(world, *entry));
  std::stable_sort(shows.begin(), shows.end(),
                   [](const ShowSeen& a, const ShowSeen& b) { return a.On > b.On; });
}

/// What a rival has last done on the air or at an Event, lately.
const Deed* LastHeldBy(const World& world, int promotionUid) {
  for (int number = world.Deeds().Count(); number >= 1; --number) {
    const Deed& deed = world.Deeds()[number];
    if (Day(deed.On) < NewsBegin(world)) return nullptr;
    if (deed.Promotion == promotionUid && (deed.Kind == kDeedTvHeld || deed.Kind == kDeedEventHeld))
      return &deed;
  }
  return nullptr;
}

/// What has been said on the page, so that it is not said again before everything has been.
class Used {
 public:
  /// The first that is free from a place on that the words and the day decide.
  std::string_view Fresh(std::span<const std::string_view> all, const std::string& words, Day day) {
    const std::size_t start = ChoiceFor(words, day, all.size());
    for (std::size_t tried = 0; tried < all.size(); ++tried) {
      const std::string_view one = all[(start + tried) % all.size()];
      if (used_.insert(one).second) return one;
    }
    return all[start];
  }

 private:
  std::set<std::string_view> used_;
};

/// The posts about one show.
class Thread {
 public:
  Thread(Used& used, const ShowSeen& show) : used_(used), show_(show) {}

  void Post(FanMood mood, const char* name = "", const std::string& word = {}) {
    const std::string seed = show_.House + show_.Show + std::to_string(posts_.size());
    const std::string_view line = used_.Fresh(FanLines(mood), seed, show_.On);
    posts_.push_back(
        {std::string(used_.Fresh(FanLines(FanMood::Handles), seed + "by", show_.On)),
         FillLine(line, {{"show", show_.Show}, {"house", show_.House}, {name, word}})});
  }
  std::vector<FanPost> Posts() { return std::move(posts_); }

 private:
  Used& used_;
  const ShowSeen& show_;
  std::vector<FanPost> posts_;
};

void PostAboutRows(Thread& thread, const ShowSeen& show) {
  if (show.Rows.size() < 2) return;
  const auto [worst, best] = std::minmax_element(
      show.Rows.begin(), show.Rows.end(),
      [](const ShowSeen::Row& a, const ShowSeen::Row& b) { return a.Rating < b.Rating; });
  thread.Post(FanMood::Stolen, "what", best->What);
  if (worst->Rating < best->Rating) thread.Post(FanMood::Bored, "what", worst->What);
}

/// What a show of this kind draws there on the average.
int UsualCrowd(const World& world, const Promotion& promotion, const ShowSeen& show) {
  const Event* event = show.IsEvent ? EventOf(world, promotion.Uid, MonthOf(show.On)) : nullptr;
  if (show.IsEvent && !event) return 0;
  const BaseAndDraw crowd = event ? EventCrowd(event->Type, promotion.Size, promotion.Image)
                                  : TvCrowd(promotion.Size, promotion.Image);
  return crowd.Base + crowd.Draw / 2;
}

void PostAboutTheCrowd(Thread& thread, const World& world, const ShowSeen& show) {
  const Promotion* promotion = world.FindPromotion(show.Promotion);
  const int usual = promotion && show.SameClass ? UsualCrowd(world, *promotion, show) : 0;
  if (usual == 0) return;
  const long long percent = static_cast<long long>(show.People) * 100 / usual;
  if (percent >= kFullPercent) thread.Post(FanMood::Full);
  if (percent <= kEmptyPercent) thread.Post(FanMood::Empty);
}

std::vector<FanPost> PostsAbout(const World& world, const ShowSeen& show, Used& used) {
  Thread thread(used, show);
  for (int voice = 0; voice < kVoices; ++voice) thread.Post(MoodOf(show));
  if (show.CalledOff) return thread.Posts();
  PostAboutRows(thread, show);
  if (!show.Star.empty()) thread.Post(FanMood::Star, "who", show.Star);
  PostAboutTheCrowd(thread, world, show);
  if (show.IsPlayers && !ComplaintsAfter(world, show.On).empty()) thread.Post(FanMood::Again);
  return thread.Posts();
}

}  // namespace

std::vector<ShowSeen> ShowsSeen(const World& world) {
  std::vector<ShowSeen> shows;
  AddPlayers(world, shows);
  std::size_t rivals = 0;
  for (const Promotion* promotion : PromotionsByStanding(world)) {
    if (promotion->Uid == world.PlayerUid() || rivals == kRivals) continue;
    const Deed* deed = LastHeldBy(world, promotion->Uid);
    if (!deed) continue;
    shows.push_back(SeenOf(world, *deed));
    ++rivals;
  }
  return shows;
}

std::vector<FanThread> FanPage(const World& world) {
  Used used;
  std::vector<FanThread> page;
  for (ShowSeen& show : ShowsSeen(world)) {
    std::vector<FanPost> posts = PostsAbout(world, show, used);
    page.push_back({std::move(show), std::move(posts)});
  }
  return page;
}

}  // namespace grapplemont
