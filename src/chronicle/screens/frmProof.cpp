#include "chronicle/book.h"
#include "chronicle/screens/chroniclescreens.h"
#include "records/fields/fields.h"
#include "records/fields/wording.h"
#include "records/world.h"

namespace grapplemont {

namespace {

using K = ui::ColumnKind;

/// The records behind a sentence, and all that the chosen one says.
class frmProof : public GameScreen {
 public:
  frmProof(Game& game, std::string sentence, std::vector<Proof> by)
      : GameScreen(game, "frmProof", "What Proves It"), by_(std::move(by)) {
    txtsentence.Brief = true;
    txtsentence.Write({{ui::Report::Style::Body, std::move(sentence)}});
    lstfields.EmptyText = "The record is not there any more.";
  }

  ui::Page Layout() override {
    return PageOf(ui::Rows({ui::Group("", {txtsentence}),
                            ui::Columns({ui::Group("Records", {ui::Grow(lstrecords)}).Grow(2),
                                         ui::Group("What it says", {ui::Grow(lstfields)}).Grow(5)})
                                .Grow()}),
                  &lblfacts);
  }

  void Return() override {
    std::vector<ui::ListBox::Row> rows;
    for (const Proof& proof : by_) {
      const int number = static_cast<int>(rows.size()) + 1;
      rows.push_back({{std::string(proof.Of->File), proof.Number}, number});
    }
    lstrecords.Fill(std::move(rows));
    if (lstrecords.Selected() == 0) lstrecords.Select(1);
    lblfacts.Text = "The sentence goes by " +
                    Counted(static_cast<long long>(by_.size()), "record") + " of this game.";
    ShowFields();
  }

 private:
  void ShowFields() {
    const auto at = static_cast<std::size_t>(lstrecords.Key());
    std::vector<ui::ListBox::Row> rows;
    if (at >= 1 && at <= by_.size())
      for (const ProofField& field : FieldsOf(world(), by_[at - 1]))
        rows.push_back({{field.Name, field.Value, {field.Meaning, ui::Tone::Muted}},
                        static_cast<int>(rows.size()) + 1});
    lstfields.Fill(std::move(rows), false);
  }

  std::vector<Proof> by_;
  ui::Label lblfacts{*this, "lblfacts"};
  ui::Report txtsentence{*this, "txtsentence"};
  ui::ListBox lstrecords{
      *this, "lstrecords", {{"File", K::Text, 3}, {"Record", K::Number, 1}}, &frmProof::ShowFields};
  ui::ListBox lstfields{
      *this, "lstfields", {{"Field", K::Text, 2}, {"Value", K::Text, 4}, {"Meaning", K::Text, 6}}};
};

}  // namespace

std::unique_ptr<ui::Screen> ProofScreen(Game& game, std::string sentence, std::vector<Proof> by) {
  return std::make_unique<frmProof>(game, std::move(sentence), std::move(by));
}

}  // namespace grapplemont
