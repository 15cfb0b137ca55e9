#include "info/search.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cctype>
#include <cstdint>
#include <functional>
#include <iterator>
#include <span>
#include <tuple>

#include "business/networks.h"
#include "records/fields/vocabulary.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

using Kind = Found::Kind;

constexpr int kInside = kSureFit;    // the letters stand inside a word
constexpr int kSaid = kSureFit - 1;  // every word begins one that people say for it
constexpr int kTypo = 10;            // a wrong letter is worse than any place in the name
constexpr int kBehindAll = 100;      // a mail holds many words: names come first
constexpr int kWorkless = 200;       // behind everybody who works somewhere

/// A letter without its accent, small; a blank for what is not a letter.
char Plain(char letter) {
  static constexpr std::string_view kBare =
      "aaaaaaaceeeeiiiidnooooo ouuuuypsaaaaaaaceeeeiiiidnooooo ouuuuypy";
  static_assert(kBare.size() == 0x100 - 0xC0);
  const auto byte = static_cast<unsigned char>(letter);
  if (byte >= 0xC0) return kBare[byte - 0xC0];
  if (byte == 0x8A || byte == 0x9A) return 's';
  if (byte == 0x8E || byte == 0x9E) return 'z';
  return byte < 0x80 && std::isalnum(byte) ? static_cast<char>(std::tolower(byte)) : ' ';
}

/// The words of a text in plain letters, one blank before each.
std::string PlainWords(std::string_view text) {
  std::string plain = " ";
  for (const char letter : text) {
    const bool joins = letter == '\'' || letter == '.';  // O'Shea, J.T.
    if (joins) continue;
    const char bare = Plain(letter);
    if (bare != ' ' || plain.back() != ' ') plain += bare;
  }
  if (plain.size() > 1 && plain.back() == ' ') plain.pop_back();
  return plain;
}

/// Which letters are in it, a bit each.
std::uint64_t LettersIn(std::string_view text) {
  std::uint64_t letters = 0;
  for (const char letter : text) letters |= std::uint64_t{1} << (letter & 63);
  return letters;
}

/// The fewest letters to put in, leave out, exchange or swap until `word` begins `text`; `most` + 1
/// for more than that.
int WrongLetters(std::string_view word, std::string_view text, int most) {
  constexpr std::size_t kLongest = 24;
  if (word.size() > kLongest) return most + 1;
  text = text.substr(0, std::min(kLongest, word.size() + static_cast<std::size_t>(most)));
  // Each letter that is not there at all is a wrong one, and most names are done with by that.
  if (std::popcount(LettersIn(word) & ~LettersIn(text)) > most) return most + 1;
  std::array<std::array<int, kLongest + 1>, 3> rows{};
  for (std::size_t at = 0; at <= word.size(); ++at) rows[0][at] = static_cast<int>(at);
  int best = rows[0][word.size()], leastBefore = 0;
  for (std::size_t row = 1; row <= text.size(); ++row) {
    auto& now = rows[row % 3];
    const auto &last = rows[(row + 2) % 3], &before = rows[(row + 1) % 3];
    now[0] = static_cast<int>(row);
    int least = now[0];
    for (std::size_t at = 1; at <= word.size(); ++at) {
      now[at] = std::min(
          {last[at] + 1, now[at - 1] + 1, last[at - 1] + (word[at - 1] == text[row - 1] ? 0 : 1)});
      const bool swapped =
          at > 1 && row > 1 && word[at - 1] == text[row - 2] && word[at - 2] == text[row - 1];
      if (swapped) now[at] = std::min(now[at], before[at - 2] + 1);
      least = std::min(least, now[at]);
    }
    best = std::min(best, now[word.size()]);
    // Letters that are swapped look back over two rows.
    if (least > most && leastBefore > most) break;
    leastBefore = least;
  }
  return std::min(best, most + 1);
}

/// How many wrong letters a word may have: nobody guesses from three letters.
int Forgiven(std::size_t letters) {
  return letters < 4 ? 0 : letters < 7 ? 1 : 2;
}

