#include "business/screens/frmTelevision.h"

#include <algorithm>

#include "business/networks.h"
#include "business/past.h"
#include "business/tvshows.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/notes.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

struct NetworkRow {
  const World& In;
  const Network& Is;
};

CellColumn<NetworkRow> SlotColumn(const char* title, const char* slot) {
  return {
      {title, K::Number, 2, "The rating that a show is measured against, and the risk it may run."},
      [slot](const NetworkRow& row) {
        const int audience = SlotAudience(row.Is, slot);
        return ui::Cell(double(audience),
                        RatingText(audience) + " / " + std::to_string(SlotRisk(row.Is, slot)));
      }};
}

ui::Cell RoomCell(const NetworkRow& row) {
  if (row.Is.Generic) return {"Always", ui::Tone::Green};
  return IsFull(row.In, row.Is) ? ui::Cell("Full", ui::Tone::Red) : ui::Cell("Yes");
}

const CellColumns<NetworkRow> kNetworkTable = {
    {{"Network", K::Text, 4}, [](const NetworkRow& row) { return row.Is.Name.View(); }},
    SlotColumn("Early", "E"),
    SlotColumn("Prime", "P"),
    SlotColumn("Late", "L"),
    SlotColumn("Graveyard", "G"),
    {{"Production", K::Number, 2, "The production values it asks for."},
     [](const NetworkRow& row) { return ui::Cell(row.Is.Production); }},
    {{"Shows", K::Number, 1, "So many are on it now."},
     [](const NetworkRow& row) { return ui::Cell(ShowsOn(row.In, row.Is)); }},
    {{"Has room", K::Tag, 2, "Whether it has a spot for another show."}, RoomCell}};

ui::Cell NameCell(const ShowRow& row) {
  const bool ours = row.Is.Owner == row.In.PlayerUid();
  return {row.Is.Name.View(), ours ? ui::Tone::Gold : ui::Tone::Plain};
}

/// In the order of ShowColumn.
const CellColumns<ShowRow> kShowTable = {
    {{"#", K::Number}, [](const ShowRow& row) { return ui::Cell(row.Place); }},
    {{"Show", K::Text, 5}, NameCell},
    {{"Promotion", K::Text, 2},
     [](const ShowRow& row) { return PromotionInitials(row.In, row.Is.Owner); }},
    {{"Day", K::Date, 3},
     [](const ShowRow& row) { return ui::Cell(double(DayNumber(row.Is.Day)), row.Is.Day.Str()); }},
    {{"Time", K::Text, 3}, [](const ShowRow& row) { return SlotName(row.Is.Slot); }},
    {{"Network", K::Text, 4},
     [](const ShowRow& row) { return NetworkName(row.In, row.Is.Network); }},
    {{"Weeks", K::Number, 2, "Weeks left of the deal."},
     [](const ShowRow& row) { return ui::Cell(row.Is.ContractWeeks); }},
    {{"Last rating", K::Number, 2},
     [](const ShowRow& row) { return RatingCell(row.Is, row.Is.Rating3); }},
    {{"Best rating", K::Number, 2},
     [](const ShowRow& row) { return RatingCell(row.Is, row.Is.Rating1); }},
    {{"Lowest", K::Number, 2, "Lowest rating."},
     [](const ShowRow& row) { return RatingCell(row.Is, row.Is.Rating2); }}};

}  // namespace

ShowScreen::ShowScreen(Game& game, std::string name, std::string title, std::string show)
    : GameScreen(game, std::move(name), std::move(title), {.Is = ui::Role::Dialog}),
      show_(std::move(show)) {}

Show* ShowScreen::FindShow() {
  for (Show& show : world().Shows())
    if (show.Owner == world().PlayerUid() && show.Name == show_) return &show;
  return nullptr;
}

Show* ShowScreen::ShowOrLeave() {
  Show* show = FindShow();
  if (show) return show;
  desk().Say("Error!", show_ + " is no longer one of our shows.");
  Close();
  return nullptr;
}

ui::Cell RatingCell(const Show& show, int rating) {
  if (show.Rating1 == 0) return {-1.0, "-", ui::Tone::Muted};
  return {double(rating), RatingText(rating)};
}

CellColumns<ShowRow> ShowTable(std::initializer_list<ShowColumn> columns) {
  CellColumns<ShowRow> table;
  for (const ShowColumn column : columns)
    table.push_back(kShowTable[static_cast<std::size_t>(column)]);
  return table;
}

void FillShows(ui::ListBox& list, const CellColumns<ShowRow>& table, const World& world,
               const std::vector<const Show*>& shows) {
  std::vector<ShowRow> rows;
  for (const Show* show : shows) rows.push_back({world, *show, static_cast<int>(rows.size()) + 1});
  FillPlaces(list, table, rows);
}

std::vector<ui::Column> NetworkColumns() {
  return HeadingsOf(kNetworkTable);
}

void FillNetworks(ui::ListBox& list, const World& world) {
  std::vector<NetworkRow> rows;
  for (const Network& network : world.Networks()) rows.push_back({world, network});
  FillTable(list, kNetworkTable, rows, [](const NetworkRow& row) { return int(row.Is.Uid); });
}

