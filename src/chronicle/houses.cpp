#include <algorithm>
#include <functional>
#include <map>

#include "business/past.h"
#include "chronicle/scribe.h"
#include "records/fields/fields.h"
#include "report/pasttold.h"
#include "storylines/lineages.h"

// The chapter of a promotion.

namespace grapplemont {

namespace {

std::string ThingsText(int count, std::string_view one, std::string_view many) {
  return CountText(count) + " " + std::string(count == 1 ? one : many);
}

class HouseStory {
 public:
  HouseStory(Scribe& scribe, const Archive& archive, const Subject& subject)
      : scribe_(scribe), archive_(archive), world_(archive.Of()), uid_(subject.Number) {
    for (const Annal* event : archive_.EventsOfHouse(uid_))
      if (event->Kind == kAnnalFounded) opened_ = event->On;
  }

  void Write() {
    Present();
    scribe_.Break();
    Rise();
    scribe_.Break();
    Shows();
    Crowns();
    scribe_.Break();
    Traffic();
    Chart();
  }

 private:
  Telling Of(Tells what) const { return {.Of = what, .House = archive_.HouseName(uid_)}; }

  void Present() {
    const Promotion* house = world_.FindPromotion(uid_);
    if (!house) return;
    Telling telling = Of(Tells::HouseStands);
    telling.House = house->Name.Str();
    telling.Tally = SmallSize(house->Size);
    telling.Count = PercentText(house->Image);
    telling.By = {ProofBy(world_, *house)};
    scribe_.Tell(telling);
    scribe_.Written().Figures.push_back(
        {Figure::Kind::Crest, uid_, house->Initials.Str(), house->Size});
  }

  /// Changes of class, and of owners, by year.
  using Churns = std::map<std::pair<int, Churn>, Archive::Events>;
  Churns ChurnsByYear() const {
    Churns churns;
    for (const Annal* event : archive_.EventsOfHouse(uid_))
      if (const Churn churn = ChurnOf(*event); churn != Churn::None)
        churns[{YearOf(event->On), churn}].push_back(event);
    return churns;
  }

  /// In the order of days; awards stand at the end of their years, restless years at their first
  /// event.
  void Rise() {
    std::multimap<Day, std::function<void()>> dates;
    bool first = !world_.FindPromotion(uid_);
    const Churns churns = ChurnsByYear();
    for (const Annal* event : archive_.EventsOfHouse(uid_)) {
      const auto churn = churns.find({YearOf(event->On), ChurnOf(*event)});
      if (churn == churns.end() || churn->second.size() <= kChurnsTold)
        dates.emplace(event->On, [this, event, &first] {
          if (TellOfHouse(scribe_, archive_, *event, first)) first = false;
        });
      else if (churn->second.front() == event)
        dates.emplace(event->On, [this, churn] {
          TellChurn(scribe_, archive_, archive_.HouseName(uid_), churn->second);
        });
    }
    for (const YearAward& award : world_.Awards())
      if (award.Promotion == uid_ &&
          (award.Kind == kPromotionOfTheYear || award.Kind == kShowOfTheYear))
        dates.emplace(award.On, [this, &award] { TellAward(scribe_, archive_, award); });
    for (const auto& [on, tell] : dates) {
      scribe_.BreakBefore(on);
      tell();
    }
  }

  void Shows() {
    const HistoryEntry *best = nullptr, *peak = nullptr;
    const auto score = [](const HistoryEntry& entry) {
      return PastStanding{entry.On, entry.Size, entry.Image}.Score();
    };
    for (const HistoryEntry* entry : archive_.PastOfHouse(uid_)) {
      if (IsShow(*entry) && !entry->CalledOff && (!best || entry->Rating > best->Rating))
        best = entry;
      if (entry->Kind == kPastMonth && Day(entry->On) > opened_ &&
          (!peak || score(*entry) > score(*peak)))
        peak = entry;
    }
    if (peak) {
      Telling telling = Of(Tells::HousePeak);
      telling.On = Day(peak->On) - std::chrono::days(1);
      telling.Tally = SmallSize(peak->Size);
      telling.Count = PercentText(peak->Image);
      telling.By = {ProofBy(world_, *peak)};
      scribe_.Tell(telling);
    }
    if (!best) return;
    Telling telling = Of(Tells::HouseShow);
    telling.On = best->On;
    telling.Tally = best->Name.Str();
    telling.Count = PercentText(best->Rating);
    telling.By = {ProofBy(world_, *best)};
    scribe_.Tell(telling);
  }

  /// Its champions of today.
  void Crowns() {
    for (const Title& title : world_.Titles()) {
      const CrownLine* line =
          title.Owner == uid_ ? archive_.LineOf(uid_, title.Name.Str()) : nullptr;
      if (!line || line->Reigns.empty()) continue;
      const HeldCrown last{line, line->Reigns.size() - 1};
      if (archive_.Lasts(last.Reign()) && !IsVacancy(last.Reign()))
        TellReign(scribe_, archive_, last);
    }
  }

  void Traffic() {
    Telling telling = Of(Tells::HouseMoves);
    int came = 0, went = 0;
    for (const Annal* event : archive_.EventsOfHouse(uid_)) {
      if (Day(event->On) < opened_) continue;
      const bool comes = event->Kind == kAnnalSigned || event->Kind == kAnnalStolen;
      const bool goes = event->Kind == kAnnalLetGo || event->Kind == kAnnalLeft;
      came += comes;
      went += goes;
      if (comes || goes) telling.By.push_back(ProofBy(world_, *event));
    }
    if (came + went == 0) return;
    telling.Count = ThingsText(came, "signing", "signings");
    telling.Tally = ThingsText(went, "departure", "departures");
    scribe_.Tell(telling);
  }

  void Chart() {
    constexpr std::size_t kShown = 120;
    Figure figure{Figure::Kind::Lines, 0,
                  "Standing at the month ends: 100 a size class, and the image"};
    std::vector<const HistoryEntry*> months;
    for (const HistoryEntry* entry : archive_.PastOfHouse(uid_))
      if (entry->Kind == kPastMonth && Day(entry->On) > opened_) months.push_back(entry);
    if (months.size() < 2) return;
    // A long past is shown by every second month, every third and so on.
    const std::size_t step = (months.size() - 1) / kShown + 1;
    for (std::size_t i = 0; i < months.size(); i += step)
      figure.Values.push_back(
          PastStanding{months[i]->On, months[i]->Size, months[i]->Image}.Score());
    figure.Captions = {MonthYear(Day(months.front()->On) - std::chrono::days(1)),
                       MonthYear(Day(months.back()->On) - std::chrono::days(1))};
    scribe_.Written().Figures.push_back(std::move(figure));
  }

  Scribe& scribe_;
  const Archive& archive_;
  const World& world_;
  int uid_;
  Day opened_{};  // another promotion may have had its place before
};

}  // namespace

void WriteHouse(Scribe& scribe, const Archive& archive, const Subject& subject) {
  HouseStory(scribe, archive, subject).Write();
}

}  // namespace grapplemont
