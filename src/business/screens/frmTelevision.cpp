#include <algorithm>

#include "business/commentators.h"
#include "business/networks.h"
#include "business/promotapes.h"
#include "business/screens/screentv.h"
#include "business/screens/tvscreens.h"
#include "business/tvadvice.h"
#include "business/tvhistory.h"
#include "business/tvshows.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// The player's shows, how they do, and the way on the air.
class frmTelevision : public ui::Screen {
 public:
  explicit frmTelevision(Game& game)
      : Screen(game.Desk(), "frmTelevision", "Television"), game_(game) {
    txtwants.Brief = true;
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdranking, &cmdnetworks, &cmdshows, &cmdback, &cmdpromo};
    page.Main = &cmdpromo;
    page.Cancel = &cmdback;
    page.Body = ui::Columns(
        {ui::Rows({ui::Group("Our shows", {cmdshow(1), cmdshow(2), cmdshow(3), lblnone}),
                   ui::Group("The show", ShowParts()), ui::Spacer()})
             .Grow(2),
         ui::Rows(
             {ui::Group("What the network wants", {txtwants}),
              ui::Group("Television ratings", {ui::Grow(txtratings), ui::Grow(chtratings)}).Grow(),
              ui::Group("Attendance", {ui::Grow(txtattendance), ui::Grow(chtattendance)}).Grow()})
             .Grow(3)});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    ShowButtons();
    ShowTape();
    ShowChosen();
  }

 private:
  World& world() { return game_.World(); }
  std::vector<const Show*> Shows() { return ShowsOf(world(), world().PlayerUid()); }

  std::vector<ui::Box> ShowParts() {
    return {txtname,
            ui::Field("On", txttime),
            ui::Field("Network", txtnetwork),
            ui::Field("Contract", txtcontract),
            ui::Field("Last rating", txtlast),
            ui::Field("Highest", txthighest),
            ui::Field("Lowest", txtlowest),
            ui::Field("Announcer", txtannouncer),
            ui::Field("Colour", txtcolour),
            ui::Columns({ui::Grow(cmdname), ui::Grow(cmdnegotiate)}),
            ui::Columns({ui::Grow(cmdchangea), ui::Grow(cmdchangec)}),
            ui::Columns({ui::Grow(cmdrivals), ui::Grow(cmdmaeve)})};
  }

  /// nullptr while no show is on the air.
  const Show* Chosen() {
    const auto shows = Shows();
    const auto place = static_cast<std::size_t>(chosen_);
    return place < shows.size() ? shows[place] : nullptr;
  }
  std::string ChosenName() { return Chosen()->Name.Str(); }

  /// A world from elsewhere may have more shows than buttons: the first three count.
  void ShowButtons() {
    const auto shows = Shows();
    const int count = std::min(static_cast<int>(shows.size()), kMostShows);
    if (chosen_ >= count) chosen_ = 0;
    for (int place = 1; place <= kMostShows; ++place) {
      ui::Button& button = cmdshow(place);
      button.Visible = place <= count;
      button.Text = place <= count ? shows[static_cast<std::size_t>(place - 1)]->Name.Str() : "";
      button.Colour = place == chosen_ + 1 ? ui::Tone::Gold : ui::Tone::Plain;
    }
    lblnone.Visible = count == 0;
    lblfacts.Text = std::to_string(count) + " of " + std::to_string(kMostShows) +
                    " shows on the air." + TapeWords();
  }

  std::string TapeWords() {
    const GameInfo& game = world().Game();
    return game.TapeWait == 0
               ? ""
               : " " + NetworkName(world(), game.TapeWait) + " is watching our tape.";
  }

  void ShowTape() {
    const bool offered = world().Game().TvOfferWait != 0;
    cmdpromo.Text = offered ? "View TV Offer!" : "Send Out Promo Tapes";
    cmdpromo.Tip = offered ? "You have an offer from a network to consider!" : "";
  }

  void ShowChosen() {
    const Show* show = Chosen();
    const Network* network = show ? world().FindNetwork(show->Network) : nullptr;
    const std::string none = show ? "" : "There is no show on the air.";
    for (ui::Button* button : {&cmdname, &cmdchangea, &cmdchangec, &cmdrivals})
      EnableUnless(*button, none);
    for (ui::Button* button : {&cmdnegotiate, &cmdmaeve})
      EnableUnless(*button, show && !network ? "No network airs this show." : none);
    ShowFacts(show);
    ShowWants(show, network);
    ShowPast(show);
  }

  void ShowFacts(const Show* show) {
    txtname.Text = show ? show->Name.Str() : "No show";
    txttime.Text = show ? show->Day + ", " + std::string(SlotName(show->Slot)) : "";
    txtnetwork.Text = show ? NetworkName(world(), show->Network) : "";
    txtcontract.Text = show ? Counted(show->ContractWeeks, "week") : "";
    txtlast.Text = show ? RatingCell(*show, show->Rating3).Text : "";
    txthighest.Text = show ? RatingCell(*show, show->Rating1).Text : "";
    txtlowest.Text = show ? RatingCell(*show, show->Rating2).Text : "";
    txtannouncer.Text = show ? NameOf(AnnouncerOf(world(), *show)) : "";
    txtcolour.Text = show ? NameOf(ColourManOf(world(), *show)) : "";
  }

  void ShowWants(const Show* show, const Network* network) {
    txtwants.WriteLines(show && network ? WantsText(world(), *show, *network)
                        : show          ? "No network airs this show."
                                        : "A network takes up a show that suits it: send a tape.");
  }

  void ShowPast(const Show* show) {
    const TvPast past = show ? TvPastOf(world(), show->Name) : TvPast{};
    const std::string none = show ? show->Name + " has not been held under this name yet."
                                  : "Nothing to see without a show.";
    Draw(chtratings, txtratings, past, past.Ratings, none);
    Draw(chtattendance, txtattendance, past, past.Attendance, none);
  }

  static void Draw(ui::Chart& chart, ui::Report& empty, const TvPast& past,
                   const std::vector<double>& values, const std::string& none) {
    chart.Captions = past.Days;
    chart.Lines = std::vector<ui::Chart::Series>{{"", values}};
    chart.Visible = !values.empty();
    empty.WriteLines(none);
    empty.Visible = values.empty();
  }

  void Choose(int place) {
    chosen_ = place - 1;
    ShowButtons();
    ShowChosen();
  }

  void cmdpromo_Click() {
    if (world().Game().TvOfferWait != 0) return desk().Open("frmTvOffer");
    if (const std::string why = WhyNoTape(world()); !why.empty()) return desk().Say("Error!", why);
    desk().Open("frmPromoTape");
  }

  void cmdmaeve_Click() {
    const Show& show = *Chosen();
    SayAll(desk(), TvAdvice(world(), show, *world().FindNetwork(show.Network)));
  }

  void cmdname_Click() { desk().Open(MakefrmShowName(game_, ChosenName())); }
  void cmdnegotiate_Click() { desk().Open(MakefrmTVContract(game_, ChosenName())); }
  void cmdchangea_Click() { desk().Open(MakefrmAnnouncer(game_, ChosenName())); }
  void cmdchangec_Click() { desk().Open(MakefrmColourMan(game_, ChosenName())); }
  void cmdrivals_Click() { desk().Open(MakefrmTVRivals(game_, ChosenName())); }
  void cmdranking_Click() { desk().Open("frmTVRank"); }
  void cmdnetworks_Click() { desk().Open("frmViewNetworks"); }
  void cmdshows_Click() { desk().Open("frmViewShows"); }

  void cmdback_Click() {
    Close();
    if (game_.RefreshMainScreen) game_.RefreshMainScreen();
  }

  Game& game_;
  int chosen_ = 0;  // place among the player's shows, from 0
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Array<ui::Button> cmdshow{"cmdshow", kMostShows, [this](const std::string& name, int place) {
                                  return std::make_unique<ui::Button>(
                                      *this, name, "", [this, place] { Choose(place); });
                                }};
  ui::Label lblnone{*this, "lblnone", "We are not on the air."};
  ui::Label txtname{*this, "txtname"};
  ui::Label txttime{*this, "txttime"};
  ui::Label txtnetwork{*this, "txtnetwork"};
  ui::Label txtcontract{*this, "txtcontract"};
  ui::Label txtlast{*this, "txtlast"};
  ui::Label txthighest{*this, "txthighest"};
  ui::Label txtlowest{*this, "txtlowest"};
  ui::Label txtannouncer{*this, "txtannouncer"};
  ui::Label txtcolour{*this, "txtcolour"};
  ui::Report txtwants{*this, "txtwants"};
  ui::Report txtratings{*this, "txtratings"};
  ui::Chart chtratings{*this, "chtratings"};
  ui::Report txtattendance{*this, "txtattendance"};
  ui::Chart chtattendance{*this, "chtattendance", true};
  ui::Button cmdname{*this, "cmdname", "Rename", &frmTelevision::cmdname_Click};
  ui::Button cmdnegotiate{*this, "cmdnegotiate", "Negotiate", &frmTelevision::cmdnegotiate_Click};
  ui::Button cmdchangea{*this, "cmdchangea", "Change Announcer", &frmTelevision::cmdchangea_Click};
  ui::Button cmdchangec{*this, "cmdchangec", "Change Colour", &frmTelevision::cmdchangec_Click};
  ui::Button cmdrivals{*this, "cmdrivals", "Rivals", &frmTelevision::cmdrivals_Click};
  ui::Button cmdmaeve{*this, "cmdmaeve", "Ask Maeve", &frmTelevision::cmdmaeve_Click};
  ui::Button cmdranking{*this, "cmdranking", "Ranking", &frmTelevision::cmdranking_Click};
  ui::Button cmdnetworks{*this, "cmdnetworks", "Networks", &frmTelevision::cmdnetworks_Click};
  ui::Button cmdshows{*this, "cmdshows", "All Shows", &frmTelevision::cmdshows_Click};
  ui::Button cmdback{*this, "cmdback", "Back", &frmTelevision::cmdback_Click};
  ui::Button cmdpromo{*this, "cmdpromo", "Send Out Promo Tapes", &frmTelevision::cmdpromo_Click};
};

}  // namespace

SCREEN(frmTelevision)

}  // namespace grapplemont
