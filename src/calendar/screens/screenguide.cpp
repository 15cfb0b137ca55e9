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

/// What comes next stands out and is told in full; what is done says so.
void GuideCard::Show() {
  using Style = ui::Report::Style;
  std::vector<ui::Report::Paragraph> words;
  bool hasNext = false;
  page_.clear();
  int number = 0;
  for (const GuideLine& line : GuideLines(game_.World())) {
    const bool isNext = !line.IsDone && !hasNext;
    hasNext = hasNext || isNext;
    const Style style = line.IsDone ? Style::Muted : isNext ? Style::Strong : Style::Line;
    words.push_back({style, std::to_string(++number) + ". " + (line.IsDone ? "Done. " : "") +
                                std::string(line.Title)});
    if (!isNext) continue;
    words.push_back({Style::Body, std::string(line.Says)});
    page_ = line.Page;
  }
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
