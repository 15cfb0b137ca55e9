#include <array>

#include "editor/merge.h"
#include "editor/screens/screenfiles.h"
#include "records/fields/wording.h"
#include "records/modWresCheck.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

ui::Cell FateCell(Fate fate) {
  switch (fate) {
    case Fate::Added:
      return {"Added", ui::Tone::Green};
    case Fate::Renumbered:
      return {"New uid", ui::Tone::Amber};
    default:
      return {"Left out", ui::Tone::Red};
  }
}

/// "11 records come in, 3 under another uid; 2 stay out."
std::string Tally(const Arrivals& arrivals) {
  const int renumbered = arrivals.Count(Fate::Renumbered);
  const int out = arrivals.Count(Fate::LeftOut);
  const int in = arrivals.Count(Fate::Added) + renumbered;
  const auto records = [](int count, const char* one, const char* many) {
    return Counted(static_cast<std::size_t>(count), "record") + (count == 1 ? one : many);
  };
  std::string text = records(in, " comes in", " come in");
  if (renumbered > 0) text += ", " + std::to_string(renumbered) + " under another uid";
  if (out > 0) text += "; " + std::to_string(out) + (out == 1 ? " stays out" : " stay out");
  return text + ".";
}

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
    ui::Page page =
        PageOf(ui::Columns(
                   {ui::Group("The new files", {lblfolder, ui::Grow(lstfiles), lblremarks}).Grow(2),
                    ui::Tabs({ui::Group("What becomes of each record", {ui::Grow(lstrows)}),
                              ui::Group("What is put right on the way", {ui::Grow(lstmended)})})
                        .Grow(7)}),
               &lblfacts, {}, &cmdmerge);
    page.Actions = {&cmdback, &cmdclean, &cmdlook, &cmdrename, &cmdmerge};
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
    EditedData(game_).KeepNext();
    arrivals_ = MergeNewRecords(data(), coming_, names_);
    ShowRows();
    for (ui::Button* button : {&cmdrename, &cmdmerge})
      EnableUnless(*button, "They are merged. Look again when the files have changed.");
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
                       {"Place", K::Number, 2, "Which record of the new file it is."},
                       {"Number", K::Number, 2, "By which other records know it, in the new file."},
                       {"", K::Tag, 2},
                       {"Becomes", K::Number, 2, "Its number in the data."},
                       {"Why", K::Text, 8}},
                      &frmEditMerge::lstrows_Click};
  ui::ListBox lstmended{*this, "lstmended", FaultColumns("What is wrong, and what is done")};
  ui::Button cmdclean{*this, "cmdclean", "Check And Clean-Up", &frmEditMerge::cmdclean_Click};
  ui::Button cmdlook{*this, "cmdlook", "Look Again", &frmEditMerge::cmdlook_Click};
  ui::Button cmdrename{*this, "cmdrename", "Another Name", &frmEditMerge::cmdrename_Click};
  ui::Button cmdmerge{*this, "cmdmerge", "Merge", &frmEditMerge::cmdmerge_Click};
};

enum Meets { kNobody = 0, kSameName, kSameUid };

/// Which of the other world's workers are listed.
struct Offer {
  const char* Label;
  bool (*Keeps)(const Worker& worker, Meets meets);
};
constexpr std::array<Offer, 5> kOffers = {
    {{"Everybody", [](const Worker&, Meets) { return true; }},
     {"Who is not here yet", [](const Worker&, Meets meets) { return meets != kSameName; }},
     {"Whose name is here", [](const Worker&, Meets meets) { return meets == kSameName; }},
     {"Wrestlers not here yet",
      [](const Worker& worker, Meets meets) {
        return meets != kSameName && (IsOnRoster(worker) || IsSentAway(worker));
      }},
     {"Others not here yet", [](const Worker& worker, Meets meets) {
        return meets != kSameName && !IsOnRoster(worker) && !IsSentAway(worker);
      }}}};

