#include "records/modWresCheck.h"
#include "rivals/ownership.h"
#include "rivals/promotionfacts.h"
#include "rivals/rivals.h"
#include "rivals/screens/rivalscreens.h"
#include "rivals/screens/screenpromotion.h"
#include "rivals/takeover.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

const Promotion* LivingPromotion(const World& world, int uid) {
  const Promotion* promotion = world.FindPromotion(uid);
  return promotion && IsAlive(*promotion) ? promotion : nullptr;
}

std::string WhyNoBuyOut(const World& world, const Promotion* promotion) {
  if (!promotion) return "Choose a promotion first.";
  if (HasEnded(world.Game())) return kCareerIsOver;
  return promotion->Uid == world.PlayerUid() ? "This is your own promotion." : "";
}

/// The rival's answer; when it is a yes the deals are laid out.
void AttemptBuyOut(Game& game, const Promotion& rival) {
  const bool owned = OwnerOf(game.World(), rival.Uid) != nullptr;
  const std::string who = WhoDecides(game.World(), rival);
  if (!IsForSale(rival)) {
    const char* refuses =
        owned ? " is not interested in selling." : " are not interested in selling.";
    return game.Desk().Say("Rejected!", who + refuses);
  }
  game.Desk().Say("Accepted!", who + (owned ? " is" : " are") + " willing to sell the company.");
  game.Desk().Open(MakefrmTakeover(game, rival.Uid));
}

/// Every promotion of the world, what is known of the selected one beside the list.
class frmOtherFed : public ui::Screen {
 public:
  explicit frmOtherFed(Game& game)
      : Screen(game.Desk(), "frmOtherFed", "Other Promotions"), game_(game), sheets(*this, game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdbuyout, &cmdback};
    page.Cancel = &cmdback;
    page.Body = ui::Columns({ui::Group("", {ui::Grow(lstfeds)}).Grow(), sheets.Layout().Grow()});
    return page;
  }

  void Load() override {
    ShowAll();
    lstfeds.Select(1);
    lstfeds_Click();
  }
  void Return() override {
    ShowAll();
    if (lstfeds.Selected() == 0) lstfeds.Select(1);
    lstfeds_Click();
  }

 private:
  World& world() { return game_.World(); }
  const Promotion* Chosen() { return LivingPromotion(world(), lstfeds.Key()); }

  void ShowAll() {
    const Rosters rosters(world());
    std::vector<ui::ListBox::Row> rows;
    for (const Promotion* promotion : PromotionsByStanding(world())) {
      const bool own = promotion->Uid == world().PlayerUid();
      rows.push_back({{ui::Cell(promotion->Name.View(), own ? ui::Tone::Gold : ui::Tone::Plain),
                       promotion->Initials.View(),
                       {-1.0 * promotion->Size, std::string(SizeText(promotion->Size))},
                       int(promotion->Image),
                       rosters.Of(promotion->Uid)},
                      promotion->Uid});
    }
    lblfacts.Text = std::to_string(rows.size()) +
                    (rows.size() == 1 ? " promotion, yours." : " promotions, yours in gold.");
    lstfeds.Fill(std::move(rows));
  }

  void lstfeds_Click() {
    sheets.Show(Chosen());
    EnableUnless(cmdbuyout, WhyNoBuyOut(world(), Chosen()));
  }
  void cmdbuyout_Click() {
    if (const Promotion* rival = Chosen()) AttemptBuyOut(game_, *rival);
  }
  void cmdback_Click() {
    Close();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstfeds{*this,
                      "lstfeds",
                      {{"Promotion", K::Text, 10},
                       {"Initials", K::Text, 3},
                       {"Size", K::Number, 4},
                       {"Image", K::Percent, 4},
                       {"Roster", K::Number, 3, "Workers on the card, managers and the like."}},
                      &frmOtherFed::lstfeds_Click};
  PromotionSheets sheets;
  ui::Button cmdback{*this, "cmdback", "Back", &frmOtherFed::cmdback_Click};
  ui::Button cmdbuyout{*this, "cmdbuyout", "Attempt Buy Out", &frmOtherFed::cmdbuyout_Click};
};

/// One promotion alone: what its name leads to.
class frmPromotion : public ui::Screen {
 public:
  frmPromotion(Game& game, int uid)
      : Screen(game.Desk(), "frmPromotion", "Promotion", ui::Role::Dialog),
        game_(game),
        uid_(uid),
        sheets(*this, game) {}

  int Uid() const { return uid_; }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdbuyout, &cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Large = true;
    page.Body = sheets.Layout().Grow();
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    const Promotion* promotion = LivingPromotion(game_.World(), uid_);
    if (promotion) Title = promotion->Name.Str();
    lblfacts.Text = promotion ? promotion->Initials + ", " + std::string(SizeText(promotion->Size))
                              : std::string("It has closed its doors.");
    sheets.Show(promotion);
    EnableUnless(cmdbuyout,
                 promotion ? WhyNoBuyOut(game_.World(), promotion) : "It has closed its doors.");
  }

 private:
  void cmdbuyout_Click() {
    if (const Promotion* rival = LivingPromotion(game_.World(), uid_)) AttemptBuyOut(game_, *rival);
  }
  void cmdback_Click() { Close(); }

  Game& game_;
  int uid_;
  ui::Label lblfacts{*this, "lblfacts"};
  PromotionSheets sheets;
  ui::Button cmdbuyout{*this, "cmdbuyout", "Attempt Buy Out", &frmPromotion::cmdbuyout_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmPromotion::cmdback_Click};
};

}  // namespace

SCREEN(frmOtherFed)

std::unique_ptr<ui::Screen> MakefrmPromotion(Game& game, int uid) {
  return std::make_unique<frmPromotion>(game, uid);
}

void OpenPromotionPage(Game& game, int uid) {
  if (!LivingPromotion(game.World(), uid))
    return game.Desk().Say("Gone", "This promotion is not in the business any more.");
  if (const auto* top = dynamic_cast<frmPromotion*>(game.Desk().Top()); top && top->Uid() == uid)
    return;
  game.Desk().Open(MakefrmPromotion(game, uid));
}

void ConnectRivals(Game& game) {
  game.OpenPromotion = [&game](int uid) { OpenPromotionPage(game, uid); };
}

}  // namespace grapplemont
