#include <algorithm>

#include "business/networks.h"
#include "records/fields/fields.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "session/newgame.h"
#include "session/screens/frmLoadGame.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "storylines/titles.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

constexpr const char* kNoPromotion =
    "The default world has no promotion that can be played. Build it anew, or put back its files.";

std::string RoleSuffix(const Worker& worker) {
  if (worker.Position == kManager) return " (Manager)";
  if (worker.Position == kNonWrestler) return " (Non-Wrestler)";
  if (worker.Position == kTrainingCamp) return " (Training Camp)";
  if (IsInDevelopment(worker)) return " (Development)";
  return {};
}

class frmNewGame : public GameScreen {
 public:
  explicit frmNewGame(Game& game)
      : GameScreen(game, "frmNewGame", "New Game", {.Is = ui::Role::Cover}) {
    BackBefore(cmdbegin);
    txtname.Hint = "Your name";
    lstshows.EmptyText = "No television shows.";
    lstbelts.EmptyText = "No Titles.";
    lststaff.EmptyText = "No staff.";
    lstroster.EmptyText = "Nobody is under contract.";
    for (const Term& level : kDifficulties) cmbdifficulty.Add(std::string(level.Says), level.Code);
    cmbdifficulty.SelectKey(kMedium);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Rows(
                 {ui::Group("You", {ui::Field("Name", txtname), ui::Field("Promotion", cmbPromo),
                                    ui::Field("Difficulty", cmbdifficulty)}),
                  ui::Group("The promotion",
                            {ui::Field("Size", lblsize), ui::Field("Image", lblimage),
                             ui::Field("Money", lblmoney), ui::Field("Owner", lblowner)}),
                  ui::Spacer()})
                 .Grow(2),
             ui::Rows({ui::Group("Television", {ui::Grow(lstshows)}).Grow(1),
                       ui::Group("Titles", {ui::Grow(lstbelts)}).Grow(1),
                       ui::Group("Staff", {ui::Grow(lststaff)}).Grow(2)})
                 .Grow(3),
             ui::Group("Roster", {ui::Grow(lstroster)}).Grow(3)}),
        &lblfacts, {}, &cmdbegin);
  }

  void Load() override {
    world_.Load(ReadWorldFiles(game_.Disk(), game_.DataFolder()));
    for (const Promotion& promotion : world_.Promotions())
      if (!(promotion.Name == kToBeDeleted)) cmbPromo.Add(promotion.Name.Str(), promotion.Uid);
    cmbPromo.Select(1);
    cmbPromo_Click();
  }

 private:
  void cmbPromo_Click() {
    const Promotion* promotion = world_.FindPromotion(cmbPromo.Key());
    cmdbegin.Enabled = promotion != nullptr;
    cmdbegin.Tip = promotion ? "" : kNoPromotion;
    if (!promotion) {
      lblfacts.Text = kNoPromotion;
      return;
    }
    lblfacts.Text = "The game begins on " + LongDate(NextFirst(game_.PresentDay())) + ".";
    lblsize.Text = SizeText(promotion->Size);
    lblimage.Text = std::to_string(promotion->Image) + "%";
    lblmoney.Text = Dollars(promotion->Money);
    const Staff* owner = OwnerOf(world_, promotion->Uid);
    lblowner.Text = owner ? owner->Name.Str() : "None";
    ShowShows(*promotion);
    ShowTitles(*promotion);
    ShowStaff(*promotion);
    ShowRoster(*promotion);
  }

  void ShowShows(const Promotion& promotion) {
    lstshows.Clear();
    for (const Show& show : world_.Shows()) {
      if (show.Owner != promotion.Uid) continue;
      lstshows.Add({show.Name.View(), NetworkName(world_, show.Network), show.Day.View(),
                    Says(kTimeSlots, show.Slot)});
    }
  }

  void ShowTitles(const Promotion& promotion) {
    lstbelts.Clear();
    for (const auto& title : world_.Titles()) {
      if (title.Owner != promotion.Uid) continue;
      lstbelts.Add({title.Name.View(), ChampionText(world_, title), ui::Cell(title.Image)});
    }
  }

  void ShowStaff(const Promotion& promotion) {
    lststaff.Clear();
    for (const Term& post : kStaffPositions)
      for (const Staff& staff : world_.AllStaff())
        if (staff.Employer == promotion.Uid && staff.Position == post.Code)
          lststaff.Add({staff.Name.View(), post.Says, ui::Cell(staff.Talent)});
  }

  void ShowRoster(const Promotion& promotion) {
    std::vector<const Worker*> roster;
    for (const Worker& worker : world_.Workers())
      if (worker.Employer == promotion.Uid) roster.push_back(&worker);
    std::stable_sort(roster.begin(), roster.end(),
                     [](auto* a, auto* b) { return a->Over > b->Over; });
    lstroster.Clear();
    for (const Worker* worker : roster)
      lstroster.Add({worker->Name + RoleSuffix(*worker),
                     PositionText(IsSentAway(*worker) ? worker->Position - kSentToDevelopment
                                                      : int(worker->Position)),
                     DispositionCell(*worker), ui::Cell(worker->Over)});
  }

  void cmdbegin_Click() {
    const std::string name(detail::Trimmed(txtname.Text.Get()));
    if (name.empty()) return desk().Say("Error!", "Please enter your name first.");
    if (desk().Objects(WhyNotPlain(name))) return;
    desk().Open(MakefrmPickSaveSlot(game_, {.PlayerName = name,
                                            .PromotionUid = cmbPromo.Key(),
                                            .Difficulty = cmbdifficulty.Key(),
                                            .Start = NextFirst(game_.PresentDay()),
                                            .SaveName = {}}));
  }

  using K = ui::ColumnKind;
  World world_;
  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  ui::Label lblfacts{*this, "lblfacts"};
  ui::TextBox txtname{*this, "txtname", "", 25};
  ui::ComboBox cmbPromo{*this, "cmbPromo", &frmNewGame::cmbPromo_Click};
  ui::ComboBox cmbdifficulty{*this, "cmbdifficulty"};
  ui::Label lblsize{*this, "lblsize"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblowner{*this, "lblowner"};
  ui::ListBox lstshows{*this, "lstshows", {{"Show"}, {"Network"}, {"Day"}, {"Slot"}}};
  ui::ListBox lstbelts{*this, "lstbelts", {{"Title"}, {"Holder"}, {"Image", K::Number}}};
  ui::ListBox lststaff{*this, "lststaff", {{"Name"}, {"Post"}, {"Talent", K::Number}}};
  ui::ListBox lstroster{
      *this, "lstroster", {{"Name"}, {"Position"}, {"Disposition", K::Tag}, {"Over", K::Number}}};
  ui::Button cmdbegin{*this, "cmdbegin", "Begin", &frmNewGame::cmdbegin_Click};
};

}  // namespace

SCREEN(frmNewGame)

}  // namespace grapplemont
