#include "bench/worlds.h"

#include "records/disk.h"
#include "roster/invented.h"
#include "session/newgame.h"
#include "support/checkout.h"

namespace grapplemont::bench {

namespace {

constexpr int kManyPromotions = 35, kManyWorkers = 25000, kManyStaff = 10000;

std::map<std::string, Bytes> DefaultData() {
  const auto disk = RealDisk();
  return ReadWorldFiles(*disk, test::Checkout("/data"));
}

World DefaultWorld() {
  World world;
  world.Load(DefaultData());
  return world;
}

/// The largest world that the files may hold.
World LargestWorld() {
  World world = DefaultWorld();
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

}  // namespace

World DataWorld(bool large) {
  return large ? LargestWorld() : DefaultWorld();
}

World Started(World world, Day start) {
  NewGameChoice choice;
  choice.PlayerName = "Bench";
  choice.PromotionUid = world.Promotions()[3].Uid;
  choice.Start = start;
  choice.SaveName = "Bench";
  NewGame(world, choice);
  return world;
}

World StartedWorld(bool large, Day start) {
  return Started(DataWorld(large), start);
}

}  // namespace grapplemont::bench
