#include "report/stages.h"

#include <algorithm>

#include "records/segmentparts.h"
#include "storylines/feuds.h"

namespace grapplemont {

namespace {

/// The cast's letter of whom a purpose is about; 0 for nobody.
char LetterOf(Part part) {
  constexpr struct {
    Part Whom;
    char Letter;
  } kLetters[] = {{Part::Winner, 'w'},    {Part::Loser, 'l'},      {Part::Worker1, '1'},
                  {Part::Worker2, '2'},   {Part::Worker3, '3'},    {Part::Worker4, '4'},
                  {Part::FirstTeam, 'F'}, {Part::SecondTeam, 'S'}, {Part::Other1, 'o'},
                  {Part::Other2, 'p'},    {Part::Other3, 'q'},     {Part::Other4, 'r'},
                  {Part::Others12, 'O'},  {Part::Others34, 'Q'}};
  for (const auto& row : kLetters)
    if (row.Whom == part) return row.Letter;
  return 0;
}

constexpr int kBoilingHeat = 50;

/// Those of a feud's side who are in the match.
std::vector<int> Present(const Teller& teller, const FeudSide& side) {
  std::vector<int> there;
  for (const int uid : {side.First, side.Second})
    if (IsEntrant(teller.segment, uid)) there.push_back(uid);
  return there;
}

/// Whether the match sets any of them against any of the others.
bool AreOpponents(const Segment& segment, const std::vector<int>& ones,
                  const std::vector<int>& others) {
  return std::any_of(ones.begin(), ones.end(), [&](int one) {
    return std::any_of(others.begin(), others.end(),
                       [&](int other) { return SideOf(segment, one) != SideOf(segment, other); });
  });
}

/// Nobody of a feud of which only one side is there.
FeudOfSides SidesIn(Teller& teller, const Feud& feud) {
  const FeudSides sides = SidesOf(feud);
  const auto ones = Present(teller, sides.One), others = Present(teller, sides.Two);
  FeudOfSides told{&feud, teller.cast.Together(teller.world, ones),
                   teller.cast.Together(teller.world, others),
                   !AreOpponents(teller.segment, ones, others)};
  return told.One.Empty() || told.Two.Empty() ? FeudOfSides{} : told;
}

void TellStake(Teller& teller) {
  const int holder = teller.scene.Champion, partner = teller.scene.CoChampion;
  TitleStake stake = kVacant;
  if (holder != 0) stake = IsEntrant(teller.segment, holder) ? kDefended : kChampionAway;
  if (stake == kDefended)
    teller.cast.Set('c', teller.world, {holder, IsEntrant(teller.segment, partner) ? partner : 0});
  teller.Say(Family::TitleOpening, stake);
}

/// Both halves of a tag champion have to be there, side by side.
bool IsHeldBy(const Title& title, const Segment& segment, int uid) {
  if (title.Holder != uid) return false;
  return title.Singles || (title.Partner != 0 && title.Partner != uid &&
                           SideOf(segment, title.Partner) == SideOf(segment, uid));
}

/// A champion in a match without a Title at stake: the first one found, by the match's places.
void TellChampion(Teller& teller) {
  for (const int uid : PeopleOf(teller.segment))
    for (const Title& title : teller.world.Titles()) {
      if (!IsHeldBy(title, teller.segment, uid) || title.Suspended ||
          title.Owner != teller.world.PlayerUid())
        continue;
      teller.cast.Set('c', teller.world,
                      {uid, title.Singles ? 0 : static_cast<int>(title.Partner)});
      if (teller.cast.Of('c').Empty()) continue;
      teller.cast.Set(Item::Title, TitleInProse(title.Name, title.Singles));
      teller.Say(Family::ChampionNote);
      teller.cast.Set(Item::Title, {});
      return;
    }
}

}  // namespace

FeudOfSides FeudTold(Teller& teller) {
  // What is settled here comes before any other quarrel of theirs.
  if (teller.scene.Ends)
    if (FeudOfSides ended = SidesIn(teller, *teller.scene.Ends); ended.Between) return ended;
  FeudOfSides partners;
  for (const Feud& feud : teller.scene.Feuds) {
    FeudOfSides told = SidesIn(teller, feud);
    if (told.Between && !told.ArePartners) return told;
    if (!partners.Between) partners = std::move(told);
  }
  return partners;
}

void SayFeud(Teller& teller, const FeudOfSides& feud, Family family, int band) {
  Cast& cast = teller.cast;
  const Party first = cast.Of('F'), second = cast.Of('S');
  cast.Of('F') = feud.One;
  cast.Of('S') = feud.Two;
  teller.Say(family, band);
  cast.Of('F') = first;
  cast.Of('S') = second;
}

bool IsEntrant(const Segment& segment, int uid) {
  const auto people = PeopleOf(segment);
  return uid != 0 && std::find(people.begin(), people.end(), uid) != people.end();
}

void TellOpening(Teller& teller) {
  const Segment& segment = teller.segment;
  if (FindMatchType(segment.Style, segment.MatchType))
    teller.Say(Family::Opening, Bout(segment.Style, segment.MatchType));
  if (!teller.cast.Thing(Item::Title).empty())
    TellStake(teller);
  else if (teller.IsOurs())
    TellChampion(teller);
  if (const FeudOfSides feud = FeudTold(teller); feud.ArePartners)
    SayFeud(teller, feud, Family::FeudPartners, 0);
  else if (feud.Between)
    SayFeud(teller, feud, Family::FeudOpening,
            feud.Between->Heat >= kBoilingHeat ? kBoils : kSimmers);
  const PurposeRow purpose = PurposeOf(segment);
  if (purpose.Does != Aim::Debuts || IsRunIn(purpose.Whom)) return;
  TurnOf(teller, LetterOf(purpose.Whom));
  teller.Say(Family::DebutOpening);
}

namespace {

void TellPurpose(Teller& teller, const PurposeRow& purpose) {
  if (purpose.Whom != Part::Nobody) {
    TurnOf(teller, LetterOf(purpose.Whom));
    if (teller.cast.Of('t').Empty()) return;
  }
  constexpr struct {
    Aim Does;
    PurposeTold Told;
  } kEndings[] = {{Aim::GoodMatch, kGoodMatchTold},
                  {Aim::PutsOver, kPutOverTold},
                  {Aim::BothOver, kBothOverTold},
                  {Aim::EyeCandy, kEyeCandyTold},
                  {Aim::Debuts, kRunInDebutTold}};
  if (purpose.Does == Aim::Turns) return TellTurn(teller);
  if (purpose.Does == Aim::Debuts && !IsRunIn(purpose.Whom)) return;
  for (const auto& ending : kEndings)
    if (purpose.Does == ending.Does) teller.Say(Family::PurposeEnding, ending.Told);
}

/// The turns that a tag match's finish and aftermath name.
void TellTagTurns(Teller& teller) {
  if (teller.segment.Style != kTag) return;
  const int aftermath = teller.segment.Aftermath;
  if (teller.segment.Finish == kPartnerTurns && !teller.cast.Of('w').Empty()) {
    TurnOf(teller, 'k');
    TellTurn(teller);
  }
  if (aftermath >= after2::kFirstTurns && aftermath <= after2::kFourthTurns) {
    TurnOf(teller, static_cast<char>('1' + aftermath - after2::kFirstTurns));
    TellTurn(teller);
  }
}

/// Finishes of six and eight who turn.
void TellSideTurn(Teller& teller) {
  const int style = teller.segment.Style, place = teller.segment.Finish - kFirstTurns;
  if (style != kThreeOnThree && style != kFourOnFour) return;
  if (place < 0 || place >= EntrantsOf(teller.segment)) return;
  TurnOf(teller, static_cast<char>('1' + place));
  TellTurn(teller);
}

}  // namespace

void TurnOf(Teller& teller, char part) {
  teller.cast.Of('t') = teller.cast.Of(part);
}

namespace {

/// The band of a turn by what it makes of somebody, and by what the crowd made of it.
int TurnBand(const Turning& turn) {
  if (turn.Becomes.empty()) return kBaffling;
  if (turn.FellFlat) return kFellFlat;
  if (turn.CameTooSoon) return kTooSoon;
  return turn.Becomes == "F" ? kTurnsFace : turn.Becomes == "T" ? kTurnsTweener : kTurnsHeel;
}

bool AreAlike(const Turning& one, const Turning& two) {
  return TurnBand(one) == TurnBand(two) && one.Becomes == two.Becomes;
}

}  // namespace

void SetSide(Teller& teller, std::string_view disposition) {
  constexpr struct {
    Item Is;
    std::string_view Stored;
  } kSides[] = {{Item::Face, "F"}, {Item::Heel, "H"}, {Item::Tweener, "T"}};
  for (const auto& side : kSides) teller.cast.Set(side.Is, disposition == side.Stored ? "so" : "");
}

void TellTurn(Teller& teller) {
  const Party turners = teller.cast.Of('t');
  std::vector<const Turning*> told;
  for (const Turning& first : teller.scene.Turns) {
    Party alike;  // who become the same are told together
    for (Person* person : turners.People)
      for (const Turning& turn : teller.scene.Turns)
        if (turn.Uid == person->Uid && AreAlike(turn, first)) alike.People.push_back(person);
    const bool isTold = std::any_of(told.begin(), told.end(),
                                    [&](const Turning* turn) { return AreAlike(*turn, first); });
    if (alike.Empty() || isTold) continue;
    told.push_back(&first);
    if (alike.People.size() == turners.People.size()) alike.Name = turners.Name;
    teller.cast.Of('t') = alike;
    SetSide(teller, first.Becomes);
    teller.Say(Family::Turn, TurnBand(first));
  }
}

void TellAftermath(Teller& teller) {
  const Segment& segment = teller.segment;
  if (segment.Style == kSingles)
    teller.Say(Family::SinglesAftermath, segment.Aftermath);
  else if (segment.Style == kTag)
    teller.Say(Family::TagAftermath, segment.Aftermath);
  TellTagTurns(teller);
  TellSideTurn(teller);
  const PurposeRow purpose = PurposeOf(segment);
  TellPurpose(teller, purpose);
  if (const FeudOfSides feud = FeudTold(teller); feud.Between && !feud.ArePartners)
    SayFeud(teller, feud, Family::FeudEnding, teller.scene.Ends ? kFeudIsOver : kFeudGoesOn);
}

}  // namespace grapplemont
