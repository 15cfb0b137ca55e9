#include <sstream>

#include "booking/screens/bookingscreens.h"

namespace grapplemont {

namespace {

/// One of the rehearsals that a forecast is made of, with every step of its numbers.
class frmForecast : public GameScreen {
 public:
  frmForecast(Game& game, const ToldSegment& typical)
      : GameScreen(game, "frmForecast", "Why This Forecast", {.Is = ui::Role::Dialog}) {
    lblfacts.Text = "The rehearsal of the middle rating. Chance moves the others around it. " +
                    std::string(kLuckLeftOut);
    using Style = ui::Report::Style;
    std::vector<ui::Report::Paragraph> told;
    for (const ToldFigure& figure : kToldFigures) {
      const Score& score = typical.*figure.Of;
      if (score.Steps().empty()) continue;
      told.push_back({Style::Strong, figure.Name});
      std::istringstream lines(WhyText(figure.Name, score));
      for (std::string line; std::getline(lines, line);) told.push_back({Style::Line, line});
    }
    txtwhy.Write(std::move(told));
  }

  ui::Page Layout() override { return PageOf(ui::Group("", {ui::Grow(txtwhy)}), &lblfacts); }
  void Return() override {}

 private:
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtwhy{*this, "txtwhy"};
};

}  // namespace

std::unique_ptr<ui::Screen> MakefrmForecast(Game& game, const ToldSegment& typical) {
  return std::make_unique<frmForecast>(game, typical);
}

}  // namespace grapplemont
