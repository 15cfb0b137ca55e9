#include "bench/worlds.h"

#include <stdexcept>

#include "roster/invented.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
#include "support/gameonworld.h"
#include "tools/officework.h"

namespace grapplemont::bench {

namespace {

constexpr int kManyPromotions = 35, kManyWorkers = 25000, kManyStaff = 10000;

constexpr int kMonth = 30, kDecade = 3652;  // days

struct Life {
  const char* Text;
  int Days;
};
// Each of the default world's goes on from the one before.
constexpr Life kLives[] = {{"new", kMonth},
                           {"after 10 years", kDecade},
                           {"after 20 years", kDecade},
                           {"largest", kMonth},
                           {"after 50 years", 3 * kDecade}};

/// The largest world that the files may hold.
World LargestWorld() {
  World world = test::CopyOf(test::DefaultWorld());
  while (world.Promotions().Count() < kManyPromotions) {
    Promotion copy = world.Promotions()[1 + world.Promotions().Count() % 18];
    const std::string number = std::to_string(world.Promotions().Count() + 1);
    copy.Uid = world.Promotions().Count() + 1;
    copy.Name = "Promotion " + number;
    copy.Initials = "P" + number;
    world.Promotions().Append(copy);
  }
  for (int uid = world.Workers().Count() + 1; uid <= kManyWorkers; ++uid) {
    Worker worker;
    worker.Uid = uid;
    worker.Name = "Worker " + std::to_string(uid);
    worker.ShortName = std::to_string(uid);
    worker.BirthMonth = 1 + uid % 12;
    NewWorkerAttributes(world, worker, Generation::Filler);
    worker.Employer = uid % 3 == 0 ? 0 : 1 + uid % kManyPromotions;
    worker.Status = "Nor";
    worker.Stable = "None";
    worker.Split = "None";
    world.Workers().Append(worker);
  }
  for (int uid = world.AllStaff().Count() + 1; uid <= kManyStaff; ++uid) {
    Staff staff;
    staff.Uid = uid;
    staff.Name = "Staff " + std::to_string(uid);
    staff.Position = 2 + uid % 7;
    NewStaffAttributes(world, staff);
    world.AllStaff().Append(staff);
  }
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

World DataWorld(bool large) {
  if (!large) return test::CopyOf(test::DefaultWorld());
  static const World largest = LargestWorld();
  return test::CopyOf(largest);
}

void Begin(World& data, Day start, const std::function<void(std::string_view)>& watcher) {
  NewGameChoice choice;
  choice.PlayerName = "Bench";
  choice.PromotionUid = data.Promotions()[3].Uid;
  choice.Start = start;
  choice.SaveName = "Bench";
  NewGame(data, choice, watcher);
}

World StartedWorld(bool large, Day start) {
  World world = DataWorld(large);
  Begin(world, start);
  return world;
}

World Played(int age) {
  static std::map<int, World> played;
  if (!played.contains(age)) {
    const bool isFirst = age == kNew || age == kLargest;
    const int younger = age == kFiftyYears ? int(kTwentyYears) : age - 1;
    World before = isFirst ? StartedWorld(age == kLargest, kSomeDay) : Played(younger);
    played.emplace(age, Live(std::move(before), kLives[age].Days));
  }
  return test::CopyOf(played.at(age));
}

const char* AgeText(int age) {
  return kLives[age].Text;
}

}  // namespace grapplemont::bench
