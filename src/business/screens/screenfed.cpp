#include "business/screens/screenfed.h"

#include "business/development.h"
#include "business/sponsors.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/world.h"
#include "roster/postings.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

ui::Cell VerdictCell(const RiskLimit& limit, int risk) {
  if (risk <= limit.Limit) return {"Bears it", ui::Tone::Green};
  return {limit.Otherwise, ui::Tone::Red};
}

std::string OutOf(int some, int all) {
  return std::to_string(some) + " of " + std::to_string(all);
}

}  // namespace

FedProduct::FedProduct(ui::Screen& screen, Game& game)
    : game_(game),
      hsrisk(screen, "hsrisk", 0, 100, [this] { ShowChoice(); }),
      lblrisk(screen, "lblrisk"),
      lblmarket(screen, "lblmarket"),
      cmdrisk(screen, "cmdrisk", "Change Risk", [this] { cmdrisk_Click(); }),
      lstrisk(screen, "lstrisk",
              {{"Partner", K::Text, 3},
               {"What it is to us", K::Text, 4},
               {"Bears at most", K::Number, 2, "The highest risk that it puts up with."},
               {"At this risk", K::Tag, 2}}) {
  lstrisk.EmptyText =
      "You have neither a television show nor a sponsor: nobody minds what you show.";
}

ui::Box FedProduct::Layout() {
  return ui::Group("Product",
                   {ui::Field("Risk", hsrisk), ui::Field("That is", lblrisk),
                    ui::Field("Who could bear it", lblmarket), cmdrisk, ui::Grow(lstrisk)});
}

void FedProduct::Show() {
  hsrisk.Value = game_.World().Player().Risk;
  ShowChoice();
}

void FedProduct::ShowChoice() {
  const World& world = game_.World();
  const int risk = hsrisk.Value, now = world.Player().Risk;
  lblrisk.Text =
      std::to_string(risk) + "% - " + RiskText(risk) + ". " +
      (risk == now ? "This is what we show now." : "Now we show " + std::to_string(now) + "%.");
  const RiskMarket market = MarketFor(world, risk);
  lblmarket.Text = OutOf(market.SponsorsThatBear, market.Sponsors) + " sponsors, " +
                   OutOf(market.SlotsThatBear, market.Slots) + " time slots of the networks";
  std::vector<ui::ListBox::Row> rows;
  for (const RiskLimit& limit : RiskLimits(world))
    rows.push_back({{limit.Who, limit.What, ui::Cell(limit.Limit), VerdictCell(limit, risk)},
                    static_cast<int>(rows.size()) + 1});
  lstrisk.Fill(std::move(rows));
  EnableUnless(cmdrisk, risk == now ? "That is the risk now." : "");
}

void FedProduct::cmdrisk_Click() {
  game_.World().Player().Risk = hsrisk.Value;
  ShowChoice();
}

namespace {

using K = ui::ColumnKind;

std::vector<ui::Column> PeopleColumns() {
  std::vector<ui::Column> columns = ShortColumns();
  columns.push_back({"Place", K::Text, 3});
  columns.push_back({"Split", K::Text, 2});
  return columns;
}

}  // namespace

FedSplits::FedSplits(ui::Screen& screen, Game& game)
    : game_(game),
      lstsplits(screen, "lstsplits", {{"Split", K::Text, 3}, {"People", K::Number, 1}},
                [this] { lstsplits_Click(); }),
      txtsplit(screen, "txtsplit"),
      cmdsplit(screen, "cmdsplit", "New Split", [this] { cmdsplit_Click(); }),
      cmddissolve(screen, "cmddissolve", "Dissolve", [this] { cmddissolve_Click(); }),
      lstpeople(screen, "lstpeople", PeopleColumns(), [this] { ShowButtons(); }),
      cmdassign(screen, "cmdassign", "Put Into The Split", [this] { Assign(Chosen()); }),
      cmdtakeout(screen, "cmdtakeout", "Take Out", [this] { Assign("None"); }) {
  txtsplit.Hint = "Name";
  lstpeople.Multi = true;
  lstpeople.EmptyText = "Nobody works for you yet.";
}

