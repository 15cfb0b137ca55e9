#include "booking/debuts.h"
#include "booking/screens/bookingscreens.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

using Paragraph = ui::Report::Paragraph;
using Style = ui::Report::Style;

struct StatRow {
  const char* Name;
  Percent Worker::*Value;
};
constexpr StatRow kSkills[] = {
    {"Over", &Worker::Over},           {"Brawl", &Worker::Brawl},
    {"Technical", &Worker::Technical}, {"Speed", &Worker::Speed},
    {"Stiffness", &Worker::Stiff},     {"Selling", &Worker::Sell},
    {"Charisma", &Worker::Charisma},   {"Attitude", &Worker::Attitude},
    {"Behaviour", &Worker::Behaviour}, {"Condition", &Worker::Condition},
    {"Morale", &Worker::Morale},
};

struct Trait {
  const char* Words;
  Flag Worker::*Has;
};
constexpr Trait kTraits[] = {
    {"takes high spots", &Worker::HighSpots},
    {"can give interviews", &Worker::Speaks},
    {"has the look of a superstar", &Worker::SuperstarLook},
    {"can announce", &Worker::Announcer},
    {"has creative control", &Worker::CreativeControl},
    {"a turn is being prepared", &Worker::TurnPending},
};

std::string TraitsOf(const Worker& worker) {
  std::vector<std::string> traits;
  for (const Trait& trait : kTraits)
    if (worker.*trait.Has) traits.emplace_back(trait.Words);
  std::string text = Joined(traits);
  if (!text.empty()) text[0] = static_cast<char>(text[0] - 'a' + 'A');
  return text.empty() ? text : text + ".";
}

std::string FinishersOf(const Worker& worker) {
  std::vector<std::string> finishers;
  for (const int slot : {1, 2}) {
    const auto& name = slot == 1 ? worker.Finisher1 : worker.Finisher2;
    if (name == "None" || name.View().empty()) continue;
    finishers.push_back(name.Str() + " (" +
                        std::string(FinisherText(FinisherTypeOf(worker, slot))) + ")");
  }
  return Joined(finishers);
}

std::string TitlesHeldBy(const World& world, const Worker& worker) {
  std::vector<std::string> names;
  for (const Title& title : world.Titles())
    if (title.Holder == worker.Uid || title.Partner == worker.Uid)
      names.push_back(title.Name.Str());
  return Joined(names);
}

std::vector<Paragraph> WordsOn(const World& world, const Worker& worker) {
  const Worker* manager = ManagerOf(world, worker);
  std::vector<Paragraph> told{
      {Style::Strong, worker.Name.Str()},
      {Style::Muted, std::to_string(worker.Age) + ", " +
                         std::string(worker.Weight == "L" ? "lightweight" : "heavyweight") + ", " +
                         std::string(DispositionText(worker.Disposition))},
      {Style::Line, std::string(PositionText(worker.Position)) + ", " +
                        (worker.Employer == 0 ? std::string("on the free market")
                                              : PromotionName(world, worker.Employer))},
      {Style::Line, StatusLine(worker)}};
  const std::pair<const char*, std::string> facts[] = {
      {"Finishers: ", FinishersOf(worker)},
      {"Manager: ", manager ? manager->Name.Str() : ""},
      {"Stable: ", worker.Stable == "None" ? "" : worker.Stable.Str()},
      {"Titles: ", TitlesHeldBy(world, worker)},
      {"", TraitsOf(worker)}};
  for (const auto& [label, fact] : facts)
    if (!fact.empty()) told.push_back({Style::Line, label + fact});
  return told;
}

/// Somebody's numbers and what is worth knowing beside them; of nobody neither.
void ShowNumbers(const World& world, const Worker* worker, ui::ListBox& stats, ui::Report& words) {
  std::vector<ui::ListBox::Row> rows;
  for (const StatRow& skill : kSkills)
    if (worker)
      rows.push_back(
          {{skill.Name, ui::Cell(int(worker->*skill.Value))}, static_cast<int>(rows.size()) + 1});
  stats.Fill(std::move(rows));
  words.Write(worker ? WordsOn(world, *worker) : std::vector<Paragraph>());
}

/// Anybody's numbers at a glance.
class frmQuickStat : public GameScreen {
 public:
  explicit frmQuickStat(Game& game, int workerUid = 0)
      : GameScreen(game, "frmQuickStat", "Stats"), first_(workerUid) {
    lstwres.EmptyText = "Nobody is here.";
    lststats.EmptyText = "Choose somebody to see their numbers.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("Who", {chkall, ui::Grow(lstwres)}).Grow(3),
                               ui::Group("Numbers", {ui::Grow(lststats)}).Grow(2),
                               ui::Group("", {ui::Grow(txtworker)}).Grow(3)}),
                  &lblfacts);
  }

  void Load() override {
    const Worker* wanted = world().FindWorker(first_);
    chkall.Checked = wanted && wanted->Employer != world().PlayerUid();
    ShowPeople();
    lstwres.Select(lstwres.Count() > 0 ? 1 : 0);
    if (wanted) lstwres.SelectKey(first_);
    ShowWorker();
  }
  void Return() override {
    ShowPeople();
    ShowWorker();
  }

 private:
  std::vector<const Worker*> People() {
    std::vector<const Worker*> people;
    for (const Worker& worker : world().Workers())
      if (worker.Uid != 0 && (chkall.Checked || WorksForPlayer(world(), worker)))
        people.push_back(&worker);
    SortByOver(people);
    return people;
  }

  void ShowPeople() {
    FillShort(lstwres, People());
    lblfacts.Text =
        Counted(lstwres.Count(), "worker") + (chkall.Checked ? " in the world" : " of yours");
  }

  void ShowWorker() {
    ShowNumbers(world(), world().FindWorker(lstwres.Key()), lststats, txtworker);
  }

  using K = ui::ColumnKind;
  int first_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::CheckBox chkall{*this, "chkall", "Everybody in the world", false, [this] { Return(); }};
  ui::ListBox lstwres{*this, "lstwres", WithFaces(world(), ShortColumns()),
                      &frmQuickStat::ShowWorker};
  ui::ListBox lststats{*this, "lststats", {{"Skill", K::Text, 2}, {"", K::Percent, 2}}};
  ui::Report txtworker{*this, "txtworker"};
};

