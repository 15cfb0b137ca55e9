#include <algorithm>

#include "chronicle/scribe.h"
#include "records/fields/chronicle.h"
#include "records/fields/fields.h"
#include "report/pasttold.h"
#include "storylines/lineages.h"

// Sentences that chapters of several kinds have.

namespace grapplemont {

namespace {

constexpr int kAMonth = 31;
constexpr int kWrittenOut = 12;

/// An event of a promotion, and how it is told.
struct HouseEvent {
  AnnalKind Of;
  Tells As;
};
constexpr HouseEvent kHouseEvents[] = {
    {kAnnalFounded, Tells::HouseFounded}, {kAnnalClosed, Tells::HouseClosed},
    {kAnnalBought, Tells::HouseBought},   {kAnnalRisen, Tells::HouseRisen},
    {kAnnalFallen, Tells::HouseFallen},   {kAnnalOwner, Tells::HouseOwner}};

/// "four to nothing", "11 to 14": both in letters or both in figures.
std::string ScoreText(int won, int lost) {
  const bool inFigures = std::max(won, lost) > kWrittenOut;
  const auto text = [&](int count) {
    return count == 0 ? "nothing" : inFigures ? std::to_string(count) : CountText(count);
  };
  return text(won) + " to " + text(lost);
}

/// The full name that a promotion had on the day of an event; another may have its place by now.
std::string NameThen(const Archive& archive, const Annal& event) {
  for (const Annal* other : archive.EventsOfHouse(event.Promotion))
    if ((other->Kind == kAnnalFounded || other->Kind == kAnnalClosed) &&
        other->House == event.House && other->What != "")
      return other->What.Str();
  return archive.FullHouseName(event.Promotion);
}

}  // namespace

Churn ChurnOf(const Annal& event) {
  if (event.Kind == kAnnalRisen || event.Kind == kAnnalFallen) return Churn::Class;
  return event.Kind == kAnnalOwner ? Churn::Owner : Churn::None;
}

void TellReign(Scribe& scribe, const Archive& archive, const HeldCrown& held) {
  const World& world = archive.Of();
  const TitleReign& reign = held.Reign();
  const TitleReign* before = held.Before();
  const int days = DaysOf(reign, world.Today());
  const bool knowsBegin = Day(reign.From) > kNoTitleDate;
  Telling telling{.Of = Tells::CrownBefore, .F = HolderOf(world, reign)};
  telling.Title = CrownName(world, *held.Of);
  telling.House = archive.HouseName(reign.Owner);
  telling.By = {ProofBy(world, reign)};
  if (knowsBegin) telling.On = reign.From;
  telling.Count = DaysText(days);
  telling.Runs = days > kAMonth;
  if (archive.Lasts(reign)) {
    telling.Of = knowsBegin ? Tells::CrownOn : Tells::CrownBefore;
    return scribe.Tell(telling);
  }
  if (const TitleReign* after = held.After(); after && reign.End == kReignLost) {
    telling.X = HolderOf(world, *after);
    telling.By.push_back(ProofBy(world, *after));
  }
  if (knowsBegin && days >= 0) {
    const bool won = before && before->End == kReignLost;
    telling.Of = won ? Tells::CrownWon : Tells::CrownFilled;
    if (won) {
      telling.S = HolderOf(world, *before);
      telling.By.push_back(ProofBy(world, *before));
    }
  }
  scribe.Tell(telling);
}

bool TellOfHouse(Scribe& scribe, const Archive& archive, const Annal& event, bool full) {
  for (const HouseEvent& row : kHouseEvents) {
    if (event.Kind != row.Of) continue;
    Telling telling{.Of = row.As, .On = event.On, .By = {ProofBy(archive.Of(), event)}};
    telling.House = full || event.House == "" ? NameThen(archive, event) : event.House.Str();
    telling.Tally = event.Kind == kAnnalOwner ? event.Name.Str() : SmallSize(event.Number);
    telling.G = event.Other.Str();
    scribe.Tell(telling);
    return true;
  }
  return false;
}

void TellChurn(Scribe& scribe, const Archive& archive, std::string house,
               const Archive::Events& events) {
  const bool isOwners = ChurnOf(*events.front()) == Churn::Owner;
  Telling telling{.Of = isOwners ? Tells::HouseHands : Tells::HouseUneasy};
  telling.House = std::move(house);
  telling.Year = YearOf(events.front()->On);
  std::vector<std::string> names;
  int rises = 0;
  for (const Annal* event : events) {
    telling.By.push_back(ProofBy(archive.Of(), *event));
    rises += event->Kind == kAnnalRisen;
    const std::string name = event->Name.Str();
    const bool isBack = std::ranges::find(names, name) != names.end();
    names.push_back(isBack ? name + " again" : name);
  }
  const auto count = static_cast<int>(events.size());
  const int falls = count - rises;
  telling.Count = isOwners ? CountText(count) : TimesText(count);
  telling.Tally = isOwners     ? AndJoined(names)
                  : rises == 0 ? "always down"
                  : falls == 0 ? "always up"
                               : TimesText(rises) + " up, " + TimesText(falls) + " down";
  telling.Feud = isOwners ? std::string() : SmallSize(events.back()->Number);
  scribe.Tell(telling);
}

bool TellFeudsEnd(Scribe& scribe, const Archive& archive, const Annal& event) {
  if (event.Kind != kAnnalFeudOver && event.Kind != kAnnalFeudCold) return false;
  const World& world = archive.Of();
  const bool won = event.Kind == kAnnalFeudOver;
  const bool isBehind = event.Number < event.Against;
  Telling telling{.Of = !won       ? Tells::FeudCold
                        : isBehind ? Tells::FeudLast
                                   : Tells::FeudWon,
                  .F = FirstOf(world, event),
                  .S = SecondOf(world, event),
                  .On = event.On,
                  .By = {ProofBy(world, event)}};
  telling.Count = DaysText(event.Days);
  telling.Tally = ScoreText(event.Number, event.Against);
  scribe.Tell(telling);
  return true;
}

void TellAward(Scribe& scribe, const Archive& archive, const YearAward& award) {
  const World& world = archive.Of();
  Telling telling{.Of = Tells::AwardGiven, .By = {ProofBy(world, award)}};
  telling.Year = YearOf(award.On);
  telling.Tally = std::string(AwardName(award.Kind));
  telling.Feud = award.Winner.Str();
  const bool toSomebody = award.Kind == kWrestlerOfTheYear || award.Kind == kWomanOfTheYear ||
                          award.Kind == kTeamOfTheYear || award.Kind == kRookieOfTheYear ||
                          award.Kind == kMostImproved;
  if (toSomebody) {
    telling.Of = Tells::AwardWon;
    const bool several = award.Kind == kTeamOfTheYear;
    const Worker* worker = several ? nullptr : world.FindWorker(award.Worker);
    telling.F = {worker && worker->Name == award.Winner ? int(award.Worker) : 0, award.Winner.Str(),
                 several  ? kSeveral
                 : worker ? (worker->Gender ? kMan : kWoman)
                          : kNobodysSex};
  }
  scribe.Tell(telling);
}

}  // namespace grapplemont
