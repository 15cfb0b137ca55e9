#include "randomhouse.h"

namespace grapplemont::test {

namespace {

std::string Hand(int number) {
  return "Hand " + std::to_string(number);
}

void Scatter(Dice& dice, Worker& worker, int wrestlers) {
  constexpr const char* kSides[] = {"F", "H", "T"};
  constexpr int kRoles[] = {kManager, kNonWrestler, kDevelopmentDeal, kTrainingCamp};
  const auto of = [&](auto& list) { return list[dice.From(0, int(std::size(list)) - 1)]; };
  worker.Disposition = of(kSides);
  if (dice.OneIn(8)) worker.Position = of(kRoles);
  worker.Gender = !dice.OneIn(4);
  worker.Weight = dice.OneIn(3) ? "L" : "H";
  worker.Status = dice.OneIn(10) ? "Inj" : "Nor";
  for (Percent* field : {&worker.Over, &worker.Attitude, &worker.Condition, &worker.Potential,
                         &worker.Sell, &worker.Charisma, &worker.Brawl, &worker.Morale})
    *field = dice.From(0, 100);
  worker.Age = dice.From(18, 55);
  worker.Speaks = !dice.OneIn(4);
  worker.HighSpots = dice.OneIn(2);
  worker.CreativeControl = dice.OneIn(8);
  worker.TurnPending = dice.OneIn(12);
  worker.Debuted = !dice.OneIn(8);
  worker.RetiringSoon = dice.OneIn(15);
  if (dice.OneIn(4)) worker.Stable = dice.OneIn(2) ? "The Reeds" : "The Rushes";
  if (dice.OneIn(5)) worker.Manager = dice.From(1, wrestlers);
}

void AddGroups(Dice& dice, SmallWorld& world, int wrestlers) {
  const auto any = [&] { return Hand(dice.From(1, wrestlers)); };
  world.Stable("The Reeds").Stable("The Rushes");
  for (int i = dice.From(0, 6); i > 0; --i) {
    const std::string one = any(), two = any();
    if (one != two)
      world.Team("Team " + std::to_string(i), one, two,
                 [&](Team& team) { team.Experience = dice.From(0, 100); });
  }
  for (int i = dice.From(0, 5); i > 0; --i) {
    const std::string holder = any(), partner = any();
    const bool tag = dice.OneIn(3) && holder != partner;
    world.Title("Title " + std::to_string(i), dice.OneIn(4) ? "" : holder, tag ? partner : "",
                [&](Title& title) {
                  title.Image = dice.From(0, 100);
                  title.Woman = dice.OneIn(5);
                  title.Lightweight = dice.OneIn(5);
                  title.Suspended = dice.OneIn(8);
                  if (title.Holder == 0) title.Partner = 0;
                  title.Reigns[0].Won = kGameStart - std::chrono::days{dice.From(0, 500)};
                });
  }
}

void AddFeuds(Dice& dice, SmallWorld& world, int wrestlers) {
  const auto change = [&](Feud& feud) {
    feud.Heat = dice.From(0, 100);
    for (Natural* tally : {&feud.Clean1, &feud.Dirty1, &feud.Clean2, &feud.Dirty2, &feud.Sneak1})
      *tally = dice.From(0, 5);
    feud.Started = kGameStart - std::chrono::days{dice.From(0, 300)};
  };
  for (int i = dice.From(0, kFeuds); i > 0; --i) {
    const int first = dice.From(1, wrestlers);
    const auto next = [&](int step) { return Hand(1 + (first - 1 + step) % wrestlers); };
    if (wrestlers >= 4 && dice.OneIn(4))
      world.TagFeud(next(0), next(1), next(2), next(3), change);
    else
      world.Feud(next(0), next(1), change);
  }
}

}  // namespace

World RandomHouse(std::uint64_t seed) {
  Dice dice(seed);
  const int wrestlers = dice.OneIn(3) ? dice.From(2, 12) : dice.From(2, 120);
  SmallWorld world;
  world.Promotion("CWA", dice.From(kGlobal, kBackyard),
                  [&](Promotion& promotion) { promotion.Risk = dice.From(0, 100); });
  world.Owner("Ruth Vane");
  for (int i = dice.From(0, 3); i > 0; --i)
    world.Staff("Writer " + std::to_string(i), kWriter, dice.From(0, 100));
  for (int i = 1; i <= wrestlers; ++i)
    world.Worker(Hand(i), dice.From(kMainEvent, kJobber), 50,
                 [&](Worker& worker) { Scatter(dice, worker, wrestlers); });
  AddGroups(dice, world, wrestlers);
  world.Game("CWA", kGameStart + std::chrono::days{dice.From(0, 364)});
  AddFeuds(dice, world, wrestlers);
  return world.BuildUnchecked();
}

}  // namespace grapplemont::test
