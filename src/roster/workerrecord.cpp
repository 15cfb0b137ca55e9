#include "roster/workerrecord.h"

#include <algorithm>
#include <functional>
#include <ranges>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/pastmatches.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

std::string RecordLine(const World& world, const MatchTally& tally) {
  const int matches = tally.Won + tally.Lost + tally.Drawn;
  const std::string house = PromotionInitials(world, tally.Promotion);
  std::string text = house == "None" ? "Elsewhere" : house;
  text += ": " + std::to_string(tally.Won) + " won, " + std::to_string(tally.Lost) + " lost, " +
          std::to_string(tally.Drawn) + " drawn";
  if (tally.ForTitles > 0) text += ", " + std::to_string(tally.ForTitles) + " for a Title";
  return text + ". Rated " + std::to_string(tally.Ratings / std::max(matches, 1)) + "% on average.";
}

FormLine LineFor(const HeldMatch& bout, int uid) {
  FormLine line{&bout, 0, {}, 0};
  const auto place =
      std::ranges::find(bout.Worker, uid, [](const Word& held) { return int(held); });
  if (bout.Winners > 0) line.Outcome = place - bout.Worker.begin() < bout.Winners ? 1 : -1;
  const bool isFirst = line.Outcome > 0 || (line.Outcome == 0 && bout.Worker[0] == uid);
  line.Against = (isFirst ? bout.Lost : bout.Won).Str();
  const int other = line.Outcome > 0 ? int(bout.Winners) : isFirst ? 1 : 0;
  if (other < static_cast<int>(bout.Worker.size()))
    line.Opponent = bout.Worker[static_cast<std::size_t>(other)];
  return line;
}

std::string MatchLine(const FormLine& line) {
  const HeldMatch& bout = *line.Match;
  const char* how = line.Outcome > 0 ? "beat " : line.Outcome < 0 ? "lost to " : "drew with ";
  std::string text = ShortDate(bout.On) + ": " + how + line.Against;
  if (bout.Title != "None") text += " for the " + bout.Title.Str();
  return text + ", " + std::to_string(bout.Rating) + "%.";
}

}  // namespace

std::vector<std::string> RecordLines(const World& world, const Worker& worker) {
  std::vector<std::string> lines;
  for (const MatchTally& tally : world.Tallies())
    if (tally.Worker == worker.Uid && tally.Worker != 0 && tally.Won + tally.Lost + tally.Drawn > 0)
      lines.push_back(RecordLine(world, tally));
  return lines;
}

std::vector<FormLine> FormOf(const World& world, const Worker& worker, int most) {
  std::vector<FormLine> form;
  for (const int number : std::views::reverse(MatchesWith(world, worker.Uid)))
    if (std::ssize(form) < most) form.push_back(LineFor(world.Bouts()[number], worker.Uid));
  return form;
}

std::string ShowNameOf(const World& world, const HeldMatch& match) {
  const int kind = match.IsEvent ? kPastEvent : kPastTv;
  for (int number = world.History().Count(); number >= 1; --number) {
    const HistoryEntry& show = world.History()[number];
    if (Day(show.On) < Day(match.On)) break;
    if (Day(show.On) == Day(match.On) && show.Kind == kind && show.Promotion == match.Promotion)
      return show.Name.Str();
  }
  return {};
}

FormSum SumOf(const std::vector<FormLine>& form) {
  FormSum sum;
  for (const FormLine& line : form) {
    ++(line.Outcome > 0 ? sum.Won : line.Outcome < 0 ? sum.Lost : sum.Drawn);
    sum.Mean += line.Match->Rating;
  }
  if (!form.empty()) sum.Mean /= static_cast<int>(form.size());
  return sum;
}

std::vector<std::string> LastMatchLines(const World& world, const Worker& worker, int most) {
  std::vector<std::string> lines;
  for (const FormLine& line : FormOf(world, worker, most)) lines.push_back(MatchLine(line));
  return lines;
}

std::vector<std::string> AwardLines(const World& world, const Worker& worker) {
  std::vector<std::string> lines;
  for (int number = world.Awards().Count(); number >= 1; --number) {
    const YearAward& award = world.Awards()[number];
    if (worker.Uid != 0 && (award.Worker == worker.Uid || award.Partner == worker.Uid))
      lines.push_back(std::string(AwardName(award.Kind)) + " " + std::to_string(YearOf(award.On)) +
                      ".");
  }
  return lines;
}

namespace {

const Career* CareerOf(const World& world, int uid) {
  for (const Career& career : world.Of<Career>())
    if (uid != 0 && career.Worker == uid) return &career;
  return nullptr;
}

}  // namespace