/// Who waits for their first appearance, and the ways to it.
class frmDebut : public GameScreen {
 public:
  explicit frmDebut(Game& game, bool isEvent = false)
      : GameScreen(game, "frmDebut", "Debuts"), isEvent_(isEvent) {
    lstwres.EmptyText = "Everybody on your roster has been seen. New people wait here.";
    lststats.EmptyText = "The numbers of whoever waits stand here.";
    lstways.EmptyText = "Choose somebody to see how they can be brought out.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Group("Not seen yet", {ui::Grow(lstwres)}).Grow(3),
             ui::Rows({ui::Group("Ways to a debut", {ui::Grow(lstways), lblnote}).Grow(),
                       ui::Group("Who it is",
                                 {ui::Columns({ui::Grow(lststats), ui::Grow(txtworker)}).Grow()})
                           .Grow()})
                 .Grow(4)}),
        &lblfacts);
  }

  void Load() override {
    ShowRoster();
    lstwres.Select(lstwres.Count() > 0 ? 1 : 0);
    ShowWays();
  }
  void Return() override {
    ShowRoster();
    ShowWays();
  }

 private:
  void ShowRoster() {
    const std::vector<const Worker*> waiting = WaitingForDebut(world());
    FillTable(lstwres, columns_, waiting);
    lblfacts.Text = waiting.empty() ? "Nobody waits for a debut."
                                    : Counted(std::ssize(waiting), "worker waits", "workers wait") +
                                          " for a debut.";
  }

  /// The ways of whoever is chosen; while nobody waits, all that there are.
  void ShowWays() {
    const Worker* worker = world().FindWorker(lstwres.Key());
    std::vector<DebutWay> ways = WaysToDebut(world(), worker ? *worker : Anybody(), isEvent_);
    CellColumns<DebutWay> columns = ways_;
    if (!worker) columns.pop_back();  // can be done today or not: by whom?
    lstways.SetColumns(HeadingsOf(columns));
    FillPlaces(lstways, columns, ways);
    ShowNumbers(world(), worker, lststats, txtworker);
  }

  static Worker Anybody() {
    Worker anybody{};
    anybody.Status = "Nor";
    return anybody;
  }

  void lstwres_Open() { desk().Open(MakefrmQuickStat(game_, lstwres.Key())); }

  using K = ui::ColumnKind;
  const bool isEvent_;
  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Worker> columns_ =
      PeopleTable({{{"Position", K::Text, 3},
                    [](const Worker& worker) { return PositionText(worker.Position); }},
                   {{"", K::Tag, 2}, StatusCell}});
  const CellColumns<DebutWay> ways_ = {
      {{"Segment", K::Tag}, [](const DebutWay& way) { return way.Kind; }},
      {{"What to choose", K::Text, 3, "In the steps of the wizard."},
       [](const DebutWay& way) { return way.How; }},
      {{"When", K::Text, 2}, [](const DebutWay& way) {
         return way.WhyNot.empty() ? ui::Cell("Today", ui::Tone::Green)
                                   : ui::Cell(way.WhyNot, ui::Tone::Muted);
       }}};
  ui::ListBox lstwres{*this, "lstwres", WithFaces(world(), HeadingsOf(columns_)),
                      &frmDebut::ShowWays, &frmDebut::lstwres_Open};
  ui::ListBox lstways{*this, "lstways", HeadingsOf(ways_)};
  ui::ListBox lststats{*this, "lststats", {{"Skill", K::Text, 2}, {"", K::Percent, 2}}};
  ui::Report txtworker{*this, "txtworker"};
  ui::Label lblnote{*this, "lblnote",
                    "Whoever appears in a match or an angle without one of these has been seen as "
                    "well, and the debut is spent."};
};

}  // namespace

SCREEN(frmQuickStat)
SCREEN(frmDebut)

std::unique_ptr<ui::Screen> MakefrmQuickStat(Game& game, int workerUid) {
  return std::make_unique<frmQuickStat>(game, workerUid);
}

std::unique_ptr<ui::Screen> MakefrmDebut(Game& game, bool isEvent) {
  return std::make_unique<frmDebut>(game, isEvent);
}

}  // namespace grapplemont
