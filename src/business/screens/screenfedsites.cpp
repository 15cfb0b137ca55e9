#include <functional>
#include <optional>

#include "business/screens/screenfed.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "roster/postings.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

// Where the young learn, and who is to run it.

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// How the choice for an office is put.
struct OfficeWords {
  const char *Nobody, *Mark, *Doing;
};
/// In the order of Office.
constexpr OfficeWords kOfficeWords[] = {
    {"You have no non-wrestler. Sign one, or make somebody one.", "Charisma", "Status"},
    {"You have no trainer on the staff. Hire one first.", "Talent", "Works as"},
    {"Nobody on your staff can book. Hire somebody who can first.", "Talent", "Works as"}};

CellColumns<OfficeSeeker> SeekerTable(const OfficeWords& words,
                                      std::function<bool(int uid)> holds) {
  return {{{"Name", K::Text, 4}, [](const OfficeSeeker& seeker) { return seeker.Name; }},
          {{words.Mark, K::Percent, 2},
           [](const OfficeSeeker& seeker) { return ui::Cell(seeker.Mark); }},
          {{words.Doing, K::Text, 3}, [holds = std::move(holds)](const OfficeSeeker& seeker) {
             if (!holds(seeker.Uid)) return ui::Cell(seeker.Doing);
             return ui::Cell("In office" + (seeker.Doing.empty() ? "" : ", " + seeker.Doing),
                             ui::Tone::Gold);
           }}};
}

/// The people who could hold an office, and nobody.
class frmFedPick : public GameScreen {
 public:
  frmFedPick(Game& game, Office office)
      : GameScreen(game, "frmFedPick", OfficeName(office),
                   {.Is = ui::Role::Dialog, .BackName = "cmdcancel"}),
        office_(office) {
    BackBefore(cmdnobody);
    lstpeople.EmptyText = words_.Nobody;
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
    FillTable(lstpeople, seekers_, CandidatesFor(world(), office_));
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
    if (desk().Objects(WhyNotAppoint(world(), office_, uid))) return Return();
    Appoint(world(), office_, uid);
    Close();
  }

  Office office_;
  const OfficeWords& words_ = kOfficeWords[static_cast<std::size_t>(office_)];
  const CellColumns<OfficeSeeker> seekers_ =
      SeekerTable(words_, [this](int uid) { return uid == HolderOf(world(), office_); });
  ui::Label lblnow{*this, "lblnow"};
  ui::ListBox lstpeople{*this, "lstpeople", HeadingsOf(seekers_), &frmFedPick::ShowButtons,
                        cmddoit};
  ui::Button cmdnobody{*this, "cmdnobody", "Nobody", [this] { Give(0); }};
  ui::Button cmddoit{*this, "cmddoit", "Appoint", [this] { Give(lstpeople.Key()); }};
};

/// What a training camp and a development territory have in common, and in which words.
struct SiteKind {
  const char* Suffix;  // of its controls' names
  const char* Title;
  const char* What;
  Office RunBy;
  const char* Nobody;  // what belongs into its list
};
constexpr SiteKind kCamp = {
    "camp", "Training camp", "training camp", Office::HeadTrainer,
    "Nobody is in the camp. Send somebody young and raw there from the roster."};
constexpr SiteKind kTerritory = {
    "dev", "Development territory", "development territory", Office::DevBooker,
    "Nobody is in the territory. Send somebody there from the roster, or sign them to develop."};

constexpr const char* kBest = "No camp in the world has better facilities.";

const CellColumns<Worker> kLearnerTable = PeopleTable({{{"Place", K::Text, 4}, PlaceText}});

class FedSite : public FedPart {
 public:
  FedSite(ui::Screen& screen, Game& game, Site site, ui::Handler changed)
      : FedPart(screen, game), site_(site), changed_(std::move(changed)) {
    txtname.Hint = "Name";
    if (site == Site::Territory) return;
    cmblevel.emplace(screen, Named("cmb"));
    cmdraise.emplace(screen, Named("cmdraise"), "Improve", [this] { cmdraise_Click(); });
  }

