#include "support/defaultworld.h"

#include <gtest/gtest.h>

#include "records/store/disk.h"
#include "records/tables/worldtables.h"
#include "support/checkout.h"

namespace grapplemont::test {

namespace {

World Built() {
  const auto disk = RealDisk();
  Building building = BuildWorld(ReadTables(*disk, Checkout("/world")));
  for (const Mistake& mistake : building.Mistakes) ADD_FAILURE() << mistake.Text();
  return building.Made ? std::move(*building.Made) : World();
}

}  // namespace

const World& DefaultWorld() {
  static const World world = Built();
  return world;
}

}  // namespace grapplemont::test
