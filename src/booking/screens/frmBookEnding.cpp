#include <algorithm>

#include "booking/screens/screenstep.h"
#include "booking/wizard/objections.h"
#include "booking/wizard/offers.h"

namespace grapplemont {

namespace {

/// Who wins, and who loses in which order. In a match between two the loser needs no box.
class frmBookWinner : public MatchStepScreen {
 public:
  frmBookWinner(Game& game, WizardHost& host)
      : MatchStepScreen(game, host), form_(ResultFormOf(buffer())) {}

 private:
  void Prepare() override {
    FillPeople(lstring, WorkersOf(PeopleOf(buffer())));
    FillBox(cmbwinner);
    if (OffersDraw(buffer())) cmbwinner.Add("Draw");
    for (int box = 1; box <= form_.Losers; ++box) {
      if (form_.MayBeNone) cmbloser(box).Add("None");
      FillBox(cmbloser(box));
    }
    cmbwinner.Select(1);
    SuggestLosers();
    ShowPicks();
  }

  ui::Box Body() override {
    std::vector<ui::Box> boxes = {ui::Field("Winner", cmbwinner)};
    for (int box = 1; box <= form_.Losers; ++box)
      boxes.push_back(ui::Field(LoserLabel(box), cmbloser(box)));
    boxes.push_back(ui::Spacer());
    return ui::Columns({ui::Group("Result", std::move(boxes)).Grow(1),
                        ui::Group("In the ring", {ui::Grow(lstring)}).Grow(3)});
  }

  std::optional<ui::Box> Voices() override { return Objections(); }

  bool Store() override { return Accept(Draft(), kResultStep); }

  std::string LoserLabel(int box) {
    if (form_.Losers > 1) return "Loser #" + std::to_string(box);
    return buffer().Style == kSpecial ? "Runner-up" : "Loser";
  }

  void FillBox(ui::ComboBox& box) {
    const auto sides = SidesOf(buffer());
    for (const int uid : ResultCandidates(buffer()))
      box.Add(form_.Teams
                  ? SideText(world(), sides[static_cast<std::size_t>(SideOf(buffer(), uid) - 1)])
                  : SideText(world(), {uid}),
              uid);
  }

  void SuggestLosers() {
    const std::vector<int> others = SuggestedLosers(buffer(), cmbwinner.Key());
    for (int box = 1; box <= form_.Losers; ++box) {
      const auto i = static_cast<std::size_t>(box - 1);
      i < others.size() ? cmbloser(box).SelectKey(others[i]) : cmbloser(box).Select(1);
    }
  }

  void Recall(const Segment& earlier) override {
    // A draw is the row of the key 0.
    if (earlier.Winner != 0 || OffersDraw(buffer())) Choose(cmbwinner, earlier.Winner);
    SuggestLosers();
    const std::vector<int> losers = NamedLosers(earlier);
    for (int box = 1; box <= form_.Losers && box <= std::ssize(losers); ++box)
      Choose(cmbloser(box), losers[static_cast<std::size_t>(box - 1)]);
    ShowPicks();
  }

  Segment Draft() override {
    Segment draft = buffer();
    std::vector<int> losers;
    for (int box = 1; box <= form_.Losers; ++box) losers.push_back(cmbloser(box).Key());
    StoreResult(draft, cmbwinner.Key(), losers);
    return draft;
  }

  void cmbwinner_Click() {
    if (!hasPickedLoser_ && cmbwinner.Key() != 0) SuggestLosers();
    ShowPicks();
  }

  /// Whoever is picked in the ring wins.
  void lstring_Click() {
    for (const int uid : ResultCandidates(buffer()))
      if (uid == lstring.Key() ||
          (form_.Teams && SideOf(buffer(), uid) == SideOf(buffer(), lstring.Key())))
        cmbwinner.SelectKey(uid);
    cmbwinner_Click();
  }

  void cmbloser_Click() {
    hasPickedLoser_ = true;
    ShowPicks();
  }

  void ShowPicks() {
    const bool draw = cmbwinner.Key() == 0;
    for (int box = 1; box <= form_.Losers; ++box) {
      cmbloser(box).Enabled = !draw;
      cmbloser(box).Tip = draw ? "Nobody loses in a draw." : "";
    }
    const bool stands = SideOf(buffer(), lstring.Key()) == SideOf(buffer(), cmbwinner.Key());
    if (!form_.Teams || !stands) lstring.SelectKey(cmbwinner.Key());
    ShowObjections(Draft(), kResultStep);
    ShowOutlook();
  }

  const ResultForm& form_;
  bool hasPickedLoser_ = false;
  ui::ComboBox cmbwinner{*this, "cmbwinner", &frmBookWinner::cmbwinner_Click};
  ui::Array<ui::ComboBox> cmbloser{
      "cmbloser", form_.Losers, [this](const std::string&, int box) {
        return std::make_unique<ui::ComboBox>(
            *this, form_.Losers > 1 ? "cmbloser" + std::to_string(box) : "cmbloser",
            &frmBookWinner::cmbloser_Click);
      }};
  ui::ListBox lstring{*this, "lstring", PeopleColumns(2), [this] { lstring_Click(); },
                      [this] { GoOn(); }};
};

constexpr int kDrawFinishes = 3;

/// A step that picks a code of how the match ends, and perhaps who runs in for it.
struct EndingRow {
  MatchStep Does;
  std::string_view Called, Lowered, List;
  Phrases (*Says)(int style);
  std::vector<int> (*Offers)(const World&, const Segment&);
  Word Segment::*Field;
  bool PicksLast;  // "Nothing" and "None" stand last and are preselected
};
constexpr EndingRow kEndings[] = {
    {kFinishStep, "Finish", "finish", "lstfinish", FinishesOf, OfferedFinishes, &Segment::Finish,
     false},
    {kAftermathStep, "Aftermath", "aftermath", "lstafter", AftermathsOf, OfferedAftermaths,
     &Segment::Aftermath, true},
    {kPurposeStep, "Purpose", "purpose", "lstpurpose", PurposesOf, OfferedPurposes,
     &Segment::Purpose, true},
};

class frmBookEnding : public MatchStepScreen {
 public:
  frmBookEnding(Game& game, WizardHost& host)
      : MatchStepScreen(game, host),
        row_(kEndings[wizard().Step - kFinishStep]),
        runIns_(row_.Does == kPurposeStep ? 0 : FindMatchForm(buffer().Style)->RunIns) {
    lblnobody.Colour = ui::Tone::Muted;
  }

