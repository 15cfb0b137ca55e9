#include <algorithm>

#include "calendar/wishes.h"
#include "info/mailbox.h"
#include "info/results.h"
#include "info/screens/infotables.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/modVar.h"
#include "show/livetelling.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using Style = ui::Report::Style;

/// In the order of GameInfo.Reporter, from 0.
constexpr std::array<const char*, 3> kReporters = {"The Lamplighter", "Rafe Tolland", "QVD"};
constexpr int kOptions = static_cast<int>(kMailOptionTable.size());

const MailOption& OptionOf(int number) {
  return kMailOptionTable[static_cast<std::size_t>(number - 1)];
}

/// Every choice counts from the moment it is made; there is nothing to save and nothing to lose.
class frmOptions : public GameScreen {
 public:
  explicit frmOptions(Game& game)
      : GameScreen(game, "frmOptions", "Options", {.Back = "Done", .BackName = "cmddone"}) {
    for (int number = 1; number <= kOptions; ++number)
      for (const Term& choice : kMailOptions)
        if (!OptionOf(number).TwoWay || choice.Code != kMailRivals)
          combos(number).Add(std::string(choice.Says), choice.Code);
    int reporter = 0;
    for (const char* name : kReporters) cmbreport.Add(name, reporter++);
    cmbload.Add("Graphics Set Default", 0);
    for (int set = 1; set <= 4; ++set) cmbload.Add("Graphics Set " + std::to_string(set), set);
  }

  ui::Page Layout() override {
    std::vector<ui::Box> world, own;
    for (int number = 1; number <= kOptions; ++number)
      (OptionOf(number).TwoWay ? own : world)
          .push_back(ui::Field(OptionOf(number).Covers, combos(number)));
    return PageOf(
        ui::Columns(
            {ui::Rows({ui::Group("Mail about the world", std::move(world)), ui::Spacer()}).Grow(3),
             ui::Rows({ui::Group("Set all mail at once", {cmdalways, cmddirect, cmdnever}),
                       ui::Group("Mail about your own people", std::move(own)),
                       ui::Group("Shows", {ui::Field("Match reporter", cmbreport), chklive}),
                       ui::Group("While time passes",
                                 {ui::Field("Loading screens", cmbload, {&cmdview})}),
                       ui::Spacer()})
                 .Grow(2)}),
        &lblfacts, {&cmdgod, &cmdwindow});
  }

  void Return() override {
    cmdgod.Visible = Holds(world(), HouseRule::GodMode);
    cmdwindow.Visible = static_cast<bool>(desk().OpenShellOptions);
    for (int number = 1; number <= kOptions; ++number) {
      const MailOption& option = OptionOf(number);
      const int choice = state().*option.Choice;
      combos(number).SelectKey(option.TwoWay && choice == kMailRivals ? int(kMailAlways) : choice);
    }
    cmbreport.SelectKey(state().Reporter);
    chklive.Checked = TellsLive(world());
    cmbload.SelectKey(state().LoadingSet);
  }

 private:
  GameInfo& state() { return world().Game(); }

  void SetAll(int choice) {
    SetAllMailOptions(state(), choice);
    Return();
  }

  void cmbmail_Click(int number) { SetMailOption(state(), OptionOf(number), combos(number).Key()); }
  void cmbreport_Click() { state().Reporter = cmbreport.Key(); }
  void chklive_Click() { SetTellsLive(world(), chklive.Checked); }
  void cmbload_Click() { state().LoadingSet = cmbload.Key(); }

