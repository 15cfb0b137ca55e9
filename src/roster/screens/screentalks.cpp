#include "roster/screens/screentalks.h"

#include <algorithm>

#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "records/world.h"
#include "roster/market.h"
#include "roster/staff.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

static constexpr int kWrittenRow = 1, kVerbalRow = 2;

OfferControls::OfferControls(ui::Screen& screen, Game& game, int highestWage)
    : hsnewwage(screen, "hsnewwage", 0, highestWage, ui::Handler([this] { ShowWage(); })),
      txtnewwage(screen, "txtnewwage"),
      cmbnewlength(screen, "cmbnewlength"),
      cmbnewtype(screen, "cmbnewtype"),
      lblafford(screen, "lblafford", "A month of it is more than all the money you have."),
      game_(game) {
  lblafford.Colour = ui::Tone::Red;
  for (const Term& length : kContractLengths)
    cmbnewlength.Add(std::string(length.Says), length.Code);
  cmbnewtype.Add(std::string(ContractWord(true)), kWrittenRow);
  cmbnewtype.Add(std::string(ContractWord(false)), kVerbalRow);
}

void OfferControls::ShowWage() {
  constexpr long long kThousand = 1000;
  const long long wage = hsnewwage.Value * kThousand;
  txtnewwage.Text = WageText(hsnewwage.Value);
  lblafford.Visible = wage > 0 && wage > game_.World().Player().Money;
}

void OfferControls::Begin(int wage, int months, bool written) {
  hsnewwage.Value = wage;
  cmbnewlength.SelectKey(months);
  cmbnewtype.Select(written ? kWrittenRow : kVerbalRow);
  ShowWage();
}

void OfferControls::Allow(const std::string& why) {
  EnableUnless({hsnewwage, cmbnewlength, cmbnewtype}, why);
}

ContractOffer OfferControls::Offer() const {
  ContractOffer offer;
  offer.Wage = hsnewwage.Value;
  offer.Months = cmbnewlength.Key();
  offer.Written = cmbnewtype.Selected() == kWrittenRow;
  return offer;
}

std::vector<ui::Box> OfferControls::Fields() {
  return {ui::Field("Wage in $1000", hsnewwage), ui::Field("A month", txtnewwage),
          ui::Field("Length", cmbnewlength), ui::Field("Type", cmbnewtype), lblafford};
}

TermLabels::TermLabels(ui::Screen& screen)
    : txtwage(screen, "txtwage"), txtlength(screen, "txtlength"), txttype(screen, "txttype") {}

void TermLabels::Show(int wage, int months, bool written) {
  txtwage.Text = WageText(wage) + " a month";
  txtlength.Text = MonthsText(months);
  txttype.Text = ContractWord(written);
}

std::vector<ui::Box> TermLabels::Fields() {
  return {ui::Field("Wage", txtwage), ui::Field("Length", txtlength), ui::Field("Type", txttype)};
}

TalkScreen::TalkScreen(Game& game, std::string name, int uid, Counterpart with)
    : GameScreen(game, std::move(name), with.Name, {.Is = ui::Role::Dialog}),
      uid_(uid),
      with_(std::move(with)) {
  txtwhy.Brief = true;
}

void TalkScreen::Load() {
  why_ = {};
  const Remark refusal = Refusal(why_);
  closed_ = said_ = refusal.Text;
  Begin();
  Show();
  EnableUnless(cmdwhatif, closed_);
  ShowWhyNot();
  if (!closed_.empty()) desk().Say(refusal.Title, refusal.Text);
}

void TalkScreen::Return() {
  if (GoesOn()) Show();
}

bool TalkScreen::GoesOn() {
  const std::string why = WhyOver();
  if (why.empty()) return true;
  Close();
  desk().Say(kTalksTitle, why);
  return false;
}

ui::Page TalkScreen::TalkPage(std::vector<ui::Box> beside, std::vector<ui::Button*> actions,
                              ui::Button& offer) {
  beside.insert(beside.begin(), ui::Group("", {ui::Grow(txtpage)}).Grow(3).AfterOthers());
  ui::Page page = PageOf(ui::Columns(std::move(beside)), &lblfacts, std::move(actions), &offer);
  page.Large = true;
  return page;
}

std::vector<ui::Box> TalkScreen::WhyParts() {
  return {ui::Columns({cmdwhy, cmdwhynot, cmdwhatif, ui::Spacer()}), txtwhy};
}

