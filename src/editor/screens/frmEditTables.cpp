#include "editor/screens/screenediting.h"
#include "editor/tablesfolder.h"
#include "records/fields/charset.h"
#include "ui/gamescreen.h"

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
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback, &cmdexport, &cmdlook, &cmdimport};
    page.Main = &cmdimport;
    page.Cancel = &cmdback;
    page.Body = ui::Rows(
        {ui::Group("The folder of tables", {txtfolder, lblplace}),
         ui::Columns({ui::Group("Records", {ui::Grow(lstcounts)}).Grow(2),
                      ui::Group("Mistakes in the tables", {ui::Grow(lstmistakes)}).Grow(3)})
             .Grow()});
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
    lstmistakes.EmptyText = "The tables have no mistakes.";
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
    lblfacts.Text = "Built the data anew: " + ContentsOf(data()) + ".";
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

}  // namespace

SCREEN(frmEditTables)

}  // namespace grapplemont
