#include <algorithm>
#include <charconv>
#include <map>
#include <set>
#include <tuple>
#include <unordered_map>

#include "records/checks/checkrules.h"
#include "records/fields/fields.h"
#include "records/severing.h"

// Promotions, and the Titles, teams, Events, shows and sponsors that belong to them.

namespace grapplemont {

namespace {

void SweepPromotions(World& world) {
  // A mark may share its uid with a promotion that lives; nobody loses their job over that.
  for (Promotion& gone : world.Promotions())
    for (const Promotion& other : world.Promotions())
      if (gone.Name == kToBeDeleted && !(other.Name == kToBeDeleted) && gone.Uid == other.Uid)
        gone.Uid = 0;
  SweepDeadPromotions(world);
}

template <class T>
void SweepMarked(Inspection& inspection, Records<T>& records, void (*sweep)(World&)) {
  bool sweeps = false;
  for (T& record : records)
    if (record.Name == kToBeDeleted)
      inspection.Note(records, record, "", "is marked as gone",
                      {"removed", [&sweeps] { sweeps = true; }});
  if (sweeps) sweep(inspection.Of());
}

void Vacate(Title& title) {
  title.Holder = 0;
  title.Partner = 0;
  title.Reigns[0].Holder = kVacantHolder;
}

/// Empty when the Title's champions are in order.
std::string WrongChampion(const World& world, const Title& title) {
  const auto isForeign = [&](int uid) {
    const Worker* worker = world.FindWorker(uid);
    return worker && (title.Owner <= 0 || worker->Employer != title.Owner);
  };
  if (isForeign(title.Holder)) return "does not work for the Title's promotion";
  if (isForeign(title.Partner)) return "has a partner who does not work for the Title's promotion";
  if (!title.Singles && title.Holder != 0 && (title.Partner == 0 || title.Partner == title.Holder))
    return "has no partner";
  return {};
}

/// The second of a name within one promotion.
template <class T, class RemedyFor>
void InspectOwnNames(Inspection& inspection, Records<T>& records, RemedyFor remedyFor) {
  std::set<std::pair<int, std::string>> names;
  for (const T& record : records) names.emplace(record.Owner, record.Name.Str());
  std::set<std::pair<int, std::string>> met;
  // What closed promotions left behind may be called alike.
  const auto isLeft = [&](const T& record) { return !inspection.AsData() && record.Owner <= 0; };
  for (T& record : records)
    if (!isLeft(record) && !met.emplace(record.Owner, record.Name.Str()).second)
      inspection.Note(records, record, "Name", "stands twice in the same promotion",
                      remedyFor(record, names));
}

bool IsIn(const Promotion& promotion, int sponsorUid) {
  return std::any_of(promotion.Sponsor.begin(), promotion.Sponsor.end(),
                     [&](const Word& place) { return place == sponsorUid; });
}

void InspectSponsorPlaces(Inspection& inspection, Promotion& promotion) {
  World& world = inspection.Of();
  for (std::size_t i = 0; i < promotion.Sponsor.size(); ++i) {
    Word& place = promotion.Sponsor[i];
    const Sponsor* sponsor = world.FindSponsor(place);
    if (!sponsor) continue;
    const bool twice = std::any_of(promotion.Sponsor.begin(),
                                   promotion.Sponsor.begin() + static_cast<std::ptrdiff_t>(i),
                                   [&](const Word& other) { return other == place; });
    if (!twice && sponsor->Promotion == promotion.Uid) continue;
    inspection.Note(world.Promotions(), promotion, "Sponsor" + std::to_string(i + 1),
                    twice ? "stands there twice" : sponsor->Name + " knows nothing of it",
                    {"made 0", [&place] { place = 0; }});
  }
}

}  // namespace

void NoTombstones(Inspection& inspection) {
  SweepMarked(inspection, inspection.Of().Promotions(), SweepPromotions);
  SweepMarked(inspection, inspection.Of().Shows(), SweepDeadShows);
}

void TitlesAgree(Inspection& inspection) {
  Records<Title>& titles = inspection.Of().Titles();
  for (Title& title : titles) {
    const Remedy alone{"made 0", [&title] { title.Partner = 0; }};
    if (title.Partner == 0) continue;
    if (title.Singles)
      inspection.Note(titles, title, "Partner", "is set for a singles title", alone);
    else if (title.Holder == 0)
      inspection.Note(titles, title, "Partner", "is set for a vacant Title", alone);
    else if (title.Holder == title.Partner)
      inspection.Note(titles, title, "Partner", "is also the holder", alone);
  }
}

void ChampionsWorkForTheOwner(Inspection& inspection) {
  World& world = inspection.Of();
  for (Title& title : world.Titles()) {
    const std::string wrong = WrongChampion(world, title);
    if (wrong.empty()) continue;
    inspection.Note(world.Titles(), title, "Holder", wrong,
                    {"vacated", [&title] { Vacate(title); }});
  }
}

void VacantTitlesSaySo(Inspection& inspection) {
  Records<Title>& titles = inspection.Of().Titles();
  for (Title& title : titles)
    if (title.Holder == 0 && !(title.Reigns[0].Holder == kVacantHolder))
      inspection.Note(titles, title, "Holder1", "is not \"Vacant\" for a vacant Title");
}

void TitlesAndStablesHaveOneName(Inspection& inspection) {
  World& world = inspection.Of();
  InspectOwnNames(inspection, world.Titles(), [](Title& title, auto& names) {
    std::string fresh;
    for (int n = 2; fresh.empty() || names.contains({title.Owner, fresh}); ++n) {
      const std::string behind = " " + std::to_string(n);
      fresh = title.Name.View().substr(0, 20 - behind.size());
      fresh += behind;
    }
    names.emplace(title.Owner, fresh);
    return Remedy{"made \"" + fresh + "\"", [&title, fresh] { title.Name = fresh; }};
  });
  Removal<Stable> removal(world.Stables());
  InspectOwnNames(inspection, world.Stables(),
                  [&](Stable& stable, auto&) { return removal.Of(stable); });
  removal.Apply();
}

void NobodyTeamsWithHimself(Inspection& inspection) {
  RemoveWrong(inspection, inspection.Of().Teams(), "Worker2", [](const Team& team) -> std::string {
    const bool isAlone = team.Worker1 != 0 && team.Worker1 == team.Worker2;
    return isAlone ? "is also the other partner" : "";
  });
}

void TeamsAreTwo(Inspection& inspection) {
  std::set<std::pair<int, int>> pairs;
  RemoveWrong(inspection, inspection.Of().Teams(), "", [&](const Team& team) -> std::string {
    if (team.Worker1 == 0 || team.Worker2 == 0) return "lacks a partner";
    const auto pair = std::minmax<int>({int(team.Worker1), int(team.Worker2)});
    return pairs.insert(pair).second ? "" : "is a pair that is a team already";
  });
}

void OneEventAMonth(Inspection& inspection) {
  std::set<std::pair<int, int>> months;
  RemoveWrong(
      inspection, inspection.Of().Events(), "Month", [&](const Event& event) -> std::string {
        const bool isFirst = event.Owner == 0 || months.emplace(event.Owner, event.Month).second;
        return isFirst ? "" : "has an Event of the promotion already";
      });
}

void ThreeShowsAtMost(Inspection& inspection) {
  constexpr int kMostShows = 3;
  std::unordered_map<int, int> counts;
  RemoveWrong(inspection, inspection.Of().Shows(), "Owner", [&](const Show& show) -> std::string {
    const bool isTooMany = show.Owner != 0 && ++counts[show.Owner] > kMostShows;
    return isTooMany ? "has three shows already" : "";
  });
}

void OneShowASpot(Inspection& inspection) {
  std::map<std::tuple<int, std::string, std::string>, std::string> spots;
  RemoveWrong(inspection, inspection.Of().Shows(), "Slot", [&](const Show& show) -> std::string {
    const Network* network = inspection.Of().FindNetwork(show.Network);
    if (!network || network->Generic) return {};
    const auto [spot, isFree] =
        spots.try_emplace({show.Network, show.Day.Str(), show.Slot.Str()}, show.Name.Str());
    return isFree ? "" : "is taken on that day by " + spot->second;
  });
}

void SponsorsAgree(Inspection& inspection) {
  World& world = inspection.Of();
  for (Promotion& promotion : world.Promotions()) InspectSponsorPlaces(inspection, promotion);
  for (Sponsor& sponsor : world.Sponsors()) {
    const Promotion* promotion = world.FindPromotion(sponsor.Promotion);
    if (!promotion || IsIn(*promotion, sponsor.Uid)) continue;
    inspection.Note(world.Sponsors(), sponsor, "Promotion",
                    promotion->Initials + " knows nothing of it", {"made 0", [&sponsor] {
                                                                     sponsor.Promotion = 0;
                                                                     sponsor.ContractMonths = 0;
                                                                   }});
  }
}

// What only a running game has.

namespace {

/// A word of gameinfo.dat with codes that its range alone does not tell.
bool IsEndCode(int code) {
  return (code >= kGoesOn && code <= kLastEnd) || code == kStrangerWaits;
}

/// Whether the text is a day of the calendar as mails are dated.
bool IsMailDate(std::string_view text) {
  int parts[3] = {};
  const char* at = text.data();
  const char* end = at + text.size();
  for (int& part : parts) {
    const auto [behind, fault] = std::from_chars(at, end, part);
    if (fault != std::errc() || part < 0) return false;
    at = behind == end ? end : behind + 1;
  }
  using namespace std::chrono;
  const year_month_day date{year{parts[2]}, month{static_cast<unsigned>(parts[1])},
                            day{static_cast<unsigned>(parts[0])}};
  return date.ok() && ShortDate(Day{date}) == text;
}

/// Empty when the feud is in order.
std::string WrongFeud(const Feud& feud) {
  const bool empty = feud.Worker1 == 0;
  const bool rest = feud.Worker2 != 0 || feud.Worker3 != 0 || feud.Worker4 != 0;
  if (empty) return rest ? "has no first party, but others" : "";
  std::multiset<int> parties{feud.Worker1, feud.Worker2};
  if (!feud.Singles)
    parties.insert({feud.Worker3, feud.Worker4});
  else if (feud.Worker3 != 0 || feud.Worker4 != 0)
    return "is a feud of two, but names more";
  if (parties.contains(0)) return "lacks a party";
  if (std::set<int>(parties.begin(), parties.end()).size() != parties.size())
    return "names somebody twice";
  return {};
}

}  // namespace

void GameInfoStands(Inspection& inspection) {
  World& world = inspection.Of();
  if (world.GameInfos().Exists() && !world.HasGame())
    inspection.NoteFile(world.GameInfos().File(), "holds no record");
  if (inspection.AsData()) return;
  GameInfo& game = world.Game();
  const auto note = [&](std::string_view field, std::string what) {
    inspection.Note(world.GameInfos(), game, field, std::move(what));
  };
  if (!(game.Version == kVersion)) note("Version", "is not \"" + std::string(kVersion) + "\"");
  if (!IsEndCode(game.EndCode))
    note("EndCode", "is " + std::to_string(game.EndCode) + ", neither 0 to 9 nor 100");
  if (Day(game.Today) < Day(game.StartDate)) note("Today", "lies before the game's start");
}

void ShortlistWithoutDoubles(Inspection& inspection) {
  World& world = inspection.Of();
  GameInfo& game = world.Game();
  std::set<int> met;
  for (std::size_t i = 0; i < game.Shortlist.size(); ++i)
    if (game.Shortlist[i] != 0 && !met.insert(game.Shortlist[i]).second)
      inspection.Note(world.GameInfos(), game, "Shortlist" + std::to_string(i + 1),
                      "stands there twice");
}

void EightFeuds(Inspection& inspection) {
  const Records<Feud>& feuds = inspection.Of().Feuds();
  if (feuds.Count() != kFeuds)
    inspection.NoteFile(feuds.File(), "holds " + std::to_string(feuds.Count()) + " records, not " +
                                          std::to_string(kFeuds));
}

void FeudsAreEmptyOrComplete(Inspection& inspection) {
  Records<Feud>& feuds = inspection.Of().Feuds();
  for (Feud& feud : feuds)
    if (std::string wrong = WrongFeud(feud); !wrong.empty())
      inspection.Note(feuds, feud, "", std::move(wrong));
}

void MailsAreDated(Inspection& inspection) {
  Records<Mail>& news = inspection.Of().News();
  for (Mail& mail : news.Unwatched())
    if (!IsMailDate(mail.Date))
      inspection.Note(news, mail, "Date", "is not a date like " + ShortDate(kNoTitleDate));
}

}  // namespace grapplemont
