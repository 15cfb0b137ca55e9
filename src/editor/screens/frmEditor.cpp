#include <memory>
#include <vector>

#include "editor/screens/screenfiles.h"
#include "editor/screens/screenpages.h"
#include "editor/screens/screenrecords.h"
#include "records/fields/grouping.h"
#include "records/fields/wording.h"
#include "records/tables/worldreport.h"

namespace grapplemont {

namespace {

/// What works on the files as a whole.
struct FileWork {
  const char* Button;
  const char* Caption;
  const char* Screen;
  const char* Tip;
};
constexpr FileWork kFileWork[] = {
    {"cmdmaintain", "Check And Clean-Up", "frmEditMaintain", "Looks for faults and mends them."},
    {"cmdmerge", "Merge", "frmEditMerge", "Takes in the records of other files."},
    {"cmdimport", "Import", "frmEditImport", "Takes workers from another file."},
    {"cmdtables", "Tables", "frmEditTables", "Writes the data as tables, and reads them."}};

class frmEditor : public GameScreen {
 public:
  explicit frmEditor(Game& game)
      : GameScreen(game, "frmEditor", "File Editor"), data_(EditedData(game)) {
    for (const RecordPage& page : RecordPages()) {
      pages_.push_back(std::make_unique<ui::Button>(*this, std::string(page.Button),
                                                    std::string(page.Title),
                                                    [this, &page] { desk().Open(page.Screen); }));
      counts_.push_back(
          std::make_unique<ui::Label>(*this, "lbl" + std::string(page.Button.substr(3))));
      counts_.back()->Colour = ui::Tone::Muted;
    }
    for (const FileWork& work : kFileWork) {
      works_.push_back(std::make_unique<ui::Button>(*this, work.Button, work.Caption,
                                                    [this, &work] { desk().Open(work.Screen); }));
      works_.back()->Tip = work.Tip;
    }
    lstfaults.EmptyText = "The data are in order.";
  }

  ui::Page Layout() override {
    std::vector<ui::Box> records, works;
    for (std::size_t i = 0; i < pages_.size(); ++i)
      records.push_back(ui::Columns({ui::Box(*pages_[i]).Grow(), ui::Box(*counts_[i]).Grow()}));
    for (const auto& work : works_) works.emplace_back(*work);
    works.emplace_back(cmdrestore);
    works.emplace_back(cmduncover);
    ui::Page page;
    page.Facts = &lblfacts;
    page.Actions = {&cmdback};
    page.Main = &cmdback;
    page.Cancel = &cmdback;
    page.Body =
        ui::Columns({ui::Rows({ui::Group("Records", std::move(records)), ui::Spacer()}).Grow(3),
                     ui::Rows({ui::Group("Files", {ui::Rows(std::move(works))}),
                               ui::Group("Faults", {ui::Grow(lstfaults)}).Grow()})
                         .Grow(5)});
    return page;
  }

  void Return() override {
    ShowCounts();
    ShowFaults();
    const bool has = data_.HasBackup();
    cmdrestore.Enabled = has;
    cmdrestore.Tip = has ? "Puts the data back as they were before the last session that changed "
                           "them."
                         : "There is no backup yet. The first change of a session makes one.";
    cmduncover.Visible = !game_.PristineData().empty();
    const bool covers = data_.Covers();
    cmduncover.Enabled = covers;
    cmduncover.Tip = covers ? "Puts the world that comes with the game in the place of yours."
                            : "This is the world that comes with the game.";
  }

 private:
  void ShowCounts() {
    const auto pages = RecordPages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
      const RecordPage& page = pages[i];
      const RecordLayout& layout = LayoutOf(page.Kind);
      int count = 0;
      for (int number = 1; number <= CountOf(data_.World(), page.Kind); ++number)
        count += page.Has(RecordAt(std::as_const(data_).World(), page.Kind, number));
      counts_[i]->Text = data_.IsReadable(layout.File)
                             ? Grouped(count) + " of " + Grouped(layout.Limit)
                             : "cannot be read";
    }
  }

  void ShowFaults() {
    lstfaults.Clear();
    for (const UnreadableFile& file : data_.Unreadable()) lstfaults.Add({file.File, "", file.Why});
    FaultList faults;
    CheckWorld(data_.World(), [&](Fault&& fault) { faults.Take(std::move(fault)); });
    for (const Fault& fault : faults)
      lstfaults.Add(
          {fault.File,
           fault.Who.empty() && fault.Record > 0 ? std::to_string(fault.Record) : fault.Who,
           FaultWords(fault)});
    const std::size_t count = data_.Unreadable().size() + faults.Count;
    lblfacts.Text = std::string(
                        "The default world, of which every new game is made. Games that have begun "
                        "keep what they have. ") +
                    (data_.Covers() ? "It is your own and lies over the one that comes with the "
                                      "game. "
                                    : "") +
                    (count == 0 ? "The data are in order."
                                : Counted(count, "fault") + ShownOf(faults.Count) + ".");
  }

  void cmdrestore_Click() {
    if (!desk().Ask("Restore Backup",
                    "Put the data back as they were before the last session that changed them? "
                    "What they are now becomes the backup.",
                    ui::Default::No))
      return;
    if (!data_.Restore()) desk().Say("Restore Backup", "The data and the backup are the same.");
    Return();
  }

  void cmduncover_Click() {
    if (!desk().Ask("The Game's Own World",
                    "Put the world that comes with the game, as its last update has it, in the "
                    "place of yours? Yours becomes the backup.",
                    ui::Default::No))
      return;
    data_.Uncover();
    Return();
  }

  void cmdback_Click() override {
    StopEditing(game_);
    Close();
  }

  DataFolder& data_;
  std::vector<std::unique_ptr<ui::Button>> pages_;
  std::vector<std::unique_ptr<ui::Label>> counts_;
  std::vector<std::unique_ptr<ui::Button>> works_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Button cmdrestore{*this, "cmdrestore", "Restore Backup", &frmEditor::cmdrestore_Click};
  ui::Button cmduncover{*this, "cmduncover", "The Game's Own World", &frmEditor::cmduncover_Click};
  ui::ListBox lstfaults{*this,
                        "lstfaults",
                        {{"File", ui::ColumnKind::Text, 2},
                         {"Record", ui::ColumnKind::Text, 3},
                         {"Fault", ui::ColumnKind::Text, 9}}};
};

}  // namespace

SCREEN(frmEditor)

void RegisterRecordPages(Game& game) {
  for (const RecordPage& page : RecordPages())
    game.Desk().Register(std::string(page.Screen),
                         [&game, &page] { return std::make_unique<RecordScreen>(game, page); });
}

}  // namespace grapplemont
