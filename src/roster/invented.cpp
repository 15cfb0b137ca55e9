#include "roster/invented.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "records/modWresCheck.h"
#include "words/names.h"

namespace grapplemont {

namespace {

/// The draws of the rules, where somebody else may hand in others.
class RuleDraws : public Draws {
 public:
  explicit RuleDraws(World& world) : world_(world) {}
  int Draw(int n) override { return world_.RandomDraw(n); }

 private:
  World& world_;
};

/// Places in a table of first names, from 1 to the last; those of one sex stand together.
struct Places {
  int First;
  int Last;
};

/// What a wrestler is built for.
struct Build {
  char Moves;
  Percent Worker::*Strong;
  std::array<Percent Worker::*, 2> Weak;
};

constexpr Build kBrawler{'B', &Worker::Brawl, {&Worker::Technical, &Worker::Speed}};
constexpr Build kFlyer{'S', &Worker::Speed, {&Worker::Brawl, &Worker::Technical}};
constexpr Build kTechnician{'T', &Worker::Technical, {&Worker::Brawl, &Worker::Speed}};

const Build& DrawBuild(Draws& draws, Worker& worker) {
  const int kind = draws.Draw(10);
  if (kind <= 5) {
    worker.Weight = "H";
    worker.HighSpots = draws.Draw(6) == 1;
    return kBrawler;
  }
  if (kind <= 8) {
    worker.Weight = "L";
    worker.HighSpots = draws.Draw(3) < 3;
    return kFlyer;
  }
  worker.Weight = draws.Draw(2) < 2 ? "H" : "L";
  worker.HighSpots = draws.Draw(4) < 3;
  return kTechnician;
}

/// What a wrestler of a tier starts with: each figure is a base and the size of a draw on top of
/// it.
struct Range {
  int Base;
  int Draw;
};
struct Tier {
  int UpTo;  // of the draw of 25
  int Position;
  int Wage;
  Range Strong;
  Range Weak;
  Range BrawlerOver;
  Range OtherOver;
};
constexpr std::array<Tier, 3> kTiers = {{
    {1, kUpperMidcard, 20, {60, 30}, {0, 40}, {30, 10}, {55, 25}},
    {17, kLowerMidcard, 10, {25, 30}, {0, 20}, {15, 15}, {40, 25}},
    {25, kJobber, 5, {15, 20}, {0, 5}, {0, 15}, {0, 25}},
}};

int DrawIn(Draws& draws, Range range) {
  return range.Base + draws.Draw(range.Draw);
}

void CharismaBonus(Worker& worker) {
  if (worker.Charisma <= 70) return;
  int over = worker.Over;
  if (worker.Position == kUpperMidcard) {
    over += 20;
    if (over > 75) over = 55;  // lower than its test: a star in the making is not there yet
  } else if (worker.Position == kLowerMidcard) {
    over = std::min(over + 10, 65);
  } else if (worker.Position == kJobber) {
    over = std::min(over + 5, 45);
  }
  worker.Over = over;
}

/// Names the finisher of slot 1 or 2 and sets how it is done, from the moves of a kind.
void RandomMove(Draws& draws, Worker& worker, char kind, int slot) {
  const auto isKind = [kind](const FinisherMove& move) { return move.Kind == kind; };
  const auto first = std::ranges::find_if(FinisherMoves, isKind);
  const auto last = std::find_if_not(first, FinisherMoves.end(), isKind);
  const FinisherMove& move = first[draws.Draw(static_cast<int>(last - first)) - 1];
  (slot == 1 ? worker.Finisher1 : worker.Finisher2) = move.Name;
  FinisherFlags(worker, slot, move.Type);
}

void DrawTier(Draws& draws, Worker& worker, const Build& build) {
  const int drawn = draws.Draw(25);
  const Tier& tier = *std::ranges::find_if(kTiers, [&](auto& t) { return drawn <= t.UpTo; });
  RandomMove(draws, worker, build.Moves, 1);
  RandomMove(draws, worker, build.Moves, 2);
  const bool mayManage = tier.Position == kJobber;
  worker.Position = mayManage && draws.Draw(5) == 1 ? int(kManager) : tier.Position;
  worker.Wage = tier.Wage;
  worker.*build.Strong = DrawIn(draws, tier.Strong);
  for (const auto weak : build.Weak) worker.*weak = DrawIn(draws, tier.Weak);
  worker.Over = DrawIn(draws, build.Moves == 'B' ? tier.BrawlerOver : tier.OtherOver);
  CharismaBonus(worker);
}

/// A name that nobody has, and the sex that comes with it: women's first names stand behind the
/// last male one. Gives the surname.
template <class Person, class Names>
std::string_view DrawName(const World& world, Draws& draws, Person& person, const Names& firstNames,
                          Places among, int lastMale,
                          bool (*isFree)(const World& world, std::string_view name)) {
  std::string_view surname;
  do {
    surname = Surnames[static_cast<std::size_t>(draws.Draw(static_cast<int>(Surnames.size())) - 1)];
    const int first = among.First - 1 + draws.Draw(among.Last - among.First + 1);
    person.Name =
        std::string(firstNames[static_cast<std::size_t>(first - 1)]) + " " + std::string(surname);
    person.Gender = first <= lastMale;
  } while (!isFree(world, person.Name));
  return surname;
}

constexpr Places kAllFirstNames = {1, kWorkerFirstNames};
constexpr Places kMensFirstNames = {1, kLastMaleWorkerFirstName};
constexpr Places kWomensFirstNames = {kLastMaleWorkerFirstName + 1, kWorkerFirstNames};

void DrawName(const World& world, Draws& draws, Worker& worker, Places among) {
  worker.ShortName = DrawName(world, draws, worker, WorkerFirstNames, among,
                              kLastMaleWorkerFirstName, WorkerNameFree);
}

/// Birthday, disposition and the four flags of somebody whom nobody employs.
void DrawOnTheMarket(Draws& draws, Worker& worker) {
  worker.BirthMonth = draws.Draw(12);
  worker.ContractType = "Non";
  worker.Status = "Nor";
  worker.Speaks = true;
  worker.Disposition = draws.Draw(2) == 1 ? "F" : "H";
  worker.Trainer = draws.Draw(35) == 1;
  worker.SuperstarLook = draws.Draw(20) == 1 || worker.Diva;
  worker.Booker = draws.Draw(70) == 1;
  worker.Announcer = draws.Draw(70) == 1;
  worker.Stable = "None";
  worker.Split = "None";
}

void DrawAttributes(Draws& draws, Worker& worker, Generation generation) {
  worker.Age = 18 + draws.Draw(generation == Generation::Rookie ? 4 : 20);
  worker.Stiff = 30 + draws.Draw(60);
  worker.Sell = 30 + draws.Draw(60);
  worker.Charisma = draws.Draw(95);
  const Range character = worker.Age >= 22 ? Range{30, 65} : Range{40, 45};
  worker.Attitude = DrawIn(draws, character);
  worker.Behaviour = DrawIn(draws, character);
  worker.Diva = !worker.Gender && draws.Draw(10) < 5;
  worker.RetiringSoon = false;
  worker.Debuted = true;
  const Build& build = DrawBuild(draws, worker);
  DrawTier(draws, worker, build);
}

/// What differs in somebody who is at their beginning.
void DrawRookie(Draws& draws, Worker& rookie) {
  DrawAttributes(draws, rookie, Generation::Rookie);
  rookie.Diva = !rookie.Gender && draws.Draw(20) < 5;
  DrawOnTheMarket(draws, rookie);
  rookie.Condition = draws.Draw(14) + 75;
  rookie.Morale = draws.Draw(14) + 75;
  rookie.Loyalty = draws.Draw(30) + 70;
  rookie.Potential = std::max(30, rookie.Over + draws.Draw(30));
  rookie.OverFloor = rookie.Over - draws.Draw(30);
}

/// What reports may call somebody, the most usual first; cut to their field.
std::vector<std::string> ShortNamesOf(const Worker& worker) {
  const std::string name = worker.Name.Str(), surname = worker.ShortName.Str();
  const std::string first = name.substr(0, name.find(' '));
  constexpr auto kRoom = static_cast<std::size_t>(decltype(Worker::ShortName)::kWidth);
  std::vector<std::string> names = {surname, first, first.substr(0, 1) + ". " + surname,
                                    first + " " + surname.substr(0, 1) + "."};
  std::erase_if(names, [](const std::string& words) { return words.size() > kRoom; });
  return names;
}

/// Names until one is like no other; in a world where that is hard, the last one drawn.
void DrawOwnNames(const World& world, Draws& draws, Worker& worker, Places among) {
  constexpr int kTries = 20;
  for (int n = 0; n < kTries; ++n) {
    DrawName(world, draws, worker, among);
    if (TellApart(world, worker)) return;
  }
}

Staff NewStaffMember(World& world, int position) {
  Staff staff;
  RuleDraws draws(world);
  DrawName(world, draws, staff, StaffFirstNames, Places{1, kStaffFirstNames},
           kLastMaleStaffFirstName, StaffNameFree);
  staff.Uid = NextStaffUid(world);
  staff.Position = position;
  NewStaffAttributes(world, staff);
  return staff;
}

}  // namespace

void NewWorkerAttributes(World& world, Worker& worker, Generation generation) {
  RuleDraws draws(world);
  DrawAttributes(draws, worker, generation);
}

void InventName(World& world, Worker& worker) {
  RuleDraws draws(world);
  Worker named = worker;  // a record of the world would stand in its own way
  DrawOwnNames(world, draws, named, worker.Gender ? kMensFirstNames : kWomensFirstNames);
  worker.Name = named.Name;
  worker.ShortName = named.ShortName;
}

void InventName(World& world, Staff& staff) {
  RuleDraws draws(world);
  const Places among = staff.Gender ? Places{1, kLastMaleStaffFirstName}
                                    : Places{kLastMaleStaffFirstName + 1, kStaffFirstNames};
  Staff named = staff;
  DrawName(world, draws, named, StaffFirstNames, among, kLastMaleStaffFirstName, StaffNameFree);
  staff.Name = named.Name;
}

Worker& NewFillerWorker(World& world) {
  RuleDraws draws(world);
  Worker worker;
  DrawName(world, draws, worker, kAllFirstNames);
  worker.Uid = NextWorkerUid(world);
  DrawAttributes(draws, worker, Generation::Filler);
  DrawOnTheMarket(draws, worker);
  worker.Condition = 60 + draws.Draw(40);
  worker.Morale = 60 + draws.Draw(40);
  worker.Loyalty = 70 + draws.Draw(30);
  worker.OverFloor = OverFloorFor(worker.Over);
  worker.Potential = StartingPotential(world, worker.Over);
  return world.Workers().Append(worker);
}

void ReplaceByRookie(World& world, Worker& worker) {
  RuleDraws draws(world);
  Worker rookie;
  DrawOwnNames(world, draws, rookie, kAllFirstNames);
  rookie.Uid = NextWorkerUid(world);
  DrawRookie(draws, rookie);
  worker = rookie;
}

Worker NewTalent(World& world) {
  Draws& life = world.Life();
  Worker talent;
  DrawOwnNames(world, life, talent, kAllFirstNames);
  talent.Uid = NextWorkerUid(world);
  DrawRookie(life, talent);
  return talent;
}

bool TellApart(const World& world, Worker& worker) {
  for (const std::string& name : ShortNamesOf(worker)) {
    const auto bears = [&](const Worker& other) {
      return &other != &worker && other.ShortName == name;
    };
    if (std::ranges::any_of(world.Workers(), bears)) continue;
    worker.ShortName = name;
    return true;
  }
  return false;
}

void NewStaffAttributes(World& world, Staff& staff) {
  const bool isOwner = staff.Position == kOwner;
  staff.Age = 25 + world.RandomDraw(35);
  staff.Talent = world.RandomDraw(100);
  staff.Wage = isOwner ? world.RandomDraw(6) : 1 + staff.Talent / 5;
  staff.Backstage = 30 + world.RandomDraw(65);
  staff.BirthMonth = world.RandomDraw(12);
  staff.Employer = 0;
  staff.ContractType = "Non";
  staff.ContractMonths = isOwner ? kNoEnd : 0;
  staff.Booker = world.RandomDraw(staff.Position == kAnnouncer ? 5 : 35) == 1;
  staff.Unsackable = false;
  staff.Morale = world.RandomDraw(40) + 60;
  staff.Loyalty = world.RandomDraw(30) + 70;
}

Staff& NewFillerStaff(World& world, int position) {
  return world.AllStaff().Append(NewStaffMember(world, position));
}

void ReplaceByNewcomer(World& world, Staff& staff) {
  staff = NewStaffMember(world, staff.Position);
}

int OverFloorFor(int over) {
  struct Row {
    int From;
    int Floor;
  };
  constexpr std::array<Row, 6> kFloors = {
      {{100, 80}, {91, 70}, {81, 60}, {71, 50}, {61, 40}, {51, 30}}};
  for (const Row& row : kFloors)
    if (over >= row.From) return row.Floor;
  return 0;
}

int StartingPotential(World& world, int over) {
  if (over >= 66) return over;
  return std::max(30, std::min(over + world.RandomDraw(25), 70));
}

}  // namespace grapplemont
