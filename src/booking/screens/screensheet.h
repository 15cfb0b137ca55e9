#pragma once

#include "booking/cardsteps.h"
#include "booking/screens/bookingscreens.h"
#include "booking/sheet.h"
#include "records/world.h"
#include "show/forecast.h"
#include "storylines/screens/screenpeople.h"

namespace grapplemont {

/// A record of match.dat, or what a card proposes for it.
struct SheetRow {
  int Record;
  const grapplemont::Segment& Segment;
  const ShowForecast& Forecast;
};
/// Behind the first column: what is booked, of what kind, whether a Title is at stake or changes
/// hands, for which feud, and the forecast. Holds on to the world.
CellColumns<SheetRow> SheetTable(const World& world, const CellColumn<SheetRow>& first);
/// What is booked, and the lines of the wizard's summary.
std::vector<ui::Report::Paragraph> ToldOf(const World& world, const Segment& segment, bool isEvent);

/// What both booking sheets share: the rows of match.dat, what stands in the selected one, what the
/// show may come to, who is still free, and the screens at the sheet's side.
class SheetScreen : public GameScreen {
 public:
  ui::Page Layout() override;
  /// Runs after every change to a row, too.
  void Return() override;

 protected:
  SheetScreen(Game& game, std::string name, bool isEvent);

  /// Who sits at the table, as things stand on the sheet.
  virtual CommentaryTeam Team() = 0;
  /// The same with the empty seats taken, and what seats it.
  virtual CommentaryTeam FullTeam() { return Team(); }
  virtual void Seat(const CommentaryTeam&) {}
  /// The line under the title.
  virtual std::string Facts() = 0;
  /// Rows of the table that are not Segments, above them all.
  virtual std::string TopRow() = 0;
  /// Asks whether the show is to begin; false when it does not come to that.
  virtual bool MayBegin();
  /// What begins the show that stands on the sheet, in this world or a copy of it.
  virtual std::function<void(World& world)> Beginning() = 0;
  /// How many rows it has and what it asks for.
  virtual SheetTerms Terms() { return TermsOf(world(), isEvent_); }
  virtual std::string Heading() { return SheetHeading(world(), isEvent_); }
  /// The name of the show, by which its cards are kept.
  virtual std::string Called() { return ShowName(world(), isEvent_); }
  /// The draft of a show to come: it is foreseen by what is so today, nobody's morale moves yet,
  /// and it may be kept however short it is.
  virtual bool IsDraft() const { return false; }
  /// Buttons that stand before the others, and boxes below the rows.
  virtual std::vector<ui::Button*> FirstActions() { return {}; }
  virtual std::vector<ui::Box> BelowRows() { return {}; }

  /// Empties match.dat for today's show. A sheet that comes up again keeps what lies on it.
  void BeginSheet();
  /// Shows a sheet that has just been opened.
  void ShowOpened();
  /// Lays what is kept of this show on the sheet, after asking.
  void LayKept(bool isDraft);
  /// What leaving it and starting it do.
  void cmdback_Click() override;
  virtual void cmddoshow_Click();
  void ShowForecast();
  /// Whether anything has been done on it that may be taken back.
  bool IsTouched() { return !history_.ToUndo(world()).empty(); }
  const bool isEvent_;

  ui::Handler Opens(const char* screen) {
    return [this, screen] { desk().Open(screen); };
  }

 private:
  const Segment& Row(int record) { return world().Segments()[record]; }
  int OpenRows();
  void DropGone();
  void FillRows();
  CellColumns<SheetRow> Table();
  ui::ListBox::Row RowOf(int record);
  void ShowButton(int record);
  void ShowCounts();
  void ShowRow();
  std::vector<ui::Report::Paragraph> ToldOfRow(int record);
  /// What the selected row is about, behind what else there is to tell.
  void TellRow(std::vector<ui::Report::Paragraph> first);
  bool IsAnyBooked();
  bool IsDark(int record) const { return isEvent_ && record == kDarkMatch; }
  std::vector<std::string> SeatsTaken(const CommentaryTeam& full);
  bool IsEmptyRow(int record);
  int EmptyRow();

