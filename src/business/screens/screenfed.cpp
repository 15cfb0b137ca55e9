#include "business/screens/screenfed.h"

#include "business/sponsors.h"
#include "records/fields/wording.h"
#include "roster/postings.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// What a partner bears, and the risk that the player thinks about.
struct RiskRow {
  RiskLimit Of;
  int Risk;
};

const CellColumns<RiskRow> kRiskTable = {
    {{"Partner", K::Text, 3}, [](const RiskRow& row) { return row.Of.Who; }},
    {{"What it is to us", K::Text, 4}, [](const RiskRow& row) { return row.Of.What; }},
    {{"Bears at most", K::Number, 2, "The highest risk that it puts up with."},
     [](const RiskRow& row) { return ui::Cell(row.Of.Limit); }},
    {{"At this risk", K::Tag, 2}, [](const RiskRow& row) {
       return row.Risk <= row.Of.Limit ? ui::Cell("Bears it", ui::Tone::Green)
                                       : ui::Cell(row.Of.Otherwise, ui::Tone::Red);
     }}};

std::string OutOf(int some, int all) {
  return std::to_string(some) + " of " + std::to_string(all);
}

class FedProduct : public FedPart {
 public:
  FedProduct(ui::Screen& screen, Game& game) : FedPart(screen, game) {
    lstrisk.EmptyText =
        "You have neither a television show nor a sponsor: nobody minds what you show.";
  }

  ui::Box Layout() override {
    return ui::Group("Product",
                     {ui::Field("Risk", hsrisk), ui::Field("That is", lblrisk),
                      ui::Field("Who could bear it", lblmarket), cmdrisk, ui::Grow(lstrisk)});
  }

  void Show() override {
    hsrisk.Value = world().Player().Risk;
    ShowChoice();
  }

 private:
  void ShowChoice() {
    const int risk = hsrisk.Value, now = world().Player().Risk;
    lblrisk.Text =
        std::to_string(risk) + "% - " + RiskText(risk) + ". " +
        (risk == now ? "This is what we show now." : "Now we show " + std::to_string(now) + "%.");
    const RiskMarket market = MarketFor(world(), risk);
    lblmarket.Text = OutOf(market.SponsorsThatBear, market.Sponsors) + " sponsors, " +
                     OutOf(market.SlotsThatBear, market.Slots) + " time slots of the networks";
    std::vector<RiskRow> rows;
    for (RiskLimit& limit : RiskLimits(world())) rows.push_back({std::move(limit), risk});
    FillPlaces(lstrisk, kRiskTable, rows);
    EnableUnless(cmdrisk, risk == now ? "That is the risk now." : "");
  }

  void cmdrisk_Click() {
    world().Player().Risk = hsrisk.Value;
    ShowChoice();
  }

  ui::ScrollBar hsrisk{screen_, "hsrisk", 0, 100, [this] { ShowChoice(); }};
  ui::Label lblrisk{screen_, "lblrisk"};
  ui::Label lblmarket{screen_, "lblmarket"};
  ui::Button cmdrisk{screen_, "cmdrisk", "Change Risk", [this] { cmdrisk_Click(); }};
  ui::ListBox lstrisk{screen_, "lstrisk", HeadingsOf(kRiskTable)};
};

/// A place for a split, and what is in it.
struct SplitRow {
  std::string Name;
  int People;
};

const CellColumns<SplitRow> kSplitTable = {
    {{"Split", K::Text, 3},
     [](const SplitRow& row) {
       return row.Name.empty() ? ui::Cell("<<<Empty>>>", ui::Tone::Muted) : ui::Cell(row.Name);
     }},
    {{"People", K::Number, 1},
     [](const SplitRow& row) { return row.Name.empty() ? ui::Cell("") : ui::Cell(row.People); }}};

const CellColumns<Worker> kPeopleTable = PeopleTable(
    {{{"Place", K::Text, 3}, PlaceText}, {{"Split", K::Text, 2}, [](const Worker& worker) {
                                            return worker.Split == "None" ? std::string()
                                                                          : worker.Split.Str();
                                          }}});

class FedSplits : public FedPart {
 public:
  FedSplits(ui::Screen& screen, Game& game) : FedPart(screen, game) {
    txtsplit.Hint = "Name";
    lstpeople.Multi = true;
    lstpeople.EmptyText = "Nobody works for you yet.";
  }

