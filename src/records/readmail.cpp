#include "records/readmail.h"

#include <algorithm>
#include <set>
#include <unordered_set>

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

std::unordered_set<int> KeysRead(const World& world) {
  std::unordered_set<int> keys;
  for (const ReadMail& read : world.ReadMails()) keys.insert(read.Key);
  return keys;
}

bool IsOfTheseDays(const World& world, const Mail& mail) {
  return mail.Date == ShortDate(world.Today()) ||
         mail.Date == ShortDate(world.Today() - std::chrono::days{1});
}

bool IsUnread(const World& world, const Mail& mail, const std::unordered_set<int>& read) {
  return world.ReadMails().Exists() ? !read.contains(KeyOf(mail)) : IsOfTheseDays(world, mail);
}

}  // namespace

bool MarkRead(World& world, const std::vector<int>& numbers) {
  const std::unordered_set<int> read = KeysRead(world);
  const auto unread = [&](int number) { return IsUnread(world, world.News()[number], read); };
  if (std::ranges::none_of(numbers, unread)) return false;
  const std::set<int> now(numbers.begin(), numbers.end());
  // Mails that have gone leave the list with it.
  std::set<int> keys;
  for (int number = 1; number <= world.News().Count(); ++number)
    if (now.contains(number) || !unread(number)) keys.insert(KeyOf(world.News()[number]));
  std::vector<ReadMail> records;
  for (const int key : keys) records.emplace_back().Key = key;
  world.ReadMails().Rewrite(std::move(records));
  return true;
}

bool IsWorldNews(const World& world, const Mail& mail) {
  constexpr std::string_view kNews = " News";
  const std::string_view from = mail.From.View();
  if (!from.ends_with(kNews) || from == "TV News" || from == "Roster News") return false;
  const Promotion* own = world.FindPromotion(world.PlayerUid());
  return !own || from != own->Initials + kNews;
}

std::vector<int> UnreadMails(const World& world, bool worldNews) {
  const std::unordered_set<int> read = KeysRead(world);
  std::vector<int> numbers;
  for (int number = world.News().Count(); number >= 1; --number)
    if (const Mail& mail = world.News()[number];
        IsWorldNews(world, mail) == worldNews && IsUnread(world, mail, read))
      numbers.push_back(number);
  return numbers;
}

std::vector<Digest> DigestsOf(const World& world) {
  const std::unordered_set<int> read = KeysRead(world);
  std::vector<Digest> digests;
  std::set<std::string> senders;
  const auto close = [&] {
    if (!digests.empty())
      digests.back().Words = std::to_string(digests.back().Mails.size()) + " news from " +
                             Counted(static_cast<int>(senders.size()), "promotion");
    senders.clear();
  };
  for (int number = world.News().Count(); number >= 1; --number) {
    const Mail& mail = world.News()[number];
    if (!IsWorldNews(world, mail)) continue;
    if (digests.empty() || mail.Date != digests.back().Date) {
      close();
      digests.push_back({mail.Date.Str(), {}, {}, false});
    }
    digests.back().Mails.push_back(number);
    digests.back().IsUnread |= IsUnread(world, mail, read);
    senders.insert(mail.From.Str());
  }
  close();
  return digests;
}

}  // namespace grapplemont
