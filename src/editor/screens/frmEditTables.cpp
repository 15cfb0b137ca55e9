#include "editor/recordfile.h"
#include "editor/screens/screenfiles.h"
#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/tables/worldreport.h"
#include "session/slots.h"

namespace grapplemont {

namespace {

/// The data as tables that people can edit: written to a folder, or made from one.
class frmEditTables : public GameScreen {
 public:
  explicit frmEditTables(Game& game) : GameScreen(game, "frmEditTables", "The Data As Tables") {
    BackBefore(cmdexport);
    txtfolder.Hint = "A folder of your own";
    txtfolder.OnChange = [this] { Forget(); };
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Rows(
            {ui::Group("The folder of tables", {txtfolder, lblplace}),
             ui::Columns({ui::Group("Records", {ui::Grow(lstcounts)}).Grow(2),
                          ui::Group("Mistakes in the tables", {ui::Grow(lstmistakes)}).Grow(3)})
                 .Grow()}),
        &lblfacts, {}, &cmdimport);
    page.Actions = {&cmdback, &cmdexport, &cmdlook, &cmdimport};
    return page;
  }

  void Load() override { Forget(); }
  void Return() override { Forget(); }

 private:
  World& data() { return EditedData(game_).World(); }
  std::string Folder() const { return PathInHome(game_.Home(), txtfolder.Text.Get()); }
  bool IsNamed() const { return !detail::Trimmed(txtfolder.Text.Get()).empty(); }

  /// Nothing has been looked at: the records of the data alone.
  void Forget() {
    preview_ = {};
    lblfacts.Text = "The data hold " + ContentsOf(data()) + ".";
    lstmistakes.EmptyText = "Look at tables to check them.";
    lstmistakes.Clear();
    ShowCounts(CountsOf(data(), nullptr));
    ShowPlace();
    ShowImport("Look at the tables first.");
  }

  void ShowPlace() {
    lblplace.Text = !IsNamed() ? "Name a folder: one in the home, or a whole path."
                               : "It lies at " + PlaceName() + ".";
    for (ui::Button* button : {&cmdexport, &cmdlook}) {
      button->Enabled = IsNamed();
      button->Tip = IsNamed() ? "" : "Name a folder first.";
    }
  }
  std::string PlaceName() const { return FromUtf8(Folder()).value_or(Folder()); }

  void ShowImport(const std::string& why) {
    cmdimport.Enabled = preview_.Made.has_value();
    cmdimport.Tip = preview_.Made ? "" : why;
  }

  void ShowCounts(const std::vector<RecordCount>& counts) {
    std::vector<ui::ListBox::Row> rows;
    for (const RecordCount& row : counts)
      rows.push_back(
          {{row.Table, row.File, ui::Cell(row.Now),
            row.Then ? ui::Cell(*row.Then, *row.Then == row.Now ? ui::Tone::Plain : ui::Tone::Amber)
                     : ui::Cell("")}});
    lstcounts.Fill(std::move(rows));
  }

  void cmdexport_Click() {
    const TablesPlace place = LookForExport(game_.Disk(), Folder());
    if (!place.WhyNot.empty()) return desk().Say("Error!", place.WhyNot);
    if (!place.Present.empty() &&
        !desk().Ask("Replace?",
                    PlaceName() + " holds " + ForScreen(Listed(place.Present)) +
                        ". Put the tables of the data in their place?",
                    ui::Default::No))
      return;
    ExportTables(game_.Disk(), Folder(), data());
    Forget();
    lblfacts.Text = "Wrote the tables of " + ContentsOf(data()) + " to " + PlaceName() + ".";
    if (const std::size_t faults = TellFaults(data()); faults > 0)
      desk().Say("Faults", "The data folder " + FaultyExport(faults, "Check And Clean-Up"));
  }

  void cmdlook_Click() {
    preview_ = LookAtTables(game_.Disk(), Folder(), data());
    lstmistakes.EmptyText = preview_.Made ? "The tables have no mistakes." : preview_.WhyNot;
    lstmistakes.Clear();
    for (const std::string& mistake : preview_.Mistakes) lstmistakes.Add({mistake});
    ShowCounts(preview_.Made ? preview_.Counts : CountsOf(data(), nullptr));
    lblfacts.Text =
        preview_.Made ? "No mistakes: " + ContentsOf(*preview_.Made) + "." : preview_.WhyNot;
    ShowImport(preview_.WhyNot);
  }

