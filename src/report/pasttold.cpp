#include "report/pasttold.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "report/pastlook.h"
#include "report/stages.h"

namespace grapplemont {

namespace {

constexpr std::size_t kMostFacts = 2;

constexpr std::string_view kNths[] = {"",      "first",    "second",  "third",  "fourth",
                                      "fifth", "sixth",    "seventh", "eighth", "ninth",
                                      "tenth", "eleventh", "twelfth"};
constexpr int kWritten = 12;

struct Ago {
  int Days;  // at most
  std::string_view When, Since;
};
constexpr Ago kAgo[] = {{0, "earlier tonight", "earlier tonight"},
                        {6, "a few days ago", "the other day"},
                        {10, "a week ago", "last week"},
                        {17, "two weeks ago", "the week before last"},
                        {24, "three weeks ago", "that night three weeks ago"},
                        {45, "a month ago", "last month"}};
constexpr int kNamesItsMonth = 330, kAYearAgo = 547, kYear = 365;

std::string MonthText(int daysAgo, Day today) {
  return std::string(MonthName(MonthOf(today - std::chrono::days(daysAgo))));
}

std::string YearsText(int days) {
  return CountText((days + kYear / 2) / kYear) + " years";
}

enum class Who { One, Two, Either, Nobody };
/// What comes of a fact: by which side the match was won, and whether it takes a Title for that.
struct OutcomeRow {
  PastKind After;
  Who Wins;
  bool WithTitle;
  PastOutcome Tells;
};
constexpr OutcomeRow kOutcomes[] = {
    {kMetLately, Who::One, false, kSameAgain},
    {kMetLately, Who::Two, false, kPaidBack},
    {kWasAttacked, Who::One, false, kPaidBack},
    {kWasAttacked, Who::Two, false, kNotPaidBack},
    {kPartnerBeaten, Who::One, false, kPaidBack},
    {kPartnerBeaten, Who::Two, false, kNotPaidBack},
    {kWinsInARow, Who::One, false, kRunGoesOn},
    {kWinsInARow, Who::Two, false, kRunEnds},
    {kLossesInARow, Who::One, false, kSlumpEnds},
    {kSeriesLevel, Who::Either, false, kSeriesTips},
    {kThreatened, Who::One, false, kWordKept},
    {kThreatened, Who::Two, false, kWordEaten},
    {kManagerSpoke, Who::One, false, kSaidSo},
    {kManagerSpoke, Who::Two, false, kSaidTooMuch},
    {kReignLong, Who::One, false, kReignGrows},
    {kReignLong, Who::Two, true, kReignOver},
    {kOnceChampion, Who::One, true, kCrownBack},
    {kTitleAgain, Who::One, true, kCrownBack},
    {kAwayLong, Who::One, false, kBackWithAWin},
    {kMetFiftyTimes, Who::Either, false, kFiftyDone},
    {kTitleAgain, Who::Two, false, kSameAgain},
    {kLossesInARow, Who::Two, false, kSlumpGoesOn},
    {kAwayLong, Who::Two, false, kBackBeaten},
    {kChallenged, Who::One, false, kChallengeWon},
    {kChallenged, Who::Two, false, kChallengeLost},
    {kMetFirst, Who::Either, false, kFirstOfThem},
    {kMetLongAgo, Who::Either, false, kAfterAllThatTime},
    {kMetTooOften, Who::Either, false, kOnceTooOften},
    {kSeriesLed, Who::One, false, kLeadGrows},
    {kSeriesLed, Who::Two, false, kLeadShrinks},
    {kNewAtTheTop, Who::One, false, kNewcomerStays},
    {kNewAtTheTop, Who::Two, false, kNewcomerFalls},
    {kReignNew, Who::One, false, kNewReignHolds},
    {kReignNew, Who::Two, true, kNewReignEnds},
    {kSignedFor, Who::Either, false, kContractKept},
    {kOnceChampion, Who::Two, false, kCrownStaysAway},
    {kTitleNever, Who::Two, false, kFirstShotMissed},
    {kYearsBest, Who::Either, false, kYearsBestAgain},
    {kMetLately, Who::Nobody, false, kNothingSettled},
    {kSeriesLevel, Who::Nobody, false, kNothingSettled},
    {kWasAttacked, Who::Nobody, false, kNothingSettled},
    {kPartnerBeaten, Who::Nobody, false, kNothingSettled},
    {kThreatened, Who::Nobody, false, kNothingSettled},
    {kChallenged, Who::Nobody, false, kNothingSettled},
    {kManagerSpoke, Who::Nobody, false, kNothingSettled},
    {kSignedFor, Who::Nobody, false, kNothingSettled},
};

/// Two ends that would say the same of a match, or the opposite of it.
bool SayTheSame(PastOutcome one, PastOutcome other) {
  const auto isSettling = [](PastOutcome is) {
    return is == kSameAgain || is == kPaidBack || is == kNotPaidBack;
  };
  return one == other || (isSettling(one) && isSettling(other));
}

/// What another fact that is told says as well: who has lost the Title has not won it back since.
bool IsToldBy(const PastFact& other, const PastFact& fact) {
  return fact.Is == kMetLately && other.Is == kTitleAgain && AnyOf(other.Two, fact.One);
}

/// A series to nothing whose last match is not told beside it ends as that would.
PastKind EndsAs(const PastFact& fact) {
  return fact.Is == kSeriesLed && fact.DaysAgo >= 0 ? kMetLately : fact.Is;
}

const OutcomeRow* OutcomeOf(const PastFact& fact, const std::vector<int>& winners, bool changed) {
  const auto isWonBy = [&](Who who) {
    if (who == Who::One) return AnyOf(winners, fact.One);
    if (who == Who::Two) return AnyOf(winners, fact.Two);
    return winners.empty() == (who == Who::Nobody);
  };
  for (const OutcomeRow& row : kOutcomes)
    if (row.After == EndsAs(fact) && (changed || !row.WithTitle) && isWonBy(row.Wins)) return &row;
  return nullptr;
}

/// The fact seen from the end: who has won comes first, unless it is about who has lost.
PastFact AsEnded(const PastFact& fact, const OutcomeRow& row, const std::vector<int>& winners) {
  PastFact ended = fact;
  constexpr PastOutcome kOfLosers[] = {
      kRunEnds,      kWordEaten,      kSaidTooMuch,    kReignOver,     kFiftyDone,
      kNotPaidBack,  kSlumpGoesOn,    kBackBeaten,     kChallengeLost, kNewcomerFalls,
      kNewReignEnds, kCrownStaysAway, kFirstShotMissed};
  const bool aboutLoser =
      std::find(std::begin(kOfLosers), std::end(kOfLosers), row.Tells) != std::end(kOfLosers);
  if (!aboutLoser && AnyOf(winners, fact.Two)) std::swap(ended.One, ended.Two);
  return ended;
}

}  // namespace

void SayOf(Teller& teller, const PastFact& fact, Family family, int band) {
  Cast& cast = teller.cast;
  const Party first = cast.Of('F'), second = cast.Of('S'), manager = cast.Of('m');
  cast.Set('F', teller.world, fact.One);
  cast.Set('S', teller.world, fact.Two);
  cast.Set('m', cast.Find(teller.world, fact.Manager));
  cast.Set(Item::Count, fact.Count == 0 ? "" : CountText(fact.Count));
  cast.Set(Item::Nth, fact.Count == 0 ? "" : NthText(fact.Count));
  const bool dated = fact.DaysAgo >= 0;
  cast.Set(Item::When, dated ? AgoText(fact.DaysAgo, teller.Today()) : "");
  cast.Set(Item::Since, dated ? SinceText(fact.DaysAgo, teller.Today()) : "");
  cast.Set(Item::Tally, fact.Tally);
  if (!cast.Of('F').Empty()) teller.Say(family, band);
  for (const Item item : {Item::Count, Item::Nth, Item::When, Item::Since, Item::Tally})
    cast.Set(item, {});
  cast.Of('F') = first;
  cast.Of('S') = second;
  cast.Of('m') = manager;
}

std::string CountText(int count) {
  if (count == 0) return "no";
  return count > 0 && count <= kWritten ? SpelledOut(count) : std::to_string(count);
}

std::string NthText(int count) {
  if (count >= 1 && count <= kWritten) return std::string(kNths[count]);
  const int last = count % 10;
  const bool plain = count % 100 / 10 == 1 || last == 0 || last > 3;
  constexpr std::string_view kEndings[] = {"st", "nd", "rd"};
  return std::to_string(count) + std::string(plain ? "th" : kEndings[last - 1]);
}

std::string AgoText(int days, Day today) {
  for (const Ago& ago : kAgo)
    if (days <= ago.Days) return std::string(ago.When);
  if (days <= kNamesItsMonth) return "in " + MonthText(days, today);
  return days <= kAYearAgo ? "a year ago" : YearsText(days) + " ago";
}

std::string SinceText(int days, Day today) {
  for (const Ago& ago : kAgo)
    if (days <= ago.Days) return std::string(ago.Since);
  const int year = YearOf(today - std::chrono::days(days));
  if (days <= kNamesItsMonth || year == YearOf(today)) return MonthText(days, today);
  return year + 1 == YearOf(today) ? "last year" : std::to_string(year);
}

bool IsYearsEnd(Day day) {
  constexpr int kDecember = 12;
  return MonthOf(day) == kDecember;
}

void TellYear(Teller& teller, Family family, int band) {
  if (!teller.scene.IsEvent || !teller.IsOurs() || !IsYearsEnd(teller.Today())) return;
  const HeldMatch* best = BestOfTheYear(teller.world);
  // What has just been better closes the year by itself.
  const bool isClosing = family == Family::PastEnding;
  if (!best || (isClosing && teller.scene.Overall > best->Rating)) return;
  const int many = best->Winners;
  const auto winners = best->Worker.begin() + many;
  const PastFact fact{{},
                      0,
                      {best->Worker.begin(), winners},
                      {winners, winners + many},
                      0,
                      static_cast<int>((teller.Today() - Day(best->On)).count())};
  teller.Paragraph();
  SayOf(teller, fact, family, band);
  teller.Paragraph();
}

std::vector<PastFact> PastOf(Teller& teller) {
  if (!teller.world.HasGame()) return {};
  std::vector<PastFact> facts = LookBack(teller);
  std::stable_sort(facts.begin(), facts.end(),
                   [](const PastFact& a, const PastFact& b) { return a.Weight > b.Weight; });
  return facts;
}

void TellPast(Teller& teller) {
  teller.Told = PastOf(teller);
  // Two of a kind would say the same of both sides.
  const auto sameKind = [](const PastFact& a, const PastFact& b) { return a.Is == b.Is; };
  auto& told = teller.Told;
  told.erase(std::unique(told.begin(), told.end(), sameKind), told.end());
  std::erase_if(told, [&, facts = told](const PastFact& fact) {
    return std::any_of(facts.begin(), facts.end(),
                       [&](const PastFact& other) { return IsToldBy(other, fact); });
  });
  if (told.size() > kMostFacts) told.resize(kMostFacts);
  for (const PastFact& fact : told) SayOf(teller, fact, Family::PastOpening, fact.Is);
}

void TellPastEnding(Teller& teller) {
  const Segment& segment = teller.segment;
  const auto winners = segment.Style == kSpecial && segment.Winner != 0
                           ? std::vector<int>{segment.Winner}
                           : WinnersOf(segment);
  const bool changed = ChangesHands(teller);
  std::vector<PastOutcome> said;
  for (const PastMark& mark : MarksOf(teller, winners, changed)) {
    if (said.size() == kMostFacts) return;
    SayOf(teller, mark.Of, Family::PastEnding, mark.Tells);
    said.push_back(mark.Tells);
  }
  for (const PastFact& fact : teller.Told) {
    const OutcomeRow* row = OutcomeOf(fact, winners, changed);
    if (!row || said.size() == kMostFacts) continue;
    if (std::any_of(said.begin(), said.end(),
                    [&](PastOutcome other) { return SayTheSame(row->Tells, other); }))
      continue;
    SayOf(teller, AsEnded(fact, *row, winners), Family::PastEnding, row->Tells);
    said.push_back(row->Tells);
  }
}

}  // namespace grapplemont