  ui::Box Layout() override {
    return ui::Group(
        "Splits",
        {ui::Columns(
             {ui::Rows({ui::Grow(lstsplits), ui::Field("Name", txtsplit),
                        ui::Columns({cmdsplit, cmddissolve})})
                  .Grow(2),
              ui::Rows({ui::Grow(lstpeople), ui::Columns({cmdassign, cmdtakeout})}).Grow(4)})
             .Grow()});
  }

  void Show() override {
    ShowSplits();
    if (lstsplits.Selected() == 0) lstsplits.Select(1);
    lstsplits_Click();
    ShowPeople();
  }

 private:
  /// Empty for a place without a split.
  std::string Chosen() const { return SplitName(world().Player(), lstsplits.Key()); }

  void ShowSplits() {
    std::vector<SplitRow> rows;
    for (int place = 1; place <= kSplits; ++place) {
      const std::string name = SplitName(world().Player(), place);
      rows.push_back({name, PeopleInSplit(world(), name)});
    }
    FillPlaces(lstsplits, kSplitTable, rows);
  }

  void ShowPeople() {
    std::vector<const Worker*> people;
    for (const Worker& worker : world().Workers())
      if (worker.Employer != 0 && worker.Employer == world().PlayerUid()) people.push_back(&worker);
    SortByOver(people);
    FillTable(lstpeople, kPeopleTable, people);
    ShowButtons();
  }

  void ShowButtons() {
    const std::string split = Chosen();
    const std::string nobody = lstpeople.Key() == 0 ? "Choose somebody of this list first." : "";
    cmdsplit.Text = split.empty() ? "New Split" : "Rename";
    EnableUnless(cmddissolve, split.empty() ? "There is no split in this place." : "");
    EnableUnless(cmdassign, split.empty() ? "Choose or name a split at the left first." : nobody);
    EnableUnless(cmdtakeout, nobody);
  }

  void lstsplits_Click() {
    txtsplit.Text = Chosen();
    ShowButtons();
  }

  void cmdsplit_Click() {
    const int place = lstsplits.Key();
    const std::string name = txtsplit.Text.Get();
    if (desk().Objects(WhyNotSplitName(world(), place, name))) return;
    NameSplit(world(), place, name);
    Show();
  }

  void cmddissolve_Click() {
    const std::string name = Chosen();
    const int people = PeopleInSplit(world(), name);
    const std::string whoever = people == 0
                                    ? "Nobody is in it."
                                    : Counted(people, "person", "people") + " will be in no split.";
    if (!desk().Ask("Dissolve " + name + "?", "Are you sure? " + whoever, ui::Default::No)) return;
    DissolveSplit(world(), lstsplits.Key());
    Show();
  }

  /// Those who are there already stay; the first who cannot go there is reported.
  void Assign(const std::string& split) {
    std::string why;
    for (const int uid : lstpeople.Keys()) {
      Worker* worker = world().FindWorker(uid);
      if (worker && worker->Employer == world().PlayerUid() && worker->Split == split) continue;
      const std::string whyNot = worker ? WhyNotSplit(world(), *worker, split)
                                        : "Somebody you chose is not there any more.";
      if (whyNot.empty())
        AssignSplit(*worker, split);
      else if (why.empty())
        why = whyNot;
    }
    ShowSplits();
    ShowPeople();
    desk().Objects(why);
  }

  ui::ListBox lstsplits{screen_, "lstsplits", HeadingsOf(kSplitTable),
                        [this] { lstsplits_Click(); }};
  ui::TextBox txtsplit{screen_, "txtsplit"};
  ui::Button cmdsplit{screen_, "cmdsplit", "New Split", [this] { cmdsplit_Click(); }};
  ui::Button cmddissolve{screen_, "cmddissolve", "Dissolve", [this] { cmddissolve_Click(); }};
  ui::ListBox lstpeople{screen_, "lstpeople", WithFaces(world(), HeadingsOf(kPeopleTable)),
                        [this] { ShowButtons(); }};
  ui::Button cmdassign{screen_, "cmdassign", "Put Into The Split", [this] { Assign(Chosen()); }};
  ui::Button cmdtakeout{screen_, "cmdtakeout", "Take Out", [this] { Assign("None"); }};
};

}  // namespace

std::unique_ptr<FedPart> MakeFedProduct(ui::Screen& screen, Game& game) {
  return std::make_unique<FedProduct>(screen, game);
}

std::unique_ptr<FedPart> MakeFedSplits(ui::Screen& screen, Game& game) {
  return std::make_unique<FedSplits>(screen, game);
}

}  // namespace grapplemont
