#include "records/readmail.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "records/fields/wording.h"

namespace grapplemont {

namespace {

/// The same on every machine; two different mails have the same one about never.
int KeyOf(const Mail& mail) {
  std::uint32_t key = 2166136261U;
  const auto add = [&key](std::string_view text) {
    for (const char letter : text) key = (key ^ static_cast<unsigned char>(letter)) * 16777619U;
    key = (key ^ 0x1FU) * 16777619U;
  };
  add(mail.From.View());
  add(mail.Date.View());
  add(mail.Body.View());
  return static_cast<int>(key & 0x7FFFFFFFU);
}

/// What is known of all mails, by their numbers less one, brought up to date.
const World::MailMarks& MarksOfMails(const World& world) {
  World::MailMarks& known = world.KnownMails();
  const auto& news = world.News();
  const auto& read = world.ReadMails();
  if (known.Changes != news.Changes()) known = {news.Changes(), {}, 0, 0, {}};
  if (known.Readings != read.Changes() || known.Read != read.Count()) known.IsRead.clear();
  known.Readings = read.Changes();
  known.Read = read.Count();
  if (std::ssize(known.IsRead) == news.Count()) return known;
  std::vector<int> keys;
  for (const ReadMail& one : read) keys.push_back(one.Key);
  if (!std::ranges::is_sorted(keys)) std::ranges::sort(keys);
  for (auto at = known.Keys.size(); at < static_cast<std::size_t>(news.Count()); ++at)
    known.Keys.push_back(KeyOf(news[static_cast<int>(at) + 1]));
  for (auto at = known.IsRead.size(); at < known.Keys.size(); ++at)
    known.IsRead.push_back(std::ranges::binary_search(keys, known.Keys[at]));
  return known;
}

/// Tells which mails have been read.
class Readings {
 public:
  explicit Readings(const World& world) : world_(world), marks_(MarksOfMails(world)) {
    if (world.ReadMails().Exists()) return;
    for (const int ago : {0, 1})
      days_[Index(ago)] = ShortDate(world.Today() - std::chrono::days{ago});
  }
  bool IsUnread(int number) const {
    if (world_.ReadMails().Exists()) return !marks_.IsRead[Index(number - 1)];
    return std::ranges::find(days_, world_.News()[number].Date.View()) != days_.end();
  }
  int Key(int number) const { return marks_.Keys[Index(number - 1)]; }

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number); }

  const World& world_;
  const World::MailMarks& marks_;
  std::array<std::string, 2> days_;  // where nobody kept what was read: those that count as unread
};

/// What a news is about, by words that are in it; the first that fits counts.
struct NewsTopic {
  std::string_view Words, One, Many;
};
constexpr NewsTopic kTopics[] = {{" sponsor", "sponsor", "sponsors"},
                                 {" signed ", "signing", "signings"},
                                 {" stolen ", "signing", "signings"},
                                 {" fired ", "departure", "departures"},
                                 {" released ", "departure", "departures"},
                                 {" quit ", "departure", "departures"},
                                 {" retire", "retirement", "retirements"},
                                 {" rating for ", "show", "shows"},
                                 {" buy rate ", "show", "shows"},
                                 {" attended by ", "show", "shows"},
                                 {" bankrupt", "bankruptcy", "bankruptcies"},
                                 {" has taken over ", "new owner", "new owners"},
                                 {" level", "change of size", "changes of size"},
                                 {" TV show", "television deal", "television deals"},
                                 {" renewed ", "television deal", "television deals"},
                                 {" dropped ", "television deal", "television deals"},
                                 {" promotion", "new promotion", "new promotions"}};

/// nullptr where no topic is in it. All their words begin with a blank, and a mail has few.
const NewsTopic* TopicOf(std::string_view body) {
  const NewsTopic* found = std::end(kTopics);
  for (auto at = body.find(' '); at != body.npos; at = body.find(' ', at + 1))
    found = std::find_if(std::begin(kTopics), found, [&](const NewsTopic& topic) {
      return body.substr(at, topic.Words.size()) == topic.Words;
    });
  return found == std::end(kTopics) ? nullptr : found;
}

/// " (5 signings, 2 shows)"; empty where nothing is known.
std::string TopicsOf(const World& world, const std::vector<int>& mails) {
  std::vector<std::pair<const NewsTopic*, int>> counts;
  for (const int number : mails) {
    const NewsTopic* topic = TopicOf(world.News()[number].Body.View());
    if (!topic) continue;
    const auto known = std::ranges::find_if(
        counts, [&](const auto& count) { return count.first->One == topic->One; });
    known == counts.end() ? counts.push_back({topic, 1}) : void(++known->second);
  }
  std::string text;
  for (const auto& [topic, count] : counts)
    text += (text.empty() ? " (" : ", ") + Counted(count, topic->One, topic->Many);
  return text.empty() ? text : text + ")";
}

constexpr std::string_view kNews = " News";  // behind the initials of whose they are

/// Tells mails about the player's own from news of others, by what the player's are called.
class Reader {
 public:
  explicit Reader(const World& world);
  bool IsOthersNews(const Mail& mail) const;
  /// Whether the sender writes of everybody.
  static bool IsDesk(std::string_view from) {
    return std::ranges::find(kDesks, from, &Desk::From) != kDesks.end();
  }

