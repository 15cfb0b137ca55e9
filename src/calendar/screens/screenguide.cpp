#include "calendar/screens/screenguide.h"

#include "calendar/guide.h"

namespace grapplemont {

GuideCard::GuideCard(ui::Screen& screen, Game& game)
    : game_(game),
      txtguide(screen, "txtguide"),
      cmdguide(screen, "cmdguide", "Close The Guide", [this] { Close(); }) {
  txtguide.Brief = true;
  cmdguide.Tip = "The guide does not come back.";
}

ui::Box GuideCard::Layout() {
  return ui::Group("Your first week", {txtguide, cmdguide});
}

/// What comes next stands out and is told in full; what is done says so.
void GuideCard::Show() {
  using Style = ui::Report::Style;
  std::vector<ui::Report::Paragraph> words;
  bool hasNext = false;
  int number = 0;
  for (const GuideLine& line : GuideLines(game_.World())) {
    const bool isNext = !line.IsDone && !hasNext;
    hasNext = hasNext || isNext;
    const Style style = line.IsDone ? Style::Muted : isNext ? Style::Strong : Style::Line;
    words.push_back({style, std::to_string(++number) + ". " + (line.IsDone ? "Done. " : "") +
                                std::string(line.Title)});
    if (isNext) words.push_back({Style::Body, std::string(line.Says)});
  }
  txtguide.Visible = !words.empty();
  cmdguide.Visible = !words.empty();
  txtguide.Write(std::move(words));
}

void GuideCard::Close() {
  CloseGuide(game_.World());
  Show();
}

}  // namespace grapplemont
