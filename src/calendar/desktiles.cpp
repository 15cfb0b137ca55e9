#include "calendar/desktiles.h"

#include "business/beside.h"
#include "business/finance.h"
#include "business/past.h"
#include "calendar/advanceday.h"
#include "calendar/deskwork.h"
#include "records/fields/fields.h"
#include "records/fields/vocabulary.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/notes.h"
#include "records/readmail.h"

namespace grapplemont {

namespace {

constexpr int kHighest = 100;  // the image at which a promotion rises

int SignOf(long long change) {
  return change > 0 ? 1 : change < 0 ? -1 : 0;
}
std::string PlusIf(long long change) {
  return change > 0 ? "+" : "";
}
std::string WithSign(long long dollars) {
  return PlusIf(dollars) + Dollars(dollars);
}

/// "Balance of the books +$1,200; Monthly tryout -$300".
std::string MoneySteps(const World& world, const MonthBooks& books, long long BesideLine::*month) {
  std::string text = "Balance of the books " + WithSign(Balance(books));
  for (const BesideLine& line : BesideLines(world))
    if (line.*month != 0) text += "; " + line.Why + " " + WithSign(line.*month);
  return text;
}

/// It wants care where what is left when the first of the month has been paid is below nothing, and
/// goes well where the month has earned that: shows to come may earn it yet.
DeskTile MoneyTile(const World& world, const Promotion& player) {
  const long long due = DueOnTheFirst(world);
  const BesideLine beside = BesideTotal(world);
  const long long moved = Balance(player.ThisMonth) + beside.Present;
  // On the day after a month end what that took away.
  const bool tellsLast =
      moved == 0 && player.MoneyBefore[0] != kNoEnd && player.MoneyBefore[1] != kNoEnd;
  const long long told = tellsLast ? Balance(player.LastMonth) + beside.Last : moved;
  return {"Money " + Dollars(player.Money),
          WithSign(told) + (tellsLast ? " last month, " : " this month, ") +
              Dollars(due < 0 ? -due : due) + (due < 0 ? " comes in" : " due") +
              (IsFirstOfMonth(world.Today()) ? " on the next 1st" : " on the 1st"),
          player.Money < due ? -1 : std::max(SignOf(moved - due), 0),
          tellsLast ? MoneySteps(world, player.LastMonth, &BesideLine::Last)
                    : MoneySteps(world, player.ThisMonth, &BesideLine::Present)};
}

DeskTile ImageTile(const Promotion& player) {
  const std::string size(SizeText(player.Size - 1));
  return {"Image " + std::to_string(player.Image) + "%",
          player.Size == kGlobal ? "There is no size above yours"
                                 : Counted(kHighest - player.Image, "point") + " short of " + size};
}

/// "+1 High Tide Live, rated 75%, 13/05/26; -10 no Event, 01/05/26".
std::string StandingSteps(const Score& momentum) {
  std::string text;
  for (const ScoreStep& step : momentum.Steps())
    text += (text.empty() ? "" : "; ") + PlusIf(step.Change) + std::to_string(step.Change) + " " +
            step.Why;
  return text;
}

/// How the standing has moved since the last month end, and what the last show was worth.
DeskTile StandingTile(const World& world, const Promotion& player) {
  const Score moved = MomentumSteps(world);
  const HistoryEntry* show = LastShowOf(world, player.Uid, MonthsBefore(world.Today(), 3));
  const std::string last = !show             ? "no show yet"
                           : show->CalledOff ? "last show called off"
                                             : "last show " + std::to_string(show->Rating) + "%";
  return {"Momentum " + PlusIf(moved) + std::to_string(moved), "This month; " + last, SignOf(moved),
          StandingSteps(moved)};
}

DeskTile MailTile(const World& world) {
  const Unread unread = UnreadOf(world);
  if (unread.Count() == 0) return {"Mail", "All of it is read"};
  return {"Mail " + std::to_string(unread.Count()) + " unread",
          std::to_string(unread.Own.size()) + " for you, " + Counted(unread.Days, "digest")};
}

DeskTile PeopleTile(const World& world) {
  int people = 0, away = 0, unhappy = 0;
  for (const Worker& worker : world.Workers()) {
    if (!WorksForPlayer(world, worker)) continue;
    ++people;
    away += IsAway(worker);
    unhappy += IsUnhappy(worker);
  }
  const auto worn = HurtAndWorn(world).size();
  return {"Roster " + std::to_string(people),
          away + unhappy > 0
              ? std::to_string(away) + " away, " + std::to_string(unhappy) + " unhappy"
          : worn > 0 ? std::to_string(worn) + " worn, nobody away or unhappy"
                     : std::string("All fit and content"),
          away > 0 ? -1 : 0};
}

}  // namespace

std::array<DeskTile, 5> DeskTiles(const World& world) {
  const Promotion& player = world.Player();
  return {MoneyTile(world, player), ImageTile(player), StandingTile(world, player), MailTile(world),
          PeopleTile(world)};
}

}  // namespace grapplemont
