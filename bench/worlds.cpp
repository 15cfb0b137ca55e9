#include "bench/worlds.h"

#include <algorithm>
#include <stdexcept>

#include "bench/keptworlds.h"
#include "editor/keeping.h"
#include "roster/invented.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
#include "support/gameonworld.h"
#include "tools/officework.h"

namespace grapplemont::bench {

namespace {

struct SizeOfData {
  const char* Text;
  int Promotions, Workers, Staff;
};
// Of the default data's numbers more are added or some taken; 0 leaves them as they are.
constexpr SizeOfData kSizes[] = {{"default world", 0, 0, 0},
                                 {"largest world", 35, 25000, 10000},
                                 {"250 workers", 0, 250, 0},
                                 {"2,500 workers", 35, 2500, 1000}};

constexpr int kMonth = 30, kDecade = 3652;  // days
constexpr int kNobody = -1;

/// An age goes on from one that is younger, or begins with a new game.
struct Life {
  const char* Text;
  int Days;
  int From;
  int Size;
};
constexpr Life kLives[] = {{"new", kMonth, kNobody, kDefaultSize},
                           {"after 10 years", kDecade, kNew, kDefaultSize},
                           {"after 20 years", kDecade, kTenYears, kDefaultSize},
                           {"largest", kMonth, kNobody, kLargestSize},
                           {"after 50 years", 3 * kDecade, kTwentyYears, kDefaultSize},
                           {"250 workers", kMonth, kNobody, kSmallSize},
                           {"2,500 workers", kMonth, kNobody, kMiddleSize}};

/// Takes workers away, evenly through the file.
void Shrink(World& world, int workers) {
  const int before = world.Workers().Count();
  for (int number = before; number >= 1 && world.Workers().Count() > workers; --number)
    if (number * workers / before == (number - 1) * workers / before)
      DeleteRecord(world, RecordKind::Worker, number);
}

void AddPromotions(World& world, int count) {
  while (world.Promotions().Count() < count) {
    Promotion copy = world.Promotions()[1 + world.Promotions().Count() % 18];
    const std::string number = std::to_string(world.Promotions().Count() + 1);
    copy.Uid = world.Promotions().Count() + 1;
    copy.Name = "Promotion " + number;
    copy.Initials = "P" + number;
    world.Promotions().Append(copy);
  }
}

void AddWorkers(World& world, int count) {
  for (int uid = world.Workers().Count() + 1; uid <= count; ++uid) {
    Worker worker;
    worker.Uid = uid;
    worker.Name = "Worker " + std::to_string(uid);
    worker.ShortName = std::to_string(uid);
    worker.BirthMonth = 1 + uid % 12;
    NewWorkerAttributes(world, worker, Generation::Filler);
    worker.Employer = uid % 3 == 0 ? 0 : 1 + uid % world.Promotions().Count();
    worker.Status = "Nor";
    worker.Stable = "None";
    worker.Split = "None";
    world.Workers().Append(worker);
  }
}

void AddStaff(World& world, int count) {
  for (int uid = world.AllStaff().Count() + 1; uid <= count; ++uid) {
    Staff staff;
    staff.Uid = uid;
    staff.Name = "Staff " + std::to_string(uid);
    staff.Position = 2 + uid % 7;
    NewStaffAttributes(world, staff);
    world.AllStaff().Append(staff);
  }
}

World Sized(const SizeOfData& size) {
  World world = test::CopyOf(test::DefaultWorld());
  if (size.Workers > 0) Shrink(world, size.Workers);
  AddPromotions(world, size.Promotions);
  AddWorkers(world, size.Workers);
  AddStaff(world, size.Staff);
  return world;
}

World Live(World world, int days) {
  test::GameOnWorld career(std::move(world));
  const tools::CareerEnd end = tools::PlayDays(
      career.Play, days, tools::Shows::Auto, [](int) {}, tools::AfterTheEnd::AnotherJob);
  if (end.Days != days) throw std::runtime_error("The career came to its end.");
  return test::CopyOf(career.World());
}

}  // namespace

World DataWorld(int size) {
  return Kept("size-" + std::to_string(size), [&] { return Sized(kSizes[size]); });
}

const char* SizeText(int size) {
  return kSizes[size].Text;
}

void Begin(World& data, Day start, const std::function<void(std::string_view)>& watcher) {
  NewGameChoice choice;
  choice.PlayerName = "Bench";
  choice.PromotionUid = data.Promotions()[3].Uid;
  choice.Start = start;
  choice.SaveName = "Bench";
  NewGame(data, choice, watcher);
}

World StartedWorld(int size, Day start) {
  World world = DataWorld(size);
  Begin(world, start);
  return world;
}

World Played(int age) {
  return Kept("age-" + std::to_string(age), [&] {
    const Life& life = kLives[age];
    return Live(life.From == kNobody ? StartedWorld(life.Size, kSomeDay) : Played(life.From),
                life.Days);
  });
}

const char* AgeText(int age) {
  return kLives[age].Text;
}

void Click(World& world, int turn) {
  const int step = std::max(1, world.Workers().Count() / 5);
  for (int number = 1; number <= world.Workers().Count(); number += step)
    world.Workers()[number].Morale = 40 + turn % 20;
}

}  // namespace grapplemont::bench
