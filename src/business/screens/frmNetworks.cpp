#include <algorithm>
#include <functional>

#include "business/networks.h"
#include "business/screens/frmTelevision.h"
#include "business/tvshows.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/whatif.h"

namespace grapplemont {

namespace {

/// To which network the tape goes.
class frmPromoTape : public GameScreen {
 public:
  explicit frmPromoTape(Game& game)
      : GameScreen(game, "frmPromoTape", "Promo Tape", {.Is = ui::Role::Dialog}) {
    BackBefore(cmdsend);
    lstnetworks.EmptyText = "None available";
    txtwhy.Brief = true;
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Rows({ui::Group("", {ui::Grow(lstnetworks)}).Grow(),
                  ui::Group("The last answer", {ui::Columns({cmdwhy, ui::Spacer()}), txtwhy})}),
        &lblfacts, {}, &cmdsend);
    page.Large = true;
    return page;
  }

  void Load() override {
    const Promotion& player = world().Player();
    lblfacts.Text = "We could draw a rating of " +
                    RatingText(AudiencePotential(player, world().Game().Economy)) +
                    ". Our risk is " + std::to_string(player.Risk) +
                    ", our production values are " + std::to_string(player.Production) +
                    ". In each time slot stand the rating they want and the risk they allow.";
    FillNetworks(lstnetworks, world());
    const std::string none =
        WhyOfTape(world()).empty() ? "No network has answered a tape yet." : "";
    EnableUnless(cmdwhy, none);
    txtwhy.Write({{ui::Report::Style::Muted, none}});
    ShowSend();
  }
  void Return() override { Load(); }

 private:
  void ShowSend() {
    EnableUnless(cmdsend, lstnetworks.Key() == 0 ? "Choose a network first." : "");
  }

  void cmdsend_Click() {
    if (desk().Objects(WhyNoTape(world()))) return;
    SendTape(world(), lstnetworks.Key());
    desk().Say("Sent!", "Tape sent!");
    Close();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstnetworks{*this, "lstnetworks", NetworkColumns(), &frmPromoTape::ShowSend, cmdsend};
  ui::Button cmdwhy{*this, "cmdwhy", "Why?", [this] { txtwhy.WriteLines(WhyOfTape(world())); }};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Button cmdsend{*this, "cmdsend", "Send Tape", &frmPromoTape::cmdsend_Click};
};

/// The offer of a network: a day and a name, or no.
class frmTvOffer : public GameScreen {
 public:
  explicit frmTvOffer(Game& game)
      : GameScreen(game, "frmTvOffer", "Television Offer",
                   {.Is = ui::Role::Dialog, .Back = "Decide Later"}) {
    BackBefore(cmdwhatif);
    txtname.Hint = "Name of the new show";
    txtwhy.Brief = true;
  }

  ui::Page Layout() override {
    return {.Facts = &lblfacts,
            .Actions = {&cmdback, &cmdwhatif, &cmdreject, &cmdaccept},
            .Main = &cmdaccept,
            .Cancel = &cmdback,
            .Body = ui::Group(
                "", {ui::Field("Network", txtnetwork), ui::Field("Length", txtlength),
                     ui::Field("Time slot", txttime), ui::Field("Audience wanted", txtaudience),
                     ui::Field("Day", cmbdays), ui::Field("Name", txtname),
                     ui::Columns({cmdwhy, ui::Spacer()}), txtwhy})};
  }

  void Return() override {
    EnableUnless(cmdwhy, WhyOfTape(world()).empty() ? "What they weighed was not kept." : "");
    if (world().Game().TvOfferWait == 0) return ShowNone();
    if (const auto offer = OfferThatHolds()) ShowOffer(*offer);
  }

 private:
  void ShowNone() {
    lblfacts.Text = "No network has made us an offer.";
    for (ui::Label* term : {&txtnetwork, &txtlength, &txttime, &txtaudience}) term->Text = "None";
    cmbdays.Visible = txtname.Visible = false;
    EnableUnless({cmdaccept, cmdreject, cmdwhatif}, "There is no offer on the table.");
  }

