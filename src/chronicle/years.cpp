#include <algorithm>
#include <map>

#include "business/past.h"
#include "chronicle/scribe.h"
#include "records/fields/fields.h"
#include "report/pasttold.h"
#include "storylines/lineages.h"

// The chapter of a year.

namespace grapplemont {

namespace {

constexpr std::size_t kFeudsTold = 6, kNamesTold = 12, kOwnersTold = 4;

class YearStory {
 public:
  YearStory(Scribe& scribe, const Archive& archive, const Subject& subject)
      : scribe_(scribe), archive_(archive), world_(archive.Of()), year_(subject.Number) {}

  void Write() {
    Begin();
    Awards();
    scribe_.Break();
    Houses();
    scribe_.Break();
    Crowns();
    Feuds();
    scribe_.Break();
    Moves();
    Retired();
    Ratings();
  }

 private:
  Telling Of(Tells what) const { return {.Of = what, .Year = year_}; }

  /// Where the annals begin in the middle of all.
  void Begin() {
    for (const Annal* event : archive_.EventsOfYear(year_)) {
      if (event->Kind != kAnnalsBegin) continue;
      Telling telling{.Of = Tells::BeforeAnnals, .On = event->On};
      telling.By = {ProofBy(world_, *event)};
      scribe_.Tell(telling);
      scribe_.Break();
    }
  }

  void Awards() {
    for (const YearAward& award : world_.Awards())
      if (YearOf(award.On) == year_) TellAward(scribe_, archive_, award);
  }

  /// What opened, closed, rose and fell; whoever went to and fro is told of in a sum.
  void Houses() {
    std::map<int, Archive::Events> classes;
    Archive::Events owners;
    for (const Annal* event : archive_.EventsOfYear(year_)) {
      const Churn churn = ChurnOf(*event);
      if (churn == Churn::Class) classes[event->Promotion].push_back(event);
      if (churn == Churn::Owner) owners.push_back(event);
    }
    for (const Annal* event : archive_.EventsOfYear(year_)) {
      const Churn churn = ChurnOf(*event);
      const bool isOwn = event->Promotion == world_.PlayerUid();
      if (churn == Churn::Class && classes[event->Promotion].size() > kChurnsTold) continue;
      if (churn == Churn::Owner && owners.size() > kOwnersTold && !isOwn) continue;
      scribe_.BreakBefore(event->On);
      TellOfHouse(scribe_, archive_, *event, true);
    }
    Uneasy(classes);
    if (owners.size() <= kOwnersTold) return;
    Telling telling = Of(Tells::YearHands);
    telling.Count = CountText(static_cast<int>(owners.size()));
    for (const Annal* event : owners) telling.By.push_back(ProofBy(world_, *event));
    scribe_.Tell(telling);
  }

  /// The changes of class of all who had many.
  void Uneasy(const std::map<int, Archive::Events>& classes) {
    Telling telling = Of(Tells::YearUneasy);
    std::size_t most = kChurnsTold;
    for (const auto& [house, events] : classes) {
      if (events.size() <= kChurnsTold) continue;
      for (const Annal* event : events) telling.By.push_back(ProofBy(world_, *event));
      if (events.size() <= most) continue;
      most = events.size();
      telling.House = archive_.FullHouseName(house);
    }
    if (telling.By.empty()) return;
    const bool isAlone = most == telling.By.size();
    for (const auto& [house, events] : classes)
      if (isAlone && events.size() == most)
        return TellChurn(scribe_, archive_, telling.House, events);
    telling.Count = TimesText(static_cast<int>(telling.By.size()));
    telling.Tally = TimesText(static_cast<int>(most));
    scribe_.Tell(telling);
  }

  void Crowns() {
    Telling telling = Of(Tells::YearCrowns);
    int changes = 0;
    for (const TitleReign& reign : world_.Reigns()) {
      if (YearOf(reign.From) != year_ || IsVacancy(reign)) continue;
      ++changes;
      telling.By.push_back(ProofBy(world_, reign));
    }
    if (changes == 0) return;
    telling.Count = TimesText(changes);
    scribe_.Tell(telling);
  }

  /// The player's before the others', the longer before the shorter.
  void Feuds() {
    std::vector<const Annal*> ended;
    for (const Annal* event : archive_.EventsOfYear(year_))
      if (event->Kind == kAnnalFeudOver) ended.push_back(event);
    std::ranges::stable_sort(ended, std::greater{}, [&](const Annal* event) {
      return std::pair(event->Promotion == world_.PlayerUid(), event->Number + event->Against);
    });
    if (ended.size() > kFeudsTold) ended.resize(kFeudsTold);
    std::ranges::sort(ended, {}, [](const Annal* event) { return Day(event->On); });
    for (const Annal* event : ended) {
      scribe_.BreakBefore(event->On);
      TellFeudsEnd(scribe_, archive_, *event);
    }
  }

  void Moves() {
    Telling telling = Of(Tells::YearMoves);
    for (const Annal* event : archive_.EventsOfYear(year_))
      if (event->Kind == kAnnalSigned || event->Kind == kAnnalStolen)
        telling.By.push_back(ProofBy(world_, *event));
    const auto count = static_cast<int>(telling.By.size());
    if (count == 0) return;
    telling.Count = CountText(count) + (count == 1 ? " contract" : " contracts");
    scribe_.Tell(telling);
  }

  void Retired() {
    Telling telling = Of(Tells::YearRetired);
    std::vector<std::string> names;
    for (const Annal* event : archive_.EventsOfYear(year_)) {
      if (event->Kind != kAnnalRetired || event->House == "") continue;
      telling.By.push_back(ProofBy(world_, *event));
      names.push_back(event->Name.Str());
    }
    const auto count = static_cast<int>(names.size());
    if (count == 0) return;
    telling.Count = CountText(count) + (count == 1 ? " career" : " careers");
    if (names.size() > kNamesTold) {
      names.resize(kNamesTold);
      names.push_back("others");
    }
    telling.Tally = AndJoined(names);
    scribe_.Tell(telling);
  }

  /// The player's shows of the year.
  void Ratings() {
    Figure figure{Figure::Kind::Lines, 0, "Ratings of your shows"};
    for (const HistoryEntry* entry : archive_.PastOfHouse(world_.PlayerUid()))
      if (IsShow(*entry) && !entry->CalledOff && YearOf(entry->On) == year_)
        figure.Values.push_back(entry->Rating);
    if (figure.Values.size() < 2) return;
    figure.Captions = {"January", "December"};
    scribe_.Written().Figures.push_back(std::move(figure));
  }

  Scribe& scribe_;
  const Archive& archive_;
  const World& world_;
  int year_;
};

}  // namespace

void WriteYear(Scribe& scribe, const Archive& archive, const Subject& subject) {
  YearStory(scribe, archive, subject).Write();
}

}  // namespace grapplemont
