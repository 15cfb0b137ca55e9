#include "calendar/board.h"

#include "records/fields/vocabulary.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

constexpr std::chrono::days kBetweenWarnings{30};

/// The one record; it is made where the board has never spoken.
BoardState& StateOfBoard(World& world) {
  if (world.Boards().Count() == 0) world.Boards().Rewrite({BoardState{}});
  return world.Boards()[1];
}

bool WasWarnedOfLate(const World& world) {
  if (world.Boards().Count() == 0) return false;
  const Day warned = world.Boards()[1].Warned;
  return warned <= world.Today() && world.Today() - warned < kBetweenWarnings;
}

}  // namespace

int ClassInSight(const Promotion& promotion) {
  if (promotion.Image >= kRiseInSight && promotion.Size > kGlobal) return promotion.Size - 1;
  if (promotion.Image < kFallInSight && promotion.Size < kBackyard) return promotion.Size + 1;
  return 0;
}

std::string VoiceOfBoard(const World& world) {
  const Staff* owner = OwnerOf(world, world.PlayerUid());
  return owner ? owner->Name.Str() : "The Board";
}

void BoardWarning(World& world) {
  const Promotion& player = world.Player();
  const int below = ClassInSight(player);
  if (below <= player.Size || WasWarnedOfLate(world)) return;
  StateOfBoard(world).Warned = world.Today();
  AddNews(world, VoiceOfBoard(world),
          "Our image is down to " + std::to_string(player.Image) + "%. At nothing we fall to " +
              std::string(SizeText(below)) +
              " level, and I cannot promise that you will be the one who leads us there. The staff "
              "meeting has a page on what would await us.");
}

}  // namespace grapplemont
