#include "records/modVar.h"
#include "rivals/challenge.h"
#include "rivals/founding.h"
#include "rivals/rivals.h"
#include "rivals/rivalsteps.h"
#include "words/promotions.h"

namespace grapplemont {

namespace {

constexpr int kFewPromotions = 16;
constexpr int kManyPromotions = 30;
constexpr int kOpens = 2;
// By size; nobody opens as a Global promotion.
constexpr std::array<int, 6> kCapital = {0, 10000000, 5000000, 2000000, 1000000, 200000};

bool IsUnused(const World& world, const NewPromotionName& name) {
  return IsNameFree(world, name.Name, name.Initials);
}

bool AnyNameLeft(const World& world) {
  return std::any_of(std::begin(kNewPromotionNames), std::end(kNewPromotionNames),
                     [&](auto& name) { return IsUnused(world, name); });
}

const NewPromotionName& DrawUnusedName(World& world) {
  const auto draw = [&world]() -> const NewPromotionName& {
    const int row = world.RandomDraw(static_cast<int>(std::size(kNewPromotionNames)));
    return kNewPromotionNames[static_cast<std::size_t>(row - 1)];
  };
  const NewPromotionName* name = &draw();
  while (!IsUnused(world, *name)) name = &draw();
  return *name;
}

void OpenSomewhere(World& world) {
  const NewPromotionName& name = DrawUnusedName(world);
  Promotion promotion = NewPromotion(world, name.Name, name.Initials);
  promotion.Size = 1 + world.RandomDraw(5);
  promotion.Money = BySize(kCapital, promotion.Size);
  promotion.Image = 20 + world.RandomDraw(60);
  promotion.Momentum = world.RandomDraw(4);
  promotion.Risk = 20 + world.RandomDraw(70);
  if (ShouldTell(world, world.Game().MailOtherFed, promotion.Size))
    AddNews(world, "New Promotion", "A new promotion, " + promotion.Name.Str() + ", has opened.");
  NoteDeed(world, kDeedFounded, &promotion, promotion.Name, {}, promotion.Size);
  Open(world, promotion);
}

}  // namespace

void NewPromotionCheck(World& world) {
  const int count = CountPromotions(world);
  const bool opens = world.RandomDraw(count < kFewPromotions ? 3 : 5) == kOpens;
  if (opens && count < kManyPromotions && !world.Promotions().Full() && AnyNameLeft(world))
    OpenSomewhere(world);
  AwaitStranger(world);
}

}  // namespace grapplemont