/// How far one typed word (a blank before it) is from standing in a name; -1 for not at all.
int FitOfWord(std::string_view name, std::string_view word, bool forgiving) {
  if (name.starts_with(word)) return 0;
  if (name.find(word) != name.npos) return 1;
  const std::string_view letters = word.substr(1);
  if (letters.size() > 1 && name.find(letters) != name.npos) return kInside;
  const int most = forgiving ? Forgiven(letters.size()) : 0;
  int least = most + 1;
  for (std::size_t at = 0; most > 0 && at != name.npos; at = name.find(' ', at + 1))
    // Few mistake the first letter, and most names are done with by it.
    if (name[at + 1] == letters[0] || (letters.size() > 1 && name[at + 1] == letters[1]))
      least = std::min(least, WrongLetters(letters, name.substr(at + 1), most));
  return least <= most && most > 0 ? kTypo + least : -1;
}

std::vector<std::string> TypedWords(std::string_view typed) {
  const std::string plain = PlainWords(typed);
  std::vector<std::string> words;
  for (std::size_t at = 0; at != plain.npos && at + 1 < plain.size();) {
    const std::size_t next = plain.find(' ', at + 1);
    words.push_back(plain.substr(at, next - at));
    at = next;
  }
  return words;
}

/// Those that say what is looked for: "how do I sign somebody" asks for "sign". All of them where
/// none does.
std::vector<std::string> WordsThatCount(std::vector<std::string> words) {
  static constexpr std::string_view kWeightless[] = {
      " a",   " an", " anybody", " anyone", " can",  " do",    " for",      " how",
      " i",   " in", " my",      " of",     " on",   " our",   " somebody", " someone",
      " the", " to", " up",      " we",     " what", " where", " who",      " with"};
  const auto counts = [](const std::string& word) {
    return std::ranges::find(kWeightless, word) == std::end(kWeightless);
  };
  if (std::ranges::any_of(words, counts)) std::erase_if(words, std::not_fn(counts));
  return words;
}

int FitOf(std::string_view name, const std::vector<std::string>& words, bool forgiving) {
  int sum = 0;
  for (const std::string& word : words) {
    const int fit = FitOfWord(name, word, forgiving);
    if (fit < 0) return -1;
    sum += fit;
  }
  return sum;
}

int StandingOf(const World& world, const Worker& worker) {
  if (WorksForPlayer(world, worker)) return 100 - worker.Over - 1000;
  return 100 - worker.Over + (worker.Employer == 0 ? kWorkless : 0);
}

std::string EmployerOr(const World& world, int uid, std::string_view otherwise) {
  return uid > 0 && world.FindPromotion(uid) ? PromotionName(world, uid) : std::string(otherwise);
}

std::string AboutWorker(const World& world, const Worker& worker) {
  const std::string place = EmployerOr(world, worker.Employer, "Free agent");
  return worker.Employer == 0 ? place : std::string(PositionText(worker.Position)) + ", " + place;
}

std::string AboutTitle(const World& world, const Title& title) {
  const std::string_view holder = title.Reigns[0].Holder;
  return EmployerOr(world, title.Owner, "Its promotion has closed") + ", " +
         (holder == kVacantHolder ? "vacant" : "held by " + std::string(holder));
}

std::string AboutShow(const World& world, const Show& show) {
  const Network* network = world.FindNetwork(show.Network);
  return EmployerOr(world, show.Owner, "Off the air") + ", " + std::string(show.Day) +
         (network ? ", " + std::string(network->Name) : "");
}

/// A mail has no name: how it begins.
std::string BeginningOf(std::string body) {
  constexpr std::size_t kShown = 60;
  std::ranges::replace_if(
      body, [](char letter) { return letter == '\r' || letter == '\n'; }, ' ');
  if (body.size() <= kShown) return body;
  return body.substr(0, body.rfind(' ', kShown)) + " ...";
}