  void ShowRowActs();
  void Tell(const std::string& title, const std::vector<std::string>& dropped);

  void cmdbook_Click(int record);
  void lstrows_Open();
  void lstrows_Move(int from, int to);
  void MoveBy(int rows);
  void cmdedit_Click();
  using SheetStep = decltype(&SheetHistory::Undo);
  void TakeStep(const char* title, const std::string& told, SheetStep step);
  void cmdundo_Click();
  void cmdredo_Click();
  void cmdfill_Click();
  void cmdwhatif_Click();
  void cmdcancel_Click();

  using K = ui::ColumnKind;
  SheetPlace At(int record) const { return {record, isEvent_, IsDraft()}; }
  KeptCard Kept(bool isDraft);

  grapplemont::ShowForecast forecast_;
  std::vector<int> atHand_;  // who could be booked when the sheet was last shown
  SheetHistory history_;

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstrows;
  ui::Array<ui::Button> cmdbook;
  ui::Button cmdedit{*this, "cmdedit", "Edit", &SheetScreen::cmdedit_Click};
  ui::Button cmdup{*this, "cmdup", "Move Up", [this] { MoveBy(-1); }};
  ui::Button cmddown{*this, "cmddown", "Move Down", [this] { MoveBy(1); }};
  ui::Button cmdlast{*this, "cmdlast", "Last Card", [this] { LayKept(false); }};
  ui::Button cmdundo{*this, "cmdundo", "Undo", &SheetScreen::cmdundo_Click};
  ui::Button cmdredo{*this, "cmdredo", "Redo", &SheetScreen::cmdredo_Click};
  ui::Label lblwarn{*this, "lblwarn"};
  ui::Label lblcount{*this, "lblcount"};
  ui::Report txtrow{*this, "txtrow"};
  ui::Label lblforecast{*this, "lblforecast"};
  ui::Label lblwarnings{*this, "lblwarnings"};
  ui::ListBox lstfree;
  ui::Button cmddebut{*this, "cmddebut", "Debuts",
                      [this] { desk().Open(MakefrmDebut(game_, isEvent_)); }};
  ui::Button cmdfeuds{*this, "cmdfeuds", "Feuds", Opens("frmFeuds")};
  ui::Button cmdmanagers{*this, "cmdmanagers", "Managers", Opens("frmManagers")};
  ui::Button cmdroster{*this, "cmdroster", "Roster", Opens("frmAltRoster")};
  ui::Button cmdstables{*this, "cmdstables", "Stables", Opens("frmStables")};
  ui::Button cmdstats{*this, "cmdstats", "Stats", Opens("frmQuickStat")};
  ui::Button cmdteams{*this, "cmdteams", "Teams", Opens("frmTagTeams")};
  ui::Button cmdtitles{*this, "cmdtitles", "Titles", Opens("frmAltBelts")};
  ui::Button cmdturns{*this, "cmdturns", "Turns", Opens("frmTurn")};
  ui::Button cmdnotepad{*this, "cmdnotepad", "Notepad", Opens("frmNotepad")};
  ui::Button cmdfill{*this, "cmdfill", "Fill The Rest", &SheetScreen::cmdfill_Click};
  ui::Button cmdwhatif{*this, "cmdwhatif", "What If", &SheetScreen::cmdwhatif_Click};
  /// What is to be done while the show may not start.
  ui::Button cmdnextrow{*this, "cmdnextrow", "Book Row 1",
                        [this] { OpenWizardAtOnce(game_, At(EmptyRow())); }};

 protected:
  ui::Button cmdcancel{*this, "cmdcancel", "Cancel Show", &SheetScreen::cmdcancel_Click};
  ui::Button cmddoshow{*this, "cmddoshow", "Start The Show!", [this] { cmddoshow_Click(); }};
};

}  // namespace grapplemont