namespace {

/// The player's shows, how they do, and the way on the air.
class frmTelevision : public GameScreen {
 public:
  explicit frmTelevision(Game& game)
      : GameScreen(game, "frmTelevision", "Television", {.Manages = true}) {
    BackBefore(cmdpromo);
    txtwants.Brief = txtwhy.Brief = true;
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
        &lblfacts, {&cmdranking, &cmdnetworks, &cmdshows, &cmddrafts}, &cmdpromo);
  }

  void Return() override {
    ShowButtons();
    ShowTape();
    ShowChosen();
  }

 private:
  std::vector<const Show*> Shows() { return ShowsOf(world(), world().PlayerUid()); }

  std::vector<ui::Box> ShowParts() {
    return {ui::Field("Name", txtname),
            ui::Field("On the air", txttime),
            ui::Field("Network", txtnetwork),
            ui::Field("Contract", txtcontract),
            ui::Field("Last rating", txtlast, {&cmdwhy, &txtwhy}),
            ui::Field("Best rating", txthighest),
            ui::Field("Lowest rating", txtlowest),
            ui::Field("Announcer", txtannouncer),
            ui::Field("Colour man", txtcolour),
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
  void OpenOnChosen(std::string_view screen) {
    desk().Open(MakeShowScreen(game_, screen, Chosen()->Name.Str()));
  }

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
    const int tape = world().Game().TapeWait;
    lblfacts.Text = std::to_string(count) + " of " + std::to_string(kMostShows) +
                    " shows on the air." +
                    (tape == 0 ? "" : " " + NetworkName(world(), tape) + " is watching our tape.");
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
    EnableUnless({cmdname, cmdchangea, cmdchangec, cmdrivals}, none);
    EnableUnless({cmdnegotiate, cmdmaeve}, show && !network ? "No network airs this show." : none);
    ShowFacts(show);
    EnableUnless(cmdwhy, WhyNoSteps(show));
    txtwhy.Write("");
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

  /// How the last rating came about; without steps where they are not kept.
  Score StepsOf(const Show& show) {
    const auto day = LastNoted(world(), kNoteRating, show.Name.View());
    return day ? NotedScore(world(), kNoteViewers, *day) : Score();
  }
  std::string WhyNoSteps(const Show* show) {
    if (!show) return "There is no show on the air.";
    const Score rating = StepsOf(*show);
    return !rating.Steps().empty() && int(rating) == int(show->Rating3)
               ? ""
               : "How a rating came about is kept for the last shows that were held.";
  }

  void ShowWants(const Show* show, const Network* network) {
    txtwants.WriteLines(show && network ? NetworkWants(world().Player(), *show, *network)
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
    if (!desk().Objects(WhyNoTape(world()))) desk().Open("frmPromoTape");
  }

  void cmdmaeve_Click() {
    const Show& show = *Chosen();
    for (const TvRemark& r : TvAdvice(world(), show, *world().FindNetwork(show.Network)))
      desk().Say(r.Title, r.Text);
  }

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
  ui::Button cmdwhy{*this, "cmdwhy", "Why?", [this] {
                      txtwhy.WriteLines(WhyText("rating", StepsOf(*Chosen()), InHundredths));
                    }};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Label txthighest{*this, "txthighest"};
  ui::Label txtlowest{*this, "txtlowest"};
  ui::Label txtannouncer{*this, "txtannouncer"};
  ui::Label txtcolour{*this, "txtcolour"};
  ui::Report txtwants{*this, "txtwants"};
  ui::Report txtratings{*this, "txtratings"};
  ui::Chart chtratings{*this, "chtratings"};
  ui::Report txtattendance{*this, "txtattendance"};
  ui::Chart chtattendance{*this, "chtattendance", true};
  ui::Button cmdname{*this, "cmdname", "Rename", [this] { OpenOnChosen("frmShowName"); }};
  ui::Button cmdnegotiate{*this, "cmdnegotiate", "Negotiate",
                          [this] { OpenOnChosen("frmTVContract"); }};
  ui::Button cmdchangea{*this, "cmdchangea", "Change Announcer",
                        [this] { OpenOnChosen("frmAnnouncer"); }};
  ui::Button cmdchangec{*this, "cmdchangec", "Change Colour",
                        [this] { OpenOnChosen("frmColourMan"); }};
  ui::Button cmdrivals{*this, "cmdrivals", "Rivals", [this] { OpenOnChosen("frmTVRivals"); }};
  ui::Button cmdmaeve{*this, "cmdmaeve", "Ask Maeve", &frmTelevision::cmdmaeve_Click};
  ui::Button cmdranking{*this, "cmdranking", "Ranking", [this] { desk().Open("frmTVRank"); }};
  ui::Button cmdnetworks{*this, "cmdnetworks", "Networks",
                         [this] { desk().Open("frmViewNetworks"); }};
  ui::Button cmdshows{*this, "cmdshows", "All Shows", [this] { desk().Open("frmViewShows"); }};
  ui::Button cmddrafts{*this, "cmddrafts", "Drafts", [this] { desk().Open("frmDrafts"); }};
  ui::Button cmdpromo{*this, "cmdpromo", "Send Out Promo Tapes", &frmTelevision::cmdpromo_Click};
};

}  // namespace

SCREEN(frmTelevision)

}  // namespace grapplemont
