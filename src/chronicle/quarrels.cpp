#include <algorithm>
#include <functional>
#include <map>

#include "chronicle/scribe.h"
#include "records/fields/fields.h"
#include "report/pasttold.h"
#include "storylines/feuds.h"
#include "storylines/lineages.h"

// The chapter of a feud.

namespace grapplemont {

namespace {

/// A match between the two sides whose winners were these.
bool IsWonBy(const HeldMatch& bout, const std::array<Word, 2>& side) {
  return std::any_of(bout.Worker.begin(), bout.Worker.begin() + bout.Winners,
                     [&](int uid) { return uid != 0 && (uid == side[0] || uid == side[1]); });
}

bool Has(const HeldMatch& bout, const std::array<Word, 2>& side) {
  return std::ranges::any_of(
      bout.Feud, [&](int uid) { return uid != 0 && (uid == side[0] || uid == side[1]); });
}

class FeudStory {
 public:
  FeudStory(Scribe& scribe, const Archive& archive, const FeudPast& feud)
      : scribe_(scribe), archive_(archive), world_(archive.Of()), feud_(feud) {}

  void Write() {
    const Annal& first = feud_.First();
    Telling telling{.Of = Tells::FeudBegan,
                    .F = FirstOf(world_, first),
                    .S = SecondOf(world_, first),
                    .On = Day(first.On) - std::chrono::days(feud_.Begun ? 0 : int(first.Days)),
                    .By = {ProofBy(world_, first)}};
    scribe_.Tell(telling);
    Telling held = telling;
    held.Of = Tells::FeudHeld;
    held.On.reset();
    held.House = archive_.HouseName(first.Promotion);
    if (!held.House.empty()) scribe_.Tell(held);
    Course();
    if (feud_.Ended) {
      TellFeudsEnd(scribe_, archive_, *feud_.Ended);
    } else if (const std::optional<Proof> lasts = Lasting()) {
      telling.Of = Tells::FeudOn;
      telling.By = {*lasts};
      scribe_.Tell(telling);
    }
  }

 private:
  using Dates = std::multimap<Day, std::function<void()>>;

  /// The matches between the two, and the Titles that went from one to the other.
  void Course() {
    Dates dates;
    Matches(dates);
    Crowns(dates, feud_.First().Who, feud_.First().Whom);
    Crowns(dates, feud_.First().Whom, feud_.First().Who);
    for (const auto& [on, tell] : dates) {
      scribe_.BreakBefore(on);
      tell();
    }
  }

  bool IsWithin(Day on) const {
    const Annal& first = feud_.First();
    const Day begun = Day(first.On) - std::chrono::days(feud_.Begun ? 0 : int(first.Days));
    return on >= begun && (!feud_.Ended || on <= Day(feud_.Ended->On));
  }

  void Crowns(Dates& dates, const std::array<Word, 2>& to, const std::array<Word, 2>& from) {
    for (const HeldCrown& held : to[0] == 0 ? std::vector<HeldCrown>() : archive_.CrownsOf(to[0])) {
      const TitleReign* before = held.Before();
      // A pair's Titles belong to a pair's feud.
      const bool isOfTheirs = (held.Reign().Partner != 0) == (to[1] != 0);
      const bool isTaken = before && before->End == kReignLost && from[0] != 0 && isOfTheirs &&
                           (before->Worker == from[0] || before->Partner == from[0]);
      if (isTaken && IsWithin(held.Reign().From))
        dates.emplace(held.Reign().From, [this, held] { TellReign(scribe_, archive_, held); });
    }
  }

  void Matches(Dates& dates) {
    if (!feud_.Begun) return;
    const Annal& begun = *feud_.Begun;
    if (begun.Promotion != world_.PlayerUid()) return;
    for (const HeldMatch& bout : world_.Bouts()) {
      if (!IsWithin(bout.On) || bout.Winners == 0 || !Has(bout, begun.Who) ||
          !Has(bout, begun.Whom))
        continue;
      const bool first = IsWonBy(bout, begun.Who);
      if (first || IsWonBy(bout, begun.Whom))
        dates.emplace(bout.On, [this, &bout, first] { TellMatch(bout, first); });
    }
  }

  void TellMatch(const HeldMatch& bout, bool first) {
    const Annal& begun = *feud_.Begun;
    Telling telling{.Of = Tells::FeudMatch,
                    .F = FirstOf(world_, begun),
                    .S = SecondOf(world_, begun),
                    .On = bout.On,
                    .By = {ProofBy(world_, bout)}};
    if (!first) std::swap(telling.F, telling.S);
    telling.Count = PercentText(bout.Rating);
    scribe_.Tell(telling);
  }

  /// The record of a feud that goes on.
  std::optional<Proof> Lasting() const {
    const Annal& begun = *feud_.Begun;
    for (const Feud& feud : world_.Feuds()) {
      const FeudSides sides = SidesOf(feud);
      if (!IsFreeSlot(feud) && sides.One == FeudSide{begun.Who[0], begun.Who[1]} &&
          sides.Two == FeudSide{begun.Whom[0], begun.Whom[1]})
        return ProofBy(world_, feud);
    }
    return std::nullopt;
  }

  Scribe& scribe_;
  const Archive& archive_;
  const World& world_;
  const FeudPast& feud_;
};

}  // namespace

void WriteFeud(Scribe& scribe, const Archive& archive, const Subject& subject) {
  const Records<Annal>& annals = archive.Of().Annals();
  if (subject.Number < 1 || subject.Number > annals.Count()) return;
  const Annal* first = &annals[subject.Number];
  const auto feud = std::ranges::find_if(
      archive.Feuds(), [=](const FeudPast& past) { return &past.First() == first; });
  if (feud != archive.Feuds().end()) FeudStory(scribe, archive, *feud).Write();
}

}  // namespace grapplemont
