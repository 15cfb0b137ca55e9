#include "business/screens/frmTelevision.h"
#include "ui/game.h"

#include <algorithm>

#include "business/networks.h"
#include "business/past.h"
#include "business/screens/frmTVShow.h"
#include "business/tvshows.h"
#include "business/tvtalks.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

ui::Cell SlotCell(const Network& network, std::string_view slot) {
  const int audience = SlotAudience(network, slot);
  return {double(audience), RatingText(audience) + " / " + std::to_string(SlotRisk(network, slot))};
}

ui::Cell RoomCell(const World& world, const Network& network) {
  if (network.Generic) return {"Always", ui::Tone::Green};
  return IsFull(world, network) ? ui::Cell("Full", ui::Tone::Red) : ui::Cell("Yes");
}

}  // namespace

ShowScreen::ShowScreen(Game& game, std::string name, std::string title, std::string show)
    : GameScreen(game, std::move(name), std::move(title), {.Is = ui::Role::Dialog}),
      show_(std::move(show)) {}

Show* ShowScreen::FindShow() {
  return PlayerShow(world(), show_);
}

Show* ShowScreen::ShowOrLeave() {
  Show* show = FindShow();
  if (show) return show;
  desk().Say("Error!", show_ + " is no longer one of our shows.");
  Close();
  return nullptr;
}

std::string WantsText(const World& world, const Show& show, const Network& network) {
  std::string text;
  for (const std::string& line : NetworkWants(world.Player(), show, network))
    text += (text.empty() ? "" : "\n") + line;
  return text;
}

ui::Cell RatingCell(const Show& show, int rating) {
  if (show.Rating1 == 0) return {-1.0, "-", ui::Tone::Muted};
  return {double(rating), RatingText(rating)};
}

ui::Cell DayCell(const Show& show) {
  return {double(DayNumber(show.Day)), show.Day.Str()};
}

ui::Cell OwnedCell(const World& world, const Show& show, std::string_view text) {
  return {text, show.Owner == world.PlayerUid() ? ui::Tone::Gold : ui::Tone::Plain};
}

std::vector<ui::Column> NetworkColumns() {
  using K = ui::ColumnKind;
  const std::string tip = "The rating that a show is measured against, and the risk it may run.";
  return {{"Network", K::Text, 4},
          {"Early", K::Number, 2, tip},
          {"Prime", K::Number, 2, tip},
          {"Late", K::Number, 2, tip},
          {"Graveyard", K::Number, 2, tip},
          {"Production", K::Number, 2, "The production values it asks for."},
          {"Shows", K::Number, 1, "So many are on it now."},
          {"Room", K::Tag, 2, "Whether it has a spot for another show."}};
}

void FillNetworks(ui::ListBox& list, const World& world) {
  std::vector<ui::ListBox::Row> rows;
  for (const Network& network : world.Networks())
    rows.push_back({{network.Name.View(), SlotCell(network, "E"), SlotCell(network, "P"),
                     SlotCell(network, "L"), SlotCell(network, "G"), ui::Cell(network.Production),
                     ui::Cell(ShowsOn(world, network)), RoomCell(world, network)},
                    network.Uid});
  list.Fill(std::move(rows));
}

void SayAll(ui::Desk& desk, const std::vector<TvRemark>& remarks) {
  for (const TvRemark& remark : remarks) desk.Say(remark.Title, remark.Text);
}

namespace {

/// The player's shows, how they do, and the way on the air.
class frmTelevision : public GameScreen {
 public:
  explicit frmTelevision(Game& game)
      : GameScreen(game, "frmTelevision", "Television", {.Manages = true}) {
    BackBefore(cmdpromo);
    txtwants.Brief = true;
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Rows({ui::Group("Our shows", {cmdshow(1), cmdshow(2), cmdshow(3), lblnone}),
                       ui::Group("The show", ShowParts()), ui::Spacer()})
                 .Grow(2),
             ui::Rows({ui::Group("What the network wants", {txtwants}),
                       ui::Group("Television ratings", {ui::Grow(txtratings), ui::Grow(chtratings)})
                           .Grow(),
                       ui::Group("Attendance", {ui::Grow(txtattendance), ui::Grow(chtattendance)})
                           .Grow()})
                 .Grow(3)}),
        &lblfacts, {&cmdranking, &cmdnetworks, &cmdshows}, &cmdpromo);
  }

  void Return() override {
    ShowButtons();
    ShowTape();
    ShowChosen();
  }

 private:
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

  void cmdchangec_Click() { desk().Open(MakefrmColourMan(game_, ChosenName())); }
  void cmdshows_Click() { desk().Open("frmViewShows"); }

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
  ui::Button cmdname{*this, "cmdname", "Rename",
                     [this] { desk().Open(MakefrmShowName(game_, ChosenName())); }};
  ui::Button cmdnegotiate{*this, "cmdnegotiate", "Negotiate",
                          [this] { desk().Open(MakefrmTVContract(game_, ChosenName())); }};
  ui::Button cmdchangea{*this, "cmdchangea", "Change Announcer",
                        [this] { desk().Open(MakefrmAnnouncer(game_, ChosenName())); }};
  ui::Button cmdchangec{*this, "cmdchangec", "Change Colour", &frmTelevision::cmdchangec_Click};
  ui::Button cmdrivals{*this, "cmdrivals", "Rivals",
                       [this] { desk().Open(MakefrmTVRivals(game_, ChosenName())); }};
  ui::Button cmdmaeve{*this, "cmdmaeve", "Ask Maeve", &frmTelevision::cmdmaeve_Click};
  ui::Button cmdranking{*this, "cmdranking", "Ranking", [this] { desk().Open("frmTVRank"); }};
  ui::Button cmdnetworks{*this, "cmdnetworks", "Networks",
                         [this] { desk().Open("frmViewNetworks"); }};
  ui::Button cmdshows{*this, "cmdshows", "All Shows", &frmTelevision::cmdshows_Click};
  ui::Button cmdpromo{*this, "cmdpromo", "Send Out Promo Tapes", &frmTelevision::cmdpromo_Click};
};

}  // namespace

SCREEN(frmTelevision)

}  // namespace grapplemont
