#include <algorithm>

#include "futures/screens/futurescreens.h"
#include "futures/screens/screenspread.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

namespace {

constexpr int kThreeMonths = 91;
constexpr std::pair kNobody{0, 0};  // of the pairs of worlds, neither answer is ahead in any
const std::vector<std::string> kYesAndNo{"Yes", "No"};

/// A question, answered both ways in a hundred worlds.
class frmWhatIf : public GameScreen {
 public:
  frmWhatIf(Game& game, WhatIf asked)
      : GameScreen(game, "frmWhatIf", "What If", {.Is = ui::Role::Dialog, .Back = "Close"}),
        asked_(std::move(asked)) {
    lblquestion.Large = true;
    lblfacts.Text =
        "The next three months, each answer played in the same hundred copies of the world.";
    lblassumes.Text = HabitsText(world(), asked_.Assumes);
    lblassumes.Colour = ui::Tone::Muted;
    lblpairs.Colour = ui::Tone::Gold;
    spread_.SetAnswers(kYesAndNo);
    lstsizes.SetColumns(ChanceColumns("Class in three months", kYesAndNo));
    lstchances.SetColumns(ChanceColumns("Until then", kYesAndNo));
    for (ui::ListBox* list : {&lstsizes, &lstchances}) {
      list->Room = 5;
    }
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Rows(
            {ui::Group("", {lblquestion, lblanswers, lblpairs, playing_.Layout()}),
             ui::Columns({spread_.Picture().Grow(3),
                          ui::Rows({ui::Group("Size class", {ui::Grow(lstsizes)}).Grow(1),
                                    ui::Group("What can happen", {ui::Grow(lstchances)}).Grow(1)})
                              .Grow(2)})
                 .Grow(3),
             spread_.Table("The same in figures").Grow(2), lblassumes}),
        &lblfacts, {&cmdexport}, &playing_.Stop());  // what has been played until then is kept
    page.Then = &cmdback;
    page.Large = true;
    return page;
  }

  void Load() override {
    lblquestion.Text = asked_.Question;
    lblanswers.Text = "Yes: " + asked_.Yes.Words + ". No: " + asked_.No.Words + ".";
    playing_.Begin({asked_.Yes, asked_.No}, kThreeMonths);
  }
  void Return() override {}

 private:
  PlayedWorlds Worlds() const {
    const Futures& played = *playing_.Played();
    return {played.Morning(), played.Days(), kYesAndNo, played.Lives()};
  }

  void ShowWorlds() {
    PlayedWorlds worlds = Worlds();
    const bool any = !worlds.Lives.front().empty();
    EnableUnless(cmdexport, any ? "" : "No world is finished yet.");
    FillChances(lstsizes, SizesAtLast(worlds.Lives));
    std::vector<std::vector<Chance>> chances;
    for (const auto& lives : worlds.Lives) chances.push_back(ChancesOf(lives, *worlds.Morning));
    if (any) FillChances(lstchances, chances);
    for (ui::ListBox* list : {&lstsizes, &lstchances})
      list->EmptyText =
          playing_.IsPlaying() ? "Worlds are being played." : "No world was played to its end.";
    lblpairs.Text = any ? PairsText(worlds) : std::string();
    spread_.Show(std::move(worlds));
  }

  /// Who is ahead where chance was the same.
  static std::string PairsText(const PlayedWorlds& worlds) {
    const auto pairs = static_cast<int>(worlds.Lives.front().size());
    const std::pair image = PairsWon(worlds.Lives, Measure::Image, *worlds.Morning);
    const std::pair money = PairsWon(worlds.Lives, Measure::Money, *worlds.Morning);
    if (image == kNobody && money == kNobody)
      return "Your answer makes no difference in three months: image and money end the same" +
             InAll(pairs) + ".";
    return "After three months the image ends " + AheadText(image, pairs) + "; the money ends " +
           AheadText(money, pairs) + ".";
  }

  static std::string InAll(int pairs) { return " in all " + Counted(pairs, "pair"); }

  /// "higher with No in all 100 pairs", "the same in all 100 pairs (your answer makes no
  /// difference)", "higher with Yes in 61 of 100 pairs, with No in 30".
  static std::string AheadText(std::pair<int, int> won, int pairs) {
    const auto [yes, no] = won;
    if (won == kNobody) return "the same" + InAll(pairs) + " (your answer makes no difference)";
    if (yes == pairs || no == pairs)
      return (yes == pairs ? "higher with Yes" : "higher with No") + InAll(pairs);
    return "higher with Yes in " + std::to_string(yes) + " of " + Counted(pairs, "pair") +
           ", with No in " + std::to_string(no);
  }

  void cmdexport_Click() {
    const std::string wrote = ExportWorlds(game_, Worlds(), "What If", "what-if.csv");
    if (!wrote.empty()) lblfacts.Text = wrote;
  }

  const WhatIf asked_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label lblquestion{*this, "lblquestion"};
  ui::Label lblanswers{*this, "lblanswers"};
  PlayingCard playing_{*this, game_, [this] { ShowWorlds(); }};
  SpreadCard spread_{*this};
  ui::ListBox lstsizes{*this, "lstsizes"};
  ui::ListBox lstchances{*this, "lstchances"};
  ui::Label lblpairs{*this, "lblpairs"};
  ui::Label lblassumes{*this, "lblassumes"};
  ui::Button cmdexport{*this, "cmdexport", "Export", &frmWhatIf::cmdexport_Click};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmWhatIf(Game& game, WhatIf asked) {
  return std::make_unique<frmWhatIf>(game, std::move(asked));
}

void ConnectFutures(Game& game) {
  game.OpenWhatIf = [&game](WhatIf asked) {
    if (const std::string why = WhyNoFutures(game.World()); !why.empty())
      return game.Desk().Say("What If", why);
    game.Desk().Open(MakefrmWhatIf(game, std::move(asked)));
  };
}

}  // namespace grapplemont