  void cmdimport_Click() {
    if (const auto& unreadable = EditedData(game_).Unreadable(); !unreadable.empty())
      return desk().Say("Error!", unreadable.front().Why + " Move it away first.");
    if (!desk().Ask("Replace the data?",
                    "The data hold " + ContentsOf(data()) + ". Put " + ContentsOf(*preview_.Made) +
                        " in their place? What they are now is kept as a backup.",
                    ui::Default::No))
      return;
    TakeOver(data(), *preview_.Made);
    Forget();
    lblfacts.Text = "Built the data again: " + ContentsOf(data()) + ".";
  }

  using K = ui::ColumnKind;
  TablesPreview preview_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::TextBox txtfolder{*this, "txtfolder", "world-tables"};
  ui::Label lblplace{*this, "lblplace"};
  ui::ListBox lstcounts{*this,
                        "lstcounts",
                        {{"Table", K::Text, 3},
                         {"File", K::Text, 3},
                         {"Now", K::Number, 2, "Records in the data."},
                         {"Then", K::Number, 2, "Records in the tables."}}};
  ui::ListBox lstmistakes{*this, "lstmistakes", {{"What is wrong, and where"}}};
  ui::Button cmdexport{*this, "cmdexport", "Export", &frmEditTables::cmdexport_Click};
  ui::Button cmdlook{*this, "cmdlook", "Look At Tables", &frmEditTables::cmdlook_Click};
  ui::Button cmdimport{*this, "cmdimport", "Import", &frmEditTables::cmdimport_Click};
};

std::vector<Fault> UnreadableFaults(const DataFolder& data) {
  std::vector<Fault> faults;
  for (const UnreadableFile& file : data.Unreadable())
    faults.push_back({file.File, 0, {}, {}, "cannot be read: " + file.Why});
  return faults;
}

/// What is wrong with the data and what a clean-up would do, before it does it.
class frmEditMaintain : public GameScreen {
 public:
  explicit frmEditMaintain(Game& game) : GameScreen(game, "frmEditMaintain", "Check And Clean-Up") {
    BackBefore(cmdclean);
    lstfaults.EmptyText = "Nothing is wrong with the data.";
    lstdoings.EmptyText = "There is nothing that a clean-up would do.";
    lstleft.EmptyText = "Nothing would be left to do by hand.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Tabs({ui::Group("What is wrong", {ui::Grow(lstfaults)}),
                            ui::Group("What the clean-up does", {ui::Grow(lstdoings)}),
                            ui::Group("What it leaves", {ui::Grow(lstleft)})})
                      .Grow(),
                  &lblfacts, {}, &cmdclean);
  }

  void Return() override { ShowPlan({}); }

 private:
  void ShowPlan(const std::string& before) {
    const DataFolder& data = EditedData(game_);
    const Maintenance plan = PlanMaintenance(data.World(), UnreadableFaults(data));
    doings_ = plan.Doings.Count;
    FillFaults(lstfaults, plan.Faults.First);
    FillFaults(lstdoings, plan.Doings.First);
    FillFaults(lstleft, plan.Left.First);
    cmdclean.Enabled = doings_ > 0;
    cmdclean.Tip = doings_ > 0 ? "" : "There is nothing that a clean-up would do.";
    lblfacts.Text = before + (plan.Faults.empty() ? "No faults: " + ContentsOf(data.World()) + "."
                                                  : Summary(plan));
  }

  static std::string Summary(const Maintenance& plan) {
    const std::size_t faults = plan.Faults.Count, left = plan.Left.Count;
    const std::string mends =
        plan.Doings.empty()
            ? "A clean-up can do nothing about " + std::string(faults == 1 ? "it" : "them") + "."
            : "The clean-up takes " + Counted(plan.Doings.Count, "step") +
                  (left == 0 ? " and leaves none."
                             : "; " + std::to_string(left) + (left == 1 ? " stays." : " stay."));
    return Counted(faults, "fault") + ShownOf(faults) + ". " + mends;
  }

  void cmdclean_Click() {
    if (!desk().Ask("Clean Up?", "Mend the data in " + Counted(doings_, "step") +
                                     "? What they are now is kept as a backup."))
      return;
    DataFolder& data = EditedData(game_);
    data.KeepNext();
    const std::size_t done = Maintain(data.World(), UnreadableFaults(data)).Count;
    ShowPlan("Cleaned up in " + Counted(done, "step") + ". ");
  }

  std::size_t doings_ = 0;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ListBox lstfaults{*this, "lstfaults", FaultColumns("What is wrong")};
  ui::ListBox lstdoings{*this, "lstdoings", FaultColumns("What is wrong, and what is done")};
  ui::ListBox lstleft{*this, "lstleft", FaultColumns("What is wrong")};
  ui::Button cmdclean{*this, "cmdclean", "Clean Up", &frmEditMaintain::cmdclean_Click};
};

}  // namespace

SCREEN(frmEditTables)
SCREEN(frmEditMaintain)

}  // namespace grapplemont