/// Hands the records of a kind to `visit`.
template <class Visit>
auto WithRecords(const World& world, Kind kind, Visit visit) {
  switch (kind) {
    case Kind::Worker:
      return visit(world.Workers());
    case Kind::Promotion:
      return visit(world.Promotions());
    case Kind::Title:
      return visit(world.Titles());
    case Kind::Show:
      return visit(world.Shows());
    case Kind::Event:
      return visit(world.Events());
    case Kind::Team:
      return visit(world.Teams());
    case Kind::Stable:
      return visit(world.Stables());
    case Kind::Staff:
      return visit(world.AllStaff());
    case Kind::Network:
      return visit(world.Networks());
    case Kind::Sponsor:
      return visit(world.Sponsors());
    case Kind::Mail:
      break;
  }
  return visit(world.News());
}

/// Empty for a number that no record has.
std::string NameOf(const World& world, Kind kind, int number) {
  return WithRecords(world, kind, [number](const auto& records) -> std::string {
    if (number < 1 || number > records.Count()) return {};
    const auto& record = records[number];
    if constexpr (requires { record.Body; })
      return BeginningOf(record.Body.Str());
    else
      return record.Name.Str();
  });
}

}  // namespace

std::string_view KindOfFound(Kind kind) {
  static constexpr std::string_view kKinds[kKindsOfFound] = {
      "Workers", "Promotions", "Titles",   "Shows",    "Events", "Tag Teams",
      "Stables", "Staff",      "Networks", "Sponsors", "Mail"};
  return kKinds[static_cast<std::size_t>(kind)];
}

int FitOfName(std::string_view name, std::string_view also, std::string_view typed) {
  const std::vector<std::string> words = WordsThatCount(TypedWords(typed));
  if (words.empty()) return -1;
  const std::string own = PlainWords(name), all = own + PlainWords(also);
  const int fit = FitOf(own, words, true);
  const bool isSaid = std::ranges::all_of(
      words, [&all](const std::string& word) { return all.find(word) != all.npos; });
  return isSaid && (fit < 0 || fit > kSaid) ? kSaid : fit;
}

bool IsSlip(int fit) {
  return fit >= kTypo && fit < kBehindAll;
}

NameSearch::NameSearch(const World& world) : world_(world) {
  const auto add = [this](Kind kind, int number, std::string_view name, int standing = 0) {
    std::string letters = PlainWords(name);
    if (letters.size() > 1 && name != kToBeDeleted)
      names_.push_back({kind, number, standing, letters, LettersIn(letters)});
  };
  const auto all = [](const auto& records, auto visit) {
    for (int number = 1; number <= records.Count(); ++number) visit(number, records[number]);
  };
  all(world.Workers(), [&](int number, const Worker& worker) {
    if (worker.Uid != 0) add(Kind::Worker, number, worker.Name, StandingOf(world, worker));
  });
  all(world.Promotions(), [&](int number, const Promotion& one) {
    if (one.Active)
      add(Kind::Promotion, number, std::string(one.Name) + " " + std::string(one.Initials),
          one.Size);
  });
  all(world.Titles(), [&](int number, const Title& title) {
    add(Kind::Title, number, title.Name, title.Owner == world.PlayerUid() ? -1000 : -title.Image);
  });
  all(world.Shows(), [&](int number, const Show& show) { add(Kind::Show, number, show.Name); });
  all(world.Events(),
      [&](int number, const Event& event) { add(Kind::Event, number, event.Name); });
  all(world.Teams(),
      [&](int number, const Team& team) { add(Kind::Team, number, team.Name, -team.Experience); });
  all(world.Stables(),
      [&](int number, const Stable& stable) { add(Kind::Stable, number, stable.Name); });
  all(world.AllStaff(), [&](int number, const Staff& person) {
    if (person.Uid != 0)
      add(Kind::Staff, number, person.Name, WorksForPlayer(world, person) ? -1000 : -person.Talent);
  });
  all(world.Networks(),
      [&](int number, const Network& network) { add(Kind::Network, number, network.Name); });
  all(world.Sponsors(),
      [&](int number, const Sponsor& sponsor) { add(Kind::Sponsor, number, sponsor.Name); });
  all(world.News(), [&](int number, const Mail& mail) {
    add(Kind::Mail, number, std::string(mail.From) + " " + std::string(mail.Body), -number);
  });
}

