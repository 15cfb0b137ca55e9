#include "halls/yearbook.h"

#include <algorithm>
#include <set>

#include "halls/hall.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

constexpr std::size_t kMovesKept = 5, kNewcomersKept = 5, kRetiredKept = 8;

/// Writes what only the end of a year can tell.
class YearWriter {
 public:
  /// The year as it is on the morning of `until`.
  YearWriter(Ledger& ledger, Day until)
      : ledger_(ledger), world_(ledger.Of()), until_(until), year_(YearOf(world_.Today())) {}

  void Write() {
    WriteMoves();
    WriteCareers();
    WriteRoster();
    WriteChampions();
    for (const Promotion& promotion : world_.Promotions()) WriteStanding(promotion);
    for (const HallMember& member : world_.Of<HallMember>())
      if (YearOf(member.On) == year_) {
        YearLine line = NewLine(kYearElected, 0, PointsOf(member), member.Name.View());
        line.Initials = member.Initials;
        line.Career = int(member.Career);
        ledger_.AddLine(line);
      }
  }

 private:
  YearLine NewLine(YearLineKind kind, int promotion, int number, std::string_view who,
                   std::string_view what = {}) const {
    return ledger_.NewLine(kind, year_, promotion, number, who, what);
  }

  void OfferWorker(YearLineKind kind, const Career& career, int number, int other,
                   std::size_t most) {
    const Worker* worker = world_.FindWorker(career.Worker);
    YearLine line = NewLine(kind, worker ? int(worker->Employer) : 0, number, career.Name.View());
    line.Other = other;
    line.Career = int(career.Number);
    ledger_.OfferLine(line, most);
  }

  void WriteMoves() {
    for (const YearEnd& before : world_.YearEnds()) {
      const Worker* worker = world_.FindWorker(before.Worker);
      const int place = ledger_.PlaceOfUid(before.Worker);
      if (!worker || worker->Employer == 0 || place < 0) continue;
      const Career& career = ledger_.Careers[static_cast<std::size_t>(place)];
      const int change = worker->Over - before.Over;
      if (change > 0) OfferWorker(kYearRise, career, change, worker->Over, kMovesKept);
      if (change < 0) OfferWorker(kYearFall, career, -change, worker->Over, kMovesKept);
    }
  }

  bool IsOfTheYear(Day day) const { return day > Day(ledger_.State.Since) && YearOf(day) == year_; }

  void WriteCareers() {
    const std::vector<int> points = PointsOfAll(ledger_);
    for (std::size_t i = 0; i < ledger_.Careers.size(); ++i) {
      const Career& career = ledger_.Careers[i];
      const Worker* worker = world_.FindWorker(career.Worker);
      if (worker && IsOfTheYear(career.First))
        OfferWorker(kYearDebut, career, worker->Over, worker->Age, kNewcomersKept);
      if (IsOfTheYear(career.Last)) OfferWorker(kYearRetired, career, points[i], 0, kRetiredKept);
    }
  }

  /// Who came to the player and who went.
  void WriteRoster() {
    const HouseKey own = ledger_.HouseOf(world_.PlayerUid());
    for (const Tenure& tenure : ledger_.Tenures) {
      const int place = ledger_.PlaceOf(tenure.Career);
      if (HouseKey{tenure.Promotion, tenure.Initials.Str()} != own || place < 0) continue;
      const Career& career = ledger_.Careers[static_cast<std::size_t>(place)];
      const Worker* worker = world_.FindWorker(career.Worker);
      const bool there = worker && worker->Employer == world_.PlayerUid();
      const int over = worker ? int(worker->Over) : 0;
      if (there && IsOfTheYear(tenure.First)) Note(kYearJoined, career, over);
      if (!there && YearOf(tenure.Last) == year_) Note(kYearLeft, career, over);
    }
  }

  void Note(YearLineKind kind, const Career& career, int over) {
    YearLine line = NewLine(kind, world_.PlayerUid(), over, career.Name.View());
    line.Career = int(career.Number);
    ledger_.AddLine(line);
  }

  /// The reigns themselves may be dropped one day.
  void WriteChampions() {
    for (const TitleReign& reign : world_.Reigns()) {
      if (IsVacancy(reign) || reign.End != kReignLasts) continue;
      YearLine line = NewLine(kYearChampion, reign.Owner, DaysOf(reign, until_),
                              reign.Holder.View(), reign.Title.View());
      line.Initials = reign.Initials;
      const int place = reign.Partner == 0 ? ledger_.PlaceOfUid(reign.Worker) : -1;
      if (place >= 0) line.Career = int(ledger_.Careers[static_cast<std::size_t>(place)].Number);
      ledger_.AddLine(line);
    }
  }

