#include "roster/screens/frmWorker.h"

#include <algorithm>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modVar.h"
#include "records/modWresCheck.h"
#include "roster/market.h"
#include "roster/moods.h"
#include "roster/postings.h"
#include "roster/screens/screentalks.h"
#include "roster/workerform.h"
#include "roster/workerrecord.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr int kFormTold = 10;
constexpr int kLettersOfColumn = 40;  // that stands beside another
constexpr int kLettersOfHalf = 57;    // the same of the skills and of all that is beside them

ui::Cell OutcomeCell(int outcome) {
  if (outcome == 0) return {"Drew", ui::Tone::Muted};
  return outcome > 0 ? ui::Cell("Won", ui::Tone::Green) : ui::Cell("Lost", ui::Tone::Red);
}

ui::Cell StakeCell(const HeldMatch& match) {
  return match.Title == "None" ? ui::Cell("") : ui::Cell("Title", ui::Tone::Gold);
}

/// " W W L D", a letter a match.
std::string LettersOf(const std::vector<FormLine>& form) {
  std::string letters;
  for (const FormLine& line : form)
    letters += line.Outcome == 0 ? " D" : line.Outcome > 0 ? " W" : " L";
  return letters;
}

/// A row of the last matches: the opponent's uid, and the show that its report is of.
struct FormRow {
  int Opponent;
  Day On;
  int Promotion;
};

/// What is known of one worker, at a glance and in full.
class frmWorker : public GameScreen {
 public:
  frmWorker(Game& game, int uid) : GameScreen(game, "frmWorker", "Worker"), uid_(uid) {
    lstform.EmptyText = "Matches on your shows stand here, with the way to their reports.";
    lstcompany.EmptyText = "Alone: no feud, team, manager or stable.";
    txtcontract.Brief = true;
    picworker.Height = 96;
    pictitle.Height = 36;
    // All of it is seen at once in a window of the usual size.
    lstskills.Room = 5;
    lstform.Room = 2;
    lstcompany.Room = 2;
    txtwhy.Room = 4;
    txttitles.Room = 2;
  }

  int Uid() const { return uid_; }

  ui::Page Layout() override {
    // The matches have the width of two columns: a row tells all of one.
    ui::Box glance(
        ui::Box::Kind::Columns, "At a glance",
        {ui::Rows({ui::Group("What they can do", {ui::Grow(lstskills)}).Grow(),
                   ui::Group("Contract", {txtcontract, ui::Columns({cmdpromote, cmddemote})})})
             .Grow(13),
         ui::Rows(
             {ui::Columns({ui::Group("Twelve months", {ui::Grow(chtmonths)}).Grow(),
                           ui::Group("What they think of you, and why", {ui::Grow(txtwhy)}).Grow()})
                  .Wide(kLettersOfColumn)
                  .Grow(4),
              ui::Group("Last ten matches", {lblform, ui::WithButtons(lstform, Reads()).Grow()})
                  .Grow(12),
              ui::Columns(
                  {ui::Group("Titles and reigns", {ui::Columns({ui::Rows({pictitle, ui::Spacer()}),
                                                                ui::Grow(txttitles)})})
                       .Grow(),
                   ui::Group("Company", {ui::Grow(lstcompany)}).Grow()})
                  .Wide(kLettersOfColumn)
                  .Grow(3)})
             .Grow(23)});
    glance = std::move(glance).Wide(kLettersOfHalf);
    ui::Box facts(
        ui::Box::Kind::Columns, "All the facts",
        {ui::Group("", {ui::Grow(txtpage)}).Grow(1), ui::Group("", {ui::Grow(txtmore)}).Grow(1)});
    ui::Page page = PageOf(
        ui::Tabs({std::move(glance), std::move(facts)}), &lblfacts,
        {&cmdprevious, &cmdnext, &cmdhall, &cmdcompare, &cmdturn, &cmdshortlist, &cmdchronicle},
        &cmdcontract);
    page.Then = &cmdback;  // for those who cannot be talked to
    page.Face = &picworker;
    page.More = {&lblmarks, &lblfinishers};
    return page;
  }