int ElectedIn(const World& world, int workerUid) {
  const Career* career = CareerOf(world, workerUid);
  return career ? int(career->Elected) : 0;
}

std::vector<std::string> TenureLines(const World& world, const Worker& worker) {
  const Career* career = CareerOf(world, worker.Uid);
  std::vector<const Tenure*> tenures;
  for (const Tenure& tenure : world.Of<Tenure>())
    if (career && tenure.Career == career->Number && tenure.Months > 0) tenures.push_back(&tenure);
  std::ranges::stable_sort(tenures, std::greater{},
                           [](const Tenure* tenure) { return Day(tenure->Last); });
  std::vector<std::string> lines;
  for (const Tenure* tenure : tenures) {
    const int matches = tenure->Won + tenure->Lost + tenure->Drawn;
    std::string line = tenure->Initials + ", " + MonthYear(tenure->First) + " to " +
                       MonthYear(tenure->Last) + ": " + Counted(matches, "match", "matches") +
                       ", " + std::to_string(tenure->Won) + " won";
    if (tenure->Reigns > 0) line += ", " + Counted(tenure->Reigns, "reign");
    lines.push_back(line + ".");
  }
  // What is kept with the first of each month is not the record of today beside it.
  const auto& totals = world.Of<TotalsState>();
  if (!lines.empty() && totals.Count() > 0)
    lines.push_back("Counted up to " + PlainDate(Day(totals[1].Counted) - std::chrono::days{1}) +
                    ".");
  return lines;
}

namespace {

constexpr std::string_view kAnd = " \\ ";  // between the short names of a pair without a name

bool IsTeamOf(const World& world, std::string_view team, int uid) {
  return std::ranges::any_of(world.Teams(), [&](const Team& held) {
    return held.Name == team && (held.Worker1 == uid || held.Worker2 == uid);
  });
}

bool IsOneOfPair(std::string_view holder, const Worker& worker) {
  const auto parts = holder.find(kAnd);
  if (parts == std::string_view::npos) return false;
  return worker.ShortName == holder.substr(0, parts) ||
         worker.ShortName == holder.substr(parts + kAnd.size());
}

/// Whether a line of the Title's past tells of them.
bool IsHis(const World& world, const Title& title, const Reign& reign, const Worker& worker) {
  if (reign.Holder == "None" || reign.Holder == kVacantHolder) return false;
  const bool lasts = &reign == &title.Reigns.front();
  if (lasts && title.Holder != 0) return title.Holder == worker.Uid || title.Partner == worker.Uid;
  if (title.Singles) return reign.Holder == worker.Name;
  return IsTeamOf(world, reign.Holder, worker.Uid) || IsOneOfPair(reign.Holder, worker);
}

std::string With(const Title& title, const Reign& reign) {
  return title.Singles ? "" : " as " + reign.Holder.Str();
}

std::string Days(Day won, Day lost) {
  const bool knowsWon = won > kNoTitleDate, knowsLost = lost > kNoTitleDate;
  if (!knowsLost) return knowsWon ? ", since " + PlainDate(won) : ", to this day";
  return knowsWon ? ", " + PlainDate(won) + " to " + PlainDate(lost) : ", until " + PlainDate(lost);
}

std::string Told(const World& world, const TitleReign& reign) {
  std::string text = reign.Title + (reign.Partner == 0 ? "" : " as " + reign.Holder.Str()) +
                     Days(reign.From, reign.Until);
  const int days = DaysOf(reign, world.Today());
  if (days >= 0) text += " (" + Counted(days, "day");
  if (reign.Defences > 0) text += (days >= 0 ? ", " : " (") + Counted(reign.Defences, "defence");
  return text + (days >= 0 || reign.Defences > 0 ? ")" : "");
}

}  // namespace

std::vector<const Title*> TitlesHeldBy(const World& world, int workerUid) {
  std::vector<const Title*> held;
  for (const Title& title : world.Titles())
    if (workerUid != 0 && (title.Holder == workerUid || title.Partner == workerUid))
      held.push_back(&title);
  return held;
}

std::vector<std::string> ReignsOf(const World& world, const Worker& worker) {
  std::vector<std::string> reigns;
  for (const TitleReign* reign : ReignsOfWorker(world, worker.Uid))
    reigns.push_back(Told(world, *reign));
  if (world.Reigns().Count() > 0) return reigns;
  for (const Title& title : world.Titles())
    for (const Reign& reign : title.Reigns)
      if (IsHis(world, title, reign, worker))
        reigns.push_back(title.Name + With(title, reign) + Days(reign.Won, reign.Lost));
  return reigns;
}

}  // namespace grapplemont
