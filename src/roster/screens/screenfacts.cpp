#include "roster/screens/frmWorker.h"

#include <algorithm>
#include <span>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/nameindex.h"
#include "roster/moods.h"
#include "roster/workerfacts.h"
#include "roster/workerform.h"
#include "roster/workerrecord.h"
#include "storylines/lineages.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;
using Paragraphs = std::vector<ui::Report::Paragraph>;

constexpr std::size_t kAtLeft =
    3;  // groups that everybody has: themselves, their work, their skill

Paragraphs Told(std::span<const FactGroup> groups) {
  Paragraphs words;
  for (const FactGroup& group : groups) {
    words.push_back({Style::Strong, group.Heading});
    for (const std::string& line : group.Lines) words.push_back({Style::Line, line});
  }
  return words;
}

/// Short sentences in a row are one paragraph: a card beside a list is low.
Paragraphs RunTogether(const Paragraphs& words) {
  Paragraphs fewer;
  for (const auto& [as, text, leads] : words) {
    const bool goesOn = !fewer.empty() && as == Style::Line && fewer.back().As == Style::Line &&
                        fewer.back().Words.ends_with('.') && text.ends_with('.');
    if (goesOn)
      fewer.back().Words += " " + text;
    else
      fewer.push_back({as, text});
  }
  return fewer;
}

/// The first group's heading is the title.
Paragraphs Titled(std::span<const FactGroup> facts) {
  Paragraphs words = Told(facts);
  words.front().As = Style::Heading;
  return words;
}
Paragraphs WithoutName(std::span<const FactGroup> facts) {
  Paragraphs words = Told(facts);
  words.erase(words.begin());
  return words;
}

}  // namespace

void WriteWorkerPage(ui::Report& page, const World& world, const Worker* worker,
                     const std::string& nobody) {
  if (!worker) return page.Write({{Style::Muted, nobody}});
  page.Write(RunTogether(Titled(WorkerFacts(world, *worker))));
}

void WriteUnderName(ui::Report& page, const World& world, const Worker& worker) {
  page.Write(RunTogether(WithoutName(WorkerFacts(world, worker))));
}
void WriteUnderName(ui::Report& page, const World& world, const Staff& staff) {
  page.Write(WithoutName(StaffFacts(world, staff)));
}

void WriteWorkerPages(ui::Report& left, ui::Report& right, const World& world, const Worker* worker,
                      const std::string& nobody) {
  right.Write(Paragraphs());
  if (!worker) return left.Write({{Style::Muted, nobody}});
  const std::vector<FactGroup> facts = WorkerFacts(world, *worker);
  const std::span<const FactGroup> all = facts;
  left.Write(WithoutName(all.first(kAtLeft)));
  right.Write(Told(all.subspan(kAtLeft)));
}

namespace {

/// One group of the facts, without its heading.
Paragraphs LinesUnder(const World& world, const Worker& worker, std::string_view heading) {
  Paragraphs words;
  for (const FactGroup& group : WorkerFacts(world, worker))
    if (group.Heading == heading)
      for (const std::string& line : group.Lines) words.push_back({Style::Line, line});
  return RunTogether(words);
}

}  // namespace

void WriteContract(ui::Report& page, const World& world, const Worker& worker) {
  Paragraphs words = LinesUnder(world, worker, "Contract");
  words.push_back({Style::Muted, AskingLine(world, worker)});
  page.Write(std::move(words));
}

void WriteMood(ui::Report& page, const World& world, const Worker& worker) {
  Paragraphs words;
  const MoodStory story = MoodStoryOf(world, worker);
  const std::string today = std::to_string(worker.Morale);
  if (!WorksForPlayer(world, worker)) {
    words.push_back({Style::Muted, "What moves morale is kept of your own people."});
  } else if (story.Steps.empty()) {
    words.push_back({Style::Muted, "Nothing has moved morale this month or the last."});
  } else {
    words.push_back({Style::Strong, "Morale " + today});
    words.push_back(
        {Style::Line, std::to_string(story.Before) + "  before " + PlainDate(story.Since)});
    for (const MoodStep& step : story.Steps)
      words.push_back({Style::Line, (step.Change > 0 ? "+" : "") + std::to_string(step.Change) +
                                        "  " + step.Why});
    words.push_back({Style::Line, "= " + today + " today"});
  }
  for (auto& line : LinesUnder(world, worker, "Character")) words.push_back(std::move(line));
  page.Write(std::move(words));
}

namespace {

std::string LengthOf(const TitleReign& reign, Day today) {
  const int days = DaysOf(reign, today);
  std::string text = days < 0 ? "" : Counted(days, "day");
  if (reign.Defences > 0) text += (text.empty() ? "" : ", ") + Counted(reign.Defences, "defence");
  return text;
}

void TellReign(Paragraphs& words, std::string_view title, const char* how,
               const std::string& length, Day from) {
  words.push_back({Style::Strong, std::string(title)});
  words.push_back({Style::Muted, how + (length.empty() ? "" : ": " + length) + ", from " +
                                     (from > kNoTitleDate ? PlainDate(from) : "before the game")});
}

}  // namespace

void WriteTitles(ui::Report& page, const World& world, const Worker& worker) {
  Paragraphs words;
  const auto reigns = ReignsOfWorker(world, worker.Uid);
  for (const Title* title : TitlesHeldBy(world, worker.Uid)) {
    const auto reign = std::ranges::find_if(reigns, [&](const TitleReign* past) {
      return past->End == kReignLasts && past->Title == title->Name;
    });
    TellReign(words, title->Name, "Holds it",
              reign == reigns.end() ? "" : LengthOf(**reign, world.Today()), title->Reigns[0].Won);
  }
  for (const TitleReign* reign : reigns)
    if (reign->End != kReignLasts)
      TellReign(words, reign->Title, "Held it", LengthOf(*reign, world.Today()), reign->From);
  if (words.empty())
    words.push_back(
        {Style::Muted, "No Title yet. One that is won on a show, or given, stands here."});
  page.Write(std::move(words));
}

void WriteStaffPage(ui::Report& page, const World& world, const Staff* staff,
                    const std::string& nobody) {
  if (!staff) return page.Write({{Style::Muted, nobody}});
  page.Write(Titled(StaffFacts(world, *staff)));
}

namespace {

/// A page asks for the names in each of its lines, between two events, when none can change.
struct PageNames {
  NameIndex Index;
  const World* Of = nullptr;
  unsigned Moment = 0;

  std::vector<NameSpan> Find(const World& world, unsigned moment, std::string_view text) {
    const bool known = moment > 0 && moment == Moment && Of == &world;
    Moment = moment;
    Of = &world;
    return Index.Find(world, text, known);
  }
};

std::vector<ui::Link> LinksOf(Game& game, PageNames& names, std::string_view text) {
  std::vector<ui::Link> links;
  if (!game.HasWorld()) return links;
  for (const NameSpan& name : names.Find(game.World(), game.Desk().Moment(), text)) {
    const auto& page = name.Of == NameSpan::Kind::Worker ? game.OpenWorker : game.OpenPromotion;
    if (page) links.push_back({name.From, name.Length, [&page, uid = name.Uid] { page(uid); }});
  }
  return links;
}

}  // namespace

void ConnectRoster(Game& game) {
  game.OpenWorker = [&game](int uid) { OpenWorkerPage(game, uid); };
  game.Desk().FindLinks = [&game, names = std::make_shared<PageNames>()](std::string_view text) {
    return LinksOf(game, *names, text);
  };
}

}  // namespace grapplemont