 private:
  bool BeginsWithOne(const std::set<std::string>& names, std::string_view body) const {
    return std::ranges::any_of(names, [&](const auto& name) { return body.starts_with(name); });
  }
  bool IsOwnTv(std::string_view body) const {
    return body.starts_with(ours_) || body.find(" our ") != body.npos ||
           BeginsWithOne(shows_, body);
  }
  bool LeavesUs(std::string_view body) const { return body.find(leavesUs_) != body.npos; }
  bool IsOwnRetirement(std::string_view body) const {
    return LeavesUs(body) || body.find(" from " + initials_ + " in ") != body.npos ||
           BeginsWithOne(watched_, body);
  }
  bool IsOwnTakeover(std::string_view body) const {
    constexpr std::string_view kTaken = " has taken over control of ";
    const auto at = body.find(kTaken);
    return at == body.npos || body.substr(at + kTaken.size()).starts_with(name_);
  }
  bool IsNone(std::string_view) const { return false; }

  /// A sender who writes of everybody, and which of that is the player's own.
  struct Desk {
    std::string_view From;
    bool (Reader::*IsOwn)(std::string_view body) const;
  };
  static constexpr std::array<Desk, 5> kDesks = {{{"TV News", &Reader::IsOwnTv},
                                                  {"Retirement!", &Reader::IsOwnRetirement},
                                                  {"Retiring!", &Reader::IsOwnRetirement},
                                                  {"News Desk", &Reader::IsOwnTakeover},
                                                  {"New Promotion", &Reader::IsNone}}};

  std::string initials_, name_;
  std::string ownNews_, leavesUs_, ours_;  // as they stand in mails
  std::set<std::string> shows_, watched_;
};

/// Shows that have gone off the air are still known by their past.
Reader::Reader(const World& world) {
  const Promotion* own = world.FindPromotion(world.PlayerUid());
  if (own) initials_ = own->Initials.Str();
  if (own) name_ = own->Name.Str();
  ownNews_ = initials_ + std::string(kNews);
  leavesUs_ = " from " + initials_ + "!";
  ours_ = initials_ + "'s ";
  if (!own) return;
  std::set<std::string_view> shows;
  for (const Show& show : world.Shows())
    if (show.Owner == own->Uid) shows.insert(show.Name.View());
  for (const HistoryEntry& entry : world.History())
    if (entry.Kind == kPastTv && entry.Promotion == own->Uid) shows.insert(entry.Name.View());
  for (const std::string_view show : shows) shows_.insert(std::string(show) + " ");
  for (const Word& place : world.Game().Shortlist)
    if (const Worker* worker = world.FindWorker(place)) watched_.insert(worker->Name.Str() + " ");
}

bool Reader::IsOthersNews(const Mail& mail) const {
  const std::string_view from = mail.From.View();
  for (const Desk& desk : kDesks)
    if (from == desk.From) return !(this->*desk.IsOwn)(mail.Body.View());
  return from.ends_with(kNews) && from != "Roster News" && from != ownNews_ &&
         !LeavesUs(mail.Body.View());
}

}  // namespace

bool MarkRead(World& world, const std::vector<int>& numbers) {
  const Readings readings(world);
  const auto unread = [&](int number) { return readings.IsUnread(number); };
  if (std::ranges::none_of(numbers, unread)) return false;
  std::vector<bool> now(static_cast<std::size_t>(world.News().Count()) + 1);
  for (const int number : numbers) now[static_cast<std::size_t>(number)] = true;
  // Mails that have gone leave the list with it.
  std::vector<int> keys;
  for (int number = 1; number <= world.News().Count(); ++number)
    if (now[static_cast<std::size_t>(number)] || !unread(number))
      keys.push_back(readings.Key(number));
  std::ranges::sort(keys);
  keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
  std::vector<ReadMail> records;
  records.reserve(keys.size());
  for (const int key : keys) records.emplace_back().Key = key;
  world.ReadMails().Rewrite(std::move(records));
  return true;
}

void MarkAllRead(World& world) {
  std::vector<int> all;
  for (int number = 1; number <= world.News().Count(); ++number) all.push_back(number);
  MarkRead(world, all);
}

Unread UnreadOf(const World& world) {
  const Readings readings(world);
  const Reader reader(world);
  Unread unread;
  std::set<std::string_view> days;
  for (int number = world.News().Count(); number >= 1; --number) {
    const Mail& mail = world.News()[number];
    if (!readings.IsUnread(number)) continue;
    const bool others = reader.IsOthersNews(mail);
    (others ? unread.Others : unread.Own).push_back(number);
    if (others) days.insert(mail.Date.View());
  }
  unread.Days = static_cast<int>(days.size());
  return unread;
}

std::vector<Digest> DigestsOf(const World& world, std::size_t most) {
  const Readings readings(world);
  const Reader reader(world);
  std::vector<Digest> digests;
  std::set<std::string_view> senders;
  const auto close = [&] {
    if (digests.empty()) return;
    digests.back().Words = Counted(static_cast<int>(digests.back().Mails.size()), "item");
    // Desks tell of several at once.
    if (std::ranges::none_of(senders, Reader::IsDesk))
      digests.back().Words += " from " + Counted(static_cast<int>(senders.size()), "promotion");
    digests.back().Words += TopicsOf(world, digests.back().Mails);
    senders.clear();
  };
  for (int number = world.News().Count(); number >= 1; --number) {
    const Mail& mail = world.News()[number];
    if (!reader.IsOthersNews(mail)) continue;
    if (digests.empty() || mail.Date != digests.back().Date) {
      close();
      if (digests.size() == most) return digests;
      digests.push_back({mail.Date.Str(), {}, {}, false});
    }
    digests.back().Mails.push_back(number);
    digests.back().IsUnread |= readings.IsUnread(number);
    senders.insert(mail.From.View());
  }
  close();
  return digests;
}

}  // namespace grapplemont
