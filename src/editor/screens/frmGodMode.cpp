#include <algorithm>

#include "editor/keeping.h"
#include "records/fields/charset.h"
#include "records/fields/wording.h"
#include "records/houserules.h"
#include "records/tables/fieldcells.h"
#include "storylines/screens/screenpeople.h"
#include "ui/game.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

constexpr int kRecordKinds = std::tuple_size_v<RecordTypes>;
constexpr const char* kNoGod = "The rules of this house do not have it.";

/// Any record of the running game, a field at a time. A change that would leave the world in
/// disorder is refused.
class frmGodMode : public GameScreen {
 public:
  explicit frmGodMode(Game& game) : GameScreen(game, "frmGodMode", "God Mode", {.Manages = true}) {
    BackBefore(cmdset);
    for (int kind = 0; kind < kRecordKinds; ++kind)
      cmbkind.Add(std::string(LayoutOf(static_cast<RecordKind>(kind)).Name), kind + 1);
    cmbkind.Select(1);
    lstrecords.EmptyText = "There are none of this kind.";
    lstfields.EmptyText = "Pick a record first.";
    lblmeans.Colour = ui::Tone::Muted;
    lbldone.Colour = ui::Tone::Gold;
    lbldone.Visible = false;
    txtvalue.OnChange = [this] { ShowWhatMayBe(); };
  }

  ui::Page Layout() override {
    return PageOf(
        ui::Columns(
            {ui::Group("Records", {ui::Field("Kind", cmbkind), ui::Grow(lstrecords)}).Grow(2),
             ui::Group("Fields",
                       {ui::Grow(lstfields), lblmeans, ui::Field("Value", txtvalue), lbldone})
                 .Grow(3)}),
        &lblfacts, {}, &cmdset);
  }

  void Return() override {
    const bool edited = world().Of<HouseRules>().Count() > 0 && world().Of<HouseRules>()[1].Edited;
    lblfacts.Text = !Holds(world(), HouseRule::GodMode) ? kNoGod
                    : edited ? "This game has been changed by hand, and its card says so."
                             : "The first change marks this game for good.";
    ShowRecords();
  }

 private:
  RecordKind Chosen() const { return static_cast<RecordKind>(std::max(cmbkind.Key(), 1) - 1); }
  const TableKind& Kind() const { return TableKindOf(LayoutOf(Chosen())); }
  /// Nullptr for none.
  const std::byte* Record() {
    const int number = lstrecords.Key();
    return number == 0 ? nullptr : RecordAt(std::as_const(world()), Chosen(), number);
  }

  void ShowRecords() {
    std::vector<ui::ListBox::Row> rows;
    for (int number = 1; number <= CountOf(world(), Chosen()); ++number)
      rows.push_back(
          {{ui::Cell(number), NameOf(Chosen(), RecordAt(std::as_const(world()), Chosen(), number))},
           number});
    lstrecords.Fill(std::move(rows));
    ShowFields();
  }

  void ShowFields() {
    columns_ = ColumnsOfTable(Kind());
    std::vector<ui::ListBox::Row> rows;
    const std::byte* record = Record();
    for (const Column& column : columns_)
      if (record)
        rows.push_back({{column.Name(), FieldShown(*column.Of, record, column.Index)},
                        static_cast<int>(&column - columns_.data()) + 1});
    lstfields.Fill(std::move(rows));
    lstfields_Click();
  }

  const Column* ChosenColumn() const {
    const int key = lstfields.Key();
    return key == 0 ? nullptr : &columns_[static_cast<std::size_t>(key - 1)];
  }

  void lstfields_Click() {
    const Column* column = ChosenColumn();
    const std::byte* record = Record();
    lblmeans.Text = column ? std::string(column->Of->Help) : "";
    txtvalue.Text = column && record ? FromUtf8(CellOf(Kind(), *column, record)).value_or("") : "";
    ShowWhatMayBe();
  }

  void ShowWhatMayBe() {
    const Column* column = ChosenColumn();
    EnableUnless(cmdset, !Holds(world(), HouseRule::GodMode) ? kNoGod
                         : !column || !Record()              ? "Pick a record and a field first."
                         : IsUid(*column->Of) ? "A record's number is what others know it by."
                                              : "");
  }

  void cmdset_Click() {
    const std::byte* stands = Record();
    Bytes record(stands, stands + LayoutOf(Chosen()).Size);
    const std::string cell = ToUtf8(txtvalue.Text.Get());
    if (const std::string wrong = TakeCell(Kind(), *ChosenColumn(), cell, record.data());
        !wrong.empty())
      return desk().Say("Error!", FromUtf8(wrong).value_or(wrong));
    const Keeping kept = KeepRecord(world(), Chosen(), lstrecords.Key(), std::move(record));
    if (!kept.Done()) {
      world().Rollback();
      return desk().Say("Error!", WhyRefused(kept));
    }
    world().Of<HouseRules>()[1].Edited = true;
    lbldone.Text = "Done." + (kept.Also.empty() ? "" : " " + Joined(kept.Also, " "));
    lbldone.Visible = true;
    Return();
  }

  static std::string WhyRefused(const Keeping& kept) {
    return kept.WhyNot.empty() ? kept.Wrong.front().Line() : kept.WhyNot;
  }

  std::vector<Column> columns_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::ComboBox cmbkind{*this, "cmbkind", &frmGodMode::ShowRecords};
  ui::ListBox lstrecords{
      *this, "lstrecords", {{"#", K::Number, 1}, {"Name", K::Text, 4}}, &frmGodMode::ShowFields};
  ui::ListBox lstfields{*this,
                        "lstfields",
                        {{"Field", K::Text, 2}, {"Value", K::Text, 3}},
                        &frmGodMode::lstfields_Click};
  ui::Label lblmeans{*this, "lblmeans"};
  ui::TextBox txtvalue{*this, "txtvalue"};
  ui::Label lbldone{*this, "lbldone"};
  ui::Button cmdset{*this, "cmdset", "Set It", &frmGodMode::cmdset_Click};
};

}  // namespace

SCREEN(frmGodMode)

}  // namespace grapplemont
