#include "calendar/board.h"

#include <algorithm>

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

/// A show moves the image by no more; what goes further has crossed a class.
constexpr int kMostOfAShow = 25;

/// Yesterday's shows brought the image to where a rise is in sight.
bool RiseComesIntoSight(const World& world) {
  const Day yesterday = world.Today() - std::chrono::days{1};
  return std::ranges::any_of(world.ShowNotes(), [&](const ShowNote& note) {
    return note.Kind == kNoteImage && note.Promotion == world.PlayerUid() &&
           Day(note.On) == yesterday && note.Now >= kRiseInSight &&
           note.Now - note.Change < kRiseInSight && note.Change <= kMostOfAShow;
  });
}

void TellOfTheRise(World& world, int above) {
  const std::string size(SizeText(above));
  AddNews(world, VoiceOfBoard(world),
          "Our image is up to " + std::to_string(world.Player().Image) + "%. At 100% we rise to " +
              size +
              " level, and every show will be measured by what is usual there. The staff "
              "meeting has a page on whether we are ready for it.");
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
  const int next = ClassInSight(player);
  if (next == 0) return;
  if (next < player.Size) {
    if (RiseComesIntoSight(world)) TellOfTheRise(world, next);
    return;
  }
  if (WasWarnedOfLate(world)) return;
  StateOfBoard(world).Warned = world.Today();
  AddNews(world, VoiceOfBoard(world),
          "Our image is down to " + std::to_string(player.Image) + "%. At nothing we fall to " +
              std::string(SizeText(next)) +
              " level, and I cannot promise that you will be the one who leads us there. The staff "
              "meeting has a page on what would await us.");
}

}  // namespace grapplemont
