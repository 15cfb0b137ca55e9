#include <algorithm>
#include <memory>
#include <utility>

#include "calendar/playon.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/readmail.h"
#include "rivals/founding.h"
#include "rivals/ownership.h"
#include "rivals/promotionfacts.h"
#include "rivals/purse.h"
#include "rivals/rivals.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

constexpr int kLettersOfWide = 190;  // of a window that has room for the people of a chair, too
constexpr const char* kGoesOnAnyway = "Your career goes on: there is nothing to begin again.";

/// After the end of a career: another chair, or a promotion of one's own.
class frmPlayOn : public GameScreen {
 public:
  explicit frmPlayOn(Game& game)
      : GameScreen(game, "frmPlayOn", "Play On", {.Is = ui::Role::Cover}) {
    BackBefore(cmdtake);
    lstchairs.EmptyText =
        "No promotion as small as the one you left, or smaller, is there. Found one of your own.";
    lstpeople.EmptyText = "Choose a chair to see who works there.";
    txtname.Hint = "Your name";
    txtpromo.Hint = "Grapple Town Wrestling";
    txtinitials.Hint = "GTW";
    for (ui::TextBox* box : {&txtname, &txtpromo, &txtinitials})
      box->OnChange = [this] { ShowWhatMayBe(); };
    lblname.Colour = ui::Tone::Muted;
    lblfound.Colour = ui::Tone::Muted;
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Group("Chairs that are open to you", {ui::Grow(lstchairs)}).Grow(3),
             ui::Rows({ui::Group("You", {ui::Field("Name", txtname), lblname}),
                       ui::Group("Or a promotion of your own",
                                 {ui::Field("Name", txtpromo), ui::Field("Initials", txtinitials),
                                  lblfound, cmdfound}),
                       ui::Spacer()})
                 .Grow(2),
             ui::Group("Whom you would lead", {ui::Grow(lstpeople)}).From(kLettersOfWide).Grow(2)}),
        &lblfacts, {}, &cmdtake);
  }

  void Load() override {
    txtname.Text = world().Game().PlayerName.Str();
    lblname.Text = "Another name begins a career of its own, without former jobs.";
    lblfound.Text = "Backyard, with " + Dollars(kOwnCapital) +
                    " and nobody else: sign people, plan Events, find sponsors.";
    Return();
  }

  void Return() override {
    lblfacts.Text = LongDate(world().Today()) + ". You left " + world().Player().Name.Str() + ", " +
                    std::string(SizeText(world().Player().Size)) + ". The world remembers it all.";
    std::vector<const Promotion*> chairs = ChairsAfterTheEnd(world());
    std::ranges::stable_sort(chairs, [](const Promotion* one, const Promotion* two) {
      return std::pair(int(one->Size), -one->Image) < std::pair(int(two->Size), -two->Image);
    });
    FillTable(lstchairs, Table(), chairs);
    if (lstchairs.Selected() == 0 && lstchairs.Count() > 0) lstchairs.Select(1);
    ShowWhatMayBe();
  }

 private:
  CellColumns<Promotion> Table() {
    using K = ui::ColumnKind;
    const World& of = world();
    const auto rosters = std::make_shared<Rosters>(of);
    return {
        {{"Promotion", K::Text, 4}, [](const Promotion& p) { return p.Name.View(); }},
        {{"Size", K::Text, 2},
         [](const Promotion& p) { return ui::Cell(p.Size, std::string(SizeText(p.Size))); }},
        {{"Image", K::Percent, 2}, [](const Promotion& p) { return int(p.Image); }},
        {{"Money", K::Text, 2},
         [](const Promotion& p) {
           return ui::Cell(int(p.Money), MoneyInWords(p.Size, p.Money),
                           p.Money < 0 ? ui::Tone::Red : ui::Tone::Plain);
         }},
        {{"Roster", K::Number, 1}, [rosters](const Promotion& p) { return rosters->Of(p.Uid); }},
        {{"Who decides", K::Text, 3}, [&of](const Promotion& p) {
           const Staff* owner = OwnerOf(of, p.Uid);
           return owner ? owner->Name.Str() : std::string("The board");
         }}};
  }

  std::string WhyNot(const std::string& otherwise) {
    if (!HasEnded(world().Game())) return kGoesOnAnyway;
    if (detail::Trimmed(txtname.Text.Get()).empty()) return "Whoever goes on needs a name.";
    return otherwise;
  }

  void ShowWhatMayBe() {
    ShowPeople();
    EnableUnless(cmdtake, WhyNot(lstchairs.Key() == 0 ? "Choose a promotion first." : ""));
    EnableUnless(cmdfound, WhyNot(WhyNotFound(world(), detail::Trimmed(txtpromo.Text.Get()),
                                              detail::Trimmed(txtinitials.Text.Get()))));
  }

  void lstchairs_Click() { ShowWhatMayBe(); }

  void ShowPeople() {
    const int chair = lstchairs.Key();
    FillShort(lstpeople, chair == 0 ? std::vector<const Worker*>() : RosterOf(world(), chair));
  }

  void cmdtake_Click() {
    const Promotion& promotion = *world().FindPromotion(lstchairs.Key());
    if (!desk().Ask("Play on?", "Take the chair of " + promotion.Name.Str() + "?")) return;
    TakeChair(world(), promotion);
    GoOn();
  }
  void cmdfound_Click() {
    const std::string name(detail::Trimmed(txtpromo.Text.Get()));
    if (desk().Objects(WhyNotPlain(name + txtinitials.Text.Get()))) return;
    if (!desk().Ask("Play on?", "Found " + name + "?")) return;
    FoundAndLead(world(), name, detail::Trimmed(txtinitials.Text.Get()));
    GoOn();
  }
  void GoOn() {
    GoOnAs(world(), detail::Trimmed(txtname.Text.Get()));
    MarkAllRead(world());  // what was written to the former chair
    desk().CloseAll();
    desk().Open("frmMainScreen");
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstchairs{*this, "lstchairs", HeadingsOf(Table()), &frmPlayOn::lstchairs_Click,
                        cmdtake};
  ui::ListBox lstpeople{*this, "lstpeople", WithFaces(world(), ShortColumns())};
  ui::TextBox txtname{*this, "txtname", "", 25};
  ui::Label lblname{*this, "lblname"};
  ui::TextBox txtpromo{*this, "txtpromo", "", 40};
  ui::TextBox txtinitials{*this, "txtinitials", "", 6};
  ui::Label lblfound{*this, "lblfound"};
  ui::Button cmdfound{*this, "cmdfound", "Found It", &frmPlayOn::cmdfound_Click};
  ui::Button cmdtake{*this, "cmdtake", "Take The Chair", &frmPlayOn::cmdtake_Click};
};

}  // namespace

SCREEN(frmPlayOn)

}  // namespace grapplemont
