#include "roster/workerrecord.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/modWresCheck.h"

namespace grapplemont {

namespace {

std::string Number(int number) {
  return std::to_string(number);
}

std::string RecordLine(const World& world, const MatchTally& tally) {
  const int matches = tally.Won + tally.Lost + tally.Drawn;
  std::string text = PromotionInitials(world, tally.Promotion) == "None"
                         ? "Elsewhere"
                         : PromotionInitials(world, tally.Promotion);
  text += ": " + Number(tally.Won) + " won, " + Number(tally.Lost) + " lost, " +
          Number(tally.Drawn) + " drawn";
  if (tally.ForTitles > 0) text += ", " + Number(tally.ForTitles) + " for a Title";
  return text + ". Rated " + Number(tally.Ratings / std::max(matches, 1)) + "% on average.";
}

std::string MatchLine(const HeldMatch& bout, int uid) {
  const int outcome = OutcomeFor(bout, uid);
  const bool isFirst = outcome > 0 || (outcome == 0 && bout.Worker[0] == uid);
  const char* how = outcome > 0 ? "beat " : outcome < 0 ? "lost to " : "drew with ";
  std::string text = ShortDate(bout.On) + ": " + how + (isFirst ? bout.Lost : bout.Won).Str();
  if (!(bout.Title == "None")) text += " for the " + bout.Title.Str();
  return text + ", " + Number(bout.Rating) + "%.";
}

}  // namespace

bool WasIn(const HeldMatch& bout, int workerUid) {
  return workerUid != 0 &&
         std::find(bout.Worker.begin(), bout.Worker.end(), workerUid) != bout.Worker.end();
}

int OutcomeFor(const HeldMatch& bout, int workerUid) {
  if (bout.Winners <= 0) return 0;
  const auto place = std::find(bout.Worker.begin(), bout.Worker.end(), workerUid);
  return place - bout.Worker.begin() < bout.Winners ? 1 : -1;
}

std::vector<std::string> RecordLines(const World& world, const Worker& worker) {
  std::vector<std::string> lines;
  for (const MatchTally& tally : world.Tallies())
    if (tally.Worker == worker.Uid && tally.Worker != 0 && tally.Won + tally.Lost + tally.Drawn > 0)
      lines.push_back(RecordLine(world, tally));
  return lines;
}

std::vector<std::string> LastMatchLines(const World& world, const Worker& worker, int most) {
  std::vector<std::string> lines;
  for (int number = world.Bouts().Count(); number >= 1 && static_cast<int>(lines.size()) < most;
       --number)
    if (WasIn(world.Bouts()[number], worker.Uid))
      lines.push_back(MatchLine(world.Bouts()[number], worker.Uid));
  return lines;
}

std::vector<std::string> AwardLines(const World& world, const Worker& worker) {
  std::vector<std::string> lines;
  for (int number = world.Awards().Count(); number >= 1; --number) {
    const YearAward& award = world.Awards()[number];
    if (worker.Uid != 0 && (award.Worker == worker.Uid || award.Partner == worker.Uid))
      lines.push_back(std::string(AwardName(award.Kind)) + " " + Number(YearOf(award.On)) + ".");
  }
  return lines;
}

}  // namespace grapplemont
