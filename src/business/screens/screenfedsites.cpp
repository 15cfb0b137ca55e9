#include "business/development.h"
#include "business/screens/screenfed.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/world.h"
#include "roster/postings.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "ui/game.h"

// Where the young learn, and who is to run it.

namespace grapplemont {

namespace {

/// The people who could hold an office, and nobody.
class frmFedPick : public GameScreen {
 public:
  frmFedPick(Game& game, Office office)
      : GameScreen(game, "frmFedPick", OfficeName(office),
                   {.Is = ui::Role::Dialog, .Back = "Cancel", .BackName = "cmdcancel"}),
        office_(office) {
    BackBefore(cmdnobody);
    lstpeople.EmptyText = office == Office::Commissioner
                              ? "You have no non-wrestler. Sign one, or make somebody one."
                          : office == Office::HeadTrainer
                              ? "You have no trainer on the staff. Hire one first."
                              : "Nobody on your staff can book. Hire somebody who can first.";
    lstpeople.SetColumns({{"Name", K::Text, 4},
                          {office == Office::Commissioner ? "Charisma" : "Talent", K::Percent, 2},
                          {office == Office::Commissioner ? "Status" : "Works as", K::Text, 3}});
  }

  ui::Page Layout() override {
    return {.Facts = &lblnow,
            .Actions = {&cmdback, &cmdnobody, &cmddoit},
            .Main = &cmddoit,
            .Cancel = &cmdback,
            .Body = ui::Group("", {ui::Grow(lstpeople)})};
  }

  void Load() override {
    Return();
    lstpeople.SelectKey(HolderOf(world(), office_));
    ShowButtons();
  }

  void Return() override {
    std::vector<ui::ListBox::Row> rows;
    for (const OfficeSeeker& candidate : CandidatesFor(world(), office_))
      rows.push_back({{candidate.Name, ui::Cell(candidate.Mark), candidate.Doing}, candidate.Uid});
    lstpeople.Fill(std::move(rows));
    lblnow.Text = std::string("In office: ") + HolderName(world(), office_);
    ShowButtons();
  }

 private:
  void ShowButtons() {
    const int holder = HolderOf(world(), office_), chosen = lstpeople.Key();
    EnableUnless(cmddoit, chosen == 0        ? "Choose somebody first."
                          : chosen == holder ? "That is who holds the office now."
                                             : "");
    EnableUnless(cmdnobody, holder == 0 ? "Nobody holds the office now." : "");
  }

  void Give(int uid) {
    if (const std::string why = WhyNotAppoint(world(), office_, uid); !why.empty()) {
      desk().Say("Error!", why);
      return Return();
    }
    Appoint(world(), office_, uid);
    Close();
  }

  void cmdnobody_Click() { Give(0); }

  using K = ui::ColumnKind;
  Office office_;
  ui::Label lblnow{*this, "lblnow"};
  ui::ListBox lstpeople{*this, "lstpeople", {{}}, &frmFedPick::ShowButtons, cmddoit};
  ui::Button cmdnobody{*this, "cmdnobody", "Nobody", &frmFedPick::cmdnobody_Click};
  ui::Button cmddoit{*this, "cmddoit", "Appoint", [this] { Give(lstpeople.Key()); }};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmFedPick(Game& game, Office office) {
  return std::make_unique<frmFedPick>(game, office);
}

struct SiteKind {
  Site Is;
  const char* Suffix;  // of its controls' names
  const char* Title;
  const char* What;
  Office RunBy;
  bool HasLevels;
  const char* Nobody;  // what belongs into its list
};
const SiteKind kCampSite = {Site::Camp,
                            "camp",
                            "Training camp",
                            "training camp",
                            Office::HeadTrainer,
                            true,
                            "Nobody is in the camp. Send somebody young and raw there from "
                            "the roster."};
const SiteKind kTerritorySite = {
    Site::Territory,
    "dev",
    "Development territory",
    "development territory",
    Office::DevBooker,
    false,
    "Nobody is in the territory. Send somebody there from the roster, or sign him to develop."};

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
  return HasSite(world().Player(), kind_.Is);
}

int FedSite::Level() const {
  return cmblevel ? cmblevel->Key() : 0;
}

bool FedSite::Pays(const std::string& what) {
  return game_.Desk().Ask("Finance Report",
                          "Pay " + Dollars(SitePrice(kind_.Is, Level())) + " for " + what + "?");
}

void FedSite::Show() {
  const Promotion& player = world().Player();
  const std::string none = IsThere() ? "" : std::string("There is no ") + kind_.What + ".";
  txtname.Text = IsThere() ? SiteName(player, kind_.Is) : "";
  cmdopen.Text = IsThere() ? "Rename" : "Open";
  if (!IsThere())
    lblstate.Text =
        kind_.HasLevels ? "None" : "None. One costs " + Dollars(SitePrice(kind_.Is, 0)) + ".";
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
    cmblevel->Add(
        std::string(Says(kCampFacilities, level)) + ", " + Dollars(SitePrice(Site::Camp, level)),
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
  std::vector<const Worker*> people = PeopleAt(world(), kind_.Is);
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
    if (game_.Desk().Objects(WhyNotRename(world(), kind_.Is, name))) return;
    RenameSite(world(), kind_.Is, name);
  } else {
    if (game_.Desk().Objects(WhyNotOpen(world(), kind_.Is, name, Level()))) return;
    if (!Pays(std::string("the ") + kind_.What)) return;
    OpenSite(world(), kind_.Is, name, Level());
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
  const auto people = std::ssize(PeopleAt(world(), kind_.Is));
  const std::string who =
      people == 0 ? "Nobody is there now."
                  : Counted(people, "worker comes", "workers come") + " back to the roster.";
  if (!game_.Desk().Ask("Close " + SiteName(world().Player(), kind_.Is) + "?",
                        "Are you sure? " + who, ui::Default::No))
    return;
  CloseSite(world(), kind_.Is);
  changed_();
}

}  // namespace grapplemont
