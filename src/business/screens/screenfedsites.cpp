#include "business/screens/screenfedsites.h"

#include "business/development.h"
#include "business/screens/fedscreens.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/world.h"
#include "roster/postings.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

struct SiteKind {
  const char* Suffix;  // of its controls' names
  const char* Title;
  const char* What;
  Office RunBy;
  bool HasLevels;
  const char* Nobody;  // what belongs into its list
  bool (*IsThere)(const Promotion&);
  std::string (*Name)(const Promotion&);
  int (*Price)(int level);
  std::vector<const Worker*> (*People)(const World&);
  std::string (*WhyNotOpen)(const World&, std::string_view name, int level);
  void (*Open)(World&, std::string_view name, int level);
  std::string (*WhyNotRename)(const World&, std::string_view name);
  void (*Rename)(World&, std::string_view name);
  void (*Close)(World&);
};

const SiteKind kCampSite = {
    "camp",
    "Training camp",
    "training camp",
    Office::HeadTrainer,
    true,
    "Nobody is in the camp. Send somebody young and raw there from the roster.",
    HasCamp,
    [](const Promotion& p) { return p.CampName.Str(); },
    CampPrice,
    PeopleInCamp,
    WhyNotOpenCamp,
    OpenCamp,
    WhyNotRenameCamp,
    RenameCamp,
    CloseCamp};

const SiteKind kTerritorySite = {
    "dev",
    "Development territory",
    "development territory",
    Office::DevBooker,
    false,
    "Nobody is in the territory. Send somebody there from the roster, or sign him to develop.",
    HasTerritory,
    [](const Promotion& p) { return p.DevName.Str(); },
    [](int) { return kTerritoryPrice; },
    PeopleInTerritory,
    [](const World& world, std::string_view name, int) { return WhyNotOpenTerritory(world, name); },
    [](World& world, std::string_view name, int) { OpenTerritory(world, name); },
    WhyNotRenameTerritory,
    RenameTerritory,
    CloseTerritory};

namespace {

using K = ui::ColumnKind;

std::string Named(const char* control, const SiteKind& kind) {
  return std::string(control) + kind.Suffix;
}

std::vector<ui::Column> PeopleColumns() {
  std::vector<ui::Column> columns = ShortColumns();
  columns.push_back({"Place", K::Text, 4});
  return columns;
}

}  // namespace

FedSite::FedSite(ui::Screen& screen, Game& game, const SiteKind& kind, ui::Handler changed)
    : game_(game),
      kind_(kind),
      changed_(std::move(changed)),
      txtname(screen, Named("txt", kind)),
      lblstate(screen, Named("lblstate", kind)),
      cmdopen(screen, Named("cmd", kind), "Open", [this] { cmdopen_Click(); }),
      cmdclose(screen, Named("cmdclose", kind), "Close It", [this] { cmdclose_Click(); }),
      lblhead(screen, Named("lblhead", kind)),
      cmdhead(screen, Named("cmdhead", kind), "Choose",
              [this] { game_.Desk().Open(MakefrmFedPick(game_, kind_.RunBy)); }),
      lstpeople(screen, Named("lst", kind), PeopleColumns()) {
  if (kind.HasLevels) {
    cmblevel = std::make_unique<ui::ComboBox>(screen, Named("cmb", kind));
    cmdraise = std::make_unique<ui::Button>(screen, Named("cmdraise", kind), "Improve",
                                            [this] { cmdraise_Click(); });
  }
  txtname.Hint = "Name";
}

ui::Box FedSite::Layout() {
  std::vector<ui::Box> parts = {ui::Field("Name", txtname), ui::Field("Now", lblstate)};
  std::vector<ui::Box> acts = {cmdopen};
  if (kind_.HasLevels) {
    parts.push_back(ui::Field("Facilities", *cmblevel));
    acts.emplace_back(*cmdraise);
  }
  acts.emplace_back(cmdclose);
  parts.push_back(ui::Columns(std::move(acts)));
  parts.push_back(ui::Field(OfficeName(kind_.RunBy), lblhead));
  parts.emplace_back(cmdhead);
  parts.push_back(ui::Grow(lstpeople));
  return ui::Group(kind_.Title, std::move(parts));
}

