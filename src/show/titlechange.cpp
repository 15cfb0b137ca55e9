#include "show/titlechange.h"

#include "report/cast.h"
#include "report/stages.h"
#include "show/nightbook.h"
#include "show/overchange.h"
#include "storylines/titles.h"

namespace grapplemont {

namespace {

bool TakesTitles(const Segment& segment) {
  return segment.Style != kThreeOnThree && segment.Style != kFourOnFour && PassesTitles(segment);
}

/// A Title whose image lies further than this from a champion's Over pulls it along.
constexpr int kPull = 10;
constexpr std::string_view kHasLost = " title has lost image.";

int StepTowards(int image, const Worker& champion) {
  return image > champion.Over + kPull ? 1 : image < champion.Over - kPull ? -1 : 0;
}

int ImageChange(int target, int image) {
  int change = 0;
  // Whatever falls by 4 also passes the test for 2, which has the last word.
  if (target + 12 < image) change = -kTitleImageLeap;
  if (target + 7 < image) change = -kTitleImageStep;
  if (target > image) change = kTitleImageStep;
  if (target > image + 10) change = kTitleImageLeap;
  return change;
}

void Tell(SegmentRun& run, const Title& title, std::string_view what) {
  run.Notes += "The " + title.Name.Str() + std::string(what);
}

const Title* StakeOf(const World& world, const Segment& segment) {
  if (segment.TitleName == "None") return nullptr;
  for (const Title& title : world.Titles())
    if (title.Owner == world.PlayerUid() && title.Name == segment.TitleName.View()) return &title;
  return nullptr;
}

}  // namespace

Title* TitleAtStake(World& world, const Segment& segment) {
  const Title* title = StakeOf(world, segment);
  return title ? &world.Titles()[world.Titles().NumberOf(*title)] : nullptr;
}

bool AreChampions(const Title& title, int one, int other) {
  return (title.Holder == one && title.Partner == other) ||
         (title.Holder == other && title.Partner == one);
}

void PassTitle(SegmentRun& run, Title& title, int holder, int partner, std::string_view how) {
  const std::string former = title.Holder == 0 ? std::string() : ChampionText(run.World, title);
  Crown(run.World, title, holder, partner);
  NoteFact(run, {kNoteTitle, title.Name.Str(), holder}, 0, title.Image,
           ChampionText(run.World, title) +
               (former.empty() ? " took what was vacant" : " from " + former));
  run.Notes += ChampionText(run.World, title) + std::string(how) +
               TitleInProse(title.Name, title.Singles) + ". ";
}

std::vector<int> NewChampions(const World& world, const Segment& segment) {
  const Title* title = StakeOf(world, segment);
  if (!title || IsDraw(segment) || !TakesTitles(segment)) return {};
  const std::vector<int> winners =
      title->Singles ? std::vector<int>{segment.Winner} : WinnersOf(segment);
  const bool stays = title->Singles
                         ? title->Holder == winners[0]
                         : winners.size() != 2 || AreChampions(*title, winners[0], winners[1]);
  return stays ? std::vector<int>() : winners;
}

void ChangeTitle(SegmentRun& run) {
  const std::vector<int> won = NewChampions(run.World, run.Segment);
  if (won.empty()) return;
  PassTitle(run, *TitleAtStake(run.World, run.Segment), won[0], won.size() > 1 ? won[1] : 0,
            " won ");
}

void MoveTitleImage(SegmentRun& run) {
  Title* title = TitleAtStake(run.World, run.Segment);
  if (!title) return;
  const int image = title->Image;
  if (title->Holder == 0) {
    title->Image = Score::Floor(image * 3, 4);
    NoteStep(run, kNoteTitleImage, title->Name.Str(), title->Image - image, title->Image,
             "nobody holds it");
    return Tell(run, *title, kHasLost);
  }
  int sum = run.Overall, counted = 1;
  for (const int uid : {int(title->Holder), title->Singles ? 0 : int(title->Partner)}) {
    Worker* champion = run.World.FindWorker(uid);
    if (!champion) continue;
    sum += champion->Over;
    ++counted;
    ChangeOverAndTell(run, *champion, StepTowards(image, *champion),
                      "the image of the Title, " + std::to_string(image));
  }
  const int change = ImageChange(Score::Floor(sum, counted), image);
  title->Image += change;
  // That it was at stake is told, too, where its image stays.
  NoteFact(run, {kNoteTitleImage, title->Name.Str()}, title->Image - image, title->Image,
           "mean of the match and its champion " + std::to_string(Score::Floor(sum, counted)));
  if (change > 0)
    Tell(run, *title,
         title->Singles ? " title has gained in image." : " titles have gained in image.");
  if (change < 0) Tell(run, *title, kHasLost);
}

}  // namespace grapplemont
