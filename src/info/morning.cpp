#include "info/morning.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>

#include "business/past.h"
#include "records/fields/grouping.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/score.h"

namespace grapplemont {

namespace {

bool IsOfPeople(int kind) {
  return kind == kNoteOver || kind == kNoteMorale || kind == kNoteCondition;
}

MovedFigure& FigureOf(PersonMoved& person, int kind) {
  if (kind == kNoteOver) return person.Over;
  return kind == kNoteMorale ? person.Morale : person.Condition;
}

std::string WhyOf(const ShowNote& step) {
  const std::string row = step.Row == 0 ? "" : ", row " + std::to_string(step.Row);
  return step.Why.Str() + row;
}

void AddWhy(PersonMoved& person, const NotedNumber& number) {
  const std::string why = WhyOf(number.Main());
  if (person.Why.find(why) != std::string::npos) return;
  person.Why += (person.Why.empty() ? "" : "; ") + why;
}

/// Over counts most, then morale, then condition.
auto WeightOf(const PersonMoved& person) {
  return std::tuple(-std::abs(person.Over.Change), -std::abs(person.Morale.Change),
                    -std::abs(person.Condition.Change));
}

/// How many ratings the sum of the show was divided by: its rows and the last once more.
int CountsOf(const NotedNumber& rating) {
  return 1 + static_cast<int>(std::ranges::count_if(
                 rating.Steps, [](const ShowNote* step) { return step->Row != 0; }));
}

}  // namespace

const NotedNumber* Morning::Of(int kind) const {
  const auto found = std::ranges::find(Numbers, kind, &NotedNumber::Kind);
  return found == Numbers.end() ? nullptr : &*found;
}

std::vector<const NotedNumber*> Morning::AllOf(int kind) const {
  std::vector<const NotedNumber*> all;
  for (const NotedNumber& number : Numbers)
    if (number.Kind == kind) all.push_back(&number);
  return all;
}

Morning MorningOf(const World& world, Day on, int promotionUid) {
  Morning morning;
  morning.Numbers = NightOf(world, on, promotionUid);
  for (const HistoryEntry& entry : world.History())
    if (IsShow(entry) && entry.Promotion == promotionUid && Day(entry.On) == on)
      morning.Show = &entry;
  if (!morning.Show) return morning;
  for (const HistoryEntry& entry : world.History())
    if (IsShow(entry) && !entry.CalledOff && entry.Promotion == promotionUid &&
        Day(entry.On) < on && entry.Name == morning.Show->Name)
      morning.Before = &entry;
  return morning;
}

std::vector<PersonMoved> PeopleMoved(const Morning& morning) {
  std::vector<PersonMoved> people;
  for (const int kind : {kNoteOver, kNoteMorale, kNoteCondition}) {
    for (const NotedNumber* number : morning.AllOf(kind)) {
      auto known = std::ranges::find(people, number->What, &PersonMoved::Name);
      if (known == people.end()) {
        people.push_back({number->What, number->Worker, {}, {}, {}, {}});
        known = people.end() - 1;
      }
      FigureOf(*known, kind) = {true, number->After(), number->Change()};
      if (kind != kNoteCondition || known->Why.empty()) AddWhy(*known, *number);
    }
  }
  std::ranges::stable_sort(people, {}, WeightOf);
  return people;
}

std::vector<const NotedNumber*> NumbersOf(const Morning& morning, std::string_view who) {
  std::vector<const NotedNumber*> numbers;
  for (const NotedNumber& number : morning.Numbers)
    if (IsOfPeople(number.Kind) && number.What == who) numbers.push_back(&number);
  return numbers;
}

std::string BandText(const Morning& morning) {
  const NotedNumber* rating = morning.Of(kNoteRating);
  const NotedNumber* next = morning.Of(kNoteNextBand);
  if (!rating || !next) return "No rating moves the image further.";
  return Counted(next->After() - rating->After(), "point") + " short of " +
         std::to_string(next->After()) + "%, from where the image moves by " +
         Signed(next->Steps.back()->Change);
}

std::string WantedText(const Morning& morning) {
  const NotedNumber* rating = morning.Of(kNoteRating);
  const NotedNumber* next = morning.Of(kNoteNextBand);
  if (!rating || !next) return {};
  const int counts = CountsOf(*rating);
  const int sum = rating->After() - rating->Steps.back()->Change;
  return std::to_string(next->After()) + "% would have taken " +
         Counted(next->After() * counts - sum, "more point", "more points") + " from " +
         Counted(counts - 1, "row") + ", the last of which counts twice.";
}

std::vector<RowRating> RowRatings(const NotedNumber& rating) {
  std::vector<RowRating> rows;
  for (const ShowNote* step : rating.Steps) {
    if (step->Row != 0) rows.push_back({step->Row, step->Change});
    if (step->Why == kFlatNight && !rows.empty()) rows.back().Rating += step->Change;
  }
  return rows;
}

std::string FlatNightText(const Morning& morning) {
  const NotedNumber* rating = morning.Of(kNoteRating);
  if (!rating) return {};
  int taken = 0, ofLast = 0;
  for (const ShowNote* step : rating->Steps) {
    if (step->Row != 0) ofLast = 0;
    if (step->Why == kFlatNight) taken += ofLast = step->Change;
  }
  if (taken == 0) return {};
  const int counts = CountsOf(*rating);
  const int sum = rating->After() - rating->Steps.back()->Change;
  // The last row counts twice.
  const int without = std::clamp(Score::Floor(sum - taken - ofLast, counts), 0, 100);
  return "A flat night, as one in eight is: every match lost a tenth. On another this card would "
         "have come to " +
         NumberText(kNoteRating, without) + ", " + Counted(without - rating->After(), "point") +
         " more.";
}

std::string WhoWon(const World& world, const ShowNote& won) {
  const Title* title = FindTitle(world, won.What);
  return title && title->Singles && won.Worker != 0 ? WorkerName(world, won.Worker) : won.Why.Str();
}

std::string WhyTitleMoved(const World& world, const Morning& morning, const NotedNumber& image) {
  const ShowNote& last = *image.Steps.back();
  const auto taken = morning.AllOf(kNoteTitle);
  const Title* title = FindTitle(world, image.What);
  const bool isKept =
      last.Row != 0 && title && title->Holder != 0 &&
      std::ranges::none_of(taken, [&](const NotedNumber* won) { return won->What == image.What; });
  return (isKept ? "kept; " : "") + last.Why.Str();
}

std::string Signed(long long change) {
  return (change > 0 ? "+" : "") + std::to_string(change);
}

std::string NumberText(int kind, int number) {
  if (kind == kNoteMoney) return Dollars(number);
  if (kind == kNoteViewers) return RatingText(number);
  return kind == kNoteCrowd ? Grouped(number) : std::to_string(number) + "%";
}

std::string ChangeText(int kind, int change) {
  const std::string plus = change < 0 ? "" : "+";
  if (kind == kNoteMoney) return plus + Dollars(change);
  if (kind == kNoteViewers) return plus + InHundredths(change);
  return kind == kNoteCrowd ? (change > 0 ? "+" : "") + Grouped(change) : Signed(change);
}

}  // namespace grapplemont
