#include "records/checkworld.h"

#include "records/checkrules.h"

namespace grapplemont {

namespace {

/// Where a rule holds. What the rules of the game upset while it runs is held in default data
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
    {OneOwnerEach},
    {UnemployedAreFree},
    {StablesOfTheEmployer},
    {SplitsOfTheEmployer},
    {ManagersOfTheEmployer},
    {DivasAreWomen},
    {FloorNotAboveOver, Held::InData},
    {PotentialOfThirty, Held::InGames},
    {EverybodyHasABirthday, Held::InGames},
    {OfficesAreHeldByTheOwn},
    {TitlesAgree},
    {ChampionsWorkForTheOwner},
    {VacantTitlesSaySo, Held::InGames},
    {TitlesAndStablesHaveOneName},
    {NobodyTeamsWithHimself},
    {TeamsAreTwo},
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

std::vector<Fault> MendNumbers(World& world) {
  std::vector<Fault> mended;
  Inspection inspection(world, Inspection::Purpose::MendGame,
                        [&](Fault&& fault) { mended.push_back(std::move(fault)); });
  CountedNumbersLieInTheirRanges(inspection);
  return mended;
}

}  // namespace grapplemont
