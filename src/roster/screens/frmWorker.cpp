#include "roster/screens/frmWorker.h"

#include <algorithm>
#include <map>

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
#include "storylines/lineages.h"
#include "storylines/partners.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr int kFormTold = 10;
constexpr int kLettersOfColumn = 41;  // that stands beside another

ui::Cell OutcomeCell(int outcome) {
  if (outcome == 0) return {"Drew", ui::Tone::Muted};
  return outcome > 0 ? ui::Cell("Won", ui::Tone::Green) : ui::Cell("Lost", ui::Tone::Red);
}

ui::Cell StakeCell(const HeldMatch& match) {
  return match.Title == "None" ? ui::Cell("") : ui::Cell("Title", ui::Tone::Gold);
}

std::string LengthOf(const TitleReign& reign, Day today) {
  const int days = DaysOf(reign, today);
  std::string text = days < 0 ? "" : Counted(days, "day");
  if (reign.Defences > 0) text += (text.empty() ? "" : ", ") + Counted(reign.Defences, "defence");
  return text;
}

/// What is known of one worker, at a glance and in full.
class frmWorker : public GameScreen {
 public:
  frmWorker(Game& game, int uid) : GameScreen(game, "frmWorker", "Worker"), uid_(uid) {
    lstform.EmptyText = "Matches on your shows stand here, with the way to their reports.";
    lsttitles.EmptyText = "No Title yet. One that is won on a show, or given, stands here.";
    lstcompany.EmptyText = "Alone: no feud, team, manager or stable.";
    txtcontract.Brief = true;
    picworker.Height = 96;
    pictitle.Height = 36;
    // All of it is seen at once in a window of the usual size.
    lstskills.Room = 5;
    lstform.Room = 4;
    lsttitles.Room = lstcompany.Room = 2;
    txtwhy.Room = 3;
  }

  int Uid() const { return uid_; }

