#include "show/holdshow.h"
#include "show/recap.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// What the show came to.
class frmPostShow : public ui::Screen {
 public:
  explicit frmPostShow(Game& game)
      : Screen(game.Desk(), "frmPostShow", "Recap Sheet"), game_(game) {}

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblrating;
    page.Actions = {&cmdnotepad, &cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body = ui::Columns(
        {ui::Group("The Segments", {lbltitle, ui::Grow(lstrecap)}).Grow(3),
         ui::Rows({ui::Group("How the rating came about", {ui::Grow(lstsum)}).Grow(2),
                   ui::Group("Segment by Segment", {lblbest, lblworst, ui::Grow(chtshow)}).Grow(3)})
             .Grow(2)});
    return page;
  }

  void Load() override {
    lbltitle.Visible = false;
    const ShowRun& run = world().ShowRuns()[1];
    lbltitle.Text = "Recap Sheet For " + ShowName(world(), run.IsEvent);
    Title = lbltitle.Text.Get();
    const ShowRecap recap = RecapOf(world());
    lblrating.Text = "The show is rated " + std::to_string(recap.Rating) + "%.";
    lblbest.Text = "Best: " + recap.Best;
    lblworst.Text = "Worst: " + recap.Worst;
    for (ui::Label* label : {&lblbest, &lblworst}) label->Visible = !recap.Best.empty();
    for (const RecapLine& line : recap.Lines)
      lstrecap.Add({ui::Cell(line.Number), line.What,
                    ui::Cell(line.Rating, std::to_string(line.Rating) + "%")});
    for (const ScoreStep& step : recap.Sum) lstsum.Add({step.Why, ui::Cell(step.Change)});
    const RatingsSoFar ratings = RatingsOfShow(world());
    chtshow.Captions = ratings.Rows;
    chtshow.Lines = std::vector<ui::Chart::Series>{{"", ratings.Values}};
  }

 private:
  World& world() { return game_.World(); }

  void cmdback_Click() {
    LeaveShow(world());
    game_.AdvanceDay(false);
    Close();
  }

  using K = ui::ColumnKind;
  Game& game_;
  ui::Label lbltitle{*this, "lbltitle"};
  ui::Label lblrating{*this, "lblrating"};
  ui::ListBox lstrecap{
      *this, "lstrecap", {{"#", K::Number, 1}, {"Segment", K::Text, 8}, {"Rating", K::Percent, 3}}};
  ui::ListBox lstsum{*this, "lstsum", {{"What", K::Text, 5}, {"Sum", K::Number, 1}}};
  ui::Label lblbest{*this, "lblbest"};
  ui::Label lblworst{*this, "lblworst"};
  ui::Chart chtshow{*this, "chtshow", true};
  ui::Button cmdnotepad{*this, "cmdnotepad", "Notepad", [this] { desk().Open("frmNotepad"); }};
  ui::Button cmdback{*this, "cmdback", "To The Next Day", &frmPostShow::cmdback_Click};
};

}  // namespace

SCREEN(frmPostShow)

}  // namespace grapplemont
