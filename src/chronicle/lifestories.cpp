#include <algorithm>
#include <functional>
#include <map>

#include "chronicle/scribe.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "report/pasttold.h"
#include "storylines/lineages.h"

// The chapter of a worker.

namespace grapplemont {

namespace {

/// An event of a life, and how it is told.
struct LifeEvent {
  AnnalKind Of;
  Tells As;
};
constexpr LifeEvent kLifeEvents[] = {
    {kAnnalSigned, Tells::SignedUp},   {kAnnalStolen, Tells::SignedAway},
    {kAnnalLetGo, Tells::LetGo},       {kAnnalLeft, Tells::Left},
    {kAnnalHurt, Tells::Hurt},         {kAnnalRenamed, Tells::NewName},
    {kAnnalStable, Tells::StableMade}, {kAnnalJoined, Tells::StableJoined}};

class Life {
 public:
  Life(Scribe& scribe, const Archive& archive, const Subject& subject)
      : scribe_(scribe), archive_(archive), world_(archive.Of()), person_(subject.Number) {
    if (const Worker* worker = world_.FindWorker(person_)) {
      self_ = PersonToday(world_, *worker);
    } else if (person_ < 0 && -person_ <= world_.Annals().Count()) {
      const Annal& end = world_.Annals()[-person_];
      self_ = {0, end.Name.Str(), static_cast<AnnalSex>(int(end.Sex))};
    }
  }

  void Write() {
    if (self_.Name.empty()) return;
    Present();
    scribe_.Break();
    for (const auto& [on, tell] : Dated()) {
      scribe_.BreakBefore(on);
      tell();
    }
    scribe_.Break();
    Sums();
  }

 private:
  Telling Of(Tells what) const { return {.Of = what, .F = self_}; }

  void Present() {
    if (const Worker* worker = world_.FindWorker(person_)) {
      const std::string house = archive_.HouseName(worker->Employer);
      Telling telling = Of(house.empty() ? Tells::WorksForNobody : Tells::WorksFor);
      telling.House = house;
      telling.Count = Counted(worker->Age, "year");
      telling.By = {ProofBy(world_, *worker)};
      return scribe_.Tell(telling);
    }
    const Annal& end = world_.Annals()[-person_];
    Telling telling = Of(Tells::CareerOver);
    telling.On = end.On;
    telling.By = {ProofBy(world_, end)};
    scribe_.Tell(telling);
  }

  using Dates = std::multimap<Day, std::function<void()>>;
  Dates Dated() {
    Dates dates;
    for (const Annal* event : archive_.EventsOfPerson(person_))
      dates.emplace(event->On, [this, event] { TellEvent(*event); });
    for (const HeldCrown& held : archive_.CrownsOf(person_))
      dates.emplace(held.Reign().From, [this, held] { TellReign(scribe_, archive_, held); });
    for (const YearAward* award : archive_.AwardsOf(person_))
      dates.emplace(award->On, [this, award] { TellOwnAward(*award); });
    return dates;
  }

  /// All awards of theirs are told as theirs.
  void TellOwnAward(const YearAward& award) {
    if (award.Kind == kTeamOfTheYear) return TellAward(scribe_, archive_, award);
    Telling telling = Of(Tells::AwardWon);
    telling.Year = YearOf(award.On);
    telling.Tally = std::string(AwardName(award.Kind));
    telling.By = {ProofBy(world_, award)};
    scribe_.Tell(telling);
  }

  void TellEvent(const Annal& event) {
    if (TellFeudsEnd(scribe_, archive_, event)) return;
    if (event.Kind == kAnnalTeamed || event.Kind == kAnnalParted) return TellTeam(event);
    for (const LifeEvent& row : kLifeEvents) {
      if (event.Kind != row.Of || (event.Kind == kAnnalSigned && event.House == "")) continue;
      Telling telling = Of(row.As);
      telling.On = event.On;
      telling.House = event.House.Str();
      telling.G = event.Kind == kAnnalStolen ? event.Other.Str() : event.What.Str();
      telling.Tally = event.Kind == kAnnalRenamed ? event.Other.Str() : event.What.Str();
      if (event.Kind == kAnnalRenamed) telling.F.Name = event.Name.Str();
      telling.Count = CountText(event.Number) + (event.Number == 1 ? " month" : " months");
      telling.By = {ProofBy(world_, event)};
      return scribe_.Tell(telling);
    }
  }

  void TellTeam(const Annal& event) {
    const int other = event.Who[0] == person_ ? event.Who[1] : event.Who[0];
    const Worker* partner = world_.FindWorker(other);
    if (!partner || person_ < 0) return;
    Telling telling = Of(event.Kind == kAnnalTeamed ? Tells::TeamedUp : Tells::TeamParted);
    telling.S = PersonToday(world_, *partner);
    telling.G = event.What.Str();
    telling.On = event.On;
    telling.By = {ProofBy(world_, event), ProofBy(world_, *partner)};
    scribe_.Tell(telling);
  }

  void Sums() {
    SumCrowns();
    for (const MatchTally* tally : archive_.TalliesOf(person_)) TellTally(*tally);
    TellBest();
  }

  void SumCrowns() {
    Telling telling = Of(Tells::CrownsInAll);
    int reigns = 0, days = 0;
    for (const HeldCrown& held : archive_.CrownsOf(person_)) {
      ++reigns;
      days += std::max(0, DaysOf(held.Reign(), world_.Today()));
      telling.By.push_back(ProofBy(world_, held.Reign()));
    }
    if (reigns < 2) return;
    telling.Count = CountText(reigns) + " reigns";
    telling.Tally = DaysText(days);
    scribe_.Tell(telling);
  }

  void TellTally(const MatchTally& tally) {
    const int matches = tally.Won + tally.Lost + tally.Drawn;
    if (matches == 0) return;
    Telling telling = Of(Tells::Record);
    telling.House = archive_.HouseName(tally.Promotion);
    telling.Count = CountText(matches) + (matches == 1 ? " match" : " matches");
    const auto text = [](int count) { return count == 0 ? std::string("none") : CountText(count); };
    telling.Tally = text(tally.Won) + " won, " + text(tally.Lost) + " lost";
    if (tally.Drawn > 0) telling.Tally += ", " + text(tally.Drawn) + " drawn";
    telling.By = {ProofBy(world_, tally)};
    scribe_.Tell(telling);
  }

  /// Of singles matches, whose other party is one.
  void TellBest() {
    const HeldMatch* best = nullptr;
    for (const HeldMatch* bout : archive_.BoutsOf(person_))
      if (bout->Worker[1] != 0 && bout->Worker[2] == 0 && (!best || bout->Rating > best->Rating))
        best = bout;
    if (!best) return;
    const int other = best->Worker[0] == person_ ? best->Worker[1] : best->Worker[0];
    const Worker* opponent = world_.FindWorker(other);
    if (!opponent) return;
    Telling telling = Of(Tells::BestMatch);
    telling.S = PersonToday(world_, *opponent);
    telling.On = best->On;
    telling.Count = PercentText(best->Rating);
    telling.By = {ProofBy(world_, *best)};
    scribe_.Tell(telling);
  }

  Scribe& scribe_;
  const Archive& archive_;
  const World& world_;
  int person_;
  Somebody self_;
};

}  // namespace

void WriteLife(Scribe& scribe, const Archive& archive, const Subject& subject) {
  Life(scribe, archive, subject).Write();
}

}  // namespace grapplemont
