#include <algorithm>

#include "business/networks.h"
#include "business/screens/frmTVShow.h"
#include "business/screens/frmTelevision.h"
#include "business/tvshows.h"
#include "business/tvtalks.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// To which network the tape goes.
class frmPromoTape : public GameScreen {
 public:
  explicit frmPromoTape(Game& game)
      : GameScreen(game, "frmPromoTape", "Promo Tape", {.Is = ui::Role::Dialog}) {
    BackBefore(cmdsend);
    lstnetworks.EmptyText = "None available";
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(ui::Group("", {ui::Grow(lstnetworks)}), &lblfacts, {}, &cmdsend);
    page.Large = true;
    return page;
  }

  void Load() override {
    const Promotion& player = world().Player();
    lblfacts.Text = "We could draw a rating of " +
                    RatingText(AudiencePotential(player, world().Game().Economy)) +
                    ". Our risk is " + std::to_string(player.Risk) +
                    ", our production values are " + std::to_string(player.Production) + ".";
    FillNetworks(lstnetworks, world());
    ShowSend();
  }
  void Return() override { Load(); }

 private:
  void ShowSend() {
    EnableUnless(cmdsend, lstnetworks.Key() == 0 ? "Choose a network first." : "");
  }

  void cmdsend_Click() {
    if (const std::string why = WhyNoTape(world()); !why.empty()) return desk().Say("Error!", why);
    SendTape(world(), lstnetworks.Key());
    desk().Say("Sent!", "Tape sent!");
    Close();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstnetworks{*this, "lstnetworks", NetworkColumns(), &frmPromoTape::ShowSend, cmdsend};
  ui::Button cmdsend{*this, "cmdsend", "Send Tape", &frmPromoTape::cmdsend_Click};
};

/// The offer of a network: a day and a name, or no.
class frmTvOffer : public GameScreen {
 public:
  explicit frmTvOffer(Game& game)
      : GameScreen(game, "frmTvOffer", "Television Offer",
                   {.Is = ui::Role::Dialog, .Back = "Decide Later"}) {
    BackBefore(cmdreject);
    txtname.Hint = "Name of the new show";
  }

  ui::Page Layout() override {
    return {.Facts = &lblfacts,
            .Actions = {&cmdback, &cmdreject, &cmdaccept},
            .Main = &cmdaccept,
            .Cancel = &cmdback,
            .Body = ui::Group(
                "", {ui::Field("Network", txtnetwork), ui::Field("Length", txtlength),
                     ui::Field("Time slot", txttime), ui::Field("Audience wanted", txtaudience),
                     ui::Field("Day", cmbdays), ui::Field("Name", txtname)})};
  }

  void Return() override {
    if (world().Game().TvOfferWait == 0) return ShowNone();
    if (const auto offer = OfferThatHolds()) ShowOffer(*offer);
  }

 private:
  void ShowNone() {
    lblfacts.Text = "No network has made us an offer.";
    for (ui::Button* button : {&cmdaccept, &cmdreject})
      EnableUnless(*button, "There is no offer on the table.");
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

  std::string WhyNotName() {
    if (const std::string why = WhyNoShowName(txtname.Text.Get()); !why.empty()) return why;
    return ShowNameTaken(world(), txtname.Text.Get()) ? "The show name needs to be unique!" : "";
  }

  std::string WhyNotAccept(const TvOffer& offer) {
    if (ShowsOf(world(), world().PlayerUid()).size() >= kMostShows)
      return "You already have the maximum amount of TV shows allowed.";
    if (std::find(offer.Days.begin(), offer.Days.end(), cmbdays.Key()) == offer.Days.end())
      return "That day has gone to another show meanwhile. Choose another.";
    return WhyNotName();
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

  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label txtnetwork{*this, "txtnetwork"};
  ui::Label txtlength{*this, "txtlength"};
  ui::Label txttime{*this, "txttime"};
  ui::Label txtaudience{*this, "txtaudience"};
  ui::ComboBox cmbdays{*this, "cmbdays"};
  ui::TextBox txtname{*this, "txtname"};
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
    ui::Page page =
        PageOf(ui::Rows({ui::Group("", {ui::Grow(lstnetworks)}).Grow(3),
                         ui::Group("On the chosen network", {ui::Grow(lstshows)}).Grow(2)}));
    page.Main = nullptr;  // Enter does nothing
    return page;
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
    if (!network) return;
    for (const Show& show : world().Shows())
      if (show.Network == network->Uid)
        lstshows.Add({OwnedCell(world(), show, show.Name), PromotionInitials(world(), show.Owner),
                      DayCell(show), SlotName(show.Slot), RatingCell(show, show.Rating3)});
  }

  using K = ui::ColumnKind;
  ui::ListBox lstnetworks{*this, "lstnetworks", NetworkColumns(),
                          &frmViewNetworks::lstnetworks_Click};
  ui::ListBox lstshows{*this,
                       "lstshows",
                       {{"Show", K::Text, 5},
                        {"Promotion", K::Text, 2},
                        {"Day", K::Date, 3},
                        {"Time", K::Text, 3},
                        {"Last", K::Number, 2, "Last rating."}}};
};

}  // namespace

SCREEN(frmViewNetworks)

// The shows of the world to look at: by their ratings, and all there is to know.

namespace {

using K = ui::ColumnKind;

/// A table and the way back.
class ShowTable : public GameScreen {
 public:
  ShowTable(Game& game, std::string name, std::string title, std::vector<ui::Column> columns,
            std::string none)
      : GameScreen(game, std::move(name), std::move(title)),
        lstshows{*this, "lstshows", std::move(columns)} {
    lstshows.EmptyText = std::move(none);
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(ui::Group("", {ui::Grow(lstshows)}));
    page.Main = nullptr;  // Enter does nothing
    return page;
  }

