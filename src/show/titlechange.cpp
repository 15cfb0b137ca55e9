#include "show/titlechange.h"

#include <algorithm>
#include <iterator>

#include "report/cast.h"
#include "show/consequences.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

/// Wins of 1 vs 1 and 2 vs 2 that take a Title along.
constexpr int kDecisiveFinishes[] = {kClean,    kInterference,     kBotchedInterference, kCheating,
                                     kSickBump, kMiscommunication, kPartnerTurns};

bool TakesTitles(const Segment& segment) {
  switch (segment.Style) {
    case kSingles:
    case kTag:
      return std::find(std::begin(kDecisiveFinishes), std::end(kDecisiveFinishes),
                       int(segment.Finish)) != std::end(kDecisiveFinishes);
    case kThreeOnThree:
    case kFourOnFour:
      return false;
    default:
      return true;
  }
}

bool Holds(const Title& title, int one, int two) {
  return (title.Holder == one && title.Partner == two) ||
         (title.Holder == two && title.Partner == one);
}

}  // namespace

Title* TitleAtStake(World& world, const Segment& segment) {
  if (segment.TitleName == "None") return nullptr;
  for (Title& title : world.Titles())
    if (title.Owner == world.PlayerUid() && title.Name == segment.TitleName.View()) return &title;
  return nullptr;
}

void PassTitle(SegmentRun& run, Title& title, int holder, int partner, std::string_view how) {
  Crown(run.World, title, holder, partner);
  run.Notes += ChampionText(run.World, title) + std::string(how) +
               TitleInProse(title.Name, title.Singles) + ". ";
}

void ChangeTitle(SegmentRun& run) {
  const Segment& segment = run.Segment;
  Title* title = TitleAtStake(run.World, segment);
  if (!title || IsDraw(segment) || !TakesTitles(segment)) return;
  if (title->Singles) {
    if (title->Holder != segment.Winner) PassTitle(run, *title, segment.Winner, 0, " won ");
    return;
  }
  const std::vector<int> pair = WinnersOf(segment);
  if (pair.size() == 2 && !Holds(*title, pair[0], pair[1]))
    PassTitle(run, *title, pair[0], pair[1], " won ");
}

}  // namespace grapplemont