  ui::Page Layout() override {
    // Where three columns would be narrow, two of them stand one below the other.
    ui::Box glance(
        ui::Box::Kind::Columns, "At a glance",
        {ui::Rows({ui::Group("What they can do", {ui::Grow(lstskills)}).Grow(),
                   ui::Group("Contract", {txtcontract, ui::Columns({cmdpromote, cmddemote})})})
             .Grow(10),
         ui::Columns(
             {ui::Rows({ui::Group("Twelve months", {ui::Grow(chtmonths)}).Grow(2),
                        ui::Group("Last ten matches",
                                  {ui::Columns({ui::Grow(lblform), cmdreport}), ui::Grow(lstform)})
                            .Grow(3)})
                  .Grow(13),
              ui::Rows({ui::Group("What they think of you, and why", {ui::Grow(txtwhy)}).Grow(5),
                        ui::Group("Titles and reigns", {pictitle, ui::Grow(lsttitles)}).Grow(2),
                        ui::Group("Company", {ui::Grow(lstcompany)}).Grow(2)})
                  .Grow(10)})
             .Wide(kLettersOfColumn)
             .Grow(23)});
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
    for (ui::ListBox* list : {&lstskills, &lstform, &lsttitles, &lstcompany})
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

  /// The rows' keys are the numbers of the matches' records.
  void ShowForm(const Worker& worker) {
    const std::vector<FormLine> form = FormOf(world(), worker, kFormTold);
    const FormSum sum = SumOf(form);
    lblform.Text = form.empty() ? std::string()
                                : std::to_string(sum.Won) + " won, " + std::to_string(sum.Lost) +
                                      " lost, " + std::to_string(sum.Drawn) + " drawn. Rated " +
                                      std::to_string(sum.Mean) + "% on average.";
    opponents_.clear();
    std::vector<ui::ListBox::Row> rows;
    for (const FormLine& line : form) {
      const int number = world().Bouts().NumberOf(*line.Match);
      opponents_[number] = line.Opponent;
      const ui::Cell stake = StakeCell(*line.Match);
      const std::string show = ShowNameOf(world(), *line.Match);
      rows.push_back({{line.Against,
                       OutcomeCell(line.Outcome),
                       int(line.Match->Rating),
                       {stake.Text.empty() ? show : show + " (" + stake.Text + ")", stake.Colour},
                       DayCell(line.Match->On)},
                      number});
    }
    lstform.Fill(std::move(rows));
  }

  /// The Titles that are held first: a key is the number of the Title's record, 0 for a reign that
  /// has ended.
  void ShowTitles(const Worker& worker) {
    std::vector<ui::ListBox::Row> rows;
    const auto held = TitlesHeldBy(world(), worker.Uid);
    const auto reigns = ReignsOfWorker(world(), worker.Uid);
    for (const grapplemont::Title* title : held) {
      const auto reign = std::ranges::find_if(reigns, [&](const TitleReign* past) {
        return past->End == kReignLasts && past->Title == title->Name;
      });
      rows.push_back({{{title->Name.View(), ui::Tone::Gold},
                       reign == reigns.end() ? "" : LengthOf(**reign, world().Today()),
                       DateCell(title->Reigns[0].Won, kBeforeTheGame)},
                      world().Titles().NumberOf(*title)});
    }
    for (const TitleReign* reign : reigns)
      if (reign->End != kReignLasts)
        rows.push_back({{reign->Title.View(), LengthOf(*reign, world().Today()),
                         DateCell(reign->From, kBeforeTheGame)},
                        0});
    pictitle.Visible = !held.empty();
    pictitle.Drawn =
        held.empty() ? ui::Drawing() : PlateAt(world(), world().Titles().NumberOf(*held.front()));
    lsttitles.Fill(std::move(rows));
  }

  void ShowCompany(const Worker& worker) {
    std::vector<ui::ListBox::Row> rows;
    for (const Companion& companion : CompanionsOf(world(), worker))
      rows.push_back(
          {{companion.Name, {companion.As, ui::Tone::Muted}, {companion.More, ui::Tone::Muted}},
           companion.Uid});
    lstcompany.Fill(std::move(rows));
  }

  /// The ways to the colleagues before and behind, the most popular first.
  void ShowNeighbours(const Worker* worker) {
    const Neighbours beside = worker ? NeighboursOf(world(), *worker) : Neighbours();
    ShowWay(cmdprevious, beside.Before, "Nobody stands before in this promotion.");
    ShowWay(cmdnext, beside.After, "Nobody stands behind in this promotion.");
    if (beside.Of > 1)
      lblfacts.Text = lblfacts.Text.Get() + " " + std::to_string(beside.Place) + " of " +
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
    ShowReport();
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

  const HeldMatch* ChosenMatch() {
    const int number = lstform.Key();
    return number >= 1 && number <= world().Bouts().Count() ? &world().Bouts()[number] : nullptr;
  }

  void ShowReport() {
    const HeldMatch* match = ChosenMatch();
    EnableUnless(cmdreport, !match ? "Choose one of the last matches first."
                            : game_.OpenReport && HasReport(world(), match->On, match->Promotion)
                                ? ""
                                : "The report of this show is not kept any more.");
  }

  void cmdreport_Click() {
    if (const HeldMatch* match = ChosenMatch()) game_.OpenReport(match->On, match->Promotion);
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

  ui::Drawing Opponent(int match) const {
    const auto found = opponents_.find(match);
    return found == opponents_.end() ? ui::Drawing() : FaceOf(game_.World(), found->second);
  }

  int uid_;
  std::map<int, int> opponents_;  // the uid of each match's, by the number of its record
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
  ui::Button cmdreport{*this, "cmdreport", "Read Report", &frmWorker::cmdreport_Click};
  ui::ListBox lstform{
      *this,
      "lstform",
      {{.Title = "Against", .Width = 6, .Draws = [this](int match) { return Opponent(match); }},
       {"Result", K::Tag},
       {"Rating", K::Percent},
       {"Show", K::Text, 5, "And what the match was for."},
       {"Date", K::Date}},
      &frmWorker::ShowReport,
      cmdreport};
  ui::Report txtwhy{*this, "txtwhy"};
  ui::Picture pictitle{*this, "pictitle"};
  ui::ListBox lsttitles{*this,
                        "lsttitles",
                        {{.Title = "Title",
                          .Width = 5,
                          .Draws = [this](int number) { return PlateAt(world(), number); }},
                         {"Held", K::Text, 4},
                         {"Since", K::Date, 4}}};
  ui::ListBox lstcompany{
      *this, "lstcompany",
      WithFaces(world(), {{"Who", K::Text, 5}, {"As", K::Tag, 3}, {"", K::Text, 4}}), ui::Handler{},
      [this] { lstcompany_Open(); }};
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
