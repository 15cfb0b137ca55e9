#include "editor/merge.h"
#include "editor/screens/screenediting.h"
#include "editor/screens/screenfiles.h"
#include "ui/gamescreen.h"

namespace grapplemont {

namespace {

/// New records in files beside the data: what would become of each, and taking them in.
class frmEditMerge : public GameScreen {
 public:
  explicit frmEditMerge(Game& game) : GameScreen(game, "frmEditMerge", "Merge New Records") {
    BackBefore(cmdclean);
    lstrows.EmptyText =
        "There are no new records. Put the files named at the left into the data folder.";
    lstmended.EmptyText = "Nothing has to be put right in the new records.";
    lblremarks.Colour = ui::Tone::Red;
    cmdclean.Tip = "New records come into data without faults only.";
  }

  ui::Page Layout() override {
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdclean, &cmdlook, &cmdrename, &cmdmerge};
    page.Main = &cmdmerge;
    page.Cancel = &cmdback;
    page.Body = ui::Columns(
        {ui::Group("The new files", {lblfolder, ui::Grow(lstfiles), lblremarks}).Grow(2),
         ui::Tabs({ui::Group("What becomes of each record", {ui::Grow(lstrows)}),
                   ui::Group("What is put right on the way", {ui::Grow(lstmended)})})
             .Grow(7)});
    return page;
  }

  void Load() override {
    lblfolder.Text = "They are looked for in " + game_.DataFolder() + " and stay there.";
    cmdlook_Click();
  }
  void Return() override { Preview(); }

 private:
  World& data() { return EditedData(game_).World(); }

  void cmdlook_Click() {
    coming_ = ReadNewRecords(game_.Disk(), game_.DataFolder());
    names_.clear();
    ShowFiles();
    Preview();
  }

  void ShowFiles() {
    std::string remarks;
    lstfiles.Clear();
    for (const NewRecords::FileLine& line : coming_.Files()) {
      const bool isWrong = !line.Remark.empty();
      lstfiles.Add({line.Name, {line.Brings, isWrong ? ui::Tone::Red : ui::Tone::Plain}});
      if (isWrong) remarks += (remarks.empty() ? "" : "\n") + line.Remark;
    }
    lblremarks.Text = remarks;
    lblremarks.Visible = !remarks.empty();
  }

  void Preview() {
    const std::string why = WhyNoArrivals(data());
    cmdclean.Visible = !why.empty();
    arrivals_ = why.empty() ? PreviewMerge(data(), coming_, names_) : Arrivals{};
    const int comes = arrivals_.Count(Fate::Added) + arrivals_.Count(Fate::Renumbered);
    cmdmerge.Enabled = comes > 0;
    cmdmerge.Tip = comes > 0 ? "" : !why.empty() ? why : "No new record can come in.";
    lblfacts.Text = !why.empty()      ? why
                    : coming_.Empty() ? "There is nothing to merge."
                                      : Tally(arrivals_);
    ShowRows();
  }

  void ShowRows() {
    std::vector<ui::ListBox::Row> rows;
    int key = 0;
    for (const Arrival& row : arrivals_.Rows)
      rows.push_back({{row.Name, row.Kind, ui::Cell(row.Record), UidCell(row.Uid),
                       FateCell(row.Comes), UidCell(row.Becomes), row.Why},
                      ++key});
    lstrows.Fill(std::move(rows));
    FillFaults(lstmended, arrivals_.Mended);
    lstrows_Click();
  }

  static ui::Cell UidCell(int uid) { return uid == 0 ? ui::Cell("") : ui::Cell(uid); }

  const Arrival* Chosen() const {
    return lstrows.Key() == 0 ? nullptr
                              : &arrivals_.Rows[static_cast<std::size_t>(lstrows.Key() - 1)];
  }

  void lstrows_Click() {
    const Arrival* row = Chosen();
    cmdrename.Enabled = row && (row->NameTaken || names_.contains({row->Kind, row->Record}));
    cmdrename.Tip = cmdrename.Enabled ? ""
                                      : "Choose a record that stays out because its name or its "
                                        "initials are taken.";
  }

  void cmdrename_Click() {
    const Arrival row = *Chosen();
    const bool byInitials = row.Why == kInitialsTaken;
    const std::string answer = desk().Prompt(
        "Another Name", row.Name + (byInitials ? " by other initials:" : " by another name:"),
        byInitials ? "" : row.Name);
    if (answer.empty()) return;
    NewName& chosen = names_[{row.Kind, row.Record}];
    (byInitials ? chosen.Initials : chosen.Name) = answer;
    Preview();
  }

  void cmdmerge_Click() {
    if (!desk().Ask("Merge?", Tally(arrivals_) +
                                  " Merge them into the data? What these are now is kept as a "
                                  "backup."))
      return;
    arrivals_ = MergeNewRecords(data(), coming_, names_);
    ShowRows();
    cmdrename.Enabled = false;
    cmdmerge.Enabled = false;
    cmdmerge.Tip = "They are merged. Look again when the files have changed.";
    lblfacts.Text = "Merged. " + Tally(arrivals_);
  }

  void cmdclean_Click() { desk().Open("frmEditMaintain"); }

  using K = ui::ColumnKind;
  NewRecords coming_;
  NewNames names_;
  Arrivals arrivals_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label lblfolder{*this, "lblfolder"};
  ui::Label lblremarks{*this, "lblremarks"};
  ui::ListBox lstfiles{*this, "lstfiles", {{"File", K::Text, 3}, {"Records", K::Text, 2}}};
  ui::ListBox lstrows{*this,
                      "lstrows",
                      {{"Name", K::Text, 5},
                       {"Kind", K::Text, 2},
                       {"Record", K::Number, 2, "Its number in the new file."},
                       {"Uid", K::Number, 2, "The uid in the new file."},
                       {"", K::Tag, 2},
                       {"Becomes", K::Number, 2, "The uid in the data."},
                       {"Why", K::Text, 8}},
                      &frmEditMerge::lstrows_Click};
  ui::ListBox lstmended{*this, "lstmended", FaultColumns("What is wrong, and what is done")};
  ui::Button cmdclean{*this, "cmdclean", "Clean Up First", &frmEditMerge::cmdclean_Click};
  ui::Button cmdlook{*this, "cmdlook", "Look Again", &frmEditMerge::cmdlook_Click};
  ui::Button cmdrename{*this, "cmdrename", "Another Name", &frmEditMerge::cmdrename_Click};
  ui::Button cmdmerge{*this, "cmdmerge", "Merge", &frmEditMerge::cmdmerge_Click};
};

}  // namespace

SCREEN(frmEditMerge)

}  // namespace grapplemont
