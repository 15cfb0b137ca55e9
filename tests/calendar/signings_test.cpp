#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "calendar/advanceday.h"
#include "rivals/rivals.h"
#include "rivals/workermarket.h"
#include "session/newgame.h"
#include "support/defaultworld.h"
#include "support/smallworld.h"

// Whom rivals sign while a world goes its way.

namespace grapplemont::test {
namespace {

/// Looks at who has changed sides since it looked last.
class MarketWatch {
 public:
  explicit MarketWatch(const World& world) : world_(world) { Remember(); }

  /// Whom the player lets go somebody may take at once, by limits of their own; whom a rival fires
  /// another may sign in the same step.
  void Look() {
    for (int number = 1; number <= static_cast<int>(before_.size()); ++number) {
      Worker then = before_[static_cast<std::size_t>(number - 1)];
      const Worker& now = world_.Workers()[number];
      const Promotion* employer = world_.FindPromotion(now.Employer);
      if (then.Uid != now.Uid || then.Employer == now.Employer || !employer ||
          then.Employer == world_.PlayerUid() || !IsRival(world_, *employer))
        continue;
      if (WasFired(then)) then.Employer = 0;
      ++Signed;
      EXPECT_TRUE(IsWithinLimits(then, employer->Size) && IsOpenTo(world_, then, employer->Size))
          << IsoDate(world_.Today()) << " " << employer->Initials.View() << " " << then.Name.View()
          << " " << then.Over << " for " << then.Wage;
    }
    Remember();
  }

  int Signed = 0;

 private:
  bool WasFired(const Worker& worker) const {
    return std::ranges::any_of(world_.Deeds(), [&](const Deed& deed) {
      return deed.Kind == kDeedFired && Day(deed.On) == world_.Today() && deed.Who == worker.Name;
    });
  }
  void Remember() { before_.assign(world_.Workers().begin(), world_.Workers().end()); }

  const World& world_;
  std::vector<Worker> before_;
};

TEST(RivalSignings, StayWithinTheLimitsOfTheSizeWhateverStepBringsThem) {
  World world = CopyOf(DefaultWorld());
  world.SetChance(std::make_unique<SeededDraws>(7));
  NewGameChoice choice;
  choice.PlayerName = "Pat Lee";
  choice.PromotionUid = 8;
  choice.Difficulty = kMedium;
  choice.Start = kGameStart;
  choice.SaveName = "First";
  NewGame(world, choice);
  MarketWatch watch(world);
  for (int day = 0; day < 130; ++day) {
    world.Session.ShowRating = 55;
    AdvanceDay(world, false, [&](std::string_view) { watch.Look(); });
    watch.Look();
    world.Game().EndCode = 0;
  }
  EXPECT_GT(watch.Signed, 100);
}

}  // namespace
}  // namespace grapplemont::test
