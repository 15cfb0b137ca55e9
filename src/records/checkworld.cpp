#include "records/checkworld.h"

#include <iterator>

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

std::vector<Fault> Inspect(World& world, Inspection::Purpose purpose,
                           const std::function<bool(const Fault&)>& wanted = {}) {
  Inspection inspection(world, purpose, wanted);
  for (const Rule& rule : kRules)
    if (rule.When == Held::Always || (rule.When == Held::InData) == inspection.AsData())
      rule.Look(inspection);
  return std::move(inspection.Found());
}

}  // namespace

std::vector<Fault> CheckWorld(const World& world) {
  // A check applies no remedy, so that the rules leave the world as it is.
  return Inspect(const_cast<World&>(world), Inspection::Purpose::Check);
}

std::vector<Fault> MendWorld(World& world) {
  return MendWorld(world, {});
}

std::vector<Fault> MendWorld(World& world, const std::function<bool(const Fault&)>& wanted) {
  std::vector<Fault> mended;
  for (int round = 0; round < kMostRounds; ++round) {
    std::vector<Fault> now = Inspect(world, Inspection::Purpose::Mend, wanted);
    if (now.empty()) break;
    std::move(now.begin(), now.end(), std::back_inserter(mended));
  }
  return mended;
}

std::vector<Fault> MendNumbers(World& world) {
  Inspection inspection(world, Inspection::Purpose::MendGame);
  CountedNumbersLieInTheirRanges(inspection);
  return std::move(inspection.Found());
}

}  // namespace grapplemont
