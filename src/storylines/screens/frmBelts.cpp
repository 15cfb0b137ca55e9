#include <algorithm>

#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "records/severing.h"
#include "storylines/lineages.h"
#include "storylines/screens/screenpeople.h"
#include "storylines/storynames.h"
#include "storylines/titles.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

/// Every reign of a Title, of those that stand and those of the past, and what they add up to.
class frmReigns : public GameScreen {
 public:
  explicit frmReigns(Game& game, Lineage first = {})
      : GameScreen(game, "frmReigns", "Reigns"), first_(std::move(first)) {
    lstreigns.EmptyText = "Nothing is known of its past.";
    lsttotals.EmptyText = "Nobody has held it yet.";
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns({ui::Group("", {ui::Field("Title", cmbtitle), ui::Grow(lstreigns)}).Grow(5),
                     ui::Group("Champions", {ui::Grow(lsttotals)}).Grow(3)}),
        &lblfacts, {&cmdchronicle});
  }

  void Load() override {
    if (!HasEnded(world().Game())) UpdateReigns(world());
    lineages_ = LineagesOf(world());
    for (const Lineage& lineage : lineages_)
      cmbtitle.Add(
          lineage.Title + " (" + lineage.Initials + ")" + (lineage.Stands ? "" : ", of the past"),
          cmbtitle.Count() + 1);
    cmbtitle.Select(cmbtitle.Count() > 0 ? 1 : 0);
    Select();
    ShowReigns();
  }
  void Return() override { ShowReigns(); }

 private:
  /// The Title that was asked for, else the player's first.
  void Select() {
    const auto asked = std::find(lineages_.begin(), lineages_.end(), first_);
    const auto own = std::find_if(lineages_.begin(), lineages_.end(), [&](const Lineage& lineage) {
      return lineage.Owner == world().PlayerUid();
    });
    const auto chosen = asked != lineages_.end() ? asked : own;
    if (chosen != lineages_.end())
      cmbtitle.Select(static_cast<int>(chosen - lineages_.begin()) + 1);
  }

  static ui::Cell CountCell(int number) {
    return number < 0 ? ui::Cell(-1.0, "-", ui::Tone::Muted) : ui::Cell(number);
  }

  static ui::Cell EndCell(const TitleReign& reign) {
    constexpr const char* kEnds[] = {"Lasts", "Lost", "Vacated", "Dissolved"};
    const int end = reign.End;
    if (end < kReignLasts || end > kReignDissolved) return {""};
    if (end == kReignLasts && IsVacancy(reign)) return {"Vacant now", ui::Tone::Muted};
    const bool says = end == kReignLasts || end == kReignDissolved || !IsVacancy(reign);
    return {says ? kEnds[end] : "", end == kReignLasts ? ui::Tone::Gold : ui::Tone::Plain};
  }

  const Lineage& Chosen() const {
    return lineages_[static_cast<std::size_t>(cmbtitle.Selected() - 1)];
  }

  /// Nothing where nobody knows how long any of the champion's reigns lasted.
  ui::Cell DaysCell(const ChampionTotal& total) {
    const auto reigns = ReignsOf(world(), Chosen());
    const bool isKnown = std::ranges::any_of(reigns, [&](const TitleReign* reign) {
      return reign->Holder == total.Name && DaysOf(*reign, world().Today()) >= 0;
    });
    return CountCell(isKnown ? total.Days : -1);
  }

  void ShowReigns() {
    if (cmbtitle.Selected() != 0) {
      const Lineage& lineage = Chosen();
      FillTable(lstreigns, reigns_, ReignsOf(world(), lineage),
                [&](const TitleReign& reign) { return world().Reigns().NumberOf(reign); });
      FillPlaces(lsttotals, totals_, TotalsOf(world(), lineage));
    }
    EnableUnless(cmdchronicle, cmbtitle.Selected() != 0 ? "" : "There is no Title in the world.");
    lblfacts.Text = cmbtitle.Count() == 0 ? "There is no Title in the world."
                                          : Counted(lsttotals.Count(), "champion") + ".";
  }

  void cmdchronicle_Click() {
    const Lineage& lineage = Chosen();
    game_.OpenChapter("Titles", lineage.Owner, lineage.Title);
  }

  using K = ui::ColumnKind;
  Lineage first_;
  std::vector<Lineage> lineages_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbtitle{*this, "cmbtitle", &frmReigns::ShowReigns};
  const CellColumns<TitleReign> reigns_ = {
      {{"Holder", K::Text, 5},
       [](const TitleReign& reign) {
         return ui::Cell(reign.Holder.View(), IsVacancy(reign) ? ui::Tone::Muted : ui::Tone::Plain);
       }},
      {{"From", K::Date, 3},
       [](const TitleReign& reign) { return DateCell(reign.From, kBeforeTheGame); }},
      {{"Until", K::Date, 3},
       [](const TitleReign& reign) {
         return reign.End == kReignLasts ? ui::Cell(0.0, std::string())
                                         : DateCell(reign.Until, "Unknown");
       }},
      {{"Days", K::Number},
       [this](const TitleReign& reign) { return CountCell(DaysOf(reign, world().Today())); }},
      {{"Defences", K::Number, 0, "How often it was kept in the ring."},
       [](const TitleReign& reign) {
         return CountCell(IsVacancy(reign) ? -1 : int(reign.Defences));
       }},
      {{"End", K::Tag}, EndCell}};
  const CellColumns<ChampionTotal> totals_ = {
      {{"Champion", K::Text, 4}, [](const ChampionTotal& total) { return total.Name; }},
      {{"Reigns", K::Number}, [](const ChampionTotal& total) { return ui::Cell(total.Reigns); }},
      {{"Days", K::Number, 0, "Of the reigns whose length is known."},
       [this](const ChampionTotal& total) { return DaysCell(total); }},
      {{"Defences", K::Number},
       [](const ChampionTotal& total) { return CountCell(total.Defences); }}};
  ui::ListBox lstreigns{*this, "lstreigns", HeadingsOf(reigns_)};
  ui::ListBox lsttotals{*this, "lsttotals", HeadingsOf(totals_)};
  ui::Button cmdchronicle{*this, "cmdchronicle", "Chronicle", &frmReigns::cmdchronicle_Click};
};

