#include <algorithm>
#include <array>

#include "business/finance.h"
#include "business/sponsors.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/whatif.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

struct MoralityBand {
  int From;
  const char* Words;
  ui::Tone Colour;
};
constexpr std::array<MoralityBand, 3> kMoralities = {
    {{70, "High", ui::Tone::Amber}, {30, "Medium", ui::Tone::Plain}, {0, "Low", ui::Tone::Green}}};

ui::Cell MoralityCell(int morality) {
  for (const MoralityBand& band : kMoralities)
    if (morality >= band.From) return {static_cast<double>(morality), band.Words, band.Colour};
  return "";
}

ui::Cell PayCell(int thousands) {
  return {static_cast<double>(thousands), Dollars(thousands * 1000LL)};
}

/// One of three, so that no two deals need sound alike.
std::string Welcome(World& world) {
  constexpr std::array<const char*, 3> kLines = {
      "We look forward to working with you.",
      "We hope this deal will be beneficial to both parties.", "Here's to a great partnership!"};
  return kLines[static_cast<std::size_t>(world.Prose().Draw(3) - 1)];
}

using K = ui::ColumnKind;

struct SponsorRow {
  const World& In;
  const Sponsor& Of;
  bool IsFree() const { return Of.Promotion == 0; }
};

ui::Cell HolderCell(const SponsorRow& row) {
  if (row.IsFree()) return {"Free", ui::Tone::Green};
  return {PromotionInitials(row.In, row.Of.Promotion),
          row.Of.Promotion == row.In.PlayerUid() ? ui::Tone::Gold : ui::Tone::Plain};
}

const CellColumns<SponsorRow> kSponsorTable = {
    {{"Name", K::Text, 4}, [](const SponsorRow& row) { return row.Of.Name.View(); }},
    {{"Pay", K::Number, 2, "For an Event."},
     [](const SponsorRow& row) { return PayCell(row.Of.Pay); }},
    {{"Morality", K::Tag, 2}, [](const SponsorRow& row) { return MoralityCell(row.Of.Morality); }},
    {{"Bears risk of", K::Number, 2, "The highest risk that the sponsor bears in a product."},
     [](const SponsorRow& row) { return ui::Cell(100 - row.Of.Morality); }},
    {{"With", K::Text, 1, "The promotion that has its deal."}, HolderCell},
    {{"Months", K::Number, 1, "Months left of the deal."}, [](const SponsorRow& row) {
       return row.IsFree() ? ui::Cell("") : ui::Cell(row.Of.ContractMonths);
     }}};

struct PlaceRow {
  bool IsMain;
  const Sponsor* Of;  // nullptr for a free place
};

const CellColumns<PlaceRow> kPlaceTable = {
    {{"Place", K::Text, 1}, [](const PlaceRow& row) { return row.IsMain ? "Main" : "Minor"; }},
    {{"Sponsor", K::Text, 3},
     [](const PlaceRow& row) {
       return row.Of ? ui::Cell(row.Of->Name.View()) : ui::Cell("None", ui::Tone::Muted);
     }},
    {{"TV show", K::Number, 2, "Pay for a television show."},
     [](const PlaceRow& row) {
       return row.Of ? PayCell(SponsorPayForTv(*row.Of, row.IsMain)) : ui::Cell("");
     }},
    {{"Event", K::Number, 2, "Pay for an Event."},
     [](const PlaceRow& row) { return row.Of ? PayCell(row.Of->Pay) : ui::Cell(""); }},
    {{"Months", K::Number, 1, "Months left of the deal."},
     [](const PlaceRow& row) { return row.Of ? ui::Cell(row.Of->ContractMonths) : ui::Cell(""); }}};

/// All sponsors, the four places of the player's promotion, and the deals between them.
class frmFedSponsor : public GameScreen {
 public:
  explicit frmFedSponsor(Game& game)
      : GameScreen(game, "frmFedSponsor", "Sponsors", {.Manages = true}) {
    txtwhy.Brief = true;
    BackBefore(cmdwhatif);
  }

  ui::Page Layout() override {
    return {
        .Facts = &lblfacts,
        .Actions = {&cmdback, &cmdwhatif, &cmd2, &cmd1},
        .Main = &cmd1,
        .Cancel = &cmdback,
        .Body = ui::Columns(
            {ui::Group("All sponsors", {chkfilter, chkwilling, ui::Grow(lstsponsors)}).Grow(5),
             ui::Rows({ui::Group("Our sponsors", {ui::Grow(lstplaces)}).Grow(2),
                       ui::Group("The deal", {lblsponsor, lblslogan, lbldeal, txtwhy, ui::Spacer()})
                           .Grow(1)})
                 .Grow(4)})};
  }

  void Return() override {
    lblfacts.Text = FinanceText(player()) + ". The risk of our product is " +
                    std::to_string(player().Risk) + "%.";
    ShowSponsors();
    ShowPlaces();
    ShowChoice();
  }

