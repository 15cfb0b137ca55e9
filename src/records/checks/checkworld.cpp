#include "records/checks/checkworld.h"

#include <algorithm>

#include "records/checks/checkrules.h"
#include "records/severing.h"

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
    {PotentialOfThirtyAndABirthday, Held::InGames},
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

/// The record's own name; blanks stand for what would spoil the line.
std::string OwnName(const Place& place) {
  for (const Field& field : place.Layout.Fields) {
    if (field.Name != "Name") continue;
    std::string name(FieldText(field, place.Record));
    std::replace_if(
        name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) < 0x20; }, ' ');
    return name;
  }
  return {};
}

/// Whether the player has bought a promotion today: it stays, marked, until the day ends.
bool HasBoughtToday(const World& world) {
  const auto& deeds = world.Deeds();
  for (int number = deeds.Count(); number > 0 && Day(deeds[number].On) == world.Today(); --number)
    if (deeds[number].Kind == kDeedBought) return true;
  return false;
}

}  // namespace

void CheckWorld(const World& world, const TakeFault& take) {
  if (world.HasGame() && HasBoughtToday(world)) {
    World swept;
    swept.CopyFrom(world);
    SweepDeadPromotions(swept);
    SweepDeadShows(swept);
    Inspect({swept, Inspection::Purpose::Check, take});
    return;
  }
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

void RequireKnownTotals(const World& world) {
  const auto& totals = world.Of<TotalsState>();
  if (totals.Count() == 0 || totals[1].Version <= kTotalsVersion) return;
  throw WorldFault(
      std::string(totals.File()) +
      ": the past was added up by a newer version of the game. Update the game to play "
      "on; nothing was changed.");
}

std::vector<Fault> MendNumbers(World& world) {
  std::vector<Fault> mended;
  Inspection inspection(world, Inspection::Purpose::MendGame,
                        [&](Fault&& fault) { mended.push_back(std::move(fault)); });
  CountedNumbersLieInTheirRanges(inspection);
  return mended;
}

std::string Fault::Line() const {
  std::string line = File;
  if (Record != 0) line += ", record " + std::to_string(Record);
  if (!Who.empty()) line += " (" + Who + ")";
  if (!Field.empty()) line += ", " + Field;
  return line + ": " + What;
}

Inspection::Inspection(World& world, Purpose purpose, TakeFault take, WantFault wanted)
    : world_(world),
      purpose_(purpose),
      take_(std::move(take)),
      wanted_(std::move(wanted)),
      asData_(purpose == Purpose::Mend || !world.HasGame()) {}

bool Inspection::Covers(const RecordLayout& layout) const {
  return !asData_ || std::find(kDataSet.begin(), kDataSet.end(), layout.File) != kDataSet.end();
}

void Inspection::NoteFile(std::string_view file, std::string what, const Remedy& remedy) {
  Take({std::string(file), 0, {}, {}, std::move(what)}, remedy);
}

void Inspection::NoteField(const Place& place, std::string_view field, std::string what,
                           const Remedy& remedy) {
  Take({std::string(place.Layout.File), place.Number, OwnName(place), std::string(field),
        std::move(what)},
       remedy);
}

void Inspection::Take(Fault fault, const Remedy& remedy) {
  if (wanted_ && !wanted_(fault)) return;
  if (purpose_ != Purpose::Check) {
    if (!remedy.Do) return;
    for (Table* table : world_.Tables())
      if (table->File() == fault.File) table->ExpectAnyChange();
    remedy.Do();
    fault.What += "; " + remedy.How;
  }
  take_(std::move(fault));
}

}  // namespace grapplemont
