#include <algorithm>

#include "business/past.h"
#include "chronicle/scribe.h"
#include "records/fields/fields.h"
#include "report/pasttold.h"
#include "storylines/lineages.h"

// The chapter of a year.

namespace grapplemont {

namespace {

constexpr std::size_t kFeudsTold = 6, kNamesTold = 12;

class YearStory {
 public:
  YearStory(Scribe& scribe, const Archive& archive, const Subject& subject)
      : scribe_(scribe), archive_(archive), world_(archive.Of()), year_(subject.Number) {}

  void Write() {
    Begin();
    Awards();
    scribe_.Break();
    for (const Annal* event : archive_.EventsOfYear(year_)) {
      scribe_.BreakBefore(event->On);
      TellOfHouse(scribe_, archive_, *event, true);
    }
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
