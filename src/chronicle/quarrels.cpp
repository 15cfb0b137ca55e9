#include <algorithm>

#include "chronicle/scribe.h"
#include "records/fields/fields.h"
#include "report/pasttold.h"
#include "storylines/feuds.h"

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
    const Annal& begun = *feud_.Begun;
    Telling telling{.Of = Tells::FeudBegan,
                    .F = FirstOf(world_, begun),
                    .S = SecondOf(world_, begun),
                    .On = begun.On,
                    .By = {ProofBy(world_, begun)}};
    scribe_.Tell(telling);
    Matches();
    if (feud_.Ended) {
      TellFeudsEnd(scribe_, archive_, *feud_.Ended);
    } else if (const std::optional<Proof> lasts = Lasting()) {
      telling.Of = Tells::FeudOn;
      telling.By = {*lasts};
      scribe_.Tell(telling);
    }
  }

 private:
  void Matches() {
    const Annal& begun = *feud_.Begun;
    if (begun.Promotion != world_.PlayerUid()) return;
    for (const HeldMatch& bout : world_.Bouts()) {
      const bool within =
          Day(bout.On) >= Day(begun.On) && (!feud_.Ended || Day(bout.On) <= Day(feud_.Ended->On));
      if (!within || bout.Winners == 0 || !Has(bout, begun.Who) || !Has(bout, begun.Whom)) continue;
      const bool first = IsWonBy(bout, begun.Who);
      if (!first && !IsWonBy(bout, begun.Whom)) continue;
      Telling telling{.Of = Tells::FeudMatch,
                      .F = FirstOf(world_, begun),
                      .S = SecondOf(world_, begun),
                      .On = bout.On,
                      .By = {ProofBy(world_, bout)}};
      if (!first) std::swap(telling.F, telling.S);
      telling.Count = PercentText(bout.Rating);
      scribe_.BreakBefore(bout.On);
      scribe_.Tell(telling);
    }
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
    for (const Grudge& grudge : world_.Grudges())
      if (grudge.Promotion == begun.Promotion && grudge.One == begun.Who[0] &&
          grudge.Two == begun.Whom[0])
        return ProofBy(world_, grudge);
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
  const Annal* begun = &annals[subject.Number];
  const auto feud = std::ranges::find(archive.Feuds(), begun, &FeudPast::Begun);
  if (feud != archive.Feuds().end()) FeudStory(scribe, archive, *feud).Write();
}

}  // namespace grapplemont