  ui::Label lblfacts{*this, "lblfacts",
                     "A direct rival or above is a promotion of your own size or bigger. News of "
                     "your own promotion always comes."};
  ui::Array<ui::ComboBox> combos{"", kOptions, [this](const std::string&, int number) {
                                   return std::make_unique<ui::ComboBox>(
                                       *this, OptionOf(number).Control,
                                       [this, number] { cmbmail_Click(number); });
                                 }};
  ui::ComboBox cmbreport{*this, "cmbreport", &frmOptions::cmbreport_Click};
  ui::CheckBox chklive{*this, "chklive", "Told live, sentence by sentence", false,
                       &frmOptions::chklive_Click};
  ui::ComboBox cmbload{*this, "cmbload", &frmOptions::cmbload_Click};
  ui::Button cmdalways{*this, "cmdalways", "Always", [this] { SetAll(kMailAlways); }};
  ui::Button cmddirect{*this, "cmddirect", "Only for direct rivals or above",
                       [this] { SetAll(kMailRivals); }};
  ui::Button cmdnever{*this, "cmdnever", "Never", [this] { SetAll(kMailNever); }};
  ui::Button cmdview{*this, "cmdview", "View", [this] { desk().Open("frmLoadingScreens"); }};
  ui::Button cmdgod{*this, "cmdgod", "God Mode", [this] { desk().Open("frmGodMode"); }};
  ui::Button cmdwindow{*this, "cmdwindow", "Window Options", [this] { desk().OpenShellOptions(); }};
};

/// The player's own notes. What is typed is on disk with the same stroke, so that no way of closing
/// the program loses it.
class frmNotepad : public GameScreen {
 public:
  explicit frmNotepad(Game& game) : GameScreen(game, "frmNotepad", "Notepad", {.Back = "Done"}) {
    txtnotes.MultiLine = true;
    txtnotes.Hint = "Plans, rumours, who owes whom a favour.";
    txtnotes.OnChange = [this] { txtnotes_Change(); };
  }

  ui::Page Layout() override {
    return PageOf(ui::Group("", {ui::Grow(txtnotes)}), &lblfacts, {&cmdrevert});
  }

  void Load() override {
    txtnotes.Text = notes().Text();
    ShowState();
  }

  /// An event was taken back: the box keeps what was typed, for another try.
  void Return() override { ShowState(); }

 private:
  TextFile& notes() { return world().Notes(); }

  void Store() { notes().Set(txtnotes.Text.Get()); }

  void ShowState() {
    const bool stored = txtnotes.Text.Get() == notes().Text();
    lblfacts.Text = stored ? "Saved as you type." : "The last change is not saved yet.";
    lblfacts.Colour = stored ? ui::Tone::Muted : ui::Tone::Red;
    cmdrevert.Visible = !stored;
  }

  void txtnotes_Change() {
    const auto most = static_cast<std::size_t>(notes().MaxBytes());
    if (txtnotes.Text->size() > most) {
      txtnotes.Text = notes().Text();
      desk().Say("Error!", "The notepad holds " + std::to_string(most) +
                               " letters at most. Your notes are as they were before.");
    }
    Store();
    ShowState();
  }

  void cmdrevert_Click() {
    txtnotes.Text = notes().Text();
    ShowState();
  }