bool FedSite::IsThere() const {
  return kind_.IsThere(world().Player());
}

int FedSite::Level() const {
  return cmblevel ? cmblevel->Key() : 0;
}

bool FedSite::Pays(const std::string& what) {
  return game_.Desk().Ask("Finance Report",
                          "Pay " + Dollars(kind_.Price(Level())) + " for " + what + "?");
}

void FedSite::Show() {
  const Promotion& player = world().Player();
  const std::string none = IsThere() ? "" : std::string("There is no ") + kind_.What + ".";
  txtname.Text = IsThere() ? kind_.Name(player) : "";
  cmdopen.Text = IsThere() ? "Rename" : "Open";
  if (!IsThere())
    lblstate.Text = kind_.HasLevels ? "None" : "None. One costs " + Dollars(kind_.Price(0)) + ".";
  else
    lblstate.Text = kind_.HasLevels
                        ? std::string(Says(kCampFacilities, player.CampFacilities)) + " facilities"
                        : "Open";
  EnableUnless(cmdclose, none);
  EnableUnless(cmdhead, none);
  lblhead.Text = HolderName(world(), kind_.RunBy);
  if (kind_.HasLevels) ShowLevels();
  ShowPeople();
}

/// What can be built: any level for a new camp, the better ones for one that is there.
void FedSite::ShowLevels() {
  const int now = IsThere() ? int(world().Player().CampFacilities) : 0;
  const int chosen = cmblevel->Key();
  cmblevel->Clear();
  for (int level = now + 1; level <= kBestCamp; ++level)
    cmblevel->Add(std::string(Says(kCampFacilities, level)) + ", " + Dollars(CampPrice(level)),
                  level);
  cmblevel->SelectKey(chosen > now ? chosen : now + 1);
  cmblevel->Enabled = cmblevel->Count() > 0;
  cmblevel->Tip = cmblevel->Enabled ? "" : "No camp in the world has better facilities.";
  EnableUnless(*cmdraise, !IsThere()               ? "There is no training camp."
                          : cmblevel->Count() == 0 ? "No camp in the world has better facilities."
                                                   : "");
}

void FedSite::ShowPeople() {
  lstpeople.EmptyText =
      IsThere() ? kind_.Nobody
                : std::string("There is no ") + kind_.What + ". Type a name above and open one.";
  std::vector<const Worker*> people = kind_.People(world());
  SortByOver(people);
  std::vector<ui::ListBox::Row> rows;
  for (const Worker* worker : people) {
    std::vector<ui::Cell> cells = ShortRow(*worker);
    cells.emplace_back(PlaceText(*worker));
    rows.push_back({std::move(cells), worker->Uid});
  }
  lstpeople.Fill(std::move(rows));
}

void FedSite::cmdopen_Click() {
  const std::string name = txtname.Text.Get();
  if (IsThere()) {
    if (game_.Desk().Objects(kind_.WhyNotRename(world(), name))) return;
    kind_.Rename(world(), name);
  } else {
    if (game_.Desk().Objects(kind_.WhyNotOpen(world(), name, Level()))) return;
    if (!Pays(std::string("the ") + kind_.What)) return;
    kind_.Open(world(), name, Level());
  }
  changed_();
}

void FedSite::cmdraise_Click() {
  if (game_.Desk().Objects(WhyNotRaiseCamp(world(), Level()))) return;
  if (!Pays("better facilities")) return;
  RaiseCamp(world(), Level());
  changed_();
}

void FedSite::cmdclose_Click() {
  const auto people = std::ssize(kind_.People(world()));
  const std::string who =
      people == 0 ? "Nobody is there now."
                  : Counted(people, "worker comes", "workers come") + " back to the roster.";
  if (!game_.Desk().Ask("Close " + kind_.Name(world().Player()) + "?", "Are you sure? " + who,
                        ui::Default::No))
    return;
  kind_.Close(world());
  changed_();
}

}  // namespace grapplemont
