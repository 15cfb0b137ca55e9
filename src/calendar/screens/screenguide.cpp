#include "calendar/screens/screenguide.h"

#include "calendar/guide.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

GuideCard::GuideCard(ui::Screen& screen, Game& game)
    : game_(game),
      txtguide(screen, "txtguide"),
      cmdstep(screen, "cmdstep", "Show Me", [this] { game_.Desk().Open(page_); }),
      cmdguide(screen, "cmdguide", "Close The Guide", [this] { Close(); }) {
  txtguide.Brief = true;
  cmdguide.Tip = "The guide does not come back.";
}

ui::Box GuideCard::Layout() {
  return ui::Group("Your first show", {txtguide, ui::Columns({cmdstep, cmdguide, ui::Spacer()})});
}

/// What comes next stands out and is told in full, between what is done and what comes later: the
/// desk has room for no more.
void GuideCard::Show() {
  using Style = ui::Report::Style;
  std::string done, later;
  std::vector<ui::Report::Paragraph> words;
  page_.clear();
  int number = 0;
  for (const GuideLine& line : GuideLines(game_.World())) {
    const std::string title(line.Title), place = std::to_string(++number) + ". ";
    const auto add = [](std::string& to, const std::string& step) {
      to += (to.empty() ? "" : "  ") + step;
    };
    if (line.IsDone) {
      add(done, place + "Done. " + title);
    } else if (words.empty()) {
      words = {{Style::Strong, place + title}, {Style::Body, std::string(line.Says)}};
      page_ = line.Page;
    } else {
      add(later, place + title);
    }
  }
  if (!done.empty()) words.insert(words.begin(), {Style::Muted, done});
  if (!later.empty()) words.push_back({Style::Muted, later});
  txtguide.Visible = !words.empty();
  cmdguide.Visible = !words.empty();
  txtguide.Write(std::move(words));
  ShowWay();
}

/// A sheet comes with its day.
void GuideCard::ShowWay() {
  cmdstep.Visible = cmdguide.Visible && !page_.empty();
  EnableUnless(cmdstep,
               page_.ends_with("Booking") ? "Its sheet opens on the day of the show." : "");
}

void GuideCard::Close() {
  CloseGuide(game_.World());
  Show();
}

}  // namespace grapplemont