  ui::Box Layout() override {
    std::vector<ui::Box> parts = {ui::Field("Name", txtname), ui::Field("Now", lblstate)};
    std::vector<ui::Box> acts = {cmdopen};
    if (cmblevel) {
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

  void Show() override {
    const std::string none = IsThere() ? "" : std::string("There is no ") + kind_.What + ".";
    txtname.Text = IsThere() ? SiteName(world().Player(), site_) : "";
    cmdopen.Text = IsThere() ? "Rename" : "Open";
    lblstate.Text = State();
    EnableUnless({cmdclose, cmdhead}, none);
    lblhead.Text = HolderName(world(), kind_.RunBy);
    if (cmblevel) ShowLevels(none);
    lstpeople.EmptyText = IsThere() ? kind_.Nobody : none + " Type a name above and open one.";
    std::vector<const Worker*> people = PeopleAt(world(), site_);
    SortByOver(people);
    FillTable(lstpeople, kLearnerTable, people);
  }

 private:
  std::string Named(const char* control) const { return std::string(control) + kind_.Suffix; }
  bool IsThere() const { return HasSite(world().Player(), site_); }
  /// The chosen one; 0 for none.
  int Level() const { return cmblevel ? cmblevel->Key() : 0; }

  std::string State() const {
    if (!IsThere())
      return cmblevel ? "None" : "None. One costs " + Dollars(SitePrice(site_, 0)) + ".";
    if (!cmblevel) return "Open";
    return std::string(Says(kCampFacilities, world().Player().CampFacilities)) + " facilities";
  }

  bool Pays(const std::string& what) {
    return desk().Ask("Finance Report",
                      "Pay " + Dollars(SitePrice(site_, Level())) + " for " + what + "?");
  }

  /// What can be built: any level for a new camp, the better ones for one that is there.
  void ShowLevels(const std::string& none) {
    const int now = IsThere() ? int(world().Player().CampFacilities) : 0;
    const int chosen = cmblevel->Key();
    cmblevel->Clear();
    for (int level = now + 1; level <= kBestCamp; ++level)
      cmblevel->Add(
          std::string(Says(kCampFacilities, level)) + ", " + Dollars(SitePrice(site_, level)),
          level);
    cmblevel->SelectKey(chosen > now ? chosen : now + 1);
    const std::string best = cmblevel->Count() > 0 ? "" : kBest;
    EnableUnless(*cmblevel, best);
    EnableUnless(*cmdraise, IsThere() ? best : none);
  }

  void cmdopen_Click() {
    const std::string name = txtname.Text.Get();
    if (IsThere()) {
      if (desk().Objects(WhyNotRename(world(), site_, name))) return;
      RenameSite(world(), site_, name);
    } else {
      if (desk().Objects(WhyNotOpen(world(), site_, name, Level()))) return;
      if (!Pays(std::string("the ") + kind_.What)) return;
      OpenSite(world(), site_, name, Level());
    }
    changed_();
  }

  void cmdraise_Click() {
    if (desk().Objects(WhyNotRaiseCamp(world(), Level())) || !Pays("better facilities")) return;
    RaiseCamp(world(), Level());
    changed_();
  }

  void cmdclose_Click() {
    const auto people = std::ssize(PeopleAt(world(), site_));
    const std::string who =
        people == 0 ? "Nobody is there now."
                    : Counted(people, "worker comes", "workers come") + " back to the roster.";
    if (!desk().Ask("Close " + SiteName(world().Player(), site_) + "?", "Are you sure? " + who,
                    ui::Default::No))
      return;
    CloseSite(world(), site_);
    changed_();
  }

  Site site_;
  const SiteKind& kind_ = site_ == Site::Camp ? kCamp : kTerritory;
  ui::Handler changed_;
  ui::TextBox txtname{screen_, Named("txt")};
  ui::Label lblstate{screen_, Named("lblstate")};
  ui::Button cmdopen{screen_, Named("cmd"), "Open", [this] { cmdopen_Click(); }};
  ui::Button cmdclose{screen_, Named("cmdclose"), "Close It", [this] { cmdclose_Click(); }};
  ui::Label lblhead{screen_, Named("lblhead")};
  ui::Button cmdhead{screen_, Named("cmdhead"), "Choose",
                     [this] { desk().Open(MakefrmFedPick(game_, kind_.RunBy)); }};
  ui::ListBox lstpeople{screen_, Named("lst"), WithFaces(game_.World(), HeadingsOf(kLearnerTable))};
  std::optional<ui::ComboBox> cmblevel;  // the facilities of a camp
  std::optional<ui::Button> cmdraise;
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmFedPick(Game& game, Office office) {
  return std::make_unique<frmFedPick>(game, office);
}

std::unique_ptr<FedPart> MakeFedSite(ui::Screen& screen, Game& game, Site site,
                                     ui::Handler changed) {
  return std::make_unique<FedSite>(screen, game, site, std::move(changed));
}

}  // namespace grapplemont
