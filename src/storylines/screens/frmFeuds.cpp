#include <algorithm>
#include <array>

#include "records/fields/fields.h"
#include "records/world.h"
#include "storylines/feuds.h"
#include "storylines/screens/frmFeudStart.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// The counters of a side, by the names of their controls ("txtclean1") and what they are called.
struct Counter {
  const char* Control;
  const char* Caption;
  Natural Feud::*One;
  Natural Feud::*Two;
};
constexpr std::array<Counter, 4> kCounters = {{
    {"txtclean", "Clean wins", &Feud::Clean1, &Feud::Clean2},
    {"txtdirty", "Dirty wins", &Feud::Dirty1, &Feud::Dirty2},
    {"txtinter", "Verbal attacks", &Feud::Interference1, &Feud::Interference2},
    {"txtsneak", "Sneak attacks", &Feud::Sneak1, &Feud::Sneak2},
}};

/// Whoever stands on either side, the first side first.
std::vector<const Worker*> PeopleOf(const World& world, const Feud& feud) {
  const FeudSides sides = SidesOf(feud);
  std::vector<const Worker*> people;
  for (const int uid : {sides.One.First, sides.One.Second, sides.Two.First, sides.Two.Second})
    if (const Worker* worker = uid == 0 ? nullptr : world.FindWorker(uid)) people.push_back(worker);
  return people;
}

bool IsFeuding(const World& world, int uid) {
  return std::ranges::any_of(world.Feuds(), [&](const Feud& feud) {
    const FeudSides sides = SidesOf(feud);
    return sides.One.Has(uid) || sides.Two.Has(uid);
  });
}

/// Asks, and on Yes ends the feud off camera. True when it has ended.
bool EndFeudAfterAsking(Game& game, int slot) {
  if (!game.Desk().Ask("End Feud?", "End this feud off-camera?", ui::Default::No)) return false;
  EndFeudOffCamera(game.World(), slot);
  return true;
}

/// The numbers of one feud, by its slot from 1. Requires a slot that is taken.
class frmFeudStat : public GameScreen {
 public:
  frmFeudStat(Game& game, int slot) : GameScreen(game, "frmFeudStat", "Feud Stats"), slot_(slot) {}

  ui::Page Layout() override {
    return PageOf(ui::Rows({ui::Group("The feud", {ui::Field("Heat", txtheat),
                                                   ui::Field("Started", txtstarted)}),
                            ui::Columns({ui::Group("Side one", one_.Layout()),
                                         ui::Group("Side two", two_.Layout())}),
                            ui::Spacer()}),
                  &lblfacts, {&cmdend});
  }

  void Return() override {
    const Feud& feud = world().Feuds()[slot_];
    const FeudSides sides = SidesOf(feud);
    const FeudScore score = FeudWins(feud);
    one_.Show(SideName(world(), sides.One), feud, &Counter::One, score.One);
    two_.Show(SideName(world(), sides.Two), feud, &Counter::Two, score.Two);
    Title = one_.Name.Text.Get() + " vs " + two_.Name.Text.Get();
    lblfacts.Text = "How the feud stands.";
    txtheat.Text = std::to_string(feud.Heat) + "%";
    txtstarted.Text = PlainDate(feud.Started);
  }

 private:
  /// "txtside1", "txtclean1" and so on.
  struct Side {
    Side(ui::Screen& screen, const std::string& number)
        : Name(screen, "txtside" + number),
          Counts("", static_cast<int>(kCounters.size()),
                 [&](const std::string&, int kind) {
                   return std::make_unique<ui::Label>(
                       screen, kCounters[static_cast<std::size_t>(kind - 1)].Control + number);
                 }),
          Won(screen, "txtwon" + number) {}

    std::vector<ui::Box> Layout() {
      std::vector<ui::Box> box{Name};
      int kind = 0;
      for (const Counter& counter : kCounters)
        box.push_back(ui::Field(counter.Caption, Counts(++kind)));
      box.push_back(ui::Field("Won", Won));
      return box;
    }

    void Show(const std::string& name, const Feud& feud, Natural Feud::*Counter::*side, int won) {
      Name.Text = name;
      int kind = 0;
      for (const Counter& counter : kCounters)
        Counts(++kind).Text = std::to_string(feud.*(counter.*side));
      Won.Text = std::to_string(won);
    }

    ui::Label Name;
    ui::Array<ui::Label> Counts;
    ui::Label Won;
  };

