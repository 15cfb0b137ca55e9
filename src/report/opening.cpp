#include <algorithm>

#include "records/segments.h"
#include "report/purposes.h"
#include "report/told.h"

namespace grapplemont {

namespace {

constexpr int kBoilingHeat = 50;

bool IsIn(const Feud& feud, const Person* person) {
  for (const int uid : {feud.Worker1, feud.Worker2, feud.Worker3, feud.Worker4})
    if (uid != 0 && uid == person->Uid) return true;
  return false;
}

/// 1 or 2 for the side of the feud that the person is on, 0 for none.
int FeudSideOf(const Feud& feud, const Person* person) {
  if (!IsIn(feud, person)) return 0;
  if (feud.Singles) return person->Uid == feud.Worker1 ? 1 : 2;
  return person->Uid == feud.Worker1 || person->Uid == feud.Worker2 ? 1 : 2;
}

bool SetsApart(const Feud& feud, const Party& one, const Party& two) {
  for (const Person* a : one.People)
    for (const Person* b : two.People) {
      const int sideA = FeudSideOf(feud, a), sideB = FeudSideOf(feud, b);
      if (sideA != 0 && sideB != 0 && sideA != sideB) return true;
    }
  return false;
}

bool TakesPartAsEntrant(const Teller& teller, int uid) {
  const auto people = PeopleOf(teller.segment);
  return uid != 0 && std::find(people.begin(), people.end(), uid) != people.end();
}

void TellStake(Teller& teller) {
  const int holder = teller.scene.Champion;
  if (holder == 0) {
    teller.Say(Family::TitleOpening, kVacant);
  } else if (!TakesPartAsEntrant(teller, holder)) {
    teller.Say(Family::TitleOpening, kChampionAway);
  } else {
    teller.cast.Set('c', teller.world, {holder, teller.scene.CoChampion});
    teller.Say(Family::TitleOpening, kDefended);
  }
}

/// A champion in a match without a Title at stake: the first one found, by the match's places.
void TellChampion(Teller& teller) {
  for (const int uid : PeopleOf(teller.segment))
    for (const Title& title : teller.world.Titles()) {
      if (title.Holder != uid || !title.Singles || title.Suspended ||
          title.Owner != teller.world.PlayerUid())
        continue;
      teller.cast.Set('c', teller.cast.Find(teller.world, uid));
      teller.cast.Set(Item::Title, TitleInProse(title.Name, title.Singles));
      teller.Say(Family::ChampionNote);
      teller.cast.Set(Item::Title, {});
      return;
    }
}

}  // namespace

const Feud* FeudTold(const Teller& teller) {
  const Party &one = teller.cast.Of('F'), &two = teller.cast.Of('S');
  for (const Feud& feud : teller.world.Feuds())
    if (feud.Worker1 != 0 && SetsApart(feud, one, two)) return &feud;
  return nullptr;
}

void TellOpening(Teller& teller) {
  const Segment& segment = teller.segment;
  if (FindMatchType(segment.Style, segment.MatchType))
    teller.Say(Family::Opening, Bout(segment.Style, segment.MatchType));
  if (!teller.cast.Thing(Item::Title).empty())
    TellStake(teller);
  else
    TellChampion(teller);
  if (FindMatchStyle(segment.Style)->Sides == 2)
    if (const Feud* feud = FeudTold(teller))
      teller.Say(Family::FeudOpening, feud->Heat >= kBoilingHeat ? kBoils : kSimmers);
  const PurposePart* purpose = PurposeOf(segment);
  if (!purpose || purpose->Does != Purpose::Debuts || IsRunIn(*purpose)) return;
  TurnOf(teller, purpose->Part);
  teller.Say(Family::DebutOpening);
}

}  // namespace grapplemont