void TalkScreen::ShowWhyNot() {
  EnableUnless(cmdwhynot, said_.empty() ? "Nothing has been turned down yet." : "");
  txtwhy.Write("");
}

void TalkScreen::Refuse(const std::vector<Remark>& remarks, Decision why) {
  why_ = std::move(why);
  said_ = remarks.front().Text;
  ShowWhyNot();
  SayAll(remarks);
}

void TalkScreen::cmdwhy_Click() {
  const NumberWriter inDollars = [](long long thousands) { return Dollars(thousands * 1000); };
  if (GoesOn()) txtwhy.WriteLines(WhyText("a month", WageSteps(), inDollars));
}

void TalkScreen::cmdwhatif_Click() {
  if (!GoesOn()) return;
  auto weighed = Weighed();
  if (const auto* why = std::get_if<std::string>(&weighed)) {
    desk().Objects(*why);
    return;
  }
  game_.OpenWhatIf(std::get<WhatIf>(std::move(weighed)));
}

std::string TalkScreen::TermsText(const ContractOffer& offer) {
  return std::string(Says(kContractLengths, offer.Months)) + " at " + WageText(offer.Wage) +
         " a month";
}

void TalkScreen::ShowFacts(const std::string& facts) {
  lblfacts.Text =
      closed_.empty() ? facts + " You have " + Dollars(world().Player().Money) + "." : closed_;
}

void TalkScreen::Agree(std::string_view name, bool written) {
  const char* how = written ? " signs the contract!" : " agrees to the contract!";
  desk().Say("Accepted!", std::string(name) + how);
  Close();
}

void TalkScreen::SayAll(const std::vector<Remark>& remarks) {
  for (const Remark& remark : remarks) desk().Say(remark.Title, remark.Text);
}

namespace {

/// A show that is being booked or held counts on the people it began with.
constexpr const char* kShowScreens[] = {"frmBooking", "frmPPVBooking", "frmMatchOutput",
                                        "frmPostShow", "frmIncident"};

bool IsAmidShow(Game& game) {
  const auto isShow = [](const auto& screen) {
    return std::find(std::begin(kShowScreens), std::end(kShowScreens), screen->Name()) !=
           std::end(kShowScreens);
  };
  const auto& screens = game.Desk().Screens();
  return std::ranges::any_of(screens, isShow);
}

}  // namespace

std::string WhyNotNow(Game& game) {
  return IsAmidShow(game) ? "There is a show to see to first." : "";
}

std::string WhyNoTalks(Game& game, const Worker* worker) {
  if (!worker) return kNobodyChosen;
  if (IsSettled(*worker))
    return worker->Name + " is unsackable: the agreement has no end, and nothing to talk about.";
  return WhyNotNow(game);
}

void OpenTalks(Game& game, const Worker& worker) {
  const World& world = game.World();
  const std::string why = WhyTalksOver(world, &worker, {worker.Name.Str(), worker.Employer});
  if (!why.empty()) return game.Desk().Say(kTalksTitle, why);
  game.Desk().Open(WorksForPlayer(world, worker) ? MakefrmWresContract(game, worker)
                                                 : MakefrmOtherContract(game, worker));
}

void OpenTalks(Game& game, const Staff& staff) {
  const std::string why = WhyNoStaffTalks(staff);
  if (!why.empty()) return game.Desk().Say(kTalksTitle, why);
  game.Desk().Open(MakefrmStaffContract(game, staff));
}

void TurnShortlist(Game& game, int workerUid) {
  World& world = game.World();
  const Worker* worker = world.FindWorker(workerUid);
  if (IsShortlisted(world, workerUid)) return RemoveFromShortlist(world, workerUid);
  if (!worker) return;
  if (const std::string why = WhyNotShortlist(world, *worker); !why.empty())
    return game.Desk().Say("Shortlist", why);
  AddToShortlist(world, workerUid);
}

void ShowShortlistButton(Game& game, const Worker* worker, ui::Button& button) {
  const World& world = game.World();
  const bool listed = worker && IsShortlisted(world, worker->Uid);
  const bool own = worker && WorksForPlayer(world, *worker);
  button.Text = listed ? "Take Off Shortlist" : "Put On Shortlist";
  EnableUnless(button, !worker          ? kNobodyChosen
                       : own && !listed ? worker->Name + " works for you."
                                        : "");
}

}  // namespace grapplemont
