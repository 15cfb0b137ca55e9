#include "show/consequences.h"
#include "show/overreport.h"
#include "show/titlechange.h"

namespace grapplemont {

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