  void cmdend_Click() {
    if (EndFeudAfterAsking(game_, slot_)) Close();
  }

  int slot_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label txtheat{*this, "txtheat"};
  ui::Label txtstarted{*this, "txtstarted"};
  Side one_{*this, "1"}, two_{*this, "2"};
  ui::Button cmdend{*this, "cmdend", "End Feud", &frmFeudStat::cmdend_Click};
};

/// The eight feud slots as one table, the score of the selected feud beside it, its people below.
class frmFeuds : public GameScreen {
 public:
  explicit frmFeuds(Game& game) : GameScreen(game, "frmFeuds", "Feuds", {.Manages = true}) {
    BackBefore(cmdend);
    lstscore.EmptyText =
        "Nobody feuds in this slot. Start a feud, then feed it with matches, "
        "interviews and angles.";
    lstfeuds.Acts = {{&cmdask}, {&cmdstat}, {&cmdend}};
    lstfeuds.Room = lstfeuds.Least = kFeuds;
    lstpeople.Extends = true;
    lstpeople.EmptyText = "Nobody is free for a feud: it takes people who are fit and known.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Rows({ui::Group("", {ui::Grow(lstfeuds)}),
                       ui::Group("Who is in it, or free for one", {ui::Grow(lstpeople)}).Grow(2)})
                 .Grow(3),
             ui::Rows({ui::Group("The score so far", {ui::Grow(lstscore)}).Grow(3),
                       ui::Group("Maeve's advice", {ui::Grow(txtmaeve)}).Grow(2)})
                 .Grow(2)}),
        &lblfacts, {&cmdend, &cmdstat}, &cmdask);
  }

  void Load() override {
    ShowFeuds();
    lstfeuds.Select(1);
    lstfeuds_Click();
  }

  void Return() override {
    ShowFeuds();
    // A feud that was just started is the one to look at.
    if (next_ != 0 && FreeFeudSlot(world()) != next_) lstfeuds.SelectKey(next_);
    next_ = 0;
    lstfeuds_Click();
  }

 private:
  /// The feud of a slot; an empty one where the file is too short to have it.
  Feud FeudOf(int slot) {
    return slot >= 1 && slot <= world().Feuds().Count() ? world().Feuds()[slot] : Feud{};
  }

  void ShowFeuds() {
    std::vector<Feud> feuds;
    for (int slot = 1; slot <= kFeuds; ++slot) feuds.push_back(FeudOf(slot));
    FillPlaces(lstfeuds, feuds_, feuds);
    const auto running = kFeuds - std::ranges::count_if(feuds, IsFreeSlot);
    lblfacts.Text = std::to_string(running) + " of " + std::to_string(kFeuds) + " feuds running.";
  }

  ui::Cell NameCell(const Feud& feud) {
    if (IsFreeSlot(feud)) return {"<<<Empty Feud Slot>>>", ui::Tone::Muted};
    const FeudSides sides = SidesOf(feud);
    return SideName(world(), sides.One) + " vs " + SideName(world(), sides.Two);
  }

  /// Nothing for an empty slot.
  static ui::Cell CountCell(const Feud& feud, long count) {
    return IsFreeSlot(feud) ? ui::Cell("") : ui::Cell(static_cast<int>(count));
  }

  /// "4 : 2", by how far the first side is ahead; nothing for an empty slot.
  static ui::Cell ScoreCell(const Feud& feud) {
    if (IsFreeSlot(feud)) return {0.0, ""};
    const FeudScore score = FeudWins(feud);
    return {1.0 * (score.One - score.Two),
            std::to_string(score.One) + " : " + std::to_string(score.Two)};
  }

  void lstfeuds_Click() {
    const Feud feud = FeudOf(lstfeuds.Key());
    const bool taken = !IsFreeSlot(feud);
    cmdask.Text = taken ? "Ask Maeve" : "Start Feud";
    EnableUnless({cmdstat, cmdend}, taken ? "" : "There is no feud in this slot.");
    ShowScore(feud);
    ShowPeople(feud);
    txtmaeve.Write({{ui::Report::Style::Muted,
                     taken ? "Ask her where this feud should go."
                           : "She says where a running feud should go. Start one, or choose one, "
                             "and ask her."}});
  }

  void ShowScore(const Feud& feud) {
    const bool free = IsFreeSlot(feud);
    const FeudSides sides = SidesOf(feud);
    lstscore.Clear();
    lstscore.SetColumns({{""},
                         {free ? "Side one" : SideName(world(), sides.One), K::Number},
                         {free ? "Side two" : SideName(world(), sides.Two), K::Number}});
    if (free) return;
    for (const Counter& counter : kCounters)
      lstscore.Add({counter.Caption, ui::Cell(feud.*counter.One), ui::Cell(feud.*counter.Two)});
    const FeudScore score = FeudWins(feud);
    lstscore.Add({"Won", ui::Cell(score.One), ui::Cell(score.Two)});
  }

  /// Of an empty slot those who could be put into it.
  void ShowPeople(const Feud& feud) {
    sides_ = SidesOf(feud);
    if (!IsFreeSlot(feud)) return FillTable(lstpeople, people_, PeopleOf(world(), feud));
    std::vector<const Worker*> people = FeudRoster(world());
    std::erase_if(people, [this](const Worker* worker) { return IsFeuding(world(), worker->Uid); });
    FillTable(lstpeople, people_, people);
  }

  ui::Cell SideCell(const Worker& worker) const {
    return sides_.One.Has(worker.Uid)   ? ui::Cell("One")
           : sides_.Two.Has(worker.Uid) ? ui::Cell("Two")
                                        : ui::Cell("Free", ui::Tone::Muted);
  }

  void lstpeople_Open() {
    if (lstpeople.Key() != 0 && game_.OpenWorker) game_.OpenWorker(lstpeople.Key());
  }

  void lstfeuds_DblClick() {
    if (IsFreeSlot(FeudOf(lstfeuds.Key()))) return Start();
    cmdstat_Click();
  }

  void Start() {
    next_ = FreeFeudSlot(world());
    desk().Open(MakefrmFeudStart(game_, lstpeople.Keys()));
  }

  void cmdask_Click() {
    const Feud feud = FeudOf(lstfeuds.Key());
    if (IsFreeSlot(feud)) return Start();
    txtmaeve.Write(AssessFeud(world(), feud));
  }

  void cmdstat_Click() { desk().Open(std::make_unique<frmFeudStat>(game_, lstfeuds.Key())); }

  void cmdend_Click() {
    if (!EndFeudAfterAsking(game_, lstfeuds.Key())) return;
    ShowFeuds();
    lstfeuds_Click();
  }

  using K = ui::ColumnKind;
  int next_ = 0;  // the slot that a feud being started will take
  ui::Label lblfacts{*this, "lblfacts"};
  const CellColumns<Feud> feuds_ = {
      {{"Feud", K::Text, 5}, [this](const Feud& feud) { return NameCell(feud); }},
      {{"Heat", K::Percent, 2}, [](const Feud& feud) { return CountCell(feud, feud.Heat); }},
      {{"Days", K::Number, 1, "Days since it began."},
       [this](const Feud& feud) {
         return CountCell(feud, (world().Today() - Day(feud.Started)).count());
       }},
      {{"Score", K::Number, 1,
        "Wins and attacks of the side named first, and of the other: sorted by who is ahead."},
       ScoreCell}};
  ui::ListBox lstfeuds{*this, "lstfeuds", HeadingsOf(feuds_), &frmFeuds::lstfeuds_Click,
                       &frmFeuds::lstfeuds_DblClick};
  FeudSides sides_;  // of the selected feud
  const CellColumns<Worker> people_ = PeopleTable(
      {{{"Side", K::Tag}, [this](const Worker& worker) { return SideCell(worker); }},
       {{"Morale", K::Percent, 2}, [](const Worker& worker) { return int(worker.Morale); }},
       {{"", K::Tag, 2}, StatusCell}});
  ui::ListBox lstscore{*this, "lstscore"};
  ui::Report txtmaeve{*this, "txtmaeve"};
  ui::ListBox lstpeople{*this, "lstpeople", WithFaces(world(), HeadingsOf(people_)), ui::Handler{},
                        [this] { lstpeople_Open(); }};
  ui::Button cmdend{*this, "cmdend", "End Feud", &frmFeuds::cmdend_Click};
  ui::Button cmdstat{*this, "cmdstat", "Stats", &frmFeuds::cmdstat_Click};
  ui::Button cmdask{*this, "cmdask", "Start Feud", &frmFeuds::cmdask_Click};
};

}  // namespace

SCREEN(frmFeuds)

}  // namespace grapplemont
