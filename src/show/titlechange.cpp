#include "show/titlechange.h"

#include "show/overchange.h"

#include <algorithm>
#include <iterator>

#include "report/cast.h"
#include "show/ratings.h"
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

namespace {

/// A Title whose image lies further than this from a champion's Over pulls it along.
constexpr int kPull = 10;

int StepTowards(int image, const Worker& champion) {
  return image > champion.Over + kPull ? 1 : image < champion.Over - kPull ? -1 : 0;
}

int ImageChange(int target, int image) {
  int change = 0;
  // Whatever falls by 4 also passes the test for 2, which has the last word.
  if (target + 12 < image) change = -4;
  if (target + 7 < image) change = -2;
  if (target > image) change = 2;
  if (target > image + 10) change = 4;
  return change;
}

void Tell(SegmentRun& run, const Title& title, std::string_view what) {
  run.Notes += "The " + title.Name.Str() + std::string(what);
}

}  // namespace

void MoveTitleImage(SegmentRun& run) {
  Title* title = TitleAtStake(run.World, run.Segment);
  if (!title) return;
  const int image = title->Image;
  if (title->Holder == 0) {
    title->Image = Score::Floor(image * 3, 4);
    Tell(run, *title, " title has lost image.");
    return;
  }
  int sum = run.Overall, counted = 1;
  for (const int uid : {int(title->Holder), title->Singles ? 0 : int(title->Partner)}) {
    Worker* champion = run.World.FindWorker(uid);
    if (!champion) continue;
    sum += champion->Over;
    ++counted;
    ChangeOverAndTell(run, *champion, StepTowards(image, *champion));
  }
  const int change = ImageChange(Score::Floor(sum, counted), image);
  title->Image += change;
  if (change > 0)
    Tell(run, *title,
         title->Singles ? " title has gained in image." : " titles have gained in image.");
  if (change < 0) Tell(run, *title, " title has lost image.");
}

}  // namespace grapplemont
