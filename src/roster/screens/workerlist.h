#pragma once

#include <span>
#include <string>
#include <vector>

#include "roster/market.h"
#include "roster/screens/frmWorker.h"
#include "roster/screens/screenworkers.h"
#include "ui/game.h"

namespace grapplemont {

/// A table of workers under its quick filters, the page of the chosen one beside it. Rows are made
/// when the list or a filter changes; picking one writes their page and no more.
class WorkerListScreen : public GameScreen {
 public:
  WorkerListScreen(Game& game, std::string name, std::string title, PeopleList list,
                   std::span<const FilterFamily> filters);
  void Load() override;
  /// Where the chosen worker is listed no more, the next one takes their place.
  void Return() override;

 protected:
  /// Who is to be listed at all.
  virtual bool Belongs(const Worker& worker) const = 0;
  /// What the screen's own filter says, and the box that it is chosen in; nullptr: it has none.
  virtual bool Passes(const Worker&) const { return true; }
  virtual ui::ComboBox* OwnFilter() { return nullptr; }
  virtual std::string_view OwnCaption() const { return {}; }
  /// Brings the buttons to the chosen workers, of whom this is the first; nullptr for nobody.
  virtual void ShowActions(const Worker* chosen) = 0;
  virtual std::string Facts(int listed) const = 0;

  using GameScreen::world;
  const World& world() const { return game_.World(); }
  /// The first chosen; nullptr for nobody, or somebody who has left the world.
  const Worker* Chosen() { return world().FindWorker(lstwres.Key()); }
  /// All who are chosen and still belong here, in the order of the list.
  std::vector<int> AllChosen();

  /// The most popular come first; the choice stays where it can, else the first row is chosen.
  void ShowList();
  void ShowChoice();
  void Negotiate();

  /// The filters side by side, with the screen's own behind them, and what they hide.
  ui::Box FilterBox(std::vector<ui::Box> more = {});
  /// What is known of the first chosen worker, and the ways on; in a wide window their face and
  /// skills above it.
  ui::Box PageBox();
  /// The page on which one key takes the filters off.
  ui::Page WithFilters(ui::Page page);

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Array<ui::ComboBox> cmbfilters;
  ui::ListBox lstwres;
  ui::Picture picworker{*this, "picworker"};
  ui::ListBox lstskills;
  ui::Report txtpage{*this, "txtpage"};
  ui::Button cmdpage{*this, "cmdpage", "Open Page",
                     [this] { OpenWorkerPage(game_, lstwres.Key()); }};
  ui::Button cmdcompare{*this, "cmdcompare", "Compare",
                        [this] { desk().Open(MakefrmCompare(game_, AllChosen())); }};
  ui::Label lblchosen{*this, "lblchosen"};
  ui::Label lblfilters{*this, "lblfilters"};
  ui::Button cmdclear{*this, "cmdclear", "Clear Filters", [this] { ClearFilters(); }};

 private:
  static std::size_t Index(int number) { return static_cast<std::size_t>(number - 1); }
  void ShowFacts();
  void ShowSkills(const Worker* chosen);
  bool FitsFilters(const Worker& worker);
  void ShowFilters();
  void ClearFilters();

  PeopleList list_;
  int listed_ = 0;           // before the filters
  std::string nobody_;       // what an empty list says while no filter is on
  std::vector<int> hidden_;  // by each filter alone, the screen's own behind the others
  std::span<const FilterFamily> filters_;
};

}  // namespace grapplemont