/// The workers of another world: whom to take over, and what would become of them.
class frmEditImport : public GameScreen {
 public:
  explicit frmEditImport(Game& game) : GameScreen(game, "frmEditImport", "Import Workers") {
    BackBefore(cmdclean);
    lstworkers.Multi = true;
    lstrows.EmptyText = "Choose workers on the left to see what would become of them.";
    lstmended.EmptyText = "Nothing has to be put right in those who are chosen.";
    cmdclean.Tip = "Workers come into data without faults only.";
    int key = 0;
    for (const Offer& offer : kOffers) cmbshow.Add(offer.Label, ++key);
    cmbshow.Select(1);
  }

  ui::Page Layout() override {
    ui::Page page = PageOf(
        ui::Rows({lblfolder,
                  ui::Columns({ui::Group("Workers of the other world",
                                         {ui::Columns({cmbshow, cmdall, cmdnone, ui::Spacer()}),
                                          ui::Grow(lstworkers)})
                                   .Grow(3),
                               ui::Tabs({ui::Group("The chosen", {ui::Grow(lstrows)}),
                                         ui::Group("What is put right", {ui::Grow(lstmended)})})
                                   .Grow(2)})
                      .Grow()}),
        &lblfacts, {}, &cmdimport);
    page.Actions = {&cmdback, &cmdclean, &cmdlook, &cmdimport};
    return page;
  }

  void Load() override { cmdlook_Click(); }
  void Return() override { ShowWorkers(); }

 private:
  World& data() { return EditedData(game_).World(); }

  void cmdlook_Click() {
    file_ = ReadForeignWorkers(game_.Disk(), game_.DataFolder());
    lblfolder.Text = !file_.Remark.empty() ? file_.Remark
                     : file_.Exists
                         ? "They stand in " + game_.DataFolder() + "/" + file_.Name + "."
                         : "There is no " + file_.Name + " in " + game_.DataFolder() + ".";
    lblfolder.Colour = file_.Remark.empty() ? ui::Tone::Muted : ui::Tone::Red;
    lstworkers.EmptyText = "Copy the wrestler.dat of another data folder to " + game_.DataFolder() +
                           "/" + file_.Name + ", then look again.";
    lstworkers.Clear();
    ShowWorkers();
  }

  /// Fills the list; who was chosen and still is listed stays chosen.
  void ShowWorkers() {
    const Entrance<Worker> here(data().Workers(), {});
    const Offer& offer = kOffers[static_cast<std::size_t>(cmbshow.Key() - 1)];
    std::vector<ui::ListBox::Row> rows;
    int number = 0;
    for (const Worker& worker : file_.Records) {
      ++number;
      const Meets meets = here.Names().Has(worker.Name)   ? kSameName
                          : data().FindWorker(worker.Uid) ? kSameUid
                                                          : kNobody;
      if (offer.Keeps(worker, meets)) rows.push_back({RowOf(worker, meets), number});
    }
    lstworkers.Fill(std::move(rows));
    Preview({});
  }

  static std::vector<ui::Cell> RowOf(const Worker& worker, Meets meets) {
    const auto here = meets == kSameName  ? ui::Cell("Name", ui::Tone::Red)
                      : meets == kSameUid ? ui::Cell("Number", ui::Tone::Amber)
                                          : ui::Cell("");
    const int position =
        IsSentAway(worker) ? worker.Position - kSentToDevelopment : int(worker.Position);
    return {Shown(worker.Name),      here,
            ui::Cell(worker.Age),    PositionText(position),
            DispositionCell(worker), ui::Cell(worker.Over),
            ui::Cell(worker.Brawl),  ui::Cell(worker.Technical),
            ui::Cell(worker.Speed),  ui::Cell(worker.Charisma)};
  }

