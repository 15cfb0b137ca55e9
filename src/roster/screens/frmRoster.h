#pragma once

#include <span>
#include <string>

#include "records/world.h"
#include "roster/market.h"
#include "roster/screens/screenworkers.h"
#include "ui/game.h"

namespace grapplemont {

/// A table of workers under its quick filters, the page of the chosen one beside it. Rows are made
/// when the list or a filter changes; picking one writes his page and no more.
class WorkerListScreen : public GameScreen {
 public:
  WorkerListScreen(Game& game, std::string name, std::string title, WorkerList list,
                   std::span<const FilterFamily> filters);
  void Load() override { ShowList(); }
  void Return() override;

 protected:
  /// Who is to be listed at all.
  virtual bool Belongs(const Worker& worker) const = 0;
  /// What the screen's own filters say.
  virtual bool Passes(const Worker&) const { return true; }
  /// Brings the buttons to the chosen worker; nullptr for nobody.
  virtual void ShowActions(const Worker* chosen) = 0;
  virtual std::string Facts(int listed) const = 0;

  using GameScreen::world;
  const World& world() const { return game_.World(); }
  /// nullptr for nobody, or somebody who has left the world.
  const Worker* Chosen() { return world().FindWorker(lstwres.Key()); }
  /// Makes the rows anew; the choice stays where it can, else the first row is chosen.
  void ShowList();
  void ShowChoice();
  void ShowFacts() { lblfacts.Text = Facts(listed_); }
  /// The filters side by side, with the screen's own behind them.
  ui::Box FilterBox(std::vector<ui::Box> more = {});

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Array<ui::ComboBox> cmbfilters;
  ui::ListBox lstwres;
  ui::Report txtpage{*this, "txtpage"};

 private:
  bool FitsFilters(const Worker& worker);

  WorkerList list_;
  int listed_ = 0;  // before the filters
  std::span<const FilterFamily> filters_;
};

}  // namespace grapplemont