std::vector<Found> NameSearch::Find(std::string_view typed, std::size_t most) const {
  const std::vector<std::string> words = TypedWords(typed);
  if (words.empty()) return {};
  std::vector<Hit> hits = HitsFor(words, false);
  // Letters that stand inside a word alone are as likely a slip.
  const bool isSure =
      std::any_of(hits.begin(), hits.end(), [](const Hit& hit) { return hit.Fit < kInside; });
  if (!isSure) hits = HitsFor(words, true);
  // The names of a kind follow each other. The kind that fits best comes first.
  std::vector<std::span<const Hit>> kinds;
  for (auto first = hits.begin(); most > 0 && first != hits.end();) {
    const auto last = std::find_if(first, hits.end(),
                                   [&](const Hit& hit) { return hit.Of->Is != first->Of->Is; });
    const auto end = first + std::min(static_cast<std::ptrdiff_t>(most), last - first);
    std::partial_sort(first, end, last, [](const Hit& a, const Hit& b) {
      return std::tuple(a.Fit, a.Of->Standing, a.Of) < std::tuple(b.Fit, b.Of->Standing, b.Of);
    });
    kinds.emplace_back(first, end);
    first = last;
  }
  std::ranges::stable_sort(kinds, {}, [](const auto& kind) { return kind.front().Fit; });
  std::vector<Found> found;
  for (const auto& kind : kinds)
    for (const Hit& hit : kind)
      found.push_back(
          {hit.Of->Is, hit.Of->Number, NameOf(world_, hit.Of->Is, hit.Of->Number), hit.Fit});
  return found;
}

std::vector<NameSearch::Hit> NameSearch::HitsFor(const std::vector<std::string>& words,
                                                 bool forgiving) const {
  // Most names are done with by letters that they do not have.
  std::vector<std::pair<std::uint64_t, int>> wanted;
  for (const std::string& word : words)
    wanted.emplace_back(LettersIn(word), forgiving ? Forgiven(word.size() - 1) : 0);
  const auto mayFit = [&wanted](const Name& name) {
    return std::ranges::all_of(wanted, [&name](const auto& word) {
      return std::popcount(word.first & ~name.Has) <= word.second;
    });
  };
  std::vector<Hit> hits;
  for (const Name& name : names_) {
    if (!mayFit(name)) continue;
    const bool isMail = name.Is == Kind::Mail;
    const int fit = FitOf(name.Letters, words, forgiving && !isMail);
    if (fit >= 0) hits.push_back({&name, fit + (isMail ? kBehindAll : 0)});
  }
  return hits;
}

bool IsStill(const World& world, const Found& found) {
  return NameOf(world, found.Is, found.Number) == found.Name;
}

std::string AboutFound(const World& world, const Found& found) {
  const int number = found.Number;
  switch (found.Is) {
    case Kind::Worker:
      return AboutWorker(world, world.Workers()[number]);
    case Kind::Promotion: {
      const Promotion& one = world.Promotions()[number];
      return std::string(Says(kSizes, one.Size)) + ", image " + std::to_string(one.Image) + "%";
    }
    case Kind::Title:
      return AboutTitle(world, world.Titles()[number]);
    case Kind::Show:
      return AboutShow(world, world.Shows()[number]);
    case Kind::Event:
      return EmployerOr(world, world.Events()[number].Owner, "Not held any more");
    case Kind::Team: {
      const Team& team = world.Teams()[number];
      return WorkerName(world, team.Worker1) + ", " + WorkerName(world, team.Worker2);
    }
    case Kind::Stable:
      return EmployerOr(world, world.Stables()[number].Owner, "Broken up");
    case Kind::Staff: {
      const Staff& person = world.AllStaff()[number];
      return std::string(Says(kStaffPositions, person.Position)) + ", " +
             EmployerOr(world, person.Employer, "out of work");
    }
    case Kind::Network:
      return "Television network";
    case Kind::Sponsor: {
      const Sponsor& sponsor = world.Sponsors()[number];
      return sponsor.Promotion == 0 ? "Free" : EmployerOr(world, sponsor.Promotion, "Free");
    }
    case Kind::Mail:
      return std::string(world.News()[number].From) + ", " + std::string(world.News()[number].Date);
  }
  return {};
}

}  // namespace grapplemont