  /// The offer, as long as there is a day for it; without one the network takes it back.
  std::optional<TvOffer> OfferThatHolds() {
    auto offer = OfferOnTheTable(world());
    if (offer && !offer->Days.empty()) return offer;
    DropOffer(world());
    desk().Say("No offer",
               "Sorry, scheduling conflicts mean that the network have removed the offer.");
    Close();
    return std::nullopt;
  }

  void ShowOffer(const TvOffer& offer) {
    lblfacts.Text = offer.From->Name + " would have us on the air.";
    cmbdays.Visible = txtname.Visible = true;
    txtnetwork.Text = offer.From->Name.Str();
    txtlength.Text = std::to_string(offer.Weeks) + " Weeks";
    txttime.Text =
        std::string(SlotName(offer.Slot)) + " [" + std::string(SlotHours(offer.Slot)) + "]";
    txtaudience.Text = RatingText(SlotAudience(*offer.From, offer.Slot));
    const int before = cmbdays.Key();
    cmbdays.Clear();
    for (const int day : offer.Days) cmbdays.Add(std::string(Says(kWeekDays, day)), day);
    cmbdays.SelectKey(before);
    if (cmbdays.Selected() == 0) cmbdays.Select(1);
  }

  std::string WhyNotAccept(const TvOffer& offer) {
    if (std::string why = WhyNoMoreShows(world()); !why.empty()) return why;
    if (std::ranges::find(offer.Days, cmbdays.Key()) == offer.Days.end())
      return "That day has gone to another show meanwhile. Choose another.";
    return WhyNoShowName(world(), txtname.Text.Get(), "The show name needs to be unique!");
  }

  void cmdaccept_Click() {
    const auto offer = OfferThatHolds();
    if (!offer) return;
    if (const std::string why = WhyNotAccept(*offer); !why.empty()) {
      ShowOffer(*offer);
      return desk().Say("Error!", why);
    }
    AcceptOffer(world(), *offer, cmbdays.Key(), txtname.Text.Get());
    Close();
  }

  void cmdreject_Click() {
    DropOffer(world());
    Close();
  }

  void cmdwhatif_Click() {
    const auto offer = OfferThatHolds();
    if (!offer) return;
    if (desk().Objects(WhyNoMoreShows(world()))) return;
    const std::string& typed = txtname.Text.Get();
    const std::string name = WhyNoShowName(world(), typed, "Taken.").empty() ? typed : "A New Show";
    const auto accept = [name, day = cmbdays.Key()](World& copy) {
      AcceptOffer(copy, *OfferOnTheTable(copy), day, name);
    };
    game_.OpenWhatIf({"Go on the air with " + offer->From->Name + " (" + cmbdays.Text.Get() + ", " +
                          std::string(SlotName(offer->Slot)) + ")?",
                      {"you accept for " + Counted(offer->Weeks, "week"), accept},
                      {"you turn it down", DropOffer}});
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label txtnetwork{*this, "txtnetwork"};
  ui::Label txtlength{*this, "txtlength"};
  ui::Label txttime{*this, "txttime"};
  ui::Label txtaudience{*this, "txtaudience"};
  ui::ComboBox cmbdays{*this, "cmbdays"};
  ui::TextBox txtname{*this, "txtname"};
  ui::Button cmdwhy{*this, "cmdwhy", "Why?", [this] { txtwhy.WriteLines(WhyOfTape(world())); }};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Button cmdwhatif{*this, "cmdwhatif", "What If", &frmTvOffer::cmdwhatif_Click};
  ui::Button cmdreject{*this, "cmdreject", "Reject", &frmTvOffer::cmdreject_Click};
  ui::Button cmdaccept{*this, "cmdaccept", "Accept", &frmTvOffer::cmdaccept_Click};
};

/// The networks, and what is on the one that is chosen.
class frmViewNetworks : public GameScreen {
 public:
  explicit frmViewNetworks(Game& game) : GameScreen(game, "frmViewNetworks", "Networks") {
    lstnetworks.EmptyText = "There is no network in this world.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Rows({ui::Group("", {ui::Grow(lstnetworks)}).Grow(3),
                            ui::Group("On the chosen network", {ui::Grow(lstshows)}).Grow(2)}));
  }