  void Preview(const std::string& before) {
    const std::string why = WhyNoArrivals(data());
    const std::vector<int> chosen = lstworkers.Keys();
    ShowArrivals(why.empty() && !chosen.empty() ? PreviewImport(data(), file_.Records, chosen)
                                                : Arrivals{});
    cmdclean.Visible = !why.empty();
    const bool comes = arrivals_.Count(Fate::Added) + arrivals_.Count(Fate::Renumbered) > 0;
    cmdimport.Enabled = comes;
    cmdimport.Tip = comes            ? ""
                    : !why.empty()   ? why
                    : chosen.empty() ? "Choose workers first."
                                     : "None of the chosen can come in.";
    lblfacts.Text =
        before + (!why.empty()     ? why
                  : chosen.empty() ? Counted(file_.Records.size(), "worker") + " to choose from."
                                   : Tally(arrivals_));
  }

  void ShowArrivals(Arrivals arrivals) {
    arrivals_ = std::move(arrivals);
    lstrows.Clear();
    for (const Arrival& row : arrivals_.Rows)
      lstrows.Add({row.Name, FateCell(row.Comes), row.Why}, row.Record);
    FillFaults(lstmended, arrivals_.Mended);
  }

  void lstworkers_Click() { Preview({}); }
  void cmbshow_Click() { ShowWorkers(); }

  void ChooseAll(bool chosen) {
    for (int row = 1; row <= lstworkers.Count(); ++row)
      if (lstworkers.Rows()[static_cast<std::size_t>(row - 1)].Selected != chosen)
        lstworkers.Toggle(row);
    Preview({});
  }
  void cmdall_Click() { ChooseAll(true); }
  void cmdnone_Click() { ChooseAll(false); }

  void cmdimport_Click() {
    if (!desk().Ask("Import?", Tally(arrivals_) +
                                   " Import them into the data, without employment? What these are "
                                   "now is kept as a backup."))
      return;
    EditedData(game_).KeepNext();
    const std::string done = Tally(ImportWorkers(data(), file_.Records, lstworkers.Keys()));
    ChooseAll(false);
    ShowWorkers();
    lblfacts.Text = "Imported. " + done;
  }

  void cmdclean_Click() { desk().Open("frmEditMaintain"); }

  using K = ui::ColumnKind;
  RecordFile<Worker> file_;
  Arrivals arrivals_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Label lblfolder{*this, "lblfolder"};
  ui::ComboBox cmbshow{*this, "cmbshow", &frmEditImport::cmbshow_Click};
  ui::Button cmdall{*this, "cmdall", "Choose All", &frmEditImport::cmdall_Click};
  ui::Button cmdnone{*this, "cmdnone", "Choose None", &frmEditImport::cmdnone_Click};
  ui::ListBox lstworkers{*this,
                         "lstworkers",
                         {{"Name", K::Text, 6},
                          {"Here", K::Tag, 2, "What is taken in the data: the name or the number."},
                          {"Age", K::Number, 1},
                          {"Position", K::Text, 4},
                          {"Disposition", K::Tag, 2},
                          {"Over", K::Number, 1},
                          {"Brawl", K::Number, 1},
                          {"Tech.", K::Number, 1},
                          {"Speed", K::Number, 1},
                          {"Char.", K::Number, 1}},
                         &frmEditImport::lstworkers_Click};
  ui::ListBox lstrows{
      *this, "lstrows", {{"Name", K::Text, 4}, {"", K::Tag, 2}, {"Why", K::Text, 5}}};
  ui::ListBox lstmended{*this, "lstmended", FaultColumns("What is wrong, and what is done")};
  ui::Button cmdclean{*this, "cmdclean", "Check And Clean-Up", &frmEditImport::cmdclean_Click};
  ui::Button cmdlook{*this, "cmdlook", "Look Again", &frmEditImport::cmdlook_Click};
  ui::Button cmdimport{*this, "cmdimport", "Import", &frmEditImport::cmdimport_Click};
};

}  // namespace

SCREEN(frmEditMerge)
SCREEN(frmEditImport)

}  // namespace grapplemont