  void WriteStanding(const Promotion& promotion) {
    const bool isPlayers = promotion.Uid == world_.PlayerUid();
    YearLine line = NewLine(isPlayers ? kYearPlayer : kYearStanding, promotion.Uid, promotion.Size,
                            promotion.Name.View(), Dollars(promotion.Money));
    line.Other = int(promotion.Image);
    ledger_.AddLine(line);
  }

  Ledger& ledger_;
  const World& world_;
  Day until_;
  int year_;
};

/// How the lines of a kind stand on the page.
struct SectionRow {
  YearLineKind Kind;
  const char* Title;
  std::string (*Figure)(const YearLine&);
  std::string (*What)(const YearLine&);
  bool IsSorted = false;  // by the number, the highest first
};

std::string Percentage(const YearLine& line) {
  return std::to_string(line.Number) + "%";
}
std::string House(const YearLine& line) {
  return line.Initials.Str();
}
std::string HouseAndWhat(const YearLine& line) {
  return line.Initials.Str() + (line.What.View().empty() ? "" : ", " + line.What.Str());
}
std::string OverAfter(const YearLine& line) {
  return "Over " + std::to_string(line.Other) +
         (line.Initials.View().empty() ? "" : ", " + line.Initials.Str());
}
std::string SizeOf(const YearLine& line) {
  return std::string(Says(kSizes, line.Number));
}
std::string ImageAndMoney(const YearLine& line) {
  return "Image " + std::to_string(line.Other) + "%, " + line.What.Str();
}

constexpr const char* kChampions = "Champions at the end";
constexpr SectionRow kSections[] = {
    {kYearPlayer, "Your promotion", SizeOf, ImageAndMoney},
    {kYearChampion, kChampions,
     [](const YearLine& line) {
       return line.Number < 0 ? std::string("From before the game") : Counted(line.Number, "day");
     },
     [](const YearLine& line) { return line.What + " (" + line.Initials.Str() + ")"; }},
    {kYearMatch, "Best matches", Percentage, HouseAndWhat, true},
    {kYearShow, "Your best shows", Percentage, HouseAndWhat, true},
    {kYearGate, "Biggest gates",
     [](const YearLine& line) { return Counted(line.Number, "person", "people"); }, HouseAndWhat,
     true},
    {kYearElected, "Hall of fame",
     [](const YearLine& line) { return Counted(line.Number, "point"); }, House},
    {kYearRise, "Biggest rises", [](const YearLine& line) { return "+" + Percentage(line); },
     OverAfter, true},
    {kYearFall, "Biggest falls", [](const YearLine& line) { return "-" + Percentage(line); },
     OverAfter, true},
    {kYearDebut, "Newcomers",
     [](const YearLine& line) { return "Over " + std::to_string(line.Number); },
     [](const YearLine& line) { return line.Initials + ", " + std::to_string(line.Other); }, true},
    {kYearJoined, "Who came to you",
     [](const YearLine& line) { return "Over " + std::to_string(line.Number); }, House},
    {kYearLeft, "Who went",
     [](const YearLine& line) {
       return line.Number == 0 ? std::string() : "Over " + std::to_string(line.Number);
     },
     [](const YearLine&) { return std::string(); }},
    {kYearRetired, "Retired", [](const YearLine& line) { return Counted(line.Number, "point"); },
     [](const YearLine&) { return std::string(); }, true},
    {kYearFounded, "Promotions founded", SizeOf, House},
    {kYearClosed, "Promotions closed", [](const YearLine&) { return std::string(); }, HouseAndWhat},
    {kYearRisen, "Risen a size class", SizeOf, House},
    {kYearFallen, "Fallen a size class", SizeOf, House},
    {kYearStanding, "How the others stand", SizeOf, ImageAndMoney},
};

/// Pages that were written before champions stood on them.
YearSection ChampionsOf(const World& world, int year) {
  const Day end{std::chrono::year{year + 1} / 1 / 1};
  YearSection section{kChampions, {}};
  for (const TitleReign& reign : world.Reigns()) {
    const bool over = reign.End != kReignLasts && Day(reign.Until) < end;
    if (IsVacancy(reign) || Day(reign.From) >= end || over) continue;
    const auto held = (end - Day(reign.From)).count();
    section.Rows.push_back({reign.Holder.Str(),
                            Day(reign.From) <= kNoTitleDate ? "" : Counted(held, "day"),
                            reign.Title + " (" + reign.Initials.Str() + ")",
                            reign.Partner == 0 ? int(reign.Worker) : 0});
  }
  return section;
}