 private:
  Promotion& player() { return world().Player(); }
  Sponsor* chosen() { return world().FindSponsor(lstsponsors.Key()); }
  int PlaceOf(const Sponsor* sponsor) { return sponsor ? SponsorPlace(player(), sponsor->Uid) : 0; }

  bool IsShown(const Sponsor& sponsor) {
    const bool isFree = sponsor.Promotion == 0;
    if (chkwilling.Checked) return isFree && AnswerOf(sponsor, player()) == SponsorAnswer::Accepts;
    return !chkfilter.Checked || isFree || sponsor.Promotion == player().Uid;
  }

  void ShowSponsors() {
    std::vector<SponsorRow> rows;
    for (const Sponsor& sponsor : world().Sponsors())
      if (IsShown(sponsor)) rows.push_back({world(), sponsor});
    lstsponsors.EmptyText = world().Sponsors().Count() == 0 ? "There are no sponsors in this world."
                            : chkwilling.Checked
                                ? "Nobody would sign today. Image and a tamer product help."
                                : "No sponsor is free. Show all of them to see whose they are.";
    FillTable(lstsponsors, kSponsorTable, rows,
              [](const SponsorRow& row) { return int(row.Of.Uid); });
  }

  void ShowPlaces() {
    std::vector<PlaceRow> rows;
    for (int place = kMainSponsor; place <= kSponsorPlaces; ++place)
      rows.push_back({place == kMainSponsor, SponsorAt(world(), player(), place)});
    FillPlaces(lstplaces, kPlaceTable, rows);
  }

  void ShowChoice() {
    const Sponsor* sponsor = chosen();
    const int place = shownPlace_ = PlaceOf(sponsor);
    lstplaces.SelectKey(place);
    cmd1.Text = place == 0              ? "Offer Main Sponsorship"
                : place == kMainSponsor ? "Demote To Minor Sponsor"
                                        : "Upgrade To Main Sponsor";
    cmd2.Text = place == 0 ? "Offer Minor Sponsorship" : "End Sponsorship Deal";
    EnableUnless(cmd1, WhyNotFirst(sponsor, place));
    EnableUnless(cmd2, WhyNotSecond(sponsor, place));
    EnableUnless(cmdwhatif, WhyNoWhatIf(sponsor, place));
    ShowDeal(sponsor, place);
  }

  void ShowDeal(const Sponsor* sponsor, int place) {
    txtwhy.Write("");
    lblsponsor.Text = sponsor ? sponsor->Name.Str() : "Choose a sponsor.";
    lblslogan.Text = sponsor ? sponsor->Slogan.Str() : "";
    lbldeal.Text = !sponsor     ? ""
                   : place != 0 ? "To end the deal now would cost " +
                                      Dollars(EndingCost(*sponsor)) + "." + StaysText(place)
                                : "Pays " + Dollars(SponsorPayForTv(*sponsor, true) * 1000LL) +
                                      " a television show as the main sponsor, " +
                                      Dollars(SponsorPayForTv(*sponsor, false) * 1000LL) +
                                      " as a minor one, and " + Dollars(sponsor->Pay * 1000LL) +
                                      " an Event as either.";
  }

  /// Why a sponsor of ours keeps its place; empty where it could change.
  std::string StaysText(int place) {
    if (WhyNotFirst(chosen(), place).empty()) return {};
    return place == kMainSponsor ? " They stay our main sponsor while we have three minor ones."
                                 : " They stay a minor sponsor while we have a main one.";
  }

  /// Why the sponsor cannot be talked to at all.
  std::string WhyNoTalk(const Sponsor* sponsor, int place) {
    if (!sponsor)
      return lstsponsors.Key() == 0 ? "Choose a sponsor first." : "This sponsor has gone.";
    if (place != 0 || sponsor->Promotion == 0) return {};
    return sponsor->Name + " have a deal with " + PromotionInitials(world(), sponsor->Promotion) +
           ".";
  }

  std::string WhyNotFirst(const Sponsor* sponsor, int place) {
    if (std::string why = WhyNoTalk(sponsor, place); !why.empty()) return why;
    if (place == 0 && SponsorAt(world(), player(), kMainSponsor))
      return "We have a main sponsor already.";
    if (place == kMainSponsor && MinorPlace() == 0) return "We have three minor sponsors already.";
    return {};
  }

  std::string WhyNotSecond(const Sponsor* sponsor, int place) {
    if (std::string why = WhyNoTalk(sponsor, place); !why.empty()) return why;
    return place == 0 && MinorPlace() == 0 ? "We have three minor sponsors already."
                                           : std::string();
  }

  std::string WhyNoWhatIf(const Sponsor* sponsor, int place) {
    if (std::string why = WhyNoTalk(sponsor, place); !why.empty()) return why;
    if (place != 0) return "They are a sponsor of ours already.";
    return FreeSponsorPlace(world(), player()) == 0 ? "All our places are taken." : std::string();
  }