 private:
  void Prepare() override {
    const Phrases phrases = row_.Says(buffer().Style);
    for (const int code : row_.Offers(world(), buffer()))
      lstcode.Add({PhraseText(world(), buffer(), phrases, code)}, code);
    lstcode.Select(FirstPick());
    for (int list = 1; list <= runIns_; ++list) {
      FillRoster(lstrun(list), RunIns(), true);
      if (runIns_ > 1) lstrun(list).Least = 2;  // one below the other
    }
    ShowPicks();
  }

  int FirstPick() {
    if (row_.PicksLast) return lstcode.Count();
    // The finishes of a draw stand behind the turns, which nobody should book unawares.
    return IsDraw(buffer()) ? lstcode.Count() - kDrawFinishes + 1 : 1;
  }

  ui::Box Body() override {
    std::vector<ui::Box> tables = {ui::Group("", {ui::Grow(lstcode)}).Grow()}, runIns;
    constexpr const char* kTitles[] = {"Who runs in", "Who runs in as well"};
    for (int list = 1; list <= runIns_; ++list) {
      std::vector<ui::Box> inside = {ui::Grow(lstrun(list))};
      if (list == 1) inside.insert(inside.begin(), lblnobody);
      runIns.push_back(ui::Group(kTitles[list - 1], std::move(inside)).Grow());
    }
    // One below the other: the words of the codes need the width.
    if (!runIns.empty()) tables.push_back(ui::Rows(std::move(runIns)).Grow());
    return ui::Columns(std::move(tables));
  }

  std::optional<ui::Box> Voices() override { return Objections(); }

  bool Store() override { return Accept(Draft(), row_.Does); }

  int ListsAbreast() const override { return runIns_ > 0 ? 2 : 1; }

  /// Whoever has run in for the finish is in the ring already.
  std::vector<const Worker*> RunIns() {
    auto roster = RunInRoster(world(), buffer(), wizard().View);
    const std::vector<int> in = FinishRunIns(buffer());
    if (row_.Does == kAftermathStep)
      std::erase_if(roster,
                    [&](auto* worker) { return std::ranges::count(in, int(worker->Uid)) > 0; });
    return roster;
  }

  bool NeedsRunIn() {
    return row_.Does == kFinishStep ? NeedsFinishRunIn(buffer().Style, lstcode.Key())
                                    : NeedsAftermathRunIn(buffer().Style, lstcode.Key());
  }

  std::vector<Word*> RunInsOf(Segment& match) {
    if (row_.Does == kAftermathStep) return AftermathRunIns(match);
    return row_.Does == kFinishStep ? std::vector<Word*>{&match.Other1, &match.Other2}
                                    : std::vector<Word*>();
  }

  void Recall(const Segment& earlier) override {
    Segment held = row_.Does == kFinishStep ? BeforeAftermath(earlier) : earlier;
    Choose(lstcode, held.*row_.Field);
    const std::vector<Word*> fields = RunInsOf(held);
    for (int list = 1; list <= runIns_ && list <= std::ssize(fields); ++list)
      Choose(lstrun(list), *fields[static_cast<std::size_t>(list - 1)]);
    ShowPicks();
  }

  Segment Draft() override {
    Segment draft = buffer();
    draft.*row_.Field = lstcode.Key();
    const std::vector<Word*> fields = RunInsOf(draft);
    for (int list = 1; list <= runIns_ && NeedsRunIn(); ++list)
      *fields[static_cast<std::size_t>(list - 1)] = lstrun(list).Key();
    return draft;
  }

  void ShowPicks() {
    const bool needed = NeedsRunIn();
    lblnobody.Text = "Nobody runs in for this " + std::string(row_.Lowered) + ".";
    lblnobody.Visible = runIns_ > 0 && !needed;
    for (int list = 1; list <= runIns_; ++list)
      EnableUnless(lstrun(list), needed ? "" : lblnobody.Text.Get());
    ShowObjections(Draft(), row_.Does);
    ShowOutlook();
  }

  const EndingRow& row_;
  const int runIns_;
  ui::Label lblnobody{*this, "lblnobody"};
  ui::ListBox lstcode{*this,
                      std::string(row_.List),
                      {{std::string(row_.Called)}},
                      [this] { ShowPicks(); },
                      [this] { GoOn(); }};
  ui::Array<ui::ListBox> lstrun{"lstrun", runIns_, [this](const std::string&, int list) {
                                  return std::make_unique<ui::ListBox>(
                                      *this, "lstrun" + std::to_string(list), PeopleColumns(3),
                                      [this] { ShowPicks(); }, [this] { GoOn(); });
                                }};
};

}  // namespace

STEP(MakeResultStep, frmBookWinner)
STEP(MakeEndingStep, frmBookEnding)

}  // namespace grapplemont
