#include "records/modVar.h"

#include <gtest/gtest.h>

namespace grapplemont {
namespace {

TEST(Headroom, IsRemarkedOnFromNineTenthsOn) {
  World world;
  EXPECT_TRUE(NearlyFullFiles(world).empty());
  world.Workers().Rewrite(std::vector<Worker>(22499));
  world.AllStaff().Rewrite(std::vector<Staff>(8999));
  EXPECT_TRUE(NearlyFullFiles(world).empty());
  world.Workers().Append({});
  world.AllStaff().Append({});
  EXPECT_EQ((std::vector<std::string>{"wrestler.dat holds 22500 workers; 25000 is the most. Start "
                                      "the next game from a smaller database.",
                                      "staff.dat holds 9000 staff; 10000 is the most. Start the "
                                      "next game from a smaller database."}),
            NearlyFullFiles(world));
}

}  // namespace
}  // namespace grapplemont