enum Whose { kYours = 1, kEverybodys };
enum ForHowMany { kForOne = 1, kForTwo };

/// The player's Titles to be made, given, taken and given up; the whole world's to be looked at.
class frmBelts : public GameScreen {
 public:
  explicit frmBelts(Game& game) : GameScreen(game, "frmBelts", "Titles", {.Manages = true}) {
    lsthistory.EmptyText = "Choose a Title to see who has held it.";
    lsttitles.Acts = {{&cmdreigns}, {&cmdtree}, {&cmdsuspend}, {&cmdvacate}, {&cmddissolve}};
    lstwres.Multi = true;
    txtname.Hint = "Name";
    cmbwhose.Add("Your Titles", kYours);
    cmbwhose.Add("All Titles", kEverybodys);
    cmbwhose.Select(1);
    cmbkind.Add("Singles", kForOne);
    cmbkind.Add("Tag Team", kForTwo);
    cmbkind.Select(1);
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Rows({ui::Group("", {cmbwhose, ui::Grow(lsttitles)}).Grow(3),
                       ui::Group("Who has held it",
                                 {ui::Grow(lsthistory), ui::Columns({cmdreigns, cmdtree})})
                           .Grow(2)})
                 .Grow(5),
             ui::Rows({ui::Group("Name and kind",
                                 {txtname, cmdrename, ui::Columns({cmbkind, chkwoman, chklight}),
                                  cmdcreate}),
                       ui::Group("Award it without a match", {ui::Grow(lstwres), cmdaward}).Grow()})
                 .Grow(3)}),
        &lblfacts, {&cmdsuspend, &cmdvacate, &cmddissolve});
  }

  void Load() override {
    ShowTitles();
    lsttitles.Select(lsttitles.Count() > 0 ? 1 : 0);
    lsttitles_Click();
  }
  void Return() override {
    ShowTitles();
    ShowTitle();
  }

 private:
  /// nullptr when none is selected.
  grapplemont::Title* Chosen() {
    return lsttitles.Key() == 0 ? nullptr : &world().Titles()[lsttitles.Key()];
  }

  bool IsListed(const grapplemont::Title& title) {
    return cmbwhose.Key() == kEverybodys || IsPlayers(world(), title);
  }

  ui::Cell OwnerCell(const grapplemont::Title& title) {
    if (title.Owner <= 0) return {"Closed", ui::Tone::Muted};
    return PromotionInitials(world(), title.Owner);
  }

  /// Of the world's Titles one wants to know whose they are; since when they are held, the history
  /// says.
  CellColumns<grapplemont::Title> Table() {
    constexpr std::size_t kSince = 2;
    CellColumns<grapplemont::Title> columns = TitleTable(world());
    if (cmbwhose.Key() == kEverybodys)
      columns[kSince] = {{"Promotion"}, [this](const auto& title) { return OwnerCell(title); }};
    return columns;
  }

  void ShowTitles() {
    // On the very day of the change; nothing is written once the career has ended.
    if (!HasEnded(world().Game())) UpdateReigns(world());
    std::vector<ui::ListBox::Row> rows;
    int vacant = 0;
    const auto columns = Table();
    for (const grapplemont::Title& title : world().Titles()) {
      if (!IsListed(title)) continue;
      vacant += title.Holder == 0;
      rows.push_back(RowOf(columns, title, world().Titles().NumberOf(title)));
    }
    lblfacts.Text = Counted(std::ssize(rows), "Title") + ", " + std::to_string(vacant) + " vacant";
    lsttitles.EmptyText = cmbwhose.Key() == kEverybodys
                              ? "Nobody in the world has a Title."
                              : "You have no Title yet. Name one and create it.";
    lsttitles.Fill(std::move(rows));
  }

  void ShowTitle() {
    const grapplemont::Title* title = Chosen();
    lsthistory.Fill(title ? ReignRows(*title) : std::vector<ui::ListBox::Row>{});
    std::vector<const Worker*> contenders;
    if (title && IsPlayers(world(), *title)) contenders = Contenders(world(), *title);
    FillShort(lstwres, contenders);
    lstwres.EmptyText = !title                       ? "Choose a Title first."
                        : IsPlayers(world(), *title) ? "Nobody you have is fit and may hold it."
                                                     : "It is not yours to give.";
    ShowButtons();
  }

  /// Empty when the chosen Title is one of the player's.
  std::string WhyNotOurs() {
    const grapplemont::Title* title = Chosen();
    if (!title) return "Choose a Title first.";
    return IsPlayers(world(), *title) ? "" : "This Title is not yours.";
  }

  void ShowButtons() {
    const std::string none = WhyNotOurs();
    const bool isSuspended = none.empty() && Chosen()->Suspended;
    cmdsuspend.Text = isSuspended ? "Activate" : "Suspend";
    EnableUnless({cmdrename, cmdsuspend, cmddissolve}, none);
    EnableUnless(cmdtree, Chosen() ? "" : "Choose a Title first.");
    EnableUnless(cmdvacate, none.empty() ? WhyNotVacate(*Chosen()) : none);
    const auto [holder, partner] = Picked();
    const bool tooMany = lstwres.Keys().size() > 2;
    EnableUnless(cmdaward, !none.empty() ? none
                           : tooMany     ? "Choose two at most."
                                         : WhyNotAward(world(), *Chosen(), holder, partner));
  }

  std::pair<int, int> Picked() {
    const std::vector<int> keys = lstwres.Keys();
    return {keys.empty() ? 0 : keys[0], keys.size() < 2 ? 0 : keys[1]};
  }

  void cmbwhose_Click() {
    lsttitles.Clear();
    lsttitles.SetColumns(HeadingsOf(Table()));
    Load();
  }

  void lsttitles_Click() {
    const grapplemont::Title* title = Chosen();
    txtname.Text = title && IsPlayers(world(), *title) ? title->Name.Str() : std::string();
    lstwres.Clear();
    ShowTitle();
  }

  void cmdreigns_Click() {
    const grapplemont::Title* title = Chosen();
    desk().Open(std::make_unique<frmReigns>(
        game_, title ? Lineage{title->Name.Str(), title->Owner, {}, false} : Lineage{}));
  }

  void cmdtree_Click() {
    if (const grapplemont::Title* title = Chosen(); title && game_.OpenTree)
      game_.OpenTree(title->Owner, title->Name.Str());
  }

  void cmdcreate_Click() {
    const TitleTerms terms{txtname.Text.Get(), cmbkind.Key() == kForOne, chkwoman.Checked,
                           chklight.Checked};
    if (desk().Objects(WhyNotCreate(world(), terms))) return;
    const int number = CreateTitle(world(), terms);
    ShowTitles();
    lsttitles.SelectKey(number);
    lsttitles_Click();
  }

  void cmdrename_Click() {
    if (Chosen()->Name == TrimmedName(txtname.Text.Get())) return;
    if (desk().Objects(WhyNotTitleName(world(), txtname.Text.Get()))) return;
    RenameTitle(world(), lsttitles.Key(), txtname.Text.Get());
    Return();
  }

  void cmdsuspend_Click() {
    Chosen()->Suspended = !Chosen()->Suspended;
    Return();
  }

  void cmdvacate_Click() {
    if (!desk().Ask("Vacate?",
                    "Are you sure you wish to strip " + ChampionText(world(), *Chosen()) +
                        " of the " + Chosen()->Name.Str() + "? It will lose 20 image.",
                    ui::Default::No))
      return;
    VacateTitle(world(), *Chosen());
    Return();
  }

  void cmdaward_Click() {
    const auto [holder, partner] = Picked();
    Crown(world(), *Chosen(), holder, partner);
    lstwres.Select(0);
    Return();
  }

  void cmddissolve_Click() {
    const int booked = BookedForTitle(world(), *Chosen());
    const std::string price = booked == 0 ? ""
                                          : " What is booked for it (" +
                                                Counted(booked, "segment") + ") will be removed.";
    if (!desk().Ask("Dissolve?",
                    "Are you sure you wish to dissolve the " + Chosen()->Name.Str() + "?" + price,
                    ui::Default::No))
      return;
    DissolveTitle(world(), lsttitles.Key());
    lsttitles.Clear();
    Load();
  }

  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbwhose{*this, "cmbwhose", &frmBelts::cmbwhose_Click};
  ui::ListBox lsttitles{*this, "lsttitles", HeadingsOf(TitleTable(world())),
                        &frmBelts::lsttitles_Click};
  ui::ListBox lsthistory{*this, "lsthistory", ReignColumns()};
  ui::Button cmdreigns{*this, "cmdreigns", "All Reigns", &frmBelts::cmdreigns_Click};
  ui::Button cmdtree{*this, "cmdtree", "Family Tree", &frmBelts::cmdtree_Click};
  ui::TextBox txtname{*this, "txtname", {}, decltype(grapplemont::Title::Name)::kWidth};
  ui::Button cmdrename{*this, "cmdrename", "Rename", &frmBelts::cmdrename_Click};
  ui::ComboBox cmbkind{*this, "cmbkind"};
  ui::CheckBox chkwoman{*this, "chkwoman", "Women only"};
  ui::CheckBox chklight{*this, "chklight", "Lightweights only"};
  ui::Button cmdcreate{*this, "cmdcreate", "Create", &frmBelts::cmdcreate_Click};
  ui::ListBox lstwres{*this, "lstwres", WithFaces(world(), ShortColumns()), &frmBelts::ShowButtons};
  ui::Button cmdaward{*this, "cmdaward", "Award", &frmBelts::cmdaward_Click};
  ui::Button cmdsuspend{*this, "cmdsuspend", "Suspend", &frmBelts::cmdsuspend_Click};
  ui::Button cmdvacate{*this, "cmdvacate", "Vacate", &frmBelts::cmdvacate_Click};
  ui::Button cmddissolve{*this, "cmddissolve", "Dissolve", &frmBelts::cmddissolve_Click};
};

}  // namespace

SCREEN(frmReigns)
SCREEN(frmBelts)

}  // namespace grapplemont
