#include <algorithm>
#include <cctype>

#include "business/networks.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "session/chairs.h"
#include "session/layers.h"
#include "session/newgame.h"
#include "session/screens/frmLoadGame.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "storylines/titles.h"
#include "ui/game.h"
#include "ui/pictureof.h"

namespace grapplemont {

namespace {

constexpr const char* kNoPromotion =
    "The default world has no promotion that can be played. Build it again, or put back its files.";

std::string RoleSuffix(const Worker& worker) {
  if (worker.Position == kManager) return " (Manager)";
  if (worker.Position == kNonWrestler) return " (Non-Wrestler)";
  if (worker.Position == kTrainingCamp) return " (Training Camp)";
  if (IsInDevelopment(worker)) return " (Development)";
  return {};
}

class frmNewGame : public GameScreen {
 public:
  explicit frmNewGame(Game& game, int slot = 0)
      : GameScreen(game, "frmNewGame", "New Game", {.Is = ui::Role::Cover}), slot_(slot) {
    BackBefore(cmdbegin);
    txtname.Hint = "Your name";
    lstpromos.EmptyText = kNoPromotion;
    lblchair.Tip = kWhatBurdensAChair;
    for (ui::Label* label : {&lblchanges, &lblstory, &lblnoway, &lblrecorded})
      label->Colour = ui::Tone::Muted;
    lstshows.EmptyText = "No television shows.";
    lstbelts.EmptyText = "No Titles.";
    lststaff.EmptyText = "No staff.";
    lstroster.EmptyText = "Nobody is under contract.";
    // The usual window holds the page without scrolling.
    for (ui::ListBox* list : {&lstroster, &lstshows, &lstbelts, &lststaff}) list->Least = 2;
    for (const Term& level : kDifficulties) cmbdifficulty.Add(std::string(level.Says), level.Code);
    cmbdifficulty.SelectKey(kMedium);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Rows(
                 {ui::Group("You", {ui::Field("Name", txtname), ui::Field("Promotion", cmbPromo),
                                    ui::Field("Difficulty", cmbdifficulty), lblchanges}),
                  ui::Group("The promotion",
                            {lblstory,
                             ui::Columns({ui::Field("Size", lblsize), ui::Field("Image", lblimage),
                                          ui::Field("Money", lblmoney)}),
                             ui::Field("Owner", lblowner), ui::Field("This job", lblchair)}),
                  ui::Tabs({ui::Group("Roster", {ui::Grow(lstroster)}),
                            ui::Group("Television", {ui::Grow(lstshows)}),
                            ui::Group("Titles", {ui::Grow(lstbelts)}),
                            ui::Group("Staff", {ui::Grow(lststaff)})})
                      .Grow()})
                 .Grow(2),
             ui::Tabs({ui::Group("Promotions", {ui::Grow(lstpromos)}),
                       ui::Group("House rules", HouseBoxes())})
                 .Grow(3)}),
        &lblfacts, {}, &cmdbegin);
  }

  void Load() override {
    world_.Load(ReadDefaultData(game_.Disk(), game_.DataFolders()));
    chairs_ = ChairsOf(world_);
    for (const Chair& chair : chairs_) {
      const Promotion& promotion = *chair.Of;
      cmbPromo.Add(promotion.Name.Str(), promotion.Uid);
      lstpromos.Add({promotion.Name.View(), SizeText(promotion.Size), ui::Cell(promotion.Image),
                     ui::Cell(promotion.Money, Dollars(promotion.Money)), ui::Cell(chair.Strength),
                     ui::Cell(chair.Burdens, std::string(ChairText(chair.Burdens)))},
                    promotion.Uid);
    }
    cmbPromo.Select(1);
    cmbPromo_Click();
    ShowChanges();
  }

 private:
  std::vector<ui::Box> HouseBoxes() {
    std::vector<ui::Box> boxes = {lblhouse};
    const auto add = [&boxes](ui::CheckBox& rule, ui::Label& means) {
      boxes.push_back(ui::Columns({rule, ui::Grow(means)}));
    };
    for (int number = 1; number <= chkhouse.Count(); ++number)
      add(chkhouse(number), lblrule(number));
    add(chknoway, lblnoway);
    add(chkrecorded, lblrecorded);
    boxes.push_back(ui::Spacer());
    return boxes;
  }

  HouseRules ChosenHouse() {
    HouseRules house{};
    for (int number = 1; number <= chkhouse.Count(); ++number)
      house.On[static_cast<std::size_t>(number - 1)] = chkhouse(number).Checked;
    return house;
  }

  void lstpromos_Click() {
    cmbPromo.SelectKey(lstpromos.Key());
    cmbPromo_Click();
  }

  void ShowChanges() { lblchanges.Text = Joined(WhatDifficultyChanges(cmbdifficulty.Key()), "\n"); }

  void cmbPromo_Click() {
    const Promotion* promotion = world_.FindPromotion(cmbPromo.Key());
    lstpromos.SelectKey(cmbPromo.Key());
    cmdbegin.Enabled = promotion != nullptr;
    cmdbegin.Tip = promotion ? "" : kNoPromotion;
    if (!promotion) {
      lblfacts.Text = kNoPromotion;
      return;
    }
    // A filter may hide the row that is chosen: what Begin takes is said all the same.
    lblfacts.Text = "The game begins on " + LongDate(NextFirst(game_.PresentDay())) + ", with " +
                    promotion->Name.Str() + ".";
    lblsize.Text = SizeText(promotion->Size);
    lblimage.Text = std::to_string(promotion->Image) + "%";
    lblmoney.Text = Dollars(promotion->Money);
    const Staff* owner = OwnerOf(world_, promotion->Uid);
    lblowner.Text = owner ? owner->Name.Str() : "None";
    const auto chair = std::ranges::find(chairs_, promotion, &Chair::Of);
    lblstory.Text = chair->Story;
    lblchair.Text = std::string(ChairText(chair->Burdens)) + ": " + chair->Why;
    ShowShows(*promotion);
    ShowTitles(*promotion);
    ShowStaff(*promotion);
    ShowRoster(*promotion);
  }

  void ShowShows(const Promotion& promotion) {
    lstshows.Clear();
    for (const Show& show : world_.Shows()) {
      if (show.Owner != promotion.Uid) continue;
      lstshows.Add({show.Name.View(),
                    NetworkName(world_, show.Network),
                    {double(DayNumber(show.Day)), show.Day.Str()},
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
      lstroster.Add({worker->Name + RoleSuffix(*worker), ui::Cell(worker->Over),
                     PositionText(IsSentAway(*worker) ? worker->Position - kSentToDevelopment
                                                      : int(worker->Position)),
                     DispositionCell(*worker)});
  }

  void cmdbegin_Click() {
    const std::string name(detail::Trimmed(txtname.Text.Get()));
    if (name.empty()) return desk().Say("Error!", "Please enter your name first.");
    if (desk().Objects(WhyNotPlain(name))) return;
    desk().Open(MakefrmPickSaveSlot(game_, {.PlayerName = name,
                                            .PromotionUid = cmbPromo.Key(),
                                            .Difficulty = cmbdifficulty.Key(),
                                            .Start = NextFirst(game_.PresentDay()),
                                            .SaveName = {},
                                            .House = ChosenHouse(),
                                            .NoWayBack = chknoway.Checked,
                                            .Recorded = chkrecorded.Checked,
                                            .Slot = slot_}));
  }

  using K = ui::ColumnKind;
  ui::Drawing CrestFor(int uid) const {
    const Promotion* promotion = world_.FindPromotion(uid);
    return promotion ? ui::Drawing(CrestOf(*promotion)) : ui::Drawing();
  }

  std::string StoryFor(int uid) const {
    const auto chair =
        std::ranges::find_if(chairs_, [&](const Chair& each) { return each.Of->Uid == uid; });
    return chair == chairs_.end() ? std::string() : chair->Story;
  }

  int slot_;
  World world_;
  std::vector<Chair> chairs_;
  ui::Picture imgback{*this, "imgback", "vxm_back.jpg"};
  ui::Label lblfacts{*this, "lblfacts"};
  ui::TextBox txtname{*this, "txtname", "", 25};
  ui::ComboBox cmbPromo{*this, "cmbPromo", &frmNewGame::cmbPromo_Click};
  ui::ComboBox cmbdifficulty{*this, "cmbdifficulty", &frmNewGame::ShowChanges};
  ui::Label lblchanges{*this, "lblchanges"};
  ui::ListBox lstpromos{*this,
                        "lstpromos",
                        {{.Title = "Promotion",
                          .Width = 3,
                          .Draws = [this](int uid) { return CrestFor(uid); },
                          .Under = [this](int uid) { return StoryFor(uid); }},
                         {"Size", K::Tag},
                         {"Image", K::Percent},
                         {"Money", K::Number},
                         {"Strength", K::Number, 0, "The mean Over of the ten best who wrestle."},
                         {"Job", K::Number, 0, kWhatBurdensAChair}},
                        &frmNewGame::lstpromos_Click};
  ui::Label lblstory{*this, "lblstory"};
  ui::Label lblchair{*this, "lblchair"};
  ui::Label lblsize{*this, "lblsize"};
  ui::Label lblimage{*this, "lblimage"};
  ui::Label lblmoney{*this, "lblmoney"};
  ui::Label lblowner{*this, "lblowner"};
  ui::ListBox lstshows{
      *this, "lstshows", {{"Show"}, {"Network"}, {"Day", ui::ColumnKind::Date}, {"Slot"}}};
  ui::ListBox lstbelts{*this, "lstbelts", {{"Title"}, {"Holder"}, {"Image", K::Number}}};
  ui::ListBox lststaff{*this, "lststaff", {{"Name"}, {"Post"}, {"Talent", K::Number}}};
  ui::ListBox lstroster{*this,
                        "lstroster",
                        {{"Name"},
                         {"Over", K::Number},
                         {"Position"},
                         {.Title = "Disposition", .Kind = K::Tag, .Short = "Disp."}}};
  ui::Label lblhouse{
      *this, "lblhouse",
      "What you agree with yourself for this game. All of it is off, and it cannot be "
      "changed later."};
  ui::Array<ui::CheckBox> chkhouse{
      "chkhouse", static_cast<int>(AllHouseRules().size()), [this](const std::string& name, int i) {
        std::string words(AllHouseRules()[static_cast<std::size_t>(i - 1)].Name);
        words.front() = static_cast<char>(std::toupper(words.front()));
        return std::make_unique<ui::CheckBox>(*this, name, words);
      }};
  ui::Array<ui::Label> lblrule{
      "lblrule", static_cast<int>(AllHouseRules().size()), [this](const std::string& name, int i) {
        auto label = std::make_unique<ui::Label>(*this, name);
        label->Text = AllHouseRules()[static_cast<std::size_t>(i - 1)].Says;
        label->Colour = ui::Tone::Muted;
        return label;
      }};
  ui::CheckBox chknoway{*this, "chknoway", "No way back"};
  ui::Label lblnoway{*this, "lblnoway",
                     "No click is taken back and no morning is gone back to: what happens has "
                     "happened."};
  ui::CheckBox chkrecorded{*this, "chkrecorded", "Recorded"};
  ui::Label lblrecorded{*this, "lblrecorded",
                        "Every click and all that you type is kept with the game, so that anybody "
                        "can play it again and see that it came about so."};
  ui::Button cmdbegin{*this, "cmdbegin", "Begin", &frmNewGame::cmdbegin_Click};
};

}  // namespace

SCREEN(frmNewGame)

std::unique_ptr<ui::Screen> MakefrmNewGame(Game& game, int slot) {
  return std::make_unique<frmNewGame>(game, slot);
}

}  // namespace grapplemont
