#include "records/checkworld.h"

#include "records/checkrules.h"

namespace grapplemont {

namespace {

/// Where a rule holds. What the rules of the game may upset while it runs is held in default data
/// alone.
enum class Held { Always, InData, InGames };

struct Rule {
  void (*Look)(Inspection&);
  Held When = Held::Always;
};

// In an order in which a remedy rarely makes work for a rule before it: first what removes records,
// then what they hold, then what they lead to, then how they agree.
constexpr Rule kRules[] = {
    {WholeRecords},
    {NoTombstones},
    {FieldsHoldWhatTheyMay},
    {NoRecordStandsTwice, Held::InData},
    {KeysAreUnique},
    {ReferencesLeadSomewhere},
    {UnsackableHasEmployerAndNoEnd},
    {OneOwnerEach, Held::InData},
    {UnemployedAreFree},
    {StablesOfTheEmployer, Held::InData},
    {SplitsOfTheEmployer, Held::InData},
    {ManagersOfTheEmployer, Held::InData},
    {DivasAreWomen, Held::InData},
    {FloorNotAboveOver, Held::InData},
    {PotentialOfThirty, Held::InGames},
    {EverybodyHasABirthday, Held::InGames},
    {OfficesAreHeldByTheOwn, Held::InData},
    {TitlesAgree},
    {ChampionsWorkForTheOwner, Held::InData},
    {VacantTitlesSaySo, Held::InGames},
    {TitlesAndStablesHaveOneName, Held::InData},
    {NobodyTeamsWithHimself},
    {TeamsAreTwo, Held::InData},
    {OneEventAMonth},
    {ThreeShowsAtMost},
    {OneShowASpot},
    {SponsorsAgree},
    {GameInfoStands},
    {ShortlistWithoutDoubles, Held::InGames},
    {EightFeuds, Held::InGames},
    {FeudsAreEmptyOrComplete, Held::InGames},
    {MailsAreDated, Held::InGames},
};

/// One remedy may bring to light what another rule minds; a handful of rounds settles all of them.
constexpr int kMostRounds = 20;

void Inspect(Inspection inspection) {
  for (const Rule& rule : kRules)
    if (rule.When == Held::Always || (rule.When == Held::InData) == inspection.AsData())
      rule.Look(inspection);
}

/// Mends round by round until nothing is left to do.
void Mend(World& world, const TakeFault& take, const WantFault& wanted = {}) {
  bool done = false;
  for (int round = 0; round < kMostRounds && !done; ++round) {
    done = true;
    Inspect({world, Inspection::Purpose::Mend,
             [&](Fault&& fault) {
               done = false;
               take(std::move(fault));
             },
             wanted});
  }
}

}  // namespace

void CheckWorld(const World& world, const TakeFault& take) {
  // A check applies no remedy, so that the rules leave the world as it is.
  Inspect({const_cast<World&>(world), Inspection::Purpose::Check, take});
}

std::vector<Fault> CheckWorld(const World& world) {
  std::vector<Fault> faults;
  CheckWorld(world, [&](Fault&& fault) { faults.push_back(std::move(fault)); });
  return faults;
}

FaultList MendWorld(World& world) {
  FaultList mended;
  Mend(world, [&](Fault&& fault) { mended.Take(std::move(fault)); });
  return mended;
}

std::vector<Fault> MendWorld(World& world, const WantFault& wanted) {
  std::vector<Fault> mended;
  Mend(
      world, [&](Fault&& fault) { mended.push_back(std::move(fault)); }, wanted);
  return mended;
}

}  // namespace grapplemont