  void Load() override {
    FillNetworks(lstnetworks, world());
    if (lstnetworks.Selected() == 0) lstnetworks.Select(lstnetworks.Count() > 0 ? 1 : 0);
    lstnetworks_Click();
  }
  void Return() override { Load(); }

 private:
  void lstnetworks_Click() {
    lstshows.Clear();
    const Network* network = world().FindNetwork(lstnetworks.Key());
    lstshows.EmptyText =
        network ? network->Name + " shows no wrestling." : "Choose a network to see its shows.";
    std::vector<const Show*> shows;
    for (const Show& show : world().Shows())
      if (network && show.Network == network->Uid) shows.push_back(&show);
    FillShows(lstshows, shows_, world(), shows);
  }

  ui::ListBox lstnetworks{*this, "lstnetworks", NetworkColumns(),
                          &frmViewNetworks::lstnetworks_Click};
  const CellColumns<ShowRow> shows_ =
      ShowTable({ShowColumn::Name, ShowColumn::Promotion, ShowColumn::Day, ShowColumn::Time,
                 ShowColumn::Last});
  ui::ListBox lstshows{*this, "lstshows", HeadingsOf(shows_)};
};

// The shows of the world to look at: by their ratings, and all there is to know.

/// A table and the way back: the best of the last week first; who has not been seen yet stands at
/// the end.
class AllShows : public GameScreen {
 public:
  AllShows(Game& game, const char* name, const char* title,
           std::initializer_list<ShowColumn> columns, const char* none)
      : GameScreen(game, name, title), table_(ShowTable(columns)) {
    lstshows.EmptyText = none;
  }

  ui::Page Layout() override { return PageOf(ui::Group("", {ui::Grow(lstshows)}), &lblfacts); }

  void Return() override {
    std::vector<const Show*> shows;
    for (const Show& show : world().Shows()) shows.push_back(&show);
    std::ranges::stable_sort(shows, std::greater{}, [](const Show* show) {
      return show->Rating1 == 0 ? -1 : int(show->Rating3);
    });
    FillShows(lstshows, table_, world(), shows);
    lblfacts.Text = Counted(std::ssize(shows), "show") + " by the last rating, yours in gold.";
  }

 private:
  const CellColumns<ShowRow> table_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstshows{*this, "lstshows", HeadingsOf(table_)};
};

class frmTVRank : public AllShows {
 public:
  explicit frmTVRank(Game& game)
      : AllShows(game, "frmTVRank", "Television Ranking",
                 {ShowColumn::Place, ShowColumn::Name, ShowColumn::Last, ShowColumn::Highest,
                  ShowColumn::Promotion, ShowColumn::Network},
                 "No TV Shows To Rank") {}
};

class frmViewShows : public AllShows {
 public:
  explicit frmViewShows(Game& game)
      : AllShows(game, "frmViewShows", "Television Shows",
                 {ShowColumn::Name, ShowColumn::Last, ShowColumn::Promotion, ShowColumn::Day,
                  ShowColumn::Time, ShowColumn::Network, ShowColumn::Weeks, ShowColumn::Highest,
                  ShowColumn::Lowest},
                 "Nobody is on the air.") {}
};

}  // namespace

SCREEN(frmPromoTape)
SCREEN(frmTvOffer)
SCREEN(frmViewNetworks)
SCREEN(frmTVRank)
SCREEN(frmViewShows)

}  // namespace grapplemont