  void Return() override {
    std::vector<const Show*> shows;
    for (const Show& show : world().Shows()) shows.push_back(&show);
    Arrange(shows);
    std::vector<ui::ListBox::Row> rows;
    for (const Show* show : shows) {
      const int place = static_cast<int>(rows.size()) + 1;
      rows.push_back({RowOf(place, *show), place});
    }
    lstshows.Fill(std::move(rows));
  }

 protected:
  virtual void Arrange(std::vector<const Show*>&) {}
  virtual std::vector<ui::Cell> RowOf(int place, const Show& show) = 0;

 private:
  ui::ListBox lstshows;
};

/// The best of the last week first; who has not been seen yet stands at the end.
class frmTVRank : public ShowTable {
 public:
  explicit frmTVRank(Game& game)
      : ShowTable(game, "frmTVRank", "Television Ranking",
                  {{"#", K::Number, 1},
                   {"Show", K::Text, 5},
                   {"Promotion", K::Text, 2},
                   {"Network", K::Text, 4},
                   {"Last", K::Number, 2, "Last rating."},
                   {"Highest", K::Number, 2}},
                  "No TV Shows To Rank") {}

 protected:
  void Arrange(std::vector<const Show*>& shows) override {
    const auto last = [](const Show* show) { return show->Rating1 == 0 ? -1 : int(show->Rating3); };
    std::ranges::stable_sort(shows,
                             [&](const Show* a, const Show* b) { return last(a) > last(b); });
  }

  std::vector<ui::Cell> RowOf(int place, const Show& show) override {
    return {ui::Cell(place),
            OwnedCell(world(), show, show.Name),
            PromotionInitials(world(), show.Owner),
            NetworkName(world(), show.Network),
            RatingCell(show, show.Rating3),
            RatingCell(show, show.Rating1)};
  }
};

class frmViewShows : public ShowTable {
 public:
  explicit frmViewShows(Game& game)
      : ShowTable(game, "frmViewShows", "Television Shows",
                  {{"Show", K::Text, 5},
                   {"Promotion", K::Text, 2},
                   {"Day", K::Date, 3},
                   {"Time", K::Text, 3},
                   {"Network", K::Text, 4},
                   {"Weeks", K::Number, 2, "Weeks left of the deal."},
                   {"Last", K::Number, 2, "Last rating."},
                   {"Highest", K::Number, 2},
                   {"Lowest", K::Number, 2}},
                  "Nobody is on the air.") {}

 protected:
  std::vector<ui::Cell> RowOf(int, const Show& show) override {
    return {OwnedCell(world(), show, show.Name),
            PromotionInitials(world(), show.Owner),
            DayCell(show),
            SlotName(show.Slot),
            NetworkName(world(), show.Network),
            ui::Cell(show.ContractWeeks),
            RatingCell(show, show.Rating3),
            RatingCell(show, show.Rating1),
            RatingCell(show, show.Rating2)};
  }
};

}  // namespace

SCREEN(frmPromoTape)
SCREEN(frmTvOffer)
SCREEN(frmTVRank)
SCREEN(frmViewShows)

}  // namespace grapplemont
