#include <algorithm>

#include "booking/screens/screenstep.h"
#include "booking/wizard/casting.h"
#include "booking/wizard/interviews.h"
#include "records/fields/wording.h"
#include "storylines/partners.h"

namespace grapplemont {

namespace {

/// Who is interviewed, or whom the interview is about: a list a seat. Whoever is chosen to speak
/// brings a partner and a manager along, as long as the player has not chosen these.
class frmIVPeople : public StepScreen {
 public:
  frmIVPeople(Game& game, WizardHost& host)
      : StepScreen(game, host), seats_(SeatsOf(buffer())), asksTargets_(wizard().Step == kTargets) {
    std::erase_if(
        seats_, [&](const Role& seat) { return (seat.From == Casting::Targets) != asksTargets_; });
  }

 private:
  static constexpr int kTargets = 3;  // the step

  int Seats() const { return static_cast<int>(seats_.size()); }
  /// Seats and their lists count from 1.
  const Role& Seat(int number) const { return seats_[static_cast<std::size_t>(number - 1)]; }

  void Prepare() override {
    for (int seat = 1; seat <= Seats(); ++seat) {
      const Role& is = Seat(seat);
      lstwres(seat).EmptyText = std::string(NobodyFor(is.From));
      FillRoster(lstwres(seat), WorkersFor(world(), is.From, buffer(), wizard().View), is.Optional);
    }
  }

  ui::Box Body() override {
    std::vector<ui::Box> lists;
    for (int seat = 1; seat <= Seats(); ++seat)
      lists.push_back(ui::Group(std::string(Seat(seat).Caption), {ui::Grow(lstwres(seat))}).Grow());
    return ui::Columns(std::move(lists));
  }

  void Picked(int seat) {
    chosen_[static_cast<std::size_t>(seat)] = true;
    const Worker* worker = world().FindWorker(lstwres(seat).Key());
    if (!worker || Seat(seat).From != Casting::Talkers) return;
    const std::vector<int> partners = PartnersOf(world(), worker->Uid);
    std::vector<std::string> along;
    for (int other = 1; other <= Seats(); ++other) {
      if (other == seat || chosen_[static_cast<std::size_t>(other)]) continue;
      const int partner = partners.empty() ? 0 : partners.front();
      const int uid = Seat(other).From == Casting::Talkers ? partner : int(worker->Manager);
      lstwres(other).Select(0);
      if (uid != 0) lstwres(other).SelectKey(uid);
      if (lstwres(other).Key() != 0) along.push_back(SideText(world(), {lstwres(other).Key()}));
    }
    lblpartner.Text =
        along.empty() ? "" : worker->Name + " brings along " + Joined(along, " and ") + ".";
  }

  int ListsAbreast() const override { return Seats(); }

  void Recall(const Segment& earlier) override {
    for (int seat = 1; seat <= Seats(); ++seat) {
      Choose(lstwres(seat), UidAt(earlier, Seat(seat).Place));
      chosen_[static_cast<std::size_t>(seat)] = true;
    }
  }

  Segment Draft() override {
    Segment chosen = buffer();
    for (int seat = 1; seat <= Seats(); ++seat) Cast(chosen, Seat(seat), {{}, lstwres(seat).Key()});
    return chosen;
  }

  bool Store() override {
    const Segment chosen = Draft();
    const std::string why = asksTargets_ ? WhyNotTargets(chosen) : WhyNotSpeakers(world(), chosen);
    if (!why.empty()) return Fail(why);
    buffer() = chosen;
    return true;
  }

  std::vector<Role> seats_;
  const bool asksTargets_;
  std::array<bool, 4> chosen_ = {};  // by seat
  ui::Array<ui::ListBox> lstwres{"lstwres", Seats(), [this](const std::string&, int seat) {
                                   return std::make_unique<ui::ListBox>(
                                       *this,
                                       (asksTargets_ ? "lstopp" : "lstwres") + std::to_string(seat),
                                       PeopleColumns(Seats()),
                                       [this, seat] {
                                         Picked(seat);
                                         ShowOutlook();
                                       },
                                       [this] { GoOn(); });
                                 }};
};

class frmIVPurpose : public StepScreen {
 public:
  using StepScreen::StepScreen;

 private:
  void Prepare() override {
    for (const int purpose : OfferedTalkPurposes(world(), buffer()))
      cmbwinner.Add({Says(kInterviewPurposes, purpose)}, purpose);
    cmbwinner.SelectKey(kTalkNone);
    lblturn.Text = TurnText();
    lblturn.Visible = !lblturn.Text->empty();
    lblturn.Colour = ui::Tone::Muted;
  }

  ui::Box Body() override { return ui::Group("", {ui::Grow(cmbwinner), lblturn}); }

  /// Beside a single worker it is the manager who turns.
  std::string TurnText() {
    const auto offered = OfferedTalkPurposes(world(), buffer());
    if (std::find(offered.begin(), offered.end(), kTalkTurn) == offered.end()) return {};
    std::vector<std::string> turns;
    for (const TurnCall& call : TalkTurns(world(), buffer()))
      turns.push_back(SideText(world(), {call.Turner}) + " on " + SideText(world(), {call.Other}));
    return turns.empty() ? "" : "Who turns with \"Turn\": " + Joined(turns) + ".";
  }

  void Recall(const Segment& earlier) override { Choose(cmbwinner, earlier.Purpose); }

  Segment Draft() override {
    Segment draft = buffer();
    draft.Purpose = cmbwinner.Key();
    return draft;
  }

  bool Store() override {
    buffer() = Draft();
    return true;
  }

  ui::Label lblturn{*this, "lblturn"};
  ui::ListBox cmbwinner{
      *this, "cmbwinner", {{"Purpose"}}, [this] { ShowOutlook(); }, [this] { GoOn(); }};
};

}  // namespace

STEP(MakeSeatsStep, frmIVPeople)
STEP(MakeTalkPurposeStep, frmIVPurpose)

}  // namespace grapplemont