  void Return() override {
    const Worker* worker = Subject();
    if (worker) Title = worker->Name.Str();
    WriteWorkerPages(txtpage, txtmore, world(), worker,
                     Title.Get() + " is not in the business any more.");
    for (ui::ListBox* list : {&lstskills, &lstform, &lstcompany})
      if (!worker) list->Clear();
    ShowHead(worker);
    if (worker) {
      ShowSkills(*worker);
      ShowMonths(*worker);
      ShowForm(*worker);
      ShowTitles(*worker);
      ShowCompany(*worker);
      WriteContract(txtcontract, world(), *worker);
      WriteMood(txtwhy, world(), *worker);
    }
    ShowNeighbours(worker);
    ShowButtons(worker);
  }

 private:
  Worker* Subject() { return world().FindWorker(uid_); }

  void ShowHead(const Worker* worker) {
    picworker.Drawn = FaceOf(world(), uid_);
    lblfacts.Text = !worker ? std::string("Gone.")
                            : WhoLine(*worker) + ". " + PlaceText(*worker) +
                                  (worker->Employer == 0
                                       ? ", free to sign."
                                       : " of " + PromotionName(world(), worker->Employer) + ".");
    lblmarks.Text = worker ? Joined(MarksOfWorker(world(), *worker)) : "";
    lblfinishers.Text = worker ? FinishersLine(*worker) : "";
  }

  void ShowSkills(const Worker& worker) {
    std::vector<ui::ListBox::Row> rows;
    for (const Ability& ability : Abilities()) {
      ui::Cell level(int(worker.*ability.Of));
      level.Tick = RosterMean(world(), ability.Of);
      rows.push_back({{ability.Name, level, {WordsFor(ability, worker), ui::Tone::Muted}},
                      static_cast<int>(rows.size()) + 1});
    }
    lstskills.Fill(std::move(rows));
  }

  void ShowMonths(const Worker& worker) {
    std::vector<std::string> captions;
    std::vector<ui::Chart::Series> lines = {{"Over", {}, ui::Tone::Blue},
                                            {"Morale", {}, ui::Tone::Green},
                                            {"Condition", {}, ui::Tone::Muted}};
    for (const MonthMark& mark : MarksOf(world(), worker)) {
      captions.push_back(mark.Month);
      lines[0].Values.push_back(mark.Over);
      lines[1].Values.push_back(mark.Morale);
      lines[2].Values.push_back(mark.Condition);
    }
    chtmonths.Captions = std::move(captions);
    chtmonths.Lines = std::move(lines);
  }

  std::vector<ui::Button*> Reads() {
    std::vector<ui::Button*> reads;
    for (int row = 1; row <= kFormTold; ++row) reads.push_back(&cmdread(row));
    return reads;
  }

  void ShowForm(const Worker& worker) {
    const std::vector<FormLine> form = FormOf(world(), worker, kFormTold);
    const FormSum sum = SumOf(form);
    lblform.Text = form.empty() ? std::string()
                                : std::to_string(sum.Won) + " won, " + std::to_string(sum.Lost) +
                                      " lost, " + std::to_string(sum.Drawn) +
                                      " drawn:" + LettersOf(form) + ", the latest first. Rated " +
                                      std::to_string(sum.Mean) + "% on average.";
    form_.clear();
    std::vector<ui::ListBox::Row> rows;
    for (const FormLine& line : form) {
      form_.push_back({line.Opponent, line.Match->On, line.Match->Promotion});
      const ui::Cell stake = StakeCell(*line.Match);
      const std::string show = ShowNameOf(world(), *line.Match);
      rows.push_back({{line.Against,
                       OutcomeCell(line.Outcome),
                       int(line.Match->Rating),
                       {stake.Text.empty() ? show : show + " (" + stake.Text + ")", stake.Colour},
                       DayCell(line.Match->On)},
                      static_cast<int>(form_.size())});
    }
    lstform.Fill(std::move(rows));
    for (int row = 1; row <= kFormTold; ++row) {
      cmdread(row).Visible = row <= static_cast<int>(form_.size());
      EnableUnless(cmdread(row), WhyNoReport(row));
    }
  }

  void ShowTitles(const Worker& worker) {
    const auto held = TitlesHeldBy(world(), worker.Uid);
    pictitle.Visible = !held.empty();
    pictitle.Drawn =
        held.empty() ? ui::Drawing() : PlateAt(world(), world().Titles().NumberOf(*held.front()));
    WriteTitles(txttitles, world(), worker);
  }