YearSection AwardRowsOf(const World& world, int year) {
  YearSection section{"Awards", {}};
  for (const YearAward& award : world.Awards())
    if (YearOf(award.On) == year)
      section.Rows.push_back({award.Winner.Str(), std::string(AwardName(award.Kind)),
                              award.For.Str(), award.Partner == 0 ? int(award.Worker) : 0});
  return section;
}

YearSection SectionOf(const Ledger& ledger, const SectionRow& kind, int year) {
  std::vector<const YearLine*> lines;
  for (const YearLine& line : ledger.Lines)
    if (line.Year == year && line.Kind == kind.Kind) lines.push_back(&line);
  if (kind.IsSorted)
    std::ranges::stable_sort(lines, std::greater{},
                             [](const YearLine* line) { return int(line->Number); });
  YearSection section{kind.Title, {}};
  for (const YearLine* line : lines) {
    const int place = ledger.PlaceOf(line->Career);
    section.Rows.push_back(
        {line->Who.Str(), kind.Figure(*line), kind.What(*line),
         place < 0 ? 0 : int(ledger.Careers[static_cast<std::size_t>(place)].Worker)});
  }
  return section;
}

}  // namespace

void CloseTheYear(World& world) {
  UpdateReigns(world);
  if (world.Session.CountsNoPast) return;
  const Day newYear = world.Today() + std::chrono::days{1};
  Ledger ledger(world);
  ledger.CountUntil(newYear);
  ledger.CountYear();
  VoteHall(world, ledger);
  YearWriter(ledger, newYear).Write();
  ledger.Prune();
  ledger.Keep(world);
}

std::vector<int> YearsOfBook(const Ledger& ledger) {
  std::set<int, std::greater<>> years = {YearOf(ledger.Of().Today())};
  for (const YearLine& line : ledger.Lines) years.insert(line.Year);
  return {years.begin(), years.end()};
}

std::vector<YearSection> PageOfYear(const Ledger& ledger, int year) {
  std::vector<YearSection> page;
  const auto add = [&](YearSection section) {
    if (!section.Rows.empty()) page.push_back(std::move(section));
  };
  Ledger now = ledger;
  const bool runs = year == YearOf(ledger.Of().Today()) &&
                    std::ranges::none_of(ledger.Lines, [&](const YearLine& line) {
                      return line.Year == year && line.Kind == kYearPlayer;
                    });
  if (runs) YearWriter(now, ledger.Of().Today()).Write();
  for (const SectionRow& kind : kSections) {
    YearSection section = SectionOf(now, kind, year);
    if (kind.Kind != kYearChampion) {
      add(std::move(section));
      continue;
    }
    if (runs) section.Title = "Champions now";
    add(section.Rows.empty() && !runs ? ChampionsOf(ledger.Of(), year) : std::move(section));
    add(AwardRowsOf(ledger.Of(), year));
  }
  return page;
}

namespace {

/// What the first rows of a section tell: "{who}", "{figure}" and "{what}" stand for the row's.
struct StoryRow {
  const char* Section;
  const char* Says;
  const char* SoFar = nullptr;  // while the year runs, where that reads otherwise
};
constexpr StoryRow kStory[] = {
    {"Your promotion", "{who} was {figure} when it ended. {what}.", "{who} is {figure}. {what}."},
    {"Awards", "{figure}: {who}."},
    {"Best matches", "The best match anywhere was rated {figure}: {who} ({what})."},
    {"Biggest gates", "Nothing drew more than {who}, seen by {figure} ({what})."},
    {"Hall of fame", "{who} entered the hall of fame with {figure}."},
    {"Biggest rises", "Nobody rose further than {who} ({figure})."},
    {"Biggest falls", "Nobody fell deeper than {who} ({figure})."},
    {"Newcomers", "The newcomer to watch was {who}.", "The newcomer to watch is {who}."},
    {"Retired", "{who} left the business."},
    {"Promotions founded", "{who} was founded."},
    {"Promotions closed", "{who} closed."},
};

}  // namespace

std::string StoryOfYear(const std::vector<YearSection>& page, int year, bool isOver) {
  std::string story;
  for (const StoryRow& line : kStory) {
    const auto section =
        std::ranges::find(page, std::string_view(line.Section), &YearSection::Title);
    if (section == page.end()) continue;
    const YearRow& row = section->Rows.front();
    const char* says = isOver || !line.SoFar ? line.Says : line.SoFar;
    story += (story.empty() ? "" : " ") + FillHoles(says, [&](std::string_view slot) {
               return slot == "who" ? row.Who : slot == "figure" ? row.Figure : row.What;
             });
  }
  return story.empty() ? "Nothing is written of " + std::to_string(year) + "." : story;
}

}  // namespace grapplemont
