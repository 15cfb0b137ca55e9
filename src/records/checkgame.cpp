#include <charconv>
#include <set>

#include "records/checkrules.h"
#include "records/dates.h"

// What only a running game has.

namespace grapplemont {

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
  for (Mail& mail : news)
    if (!IsMailDate(mail.Date))
      inspection.Note(news, mail, "Date", "is no date like " + ShortDate(kNoTitleDate));
}

}  // namespace grapplemont