  void ShowCompany(const Worker& worker) {
    std::vector<ui::ListBox::Row> rows;
    for (const Companion& companion : CompanionsOf(world(), worker))
      rows.push_back({{companion.Name,
                       {companion.As + (companion.More.empty() ? "" : ": " + companion.More),
                        ui::Tone::Muted}},
                      companion.Uid});
    lstcompany.Fill(std::move(rows));
  }

  /// The ways to the colleagues before and behind, the most popular first.
  void ShowNeighbours(const Worker* worker) {
    const Neighbours beside = worker ? NeighboursOf(world(), *worker) : Neighbours();
    ShowWay(cmdprevious, beside.Before, "Nobody stands before in this promotion.");
    ShowWay(cmdnext, beside.After, "Nobody stands behind in this promotion.");
    if (beside.Of > 1)
      lblfacts.Text = lblfacts.Text.Get() + " Number " + std::to_string(beside.Place) + " of " +
                      std::to_string(beside.Of) + " there.";
  }
  void ShowWay(ui::Button& button, int uid, const char* nobody) {
    EnableUnless(button, uid == 0 ? nobody : "");
    if (uid != 0) button.Tip = WorkerName(world(), uid);
  }
  void Go(int Neighbours::*to) {
    if (const Worker* worker = Subject(); worker && NeighboursOf(world(), *worker).*to != 0)
      uid_ = NeighboursOf(world(), *worker).*to;
    Return();
  }

  void ShowButtons(const Worker* worker) {
    const bool own = worker && WorksForPlayer(world(), *worker);
    const std::string gone = "There is nobody to talk to.";
    ShowShortlistButton(game_, worker, cmdshortlist);
    cmdshortlist.Visible = !own || IsShortlisted(world(), uid_);
    cmdcontract.Text = own ? "Contract" : "Talks";
    EnableUnless(cmdcontract, worker ? WhyNoTalks(game_, worker) : gone);
    EnableUnless(cmdcompare, worker ? "" : gone);
    cmdhall.Visible = worker && ElectedIn(world(), uid_) != 0;
    cmdturn.Visible = cmdpromote.Visible = cmddemote.Visible = own;
    if (own) {
      cmdturn.Text = worker->TurnPending ? "Call The Turn Off" : "Prepare A Turn";
      EnableUnless(cmdturn,
                   IsSeenOnShows(*worker) ? WhyNotNow(game_) : "Is not seen on the shows.");
      if (cmdturn.Enabled) cmdturn.Tip = TurnAdvice(world(), *worker);
      ShowMove(*worker, cmdpromote, "Promote", -1);
      ShowMove(*worker, cmddemote, "Demote", 1);
    }
  }

  /// A step up or down the card, which begins with position 1.
  void ShowMove(const Worker& worker, ui::Button& button, const char* caption, int step) {
    const int to = worker.Position + step;
    const bool onCard = IsRosterPosition(worker.Position);
    const bool fits = onCard && IsRosterPosition(to);
    button.Text = fits ? std::string(caption) + " To " + std::string(PositionText(to)) : caption;
    const std::string busy = WhyNotNow(game_);
    EnableUnless(button, !busy.empty() ? busy
                         : fits        ? WhyNotMove(world(), worker, to)
                         : onCard      ? "There is no further place on the card."
                                  : "Has no place on the card. The roster moves people to one.");
    if (button.Enabled) button.Tip = EndedByMove(world(), worker, to);
  }

  /// Rows count from 1.
  const FormRow* FormAt(int row) const {
    const bool isThere = row >= 1 && row <= static_cast<int>(form_.size());
    return isThere ? &form_[static_cast<std::size_t>(row - 1)] : nullptr;
  }

  std::string WhyNoReport(int row) {
    const FormRow* match = FormAt(row);
    if (!match) return "There is no match in this row.";
    const bool isKept = game_.OpenReport && HasReport(world(), match->On, match->Promotion);
    return isKept ? "" : "The report of this show is not kept any more.";
  }

  void ReadReport(int row) {
    if (const std::string why = WhyNoReport(row); !why.empty()) return desk().Say("Report", why);
    game_.OpenReport(FormAt(row)->On, FormAt(row)->Promotion);
  }
  void cmdshortlist_Click() {
    TurnShortlist(game_, uid_);
    Return();
  }
  void cmdcontract_Click() {
    if (const Worker* worker = Subject()) OpenTalks(game_, *worker);
  }
  void cmdturn_Click() {
    if (Worker* worker = Subject()) worker->TurnPending = !worker->TurnPending;
    Return();
  }
  void Move(int step) {
    if (Worker* worker = Subject()) MovePosition(world(), *worker, worker->Position + step);
    Return();
  }
  void lstcompany_Open() {
    if (lstcompany.Key() != 0) game_.OpenWorker(lstcompany.Key());
  }