  void cmdback_Click() override {
    Store();
    Close();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::TextBox txtnotes{*this, "txtnotes"};
  ui::Button cmdrevert{*this, "cmdrevert", "Back To What Is Saved", &frmNotepad::cmdrevert_Click};
};

using K = ui::ColumnKind;

const CellColumns<JobLine> kJobs = {
    {{"Promotion", K::Text, 4}, [](const JobLine& job) { return job.Promotion; }},
    {{"From", K::Date, 2}, [](const JobLine& job) { return DayCell(job.From); }},
    {{"To", K::Date, 2},
     [](const JobLine& job) {
       const ui::Cell to = DayCell(job.To);
       return job.Present ? ui::Cell(to.Number, "Today", ui::Tone::Gold) : to;
     }},
    {{"Size at start", K::Text, 1}, [](const JobLine& job) { return SizeText(job.StartSize); }},
    {{"Size at end", K::Text, 1, "Today's for the present job."},
     [](const JobLine& job) { return SizeText(job.EndSize); }},
    {{"Image at start", K::Number, 1}, [](const JobLine& job) { return job.StartImage; }},
    {{"Image at end", K::Number, 1, "Today's for the present job."},
     [](const JobLine& job) { return job.EndImage; }}};

struct ShownWish {
  const World* In;
  const OwnerWish* Is;
};

/// How a wish stands, in a word and its colour.
ui::Cell WishStateCell(const ShownWish& wish) {
  switch (int(wish.Is->State)) {
    case kWishGranted:
      return {"Fulfilled", ui::Tone::Green};
    case kWishMissed:
      return {"Missed", ui::Tone::Red};
    case kWishDropped:
      return {"Dropped", ui::Tone::Muted};
    default:
      return IsGranted(*wish.In, *wish.Is) ? ui::Cell("As wished", ui::Tone::Green)
                                           : ui::Cell("Open");
  }
}

const CellColumns<ShownWish> kWishTable = {
    {{"Wish", K::Text, 6}, [](const ShownWish& wish) { return WishText(*wish.Is); }},
    {{"State", K::Tag, 2}, WishStateCell},
    {{"So far", K::Text, 3, "Or what it came to."},
     [](const ShownWish& wish) {
       return wish.Is->State == kWishDropped ? "" : WishProgress(*wish.In, *wish.Is);
     }},
    {{"Year", K::Number}, [](const ShownWish& wish) { return YearOf(wish.Is->From); }}};

/// The player's career.
class frmUser : public GameScreen {
 public:
  explicit frmUser(Game& game) : GameScreen(game, "frmUser", "Career") {
    BackBefore(cmdplayon);
    lstwishes.EmptyText =
        "No wishes yet. An owner tells three when a year begins, or a job with at least four "
        "months "
        "of the year left, and judges them on 31 December.";
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Columns({ui::Rows({ui::Group("What the owner wishes", {ui::Grow(lstwishes)}).Grow(),
                               ui::Group("Jobs", {ui::Grow(lstjobs)}).Grow()})
                         .Grow(5),
                     ui::Group("", {ui::Grow(txtuser)}).Grow(2)}),
        &lblfacts);
    page.Actions.push_back(&cmdplayon);
    if (HasEnded(world().Game())) page.Main = &cmdplayon;
    return page;
  }

  void Return() override {
    const GameInfo& info = world().Game();
    lblfacts.Text = info.PlayerName + ", " + std::string(Says(kDifficulties, info.Difficulty)) +
                    ", since " + PlainDate(info.StartDate) + ".";
    lstjobs.Fill(NumberedRows(kJobs, CareerOf(world())));
    cmdplayon.Visible = HasEnded(info);
    ShowWishes();
    ShowRecord();
  }

 private:
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

  /// The latest year first.
  void ShowWishes() {
    std::vector<ShownWish> wishes;
    for (int number = world().Wishes().Count(); number >= 1; --number)
      wishes.push_back({&world(), &world().Wishes()[number]});
    std::ranges::stable_sort(wishes, [](const ShownWish& a, const ShownWish& b) {
      return YearOf(a.Is->From) > YearOf(b.Is->From);
    });
    lstwishes.Fill(NumberedRows(kWishTable, wishes));
  }

  void ShowRecord() {
    const GameInfo& info = world().Game();
    std::vector<ui::Report::Paragraph> words = {
        {Style::Heading, info.PlayerName.Str()},
        {Style::Line, ReputationText(info.Reputation) + "."},
        {Style::Line, TrustLine(world())},
        {Style::Strong, "The present job"}};
    for (const std::string& line : LinesOf(RecordOfJob(world())))
      words.push_back({Style::Line, line});
    txtuser.Write(std::move(words));
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstjobs{*this, "lstjobs", HeadingsOf(kJobs)};
  ui::ListBox lstwishes{*this, "lstwishes", HeadingsOf(kWishTable)};
  ui::Report txtuser{*this, "txtuser"};
  ui::Button cmdplayon{*this, "cmdplayon", "Play On", [this] { desk().Open("frmPlayOn"); }};
};

}  // namespace

SCREEN(frmOptions)

SCREEN(frmNotepad)

SCREEN(frmUser)

}  // namespace grapplemont
