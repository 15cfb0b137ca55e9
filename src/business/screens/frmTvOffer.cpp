#include <algorithm>

#include "business/networks.h"
#include "business/promotapes.h"
#include "business/screens/tvscreens.h"
#include "business/tvshows.h"
#include "records/modVar.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

/// The offer of a network: a day and a name, or no.
class frmTvOffer : public ui::Screen {
 public:
  explicit frmTvOffer(Game& game)
      : Screen(game.Desk(), "frmTvOffer", "Television Offer", ui::Role::Dialog), game_(game) {
    txtname.Hint = "Name of the new show";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdreject, &cmdaccept};
    page.Main = &cmdaccept;
    page.Cancel = &cmdback;
    page.Body =
        ui::Group("", {ui::Field("Network", txtnetwork), ui::Field("Length", txtlength),
                       ui::Field("Time slot", txttime), ui::Field("Audience wanted", txtaudience),
                       ui::Field("Day", cmbdays), ui::Field("Name", txtname)});
    return page;
  }

  void Load() override { Return(); }
  void Return() override {
    if (world().Game().TvOfferWait == 0) return ShowNone();
    if (const auto offer = OfferThatHolds()) ShowOffer(*offer);
  }

 private:
  World& world() { return game_.World(); }

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

  void cmdback_Click() { Close(); }

  Game& game_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label txtnetwork{*this, "txtnetwork"};
  ui::Label txtlength{*this, "txtlength"};
  ui::Label txttime{*this, "txttime"};
  ui::Label txtaudience{*this, "txtaudience"};
  ui::ComboBox cmbdays{*this, "cmbdays"};
  ui::TextBox txtname{*this, "txtname"};
  ui::Button cmdback{*this, "cmdback", "Decide Later", &frmTvOffer::cmdback_Click};
  ui::Button cmdreject{*this, "cmdreject", "Reject", &frmTvOffer::cmdreject_Click};
  ui::Button cmdaccept{*this, "cmdaccept", "Accept", &frmTvOffer::cmdaccept_Click};
};

}  // namespace

SCREEN(frmTvOffer)

}  // namespace grapplemont