  ui::Drawing Opponent(int row) const {
    const FormRow* match = FormAt(row);
    return match ? FaceOf(game_.World(), match->Opponent) : ui::Drawing();
  }

  int uid_;
  std::vector<FormRow> form_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Picture picworker{*this, "picworker"};
  ui::Label lblmarks{*this, "lblmarks"};
  ui::Label lblfinishers{*this, "lblfinishers"};
  ui::ListBox lstskills{
      *this,
      "lstskills",
      {{"Skill", K::Text, 1},
       {"Level", K::Percent, 0, "The tick on the bar is the mean of your roster."},
       {"Which means", K::Text, 4}}};
  ui::Report txtcontract{*this, "txtcontract"};
  ui::Button cmdpromote{*this, "cmdpromote", "Promote", [this] { Move(-1); }};
  ui::Button cmddemote{*this, "cmddemote", "Demote", [this] { Move(1); }};
  ui::Chart chtmonths{*this, "chtmonths"};
  ui::Label lblform{*this, "lblform"};
  ui::Array<ui::Button> cmdread{"cmdread", kFormTold, [this](const std::string& name, int row) {
                                  auto read = std::make_unique<ui::Button>(
                                      *this, name, "Report", [this, row] { ReadReport(row); });
                                  read->Plain = true;
                                  return read;
                                }};
  ui::ListBox lstform{
      *this,
      "lstform",
      {{.Title = "Against", .Width = 6, .Draws = [this](int match) { return Opponent(match); }},
       {"Result", K::Tag},
       {"Rating", K::Percent},
       {"Show", K::Text, 5, "And what the match was for."},
       {"Date", K::Date},
       {"", K::Button}},
      ui::Handler{},
      [this] { ReadReport(lstform.Key()); }};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Picture pictitle{*this, "pictitle"};
  ui::Report txttitles{*this, "txttitles"};
  ui::ListBox lstcompany{*this, "lstcompany",
                         WithFaces(world(), {{"Who", K::Text, 5}, {"As", K::Text, 4}}),
                         ui::Handler{}, [this] { lstcompany_Open(); }};
  ui::Report txtpage{*this, "txtpage"};
  ui::Report txtmore{*this, "txtmore"};
  ui::Button cmdprevious{*this, "cmdprevious", "Previous", [this] { Go(&Neighbours::Before); }};
  ui::Button cmdnext{*this, "cmdnext", "Next", [this] { Go(&Neighbours::After); }};
  ui::Button cmdhall{*this, "cmdhall", "Hall Of Fame", [this] { desk().Open("frmHall"); }};
  ui::Button cmdcompare{*this, "cmdcompare", "Compare",
                        [this] { desk().Open(MakefrmCompare(game_, {uid_})); }};
  ui::Button cmdturn{*this, "cmdturn", "Prepare A Turn", &frmWorker::cmdturn_Click};
  ui::Button cmdshortlist{*this, "cmdshortlist", "Shortlist", &frmWorker::cmdshortlist_Click};
  ui::Button cmdchronicle{*this, "cmdchronicle", "Chronicle",
                          [this] { game_.OpenChapter("Workers", uid_, ""); }};
  ui::Button cmdcontract{*this, "cmdcontract", "Contract", &frmWorker::cmdcontract_Click};
};

/// Their page, if only pages of workers lie above it.
frmWorker* PageBelow(ui::Desk& desk, int uid) {
  const auto& screens = desk.Screens();
  for (auto screen = screens.rbegin(); screen != screens.rend(); ++screen) {
    auto* page = dynamic_cast<frmWorker*>(screen->get());
    if (!page || page->Uid() == uid) return page;
  }
  return nullptr;
}

}  // namespace

void OpenWorkerPage(Game& game, int workerUid) {
  ui::Desk& desk = game.Desk();
  if (!game.World().FindWorker(workerUid))
    return desk.Say("Gone", "This worker is not in the business any more.");
  const frmWorker* page = PageBelow(desk, workerUid);
  if (!page) return desk.Open(std::make_unique<frmWorker>(game, workerUid));
  while (desk.Top() != page) desk.Close(*desk.Top());
}

}  // namespace grapplemont