  void cmdwhatif_Click() {
    const Sponsor& sponsor = *chosen();
    const int place = FreeSponsorPlace(world(), player());
    const auto sign = [uid = int(sponsor.Uid), place](World& copy) {
      SignSponsor(copy, copy.Player(), *copy.FindSponsor(uid), place);
    };
    game_.OpenWhatIf({"Sign " + sponsor.Name + " as " +
                          (place == kMainSponsor ? "our main sponsor?" : "a minor sponsor?"),
                      {"they sign", sign},
                      {"the office fills the place by habit", {}},
                      sponsor.Name + " agrees"});
  }

  int MinorPlace() { return FreeSponsorPlace(world(), player(), kMainSponsor + 1); }

  void lstplaces_Click() {
    const Sponsor* sponsor = SponsorAt(world(), player(), std::max(lstplaces.Key(), 1));
    lstsponsors.SelectKey(sponsor ? int(sponsor->Uid) : 0);
    const int place = lstplaces.Key();
    ShowChoice();
    lstplaces.SelectKey(place);
  }

  /// Whether what the button says can still be done; shows how things stand now if it cannot.
  bool Stands(int place, const std::string& why) {
    if (why.empty() && place == shownPlace_) return true;
    desk().Say("Error!", why.empty() ? "This deal has changed in the meantime." : why);
    Return();
    return false;
  }

  void cmd1_Click() {
    Sponsor* sponsor = chosen();
    const int place = PlaceOf(sponsor);
    if (!Stands(place, WhyNotFirst(sponsor, place))) return;
    if (place == 0) return Offer(*sponsor, kMainSponsor);
    MoveSponsor(player(), sponsor->Uid, place == kMainSponsor ? MinorPlace() : kMainSponsor);
    Return();
  }

  void cmd2_Click() {
    Sponsor* sponsor = chosen();
    const int place = PlaceOf(sponsor);
    if (!Stands(place, WhyNotSecond(sponsor, place))) return;
    place == 0 ? Offer(*sponsor, MinorPlace()) : End(*sponsor);
  }

  void Offer(Sponsor& sponsor, int place) {
    Decision decision;
    const SponsorAnswer answer = AnswerOf(sponsor, player(), &decision);
    const std::string why = WhyText(
        answer == SponsorAnswer::Accepts ? "They accept the deal." : "They reject the deal.",
        decision);
    txtwhy.WriteLines(why);
    switch (answer) {
      case SponsorAnswer::TooRisky:
        return desk().Say("Rejection!",
                          "They reject the deal. They feel the risky nature of your product could "
                          "harm their image.");
      case SponsorAnswer::Declines:
        return desk().Say("Rejection!", "They reject the deal.");
      case SponsorAnswer::Accepts:
        desk().Say("Accepted!", "They accept the deal. " + Welcome(world()));
        SignSponsor(world(), player(), sponsor, place);
        Return();
        return txtwhy.WriteLines(why);
    }
  }

  void End(Sponsor& sponsor) {
    if (!desk().Ask("End deal?",
                    "Are you sure? This would cost $" + std::to_string(EndingCost(sponsor)) +
                        " in legal payments!",
                    ui::Default::No))
      return;
    EndSponsorship(world(), player(), sponsor);
    desk().Say("Done!", "Sponsorship ended!");
    Return();
  }

  int shownPlace_ = 0;  // of the chosen sponsor, as the buttons say
  ui::Label lblfacts{*this, "lblfacts"};
  ui::CheckBox chkfilter{*this, "chkfilter", "Only those who are free, and ours", false,
                         &frmFedSponsor::Return};
  ui::CheckBox chkwilling{*this, "chkwilling", "Only those who would sign today", false,
                          &frmFedSponsor::Return};
  ui::ListBox lstsponsors{*this, "lstsponsors", HeadingsOf(kSponsorTable),
                          &frmFedSponsor::ShowChoice};
  ui::ListBox lstplaces{*this, "lstplaces", HeadingsOf(kPlaceTable),
                        &frmFedSponsor::lstplaces_Click};
  ui::Label lblsponsor{*this, "lblsponsor"};
  ui::Label lblslogan{*this, "lblslogan"};
  ui::Label lbldeal{*this, "lbldeal"};
  ui::Report txtwhy{*this, "txtwhy"};  // of their answer
  ui::Button cmdwhatif{*this, "cmdwhatif", "What If", &frmFedSponsor::cmdwhatif_Click};
  ui::Button cmd1{*this, "cmd1", "Offer Main Sponsorship", &frmFedSponsor::cmd1_Click};
  ui::Button cmd2{*this, "cmd2", "Offer Minor Sponsorship", &frmFedSponsor::cmd2_Click};
};

}  // namespace

SCREEN(frmFedSponsor)

}  // namespace grapplemont