ui::Box FedSplits::Layout() {
  return ui::Group(
      "Splits",
      {ui::Columns({ui::Rows({ui::Grow(lstsplits), ui::Field("Name", txtsplit),
                              ui::Columns({cmdsplit, cmddissolve})})
                        .Grow(2),
                    ui::Rows({ui::Grow(lstpeople), ui::Columns({cmdassign, cmdtakeout})}).Grow(4)})
           .Grow()});
}

void FedSplits::Show() {
  ShowSplits();
  if (lstsplits.Selected() == 0) lstsplits.Select(1);
  lstsplits_Click();
  ShowPeople();
}

std::string FedSplits::Chosen() const {
  return SplitName(game_.World().Player(), lstsplits.Key());
}

void FedSplits::ShowSplits() {
  const World& world = game_.World();
  std::vector<ui::ListBox::Row> rows;
  for (int place = 1; place <= kSplits; ++place) {
    const std::string name = SplitName(world.Player(), place);
    if (name.empty())
      rows.push_back({{ui::Cell("<<<Empty>>>", ui::Tone::Muted), ""}, place});
    else
      rows.push_back({{name, ui::Cell(PeopleInSplit(world, name))}, place});
  }
  lstsplits.Fill(std::move(rows));
}

void FedSplits::ShowPeople() {
  const World& world = game_.World();
  std::vector<const Worker*> people;
  for (const Worker& worker : world.Workers())
    if (worker.Employer != 0 && worker.Employer == world.PlayerUid()) people.push_back(&worker);
  SortByOver(people);
  std::vector<ui::ListBox::Row> rows;
  for (const Worker* worker : people) {
    std::vector<ui::Cell> cells = ShortRow(*worker);
    cells.emplace_back(PlaceText(*worker));
    cells.emplace_back(worker->Split == "None" ? std::string() : worker->Split.Str());
    rows.push_back({std::move(cells), worker->Uid});
  }
  lstpeople.Fill(std::move(rows));
  ShowButtons();
}

void FedSplits::ShowButtons() {
  const std::string split = Chosen();
  const std::string nobody = lstpeople.Key() == 0 ? "Choose somebody of this list first." : "";
  cmdsplit.Text = split.empty() ? "New Split" : "Rename";
  EnableUnless(cmddissolve, split.empty() ? "There is no split in this place." : "");
  EnableUnless(cmdassign, split.empty() ? "Choose or name a split at the left first." : nobody);
  EnableUnless(cmdtakeout, nobody);
}

void FedSplits::lstsplits_Click() {
  txtsplit.Text = Chosen();
  ShowButtons();
}

void FedSplits::cmdsplit_Click() {
  World& world = game_.World();
  const int place = lstsplits.Key();
  const std::string name = txtsplit.Text.Get();
  if (game_.Desk().Objects(WhyNotSplitName(world, place, name))) return;
  NameSplit(world, place, name);
  Show();
}

void FedSplits::cmddissolve_Click() {
  const std::string name = Chosen();
  const int people = PeopleInSplit(game_.World(), name);
  const std::string whoever = people == 0
                                  ? "Nobody is in it."
                                  : Counted(people, "person", "people") + " will be in no split.";
  if (!game_.Desk().Ask("Dissolve " + name + "?", "Are you sure? " + whoever, ui::Default::No))
    return;
  DissolveSplit(game_.World(), lstsplits.Key());
  Show();
}

/// Those who are there already stay; the first who cannot go there is told about.
void FedSplits::Assign(const std::string& split) {
  World& world = game_.World();
  std::string why;
  for (const int uid : lstpeople.Keys()) {
    Worker* worker = world.FindWorker(uid);
    if (worker && worker->Employer == world.PlayerUid() && worker->Split == split) continue;
    const std::string whyNot =
        worker ? WhyNotSplit(world, *worker, split) : "Somebody you chose is not there any more.";
    if (whyNot.empty())
      AssignSplit(*worker, split);
    else if (why.empty())
      why = whyNot;
  }
  ShowSplits();
  ShowPeople();
  game_.Desk().Objects(why);
}

}  // namespace grapplemont
