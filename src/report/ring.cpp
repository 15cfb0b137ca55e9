#include "report/ring.h"

#include <algorithm>
#include <iterator>

#include "records/segments.h"
#include "report/drama.h"
#include "report/stretches.h"

namespace grapplemont {

namespace {

/// A step that says a line; which line of an offence, what the attacker is best at decides.
struct StepRow {
  char Step;
  Family Calls;
  bool IsOffence = false;
};
constexpr StepRow kSays[] = {
    {'A', Family::OffenceA, true}, {'B', Family::OffenceB, true}, {'C', Family::OffenceC, true},
    {'D', Family::OffenceD, true}, {'E', Family::OffenceE, true}, {'2', Family::TwoCount},
    {'N', Family::NearFall},       {'R', Family::RefBump},        {'P', Family::PinNoRef},
    {'L', Family::LadderSpot},     {'W', Family::WeaponSpot},     {'K', Family::TableSpot}};

bool IsCount(char step) {
  return step == '2' || step == 'N' || step == 'P';
}

}  // namespace

Ring::Ring(Teller& teller) : teller_(teller) {
  std::vector<Person*> seen;
  for (const auto& uids : ::grapplemont::SidesOf(teller.segment)) {
    Side side;
    for (const int uid : uids)
      if (Person* person = teller.cast.Find(teller.world, uid);
          person && std::find(seen.begin(), seen.end(), person) == seen.end()) {
        side.People.push_back(person);
        seen.push_back(person);
      }
    if (!side.People.empty()) sides_.push_back(std::move(side));
  }
}

std::vector<Person*> Ring::All() const {
  std::vector<Person*> all;
  for (const Side& side : sides_) all.insert(all.end(), side.People.begin(), side.People.end());
  return all;
}

std::vector<Person*> Ring::Against(const Person* person) const {
  std::vector<Person*> all;
  const int own = SideOf(person);
  for (int i = 0; i < Sides(); ++i)
    if (const auto& people = sides_[static_cast<std::size_t>(i)].People; i != own)
      all.insert(all.end(), people.begin(), people.end());
  return all;
}

int Ring::SideOf(const Person* person) const {
  for (int i = 0; i < Sides(); ++i) {
    const auto& people = sides_[static_cast<std::size_t>(i)].People;
    if (std::find(people.begin(), people.end(), person) != people.end()) return i;
  }
  return -1;
}

void Ring::Remove(const Person* person) {
  const int side = SideOf(person);
  if (side < 0) return;
  auto& people = sides_[static_cast<std::size_t>(side)].People;
  people.erase(std::find(people.begin(), people.end(), person));
  sides_[static_cast<std::size_t>(side)].Legal = 0;
  if (people.empty()) sides_.erase(sides_.begin() + side);
}

void Ring::RemoveSide(const Person* person) {
  if (const int side = SideOf(person); side >= 0) sides_.erase(sides_.begin() + side);
}

Person* Ring::Legal(int side) const {
  const Side& at = sides_[static_cast<std::size_t>(side)];
  return at.People[at.Legal];
}

Person* Ring::Partner(int side) const {
  const Side& at = sides_[static_cast<std::size_t>(side)];
  return at.People.size() < 2 ? nullptr : at.People[(at.Legal + 1) % at.People.size()];
}

void Ring::Act() {
  teller_.Act(Legal(attacker_), Legal(defender_));
}

int Ring::OtherSide(int side, int notThis) {
  std::vector<int> others;
  for (int i = 0; i < Sides(); ++i)
    if (i != side && (i != notThis || Sides() < 3)) others.push_back(i);
  return others.size() == 1 ? others[0] : teller_.OneOf(others);
}

/// Backwards from the end: a counter turns a pair round, and whoever breaks in comes from outside
/// the exchange that they end.
void Ring::Plan(std::string_view script, const Person* last, const Person* under) {
  Pairing now;
  const int top = last ? SideOf(last) : -1, bottom = under ? SideOf(under) : -1;
  now.Attacker = top >= 0 ? top : 0;
  now.Defender = bottom >= 0 && bottom != now.Attacker ? bottom : OtherSide(now.Attacker);
  plan_.assign(script.size() + 1, now);
  for (std::size_t at = script.size(); at-- > 0;) {
    if (script[at] == '#') std::swap(now.Attacker, now.Defender);
    if (script[at] == '~') now = {now.Defender, OtherSide(now.Defender, now.Attacker)};
    plan_[at] = now;
  }
}

/// Puts the one into the ring after whom, by the tags to come, this person is in it at the end.
void Ring::Begin(std::string_view script, int side, const Person* person) {
  Side& of = sides_[static_cast<std::size_t>(side)];
  const auto found = std::find(of.People.begin(), of.People.end(), person);
  const auto count = of.People.size();
  const auto last =
      found == of.People.end() ? 0 : static_cast<std::size_t>(found - of.People.begin());
  std::size_t tags = 0;
  for (std::size_t at = 0; at < script.size(); ++at)
    tags += script[at] == 'T' && plan_[at].Attacker == side;
  of.Legal = (last + count - tags % count) % count;
}

void Ring::Play(std::string_view script, int spot, const Person* last, const Person* under) {
  if (!CanFight()) return;
  Plan(script, last, under);
  Begin(script, plan_.back().Attacker, last);
  Begin(script, plan_.back().Defender, under);
  teller_.Under = Footing::Up;  // a fall or an exchange begins
  Pace& pace = teller_.Pace;
  pace.Begin(static_cast<int>(script.size()));
  Drama drama(teller_);
  const std::vector<Stretch> stretches = StretchesOf(script);
  for (std::size_t at = 0; at < script.size(); ++at) {
    const bool isNew = at > 0 && stretches[at] != stretches[at - 1];
    if (isNew || (at > 0 && IsEnough(script[at], teller_.LinesHere()))) teller_.Paragraph();
    attacker_ = plan_[at].Attacker;
    defender_ = plan_[at].Defender;
    Act();
    if (IsCount(script[at])) LayDown();
    pace.Before(teller_, script[at], drama.Before(script[at]));
    Step(script, at, spot);
    teller_.IsCoverNext = at + 1 < script.size() && IsCount(script[at + 1]);
    pace.After(teller_, script[at], drama.After(script[at]));
    teller_.IsCoverNext = false;
  }
}

void Ring::Step(std::string_view script, std::size_t at, int spot) {
  const char step = script[at];
  const bool isCovered = at + 1 < script.size() && IsCount(script[at + 1]);
  const unsigned wants = isCovered ? kDownTag : 0U;
  for (const StepRow& row : kSays) {
    if (row.Step != step) continue;
    if (row.IsOffence) return teller_.SayOffence(row.Calls, wants);
    teller_.Say(row.Calls, 0, wants);
  }
  switch (step) {
    case '#':
    case '~':
      attacker_ = plan_[at + 1].Attacker;
      defender_ = plan_[at + 1].Defender;
      if (step == '#')
        teller_.TurnRound(Legal(attacker_), Legal(defender_));
      else
        Act();
      teller_.Say(step == '#' ? Family::Counter : Family::BreakIn);
      break;
    case 'S':
      teller_.Say(Family::Spot, spot, wants);
      break;
    case 'T':
      TagOut();
      break;
    case 'X':
      DoubleTeam(wants);
      break;
    default:
      break;
  }
}

/// Nobody is covered who stands, or who is held.
void Ring::LayDown() {
  if (teller_.Under != Footing::Down) teller_.Say(Family::PutDown);
}

void Ring::TagOut() {
  Person* partner = Partner(attacker_);
  if (!partner) return;
  teller_.cast.Set('b', partner);
  teller_.Say(Family::TagOut);
  Side& side = sides_[static_cast<std::size_t>(attacker_)];
  side.Legal = (side.Legal + 1) % side.People.size();
}

void Ring::DoubleTeam(unsigned wants) {
  Person* partner = Partner(attacker_);
  if (!partner) return;
  teller_.cast.Set('b', partner);
  teller_.Say(Family::DoubleTeam, 0, wants);
}

Person* OneOf(Teller& teller, const std::vector<Person*>& people) {
  if (people.empty()) return nullptr;
  return teller.OneOf(people);
}

namespace {

constexpr Script kSinglesRows[] = {
    "BC2#AB2DNB#C2DNBA#BD",
    "AABB#BC2#C2DN#A#B",
    "A#ARDP#BC2DN#CN#",
    "AB2#BAB#C",
    "AAA2B2#A2C#D",
    "CDDNB2#BC#C",
    "AB2#B2C2#CN#RDPCN#",
    "B2C2#BCN#C2#D",
    "AC2#ABCNC#CC#",
    "A#CD",
    "ABCD",
    "C",
};
static_assert(std::size(kSinglesRows) == kShapes * kVariants);

// No counts in these: the stipulation decides.
constexpr Script kGenericRows[] = {"AB#AS#BCS#DS", "BS#AC#SB#CD", "ASA#BSC#BDS", "A#BS#AS#CDS"};
constexpr Script kHardcoreRows[] = {"WA#WB2#WC#WND", "AW#E2WS#CWN#KD", "SW#WS#B2#WCN#D"};
constexpr Script kCageRows[] = {"AB#CS#BAS#DS", "AS#BCD#SE#CS#D", "BE#SC#CDS#BS"};
constexpr Script kTexasRows[] = {"AB2S#C2S#DS", "BES#BC2S#W2S", "A#B2S#EC2S#DS"};
constexpr Script kLastManRows[] = {"ABS#CS#WS#DS", "ES#BWS#CDS", "AC#BS#ES#WDS"};
constexpr Script kAnywhereRows[] = {"ABS2#SC2#WN#SD", "SW#S2#CSN#BS2D", "AS#WS2#CN#SW"};
constexpr Script kLadderRows[] = {"ABL#CL#SL#BSLD", "AL#LS#BCL#SD", "BC#LS#LL#SCS"};
constexpr Script kTablesRows[] = {"AB#SC#BS#DS", "AS#BCS#ES#C", "ES#W#AS#BDS"};
constexpr Script kInfernoRows[] = {"ABS#CS#SB#DS", "AS#ES#BCS#S", "BS#S#CSE#DS"};
constexpr Script kIncidentRows[] = {"ASE#SWS#CS#DS", "SS#BCS#WS#S", "ES#SC#SWD#SS"};
constexpr Script kBarbedRows[] = {"ES#BS2#CSN#WD", "AS#ES#SC2#SD", "BSW#S2#SCN#D"};
constexpr Script kDeathRows[] = {"WS#WKE2#SCN#SD", "SW#KS2#WSN#CD", "WSE#SW2#K#SDN"};
constexpr Script kTagRows[] = {"ABTATATXC2TBCTDN#TBC2TX2DN#BTC#TX2#C",
                               "ABTATATXC2TBCTDN#TBC2TX2DN#BTC#TXD"};
constexpr Script kTagHardcoreRows[] = {"WAX#WB2#TWCN#XWD", "AW#EWX2#WTC#KN#BD"};
constexpr Script kTagCageRows[] = {"ABTS#XCD#TSB#XDS", "BXS#TCD#SET#XS#D"};
constexpr Script kTagLadderRows[] = {"ABXL#TCL#SXL#SLD", "LX#BLS#TXL#CSL"};
constexpr Script kTagTablesRows[] = {"AXS#TBCS#XES#D", "ES#TXS#BCS#XS"};
constexpr Script kTriangleRows[] = {"AB2~BC#A2~C#DN~C", "B#CN~A#B2~DN#C"};
constexpr Script kThreeHardcoreRows[] = {"WA~WB2#W~CN#WD", "EW#W2~KS#WN~C"};
constexpr Script kThreeCageRows[] = {"AS~BC#S~ES#D", "BES~S#C~DS#S"};
constexpr Script kTriangleTagRows[] = {"AB2T~BXC2#T~CN#XD", "BTX2~AC#TBN~XDT#C"};
constexpr Script kThreeLadderRows[] = {"ALX~L#CSL~SXL#SD", "LX~LS#CT~LXS#LS"};
constexpr Script kTlcRows[] = {"WLX~KS#L~CKW#XLS", "KX~LWS#K~TLS#XKS", "LW#KX~SL~WKS#LS"};
constexpr Script kFourTlcRows[] = {"LX~KW~SL#XK~LS#TKS~L", "WX~L~KS#XL~WK#LS~XS"};
constexpr Script kCornersRows[] = {"AB2~C#BN~A#D2~C", "B~AC#2~DN~BC#A~D"};
constexpr Script kSixRows[] = {"ABTATXC2#TBTCN#BTXDN#ETC", "BTATC2#ETBTX2#CTDN#XC#B"};
constexpr Script kEightRows[] = {"ATBTATXC2#TATBTCN#EXTDN#TC", "BTX2#ATETCTN#XTB2#CTDN#TXD"};

constexpr Script kFallRows[] = {"AB2#CND", "B#C2#BD", "AC#B2#ED", "#BCN#AC", "BD#A#C"};
constexpr Script kExchangeRows[] = {"AB#C2D", "B#AN#C", "EC#BD", "A2#B#CD"};

constexpr bool kNoPin = false;

constexpr BoutRow kBoutRows[] = {
    {kSingles, kPlainSingles, BoutShape::Duel, kSinglesRows},
    {kSingles, kSubmission, BoutShape::Duel, kGenericRows, kHoldSpot, kNoPin},
    {kSingles, kIronMan, BoutShape::IronMan, kFallRows, kClockSpot},
    {kSingles, kHardcore, BoutShape::Duel, kHardcoreRows, kJunkSpot},
    {kSingles, kCage, BoutShape::Duel, kCageRows, kCageSpot, kNoPin},
    {kSingles, kTexasDeath, BoutShape::Duel, kTexasRows, kTexasSpot},
    {kSingles, kLastManStanding, BoutShape::Duel, kLastManRows, kTenCountSpot, kNoPin},
    {kSingles, kFallsCountAnywhere, BoutShape::Duel, kAnywhereRows, kAnywhereSpot},
    {kSingles, kLadder, BoutShape::Duel, kLadderRows, kClimbSpot, kNoPin},
    {kSingles, kTables, BoutShape::Duel, kTablesRows, kTableSetUp, kNoPin, true},
    {kSingles, kBraAndPanties, BoutShape::Duel, kGenericRows, kClothesSpot, kNoPin},
    {kSingles, kIQuit, BoutShape::Duel, kGenericRows, kQuitSpot, kNoPin},
    {kSingles, kFirstBlood, BoutShape::Duel, kGenericRows, kBloodSpot, kNoPin},
    {kSingles, kInferno, BoutShape::Duel, kInfernoRows, kFireSpot, kNoPin},
    {kSingles, kHellInACell, BoutShape::Duel, kGenericRows, kCellSpot},
    {kSingles, kHighIncident, BoutShape::Duel, kIncidentRows, kIncidentSpot, kNoPin},
    {kSingles, kBarbedWire, BoutShape::Duel, kBarbedRows, kWireSpot},
    {kSingles, kDeathMatch, BoutShape::Duel, kDeathRows, kDeathSpot},
    {kSingles, kBuckNaked, BoutShape::Duel, kGenericRows, kNakedSpot, kNoPin},
    {kTag, kPlainTag, BoutShape::Duel, kTagRows},
    {kTag, kTagHardcore, BoutShape::Duel, kTagHardcoreRows, kJunkSpot},
    {kTag, kTagCage, BoutShape::Duel, kTagCageRows, kCageSpot, kNoPin},
    {kTag, kTagLadder, BoutShape::Duel, kTagLadderRows, kClimbSpot, kNoPin},
    {kTag, kTagTables, BoutShape::Duel, kTagTablesRows, kTableSetUp, kNoPin, true},
    {kThreeWay, kElimination, BoutShape::Elimination, kExchangeRows},
    {kThreeWay, kTriangle, BoutShape::Scramble, kTriangleRows},
    {kThreeWay, 3, BoutShape::Scramble, kThreeHardcoreRows, kJunkSpot},
    {kThreeWay, 4, BoutShape::Scramble, kThreeCageRows, kCageSpot, kNoPin},
    {kThreeTeams, kElimination, BoutShape::Elimination, kExchangeRows},
    {kThreeTeams, kTriangle, BoutShape::Scramble, kTriangleTagRows},
    {kThreeTeams, kThreeTeamsLadder, BoutShape::Scramble, kThreeLadderRows, kClimbSpot, kNoPin},
    {kThreeTeams, kThreeTeamsTlc, BoutShape::Scramble, kTlcRows, kTlcSpot, kNoPin},
    {kFourWay, kElimination, BoutShape::Elimination, kExchangeRows},
    {kFourWay, 2, BoutShape::Scramble, kCornersRows},
    {kFourTeams, kElimination, BoutShape::Elimination, kExchangeRows},
    {kFourTeams, kFourTeamsTlc, BoutShape::Scramble, kFourTlcRows, kTlcSpot, kNoPin},
    {kThreeOnThree, 1, BoutShape::Duel, kSixRows},
    {kFourOnFour, kPlainEightMan, BoutShape::Duel, kEightRows},
    {kFourOnFour, kSurvivor, BoutShape::Survivor, kExchangeRows},
    {kSpecial, kRoyalRumble, BoutShape::Rumble, kExchangeRows, kHoldSpot, kNoPin},
    {kSpecial, kTwentyMan, BoutShape::BattleRoyal, kExchangeRows, kHoldSpot, kNoPin},
    {kSpecial, kTenMan, BoutShape::BattleRoyal, kExchangeRows, kHoldSpot, kNoPin},
};
static_assert(std::size(kBoutRows) == std::size(kMatchTypes));

constexpr std::string_view kSteps = "ABCDE2N#RPTXLWKS~";

constexpr bool KnowAllSteps() {
  for (const BoutRow& bout : kBoutRows)
    for (const Script row : bout.Rows)
      for (const char step : row)
        if (kSteps.find(step) == std::string_view::npos) return false;
  return true;
}
static_assert(KnowAllSteps());

}  // namespace

const BoutRow* FindBout(int style, int type) {
  const auto found = std::find_if(std::begin(kBoutRows), std::end(kBoutRows), [&](auto& row) {
    return row.Style == style && row.Type == type;
  });
  return found == std::end(kBoutRows) ? nullptr : &*found;
}

}  // namespace grapplemont
