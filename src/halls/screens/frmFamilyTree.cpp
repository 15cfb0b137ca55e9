#include <algorithm>
#include <memory>

#include "halls/screens/hallscreens.h"
#include "halls/trees.h"
#include "records/fields/wording.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

ui::Cell NumberOrNothing(int number) {
  return number <= 0 ? ui::Cell(0.0, "") : ui::Cell(number);
}

/// Who followed whom in a Title, and who teamed up with whom.
class frmFamilyTree : public GameScreen {
 public:
  explicit frmFamilyTree(Game& game, Lineage first = {})
      : GameScreen(game, "frmFamilyTree", "Family Trees"), first_(std::move(first)) {
    lblteams.Colour = ui::Tone::Muted;
    lstreigns.EmptyText = "Nobody has held it yet.";
    lstpeople.EmptyText = "Nobody has wrestled in a team yet.";
    lsttree.EmptyText = "Choose somebody to see their partners.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Tabs({ui::Box(ui::Box::Kind::Group, "Titles",
                                    {ui::Field("Title", cmbtitle), ui::Grow(lstreigns)}),
                            ui::Box(ui::Box::Kind::Columns, "Teams",
                                    {ui::Group("Who", {lblteams, ui::Grow(lstpeople)}).Grow(2),
                                     ui::Group("Partners", {ui::Grow(lsttree)}).Grow(7)})}),
                  &lblfacts, {&cmdpage});
  }

  void Load() override {
    past_ = std::make_unique<Ledger>(PastOf(world()));
    lineages_ = LineagesOf(world());
    for (const Lineage& lineage : lineages_)
      cmbtitle.Add(
          lineage.Title + " (" + lineage.Initials + ")" + (lineage.Stands ? "" : ", of the past"),
          cmbtitle.Count() + 1);
    const auto asked = std::ranges::find(lineages_, first_);
    const auto own = std::ranges::find(lineages_, world().PlayerUid(), &Lineage::Owner);
    const auto chosen = asked != lineages_.end() ? asked : own;
    if (!lineages_.empty())
      cmbtitle.Select(chosen == lineages_.end() ? 1
                                                : static_cast<int>(chosen - lineages_.begin()) + 1);
    people_ = PartnersIn(*past_);
    FillTable(lstpeople, peopleTable_, people_,
              [](const Career& career) { return int(career.Number); });
    ShowReigns();
  }
  void Return() override { ShowReigns(); }

 private:
  void ShowReigns() {
    reigns_.clear();
    if (cmbtitle.Selected() != 0)
      reigns_ = TreeOf(world(), lineages_[static_cast<std::size_t>(cmbtitle.Selected() - 1)]);
    FillPlaces(lstreigns, reignTable_, reigns_);
    const int last =
        reigns_.empty() ? 0 : std::ranges::max_element(reigns_, {}, &TreeReign::Number)->Number;
    lblfacts.Text =
        (HaveReignsGone(world()) ? "At least " : "") + Counted(last, "reign") + " of this Title.";
    lblteams.Text =
        Counted(static_cast<int>(people_.size()), "person", "people") + " wrestled in teams.";
    ShowButtons();
  }

  void ShowTree() {
    tree_ = TeamTreeOf(*past_, lstpeople.Key());
    FillPlaces(lsttree, treeTable_, tree_);
    ShowButtons();
  }

  const Career* CareerOf(int number) const {
    const int place = past_ ? past_->PlaceOf(number) : -1;
    return place < 0 ? nullptr : &past_->Careers[static_cast<std::size_t>(place)];
  }
  int UidOf(int number) const {
    const Career* career = CareerOf(number);
    return career ? int(career->Worker) : 0;
  }
  std::string NameOf(int number) const {
    const Career* career = CareerOf(number);
    return career ? career->Name.Str() : "somebody";
  }
  int HolderAt(int key) const {
    if (key < 1 || key > static_cast<int>(reigns_.size())) return 0;
    const TitleReign& reign = *reigns_[static_cast<std::size_t>(key - 1)].Reign;
    return reign.Partner == 0 ? int(reign.Worker) : 0;
  }
  int PartnerAt(int key) const {
    return key < 1 || key > static_cast<int>(tree_.size())
               ? 0
               : UidOf(tree_[static_cast<std::size_t>(key - 1)].Partner);
  }
  ui::Drawing FaceIn(int uid) const {
    return uid == 0 ? ui::Drawing() : FaceOf(game_.World(), uid);
  }

  /// The list that was used last is meant.
  void Use(int uid, bool chosen) {
    chosen_ = uid;
    EnableUnless(cmdpage, !chosen    ? "Choose somebody first."
                          : uid == 0 ? "There is no page of this."
                                     : "");
  }
  void ShowButtons() { Use(0, false); }
  void lstreigns_Click() { Use(HolderAt(lstreigns.Key()), lstreigns.Selected() != 0); }
  void lsttree_Click() { Use(PartnerAt(lsttree.Key()), lsttree.Selected() != 0); }
  void lstpeople_Click() {
    ShowTree();
    Use(UidOf(lstpeople.Key()), lstpeople.Selected() != 0);
  }
  void cmdpage_Click() {
    if (chosen_ != 0) game_.OpenWorker(chosen_);
  }

  static ui::Cell EndOf(const TreeReign& tree) {
    constexpr const char* kEnds[] = {"Lasts", "Lost", "Vacated", "Dissolved"};
    const int end = tree.Reign->End;
    if (end == kReignLasts && IsVacancy(*tree.Reign)) return {"Vacant now", ui::Tone::Muted};
    if (end < kReignLasts || end > kReignDissolved || (IsVacancy(*tree.Reign) && end == kReignLost))
      return {""};
    return {kEnds[end], end == kReignLasts ? ui::Tone::Gold : ui::Tone::Plain};
  }

  Lineage first_;
  int chosen_ = 0;
  std::unique_ptr<Ledger> past_;
  std::vector<Lineage> lineages_;
  std::vector<TreeReign> reigns_;
  std::vector<const Career*> people_;
  std::vector<TreePair> tree_;
  const CellColumns<TreeReign> reignTable_ = {
      {{"No.", K::Number, 0, "Which one of the reigns that are kept."},
       [](const TreeReign& tree) { return NumberOrNothing(tree.Number); }},
      {{.Title = "Holder", .Width = 5, .Draws = [this](int key) { return FaceIn(HolderAt(key)); }},
       [](const TreeReign& tree) {
         return ui::Cell(tree.Reign->Holder.View(),
                         IsVacancy(*tree.Reign) ? ui::Tone::Muted : ui::Tone::Plain);
       }},
      {{"Reign no.", K::Number, 0, "Which one of their reigns."},
       [](const TreeReign& tree) { return NumberOrNothing(tree.OfTheirs); }},
      {{"From", K::Date, 3},
       [](const TreeReign& tree) { return DateCell(tree.Reign->From, kBeforeTheGame); }},
      {{"Days", K::Number},
       [this](const TreeReign& tree) {
         return NumberOrNothing(DaysOf(*tree.Reign, world().Today()));
       }},
      {{"Defences", K::Number},
       [](const TreeReign& tree) {
         const int defences = tree.Reign->Defences;  // below 0 where nobody knows
         return IsVacancy(*tree.Reign) || defences < 0 ? ui::Cell(-1.0, "") : ui::Cell(defences);
       }},
      {{"Taken from", K::Text, 5}, [](const TreeReign& tree) { return ui::Cell(tree.TakenFrom); }},
      {{"End", K::Tag}, EndOf}};
  const CellColumns<Career> peopleTable_ = {
      {{.Title = "Name", .Width = 1, .Draws = [this](int number) { return FaceIn(UidOf(number)); }},
       [](const Career& career) { return career.Name.View(); }}};
  const CellColumns<TreePair> treeTable_ = {
      {{.Title = "Partner",
        .Width = 5,
        .Draws = [this](int key) { return FaceIn(PartnerAt(key)); }},
       [this](const TreePair& pair) {
         return pair.Depth == 0 ? ui::Cell(NameOf(pair.Partner))
                                : ui::Cell(NameOf(pair.Whose) + " with " + NameOf(pair.Partner),
                                           ui::Tone::Muted);
       }},
      {{"Team", K::Text, 4}, [](const TreePair& pair) { return pair.Pair->Team.View(); }},
      {{"With", K::Text, 2}, [](const TreePair& pair) { return pair.Pair->Initials.View(); }},
      {{"From", K::Date, 3}, [](const TreePair& pair) { return DayCell(pair.Pair->First); }},
      {{"Until", K::Date, 3}, [](const TreePair& pair) { return DayCell(pair.Pair->Last); }},
      {{"Won", K::Number}, [](const TreePair& pair) { return int(pair.Pair->Won); }},
      {{"Lost", K::Number}, [](const TreePair& pair) { return int(pair.Pair->Lost); }},
      {{"Reigns", K::Number},
       [](const TreePair& pair) { return NumberOrNothing(pair.Pair->Reigns); }},
      {{"Days", K::Number, 0, "As champions."},
       [](const TreePair& pair) { return NumberOrNothing(pair.Pair->Days); }},
      {{"Defences", K::Number},
       [](const TreePair& pair) { return NumberOrNothing(pair.Pair->Defences); }}};
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label lblteams{*this, "lblteams"};
  ui::ComboBox cmbtitle{*this, "cmbtitle", &frmFamilyTree::ShowReigns};
  ui::Button cmdpage{*this, "cmdpage", "Open Page", &frmFamilyTree::cmdpage_Click};
  ui::ListBox lstreigns{*this, "lstreigns", HeadingsOf(reignTable_),
                        &frmFamilyTree::lstreigns_Click, cmdpage};
  ui::ListBox lstpeople{*this, "lstpeople", HeadingsOf(peopleTable_),
                        &frmFamilyTree::lstpeople_Click, cmdpage};
  ui::ListBox lsttree{*this, "lsttree", HeadingsOf(treeTable_), &frmFamilyTree::lsttree_Click,
                      cmdpage};
};

}  // namespace

SCREEN(frmFamilyTree)

void ConnectHalls(Game& game) {
  game.OpenTree = [&game](int promotionUid, const std::string& title) {
    Lineage lineage;
    lineage.Title = title;
    lineage.Owner = promotionUid;
    game.Desk().Open(std::make_unique<frmFamilyTree>(game, lineage));
  };
}

}  // namespace grapplemont
