#include "roster/screens/screentalk.h"

#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kWrittenRow = 1, kVerbalRow = 2;

}  // namespace

OfferControls::OfferControls(ui::Screen& screen, int highestWage)
    : hsnewwage(screen, "hsnewwage", 0, highestWage, ui::Handler([this] { ShowWage(); })),
      txtnewwage(screen, "txtnewwage"),
      cmbnewlength(screen, "cmbnewlength"),
      cmbnewtype(screen, "cmbnewtype") {
  for (const Term& length : kContractLengths)
    cmbnewlength.Add(std::string(length.Says), length.Code);
  cmbnewtype.Add(std::string(ContractWord(true)), kWrittenRow);
  cmbnewtype.Add(std::string(ContractWord(false)), kVerbalRow);
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
  return {ui::Field("Wage", hsnewwage), ui::Field("A month", txtnewwage),
          ui::Field("Length", cmbnewlength), ui::Field("Type", cmbnewtype)};
}

TalkScreen::TalkScreen(Game& game, std::string name, int uid, Counterpart with)
    : Screen(game.Desk(), std::move(name), with.Name, ui::Role::Dialog),
      game_(game),
      uid_(uid),
      with_(std::move(with)) {}

void TalkScreen::Load() {
  const Remark refusal = Refusal();
  closed_ = refusal.Text;
  Begin();
  Show();
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

void TalkScreen::SayAll(const std::vector<Remark>& remarks) {
  for (const Remark& remark : remarks) desk().Say(remark.Title, remark.Text);
}

}  // namespace grapplemont
