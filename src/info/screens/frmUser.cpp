#include "info/career.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

/// The player's career.
class frmUser : public GameScreen {
 public:
  explicit frmUser(Game& game) : GameScreen(game, "frmUser", "Career") {}

  ui::Page Layout() override {
    return PageOf(ui::Columns({ui::Group("Jobs", {ui::Grow(lstjobs)}).Grow(5),
                               ui::Group("", {ui::Grow(txtuser)}).Grow(2)}),
                  &lblfacts);
  }

  void Return() override {
    const GameInfo& info = world().Game();
    lblfacts.Text = info.PlayerName + ", " + std::string(Says(kDifficulties, info.Difficulty)) +
                    ", since " + PlainDate(info.StartDate) + ".";
    ShowJobs();
    ShowRecord();
  }

 private:
  static ui::Cell DateCell(Day day) {
    return {static_cast<double>((day - kDayZero).count()), PlainDate(day)};
  }

  void ShowJobs() {
    std::vector<ui::ListBox::Row> rows;
    for (const JobLine& job : CareerOf(world()))
      rows.push_back({{job.Promotion, DateCell(job.From),
                       job.Present ? ui::Cell(DateCell(job.To).Number, "Today", ui::Tone::Gold)
                                   : DateCell(job.To),
                       SizeText(job.StartSize), SizeText(job.EndSize), ui::Cell(job.StartImage),
                       ui::Cell(job.EndImage)},
                      static_cast<int>(rows.size()) + 1});
    lstjobs.Fill(std::move(rows));
  }

  static std::vector<std::string> LinesOf(const JobRecord& record) {
    if (record.Shows + record.Events + record.CalledOff + record.Months == 0)
      return {"Nothing has been told of it yet."};
    std::vector<std::string> lines = {Counted(record.Shows, "television show") + " and " +
                                      Counted(record.Events, "Event") + " held, " +
                                      std::to_string(record.CalledOff) + " called off."};
    if (!record.BestShow.empty()) {
      lines.push_back("Mean rating " + std::to_string(record.MeanRating) + "%.");
      lines.push_back("Best: " + record.BestShow + ", " + std::to_string(record.BestRating) + "%.");
    }
    if (record.Months > 0)
      lines.push_back(Counted(record.Months, "month") + " closed, " +
                      (record.Profit < 0 ? "a loss of " : "a profit of ") +
                      Dollars(record.Profit < 0 ? -record.Profit : record.Profit) + " in all.");
    return lines;
  }

  void ShowRecord() {
    using Style = ui::Report::Style;
    const GameInfo& info = world().Game();
    std::vector<ui::Report::Paragraph> words = {
        {Style::Heading, info.PlayerName.Str()},
        {Style::Line, ReputationText(info.Reputation) + "."},
        {Style::Strong, "The present job"}};
    for (const std::string& line : LinesOf(RecordOfJob(world())))
      words.push_back({Style::Line, line});
    txtuser.Write(std::move(words));
  }

  using K = ui::ColumnKind;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstjobs{*this,
                      "lstjobs",
                      {{"Promotion", K::Text, 4},
                       {"From", K::Date, 2},
                       {"To", K::Date, 2},
                       {"Size then", K::Text, 1},
                       {"Size after", K::Text, 1, "Today's for the present job."},
                       {"Image then", K::Number, 1},
                       {"Image after", K::Number, 1, "Today's for the present job."}}};
  ui::Report txtuser{*this, "txtuser"};
};

}  // namespace

SCREEN(frmUser)

}  // namespace grapplemont
